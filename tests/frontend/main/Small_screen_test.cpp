// The window on a screen that is too small for it, or made smaller by the user: every control keeps its place, and all
// of it is reached. Runs on the screens of small computers (TARNVIK_TEST_SCREEN) at their resolutions
// (TARNVIK_TEST_DPI).
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <string>

#include "detail/Hjelpetext.h"
#include "frontend/controls/PaintedArea.h"
#include "frontend/controls/Scrolling.h"
#include "frontend/dialogs/ExplanationForm.h"
#include "frontend/dialogs/frmDetailed.h"
#include "frontend/main/ControlTable.h"
#include "tests/support/Window.h"

namespace tarnvik::test {
namespace {

class SmallScreen : public WindowTest {
protected:
    ScrolledGround& Scrolled() { return Find<ScrolledGround>("scrolled"); }
    QRect Available() { return window->screen()->availableGeometry(); }

    // What is in sight of the control, of its own area.
    static QRect Sight(QWidget& control) { return control.visibleRegion().boundingRect(); }
    static bool Whole(QWidget& control) { return Sight(control) == control.rect(); }
    // The whole of it, or the part with the cursor of one that is wider than the window.
    bool In_sight(QWidget& control) {
        const bool too_wide = control.width() > Scrolled().viewport()->width() - 40;
        return Whole(control) || (too_wide && Sight(control).height() == control.height());
    }

