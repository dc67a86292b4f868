#include "session/SystemClock.h"

#include <gtest/gtest.h>

namespace tarnvik {
namespace {

TEST(SystemClock, gives_a_date_and_a_time_of_eight_characters) {
    const Moment now = SystemClock{}.Now();
    EXPECT_FALSE(now.date.empty());
    ASSERT_EQ(now.time.size(), 8U);
    EXPECT_EQ(now.time[2], ':');
    EXPECT_EQ(now.time[5], ':');
}

} // namespace
} // namespace tarnvik
