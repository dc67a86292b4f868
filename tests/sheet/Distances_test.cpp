// The distances of a case under their own names: against the record that the tables of the window show.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "calc/GlobalParameter.h"
#include "sheet/Formula.h"
#include "spacing/Catalogue.h"
#include "spacing/Rules.h"

namespace tarnvik {
namespace {

ConnectionValues Record(int row, float P, float alp, float d, float dc, int spacing) {
    ConnectionValues s;
    s.P = P;
    s.alp = alp;
    s.d = d;
    s.dc = dc;
    s.Avstand_index = static_cast<std::int16_t>(spacing);
    Calc_spacing(s, row);
    return s;
}

template <class Test> void For_all(Test test) {
    for (int row = 0; row < case_count; ++row) {
        for (const float P : {10.0F, -10.0F, 0.0F}) {
            for (const float alp : {0.0F, 25.0F, 60.0F, 90.0F}) {
                for (const auto& [d, dc] : {std::pair{10.0F, 48.0F}, {12.0F, 62.0F}, {20.0F, 75.0F}, {24.0F, 117.0F}}) {
                    for (const int spacing : {0, 9}) {
                        test(row, Record(row, P, alp, d, dc, spacing));
                    }
                }
            }
        }
    }
}

std::string Case_of(int row) {
    return std::string{case_table[static_cast<std::size_t>(row)].Case_code};
}

TEST(ListedDistances, are_those_of_the_joint_in_their_order) {
    For_all([](int row, const ConnectionValues& s) {
        const CaseDistances& joint = case_distances[static_cast<std::size_t>(row)];
        std::vector<std::string> wanted;
        for (const auto& [family, in] : {std::pair{'a', joint.a}, {'b', joint.b}}) {
            for (int i = 1; i <= in.across + in.along; ++i) {
                wanted.push_back(family + std::to_string(i));
            }
        }
        std::vector<std::string> found;
        for (const ListedDistance& distance : Listed_distances(s, row)) {
            found.emplace_back(Label_of(distance.distance));
        }
        EXPECT_EQ(found, wanted) << Case_of(row);
    });
}

TEST(ListedDistances, every_number_is_the_value_of_its_formula) {
    For_all([](int row, const ConnectionValues& s) {
        for (const ListedDistance& distance : Listed_distances(s, row)) {
            for (const auto& [formula, value] :
                 {std::pair{distance.S_formula, distance.S}, {distance.C_formula, distance.C}}) {
                ASSERT_FALSE(formula.empty()) << Case_of(row) << Label_of(distance.distance);
                if (value) {
                    EXPECT_NEAR(Formula{formula}.Value(s), *value, 2e-5)
                        << Case_of(row) << Label_of(distance.distance) << " " << formula << " P " << s.P << " alp "
                        << s.alp;
                }
            }
        }
    });
}

// The connectors' distances that the tables leave without a number; those of 3.3.b have one where the limit governs.
TEST(ListedDistances, lack_a_number_where_the_tables_have_none) {
    std::set<std::string> without;
    For_all([&](int row, const ConnectionValues& s) {
        for (const ListedDistance& distance : Listed_distances(s, row)) {
            EXPECT_TRUE(distance.S) << Case_of(row) << Label_of(distance.distance);
            if (!distance.C) {
                without.insert(Case_of(row) + " " + std::string{Label_of(distance.distance)});
            }
        }
    });
    EXPECT_EQ(without, (std::set<std::string>{"1.3.a a4", "3.3.b a2", "3.3.b a3"}));
}

// By hand: case 2.1 lends the number of the end distance in compression to b4, 1.2 * 62; case 5.1 that in tension to
// b5 where 7 d is at most 80 mm.
TEST(ListedDistances, the_end_distance_has_its_number_also_where_it_is_lent) {
    const auto end_of = [](std::string_view code, float P, float d) {
        const int row = Find_case(code);
        const ConnectionValues s = Record(row, P, 30.0F, d, 62.0F, 0);
        return Listed_distances(s, row).back();
    };
    EXPECT_EQ(Label_of(end_of("2.1. ", 10.0F, 12.0F).distance), "b3");
    EXPECT_NEAR(end_of("2.1. ", 10.0F, 12.0F).C.value_or(0.0F), 74.4, 1e-4);
    EXPECT_EQ(Label_of(end_of("5.1. ", -10.0F, 10.0F).distance), "b3");
    EXPECT_EQ(end_of("5.1. ", -10.0F, 10.0F).S.value_or(0.0F), 80.0F);
    EXPECT_EQ(end_of("5.1. ", -10.0F, 12.0F).S.value_or(0.0F), 84.0F);
    EXPECT_EQ(end_of("4.3.b", -10.0F, 10.0F).S.value_or(0.0F), 80.0F);
}

} // namespace
} // namespace tarnvik
