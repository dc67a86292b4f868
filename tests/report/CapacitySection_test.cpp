#include "tests/support/Report.h"

namespace tarnvik {
namespace {

using namespace test;

Recorder Capacity(const ConnectionState& s) {
    Recorder recorder = After_title();
    PrintCapacity(recorder, s, 16, 177);
    return recorder;
}

TEST(CapacitySection, single_shear_has_six_modes_and_double_shear_four) {
    Connection connection;
    const Recorder single = Capacity(*connection.s);
    EXPECT_TRUE(Printed(single, "Single shear="));
    EXPECT_EQ(Print_of(single, "Rk(a) = ").y, 109.0F);
    EXPECT_EQ(Print_of(single, "Rk(f) = ").y, 47.0F);
    EXPECT_FALSE(Printed(single, "Rk(g) = "));
    Pick_variant(*connection.s, 1, 2);
    connection.Pass();
    const Recorder twofold = Capacity(*connection.s);
    EXPECT_TRUE(Printed(twofold, "Double shear="));
    EXPECT_EQ(Print_of(twofold, "Rk(g) = ").y, 109.0F);
    EXPECT_EQ(Print_of(twofold, "Rk(k) = ").y, 72.0F);
    EXPECT_FALSE(Printed(twofold, "Rk(a) = "));
}

TEST(CapacitySection, the_numbers_of_fasteners_are_whole_without_a_row_along_the_grain) {
    Connection connection;
    connection.s->Ant_index = 0; // one bolt
    connection.Pass();
    ASSERT_FALSE(connection.s->Has_row);
    EXPECT_EQ(Text_at(Capacity(*connection.s), 96.0F, 36.0F), "1");
    connection.s->Ant_index = 1;
    connection.Pass();
    ASSERT_TRUE(connection.s->Has_row);
    EXPECT_EQ(Text_at(Capacity(*connection.s), 96.0F, 36.0F), std::string{Format(connection.s->nef_b, "0.00").View()});
}

TEST(CapacitySection, the_whole_number_of_connectors_stands_on_the_equals_sign) {
    Connection connection;
    Pick_connector(*connection.s, 1);
    connection.s->Bolt_index = 5;
    connection.s->Ant_index = 0;
    ASSERT_EQ(connection.Pass(), PassEnd::normal);
    std::vector<std::string> there;
    for (const PrintCall& call : Prints(Capacity(*connection.s))) {
        if (call.x == 166.0F && call.y == 36.0F) {
            there.push_back(call.text + (call.font.bold ? " bold" : ""));
        }
    }
    EXPECT_EQ(there, (std::vector<std::string>{"=", "1 bold"}));
}

TEST(CapacitySection, the_check_stands_under_the_bolts_or_under_the_connectors) {
    Connection connection;
    connection.s->P = -12.5F;
    connection.Pass();
    const Recorder bolts = Capacity(*connection.s);
    EXPECT_EQ(Print_of(bolts, "Kontroll = P / Rd_b").y, 18.0F);
    EXPECT_TRUE(Text_at(bolts, 95.0F, 18.0F)->starts_with("12.50 / ")) << "without its sign";
    Pick_connector(*connection.s, 1);
    connection.s->Bolt_index = 5;
    ASSERT_EQ(connection.Pass(), PassEnd::normal);
    const Recorder both = Capacity(*connection.s);
    EXPECT_FALSE(Printed(both, "Kontroll = P / Rd_b"));
    EXPECT_EQ(Print_of(both, "Kontroll = P / ( Rd_bolt + Rd_con.)").y, 12.0F);
    EXPECT_EQ(Text_at(both, 95.0F, 12.0F), std::nullopt);
    EXPECT_TRUE(Text_at(both, 95.0F, 10.0F)->starts_with("12.50 /  ( ")) << "2 units lower";
}

TEST(CapacitySection, utilisation_is_a_plain_ratio) {
    Connection connection;
    connection.s->uf = 1.005F; // below 1.005 as a float: 1.00499999523
    EXPECT_EQ(Text_at(Capacity(*connection.s), 169.0F, 18.0F), "1.00");
    connection.s->uf = 0.125F;
    EXPECT_EQ(Text_at(Capacity(*connection.s), 169.0F, 18.0F), "0.13");
}

TEST(CapacitySection, only_marked_texts_are_bold) {
    const Connection connection;
    const Recorder capacity = Capacity(*connection.s);
    for (const PrintCall& call : Prints(capacity)) {
        const bool result = call.x == 169.0F || (call.x == 96.0F && call.y == 36.0F);
        EXPECT_EQ(call.font.bold, result || call.text == "Single shear=") << call.text;
    }
    EXPECT_EQ(Calls_of(capacity, PrintCall::Op::FontName).size(), 0U) << "it runs on the font of the title";
    EXPECT_EQ(Calls_of(capacity, PrintCall::Op::FontSize).size(), 0U);
    EXPECT_EQ(Calls_of(capacity, PrintCall::Op::Line).size(), 0U);
}

TEST(CapacitySection, a_code_of_another_type_prints_no_beta_and_no_thicknesses) {
    Connection connection;
    connection.s->Con_type = 3; // Con_code is still 1.1
    for (const PrintCall& call : Prints(Capacity(*connection.s))) {
        EXPECT_FALSE(call.text.starts_with("Beta")) << call.text;
        EXPECT_FALSE(call.text.starts_with("t1")) << call.text;
    }
    connection.s->Con_type = 5;
    connection.s->Con_code = "2.1"; // types 2, 4 and 5 are one group
    EXPECT_EQ(Text_at(Capacity(*connection.s), 16.0F, 131.0F)->substr(0, 6), "Beta :");
}

TEST(CapacitySection, a_code_that_is_none_leaves_the_angle_row_out) {
    Connection connection;
    connection.s->Con_code = "9.9";
    const Recorder capacity = Capacity(*connection.s);
    EXPECT_EQ(Text_at(capacity, 16.0F, 157.0F), std::nullopt);
    EXPECT_EQ(Text_at(capacity, 16.0F, 150.0F), std::nullopt);
    EXPECT_EQ(Text_at(capacity, 31.0F, 150.0F), " alpha =");
}

TEST(CapacitySection, the_norwegian_note_keeps_its_english_noun) {
    Connection connection{"Nor"};
    Pick_variant(*connection.s, 4, 3);
    connection.s->alp = 90.0F;
    connection.Pass();
    EXPECT_TRUE(Text_at(Capacity(*connection.s), 16.0F, 121.0F)->ends_with("  (Enkel beam)"));
}

TEST(Equations, stand_at_fixed_places_and_on_the_rows_of_their_modes) {
    Connection connection;
    Recorder recorder;
    PrintEquations(recorder, *connection.s);
    const auto single = Calls_of(recorder, PrintCall::Op::PaintPicture);
    ASSERT_EQ(single.size(), 6U);
    EXPECT_EQ(Line_of(single[4]), "1 PaintPicture \"Frm_tarn_vik_likninger/Pic_r_e\" 30 68 109 -15");
    Pick_variant(*connection.s, 1, 3);
    connection.Pass();
    Recorder other;
    PrintEquations(other, *connection.s);
    const auto twofold = Calls_of(other, PrintCall::Op::PaintPicture);
    ASSERT_EQ(twofold.size(), 4U);
    EXPECT_EQ(Line_of(twofold[1]), "1 PaintPicture \"Frm_tarn_vik_likninger/Pic_r_h\" 30 103 18 -7");

    for (const auto& pictures : {single, twofold}) {
        for (const PrintCall& picture : pictures) {
            const std::optional<double> row = Equation_row(picture.text);
            ASSERT_TRUE(row) << picture.text;
            EXPECT_LT(*row, static_cast<double>(picture.y)) << picture.text;
            EXPECT_GT(*row, static_cast<double>(picture.y + picture.height)) << picture.text;
        }
    }
    EXPECT_EQ(Equation_row("Frm_tarn_vik_forbindelser/Pic_1_1"), std::nullopt);
}

} // namespace
} // namespace tarnvik
