#include "calc/Text.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>

#include "tests/support/Calculation.h"

namespace tarnvik {
namespace {

using test::Fault_of;

std::string Formatted(float value, std::string_view picture) {
    return std::string{Format(value, picture).View()};
}

// The sign goes back to the point, so that no other test depends on the order.
class DecimalComma : public testing::Test {
protected:
    void SetUp() override { Set_decimal_sign(','); }
    void TearDown() override { Set_decimal_sign('.'); }
};

TEST(FixedText, is_blank_padded_on_the_right_and_cut_to_its_length) {
    EXPECT_EQ(FixedText<5>{}.View(), "     ");
    EXPECT_EQ(FixedText<5>{"1.1."}.View(), "1.1. ");
    EXPECT_EQ(FixedText<3>{"English"}.View(), "Eng");
    EXPECT_EQ(FixedText<1>{""}.View(), " ");
    EXPECT_EQ(FixedText<20>{"Permanent action"}.View(), "Permanent action    ");
    EXPECT_EQ(FixedText<20>{"Instantaneous action"}.View(), "Instantaneous action");
}

TEST(FixedText, takes_one_of_another_length) {
    FixedText<15> shorter;
    shorter = FixedText<20>{"Instantaneous action"};
    EXPECT_EQ(shorter.View(), "Instantaneous a");
    FixedText<20> longer;
    longer = shorter;
    EXPECT_EQ(longer.View(), "Instantaneous a     ");
}

TEST(FixedText, counts_characters_not_bytes) {
    EXPECT_EQ(FixedText<9>{"Halvårslast"}.View(), "Halvårsla");
    EXPECT_EQ(FixedText<5>{"Øye"}.View(), "Øye  ");
    EXPECT_EQ(FixedText<2>{"–€–"}.View(), "–€");
    EXPECT_EQ(FixedText<20>{"Øyeblikkslast "}.View().size(), 21U); // 20 characters, one of two bytes
}

TEST(FixedText, compares_as_a_padded_text) {
    EXPECT_TRUE(FixedText<5>{"1.1."} == "1.1. ");
    EXPECT_TRUE(FixedText<5>{"1.1. "} == "1.1.");
    EXPECT_FALSE(FixedText<5>{"1.2.a"} == "1.2.b");
    EXPECT_TRUE(FixedText<3>{} == "");
    EXPECT_TRUE(FixedText<3>{"Eng"} == FixedText<3>{"Eng"});
    EXPECT_FALSE(FixedText<3>{"Eng"} == "eng");
}

TEST(FixedText, keeps_a_damaged_sequence_within_its_length) {
    const FixedText<2> text{std::string_view{"\x80\x80\x80\x80\x80\x80\x80\x80\x80", 9}};
    EXPECT_LE(text.View().size(), 8U);
    EXPECT_EQ(FixedText<3>{"\xC3"}.View(), "\xC3  ");
}

TEST(Text, counts_and_cuts_characters) {
    EXPECT_EQ(Character_count(""), 0U);
    EXPECT_EQ(Character_count("Halvårslast"), 11U);
    EXPECT_EQ(Character_count("€"), 1U);
    EXPECT_EQ(First_characters("Halvårslast", 9), "Halvårsla");
    EXPECT_EQ(First_characters("Halvårslast", 5), "Halvå");
    EXPECT_EQ(First_characters("abc", 3), "abc");
    EXPECT_EQ(First_characters("abc", 9), "abc");
    EXPECT_EQ(First_characters("å", 0), "");
}

TEST(Text, trims_blanks_and_nothing_else) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("    "), "");
    EXPECT_EQ(Trim("\ta "), "\ta");
    EXPECT_EQ(Right_trim("  a  "), "  a");
    EXPECT_EQ(Right_trim(""), "");
}

