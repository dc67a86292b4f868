// The dimensions of a beam on a column: member 1 to the right with its first edge up, member 2 downward with its first
// edge at the left, an unloaded edge distance of 10 pixels. In compression the upper edge of the beam and its end are
// loaded: edges at y = 14 and -10, the end at x = -19; the column has its edges at x = -10 and 10 and its end at y
// = 13.
#include "spacing/sketch/Chains.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tarnvik {
namespace {

constexpr double unit = 10.0;
constexpr MemberDistances one_fastener{2, 1};

constexpr Place usual{false, false, true};

void Expect_point(Point p, double x, double y) {
    EXPECT_NEAR(p.x, x, 1e-9);
    EXPECT_NEAR(p.y, y, 1e-9);
}

Joint Beam_on_column(Lattice lattice = {1, 1}) {
    return Make_joint('4', lattice, true, unit);
}

TEST(Chains, across_a_member_from_edge_to_edge_over_its_lines) {
    const Chain chain = Chain_across(Beam_on_column(), 0, usual, one_fastener);
    EXPECT_TRUE(chain.across);
    ASSERT_EQ(chain.dimensions.size(), 2U);
    EXPECT_EQ(chain.dimensions[0].label, "a1");
    EXPECT_EQ(chain.dimensions[1].label, "a2");
    EXPECT_TRUE(chain.dimensions[0].loaded);
    EXPECT_FALSE(chain.dimensions[1].loaded);
    // 11 from the fastener of radius 3.4.
    Expect_point(chain.Line().a, 14.4, 14.0);
    Expect_point(chain.dimensions[0].line.b, 14.4, 0.0);
    Expect_point(chain.dimensions[1].line.a, 14.4, 0.0);
    Expect_point(chain.Line().b, 14.4, -10.0);
    // From the fastener only; the edges are there themselves.
    ASSERT_EQ(chain.extensions.size(), 1U);
    Expect_point(chain.extensions[0].a, 4.4, 0.0);
    Expect_point(chain.extensions[0].b, 17.4, 0.0);
}

TEST(Chains, across_a_member_behind_its_end_the_edges_have_extensions) {
    const Chain chain = Chain_across(Beam_on_column(), 0, Place{true, false, true}, one_fastener);
    Expect_point(chain.outward, -1.0, 0.0);
    Expect_point(chain.Line().a, -30.0, 14.0); // 11 outside the end
    ASSERT_EQ(chain.extensions.size(), 3U);
    Expect_point(chain.extensions[0].a, -21.0, 14.0);
    Expect_point(chain.extensions[0].b, -33.0, 14.0);
    Expect_point(chain.extensions[1].a, -4.4, 0.0);
    Expect_point(chain.extensions[2].a, -21.0, -10.0);
}

TEST(Chains, across_a_member_outside_what_the_other_one_covers) {
    const Chain chain = Chain_across(Beam_on_column(), 0, Place{false, true, true}, one_fastener);
    Expect_point(chain.Line().a, 16.0, 14.0); // 6 outside the edge of the column
}

TEST(Chains, the_extension_of_a_line_starts_at_its_nearest_fastener) {
    const Joint joint = Beam_on_column({2, 2}); // at x and y of 0 and 10, 0 and -10
    const Chain chain = Chain_across(joint, 0, usual, {3, 1});
    ASSERT_EQ(chain.extensions.size(), 2U);
    Expect_point(chain.extensions[0].a, 14.4, 0.0);
    Expect_point(chain.extensions[1].a, 14.4, -10.0);
    const Chain behind = Chain_across(joint, 0, Place{true, false, true}, {3, 1});
    Expect_point(behind.extensions[1].a, -4.4, 0.0);
}

TEST(Chains, along_a_member_to_its_end) {
    const auto chain = Chain_along(Beam_on_column(), 0, usual, one_fastener);
    ASSERT_TRUE(chain);
    EXPECT_FALSE(chain->across);
    ASSERT_EQ(chain->dimensions.size(), 1U);
    EXPECT_EQ(chain->dimensions[0].label, "a3");
    EXPECT_TRUE(chain->dimensions[0].loaded);
    Expect_point(chain->Line().a, 0.0, 25.0); // 11 outside the upper edge
    Expect_point(chain->Line().b, -19.0, 25.0);
    ASSERT_EQ(chain->extensions.size(), 2U);
    Expect_point(chain->extensions[0].a, 0.0, 4.4); // from the fastener
    Expect_point(chain->extensions[0].b, 0.0, 28.0);
    Expect_point(chain->extensions[1].a, -19.0, 16.0); // from the edge
    Expect_point(chain->extensions[1].b, -19.0, 28.0);
    // Half a letter and the gap above the middle.
    Expect_point(chain->dimensions[0].label_at, -9.5, 32.75);
    EXPECT_NEAR(chain->dimensions[0].label_room.low, 27.5, 1e-9);
    EXPECT_NEAR(chain->dimensions[0].label_room.right, -3.3, 1e-9);
}

TEST(Chains, along_a_member_outside_its_other_edge) {
    const auto chain = Chain_along(Beam_on_column(), 0, Place{false, false, false}, one_fastener);
    ASSERT_TRUE(chain);
    Expect_point(chain->Line().a, 0.0, -21.0);
    Expect_point(chain->outward, 0.0, -1.0);
}

TEST(Chains, along_the_second_member_outside_the_end_of_the_first_one) {
    // At the left of the column the beam ends at x = -19: 11 outside it.
    const auto chain = Chain_along(Beam_on_column(), 1, usual, one_fastener);
    ASSERT_TRUE(chain);
    EXPECT_EQ(chain->dimensions[0].label, "b3");
    EXPECT_FALSE(chain->dimensions[0].loaded);
    Expect_point(chain->Line().a, -30.0, 0.0);
    Expect_point(chain->Line().b, -30.0, 13.0);
}

TEST(Chains, at_a_right_angle_the_end_alone_is_measured_along) {
    const auto chain = Chain_along(Beam_on_column({3, 1}), 0, usual, {2, 1});
    ASSERT_TRUE(chain);
    ASSERT_EQ(chain->dimensions.size(), 1U);
    Expect_point(chain->Line().a, 0.0, 25.0); // the fastener next to the end
}

TEST(Chains, at_an_oblique_angle_the_spacings_come_before_the_end) {
    const Joint joint = Make_joint('1', {3, 1}, false, unit);
    const auto chain = Chain_along(joint, 0, usual, {2, 3});
    ASSERT_TRUE(chain);
    ASSERT_EQ(chain->dimensions.size(), 3U);
    EXPECT_EQ(chain->dimensions[0].label, "a3");
    EXPECT_EQ(chain->dimensions[2].label, "a5");
    EXPECT_FALSE(chain->dimensions[0].loaded);
    EXPECT_FALSE(chain->dimensions[1].loaded);
    EXPECT_TRUE(chain->dimensions[2].loaded); // the top chord is pulled
    EXPECT_NEAR(Length(chain->dimensions[2].line.b - chain->dimensions[2].line.a), 19.0, 1e-9);
}

TEST(Chains, a_member_that_runs_through_has_spacings_but_no_end) {
    const Joint single = Make_joint('2', {1, 1}, true, unit);
    EXPECT_FALSE(Chain_along(single, 0, usual, {2, 0}));
    const Joint doubled = Make_joint('2', {2, 1}, true, unit);
    const auto chain = Chain_along(doubled, 0, usual, {2, 1});
    ASSERT_TRUE(chain);
    ASSERT_EQ(chain->dimensions.size(), 1U);
    EXPECT_FALSE(chain->dimensions[0].loaded);
}

TEST(Chains, the_outer_labels_give_way_where_the_distances_are_shorter_than_they_need) {
    // Tension at 8 pixels: edges at 8 and -11.2. The label of 10.5 and 3.5 lacks 6 and 2.8; 0.6 of it each.
    const Joint joint = Make_joint('4', {1, 1}, false, 8.0);
    const Chain chain = Chain_across(joint, 0, usual, one_fastener);
    Expect_point(chain.dimensions[0].label_at, 23.1, 4.0 + 3.6); // 14.4, half a label of 12.4 and the gap of 2.5
    Expect_point(chain.dimensions[1].label_at, 23.1, -5.6 - 1.68);
    // Between two others a label stays in the middle.
    const Chain longer = Chain_across(Make_joint('4', {1, 2}, false, 8.0), 0, usual, {3, 1});
    Expect_point(longer.dimensions[1].label_at, 23.1, -4.0);
}

} // namespace
} // namespace tarnvik
