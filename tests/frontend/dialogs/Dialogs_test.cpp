// The dialogs of classes, setup and About, and the manual.
#include <QScreen>

#include "frontend/dialogs/Frm_tarn_vik_fak_klass.h"
#include "tests/support/Window.h"

namespace tarnvik::test {
namespace {

class Dialogs : public WindowTest {
protected:
    static std::string Text_in(QWidget& dialog, const char* name) { return Text_of(Find_in<QObject>(dialog, name)); }
};

TEST_F(Dialogs, any_of_them_gives_the_focus_to_the_project_name) {
    Start();
    for (const char* entry : {"mnuklasse", "mnusetup", "mnuabout"}) {
        Click("Txt_last");
        Menu(entry, [](QWidget& /*dialog*/) {});
        EXPECT_EQ(Focus(), "txtprosjekt") << entry;
        EXPECT_EQ(Back("txtprosjekt"), green) << entry;
        EXPECT_EQ(Box("txtprosjekt").selectedText(), Box("txtprosjekt").text()) << entry;
        EXPECT_EQ(Back("Txt_last"), white) << entry;
    }
}

// The box in editing is left before the dialog comes up, so that nothing typed is lost to a pass of the dialog.
TEST_F(Dialogs, take_what_is_being_typed) {
    Start();
    Type("txtprosjekt", "Half typed");
    Menu("mnuklasse", [](QWidget& dialog) { Click(Find_in<QWidget>(dialog, "Opt_klimaklasse(2)")); });
    EXPECT_EQ(s.Prosjekt, "Half typed");
    EXPECT_EQ(Text("txtprosjekt"), "Half typed");
    Type("Txt_last", "31");
    Menu("mnusetup", [this](QWidget& /*dialog*/) { EXPECT_EQ(s.P, 31.0F); });
}

TEST_F(Dialogs, do_not_open_over_a_refused_box) {
    Start();
    Type("Txt_last", "0");
    Menu("mnuklasse");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(boxes.messages.size(), 1U);
    Answer();
    EXPECT_EQ(Focus(), "Txt_last");
    EXPECT_EQ(Back("Txt_last"), green);
}

// Classes

TEST_F(Dialogs, classes_show_those_of_the_state_without_a_pass) {
    Start();
    s.Lastvar = 4;
    s.Klima = 2;
    Menu("mnuklasse", [this](QWidget& dialog) {
        EXPECT_EQ(dialog.objectName(), QStringLiteral("Frm_tarn_vik_fak_klass"));
        for (int i = 0; i < 5; ++i) {
            const std::string name = "Opt_Lastvarighet(" + std::to_string(i) + ")";
            EXPECT_EQ(Find_in<QAbstractButton>(dialog, name).isChecked(), i == 3) << name;
        }
        for (int i = 0; i < 3; ++i) {
            const std::string name = "Opt_klimaklasse(" + std::to_string(i) + ")";
            EXPECT_EQ(Find_in<QAbstractButton>(dialog, name).isChecked(), i == 1) << name;
            EXPECT_EQ(Text_of(Find_in<QObject>(dialog, name)), std::to_string(i + 1));
        }
        EXPECT_EQ(s.Lastvar, 4);
        EXPECT_EQ(s.Klima, 2);
    });
}

TEST_F(Dialogs, each_click_on_a_class_calculates_behind_the_dialog) {
    Start();
    const char* const kmod[5][2] = {
        {"0.60 ", "0.50 "}, {"0.70 ", "0.55 "}, {"0.80 ", "0.65 "}, {"0.90 ", "0.70 "}, {"1.10 ", "0.90 "}};
    Menu("mnuklasse", [this, &kmod](QWidget& dialog) {
        passes = 0;
        for (int load = 4; load >= 0; --load) {
            Click(Find_in<QWidget>(dialog, "Opt_Lastvarighet(" + std::to_string(load) + ")"));
            EXPECT_EQ(s.Lastvar, load + 1);
            EXPECT_EQ(Text("Lbl_kmod2"), kmod[load][0]);
        }
        EXPECT_EQ(passes, 5);
        for (int service = 2; service >= 0; --service) {
            Click(Find_in<QWidget>(dialog, "Opt_klimaklasse(" + std::to_string(service) + ")"));
            EXPECT_EQ(s.Klima, service + 1);
            EXPECT_EQ(Text("Lbl_klima_2"), std::to_string(service + 1));
            EXPECT_EQ(Text("Lbl_kmod2"), kmod[0][service == 2 ? 1 : 0]);
        }
        EXPECT_EQ(passes, 8);
        Click(Find_in<QWidget>(dialog, "Opt_klimaklasse(0)")); // selected already
        EXPECT_EQ(passes, 8);
        Click(Find_in<QWidget>(dialog, "Cmd_ok"));
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(passes, 8);
    });
}

TEST_F(Dialogs, a_class_stays_when_the_dialog_is_closed_by_its_window_button) {
    Start();
    Menu("mnuklasse", [](QWidget& dialog) {
        Click(Find_in<QWidget>(dialog, "Opt_Lastvarighet(4)"));
        dialog.close();
    });
    EXPECT_EQ(s.Lastvar, 5);
    EXPECT_EQ(Text("Lbl_lastvar_2"), "Instantaneous action");
}

TEST_F(Dialogs, classes_do_nothing_while_loading) {
    Start();
    Menu("mnuklasse", [this](QWidget& dialog) {
        s.Loading = true;
        Click(Find_in<QWidget>(dialog, "Opt_Lastvarighet(3)"));
        Click(Find_in<QWidget>(dialog, "Opt_klimaklasse(1)"));
        EXPECT_EQ(s.Lastvar, 1);
        EXPECT_EQ(s.Klima, 1);
        s.Loading = false;
    });
    EXPECT_EQ(passes, 0);
}

TEST_F(Dialogs, classes_are_laid_out_by_the_main_window) {
    Start();
    Menu("mnuklasse", [this](QWidget& dialog) {
        const double w = 0.34 * window->width();
        const double h = 0.32 * window->height();
        EXPECT_NEAR(dialog.width(), w, 1.0);
        EXPECT_NEAR(dialog.height(), h, 1.0);
        EXPECT_NEAR(dialog.geometry().center().x(), window->frameGeometry().center().x(), 2.5);
        EXPECT_NEAR(dialog.y(), window->y() + 0.01 * window->height(), 1.5);
        const QRect load = Find_in<QWidget>(dialog, "Fra_lastvar").geometry();
        EXPECT_NEAR(load.left(), 0.02 * w, 1.0);
        EXPECT_NEAR(load.top(), 0.02 * h, 1.0);
        EXPECT_NEAR(load.width(), 0.48 * w, 1.0);
        EXPECT_NEAR(load.height(), 0.85 * h, 1.0);
        const QRect service = Find_in<QWidget>(dialog, "Fra_klimaklasse").geometry();
        EXPECT_GT(service.left(), load.right());
        EXPECT_EQ(service.top(), load.top());
        EXPECT_NEAR(service.width(), 0.9 * load.width(), 1.5);
        EXPECT_NEAR(service.height(), 0.5 * load.height(), 1.5);
        const QRect ok = Find_in<QWidget>(dialog, "Cmd_ok").geometry();
        EXPECT_NEAR(ok.left(), 0.65 * w, 1.0);
        EXPECT_NEAR(ok.top(), 0.6 * h, 1.0);
        const QRect why_load = Find_in<QWidget>(dialog, "Cmd_lastvar").geometry();
        EXPECT_NEAR(why_load.left(), 0.35 * load.width(), 1.0);
        EXPECT_NEAR(why_load.top(), 0.85 * load.height(), 1.0);
        const QRect why_service = Find_in<QWidget>(dialog, "Cmd_klima").geometry();
        EXPECT_NEAR(why_service.left(), 0.35 * service.width(), 1.0);
        EXPECT_NEAR(why_service.top(), 0.6 * service.height(), 1.0);
        for (int i = 1; i < 5; ++i) { // under each other
            const QRect above = Find_in<QWidget>(dialog, "Opt_Lastvarighet(" + std::to_string(i - 1) + ")").geometry();
            const QRect below = Find_in<QWidget>(dialog, "Opt_Lastvarighet(" + std::to_string(i) + ")").geometry();
            EXPECT_EQ(above.left(), below.left());
            EXPECT_GT(below.top(), above.bottom());
        }
        for (int i = 1; i < 3; ++i) { // side by side
            const QRect left = Find_in<QWidget>(dialog, "Opt_klimaklasse(" + std::to_string(i - 1) + ")").geometry();
            const QRect right = Find_in<QWidget>(dialog, "Opt_klimaklasse(" + std::to_string(i) + ")").geometry();
            EXPECT_EQ(left.top(), right.top());
            EXPECT_GT(right.left(), left.right());
        }
    });
}

// Setup

const char* const factor_boxes[] = {"Txt_gamma_timb", "Txt_gamma_lam", "Txt_gamma_kerto", "Txt_gamma_k_bjelke"};
float ConnectionValues::*const factors[] = {&ConnectionValues::gm_T, &ConnectionValues::gm_L, &ConnectionValues::gm_Ke,
                                            &ConnectionValues::gm_K};

void Type_in(QWidget& dialog, const char* name, const char* text) {
    auto& box = Find_in<TextBox>(dialog, name);
    QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, {}, box.mapTo(&dialog, box.rect().center()));
    box.selectAll();
    QTest::keyClicks(&box, QString::fromUtf8(text));
    Settle();
}

TEST_F(Dialogs, setup_has_its_controls_and_shows_the_factors) {
    Start();
    Menu("mnusetup", [this](QWidget& dialog) {
        EXPECT_EQ(dialog.objectName(), QStringLiteral("frmSetup"));
        const char* const shown[] = {"1.30", "1.25", "1.20", "1.25"};
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(Text_in(dialog, factor_boxes[i]), shown[i]);
            EXPECT_EQ(Find_in<QWidget>(dialog, factor_boxes[i]).parentWidget(),
                      &Find_in<QWidget>(dialog, "Fra_part_fac"));
        }
        for (const char* button : {"Cmd_eng", "Cmd_nor"}) {
            EXPECT_EQ(Find_in<QWidget>(dialog, button).parentWidget(), &Find_in<QWidget>(dialog, "Fra_language"));
        }
        for (const char* frame : {"Fra_language", "Fra_part_fac"}) {
            EXPECT_EQ(Find_in<QWidget>(dialog, frame).parentWidget(), &Find_in<QWidget>(dialog, "Fra_set_annex"));
        }
        EXPECT_TRUE(Find_in<QWidget>(dialog, "Cmd_ok").isVisible());
        EXPECT_TRUE(Find_in<QWidget>(dialog, "Cmd_save").isVisible());
        EXPECT_FALSE(s.Loading);
    });
    EXPECT_EQ(passes, 0);
}

