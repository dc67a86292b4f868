#include "calc/DesignCapacity.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/Calculation.h"

namespace tarnvik {
namespace {

using test::Fault_of;

constexpr float Sa2 = 12.0F;
constexpr float Sa3 = 13.0F;
constexpr float Sa4 = 14.0F;
constexpr float Sa5 = 15.0F;
constexpr float Sb3 = 23.0F;
constexpr float Sb4 = 24.0F;

// Distances that tell which one was read.
ConnectionValues Distances() {
    ConnectionValues s;
    s.Sa1 = 11.0F;
    s.Sa2 = Sa2;
    s.Sa3 = Sa3;
    s.Sa4 = Sa4;
    s.Sa5 = Sa5;
    s.Sa6 = 16.0F;
    s.Sb1 = 21.0F;
    s.Sb2 = 22.0F;
    s.Sb3 = Sb3;
    s.Sb4 = Sb4;
    s.Sb5 = 25.0F;
    s.Sb6 = 26.0F;
    // Never the connectors' values, also where they are in use.
    s.Med_bulldog = true;
    s.Ca2 = s.Ca3 = s.Ca4 = s.Ca5 = s.Cb3 = s.Cb4 = 999.0F;
    return s;
}

constexpr std::array<void (*)(ConnectionValues&), 5> get_rows{Get_rows_1, Get_rows_2, Get_rows_3, Get_rows_4,
                                                              Get_rows_5};

TEST(DesignCapacity, rows_along_the_grain_of_the_cases_that_have_one) {
    struct Row {
        const char* code;
        float a1;
        std::int16_t n_row, rows;
    };
    // clang-format off
    const Row table[] = {
        {"1.2.b", Sa3, 2, 1},
        {"1.3.b", Sa3, 3, 1},
        {"1.4. ", Sa4, 2, 2},
        {"1.6. ", Sa5, 2, 3},
        {"2.2. ", Sb3, 2, 1},
        {"2.3. ", Sb3, 3, 1},
        {"2.4. ", Sb4, 2, 2},
        {"2.6. ", Sb4, 3, 2},
        {"3.2.b", Sb3, 2, 1},
        {"3.3.b", Sb3, 3, 1},
        {"3.4. ", Sb4, 2, 2},
        {"3.6. ", Sb4, 3, 2},
        {"4.2.b", Sa2, 2, 1},
        {"4.3.b", Sa2, 3, 1},
        {"4.4. ", Sa2, 2, 2},
        {"4.6.a", Sa2, 2, 3},
        {"4.6.b", Sa2, 3, 2},
        {"5.2.b", Sa2, 2, 1},
        {"5.3.b", Sa2, 3, 1},
        {"5.4. ", Sa2, 2, 2},
        {"5.6.a", Sa2, 2, 3},
        {"5.6.b", Sa2, 3, 2},
    };
    // clang-format on
    for (const Row& row : table) {
        SCOPED_TRACE(row.code);
        for (char type = '1'; type <= '5'; ++type) {
            SCOPED_TRACE(type);
            ConnectionValues s = Distances();
            s.Case_code = row.code;
            s.a1 = 1.0F;
            s.n_row = 7;
            s.rows = 8;
            get_rows[static_cast<std::size_t>(type - '1')](s);
            const bool own = type == row.code[0]; // the routine of another type holds no such case
            EXPECT_EQ(s.Has_row, own);
            EXPECT_EQ(s.a1, own ? row.a1 : 1.0F);
            EXPECT_EQ(s.n_row, own ? row.n_row : 7);
            EXPECT_EQ(s.rows, own ? row.rows : 8);
        }
    }
}

TEST(DesignCapacity, all_other_cases_set_nothing) {
    for (const char* code : {"1.1. ", "1.2.a", "1.3.a", "2.1. ", "3.1. ", "3.2.a", "3.3.a", "4.1. ", "4.2.a", "4.3.a",
                             "5.1. ", "5.2.a", "5.3.a", "     ", "1.5. ", "4.6. "}) {
        SCOPED_TRACE(code);
        ConnectionValues s = Distances();
        s.Case_code = code;
        s.a1 = 1.0F;
        s.n_row = 7;
        s.rows = 8;
        for (const auto routine : get_rows) {
            routine(s);
        }
        EXPECT_FALSE(s.Has_row);
        EXPECT_EQ(s.a1, 1.0F);
        EXPECT_EQ(s.n_row, 7);
        EXPECT_EQ(s.rows, 8);
    }
}

TEST(DesignCapacity, effective_numbers_by_hand) {
    struct Row {
        const char* name;
        std::int16_t n_row, rows;
        float a1, d;
        double nef_b_row, nef_b, nef_f_row, nef_f;
    };
    // 2^0.9 = 1.8660659831, 3^0.9 = 2.6878753795; (5/13)^0.25 = 0.7875100
    // clang-format off
    const Row rows[] = {
        {"2 bolts at 13 d in 3 rows", 2, 3, 260.0F,  20.0F, 1.8660659831, 5.5981979492, 2.0,  6.0},
        {"2 bolts at 5 d",            2, 1, 100.0F,  20.0F, 1.8660659831 * std::pow(5.0 / 13.0, 0.25), 1.8660659831 * std::pow(5.0 / 13.0, 0.25), 2.0,  2.0},
        {"3 bolts at 13 d in 2 rows", 3, 2, 156.0F,  12.0F, 2.6878753795, 5.3757507590, 2.85, 5.7},
        {"3 bolts at 20 d",           3, 1, 480.0F,  24.0F, 2.6878753795 * std::pow(20.0 / 13.0, 0.25), 2.6878753795 * std::pow(20.0 / 13.0, 0.25), 2.85, 2.85},
        {"2 bolts at 100 d: limited", 2, 2, 2000.0F, 20.0F, 2.0,          4.0,          2.0,  4.0},
        {"3 bolts at 100 d: limited", 3, 1, 1200.0F, 12.0F, 3.0,          3.0,          2.85, 2.85},
        {"no row yet",                0, 0, 0.0F,    20.0F, 0.0,          0.0,          0.0,  0.0},
        {"no spacing",                2, 1, 0.0F,    20.0F, 0.0,          0.0,          2.0,  2.0},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        ConnectionValues s;
        s.n_row = row.n_row;
        s.rows = row.rows;
        s.a1 = row.a1;
        s.d = row.d;
        Get_nef(s);
        // two roundings to 24 bits, 6e-8 each, and the ten digits of the hand values
        EXPECT_NEAR(s.nef_b_row, row.nef_b_row, 2e-7 * row.nef_b_row);
        EXPECT_NEAR(s.nef_b, row.nef_b, 3e-7 * row.nef_b);
        EXPECT_EQ(s.nef_f_row, static_cast<float>(row.nef_f_row));
        EXPECT_EQ(s.nef_f, static_cast<float>(row.nef_f));
    }
}

TEST(DesignCapacity, connectors_in_a_row_do_not_depend_on_their_spacing) {
    for (const float a1 : {0.0F, 60.0F, 240.0F, 2000.0F}) {
        SCOPED_TRACE(a1);
        ConnectionValues s;
        s.n_row = 3;
        s.rows = 1;
        s.d = 12.0F;
        s.a1 = a1;
        Get_nef(s);
        EXPECT_EQ(s.nef_f_row, 2.85F);
    }
}

TEST(DesignCapacity, effective_number_faults) {
    ConnectionValues s;
    s.n_row = 2;
    s.a1 = 100.0F;
    s.d = 0.0F;
    EXPECT_EQ(Fault_of([&] { Get_nef(s); }), 11);
    s.d = 20.0F;
    s.a1 = -1.0F;
    EXPECT_EQ(Fault_of([&] { Get_nef(s); }), 5);
    s.a1 = 100.0F;
    s.n_row = -1;
    EXPECT_EQ(Fault_of([&] { Get_nef(s); }), 5);
}

TEST(DesignCapacity, capacities_by_hand) {
    struct Row {
        const char* name;
        bool Has_row, dob_1, dob_2;
        std::int16_t n_bolt;
        float nef_b, nef_f;
        double Rd_bolt, Rd_for; // kN, for 8000 N and 12 kN a fastener, kmod 0.75, gm 1.25: 4.8 and 7.2 kN
    };
    // clang-format off
    const Row rows[] = {
        {"one bolt, one plane",          false, false, false, 1, 99.0F,  99.0F,  4.8,       7.2},
        {"two bolts, no row",            false, false, false, 2, 1.5F,   1.75F,  9.6,      14.4},
        {"a row counts as nef",          true,  false, false, 2, 1.5F,   1.75F,  4.8 * 1.5, 7.2 * 1.75},
        {"member 1 double: two planes",  true,  true,  false, 2, 1.5F,   1.75F,  9.6 * 1.5, 14.4 * 1.75},
        {"member 2 double: two planes",  false, false, true,  6, 1.5F,   1.75F, 57.6,      86.4},
        {"both flags: still two planes", false, true,  true,  6, 1.5F,   1.75F, 57.6,      86.4},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        ConnectionValues s;
        s.kmod = 0.75F;
        s.gm = 1.25F;
        s.Has_row = row.Has_row;
        s.dob_1 = row.dob_1;
        s.dob_2 = row.dob_2;
        s.n_bolt = row.n_bolt;
        s.nef_b = row.nef_b;
        s.nef_f = row.nef_f;
        Get_Rd_bolt(s, 8000.0F);
        Get_Rd_for(s, 12.0F);
        EXPECT_EQ(s.Rd_bolt, static_cast<float>(row.Rd_bolt)); // all given values are exact in binary: one rounding
        EXPECT_EQ(s.Rd_for, static_cast<float>(row.Rd_for));
    }
}

TEST(DesignCapacity, no_partial_factor_is_a_division_by_zero) {
    ConnectionValues s;
    s.kmod = 0.6F;
    s.n_bolt = 1;
    s.gm = 0.0F;
    EXPECT_EQ(Fault_of([&] { Get_Rd_bolt(s, 8000.0F); }), 11);
    EXPECT_EQ(Fault_of([&] { Get_Rd_for(s, 12.0F); }), 11);
}

TEST(DesignCapacity, utilisation_adds_bolts_and_connectors) {
    struct Row {
        const char* name;
        bool Med_bulldog;
        float P, Rd_bolt, Rd_for, uf;
    };
    // clang-format off
    const Row rows[] = {
        {"bolts only",                      false, 10.0F,  8.0F,  0.0F,  1.25F},
        {"tension counts as its amount",    false, -10.0F, 8.0F,  0.0F,  1.25F},
        {"bolts only ignore old Rd_for",    false, 10.0F,  8.0F,  12.0F, 1.25F},
        {"with connectors",                 true,  10.0F,  8.0F,  12.0F, 0.5F},
        {"with connectors, tension",        true,  -10.0F, 8.0F,  12.0F, 0.5F},
        {"no force",                        false, 0.0F,   8.0F,  0.0F,  0.0F},
        {"exactly 1.0",                     false, 8.0F,   8.0F,  0.0F,  1.0F},
        {"bolts without capacity",          true,  6.0F,   0.0F,  12.0F, 0.5F},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        ConnectionValues s;
        s.Med_bulldog = row.Med_bulldog;
        s.Kun_bolt = !row.Med_bulldog;
        s.P = row.P;
        s.Rd_bolt = row.Rd_bolt;
        s.Rd_for = row.Rd_for;
        Get_uf(s);
        EXPECT_EQ(s.uf, row.uf);
    }
}

TEST(DesignCapacity, no_capacity_is_a_division_by_zero) {
    ConnectionValues s;
    s.P = 10.0F;
    s.Rd_bolt = 0.0F;
    s.Rd_for = 5.0F; // of an earlier pass: does not count
    EXPECT_EQ(Fault_of([&] { Get_uf(s); }), 11);
    s.Med_bulldog = true;
    s.Rd_for = 0.0F;
    EXPECT_EQ(Fault_of([&] { Get_uf(s); }), 11);
    s.P = 0.0F;
    EXPECT_EQ(Fault_of([&] { Get_uf(s); }), 11);
}

} // namespace
} // namespace tarnvik
