#include <cmath>

#include "tests/support/Report.h"

namespace tarnvik {
namespace {

using namespace test;

Recorder General(ConnectionState& s) {
    Recorder recorder;
    double step{};
    PrintGeneral(recorder, s, 15, 262, 9, step);
    EXPECT_EQ(step, 5.0);
    return recorder;
}

std::string Title(const ConnectionState& s, int section) {
    Recorder recorder;
    PrintSectionTitle(recorder, s, section, 15, 268, 9);
    const auto prints = Prints(recorder);
    EXPECT_EQ(prints.size(), 1U);
    EXPECT_EQ(prints[0].font, (PrintFont{"Times New Roman", 9.0F, true, true}));
    EXPECT_EQ(Lines_of(recorder).back(), "1 FontItalic false");
    return prints[0].text;
}

TEST(SectionTitle, the_last_two_differ_in_content_between_the_languages) {
    Connection english;
    Connection norwegian{"Nor"};
    Pick_connector(*norwegian.s, 0); // D50 stands as 48
    norwegian.s->Bolt_index = 4;     // M12
    norwegian.Pass();
    EXPECT_EQ(Title(*english.s, 5), "5.0 Location of bolts ");
    EXPECT_EQ(Title(*english.s, 6), "6.0 Location of bolts ");
    EXPECT_EQ(Title(*norwegian.s, 5), "5.0 Min. avstand mellom bolter,   d = 12   mm");
    EXPECT_EQ(Title(*norwegian.s, 6), "6.0 Min. avstand mellom bulldog, D = 48   mm");
    EXPECT_EQ(Title(*english.s, 1), "1.0  General data  ");
    EXPECT_EQ(Title(*norwegian.s, 4), "4.0 Kapasitet av bolter (kN ) ");
}

TEST(GeneralData, without_connectors_it_has_three_rows) {
    Connection connection;
    const Recorder general = General(*connection.s);
    EXPECT_EQ(Text_at(general, 15.0F, 262.0F), "Bolt type       =");
    EXPECT_EQ(Text_at(general, 15.0F, 257.0F), "Timber quality =");
    EXPECT_EQ(Text_at(general, 15.0F, 252.0F), "Load duration class=");
    EXPECT_EQ(Text_at(general, 15.0F, 247.0F), std::nullopt);
}

TEST(GeneralData, connectors_have_a_row_of_their_own) {
    Connection connection;
    Pick_connector(*connection.s, 1);
    connection.s->Bolt_index = 5;
    connection.Pass();
    const Recorder general = General(*connection.s);
    EXPECT_EQ(Text_at(general, 15.0F, 257.0F), "Toooth-plate connector =");
    EXPECT_EQ(Text_at(general, 15.0F, 252.0F), "Timber quality =");
    EXPECT_EQ(Text_at(general, 15.0F, 247.0F), "Load duration class=");
    EXPECT_EQ(Print_of(general, "D62").y, 257.0F);
    EXPECT_EQ(Print_of(general, "Double-sided").y, 257.0F);
    EXPECT_EQ(Print_of(general, "Characteristic capacity =").x, 113.0F);
}

TEST(GeneralData, a_value_ends_at_its_column) {
    Connection connection;
    const Recorder general = General(*connection.s);
    Recorder measure = After_title();
    const PrintCall value = Print_of(general, "330 Kg/m3");
    EXPECT_NEAR(value.x + measure.TextWidth("330 Kg/m3"), 15.0F + 85.0F, 1e-4); // a float of this size holds 1e-5
    EXPECT_NEAR(Print_of(general, "800 MPa").x + measure.TextWidth("800 MPa"), 15.0F + 116.0F, 1e-4);
    EXPECT_NEAR(Print_of(general, "gm = 1.30").x + measure.TextWidth("gm = 1.30"), 15.0F + 148.0F, 1e-4);
}

TEST(GeneralData, a_long_material_name_starts_left_of_the_page_column) {
    Connection connection;
    connection.s->Mat[3].Id = std::string(60, 'W');
    EXPECT_LT(Print_of(General(*connection.s), std::string(60, 'W')).x, 0.0F);
}

TEST(GeneralData, the_name_of_the_load_duration_is_cut_in_the_state_until_the_next_pass) {
    Connection connection;
    connection.s->Lastvar = 3;
    connection.Pass();
    ASSERT_EQ(connection.s->Lastvar_txt, "Medium term action");
    EXPECT_TRUE(Printed(General(*connection.s), "Medium te"));
    EXPECT_EQ(connection.s->Lastvar_txt.View(), "Medium te           "); // 20 characters
    EXPECT_TRUE(Printed(General(*connection.s), "Medium te"));
    connection.Pass();
    EXPECT_EQ(connection.s->Lastvar_txt, "Medium term action");
}

TEST(GeneralData, the_cut_counts_characters) {
    Connection connection{"Nor"};
    connection.s->Lastvar = 3;
    connection.Pass();
    EXPECT_TRUE(Printed(General(*connection.s), "Halvårsla"));
}

TEST(GeneralData, a_row_that_the_material_table_does_not_have_is_a_fault) {
    Connection connection;
    double step{};
    for (const int row : {-1, 101}) {
        connection.s->Mat_index = static_cast<std::int16_t>(row);
        Recorder recorder;
        EXPECT_EQ(Fault_of([&] { PrintGeneral(recorder, *connection.s, 15, 262, 9, step); }), fault_subscript);
    }
}

TEST(GeneralData, a_bolt_outside_the_list_has_no_name) {
    Connection connection;
    connection.s->Bolt_index = 8;
    EXPECT_NO_THROW(General(*connection.s));
    connection.s->Bolt_index = -1;
    EXPECT_NO_THROW(General(*connection.s));
}

TEST(Load, is_printed_without_its_sign_and_with_norwegian_words) {
    struct Row {
        float P;
        const char* figure;
        const char* word;
    };
    for (const char* lang : {"Eng", "Nor"}) {
        for (const Row& row : {Row{12.5F, "12.50", "Trykk"}, Row{-12.5F, "12.50", "Strekk"},
                               Row{0.0F, "0.00", "Strekk"}, Row{0.004F, "0.00", "Trykk"}}) {
            Connection connection{lang};
            connection.s->P = row.P;
            Recorder recorder;
            PrintLoad(recorder, *connection.s, 15, 188, 9);
            const auto prints = Prints(recorder);
            ASSERT_EQ(prints.size(), 3U);
            EXPECT_EQ(prints[0].text, "P=");
            EXPECT_EQ(prints[1].text, row.figure);
            EXPECT_EQ(prints[2].text, row.word);
            EXPECT_EQ(prints[2].x, 50.0F);
        }
    }
}

TEST(Dimensions, members_by_connection_type) {
    struct Row {
        std::int16_t type;
        const char *first_eng, *second_eng, *first_nor, *second_nor;
    };
    // clang-format off
    for (const Row& row : {Row{1, "Top chord", "Bottom chord", "Overgurt ", "Undergurt "},
                           Row{2, "Beam",      "Column",       "Bjelke ",   "Søyle "},
                           Row{3, "Top chord", "Bottom chord", "Overgurt ", "Undergurt "},
                           Row{4, "Beam",      "Column",       "Bjelke ",   "Søyle "},
                           Row{5, "Beam",      "Column",       "Bjelke ",   "Søyle "}}) {
        // clang-format on
        for (const bool eng : {true, false}) {
            Connection connection{eng ? "Eng" : "Nor"};
            connection.s->Con_type = row.type;
            Recorder recorder;
            PrintDimensions(recorder, *connection.s, 15, 235, 9);
            EXPECT_EQ(Text_at(recorder, 60.0F, 229.0F), eng ? row.first_eng : row.first_nor);
            EXPECT_EQ(Text_at(recorder, 87.0F, 229.0F), eng ? row.second_eng : row.second_nor);
        }
    }
}

TEST(Dimensions, the_table_is_94_wide_and_38_high) {
    const Connection connection;
    Recorder recorder;
    PrintDimensions(recorder, *connection.s, 15, 235, 9);
    const auto lines = Calls_of(recorder, PrintCall::Op::Line);
    ASSERT_EQ(lines.size(), 8U);
    const std::vector<std::string> wanted{"1 Line 15 235 109 235 width 1", "1 Line 15 230 109 230 width 1",
                                          "1 Line 55 225 109 225 width 1", "1 Line 15 197 109 197 width 1",
                                          "1 Line 15 197 15 235 width 1",  "1 Line 55 197 55 235 width 1",
                                          "1 Line 82 197 82 230 width 1",  "1 Line 109 197 109 235 width 1"};
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        EXPECT_EQ(Line_of(lines[i]), wanted[i]);
    }
}

} // namespace
} // namespace tarnvik
