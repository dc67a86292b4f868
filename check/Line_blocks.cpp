#include "check/Line_blocks.h"

#include <istream>
#include <utility>

namespace tarnvik {

bool LineBlocks::Next(std::string& lines) {
    lines = std::move(rest_);
    rest_.clear();
    bool complete = false;
    while (!complete || (lines.size() < block_size && !Would_wait())) {
        const std::string_view read = Read_some();
        if (read.empty()) {
            return !lines.empty();
        }
        const std::size_t end = read.rfind('\n');
        if (end == std::string_view::npos) {
            (complete ? rest_ : lines) += read;
            continue;
        }
        lines += rest_;
        lines += read.substr(0, end + 1);
        rest_ = read.substr(end + 1);
        complete = true;
    }
    return true;
}

bool LineBlocks::Would_wait() const {
    return in_.rdbuf()->in_avail() <= 0;
}

// What one call of the system gives; nothing at the end.
std::string_view LineBlocks::Read_some() {
    if (in_.peek() == std::char_traits<char>::eof()) {
        return {};
    }
    const std::streamsize count = in_.readsome(read_.data(), static_cast<std::streamsize>(read_.size()));
    return {read_.data(), static_cast<std::size_t>(count)};
}

} // namespace tarnvik
