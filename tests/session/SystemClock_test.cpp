#include "session/SystemClock.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ostream>
#include <string>

#include "tests/support/Regions.h"

namespace tarnvik {
namespace {

TEST(SystemClock, gives_a_date_and_a_time_of_eight_characters) {
    const Moment now = SystemClock{}.Now();
    EXPECT_FALSE(now.date.empty());
    ASSERT_EQ(now.time.size(), 8U);
    EXPECT_EQ(now.time[2], ':');
    EXPECT_EQ(now.time[5], ':');
}

// Region, decimal sign and the sign between the figures of a date.
struct RegionRow {
    const char* name;
    char decimal_sign;
    char date_sign;
};

void PrintTo(const RegionRow& row, std::ostream* out) {
    *out << row.name;
}

class Regions : public testing::TestWithParam<RegionRow> {};

TEST_P(Regions, decimal_sign_and_date_follow_the_system) {
    const RegionRow& row = GetParam();
    const test::Region region{row.name};
    if (!region.Made()) {
        GTEST_SKIP() << "localedef has no " << row.name << " here";
    }
    EXPECT_EQ(System_decimal_sign(), row.decimal_sign);
    const std::string date = SystemClock{}.Now().date;
    EXPECT_NE(date.find(row.date_sign), std::string::npos) << date;
    EXPECT_EQ(SystemClock{}.Now().time[2], ':'); // the same everywhere
}

INSTANTIATE_TEST_SUITE_P(All, Regions,
                         testing::Values(RegionRow{"C", '.', '/'}, RegionRow{"nb_NO", ',', '.'},
                                         RegionRow{"de_DE", ',', '.'}, RegionRow{"en_GB", '.', '/'}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST(SystemClock, a_region_that_is_not_installed_is_none) {
    const test::Region region{"C"};
    setenv("LC_ALL", "xx_XX.UTF-8", 1);
    EXPECT_EQ(System_decimal_sign(), '.');
    EXPECT_FALSE(SystemClock{}.Now().date.empty());
    setenv("LC_ALL", "C", 1);
}

} // namespace
} // namespace tarnvik
