#include "spacing/sketch/Geometry.h"

#include <gtest/gtest.h>

namespace tarnvik {
namespace {

constexpr Rect box{0.0, 0.0, 10.0, 4.0};

void Expect_point(Point p, double x, double y) {
    EXPECT_NEAR(p.x, x, 1e-12);
    EXPECT_NEAR(p.y, y, 1e-12);
}

TEST(Geometry, rectangles_that_share_an_edge_do_not_touch) {
    EXPECT_TRUE(box.Touches({9.0, 3.0, 20.0, 20.0}));
    EXPECT_TRUE(box.Touches({2.0, 1.0, 3.0, 2.0})); // inside
    EXPECT_FALSE(box.Touches({10.0, 0.0, 20.0, 4.0}));
    EXPECT_FALSE(box.Touches({0.0, 4.0, 10.0, 8.0}));
    EXPECT_TRUE(box.Touches(Rect{11.0, 0.0, 20.0, 4.0}.Grown(2.0)));
}

TEST(Geometry, a_rectangle_grows_to_hold_what_it_includes) {
    Rect bounds = empty_rect;
    bounds.Include({3.0, -2.0});
    bounds.Include({-1.0, 5.0}, 0.5);
    EXPECT_EQ(bounds.left, -1.5);
    EXPECT_EQ(bounds.right, 3.0);
    EXPECT_EQ(bounds.low, -2.0);
    EXPECT_EQ(bounds.high, 5.5);
    bounds.Include({0.0, 0.0});
    EXPECT_EQ(bounds.left, -1.5);
    EXPECT_EQ(bounds.high, 5.5);
}

TEST(Geometry, the_room_around_a_text_and_a_fastener) {
    const Rect text = Around(Point{10.0, 20.0}, TextSize{8.0, 6.0});
    EXPECT_EQ(text.left, 6.0);
    EXPECT_EQ(text.right, 14.0);
    EXPECT_EQ(text.low, 17.0);
    EXPECT_EQ(text.high, 23.0);
    const Rect fastener = Around(Point{1.0, 2.0}, 3.0);
    EXPECT_EQ(fastener.left, -2.0);
    EXPECT_EQ(fastener.high, 5.0);
}

TEST(Geometry, a_text_grows_by_its_characters_and_a_little_where_it_is_bold) {
    EXPECT_EQ(Size_of("a1", false).width, 2.0 * digit_width);
    EXPECT_EQ(Size_of("ø", false).width, digit_width); // one character of two bytes
    EXPECT_EQ(Size_of("P", true).width, digit_width + 1.0);
    EXPECT_EQ(Size_of("P", true).height, letter_height);
    EXPECT_EQ(Size_of(TextShape{{}, "P", true}).width, digit_width + 1.0);
}

TEST(Geometry, directions_lengths_and_spans) {
    Expect_point(Direction(0.0), 1.0, 0.0);
    Expect_point(Direction(90.0), 0.0, 1.0);
    Expect_point(Direction(-180.0), -1.0, 0.0);
    EXPECT_EQ(Length({3.0, -4.0}), 5.0);
    EXPECT_EQ(Span({12.0, 10.0}, {0.0, -1.0}), 10.0);
    EXPECT_NEAR(Span({12.0, 10.0}, {0.6, 0.8}), 15.2, 1e-12); // 7.2 + 8
}

TEST(Geometry, the_gap_of_a_point_is_to_the_nearest_place_of_the_segment) {
    const Segment s{{0.0, 0.0}, {10.0, 0.0}};
    EXPECT_EQ(Gap(Point{4.0, 5.0}, s), 5.0);
    EXPECT_EQ(Gap(Point{13.0, 4.0}, s), 5.0);   // from the end: 3, 4
    EXPECT_EQ(Gap(Point{-6.0, -8.0}, s), 10.0); // from the other end: 6, 8
    EXPECT_EQ(Gap(Point{3.0, 4.0}, Segment{{0.0, 0.0}, {0.0, 0.0}}), 5.0);
}

TEST(Geometry, the_gap_of_two_segments_is_zero_where_they_cross) {
    const Segment s{{0.0, 0.0}, {10.0, 0.0}};
    EXPECT_EQ(Gap(s, Segment{{5.0, -5.0}, {5.0, 5.0}}), 0.0);
    EXPECT_EQ(Gap(s, Segment{{0.0, 3.0}, {10.0, 3.0}}), 3.0);
    EXPECT_EQ(Gap(s, Segment{{5.0, 2.0}, {5.0, 5.0}}), 2.0);   // above the middle
    EXPECT_EQ(Gap(s, Segment{{13.0, 4.0}, {20.0, 4.0}}), 5.0); // from end to end
    EXPECT_EQ(Gap(s, Segment{{5.0, 0.0}, {5.0, 5.0}}), 0.0);   // one ends on the other
}

TEST(Geometry, the_part_of_a_segment_inside_a_rectangle) {
    const auto across = Part_inside({{-10.0, 2.0}, {30.0, 2.0}}, box);
    ASSERT_TRUE(across);
    EXPECT_EQ(across->from, 0.25);
    EXPECT_EQ(across->to, 0.5);
    const Segment cut = Cut({{-10.0, 2.0}, {30.0, 2.0}}, *across);
    Expect_point(cut.a, 0.0, 2.0);
    Expect_point(cut.b, 10.0, 2.0);

    const auto inside = Part_inside({{1.0, 1.0}, {2.0, 3.0}}, box);
    ASSERT_TRUE(inside);
    EXPECT_EQ(inside->from, 0.0);
    EXPECT_EQ(inside->to, 1.0);

    const auto slanting = Part_inside({{-2.0, -2.0}, {6.0, 6.0}}, box); // in at 0, 0 and out at 4, 4
    ASSERT_TRUE(slanting);
    EXPECT_EQ(slanting->from, 0.25);
    EXPECT_EQ(slanting->to, 0.75);
}

TEST(Geometry, a_segment_beside_a_rectangle_has_no_part_in_it) {
    EXPECT_FALSE(Part_inside({{-5.0, 5.0}, {15.0, 5.0}}, box));   // above, parallel
    EXPECT_FALSE(Part_inside({{11.0, -5.0}, {11.0, 15.0}}, box)); // beside, parallel
    EXPECT_FALSE(Part_inside({{12.0, 0.0}, {20.0, 2.0}}, box));
    EXPECT_FALSE(Part_inside({{8.0, 8.0}, {16.0, 0.0}}, box)); // past the corner
    EXPECT_FALSE(Touches({{8.0, 8.0}, {16.0, 0.0}}, box));
}

TEST(Geometry, a_segment_on_an_edge_or_through_a_corner_touches) {
    EXPECT_TRUE(Touches({{2.0, 4.0}, {8.0, 4.0}}, box));
    const auto corner = Part_inside({{8.0, 6.0}, {12.0, 2.0}}, box); // through 10, 4
    ASSERT_TRUE(corner);
    EXPECT_EQ(corner->from, 0.5);
    EXPECT_EQ(corner->to, 0.5);
    EXPECT_TRUE(Touches({{3.0, 3.0}, {3.0, 3.0}}, box)); // a point
}

TEST(Geometry, nearer_is_a_gap_below_the_limit) {
    const Segment level{{0.0, 0.0}, {10.0, 0.0}};
    EXPECT_TRUE(Nearer(level, {{2.0, 3.0}, {8.0, 3.0}}, 3.1));
    EXPECT_FALSE(Nearer(level, {{2.0, 3.0}, {8.0, 3.0}}, 3.0));
    EXPECT_FALSE(Nearer(level, {{20.0, 0.0}, {30.0, 0.0}}, 9.0)); // far apart
    EXPECT_TRUE(Nearer(level, {{5.0, -5.0}, {5.0, 5.0}}, 0.1));   // crossing
    EXPECT_TRUE(Nearer(Point{13.0, 4.0}, level, 5.1));
    EXPECT_FALSE(Nearer(Point{13.0, 4.0}, level, 5.0));
}

} // namespace
} // namespace tarnvik
