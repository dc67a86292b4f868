// The readable summary of one check, for an engineer at a terminal.
#pragma once

#include <string>

#include "calc/GlobalParameter.h"
#include "calc/pass/Main_beregn.h"
#include "check/MessageLog.h"

namespace tarnvik {

// Several lines, each with its line end. A stopped or failed check says so in place of results.
std::string Summary(const std::string& project, const ConnectionState& s, const PassResult& result,
                    const MessageLog& box);

} // namespace tarnvik
