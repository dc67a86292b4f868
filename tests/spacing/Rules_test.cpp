#include "spacing/Rules.h"

#include <gtest/gtest.h>

#include <cmath>

#include "spacing/Catalogue.h"
#include "tests/support/Record_hash.h"

namespace tarnvik {
namespace {

using test::all_distances;

constexpr std::array<const char*, distance_count> names{"a1", "a2", "a3", "a4", "a5", "a6",
                                                        "b1", "b2", "b3", "b4", "b5", "b6"};

constexpr float compression = 10.0F;
constexpr float tension = -10.0F;

// A bolt smaller than any of the table, so that 7 d is below 80 mm.
constexpr float small = 10.0F;

// The record of a case: a bolt of 20, a connector of 62 and 5 d unless said otherwise.
ConnectionValues Record(std::string_view code, float P, float alp, float d = 20.0F, float dc = 62.0F, int spacing = 0) {
    ConnectionValues s;
    s.P = P;
    s.alp = alp;
    s.d = d;
    s.dc = dc;
    s.Avstand_index = static_cast<std::int16_t>(spacing);
    Clear_spacing(s);
    Calc_spacing(s, Find_case(code));
    return s;
}

std::string All_of(const SpacingRecord& r, Distance distance) {
    const DistanceFields& f = Fields_of(distance);
    return test::Bits(r.*f.S) + '|' + std::string{r.*f.S_txt} + '|' + test::Bits(r.*f.C) + '|' +
           std::string{r.*f.C_txt};
}

// A cell: number and text. Numbers that are not exact in binary are within half a step of the float.
void Expect_cell(float number, std::string_view text, double wanted_number, std::string_view wanted_text) {
    EXPECT_EQ(text, wanted_text);
    if (wanted_number == 0.0) {
        EXPECT_EQ(number, 0.0F);
    } else {
        EXPECT_NEAR(number, wanted_number, 6e-8 * wanted_number); // one rounding to 24 bits
    }
}

// The angle of the hand calculations: sine and cosine of alp / 57.297.
double S(double alp) {
    return std::sin(alp / 57.297);
}
double K(double alp) {
    return std::cos(alp / 57.297);
}

// ---------------------------------------------------------------- the rules, one by one

struct RuleRow {
    const char* rule;
    const char* code; // a case and a distance that the rule serves
    Distance distance;
    float P, alp, d_or_dc;
    int spacing;
    double number;
    const char* text;
};

TEST(Rules, of_the_bolts_on_both_sides_of_their_limits) {
    // clang-format off
    const RuleRow rows[] = {
        {"B1",                  "1.1. ", a1, compression,  0, 20, 0,  60,  "3 x d"},
        {"B2",                  "1.1. ", a3, compression,  0, 20, 0,  80,  "4 x d"},
        {"B3, least",           "1.2.b", a3, compression,  0, 20, 0, 100,  "5 x d"},
        {"B3, most",            "1.2.b", a3, compression,  0, 20, 15, 400, "20 x d"},
        {"B4, M12",             "1.1. ", a3, tension,      0, 12, 0,  84,  "7 x d"},
        {"B4, small bolt",      "1.1. ", a3, tension,      0, small, 0, 80, "80 mm"},
        {"B4, 7 d is 80",       "1.1. ", a3, tension,      0, 80.0F / 7.0F, 0, 80, "80 mm"},
        {"B5",                  "3.1. ", b1, compression,  0, 20, 0,  60,  "3d"},
        {"B6",                  "4.1. ", a3, compression,  0, 20, 0, 140,  "7 x d"},
        {"B6, small bolt",      "4.1. ", a3, compression,  0, small, 0, 70, "7 x d"},
        {"B7, no angle",        "1.2.a", b3, compression,  0, 20, 0, 100,  "(4+Cos alpha) x d"},
        {"B7, 60 degrees",      "1.2.a", b3, compression, 60, 20, 0, (4 + K(60)) * 20, "(4+Cos alpha) x d"},
        {"B7, obtuse",          "1.2.a", b3, compression, 120, 20, 0, (4 + K(120)) * 20, "(4+Cos alpha) x d"}, // below 4 d
        {"B8, 30 degrees",      "1.2.a", b1, tension,     30, 20, 0,  60,  "3 x d"},
        {"B8, 30.001 degrees",  "1.2.a", b1, tension, 30.001F, 20, 0, (2 + 2 * S(30.001F)) * 20, "(2+2 x Sin alpha) x d"},
        {"B9, limit",           "3.1. ", a2, tension,      0, 20, 0,  60,  "3d"},
        {"B9",                  "3.1. ", a2, tension,     45, 20, 0, (2 + 2 * S(45)) * 20, "(2+2 x Sin alpha) x d"},
        {"B15, limit",          "2.1. ", a1, compression, 30, 20, 0,  60,  "3 x d"},
        {"B15",                 "2.1. ", a1, compression, 45, 20, 0, (2 + 2 * S(45)) * 20, "(2 + 2 x Sin alpha) x d"},
        {"B18, limit",          "3.1. ", a1, compression,  0, 20, 0,  60,  "3d"},
        {"B18",                 "3.1. ", a1, compression, 45, 20, 0, (2 + 2 * S(45)) * 20, "(2 + 2 x Sin alpha) x d"},
        {"B19, limit",          "1.1. ", b1, tension,      0, 20, 0,  60,  "3 x d"},
        {"B19",                 "1.1. ", b1, tension,     45, 20, 0, (2 + 2 * S(45)) * 20, "(2+2xSin alpha) x d"},
        {"B28, 30 degrees",     "3.2.b", b4, compression, 30, 20, 0,  80,  "4d"},
        {"B28, 30.001 degrees", "3.2.b", b4, compression, 30.001F, 20, 0, (1 + 6 * S(30.001F)) * 20, "(1+6 x Sin alpha) x d"},
        {"B21, no angle",       "3.1. ", b3, compression,  0, 20, 0,  80,  "4d"},
        {"B21, right angle",    "3.1. ", b3, compression, 90, 20, 0,  80,  "4d"},
        {"B20, limit",          "1.2.a", a2, compression, 45, 20, 0,  80,  "4 x d"},
        {"B20, just at it",     "1.2.a", a2, compression, 64.55844116210938F, 20, 0, 80, "4 x d"},
        {"B20",                 "1.2.a", a2, compression, 75, 20, 0, (4 + K(75)) * 20 * S(75), "b3 x Sin alpha"},
        {"B20, right angle",    "1.2.a", a2, compression, 90, 20, 0, (4 + K(90)) * 20 * S(90), "b3 x Sin alpha"},
        {"B12, limit",          "1.3.a", a2, compression,  0, 20, 0,  80,  "4 x d"},
        {"B12",                 "1.3.a", a2, compression, 75, 20, 0, (4 + K(75)) * 20 * S(75), "b4 x Sin alpha"},
        {"B16, limit",          "1.6. ", a3, compression,  0, 20, 0,  80,  "4 x d"},
        {"B16",                 "1.6. ", a3, compression, 75, 20, 0, (4 + K(75)) * 20 * S(75), "b5 x Sin alpha"},
        {"B11, limit",          "3.2.a", b2, compression,  0, 20, 0,  80,  "4d"},
        {"B11",                 "3.2.a", b2, compression, 75, 20, 0, (4 + K(75)) * 20 * S(75), "a3 x Sin alpha"},
        {"B13, limit",          "1.2.b", b2, compression,  0, 20, 0,  80,  "4 x d"},
        {"B13, just at it",     "1.2.b", b2, compression, 53.13123321533203F, 20, 0, 80, "a3 x Sin alpha "},
        {"B13",                 "1.2.b", b2, compression, 45, 20, 7, 240 * S(45), "a3 x Sin alpha "},
        {"B22, limit",          "1.4. ", b2, compression,  0, 20, 7,  80,  "4 x d"},
        {"B22",                 "1.4. ", b2, compression, 45, 20, 7, 240 * S(45), "a4 x Sin alpha "},
        {"B23, limit",          "1.6. ", b2, compression,  0, 20, 7,  80,  "4 x d"},
        {"B23",                 "1.6. ", b2, compression, 45, 20, 7, 240 * S(45), "a5 x Sin alpha "},
        {"B24, limit",          "2.2. ", a2, compression,  0, 20, 7,  80,  "4 x d"},
        {"B24",                 "2.2. ", a2, compression, 45, 20, 7, 240 * S(45), "b3 x sin alpha "},
        {"B26, limit",          "2.4. ", a2, compression,  0, 20, 7,  80,  "4 x d"},
        {"B26",                 "2.4. ", a2, compression, 45, 20, 7, 240 * S(45), "b4 x sin alpha "},
        {"B10, limit",          "2.6. ", a2, compression,  0, 20, 7,  80,  "4 x d"},
        {"B10",                 "2.6. ", a3, compression, 45, 20, 7, 240 * S(45), "b5 x sin alpha "},
        {"B14, limit",          "3.2.b", a2, compression,  0, 20, 7,  80,  "4d"},
        {"B14",                 "3.2.b", a2, compression, 45, 20, 7, 240 * S(45), "b3 x Sin alpha "},
        {"B25, limit",          "3.4. ", a2, compression,  0, 20, 7,  80,  "4 x d"},
        {"B25",                 "3.4. ", a2, compression, 45, 20, 7, 240 * S(45), "b4 x Sin alpha "},
        {"B17, limit",          "3.6. ", a2, compression,  0, 20, 7,  80,  "4 x d"},
        {"B17",                 "3.6. ", a3, compression, 45, 20, 7, 240 * S(45), "b5 x Sin alpha "},
        {"B34",                 "1.3.a", b5, tension,      0, 20, 0,  80,  "4d"},
        {"B27",                 "2.1. ", b2, tension,      0, 20, 0,  60,  ""},
        {"B33",                 "5.3.a", a2, tension,      0, 20, 0,  60,  ""},
        {"B35",                 "1.3.a", a5, compression,  0, 20, 0,  80,  ""},
        {"B30",                 "4.3.b", b3, tension,      0, 12, 0,  84,  "7 x d"},
        {"B30, small bolt",     "4.3.b", b3, tension,      0, small, 0, 80, ""},
        {"B30, 7 d is 80",      "4.3.b", b3, tension,      0, 80.0F / 7.0F, 0, 80, ""},
        {"B31",                 "4.3.b", b4, tension,      0, 12, 0,   0,  ""},
        {"B31, small bolt",     "4.3.b", b4, tension,      0, small, 0, 0, "80 mm"},
        {"B32",                 "5.1. ", b3, tension,      0, 12, 0,  84,  "7 x d"},
        {"B32, small bolt",     "5.1. ", b3, tension,      0, small, 0, 0, "80 mm"},
        {"B32, 7 d is 80",      "5.1. ", b3, tension,      0, 80.0F / 7.0F, 0, 0, "80 mm"},
        {"B29",                 "5.1. ", b5, tension,      0, 12, 0,   0,  ""},
        {"B29, small bolt",     "5.1. ", b5, tension,      0, small, 0, 80, ""},
    };
    // clang-format on
    for (const RuleRow& row : rows) {
        SCOPED_TRACE(testing::Message() << row.rule << " at " << row.code << names[row.distance]);
        const ConnectionValues s = Record(row.code, row.P, row.alp, row.d_or_dc, 62.0F, row.spacing);
        const DistanceFields& fields = Fields_of(row.distance);
        Expect_cell(s.*fields.S, s.*fields.S_txt, row.number, row.text);
        EXPECT_EQ(s.*fields.lbl, names[row.distance]);
    }
}

TEST(Rules, of_the_connectors_on_both_sides_of_their_limits) {
    // Bolts of 20; the chosen spacing is 100 with row 0 and 240 with row 7.
    // clang-format off
    const RuleRow rows[] = {
        {"C1",                   "1.1. ", a1, compression,  0, 62, 0,  37.2, "D x 0.6"},
        {"C8",                   "4.1. ", a1, compression,  0, 62, 0,  49.6, "D x 0.8"},
        {"C2",                   "1.1. ", a3, compression,  0, 62, 0,  74.4, "D x 1.2"},
        {"C6",                   "4.1. ", a3, compression,  0, 62, 0,  93.0, "D x 1.5 "},
        {"C4",                   "1.1. ", a3, tension,      0, 62, 0, 124.0, "D x 2"},
        {"C3, chosen",           "1.2.b", a3, compression,  0, 62, 0, 100.0, "5 x d"},
        {"C3, just at it",       "1.2.b", a3, compression,  0, 160, 7, 240.0, "12 x d"},
        {"C3, above it",         "1.2.b", a3, compression,  0, 95, 0, 142.5, "D x 1.5"},
        {"C5, no angle",         "1.1. ", b1, tension,      0, 62, 0,  37.2, "Dx(0.6+0.2xSin alpha)"},
        {"C5",                   "1.1. ", b1, tension,     45, 62, 0, (0.6 + 0.2 * S(45)) * 62, "Dx(0.6+0.2xSin alpha)"},
        {"C7, no angle",         "1.2.a", b3, compression,  0, 62, 0,  93.0, "D x(1.2+0.3xCos alpha)"},
        {"C7",                   "1.2.a", b3, compression, 60, 62, 0, (1.2 + 0.3 * K(60)) * 62, "D x(1.2+0.3xCos alpha)"},
        {"C25",                  "3.2.b", b4, compression, 45, 62, 0, (0.9 + 0.6 * S(45)) * 62, "D x (0.9+0.6xSin alpha)"},
        {"C18, no angle",        "3.1. ", b3, compression,  0, 62, 0,  55.8, "D x (0.9+0.6xSin 0)"},
        {"C18, right angle",     "3.1. ", b3, compression, 90, 62, 0,  55.8, "D x (0.9+0.6xSin 0)"},
        {"C11, limit",           "3.2.a", b2, compression, 45, 62, 0,  74.4, "D x 1.2"},
        {"C11, just at it",      "3.2.a", b2, compression, 64.55844116210938F, 62, 0, 74.4, "D x 1.2"},
        {"C11",                  "3.2.a", b2, compression, 75, 62, 0, (1.2 + 0.3 * K(75)) * 62 * S(75), "a3 x Sin alpha"},
        {"C17, limit",           "1.4. ", a2, compression,  0, 62, 0,  74.4, "D x 1.2"},
        {"C17",                  "1.4. ", a2, compression, 75, 62, 0, (1.2 + 0.3 * K(75)) * 62 * S(75), "b4 x Sin alpha"},
        {"C12, limit",           "1.2.b", b2, compression, 45, 62, 0,  74.4, "D x 1.2"},
        {"C12, of the chosen",   "1.2.b", b2, compression, 45, 62, 7, 240 * S(45), "a3 x Sin alpha "},
        {"C12, of 1.5 D",        "1.2.b", b2, compression, 75, 117, 0, 175.5 * S(75), "a3 x Sin alpha "},
        {"C19, limit",           "1.4. ", b2, compression,  0, 62, 7,  74.4, "D x 1.2"},
        {"C19",                  "1.4. ", b2, compression, 45, 62, 7, 240 * S(45), "a4 x Sin alpha "},
        {"C20, limit",           "1.6. ", b2, compression,  0, 62, 7,  74.4, "D x 1.2"},
        {"C20",                  "1.6. ", b2, compression, 45, 62, 7, 240 * S(45), "a5 x Sin alpha "},
        {"C15, limit",           "2.2. ", a2, compression,  0, 62, 7,  74.4, "D x 1.2"},
        {"C15",                  "2.2. ", a2, compression, 45, 62, 7, 240 * S(45), "b3 x Sin alpha "},
        {"C9, limit",            "2.3. ", a2, compression,  0, 62, 7,  74.4, "D x 1.2"},
        {"C9",                   "2.3. ", a3, compression, 45, 62, 7, 240 * S(45), "b4 x Sin alpha "},
        {"C10, limit",           "2.6. ", a2, compression,  0, 62, 7,  74.4, "D x 1.2"},
        {"C10",                  "2.6. ", a3, compression, 45, 62, 7, 240 * S(45), "b5 x Sin alpha "},
        {"C16, limit",           "3.3.b", a2, compression,  0, 62, 7,  74.4, "D x 1.2"},
        {"C16",                  "3.3.b", a2, compression, 45, 62, 7,   0.0, "b3 x Sin alpha "},
        {"C13",                  "1.2.b", b3, tension,      0, 62, 0,  37.2, ""},
        {"C21",                  "2.1. ", b2, tension,      0, 62, 0,  37.2, ""},
        {"C14",                  "1.3.a", b3, compression, 60, 62, 0, (1.2 + 0.3 * K(60)) * 62, "D x 1.2"},
        {"C22",                  "4.2.a", b2, compression,  0, 62, 0,  74.4, "D x 0.6"},
        {"C23",                  "1.3.a", a3, compression, 60, 62, 0,  74.4, "D x(1.2+0.3xCos alpha)"},
        {"C24",                  "1.3.a", a4, compression,  0, 62, 0,   0.0, "D x 0.6"},
        {"C26",                  "1.2.a", b4, compression,  0, 62, 0, 124.0, ""},
        {"C27",                  "1.2.a", a4, compression,  0, 62, 0,  74.4, "D x 2"},
    };
    // clang-format on
    for (const RuleRow& row : rows) {
        SCOPED_TRACE(testing::Message() << row.rule << " at " << row.code << names[row.distance]);
        const ConnectionValues s = Record(row.code, row.P, row.alp, 20.0F, row.d_or_dc, row.spacing);
        const DistanceFields& fields = Fields_of(row.distance);
        Expect_cell(s.*fields.C, s.*fields.C_txt, row.number, row.text);
        EXPECT_EQ(s.*fields.lbl, names[row.distance]);
    }
}

// ---------------------------------------------------------------- what a case writes

struct CaseLabels {
    const char* code;
    const char* distances;
    const char *sum_a, *sum_b; // trailing blanks included
    int summed_a, summed_ca, summed_b;
};

// clang-format off
constexpr CaseLabels case_labels[] = {
    // case   distances                              sum a                 sum b                 of a, of ca, of b
    {"1.1. ", "a1 a2 a3 b1 b2 b3",                   "a1 + a2",            "b1 + b2",            2, 2, 2},
    {"1.2.a", "a1 a2 a3 a4 b1 b2 b3 b4",             "a1+a2+a3",           "b1 + b2 ",           3, 3, 2},
    {"1.2.b", "a1 a2 a3 a4 b1 b2 b3 b4",             "a1+a2",              "b1 + b2 +b3",        2, 2, 3},
    {"1.3.a", "a1 a2 a3 a4 a5 b1 b2 b3 b4 b5",       "a1+a2+a3+a4",        "b1 + b2 ",           4, 4, 2},
    {"1.3.b", "a1 a2 a3 a4 a5 b1 b2 b3 b4 b5",       "a1+a2",              "b1 + b2 + b3 + b4",  2, 2, 4},
    {"1.4. ", "a1 a2 a3 a4 a5 b1 b2 b3 b4 b5",       "a1+a2+a3",           "b1 + b2 +b3",        3, 3, 3},
    {"1.6. ", "a1 a2 a3 a4 a5 a6 b1 b2 b3 b4 b5 b6", "a1+a2+a3+a4",        "b1 + b2 +b3",        4, 4, 3},
    {"2.1. ", "a1 a2 b1 b2 b3 b4",                   "a1 + a2 ",           "b1+b2",              2, 2, 2},
    {"2.2. ", "a1 a2 a3 b1 b2 b3 b4",                "a1 + a2 +a3",        "b1+b2",              3, 2, 2}, // leaves out Ca3
    {"2.3. ", "a1 a2 a3 a4 b1 b2 b3 b4 b5",          "a1 + a2 +a3 + a4",   "b1+b2",              4, 4, 2},
    {"2.4. ", "a1 a2 a3 a4 b1 b2 b3 b4 b5",          "a1 + a2 +a3 ",       "b1+b2+b3",           3, 3, 3},
    {"2.6. ", "a1 a2 a3 a4 a5 b1 b2 b3 b4 b5 b6",    "a1 + a2 +a3 + a4",   "b1+b2+b3",           4, 4, 3},
    {"3.1. ", "a1 a2 b1 b2 b3",                      "a1 + a2 ",           "b1+b2",              2, 2, 2},
    {"3.2.a", "a1 a2 a3 b1 b2 b3 b4",                "a1 + a2 ",           "b1+b2+b3",           2, 2, 3},
    {"3.2.b", "a1 a2 a3 b1 b2 b3 b4",                "a1 + a2 + a3 ",      "b1+b2",              3, 3, 2},
    {"3.3.a", "a1 a2 a3 a4 b1 b2 b3 b4 b5",          "a1 + a2 ",           "b1+b2+b3+b4",        2, 2, 4},
    {"3.3.b", "a1 a2 a3 a4 b1 b2 b3 b4 b5",          "a1 + a2 + a3 + a4",  "b1+b2",              4, 4, 2},
    {"3.4. ", "a1 a2 a3 a4 b1 b2 b3 b4 b5",          "a1 + a2 + a3",       "b1+b2+b3",           3, 3, 3},
    {"3.6. ", "a1 a2 a3 a4 a5 b1 b2 b3 b4 b5 b6",    "a1 + a2 + a3 + a4",  "b1+b2+b3",           4, 4, 3},
    {"4.1. ", "a1 a2 a3 b1 b2 b3",                   "a1 + a2  ",          "b1+b2",              2, 2, 2},
    {"4.2.a", "a1 a2 a3 b1 b2 b3 b4",                "a1 + a2  ",          "b1+b2+b3",           2, 2, 3},
    {"4.2.b", "a1 a2 a3 a4 b1 b2 b3",                "a1 + a2 +a3 ",       "b1+b2",              3, 3, 2},
    {"4.3.a", "a1 a2 a3 b1 b2 b3 b4 b5",             "a1 + a2 ",           "b1+b2+b3+b4",        2, 2, 4},
    {"4.3.b", "a1 a2 a3 a4 a5 b1 b2 b3 b4",          "a1 + a2 +a3 + a4 ",  "b1+b2",              4, 4, 2},
    {"4.4. ", "a1 a2 a3 a4 b1 b2 b3 b4",             "a1 + a2 +a3 ",       "b1+b2+b3",           3, 3, 3},
    {"4.6.a", "a1 a2 a3 a4 b1 b2 b3 b4 b5",          "a1 + a2 +a3 ",       "b1+b2+b3+b4",        3, 3, 4},
    {"4.6.b", "a1 a2 a3 a4 a5 b1 b2 b3 b4",          "a1 + a2 +a3 + a4 ",  "b1+b2+b3",           4, 4, 3},
    {"5.1. ", "a1 a2 a3 b1 b2 b3 b5",                "a1 + a2 ",           "b1+b2",              2, 2, 2},
    {"5.2.a", "a1 a2 a3 b1 b2 b3 b4",                "a1 + a2 ",           "b1+b2+b3",           2, 2, 3},
    {"5.2.b", "a1 a2 a3 a4 b1 b2 b3",                "a1 + a2 + a3",       "b1+b2",              3, 3, 2},
    {"5.3.a", "a1 a2 a3 b1 b2 b3 b4 b5",             "a1 + a2  ",          "b1+b2+b3+b4",        2, 2, 4},
    {"5.3.b", "a1 a2 a3 a4 a5 b1 b2 b3 b4",          "a1 + a2 +a3 + a4 ",  "b1+b2",              4, 4, 2},
    {"5.4. ", "a1 a2 a3 a4 b1 b2 b3 b4",             "a1 + a2 +a3 ",       "b1+b2+b3",           3, 3, 3},
    {"5.6.a", "a1 a2 a3 a4 b1 b2 b3 b4 b5",          "a1 + a2 +a3 ",       "b1+b2+b3+b4",        3, 3, 4},
    {"5.6.b", "a1 a2 a3 a4 a5 b1 b2 b3 b4",          "a1 + a2 +a3 + a4 ",  "b1+b2+b3",           4, 4, 3},
};
// clang-format on

TEST(Rules, every_case_writes_its_own_distances_and_no_other) {
    ASSERT_EQ(std::size(case_labels), 35U);
    for (const CaseLabels& row : case_labels) {
        for (const float P : {compression, tension}) {
            SCOPED_TRACE(testing::Message() << row.code << ", P " << P);
            const ConnectionValues s = Record(row.code, P, 40.0F);
            for (const Distance distance : all_distances) {
                SCOPED_TRACE(names[distance]);
                const DistanceFields& fields = Fields_of(distance);
                const bool listed = std::string_view{row.distances}.find(names[distance]) != std::string_view::npos;
                EXPECT_EQ(s.*fields.lbl, listed ? names[distance] : "");
                if (!listed) {
                    EXPECT_EQ(s.*fields.S, 0.0F);
                    EXPECT_EQ(s.*fields.S_txt, "");
                    EXPECT_EQ(s.*fields.C, 0.0F);
                    EXPECT_EQ(s.*fields.C_txt, "");
                }
            }
        }
    }
}

float Added(const SpacingRecord& r, int first, int n, bool connectors) {
    double sum = 0.0;
    for (int i = 0; i < n; ++i) {
        const DistanceFields& fields = Fields_of(static_cast<Distance>(first + i));
        sum += connectors ? r.*fields.C : r.*fields.S;
    }
    return static_cast<float>(sum);
}

TEST(Rules, sums_add_what_their_label_names) {
    for (const CaseLabels& row : case_labels) {
        for (const float P : {compression, tension}) {
            SCOPED_TRACE(testing::Message() << row.code << ", P " << P);
            const ConnectionValues s = Record(row.code, P, 40.0F);
            EXPECT_EQ(s.Sum_a_txt, row.sum_a);
            EXPECT_EQ(s.Sum_b_txt, row.sum_b);
            EXPECT_EQ(s.Sum_a, Added(s, a1, row.summed_a, false));
            EXPECT_EQ(s.Sum_ca, Added(s, a1, row.summed_ca, true));
            EXPECT_EQ(s.Sum_b, Added(s, b1, row.summed_b, false));
            EXPECT_EQ(s.Sum_cb, Added(s, b1, row.summed_b, true));
            EXPECT_EQ(Sum_length_a(Find_case(row.code)), row.summed_a);
            EXPECT_EQ(Sum_length_b(Find_case(row.code)), row.summed_b);
        }
    }
}

TEST(Rules, sums_by_hand) {
    // 1.2.b, compression, no angle, bolts of 20, connectors of 62, 5 d.
    const ConnectionValues s = Record("1.2.b", compression, 0.0F);
    EXPECT_EQ(s.Sum_a, 120.0F);                                    // 60 + 60
    EXPECT_EQ(s.Sum_b, 200.0F);                                    // 60 + 80 + 60
    EXPECT_EQ(s.Sum_ca, static_cast<float>(2.0 * 37.2F));          // 74.4
    EXPECT_EQ(s.Sum_cb, static_cast<float>(37.2F + 74.4 + 37.2F)); // 148.8
}

TEST(Rules, a_force_of_exactly_zero_counts_as_tension_but_for_one_distance) {
    struct Row {
        const char* code;
        int distance; // takes the compression column at zero; -1: none
    };
    // clang-format off
    const Row rows[] = {
        {"1.1. ", -1}, {"1.2.a", -1}, {"1.2.b", b3}, {"1.3.a", -1}, {"1.3.b", b4}, {"1.4. ", b3}, {"1.6. ", b3},
        {"2.1. ", -1}, {"2.2. ", -1}, {"2.3. ", -1}, {"2.4. ", -1}, {"2.6. ", -1},
        {"3.1. ", -1}, {"3.2.a", -1}, {"3.2.b", -1}, {"3.3.a", -1}, {"3.3.b", -1}, {"3.4. ", -1}, {"3.6. ", -1},
        {"4.1. ", a2}, {"4.2.a", a2}, {"4.2.b", a3}, {"4.3.a", a2}, {"4.3.b", a4}, {"4.4. ", a3}, {"4.6.a", a3}, {"4.6.b", a4},
        {"5.1. ", a1}, {"5.2.a", a1}, {"5.2.b", a3}, {"5.3.a", a1}, {"5.3.b", a4}, {"5.4. ", a1}, {"5.6.a", a1}, {"5.6.b", a4},
    };
    // clang-format on
    ASSERT_EQ(std::size(rows), 35U);
    for (const Row& row : rows) {
        for (const float zero : {0.0F, -0.0F}) {
            const ConnectionValues at_zero = Record(row.code, zero, 45.0F);
            const ConnectionValues pulled = Record(row.code, -1e-30F, 45.0F);
            const ConnectionValues pressed = Record(row.code, 1e-30F, 45.0F);
            for (const Distance distance : all_distances) {
                SCOPED_TRACE(testing::Message() << row.code << names[distance]);
                if (distance == row.distance) {
                    EXPECT_EQ(All_of(at_zero, distance), All_of(pressed, distance));
                    EXPECT_NE(All_of(at_zero, distance), All_of(pulled, distance)); // both cells of it, and they differ
                } else {
                    EXPECT_EQ(All_of(at_zero, distance), All_of(pulled, distance));
                }
            }
        }
    }
}

// ---------------------------------------------------------------- required irregularities, bolts of 20, connectors of
// 62

TEST(Rules_irregular, case_1_2_a_compression_puts_the_connector_text_of_b4_to_a4) {
    const ConnectionValues s = Record("1.2.a", compression, 40.0F);
    EXPECT_EQ(s.Ca4, 74.4F);
    EXPECT_EQ(s.Ca4_txt, "D x 2");
    EXPECT_EQ(s.Cb4, 124.0F);
    EXPECT_EQ(s.Cb4_txt, "");
    const ConnectionValues pulled = Record("1.2.a", tension, 40.0F);
    EXPECT_EQ(pulled.Ca4, 124.0F);
    EXPECT_EQ(pulled.Ca4_txt, "D x 2");
    EXPECT_EQ(pulled.Cb4, 74.4F);
    EXPECT_EQ(pulled.Cb4_txt, "D x 1.2");
}

TEST(Rules_irregular, the_connector_a2_of_1_2_a_1_3_a_and_1_6_never_meets_its_angle_limit) {
    for (const char* code : {"1.2.a", "1.3.a", "1.6. "}) {
        for (const float alp : {0.0F, 45.0F, 75.0F, 90.0F}) {
            SCOPED_TRACE(testing::Message() << code << " at " << alp);
            const ConnectionValues s = Record(code, compression, alp);
            EXPECT_EQ(s.Ca2, 74.4F);
            EXPECT_EQ(s.Ca2_txt, "D x 1.2");
            EXPECT_EQ(s.Sa2 > 80.0F, alp >= 75.0F); // the bolt has the limit
        }
    }
}

TEST(Rules_irregular, the_text_of_0_6_D_of_the_connector_is_not_written_in_three_cases) {
    for (const char* code : {"1.2.b", "1.6. "}) {
        SCOPED_TRACE(code);
        const ConnectionValues s = Record(code, tension, 40.0F);
        EXPECT_EQ(s.Cb3, 37.2F);
        EXPECT_EQ(s.Cb3_txt, "");
        EXPECT_EQ(s.Cb1_txt, "Dx(0.6+0.2xSin alpha)");
    }
    const ConnectionValues s = Record("1.4. ", compression, 40.0F);
    EXPECT_EQ(s.Cb1, 37.2F);
    EXPECT_EQ(s.Cb1_txt, "");
    EXPECT_EQ(Record("1.4. ", tension, 40.0F).Cb3_txt, "D x 0.6");
}

TEST(Rules_irregular, case_1_3_a_exchanges_the_connector_texts_of_a3_and_b3) {
    const ConnectionValues s = Record("1.3.a", compression, 60.0F);
    EXPECT_EQ(s.Ca3, 74.4F);
    EXPECT_EQ(s.Ca3_txt, "D x(1.2+0.3xCos alpha)");
    const auto along = static_cast<float>((1.2 + 0.3 * K(60.0)) * 62.0);
    EXPECT_EQ(s.Cb3, along);
    EXPECT_EQ(s.Cb3_txt, "D x 1.2");
    EXPECT_EQ(s.Cb4, along);
    EXPECT_EQ(s.Cb4_txt, "D x 1.2");
}

TEST(Rules_irregular, case_1_3_a_never_writes_the_connector_number_of_a4) {
    for (const float P : {compression, tension}) {
        const ConnectionValues s = Record("1.3.a", P, 40.0F);
        EXPECT_EQ(s.Ca4, 0.0F);
        EXPECT_EQ(s.Ca4_txt, "D x 0.6");
        EXPECT_EQ(s.Sum_ca, static_cast<float>(37.2F + 2.0 * 74.4F)); // a4 as 0
    }
}

TEST(Rules_irregular, case_1_3_a_texts_of_the_end_distances) {
    const ConnectionValues pressed = Record("1.3.a", compression, 40.0F);
    EXPECT_EQ(pressed.Sa5, 80.0F);
    EXPECT_EQ(pressed.Sa5_txt, ""); // stays empty
    const ConnectionValues pulled = Record("1.3.a", tension, 40.0F);
    EXPECT_EQ(pulled.Sb5, 80.0F);
    EXPECT_EQ(pulled.Sb5_txt, "4d"); // where the other rows read "4 x d"
    EXPECT_EQ(pulled.Sa2_txt, "4 x d");
}

TEST(Rules_irregular, case_2_1_has_no_texts_at_b2_and_writes_the_connector_b3_to_b4_in_compression) {
    for (const float P : {compression, tension}) {
        const ConnectionValues s = Record("2.1. ", P, 40.0F);
        EXPECT_EQ(s.Sb2, 60.0F);
        EXPECT_EQ(s.Sb2_txt, "");
        EXPECT_EQ(s.Cb2, 37.2F);
        EXPECT_EQ(s.Cb2_txt, "");
    }
    const ConnectionValues pressed = Record("2.1. ", compression, 40.0F);
    EXPECT_EQ(pressed.Sb3, 80.0F);
    EXPECT_EQ(pressed.Sb3_txt, "4 x d");
    EXPECT_EQ(pressed.Cb3, 0.0F);
    EXPECT_EQ(pressed.Cb3_txt, "");
    EXPECT_EQ(pressed.Sb4, 0.0F);
    EXPECT_EQ(pressed.Cb4, 74.4F);
    EXPECT_EQ(pressed.Cb4_txt, "D x 1.2");
    const ConnectionValues pulled = Record("2.1. ", tension, 40.0F);
    EXPECT_EQ(pulled.Cb3, 124.0F);
    EXPECT_EQ(pulled.Cb3_txt, "D x 2");
    EXPECT_EQ(pulled.Cb4, 0.0F);
    EXPECT_EQ(pulled.Cb4_txt, "");
}

TEST(Rules_irregular, case_2_2_leaves_a3_out_of_the_connector_sum) {
    const ConnectionValues s = Record("2.2. ", compression, 0.0F);
    EXPECT_EQ(s.Sum_a_txt, "a1 + a2 +a3");
    EXPECT_EQ(s.Sum_a, 200.0F); // 60 + 80 + 60
    EXPECT_EQ(s.Ca3, 37.2F);
    EXPECT_EQ(s.Sum_ca, static_cast<float>(37.2F + 74.4F)); // 111.6, not 148.8
}

TEST(Rules_irregular, case_2_3_names_b5_at_the_limited_a2_and_takes_b4) {
    const ConnectionValues s = Record("2.3. ", compression, 45.0F, 20.0F, 62.0F, 7);
    EXPECT_EQ(s.Sa2_txt, "b5 x sin alpha ");
    EXPECT_EQ(s.Sa2, static_cast<float>(240.0 * S(45.0)));
    EXPECT_EQ(s.Sb4, 240.0F);
    EXPECT_EQ(s.Sb3, s.Sb4);
    EXPECT_NE(s.Sb5, s.Sb4); // b5 is the end distance
}

TEST(Rules_irregular, case_3_3_b_shows_no_number_where_the_connector_spacing_governs) {
    const ConnectionValues s = Record("3.3.b", compression, 45.0F, 20.0F, 62.0F, 7);
    for (const Distance distance : {a2, a3}) {
        const DistanceFields& fields = Fields_of(distance);
        EXPECT_EQ(s.*fields.C, 0.0F);
        EXPECT_EQ(s.*fields.C_txt, "b3 x Sin alpha ");
        EXPECT_EQ(s.*fields.S, static_cast<float>(240.0 * S(45.0))); // the bolts are not concerned
    }
    EXPECT_EQ(s.Sum_ca, static_cast<float>(static_cast<double>(s.Ca1) + s.Ca4));
    const ConnectionValues below = Record("3.3.b", compression, 0.0F, 20.0F, 62.0F, 7);
    EXPECT_EQ(below.Ca2, 74.4F);
    EXPECT_EQ(below.Ca2_txt, "D x 1.2");
}

TEST(Rules_irregular, case_4_2_a_puts_the_connector_text_of_b3_to_b2) {
    for (const float P : {compression, tension}) {
        const ConnectionValues s = Record("4.2.a", P, 90.0F);
        EXPECT_EQ(s.Cb2, 74.4F);
        EXPECT_EQ(s.Cb2_txt, "D x 0.6");
        EXPECT_EQ(s.Cb3, 37.2F);
        EXPECT_EQ(s.Cb3_txt, "");
    }
}

TEST(Rules_irregular, case_4_3_b_and_5_3_b_in_tension_put_80_mm_to_b4) {
    for (const char* code : {"4.3.b", "5.3.b"}) {
        SCOPED_TRACE(code);
        const ConnectionValues s = Record(code, tension, 90.0F, small);
        EXPECT_EQ(s.Sb3, 80.0F);
        EXPECT_EQ(s.Sb3_txt, "");
        EXPECT_EQ(s.Sb4, 0.0F);
        EXPECT_EQ(s.Sb4_txt, "80 mm");
        const ConnectionValues pressed = Record(code, compression, 90.0F, small);
        EXPECT_EQ(pressed.Sb3, 40.0F);
        EXPECT_EQ(pressed.Sb3_txt, "4 x d");
        EXPECT_EQ(pressed.Sb4_txt, "");
    }
}

TEST(Rules_irregular, case_5_1_in_tension_puts_80_to_b5) {
    const ConnectionValues s = Record("5.1. ", tension, 90.0F, small);
    EXPECT_EQ(s.Sb3, 0.0F);
    EXPECT_EQ(s.Sb3_txt, "80 mm");
    EXPECT_EQ(s.Sb5, 80.0F);
    EXPECT_EQ(s.Sb5_txt, "");
    const ConnectionValues pressed = Record("5.1. ", compression, 90.0F, small);
    EXPECT_EQ(pressed.Sb3, 40.0F);
    EXPECT_EQ(pressed.Sb5, 0.0F);
}

TEST(Rules_irregular, case_5_3_a_in_tension_has_no_text_at_a2) {
    const ConnectionValues s = Record("5.3.a", tension, 90.0F);
    EXPECT_EQ(s.Sa2, 60.0F);
    EXPECT_EQ(s.Sa2_txt, "");
    EXPECT_EQ(s.Ca2, 37.2F);
    EXPECT_EQ(s.Ca2_txt, "");
    EXPECT_EQ(s.Sa3, 140.0F);
    EXPECT_EQ(s.Sa3_txt, "7 x d"); // overwritten there
    EXPECT_EQ(s.Ca3_txt, "D x 1.5 ");
    const ConnectionValues pressed = Record("5.3.a", compression, 90.0F);
    EXPECT_EQ(pressed.Sa2_txt, "4 x d");
    EXPECT_EQ(pressed.Ca2_txt, "D x 0.8");
}

TEST(Rules_irregular, do_not_show_with_the_bolts_of_the_table) {
    for (const BoltRow& bolt : bolt_table) { // d at least 12: 7 d at least 84
        for (const char* code : {"4.3.b", "5.3.b", "5.1. "}) {
            SCOPED_TRACE(testing::Message() << code << " with " << bolt.caption);
            const ConnectionValues s = Record(code, tension, 90.0F, bolt.d);
            EXPECT_EQ(s.Sb3, 7.0F * bolt.d);
            EXPECT_EQ(s.Sb3_txt, "7 x d");
            EXPECT_EQ(s.Sb4_txt, "");
            EXPECT_EQ(s.Sb5, 0.0F);
        }
    }
}

// ---------------------------------------------------------------- edges

TEST(Rules, bolts_smaller_than_M12_keep_80_mm_at_a_loaded_end) {
    struct Row {
        const char* code;
        Distance tension_end,
            compression_end; // the end distance by rule B4; the same one twice where there is one only
    };
    // clang-format off
    const Row rows[] = {
        {"1.1. ", a3, b3}, {"1.2.a", a4, b4}, {"1.2.b", a4, b4}, {"1.3.a", a5, b5}, {"1.3.b", a5, b5}, {"1.4. ", a5, b5},
        {"1.6. ", a6, b6},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.code);
        for (const float d : {8.0F, 10.0F, 11.4F}) {
            const ConnectionValues pulled = Record(row.code, tension, 40.0F, d);
            EXPECT_EQ(pulled.*Fields_of(row.tension_end).S, 80.0F);
            EXPECT_EQ(pulled.*Fields_of(row.tension_end).S_txt, "80 mm");
            EXPECT_EQ(pulled.*Fields_of(row.compression_end).S, 4.0F * d);
            const ConnectionValues pressed = Record(row.code, compression, 40.0F, d);
            EXPECT_EQ(pressed.*Fields_of(row.compression_end).S, 80.0F);
            EXPECT_EQ(pressed.*Fields_of(row.compression_end).S_txt, "80 mm");
            EXPECT_EQ(pressed.*Fields_of(row.tension_end).S, 4.0F * d);
        }
    }
    const std::pair<const char*, Distance> others[] = {
        {"2.1. ", b3}, {"2.2. ", b4}, {"2.3. ", b5}, {"2.4. ", b5}, {"2.6. ", b6}, {"3.1. ", b3}, {"3.2.a", b4},
        {"3.2.b", b4}, {"3.3.a", b5}, {"3.3.b", b5}, {"3.4. ", b5}, {"3.6. ", b6}, {"4.1. ", b3}, {"4.2.a", b4},
        {"4.2.b", b3}, {"4.3.a", b5}, {"4.4. ", b4}, {"4.6.a", b5}, {"4.6.b", b4}, {"5.2.a", b4}, {"5.2.b", b3},
        {"5.3.a", b5}, {"5.4. ", b4}, {"5.6.a", b5}, {"5.6.b", b4},
    };
    for (const auto& [code, end] : others) {
        SCOPED_TRACE(code);
        const ConnectionValues s = Record(code, tension, 40.0F, small);
        EXPECT_EQ(s.*Fields_of(end).S, 80.0F);
        EXPECT_EQ(s.*Fields_of(end).S_txt, "80 mm");
    }
}

TEST(Rules, thirty_degrees_lies_just_under_a_half) {
    struct Row {
        float alp;
        const char *edge, *end;
    };
    // clang-format off
    const Row rows[] = {
        {30.0F,    "3 x d",                 "4d"},
        {30.0006F, "3 x d",                 "4d"},
        {30.001F,  "(2+2 x Sin alpha) x d", "(1+6 x Sin alpha) x d"},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.alp);
        EXPECT_EQ(Record("1.2.a", tension, row.alp).Sb1_txt, row.edge);
        EXPECT_EQ(Record("3.2.b", compression, row.alp).Sb4_txt, row.end);
    }
}

