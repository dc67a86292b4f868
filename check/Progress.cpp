#include "check/Progress.h"

#include <cmath>
#include <iostream>
#include <utility>

#include "platform/Machine.h"

namespace tarnvik {

namespace {

using namespace std::chrono_literals;

constexpr auto first_wait = 1s;
constexpr auto wait = 200ms;

} // namespace

Progress::Progress(std::ostream& err, bool shown, Now now)
    : err_(err), shown_(shown), now_(std::move(now)), begin_(now_()), next_(begin_ + first_wait) {}

void Progress::Add(long lines) {
    lines_ += lines;
    if (!shown_) {
        return;
    }
    const auto now = now_();
    if (now < next_) {
        return;
    }
    next_ = now + wait;
    const double seconds = std::chrono::duration<double>(now - begin_).count();
    Clear();
    line_ = std::to_string(lines_) + " lines, " + std::to_string(std::lround(static_cast<double>(lines_) / seconds)) +
            " a second";
    err_ << line_ << std::flush;
}

void Progress::Clear() {
    if (line_.empty()) {
        return;
    }
    err_ << '\r' << std::string(line_.size(), ' ') << '\r' << std::flush;
    line_.clear();
}

bool Has_watcher(const std::ostream& err) {
    return err.rdbuf() == std::cerr.rdbuf() && Is_terminal(2) && !Is_terminal(0) && !Is_terminal(1);
}

} // namespace tarnvik
