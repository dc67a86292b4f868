#include "spacing/sketch/Composition.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "spacing/Catalogue.h"
#include "spacing/sketch/Choice.h"

namespace tarnvik {
namespace {

constexpr double unit = 16.0;

template <class Check> void For_all(Check check) {
    for (int row = 0; row < case_count; ++row) {
        for (const bool compression : {false, true}) {
            SCOPED_TRACE(std::string{case_table[static_cast<std::size_t>(row)].Case_code} +
                         (compression ? " compression" : " tension"));
            check(row, compression);
        }
    }
}

TEST(Composition, has_the_distances_that_the_rules_list_for_the_joint) {
    For_all([](int row, bool compression) {
        std::vector<std::string> drawn;
        for (const Chain& chain : Compose(row, compression, unit, Places_of(row)).chains) {
            for (const Dimension& dimension : chain.dimensions) {
                drawn.emplace_back(dimension.label);
            }
        }
        const CaseDistances& listed = case_distances[static_cast<std::size_t>(row)];
        std::vector<std::string> wanted;
        for (int i = 1; i <= listed.a.across + listed.a.along; ++i) {
            wanted.push_back("a" + std::to_string(i));
        }
        for (int i = 1; i <= listed.b.across + listed.b.along; ++i) {
            wanted.push_back("b" + std::to_string(i));
        }
        std::sort(drawn.begin(), drawn.end());
        EXPECT_EQ(drawn, wanted);
    });
}

TEST(Composition, the_force_acts_on_the_axis_of_its_member_and_points_at_the_joint_in_compression) {
    For_all([](int row, bool compression) {
        const Composition all = Compose(row, compression, unit, Places_of(row));
        const bool top_chord = case_table[static_cast<std::size_t>(row)].type == '1';
        const Member& pushed = all.joint.members[top_chord ? 0 : 1];
        const Segment& arrow = all.force.arrow;
        EXPECT_NEAR(Dot(arrow.a, pushed.m), pushed.Axis(), 1e-9);
        EXPECT_NEAR(Dot(arrow.b, pushed.m), pushed.Axis(), 1e-9);
        EXPECT_NEAR(Dot(arrow.b - arrow.a, pushed.u), compression ? -force_length : force_length, 1e-9);
        EXPECT_GT(std::min(Dot(arrow.a, pushed.u), Dot(arrow.b, pushed.u)), pushed.far_u + torn_wave);
    });
}

TEST(Composition, members_are_seen_as_far_as_what_stands_on_them) {
    For_all([](int row, bool compression) {
        const Composition all = Compose(row, compression, unit, Places_of(row));
        for (std::size_t k = 0; k < 2; ++k) {
            const Member& member = all.joint.members[k];
            EXPECT_GT(member.far_u, Reach_over(member, all.joint.members[1 - k], 1.0));
            for (const Chain& chain : all.chains) {
                for (const Dimension& dimension : chain.dimensions) {
                    const double m = Dot(dimension.label_at, member.m);
                    if (m > member.Other_edge() && m < member.First_edge()) {
                        EXPECT_LT(Dot(dimension.label_at, member.u), member.far_u) << dimension.label;
                    }
                }
            }
        }
    });
}

TEST(Composition, is_not_clear_where_it_is_too_small_to_read) {
    EXPECT_FALSE(Compose(Find_case("3.6. "), false, 5.0, Places_of(Find_case("3.6. "))).clear);
    EXPECT_TRUE(Compose(Find_case("3.6. "), false, 20.0, Places_of(Find_case("3.6. "))).clear);
}

TEST(Composition, the_bounds_hold_all_that_is_to_be_read) {
    For_all([](int row, bool compression) {
        const Composition all = Compose(row, compression, unit, Places_of(row));
        const auto held = [&all](Point p) {
            return p.x >= all.bounds.left && p.x <= all.bounds.right && p.y >= all.bounds.low && p.y <= all.bounds.high;
        };
        for (const Chain& chain : all.chains) {
            for (const Dimension& dimension : chain.dimensions) {
                EXPECT_TRUE(held(dimension.line.a) && held(dimension.line.b)) << dimension.label;
                EXPECT_TRUE(held({dimension.label_room.left, dimension.label_room.low})) << dimension.label;
                EXPECT_TRUE(held({dimension.label_room.right, dimension.label_room.high})) << dimension.label;
            }
        }
        for (const Member& member : all.joint.members) {
            EXPECT_TRUE(held(member.First().a) && held(member.First().b));
            EXPECT_TRUE(held(member.Other().a) && held(member.Other().b));
        }
        EXPECT_TRUE(held(all.force.arrow.a) && held(all.force.arrow.b) && held(all.force.letter_at));
        for (const Point& fastener : all.joint.fasteners) {
            EXPECT_TRUE(held(fastener));
        }
    });
}

} // namespace
} // namespace tarnvik