TEST(Rules, no_angle) {
    const ConnectionValues s = Record("1.4. ", compression, 0.0F, 20.0F, 62.0F, 15);
    EXPECT_EQ(s.Sb4, 100.0F); // 5 d
    EXPECT_EQ(s.Cb4, 93.0F);  // 1.5 D
    EXPECT_EQ(s.Sb2, 80.0F);  // 4 d, however far the chosen spacing goes
    EXPECT_EQ(s.Sb2_txt, "4 x d");
    EXPECT_EQ(s.Cb2, 74.4F); // 1.2 D
    EXPECT_EQ(s.Cb2_txt, "D x 1.2");
}

TEST(Rules, a_right_angle_is_slightly_less) {
    // K = 0.0000335, S = 0.9999999994
    const ConnectionValues s = Record("1.2.a", compression, 90.0F);
    EXPECT_EQ(s.Sb3, static_cast<float>((4.0 + 3.345962907e-5) * 20.0));
    EXPECT_GT(s.Sb3, 80.0F);
    EXPECT_EQ(s.Sa2_txt, "b3 x Sin alpha");
    EXPECT_GT(s.Cb3, 74.4F);
}

TEST(Rules, cosines_keep_their_sign) {
    const ConnectionValues s = Record("1.2.a", compression, 150.0F);
    EXPECT_LT(s.Sb3, 80.0F);
    EXPECT_LT(s.Cb3, 74.4F);
}