TEST_F(Dialogs, a_factor_is_accepted_on_leaving_its_box) {
    Start();
    Menu("mnusetup", [this](QWidget& dialog) {
        Click(Find_in<QWidget>(dialog, factor_boxes[0]));
        for (int i = 0; i < 4; ++i) {
            auto& box = Find_in<TextBox>(dialog, factor_boxes[i]);
            ASSERT_EQ(Focus(), factor_boxes[i]); // by the mouse or by the Tab key
            EXPECT_EQ(box.Back(), green);
            EXPECT_EQ(box.selectedText(), box.text());
            Type_in(dialog, factor_boxes[i], "1,456");
            EXPECT_NE(s.*factors[i], 1.456F);
            passes = 0;
            QTest::keyClick(&box, Qt::Key_Tab);
            Settle();
            EXPECT_EQ(s.*factors[i], 1.456F);
            EXPECT_EQ(Text_in(dialog, factor_boxes[i]), "1.46");
            EXPECT_EQ(box.Back(), white);
            EXPECT_EQ(passes, 1);
        }
        EXPECT_EQ(Text("lbl_gm"), "1.46 ");
    });
}

TEST_F(Dialogs, the_enter_key_goes_round_the_factors) {
    Start();
    Menu("mnusetup", [this](QWidget& dialog) {
        Click(Find_in<QWidget>(dialog, factor_boxes[0]));
        passes = 0;
        for (int i = 1; i <= 4; ++i) {
            Key(Qt::Key_Return);
            EXPECT_EQ(Focus(), factor_boxes[i % 4]);
            EXPECT_EQ(passes, i);
            EXPECT_TRUE(dialog.isVisible());
        }
    });
}

