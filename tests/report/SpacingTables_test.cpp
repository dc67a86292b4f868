#include "spacing/Catalogue.h"
#include "tests/support/Report.h"

namespace tarnvik {
namespace {

using namespace test;

// A case of the catalogue, after a pass.
void Choose(Connection& connection, std::string_view code) {
    const CaseRow& row = case_table.at(static_cast<std::size_t>(Find_case(code)));
    ConnectionState& s = *connection.s;
    s.Con_type = static_cast<std::int16_t>(row.type - '0');
    s.Ant_index = static_cast<std::int16_t>(row.n_bolt == 6 ? 4 : row.n_bolt - 1);
    s.Bolt_ab = std::string_view{&row.letter, 1};
    Pick_connector(s, 1);
    s.Bolt_index = 5;
    ASSERT_EQ(connection.Pass(), PassEnd::normal) << code;
    ASSERT_EQ(s.Case_code, code);
}

// A table with its anchor at (0, 100): the texts of its rows by their number, from 1.
struct Table {
    Table(const ConnectionState& s, SpacingTexts& texts, bool connectors) {
        Recorder recorder = After_title();
        height =
            connectors ? PrintSpacingConnector(recorder, s, texts, 0, 100) : PrintSpacing(recorder, s, texts, 0, 100);
        calls = Prints(recorder);
    }
    [[nodiscard]] std::optional<std::string> At(float x, float y) const {
        for (const PrintCall& call : calls) {
            if (call.x == x && call.y == y) {
                return call.text;
            }
        }
        return std::nullopt;
    }
    [[nodiscard]] std::string Text(int row) const {
        return At(80.0F, 100.0F - 4.0F * static_cast<float>(row)).value_or("(none)");
    }
    [[nodiscard]] std::string Value(int row) const {
        return At(135.0F, 100.0F - 4.0F * static_cast<float>(row)).value_or("(none)");
    }
    [[nodiscard]] std::string Note(int row) const {
        return At(140.0F, 100.0F - 4.0F * static_cast<float>(row)).value_or("(none)");
    }
    [[nodiscard]] std::string Member(int row) const {
        return At(147.0F, 99.0F - 4.0F * static_cast<float>(row)).value_or("(none)");
    }