TEST(Rules, types_4_and_5_do_not_use_the_angle) {
    for (const CaseLabels& row : case_labels) {
        if (row.code[0] != '4' && row.code[0] != '5') {
            continue;
        }
        for (const float P : {compression, tension}) {
            SCOPED_TRACE(testing::Message() << row.code << ", P " << P);
            const std::string right = test::Record_text(Record(row.code, P, 90.0F));
            for (const float alp : {0.0F, 27.0F, 45.0F, 135.0F, -30.0F}) {
                EXPECT_EQ(test::Record_text(Record(row.code, P, alp)), right);
            }
        }
    }
}

TEST(Rules, the_literal_angle_of_type_3_prints_sin_0_and_does_not_move) {
    for (const char* code : {"3.1. ", "3.2.a", "3.3.a"}) {
        const Distance end = code[2] == '1' ? b3 : code[2] == '2' ? b4 : b5;
        const DistanceFields& fields = Fields_of(end);
        for (const float alp : {0.0F, 45.0F, 90.0F}) {
            SCOPED_TRACE(testing::Message() << code << " at " << alp);
            const ConnectionValues s = Record(code, compression, alp);
            EXPECT_EQ(s.*fields.S, 80.0F);
            EXPECT_EQ(s.*fields.S_txt, "4d");
            EXPECT_EQ(s.*fields.C, static_cast<float>(0.9 * 62.0));
            EXPECT_EQ(s.*fields.C_txt, "D x (0.9+0.6xSin 0)");
        }
    }
    for (const char* code : {"3.2.b", "3.3.b"}) { // with a row along the grain the angle counts
        const DistanceFields& fields = Fields_of(code[2] == '2' ? b4 : b5);
        SCOPED_TRACE(code);
        const ConnectionValues s = Record(code, compression, 90.0F);
        EXPECT_EQ(s.*fields.S, 140.0F);
        EXPECT_EQ(s.*fields.C, 93.0F);
    }
}

