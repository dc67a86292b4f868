// The equations as letters of the fonts frontend/pictures/equations/letters-*.ttf, and bars: a document in which they
// are set can be searched and is small. Units: 1000 to the letter size; y downward from the baseline.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace tarnvik {

struct EquationLetter {
    std::uint8_t font, letter;
    double size, x, y; // place of its origin
};

// Of a fraction or a root.
struct EquationBar {
    double x, y, width, height;
};

struct EquationBox {
    double x, y, width, height;
};

struct SetEquation {
    std::string_view name;                   // of the file and the control
    EquationBox box;                         // the viewBox of the file
    std::span<const EquationLetter> letters; // in the order of reading
    std::span<const EquationBar> bars;
};

std::span<const SetEquation> Set_equations();

} // namespace tarnvik
