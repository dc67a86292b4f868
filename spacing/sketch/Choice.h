// The size of a sketch and the places of its dimensions.
#pragma once

#include "spacing/sketch/Composition.h"

namespace tarnvik {

// The places of a case, a row of the catalogue: the same for tension and compression and in every room, so that the eye
// sees only what changes.
Places Places_of(int case_row);

struct Choice {
    double unit; // the largest at which the case is clear and fits into the room; the least of all where none does
    bool fits;
    Composition all; // at that unit
};

// For a room of that size, in pixels.
Choice Choose(int case_row, bool compression, double width, double height);

} // namespace tarnvik
