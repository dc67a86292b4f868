#include "spacing/sketch/Painter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace tarnvik {
namespace {

// The first fastener of the joint at 40 from the left and 30 from the bottom.
constexpr Sheet sheet{100.0, 80.0, {40.0, 30.0}};

void Expect_point(Point p, double x, double y) {
    EXPECT_NEAR(p.x, x, 1e-9);
    EXPECT_NEAR(p.y, y, 1e-9);
}

std::vector<PolygonShape> Polygons(const Drawing& drawing) {
    std::vector<PolygonShape> polygons;
    for (const auto& shape : drawing.shapes) {
        if (const auto* polygon = std::get_if<PolygonShape>(&shape)) {
            polygons.push_back(*polygon);
        }
    }
    return polygons;
}

TEST(Sheet, turns_y_downward) {
    Expect_point(sheet.Place({0.0, 0.0}), 40.0, 50.0);
    Expect_point(sheet.Place({10.0, 20.0}), 50.0, 30.0);
}

TEST(Sheet, holds_what_fits_with_its_margin_and_centres_it) {
    const Rect bounds{-10.0, -20.0, 30.0, 10.0};
    EXPECT_TRUE(Fits(bounds, 44.0, 34.0));
    EXPECT_FALSE(Fits(bounds, 43.9, 34.0));
    EXPECT_FALSE(Fits(bounds, 44.0, 33.9));
    const Sheet centred = Centred(bounds, 100.0, 80.0);
    Expect_point(centred.Place({10.0, -5.0}), 50.0, 40.0); // the middle of the bounds
}

// A beam that runs through, torn at x = -30 and 50, its edges at 17 (loaded) and -10.
Member Beam() {
    Member beam = Make_joint('2', {1, 1}, true, 10.0).members[0];
    beam.near_u = -30.0;
    beam.far_u = 50.0;
    return beam;
}

TEST(Painter, wood_ends_where_the_member_is_torn) {
    Drawing drawing;
    Painter painter{sheet, drawing};
    painter.Paint_wood(Beam(), Tone::wood_1);
    const std::vector<PolygonShape> polygons = Polygons(drawing);
    ASSERT_EQ(polygons.size(), 1U);
    EXPECT_EQ(polygons[0].fill, Tone::wood_1);
    EXPECT_EQ(polygons[0].pen, Pen::none);
    for (const Point& corner : polygons[0].corners) {
        const double off = std::min(std::fabs(corner.x - 10.0), std::fabs(corner.x - 90.0));
        EXPECT_LE(off, torn_wave + 1e-9); // both ends are waves
        EXPECT_GE(corner.y, 33.0 - 1e-9);
        EXPECT_LE(corner.y, 60.0 + 1e-9);
    }
}

TEST(Painter, a_loaded_edge_is_heavier_and_a_torn_end_is_a_fine_wave) {
    Drawing drawing;
    Painter painter{sheet, drawing};
    painter.Paint_edges(Beam());
    const std::vector<PolygonShape> polygons = Polygons(drawing);
    ASSERT_EQ(polygons.size(), 4U);
    EXPECT_EQ(polygons[0].pen, Pen::torn);
    EXPECT_EQ(polygons[1].pen, Pen::torn);
    EXPECT_GT(polygons[0].corners.size(), 8U);
    EXPECT_FALSE(polygons[0].closed);
    EXPECT_EQ(polygons[2].pen, Pen::loaded);
    Expect_point(polygons[2].corners[0], 10.0, 33.0);
    Expect_point(polygons[2].corners[1], 90.0, 33.0);
    EXPECT_EQ(polygons[3].pen, Pen::outline);
    Expect_point(polygons[3].corners[0], 10.0, 60.0);
}

TEST(Painter, an_end_is_straight) {
    Drawing drawing;
    Painter painter{sheet, drawing};
    painter.Paint_edges(Make_joint('4', {1, 1}, true, 10.0).members[0]);
    const std::vector<PolygonShape> polygons = Polygons(drawing);
    EXPECT_EQ(polygons[1].pen, Pen::outline);
    EXPECT_EQ(polygons[1].corners.size(), 2U);
}

TEST(Painter, edges_are_hidden_where_the_other_member_covers_them) {
    // Beam on a column: lower edge of the beam at -10; the column covers x from -10 to 10. Its end is flush with the
    // loaded upper edge, which is as heavy there as elsewhere, and the beam's end lies outside.
    Drawing drawing;
    Painter painter{sheet, drawing};
    const Joint joint = Make_joint('4', {1, 1}, true, 10.0);
    painter.Paint_hidden_edges(joint.members[0], joint.members[1]);
    const std::vector<PolygonShape> polygons = Polygons(drawing);
    ASSERT_EQ(polygons.size(), 2U);
    EXPECT_EQ(polygons[0].pen, Pen::hidden);
    Expect_point(polygons[0].corners[0], 30.0, 60.0);
    Expect_point(polygons[0].corners[1], 50.0, 60.0);
    EXPECT_EQ(polygons[1].pen, Pen::loaded);
    Expect_point(polygons[1].corners[0], 30.0, 33.0);
    Expect_point(polygons[1].corners[1], 50.0, 33.0);
}

TEST(Painter, a_loaded_edge_stays_the_heavier_one_where_it_is_hidden) {
    Drawing drawing;
    Painter painter{sheet, drawing};
    const Joint joint = Make_joint('4', {1, 1}, false, 10.0); // the column pulls down: the lower edge is loaded
    painter.Paint_hidden_edges(joint.members[0], joint.members[1]);
    const std::vector<PolygonShape> polygons = Polygons(drawing);
    ASSERT_EQ(polygons.size(), 2U);
    EXPECT_EQ(polygons[0].pen, Pen::hidden);
    EXPECT_EQ(polygons[1].pen, Pen::hidden_loaded);
    Expect_point(polygons[1].corners[0], 30.0, 67.0);
}

TEST(Painter, a_bolt_is_a_circle_with_its_centre) {
    Drawing drawing;
    Painter painter{sheet, drawing};
    painter.Paint_bolt({0.0, 0.0});
    ASSERT_EQ(drawing.shapes.size(), 2U);
    const auto& circle = std::get<CircleShape>(drawing.shapes[0]);
    Expect_point(circle.centre, 40.0, 50.0);
    EXPECT_EQ(circle.radius, bolt_radius);
    EXPECT_EQ(circle.pen, Pen::bolt);
    EXPECT_EQ(std::get<CircleShape>(drawing.shapes[1]).fill, Tone::black);
    painter.Paint_bolt({0.0, 0.0}, 2.0);
    EXPECT_EQ(std::get<CircleShape>(drawing.shapes[2]).radius, 2.0);
    EXPECT_LT(std::get<CircleShape>(drawing.shapes[3]).radius, 1.0);
}

TEST(Painter, an_arrow_is_a_heavy_line_with_its_head_at_the_tip) {
    Drawing drawing;
    Painter painter{sheet, drawing};
    painter.Paint_force({{{0.0, 0.0}, {0.0, 20.0}}, {8.0, 10.0}, {}});
    const std::vector<PolygonShape> polygons = Polygons(drawing);
    ASSERT_EQ(polygons.size(), 2U);
    EXPECT_EQ(polygons[0].pen, Pen::force);
    Expect_point(polygons[1].corners[0], 40.0, 30.0);
    EXPECT_EQ(std::get<TextShape>(drawing.shapes[2]).text, "P");
}

TEST(Painter, an_angle_is_an_arc_about_its_corner_with_its_letter) {
    Drawing drawing;
    Painter painter{sheet, drawing};
    painter.Paint_angle({{0.0, 0.0}, 20.0, 0.0, 90.0, {10.0, 10.0}, {}});
    const std::vector<PolygonShape> polygons = Polygons(drawing);
    ASSERT_EQ(polygons.size(), 1U);
    for (const Point& corner : polygons[0].corners) {
        EXPECT_NEAR(std::hypot(corner.x - 40.0, corner.y - 50.0), 20.0, 1e-9);
    }
    Expect_point(polygons[0].corners.front(), 60.0, 50.0);
    Expect_point(polygons[0].corners.back(), 40.0, 30.0);
    EXPECT_EQ(std::get<TextShape>(drawing.shapes[1]).text, "\u03b1");
}

TEST(Painter, a_dimension_is_a_line_with_two_heads_and_its_label) {
    Drawing drawing;
    Painter painter{sheet, drawing};
    painter.Paint_dimension({"a1", {{0.0, 0.0}, {20.0, 0.0}}, {10.0, 8.0}, {}, false});
    ASSERT_EQ(drawing.shapes.size(), 4U);
    const std::vector<PolygonShape> polygons = Polygons(drawing);
    EXPECT_EQ(polygons[0].pen, Pen::dimension);
    Expect_point(polygons[0].corners[1], 60.0, 50.0);
    // Each head has its tip at an end of the line, its back inside.
    Expect_point(polygons[1].corners[0], 40.0, 50.0);
    EXPECT_GT(polygons[1].corners[1].x, 40.0);
    Expect_point(polygons[2].corners[0], 60.0, 50.0);
    EXPECT_LT(polygons[2].corners[1].x, 60.0);
    EXPECT_EQ(polygons[2].fill, Tone::black);
    const auto& label = std::get<TextShape>(drawing.shapes[3]);
    EXPECT_EQ(label.text, "a1");
    EXPECT_FALSE(label.bold);
    Expect_point(label.centre, 50.0, 42.0);
}

TEST(Painter, the_member_in_front_is_painted_last) {
    for (const std::size_t front : {std::size_t{0}, std::size_t{1}}) {
        Drawing drawing;
        Painter painter{sheet, drawing};
        Paint_members(painter, Make_joint('1', {1, 1}, true, 10.0), front);
        const std::vector<PolygonShape> polygons = Polygons(drawing);
        EXPECT_EQ(polygons.front().fill, front == 0 ? Tone::wood_2 : Tone::wood_1);
        Tone last = Tone::none;
        for (const PolygonShape& polygon : polygons) {
            last = polygon.fill == Tone::none ? last : polygon.fill;
        }
        EXPECT_EQ(last, front == 0 ? Tone::wood_1 : Tone::wood_2);
    }
}

} // namespace
} // namespace tarnvik
