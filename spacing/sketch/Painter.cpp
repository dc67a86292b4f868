#include "spacing/sketch/Painter.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <string>
#include <utility>

namespace tarnvik {

namespace {

// The part of a line that a member covers; nothing where it passes by or runs along an edge.
std::optional<Part> Part_over(const Member& member, const Segment& line) {
    constexpr double along_edge = 0.5;
    Part part{0.0, 1.0};
    const Point d = line.b - line.a;
    const auto within = [&](Point axis, double low, double high) {
        const double p = Dot(line.a, axis);
        const double q = Dot(d, axis);
        if (std::fabs(q) < 1e-9) {
            if (p < low + along_edge || p > high - along_edge) {
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
    within(member.u, member.near_u, member.far_u);
    return part.from < part.to ? std::optional{part} : std::nullopt;
}

// A torn end, from the first edge to the other one: a wave. `from` and `to` are where it is crossed.
std::vector<Point> Torn(const Member& member, double u) {
    constexpr int parts = 16;
    std::vector<Point> points;
    for (int i = 0; i <= parts; ++i) {
        const double share = static_cast<double>(i) / parts;
        const double across = member.First_edge() + share * (member.Other_edge() - member.First_edge());
        points.push_back(member.At(u + torn_wave * std::sin(2.0 * std::numbers::pi * share), across));
    }
    return points;
}

std::vector<Point> Near_end(const Member& member) {
    return member.through ? Torn(member, member.near_u) : std::vector{member.End().a, member.End().b};
}

} // namespace

void Painter::Paint_wood(const Member& member, Tone tone) {
    std::vector<Point> corners = Near_end(member);
    const std::vector<Point> far = Torn(member, member.far_u);
    corners.insert(corners.end(), far.rbegin(), far.rend());
    for (Point& corner : corners) {
        corner = sheet_.Place(corner);
    }
    drawing_.shapes.emplace_back(PolygonShape{std::move(corners), tone, Pen::none, true});
}

void Painter::Paint_edges(const Member& member) {
    Paint_lines(Torn(member, member.far_u), Pen::torn);
    Paint_lines(Near_end(member), member.through ? Pen::torn : Pen::outline);
    Paint_line(member.First(), member.first_edge_loaded ? Pen::loaded : Pen::outline);
    Paint_line(member.Other(), member.other_edge_loaded ? Pen::loaded : Pen::outline);
}

void Painter::Paint_hidden_edges(const Member& behind, const Member& front) {
    const auto paint = [&](const Segment& edge, bool loaded) {
        if (const std::optional<Part> hidden = Part_over(front, edge)) {
            Paint_line(Cut(edge, *hidden), loaded ? Pen::hidden_loaded : Pen::hidden);
        }
    };
    paint(behind.First(), behind.first_edge_loaded);
    paint(behind.Other(), behind.other_edge_loaded);
    if (!behind.through) {
        paint(behind.End(), false);
    }
    // A loaded edge is as heavy as elsewhere where the other member ends flush with it.
    for (const auto& [edge, loaded] :
         {std::pair{behind.First(), behind.first_edge_loaded}, std::pair{behind.Other(), behind.other_edge_loaded}}) {
        constexpr double exact = 1e-6;
        if (loaded && !front.through && Nearer(front.End().a, edge, exact) && Nearer(front.End().b, edge, exact)) {
            Paint_line(front.End(), Pen::loaded);
        }
    }
}

void Painter::Paint_bolt(Point at, double radius) {
    constexpr double centre_mark = 0.32; // of the radius
    const Point centre = sheet_.Place(at);
    drawing_.shapes.emplace_back(CircleShape{centre, radius, Tone::white, Pen::bolt});
    drawing_.shapes.emplace_back(CircleShape{centre, centre_mark * radius, Tone::black, Pen::none});
}

void Painter::Paint_line(const Segment& line, Pen pen) {
    drawing_.shapes.emplace_back(PolygonShape{{sheet_.Place(line.a), sheet_.Place(line.b)}, Tone::none, pen, false});
}

void Painter::Paint_lines(const std::vector<Point>& points, Pen pen) {
    std::vector<Point> placed;
    placed.reserve(points.size());
    for (const Point& point : points) {
        placed.push_back(sheet_.Place(point));
    }
    drawing_.shapes.emplace_back(PolygonShape{std::move(placed), Tone::none, pen, false});
}

void Painter::Paint_arrow_head(Point tip, Point direction, double length) {
    const Point side{-direction.y, direction.x};
    const Point back = tip - length * direction;
    drawing_.shapes.emplace_back(
        PolygonShape{{sheet_.Place(tip), sheet_.Place(back + (head_half_width * length) * side),
                      sheet_.Place(back - (head_half_width * length) * side)},
                     Tone::black,
                     Pen::none,
                     true});
}

void Painter::Paint_text(Point at, std::string_view text, bool bold) {
    drawing_.shapes.emplace_back(TextShape{sheet_.Place(at), std::string{text}, bold});
}

void Painter::Paint_dimension(const Dimension& dimension) {
    const Point d = dimension.line.b - dimension.line.a;
    const Point direction = (1.0 / Length(d)) * d;
    Paint_line(dimension.line, Pen::dimension);
    Paint_arrow_head(dimension.line.a, -1.0 * direction, arrowhead);
    Paint_arrow_head(dimension.line.b, direction, arrowhead);
    Paint_text(dimension.label_at, dimension.label, false);
}

void Painter::Paint_arrow(const Segment& arrow) {
    constexpr double head = 9.0;
    constexpr double covered = 6.0; // of the line, by the head
    const Point d = arrow.b - arrow.a;
    const Point direction = (1.0 / Length(d)) * d;
    Paint_line({arrow.a, arrow.b - covered * direction}, Pen::force);
    Paint_arrow_head(arrow.b, direction, head);
}

void Painter::Paint_force(const Force& force) {
    Paint_arrow(force.arrow);
    Paint_text(force.letter_at, force_letter, true);
}

void Painter::Paint_angle(const Angle& angle) {
    constexpr int parts = 16;
    std::vector<Point> arc;
    for (int i = 0; i <= parts; ++i) {
        arc.push_back(angle.corner + angle.radius * Direction(angle.from + i * (angle.to - angle.from) / parts));
    }
    Paint_lines(arc, Pen::dimension);
    constexpr double low = 1.0; // the letter's middle lies so far below that of a capital
    Paint_text(angle.letter_at + Point{0.0, low}, angle_letter, false);
}

void Painter::Paint_grain(const Grain& grain) {
    for (const Segment& stroke : grain) {
        Paint_line(stroke, Pen::grain);
    }
}

void Paint_members(Painter& painter, const Joint& joint, std::size_t front) {
    for (const std::size_t k : {1 - front, front}) {
        painter.Paint_wood(joint.members[k], k == 0 ? Tone::wood_1 : Tone::wood_2);
        painter.Paint_edges(joint.members[k]);
    }
    painter.Paint_hidden_edges(joint.members[1 - front], joint.members[front]);
}

} // namespace tarnvik
