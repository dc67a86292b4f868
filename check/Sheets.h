// Check sheets as files, and their verification.
#pragma once

#include <string>
#include <string_view>

#include "calc/GlobalParameter.h"
#include "ports/Clock.h"
#include "session/Judge.h"
#include "session/Session.h"

namespace tarnvik {

// The sheet of a connection whose results are current.
std::string Sheet_of(const ConnectionState& s, const Judge& judge, const Moment& now);

// The file name of the sheet of a batch line: its number, and its Id as far as that can stand in a file name.
std::string Sheet_name(long line, std::string_view Id);

struct Verification {
    bool holds{};     // nothing differs
    std::string text; // what was found, in words
};

// Calculates the connection of a sheet again, on the session, and holds record and page against it. The process has the
// sheet's decimal sign afterwards. Errors: throws UsageError for a text that is no check sheet.
Verification Verify_sheet(std::string_view html, Session& session, Judge& judge);

} // namespace tarnvik