TEST(Str_to_num, takes_the_longest_numeric_prefix) {
    struct Row {
        const char* text;
        float value;
    };
    // clang-format off
    const Row rows[] = {
        {"12,5",       12.5F},
        {"12.5",       12.5F},
        {"12abc",      12.0F},
        {"abc",        0.0F},
        {"",           0.0F},
        {"    ",       0.0F},
        {"  98  ",     98.0F},
        {" 98 mm",     98.0F},
        {"5.",         5.0F},
        {".75",        0.75F},
        {",75",        0.75F},
        {"1.2.3",      1.2F},
        {"1,2,3",      1.2F},
        {"1.000,5",    1.0F},
        {"1 000",      1.0F},
        {"+70",        70.0F},
        {"-45",        -45.0F},
        {"--45",       0.0F},
        {"- 45",       0.0F},
        {".",          0.0F},
        {",",          0.0F},
        {"-",          0.0F},
        {"-.5",        -0.5F},
        {"100,55",     100.55F},
        {"0",          0.0F},
        {"007",        7.0F},
        {"1e2",        100.0F},
        {"1,5E+2x",    150.0F},
        {"25e-1",      2.5F},
        {"1e",         1.0F},
        {"1e+",        1.0F},
        {"0x10",       0.0F},
        {"inf",        0.0F},
        {"nan",        0.0F},
        {"\t5",        0.0F},
        {"16777217",   16777216.0F},
        {"340282346638528859811704183484516925440", 0x1.fffffep127F},
        {"1e-60",      0.0F},
        {"1e-400",     0.0F},
        {"1e-99999999999999999999", 0.0F},
        {"0.000000000001e12", 1.0F},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(Str_to_num(row.text), row.value);
    }
}

