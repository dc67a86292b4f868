#include "spacing/sketch/Painter.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <utility>

namespace tarnvik {

namespace {

// The part of a line that a member covers; nothing where it passes by or only touches.
std::optional<Part> Part_over(const Member& member, const Segment& line) {
    Part part{0.0, 1.0};
    const Point d = line.b - line.a;
    const auto within = [&](Point axis, double low, double high) {
        const double p = Dot(line.a, axis);
        const double q = Dot(d, axis);
        if (std::fabs(q) < 1e-9) {
            if (p < low || p > high) {
                part.to = -1.0;
            }
            return;
        }
        const double t1 = (low - p) / q;
        const double t2 = (high - p) / q;
        part.from = std::max(part.from, std::min(t1, t2));
        part.to = std::min(part.to, std::max(t1, t2));
    };
    within(member.m, member.Other_edge(), member.First_edge());
    within(member.u, member.Near_u(), member.Far_u());
    return part.from < part.to ? std::optional{part} : std::nullopt;
}

} // namespace

void Painter::Paint_wood(const Member& member, Tone tone) {
    const double near = member.Near_u();
    const double far = member.Far_u();
    std::vector<Point> corners;
    for (const Point& corner : {member.At(near, member.First_edge()), member.At(far, member.First_edge()),
                                member.At(far, member.Other_edge()), member.At(near, member.Other_edge())}) {
        corners.push_back(sheet_.Place(corner));
    }
    drawing_.shapes.emplace_back(PolygonShape{Clipped(std::move(corners), sheet_.Room()), tone, Pen::none, true});
}

void Painter::Paint_edges(const Member& member) {
    for (const Segment& edge : member.Outline()) {
        Paint_clipped(edge, Pen::outline);
    }
}

void Painter::Paint_hidden_edges(const Member& behind, const Member& front) {
    for (const Segment& edge : behind.Outline()) {
        if (const std::optional<Part> hidden = Part_over(front, edge)) {
            Paint_clipped(Cut(edge, *hidden), Pen::hidden);
        }
    }
}

void Painter::Paint_bolt(Point at) {
    const Point centre = sheet_.Place(at);
    drawing_.shapes.emplace_back(CircleShape{centre, bolt_radius, Tone::white, Pen::bolt});
    drawing_.shapes.emplace_back(CircleShape{centre, 1.1, Tone::black, Pen::none});
}

void Painter::Paint_line(const Segment& line, Pen pen) {
    drawing_.shapes.emplace_back(PolygonShape{{sheet_.Place(line.a), sheet_.Place(line.b)}, Tone::none, pen, false});
}

void Painter::Paint_arrow_head(Point tip, Point direction, double length) {
    const Point side{-direction.y, direction.x};
    const Point back = tip - length * direction;
    drawing_.shapes.emplace_back(PolygonShape{
        {sheet_.Place(tip), sheet_.Place(back + (0.32 * length) * side), sheet_.Place(back - (0.32 * length) * side)},
        Tone::black,
        Pen::none,
        true});
}

void Painter::Paint_text(Point at, std::string_view text, bool bold) {
    drawing_.shapes.emplace_back(TextShape{sheet_.Place(at), std::string{text}, bold});
}

void Painter::Paint_dimension(const Dimension& dimension) {
    constexpr double head = 4.2;
    const Point d = dimension.line.b - dimension.line.a;
    const Point direction = (1.0 / Length(d)) * d;
    Paint_line(dimension.line, Pen::dimension);
    Paint_arrow_head(dimension.line.a, -1.0 * direction, head);
    Paint_arrow_head(dimension.line.b, direction, head);
    Paint_text(dimension.label_at, dimension.label, false);
}

void Painter::Paint_clipped(const Segment& line, Pen pen) {
    const Segment placed{sheet_.Place(line.a), sheet_.Place(line.b)};
    const std::optional<Part> seen = Part_inside(placed, sheet_.Room());
    if (seen && seen->from < seen->to) {
        const Segment line_seen = Cut(placed, *seen);
        drawing_.shapes.emplace_back(PolygonShape{{line_seen.a, line_seen.b}, Tone::none, pen, false});
    }
}

void Paint_members(Painter& painter, const Joint& joint, std::size_t front) {
    for (const std::size_t k : {1 - front, front}) {
        painter.Paint_wood(joint.members[k], k == 0 ? Tone::wood_1 : Tone::wood_2);
        painter.Paint_edges(joint.members[k]);
    }
}

} // namespace tarnvik
