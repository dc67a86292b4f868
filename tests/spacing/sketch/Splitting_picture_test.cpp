// The figure of the splitting check, in the hand of the sketches.
#include "spacing/sketch/Splitting_picture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "spacing/sketch/Joint.h"

namespace tarnvik {
namespace {

constexpr double width = 258.0;
constexpr double height = 150.0;

template <class Shape> std::vector<Shape> All(const Drawing& drawing) {
    std::vector<Shape> found;
    for (const auto& shape : drawing.shapes) {
        if (const auto* one = std::get_if<Shape>(&shape)) {
            found.push_back(*one);
        }
    }
    return found;
}

std::vector<PolygonShape> With_pen(const Drawing& drawing, Pen pen) {
    std::vector<PolygonShape> found = All<PolygonShape>(drawing);
    found.erase(std::remove_if(found.begin(), found.end(), [pen](const PolygonShape& one) { return one.pen != pen; }),
                found.end());
    return found;
}

TEST(Splitting_picture, names_what_the_check_measures) {
    std::vector<std::string> texts;
    for (const TextShape& text : All<TextShape>(Draw_splitting(width, height))) {
        texts.push_back(text.text);
    }
    std::sort(texts.begin(), texts.end());
    EXPECT_EQ(texts, (std::vector<std::string>{"F90", "a", "h", "he"}));
}

TEST(Splitting_picture, he_goes_from_the_farthest_bolt_to_the_loaded_edge_and_a_is_the_rest) {
    const Drawing drawing = Draw_splitting(width, height);
    const auto edges = With_pen(drawing, Pen::outline);
    const auto loaded = With_pen(drawing, Pen::loaded);
    ASSERT_EQ(edges.size(), 1U);
    ASSERT_EQ(loaded.size(), 1U); // told apart by its width
    const double unloaded_y = edges[0].corners[0].y;
    const double loaded_y = loaded[0].corners[0].y;
    std::vector<CircleShape> bolts = All<CircleShape>(drawing);
    bolts.erase(std::remove_if(bolts.begin(), bolts.end(), [](const CircleShape& one) { return one.pen != Pen::bolt; }),
                bolts.end());
    ASSERT_EQ(bolts.size(), 2U);
    EXPECT_EQ(bolts[0].radius, bolt_radius);
    const double farthest = std::min(bolts[0].centre.y, bolts[1].centre.y); // y is downward, the loaded edge below
    EXPECT_LT(unloaded_y, farthest);
    EXPECT_GT(loaded_y, farthest);

    const auto dimensions = With_pen(drawing, Pen::dimension);
    ASSERT_EQ(dimensions.size(), 3U);
    const auto has = [&](double from, double to) {
        return std::any_of(dimensions.begin(), dimensions.end(), [&](const PolygonShape& line) {
            return std::abs(line.corners[0].y - from) < 1e-9 && std::abs(line.corners[1].y - to) < 1e-9;
        });
    };
    EXPECT_TRUE(has(unloaded_y, loaded_y)); // h
    EXPECT_TRUE(has(unloaded_y, farthest)); // a
    EXPECT_TRUE(has(farthest, loaded_y));   // he
}

TEST(Splitting_picture, both_ends_are_torn_and_the_force_pulls_past_the_loaded_edge) {
    const Drawing drawing = Draw_splitting(width, height);
    EXPECT_EQ(With_pen(drawing, Pen::torn).size(), 2U);
    const auto force = With_pen(drawing, Pen::force);
    ASSERT_EQ(force.size(), 1U);
    EXPECT_GT(force[0].corners[1].y, With_pen(drawing, Pen::loaded)[0].corners[0].y);
}

TEST(Splitting_picture, nothing_leaves_the_picture) {
    for (const double scale : {0.8, 1.0, 1.5}) {
        const Drawing drawing = Draw_splitting(scale * width, scale * height);
        for (const PolygonShape& polygon : All<PolygonShape>(drawing)) {
            for (const Point& corner : polygon.corners) {
                EXPECT_TRUE(corner.x >= 0.0 && corner.x <= scale * width) << corner.x;
                EXPECT_TRUE(corner.y >= 0.0 && corner.y <= scale * height) << corner.y;
            }
        }
        for (const TextShape& text : All<TextShape>(drawing)) {
            const TextSize size = Size_of(text);
            EXPECT_TRUE(text.centre.x >= size.width / 2.0 && text.centre.x <= scale * width - size.width / 2.0);
            EXPECT_LE(text.centre.y, scale * height - size.height / 2.0);
        }
    }
}

} // namespace
} // namespace tarnvik
