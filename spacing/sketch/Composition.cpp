#include "spacing/sketch/Composition.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "spacing/Catalogue.h"

namespace tarnvik {

namespace {

constexpr double force_from_fastener = 6.0; // from its rim to the arrow
constexpr double force_from_label = 5.0;
constexpr double force_letter_gap = 5.0; // from the arrow to its letter
constexpr double force_step = 5.0;       // from one place that is tried to the next
constexpr int force_places = 8;

// What must stand so far apart for a place to be clear.
constexpr double line_to_letter = 3.0;
constexpr double line_to_arrow = 4.5;
constexpr double label_to_arrow = 4.0;

// Across, then along the first member and the second one.
std::vector<Chain> Make_chains(const Joint& joint, int case_row, const Places& places) {
    const CaseDistances& listed = case_distances[static_cast<std::size_t>(case_row)];
    std::vector<Chain> chains;
    for (std::size_t k = 0; k < joint.members.size(); ++k) {
        const MemberDistances own = k == 0 ? listed.a : listed.b;
        chains.push_back(Chain_across(joint, k, places[k], own));
        if (std::optional<Chain> along = Chain_along(joint, k, places[k], own)) {
            chains.push_back(*std::move(along));
        }
    }
    return chains;
}

// The first place along the pushed member for the force: beyond the fasteners and the dimensions across it.
double Force_from(const Joint& joint, const std::vector<Chain>& chains, const Member& pushed) {
    constexpr double label_room = 2.0 * digit_width + label_gap + 2.0; // beyond a dimension line
    double from = joint.Farthest(pushed.u) + bolt_radius + force_from_fastener;
    for (const Chain& chain : chains) {
        if (chain.across && std::fabs(Dot(chain.outward, pushed.u) - 1.0) < 1e-6) {
            from = std::max(from, Dot(chain.Line().a, pushed.u) + label_room + force_from_label);
        }
    }
    return from;
}

// The force on the axis of its member, the letter beside it: side +1 towards the first edge, -1 towards the other one.
Force Force_at(const Member& pushed, double u, double side, bool compression) {
    const Point near = pushed.At(u, pushed.Axis());
    const Point far = pushed.At(u + force_length, pushed.Axis());
    Force force;
    force.arrow = compression ? Segment{far, near} : Segment{near, far};
    force.letter_at = 0.5 * (near + far) + (side * (letter_height / 2.0 + force_letter_gap)) * pushed.m;
    force.letter_room = Around(force.letter_at, Size_of(force_letter, true));
    return force;
}

// Whether the arrow and its letter stand clear of the dimensions.
bool Clear_of(const Force& force, const std::vector<Chain>& chains) {
    const Rect letter = force.letter_room.Grown(line_to_letter);
    const auto line_clear = [&](const Segment& line) {
        return !Touches(line, letter) && Gap(line, force.arrow) >= line_to_arrow;
    };
    const auto label_clear = [&](const Dimension& dimension) {
        return !dimension.label_room.Touches(letter) &&
               !Touches(force.arrow, dimension.label_room.Grown(label_to_arrow));
    };
    return std::all_of(chains.begin(), chains.end(), [&](const Chain& chain) {
        return line_clear(chain.Line()) && std::all_of(chain.extensions.begin(), chain.extensions.end(), line_clear) &&
               std::all_of(chain.dimensions.begin(), chain.dimensions.end(), label_clear);
    });
}

// At the first place that is clear, outward step by step; at the very first where none is.
Force Place_force(const Joint& joint, const std::vector<Chain>& chains, const Member& pushed, bool compression) {
    const double from = Force_from(joint, chains, pushed);
    for (int step = 0; step < force_places; ++step) {
        for (const double side : {1.0, -1.0}) {
            const Force force = Force_at(pushed, from + force_step * step, side, compression);
            if (Clear_of(force, chains)) {
                return force;
            }
        }
    }
    return Force_at(pushed, from, 1.0, compression);
}

Rect Bounds_of(const Composition& all) {
    Rect bounds = empty_rect;
    for (const Chain& chain : all.chains) {
        bounds.Include(chain.Line().a, 2.0);
        for (const Dimension& dimension : chain.dimensions) {
            bounds.Include(dimension.line.b, 2.0);
            bounds.Include({dimension.label_room.left, dimension.label_room.low});
            bounds.Include({dimension.label_room.right, dimension.label_room.high});
        }
    }
    bounds.Include(all.force.arrow.a, 3.0);
    bounds.Include(all.force.arrow.b, 3.0);
    bounds.Include(all.force.letter_at, letter_height / 2.0);
    for (const Member& member : all.joint.members) {
        if (!member.through) {
            for (const double edge : {member.First_edge(), member.Other_edge()}) {
                bounds.Include(member.At(member.end_u, edge), 1.0);
            }
        }
    }
    return bounds;
}

} // namespace

Composition Compose(int case_row, bool compression, double unit, const Places& places) {
    const char type = case_table[static_cast<std::size_t>(case_row)].type;
    Composition all{Make_joint(type, Lattice_of(case_row), compression, unit), {}, {}, {}};
    all.chains = Make_chains(all.joint, case_row, places);
    const Member& pushed = all.joint.members[Type_of(type).force_on_1 ? 0 : 1];
    all.force = Place_force(all.joint, all.chains, pushed, compression);
    all.bounds = Bounds_of(all);
    return all;
}

} // namespace tarnvik
