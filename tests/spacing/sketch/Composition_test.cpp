#include "spacing/sketch/Composition.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "spacing/Catalogue.h"

namespace tarnvik {
namespace {

constexpr double unit = 14.0;
constexpr Places usual{Place{false, true, true}, Place{false, true, false}};

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
        for (const Chain& chain : Compose(row, compression, unit, usual).chains) {
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
        EXPECT_EQ(drawn, wanted);
    });
}

TEST(Composition, the_force_acts_on_the_axis_of_its_member_and_points_at_the_joint_in_compression) {
    For_all([](int row, bool compression) {
        const Composition all = Compose(row, compression, unit, usual);
        const bool top_chord = case_table[static_cast<std::size_t>(row)].type == '1';
        const Member& pushed = all.joint.members[top_chord ? 0 : 1];
        const Segment& arrow = all.force.arrow;
        EXPECT_NEAR(Dot(arrow.a, pushed.m), pushed.Axis(), 1e-9);
        EXPECT_NEAR(Dot(arrow.b, pushed.m), pushed.Axis(), 1e-9);
        EXPECT_NEAR(Dot(arrow.b - arrow.a, pushed.u), compression ? -30.0 : 30.0, 1e-9);
        EXPECT_GT(std::min(Dot(arrow.a, pushed.u), Dot(arrow.b, pushed.u)), all.joint.Farthest(pushed.u) + bolt_radius);
        EXPECT_NEAR(std::fabs(Dot(all.force.letter_at, pushed.m) - pushed.Axis()), letter_height / 2.0 + 5.0, 1e-9);
    });
}

TEST(Composition, the_force_gives_way_to_the_dimensions) {
    For_all([](int row, bool compression) {
        const Composition all = Compose(row, compression, unit, usual);
        for (const Chain& chain : all.chains) {
            for (const Dimension& dimension : chain.dimensions) {
                EXPECT_FALSE(dimension.label_room.Touches(all.force.letter_room)) << dimension.label;
            }
        }
    });
}

TEST(Composition, the_bounds_hold_all_that_is_to_be_read) {
    For_all([](int row, bool compression) {
        const Composition all = Compose(row, compression, unit, usual);
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
        EXPECT_TRUE(held(all.force.arrow.a) && held(all.force.arrow.b) && held(all.force.letter_at));
        for (const Point& fastener : all.joint.fasteners) {
            EXPECT_TRUE(held(fastener));
        }
    });
}

} // namespace
} // namespace tarnvik
