// The detailed calculations and the explanations, in both languages, at the screen resolution that the process was
// started with: everything is inside its window, nothing runs into anything else, nothing is squeezed.
//
// With TARNVIK_SHOTS in the environment, a folder, each window is saved there as a picture.
#include "frontend/controls/PaintedArea.h"
#include "frontend/controls/Scrolling.h"
#include "frontend/painting/Texts.h"

#include <gtest/gtest.h>

#include <QPixmap>
#include <QPushButton>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "detail/Detailed_calc.h"
#include "detail/Hjelpetext.h"
#include "frontend/dialogs/ExplanationForm.h"
#include "frontend/dialogs/frmDetailed.h"
#include "frontend/painting/EquationPictures.h"
#include "frontend/painting/PictureStore.h"
#include "tests/support/Window.h"

namespace tarnvik::test {
namespace {

// A text of the size that all texts have is squeezed by this much at most.
constexpr double least = 0.9;

class PaintedWalk : public WindowTest {
protected:
    double Dpi() { return window->logicalDpiX(); }

    // Shows the window, holds it to the rules, takes its picture.
    void Look_at(QDialog& dialog, const std::string& name) {
        SCOPED_TRACE(name);
        dialog.show();
        Settle();
        auto& area = *dialog.findChild<PaintedArea*>();
        Check_inside(dialog);
        Check_texts(area);
        Check_pictures(area);
        if (const QByteArray shots = qgetenv("TARNVIK_SHOTS"); !shots.isEmpty()) {
            dialog.grab().save(QString::fromLocal8Bit(shots) + QString::fromStdString("/" + name + "_") +
                               qEnvironmentVariable("QT_FONT_DPI", "96") + QStringLiteral(".png"));
        }
        dialog.hide();
    }

    static void Check_inside(QDialog& dialog) {
        std::vector<QWidget*> children;
        for (auto* child : dialog.findChild<ScrolledGround*>()->widget()->findChildren<QWidget*>()) {
            EXPECT_TRUE(child->parentWidget()->rect().contains(child->geometry()))
                << child->objectName().toStdString() << " reaches out of its parent";
        }
        const auto* ok = dialog.findChild<QPushButton*>(QStringLiteral("Cmd_ok"));
        ASSERT_NE(ok, nullptr);
        for (auto* child : ok->parentWidget()->findChildren<QWidget*>(QString{}, Qt::FindDirectChildrenOnly)) {
            if (child != ok) {
                EXPECT_FALSE(child->geometry().intersects(ok->geometry())) << child->objectName().toStdString();
            }
        }
    }

    static void Check_texts(PaintedArea& area) {
        constexpr double half = 0.5; // of a pixel: what rounding of the letters' places may take
        const auto placed = area.Place_texts();
        const auto& texts = area.Shown().texts;
        ASSERT_EQ(placed.size(), texts.size());
        for (std::size_t i = 0; i < placed.size(); ++i) {
            EXPECT_GE(placed[i].narrowing, least) << texts[i].text;
            for (const QRectF& word : placed[i].ink) {
                EXPECT_TRUE(QRectF{area.rect()}.contains(word)) << texts[i].text << " is cut";
            }
            for (std::size_t k = 0; k < i; ++k) {
                for (const QRectF& one : placed[i].ink) {
                    for (const QRectF& other : placed[k].ink) {
                        EXPECT_FALSE(one.intersects(other.adjusted(half, half, -half, -half)))
                            << texts[i].text << " runs into " << texts[k].text;
                    }
                }
            }
        }
    }

    // Also: the pictures are large enough to read.
    void Check_pictures(PaintedArea& area) {
        std::vector<PictureArea*> shown;
        for (auto* picture : area.findChildren<PictureArea*>()) {
            if (!picture->isHidden()) {
                shown.push_back(picture);
            }
        }
        ASSERT_EQ(shown.size(), area.Shown().pictures.size());
        const auto placed = area.Place_texts();
        for (std::size_t i = 0; i < shown.size(); ++i) {
            const std::string name = shown[i]->objectName().toStdString();
            for (std::size_t k = 0; k < i; ++k) {
                EXPECT_FALSE(shown[i]->geometry().intersects(shown[k]->geometry())) << name;
            }
            for (std::size_t k = 0; k < placed.size(); ++k) {
                for (const QRectF& word : placed[k].ink) {
                    EXPECT_FALSE(QRectF{shown[i]->geometry()}.intersects(word))
                        << name << " covers " << area.Shown().texts[k].text;
                }
            }
            // The equations of the detailed calculations are all as large as they are stored, but for 5 %.
            const double letter = area.objectName() == QLatin1String("Pic_detailed") ? 0.95 * 12.0 : 9.0;
            const auto equation = Equation_size(shown[i]->Picture(), letter * Dpi() / 96.0);
            const QSizeF size = equation ? *equation : 0.8 * Dpi() / 96.0 * Picture_size(shown[i]->Picture());
            EXPECT_LE(size.width(), shown[i]->width()) << name << " is too small";
            EXPECT_LE(size.height(), shown[i]->height()) << name << " is too small";
        }
    }

