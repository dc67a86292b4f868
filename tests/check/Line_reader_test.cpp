#include "check/Line_reader.h"

#include <gtest/gtest.h>

#include <memory>

namespace tarnvik {
namespace {

class Reader : public testing::Test {
protected:
    bool Read(const std::string& line) {
        s = std::make_unique<ConnectionState>();
        passes = 0;
        return reader.Read(line, *s, [this] { ++passes; });
    }

    LineReader reader;
    std::unique_ptr<ConnectionState> s;
    int passes{};
};

TEST_F(Reader, takes_numbers_flags_and_texts) {
    ASSERT_TRUE(
        Read(R"({"P":-8.25,"alp":40,"Con_type":2,"Standard":false,"Txt_b1":"48,5","Lang":"Eng","Prosjekt":"Å"})"));
    EXPECT_EQ(s->P, -8.25F);
    EXPECT_EQ(s->alp, 40.0F);
    EXPECT_EQ(s->Con_type, 2);
    EXPECT_FALSE(s->Standard);
    EXPECT_EQ(s->Txt_b1, "48,5");
    EXPECT_EQ(s->Lang, "Eng");
    EXPECT_EQ(s->Prosjekt, "Å");
    EXPECT_EQ(passes, 1);
}

TEST_F(Reader, a_connector_sets_its_diameter) {
    ASSERT_TRUE(Read(R"({"Bulldog_index":0})"));
    EXPECT_EQ(s->dc, 48.0F);
    ASSERT_TRUE(Read(R"({"Bulldog_index":0,"dc":51})"));
    EXPECT_EQ(s->dc, 51.0F);
}

TEST_F(Reader, calculates_after_every_object) {
    EXPECT_TRUE(Read("{}"));
    EXPECT_EQ(passes, 1);
    EXPECT_TRUE(Read(R"([{"P":1},{},{"P":3}] )"));
    EXPECT_EQ(passes, 3);
    EXPECT_EQ(s->P, 3.0F);
}

// What has a message, or a meaning of its own, is the general reader's.
TEST_F(Reader, leaves_everything_else) {
    for (const char* line : {"",
                             "x",
                             "5",
                             "null",
                             "[]",
                             "[5]",
                             "[{},[]]",
                             "{}{}",
                             "{} x",
                             R"({"P":1)",
                             R"({"P":})",
                             R"({"P":"1"})",
                             R"({"P":true})",
                             R"({"P":null})",
                             R"({"P":[1]})",
                             R"({"P":1e39})",
                             R"({"P":1e400})",
                             R"({"P":01})",
                             R"({"Con_type":1.5})",
                             R"({"Con_type":32768})",
                             R"({"Con_type":-32769})",
                             R"({"Standard":0})",
                             R"({"Standard":"true"})",
                             R"({"Txt_b1":48})",
                             R"({"uf":1})",
                             R"({"t1_txt":"t"})",
                             R"({"nix":1})",
                             R"({"P":1,"P":2})",
                             R"({"Prosjekt":"a\u00e6"})",
                             R"({"\u0050":1})",
                             "{\"Prosjekt\":\"\xe6\"}",
                             "{\"Prosjekt\":\"a\tb\"}",
                             "\xef\xbb\xbf{}"}) {
        EXPECT_FALSE(Read(line)) << line;
    }
    EXPECT_FALSE(Read(std::string{"{}\0", 3}));
}

} // namespace
} // namespace tarnvik
