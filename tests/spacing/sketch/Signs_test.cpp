#include "spacing/sketch/Signs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace tarnvik {
namespace {

constexpr double unit = 14.0;

std::array<Reach, 2> Reaches() {
    return {Reach{-1e6, -1e6}, Reach{-1e6, -1e6}};
}

TEST(Signs, the_angle_is_that_between_the_members) {
    // Top chord at 27, strut at 40 below the beam to the left, collar beam at 35 degrees to the rafter.
    const struct {
        char type;
        double from, to;
    } rows[] = {{'1', 0.0, 27.0}, {'2', -180.0, -140.0}, {'3', 0.0, 35.0}};
    for (const auto& row : rows) {
        const Joint joint = Make_joint(row.type, {1, 1}, true, unit);
        Occupied occupied{joint};
        auto reaches = Reaches();
        const auto angle = Place_angle(joint, occupied, reaches);
        ASSERT_TRUE(angle) << row.type;
        EXPECT_NEAR(angle->from, row.from, 1e-9) << row.type;
        EXPECT_NEAR(angle->to, row.to, 1e-9) << row.type;
        EXPECT_FALSE(occupied.Takes_label(angle->letter_room)) << row.type; // its room is taken now
        // Both sides are seen beyond the arc.
        const double ahead = row.type == '2' ? -1.0 : 1.0;
        const double reach_1 = row.type == '2' ? reaches[0].near : reaches[0].far;
        EXPECT_GT(reach_1, ahead * Dot(angle->corner, joint.members[0].u) + angle->radius) << row.type;
        EXPECT_GT(reaches[1].far, Dot(angle->corner, joint.members[1].u) + angle->radius) << row.type;
    }
}

TEST(Signs, a_right_angle_is_not_marked) {
    for (const char type : {'4', '5'}) {
        const Joint joint = Make_joint(type, {1, 1}, true, unit);
        Occupied occupied{joint};
        auto reaches = Reaches();
        EXPECT_FALSE(Place_angle(joint, occupied, reaches)) << type;
    }
}

TEST(Signs, the_grain_runs_along_its_member_beside_the_joint) {
    const Joint joint = Make_joint('4', {1, 1}, true, unit);
    const Occupied occupied{joint};
    for (std::size_t k = 0; k < 2; ++k) {
        const Member& member = joint.members[k];
        auto reaches = Reaches();
        const auto grain = Place_grain(joint, k, occupied, {}, reaches[k]);
        ASSERT_TRUE(grain) << k;
        for (const Segment& stroke : *grain) {
            EXPECT_NEAR(Dot(stroke.b - stroke.a, member.m), 0.0, 1e-9);
            EXPECT_GT(Dot(stroke.a, member.u), Reach_over(member, joint.members[1 - k], 1.0));
            EXPECT_LT(Dot(stroke.b, member.u), reaches[k].far);
        }
    }
}

TEST(Signs, the_grain_gives_way_to_what_stands_there) {
    const Joint joint = Make_joint('4', {1, 1}, true, unit);
    const Member& beam = joint.members[0];
    Occupied occupied{joint};
    auto reaches = Reaches();
    const auto usual = Place_grain(joint, 0, occupied, {}, reaches[0]);
    occupied.Add_label(Around((*usual)[1].a, Size_of("a1", false)));
    const auto moved = Place_grain(joint, 0, occupied, {}, reaches[0]);
    ASSERT_TRUE(moved);
    EXPECT_GT(Length((*moved)[1].a - (*usual)[1].a), 5.0);
    EXPECT_LT(std::fabs(Dot((*moved)[1].a, beam.m) - beam.Axis()), beam.First_edge() - beam.Axis());
}

TEST(Signs, the_force_points_at_the_joint_in_compression_and_away_in_tension) {
    Joint joint = Make_joint('4', {1, 1}, true, unit);
    Member& column = joint.members[1];
    column.far_u = 60.0;
    const Occupied occupied{joint};
    for (const bool compression : {false, true}) {
        Force force;
        ASSERT_TRUE(Place_force(column, compression, occupied, force));
        const Segment& arrow = force.arrow;
        EXPECT_NEAR(Dot(arrow.b - arrow.a, column.u), compression ? -force_length : force_length, 1e-9);
        EXPECT_NEAR(Dot(arrow.a, column.m), column.Axis(), 1e-9);
        EXPECT_GT(std::min(Dot(arrow.a, column.u), Dot(arrow.b, column.u)), 60.0);
        // The letter at the side of the first edge.
        EXPECT_GT(Dot(force.letter_at, column.m), column.Axis() + 4.0);
    }
}

TEST(Signs, the_letter_of_the_force_changes_sides_where_the_first_one_is_taken) {
    Joint joint = Make_joint('4', {1, 1}, true, unit);
    Member& column = joint.members[1];
    column.far_u = 60.0;
    Occupied occupied{joint};
    Force force;
    ASSERT_TRUE(Place_force(column, true, occupied, force));
    occupied.Add_label(force.letter_room);
    ASSERT_TRUE(Place_force(column, true, occupied, force));
    EXPECT_LT(Dot(force.letter_at, column.m), column.Axis() - 4.0);
    occupied.Add_label(force.letter_room);
    ASSERT_TRUE(Place_force(column, true, occupied, force));
    EXPECT_GT(Dot(force.letter_at, column.u), 60.0 + force_length); // beyond it
    occupied.Add_label(force.letter_room);
    EXPECT_FALSE(Place_force(column, true, occupied, force));
}

} // namespace
} // namespace tarnvik
