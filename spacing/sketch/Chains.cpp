#include "spacing/sketch/Chains.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarnvik {

namespace {

constexpr double chain_gap = 11.0; // from the last fastener or the edge to a dimension line
constexpr double member_gap = 6.0; // from the other member, where a chain keeps outside it
constexpr double overshoot = 3.0;  // of an extension beyond its dimension line
constexpr double bolt_gap = 1.0;   // from a fastener to its extension
constexpr double edge_gap = 2.0;   // from an edge or an end to its extension
constexpr double beside = 12.0;    // so near to dimensions a corner of the other member counts
constexpr double label_ends = 3.5; // what a label needs of its line beyond its own width
constexpr double give_way = 0.6;   // of what it lacks of that

// Where the label of a dimension stands: beside its middle, and shifted along it by a share of what the line lacks to
// be as wide as the label.
Point Label_at(const Segment& line, TextSize label, Point outward, double share) {
    const double off = Span(label, outward) / 2.0 + label_gap;
    const Point d = line.b - line.a;
    const double length = Length(d);
    const Point direction = (1.0 / length) * d;
    const double lacking = std::max(0.0, Span(label, direction) + label_ends - length);
    return 0.5 * (line.a + line.b) + off * outward + (share * lacking) * direction;
}

// The dimensions between the ticks, with the labels of the distances from `first` on. The first and the last label of a
// chain give way outward where they need it.
void Add_dimensions(Chain& chain, const std::vector<Point>& ticks, int first) {
    const std::size_t count = ticks.size() - 1;
    for (std::size_t i = 0; i < count; ++i) {
        const double share = count == 1 ? 0.0 : i == 0 ? -give_way : i + 1 == count ? give_way : 0.0;
        const Segment line{ticks[i], ticks[i + 1]};
        const std::string_view label = Label_of(static_cast<Distance>(first + static_cast<int>(i)));
        const TextSize size = Size_of(label, false);
        const Point at = Label_at(line, size, chain.outward, share);
        chain.dimensions.push_back({label, line, at, Around(at, size), false});
    }
}

int First_of_family(std::size_t member) {
    return member == 0 ? a1 : b1;
}

// How far the other member reaches along `away`, which is u or its opposite: where its edges cross those of this one,
// and where it ends within this one.
double Reach_over(const Member& member, const Member& other, double away) {
    double reach = std::numeric_limits<double>::lowest();
    for (const double own : {member.First_edge(), member.Other_edge()}) {
        for (const double edge : {other.First_edge(), other.Other_edge()}) {
            const double t = (edge - own * Dot(member.m, other.m)) / Dot(member.u, other.m);
            if (other.through || Dot(member.At(t, own), other.u) >= other.end_u) {
                reach = std::max(reach, away * t);
            }
        }
    }
    if (!other.through) {
        for (const double edge : {other.First_edge(), other.Other_edge()}) {
            const Point corner = other.At(other.end_u, edge);
            const double m = Dot(corner, member.m);
            if (m > member.Other_edge() - beside && m < member.First_edge() + beside) {
                reach = std::max(reach, away * Dot(corner, member.u));
            }
        }
    }
    return reach;
}

// Where a chain across a member stands, along u: outside the fasteners, and as the place asks outside the member's end
// and what the other member covers.
double Across_at(const Joint& joint, std::size_t k, const Place& place) {
    const Member& member = joint.members[k];
    const double away = place.behind ? -1.0 : 1.0;
    double at = joint.Farthest(away * member.u) + (chain_gap + bolt_radius);
    if (place.behind && !member.through) {
        at = std::max(at, -member.end_u + chain_gap);
    }
    if (place.clear) {
        at = std::max(at, Reach_over(member, joint.members[1 - k], away) + member_gap);
    }
    return away * at;
}

// The fastener on a line, so far across the member, that is nearest to a chain.
Point Nearest_on_line(const Joint& joint, const Member& member, double across, double chain_u) {
    double nearest = std::numeric_limits<double>::max();
    Point found;
    for (const Point& fastener : joint.fasteners) {
        if (std::fabs(Dot(fastener, member.m) - across) < 1e-6) {
            const double gap = std::fabs(Dot(fastener, member.u) - chain_u);
            if (gap < nearest) {
                nearest = gap;
                found = fastener;
            }
        }
    }
    return found;
}

// How far out, on that side of the member, a chain along it stands that reaches from `near_u` to `far_u`: outside the
// edge, and outside the other member's end where that sticks out beside the distances.
double Along_at(const Joint& joint, std::size_t k, double side, double near_u, double far_u) {
    const Member& member = joint.members[k];
    const Member& other = joint.members[1 - k];
    double at = side * (side > 0.0 ? member.First_edge() : member.Other_edge()) + chain_gap;
    if (other.through) {
        return at;
    }
    for (const double corner : {other.First_edge(), other.Other_edge()}) {
        const Point p = other.At(other.end_u, corner);
        const double u = Dot(p, member.u);
        if (u > near_u - beside && u < far_u + beside) {
            at = std::max(at, side * Dot(p, member.m) + member_gap);
        }
    }
    if (!joint.oblique && Dot(other.u, member.m) * side < -0.5) { // the other one ends on this side
        at = std::max(at, -other.end_u + chain_gap);
    }
    return at;
}

} // namespace

