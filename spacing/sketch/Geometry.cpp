#include "spacing/sketch/Geometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tarnvik {

void Rect::Include(Point p, double around) {
    left = std::min(left, p.x - around);
    right = std::max(right, p.x + around);
    low = std::min(low, p.y - around);
    high = std::max(high, p.y + around);
}

Rect Around(Point centre, TextSize size) {
    return {centre.x - size.width / 2.0, centre.y - size.height / 2.0, centre.x + size.width / 2.0,
            centre.y + size.height / 2.0};
}

Rect Around(Point centre, double radius) {
    return Rect{centre.x, centre.y, centre.x, centre.y}.Grown(radius);
}

Point Direction(double degrees) {
    const double radians = degrees * std::numbers::pi / 180.0;
    return {std::cos(radians), std::sin(radians)};
}

double Length(Point d) {
    return std::sqrt(Dot(d, d)); // std::hypot is ten times slower, and nothing here is near its limits
}

double Span(TextSize size, Point direction) {
    return std::fabs(size.width * direction.x) + std::fabs(size.height * direction.y);
}

namespace {

double Square_gap(Point p, const Segment& s) {
    const Point d = s.b - s.a;
    const double square = Dot(d, d);
    const double t = square == 0.0 ? 0.0 : std::clamp(Dot(p - s.a, d) / square, 0.0, 1.0);
    const Point off = p - (s.a + t * d);
    return Dot(off, off);
}

double Square_gap(const Segment& s, const Segment& t) {
    const auto turn = [](Point p, Point q, Point r) { return (q.x - p.x) * (r.y - p.y) - (q.y - p.y) * (r.x - p.x); };
    if (turn(s.a, s.b, t.a) * turn(s.a, s.b, t.b) < 0.0 && turn(t.a, t.b, s.a) * turn(t.a, t.b, s.b) < 0.0) {
        return 0.0;
    }
    return std::min({Square_gap(s.a, t), Square_gap(s.b, t), Square_gap(t.a, s), Square_gap(t.b, s)});
}

// Whether the rectangles around two segments are so far apart that nothing nearer need be looked at.
bool Far_apart(const Segment& s, const Segment& t, double limit) {
    return std::min(s.a.x, s.b.x) > std::max(t.a.x, t.b.x) + limit ||
           std::min(t.a.x, t.b.x) > std::max(s.a.x, s.b.x) + limit ||
           std::min(s.a.y, s.b.y) > std::max(t.a.y, t.b.y) + limit ||
           std::min(t.a.y, t.b.y) > std::max(s.a.y, s.b.y) + limit;
}

} // namespace

double Gap(Point p, const Segment& s) {
    return std::sqrt(Square_gap(p, s));
}

double Gap(const Segment& s, const Segment& t) {
    return std::sqrt(Square_gap(s, t));
}

bool Nearer(Point p, const Segment& s, double limit) {
    return Square_gap(p, s) < limit * limit;
}

bool Nearer(const Segment& s, const Segment& t, double limit) {
    return !Far_apart(s, t, limit) && Square_gap(s, t) < limit * limit;
}

std::optional<Part> Part_inside(const Segment& s, const Rect& r) {
    // Liang-Barsky.
    Part part{0.0, 1.0};
    const Point d = s.b - s.a;
    const auto clip = [&part](double p, double q) {
        if (p == 0.0) {
            return q >= 0.0;
        }
        const double t = q / p;
        if (p < 0.0) {
            part.from = std::max(part.from, t);
        } else {
            part.to = std::min(part.to, t);
        }
        return part.from <= part.to;
    };
    if (clip(-d.x, s.a.x - r.left) && clip(d.x, r.right - s.a.x) && clip(-d.y, s.a.y - r.low) &&
        clip(d.y, r.high - s.a.y)) {
        return part;
    }
    return std::nullopt;
}

Segment Cut(const Segment& s, const Part& part) {
    const Point d = s.b - s.a;
    return {s.a + part.from * d, s.a + part.to * d};
}

bool Touches(const Segment& s, const Rect& r) {
    if (std::max(s.a.x, s.b.x) < r.left || std::min(s.a.x, s.b.x) > r.right || std::max(s.a.y, s.b.y) < r.low ||
        std::min(s.a.y, s.b.y) > r.high) {
        return false;
    }
    return Part_inside(s, r).has_value();
}

} // namespace tarnvik
