// How well a sketch is to be read.
#pragma once

#include "spacing/sketch/Composition.h"

namespace tarnvik {

// Whether what is to be read stands clear: labels of each other, of fasteners and of lines; dimension lines and the
// force of each other and of the fasteners.
bool Stands_clear(const Composition& all);

// What makes a sketch harder to read without making it wrong, as a share of its size that it may cost to avoid it.
double Flaws(const Composition& all);

} // namespace tarnvik
