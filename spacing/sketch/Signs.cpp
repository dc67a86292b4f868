#include "spacing/sketch/Signs.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace tarnvik {

namespace {

constexpr double force_gap = 3.5;        // from the torn end to the arrow
constexpr double force_letter_gap = 4.5; // from the arrow to its letter

constexpr TextSize angle_letter_size{6.6, 6.4};
constexpr double letter_to_side = 3.4; // of the corner
constexpr double arc_to_letter = 2.0;
constexpr double arc_to_end = 5.0; // from the arc to where its sides may be torn

constexpr double grain_half_length = 6.5;
constexpr double grain_half_width = grain_to_anything / 2.0;
constexpr double grain_step = 2.0;
constexpr int grain_places = 30;

// Where the edge of a member, so far across it, crosses that of another one.
Point Crossing(const Member& member, double across, const Member& other, double other_across) {
    const double t = (other_across - across * Dot(member.m, other.m)) / Dot(member.u, other.m);
    return member.At(t, across);
}

double Degrees(Point direction) {
    return std::atan2(direction.y, direction.x) * 180.0 / std::numbers::pi;
}

// The angle with its letter inside the arc, so near to the corner that it just has room between the sides.
Angle Angle_at(Point corner, Point side_1, Point side_2) {
    const double half = std::acos(Dot(side_1, side_2)) / 2.0;
    const double across = Span(angle_letter_size, {std::sin(half), std::cos(half)}) / 2.0 + letter_to_side;
    Angle angle;
    angle.corner = corner;
    angle.radius = across / std::sin(half) + angle_letter_size.width / 2.0 + arc_to_letter;
    angle.from = Degrees(side_1);
    angle.to = Degrees(side_2);
    if (angle.from > angle.to) {
        std::swap(angle.from, angle.to);
    }
    if (angle.to - angle.from > 180.0) { // across the half turn
        angle.from += 360.0;
        std::swap(angle.from, angle.to);
    }
    const Point middle = Direction((angle.from + angle.to) / 2.0);
    const double to_letter = angle.radius - arc_to_letter - Span(angle_letter_size, middle) / 2.0;
    angle.letter_at = corner + to_letter * middle;
    angle.letter_room = Around(angle.letter_at, angle_letter_size);
    return angle;
}

} // namespace

std::optional<Angle> Place_angle(const Joint& joint, Occupied& occupied, std::array<Reach, 2>& reaches) {
    if (!joint.oblique) {
        return std::nullopt;
    }
    const auto& [member_1, member_2] = joint.members;
    const Point corner = Crossing(member_1, member_1.Other_edge(), member_2, member_2.First_edge());
    const double ahead = Dot(member_1.u, member_2.u) > 0.0 ? 1.0 : -1.0; // the acute angle
    const Point side_1 = ahead * member_1.u;
    const Angle angle = Angle_at(corner, side_1, member_2.u);
    const double needed = angle.radius + arc_to_end;
    double& reach_1 = ahead > 0.0 ? reaches[0].far : reaches[0].near;
    reach_1 = std::max(reach_1, Dot(corner, side_1) + needed);
    reaches[1].far = std::max(reaches[1].far, Dot(corner, member_2.u) + needed);
    occupied.Add_label(angle.letter_room);
    const Point middle = corner + angle.radius * Direction((angle.from + angle.to) / 2.0);
    for (const Point& side : {side_1, member_2.u}) {
        occupied.Add_extension({corner + angle.radius * side, middle}); // the arc, about
    }
    return angle;
}

std::optional<Grain> Place_grain(const Joint& joint, std::size_t k, const Occupied& occupied, const Reach& column,
                                 Reach& reach) {
    const Member& member = joint.members[k];
    const Member& other = joint.members[1 - k];
    constexpr double beside_axis = 0.45; // of the way to an edge, where a line runs along the axis
    const double aside = beside_axis * (member.First_edge() - member.Other_edge()) / 2.0;
    for (int place = 0; place < grain_places; ++place) {
        for (const double away : {1.0, -1.0}) {
            if (away < 0.0 && !member.through) {
                continue;
            }
            const double usual = Reach_over(member, other, away) + grain_to_anything + place * grain_step;
            const double past = (away > 0.0 ? column.far : column.near) + grain_to_anything;
            if (usual + grain_step < past) {
                continue;
            }
            const double near = std::max(usual, past);
            const double u = away * (near + grain_half_length);
            for (const double across : {0.0, aside, -aside}) {
                const double at = member.Axis() + across;
                const Segment middle{member.At(u - grain_half_length, at), member.At(u + grain_half_length, at)};
                if (!occupied.Takes_sign(middle, grain_half_width + grain_to_anything)) {
                    continue;
                }
                double& needed = away > 0.0 ? reach.far : reach.near;
                needed = std::max(needed, near + 2.0 * grain_half_length + grain_to_anything + torn_wave);
                const auto stroke = [&](double from, double to, double off) {
                    return Segment{member.At(u + from * grain_half_length, at + off * grain_half_width),
                                   member.At(u + to * grain_half_length, at + off * grain_half_width)};
                };
                return Grain{stroke(-1.0, 0.5, 1.0), stroke(-0.6, 1.0, 0.0), stroke(-0.9, 0.3, -1.0)};
            }
        }
    }
    return std::nullopt;
}

bool Place_force(const Member& pushed, bool compression, const Occupied& occupied, Force& force) {
    const double near_u = pushed.far_u + torn_wave + force_gap;
    const Point near = pushed.At(near_u, pushed.Axis());
    const Point far = pushed.At(near_u + force_length, pushed.Axis());
    force.arrow = compression ? Segment{far, near} : Segment{near, far};
    const bool clear = occupied.Takes_line(force.arrow) &&
                       occupied.Takes_sign(force.arrow, thick / 2.0 + force_to_anything); // off edges
    const TextSize size = Size_of(force_letter, true);
    const Point middle = 0.5 * (near + far);
    const double aside = Span(size, pushed.m) / 2.0 + force_letter_gap;
    const double beyond = Span(size, pushed.u) / 2.0 + force_letter_gap;
    for (const Point& at : {middle + aside * pushed.m, middle - aside * pushed.m, far + beyond * pushed.u}) {
        force.letter_at = at;
        force.letter_room = Around(at, size);
        if (occupied.Takes_label(force.letter_room)) {
            return clear;
        }
    }
    return false;
}

} // namespace tarnvik
