// Where the labels of a chain stand, and where the chain does.
#pragma once

#include "spacing/sketch/Chains.h"
#include "spacing/sketch/Clearness.h"

namespace tarnvik {

// Whether there is room for the chain; its labels stand clear then. Otherwise the chain is as it was. The outermost
// labels may stand past its ends, or none may.
bool Fit(Chain& chain, const Occupied& occupied, bool past_ends);

void Add(Occupied& occupied, const Chain& chain);

} // namespace tarnvik
