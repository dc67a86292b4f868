// A drawing as a list of shapes, in pixels at 96 dots per inch with y downward, for whatever paints it.
#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tarnvik {

struct Point {
    double x{}, y{};

    friend Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
    friend Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }
    friend Point operator*(double k, Point a) { return {k * a.x, k * a.y}; }
};

inline double Dot(Point a, Point b) {
    return a.x * b.x + a.y * b.y;
}

// One hand for all pictures: these are the only pens, tones and letters.
enum class Pen : unsigned char {
    none,
    outline,   // edges of a member
    hidden,    // edges behind the other member, dashed
    extension, // from a fastener or an edge to a dimension line
    dimension,
    bolt,
    force,
};

enum class Tone : unsigned char {
    none,
    wood_1, // member 1
    wood_2, // member 2
    white,
    black,
};

struct PolygonShape {
    std::vector<Point> corners;
    Tone fill{Tone::none};
    Pen pen{Pen::none};
    bool closed{true};
};

struct CircleShape {
    Point centre;
    double radius{};
    Tone fill{Tone::none};
    Pen pen{Pen::none};
};

// A short text centred on a point. Letters are 8 points high.
struct TextShape {
    Point centre;
    std::string text;
    bool bold{};
};

struct Drawing {
    std::vector<std::variant<PolygonShape, CircleShape, TextShape>> shapes;
};

// Room of a text at the letter size of the drawings, pixels, on the safe side.
struct TextSize {
    double width, height;
};
TextSize Size_of(std::string_view text, bool bold);
TextSize Size_of(const TextShape& text);

inline constexpr double letter_height = 10.5;
inline constexpr double digit_width = 6.2;

} // namespace tarnvik
