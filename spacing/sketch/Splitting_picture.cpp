#include "spacing/sketch/Splitting_picture.h"

#include <algorithm>
#include <vector>

#include "spacing/sketch/Painter.h"

namespace tarnvik {

namespace {

// In parts of the height of the figure: the member, its bolts and the force that pulls at the lower one.
constexpr double member_height = 0.56;
constexpr double first_bolt = 0.14; // from the unloaded edge, where it splits
constexpr double second_bolt = 0.34;
constexpr double force_part = 0.22; // beyond the loaded edge
constexpr double longest = 1.75;    // width of the figure, in its heights

constexpr double dimension_gap = 14.0; // pixels, from the torn ends to the dimensions
constexpr double extension_gap = 2.0;
constexpr double letter_room = 16.0; // beside a dimension, for "he"

// A member along the x axis, the unloaded edge first, with the force towards the other one.
Member Make_member(double half_length, double height) {
    Member member;
    member.u = {1.0, 0.0};
    member.m = {0.0, 1.0};
    member.through = true;
    member.lines = {0.0, -height};
    member.other_edge_loaded = true;
    member.near_u = -half_length;
    member.far_u = half_length;
    return member;
}

Dimension Make_dimension(std::string_view label, double x, double from, double to, double side) {
    const Point at{x + side * (Size_of(label, false).width / 2.0 + label_gap), (from + to) / 2.0};
    return {label, {{x, from}, {x, to}}, at, {}, false};
}

// The crack runs along the grain from the farthest bolt to both sides.
void Paint_crack(Painter& painter, Point bolt, double length) {
    constexpr double swing = 1.2;
    constexpr int parts = 6;
    for (const double side : {-1.0, 1.0}) {
        std::vector<Point> crack{bolt + side * Point{bolt_radius, 0.0}};
        for (int i = 1; i <= parts; ++i) {
            crack.push_back(bolt + Point{side * (bolt_radius + length * i / parts), i % 2 == 0 ? -swing : swing});
        }
        painter.Paint_lines(crack, Pen::bolt);
    }
}

// The component of the force across the grain.
void Paint_force(Painter& painter, Point from, double length) {
    constexpr double aside = 16.0;
    constexpr double up = 8.0;
    const Point tip = from - Point{0.0, length};
    painter.Paint_arrow({from, tip});
    painter.Paint_text(tip + Point{aside, up}, "F90", true);
}

} // namespace

Drawing Draw_splitting(double width, double height) {
    const double h = member_height * height;
    const double half_length = std::min(width, longest * height) / 2.0 - dimension_gap - letter_room - label_gap;
    const Member member = Make_member(half_length, h);
    const Point split{0.0, -first_bolt * height};
    const Point pulled{0.0, -second_bolt * height};
    const double left = -half_length - dimension_gap;
    const double right = half_length + dimension_gap;

    Drawing drawing;
    const Sheet sheet{width, height, {width / 2.0, height - 4.0}};
    Painter painter{sheet, drawing};
    painter.Paint_wood(member, Tone::wood_1);
    painter.Paint_edges(member);
    for (const double edge : {0.0, -h}) {
        painter.Paint_line({{-half_length - extension_gap, edge}, {left - overshoot, edge}}, Pen::extension);
        painter.Paint_line({{half_length + extension_gap, edge}, {right + overshoot, edge}}, Pen::extension);
    }
    Paint_crack(painter, split, 0.55 * half_length);
    painter.Paint_line({{0.7 * half_length, split.y}, {right + overshoot, split.y}}, Pen::extension);
    Paint_force(painter, pulled, h - second_bolt * height + force_part * height);
    painter.Paint_bolt(split);
    painter.Paint_bolt(pulled);
    painter.Paint_dimension(Make_dimension("h", left, 0.0, -h, -1.0));
    painter.Paint_dimension(Make_dimension("a", right, 0.0, split.y, 1.0));
    painter.Paint_dimension(Make_dimension("he", right, split.y, -h, 1.0));
    return drawing;
}

} // namespace tarnvik
