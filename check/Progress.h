// How far a batch is, in a line on the terminal that is written over, for whoever waits longer than a second.
#pragma once

#include <chrono>
#include <functional>
#include <iosfwd>
#include <string>

namespace tarnvik {

class Progress {
public:
    using Now = std::function<std::chrono::steady_clock::time_point()>;

    // Shows nothing where `shown` is false.
    Progress(std::ostream& err, bool shown, Now now = std::chrono::steady_clock::now);

    // So many more lines are done.
    void Add(long lines);

    // Takes the line off, before something else is written and at the end.
    void Clear();

private:
    std::ostream& err_;
    const bool shown_;
    const Now now_;
    const std::chrono::steady_clock::time_point begin_;
    std::chrono::steady_clock::time_point next_; // when the line is written again
    long lines_{};
    std::string line_; // as it stands on the terminal
};

// A person waits: the stream is the terminal, and neither input nor results run over it.
bool Has_watcher(const std::ostream& err);

} // namespace tarnvik
