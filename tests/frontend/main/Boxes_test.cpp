// The text boxes: typed freely, accepted on leaving; green in editing or refused, white accepted.
#include "calc/Splitting.h"
#include "tests/support/Window.h"

namespace tarnvik::test {
namespace {

struct NumberBox {
    const char* box;
    float ConnectionValues::*value;
    const char* typed;
    float stored;
    const char* shown; // after the pass
    const char* refused_eng;
    const char* refused_nor;
};

// clang-format off
const NumberBox number_boxes[] = {
    {"Txt_alp",  &ConnectionValues::alp, "32,125", 32.125F, "32.13",  "alp =< 0 ", "alp = < 0 "},
    {"Txt_b1",   &ConnectionValues::b1,  "47.25",  47.25F,  "47.3",   "b1 =< 0 ",  "b1 = < 0 "},
    {"Txt_b2",   &ConnectionValues::b2,  "48,25",  48.25F,  "48.3",   " b < 0 ",   " b < 0 "},
    {"Txt_h1",   &ConnectionValues::h1,  "150.25", 150.25F, "150.3",  " h =< 0 ",  " h =< 0 "},
    {"Txt_h2",   &ConnectionValues::h2,  "160.25", 160.25F, "160.3",  " h =< 0 ",  " h =< 0 "},
    {"Txt_last", &ConnectionValues::P,   "12,125", 12.125F, "12.13",
        " Load has to be given as a posetiv value > 0  ", "Last må angies som posetiv > 0"},
};
// clang-format on

class Boxes : public WindowTest {
protected:
    void Start_free(const char* lang = "Eng") {
        Start(lang);
        Click("Opt_valg");
        ASSERT_FALSE(s.Standard);
        Enter_value("Txt_h1", "198");
        Enter_value("Txt_h2", "198");
        ASSERT_TRUE(boxes.messages.empty());
        Find("Cmd_type(0)").setFocus();
        Settle();
        passes = 0;
    }
};

TEST_F(Boxes, a_typed_number_is_accepted_on_leaving) {
    Start_free();
    for (const NumberBox& row : number_boxes) {
        SCOPED_TRACE(row.box);
        Type(row.box, row.typed);
        passes = 0;
        EXPECT_EQ(Back(row.box), green);
        EXPECT_EQ(Text(row.box), row.typed);
        EXPECT_NE(s.*row.value, row.stored);
        Key(Qt::Key_Tab);
        EXPECT_EQ(Back(row.box), white);
        EXPECT_EQ(Text(row.box), row.shown);
        EXPECT_EQ(passes, 1);
        EXPECT_TRUE(boxes.messages.empty());
        if (std::string{row.box} == "Txt_last" || std::string{row.box} == "Txt_alp") {
            EXPECT_EQ(s.*row.value, row.stored);
        }
    }
}

// The handler writes the text in the box's format before the pass, and the pass on free entry reads what stands there.
TEST_F(Boxes, the_pass_reads_the_formatted_text_of_a_free_entry) {
    Start_free();
    Enter_value("Txt_h1", "150.256");
    EXPECT_EQ(s.h1, 150.26F); // two decimals
    EXPECT_EQ(Text("Txt_h1"), "150.3");
    Pick("cboMat", 4);
    EXPECT_EQ(s.h1, 150.3F); // from the second pass on the shown one
    Enter_value("Txt_h2", "150.256");
    EXPECT_EQ(s.h2, 150.3F); // one decimal
}

TEST_F(Boxes, entering_turns_a_box_green_with_all_its_text_selected_by_the_mouse) {
    Start_free();
    for (const char* name : {"Txt_h1", "Txt_b1", "Txt_h2", "Txt_b2", "Txt_last", "Txt_alp", "txtprosjekt", "txtid"}) {
        Click(name);
        EXPECT_EQ(Back(name), green) << name;
        EXPECT_EQ(Box(name).selectedText(), Box(name).text()) << name;
    }
}

TEST_F(Boxes, entering_turns_a_box_green_with_all_its_text_selected_by_the_keys) {
    Start_free();
    Click("Txt_b1");
    for (const char* name : {"Txt_h1", "Txt_b2", "Txt_h2"}) {
        Key(Qt::Key_Tab);
        ASSERT_EQ(Focus(), name);
        EXPECT_EQ(Back(name), green) << name;
        EXPECT_EQ(Box(name).selectedText(), Box(name).text()) << name;
    }
}

TEST_F(Boxes, a_second_click_in_a_box_places_the_cursor) {
    Start_free();
    Click("Txt_last");
    auto& box = Box("Txt_last");
    Click(box, {4, box.height() / 2});
    EXPECT_FALSE(box.hasSelectedText());
    EXPECT_EQ(box.cursorPosition(), 0);
    Keys("2");
    EXPECT_EQ(Text("Txt_last"), "210.0");
}

TEST_F(Boxes, every_refusal_in_English) {
    Start_free();
    for (const NumberBox& row : number_boxes) {
        SCOPED_TRACE(row.box);
        Type(row.box, "0");
        boxes.messages.clear();
        passes = 0;
        Key(Qt::Key_Tab);
        EXPECT_EQ(boxes.messages, (Messages{{row.refused_eng, 48}}));
        EXPECT_EQ(s.*row.value, 0.0F); // the refused value is in the state
        EXPECT_EQ(passes, 0);
        Answer();
        EXPECT_EQ(Back(row.box), green);
        EXPECT_EQ(Text(row.box), "0");
        if (std::string{row.box} == "Txt_b1") {
            EXPECT_NE(Focus(), row.box); // free to move on
        } else {
            EXPECT_EQ(Focus(), row.box);
            EXPECT_EQ(Box(row.box).selectedText(), QStringLiteral("0"));
        }
        Enter_value(row.box, row.typed);
        EXPECT_EQ(Back(row.box), white);
        EXPECT_EQ(boxes.messages.size(), 1U);
    }
}

TEST_F(Boxes, every_refusal_in_Norwegian) {
    Start_free("Nor");
    for (const NumberBox& row : number_boxes) {
        SCOPED_TRACE(row.box);
        Type(row.box, "-3");
        boxes.messages.clear();
        passes = 0;
        Key(Qt::Key_Tab);
        EXPECT_EQ(boxes.messages, (Messages{{row.refused_nor, 48}}));
        EXPECT_EQ(s.*row.value, -3.0F);
        EXPECT_EQ(passes, 0);
        Answer();
        EXPECT_EQ(Back(row.box), green);
        EXPECT_EQ(Focus(), row.box); // b1 too
        Enter_value(row.box, row.typed);
        EXPECT_EQ(Back(row.box), white);
        EXPECT_EQ(boxes.messages.size(), 1U);
    }
}

TEST_F(Boxes, a_text_without_a_number_reads_as_zero) {
    Start_free();
    for (const char* text : {"abc", "", "-", "."}) {
        boxes.messages.clear();
        Enter_value("Txt_last", text);
        EXPECT_EQ(boxes.messages, (Messages{{" Load has to be given as a posetiv value > 0  ", 48}})) << text;
        Answer();
        EXPECT_EQ(Focus(), "Txt_last");
    }
    Enter_value("Txt_last", "12abc");
    EXPECT_EQ(s.P, 12.0F);
    EXPECT_EQ(Text("Txt_last"), "12.00");
}

TEST_F(Boxes, a_good_value_is_calculated_again_changed_or_not) {
    Start_free();
    Click("Txt_last");
    Key(Qt::Key_Tab);
    EXPECT_EQ(passes, 1);
    EXPECT_EQ(Text("Txt_last"), "10.00");
}

TEST_F(Boxes, without_a_language_no_message_is_shown) {
    Start_free();
    s.Lang = "";
    Enter_value("Txt_last", "0");
    EXPECT_TRUE(boxes.messages.empty());
    EXPECT_EQ(Focus(), "Txt_last");
    EXPECT_EQ(Back("Txt_last"), green);
    EXPECT_EQ(passes, 0);
}

// The click that leaves a box with a good value does both, once each: the value first.
TEST_F(Boxes, the_click_that_leaves_an_accepted_box_acts) {
    Start_free();
    Type("Txt_last", "11");
    passes = 0;
    Click("Cmd_boltetype(0)");
    EXPECT_EQ(s.P, 11.0F);
    EXPECT_EQ(s.Bolt_ab, "a");
    EXPECT_EQ(passes, 2);
    Type("Txt_last", "12");
    passes = 0;
    Click("Opt_strekk");
    EXPECT_EQ(s.P, -12.0F);
    EXPECT_EQ(passes, 2);
    Type("Txt_last", "13");
    passes = 0;
    Pick("cboMat", 6);
    EXPECT_EQ(s.P, 13.0F);
    EXPECT_EQ(s.Mat_index, 6);
    EXPECT_EQ(passes, 2);
    Type("Txt_last", "14");
    passes = 0;
    Click("Check_man");
    EXPECT_EQ(s.P, 14.0F);
    EXPECT_TRUE(s.Man_he_on);
    EXPECT_EQ(passes, 1); // the check box starts none
    Type("Txt_last", "15");
    passes = 0;
    Click("Txt_h1");
    EXPECT_EQ(s.P, 15.0F);
    EXPECT_EQ(passes, 1);
    EXPECT_EQ(Back("Txt_h1"), green);
    EXPECT_EQ(Box("Txt_h1").selectedText(), Box("Txt_h1").text());
    EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(Boxes, a_mismatch_is_told_in_both_languages_and_no_other_error) {
    for (const char* lang : {"Eng", "Nor"}) {
        Start(lang);
        boxes.messages.clear();
        window->Editing().Input_error(Box("Txt_last"), 13);
        EXPECT_EQ(
            boxes.messages,
            (Messages{{std::string{lang} == "Eng" ? "Input string mismatch " : "Ikke akseptabel karakter ", 48}}));
        Answer();
        EXPECT_EQ(Focus(), "Txt_last");
        Click("Cmd_type(0)");
        window->Editing().Input_error(Box("Txt_alp"), 6);
        Settle();
        EXPECT_EQ(boxes.messages.size(), 1U);
        EXPECT_EQ(Focus(), "Txt_alp");
    }
}

// The click that leaves a refused box does not act; the box gets the focus back, and everything works again.
TEST_F(Boxes, the_click_that_left_a_refused_box_does_not_act) {
    Start_free();
    Type("Txt_last", "0");
    Click("Cmd_type(3)");
    EXPECT_EQ(boxes.messages.size(), 1U);
    EXPECT_EQ(s.Con_type, 1);
    Answer();
    EXPECT_EQ(s.Con_type, 1);
    EXPECT_EQ(Focus(), "Txt_last");
    Keys("7");
    Click("Cmd_type(3)");
    EXPECT_EQ(s.P, 7.0F);
    EXPECT_EQ(s.Con_type, 4);
    EXPECT_EQ(boxes.messages.size(), 1U);
}

TEST_F(Boxes, a_list_and_an_option_after_a_refusal_do_not_act_either) {
    Start_free();
    Type("Txt_last", "0");
    Click("cboMat");
    EXPECT_FALSE(Find<QComboBox>("cboMat").view()->isVisible());
    Answer();
    Type("Txt_last", "0");
    Click("Opt_strekk");
    EXPECT_FALSE(Checked("Opt_strekk"));
    Answer();
    EXPECT_EQ(boxes.messages.size(), 2U);
    EXPECT_EQ(Focus(), "Txt_last");
}

// From one box into another: one refusal, one message, and the other box was never entered.
TEST_F(Boxes, going_from_a_refused_box_into_another_gives_one_message) {
    Start_free();
    Type("Txt_h1", "0");
    Click("Txt_last");
    EXPECT_EQ(boxes.messages.size(), 1U);
    EXPECT_EQ(passes, 0);
    Answer();
    EXPECT_EQ(Focus(), "Txt_h1");
    EXPECT_EQ(Back("Txt_h1"), green);
    EXPECT_EQ(Back("Txt_last"), white);
    EXPECT_EQ(boxes.messages.size(), 1U);
    EXPECT_EQ(passes, 0);
}

TEST_F(Boxes, in_English_b1_lets_the_focus_go_to_the_box_that_was_meant) {
    Start_free();
    Type("Txt_b1", "0");
    Click("Txt_h2");
    EXPECT_EQ(boxes.messages, (Messages{{"b1 =< 0 ", 48}}));
    Answer();
    EXPECT_EQ(Focus(), "Txt_h2");
    EXPECT_EQ(Back("Txt_h2"), green);
    EXPECT_EQ(Back("Txt_b1"), green);
    EXPECT_EQ(Text("Txt_b1"), "0");
    EXPECT_EQ(s.b1, 0.0F);
    Keys("180");
    Key(Qt::Key_Tab); // accepted, but its pass stops at the zero side, silently
    EXPECT_EQ(boxes.messages.size(), 1U);
    EXPECT_EQ(Back("Txt_h2"), white);
    EXPECT_EQ(Text("Txt_h2"), "180.0");
    EXPECT_EQ(Text("Txt_b1"), "0");
    EXPECT_EQ(Back("Txt_b1"), green);
    EXPECT_EQ(s.b1, 0.0F);
    Enter_value("Txt_b1", "45");
    EXPECT_EQ(s.b1, 45.0F);
    EXPECT_EQ(s.h2, 180.0F);
    EXPECT_EQ(Back("Txt_b1"), white);
}

TEST_F(Boxes, a_refused_value_stays_in_the_state_for_other_inputs) {
    Start_free();
    Enter_value("Txt_last", "-5");
    Answer();
    EXPECT_EQ(s.P, -5.0F);
    // Nothing else is reached before it is mended; Check_man would be the next.
    Click("Check_man");
    EXPECT_FALSE(Checked("Check_man"));
    Answer();
    EXPECT_EQ(Focus(), "Txt_last");
}

TEST_F(Boxes, the_order_of_the_enter_key) {
    Start_free();
    Click("Txt_h1");
    for (const char* next : {"Txt_b1", "Txt_h2", "Txt_b2", "Pic_Dim"}) {
        passes = 0;
        Key(Qt::Key_Return);
        EXPECT_EQ(Focus(), next);
        EXPECT_EQ(passes, 1);
    }
    EXPECT_EQ(Back("Txt_b2"), white);
    Click("Txt_last");
    passes = 0;
    Key(Qt::Key_Enter);
    EXPECT_EQ(Focus(), "Txt_alp");
    EXPECT_EQ(passes, 1);
    EXPECT_EQ(Back("Txt_alp"), green);
}

TEST_F(Boxes, enter_does_nothing_in_the_other_boxes) {
    Start_free();
    Click("Check_man");
    for (const char* name : {"Txt_alp", "txtprosjekt", "txtid", "Txt_man_he"}) {
        Click(name);
        passes = 0;
        Key(Qt::Key_Return);
        EXPECT_EQ(Focus(), name);
        EXPECT_EQ(Back(name), green) << name;
        EXPECT_EQ(passes, 0) << name;
    }
}

TEST_F(Boxes, enter_moves_on_past_a_disabled_angle) {
    Start_free();
    Click("Cmd_type(3)");
    ASSERT_FALSE(Enabled("Txt_alp"));
    Click("Txt_last");
    Key(Qt::Key_Return);
    EXPECT_NE(Focus(), "Txt_last");
    EXPECT_NE(Focus(), "Txt_alp");
    EXPECT_EQ(Back("Txt_last"), white);
}

TEST_F(Boxes, name_and_identification_are_taken_as_they_are_without_a_pass) {
    Start_free();
    Enter_value("txtprosjekt", " Bru over Å  ");
    EXPECT_EQ(s.Prosjekt, " Bru over Å  ");
    EXPECT_EQ(Back("txtprosjekt"), white);
    Enter_value("txtid", "");
    EXPECT_EQ(s.Id, "");
    EXPECT_EQ(Back("txtid"), white);
    EXPECT_EQ(passes, 0);
    Pick("cboMat", 1);
    EXPECT_EQ(Text("txtprosjekt"), " Bru over Å  ");
    EXPECT_EQ(Text("txtid"), "");
}

TEST_F(Boxes, while_loading_no_box_but_the_project_name_turns_green) {
    Start_free();
    s.Loading = true;
    for (const char* name : {"Txt_b1", "Txt_h1", "Txt_b2", "Txt_h2", "Txt_last", "Txt_alp", "txtid"}) {
        Click(name);
        EXPECT_EQ(Back(name), white) << name;
    }
    Click("txtprosjekt");
    EXPECT_EQ(Back("txtprosjekt"), green);
    EXPECT_EQ(Box("txtprosjekt").selectedText(), Box("txtprosjekt").text());
    Keys("x");
    Click("txtid");
    EXPECT_EQ(Back("txtprosjekt"), green);
    EXPECT_EQ(s.Prosjekt, "Project 1");
    EXPECT_EQ(passes, 0);
    s.Loading = false;
}

// A change of the active window, a menu or a list that drops down does not leave a box.
TEST_F(Boxes, another_window_in_front_does_not_leave_the_box) {
    Start_free();
    Type("Txt_last", "0");
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_TRUE(boxes.messages.empty());
    EXPECT_EQ(Back("Txt_last"), green);
    other.close();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    Settle();
    EXPECT_EQ(Focus(), "Txt_last");
    EXPECT_EQ(Text("Txt_last"), "0");
    Key(Qt::Key_Tab);
    EXPECT_EQ(boxes.messages.size(), 1U);
}

TEST_F(Boxes, a_menu_that_is_opened_does_not_leave_the_box) {
    Start_free();
    Type("Txt_last", "23");
    auto& menu = Find<QMenu>("mnufile");
    menu.popup(window->mapToGlobal(QPoint{5, 5}));
    Settle();
    EXPECT_EQ(Back("Txt_last"), green);
    EXPECT_EQ(s.P, 10.0F);
    menu.close();
    Settle();
    EXPECT_EQ(Focus(), "Txt_last");
    Key(Qt::Key_Tab);
    EXPECT_EQ(s.P, 23.0F);
}

// Manual he

class ManualHe : public Boxes {
protected:
    void Start_manual(const char* lang = "Eng", int type = 0) {
        Start_free(lang);
        Click("Cmd_type(" + std::to_string(type) + ")");
        Click("Check_man");
        ASSERT_TRUE(s.Man_he_on);
        passes = 0;
    }
};

TEST_F(ManualHe, a_good_value_runs_the_splitting_check_alone) {
    Start_manual();
    s.b2 = 36.0F;
    Enter_value("Txt_man_he", "99.6");
    EXPECT_EQ(s.man_he, 99.6F);
    EXPECT_EQ(s.he, 99.6F);
    EXPECT_EQ(Text("Txt_man_he"), "100");
    EXPECT_EQ(Back("Txt_man_he"), white);
    EXPECT_EQ(passes, 0);
    ConnectionValues expected = s;
    Tverr_brudd(expected, s.h2, 99.6F, s.b2, ScreenWriter{nullptr});
    EXPECT_EQ(s.Tverr_kontroll, expected.Tverr_kontroll);
    EXPECT_EQ(Text("Lbl_tverr_2"), std::string{Format(expected.Tverr_kontroll, "0.00").View()});
    EXPECT_EQ(Fore("Lbl_tverr_2"), expected.Tverr_kontroll > 1.0F ? red : dark_green);
    EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(ManualHe, other_inputs_leave_the_check_alone) {
    Start_manual();
    Enter_value("Txt_man_he", "100");
    const std::string shown = Text("Lbl_tverr_2");
    Enter_value("Txt_last", "90");
    EXPECT_EQ(passes, 1);
    EXPECT_EQ(Text("Lbl_tverr_2"), shown);
    EXPECT_EQ(Text("Txt_man_he"), "100");
    Click("Check_man"); // automatic again
    EXPECT_NE(Text("Lbl_tverr_2"), shown);
    EXPECT_EQ(s.he, s.h2 - s.Sb1);
}

TEST_F(ManualHe, a_pass_leaves_a_half_typed_value) {
    Start_manual();
    Type("Txt_man_he", "77");
    window->Work().Recalculate();
    EXPECT_EQ(Text("Txt_man_he"), "77");
}

TEST_F(ManualHe, zero_is_refused_with_the_same_words_in_both_languages) {
    for (const char* lang : {"Eng", "Nor"}) {
        boxes.messages.clear();
        Start_manual(lang);
        const std::string shown = Text("Lbl_tverr_2");
        Enter_value("Txt_man_he", "0");
        EXPECT_EQ(boxes.messages, (Messages{{" he < 0.1 ", 48}}));
        EXPECT_EQ(s.man_he, 0.0F);
        Answer();
        EXPECT_EQ(Focus(), "Txt_man_he");
        EXPECT_EQ(Back("Txt_man_he"), green);
        EXPECT_EQ(Text("Txt_man_he"), "0");
        EXPECT_EQ(Text("Lbl_tverr_2"), shown);
        EXPECT_EQ(passes, 0);
        Enter_value("Txt_man_he", "0.05"); // the words say 0.1, the test is against 0
        EXPECT_EQ(boxes.messages.size(), 1U);
        EXPECT_EQ(Back("Txt_man_he"), white);
    }
}

TEST_F(ManualHe, above_the_height_of_the_member_that_splits) {
    const char* const text[] = {" he  >  h  (Undergurt)", " he   >  h  (Overgurt)", " he   >  h  (Bjelke)",
                                " he   >  h  (Bjelke)", " he   >  h  (Bjelke)"};
    for (int type = 0; type < 5; ++type) {
        for (const char* lang : {"Eng", "Nor"}) {
            SCOPED_TRACE(type);
            boxes.messages.clear();
            Start_free(lang);
            Enter_value("Txt_h1", type == 0 ? "300" : "200");
            Enter_value("Txt_h2", type == 0 ? "200" : "300");
            Click("Cmd_type(" + std::to_string(type) + ")");
            Click("Check_man");
            Enter_value("Txt_man_he", "200.1");
            EXPECT_EQ(boxes.messages, (Messages{{text[type], 48}}));
            Answer();
            EXPECT_EQ(Focus(), "Txt_man_he");
            EXPECT_EQ(Back("Txt_man_he"), green);
            EXPECT_EQ(Text("Txt_man_he"), "200.1");
            EXPECT_EQ(s.man_he, 200.1F);
            EXPECT_NE(s.he, 200.1F);
        }
    }
}

// The check divides by zero there: accepted, and the old results stay, without a word.
TEST_F(ManualHe, the_height_itself_is_accepted_with_the_old_results) {
    Start_manual();
    Enter_value("Txt_man_he", "100");
    const std::string shown = Text("Lbl_tverr_2");
    Enter_value("Txt_man_he", "198");
    EXPECT_TRUE(boxes.messages.empty());
    EXPECT_EQ(Back("Txt_man_he"), white);
    EXPECT_EQ(Text("Txt_man_he"), "198");
    EXPECT_EQ(Text("Lbl_tverr_2"), shown);
    EXPECT_NE(Focus(), "Txt_man_he");
}

// A fault in the pass that a box started: without a word, and the focus goes back to the box. What mends it can be
// clicked all the same.
TEST_F(Boxes, a_fault_in_the_pass_gives_the_focus_back_to_the_box) {
    Start_free();
    Enter_value("Txt_h2", "30"); // lower than its distances
    EXPECT_TRUE(boxes.messages.empty());
    EXPECT_EQ(Focus(), "Txt_h2");
    EXPECT_EQ(Back("Txt_h2"), green);
    EXPECT_EQ(s.h2, 30.0F);
    Keys("198");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Back("Txt_h2"), white);
    EXPECT_NE(Focus(), "Txt_h2");
    EXPECT_EQ(s.h2, 198.0F);
    EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(Boxes, what_mends_a_fault_can_be_reached_from_the_box_that_got_the_focus_back) {
    Start();
    Pick("cboProf2", 12); // T  45x45
    Answer();
    Enter_value("Txt_last", "12"); // its pass faults too
    EXPECT_EQ(s.P, 12.0F);
    EXPECT_EQ(Focus(), "Txt_last");
    Pick("cboProf2", 11);
    EXPECT_EQ(s.Prof2_index, 11);
    EXPECT_EQ(Text("Txt_h2"), "198.0");
    EXPECT_EQ(boxes.messages.size(), 1U);
    EXPECT_EQ(Text("Lbl_last_kontroll"), "12.0");
}

TEST_F(Boxes, a_click_that_leaves_a_box_whose_pass_faults_acts) {
    Start();
    Pick("cboProf2", 12);
    Answer();
    Type("Txt_last", "12");
    Click("Opt_strekk");
    EXPECT_TRUE(Checked("Opt_strekk"));
    EXPECT_EQ(s.P, -12.0F);
    EXPECT_EQ(boxes.messages.size(), 2U); // that of the option: the box tells nothing
    EXPECT_EQ(Focus(), "Txt_last");
    Answer();
    Click("Opt_valg");
    EXPECT_FALSE(s.Standard);
    Answer();
    Click("Opt_stand");
    Answer();
    Pick("cboProf2", 11);
    EXPECT_EQ(boxes.Waiting(), 0U);
    Key(Qt::Key_Tab);
    EXPECT_NE(Focus(), "Txt_last");
    EXPECT_EQ(Back("Txt_last"), white);
}

} // namespace
} // namespace tarnvik::test
