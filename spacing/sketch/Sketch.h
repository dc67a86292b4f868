// The sketches of the cases: members in elevation, fasteners on a lattice along the two directions of the grain, and
// every distance of the case drawn where it is measured.
//
// One piece of code draws all of them from the geometry of the case. The labels are those of the distances that the
// rules of the case list.
#pragma once

#include <optional>
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
    double unit{}; // pixels of an unloaded edge distance
    bool fits{};   // nothing that is drawn to be read leaves the room or touches a label
};

// The sketch of a case (a row of the catalogue) for tension or compression, composed for a room of that size in pixels.
Sketch Draw_sketch(int case_row, bool compression, double width, double height);

// Number of fasteners along the grain of member 1 and of member 2.
struct Lattice {
    int n1, n2;
};
Lattice Lattice_of(int case_row);

// The picture of a connection for a code "1.1" to "5.3": the elevation, and beside it a section through the joint that
// tells single from double members. Nothing for another code.
std::optional<Drawing> Draw_connection(std::string_view Con_code, double width, double height);

// The picture of a connection type 1 to 5 for a button: the elevation alone.
Drawing Draw_type(int Con_type, double width, double height);

} // namespace tarnvik
