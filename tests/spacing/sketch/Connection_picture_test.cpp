#include "spacing/sketch/Connection_picture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
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

std::vector<TextShape> Texts(const Drawing& drawing) {
    std::vector<TextShape> texts;
    for (const auto& shape : drawing.shapes) {
        if (const auto* text = std::get_if<TextShape>(&shape)) {
            texts.push_back(*text);
        }
    }
    return texts;
}

std::string Words(const Drawing& drawing) {
    std::string all;
    for (const TextShape& text : Texts(drawing)) {
        all += text.text + ";";
    }
    return all;
}

TEST(Connection_picture, the_members_are_numbered_in_the_elevation_and_in_the_section) {
    EXPECT_EQ(Words(*Draw_connection("1.1", 239.0, 174.0)), "1;2;1;2;");
    EXPECT_EQ(Words(*Draw_connection("4.2", 239.0, 174.0)), "1;2;1;2;1;");
    EXPECT_EQ(Words(*Draw_connection("5.3", 239.0, 174.0)), "1;2;2;1;2;");
    EXPECT_EQ(Words(Draw_type(3, 76.0, 37.0)), ""); // a button has no room for them
}

TEST(Connection_picture, the_members_have_the_names_of_the_window_where_there_is_room) {
    const struct {
        const char *code, *english, *norwegian;
    } rows[] = {
        {"1.1", "1 Top chord;2 Bottom chord;1;2;", "1 Overgurt;2 Undergurt;1;2;"},
        {"2.2", "1 Beam;2 Column;1;2;1;", "1 Bjelke;2 S\u00f8yle;1;2;1;"},
        {"3.3", "1;2;2;1;2;", "1 Overgurt;2 Hanebjelke;2;1;2;"}, // no room for "Bottom chord"
        {"4.1", "1 Beam;2 Column;1;2;", "1 Bjelke;2 S\u00f8yle;1;2;"},
        {"5.1", "1 Beam;2 Column;1;2;", "1 Bjelke;2 S\u00f8yle;1;2;"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Words(*Draw_connection(row.code, 239.0, 174.0, MemberNames::english)), row.english);
        EXPECT_EQ(Words(*Draw_connection(row.code, 239.0, 174.0, MemberNames::norwegian)), row.norwegian);
    }
    // 30 mm have no room for them.
    EXPECT_EQ(Words(*Draw_connection("1.1", 113.4, 113.4, MemberNames::english)), "1;2;1;2;");
}

// In the window and on paper, 30 by 30 mm.
constexpr TextSize rooms[] = {{239.0, 174.0}, {113.4, 113.4}};

template <class Check> void For_all(Check check) {
    for (const TextSize& room : rooms) {
        for (const char type : {'1', '2', '3', '4', '5'}) {
            for (const char variant : {'1', '2', '3'}) {
                for (const MemberNames names : {MemberNames::numbers, MemberNames::english, MemberNames::norwegian}) {
                    const std::string code{type, '.', variant};
                    SCOPED_TRACE(code + " " + std::to_string(room.width));
                    check(*Draw_connection(code, room.width, room.height, names), room);
                }
            }
        }
    }
}

TEST(Connection_picture, bolts_stand_apart_and_are_large_enough_to_be_seen) {
    For_all([](const Drawing& drawing, TextSize /*room*/) {
        std::vector<CircleShape> bolts;
        for (const auto& shape : drawing.shapes) {
            if (const auto* circle = std::get_if<CircleShape>(&shape); circle != nullptr && circle->pen == Pen::bolt) {
                bolts.push_back(*circle);
            }
        }
        ASSERT_GE(bolts.size(), 2U);
        for (std::size_t i = 0; i < bolts.size(); ++i) {
            EXPECT_GE(bolts[i].radius, 1.8);
            for (std::size_t j = i + 1; j < bolts.size(); ++j) {
                const Point d = bolts[i].centre - bolts[j].centre;
                EXPECT_GE(std::sqrt(Dot(d, d)), 2.0 * bolts[i].radius + medium + 1.0) << "bolts touch";
            }
        }
    });
}

TEST(Connection_picture, texts_stand_apart_and_off_the_bolts) {
    For_all([](const Drawing& drawing, TextSize room) {
        const std::vector<TextShape> texts = Texts(drawing);
        for (std::size_t i = 0; i < texts.size(); ++i) {
            const TextSize size = Size_of(texts[i]);
            EXPECT_GE(texts[i].centre.x - size.width / 2.0, 0.0) << texts[i].text;
            EXPECT_LE(texts[i].centre.x + size.width / 2.0, room.width) << texts[i].text;
            EXPECT_GE(texts[i].centre.y - size.height / 2.0, 0.0) << texts[i].text;
            EXPECT_LE(texts[i].centre.y + size.height / 2.0, room.height) << texts[i].text;
            for (std::size_t j = i + 1; j < texts.size(); ++j) {
                const TextSize other = Size_of(texts[j]);
                const Point d = texts[i].centre - texts[j].centre;
                EXPECT_TRUE(std::abs(d.x) >= (size.width + other.width) / 2.0 + 2.0 ||
                            std::abs(d.y) >= (size.height + other.height) / 2.0 + 1.0)
                    << texts[i].text << " and " << texts[j].text << " run together";
            }
        }
    });
}

TEST(Connection_picture, washers_are_in_proportion_to_the_timber) {
    For_all([](const Drawing& drawing, TextSize /*room*/) {
        // In the section: boxes of wood with an outline, washers black.
        double timber = 0.0;
        double washer = 0.0;
        for (const auto& shape : drawing.shapes) {
            const auto* polygon = std::get_if<PolygonShape>(&shape);
            if (polygon != nullptr && polygon->closed && polygon->corners.size() == 4) {
                const double high = std::abs(polygon->corners[2].y - polygon->corners[0].y);
                timber = polygon->pen == Pen::outline ? high : timber;
                washer = polygon->fill == Tone::black ? high : washer;
            }
        }
        EXPECT_GT(washer, 0.1 * timber);
        EXPECT_LT(washer, 0.35 * timber) << "the washer dwarfs the timber";
    });
}

TEST(Connection_picture, no_corner_of_an_inclined_member_peeps_out) {
    // The wood of member 1 of a heel joint, and of the strut: what lies inside the other one does so with all corners.
    const auto drawing = Draw_connection("1.1", 239.0, 174.0);
    std::vector<PolygonShape> wood;
    for (const auto& shape : drawing->shapes) {
        const auto* polygon = std::get_if<PolygonShape>(&shape);
        if (polygon != nullptr && polygon->closed && polygon->corners.size() > 8) {
            wood.push_back(*polygon);
        }
    }
    ASSERT_EQ(wood.size(), 2U);
    const auto lowest = [](const PolygonShape& polygon) {
        double low = 0.0;
        for (const Point& corner : polygon.corners) {
            low = std::max(low, corner.y);
        }
        return low;
    };
    EXPECT_LT(lowest(wood[0]), lowest(wood[1]) - 2.0); // the top chord's end within the bottom chord
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