TEST_F(Dialogs, a_factor_of_a_tenth_or_less_is_refused_with_its_text_formatted) {
    for (const char* lang : {"Eng", "Nor"}) {
        Start(lang);
        boxes.messages.clear();
        Menu("mnusetup", [this](QWidget& dialog) {
            auto& box = Find_in<TextBox>(dialog, "Txt_gamma_lam");
            for (const char* text : {"0.1", "0", "-1", "abc"}) {
                SCOPED_TRACE(text);
                Type_in(dialog, "Txt_gamma_lam", text);
                passes = 0;
                boxes.messages.clear();
                Click(Find_in<QWidget>(dialog, "Txt_gamma_kerto"));
                EXPECT_EQ(boxes.messages, (Messages{{"Number is <= 0.1 ", 0}}));
                EXPECT_EQ(passes, 0);
                EXPECT_EQ(s.gm_L, Str_to_num(text));
                EXPECT_EQ(box.text().toStdString(), std::string{Format(Str_to_num(text), "0.00").View()});
                Answer();
                EXPECT_EQ(Focus(), "Txt_gamma_lam");
                EXPECT_EQ(box.Back(), green);
                EXPECT_EQ(Find_in<TextBox>(dialog, "Txt_gamma_kerto").Back(), white);
            }
            Type_in(dialog, "Txt_gamma_lam", "0.11");
            Key(Qt::Key_Return);
            EXPECT_EQ(s.gm_L, 0.11F);
            EXPECT_EQ(box.Back(), white);
            EXPECT_EQ(boxes.messages.size(), 1U);
        });
    }
}

