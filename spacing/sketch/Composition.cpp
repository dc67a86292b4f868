#include "spacing/sketch/Composition.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

#include "spacing/Catalogue.h"
#include "spacing/sketch/Labels.h"

namespace tarnvik {

namespace {

// Where a chain is tried, pixels farther out than usual. One along a member may stand nearer to its edge, where it
// would cross the loaded edge of the other one farther out.
constexpr std::array across_places{0.0, 4.0, 8.0, 12.0};
constexpr std::array along_places{0.0, 4.0, 8.0, 12.0, -5.0};
constexpr std::array far_places{0.0, 4.0, 8.0, 12.0, 16.0, 20.0, 24.0, 28.0, 32.0};
constexpr double force_step = 5.0;
constexpr int force_places = 8;

constexpr double stub = 6.0; // of a member, seen outside the other one
constexpr double label_to_torn = 2.0;
constexpr double head_to_torn = 6.0; // of a dimension

// The chain at the first place that is clear; at the usual one, and false, where none is. A label past the end of its
// dimension is better than a chain far off.
template <class Make>
bool Add_chain(Composition& all, Occupied& occupied, std::span<const double> near_places, Make make) {
    std::optional<Chain> usual = make(0.0);
    if (!usual) {
        return true; // no such distances
    }
    for (const bool past_ends : {false, true}) {
        for (const double farther : past_ends ? std::span<const double>{far_places} : near_places) {
            std::optional<Chain> chain = make(farther);
            if (Fit(*chain, occupied, past_ends)) {
                Add(occupied, *chain);
                all.chains.push_back(*std::move(chain));
                all.past_ends += past_ends ? 1 : 0;
                return true;
            }
        }
    }
    Add(occupied, *usual);
    all.chains.push_back(*std::move(usual));
    return false;
}

// Across both members, then along them.
bool Add_chains(Composition& all, Occupied& occupied, int case_row, const Places& places) {
    const CaseDistances& listed = case_distances[static_cast<std::size_t>(case_row)];
    bool clear = true;
    for (const bool across : {true, false}) {
        for (std::size_t k = 0; k < places.size(); ++k) {
            const MemberDistances own = k == 0 ? listed.a : listed.b;
            clear = Add_chain(all, occupied, across ? std::span<const double>{across_places} : along_places,
                              [&](double farther) -> std::optional<Chain> {
                                  if (across) {
                                      return Chain_across(all.joint, k, places[k], own, farther);
                                  }
                                  return Chain_along(all.joint, k, places[k], own, farther);
                              }) &&
                    clear;
        }
    }
    return clear;
}

// As far as a member is seen: outside the other one, and beyond the dimensions that stand on it.
void Include_dimensions(Reach& reach, const Member& member, const std::vector<Chain>& chains) {
    const auto include = [&](Point p, double to_torn) {
        const double across = Dot(p, member.m);
        if (across > member.Other_edge() - to_torn && across < member.First_edge() + to_torn) {
            reach.far = std::max(reach.far, Dot(p, member.u) + to_torn + torn_wave);
            reach.near = std::max(reach.near, -Dot(p, member.u) + to_torn + torn_wave);
        }
    };
    for (const Chain& chain : chains) {
        for (const Dimension& dimension : chain.dimensions) {
            include(dimension.line.a, head_to_torn);
            include(dimension.line.b, head_to_torn);
            const Rect& room = dimension.label_room;
            for (const Point& p : {Point{room.left, room.low}, Point{room.right, room.low}, Point{room.left, room.high},
                                   Point{room.right, room.high}}) {
                include(p, label_to_torn);
            }
        }
    }
}

// As far as the dimensions across a member stand on its wood.
Reach Column_of(const Joint& joint, std::size_t k, const std::vector<Chain>& chains) {
    const Member& member = joint.members[k];
    Reach column{0.0, 0.0};
    for (const Chain& chain : chains) {
        const bool own = chain.on_wood && std::fabs(Dot(chain.outward, member.u)) > 1.0 - 1e-9;
        for (std::size_t i = 0; own && i < chain.dimensions.size(); ++i) {
            const Rect& room = chain.dimensions[i].label_room;
            const TextSize size{room.right - room.left, room.high - room.low};
            const double u = Dot(chain.dimensions[i].label_at, member.u);
            column.far = std::max(column.far, u + Span(size, member.u) / 2.0);
            column.near = std::max(column.near, -u + Span(size, member.u) / 2.0);
        }
    }
    return column;
}

// Tears a member where it has been seen far enough.
void Tear(Member& member, const Reach& reach) {
    member.far_u = reach.far;
    if (member.through) {
        member.near_u = -reach.near;
    }
}

// The grain and the torn ends.
bool Add_grain(Composition& all, Occupied& occupied, std::array<Reach, 2>& reaches) {
    bool clear = true;
    for (std::size_t k = 0; k < reaches.size(); ++k) {
        Include_dimensions(reaches[k], all.joint.members[k], all.chains);
        all.grains[k] = Place_grain(all.joint, k, occupied, Column_of(all.joint, k, all.chains), reaches[k]);
        Tear(all.joint.members[k], reaches[k]);
        clear = clear && all.grains[k];
    }
    occupied.Set_edges(all.joint);
    return clear;
}

// The force at the first place that is clear; its member is seen so much farther.
bool Add_force(Composition& all, Occupied& occupied, Member& pushed, bool compression) {
    for (int place = 0; !Place_force(pushed, compression, occupied, all.force); ++place) {
        if (place == force_places) {
            return false;
        }
        pushed.far_u += force_step;
        occupied.Set_edges(all.joint);
    }
    return true;
}

Rect Bounds_of(const Composition& all) {
    Rect bounds = empty_rect;
    const auto include_room = [&bounds](const Rect& room) {
        bounds.Include({room.left, room.low});
        bounds.Include({room.right, room.high});
    };
    for (const Chain& chain : all.chains) {
        for (const Segment& extension : chain.extensions) {
            bounds.Include(extension.b, thin);
        }
        for (const Dimension& dimension : chain.dimensions) {
            bounds.Include(dimension.line.a, 2.0);
            bounds.Include(dimension.line.b, 2.0);
            include_room(dimension.label_room);
        }
    }
    bounds.Include(all.force.arrow.a, 3.0);
    bounds.Include(all.force.arrow.b, 3.0);
    include_room(all.force.letter_room);
    for (const Member& member : all.joint.members) {
        for (const double u : {member.near_u, member.far_u}) {
            for (const double edge : {member.First_edge(), member.Other_edge()}) {
                bounds.Include(member.At(u, edge), torn_wave);
            }
        }
    }
    return bounds;
}

} // namespace

Composition Compose(int case_row, bool compression, double unit, const Places& places) {
    const char type = case_table[static_cast<std::size_t>(case_row)].type;
    Composition all;
    all.joint = Make_joint(type, Lattice_of(case_row), compression, unit);
    Occupied occupied{all.joint};
    std::array<Reach, 2> reaches{};
    for (std::size_t k = 0; k < reaches.size(); ++k) {
        const Member& own = all.joint.members[k];
        const Member& other = all.joint.members[1 - k];
        reaches[k] = {Reach_over(own, other, 1.0) + stub, Reach_over(own, other, -1.0) + stub};
    }
    all.angle = Place_angle(all.joint, occupied, reaches);
    const bool chains = Add_chains(all, occupied, case_row, places);
    const bool grain = Add_grain(all, occupied, reaches);
    const bool force = Add_force(all, occupied, all.joint.members[Type_of(type).force_on_1 ? 0 : 1], compression);
    all.bounds = Bounds_of(all);
    all.clear = chains && grain && force;
    return all;
}

} // namespace tarnvik
