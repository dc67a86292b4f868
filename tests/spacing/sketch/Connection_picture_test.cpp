#include "spacing/sketch/Connection_picture.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarnvik {
namespace {

TEST(Connection_picture, every_connection_code_has_a_picture_that_tells_its_variant) {
    const auto planks = [](const Drawing& drawing) {
        int count = 0;
        for (const auto& shape : drawing.shapes) {
            const auto* polygon = std::get_if<PolygonShape>(&shape);
            count += polygon != nullptr && polygon->closed && polygon->pen == Pen::outline ? 1 : 0;
        }
        return count;
    };
    for (const char type : {'1', '2', '3', '4', '5'}) {
        for (const char variant : {'1', '2', '3'}) {
            const std::string code{type, '.', variant};
            const auto drawing = Draw_connection(code, 239.0, 174.0);
            ASSERT_TRUE(drawing) << code;
            EXPECT_EQ(planks(*drawing), variant == '1' ? 2 : 3) << code; // members in the section
        }
    }
    for (const char* code : {"", "1.4", "0.1", "6.1", "1,1", "11"}) {
        EXPECT_FALSE(Draw_connection(code, 239.0, 174.0)) << code;
    }
}

TEST(Connection_picture, every_type_has_a_button_picture) {
    for (int type = 1; type <= 5; ++type) {
        EXPECT_GT(Draw_type(type, 76.0, 37.0).shapes.size(), 5U) << type;
    }
    EXPECT_TRUE(Draw_type(0, 76.0, 37.0).shapes.empty());
    EXPECT_TRUE(Draw_type(6, 76.0, 37.0).shapes.empty());
}

TEST(Connection_picture, the_doubled_member_lies_before_the_other_one) {
    // The wood that is painted last lies in front.
    const auto in_front = [](const char* code) {
        Tone last = Tone::none;
        const auto drawing = Draw_connection(code, 239.0, 174.0);
        for (const auto& shape : drawing->shapes) {
            const auto* polygon = std::get_if<PolygonShape>(&shape);
            if (polygon != nullptr && polygon->closed && polygon->pen == Pen::none && polygon->fill != Tone::black) {
                last = polygon->fill;
            }
        }
        return last;
    };
    for (const char type : {'1', '2', '3', '4', '5'}) {
        const std::string code{type, '.'};
        EXPECT_EQ(in_front((code + '1').c_str()), Tone::wood_2) << type;
        EXPECT_EQ(in_front((code + '2').c_str()), Tone::wood_1) << type;
        EXPECT_EQ(in_front((code + '3').c_str()), Tone::wood_2) << type;
    }
}

TEST(Connection_picture, the_members_are_numbered_in_the_elevation_and_in_the_section) {
    const auto numbers = [](const Drawing& drawing) {
        std::string all;
        for (const auto& shape : drawing.shapes) {
            if (const auto* text = std::get_if<TextShape>(&shape)) {
                all += text->text;
            }
        }
        return all;
    };
    EXPECT_EQ(numbers(*Draw_connection("1.1", 239.0, 174.0)), "1212");
    EXPECT_EQ(numbers(*Draw_connection("4.2", 239.0, 174.0)), "12121");
    EXPECT_EQ(numbers(*Draw_connection("5.3", 239.0, 174.0)), "12212");
    EXPECT_EQ(numbers(Draw_type(3, 76.0, 37.0)), ""); // a button has no room for them
}

TEST(Connection_picture, nothing_leaves_the_picture) {
    constexpr double width = 239.0;
    constexpr double height = 174.0;
    for (const char* code : {"1.1", "2.2", "3.3", "4.1", "5.2"}) {
        const auto drawing = Draw_connection(code, width, height);
        for (const auto& shape : drawing->shapes) {
            std::vector<Point> points;
            if (const auto* polygon = std::get_if<PolygonShape>(&shape)) {
                points = polygon->corners;
            } else if (const auto* circle = std::get_if<CircleShape>(&shape)) {
                points = {circle->centre};
            } else {
                points = {std::get<TextShape>(shape).centre};
            }
            for (const Point& p : points) {
                EXPECT_GE(p.x, -1e-9) << code;
                EXPECT_LE(p.x, width + 1e-9) << code;
                EXPECT_GE(p.y, -1e-9) << code;
                EXPECT_LE(p.y, height + 1e-9) << code;
            }
        }
    }
}

} // namespace
} // namespace tarnvik
