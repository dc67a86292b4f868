// The diagrams of a sweep: SVG pictures of 800 by 500 (check/Chart.h).
#pragma once

#include <string>
#include <vector>

#include "check/Sweep.h"

namespace tarnvik {

// Utilisation of the bolts, of splitting and of the heights by the distances over the
// input, the limit, and the failure modes along the line of the bolts. Lines differ in dashes and grey, not in colour;
// they break where there is no result.
std::string Plot_sweep(const SweepRange& range, const std::vector<SweepPoint>& points, const std::string& title);

// The field of two inputs: the largest of these utilisations in tones of grey, the line between what holds and what
// does not, and a letter for what is the largest. `points` are in the order of a sweep, the second input running.
std::string Plot_grid(const std::vector<SweepRange>& ranges, const std::vector<SweepPoint>& points,
                      const std::string& title);

} // namespace tarnvik
