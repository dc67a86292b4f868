// The sketches of the cases: members in elevation, fasteners on a lattice along the two directions of the grain, and
// every distance of the case drawn where it is measured.
//
// One piece of code draws all of them from the geometry of the case. The labels are those of the distances that the
// rules of the case list.
#pragma once

#include <string_view>
#include <vector>

#include "spacing/sketch/Drawing.h"

namespace tarnvik {

// A distance as the sketch shows it: from one edge, line of fasteners or end to the next.
struct SketchedDistance {
    std::string_view label;
    Point from, to; // ends of the dimension line, pixels
    Point label_at; // centre of the label
    bool across{};  // across the member, from edge to edge; otherwise along the grain
    bool loaded{};  // an edge or an end towards which the force drives the fasteners
};

struct Sketch {
    Drawing drawing;
    std::vector<SketchedDistance> distances;
    std::vector<Point> fasteners;
    double unit{}; // pixels of an unloaded edge distance; 0 where the sketch does not fit
    bool fits{};   // nothing that is drawn to be read leaves the room or touches a label
};

// The sketch of a case (a row of the catalogue) for tension or compression, composed for a room of that size in pixels.
Sketch Draw_sketch(int case_row, bool compression, double width, double height);

} // namespace tarnvik
