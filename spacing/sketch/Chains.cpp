#include "spacing/sketch/Chains.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarnvik {

namespace {

constexpr double chain_gap = 10.0; // from the last fastener or the edge to a dimension line
constexpr double member_gap = 7.0; // from the other member
constexpr double bolt_gap = 1.0;   // from a fastener to its extension
constexpr double edge_gap = 2.0;   // from an edge or an end to its extension
constexpr double beside = 12.0;    // so near to dimensions a corner of the other member counts

// A dimension with its label beside its middle.
Dimension Make_dimension(int distance, const Segment& line, Point outward) {
    const std::string_view label = Label_of(static_cast<Distance>(distance));
    const TextSize size = Size_of(label, false);
    const Point at = 0.5 * (line.a + line.b) + (Span(size, outward) / 2.0 + label_gap) * outward;
    return {label, line, at, Around(at, size), false};
}

int First_of_family(std::size_t member) {
    return member == 0 ? a1 : b1;
}

// Where a chain across a member stands, along u: outside the fasteners, the member's end and what the other member
// covers.
double Across_at(const Joint& joint, std::size_t k, const Place& place) {
    const Member& member = joint.members[k];
    const double away = place.behind ? -1.0 : 1.0;
    double at = joint.Farthest(away * member.u) + (chain_gap + bolt_radius);
    if (place.behind && !member.through) {
        at = std::max(at, -member.end_u + chain_gap);
    }
    return std::max(at, Reach_over(member, joint.members[1 - k], away) + member_gap);
}

// The fastener that is farthest along a direction, of those that a test holds for.
template <class Test> Point Farthest_of(const Joint& joint, Point direction, Test test) {
    double farthest = std::numeric_limits<double>::lowest();
    Point found;
    for (const Point& fastener : joint.fasteners) {
        const double at = Dot(fastener, direction);
        if (at > farthest && test(fastener)) {
            farthest = at;
            found = fastener;
        }
    }
    return found;
}

bool Same(double a, double b) {
    return std::fabs(a - b) < 1e-6;
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

// The fasteners between which the distances along a member are measured, from the one farthest from its end: the row
// next to the chain, so that no extension line passes another row, and the one next to the end.
struct Along {
    std::vector<Point> row;
    Point last;
};

Along Measured_along(const Joint& joint, const Member& member, double side, int spacings) {
    Along along;
    const double nearest = -joint.Farthest(-1.0 * member.u);
    along.last =
        Farthest_of(joint, side * member.m, [&](Point fastener) { return Same(Dot(fastener, member.u), nearest); });
    const double row_m = joint.Farthest(side * member.m);
    for (const Point& fastener : joint.fasteners) {
        if (Same(side * Dot(fastener, member.m), row_m)) {
            along.row.push_back(fastener);
        }
    }
    std::sort(along.row.begin(), along.row.end(),
              [&](Point a, Point b) { return Dot(a, member.u) > Dot(b, member.u); });
    along.row.erase(along.row.begin(), along.row.end() - (spacings + 1));
    return along;
}

// From where the line beyond a member's end is extended, across it on that side: from its corner, or from that of the
// other one where the end is flush with an edge of it, which is its own line up to there.
double Extended_from(const Joint& joint, std::size_t k, double side) {
    const Member& own = joint.members[k];
    const Member& other = joint.members[1 - k];
    double from = side > 0.0 ? own.First_edge() : -own.Other_edge();
    const double end = Dot(own.At(own.end_u, own.Axis()), other.m);
    if (!joint.oblique && !other.through && (Same(end, other.First_edge()) || Same(end, other.Other_edge()))) {
        from = std::max(from, side * Dot(other.At(other.end_u, 0.0), own.m));
    }
    return side * (from + edge_gap);
}

} // namespace

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

Chain Chain_across(const Joint& joint, std::size_t member, const Place& place, MemberDistances listed, double farther) {
    const Member& own = joint.members[member];
    const double away = place.behind ? -1.0 : 1.0;
    const double chain_u = away * (Across_at(joint, member, place) + farther);
    const bool outside = place.behind && !own.through; // beyond the end the edges need a line as well
    Chain chain;
    chain.across = true;
    chain.on_wood = !outside;
    chain.outward = away * own.u;
    const auto last = static_cast<std::size_t>(listed.across);
    for (std::size_t i = 0; i <= last; ++i) {
        const double at = own.lines[i];
        const Point tick = own.At(chain_u, at);
        const Point end = tick + (overshoot * away) * own.u;
        if (i > 0 && i < last) {
            const Point fastener =
                Farthest_of(joint, away * own.u, [&](Point point) { return Same(Dot(point, own.m), at); });
            chain.extensions.push_back({fastener + (away * (bolt_radius + bolt_gap)) * own.u, end});
        } else if (outside) {
            chain.extensions.push_back({own.At(own.end_u - edge_gap, at), end});
        }
        if (i > 0) {
            const int distance = First_of_family(member) + static_cast<int>(i) - 1;
            chain.dimensions.push_back(
                Make_dimension(distance, {own.At(chain_u, own.lines[i - 1]), tick}, chain.outward));
        }
    }
    chain.dimensions.front().loaded = own.first_edge_loaded;
    chain.dimensions.back().loaded = own.other_edge_loaded;
    return chain;
}

std::optional<Chain> Chain_along(const Joint& joint, std::size_t member, const Place& place, MemberDistances listed,
                                 double farther) {
    if (listed.along == 0) {
        return std::nullopt;
    }
    const Member& own = joint.members[member];
    const double side = place.first ? 1.0 : -1.0;
    const int spacings = listed.along - (own.through ? 0 : 1);
    const Along along = Measured_along(joint, own, side, spacings);
    const double near_u = own.through ? Dot(along.row.back(), own.u) : own.end_u;
    const double chain_m = side * (Along_at(joint, member, side, near_u, Dot(along.row.front(), own.u)) + farther);
    Chain chain;
    chain.outward = side * own.m;
    // The point of the chain beside another one, and the extension line from so far across the member.
    const auto tick = [&](double u) { return own.At(u, chain_m); };
    const auto extend = [&](double u, double from_m) {
        chain.extensions.push_back({own.At(u, from_m), tick(u) + overshoot * chain.outward});
    };
    const auto from_fastener = [&](Point fastener) {
        extend(Dot(fastener, own.u), Dot(fastener, own.m) + side * (bolt_radius + bolt_gap));
    };
    int distance = First_of_family(member) + listed.across;
    for (std::size_t i = 0; spacings > 0 && i < along.row.size(); ++i) {
        from_fastener(along.row[i]);
        if (i > 0) {
            const Segment line{tick(Dot(along.row[i - 1], own.u)), tick(Dot(along.row[i], own.u))};
            chain.dimensions.push_back(Make_dimension(distance++, line, chain.outward));
        }
    }
    if (!own.through) {
        const double last_u = Dot(along.last, own.u);
        if (spacings == 0 || !Same(last_u, Dot(along.row.back(), own.u))) {
            from_fastener(along.last);
        }
        extend(own.end_u, Extended_from(joint, member, side));
        chain.dimensions.push_back(Make_dimension(distance, {tick(last_u), tick(own.end_u)}, chain.outward));
        chain.dimensions.back().loaded = own.end_loaded;
    }
    return chain;
}

} // namespace tarnvik