    std::map<std::string, QRect> Places() {
        std::map<std::string, QRect> places;
        for (const ControlRow& row : Control_rows()) {
            places[row.name] = Find(row.name).geometry();
        }
        return places;
    }
    // To the end of the content in both directions.
    static bool At_end(const QScrollArea& area) {
        return area.verticalScrollBar()->value() == area.verticalScrollBar()->maximum() &&
               area.horizontalScrollBar()->value() == area.horizontalScrollBar()->maximum();
    }
};

TEST_F(SmallScreen, the_window_is_no_larger_than_the_screen_and_its_controls_are_laid_out_as_ever) {
    for (const char* lang : {"Eng", "Nor"}) {
        Start(lang);
        EXPECT_TRUE(Available().contains(window->frameGeometry()));
        const double dpi = window->logicalDpiX();
        const double w = 1024.0 * dpi / 96.0;
        const double h = std::round(0.965 * 768.0 * dpi / 96.0);
        const QRect input = Find("fra_input").geometry();
        EXPECT_NEAR(input.left(), 0.005 * w, 1.0);
        EXPECT_NEAR(input.width(), 0.45 * w, 1.0);
        EXPECT_NEAR(input.height(), 0.93 * h, 1.0);
        EXPECT_NEAR(Find("Fra_results").width(), 0.53 * w, 1.0);
        // Nothing is out of reach, and what there is room for is in sight.
        EXPECT_TRUE(Find("ground").rect().contains(Find("ground").childrenRect()));
        EXPECT_EQ(Scrolled().verticalScrollBar()->isVisible(), Find("ground").height() > Scrolled().height());
        const int wanted = static_cast<int>(w) + Scrolled().verticalScrollBar()->width();
        if (Available().width() > wanted) {
            EXPECT_FALSE(Scrolled().horizontalScrollBar()->isVisible());
        }
    }
}

TEST_F(SmallScreen, a_control_that_gets_the_focus_by_a_key_comes_into_sight) {
    for (const char* lang : {"Eng", "Nor"}) {
        Start(lang);
        Click("Opt_bolt_bulldog(1)");
        Click("Opt_valg");
        window->resize(Available().width() / 3, Available().height() / 3);
        Settle();
        std::set<std::string> visited;
        for (Key(Qt::Key_Tab); visited.insert(Focus()).second; Key(Qt::Key_Tab)) {
            EXPECT_TRUE(In_sight(*QApplication::focusWidget())) << Focus();
        }
        EXPECT_GE(visited.size(), 25U);
        Find("Txt_h1").setFocus(Qt::OtherFocusReason);
        for (const char* next : {"Txt_b1", "Txt_h2", "Txt_b2", "Pic_Dim"}) {
            Scrolled().verticalScrollBar()->setValue(Scrolled().verticalScrollBar()->maximum());
            Key(Qt::Key_Return);
            EXPECT_EQ(Focus(), next);
            EXPECT_TRUE(In_sight(Find(next))) << next;
        }
    }
}

TEST_F(SmallScreen, a_refused_box_comes_into_sight_again) {
    Start();
    window->resize(Available().width() / 2, Available().height() / 2);
    Find("Txt_last").setFocus(Qt::OtherFocusReason);
    Keys("-1");
    Key(Qt::Key_Tab);
    Scrolled().verticalScrollBar()->setValue(0);
    Answer();
    EXPECT_EQ(Focus(), "Txt_last");
    EXPECT_TRUE(Whole(Find("Txt_last")));
}

TEST_F(SmallScreen, a_control_that_is_clicked_stays_under_the_pointer) {
    Start();
    Click("Opt_valg");
    window->resize(Available().width() / 2, Available().height() / 2);
    Settle();
    QScrollBar& bar = *Scrolled().verticalScrollBar();
    auto& box = Find("Txt_b1");
    bar.setValue(box.mapTo(&Find("ground"), QPoint{}).y() + box.height() / 2); // its upper half is out of sight
    const int value = bar.value();
    Click(box, {10, box.height() - 3});
    EXPECT_EQ(Focus(), "Txt_b1");
    EXPECT_EQ(bar.value(), value);
}

// The results have few controls that take the focus: the scroll bars obey the keys that the controls leave to them.
TEST_F(SmallScreen, the_ends_are_reached_by_keys) {
    Start();
    Find("Comb_bolt_avstand").setFocus(Qt::TabFocusReason);
    for (int i = 0; i < 100; ++i) {
        Key(Qt::Key_Right);
    }
    Find("txtprosjekt").setFocus(Qt::TabFocusReason);
    Scrolled().horizontalScrollBar()->setValue(Scrolled().horizontalScrollBar()->maximum());
    for (int i = 0; i < 10; ++i) {
        Key(Qt::Key_PageDown);
    }
    EXPECT_TRUE(At_end(Scrolled()));
    EXPECT_EQ(s.P, 10.0F);
    EXPECT_EQ(passes, 0);
}

TEST_F(SmallScreen, a_window_that_the_user_makes_smaller_scrolls_and_keeps_every_place) {
    Start();
    const std::map<std::string, QRect> places = Places();
    for (const QSize size : {QSize{300, 200}, QSize{4000, 300}, QSize{300, 4000}}) {
        window->resize(size);
        Settle();
        EXPECT_EQ(Places(), places);
        EXPECT_EQ(Scrolled().horizontalScrollBar()->isVisible(), size.width() == 300);
        EXPECT_EQ(Scrolled().verticalScrollBar()->isVisible(), size.height() < 4000);
    }
    window->resize(4000, 4000);
    Settle();
    EXPECT_EQ(Places(), places);
    EXPECT_FALSE(Scrolled().horizontalScrollBar()->isVisible());
    EXPECT_FALSE(Scrolled().verticalScrollBar()->isVisible());
}

TEST_F(SmallScreen, the_other_windows_fit_the_screen_and_are_laid_out_as_ever) {
    for (const char* lang : {"Eng", "Nor"}) {
        Start(lang);
        const QSize whole = Laid_out_size(*window);
        const auto look_at = [&](QDialog& dialog, double width, double height) {
            SCOPED_TRACE(dialog.objectName().toStdString());
            dialog.show();
            Settle();
            EXPECT_TRUE(Available().contains(dialog.frameGeometry()));
            const auto& area = *dialog.findChild<ScrolledGround*>();
            EXPECT_NEAR(area.widget()->width(), width * whole.width(), 1.0);
            EXPECT_NEAR(area.widget()->height(), height * whole.height(), 1.0);
            EXPECT_EQ(area.verticalScrollBar()->value(), 0) << "begins at its top";
            EXPECT_FALSE(area.horizontalScrollBar()->isVisible()); // the screens are all wide enough
            EXPECT_EQ(area.verticalScrollBar()->isVisible(), area.widget()->height() > dialog.height());
            for (int i = 0; i < 10; ++i) {
                QTest::keyClick(dialog.focusWidget(), Qt::Key_PageDown);
            }
            EXPECT_TRUE(Whole(*dialog.findChild<QPushButton*>(QStringLiteral("Cmd_ok"))));
            for (const PaintedArea::Placed& text : dialog.findChild<PaintedArea*>()->Place_texts()) {
                EXPECT_GE(text.narrowing, 0.9);
            }
            dialog.hide();
        };
        frmDetailed detailed{*window, window->Work()};
        look_at(detailed, 0.65, 1.0);
        for (const ExplanationWindow& explanation : explanation_windows) {
            ExplanationForm dialog{*window, *window, window->Work(), explanation.name};
            look_at(dialog, explanation.width, explanation.height);
        }
        for (const char* entry : {"mnuklasse", "mnusetup", "mnuabout"}) {
            Menu(entry, [this](QWidget& dialog) { EXPECT_TRUE(Available().contains(dialog.frameGeometry())); });
        }
    }
}

// What the window is shown as counts for nothing.
TEST_F(SmallScreen, the_sizes_of_the_other_windows_do_not_follow_a_window_made_smaller) {
    Start();
    window->setGeometry(Available().left(), Available().top(), 300, 200);
    Settle();
    const QSize whole = Laid_out_size(*window);
    frmDetailed detailed{*window, window->Work()};
    detailed.show();
    Settle();
    EXPECT_NEAR(detailed.findChild<ScrolledGround*>()->widget()->width(), 0.65 * whole.width(), 1.0);
    EXPECT_TRUE(Available().contains(detailed.frameGeometry()));
    detailed.hide();
    Menu("mnuklasse", [&](QWidget& dialog) {
        EXPECT_NEAR(dialog.width(), 0.34 * whole.width(), 1.0);
        EXPECT_NEAR(dialog.height(), 0.32 * whole.height(), 1.0);
        EXPECT_TRUE(Available().contains(dialog.frameGeometry()));
    });
}

// Shown_in: a room of 100 by 80 pixels at (10, 20).
TEST(ShownIn, what_fits_stays_as_it_is) {
    EXPECT_EQ(Shown_in({10, 20, 100, 80}, {15, 25, 90, 70}), QRect(15, 25, 90, 70));
    EXPECT_EQ(Shown_in({10, 20, 100, 80}, {10, 20, 100, 80}), QRect(10, 20, 100, 80));
}

TEST(ShownIn, what_stands_outside_is_moved_in) {
    EXPECT_EQ(Shown_in({10, 20, 100, 80}, {0, 0, 90, 70}), QRect(10, 20, 90, 70));
    EXPECT_EQ(Shown_in({10, 20, 100, 80}, {60, 70, 90, 70}), QRect(20, 30, 90, 70));
}

TEST(ShownIn, what_has_to_scroll_gets_the_room_of_the_bar) {
    const int bar = QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    EXPECT_EQ(Shown_in({0, 0, 500, 80}, {0, 0, 300, 100}), QRect(0, 0, 300 + bar, 80));
    EXPECT_EQ(Shown_in({0, 0, 80, 500}, {0, 0, 100, 300}), QRect(0, 0, 80, 300 + bar));
    EXPECT_EQ(Shown_in({0, 0, 80, 70}, {0, 0, 100, 300}), QRect(0, 0, 80, 70));
}

} // namespace
} // namespace tarnvik::test
