#include "spacing/sketch/Painter.h"

#include <gtest/gtest.h>

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
    EXPECT_TRUE(Fits(bounds, 46.0, 36.0));
    EXPECT_FALSE(Fits(bounds, 45.9, 36.0));
    EXPECT_FALSE(Fits(bounds, 46.0, 35.9));
    const Sheet centred = Centred(bounds, 100.0, 80.0);
    Expect_point(centred.Place({10.0, -5.0}), 50.0, 40.0); // the middle of the bounds
}

TEST(Painter, wood_and_edges_end_at_the_sheet) {
    Drawing drawing;
    Painter painter{sheet, drawing};
    const Joint joint = Make_joint('2', {1, 1}, true, 10.0); // edges of the beam at 14 and -10
    painter.Paint_wood(joint.members[0], Tone::wood_1);
    painter.Paint_edges(joint.members[0]);
    const std::vector<PolygonShape> polygons = Polygons(drawing);
    ASSERT_EQ(polygons.size(), 3U);
    EXPECT_EQ(polygons[0].fill, Tone::wood_1);
    EXPECT_EQ(polygons[0].pen, Pen::none);
    ASSERT_EQ(polygons[0].corners.size(), 4U);
    for (const Point& corner : polygons[0].corners) {
        EXPECT_TRUE(std::fabs(corner.x) < 1e-9 || std::fabs(corner.x - 100.0) < 1e-9);
        EXPECT_TRUE(std::fabs(corner.y - 36.0) < 1e-9 || std::fabs(corner.y - 60.0) < 1e-9);
    }
    EXPECT_EQ(polygons[1].pen, Pen::outline);
    EXPECT_FALSE(polygons[1].closed);
    Expect_point(polygons[1].corners[0], 0.0, 36.0);
    Expect_point(polygons[1].corners[1], 100.0, 36.0);
    Expect_point(polygons[2].corners[0], 0.0, 60.0);
}

TEST(Painter, edges_outside_the_sheet_are_not_drawn) {
    Drawing drawing;
    Painter painter{{100.0, 80.0, {40.0, -5.0}}, drawing}; // the lower edge and the fastener below the sheet
    painter.Paint_edges(Make_joint('2', {1, 1}, true, 10.0).members[0]);
    EXPECT_EQ(Polygons(drawing).size(), 1U);
}

TEST(Painter, edges_are_hidden_where_the_other_member_covers_them) {
    // Beam on a column: upper edge of the beam at 14 above the end of the column at 13, lower edge at -10; the column
    // covers x from -10 to 10. The beam's end at -19 lies outside.
    Drawing drawing;
    Painter painter{sheet, drawing};
    const Joint joint = Make_joint('4', {1, 1}, true, 10.0);
    painter.Paint_hidden_edges(joint.members[0], joint.members[1]);
    const std::vector<PolygonShape> polygons = Polygons(drawing);
    ASSERT_EQ(polygons.size(), 1U);
    EXPECT_EQ(polygons[0].pen, Pen::hidden);
    Expect_point(polygons[0].corners[0], 30.0, 60.0);
    Expect_point(polygons[0].corners[1], 50.0, 60.0);
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
