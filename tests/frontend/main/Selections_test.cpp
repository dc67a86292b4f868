// Lists, options and buttons: what each writes into the state, what it enables and shows, and the pass that follows.
#include <QWheelEvent>

#include "tests/support/Window.h"

namespace tarnvik::test {
namespace {

using Selections = WindowTest;

TEST_F(Selections, bolt_puts_the_spacing_back_to_5d) {
    Start();
    Pick("Comb_bolt_avstand", 3);
    EXPECT_EQ(s.Avstand_index, 3);
    EXPECT_EQ(passes, 1);
    Pick("Comb_bolter", 0);
    EXPECT_EQ(passes, 2);
    EXPECT_EQ(s.Bolt_index, 0);
    EXPECT_EQ(s.Avstand_index, 0);
    EXPECT_EQ(Text("Comb_bolt_avstand"), "5d");
    EXPECT_EQ(Text("Lbl_skive_diameter2"), "36.0 ");
    EXPECT_EQ(Text("Lbl_skive_tykk2"), "3.6 ");
}

TEST_F(Selections, number_of_bolts_puts_the_spacing_back_to_5d) {
    Start();
    Pick("Comb_bolt_avstand", 15);
    ASSERT_EQ(s.Avstand_index, 15);
    Pick("Comb_ant_bolt", 4);
    EXPECT_EQ(passes, 2);
    EXPECT_EQ(s.Ant_index, 4);
    EXPECT_EQ(s.n_bolt, 6);
    EXPECT_EQ(s.Avstand_index, 0);
    EXPECT_EQ(Row("Comb_bolt_avstand"), 0);
}

TEST_F(Selections, every_bolt_and_every_number) {
    Start();
    const float d[] = {12, 16, 20, 24, 12, 16, 20, 24};
    const float fuk[] = {400, 400, 400, 400, 800, 800, 800, 800};
    s.Prof1_index = s.Prof2_index = 55; // high members
    for (int row = 0; row < 8; ++row) {
        Pick("Comb_bolter", row);
        EXPECT_EQ(s.d, d[row]) << row;
        EXPECT_EQ(s.fuk, fuk[row]) << row;
    }
    const int n[] = {1, 2, 3, 4, 6};
    for (int row = 0; row < 5; ++row) {
        Pick("Comb_ant_bolt", row);
        EXPECT_EQ(s.n_bolt, n[row]);
    }
    EXPECT_EQ(passes, 13);
}

TEST_F(Selections, picking_the_same_row_again_is_an_input) {
    Start();
    Pick("Comb_bolt_avstand", 4);
    passes = 0;
    Pick("Comb_bolter", 6); // selected already
    EXPECT_EQ(passes, 1);
    EXPECT_EQ(s.Avstand_index, 0);
}

TEST_F(Selections, the_arrow_keys_pick_once_for_each_press) {
    Start();
    Find("Comb_bolter").setFocus();
    Settle();
    passes = 0;
    Key(Qt::Key_Up);
    EXPECT_EQ(s.Bolt_index, 5);
    EXPECT_EQ(passes, 1);
    Key(Qt::Key_Down);
    EXPECT_EQ(s.Bolt_index, 6);
    EXPECT_EQ(passes, 2);
}

TEST_F(Selections, a_list_closed_without_a_choice_is_no_input) {
    Start();
    auto& list = Find<QComboBox>("Comb_bolter");
    Click(list);
    ASSERT_TRUE(list.view()->isVisible());
    QTest::keyClick(list.view(), Qt::Key_Escape);
    Settle();
    EXPECT_EQ(passes, 0);
    EXPECT_EQ(s.Bolt_index, 6);
}

TEST_F(Selections, material_and_sections) {
    Start();
    Pick("cboMat", 5);
    EXPECT_EQ(s.Mat_index, 5);
    EXPECT_EQ(passes, 1);
    EXPECT_EQ(Text("lbl_densitet2"), "350 ");
    EXPECT_EQ(Text("Lbl_fc90k2"), "2.5 ");
    Pick("cboProf1", 5); // T  34x145
    EXPECT_EQ(s.Prof1_index, 5);
    EXPECT_EQ(Text("Txt_b1"), "34.0");
    EXPECT_EQ(Text("Txt_h1"), "145.0");
    Pick("cboProf2", 11); // T  36x198
    EXPECT_EQ(s.Prof2_index, 11);
    EXPECT_EQ(Text("Txt_b2"), "36.0");
    EXPECT_EQ(Text("Txt_h2"), "198.0");
    EXPECT_EQ(passes, 3);
}

TEST_F(Selections, the_kind_of_section_enables_its_frame) {
    Start();
    Click("Opt_valg");
    EXPECT_FALSE(s.Standard);
    EXPECT_FALSE(Enabled("Fra_standard"));
    EXPECT_TRUE(Enabled("Fra_valgfri"));
    EXPECT_TRUE(Enabled("Txt_b1"));
    EXPECT_TRUE(Enabled("Txt_h2"));
    EXPECT_FALSE(Enabled("cboProf1"));
    EXPECT_EQ(passes, 1);
    Click("Opt_stand");
    EXPECT_TRUE(s.Standard);
    EXPECT_TRUE(Enabled("Fra_standard"));
    EXPECT_FALSE(Enabled("Fra_valgfri"));
    EXPECT_EQ(passes, 2);
}

TEST_F(Selections, an_option_that_is_selected_does_not_act_again) {
    Start();
    for (const char* option : {"Opt_bolt_bulldog(0)", "Opt_stand", "Opt_trykk", "Opt_enk_1", "Opt_enk_2"}) {
        ASSERT_TRUE(Checked(option)) << option;
        Click(option);
        EXPECT_EQ(passes, 0) << option;
    }
}

TEST_F(Selections, tension_changes_the_sign_and_compression_takes_it_away) {
    Start();
    Click("Opt_strekk");
    EXPECT_EQ(s.P, -10.0F);
    EXPECT_EQ(passes, 1);
    EXPECT_EQ(Text("Lbl_last_kontroll"), "10.0");
    EXPECT_EQ(Text("Txt_last"), "10.0");
    Click("Opt_trykk");
    EXPECT_EQ(s.P, 10.0F);
    EXPECT_EQ(passes, 2);
}

TEST_F(Selections, a_force_typed_in_tension_is_stored_positive_until_an_option_is_clicked) {
    Start();
    Click("Opt_strekk");
    Enter_value("Txt_last", "25");
    EXPECT_EQ(s.P, 25.0F);
    EXPECT_TRUE(Checked("Opt_strekk"));
    Click("Opt_strekk"); // selected already
    EXPECT_EQ(s.P, 25.0F);
    Click("Opt_trykk");
    Click("Opt_strekk");
    EXPECT_EQ(s.P, -25.0F);
}

TEST_F(Selections, double_member_1_locks_double_member_2) {
    Start();
    Click("Opt_dob_1");
    EXPECT_TRUE(s.dob_1);
    EXPECT_FALSE(s.enk_1);
    EXPECT_TRUE(s.enk_2);
    EXPECT_FALSE(s.dob_2);
    EXPECT_EQ(s.Con_code, "1.2");
    EXPECT_FALSE(Enabled("Opt_dob_2"));
    EXPECT_TRUE(Visible("Opt_dob_2"));
    EXPECT_EQ(passes, 1);
    Click("Opt_enk_1");
    EXPECT_TRUE(s.enk_1);
    EXPECT_FALSE(s.dob_1);
    EXPECT_EQ(s.Con_code, "1.1");
    EXPECT_TRUE(Enabled("Opt_dob_2"));
    EXPECT_EQ(passes, 2);
}

TEST_F(Selections, double_member_2_locks_double_member_1) {
    Start();
    Click("Opt_dob_2");
    EXPECT_TRUE(s.dob_2);
    EXPECT_TRUE(s.enk_1);
    EXPECT_FALSE(s.enk_2);
    EXPECT_FALSE(s.dob_1);
    EXPECT_EQ(s.Con_code, "1.3");
    EXPECT_FALSE(Enabled("Opt_dob_1"));
    EXPECT_TRUE(Visible("Opt_dob_1"));
    EXPECT_FALSE(Checked("Opt_dob_1"));
    EXPECT_TRUE(Checked("Opt_enk_1"));
    EXPECT_EQ(passes, 1);
    Click("Opt_enk_2");
    EXPECT_TRUE(s.enk_2);
    EXPECT_FALSE(s.dob_2);
    EXPECT_EQ(s.Con_code, "1.1");
    EXPECT_TRUE(Enabled("Opt_dob_1"));
    EXPECT_EQ(passes, 2);
}

TEST_F(Selections, every_type_starts_with_its_angle_and_single_members) {
    Start();
    const float angle[] = {27, 27, 27, 90, 90};
    const char* const shown[] = {"27.0", "27.0", "27.0", "90.0", "90.0"};
    const char* const code[] = {"1.1", "2.1", "3.1", "4.1", "5.1"};
    for (int type = 0; type < 5; ++type) {
        SCOPED_TRACE(type);
        Pick("Comb_bolt_avstand", 2);
        Click(type % 2 == 0 ? "Opt_dob_1" : "Opt_dob_2");
        Click("Cmd_type(" + std::to_string(type) + ")");
        EXPECT_EQ(s.Con_type, type + 1);
        EXPECT_EQ(s.alp, angle[type]);
        EXPECT_EQ(Text("Txt_alp"), shown[type]);
        EXPECT_TRUE(Visible("Txt_alp"));
        EXPECT_TRUE(Visible("Lbl_alp"));
        EXPECT_EQ(Enabled("Txt_alp"), type < 3);
        EXPECT_EQ(s.Avstand_index, 0);
        EXPECT_EQ(s.Con_code, code[type]);
        EXPECT_TRUE(Checked("Opt_enk_1"));
        EXPECT_TRUE(Checked("Opt_enk_2"));
        EXPECT_TRUE(Enabled("Opt_dob_1"));
        EXPECT_TRUE(Enabled("Opt_dob_2"));
        EXPECT_TRUE(s.enk_1 && s.enk_2 && !s.dob_1 && !s.dob_2);
        passes = 0;
        Click("Cmd_type(" + std::to_string(type) + ")"); // a button acts at every click
        EXPECT_EQ(passes, 1);
    }
}

TEST_F(Selections, the_type_leaves_material_sections_and_force) {
    Start();
    Pick("cboMat", 7);
    Pick("cboProf1", 9);
    Enter_value("Txt_last", "12.5");
    Click("Cmd_type(2)");
    EXPECT_EQ(s.Mat_index, 7);
    EXPECT_EQ(s.Prof1_index, 9);
    EXPECT_EQ(s.P, 12.5F);
    EXPECT_EQ(Text("Txt_last"), "12.50");
}

TEST_F(Selections, the_type_clears_manual_he) {
    Start();
    Click("Check_man");
    ASSERT_TRUE(s.Man_he_on);
    passes = 0;
    Click("Cmd_type(1)");
    EXPECT_FALSE(s.Man_he_on);
    EXPECT_FALSE(Checked("Check_man"));
    EXPECT_FALSE(Enabled("Txt_man_he"));
    EXPECT_EQ(passes, 2); // that of the check box and that of the button
}

TEST_F(Selections, the_arrangement_buttons_write_the_letter) {
    Start();
    Click("Cmd_boltetype(0)");
    EXPECT_EQ(s.Bolt_ab, "a");
    EXPECT_EQ(s.Case_code, "1.2.a");
    EXPECT_EQ(passes, 1);
    Click("Cmd_boltetype(1)");
    EXPECT_EQ(s.Bolt_ab, "b");
    EXPECT_EQ(s.Case_code, "1.2.b");
    EXPECT_EQ(passes, 2);
}

TEST_F(Selections, the_arrangement_buttons_are_usable_where_there_is_a_choice) {
    Start();
    const bool usable[5][5] = {
        // 1, 2, 3, 4, 6 bolts
        {false, true, true, false, false}, {false, false, false, false, false}, {false, true, true, false, false},
        {false, true, true, false, true},  {false, true, true, false, true},
    };
    Pick("cboProf1", 55);
    Pick("cboProf2", 55);
    for (int type = 0; type < 5; ++type) {
        Click("Cmd_type(" + std::to_string(type) + ")");
        for (int row = 0; row < 5; ++row) {
            Pick("Comb_ant_bolt", row);
            for (const char* button : {"Cmd_boltetype(0)", "Cmd_boltetype(1)"}) {
                EXPECT_EQ(Enabled(button), usable[type][row]) << button << " type " << type + 1 << " row " << row;
                EXPECT_TRUE(Visible(button)) << button;
            }
        }
    }
}

TEST_F(Selections, the_arrangement_waits_while_there_is_no_choice) {
    Start();
    Click("Cmd_boltetype(0)");
    Click("Cmd_type(1)");
    EXPECT_EQ(s.Case_code, "2.2. ");
    EXPECT_EQ(s.Bolt_ab, "a");
    Click("Cmd_type(0)");
    EXPECT_EQ(s.Case_code, "1.2.a");
}

TEST_F(Selections, the_spacing_list_is_shown_with_a_row_along_the_grain) {
    Start();
    EXPECT_TRUE(Visible("Comb_bolt_avstand"));
    EXPECT_TRUE(Visible("lbl_txt_avstand"));
    Click("Cmd_boltetype(0)");
    EXPECT_FALSE(Visible("Comb_bolt_avstand"));
    EXPECT_FALSE(Visible("lbl_txt_avstand"));
    EXPECT_EQ(Text("Lbl_2_nef_max"), "2.00 ");
}

// Connectors

const std::vector<std::string> with_connectors{
    "Fra_bulldog", "Fra_av_bulldog",          "Lbl_bulldog_kap1",      "Lbl_bulldog_kap2",
    "Lbl_pluss",   "Lbl_Rd_bulldog_kontroll", "Lbl_tot_eff_bulldog_1", "Lbl_tot_eff_bulldog_2"};

TEST_F(Selections, connectors_show_their_frames_and_start_with_D62) {
    Start();
    Pick("Comb_bolter", 5); // M16: fits all up to D75
    passes = 0;
    Click("Opt_bolt_bulldog(1)");
    EXPECT_TRUE(s.Med_bulldog);
    EXPECT_FALSE(s.Kun_bolt);
    EXPECT_EQ(s.Bulldog_index, 1);
    EXPECT_EQ(s.dc, 62.0F);
    EXPECT_EQ(Text("Comb_bulldog"), "Double-sided D62");
    EXPECT_EQ(passes, 2); // that of the list and that of the option
    for (const std::string& name : with_connectors) {
        EXPECT_TRUE(Visible(name)) << name;
    }
    EXPECT_EQ(Text("Lbl_bulldog2"), std::string{Format(s.Fv_Rk, "0.00 ").View()});
    EXPECT_EQ(Text("Lbl_bulldog_kap2"), std::string{Format(s.Rd_for, "0.0 ").View()});
    EXPECT_EQ(Text("Lbl_Rd_bulldog_kontroll"), std::string{Format(s.Rd_for, "0.0").View()});
    EXPECT_TRUE(boxes.messages.empty());
    Click("Opt_bolt_bulldog(0)");
    EXPECT_FALSE(s.Med_bulldog);
    EXPECT_TRUE(s.Kun_bolt);
    EXPECT_EQ(passes, 3);
    for (const std::string& name : with_connectors) {
        EXPECT_FALSE(Visible(name)) << name;
    }
}

TEST_F(Selections, every_connector_sets_its_diameter) {
    Start();
    Click("Opt_bolt_bulldog(1)");
    const float dc[] = {48, 62, 75, 95, 117}; // the first is called D50
    passes = 0;
    for (int row = 0; row < 5; ++row) {
        Pick("Comb_bolter", row == 0 ? 5 : 6);
        Pick("Comb_bolt_avstand", 2);
        passes = 0;
        Pick("Comb_bulldog", row);
        EXPECT_EQ(s.Bulldog_index, row);
        EXPECT_EQ(s.dc, dc[row]);
        EXPECT_EQ(s.Avstand_index, 2); // a connector leaves the spacing
        EXPECT_EQ(passes, 1);
    }
}

TEST_F(Selections, choosing_connectors_again_puts_D62_back) {
    Start();
    Click("Opt_bolt_bulldog(1)");
    Pick("Comb_bulldog", 3);
    Click("Opt_bolt_bulldog(0)");
    EXPECT_EQ(s.Bulldog_index, 3);
    Click("Opt_bolt_bulldog(1)");
    EXPECT_EQ(s.Bulldog_index, 1);
    EXPECT_EQ(s.dc, 62.0F);
}

TEST_F(Selections, a_refused_connector_stops_the_pass_until_it_is_mended) {
    Start();
    Click("Opt_bolt_bulldog(1)");
    const std::string washer = Text("Lbl_skive_diameter2");
    const std::string capacity = Text("Lbl_bulldog2");
    const std::string uf = Text("Lbl_uf");
    Pick("Comb_bulldog", 0); // D50 with M20
    EXPECT_EQ(boxes.messages, (Messages{{"Use larger connector or smaller bolt", 0}}));
    EXPECT_EQ(Find<ListBox>("Comb_bulldog").Back(), green);
    EXPECT_FALSE(Find<QAction>("mnuprint").isEnabled());
    EXPECT_EQ(Text("Lbl_uf"), uf);
    Answer();
    Pick("cboMat", 8); // another input is refused as well, and shows nothing new
    EXPECT_EQ(boxes.messages.size(), 2U);
    EXPECT_EQ(Text("lbl_densitet2"), "330 ");
    EXPECT_EQ(Text("Lbl_bulldog2"), capacity);
    Answer();
    Pick("Comb_bulldog", 1);
    EXPECT_EQ(boxes.messages.size(), 2U);
    EXPECT_EQ(Find<ListBox>("Comb_bulldog").Back(), white);
    EXPECT_TRUE(Find<QAction>("mnuprint").isEnabled());
    EXPECT_EQ(Text("lbl_densitet2"), "400 ");
    EXPECT_EQ(Text("Lbl_skive_diameter2"), washer);
}

TEST_F(Selections, a_refused_connector_in_Norwegian) {
    Start("Nor");
    Click("Opt_bolt_bulldog(1)");
    Pick("Comb_bulldog", 0);
    EXPECT_EQ(boxes.messages, (Messages{{"Bruk større forbinder eller mindre bolt", 0}}));
}

TEST_F(Selections, leaving_a_refused_pair_by_bolts_only_keeps_printing_off_until_an_allowed_pair) {
    Start();
    Click("Opt_bolt_bulldog(1)");
    Pick("Comb_bulldog", 0);
    Answer();
    Click("Opt_bolt_bulldog(0)");
    EXPECT_FALSE(Find<QAction>("mnuprint").isEnabled());
    EXPECT_EQ(Find<ListBox>("Comb_bulldog").Back(), green);
    Click("Opt_bolt_bulldog(1)"); // D62 again
    EXPECT_TRUE(Find<QAction>("mnuprint").isEnabled());
    EXPECT_EQ(Find<ListBox>("Comb_bulldog").Back(), white);
}

TEST_F(Selections, a_refused_pass_keeps_what_the_user_typed) {
    Start();
    Click("Opt_valg");
    Click("Opt_bolt_bulldog(1)");
    Enter_value("Txt_h1", "150");
    Pick("Comb_bulldog", 0);
    Answer();
    Enter_value("Txt_b1", "47.5"); // its pass is refused too
    EXPECT_EQ(boxes.Waiting(), 1U);
    Answer();
    EXPECT_EQ(Text("Txt_b1"), "47.5");
    Pick("Comb_bulldog", 1);
    EXPECT_EQ(s.b1, 47.5F);
    EXPECT_EQ(Text("Txt_b1"), "47.5");
}

// Manual he

TEST_F(Selections, manual_he_is_enabled_without_a_pass_and_disabled_with_one) {
    Start();
    Click("Check_man");
    EXPECT_TRUE(s.Man_he_on);
    EXPECT_TRUE(Enabled("Txt_man_he"));
    EXPECT_TRUE(Enabled("Lbl_man_he"));
    EXPECT_EQ(passes, 0);
    Click("Check_man");
    EXPECT_FALSE(s.Man_he_on);
    EXPECT_FALSE(Enabled("Txt_man_he"));
    EXPECT_FALSE(Enabled("Lbl_man_he"));
    EXPECT_EQ(passes, 1);
}

// A fault

TEST_F(Selections, a_fault_in_the_pass_is_told_in_one_box_and_the_program_goes_on) {
    Start();
    Pick("cboProf2", 12); // T  45x45: lower than its distances
    ASSERT_EQ(boxes.messages.size(), 1U);
    EXPECT_EQ(boxes.messages[0].text, "Run-time error 5: invalid procedure call or argument (Tverr_brudd)");
    EXPECT_EQ(boxes.messages[0].style, 0);
    EXPECT_EQ(s.Prof2_index, 12);
    EXPECT_EQ(Text("Txt_h2"), "45.0"); // what the pass reached is shown
    Answer();
    Pick("cboProf2", 11);
    EXPECT_EQ(boxes.messages.size(), 1U);
    EXPECT_EQ(Text("Txt_h2"), "198.0");
    EXPECT_EQ(Text("Lbl_uf"), std::string{Format(s.uf, "0.00 ").View()});
}

// While the program itself sets controls

TEST_F(Selections, no_handler_acts_while_loading_but_the_arrangement_buttons) {
    Start();
    s.Loading = true;
    Find<QComboBox>("Comb_bolter").setCurrentIndex(1);
    Find<QComboBox>("Comb_ant_bolt").setCurrentIndex(3);
    Find<QComboBox>("cboMat").setCurrentIndex(1);
    Find<QComboBox>("cboProf1").setCurrentIndex(1);
    Find<QComboBox>("cboProf2").setCurrentIndex(1);
    Find<QAbstractButton>("Opt_valg").setChecked(true);
    Find<QAbstractButton>("Opt_strekk").setChecked(true);
    Find<QAbstractButton>("Opt_dob_1").setChecked(true);
    Find<QAbstractButton>("Opt_dob_2").setChecked(true);
    Find<QAbstractButton>("Opt_bolt_bulldog(1)").setChecked(true);
    Find<QAbstractButton>("Check_man").setChecked(true);
    Find<QAbstractButton>("Cmd_type(4)").click();
    EXPECT_EQ(passes, 0);
    EXPECT_EQ(s.Bolt_index, 6);
    EXPECT_EQ(s.Ant_index, 1);
    EXPECT_EQ(s.Mat_index, 3);
    EXPECT_EQ(s.Prof1_index, 3);
    EXPECT_EQ(s.Prof2_index, 6);
    EXPECT_TRUE(s.Standard);
    EXPECT_EQ(s.P, 10.0F);
    EXPECT_FALSE(s.dob_1 || s.dob_2 || s.Med_bulldog || s.Man_he_on);
    EXPECT_EQ(s.Con_type, 1);
    s.Loading = true;
    Find<QAbstractButton>("Cmd_boltetype(0)").click();
    EXPECT_EQ(passes, 1);
    EXPECT_EQ(s.Bolt_ab, "a");
    EXPECT_FALSE(s.Loading); // the pass cleared it
}

TEST_F(Selections, click_and_space_both_press_a_button) {
    Start();
    Find("Cmd_type(3)").setFocus();
    Settle();
    Key(Qt::Key_Space);
    EXPECT_EQ(s.Con_type, 4);
    Find("Opt_enk_1").setFocus();
    Settle();
    Key(Qt::Key_Right); // the arrow goes on to the next option and selects it
    EXPECT_TRUE(s.dob_1);
}

TEST_F(Selections, the_wheel_over_a_list_in_passing_changes_nothing) {
    Start();
    auto& list = Find("cboMat");
    const QPointF middle = QRectF{list.rect()}.center();
    QWheelEvent turn{middle,         list.mapToGlobal(middle), {},   {0, -120}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase,        false};
    QApplication::sendEvent(&list, &turn);
    Settle();
    EXPECT_EQ(s.Mat_index, 3);
    EXPECT_EQ(passes, 0);
}

} // namespace
} // namespace tarnvik::test
