// What a sketch shows of the members beside their distances: the force, the angle between them, their grain, and where
// they are torn because they go on. Joint coordinates.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "spacing/sketch/Chains.h"
#include "spacing/sketch/Clearness.h"

namespace tarnvik {

struct Force {
    Segment arrow; // from its tail to its tip
    Point letter_at;
    Rect letter_room;
};
inline constexpr double force_length = 22.0;
inline constexpr std::string_view force_letter = "P"; // bold

// The arc of the angle in the corner between an edge of each member.
struct Angle {
    Point corner;
    double radius{};
    double from{}, to{}; // degrees, counter-clockwise
    Point letter_at;
    Rect letter_room;
};
inline constexpr std::string_view angle_letter = "\u03b1";

// A few strokes along the grain.
using Grain = std::array<Segment, 3>;

inline constexpr double torn_wave = 1.6; // how far a torn end swings to either side

// How far the members have to be seen, so that what stands on them is on wood: along u, and against it for one that
// runs through.
struct Reach {
    double far, near;
};

// The angle, and the members as far as its sides need them. Nothing at a right angle.
std::optional<Angle> Place_angle(const Joint& joint, Occupied& occupied, std::array<Reach, 2>& reaches);

// The grain of member k, index 0 or 1, at the first place that is clear outside the joint and past the column of
// its dimensions; nothing where none is.
std::optional<Grain> Place_grain(const Joint& joint, std::size_t k, const Occupied& occupied, const Reach& column,
                                 Reach& reach);

// The force outside the torn end of its member. Whether there is room for it; it stands at the last place that was
// tried where there is none.
bool Place_force(const Member& pushed, bool compression, const Occupied& occupied, Force& force);

} // namespace tarnvik
