// The diagram of a sweep.
#pragma once

#include <string>
#include <vector>

#include "check/Sweep.h"

namespace tarnvik {

// An SVG picture of 800 by 500: utilisation of the bolts, of splitting and of the heights by the distances over the
// input, the limit, and the failure modes along the line of the bolts. Lines differ in dashes and grey, not in colour;
// they break where there is no result.
std::string Plot_sweep(const SweepRange& range, const std::vector<SweepPoint>& points, const std::string& title);

} // namespace tarnvik
