// Results as JSON, written straight to a text: a 32-bit float in the shortest form that reads back to the same float,
// which the general libraries do not offer beside doubles.
#pragma once

#include <string>
#include <string_view>

#include "calc/GlobalParameter.h"
#include "calc/Main_beregn.h"
#include "calc/MessageBox.h"
#include "calc/Screen.h"
#include "check/Options.h"

namespace tarnvik {

// A text as a JSON string, quotes included; damaged UTF-8 becomes the replacement character.
void Append_json(std::string& json, std::string_view text);

// One result as an object without line end: project (where one was opened), end, fault, messages, state, and the groups
// that the options ask for. Appends to `json`.
void Append_result(std::string& json, const Options& options, const std::string& project, const ConnectionState& s,
                   const Screen& screen, const PassResult& result, const RecordingMessageBox& box);

} // namespace tarnvik
