// The detailed calculations and the explanations: the buttons that open them, their controls, sizes and places.
#include <gtest/gtest.h>

#include <QPushButton>

#include <string>

#include "detail/Detailed_calc.h"
#include "detail/Hjelpetext.h"
#include "frontend/controls/PaintedArea.h"
#include "frontend/dialogs/ExplanationForm.h"
#include "tests/support/Window.h"

namespace tarnvik::test {
namespace {

std::vector<std::string> Words(const Painting& painting) {
    std::vector<std::string> words;
    for (const PaintedText& text : painting.texts) {
        words.push_back(text.text);
    }
    return words;
}

class Explanations : public WindowTest {
protected:
    // Opens a window by a click and acts in it.
    void Open(const std::string& button, const std::function<void(QWidget& dialog)>& act) {
        bool came = false;
        In_dialog([&](QWidget& dialog) {
            came = true;
            act(dialog);
        });
        Click(button);
        EXPECT_TRUE(came) << button;
        window->activateWindow(); // what a window manager does when a dialog has gone
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
        Settle();
    }

    // In parts of the parent, to a pixel.
    static void Expect_place(QWidget& control, double left, double top, double width, double height) {
        const QWidget& parent = *control.parentWidget();
        const std::string name = control.objectName().toStdString();
        EXPECT_NEAR(control.x(), left * parent.width(), 1.0) << name;
        EXPECT_NEAR(control.y(), top * parent.height(), 1.0) << name;
        EXPECT_NEAR(control.width(), width * parent.width(), 1.0) << name;
        EXPECT_NEAR(control.height(), height * parent.height(), 1.0) << name;
    }

    void Expect_size(QWidget& dialog, double width, double height) {
        EXPECT_NEAR(dialog.width(), width * window->width(), 1.0);
        EXPECT_NEAR(dialog.height(), height * window->height(), 1.0);
    }
    void Expect_centred(QWidget& dialog) {
        EXPECT_NEAR(dialog.x(), window->x() + (window->width() - dialog.width()) / 2.0, 1.0);
        EXPECT_NEAR(dialog.y(), window->y() + (window->height() - dialog.height()) / 2.0, 1.0);
    }

