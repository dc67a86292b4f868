#include "calc/Splitting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/support/Calculation.h"

namespace tarnvik {
namespace {

using test::Fault_of;

using GetHe = void (*)(const ConnectionValues&, float&, float&, float&);
constexpr std::array<GetHe, 5> get_he{Get_he_1, Get_he_2, Get_he_3, Get_he_4, Get_he_5};

constexpr std::array<const char*, 15> con_codes{"1.1", "1.2", "1.3", "2.1", "2.2", "2.3", "3.1", "3.2",
                                                "3.3", "4.1", "4.2", "4.3", "5.1", "5.2", "5.3"};

// Members whose height and width tell which was taken, distances that tell which was read.
constexpr float h1 = 1000.0F;
constexpr float h2 = 2000.0F;
constexpr float b1 = 45.0F;
constexpr float b2 = 70.0F;
enum : int { Sa1 = 11, Sa2, Sa3, Sa4, Sb1 = 21, Sb2, Sb3, Sb4 };

ConnectionValues Members() {
    ConnectionValues s;
    s.h1 = h1;
    s.h2 = h2;
    s.b1 = b1;
    s.b2 = b2;
    s.Sa1 = Sa1;
    s.Sa2 = Sa2;
    s.Sa3 = Sa3;
    s.Sa4 = Sa4;
    s.Sa5 = 15.0F;
    s.Sa6 = 16.0F;
    s.Sb1 = Sb1;
    s.Sb2 = Sb2;
    s.Sb3 = Sb3;
    s.Sb4 = Sb4;
    s.Sb5 = 25.0F;
    s.Sb6 = 26.0F;
    return s;
}

TEST(Splitting, loaded_edge_of_the_35_cases_by_the_sign_of_the_force) {
    struct Row {
        const char* code;
        int compression, tension;
    };
    // clang-format off
    const Row rows[] = {
        {"1.1. ", Sb1, Sb2},
        {"1.2.a", Sb1, Sb2},
        {"1.2.b", Sb1, Sb3},
        {"1.3.a", Sb1, Sb2},
        {"1.3.b", Sb1, Sb4},
        {"1.4. ", Sb1, Sb3},
        {"1.6. ", Sb1, Sb3},
        {"2.1. ", Sa2, Sa1},
        {"2.2. ", Sa3, Sa1},
        {"2.3. ", Sa4, Sa1},
        {"2.4. ", Sa3, Sa1},
        {"2.6. ", Sa4, Sa1},
        {"3.1. ", Sa2, Sa1},
        {"3.2.a", Sa2, Sa1},
        {"3.2.b", Sa3, Sa1},
        {"3.3.a", Sa2, Sa1},
        {"3.3.b", Sa4, Sa1},
        {"3.4. ", Sa3, Sa1},
        {"3.6. ", Sa4, Sa1},
        {"4.1. ", Sa2, Sa1},
        {"4.2.a", Sa2, Sa1},
        {"4.2.b", Sa3, Sa1},
        {"4.3.a", Sa2, Sa1},
        {"4.3.b", Sa4, Sa1},
        {"4.4. ", Sa3, Sa1},
        {"4.6.a", Sa3, Sa1},
        {"4.6.b", Sa4, Sa1},
        {"5.1. ", Sa1, Sa2}, // the mirror: the loaded edge changes sides
        {"5.2.a", Sa1, Sa2},
        {"5.2.b", Sa1, Sa3},
        {"5.3.a", Sa1, Sa2},
        {"5.3.b", Sa1, Sa4},
        {"5.4. ", Sa1, Sa3},
        {"5.6.a", Sa1, Sa3},
        {"5.6.b", Sa1, Sa4},
    };
    // clang-format on
    ASSERT_EQ(std::size(rows), 35U);
    for (const Row& row : rows) {
        const bool type_1 = row.code[0] == '1';
        for (const float P : {10.0F, 1e-30F, -10.0F, 0.0F, -0.0F}) {
            SCOPED_TRACE(testing::Message() << row.code << " with P " << P);
            ConnectionValues s = Members();
            s.Case_code = row.code;
            s.P = P;
            for (char type = '1'; type <= '5'; ++type) {
                SCOPED_TRACE(type);
                float h = 1.0F;
                float b = 1.0F;
                float he = 1.0F;
                get_he[static_cast<std::size_t>(type - '1')](s, h, b, he);
                const bool own = type == row.code[0]; // the routine of another type does not hold the case
                const float height = type_1 ? h2 : h1;
                EXPECT_EQ(h, own ? height : 0.0F);
                EXPECT_EQ(b, own ? (type_1 ? b2 : b1) : 0.0F);
                EXPECT_EQ(he, own ? height - static_cast<float>(P > 0.0F ? row.compression : row.tension) : 0.0F);
            }
        }
    }
}

TEST(Splitting, a_code_that_no_routine_holds_gives_zeros) {
    ConnectionValues s = Members();
    for (const char* code : {"", "1.5. ", "1.2. ", "6.1. ", "4.6. "}) {
        SCOPED_TRACE(code);
        s.Case_code = code;
        for (const GetHe routine : get_he) {
            float h = 1.0F;
            float b = 1.0F;
            float he = 1.0F;
            routine(s, h, b, he);
            EXPECT_EQ(h, 0.0F);
            EXPECT_EQ(b, 0.0F);
            EXPECT_EQ(he, 0.0F);
        }
    }
}

TEST(Splitting, member_2_splits_in_type_1_and_member_1_in_all_others) {
    ConnectionValues s = Members();
    for (std::int16_t type = 1; type <= 5; ++type) {
        SCOPED_TRACE(type);
        s.Con_type = type;
        float h = 0.0F;
        float b = 0.0F;
        Get_splitting_member(s, h, b);
        EXPECT_EQ(h, type == 1 ? h2 : h1);
        EXPECT_EQ(b, type == 1 ? b2 : b1);
    }
}

// kmod 0.8, gm 1.25, force 20 kN.
ConnectionValues Loaded() {
    ConnectionValues s;
    s.kmod = 0.8F;
    s.gm = 1.25F;
    s.P = 20.0F;
    s.alp = 90.0F;
    s.Con_code = "4.1";
    return s;
}

const ScreenWriter nowhere{nullptr};

// Five named values, each rounded to 24 bits, 6e-8 of it.
constexpr double hand = 4e-7;

TEST(Splitting, check_by_hand) {
    // he 150 of h 200: x 0.75, y 600; 14 x 48 x sqrt(600) = 16460.57 N; x 0.8 / 1.25 = 10534.77 N
    ConnectionValues s = Loaded();
    Tverr_brudd(s, 200.0F, 150.0F, 48.0F, nowhere);
    const double F90_Rd = 14.0 * 48.0 * 24.494897427831781 / 1000.0 * 0.64;
    EXPECT_NEAR(s.F90_Rd, F90_Rd, hand * F90_Rd);
    EXPECT_NEAR(s.F90_Rd, 10.53477, 5e-6); // half a unit of the last digit of the hand value
    EXPECT_NEAR(s.P_sin, 20.0, hand * 20.0);
    EXPECT_NEAR(s.Tverr_kontroll, 20.0 / F90_Rd, hand * 2.0);
}

TEST(Splitting, x_and_y_are_rounded_to_32_bits_before_they_are_used) {
    // 1/3 as a float is 0.3333333433; 1 less that is 0.6666666567, and 100 / 0.6666666567 is 150.0000022, which rounds
    // to 150.0 at the 24 bits of a float: steps of 1.5e-5.
    ConnectionValues s = Loaded();
    s.kmod = 1.0F;
    s.gm = 1.0F;
    Tverr_brudd(s, 300.0F, 100.0F, 1000.0F, nowhere);
    EXPECT_EQ(s.F90_Rd, static_cast<float>(14.0 * std::sqrt(150.0)));
}

TEST(Splitting, half_of_the_force_acts_in_five_connections) {
    // 2.3 and not 2.2, although member 1 splits in type 2.
    const std::array<const char*, 5> half{"1.3", "2.3", "3.2", "4.2", "5.2"};
    for (const char* code : con_codes) {
        SCOPED_TRACE(code);
        ConnectionValues s = Loaded();
        s.Con_code = code;
        s.alp = 30.0F;
        Tverr_brudd(s, 200.0F, 150.0F, 48.0F, nowhere);
        const bool halved = std::find(half.begin(), half.end(), std::string_view{code}) != half.end();
        // sin(30 / 57.297) = 0.499990341
        EXPECT_NEAR(s.P_sin, halved ? 4.99990341 : 9.99980682, 1e-6); // one step of a float of that size
        EXPECT_LT(s.P_sin, halved ? 5.0F : 10.0F);
    }
}

TEST(Splitting, a_force_of_20_counts_as_10_in_2_3) {
    ConnectionValues s = Loaded();
    s.Con_code = "2.3";
    Tverr_brudd(s, 200.0F, 150.0F, 48.0F, nowhere);
    EXPECT_EQ(s.P_sin, 10.0F); // the sine of 90 / 57.297 is 1 less 6e-10: a hundredth of a float's step
}

TEST(Splitting, the_input_angle_counts_also_where_the_bolts_take_a_right_angle) {
    for (const char* code : {"4.1", "4.2"}) {
        SCOPED_TRACE(code);
        ConnectionValues s = Loaded();
        s.Con_code = code;
        s.alp = 0.0F;
        Tverr_brudd(s, 200.0F, 150.0F, 48.0F, nowhere);
        EXPECT_EQ(s.P_sin, 0.0F);
    }
}

TEST(Splitting, no_angle_gives_nothing_and_shows_green) {
    ConnectionValues s = Loaded();
    s.alp = 0.0F;
    Screen screen;
    Tverr_brudd(s, 200.0F, 150.0F, 48.0F, ScreenWriter{&screen});
    EXPECT_EQ(s.P_sin, 0.0F);
    EXPECT_EQ(s.Tverr_kontroll, 0.0F);
    const ControlView& label = screen[Control::Lbl_tverr_2];
    EXPECT_EQ(label.caption, "0.00"); // no blank at its end
    EXPECT_EQ(label.bold, true);
    EXPECT_EQ(label.fore, 32768U);
}

TEST(Splitting, above_the_limit_shows_red_also_in_tension) {
    for (const float P : {20.0F, -20.0F}) {
        SCOPED_TRACE(P);
        ConnectionValues s = Loaded();
        s.P = P;
        Screen screen;
        Tverr_brudd(s, 200.0F, 150.0F, 48.0F, ScreenWriter{&screen});
        const ControlView& label = screen[Control::Lbl_tverr_2];
        EXPECT_EQ(label.caption, "1.90"); // 20 / 10.53477
        EXPECT_EQ(label.bold, true);
        EXPECT_EQ(label.fore, 255U);
        EXPECT_GT(s.P_sin, 0.0F);
    }
}

TEST(Splitting, faults_and_what_was_stored_before_them) {
    struct Row {
        const char* name;
        float h, he, b, gm;
        int fault;
        bool F90_Rd_stored, P_sin_stored;
    };
    // clang-format off
    const Row rows[] = {
        {"he is h",                     200.0F, 200.0F, 48.0F, 1.25F, 11, false, false},
        {"he above h",                  200.0F, 201.0F, 48.0F, 1.25F,  5, false, false},
        {"he below zero",               200.0F,  -1.0F, 48.0F, 1.25F,  5, false, false},
        {"no he: no capacity",          200.0F,   0.0F, 48.0F, 1.25F, 11, true,  true},
        {"no width: no capacity",       200.0F, 150.0F,  0.0F, 1.25F, 11, true,  true},
        {"no member",                     0.0F,   0.0F,  0.0F, 1.25F, 11, false, false},
        {"no partial factor",           200.0F, 150.0F, 48.0F, 0.0F,  11, false, false},
        {"beyond a float",              200.0F, 150.0F, 3e38F, 0.001F, 6, false, false},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        ConnectionValues s = Loaded();
        s.gm = row.gm;
        s.F90_Rd = s.P_sin = s.Tverr_kontroll = -77.0F;
        Screen screen;
        EXPECT_EQ(Fault_of([&] { Tverr_brudd(s, row.h, row.he, row.b, ScreenWriter{&screen}); }), row.fault);
        EXPECT_EQ(s.F90_Rd != -77.0F, row.F90_Rd_stored);
        EXPECT_EQ(s.P_sin != -77.0F, row.P_sin_stored);
        EXPECT_EQ(s.Tverr_kontroll, -77.0F);
        EXPECT_FALSE(screen[Control::Lbl_tverr_2].caption.has_value());
    }
}

} // namespace
} // namespace tarnvik
