// The sheet on which a picture is drawn, and where the joint lies on it.
#pragma once

#include "spacing/sketch/Geometry.h"

namespace tarnvik {

struct Sheet {
    double width, height; // pixels
    Point origin;         // of the joint, from the lower left

    // From joint coordinates, y upward, to pixels of the drawing, y downward.
    [[nodiscard]] Point Place(Point p) const { return {origin.x + p.x, height - (origin.y + p.y)}; }
};

// Whether a sheet holds what takes these bounds, with a margin around it.
bool Fits(const Rect& bounds, double width, double height);

// The sheet with those bounds in its middle.
Sheet Centred(const Rect& bounds, double width, double height);

} // namespace tarnvik