    static std::string Shown_equations(QWidget& dialog) {
        std::string shown;
        for (const EquationPlace& place : equation_places) {
            if (Find_in<QWidget>(dialog, std::string{place.control}).isVisible()) {
                shown += place.control.back();
            }
        }
        return shown;
    }
};

TEST_F(Explanations, detailed_calculations_open_and_close) {
    Start("Eng");
    Open("Cmd_detail", [this](QWidget& dialog) {
        EXPECT_EQ(dialog.objectName(), "frmDetailed");
        EXPECT_TRUE(dialog.isModal());
        EXPECT_EQ(Text_of(dialog), "Detailed calculations");
        EXPECT_EQ(Words(Find_in<PaintedArea>(dialog, "Pic_detailed").Shown()), Words(Paint_detailed(s)));
        Click(Find_in<QPushButton>(dialog, "Cmd_ok"));
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(passes, 0); // it shows what the last pass left
    EXPECT_EQ(Focus(), "txtprosjekt");
}

TEST_F(Explanations, detailed_calculations_have_their_places) {
    Start("Eng");
    Open("Cmd_detail", [this](QWidget& dialog) {
        Expect_size(dialog, 0.65, 1.0);
        EXPECT_EQ(dialog.y(), window->y());
        EXPECT_NEAR(dialog.x(), window->x() + (window->width() - dialog.width()) / 2.0, 1.0);
        auto& frame = Find_in<QWidget>(dialog, "Fra_detailed");
        Expect_place(frame, 0.015, 0.005, 0.96, 0.89);
        Expect_place(Find_in<QWidget>(dialog, "Pic_detailed"), 0.015, 0.02, 0.96, 0.97);
        EXPECT_EQ(Find_in<QWidget>(dialog, "Cmd_ok").y(), frame.y() + frame.height() + 11);
        struct Row {
            const char* name;
            double top, left;
        };
        for (const Row& row : {Row{"Pic_r_a", 0.43, 0.1}, Row{"Pic_r_b", 0.48, 0.09}, Row{"Pic_r_c", 0.56, 0.12},
                               Row{"Pic_r_d", 0.61, 0.09}, Row{"Pic_r_e", 0.7, 0.09}, Row{"Pic_r_f", 0.79, 0.09},
                               Row{"Pic_r_g", 0.45, 0.1}, Row{"Pic_r_h", 0.505, 0.09}, Row{"Pic_r_j", 0.55, 0.09},
                               Row{"Pic_r_k", 0.64, 0.09}}) {
            auto& picture = Find_in<PictureArea>(dialog, row.name);
            EXPECT_NEAR(picture.x(), row.left * picture.parentWidget()->width(), 1.0) << row.name;
            EXPECT_NEAR(picture.y(), row.top * picture.parentWidget()->height(), 1.0) << row.name;
            EXPECT_EQ(picture.Picture(), std::string{"frmDetailed/"} + row.name);
            EXPECT_FALSE(picture.accessibleName().isEmpty());
        }
    });
}

TEST_F(Explanations, equations_go_by_the_shear) {
    Start("Nor");
    Open("Cmd_detail", [](QWidget& dialog) {
        EXPECT_EQ(Text_of(dialog), "Detaljerte beregninger");
        EXPECT_EQ(Shown_equations(dialog), "abcdef");
    });
    Click("Opt_dob_1");
    Open("Cmd_detail", [](QWidget& dialog) { EXPECT_EQ(Shown_equations(dialog), "ghjk"); });
    Click("Opt_enk_1");
    Open("Cmd_detail", [](QWidget& dialog) { EXPECT_EQ(Shown_equations(dialog), "abcdef"); });
}

TEST_F(Explanations, each_opening_paints_afresh) {
    Start("Eng");
    std::vector<std::string> first;
    Open("Cmd_detail",
         [&first](QWidget& dialog) { first = Words(Find_in<PaintedArea>(dialog, "Pic_detailed").Shown()); });
    Enter_value("Txt_last", "3");
    Open("Cmd_detail", [&first, this](QWidget& dialog) {
        const auto second = Words(Find_in<PaintedArea>(dialog, "Pic_detailed").Shown());
        EXPECT_NE(first, second);
        EXPECT_EQ(second, Words(Paint_detailed(s)));
    });
}

TEST_F(Explanations, of_the_effective_number) {
    Start("Eng");
    Open("Cmd_Bolt_eff_bolt", [this](QWidget& dialog) {
        EXPECT_EQ(dialog.objectName(), "Frm_tarn_vik_effbolt");
        EXPECT_EQ(Text_of(dialog), "Number of effective bolts");
        Expect_size(dialog, 0.5, 0.8);
        Expect_centred(dialog);
        Expect_place(Find_in<QWidget>(dialog, "Fra_txt_effbolt"), 0.015, 0.01, 0.96, 0.87);
        EXPECT_EQ(Words(Find_in<PaintedArea>(dialog, "Pic_txt_effbolt").Shown()).front(), "Effective number of bolts:");
        EXPECT_TRUE(Find_in<PictureArea>(dialog, "pic_eff_bolts").isVisible());
        EXPECT_EQ(Find_in<PictureArea>(dialog, "pic_eff_bolts").Picture(), "Frm_tarn_vik_effbolt/pic_eff_bolts");
        Click(Find_in<QPushButton>(dialog, "Cmd_ok"));
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(Focus(), "txtprosjekt");
    EXPECT_EQ(passes, 0);
}

TEST_F(Explanations, of_the_splitting_check) {
    Start("Nor");
    Open("Cmd_tverr", [this](QWidget& dialog) {
        EXPECT_EQ(dialog.objectName(), "Frm_tarn_vik_txt_tverr_brudd");
        EXPECT_EQ(Text_of(dialog), "Tverrstrekksbrudd");
        Expect_centred(dialog);
        EXPECT_EQ(Words(Find_in<PaintedArea>(dialog, "Pic_txt_tverr_brudd").Shown()).front(), "Tverrsnittsbrudd:");
        for (const char* picture : {"Pic_tverr_brudd", "Pic_tverr_brudd_fig"}) {
            EXPECT_TRUE(Find_in<PictureArea>(dialog, picture).isVisible()) << picture;
        }
        Click(Find_in<QPushButton>(dialog, "Cmd_ok"));
        EXPECT_FALSE(dialog.isVisible());
    });
}

TEST_F(Explanations, of_the_classes_open_from_their_dialog) {
    Start("Eng");
    struct Row {
        const char *button, *name, *caption, *area, *heading;
    };
    for (const Row& row : {Row{"Cmd_lastvar", "frm_tarn_vik_lastvarighet", "Load-duration class",
                               "Pic_txt_lastvarighet", "Definition of Load-duration classes :"},
                           Row{"Cmd_klima", "frm_tarn_vik_klima", "Service class", "Pic_txt_klima",
                               "Definition of service classes :"}}) {
        bool came = false;
        Menu("mnuklasse", [&](QWidget& classes) {
            In_dialog([&](QWidget& dialog) {
                came = true;
                EXPECT_EQ(dialog.objectName(), row.name);
                EXPECT_EQ(Text_of(dialog), row.caption);
                Expect_centred(dialog);
                EXPECT_EQ(Words(Find_in<PaintedArea>(dialog, row.area).Shown()).front(), row.heading);
                Click(Find_in<QPushButton>(dialog, "Cmd_ok"));
                EXPECT_FALSE(dialog.isVisible());
            });
            Click(Find_in<QPushButton>(classes, row.button));
            EXPECT_TRUE(classes.isVisible());
        });
        EXPECT_TRUE(came) << row.button;
    }
    EXPECT_EQ(passes, 0);
}

TEST_F(Explanations, of_the_material_factors_exist_without_a_button) {
    Start("Eng");
    ExplanationForm dialog{*window, *window, window->Work(), "frm_tarn_vik_matfak"};
    dialog.show();
    Settle();
    EXPECT_EQ(Text_of(dialog), "Material factors");
    Expect_size(dialog, 0.5, 0.4);
    Expect_centred(dialog);
    Expect_place(Find_in<QWidget>(dialog, "Fra_txt_matfak"), 0.015, 0.01, 0.96, 0.75);
    EXPECT_EQ(Words(Find_in<PaintedArea>(dialog, "Pic_txt_matfak").Shown()).front(),
              "Definisjon av materialfaktorer :");
}

TEST_F(Explanations, stand_as_they_are_when_the_language_changes) {
    Start("Eng");
    ExplanationForm dialog{*window, *window, window->Work(), "frm_tarn_vik_klima"};
    dialog.show();
    Settle();
    s.Lang = "Nor";
    dialog.repaint();
    EXPECT_EQ(Text_of(dialog), "Service class");
    EXPECT_EQ(Words(Find_in<PaintedArea>(dialog, "Pic_txt_klima").Shown()).front(), "Definition of service classes :");
    dialog.hide();
    dialog.show();
    EXPECT_EQ(Text_of(dialog), "Klimaklasse");
}

TEST_F(Explanations, unknown_name_is_told_by_name) {
    Start("Eng");
    EXPECT_THROW((ExplanationForm{*window, *window, window->Work(), "frm_tarn_vik_nothing"}), std::logic_error);
}

} // namespace
} // namespace tarnvik::test
