#include "spacing/sketch/Clearness.h"

#include <gtest/gtest.h>

namespace tarnvik {
namespace {

// One dimension with its label and no extension.
Chain Lone(const Segment& line, Point label_at) {
    Chain chain;
    chain.dimensions.push_back({"a1", line, label_at, Around(label_at, Size_of("a1", false)), false});
    return chain;
}

// A beam on a column with one fastener, its force and these chains well away from both.
Composition With(std::vector<Chain> chains) {
    Composition all{Make_joint('4', {1, 1}, true, 10.0), std::move(chains), {}, {}};
    all.force.arrow = {{0.0, -300.0}, {0.0, -270.0}};
    all.force.letter_at = {15.0, -285.0};
    all.force.letter_room = Around(all.force.letter_at, Size_of(force_letter, true));
    return all;
}

const Chain high = Lone({{100.0, 100.0}, {140.0, 100.0}}, {120.0, 110.0});
const Chain higher = Lone({{100.0, 140.0}, {140.0, 140.0}}, {120.0, 150.0});

TEST(Clearness, what_stands_apart_is_clear_and_without_flaws) {
    const Composition all = With({high, higher});
    EXPECT_TRUE(Stands_clear(all));
    EXPECT_EQ(Flaws(all), 0.0);
}

TEST(Clearness, dimension_lines_keep_5_pixels_from_each_other_and_from_the_force) {
    const auto at = [](double y) { return Lone({{150.0, y}, {190.0, y}}, {170.0, y + 30.0}); };
    const Chain line = Lone({{150.0, 100.0}, {190.0, 100.0}}, {170.0, 80.0});
    EXPECT_FALSE(Stands_clear(With({line, at(104.9)})));
    EXPECT_TRUE(Stands_clear(With({line, at(105.1)})));
    Composition all = With({line});
    all.force.arrow = {{170.0, 104.0}, {170.0, 134.0}};
    EXPECT_FALSE(Stands_clear(all));
}

TEST(Clearness, dimension_lines_keep_off_the_fasteners) {
    // The fastener at the origin has a radius of 3.4.
    EXPECT_FALSE(Stands_clear(With({Lone({{-20.0, 7.3}, {20.0, 7.3}}, {0.0, 40.0})})));
    EXPECT_TRUE(Stands_clear(With({Lone({{-20.0, 7.5}, {20.0, 7.5}}, {0.0, 40.0})})));
}

TEST(Clearness, labels_keep_off_each_other_the_fasteners_and_the_lines) {
    const Segment far_off{{200.0, 200.0}, {240.0, 200.0}};
    const auto beside = [&](double gap) { // of the label of `high`, 12.4 wide
        return With({high, Lone(far_off, {120.0 + 12.4 + gap, 110.0})});
    };
    EXPECT_FALSE(Stands_clear(beside(1.5)));
    EXPECT_TRUE(Stands_clear(beside(1.7)));
    EXPECT_FALSE(Stands_clear(With({Lone(far_off, {0.0, 9.5})}))); // over the fastener
    EXPECT_TRUE(Stands_clear(With({Lone(far_off, {0.0, 9.8})})));
    EXPECT_FALSE(Stands_clear(With({high, Lone(far_off, {120.0, 95.0})}))); // on the line of `high`
}

TEST(Clearness, a_label_keeps_off_every_extension) {
    Chain crossed = higher;
    crossed.extensions.push_back({{126.0, 90.0}, {126.0, 143.0}}); // through the label of `high`
    EXPECT_FALSE(Stands_clear(With({high, crossed})));
    crossed.extensions = {{{127.0, 90.0}, {127.0, 143.0}}}; // just beside it
    EXPECT_TRUE(Stands_clear(With({high, crossed})));
}

TEST(Clearness, an_extension_across_a_foreign_dimension_and_near_its_label_is_a_flaw) {
    Chain crossing = higher;
    crossing.extensions.push_back({{135.0, 90.0}, {135.0, 143.0}});
    EXPECT_DOUBLE_EQ(Flaws(With({high, crossing})), 0.08);
    crossing.extensions = {{{127.0, 90.0}, {127.0, 143.0}}};
    EXPECT_DOUBLE_EQ(Flaws(With({high, crossing})), 0.08 + 0.05);
    // Across its own dimension it is none.
    Chain own = high;
    own.extensions.push_back({{135.0, 90.0}, {135.0, 103.0}});
    EXPECT_EQ(Flaws(With({own, higher})), 0.0);
}

TEST(Clearness, labels_close_together_count_once) {
    const Chain near = Lone({{200.0, 200.0}, {240.0, 200.0}}, {120.0 + 12.4 + 3.0, 110.0});
    EXPECT_DOUBLE_EQ(Flaws(With({high, near})), 0.04);
    EXPECT_DOUBLE_EQ(Flaws(With({near, high})), 0.04);
}

TEST(Clearness, an_extension_across_the_force_is_a_flaw) {
    Chain chain = high;
    chain.extensions.push_back({{-20.0, -280.0}, {20.0, -280.0}});
    EXPECT_DOUBLE_EQ(Flaws(With({chain})), 0.10);
}

TEST(Clearness, a_label_on_an_edge_of_a_member_is_a_flaw) {
    // The beam's upper edge at y = 14, its end at x = -19 from there down to -10.
    const Segment far_off{{200.0, 200.0}, {240.0, 200.0}};
    EXPECT_DOUBLE_EQ(Flaws(With({Lone(far_off, {80.0, 14.0})})), 0.015);
    EXPECT_DOUBLE_EQ(Flaws(With({Lone(far_off, {-19.0, 2.0})})), 0.015);
    EXPECT_DOUBLE_EQ(Flaws(With({Lone(far_off, {-19.0, 14.0})})), 0.03); // at the corner
    EXPECT_EQ(Flaws(With({Lone(far_off, {80.0, 30.0})})), 0.0);
}

} // namespace
} // namespace tarnvik
