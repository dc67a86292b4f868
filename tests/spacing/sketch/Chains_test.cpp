// The dimensions of a beam on a column: member 1 to the right with its first edge up, member 2 downward with its first
// edge at the left, an unloaded edge distance of 10 pixels. In compression the upper edge of the beam and its end are
// loaded: edges at y = 17 and -10, the end at x = -22; the column has its edges at x = -10 and 10 and its end at y
// = 17, flush with the beam.
#include "spacing/sketch/Chains.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tarnvik {
namespace {

constexpr double unit = 10.0;
constexpr MemberDistances one_fastener{2, 1};

constexpr Place usual{false, true};

void Expect_point(Point p, double x, double y) {
    EXPECT_NEAR(p.x, x, 1e-9);
    EXPECT_NEAR(p.y, y, 1e-9);
}

Joint Beam_on_column(Lattice lattice = {1, 1}) {
    return Make_joint('4', lattice, true, unit);
}

TEST(Chains, across_a_member_from_edge_to_edge_over_its_lines) {
    const Chain chain = Chain_across(Beam_on_column(), 0, usual, one_fastener, 0.0);
    EXPECT_TRUE(chain.across);
    ASSERT_EQ(chain.dimensions.size(), 2U);
    EXPECT_EQ(chain.dimensions[0].label, "a1");
    EXPECT_EQ(chain.dimensions[1].label, "a2");
    EXPECT_TRUE(chain.dimensions[0].loaded);
    EXPECT_FALSE(chain.dimensions[1].loaded);
    // 7 from the edge of the column.
    Expect_point(chain.dimensions[0].line.a, 17.0, 17.0);
    Expect_point(chain.dimensions[0].line.b, 17.0, 0.0);
    Expect_point(chain.dimensions[1].line.a, 17.0, 0.0);
    Expect_point(chain.dimensions[1].line.b, 17.0, -10.0);
    // From the fastener only; the edges are there themselves.
    ASSERT_EQ(chain.extensions.size(), 1U);
    Expect_point(chain.extensions[0].a, 4.4, 0.0);
    Expect_point(chain.extensions[0].b, 19.0, 0.0);
}

TEST(Chains, across_a_member_behind_its_end_the_edges_have_extensions) {
    const Chain chain = Chain_across(Beam_on_column(), 0, Place{true, true}, one_fastener, 0.0);
    Expect_point(chain.outward, -1.0, 0.0);
    Expect_point(chain.dimensions[0].line.a, -32.0, 17.0); // 10 outside the end
    ASSERT_EQ(chain.extensions.size(), 3U);
    Expect_point(chain.extensions[0].a, -24.0, 17.0);
    Expect_point(chain.extensions[0].b, -34.0, 17.0);
    Expect_point(chain.extensions[1].a, -4.4, 0.0);
    Expect_point(chain.extensions[2].a, -24.0, -10.0);
}

TEST(Chains, stand_so_much_farther_out_where_they_are_asked_to) {
    const Chain across = Chain_across(Beam_on_column(), 0, usual, one_fastener, 8.0);
    Expect_point(across.dimensions[0].line.a, 25.0, 17.0);
    Expect_point(across.extensions[0].b, 27.0, 0.0);
    const auto along = Chain_along(Beam_on_column(), 0, usual, one_fastener, 8.0);
    Expect_point(along->dimensions[0].line.a, 0.0, 35.0);
}

TEST(Chains, the_extension_of_a_line_starts_at_its_nearest_fastener) {
    const Joint joint = Beam_on_column({2, 2}); // at x and y of 0 and 10, 0 and -10
    const Chain chain = Chain_across(joint, 0, usual, {3, 1}, 0.0);
    ASSERT_EQ(chain.extensions.size(), 2U);
    Expect_point(chain.extensions[0].a, 14.4, 0.0);
    Expect_point(chain.extensions[1].a, 14.4, -10.0);
    const Chain behind = Chain_across(joint, 0, Place{true, true}, {3, 1}, 0.0);
    Expect_point(behind.extensions[1].a, -4.4, 0.0);
}

TEST(Chains, along_a_member_to_its_end) {
    const auto chain = Chain_along(Beam_on_column(), 0, usual, one_fastener, 0.0);
    ASSERT_TRUE(chain);
    EXPECT_FALSE(chain->across);
    ASSERT_EQ(chain->dimensions.size(), 1U);
    EXPECT_EQ(chain->dimensions[0].label, "a3");
    EXPECT_TRUE(chain->dimensions[0].loaded);
    Expect_point(chain->dimensions[0].line.a, 0.0, 27.0); // 10 outside the upper edge
    Expect_point(chain->dimensions[0].line.b, -22.0, 27.0);
    ASSERT_EQ(chain->extensions.size(), 2U);
    Expect_point(chain->extensions[0].a, 0.0, 4.4); // from the fastener
    Expect_point(chain->extensions[0].b, 0.0, 29.0);
    Expect_point(chain->extensions[1].a, -22.0, 19.0); // from the edge
    Expect_point(chain->extensions[1].b, -22.0, 29.0);
    // Half a letter and the gap above the middle.
    Expect_point(chain->dimensions[0].label_at, -11.0, 27.0 + 3.0 + 4.2);
    EXPECT_NEAR(chain->dimensions[0].label_room.low, 30.0, 1e-9);
    EXPECT_NEAR(chain->dimensions[0].label_room.right, -4.8, 1e-9);
}

TEST(Chains, along_a_member_outside_its_other_edge) {
    const auto chain = Chain_along(Beam_on_column(), 0, Place{false, false}, one_fastener, 0.0);
    ASSERT_TRUE(chain);
    Expect_point(chain->dimensions[0].line.a, 0.0, -20.0);
    Expect_point(chain->outward, 0.0, -1.0);
}

TEST(Chains, along_the_second_member_outside_the_end_of_the_first_one) {
    // At the left of the column the beam ends at x = -22: 10 outside it.
    const auto chain = Chain_along(Beam_on_column(), 1, usual, one_fastener, 0.0);
    ASSERT_TRUE(chain);
    EXPECT_EQ(chain->dimensions[0].label, "b3");
    EXPECT_FALSE(chain->dimensions[0].loaded);
    Expect_point(chain->dimensions[0].line.a, -32.0, 0.0);
    Expect_point(chain->dimensions[0].line.b, -32.0, 17.0);
}

TEST(Chains, at_a_right_angle_the_end_alone_is_measured_along) {
    const auto chain = Chain_along(Beam_on_column({3, 1}), 0, usual, {2, 1}, 0.0);
    ASSERT_TRUE(chain);
    ASSERT_EQ(chain->dimensions.size(), 1U);
    Expect_point(chain->dimensions[0].line.a, 0.0, 27.0); // the fastener next to the end
}

TEST(Chains, the_end_is_measured_from_the_fastener_on_the_side_of_the_chain) {
    // Two fasteners are as near to the end of the beam; from the one below the line passes the other one by.
    const auto above = Chain_along(Beam_on_column({2, 2}), 0, usual, {3, 1}, 0.0);
    Expect_point(above->extensions[0].a, 0.0, 4.4);
    const auto below = Chain_along(Beam_on_column({2, 2}), 0, Place{false, false}, {3, 1}, 0.0);
    Expect_point(below->extensions[0].a, 0.0, -14.4);
}

TEST(Chains, at_an_oblique_angle_the_spacings_come_before_the_end) {
    const Joint joint = Make_joint('1', {3, 1}, false, unit);
    const auto chain = Chain_along(joint, 0, usual, {2, 3}, 0.0);
    ASSERT_TRUE(chain);
    ASSERT_EQ(chain->dimensions.size(), 3U);
    EXPECT_EQ(chain->dimensions[0].label, "a3");
    EXPECT_EQ(chain->dimensions[2].label, "a5");
    EXPECT_FALSE(chain->dimensions[0].loaded);
    EXPECT_FALSE(chain->dimensions[1].loaded);
    EXPECT_TRUE(chain->dimensions[2].loaded); // the top chord is pulled
    EXPECT_NEAR(Length(chain->dimensions[2].line.b - chain->dimensions[2].line.a), 22.0, 1e-9);
    EXPECT_EQ(chain->extensions.size(), 4U); // one row: each is used by both of its neighbours
    for (std::size_t i = 1; i < 3; ++i) {
        EXPECT_NEAR(Length(chain->dimensions[i].line.a - chain->dimensions[i - 1].line.b), 0.0, 1e-9);
    }
}

TEST(Chains, spacings_are_measured_in_the_row_next_to_the_chain_and_the_end_from_the_fastener_next_to_it) {
    // Two rows along the top chord at 27 degrees, a unit apart; the lower one begins 10 / tan 27 = 19.63 farther up.
    const Joint joint = Make_joint('1', {2, 2}, false, unit);
    const Member& chord = joint.members[0];
    const auto chain = Chain_along(joint, 0, Place{true, false}, {3, 2}, 0.0);
    ASSERT_TRUE(chain);
    ASSERT_EQ(chain->dimensions.size(), 2U);
    const auto along = [&chord](Point p) { return Dot(p, chord.u); };
    const double step = 10.0 / std::sin(27.0 * std::acos(-1.0) / 180.0);
    EXPECT_NEAR(along(chain->dimensions[0].line.b), 19.626, 1e-3);
    EXPECT_NEAR(along(chain->dimensions[0].line.a), 19.626 + step, 1e-3);
    EXPECT_NEAR(along(chain->dimensions[1].line.a), 0.0, 1e-9);
    EXPECT_NEAR(along(chain->dimensions[1].line.b), -22.0, 1e-9);
    EXPECT_EQ(chain->extensions.size(), 4U);
    for (const Segment& extension : chain->extensions) {
        for (const Point& fastener : joint.fasteners) {
            EXPECT_TRUE(Gap(fastener, extension) > 3.0 * bolt_radius || Length(fastener - extension.a) < 4.5);
        }
    }
}

TEST(Chains, a_member_that_runs_through_has_spacings_but_no_end) {
    const Joint single = Make_joint('2', {1, 1}, true, unit);
    EXPECT_FALSE(Chain_along(single, 0, usual, {2, 0}, 0.0));
    const Joint doubled = Make_joint('2', {2, 1}, true, unit);
    const auto chain = Chain_along(doubled, 0, usual, {2, 1}, 0.0);
    ASSERT_TRUE(chain);
    ASSERT_EQ(chain->dimensions.size(), 1U);
    EXPECT_FALSE(chain->dimensions[0].loaded);
}

TEST(Chains, how_far_the_other_member_reaches) {
    const Joint joint = Beam_on_column();
    EXPECT_NEAR(Reach_over(joint.members[0], joint.members[1], 1.0), 10.0, 1e-9);
    EXPECT_NEAR(Reach_over(joint.members[0], joint.members[1], -1.0), 10.0, 1e-9);
    EXPECT_NEAR(Reach_over(joint.members[1], joint.members[0], 1.0), 10.0, 1e-9);
}

} // namespace
} // namespace tarnvik
