#include "spacing/Pictures.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "calc/pass/Main_beregn.h"
#include "spacing/Plot_screen.h"
#include "tests/support/Calculation.h"
#include "tests/support/RecordingMessageBox.h"

namespace tarnvik {
namespace {

using test::New_project;
using test::RecordingMessageBox;

struct CaseControl {
    std::string_view Case_code;
    const char* control;
};

// clang-format off
constexpr CaseControl controls[] = {
    {"1.1. ", "Pic1_1"}, {"1.2.a", "Pic1_2_a"}, {"1.2.b", "Pic1_2_b"}, {"1.3.a", "Pic1_3_a"}, {"1.3.b", "Pic1_3_b"},
    {"1.4. ", "Pic1_4"}, {"1.6. ", "Pic1_6"},
    {"2.1. ", "Pic2_1"}, {"2.2. ", "Pic2_2"}, {"2.3. ", "Pic2_3"}, {"2.4. ", "Pic2_4"}, {"2.6. ", "Pic2_6"},
    {"3.1. ", "Pic3_1"}, {"3.2.a", "Pic3_2_a"}, {"3.2.b", "Pic3_2_b"}, {"3.3.a", "Pic3_3_a"}, {"3.3.b", "Pic3_3_b"},
    {"3.4. ", "Pic3_4"}, {"3.6. ", "Pic3_6"},
    {"4.1. ", "Pic4_1"}, {"4.2.a", "Pic4_2_a"}, {"4.2.b", "Pic4_2_b"}, {"4.3.a", "Pic4_3_a"}, {"4.3.b", "Pic4_3_b"},
    {"4.4. ", "Pic4_4"}, {"4.6.a", "Pic4_6"}, {"4.6.b", "Pic4_6_b"},
    {"5.1. ", "Pic5_1"}, {"5.2.a", "Pic5_2_a"}, {"5.2.b", "Pic5_2_b"}, {"5.3.a", "Pic5_3_a"}, {"5.3.b", "Pic5_3_b"},
    {"5.4. ", "Pic5_4"}, {"5.6.a", "Pic5_6_a"}, {"5.6.b", "Pic5_6_b"},
};
// clang-format on
static_assert(std::size(controls) == case_count);

std::string Key(const CaseControl& of, const char* form) {
    return std::string{"Frm_tarn_vik_bolter_"} + of.Case_code[0] + form + "/" + of.control;
}

TEST(Pictures, every_case_has_a_sketch_for_tension_and_one_for_compression) {
    for (const CaseControl& of : controls) {
        SCOPED_TRACE(of.Case_code);
        const int row = Find_case(of.Case_code);
        ASSERT_GE(row, 0);
        EXPECT_EQ(Sketch_key(row, -0.1F), Key(of, "_strekk"));
        EXPECT_EQ(Sketch_key(row, 0.0F), Key(of, "_strekk")); // no force shows tension
        EXPECT_EQ(Sketch_key(row, 0.1F), Key(of, "_trykk"));
    }
}

TEST(Pictures, no_two_keys_are_alike) {
    std::set<std::string_view> keys;
    for (const SketchKeys& row : sketch_keys) {
        keys.insert(row.strekk);
        keys.insert(row.trykk);
    }
    EXPECT_EQ(keys.size(), 70U);
    for (const ConnectionKey& row : connection_keys) {
        keys.insert(row.key);
    }
    EXPECT_EQ(keys.size(), 85U);
}

TEST(Pictures, every_connection_has_a_picture) {
    struct Row {
        std::int16_t type;
        int variant;
        std::string_view Con_code, key;
    };
    // clang-format off
    const Row rows[] = {
        {1, 1, "1.1", "Frm_tarn_vik_forbindelser/Pic_1_1"},
        {1, 2, "1.2", "Frm_tarn_vik_forbindelser/Pic_1_2"},
        {1, 3, "1.3", "Frm_tarn_vik_forbindelser/pic_1_3"},
        {2, 1, "2.1", "Frm_tarn_vik_forbindelser/Pic_2_1"},
        {2, 2, "2.2", "Frm_tarn_vik_forbindelser/Pic_2_2"},
        {2, 3, "2.3", "Frm_tarn_vik_forbindelser/Pic_2_3"},
        {3, 1, "3.1", "Frm_tarn_vik_forbindelser/Pic_3_1"},
        {3, 2, "3.2", "Frm_tarn_vik_forbindelser/Pic_3_2"},
        {3, 3, "3.3", "Frm_tarn_vik_forbindelser/Pic_3_3"},
        {4, 1, "4.1", "Frm_tarn_vik_forbindelser2/Pic_4_1"},
        {4, 2, "4.2", "Frm_tarn_vik_forbindelser2/Pic_4_2"},
        {4, 3, "4.3", "Frm_tarn_vik_forbindelser2/pic_4_3"},
        {5, 1, "5.1", "Frm_tarn_vik_forbindelser2/Pic_5_1"},
        {5, 2, "5.2", "Frm_tarn_vik_forbindelser2/Pic_5_2"},
        {5, 3, "5.3", "Frm_tarn_vik_forbindelser2/Pic_5_3"},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Con_code);
        EXPECT_EQ(Connection_key(row.Con_code), row.key);
        const auto s = New_project();
        test::Pick_variant(*s, row.type, row.variant);
        Screen screen;
        RecordingMessageBox box;
        Run_pass(*s, &screen, box);
        EXPECT_EQ(s->Con_code.View(), row.Con_code);
        EXPECT_EQ(screen.Pic_forbindelse, row.key);
    }
}

TEST(Pictures, other_codes_leave_the_picture) {
    EXPECT_EQ(Connection_key("1.4"), "");
    EXPECT_EQ(Connection_key("6.1"), "");
    EXPECT_EQ(Connection_key(""), "");
    const auto s = New_project();
    Screen screen;
    s->Con_code = "3.2";
    Plot_connection(*s, ScreenWriter{&screen});
    s->Con_code = "0.0";
    Plot_connection(*s, ScreenWriter{&screen});
    EXPECT_EQ(screen.Pic_forbindelse, "Frm_tarn_vik_forbindelser/Pic_3_2");
}

TEST(Pictures, both_areas_show_the_sketch_of_the_case) {
    for (const CaseControl& of : controls) {
        for (const bool only_bolts : {false, true}) {
            for (const float P : {-20.0F, 0.0F, 20.0F}) {
                SCOPED_TRACE(std::string{of.Case_code} + " " + std::to_string(P));
                const auto s = New_project();
                const CaseRow& row = case_table.at(static_cast<std::size_t>(Find_case(of.Case_code)));
                s->Con_type = static_cast<std::int16_t>(row.type - '0');
                s->Ant_index = static_cast<std::int16_t>(row.n_bolt == 6 ? 4 : row.n_bolt - 1);
                s->Bolt_ab = std::string_view{&row.letter, 1};
                s->P = P;
                if (!only_bolts) {
                    test::Pick_connector(*s, 2); // D75 takes M20
                }
                Screen screen;
                RecordingMessageBox box;
                Run_pass(*s, &screen, box);
                EXPECT_EQ(screen.Pic_av_bolter, Key(of, P > 0.0F ? "_trykk" : "_strekk"));
                EXPECT_EQ(screen.Pic_av_bulldog, screen.Pic_av_bolter);
            }
        }
    }
}

TEST(Pictures, any_letter_but_b_counts_as_a_and_a_case_without_letter_takes_any) {
    const auto s = New_project();
    Screen screen;
    RecordingMessageBox box;
    s->Bolt_ab = "x";
    Run_pass(*s, &screen, box);
    EXPECT_EQ(screen.Pic_av_bolter, "Frm_tarn_vik_bolter_1_trykk/Pic1_2_a");
    s->Ant_index = 3;
    for (const char* letter : {"a", "b", "x"}) {
        s->Bolt_ab = letter;
        Run_pass(*s, &screen, box);
        EXPECT_EQ(screen.Pic_av_bolter, "Frm_tarn_vik_bolter_1_trykk/Pic1_4");
    }
}

TEST(Pictures, are_empty_until_a_pass_chose_one) {
    const Screen screen;
    EXPECT_TRUE(screen.Pic_forbindelse.empty());
    EXPECT_TRUE(screen.Pic_av_bolter.empty());
    EXPECT_TRUE(screen.Pic_av_bulldog.empty());
}

} // namespace
} // namespace tarnvik
