// A sketch before it is painted: the joint of a case with its dimensions and its force at chosen places. Joint
// coordinates: pixels, y upward, the first fastener at the origin.
#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "spacing/sketch/Chains.h"

namespace tarnvik {

using Places = std::array<Place, 2>; // of the two members

struct Force {
    Segment arrow; // from its tail to its tip
    Point letter_at;
    Rect letter_room;
};
inline constexpr double force_length = 30.0;
inline constexpr std::string_view force_letter = "P"; // bold

struct Composition {
    Joint joint;
    std::vector<Chain> chains;
    Force force;
    Rect bounds; // of all that is to be read
};

// The case, a row of the catalogue, at a size: `unit` is an unloaded edge distance in pixels.
Composition Compose(int case_row, bool compression, double unit, const Places& places);

} // namespace tarnvik
