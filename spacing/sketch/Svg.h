// A drawing as SVG 1.1, for files and for pages that hold it.
#pragma once

#include <string>
#include <string_view>

#include "spacing/sketch/Drawing.h"

namespace tarnvik {

// A whole SVG element: the drawing in a room of that size, pixels, with its name as title for screen readers. Letters
// are Liberation Sans, or what stands in for it; texts are texts. UTF-8, lines end with "\n".
std::string Svg_of(const Drawing& drawing, double width, double height, std::string_view title);

// The letters of a picture as CSS, without their size.
inline constexpr std::string_view svg_letters = "font-family: 'Liberation Sans', Arial, Helvetica, sans-serif";

// A text with the characters that XML and HTML give a meaning written as references, quotes among them.
std::string Escaped(std::string_view text);

// A coordinate with two decimals at most, whatever the locale.
std::string Coordinate(double value);

} // namespace tarnvik