    float height{};
    std::vector<PrintCall> calls;
};

TEST(SpacingTables, the_first_row_stands_a_row_height_below_the_anchor) {
    Connection connection;
    Choose(connection, "2.1. ");
    SpacingTexts texts;
    const Table table{*connection.s, texts, false};
    EXPECT_EQ(table.Text(0), "(none)");
    EXPECT_EQ(table.Text(1), std::string{connection.s->Sa1_lbl} + "   =  " + std::string{connection.s->Sa1_txt});
    EXPECT_EQ(table.At(130.0F, 96.0F), "=");
    EXPECT_EQ(table.Text(4), std::string(57, '-'));
    EXPECT_EQ(table.height, 40.0F) << "nine rows, and the counter stands at the tenth";
}

TEST(SpacingTables, values_have_at_least_two_digits) {
    Connection connection;
    Choose(connection, "2.1. ");
    connection.s->Sa1 = 8.0F;
    connection.s->Sa2 = 120.0F;
    SpacingTexts texts;
    const Table table{*connection.s, texts, false};
    EXPECT_EQ(table.Value(1), "08");
    EXPECT_EQ(table.Value(2), "120");
}

TEST(SpacingTables, an_empty_rule_leaves_nothing_behind_the_equals_sign) {
    Connection connection;
    Choose(connection, "2.1. ");
    connection.s->Sa1_txt = {};
    SpacingTexts texts;
    EXPECT_EQ(Table(*connection.s, texts, false).Text(1), std::string{connection.s->Sa1_lbl} + "   =  ");
}

TEST(SpacingTables, no_table_outside_the_catalogue) {
    Connection connection;
    Choose(connection, "1.4. ");
    SpacingTexts texts;
    for (const std::int16_t n : {std::int16_t{5}, std::int16_t{0}, std::int16_t{7}}) {
        connection.s->n_bolt = n;
        EXPECT_TRUE(Table(*connection.s, texts, false).calls.empty()) << n;
    }
}

TEST(SpacingTables, any_letter_but_b_counts_as_a) {
    Connection connection;
    Choose(connection, "1.2.a");
    SpacingTexts texts;
    connection.s->Bolt_ab = "x";
    EXPECT_TRUE(Table(*connection.s, texts, false).Text(1).starts_with("txt1_a   = "));
}

// Forms and crossings, as the cases print them.
TEST(SpacingTables, forms_and_crossings) {
    Connection connection;
    SpacingTexts texts;
    const auto text = [](std::string_view before, std::string_view rule) {
        return std::string{before} + std::string{rule};
    };

    Choose(connection, "1.1. ");
    EXPECT_EQ(Table(*connection.s, texts, false).Text(5), connection.s->Sum_a_txt) << "a3 has the text of the sum";

    Choose(connection, "1.2.a");
    Table table{*connection.s, texts, false};
    EXPECT_EQ(table.Text(1), text("txt1_a   = ", connection.s->Sa1_txt));
    EXPECT_EQ(table.Text(5), text("txt3_a   = ", connection.s->Sa3_txt));
    EXPECT_EQ(table.Text(7), text("txt4_a   = ", connection.s->Sa4_txt));
    EXPECT_EQ(table.Text(10), text("txt2_b   = ", connection.s->Sb2_txt));
    EXPECT_EQ(table.Text(11), text("txt4_b   = ", connection.s->Sb4_txt)) << "the row of b3";
    EXPECT_EQ(table.Value(11), std::string{Format(connection.s->Sb3, "00").View()});
    EXPECT_EQ(table.Text(14), text("txt4_b   = ", connection.s->Sb4_txt));

    Choose(connection, "1.2.b");
    table = Table{*connection.s, texts, false};
    EXPECT_EQ(table.Text(4), std::string{connection.s->Sa4_lbl} + "   =  " + std::string{connection.s->Sa4_txt});
    EXPECT_EQ(table.Value(4), std::string{Format(connection.s->Sum_a, "00").View()});

    Choose(connection, "3.3.b");
    table = Table{*connection.s, texts, true};
    EXPECT_EQ(table.Text(7), text("b1   = ", connection.s->Cb1_txt));
    EXPECT_EQ(table.Text(11), text("b3  = ", connection.s->Cb4_txt)) << "two blanks below the sum of family b";
    EXPECT_EQ(table.Text(12), text("b4  = ", connection.s->Cb4_txt));
    EXPECT_EQ(table.Text(14), text("b5  = ", connection.s->Cb5_txt));

    Choose(connection, "1.6. ");
    table = Table{*connection.s, texts, true};
    EXPECT_EQ(table.Text(9), text("a6   = ", connection.s->Ca6_txt)) << "three blanks in family a, also below its sum";
    EXPECT_EQ(table.Text(19), text("b6  = ", connection.s->Cb6_txt));
}

// The rows of 1.3.b: a1 a2 a3 a4 Sa - a5 - a6 - b1 b2 b3 Sb - b4 b5 - b6.
constexpr int row_b5_of_13b = 17;
constexpr int row_b6_of_13b = 19;
// Of 3.6: a1 a2 a3 a4 Sa - a5 - b1 b2 b3 Sb - b4 b5 - b6.
constexpr int row_b6_of_36 = 17;

TEST(SpacingTables, rows_without_a_text_of_their_own_are_empty_in_a_fresh_program) {
    Connection connection;
    Choose(connection, "1.3.b");
    for (const bool connectors : {false, true}) {
        SpacingTexts texts;
        const Table table{*connection.s, texts, connectors};
        EXPECT_EQ(table.Text(row_b5_of_13b), "");
        EXPECT_EQ(table.Text(row_b6_of_13b), "");
        EXPECT_EQ(table.Value(row_b5_of_13b),
                  std::string{Format(connectors ? connection.s->Cb5 : connection.s->Sb5, "00").View()});
        EXPECT_EQ(table.At(130.0F, 100.0F - 4.0F * row_b6_of_13b), "=");
    }
    Choose(connection, "3.6. ");
    SpacingTexts texts;
    EXPECT_EQ(Table(*connection.s, texts, false).Text(row_b6_of_36), "");
    EXPECT_EQ(Table(*connection.s, texts, true).Text(row_b6_of_36), "b6  = " + std::string{connection.s->Cb6_txt});
}

// 13th: filled by 1.6 (b5), 2.6 (b6) and 3.6 (b6). 14th: by 1.6 (b6) alone.
TEST(SpacingTables, texts_of_earlier_prints_stay_in_the_13th_and_14th_buffer) {
    Connection connection;
    SpacingTexts texts;
    const auto print = [&](std::string_view code, bool connectors = false) {
        Choose(connection, code);
        return Table{*connection.s, texts, connectors};
    };
    print("1.6. ");
    const std::string b5_of_16 = "b5  = " + std::string{connection.s->Sb5_txt};
    const std::string b6_of_16 = "b6  = " + std::string{connection.s->Sb6_txt};
    Table table = print("1.3.b");
    EXPECT_EQ(table.Text(row_b5_of_13b), b5_of_16);
    EXPECT_EQ(table.Text(row_b6_of_13b), b6_of_16);

    print("2.6. ");
    const std::string b6_of_26 = std::string{connection.s->Sb6_lbl} + "   =  " + std::string{connection.s->Sb6_txt};
    table = print("1.3.b");
    EXPECT_EQ(table.Text(row_b5_of_13b), b6_of_26);
    EXPECT_EQ(table.Text(row_b6_of_13b), b6_of_16) << "2.6 leaves the 14th";

    table = print("3.6. ");
    EXPECT_EQ(table.Text(row_b6_of_36), b6_of_16) << "it prints the 14th, which 1.6 has filled";
    const std::string b6_of_36 = "b6  = " + std::string{connection.s->Sb6_txt};
    table = print("1.3.b");
    EXPECT_EQ(table.Text(row_b5_of_13b), b6_of_36) << "but fills the 13th";
    EXPECT_EQ(table.Text(row_b6_of_13b), b6_of_16);

    table = print("1.3.b", true);
    EXPECT_EQ(table.Text(row_b5_of_13b), "") << "the connectors' table has buffers of its own";
    print("3.6. ", true);
    const std::string connector_b6_of_36 = "b6  = " + std::string{connection.s->Cb6_txt};
    table = print("1.3.b", true);
    EXPECT_EQ(table.Text(row_b5_of_13b), connector_b6_of_36);
    EXPECT_EQ(table.Text(row_b6_of_13b), "");
}

TEST(SpacingTables, cases_with_fewer_rows_leave_the_13th_buffer) {
    Connection connection;
    SpacingTexts texts;
    texts.bolts[12] = "kept";
    texts.bolts[13] = "kept too";
    for (const CaseRow& row : case_table) {
        if (row.Case_code == "1.6. " || row.Case_code == "2.6. " || row.Case_code == "3.6. ") {
            continue;
        }
        Choose(connection, row.Case_code);
        const Table table{*connection.s, texts, false};
        EXPECT_EQ(texts.bolts[12], "kept") << row.Case_code;
        EXPECT_EQ(texts.bolts[13], "kept too") << row.Case_code;
    }
}

TEST(SpacingTables, the_note_of_the_chords_looks_at_the_bolts_sum_of_family_a_everywhere) {
    Connection connection;
    Choose(connection, "1.1. ");
    ConnectionState& s = *connection.s;
    s.h1 = 100.0F;
    for (const bool connectors : {false, true}) {
        SpacingTexts texts;
        s.Sum_a = 99.0F;
        s.Sum_b = s.Sum_ca = s.Sum_cb = 500.0F;
        EXPECT_EQ(Table(s, texts, connectors).Note(3), "  < h");
        EXPECT_EQ(Table(s, texts, connectors).Note(9), "  < h");
        EXPECT_EQ(Table(s, texts, connectors).Member(9), "top chord");
        s.Sum_a = 100.0F; // equal is not below
        s.Sum_b = s.Sum_ca = s.Sum_cb = 1.0F;
        EXPECT_EQ(Table(s, texts, connectors).Note(3), "  > h");
        EXPECT_EQ(Table(s, texts, connectors).Note(9), "  > h");
    }
}

TEST(SpacingTables, the_note_of_the_beam_looks_at_its_value_and_that_of_the_column_at_nothing) {
    Connection connection{"Nor"};
    Choose(connection, "2.1. ");
    ConnectionState& s = *connection.s;
    s.h1 = 100.0F;
    s.Sum_a = 99.0F;
    s.Sum_ca = 101.0F;
    s.Sum_b = s.Sum_cb = 1.0F;
    SpacingTexts texts;
    EXPECT_EQ(Table(s, texts, false).Note(3), "  < h");
    EXPECT_EQ(Table(s, texts, true).Note(3), "  > h");
    EXPECT_EQ(Table(s, texts, false).Member(3), "bjelk");
    EXPECT_EQ(Table(s, texts, false).Note(7), "  > h");
    EXPECT_EQ(Table(s, texts, true).Member(7), "søyle");
}

} // namespace
} // namespace tarnvik
