// What the members of a connection type are called, as the captions of the window have it.
#pragma once

#include <array>

#include "calc/Words.h"

namespace tarnvik {

struct MemberNameRow {
    char type; // as in the catalogue
    std::array<Words, 2> members;
};

// Type 3 has a collar beam in Norwegian.
// clang-format off
inline constexpr std::array<MemberNameRow, 5> member_names{{
    {'1', {{{"Top chord", "Overgurt"}, {"Bottom chord", "Undergurt"}}}},
    {'2', {{{"Beam",      "Bjelke"},   {"Column",       "Søyle"}}}},
    {'3', {{{"Top chord", "Overgurt"}, {"Bottom chord", "Hanebjelke"}}}},
    {'4', {{{"Beam",      "Bjelke"},   {"Column",       "Søyle"}}}},
    {'5', {{{"Beam",      "Bjelke"},   {"Column",       "Søyle"}}}},
}};
// clang-format on

// The names of the members of a type '1' to '5'.
inline const std::array<Words, 2>& Member_names_of(char type) {
    return member_names[static_cast<std::size_t>(type - '1')].members;
}

} // namespace tarnvik
