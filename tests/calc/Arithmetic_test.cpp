#include "calc/Arithmetic.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/support/Calculation.h"

namespace tarnvik {
namespace {

using test::Fault_of;

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr float largest = std::numeric_limits<float>::max();

TEST(Arithmetic, constants_are_the_rounded_ones_on_purpose) {
    EXPECT_EQ(degrees_per_radian, 57.297);
    EXPECT_EQ(PI, 3.14159F);
    EXPECT_NE(static_cast<double>(PI), 3.14159);             // a 32-bit float, widened afterwards
    EXPECT_LT(std::sin(30.0 / degrees_per_radian), 0.5);     // just under a half
    EXPECT_GT(std::cos(90.0 / degrees_per_radian), 0.00003); // slightly less than a right angle
    EXPECT_LT(std::cos(90.0 / degrees_per_radian), 0.00004);
}

TEST(Arithmetic, store_rounds_once_to_the_nearest_float) {
    struct Row {
        const char* name;
        double value;
        float stored;
    };
    // clang-format off
    const Row rows[] = {
        {"zero",                       0.0,                  0.0F},
        {"a tenth",                    0.1,                  0.1F},
        {"half way, to the even one",  16777217.0,           16777216.0F},
        {"half way, to the even one",  16777219.0,           16777220.0F},
        {"above half way",             16777217.0000001,     16777218.0F},
        {"largest float",              0x1.fffffep127,       largest},
        {"last that rounds down",      0x1.fffffefffffffp127, largest},
        {"negative",                   -0x1.fffffep127,      -largest},
        {"too small",                  1e-60,                0.0F},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(Store(row.value, "test"), row.stored);
    }
}

TEST(Arithmetic, store_overflows_where_a_float_cannot_hold_the_value) {
    for (const double value : {0x1.ffffffp127, -0x1.ffffffp127, 3.5e38, -1e300, inf, -inf, nan}) {
        SCOPED_TRACE(value);
        EXPECT_EQ(Fault_of([&] { Store(value, "test"); }), 6);
    }
}

TEST(Arithmetic, division_by_zero_faults_whatever_the_numerator_is) {
    for (const double numerator : {1.0, 0.0, -0.0, -5.0}) {
        SCOPED_TRACE(numerator);
        EXPECT_EQ(Fault_of([&] { Divide(numerator, 0.0, "test"); }), 11);
        EXPECT_EQ(Fault_of([&] { Divide(numerator, -0.0, "test"); }), 11);
    }
    EXPECT_EQ(Divide(1.0, 4.0, "test"), 0.25);
    EXPECT_EQ(Divide(0.0, -4.0, "test"), 0.0);
}

TEST(Arithmetic, power_faults_by_kind) {
    struct Row {
        const char* name;
        double base, exponent;
        int fault;
    };
    // clang-format off
    const Row rows[] = {
        {"root of a negative number",         -1.0,  0.5,   5},
        {"broken power of a negative number", -1e-9, 0.25,  5},
        {"zero to a negative power",          0.0,   -1.0,  5},
        {"beyond a double",                   1e200, 2.0,   6},
        {"negative, beyond a double",         -1e200, 3.0,  6},
        {"root of zero",                      0.0,   0.5,   0},
        {"whole power of a negative number",  -2.0,  3.0,   0},
        {"zero to zero",                      0.0,   0.0,   0},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(Fault_of([&] { Power(row.base, row.exponent, "test"); }), row.fault);
    }
    EXPECT_EQ(Power(-2.0, 3.0, "test"), -8.0);
    EXPECT_EQ(Root(0.0, "test"), 0.0);
    EXPECT_EQ(Root(6.25, "test"), 2.5);
    EXPECT_EQ(Fault_of([] { Root(-0.01, "test"); }), 5);
}

TEST(Arithmetic, a_fault_tells_where_it_happened) {
    try {
        Divide(1.0, 0.0, "Tverr_brudd");
        FAIL() << "no fault";
    } catch (const RuntimeFault& fault) {
        EXPECT_EQ(fault.number, 11);
        EXPECT_EQ(fault.where, "Tverr_brudd");
        EXPECT_EQ(fault.description, "division by zero");
    }
}

TEST(Arithmetic, minimum_and_maximum_look_at_the_first_n_values_only) {
    struct Row {
        const char* name;
        int n;
        float x1, x2, x3, x4, least, most;
    };
    // clang-format off
    const Row rows[] = {
        {"two, the rest ignored",    2, 5.0F,  7.0F,  -9.0F, 90.0F, 5.0F,  7.0F},
        {"two, second is least",     2, 7.0F,  5.0F,  -9.0F, 90.0F, 5.0F,  7.0F},
        {"three, third is least",    3, 7.0F,  5.0F,  1.0F,  -9.0F, 1.0F,  7.0F},
        {"three, third is most",     3, 5.0F,  7.0F,  9.0F,  90.0F, 5.0F,  9.0F},
        {"four, fourth is least",    4, 3.0F,  2.0F,  1.0F,  0.0F,  0.0F,  3.0F},
        {"four, fourth is most",     4, 0.0F,  1.0F,  2.0F,  3.0F,  0.0F,  3.0F},
        {"four, first is least",     4, -1.0F, 1.0F,  2.0F,  3.0F,  -1.0F, 3.0F},
        {"all equal",                4, 2.5F,  2.5F,  2.5F,  2.5F,  2.5F,  2.5F},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(MinVal(row.n, row.x1, row.x2, row.x3, row.x4), row.least);
        EXPECT_EQ(MaxVal(row.n, row.x1, row.x2, row.x3, row.x4), row.most);
    }
    EXPECT_EQ(MinVal(2, 4.0F, 3.0F), 3.0F); // the zeros that stand for the missing values take no part
    EXPECT_EQ(MaxVal(2, -4.0F, -3.0F), -3.0F);
}

} // namespace
} // namespace tarnvik
