#include "spacing/sketch/Svg.h"

#include <array>
#include <charconv>
#include <variant>

namespace tarnvik {

namespace {

constexpr double half_capital = 0.358; // of the letters' size, from their middle to the baseline
constexpr double dash = 4.0;
constexpr double gap = 3.0;

std::string Hex(unsigned colour) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text = "#";
    for (int shift = 20; shift >= 0; shift -= 4) {
        text += digits[(colour >> static_cast<unsigned>(shift)) & 0xfU];
    }
    return text;
}

std::string Attribute(std::string_view name, std::string_view value) {
    std::string text = " ";
    text += name;
    text += "=\"";
    text += value;
    text += '"';
    return text;
}

std::string Look(Tone fill, Pen pen) {
    std::string text = Attribute("fill", fill == Tone::none ? "none" : Hex(Colour_of(fill)));
    if (pen != Pen::none) {
        text += Attribute("stroke", Hex(Colour_of(pen))) + Attribute("stroke-width", Coordinate(Width_of(pen)));
    }
    if (Is_dashed(pen)) {
        text += Attribute("stroke-dasharray", Coordinate(dash) + " " + Coordinate(gap));
    }
    return text;
}

std::string Element(const PolygonShape& shape) {
    std::string points;
    for (const Point& corner : shape.corners) {
        points += points.empty() ? "" : " ";
        points += Coordinate(corner.x) + "," + Coordinate(corner.y);
    }
    return (shape.closed ? "<polygon" : "<polyline") + Attribute("points", points) + Look(shape.fill, shape.pen) + "/>";
}

std::string Element(const CircleShape& shape) {
    return "<circle" + Attribute("cx", Coordinate(shape.centre.x)) + Attribute("cy", Coordinate(shape.centre.y)) +
           Attribute("r", Coordinate(shape.radius)) + Look(shape.fill, shape.pen) + "/>";
}

std::string Element(const TextShape& shape) {
    return "<text" + Attribute("x", Coordinate(shape.centre.x)) +
           Attribute("y", Coordinate(shape.centre.y + half_capital * letter_pixels)) +
           (shape.bold ? Attribute("font-weight", "bold") : "") + ">" + Escaped(shape.text) + "</text>";
}

} // namespace

std::string Svg_of(const Drawing& drawing, double width, double height, std::string_view title) {
    const std::string w = Coordinate(width);
    const std::string h = Coordinate(height);
    std::string svg = "<svg" + Attribute("xmlns", "http://www.w3.org/2000/svg") + Attribute("role", "img") +
                      Attribute("width", w) + Attribute("height", h) + Attribute("viewBox", "0 0 " + w + " " + h) +
                      Attribute("style", std::string{svg_letters} + "; font-size: " + Coordinate(letter_pixels) +
                                             "px; text-anchor: middle") +
                      ">\n";
    svg += "<title>" + Escaped(title) + "</title>\n";
    for (const auto& shape : drawing.shapes) {
        svg += std::visit([](const auto& one) { return Element(one); }, shape);
        svg += "\n";
    }
    return svg + "</svg>\n";
}

std::string Escaped(std::string_view text) {
    std::string escaped;
    escaped.reserve(text.size());
    for (const char c : text) {
        switch (c) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        default:
            escaped += c;
        }
    }
    return escaped;
}

std::string Coordinate(double value) {
    std::array<char, 64> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, 2);
    std::string_view shown{text.data(), static_cast<std::size_t>(result.ptr - text.data())};
    while (shown.back() == '0') {
        shown.remove_suffix(1);
    }
    if (shown.back() == '.') {
        shown.remove_suffix(1);
    }
    return shown == "-0" ? "0" : std::string{shown};
}

} // namespace tarnvik