Chain Chain_across(const Joint& joint, std::size_t member, const Place& place, MemberDistances listed) {
    const Member& own = joint.members[member];
    const double away = place.behind ? -1.0 : 1.0;
    const double chain_u = Across_at(joint, member, place);
    const bool outside = place.behind && !own.through; // beyond the end the edges need a line as well
    Chain chain;
    chain.across = true;
    chain.outward = away * own.u;
    std::vector<Point> ticks;
    const auto last = static_cast<std::size_t>(listed.across);
    for (std::size_t i = 0; i <= last; ++i) {
        const double at = own.lines[i];
        ticks.push_back(own.At(chain_u, at));
        const Point end = ticks.back() + (overshoot * away) * own.u;
        if (i > 0 && i < last) {
            const Point fastener = Nearest_on_line(joint, own, at, chain_u);
            chain.extensions.push_back({fastener + (away * (bolt_radius + bolt_gap)) * own.u, end});
        } else if (outside) {
            chain.extensions.push_back({own.At(own.end_u - edge_gap, at), end});
        }
    }
    Add_dimensions(chain, ticks, First_of_family(member));
    chain.dimensions.front().loaded = own.first_edge_loaded;
    chain.dimensions.back().loaded = own.other_edge_loaded;
    return chain;
}

std::optional<Chain> Chain_along(const Joint& joint, std::size_t member, const Place& place, MemberDistances listed) {
    if (listed.along == 0) {
        return std::nullopt;
    }
    const Member& own = joint.members[member];
    // The fasteners nearest to the end, so many spacings as are listed, and the end.
    const int spacings = listed.along - (own.through ? 0 : 1);
    std::vector<double> at(own.row.end() - 1 - spacings, own.row.end());
    if (!own.through) {
        at.push_back(own.end_u);
    }
    const double side = place.first ? 1.0 : -1.0;
    const double edge = place.first ? own.First_edge() : own.Other_edge();
    const double chain_m = side * Along_at(joint, member, side, at.back(), at.front());
    Chain chain;
    chain.outward = side * own.m;
    std::vector<Point> ticks;
    for (std::size_t i = 0; i < at.size(); ++i) {
        ticks.push_back(own.At(at[i], chain_m));
        const bool end = !own.through && i + 1 == at.size();
        const double from_m = end ? edge + side * edge_gap : own.row_m + side * (bolt_radius + bolt_gap);
        chain.extensions.push_back({own.At(at[i], from_m), ticks.back() + overshoot * chain.outward});
    }
    Add_dimensions(chain, ticks, First_of_family(member) + listed.across);
    chain.dimensions.back().loaded = !own.through && own.end_loaded;
    return chain;
}

} // namespace tarnvik
