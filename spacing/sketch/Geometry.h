// The plane geometry of the sketches: lengths in pixels, whichever way y points.
#pragma once

#include <optional>

#include "spacing/sketch/Drawing.h"

namespace tarnvik {

struct Segment {
    Point a, b;
};

// Low and high are the lesser and the greater y.
struct Rect {
    double left, low, right, high;

    [[nodiscard]] bool Touches(const Rect& other) const {
        return left < other.right && other.left < right && low < other.high && other.low < high;
    }
    [[nodiscard]] Rect Grown(double by) const { return {left - by, low - by, right + by, high + by}; }

    // Grows to hold a point and so much around it.
    void Include(Point p, double around = 0.0);
};

// Holds nothing yet.
inline constexpr Rect empty_rect{1e9, 1e9, -1e9, -1e9};

// The room of a text or a fastener around its centre.
Rect Around(Point centre, TextSize size);
Rect Around(Point centre, double radius);

// The unit vector at an angle in degrees, counter-clockwise where y points upward.
Point Direction(double degrees);

double Length(Point d);

// How much a text covers along a direction.
double Span(TextSize size, Point direction);

// The least distance; 0 where two segments cross.
double Gap(Point p, const Segment& s);
double Gap(const Segment& s, const Segment& t);

// Whether the least distance is below a limit.
bool Nearer(Point p, const Segment& s, double limit);
bool Nearer(const Segment& s, const Segment& t, double limit);

// The part of a segment inside a rectangle, edges included, as shares of the way from a to b; nothing where it passes
// by.
struct Part {
    double from, to;
};
std::optional<Part> Part_inside(const Segment& s, const Rect& r);
Segment Cut(const Segment& s, const Part& part);
bool Touches(const Segment& s, const Rect& r);

} // namespace tarnvik
