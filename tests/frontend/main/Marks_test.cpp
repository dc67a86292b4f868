#include <QAction>
#include <QKeySequence>

#include <utility>
#include <vector>

#include "tests/support/Window.h"

namespace tarnvik::test {
namespace {

class ResultMarks : public WindowTest {
protected:
    // What stands in the title row of the results.
    std::string Line() {
        const bool current = !Visible("Lbl_current");
        EXPECT_NE(current, !Visible("Lbl_verdict")) << "two lines in one place";
        return Text(current ? "Lbl_verdict" : "Lbl_current");
    }
    std::uint32_t Line_colour() { return Fore(Visible("Lbl_current") ? "Lbl_current" : "Lbl_verdict"); }
    std::string Sign() { return Visible("Lbl_sign") ? Text("Lbl_sign") : ""; }

    // Sections in which everything has room.
    void Enter_large_sections() {
        Click("Opt_valg");
        Enter_value("Txt_b1", "98");
        Enter_value("Txt_h1", "398");
        Enter_value("Txt_b2", "98");
        Enter_value("Txt_h2", "398");
    }
};

TEST_F(ResultMarks, verdict_of_both_languages) {
    Start("Eng");
    EXPECT_EQ(Line(), "Does not hold: utilisation, splitting, distances of bolts");
    EXPECT_EQ(Line_colour(), red);
    Enter_large_sections();
    Enter_value("Txt_last", "2");
    EXPECT_EQ(Line(), "Holds");
    EXPECT_EQ(Line_colour(), dark_green);
    Menu("mnusetup", [this](QWidget& dialog) { Click(Find_in<QWidget>(dialog, "Cmd_nor")); });
    EXPECT_EQ(Line(), "Holder");
}

TEST_F(ResultMarks, verdict_names_the_distances_of_connectors_with_connectors_only) {
    Start();
    Enter_large_sections();
    Enter_value("Txt_h1", "130"); // three times 3 x d are 120; D95 takes more
    Enter_value("Txt_last", "2");
    EXPECT_EQ(Line(), "Holds");
    Click("Opt_bolt_bulldog(1)");
    Pick("Comb_bulldog", 4);
    EXPECT_EQ(Line(), "Does not hold: distances of connectors");
    Click("Opt_bolt_bulldog(0)");
    EXPECT_EQ(Line(), "Holds");
}

TEST_F(ResultMarks, tooltip_of_the_verdict_gives_figures_and_the_governing_mode) {
    Start();
    const std::string tip = Find("Lbl_verdict").toolTip().toStdString();
    EXPECT_TRUE(tip.starts_with("Utilisation: ")) << tip;
    EXPECT_NE(tip.find("governs, (8.6 "), std::string::npos) << tip;
}

TEST_F(ResultMarks, a_refused_connector_is_told_until_the_choice_is_mended) {
    Start();
    Click("Opt_bolt_bulldog(1)");
    Pick("Comb_bulldog", 0);
    EXPECT_EQ(Line(), "Not current: connector refused");
    EXPECT_EQ(Line_colour(), red);
    Answer();
    EXPECT_EQ(Line(), "Not current: connector refused");
    Pick("Comb_bulldog", 1);
    EXPECT_TRUE(Line().starts_with("Does not hold")) << Line();
}

TEST_F(ResultMarks, a_refused_connector_in_norwegian) {
    Start("Nor");
    Click("Opt_bolt_bulldog(1)");
    Pick("Comb_bulldog", 0);
    EXPECT_EQ(Line(), "Ikke aktuelt: forbinderen er avvist");
}

TEST_F(ResultMarks, a_fault_is_told_by_its_cause) {
    Start();
    Click("Opt_valg");
    Enter_value("Txt_h2", "60"); // 4 d is 80
    EXPECT_EQ(Line(), "Not current: member too low for the distances");
    Enter_value("Txt_h2", "200");
    EXPECT_TRUE(Line().starts_with("Does not hold")) << Line();
}

TEST_F(ResultMarks, a_refused_value_makes_the_results_old_and_a_good_one_current) {
    Start();
    Enter_value("Txt_last", "0");
    EXPECT_EQ(Line(), "Not current: a value is not accepted");
    Answer();
    EXPECT_EQ(Line(), "Not current: a value is not accepted");
    Enter_value("Txt_last", "5");
    EXPECT_TRUE(Line().starts_with("Does not hold")) << Line();
}

TEST_F(ResultMarks, a_typed_he_that_is_older_than_an_input_is_not_checked) {
    Start();
    Enter_large_sections();
    Enter_value("Txt_last", "2");
    Click("Check_man");
    Enter_value("Txt_man_he", "200");
    EXPECT_EQ(Line(), "Holds");
    EXPECT_FALSE(Visible("Lbl_tverr_current"));
    Enter_value("Txt_last", "3");
    EXPECT_EQ(Line(), "Splitting not checked");
    EXPECT_TRUE(Visible("Lbl_tverr_current"));
    EXPECT_EQ(Text("Lbl_tverr_current"), "Not current");
    Enter_value("Txt_man_he", "200");
    EXPECT_EQ(Line(), "Holds");
    EXPECT_FALSE(Visible("Lbl_tverr_current"));
    Enter_value("Txt_man_he", "0"); // refused: what is shown is of another he
    EXPECT_EQ(Line(), "Splitting not checked");
    Answer();
    Enter_value("Txt_man_he", "180");
    EXPECT_EQ(Line(), "Holds");
    Enter_value("Txt_last", "2");
    EXPECT_EQ(Line(), "Splitting not checked");
    Click("Check_man");
    EXPECT_EQ(Line(), "Holds");
}

TEST_F(ResultMarks, a_typed_he_equal_to_the_height_leaves_splitting_unchecked) {
    Start();
    Enter_large_sections();
    Enter_value("Txt_last", "2");
    Click("Check_man");
    Enter_value("Txt_man_he", "398");
    EXPECT_EQ(Line(), "Splitting not checked");
}

TEST_F(ResultMarks, a_force_of_another_sign_than_the_option_is_told) {
    Start();
    EXPECT_EQ(Sign(), "");
    Click("Opt_strekk");
    EXPECT_EQ(Sign(), "");
    Enter_value("Txt_last", "12"); // a typed force is stored positive
    EXPECT_EQ(Sign(), "calculated as compression");
    EXPECT_NE(Find("Lbl_sign").toolTip().indexOf(QStringLiteral("select Compression, then Tension")), -1);
    Click("Opt_trykk");
    EXPECT_EQ(Sign(), "");
    Click("Opt_strekk");
    EXPECT_EQ(Sign(), "");
    EXPECT_LT(s.P, 0.0F);
}

TEST_F(ResultMarks, the_sign_in_norwegian) {
    Start("Nor");
    Click("Opt_strekk");
    Enter_value("Txt_last", "12");
    EXPECT_EQ(Sign(), "beregnet som trykk");
}

TEST_F(ResultMarks, the_arrangement_in_force_looks_pressed) {
    Start(); // two bolts of type 1, arrangement b
    EXPECT_FALSE(Find<ChoiceButton>("Cmd_boltetype(0)").Pressed_look());
    EXPECT_TRUE(Find<ChoiceButton>("Cmd_boltetype(1)").Pressed_look());
    Click("Cmd_boltetype(0)");
    EXPECT_TRUE(Find<ChoiceButton>("Cmd_boltetype(0)").Pressed_look());
    EXPECT_FALSE(Find<ChoiceButton>("Cmd_boltetype(1)").Pressed_look());
    Pick("Comb_ant_bolt", 3); // four bolts: there is nothing to choose
    EXPECT_FALSE(Find<ChoiceButton>("Cmd_boltetype(0)").Pressed_look());
    EXPECT_FALSE(Find<ChoiceButton>("Cmd_boltetype(1)").Pressed_look());
}

TEST_F(ResultMarks, the_detailed_calculations_say_when_they_are_old) {
    Start();
    const auto in_details = [this] {
        std::string text;
        In_dialog([&text](QWidget& dialog) { text = Text_of(Find_in<QLabel>(dialog, "Lbl_current")); });
        Click("Cmd_detail");
        Be_active();
        return text;
    };
    EXPECT_EQ(in_details(), "");
    Click("Opt_bolt_bulldog(1)");
    Pick("Comb_bulldog", 0);
    Answer();
    EXPECT_EQ(in_details(), "Not current: connector refused");
    Pick("Comb_bulldog", 2);
    Click("Check_man");
    Enter_value("Txt_last", "3");
    EXPECT_EQ(in_details(), "Splitting not checked");
}

TEST_F(ResultMarks, the_detailed_calculations_name_the_mode_that_governs_beside_its_value) {
    for (const char* lang : {"Eng", "Nor"}) {
        Start(lang);
        ASSERT_EQ(Governing_mode(s).mode, 'c'); // 7.42 kN, the least of the six
        In_dialog([&](QWidget& dialog) {
            auto& governs = Find_in<QLabel>(dialog, "Lbl_governs");
            EXPECT_TRUE(governs.isVisible());
            EXPECT_EQ(Text_of(governs), std::string_view{lang} == "Eng" ? "governs" : "avgjørende");
            const QWidget* area = governs.parentWidget();
            EXPECT_LE(governs.geometry().right(), area->width());
            // The row of mode c lies between those of b and d, at 52 and 36 of 100.
            EXPECT_GT(governs.y(), (100 - 52) * area->height() / 100);
            EXPECT_LT(governs.y(), (100 - 36) * area->height() / 100);
        });
        Click("Cmd_detail");
        Be_active();
    }
}

// Commands that use the inputs.

TEST_F(ResultMarks, saving_lets_the_box_be_left_first_and_gives_the_focus_back) {
    Start();
    dialogs.answer = (work / "joint.tnvik").string();
    Type("Txt_last", "7.5");
    Menu("mnuFileItem(3)");
    EXPECT_EQ(s.P, 7.5F);
    EXPECT_EQ(Text("Txt_last"), "7.50");
    EXPECT_EQ(Focus(), "Txt_last");
    EXPECT_TRUE(std::filesystem::exists(work / "joint.tnvik"));
}

TEST_F(ResultMarks, a_command_is_not_carried_out_while_a_value_is_refused) {
    Start();
    for (const char* command : {"mnuFileItem(2)", "mnuFileItem(3)", "mnuprint"}) {
        Type("Txt_last", "0");
        Menu(command);
        EXPECT_EQ(boxes.messages.back().text, " Load has to be given as a posetiv value > 0  ") << command;
        Answer();
        EXPECT_EQ(Focus(), "Txt_last") << command;
    }
    EXPECT_TRUE(dialogs.asked.empty());
    EXPECT_TRUE(printer.asked.empty());
    EXPECT_FALSE(s.File_named);
}

TEST_F(ResultMarks, a_box_that_stands_refused_elsewhere_keeps_a_command_from_acting) {
    Start("Eng");
    Click("Opt_valg");
    Enter_value("Txt_b1", "0"); // in English the focus moves on
    Answer();
    ASSERT_NE(Focus(), "Txt_b1");
    const std::size_t told = boxes.messages.size();
    Menu("mnuprint");
    ASSERT_EQ(boxes.messages.size(), told + 1);
    EXPECT_EQ(boxes.messages.back().text, "b1 =< 0 ");
    Answer();
    EXPECT_TRUE(printer.asked.empty());
    Enter_value("Txt_b1", "48");
    Menu("mnuprint");
    EXPECT_EQ(printer.asked.size(), 1U);
}

// Keys.

TEST_F(ResultMarks, commands_have_shortcuts) {
    Start();
    for (const auto& [entry, key] :
         std::vector<std::pair<const char*, QKeySequence::StandardKey>>{{"mnuFileItem(1)", QKeySequence::Open},
                                                                        {"mnuFileItem(2)", QKeySequence::Save},
                                                                        {"mnuprint", QKeySequence::Print},
                                                                        {"mmuTheory", QKeySequence::HelpContents}}) {
        EXPECT_EQ(Find<QAction>(entry).shortcut(), QKeySequence{key}) << entry;
        EXPECT_FALSE(Find<QAction>(entry).shortcut().isEmpty()) << entry;
    }
    EXPECT_EQ(Find<QAction>("mnuFileItem(3)").shortcut(), QKeySequence{QStringLiteral("Ctrl+Shift+S")});
    EXPECT_EQ(Find<QAction>("mnuexit").shortcut(), QKeySequence{QStringLiteral("Ctrl+Q")});
}

TEST_F(ResultMarks, a_whole_check_by_keys_alone) {
    Start("Eng");
    const auto go_to = [this](const std::string& name) {
        for (int i = 0; i < 40 && Focus() != name; ++i) {
            Key(Qt::Key_Tab);
        }
        ASSERT_EQ(Focus(), name);
    };
    go_to("txtprosjekt");
    Keys("Bridge");
    go_to("Comb_ant_bolt");
    Key(Qt::Key_Down); // three bolts
    go_to("Opt_stand");
    Key(Qt::Key_Down); // free entry
    go_to("Txt_b1");
    for (const char* value : {"98", "398", "98", "398"}) { // b and h of both members, as they stand
        Keys(value);
        Key(Qt::Key_Tab);
    }
    EXPECT_EQ(Focus(), "Pic_Dim");
    go_to("Cmd_type(3)");
    Key(Qt::Key_Space);
    go_to("Txt_last");
    Keys("6");
    Key(Qt::Key_Tab);
    EXPECT_EQ(s.Prosjekt, "Bridge");
    EXPECT_EQ(s.n_bolt, 3);
    EXPECT_EQ(s.Con_code, "4.1");
    EXPECT_EQ(s.b1, 98.0F);
    EXPECT_EQ(s.h2, 398.0F);
    EXPECT_EQ(s.P, 6.0F);
    EXPECT_TRUE(Visible("Lbl_verdict"));
    bool seen = false;
    QTimer look; // the keys themselves let events happen, so the window comes up some time after this
    QObject::connect(&look, &QTimer::timeout, window.get(), [&] {
        if (QWidget* dialog = QApplication::activeModalWidget()) {
            look.stop();
            seen = dialog->objectName() == QLatin1String("frmDetailed");
            QTest::keyClick(dialog, Qt::Key_Return);
            dialog->close();
        }
    });
    look.start(10);
    Key(Qt::Key_D, Qt::ControlModifier);
    Be_active();
    EXPECT_TRUE(seen);
    dialogs.answer = (work / "keys.tnvik").string();
    Key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(std::filesystem::exists(work / "keys.tnvik"));
    Key(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(printer.asked.size(), 1U);
}

// A click on the area lets the box before it be left and does nothing else, and so do the keys.
TEST_F(ResultMarks, the_area_of_the_free_entry_shows_the_focus_that_it_takes) {
    for (const char* lang : {"Eng", "Nor"}) {
        Start(lang);
        Click("Opt_valg");
        Type("Txt_h2", "150");
        const QImage before = Find("Pic_Dim").grab().toImage();
        Key(Qt::Key_Tab);
        EXPECT_EQ(Focus(), "Pic_Dim");
        EXPECT_EQ(s.h2, 150.0F);
        EXPECT_NE(Find("Pic_Dim").grab().toImage().pixelColor(1, 20), before.pixelColor(1, 20)); // clear of the boxes
        passes = 0;
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
            Key(key);
            EXPECT_EQ(Focus(), "Pic_Dim");
        }
        EXPECT_EQ(passes, 0);
        Key(Qt::Key_Tab);
        EXPECT_EQ(Focus(), "Cmd_type(0)");
        Key(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(Focus(), "Pic_Dim");
        Click("Txt_b2");
        Key(Qt::Key_Return); // the last of the Enter chain
        EXPECT_EQ(Focus(), "Pic_Dim");
        EXPECT_NE(Find("Pic_Dim").grab().toImage().pixelColor(1, 20), before.pixelColor(1, 20));
    }
}

TEST_F(ResultMarks, enter_presses_the_focused_button_of_a_dialog_and_no_other) {
    Start("Eng");
    Menu("mnusetup", [this](QWidget& dialog) {
        Find_in<QWidget>(dialog, "Cmd_nor").setFocus();
        Key(Qt::Key_Return);
        EXPECT_EQ(s.Lang, "Nor");
        EXPECT_TRUE(dialog.isVisible());
        Find_in<QWidget>(dialog, "Cmd_ok").setFocus();
        Key(Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible());
    });
    Menu("mnuklasse", [](QWidget& dialog) {
        Find_in<QWidget>(dialog, "Opt_Lastvarighet(0)").setFocus();
        Key(Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible()); // an option is no button that Enter presses
        Find_in<QWidget>(dialog, "Cmd_ok").setFocus();
        Key(Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible());
    });
}

TEST_F(ResultMarks, a_text_dropped_on_a_box_is_refused) {
    Start();
    EXPECT_FALSE(Box("Txt_last").acceptDrops());
    EXPECT_FALSE(Box("txtid").acceptDrops());
}

} // namespace
} // namespace tarnvik::test
