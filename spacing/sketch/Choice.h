// The choice among the places where the dimensions of a case can stand.
#pragma once

#include "spacing/sketch/Composition.h"

namespace tarnvik {

struct Choice {
    Places places;
    double unit; // the largest at which the case fits with these places; the least of all where no choice fits
    bool fits;
};

// The places that make the sketch large and clear in a room of that size, in pixels; the usual ones are kept where
// another choice gains little.
Choice Choose(int case_row, bool compression, double width, double height);

} // namespace tarnvik
