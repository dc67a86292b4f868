// How far apart the parts of a sketch stand, and what of it is taken already. Joint coordinates.
//
// The rules of the drawings, held over all cases by tests/spacing/sketch/Rules_test.cpp:
// - Nothing that is read stands on anything else: a label keeps off edges, torn ends, fasteners, lines and labels.
// - An extension line passes a fastener that it does not belong to with clear air, and crosses no foreign dimension.
// - An arrowhead keeps off every edge but the one that it ends on, and no dimension crosses the loaded edge.
// - Dimensions stand where the case has them for either sign of the force and in every room, see Choice.h; from there
//   they step outward until they are clear.
// - A label stands beside the middle of its dimension, on the outer side; otherwise on the inner one; otherwise a
// little
//   along it, an outermost one also past its end.
// - The force stands on the axis of its member, outside its torn end; its letter on one side, the other, or beyond it.
// - The angle stands in the corner between the members, the grain on the axis of a member just outside the
//   joint, off all else by its own height.
#pragma once

#include "spacing/sketch/Joint.h"

namespace tarnvik {

// The head of a dimension, pixels, and its half width as a share of it.
inline constexpr double arrowhead = 4.6;
inline constexpr double head_half_width = 0.32;

// Pixels.
inline constexpr double label_to_edge = 1.0; // from its rim, as everywhere
inline constexpr double label_to_line = 1.2;
inline constexpr double label_above_label = 1.0;
inline constexpr double label_beside_label = 3.6;                // more, as words run on from left to right
inline constexpr double label_to_fastener = 2.0;                 // from its rim
inline constexpr double line_to_line = 6.0;                      // between dimensions, and from them to the force
inline constexpr double head_to_edge = 1.2;                      // from its side
inline constexpr double line_to_fastener = 4.0;                  // from its rim
inline constexpr double extension_to_fastener = 3 * bolt_radius; // from its centre
inline constexpr double extension_to_line = 2.0;
inline constexpr double force_to_anything = 3.0;
inline constexpr double grain_to_anything = 4.0; // the height of the mark

// The room of a label with what keeps others off.
Rect Apart(const Rect& label);

class Occupied {
public:
    // The edges and fasteners of a joint.
    explicit Occupied(const Joint& joint);

    // The edges anew, with their torn ends.
    void Set_edges(const Joint& joint);

    void Add_label(const Rect& room) { labels_.push_back(room); }
    void Add_line(const Segment& line) { lines_.push_back(line); }
    void Add_extension(const Segment& extension) { extensions_.push_back(extension); }

    // Whether there is room for it. A line is a dimension or the force, which may cross edges.
    [[nodiscard]] bool Takes_label(const Rect& room) const;
    [[nodiscard]] bool Takes_line(const Segment& line) const;
    // A dimension, whose heads keep off every edge but those that it measures, and which crosses no loaded one.
    [[nodiscard]] bool Takes_dimension(const Segment& line) const;
    [[nodiscard]] bool Takes_extension(const Segment& extension) const;
    // A sign of so much room at either side of a line.
    [[nodiscard]] bool Takes_sign(const Segment& line, double gap) const;

private:
    const std::vector<Point>& fasteners_;
    std::vector<Segment> edges_;
    std::vector<Segment> loaded_edges_;
    std::vector<Segment> lines_;
    std::vector<Segment> extensions_;
    std::vector<Rect> labels_;
};

} // namespace tarnvik
