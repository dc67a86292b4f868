#include "spacing/sketch/Joint.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "spacing/Catalogue.h"

namespace tarnvik {
namespace {

constexpr double unit = 10.0;

// The lattice of each case: fasteners along the grain of member 1 by those along the grain of member 2.
struct LatticeRow {
    const char* Case_code;
    int n1, n2;
};
constexpr LatticeRow lattice_rows[] = {
    {"1.1. ", 1, 1}, {"1.2.a", 1, 2}, {"1.2.b", 2, 1}, {"1.3.a", 1, 3}, {"1.3.b", 3, 1}, {"1.4. ", 2, 2},
    {"1.6. ", 2, 3}, {"2.1. ", 1, 1}, {"2.2. ", 1, 2}, {"2.3. ", 1, 3}, {"2.4. ", 2, 2}, {"2.6. ", 2, 3},
    {"3.1. ", 1, 1}, {"3.2.a", 2, 1}, {"3.2.b", 1, 2}, {"3.3.a", 3, 1}, {"3.3.b", 1, 3}, {"3.4. ", 2, 2},
    {"3.6. ", 2, 3}, {"4.1. ", 1, 1}, {"4.2.a", 2, 1}, {"4.2.b", 1, 2}, {"4.3.a", 3, 1}, {"4.3.b", 1, 3},
    {"4.4. ", 2, 2}, {"4.6.a", 3, 2}, {"4.6.b", 2, 3}, {"5.1. ", 1, 1}, {"5.2.a", 2, 1}, {"5.2.b", 1, 2},
    {"5.3.a", 3, 1}, {"5.3.b", 1, 3}, {"5.4. ", 2, 2}, {"5.6.a", 3, 2}, {"5.6.b", 2, 3},
};

TEST(Joint, the_lattice_of_every_case) {
    ASSERT_EQ(std::size(lattice_rows), 35U);
    for (const LatticeRow& row : lattice_rows) {
        const int number = Find_case(row.Case_code);
        ASSERT_GE(number, 0) << row.Case_code;
        EXPECT_EQ(Lattice_of(number).n1, row.n1) << row.Case_code;
        EXPECT_EQ(Lattice_of(number).n2, row.n2) << row.Case_code;
        EXPECT_EQ(row.n1 * row.n2, case_table[static_cast<std::size_t>(number)].n_bolt) << row.Case_code;
    }
}

void Expect_lines(const std::vector<double>& lines, const std::vector<double>& wanted) {
    ASSERT_EQ(lines.size(), wanted.size());
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        EXPECT_NEAR(lines[i], wanted[i], 1e-9) << i;
    }
}

TEST(Joint, edges_stand_a_unit_from_the_outer_lines_and_a_loaded_one_farther) {
    // Beam on a column: compression drives the fasteners to the upper edge of the beam.
    const Joint pressed = Make_joint('4', {1, 1}, true, unit);
    Expect_lines(pressed.members[0].lines, {17.0, 0.0, -10.0});
    Expect_lines(pressed.members[1].lines, {10.0, 0.0, -10.0});
    EXPECT_NEAR(pressed.members[0].Axis(), 3.5, 1e-9);
    const Joint pulled = Make_joint('4', {1, 1}, false, unit);
    Expect_lines(pulled.members[0].lines, {10.0, 0.0, -17.0});
    // Three lines across the beam, of fasteners along the column that leaves downward.
    Expect_lines(Make_joint('4', {1, 3}, true, unit).members[0].lines, {17.0, 0.0, -10.0, -20.0, -30.0});
}

TEST(Joint, what_the_force_loads_in_every_type) {
    struct Row {
        char type;
        bool compression;
        const char *member_1, *member_2; // first edge, other edge, end; a member that runs through has no end
    };
    // clang-format off
    const Row rows[] = {
        {'1', false, "--E", "F--"}, // the top chord is pulled up
        {'1', true,  "---", "-OE"}, // the top chord presses down and out
        {'2', false, "-O ", "--E"}, // the strut is pulled down from the beam
        {'2', true,  "F- ", "---"},
        {'3', false, "-O ", "--E"}, // the collar beam is pulled inward
        {'3', true,  "F- ", "---"},
        {'4', false, "-OE", "--E"}, // the column is pulled down from the beam
        {'4', true,  "F-E", "---"},
        {'5', false, "F-E", "--E"}, // the column is pulled up from the beam
        {'5', true,  "-OE", "---"},
    };
    // clang-format on
    for (const Row& row : rows) {
        const Joint joint = Make_joint(row.type, {1, 1}, row.compression, unit);
        for (std::size_t k = 0; k < 2; ++k) {
            SCOPED_TRACE(std::string{row.type} + (row.compression ? " compression" : " tension"));
            const Member& member = joint.members[k];
            const std::string loaded{member.first_edge_loaded ? 'F' : '-', member.other_edge_loaded ? 'O' : '-',
                                     member.through      ? ' '
                                     : member.end_loaded ? 'E'
                                                         : '-'};
            EXPECT_EQ(loaded, k == 0 ? row.member_1 : row.member_2) << k + 1;
            if (!member.through) {
                // At a right angle an unloaded end is flush with the loaded edge.
                const double unloaded = row.type == '4' || row.type == '5' ? -17.0 : -10.0;
                const double loaded_end = row.type == '3' ? -25.0 : -22.0; // extension lines pass the collar's corner
                EXPECT_NEAR(member.end_u, member.end_loaded ? loaded_end : unloaded, 1e-9) << k + 1;
            }
        }
    }
}

TEST(Joint, neighbouring_lines_of_fasteners_are_a_unit_apart_at_every_angle) {
    for (const char type : {'1', '2', '3', '4', '5'}) {
        const Joint joint = Make_joint(type, {2, 3}, false, unit);
        ASSERT_EQ(joint.fasteners.size(), 6U);
        EXPECT_EQ(joint.fasteners.front().x, 0.0);
        EXPECT_EQ(joint.fasteners.front().y, 0.0);
        for (const Member& member : joint.members) {
            for (std::size_t i = 1; i + 2 < member.lines.size(); ++i) {
                EXPECT_NEAR(member.lines[i] - member.lines[i + 1], unit, 1e-9) << type;
            }
            // Every fastener stands on one of the lines.
            for (const Point& fastener : joint.fasteners) {
                bool found = false;
                for (std::size_t i = 1; i + 1 < member.lines.size(); ++i) {
                    found = found || std::fabs(Dot(fastener, member.m) - member.lines[i]) < 1e-9;
                }
                EXPECT_TRUE(found) << type;
            }
        }
    }
}

TEST(Joint, the_end_is_measured_from_the_nearest_fastener) {
    for (const char type : {'1', '2', '3', '4', '5'}) {
        const Joint joint = Make_joint(type, {2, 3}, false, unit);
        for (const Member& member : joint.members) {
            if (!member.through) {
                const double nearest = -joint.Farthest(-1.0 * member.u);
                const double unloaded = type == '4' || type == '5' ? 17.0 : 10.0;
                const double loaded_end = type == '3' ? 25.0 : 22.0;
                EXPECT_NEAR(nearest - member.end_u, member.end_loaded ? loaded_end : unloaded, 1e-9) << type;
            }
        }
    }
}

TEST(Joint, the_outline_has_an_end_where_the_member_does_not_run_through) {
    Joint joint = Make_joint('2', {1, 1}, true, unit);
    Member& beam = joint.members[0];
    ASSERT_EQ(beam.Outline().size(), 2U);
    EXPECT_LT(beam.First().a.x, -1000.0); // torn beyond every picture on both sides
    EXPECT_GT(beam.First().b.x, 1000.0);
    EXPECT_NEAR(beam.First().a.y, 17.0, 1e-9);
    EXPECT_NEAR(beam.Other().a.y, -10.0, 1e-9);
    beam.near_u = -30.0;
    beam.far_u = 50.0;
    EXPECT_NEAR(beam.Outline()[1].a.x, -30.0, 1e-9);
    EXPECT_NEAR(beam.Outline()[1].b.x, 50.0, 1e-9);

    const Member& strut = joint.members[1];
    const std::vector<Segment> outline = strut.Outline();
    ASSERT_EQ(outline.size(), 3U);
    EXPECT_NEAR(Length(outline[2].b - outline[2].a), 20.0, 1e-9);
    EXPECT_NEAR(Dot(outline[2].a, strut.u), strut.end_u, 1e-9);
    EXPECT_NEAR(Dot(outline[0].a, strut.u), strut.end_u, 1e-9);
    EXPECT_GT(Dot(outline[0].b, strut.u), 1000.0);
}

TEST(Joint, three_cases_count_across_the_beam_from_below) {
    for (int row = 0; row < case_count; ++row) {
        const std::string_view code = case_table[static_cast<std::size_t>(row)].Case_code;
        EXPECT_EQ(Lattice_of(row).from_below, code == "5.2.b" || code == "5.3.b" || code == "5.6.b") << code;
    }
    // The column presses the beam down: its lower edge, the first one here, is loaded.
    const Joint joint = Make_joint('5', Lattice_of(Find_case("5.2.b")), true, unit);
    const Member& beam = joint.members[0];
    EXPECT_NEAR(beam.m.y, -1.0, 1e-9);
    EXPECT_TRUE(beam.first_edge_loaded);
    EXPECT_FALSE(beam.other_edge_loaded);
    Expect_lines(beam.lines, {17.0, 0.0, -10.0, -20.0}); // downward
    EXPECT_NEAR(joint.members[1].m.x, -1.0, 1e-9);       // the column as everywhere
    const Joint pulled = Make_joint('5', Lattice_of(Find_case("5.2.b")), false, unit);
    EXPECT_TRUE(pulled.members[0].other_edge_loaded);
}

TEST(Joint, the_types_as_they_are_built) {
    EXPECT_TRUE(Type_of('1').force_on_1);
    for (const char type : {'2', '3', '4', '5'}) {
        EXPECT_FALSE(Type_of(type).force_on_1) << type;
    }
    for (const char type : {'1', '2', '3', '4', '5'}) {
        const Joint joint = Make_joint(type, {1, 1}, true, unit);
        EXPECT_EQ(joint.members[0].through, type == '2' || type == '3') << type;
        EXPECT_FALSE(joint.members[1].through) << type;
        EXPECT_EQ(joint.oblique, std::fabs(Dot(joint.members[0].u, joint.members[1].u)) > 1e-9) << type;
        EXPECT_EQ(joint.oblique, type <= '3') << type;
    }
}

} // namespace
} // namespace tarnvik
