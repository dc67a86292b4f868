// What is taken of a sketch. A beam on a column with one fastener at the origin, in compression at 10 pixels: the beam
// from x = -22 with edges at y = 17 (loaded) and -10, the column below y = 17 with edges at x = -10 and 10.
#include "spacing/sketch/Clearness.h"

#include <gtest/gtest.h>

namespace tarnvik {
namespace {

const Joint joint = Make_joint('4', {1, 1}, true, 10.0);

// A label of 12.4 by 8.4.
Rect Label(double x, double y) {
    return Around(Point{x, y}, Size_of("a1", false));
}

TEST(Clearness, a_label_keeps_off_edges_by_a_pixel_from_their_rims) {
    const Occupied occupied{joint};
    // Above the loaded edge, 2.4 wide, and below the other one, 1.2 wide.
    EXPECT_TRUE(occupied.Takes_label(Label(100.0, 17.0 + 1.2 + 1.0 + 4.3)));
    EXPECT_FALSE(occupied.Takes_label(Label(100.0, 17.0 + 1.2 + 1.0 + 4.1)));
    EXPECT_TRUE(occupied.Takes_label(Label(100.0, -10.0 - 0.6 - 1.0 - 4.3)));
    EXPECT_FALSE(occupied.Takes_label(Label(100.0, -10.0 - 0.6 - 1.0 - 4.1)));
    EXPECT_FALSE(occupied.Takes_label(Label(-22.0, 3.0))); // on the end of the beam
    EXPECT_FALSE(occupied.Takes_label(Label(10.0, -40.0)));
}

TEST(Clearness, a_label_keeps_off_fasteners_labels_and_lines) {
    Occupied occupied{joint};
    EXPECT_FALSE(occupied.Takes_label(Label(0.0, 9.5))); // 2 from the rim of the fastener: 3.4 + 2 + 4.2
    EXPECT_TRUE(occupied.Takes_label(Label(0.0, 9.7)));
    occupied.Add_label(Label(100.0, 80.0));
    EXPECT_FALSE(occupied.Takes_label(Label(100.0 + 12.4 + 3.5, 80.0)));
    EXPECT_TRUE(occupied.Takes_label(Label(100.0 + 12.4 + 3.7, 80.0)));
    EXPECT_FALSE(occupied.Takes_label(Label(100.0, 80.0 + 8.4 + 0.9)));
    EXPECT_TRUE(occupied.Takes_label(Label(100.0, 80.0 + 8.4 + 1.1)));
    for (const bool extension : {false, true}) {
        Occupied lined{joint};
        const Segment line{{80.0, 100.0}, {120.0, 100.0}};
        extension ? lined.Add_extension(line) : lined.Add_line(line);
        EXPECT_FALSE(lined.Takes_label(Label(100.0, 100.0 + 4.2 + 1.1)));
        EXPECT_TRUE(lined.Takes_label(Label(100.0, 100.0 + 4.2 + 1.3)));
    }
}

TEST(Clearness, a_dimension_line_keeps_off_others_fasteners_and_labels_but_may_cross_edges) {
    Occupied occupied{joint};
    EXPECT_TRUE(occupied.Takes_line({{50.0, -50.0}, {50.0, 50.0}})); // across both edges of the beam
    EXPECT_FALSE(occupied.Takes_line({{-20.0, 7.3}, {20.0, 7.3}}));  // the fastener has a radius of 3.4
    EXPECT_TRUE(occupied.Takes_line({{-20.0, 7.5}, {20.0, 7.5}}));
    occupied.Add_line({{80.0, 100.0}, {120.0, 100.0}});
    EXPECT_FALSE(occupied.Takes_line({{80.0, 105.9}, {120.0, 105.9}}));
    EXPECT_TRUE(occupied.Takes_line({{80.0, 106.1}, {120.0, 106.1}}));
    occupied.Add_extension({{200.0, 0.0}, {200.0, 100.0}});
    EXPECT_FALSE(occupied.Takes_line({{180.0, 50.0}, {220.0, 50.0}}));
    occupied.Add_label(Label(300.0, 80.0));
    EXPECT_FALSE(occupied.Takes_line({{280.0, 80.0}, {320.0, 80.0}}));
}

TEST(Clearness, an_extension_passes_foreign_fasteners_by_three_radii_and_crosses_no_dimension) {
    Occupied occupied{joint};
    EXPECT_TRUE(occupied.Takes_extension({{4.4, 0.0}, {60.0, 0.0}})); // of this fastener
    EXPECT_FALSE(occupied.Takes_extension({{-40.0, 10.1}, {60.0, 10.1}}));
    EXPECT_TRUE(occupied.Takes_extension({{-40.0, 10.3}, {60.0, 10.3}}));
    occupied.Add_line({{50.0, -20.0}, {50.0, 20.0}});
    EXPECT_FALSE(occupied.Takes_extension({{4.4, 0.0}, {60.0, 0.0}}));
    EXPECT_FALSE(occupied.Takes_extension({{4.4, 0.0}, {48.1, 0.0}}));
    EXPECT_TRUE(occupied.Takes_extension({{4.4, 0.0}, {47.9, 0.0}}));
    occupied.Add_label(Label(100.0, 100.0));
    EXPECT_FALSE(occupied.Takes_extension({{100.0, 60.0}, {100.0, 140.0}}));
}

TEST(Clearness, the_grain_keeps_off_everything) {
    Occupied occupied{joint};
    const double room = 6.0;
    EXPECT_TRUE(occupied.Takes_sign({{60.0, 3.5}, {80.0, 3.5}}, room)); // in the middle of the beam
    EXPECT_FALSE(occupied.Takes_sign({{60.0, 11.5}, {80.0, 11.5}}, room));
    EXPECT_FALSE(occupied.Takes_sign({{-10.0, 9.0}, {4.0, 9.0}}, room)); // on the fastener
    occupied.Add_label(Label(70.0, 3.5));
    EXPECT_FALSE(occupied.Takes_sign({{60.0, 3.5}, {80.0, 3.5}}, room));
}

TEST(Clearness, edges_follow_the_torn_ends) {
    Joint torn = joint;
    Occupied occupied{torn};
    EXPECT_FALSE(occupied.Takes_label(Label(100.0, 17.0)));
    torn.members[0].far_u = 60.0;
    occupied.Set_edges(torn);
    EXPECT_TRUE(occupied.Takes_label(Label(100.0, 17.0)));
    EXPECT_FALSE(occupied.Takes_label(Label(60.0, 3.5))); // on the torn end
}

} // namespace
} // namespace tarnvik
