// The lines of a stream in blocks, as they come.
#pragma once

#include <array>
#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>

namespace tarnvik {

class LineBlocks {
public:
    static constexpr std::size_t block_size = 1U << 14U;

    explicit LineBlocks(std::istream& in) : in_(in) {}

    // The next lines, complete but for the end of the last one of the stream: as many as are there, up to about
    // `block_size` bytes. Waits for one where none is there. False at the end of the stream.
    bool Next(std::string& lines);

    // Nothing is there to be read: Next would wait, for all that is known.
    [[nodiscard]] bool Would_wait() const;

private:
    std::string_view Read_some();

    std::istream& in_;
    std::string rest_; // the begin of a line whose end has not come yet
    std::array<char, block_size> read_{};
};

} // namespace tarnvik
