// The check sheet: one connection on two pages of A4 as one HTML file without script and network, which an engineer
// hands on: inputs, verdict, every check with its clause, the failure modes with their numbers, the distances with
// their rules, two diagrams, what is not checked.
//
// It shows what the last pass left and calculates nothing of its own but the capacities of the diagram, by passes on a
// copy, and the parts of a failure mode, by the formula that stands beside them. The numbers are those of the detailed
// calculations (detail/Numbers.h).
#pragma once

#include <string>

#include "calc/GlobalParameter.h"
#include "ports/Clock.h"
#include "session/Standing.h"

namespace tarnvik {

// UTF-8, in the language of the state. The results have to belong to the inputs (session/Standing.h); the splitting
// check may be undone, as the verdict says. `version` is that of the program.
std::string Check_sheet(const ConnectionState& s, const Verdict& verdict, const Moment& now,
                        const std::string& version);

} // namespace tarnvik
