// What a window of texts shows, as a plain record: texts and pictures at their places, so that tests and the headless
// tool read the same as the user, and the window only paints.
//
// The scale runs to 100 across and 100 upward. A text hangs below its point, as a print at CurrentX, CurrentY does.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "calc/Screen.h"

namespace tarnvik {

// The symbol font draws Greek letters for Latin ones: "a" is alpha, "g" gamma, "l" lambda. The texts hold what it
// draws.
enum class TextFont : std::uint8_t { tahoma, symbol };

std::string_view Font_name(TextFont font);

// How a text looks.
struct TextLook {
    TextFont font{TextFont::tahoma};
    bool bold{};
    bool small{}; // an index or a power
    bool right{}; // ends at its x instead of beginning there
};

struct PaintedText {
    float x{}, y{};
    std::string text;
    TextLook look;
    std::uint32_t fore{colour_black};
};

// A stored picture in a control of its own, which hangs below and to the right of its point.
struct PaintedPicture {
    std::string_view control;
    std::string_view key;
    float x{}, y{}, w{}, h{};
};

struct Painting {
    std::string_view caption; // of the window
    std::vector<PaintedText> texts;
    std::vector<PaintedPicture> pictures; // those that are shown
};

} // namespace tarnvik