TEST(Str_to_num, overflows_where_no_float_holds_the_number) {
    for (const char* text : {"1e39", "-1e39", "3.5e38", "1e400", "0.0001e500", "1e99999999999999999999",
                             "400000000000000000000000000000000000000"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(Fault_of([&] { Str_to_num(text); }), 6);
    }
}

TEST_F(DecimalComma, does_not_change_what_str_to_num_reads) {
    EXPECT_EQ(Str_to_num("12.5"), 12.5F);
    EXPECT_EQ(Str_to_num("12,5"), 12.5F);
}

TEST(Regional_to_num, wants_one_number_with_the_regional_sign) {
    EXPECT_EQ(Regional_to_num("12.5"), 12.5F);
    EXPECT_EQ(Regional_to_num("  48 "), 48.0F);
    EXPECT_EQ(Regional_to_num("-1e2"), -100.0F);
    for (const char* text : {"", "  ", "12,5", "12abc", "abc", "1.2.3", "1 000", "."}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(Fault_of([&] { Regional_to_num(text); }), 13);
    }
    EXPECT_EQ(Fault_of([] { Regional_to_num("1e39"); }), 6);
}

TEST_F(DecimalComma, is_the_sign_that_regional_to_num_wants) {
    EXPECT_EQ(Regional_to_num("12,5"), 12.5F);
    EXPECT_EQ(Regional_to_num("48"), 48.0F);
    EXPECT_EQ(Fault_of([] { Regional_to_num("12.5"); }), 13);
}

TEST(Format, shows_a_number_by_its_picture) {
    struct Row {
        const char* name;
        float value;
        const char* picture;
        const char* text;
    };
    // clang-format off
    const Row rows[] = {
        {"whole number",              7.0F,       "0",     "7"},
        {"zero",                      0.0F,       "0",     "0"},
        {"two digits at least",       7.0F,       "00",    "07"},
        {"two digits at least, zero", 0.0F,       "00",    "00"},
        {"more digits than zeros",    140.0F,     "00",    "140"},
        {"leading blanks",            80.0F,      "  00",  "  80"},
        {"leading blanks, a digit",   5.0F,       "  00",  "  05"},
        {"leading blanks, not set",   0.0F,       "  00",  "  00"},
        {"trailing blank",            330.0F,     "0 ",    "330 "},
        {"trailing blank",            60.0F,      "0.0 ",  "60.0 "},
        {"trailing blank",            1.3F,       "0.00 ", "1.30 "},
        {"zero with decimals",        0.0F,       "0.00 ", "0.00 "},
        {"zero with a decimal",       0.0F,       "0.0",   "0.0"},
        {"below one",                 0.07F,      "0.00",  "0.07"},
        {"below the last decimal",    0.004F,     "0.00",  "0.00"},
        {"carries over",              9.996F,     "0.00",  "10.00"},
        {"carries over",              99.96F,     "0.0",   "100.0"},
        {"no digit for zero",         0.0F,       "#",     ""},
        {"a digit otherwise",         3.0F,       "#",     "3"},
        {"several digits",            12.0F,      "#",     "12"},
        {"rounds to zero",            0.4F,       "#",     ""},
        {"negative",                  -36.0F,     "0",     "-36"},
        {"negative, two digits",      -5.0F,      "00",    "-05"},
        {"negative, decimals",        -0.07F,     "0.00",  "-0.07"},
        {"negative, rounds to zero",  -0.04F,     "0.0",   "0.0"},
        {"negative zero",             -0.0F,      "0.0",   "0.0"},
        // halves, exact in binary, away from zero
        {"half",                      0.5F,       "0",     "1"},
        {"half of an odd one",        1.5F,       "0",     "2"},
        {"half of an even one",       2.5F,       "0",     "3"},
        {"negative half",             -0.5F,      "0",     "-1"},
        {"negative half",             -2.5F,      "0",     "-3"},
        {"half, no digit for zero",   0.5F,       "#",     "1"},
        {"half a tenth",              0.25F,      "0.0",   "0.3"},
        {"half a tenth",              0.75F,      "0.0",   "0.8"},
        {"half a tenth",              100.25F,    "0.0",   "100.3"},
        {"negative half a tenth",     -100.25F,   "0.0",   "-100.3"},
        {"half a hundredth",          0.125F,     "0.00",  "0.13"},
        {"half a hundredth",          0.375F,     "0.00 ", "0.38 "},
        {"half of a large one",       8388607.5F, "0",     "8388608"},
        // the stored float decides, not the decimal that was typed
        {"stored just above a half",  0.15F,      "0.0",   "0.2"},  // 0.150000006
        {"stored just above a half",  0.85F,      "0.0",   "0.9"},  // 0.850000024
        {"stored just below a half",  0.35F,      "0.0",   "0.3"},  // 0.349999994
        {"stored just below a half",  0.45F,      "0.0",   "0.4"},  // 0.449999988
        {"stored just below a half",  45.05F,     "0.0",   "45.0"}, // 45.0499992
        {"stored just below a half",  2.675F,     "0.00",  "2.67"}, // 2.67499995
        {"stored just below a half",  1.005F,     "0.00 ", "1.00 "}, // 1.00499999523
        {"stored just above a half",  7.005F,     "0.00 ", "7.01 "}, // 7.00500011
        {"stored just below a half",  9.995F,     "0.00",  "9.99"}, // 9.99499989
        {"typed section",             100.55F,    "0.0",   "100.6"}, // 100.550003
        {"a hair above the limit",    0x1.000002p0F, "0.00 ", "1.00 "},
        // huge
        {"beyond 2^24",               16777216.0F, "0.00 ", "16777216.00 "},
        {"beyond 2^40",               0x1p41F,    "0.0",   "2199023255552.0"},
        {"1e20 as stored",            1e20F,      "0",     "100000002004087734272"},
        {"1e20 with decimals",        1e20F,      "0.00 ", "100000002004087734272.00 "},
        {"largest float",             0x1.fffffep127F, "0.0", "340282346638528859811704183484516925440.0"},
        {"largest negative float",    -0x1.fffffep127F, "0", "-340282346638528859811704183484516925440"},
        {"smallest float",            0x1p-149F,  "0.00",  "0.00"},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.name << ": " << row.value << " by \"" << row.picture << '"');
        EXPECT_EQ(Formatted(row.value, row.picture), row.text);
    }
}

TEST_F(DecimalComma, stands_in_every_number_text) {
    EXPECT_EQ(Decimal_sign(), ',');
    EXPECT_EQ(Formatted(100.6F, "0.0"), "100,6");
    EXPECT_EQ(Formatted(0.0F, "0.00 "), "0,00 ");
    EXPECT_EQ(Formatted(-1.25F, "0.0"), "-1,3");
    EXPECT_EQ(Formatted(1e20F, "0.0"), "100000002004087734272,0");
    EXPECT_EQ(Formatted(7.0F, "00"), "07");
}

