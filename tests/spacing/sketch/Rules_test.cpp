// The rules of the drawings over all cases, for either sign of the force, in the window and on paper. Distances are
// measured here between what is drawn, pens included, in pixels.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "spacing/Catalogue.h"
#include "spacing/sketch/Choice.h"
#include "spacing/sketch/Sheet.h"
#include "spacing/sketch/Sketch.h"

namespace tarnvik {
namespace {

struct Room {
    const char* name;
    double width, height; // pixels at 96 dpi
};

// What the window leaves of the sketch area beside the table, and 65 by 67.6 mm on paper.
constexpr Room rooms[] = {{"window", 264.0, 165.0}, {"paper", 245.7, 255.5}};

// The ink of a text, letters of 11 pixels.
constexpr double capital_height = 7.9;
constexpr double small_height = 5.8;

struct Label {
    std::string text;
    Rect ink;
};

Rect Ink(Point centre, double width, double height) {
    return {centre.x - width / 2.0, centre.y - height / 2.0, centre.x + width / 2.0, centre.y + height / 2.0};
}

struct Edge {
    Segment line;
    double half_pen;
};

// A composition with what the rules ask of it.
struct Measured {
    const Composition& all;
    std::vector<Label> labels;
    std::vector<Edge> edges;

    explicit Measured(const Composition& of) : all(of) {
        for (const Chain& chain : all.chains) {
            for (const Dimension& dimension : chain.dimensions) {
                labels.push_back({std::string{dimension.label}, Ink(dimension.label_at, 12.3, capital_height)});
            }
        }
        labels.push_back({"P", Ink(all.force.letter_at, 7.4, capital_height)});
        if (all.angle) {
            labels.push_back({"alpha", Ink(all.angle->letter_at, 6.2, small_height)});
        }
        for (const Member& member : all.joint.members) {
            edges.push_back({member.First(), Width_of(member.first_edge_loaded ? Pen::loaded : Pen::outline) / 2.0});
            edges.push_back({member.Other(), Width_of(member.other_edge_loaded ? Pen::loaded : Pen::outline) / 2.0});
            const auto across = [&](double u) {
                return Segment{member.At(u, member.First_edge()), member.At(u, member.Other_edge())};
            };
            edges.push_back({across(member.near_u), Width_of(Pen::outline) / 2.0 + (member.through ? torn_wave : 0.0)});
            edges.push_back({across(member.far_u), Width_of(Pen::torn) / 2.0 + torn_wave});
        }
    }
};

using Check = std::function<void(const Measured&)>;

// Every check comes with the name of its case, sign and room.
void For_all(const Check& check) {
    for (int row = 0; row < case_count; ++row) {
        for (const bool compression : {false, true}) {
            for (const Room& room : rooms) {
                SCOPED_TRACE(std::string{case_table[static_cast<std::size_t>(row)].Case_code} +
                             (compression ? " compression " : " tension ") + room.name);
                const Choice choice = Choose(row, compression, room.width, room.height);
                check(Measured{choice.all});
            }
        }
    }
}

bool On_wood(const Member& member, Point p) {
    const double m = Dot(p, member.m);
    const double u = Dot(p, member.u);
    return m < member.First_edge() && m > member.Other_edge() && u > member.near_u && u < member.far_u;
}

TEST(Rules, every_sketch_is_clear_and_fits_its_room) {
    for (int row = 0; row < case_count; ++row) {
        for (const bool compression : {false, true}) {
            for (const Room& room : rooms) {
                const Choice choice = Choose(row, compression, room.width, room.height);
                EXPECT_TRUE(choice.fits) << case_table[static_cast<std::size_t>(row)].Case_code
                                         << " does not fit: " << room.name;
                EXPECT_TRUE(choice.all.clear) << case_table[static_cast<std::size_t>(row)].Case_code;
                EXPECT_LE(choice.all.bounds.right - choice.all.bounds.left, room.width);
                EXPECT_LE(choice.all.bounds.high - choice.all.bounds.low, room.height);
                EXPECT_GE(choice.unit, 10.0) << "smaller than what the eye tells apart";
            }
        }
    }
}

TEST(Rules, no_label_stands_on_an_edge_or_a_torn_end) {
    For_all([](const Measured& sketch) {
        for (const Label& label : sketch.labels) {
            for (const Edge& edge : sketch.edges) {
                EXPECT_FALSE(Touches(edge.line, label.ink.Grown(edge.half_pen + 0.9)))
                    << label.text << " stands on an edge";
            }
        }
    });
}

TEST(Rules, no_label_stands_on_a_bolt) {
    For_all([](const Measured& sketch) {
        for (const Label& label : sketch.labels) {
            for (const Point& bolt : sketch.all.joint.fasteners) {
                EXPECT_FALSE(label.ink.Touches(Around(bolt, bolt_radius + medium / 2.0 + 1.0)))
                    << label.text << " stands on a bolt";
            }
        }
    });
}

TEST(Rules, no_label_stands_on_a_line_or_another_label) {
    For_all([](const Measured& sketch) {
        for (std::size_t i = 0; i < sketch.labels.size(); ++i) {
            const Label& label = sketch.labels[i];
            for (const Chain& chain : sketch.all.chains) {
                for (const Dimension& dimension : chain.dimensions) {
                    EXPECT_FALSE(Touches(dimension.line, label.ink.Grown(thin / 2.0 + 0.6)))
                        << label.text << " stands on the dimension line of " << dimension.label;
                }
                for (const Segment& extension : chain.extensions) {
                    EXPECT_FALSE(Touches(extension, label.ink.Grown(thin / 2.0 + 0.4)))
                        << label.text << " stands on an extension line";
                }
            }
            EXPECT_FALSE(Touches(sketch.all.force.arrow, label.ink.Grown(thick / 2.0 + 1.0)))
                << label.text << " stands on the force";
            for (std::size_t j = i + 1; j < sketch.labels.size(); ++j) {
                const Rect& other = sketch.labels[j].ink;
                EXPECT_FALSE(
                    label.ink.Touches({other.left - 3.0, other.low - 1.2, other.right + 3.0, other.high + 1.2}))
                    << label.text << " touches " << sketch.labels[j].text;
            }
        }
    });
}

TEST(Rules, a_label_stands_nearest_to_its_own_dimension) {
    For_all([](const Measured& sketch) {
        for (const Chain& chain : sketch.all.chains) {
            for (const Dimension& dimension : chain.dimensions) {
                const double own = Gap(dimension.label_at, dimension.line);
                for (const Chain& other : sketch.all.chains) {
                    for (const Dimension& foreign : other.dimensions) {
                        EXPECT_LE(own, Gap(dimension.label_at, foreign.line) + 1e-6)
                            << dimension.label << " is nearer to " << foreign.label;
                    }
                }
            }
        }
    });
}

TEST(Rules, a_label_stands_beside_its_dimension_and_on_the_same_wood) {
    For_all([](const Measured& sketch) {
        for (const Chain& chain : sketch.all.chains) {
            const Member& member = sketch.all.joint.members[chain.dimensions.front().label[0] == 'a' ? 0 : 1];
            for (const Dimension& dimension : chain.dimensions) {
                const Rect ink = Ink(dimension.label_at, 12.3, capital_height);
                EXPECT_TRUE(Touches(dimension.line, ink.Grown(10.0)))
                    << dimension.label << " stands far from its dimension";
                if (!On_wood(member, 0.5 * (dimension.line.a + dimension.line.b))) {
                    continue;
                }
                for (const Point& corner : {Point{ink.left, ink.low}, Point{ink.right, ink.low},
                                            Point{ink.left, ink.high}, Point{ink.right, ink.high}}) {
                    EXPECT_TRUE(On_wood(member, corner)) << dimension.label << " stands outside its member";
                }
            }
        }
    });
}

TEST(Rules, an_extension_line_passes_other_bolts_by_three_radii) {
    For_all([](const Measured& sketch) {
        for (const Chain& chain : sketch.all.chains) {
            for (const Segment& extension : chain.extensions) {
                int own = 0;
                for (const Point& bolt : sketch.all.joint.fasteners) {
                    const bool begins_here = Length(bolt - extension.a) < 1.5 * bolt_radius;
                    own += begins_here ? 1 : 0;
                    EXPECT_TRUE(begins_here || Gap(bolt, extension) >= 3.0 * bolt_radius)
                        << chain.dimensions.front().label << ": an extension line passes a bolt";
                }
                EXPECT_LE(own, 1);
            }
        }
    });
}

TEST(Rules, lines_of_different_chains_keep_apart) {
    For_all([](const Measured& sketch) {
        for (const Chain& one : sketch.all.chains) {
            for (const Chain& other : sketch.all.chains) {
                if (&one == &other) {
                    continue;
                }
                for (const Dimension& dimension : other.dimensions) {
                    for (const Segment& extension : one.extensions) {
                        EXPECT_GE(Gap(extension, dimension.line), 2.0)
                            << "an extension line crosses the dimension " << dimension.label;
                    }
                    for (const Dimension& neighbour : one.dimensions) {
                        EXPECT_GE(Gap(neighbour.line, dimension.line), 5.9)
                            << neighbour.label << " " << dimension.label;
                    }
                }
            }
        }
    });
}

TEST(Rules, an_arrowhead_keeps_clear_of_every_edge_but_its_own) {
    constexpr double head = 4.6; // long, and
    constexpr double half_width = 1.5;
    For_all([](const Measured& sketch) {
        for (const Chain& chain : sketch.all.chains) {
            for (const Dimension& dimension : chain.dimensions) {
                const Point d =
                    (1.0 / Length(dimension.line.b - dimension.line.a)) * (dimension.line.b - dimension.line.a);
                for (const Segment& tip : {Segment{dimension.line.a, dimension.line.a + head * d},
                                           Segment{dimension.line.b, dimension.line.b - head * d}}) {
                    for (const Edge& edge : sketch.edges) {
                        const bool own =
                            Gap(tip.a, edge.line) < 1e-6 && std::fabs(Dot(edge.line.b - edge.line.a, d)) < 1e-6;
                        EXPECT_TRUE(own || Gap(tip, edge.line) >= edge.half_pen + half_width + 1.0)
                            << "an arrowhead of " << dimension.label << " stands on an edge";
                    }
                }
            }
        }
    });
}

TEST(Rules, no_dimension_crosses_the_loaded_edge) {
    For_all([](const Measured& sketch) {
        for (const Edge& edge : sketch.edges) {
            if (edge.half_pen < thick / 2.0) {
                continue;
            }
            for (const Chain& chain : sketch.all.chains) {
                for (const Dimension& dimension : chain.dimensions) {
                    const Point d =
                        (1.0 / Length(dimension.line.b - dimension.line.a)) * (dimension.line.b - dimension.line.a);
                    EXPECT_TRUE(std::fabs(Dot(edge.line.b - edge.line.a, d)) < 1e-6 ||
                                Gap(dimension.line, edge.line) > 0.0)
                        << dimension.label << " crosses the loaded edge";
                }
            }
        }
    });
}

TEST(Rules, an_extension_line_passes_corners_that_are_not_its_own) {
    For_all([](const Measured& sketch) {
        for (const Chain& chain : sketch.all.chains) {
            for (const Segment& extension : chain.extensions) {
                for (const Member& member : sketch.all.joint.members) {
                    for (const Point& corner : {member.End().a, member.End().b}) {
                        EXPECT_TRUE(member.through || Length(corner - extension.a) < 2.5 ||
                                    Gap(corner, extension) >= 2.0)
                            << "an extension line of " << chain.dimensions.front().label << " grazes a corner";
                    }
                }
            }
        }
    });
}

TEST(Rules, no_extension_line_lies_on_an_edge) {
    For_all([](const Measured& sketch) {
        for (const Chain& chain : sketch.all.chains) {
            for (const Segment& extension : chain.extensions) {
                for (const Edge& edge : sketch.edges) {
                    const Point middle = 0.5 * (extension.a + extension.b);
                    EXPECT_FALSE(Gap(extension.a, edge.line) < 0.5 && Gap(middle, edge.line) < 0.5)
                        << "an extension line of " << chain.dimensions.front().label << " runs along an edge";
                }
            }
        }
    });
}

TEST(Rules, the_loaded_edge_is_heavy_where_a_member_ends_flush_with_it) {
    int flush = 0;
    for (int row = 0; row < case_count; ++row) {
        for (const bool compression : {false, true}) {
            for (const Room& room : rooms) {
                const Composition all = Choose(row, compression, room.width, room.height).all;
                const Member& beam = all.joint.members[0];
                const Segment edge = beam.first_edge_loaded ? beam.First() : beam.Other();
                const Segment end = all.joint.members[1].End();
                if (beam.first_edge_loaded == beam.other_edge_loaded || Gap(end.a, edge) > 1e-6 ||
                    Gap(end.b, edge) > 1e-6) {
                    continue;
                }
                ++flush;
                const Point at = Centred(all.bounds, room.width, room.height).Place(0.5 * (end.a + end.b));
                Pen topmost = Pen::none;
                for (const auto& shape : Draw_sketch(row, compression, room.width, room.height).drawing.shapes) {
                    const auto* line = std::get_if<PolygonShape>(&shape);
                    if (line != nullptr && line->corners.size() == 2 &&
                        std::fabs(line->corners[0].y - line->corners[1].y) < 1e-6 &&
                        Gap(at, {line->corners[0], line->corners[1]}) < 1e-6) {
                        topmost = line->pen;
                    }
                }
                EXPECT_EQ(topmost, Pen::loaded) << case_table[static_cast<std::size_t>(row)].Case_code
                                                << " has its loaded edge overdrawn: " << room.name;
            }
        }
    }
    EXPECT_EQ(flush, 2 * 16); // types 4 and 5 in compression
}

TEST(Rules, the_force_stands_outside_the_torn_end_of_its_member_on_its_axis) {
    For_all([](const Measured& sketch) {
        const Segment& arrow = sketch.all.force.arrow;
        int on_axis = 0;
        for (const Member& member : sketch.all.joint.members) {
            on_axis += std::fabs(Dot(arrow.a, member.m) - member.Axis()) < 1e-6 &&
                               std::fabs(Dot(arrow.b, member.m) - member.Axis()) < 1e-6 &&
                               std::min(Dot(arrow.a, member.u), Dot(arrow.b, member.u)) > member.far_u + torn_wave
                           ? 1
                           : 0;
            for (const double share : {0.0, 0.25, 0.5, 0.75, 1.0}) {
                EXPECT_FALSE(On_wood(member, arrow.a + share * (arrow.b - arrow.a))) << "the force lies on a face";
            }
        }
        EXPECT_EQ(on_axis, 1) << "the force is off the axis of its member";
        for (const Edge& edge : sketch.edges) {
            EXPECT_GE(Gap(edge.line, arrow), 2.0) << "an edge crosses the force";
        }
    });
}

TEST(Rules, chains_stay_on_their_side_for_either_sign_and_in_every_room) {
    // Where each dimension lies seen from its member, and towards which side its chain looks.
    const auto sides = [](const Composition& all) {
        std::vector<std::string> found;
        for (const Chain& chain : all.chains) {
            const Member& member = all.joint.members[chain.dimensions.front().label[0] == 'a' ? 0 : 1];
            const double along = Dot(chain.outward, member.u);
            const double across = Dot(chain.outward, member.m);
            found.push_back(std::string{chain.dimensions.front().label} + (chain.across ? " across " : " along ") +
                            std::to_string(std::lround(along)) + " " + std::to_string(std::lround(across)));
        }
        return found;
    };
    for (int row = 0; row < case_count; ++row) {
        const auto usual = sides(Choose(row, false, rooms[0].width, rooms[0].height).all);
        for (const bool compression : {false, true}) {
            for (const Room& room : rooms) {
                EXPECT_EQ(sides(Choose(row, compression, room.width, room.height).all), usual)
                    << case_table[static_cast<std::size_t>(row)].Case_code << " jumps: " << room.name;
            }
        }
    }
}

TEST(Rules, a_corner_is_flush_with_an_edge_or_well_apart_from_it) {
    For_all([](const Measured& sketch) {
        for (std::size_t k = 0; k < 2; ++k) {
            const Member& member = sketch.all.joint.members[k];
            const Member& other = sketch.all.joint.members[1 - k];
            if (member.through) {
                continue;
            }
            for (const double edge : {member.First_edge(), member.Other_edge()}) {
                const Point corner = member.At(member.end_u, edge);
                const double u = Dot(corner, other.u);
                for (const double line : {other.First_edge(), other.Other_edge()}) {
                    const double off = std::fabs(Dot(corner, other.m) - line);
                    const bool beside = u > other.near_u - 3.0 && u < other.far_u + 3.0;
                    EXPECT_FALSE(beside && off > 1e-6 && off < 2.8) << "a corner peeps out, or a sliver is left";
                }
            }
        }
    });
}

TEST(Rules, an_inclined_member_has_its_angle) {
    int angles = 0;
    For_all([&angles](const Measured& sketch) {
        const Composition& all = sketch.all;
        ASSERT_EQ(all.angle.has_value(), all.joint.oblique) << "the angle is missing, or there is none";
        if (!all.angle) {
            return;
        }
        ++angles;
        // The acute angle between the members, and both sides are there to be seen.
        const double between = std::acos(std::fabs(Dot(all.joint.members[0].u, all.joint.members[1].u)));
        EXPECT_NEAR((all.angle->to - all.angle->from) * std::acos(-1.0) / 180.0, between, 1e-9);
        for (const double degrees : {all.angle->from, all.angle->to}) {
            const Point foot = all.angle->corner + all.angle->radius * Direction(degrees);
            double nearest = 1e9;
            for (const Edge& edge : sketch.edges) {
                nearest = std::min(nearest, Gap(foot, edge.line));
            }
            EXPECT_LT(nearest, 1e-6) << "the arc does not end on an edge";
        }
        for (const Member& member : all.joint.members) {
            EXPECT_FALSE(On_wood(member, all.angle->letter_at)) << "the letter stands on wood";
        }
        EXPECT_LT(Length(all.angle->letter_at - all.angle->corner), all.angle->radius);
    });
    EXPECT_EQ(angles, 2 * 38);
}

TEST(Rules, every_member_shows_its_grain_on_clear_wood) {
    For_all([](const Measured& sketch) {
        for (std::size_t k = 0; k < 2; ++k) {
            const Member& member = sketch.all.joint.members[k];
            const Member& other = sketch.all.joint.members[1 - k];
            ASSERT_TRUE(sketch.all.grains[k]) << "no grain in member " << k + 1;
            const Grain& grain = *sketch.all.grains[k];
            const double height = std::fabs(Dot(grain.front().a - grain.back().a, member.m)) - 1e-6;
            for (const Segment& stroke : *sketch.all.grains[k]) {
                EXPECT_NEAR(Dot(stroke.b - stroke.a, member.m), 0.0, 1e-9) << "across the grain";
                EXPECT_TRUE(On_wood(member, stroke.a) && On_wood(member, stroke.b));
                EXPECT_FALSE(On_wood(other, stroke.a) || On_wood(other, stroke.b)) << "grain of a covered part";
                for (const Edge& edge : sketch.edges) {
                    EXPECT_GE(Gap(stroke, edge.line), height) << "grain beside an edge";
                }
                for (const Label& label : sketch.labels) {
                    EXPECT_FALSE(Touches(stroke, label.ink.Grown(height))) << "grain behind " << label.text;
                }
                for (const Chain& chain : sketch.all.chains) {
                    for (const Segment& extension : chain.extensions) {
                        EXPECT_GE(Gap(stroke, extension), height) << "grain on an extension line";
                    }
                    for (const Dimension& dimension : chain.dimensions) {
                        const bool squeezed = chain.on_wood && std::fabs(Dot(chain.outward, member.u)) > 0.999 &&
                                              std::fabs(Dot(dimension.label_at - stroke.a, member.u)) < height;
                        EXPECT_FALSE(squeezed) << "grain within the column of " << dimension.label;
                        EXPECT_GE(Gap(stroke, dimension.line), height) << "grain on " << dimension.label;
                    }
                }
            }
        }
    });
}

TEST(Rules, members_are_torn_where_they_go_on_outside_the_joint) {
    For_all([](const Measured& sketch) {
        for (std::size_t k = 0; k < 2; ++k) {
            const Member& member = sketch.all.joint.members[k];
            const Member& other = sketch.all.joint.members[1 - k];
            for (const double u : {member.far_u, member.through ? member.near_u : member.far_u}) {
                for (const double edge : {member.First_edge(), member.Axis(), member.Other_edge()}) {
                    EXPECT_FALSE(On_wood(other, member.At(u, edge))) << "torn within the joint";
                }
            }
            EXPECT_EQ(member.near_u == member.end_u, !member.through);
        }
    });
}

TEST(Rules, one_edge_of_one_member_is_told_apart_as_loaded) {
    For_all([](const Measured& sketch) {
        int loaded = 0;
        for (const Member& member : sketch.all.joint.members) {
            loaded += (member.first_edge_loaded ? 1 : 0) + (member.other_edge_loaded ? 1 : 0);
        }
        EXPECT_EQ(loaded, 1);
    });
}

} // namespace
} // namespace tarnvik
