#include "data/StartValue.h"

#include <gtest/gtest.h>

#include <memory>

namespace tarnvik {
namespace {

// A state in which every start value is another one.
std::unique_ptr<ConnectionState> Other_state(const char* lang) {
    auto state = std::make_unique<ConnectionState>();
    ConnectionState& s = *state;
    s.Lang = lang;
    s.File_name = "file";
    s.Prosjekt = "project";
    s.Id = "id";
    s.Lastvar = 3;
    s.Klima = 3;
    s.Med_bulldog = true;
    s.Bulldog_index = 4;
    s.dc = 1.0F;
    s.Kun_bolt = false;
    s.Bolt_index = 2;
    s.Prof1_index = 77;
    s.Prof2_index = 88;
    s.Ant_index = 4;
    s.Mat_index = 9;
    s.Standard = false;
    s.P = -5.0F;
    s.alp = 77.0F;
    s.Con_type = 5;
    s.enk_1 = false;
    s.enk_2 = false;
    s.Man_he_on = true;
    s.Bolt_ab = "a";
    s.Avstand_index = 15;
    return state;
}

TEST(StartValue, every_value_of_a_new_project) {
    const auto state = Other_state("Eng");
    const ConnectionState& s = *state;
    StartValue(*state);
    EXPECT_EQ(s.Lastvar, 1);
    EXPECT_EQ(s.Klima, 1);
    EXPECT_FALSE(s.Med_bulldog);
    EXPECT_EQ(s.Bulldog_index, 1);
    EXPECT_EQ(s.dc, 62.0F);
    EXPECT_TRUE(s.Kun_bolt);
    EXPECT_EQ(s.Bolt_index, 6);
    EXPECT_EQ(bolt_table[6].caption, "M20x8.8");
    EXPECT_EQ(s.Prof2_index, 6);
    EXPECT_EQ(s.Ant_index, 1);
    EXPECT_EQ(bolt_numbers[1], 2);
    EXPECT_EQ(s.Mat_index, 3);
    EXPECT_EQ(s.Prof1_index, 3);
    EXPECT_TRUE(s.Standard);
    EXPECT_EQ(s.P, 10.0F);
    EXPECT_EQ(s.alp, 25.0F);
    EXPECT_EQ(s.Con_type, 1);
    EXPECT_TRUE(s.enk_1);
    EXPECT_TRUE(s.enk_2);
    EXPECT_FALSE(s.Man_he_on);
    EXPECT_EQ(s.Bolt_ab.View(), "b");
    EXPECT_EQ(s.Avstand_index, 0);
}

TEST(StartValue, titles_follow_the_language) {
    const auto english = Other_state("Eng");
    StartValue(*english);
    EXPECT_EQ(english->File_name, "New File");
    EXPECT_EQ(english->Prosjekt, "Project 1");
    EXPECT_EQ(english->Id, "Bolt Connections -1");

    const auto norwegian = Other_state("Nor");
    StartValue(*norwegian);
    EXPECT_EQ(norwegian->File_name, "Ny Fil");
    EXPECT_EQ(norwegian->Prosjekt, "Prosjekt 1");
    EXPECT_EQ(norwegian->Id, "Bolteforbindelse - 1");
}

TEST(StartValue, another_language_sets_no_titles) {
    for (const char* lang : {"   ", "eng", "Swe"}) {
        const auto s = Other_state(lang);
        StartValue(*s);
        EXPECT_EQ(s->File_name, "file") << lang;
        EXPECT_EQ(s->Prosjekt, "project") << lang;
        EXPECT_EQ(s->Id, "id") << lang;
        EXPECT_EQ(s->Lastvar, 1) << lang;
    }
}

TEST(StartValue, double_members_and_sections_are_not_set) {
    const auto s = Other_state("Eng");
    s->dob_1 = true;
    s->dob_2 = true;
    s->b1 = 1.0F;
    s->h1 = 2.0F;
    s->b2 = 3.0F;
    s->h2 = 4.0F;
    s->man_he = 5.0F;
    StartValue(*s);
    EXPECT_TRUE(s->dob_1);
    EXPECT_TRUE(s->dob_2);
    EXPECT_EQ(s->b1, 1.0F);
    EXPECT_EQ(s->h1, 2.0F);
    EXPECT_EQ(s->b2, 3.0F);
    EXPECT_EQ(s->h2, 4.0F);
    EXPECT_EQ(s->man_he, 5.0F);
}

} // namespace
} // namespace tarnvik
