#include "data/CodePage.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace tarnvik {
namespace {

TEST(CodePage, every_byte_reads_as_a_character_of_its_own_and_writes_back) {
    std::set<std::string> characters;
    std::string all;
    for (int i = 0; i < 256; ++i) {
        const std::string byte(1, static_cast<char>(i));
        const std::string character = From_windows_1252(byte);
        EXPECT_EQ(To_windows_1252(character), byte) << i;
        characters.insert(character);
        all += byte;
    }
    EXPECT_EQ(characters.size(), 256U);
    EXPECT_EQ(To_windows_1252(From_windows_1252(all)), all);
}

TEST(CodePage, characters_of_the_upper_half) {
    struct Row {
        const char* name;
        unsigned char byte;
        const char* utf8;
    };
    // clang-format off
    const Row rows[] = {
        {"euro sign",       0x80, "\u20AC"},
        {"undefined 81",    0x81, "\u0081"},
        {"low quote",       0x82, "\u201A"},
        {"florin",          0x83, "\u0192"},
        {"ellipsis",        0x85, "\u2026"},
        {"S caron",         0x8A, "\u0160"},
        {"OE",              0x8C, "\u0152"},
        {"undefined 8D",    0x8D, "\u008D"},
        {"Z caron",         0x8E, "\u017D"},
        {"undefined 8F",    0x8F, "\u008F"},
        {"undefined 90",    0x90, "\u0090"},
        {"apostrophe",      0x92, "\u2019"},
        {"en dash",         0x96, "\u2013"},
        {"em dash",         0x97, "\u2014"},
        {"trade mark",      0x99, "\u2122"},
        {"oe",              0x9C, "\u0153"},
        {"undefined 9D",    0x9D, "\u009D"},
        {"z caron",         0x9E, "\u017E"},
        {"Y diaeresis",     0x9F, "\u0178"},
        {"no-break space",  0xA0, "\u00A0"},
        {"squared",         0xB2, "\u00B2"},
        {"AA",              0xC5, "\u00C5"},
        {"AE",              0xC6, "\u00C6"},
        {"O slash",         0xD8, "\u00D8"},
        {"aa",              0xE5, "\u00E5"},
        {"ae",              0xE6, "\u00E6"},
        {"o slash",         0xF8, "\u00F8"},
        {"y diaeresis",     0xFF, "\u00FF"},
    };
    // clang-format on
    for (const Row& row : rows) {
        const std::string byte(1, static_cast<char>(row.byte));
        EXPECT_EQ(From_windows_1252(byte), row.utf8) << row.name;
        EXPECT_EQ(To_windows_1252(row.utf8), byte) << row.name;
    }
}

TEST(CodePage, norwegian_texts) {
    EXPECT_EQ(To_windows_1252("Øyeblikkslast"), "\xD8yeblikkslast");
    EXPECT_EQ(To_windows_1252("Halvårslast"), "Halv\xE5rslast");
    EXPECT_EQ(From_windows_1252("S\xF8yle p\xE5 b\xE6ring"), "Søyle på bæring");
}

TEST(CodePage, a_character_that_the_code_page_lacks_becomes_a_question_mark) {
    struct Row {
        const char* name;
        const char* utf8;
        const char* bytes;
    };
    // clang-format off
    const Row rows[] = {
        {"Greek",                  "\u03B1 = 25",      "? = 25"},
        {"Cyrillic, each one",     "\u0434\u0430",     "??"},
        {"Chinese",                "\u6728",           "?"},
        {"four bytes are one",     "\U0001F529M20",    "?M20"},
        {"a code of the table",    "\u0080",           "?"}, // the euro sign stands at this byte
        {"composed differently",   "A\u030A",          "A?"},
    };
    // clang-format on
    for (const Row& row : rows) {
        EXPECT_EQ(To_windows_1252(row.utf8), row.bytes) << row.name;
    }
}

TEST(CodePage, a_damaged_sequence_becomes_a_question_mark) {
    struct Row {
        const char* name;
        std::string utf8;
        std::string bytes;
    };
    const Row rows[] = {
        {"cut at the end", "b\xC3", "b?"},        {"cut in the middle", "\xE2\x82y", "?y"},
        {"a lone continuation", "a\x80z", "a?z"}, {"overlong", "\xC0\x80", "?"},
        {"no lead byte", "\xFFz", "?z"},          {"plain text stays", std::string("a\0b", 3), std::string("a\0b", 3)},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(To_windows_1252(row.utf8), row.bytes) << row.name;
    }
}

} // namespace
} // namespace tarnvik
