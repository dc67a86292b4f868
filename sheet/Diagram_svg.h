// The pieces of SVG that the diagrams of the check sheet are made of.
#pragma once

#include <string>
#include <string_view>

#include "spacing/sketch/Svg.h"

namespace tarnvik {

// The beginning of a diagram of that size, pixels; "</svg>" ends it.
inline std::string Begin_diagram(double width, double height, std::string_view title) {
    const std::string w = Coordinate(width);
    const std::string h = Coordinate(height);
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" role=\"img\" width=\"" + w + "\" height=\"" + h +
           "\" viewBox=\"0 0 " + w + " " + h + "\" style=\"" + std::string{svg_letters} +
           "; font-size: 10px\">\n<title>" + Escaped(title) + "</title>\n";
}

// `anchor` is "start", "middle" or "end".
inline std::string Diagram_text(double x, double y, std::string_view anchor, std::string_view text) {
    return "<text x=\"" + Coordinate(x) + "\" y=\"" + Coordinate(y) + "\" text-anchor=\"" + std::string{anchor} +
           "\">" + Escaped(text) + "</text>\n";
}

} // namespace tarnvik