TEST(Rules, a_connector_spacing_may_exceed_the_chosen_one) {
    const ConnectionValues s = Record("1.2.b", compression, 0.0F, 12.0F, 95.0F, 0);
    EXPECT_EQ(s.Sa3, 60.0F); // and that one counts in the rows
    EXPECT_EQ(s.Sa3_txt, "5 x d");
    EXPECT_EQ(s.Ca3, 142.5F);
    EXPECT_EQ(s.Ca3_txt, "D x 1.5");
    const ConnectionValues larger = Record("1.2.b", compression, 0.0F, 12.0F, 95.0F, 7);
    EXPECT_EQ(larger.Ca3, 144.0F);
    EXPECT_EQ(larger.Ca3_txt, larger.Sa3_txt);
}

TEST(Rules, both_kinds_are_computed_whatever_the_connection_uses) {
    for (const bool bulldog : {false, true}) {
        ConnectionValues s;
        s.d = 20.0F;
        s.dc = 62.0F;
        s.Med_bulldog = bulldog;
        s.Kun_bolt = !bulldog;
        Calc_spacing(s, Find_case("1.1. "));
        EXPECT_EQ(s.Sa1, 60.0F);
        EXPECT_EQ(s.Ca1, 37.2F);
    }
}

TEST(Rules, cases_that_share_a_routine_have_the_same_record) {
    for (const float P : {compression, tension, 0.0F}) {
        EXPECT_EQ(test::Record_text(Record("4.3.b", P, 90.0F)), test::Record_text(Record("5.3.b", P, 90.0F)));
        EXPECT_EQ(test::Record_text(Record("4.6.b", P, 90.0F)), test::Record_text(Record("5.6.b", P, 90.0F)));
    }
    // These share the table and not the label of the sum.
    EXPECT_EQ(Record("4.2.b", tension, 90.0F).Sum_a_txt, "a1 + a2 +a3 ");
    EXPECT_EQ(Record("5.2.b", tension, 90.0F).Sum_a_txt, "a1 + a2 + a3");
}

