// Results as JSON, written straight to a text: a 32-bit float in the shortest form that reads back to the same float,
// which the general libraries do not offer beside doubles.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "calc/GlobalParameter.h"
#include "calc/Screen.h"
#include "calc/pass/Main_beregn.h"
#include "check/Checks.h"
#include "check/JsonList.h"
#include "check/MessageLog.h"
#include "check/Options.h"
#include "report/Recorder.h"

namespace tarnvik {

// Prints the report on a recorder and gives its calls. A print changes the state, so it comes after the state's values.
using RecordReport = std::function<std::vector<PrintCall>()>;

// What stands beside the results.
struct Remarks {
    std::vector<std::string> warnings; // of inputs that may not be so (check/Validation.h)
    std::optional<Judgement> checks;
};

// One result as an object without line end: project (where one was opened), end, fault, messages, state, and the groups
// that the options ask for; and the remarks. Appends to `json`. `record` is called
// for the group `report`.
void Append_result(std::string& json, const Options& options, const std::string& project, const ConnectionState& s,
                   const Screen& screen, const PassResult& result, const MessageLog& box,
                   const RecordReport& record = {}, const Remarks& remarks = {});

} // namespace tarnvik
