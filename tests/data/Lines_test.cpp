#include "data/Lines.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "tests/support/Files.h"

namespace tarnvik {
namespace {

std::vector<std::string> Lines_of(const std::string& bytes) {
    std::istringstream file{bytes};
    std::vector<std::string> lines;
    while (auto line = Read_line(file)) {
        lines.push_back(std::move(*line));
    }
    return lines;
}

TEST(Lines, every_line_end_ends_a_line) {
    struct Row {
        const char* name;
        std::string bytes;
        std::vector<std::string> lines;
    };
    // clang-format off
    const Row rows[] = {
        {"empty file",              "",                     {}},
        {"one line without end",    "a",                    {"a"}},
        {"carriage return and lf",  "a\r\nb\r\n",           {"a", "b"}},
        {"line feed",               "a\nb\n",               {"a", "b"}},
        {"carriage return",         "a\rb\r",               {"a", "b"}},
        {"mixed",                   "a\rb\nc\r\nd",         {"a", "b", "c", "d"}},
        {"blank lines",             "\r\n\r\na\n\n",        {"", "", "a", ""}},
        {"two returns and lf",      "a\r\r\nb",             {"a", "", "b"}},
        {"lf and return",           "a\n\rb",               {"a", "", "b"}},
        {"blanks stay",             " a \r\n",              {" a "}},
        {"code page",               "H\xF8yde;\xE5\r\n",    {"Høyde;å"}},
        {"a zero is a character",   std::string("a\0b", 3), {std::string("a\0b", 3)}},
    };
    // clang-format on
    for (const Row& row : rows) {
        EXPECT_EQ(Lines_of(row.bytes), row.lines) << row.name;
    }
}

TEST(Lines, a_line_splits_at_every_semicolon) {
    using Fields = std::vector<std::string_view>;
    EXPECT_EQ(Split(""), (Fields{""}));
    EXPECT_EQ(Split("a"), (Fields{"a"}));
    EXPECT_EQ(Split("a;b"), (Fields{"a", "b"}));
    EXPECT_EQ(Split(";;"), (Fields{"", "", ""}));
    EXPECT_EQ(Split("1.3;1.25;"), (Fields{"1.3", "1.25", ""}));
    EXPECT_EQ(Split("\"a;b\";c"), (Fields{"\"a", "b\"", "c"})); // no quoting rule
}

TEST(Lines, opening_tells_a_missing_file_from_one_that_cannot_be_read) {
    const test::TemporaryFolder folder;
    test::Write_file(folder / "a.csv", "line\r\n");
    EXPECT_EQ(test::Fault_of([&] { Open_text(folder / "a.csv", "Test"); }), 0);
    EXPECT_EQ(test::Fault_of([&] { Open_text(folder / "b.csv", "Test"); }), fault_file_not_found);
    EXPECT_EQ(test::Fault_of([&] { Open_text(folder.Path(), "Test"); }), fault_path_access);
}

} // namespace
} // namespace tarnvik
