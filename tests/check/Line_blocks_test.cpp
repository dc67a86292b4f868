#include "check/Line_blocks.h"

#include <gtest/gtest.h>

#include <istream>
#include <streambuf>
#include <vector>

namespace tarnvik {
namespace {

// A stream that gives its pieces one after the other, as a pipe does: what has not come yet has to be waited for.
class Pieces : public std::streambuf {
public:
    explicit Pieces(std::vector<std::string> pieces) : pieces_(std::move(pieces)) {}

protected:
    int_type underflow() override {
        if (next_ == pieces_.size()) {
            return traits_type::eof();
        }
        std::string& piece = pieces_[next_++];
        setg(piece.data(), piece.data(), piece.data() + piece.size());
        return traits_type::to_int_type(*gptr());
    }

private:
    std::vector<std::string> pieces_;
    std::size_t next_{};
};

std::vector<std::string> Blocks_of(std::vector<std::string> pieces) {
    Pieces buffer{std::move(pieces)};
    std::istream in{&buffer};
    LineBlocks input{in};
    std::vector<std::string> blocks;
    for (std::string block; input.Next(block);) {
        blocks.push_back(block);
    }
    return blocks;
}

using Texts = std::vector<std::string>;

TEST(LineBlocks, gives_the_lines_that_are_there_and_keeps_what_is_begun) {
    EXPECT_EQ(Blocks_of({"a\nb\nc", "d\n"}), (Texts{"a\nb\n", "cd\n"}));
    EXPECT_EQ(Blocks_of({"a", "b", "c\nd", "e", "f\n"}), (Texts{"abc\n", "def\n"}));
}

TEST(LineBlocks, the_last_line_needs_no_end) {
    EXPECT_EQ(Blocks_of({"a\nb"}), (Texts{"a\n", "b"}));
    EXPECT_EQ(Blocks_of({"a"}), (Texts{"a"}));
}

TEST(LineBlocks, an_empty_line_is_a_line_and_an_empty_stream_has_none) {
    EXPECT_EQ(Blocks_of({"\n\n"}), (Texts{"\n\n"}));
    EXPECT_EQ(Blocks_of({}), Texts{});
}

TEST(LineBlocks, many_lines_come_in_several_blocks_and_a_long_one_in_one) {
    std::string lines;
    while (lines.size() < 5 * LineBlocks::block_size) {
        lines += std::to_string(lines.size()) + "\n";
    }
    const Texts blocks = Blocks_of({lines});
    EXPECT_GT(blocks.size(), 3U);
    std::string together;
    for (const std::string& block : blocks) {
        EXPECT_LE(block.size(), 2 * LineBlocks::block_size);
        EXPECT_EQ(block.back(), '\n');
        together += block;
    }
    EXPECT_EQ(together, lines);
    const std::string line = std::string(5 * LineBlocks::block_size, 'x') + "\n";
    EXPECT_EQ(Blocks_of({line + "y\n"}).front().substr(0, line.size()), line);
}

TEST(LineBlocks, would_wait_where_nothing_is_there) {
    Pieces buffer{{"a\n", "b\n"}};
    std::istream in{&buffer};
    LineBlocks input{in};
    std::string block;
    ASSERT_TRUE(input.Next(block));
    EXPECT_TRUE(input.Would_wait());
    EXPECT_EQ(in.get(), 'b');
    EXPECT_FALSE(input.Would_wait()); // the line end stands in the stream
}

} // namespace
} // namespace tarnvik