TEST(Rules, chosen_spacing) {
    ConnectionValues s;
    s.d = 12.0F;
    for (int i = 0; i <= 15; ++i) {
        SCOPED_TRACE(i);
        s.Avstand_index = static_cast<std::int16_t>(i);
        float value = 0.0F;
        std::string_view text;
        Get_N_d(s, value, text);
        EXPECT_EQ(value, static_cast<float>((i + 5) * 12));
        EXPECT_EQ(text, std::to_string(i + 5) + " x d");
    }
    for (const int i : {-1, 16, 32767, -32768}) {
        SCOPED_TRACE(i);
        s.Avstand_index = static_cast<std::int16_t>(i);
        float value = 7.0F;
        std::string_view text = "before";
        Get_N_d(s, value, text);
        EXPECT_EQ(value, 7.0F);
        EXPECT_EQ(text, "before");
    }
}

TEST(Rules, clearing_empties_the_whole_record) {
    ConnectionValues s = Record("1.6. ", tension, 40.0F);
    ASSERT_NE(s.Sum_cb, 0.0F);
    Clear_spacing(s);
    EXPECT_EQ(test::Record_text(s), test::Record_text(SpacingRecord{}));
    EXPECT_EQ(s.d, 20.0F); // the state around it stays
}

TEST(Rules, the_places_of_the_record_are_its_members) {
    SpacingRecord r;
    r.Sa1_lbl = "label";
    r.Sa1 = 1.0F;
    r.Sa1_txt = "bolts";
    r.Ca1 = 2.0F;
    r.Ca1_txt = "connectors";
    const DistanceFields& first = Fields_of(a1);
    EXPECT_EQ(r.*first.lbl, "label");
    EXPECT_EQ(r.*first.S, 1.0F);
    EXPECT_EQ(r.*first.S_txt, "bolts");
    EXPECT_EQ(r.*first.C, 2.0F);
    EXPECT_EQ(r.*first.C_txt, "connectors");
    r.Sb6 = 3.0F;
    r.Cb6 = 4.0F;
    EXPECT_EQ(r.*Fields_of(b6).S, 3.0F);
    EXPECT_EQ(r.*Fields_of(b6).C, 4.0F);
}

} // namespace
} // namespace tarnvik
