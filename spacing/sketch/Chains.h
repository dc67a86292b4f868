// The chains of dimensions of a joint: across each member from edge to edge, and along it to its end. Joint
// coordinates.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "spacing/Rules.h"
#include "spacing/sketch/Joint.h"

namespace tarnvik {

inline constexpr double label_gap = 3.0; // from a dimension line to its label
inline constexpr double overshoot = 2.0; // of an extension beyond its dimension line

// One distance of the case, from one edge, line of fasteners or end to the next.
struct Dimension {
    std::string_view label;
    Segment line;
    Point label_at;  // centre of the label
    Rect label_room; // what the label covers
    bool loaded{};   // an edge or an end towards which the force drives the fasteners
};

struct Chain {
    std::vector<Dimension> dimensions; // one at least, on one line
    Point outward;                     // side of the labels, where there is room for them
    bool across{};                     // across the member, otherwise along it
    bool on_wood{};                    // on the member, not beyond its end or outside its edges
    std::vector<Segment> extensions;   // from fasteners, edges and ends to the ends of the dimensions
};

// Where the dimensions of a member stand.
struct Place {
    bool behind; // those across: on the side of the member's end, or of the lower end of one that runs through
    bool first;  // those along: outside the first edge
};

// The dimensions of the first or the second member, index 0 or 1, of which the rules list so many, at their place or so
// many pixels farther out. A member with no distance along it has no chain there.
Chain Chain_across(const Joint& joint, std::size_t member, const Place& place, MemberDistances listed, double farther);
std::optional<Chain> Chain_along(const Joint& joint, std::size_t member, const Place& place, MemberDistances listed,
                                 double farther);

// How far the other member reaches along `away`, which is u or its opposite: where its edges cross those of this one,
// and where it ends within this one or just beside it.
double Reach_over(const Member& member, const Member& other, double away);

} // namespace tarnvik
