// A sketch before it is painted: the joint of a case with its dimensions, its force, the angle and the grain. Joint
// coordinates: pixels, y upward, the first fastener at the origin.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "spacing/sketch/Chains.h"
#include "spacing/sketch/Signs.h"

namespace tarnvik {

using Places = std::array<Place, 2>; // of the two members

struct Composition {
    Joint joint;
    std::vector<Chain> chains;
    Force force;
    std::optional<Angle> angle;                 // of oblique members
    std::array<std::optional<Grain>, 2> grains; // of the members
    Rect bounds{};                              // of all that is drawn
    bool clear{};                               // everything has its room, see Clearness.h
    int past_ends{};                            // chains with a label past their ends
};

// The case, a row of the catalogue, at a size: `unit` is an unloaded edge distance in pixels.
Composition Compose(int case_row, bool compression, double unit, const Places& places);

} // namespace tarnvik
