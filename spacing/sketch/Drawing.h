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
    outline,       // edges of a member
    loaded,        // the edge towards which the force drives the fasteners
    hidden,        // edges behind the other member, dashed
    hidden_loaded, // the same of the loaded edge
    torn,          // where a member goes on
    grain,
    extension, // from a fastener or an edge to a dimension line
    dimension, // and the arc of an angle
    bolt,
    force,
};

// Lines have three widths, pixels, each twice the one before: what measures is thin, what is there is medium, and what
// loads or is loaded is thick.
inline constexpr double thin = 0.6;
inline constexpr double medium = 1.2;
inline constexpr double thick = 2.4;
double Width_of(Pen pen);
bool Is_dashed(Pen pen);

enum class Tone : unsigned char {
    none,
    wood_1, // member 1
    wood_2, // member 2
    white,
    black,
};

// Colours as 0xRRGGBB. They differ in grey as well, so that nothing is told by a colour alone.
unsigned Colour_of(Pen pen);
unsigned Colour_of(Tone tone);

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

// A short text centred on a point: up and down, the middle of its capitals stands there.
struct TextShape {
    Point centre;
    std::string text;
    bool bold{};
};

struct Drawing {
    std::vector<std::variant<PolygonShape, CircleShape, TextShape>> shapes;
};

// All letters have one size: readable on the screen, 8.25 points on paper.
inline constexpr double letter_pixels = 11.0;

// Room of a text without descenders at that size, pixels, on the safe side.
struct TextSize {
    double width, height;
};
TextSize Size_of(std::string_view text, bool bold);
TextSize Size_of(const TextShape& text);

inline constexpr double letter_height = 8.4;
inline constexpr double digit_width = 6.2;

} // namespace tarnvik
