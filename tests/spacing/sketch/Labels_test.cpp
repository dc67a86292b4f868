// Labels of a chain of two dimensions of so many pixels along the x axis, labels above it.
#include "spacing/sketch/Labels.h"

#include <gtest/gtest.h>

namespace tarnvik {
namespace {

// Far from everything that is looked at here.
Joint Far_joint() {
    Joint joint = Make_joint('4', {1, 1}, true, 10.0);
    for (Member& member : joint.members) {
        member.far_u = member.near_u + 30.0;
    }
    return joint;
}
const Joint joint = Far_joint();

Chain Level(double x, double y, double length, int count) {
    Chain chain;
    chain.outward = {0.0, 1.0};
    for (int i = 0; i < count; ++i) {
        const Segment line{{x + i * length, y}, {x + (i + 1) * length, y}};
        const Point at = 0.5 * (line.a + line.b) + Point{0.0, 7.2};
        chain.dimensions.push_back({"a1", line, at, Around(at, Size_of("a1", false)), false});
        chain.extensions.push_back({{x + i * length, y - 20.0}, {x + i * length, y + 2.0}});
    }
    chain.extensions.push_back({{x + count * length, y - 20.0}, {x + count * length, y + 2.0}});
    return chain;
}

TEST(Labels, stand_beside_the_middle_on_the_outer_side) {
    Chain chain = Level(200.0, 200.0, 30.0, 2);
    ASSERT_TRUE(Fit(chain, Occupied{joint}, false));
    EXPECT_NEAR(chain.dimensions[0].label_at.x, 215.0, 1e-9);
    EXPECT_NEAR(chain.dimensions[1].label_at.x, 245.0, 1e-9);
    EXPECT_NEAR(chain.dimensions[0].label_at.y, 200.0 + 3.0 + 4.2, 1e-9); // the gap and half a letter
}

TEST(Labels, stand_on_the_inner_side_where_the_outer_one_is_taken) {
    Chain chain = Level(200.0, 200.0, 30.0, 2);
    Occupied occupied{joint};
    occupied.Add_label({200.0, 204.0, 260.0, 212.0});
    ASSERT_TRUE(Fit(chain, occupied, false));
    EXPECT_NEAR(chain.dimensions[0].label_at.y, 200.0 - 7.2, 1e-9);
    EXPECT_NEAR(chain.dimensions[1].label_at.y, 200.0 - 7.2, 1e-9);
}

TEST(Labels, give_way_along_their_dimension_as_little_as_they_need) {
    Chain chain = Level(200.0, 200.0, 40.0, 1);
    Occupied occupied{joint};
    occupied.Add_label({225.0, 204.0, 300.0, 212.0}); // the label ends at 226.2 in the middle
    ASSERT_TRUE(Fit(chain, occupied, false));
    EXPECT_LE(chain.dimensions[0].label_at.x + 6.2, 225.0 - 3.6 + 1e-9);
    EXPECT_GT(chain.dimensions[0].label_at.x + 6.2, 225.0 - 3.6 - 0.6);
}

TEST(Labels, outermost_ones_stand_past_the_ends_where_they_may) {
    // 9 pixels are less than a label and the gap to the next one.
    for (const bool past_ends : {false, true}) {
        Chain chain = Level(200.0, 200.0, 9.0, 3);
        Occupied occupied{joint};
        EXPECT_EQ(Fit(chain, occupied, past_ends), past_ends);
    }
    Chain chain = Level(200.0, 200.0, 9.0, 3);
    ASSERT_TRUE(Fit(chain, Occupied{joint}, true));
    for (std::size_t i = 1; i < 3; ++i) {
        EXPECT_GE(chain.dimensions[i].label_at.x - chain.dimensions[i - 1].label_at.x, 12.4 + 3.6 - 1e-9);
    }
}

TEST(Labels, a_chain_that_finds_no_room_is_as_it_was) {
    Chain chain = Level(200.0, 200.0, 30.0, 2);
    const Point before = chain.dimensions[0].label_at;
    Occupied occupied{joint};
    occupied.Add_line({{190.0, 203.0}, {280.0, 203.0}}); // too close to the dimension line
    EXPECT_FALSE(Fit(chain, occupied, true));
    EXPECT_EQ(chain.dimensions[0].label_at.x, before.x);
    EXPECT_EQ(chain.dimensions[0].label_at.y, before.y);
}

TEST(Labels, a_chain_that_is_added_takes_its_room) {
    Occupied occupied{joint};
    Chain chain = Level(200.0, 200.0, 30.0, 2);
    ASSERT_TRUE(Fit(chain, occupied, false));
    Add(occupied, chain);
    EXPECT_FALSE(occupied.Takes_label(chain.dimensions[0].label_room));
    EXPECT_FALSE(occupied.Takes_line(chain.dimensions[1].line));
    EXPECT_FALSE(occupied.Takes_label(Around(Point{200.0, 190.0}, Size_of("a1", false)))); // on an extension
}

} // namespace
} // namespace tarnvik
