// The recalculation pass: the one procedure that brings all results up to date.
#pragma once

#include <optional>

#include "calc/GlobalParameter.h"
#include "calc/RuntimeFault.h"
#include "calc/Screen.h"
#include "ports/MessageBox.h"

namespace tarnvik {

enum class PassEnd : std::uint8_t {
    normal,
    connector_refused, // the connector does not fit the bolt
    zero_section,      // a member has a side of exactly zero
    fault,             // the arithmetic failed
};

// "normal", "connector refused", "zero section", "fault"
std::string_view Pass_end_name(PassEnd end);

// One full pass, in a fixed order. Works on the state alone where `screen` is null; otherwise writes what the controls
// show as well. A stopped pass leaves all later results and texts of the last one standing.
// Errors: throws RuntimeFault; what was stored before stays.
PassEnd Main_beregn(ConnectionState& s, Screen* screen, MessageBox& box);

struct PassResult {
    PassEnd end{PassEnd::normal};
    std::optional<RuntimeFault> fault; // with PassEnd::fault
};

// A pass whose fault is caught and told.
PassResult Run_pass(ConnectionState& s, Screen* screen, MessageBox& box);

// Captions of the class frame and Lastvar_txt in the language.
void Lang_klasser_Eng(ConnectionValues& s, const ScreenWriter& show);
void Lang_klasser_Nor(ConnectionValues& s, const ScreenWriter& show);

} // namespace tarnvik
