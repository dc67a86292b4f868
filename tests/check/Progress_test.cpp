#include "check/Progress.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tarnvik {
namespace {

using namespace std::chrono_literals;

struct Watch {
    std::chrono::steady_clock::time_point now{};
    std::ostringstream err;
    Progress progress{err, true, [this] { return now; }};

    // What has been written since the last time.
    std::string Written() {
        std::string text = err.str();
        err.str({});
        return text;
    }
};

TEST(Progress, nothing_in_the_first_second) {
    Watch watch;
    watch.progress.Add(1000);
    watch.now += 999ms;
    watch.progress.Add(1000);
    watch.progress.Clear();
    EXPECT_EQ(watch.Written(), "");
}

TEST(Progress, lines_and_speed_are_written_over) {
    Watch watch;
    watch.now += 1s;
    watch.progress.Add(3000);
    EXPECT_EQ(watch.Written(), "3000 lines, 3000 a second");
    watch.now += 199ms;
    watch.progress.Add(1000);
    EXPECT_EQ(watch.Written(), "");
    watch.now += 801ms;
    watch.progress.Add(1000);
    EXPECT_EQ(watch.Written(), "\r" + std::string(25, ' ') + "\r5000 lines, 2500 a second");
    watch.progress.Clear();
    EXPECT_EQ(watch.Written(), "\r" + std::string(25, ' ') + "\r");
    watch.progress.Clear();
    EXPECT_EQ(watch.Written(), "");
}

TEST(Progress, nothing_where_nobody_watches) {
    Watch watch;
    Progress hidden{watch.err, false, [&watch] { return watch.now; }};
    watch.now += 5s;
    hidden.Add(1000);
    hidden.Clear();
    EXPECT_EQ(watch.Written(), "");
    EXPECT_FALSE(Has_watcher(watch.err));
}

} // namespace
} // namespace tarnvik
