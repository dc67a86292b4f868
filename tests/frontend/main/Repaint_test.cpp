// What a change paints anew: all that it changes on the screen, and little else.
#include <QImage>
#include <QPaintEvent>
#include <QPixmap>
#include <QScreen>

#include <set>

#include "tests/support/Window.h"

namespace tarnvik::test {
namespace {

class Repaint : public WindowTest {
protected:
    Repaint() { QApplication::setCursorFlashTime(0); } // the cursor of a box stands still
    ~Repaint() override { QApplication::setCursorFlashTime(flash_time_); }

    // The names of the widgets that `act` leaves to be painted.
    std::set<std::string> Painted(const std::function<void()>& act) {
        class Watch : public QObject {
        public:
            std::set<std::string> names;

        protected:
            bool eventFilter(QObject* watched, QEvent* event) override {
                if (event->type() == QEvent::Paint) {
                    names.insert(watched->objectName().toStdString());
                }
                return false;
            }
        };
        Watch watch;
        qApp->installEventFilter(&watch);
        act();
        Settle();
        return watch.names;
    }

    // What has come to the screen bit by bit is what painting all of the window gives.
    void Expect_whole(const std::string& after) {
        Settle();
        const QImage shown = window->screen()->grabWindow(window->winId()).toImage();
        const QImage whole = window->grab().toImage();
        ASSERT_EQ(shown.size(), whole.size());
        EXPECT_EQ(shown.convertToFormat(QImage::Format_RGB32), whole.convertToFormat(QImage::Format_RGB32)) << after;
    }

private:
    int flash_time_ = QApplication::cursorFlashTime();
};

TEST_F(Repaint, tab_from_the_force_paints_boxes_and_results_alone) {
    Start("Eng");
    Click("Opt_bolt_bulldog(1)");
    Enter_value("Txt_last", "5"); // the marks say what they say after the next one too
    Type("Txt_last", "6");
    const std::set<std::string> painted = Painted([] { Key(Qt::Key_Tab); });
    for (const char* changed : {"Txt_last", "Txt_alp", "Lbl_last_kontroll", "Lbl_uf"}) {
        EXPECT_TRUE(painted.contains(changed)) << changed;
    }
    for (const char* same : {"Pic_av_bolter_dif", "Pic_av_bulldog_dif", "Pic_av_bolter", "Pic_av_bulldog",
                             "Pic_forbindelse", "Cmd_type(0)", "Lbl_bolt_kap2", "Lbl_verdict"}) {
        EXPECT_FALSE(painted.contains(same)) << same;
    }
    EXPECT_LE(painted.size(), 14U);
}

TEST_F(Repaint, tables_are_painted_when_a_row_of_theirs_changes) {
    Start("Eng");
    const std::set<std::string> painted = Painted([this] { Enter_value("Txt_alp", "40"); });
    EXPECT_TRUE(painted.contains("Pic_av_bolter_dif"));
}

TEST_F(Repaint, screen_is_whole_after_every_change) {
    Start("Eng");
    Expect_whole("the start");
    for (const char* control : {"Opt_bolt_bulldog(1)", "Cmd_type(3)", "Opt_strekk", "Cmd_type(1)", "Opt_trykk",
                                "Opt_dob_2", "Check_man", "Opt_valg", "Opt_stand", "Opt_bolt_bulldog(0)"}) {
        Click(control);
        Expect_whole(control);
    }
    for (const char* force : {"2", "30", "4000"}) {
        Type("Txt_last", force);
        Expect_whole(std::string{force} + " typed");
        Key(Qt::Key_Tab);
        Expect_whole(force);
    }
    for (const char* list : {"Comb_ant_bolt", "Comb_bolter", "cboProf1", "cboMat"}) {
        Pick(list, 1);
        Expect_whole(list);
    }
}

} // namespace
} // namespace tarnvik::test