    void Look_at_detailed(const std::string& name) {
        Painting painting = Paint_detailed(s);
        frmDetailed dialog{*window, window->Work()};
        Look_at(dialog, name);
        Check_values(*dialog.findChild<PaintedArea*>(), painting);
    }

    // The value of a mode stands against the middle of its equation.
    void Check_values(PaintedArea& area, const Painting& painting) {
        const auto placed = area.Place_texts();
        for (const PaintedPicture& picture : painting.pictures) {
            const std::string label = "Rk(" + std::string{picture.control.substr(picture.control.size() - 1)} + ")";
            const auto text = std::find_if(painting.texts.begin(), painting.texts.end(),
                                           [&label](const PaintedText& one) { return one.text.starts_with(label); });
            ASSERT_NE(text, painting.texts.end()) << label;
            const auto equals = static_cast<std::size_t>(text - painting.texts.begin()) + 1;
            ASSERT_EQ(painting.texts[equals].text, "=");
            const auto* control = area.findChild<PictureArea*>(Q(picture.control));
            const double off = placed[equals].ink.front().center().y() - QRectF{control->geometry()}.center().y();
            // The equation of c has the next one close below it and cannot reach up to its value.
            const double most = picture.control == "Pic_r_c" ? 16.0 : 4.0;
            EXPECT_LE(std::fabs(off), most * Dpi() / 96.0) << label;
        }
    }
};

TEST_F(PaintedWalk, nothing_is_squeezed_whatever_the_size_of_the_main_window_and_of_the_values) {
    Start();
    Click("Opt_valg");
    for (const char* name : {"Txt_b1", "Txt_h1", "Txt_b2", "Txt_h2"}) {
        Box(name).setText(QStringLiteral("9999.99"));
    }
    s.alp = 179.94F;
    s.P = -9999.99F;
    s.Ant_index = 4;
    for (const QSize size : {QSize{1, 1}, QSize{640, 480}, QSize{3000, 2000}}) {
        window->resize(size);
        Settle();
        for (const char* lang : {"Eng", "Nor"}) {
            s.Lang = lang;
            for (const ExplanationWindow& explanation : explanation_windows) {
                ExplanationForm dialog{*window, *window, window->Work(), explanation.name};
                Look_at(dialog, std::string{explanation.name} + "_" + lang);
            }
            for (std::int16_t type = 1; type <= 5; ++type) {
                for (std::int16_t bolt = 0; bolt <= 7; ++bolt) {
                    s.Con_type = type;
                    s.Bolt_index = bolt;
                    s.enk_1 = bolt % 2 == 0;
                    s.dob_1 = !s.enk_1;
                    s.Med_bulldog = bolt > 4;
                    s.Kun_bolt = !s.Med_bulldog;
                    s.Bulldog_index = 4;
                    window->Work().Recalculate();
                    EXPECT_TRUE(boxes.messages.empty()) << boxes.messages.front().text;
                    EXPECT_GT(s.t2, 9999.0F);
                    Look_at_detailed("frmDetailed_large_" + std::to_string(type) + "_" + std::to_string(bolt) + lang);
                }
            }
        }
    }
}

TEST_F(PaintedWalk, explanations_in_both_languages) {
    Start();
    for (const char* lang : {"Eng", "Nor"}) {
        s.Lang = lang;
        for (const ExplanationWindow& explanation : explanation_windows) {
            ExplanationForm dialog{*window, *window, window->Work(), explanation.name};
            Look_at(dialog, std::string{explanation.name} + "_" + lang);
        }
    }
}

TEST_F(PaintedWalk, detailed_calculations_of_all_connections) {
    Start();
    const auto highest = [this](int count) {
        int best = 0;
        for (int i = 1; i <= count; ++i) {
            const auto h = [this](int row) { return s.Prof[static_cast<std::size_t>(row)].h; };
            best = h(i) > h(best) ? i : best;
        }
        return static_cast<std::int16_t>(best);
    };
    s.Prof1_index = highest(s.Prof1_count); // room for the bolts
    s.Prof2_index = highest(s.Prof2_count);
    struct Variant {
        const char* name;
        bool dob_1, dob_2;
    };
    for (const char* lang : {"Eng", "Nor"}) {
        s.Lang = lang;
        for (int type = 1; type <= 5; ++type) {
            for (const Variant variant :
                 {Variant{".1", false, false}, Variant{".2", true, false}, Variant{".3", false, true}}) {
                for (const bool connectors : {false, true}) {
                    s.Con_type = static_cast<std::int16_t>(type);
                    s.dob_1 = variant.dob_1;
                    s.enk_1 = !variant.dob_1;
                    s.dob_2 = variant.dob_2;
                    s.enk_2 = !variant.dob_2;
                    s.Med_bulldog = connectors;
                    s.Kun_bolt = !connectors;
                    s.Bolt_index = 7; // the largest yield moment
                    s.Bulldog_index = 4;
                    s.Ant_index = 4;
                    s.P = -1234.5F;
                    window->Work().Recalculate();
                    ASSERT_TRUE(boxes.messages.empty()) << boxes.messages.front().text;
                    Look_at_detailed("frmDetailed_" + std::to_string(type) + variant.name +
                                     (connectors ? "_connectors_" : "_bolts_") + lang);
                }
            }
        }
    }
}

} // namespace
} // namespace tarnvik::test