TEST_F(DecimalComma, leaves_the_shortest_form_alone) {
    EXPECT_EQ(Shortest(0.1F).View(), "0.1");
}

TEST(Shortest, is_the_shortest_text_that_reads_back) {
    struct Row {
        float value;
        const char* text;
    };
    // clang-format off
    const Row rows[] = {
        {0.0F,                 "0"},
        {0.1F,                 "0.1"},
        {21.648000717163086F,  "21.648"},
        {579280.9375F,         "579280.94"},
        {100.0F,               "100"},
        {-36.0F,               "-36"},
        {1e20F,                "1e+20"},
        {16777216.0F,          "16777216"},
        {0x1.fffffep127F,      "3.4028235e+38"},
        {0x1p-149F,            "1e-45"},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(Shortest(row.value).View(), row.text);
    }
    // Every finite float reads back to the same bits: a walk through the patterns with a step that hits all exponents.
    for (std::uint32_t pattern = 0; pattern < 0x7f800000U; pattern += 104729U) {
        const auto value = std::bit_cast<float>(pattern);
        const ShortText text = Shortest(value);
        float back = 0.0F;
        const std::string_view digits = text.View();
        std::from_chars(digits.data(), digits.data() + digits.size(), back);
        ASSERT_EQ(std::bit_cast<std::uint32_t>(back), pattern) << digits;
    }
}

TEST(ShortText, keeps_what_fits_and_drops_the_rest) {
    ShortText text;
    EXPECT_EQ(text.View(), "");
    text.Append("ab");
    text.Append('c');
    EXPECT_EQ(text.View(), "abc");
    for (int i = 0; i < 100; ++i) {
        text.Append('x');
    }
    EXPECT_EQ(text.View().size(), 64U);
}

// Whole numbers up to 2^62 are printed as integers, larger ones by all digits of the float.
TEST(Format, large_numbers) {
    EXPECT_EQ(Format(0x1p39F, "0.0").View(), "549755813888.0");
    EXPECT_EQ(Format(0x1p40F, "0.0").View(), "1099511627776.0");
    EXPECT_EQ(Format(0x1p61F, "0").View(), "2305843009213693952");
    EXPECT_EQ(Format(0x1p62F, "0").View(), "4611686018427387904");
    EXPECT_EQ(Format(-0x1p70F, "0").View(), "-1180591620717411303424");
}

// The digits of a short number are read exactly, those of a long one are rounded once.
TEST(Str_to_num, short_and_long_numbers_are_the_nearest_float) {
    EXPECT_EQ(Str_to_num("123456.7"), 123456.7F);
    EXPECT_EQ(Str_to_num("-.5"), -0.5F);
    EXPECT_EQ(Str_to_num("5."), 5.0F);
    EXPECT_EQ(Str_to_num("0.1000000000000"), 0.1F);
    EXPECT_EQ(Str_to_num("0.10000000000000000000"), 0.1F);
    EXPECT_EQ(Str_to_num("123456789012345"), 123456789012345.0F);
    EXPECT_EQ(Str_to_num("16777217.0000001"), 16777218.0F); // just above the middle of two floats
    EXPECT_TRUE(std::signbit(Str_to_num("-0.0")));
}

TEST(Shortest, whole_numbers_have_an_exponent_where_it_is_shorter) {
    EXPECT_EQ(Shortest(0.0F).View(), "0");
    EXPECT_EQ(Shortest(-7.0F).View(), "-7");
    EXPECT_EQ(Shortest(10000.0F).View(), "10000");
    EXPECT_EQ(Shortest(99999.0F).View(), "99999");
    EXPECT_EQ(Shortest(100000.0F).View(), "1e+05");
    EXPECT_EQ(Shortest(123456.0F).View(), "123456");
}

} // namespace
} // namespace tarnvik