TEST_F(Dialogs, ok_of_the_setup_does_not_act_over_a_refused_factor) {
    Start();
    Menu("mnusetup", [this](QWidget& dialog) {
        Type_in(dialog, "Txt_gamma_timb", "0");
        Click(Find_in<QWidget>(dialog, "Cmd_ok"));
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(boxes.messages.size(), 1U);
        Answer();
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(Focus(), "Txt_gamma_timb");
        Type_in(dialog, "Txt_gamma_timb", "1.4");
        Click(Find_in<QWidget>(dialog, "Cmd_ok"));
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(s.gm_T, 1.4F);
    EXPECT_EQ(s.Setup.gam_timb, 1.4F);
    EXPECT_EQ(boxes.messages.size(), 1U);
}

TEST_F(Dialogs, the_setup_tells_which_file_was_read_and_what_became_of_the_one_that_it_writes) {
    Start("Eng");
    Menu("mnusetup", [this](QWidget& dialog) {
        const std::string files = Text_of(Find_in<QLabel>(dialog, "Lbl_setup_files"));
        EXPECT_TRUE(files.starts_with("Read at the start: Tarnviksetup.csv\nSave to file writes: Tarviksetup.csv\n"));
        EXPECT_NE(files.find("renamed to Tarnviksetup.csv"), std::string::npos) << files;
        EXPECT_EQ(Text_of(Find_in<QLabel>(dialog, "Lbl_setup_saved")), "");
        Click(Find_in<QWidget>(dialog, "Cmd_save"));
        EXPECT_EQ(Text_of(Find_in<QLabel>(dialog, "Lbl_setup_saved")), "Written: Tarviksetup.csv");
        std::filesystem::remove(folder / "Tarviksetup.csv");
        std::filesystem::create_directory(folder / "Tarviksetup.csv"); // in the way
        Click(Find_in<QWidget>(dialog, "Cmd_nor"));
        Click(Find_in<QWidget>(dialog, "Cmd_save"));
        EXPECT_EQ(Text_of(Find_in<QLabel>(dialog, "Lbl_setup_saved")), "Ikke skrevet: filen kan ikke skrives");
        EXPECT_TRUE(boxes.messages.empty());
    });
    std::filesystem::remove(folder / "Tarnviksetup.csv");
    window->close();
    Start_as_is();
    Answer();
    Menu("mnusetup", [](QWidget& dialog) {
        EXPECT_TRUE(
            Text_of(Find_in<QLabel>(dialog, "Lbl_setup_files")).starts_with("Ikke lest ved start: Tarnviksetup"));
    });
}

TEST_F(Dialogs, ok_keeps_the_setup_and_calculates) {
    Start();
    Menu("mnusetup", [this](QWidget& dialog) {
        Type_in(dialog, "Txt_gamma_timb", "1.5");
        Click(Find_in<QWidget>(dialog, "Cmd_nor"));
        passes = 0;
        Click(Find_in<QWidget>(dialog, "Cmd_ok"));
        EXPECT_EQ(passes, 1);
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(s.Setup.gam_timb, 1.5F);
    EXPECT_EQ(s.Setup.Language, "Nor");
    EXPECT_EQ(Text("lbl_gm"), "1.50 ");
}

TEST_F(Dialogs, the_window_button_skips_the_setup_record_but_keeps_the_changes) {
    Start();
    Menu("mnusetup", [](QWidget& dialog) {
        Type_in(dialog, "Txt_gamma_timb", "1.5");
        Click(Find_in<QWidget>(dialog, "Cmd_nor"));
        dialog.close();
    });
    EXPECT_EQ(s.gm_T, 1.5F);
    EXPECT_EQ(s.Lang, "Nor");
    EXPECT_EQ(s.Setup.gam_timb, 1.3F);
    EXPECT_EQ(s.Setup.Language, "Eng");
}

TEST_F(Dialogs, closing_the_setup_with_a_refusable_factor_tells_nothing) {
    Start();
    Menu("mnusetup", [this](QWidget& dialog) {
        Type_in(dialog, "Txt_gamma_timb", "0");
        passes = 0;
        dialog.close();
    });
    EXPECT_TRUE(boxes.messages.empty());
    EXPECT_EQ(s.gm_T, 1.3F);
}

TEST_F(Dialogs, save_to_file_writes_the_other_file_and_stays_open) {
    Start();
    const std::string read_at_start = Read_file(folder / "Tarnviksetup.csv");
    Menu("mnusetup", [](QWidget& dialog) {
        Type_in(dialog, "Txt_gamma_kerto", "1.35");
        Click(Find_in<QWidget>(dialog, "Cmd_save"));
        EXPECT_TRUE(dialog.isVisible());
    });
    EXPECT_EQ(Read_file(folder / "Tarnviksetup.csv"), read_at_start);
    EXPECT_EQ(Read_file(folder / "Tarviksetup.csv"), "FileName:;EC5setup; ;\r\nLanguage;Eng\r\n0;1;2;3\r\n"
                                                     "gam_timb;gam_lam;gam_kerto;gam_k-bjelke\r\n"
                                                     "1.3;1.25;1.35;1.25;\r\n");
    EXPECT_EQ(s.Setup.gam_kerto, 1.35F);
    EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(Dialogs, a_fault_in_the_pass_of_a_factor_leaves_the_dialog_usable) {
    Start();
    Pick("cboProf2", 12); // T  45x45: lower than its distances
    Answer();
    Menu("mnusetup", [this](QWidget& dialog) {
        Type_in(dialog, "Txt_gamma_timb", "1.4");
        QTest::keyClick(&Find_in<TextBox>(dialog, "Txt_gamma_timb"), Qt::Key_Tab);
        Settle();
        EXPECT_EQ(Focus(), "Txt_gamma_timb"); // given back, without a word
        EXPECT_EQ(boxes.Waiting(), 0U);
        Click(Find_in<QWidget>(dialog, "Cmd_ok"));
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(s.Setup.gam_timb, 1.4F);
}

// About

TEST_F(Dialogs, about_in_both_languages) {
    for (const bool english : {true, false}) {
        Start(english ? "Eng" : "Nor");
        Menu("mnuabout", [english](QWidget& dialog) {
            EXPECT_EQ(dialog.objectName(), QStringLiteral("frmAbout"));
            EXPECT_EQ(dialog.windowTitle().toStdString(), english ? "About Tarnvik" : "Om Tarnvik");
            std::vector<QLabel*> lines;
            for (QLabel* label : dialog.findChildren<QLabel*>()) {
                if (!label->text().isEmpty()) {
                    lines.push_back(label);
                }
            }
            std::sort(lines.begin(), lines.end(), [](QLabel* one, QLabel* other) { return one->y() < other->y(); });
            ASSERT_EQ(lines.size(), 6U);
            EXPECT_EQ(lines[0]->text(), QStringLiteral("Tarnvik"));
            EXPECT_EQ(lines[1]->text().toStdString(), english ? "Calculation of bolts according to Eurocode 5"
                                                              : "Beregning av bolteforbindelser ifølge Eurocode 5");
            EXPECT_EQ(lines[2]->text().toStdString(), english ? "Version  1.2.0" : "Versjon  1.2.0");
            for (const std::size_t i : {std::size_t{0}, std::size_t{4}, std::size_t{5}}) {
                EXPECT_EQ(lines[i]->palette().color(QPalette::WindowText), QColor(0, 85, 152)) << i;
            }
            for (const std::size_t i : {std::size_t{1}, std::size_t{2}, std::size_t{3}}) {
                EXPECT_NE(lines[i]->palette().color(QPalette::WindowText), QColor(0, 85, 152)) << i;
            }
            const QPoint middle = dialog.frameGeometry().center() - dialog.screen()->availableGeometry().center();
            EXPECT_LE(std::abs(middle.x()), 2);
            EXPECT_LE(std::abs(middle.y()), 2);
            // A click beside the links closes it.
            QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, {}, lines[2]->geometry().center());
            EXPECT_FALSE(dialog.isVisible());
        });
    }
}

TEST_F(Dialogs, the_links_of_about_open_and_a_failure_is_told) {
    Start();
    Menu("mnuabout", [this](QWidget& dialog) {
        std::vector<QLabel*> lines;
        for (QLabel* label : dialog.findChildren<QLabel*>()) {
            if (!label->text().isEmpty()) {
                lines.push_back(label);
            }
        }
        std::sort(lines.begin(), lines.end(), [](QLabel* one, QLabel* other) { return one->y() < other->y(); });
        ASSERT_EQ(lines.size(), 6U);
        QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, {}, lines[4]->geometry().center());
        ASSERT_EQ(opener.links.size(), 1U);
        EXPECT_TRUE(QString::fromStdString(opener.links[0]).contains(lines[4]->text()));
        QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, {}, lines[5]->geometry().center());
        ASSERT_EQ(opener.links.size(), 2U);
        EXPECT_TRUE(opener.links[1].starts_with("mailto:")) << opener.links[1];
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_TRUE(boxes.messages.empty());
        opener.opens = false;
        QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, {}, lines[4]->geometry().center());
        ASSERT_EQ(boxes.messages.size(), 1U);
        EXPECT_EQ(boxes.messages[0].text, "Can't open https://tarnvik.example");
        EXPECT_EQ(boxes.messages[0].style, 48);
    });
    Start("Nor");
    Menu("mnuabout", [this](QWidget& dialog) {
        Click(Find_in<QLabel>(dialog, "Lbl_web"));
        EXPECT_EQ(boxes.messages.back().text, "Kan ikke åpne https://tarnvik.example");
    });
}

// Manual and end

TEST_F(Dialogs, the_manual_is_opened_from_the_programs_folder) {
    Start();
    std::filesystem::create_directory(folder / "Documentation");
    const std::filesystem::path manual = folder / "Documentation" / "Tarnvik User & Theory Manual.pdf";
    Write_file(manual, "%PDF-1.4");
    Menu("mmuTheory");
    EXPECT_EQ(opener.files, (std::vector<std::string>{manual.string()}));
    EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(Dialogs, a_manual_that_cannot_be_opened_is_told) {
    Start();
    Menu("mmuTheory");
    ASSERT_EQ(boxes.messages.size(), 1U);
    EXPECT_EQ(boxes.messages[0].style, 48);
}

TEST_F(Dialogs, exit_and_the_window_button_end_without_a_question) {
    Start();
    int unloaded = 0;
    QObject::connect(window.get(), &frmMain::Unloaded, window.get(), [&unloaded] { ++unloaded; });
    Type("Txt_last", "0"); // a box in editing asks nothing either
    Find<QAction>("mnuexit").trigger();
    Settle();
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(unloaded, 1);
    EXPECT_TRUE(boxes.messages.empty());
    Start();
    QObject::connect(window.get(), &frmMain::Unloaded, window.get(), [&unloaded] { ++unloaded; });
    window->close();
    EXPECT_EQ(unloaded, 2);
    EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(Dialogs, the_database_entry_does_nothing) {
    Start();
    Menu("mnuDatabase");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(boxes.messages.empty());
    EXPECT_EQ(passes, 0);
}

} // namespace
} // namespace tarnvik::test
