#include "spacing/sketch/Clearness.h"

#include <algorithm>
#include <cmath>

namespace tarnvik {

Rect Apart(const Rect& label) {
    return {label.left - label_beside_label, label.low - label_above_label, label.right + label_beside_label,
            label.high + label_above_label};
}

Occupied::Occupied(const Joint& joint) : fasteners_(joint.fasteners) {
    Set_edges(joint);
}

void Occupied::Set_edges(const Joint& joint) {
    edges_.clear();
    loaded_edges_.clear();
    for (const Member& member : joint.members) {
        (member.first_edge_loaded ? loaded_edges_ : edges_).push_back(member.First());
        (member.other_edge_loaded ? loaded_edges_ : edges_).push_back(member.Other());
        for (const double u : {member.near_u, member.far_u}) {
            edges_.push_back({member.At(u, member.First_edge()), member.At(u, member.Other_edge())});
        }
    }
}

bool Occupied::Takes_label(const Rect& room) const {
    const auto off = [](const std::vector<Segment>& lines, const Rect& grown) {
        return std::none_of(lines.begin(), lines.end(), [&](const Segment& line) { return Touches(line, grown); });
    };
    return off(edges_, room.Grown(medium / 2.0 + label_to_edge)) &&
           off(loaded_edges_, room.Grown(thick / 2.0 + label_to_edge)) && off(lines_, room.Grown(label_to_line)) &&
           off(extensions_, room.Grown(label_to_line)) &&
           std::none_of(labels_.begin(), labels_.end(),
                        [near = Apart(room)](const Rect& label) { return label.Touches(near); }) &&
           std::none_of(fasteners_.begin(), fasteners_.end(), [&](Point fastener) {
               return room.Touches(Around(fastener, bolt_radius + label_to_fastener));
           });
}

bool Occupied::Takes_line(const Segment& line) const {
    const auto off = [&](const std::vector<Segment>& others, double gap) {
        return std::none_of(others.begin(), others.end(),
                            [&](const Segment& other) { return Nearer(line, other, gap); });
    };
    return off(lines_, line_to_line) && off(extensions_, extension_to_line) &&
           std::none_of(labels_.begin(), labels_.end(),
                        [&](const Rect& label) { return Touches(line, label.Grown(label_to_line)); }) &&
           std::none_of(fasteners_.begin(), fasteners_.end(),
                        [&](Point fastener) { return Nearer(fastener, line, bolt_radius + line_to_fastener); });
}

bool Occupied::Takes_dimension(const Segment& line) const {
    const Point d = line.b - line.a;
    const Point direction = (1.0 / Length(d)) * d;
    const Segment head_a{line.a, line.a + arrowhead * direction};
    const Segment head_b{line.b, line.b - arrowhead * direction};
    // The edge from which or to which is measured: it is square to the line, and the tip stands on it.
    const auto own = [&](const Segment& edge) {
        constexpr double exact = 1e-6;
        return std::fabs(Dot(edge.b - edge.a, direction)) < exact &&
               (Nearer(line.a, edge, exact) || Nearer(line.b, edge, exact));
    };
    const auto off = [&](const std::vector<Segment>& edges, double gap) {
        return std::none_of(edges.begin(), edges.end(), [&](const Segment& edge) {
            return (Nearer(head_a, edge, gap) || Nearer(head_b, edge, gap)) && !own(edge);
        });
    };
    constexpr double gap = head_half_width * arrowhead + head_to_edge;
    return Takes_line(line) && off(edges_, gap + medium / 2.0) && off(loaded_edges_, gap + thick / 2.0) &&
           std::none_of(loaded_edges_.begin(), loaded_edges_.end(),
                        [&](const Segment& edge) { return Nearer(line, edge, thick / 2.0) && !own(edge); });
}

bool Occupied::Takes_extension(const Segment& extension) const {
    constexpr double own = bolt_radius + 2.0; // it begins so near to its own fastener
    return std::none_of(lines_.begin(), lines_.end(),
                        [&](const Segment& line) { return Nearer(extension, line, extension_to_line); }) &&
           std::none_of(labels_.begin(), labels_.end(),
                        [&](const Rect& label) { return Touches(extension, label.Grown(label_to_line)); }) &&
           std::none_of(fasteners_.begin(), fasteners_.end(), [&](Point fastener) {
               return Nearer(fastener, extension, extension_to_fastener) && Length(fastener - extension.a) > own;
           });
}

bool Occupied::Takes_sign(const Segment& line, double gap) const {
    for (const std::vector<Segment>* others : {&edges_, &loaded_edges_, &lines_, &extensions_}) {
        for (const Segment& other : *others) {
            if (Nearer(line, other, gap)) {
                return false;
            }
        }
    }
    return std::none_of(labels_.begin(), labels_.end(),
                        [&](const Rect& label) { return Touches(line, label.Grown(gap)); }) &&
           std::none_of(fasteners_.begin(), fasteners_.end(),
                        [&](Point fastener) { return Nearer(fastener, line, gap + bolt_radius); });
}

} // namespace tarnvik
