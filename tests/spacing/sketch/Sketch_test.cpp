// The sketches: every label stands where its distance is, measured the right way, from the right edge.
#include "spacing/sketch/Sketch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "calc/Arithmetic.h"
#include "spacing/Catalogue.h"
#include "spacing/Rules.h"

namespace tarnvik {
namespace {

struct Room {
    const char* name;
    double width, height; // pixels at 96 dpi
};

// What the window leaves of the sketch area beside the table, and 65 by 67.6 mm on paper.
constexpr Room rooms[] = {
    {"window", 264.0, 165.0},
    {"paper ", 245.7, 255.5},
};

// Labels that the record of a case lists although the joint has no such distance: a value or a text that its rules
// write to the neighbour. The sketch shows the joint.
bool Moved(std::string_view Case_code, std::string_view label) {
    return (Case_code == "2.1. " && label == "b4") || (Case_code == "4.3.b" && label == "b4") ||
           (Case_code == "5.3.b" && label == "b4") || (Case_code == "5.1. " && label == "b5");
}

ConnectionValues Spaced(int case_row, bool compression, float alp) {
    ConnectionValues s;
    s.d = 20.0F;
    s.alp = alp;
    s.P = compression ? 10.0F : -10.0F;
    Calc_spacing(s, case_row);
    return s;
}

template <class Check> void For_all(Check check) {
    for (int row = 0; row < case_count; ++row) {
        for (const bool compression : {false, true}) {
            for (const Room& room : rooms) {
                SCOPED_TRACE(std::string{case_table[static_cast<std::size_t>(row)].Case_code} +
                             (compression ? " compression " : " tension ") + room.name);
                check(row, compression, room);
            }
        }
    }
}

TEST(Sketch, every_fastener_of_the_case_is_drawn) {
    For_all([](int row, bool compression, const Room& room) {
        const Sketch sketch = Draw_sketch(row, compression, room.width, room.height);
        EXPECT_EQ(static_cast<int>(sketch.fasteners.size()), case_table[static_cast<std::size_t>(row)].n_bolt);
    });
}

TEST(Sketch, the_labels_are_those_of_the_distances_that_the_case_lists) {
    For_all([](int row, bool compression, const Room& room) {
        const std::string_view code = case_table[static_cast<std::size_t>(row)].Case_code;
        const ConnectionValues s = Spaced(row, compression, 27.0F);
        std::vector<std::string> listed;
        for (int i = 0; i < distance_count; ++i) {
            const std::string_view label = s.*Fields_of(static_cast<Distance>(i)).lbl;
            if (!label.empty() && !Moved(code, label)) {
                listed.emplace_back(label);
            }
        }
        std::vector<std::string> drawn;
        for (const SketchedDistance& distance : Draw_sketch(row, compression, room.width, room.height).distances) {
            drawn.emplace_back(distance.label);
        }
        std::sort(drawn.begin(), drawn.end());
        EXPECT_EQ(drawn, listed);
    });
}

TEST(Sketch, the_distances_of_a_sum_lie_across_the_member_and_the_others_along_it) {
    For_all([](int row, bool compression, const Room& room) {
        for (const SketchedDistance& distance : Draw_sketch(row, compression, room.width, room.height).distances) {
            const int number = distance.label[1] - '0';
            const int in_sum = distance.label[0] == 'a' ? Sum_length_a(row) : Sum_length_b(row);
            EXPECT_EQ(distance.across, number <= in_sum) << distance.label;
        }
    });
}

TEST(Sketch, the_first_edge_is_the_upper_one_or_the_left_one_of_an_upright_member) {
    For_all([](int row, bool compression, const Room& room) {
        // Three cases count across their beam from its lower edge.
        const std::string_view code = case_table[static_cast<std::size_t>(row)].Case_code;
        const bool from_below = code == "5.2.b" || code == "5.3.b" || code == "5.6.b";
        for (const SketchedDistance& distance : Draw_sketch(row, compression, room.width, room.height).distances) {
            if (!distance.across) {
                continue;
            }
            // From the first edge to the other one, y downward.
            const Point d = distance.to - distance.from;
            if (from_below && distance.label[0] == 'a') {
                EXPECT_LT(d.y, -1.0) << distance.label;
            } else {
                EXPECT_TRUE(d.y > 1.0 || (std::fabs(d.y) < 1e-6 && d.x > 1.0)) << distance.label;
            }
        }
    });
}

TEST(Sketch, dimension_lines_across_a_member_end_on_its_lines_of_fasteners) {
    For_all([](int row, bool compression, const Room& room) {
        const Sketch sketch = Draw_sketch(row, compression, room.width, room.height);
        for (const SketchedDistance& distance : sketch.distances) {
            const Point d = distance.to - distance.from;
            const double length = std::hypot(d.x, d.y);
            // How far each fastener lies from the end of the dimension, along the dimension.
            const auto on_line = [&](Point end) {
                return std::any_of(sketch.fasteners.begin(), sketch.fasteners.end(), [&](Point fastener) {
                    return std::fabs(Dot(fastener - end, (1.0 / length) * d)) < 1e-6;
                });
            };
            const int number = distance.label[1] - '0';
            const int in_sum = distance.label[0] == 'a' ? Sum_length_a(row) : Sum_length_b(row);
            if (distance.across) {
                EXPECT_EQ(on_line(distance.from), number > 1) << distance.label;
                EXPECT_EQ(on_line(distance.to), number < in_sum) << distance.label;
            } else {
                EXPECT_TRUE(on_line(distance.from)) << distance.label;
            }
        }
    });
}

TEST(Sketch, the_edge_and_the_end_that_the_force_loads_are_those_with_the_larger_rule) {
    // At 60 degrees the loaded edge of types 1 to 3 asks for (2 + 2 sin 60) d = 3.73 d against 3 d, that of types 4 and
    // 5 for 4 d against 3 d; a loaded end for 7 d against 4 d or less (at 60 degrees up to 6.2 d).
    For_all([](int row, bool compression, const Room& room) {
        const ConnectionValues s = Spaced(row, compression, 60.0F);
        for (const SketchedDistance& distance : Draw_sketch(row, compression, room.width, room.height).distances) {
            const int number = distance.label[1] - '0';
            const int family = distance.label[0] == 'a' ? 0 : 6;
            const int in_sum = family == 0 ? Sum_length_a(row) : Sum_length_b(row);
            const float value = s.*Fields_of(static_cast<Distance>(family + number - 1)).S;
            if (distance.across && (number == 1 || number == in_sum)) {
                EXPECT_EQ(distance.loaded, value > 3.0F * s.d) << distance.label << " " << value;
            } else if (!distance.across) {
                EXPECT_EQ(distance.loaded, value >= 7.0F * s.d) << distance.label << " " << value;
            } else {
                EXPECT_FALSE(distance.loaded) << distance.label;
            }
        }
    });
}

TEST(Sketch, everything_to_be_read_fits_and_no_label_touches_another) {
    For_all([](int row, bool compression, const Room& room) {
        const Sketch sketch = Draw_sketch(row, compression, room.width, room.height);
        EXPECT_TRUE(sketch.fits);
        EXPECT_GE(sketch.unit, 9.0);
        std::vector<TextShape> texts;
        for (const auto& shape : sketch.drawing.shapes) {
            if (const auto* text = std::get_if<TextShape>(&shape)) {
                texts.push_back(*text);
            }
        }
        for (std::size_t i = 0; i < texts.size(); ++i) {
            const TextSize size = Size_of(texts[i]);
            EXPECT_GE(texts[i].centre.x - size.width / 2.0, 0.0) << texts[i].text;
            EXPECT_GE(texts[i].centre.y - size.height / 2.0, 0.0) << texts[i].text;
            EXPECT_LE(texts[i].centre.x + size.width / 2.0, room.width) << texts[i].text;
            EXPECT_LE(texts[i].centre.y + size.height / 2.0, room.height) << texts[i].text;
            for (std::size_t j = i + 1; j < texts.size(); ++j) {
                const TextSize other = Size_of(texts[j]);
                const bool apart =
                    std::fabs(texts[i].centre.x - texts[j].centre.x) >= (size.width + other.width) / 2.0 ||
                    std::fabs(texts[i].centre.y - texts[j].centre.y) >= (size.height + other.height) / 2.0;
                EXPECT_TRUE(apart) << texts[i].text << " " << texts[j].text;
            }
            for (const Point& fastener : sketch.fasteners) {
                const bool clear = std::fabs(texts[i].centre.x - fastener.x) >= size.width / 2.0 + 3.0 ||
                                   std::fabs(texts[i].centre.y - fastener.y) >= size.height / 2.0 + 3.0;
                EXPECT_TRUE(clear) << texts[i].text;
            }
        }
    });
}

TEST(Sketch, tension_and_compression_differ_by_the_force) {
    for (int row = 0; row < case_count; ++row) {
        for (const Room& room : rooms) {
            // The arrow's head: the last closed black polygon of the drawing.
            const auto head = [&](bool compression) {
                const Sketch sketch = Draw_sketch(row, compression, room.width, room.height);
                Point tip;
                Point joint;
                for (const auto& shape : sketch.drawing.shapes) {
                    if (const auto* polygon = std::get_if<PolygonShape>(&shape);
                        polygon != nullptr && polygon->closed && polygon->fill == Tone::black) {
                        tip = polygon->corners[0] - 0.5 * (polygon->corners[1] + polygon->corners[2]);
                        joint = sketch.fasteners.front() - polygon->corners[0];
                    }
                }
                return Dot(tip, joint); // above zero where the arrow points at the joint
            };
            EXPECT_GT(head(true), 0.0) << case_table[static_cast<std::size_t>(row)].Case_code;
            EXPECT_LT(head(false), 0.0) << case_table[static_cast<std::size_t>(row)].Case_code;
        }
    }
}

} // namespace
} // namespace tarnvik
