// The readable summary of one check, for an engineer at a terminal.
#pragma once

#include <string>

#include "calc/GlobalParameter.h"
#include "calc/pass/Main_beregn.h"
#include "ports/MessageBox.h"

namespace tarnvik {

// Several lines, each with its line end. A stopped or failed check says so in place of results.
std::string Summary(const std::string& project, const ConnectionState& s, const PassResult& result,
                    const RecordingMessageBox& box);

} // namespace tarnvik
