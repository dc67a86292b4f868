#include "spacing/sketch/Geometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

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
    return std::hypot(d.x, d.y);
}

double Span(TextSize size, Point direction) {
    return std::fabs(size.width * direction.x) + std::fabs(size.height * direction.y);
}

double Gap(Point p, const Segment& s) {
    const Point d = s.b - s.a;
    const double square = Dot(d, d);
    const double t = square == 0.0 ? 0.0 : std::clamp(Dot(p - s.a, d) / square, 0.0, 1.0);
    return Length(p - (s.a + t * d));
}

double Gap(const Segment& s, const Segment& t) {
    const auto turn = [](Point p, Point q, Point r) { return (q.x - p.x) * (r.y - p.y) - (q.y - p.y) * (r.x - p.x); };
    if (turn(s.a, s.b, t.a) * turn(s.a, s.b, t.b) < 0.0 && turn(t.a, t.b, s.a) * turn(t.a, t.b, s.b) < 0.0) {
        return 0.0;
    }
    return std::min({Gap(s.a, t), Gap(s.b, t), Gap(t.a, s), Gap(t.b, s)});
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
    return Part_inside(s, r).has_value();
}

std::vector<Point> Clipped(std::vector<Point> polygon, const Rect& r) {
    // Sutherland-Hodgman: cut along one side after the other.
    const auto cut = [&polygon](auto inside, auto cross) {
        std::vector<Point> kept;
        for (std::size_t i = 0; i < polygon.size(); ++i) {
            const Point a = polygon[i];
            const Point b = polygon[(i + 1) % polygon.size()];
            if (inside(a)) {
                kept.push_back(a);
            }
            if (inside(a) != inside(b)) {
                kept.push_back(cross(a, b));
            }
        }
        polygon = std::move(kept);
    };
    const auto at_x = [](double x) {
        return [x](Point a, Point b) { return a + ((x - a.x) / (b.x - a.x)) * (b - a); };
    };
    const auto at_y = [](double y) {
        return [y](Point a, Point b) { return a + ((y - a.y) / (b.y - a.y)) * (b - a); };
    };
    cut([&r](Point p) { return p.x >= r.left; }, at_x(r.left));
    cut([&r](Point p) { return p.x <= r.right; }, at_x(r.right));
    cut([&r](Point p) { return p.y >= r.low; }, at_y(r.low));
    cut([&r](Point p) { return p.y <= r.high; }, at_y(r.high));
    return polygon;
}

} // namespace tarnvik
