// A user without a plan: many inputs in any order, and after each of them the window shows what the state holds.
#include <chrono>
#include <cstdio>
#include <random>

#include "calc/Splitting.h"
#include "calc/pass/Main_beregn.h"
#include "session/Standing.h"
#include "tests/support/Memory.h"
#include "tests/support/RecordingMessageBox.h"
#include "tests/support/Window.h"

namespace tarnvik::test {
namespace {

constexpr std::size_t longest_history = 100000; // of a walk of hours, whose memory is looked at

class Monkey : public WindowTest, public testing::WithParamInterface<int> {
protected:
    void Expect_consistent() {
        EXPECT_EQ(boxes.Waiting(), 0U);
        EXPECT_FALSE(s.Loading);
        EXPECT_FALSE(window->Editing().Refusing());
        EXPECT_EQ(Row("Comb_bolter"), s.Bolt_index);
        EXPECT_EQ(Row("Comb_ant_bolt"), s.Ant_index);
        EXPECT_EQ(Row("cboMat"), s.Mat_index);
        EXPECT_EQ(Row("cboProf1"), s.Prof1_index);
        EXPECT_EQ(Row("cboProf2"), s.Prof2_index);
        EXPECT_EQ(Row("Comb_bulldog"), s.Bulldog_index);
        EXPECT_EQ(Checked("Opt_stand"), s.Standard);
        EXPECT_EQ(Checked("Opt_valg"), !s.Standard);
        EXPECT_EQ(Enabled("Fra_valgfri"), !s.Standard);
        EXPECT_EQ(Checked("Opt_bolt_bulldog(1)"), s.Med_bulldog);
        EXPECT_EQ(s.Kun_bolt, !s.Med_bulldog);
        EXPECT_EQ(Checked("Check_man"), s.Man_he_on);
        EXPECT_EQ(Enabled("Txt_man_he"), s.Man_he_on);
        EXPECT_EQ(Checked("Opt_dob_1"), s.dob_1);
        EXPECT_EQ(Checked("Opt_dob_2"), s.dob_2);
        EXPECT_FALSE(s.dob_1 && s.dob_2);
        EXPECT_EQ(Enabled("Opt_dob_1"), !s.dob_2);
        EXPECT_EQ(Enabled("Opt_dob_2"), !s.dob_1);
        for (const char* name :
             {"Txt_b1", "Txt_h1", "Txt_b2", "Txt_h2", "Txt_last", "Txt_alp", "Txt_man_he", "txtid", "txtprosjekt"}) {
            if (name != Focus()) { // b1 can be left refused in English, and then it says so
                EXPECT_TRUE(Back(name) == white || std::string{name} == "Txt_b1") << name;
            }
        }
        // The results are those of the last pass, repeated without a window.
        if (last_end_ != PassEnd::normal) {
            return;
        }
        const Screen& expected = *last_;
        for (std::size_t i = 0; i < control_count; ++i) {
            const auto control = static_cast<Control>(i);
            const std::string name{Control_name(control)};
            const ControlView& view = expected[control];
            if (s.Man_he_on && (control == Control::Lbl_tverr_2 || control == Control::Txt_man_he)) {
                continue; // the box of manual he writes them
            }
            if (view.caption && name != Focus()) {
                EXPECT_EQ(Text(name), *view.caption) << name;
            }
            if (view.index) {
                EXPECT_EQ(Row(name), *view.index) << name;
            }
            if (view.fore) {
                EXPECT_EQ(Fore(name), *view.fore) << name;
            }
            if (view.visible) {
                EXPECT_EQ(!Find(name).isHidden(), *view.visible) << name;
            }
        }
        EXPECT_EQ(Find<PictureArea>("Pic_forbindelse").Picture(), expected.Pic_forbindelse);
        EXPECT_EQ(Find<PictureArea>("Pic_av_bolter").Picture(), expected.Pic_av_bolter);
        const auto& rows = Find<TableArea>("Pic_av_bolter_dif").Rows();
        ASSERT_EQ(rows.size(), expected.Pic_av_bolter_dif.size());
        for (std::size_t i = 0; i < rows.size(); ++i) {
            EXPECT_EQ(rows[i].text, expected.Pic_av_bolter_dif[i].text);
            EXPECT_EQ(rows[i].fore, expected.Pic_av_bolter_dif[i].fore);
        }
    }

    // The line in the title row agrees with a fresh pass on the same inputs.
    void Expect_true_marks() {
        ConnectionState fresh = s;
        fresh.Txt_b1 = Text("Txt_b1");
        fresh.Txt_h1 = Text("Txt_h1");
        fresh.Txt_b2 = Text("Txt_b2");
        fresh.Txt_h2 = Text("Txt_h2");
        RecordingMessageBox box;
        const PassEnd end = Run_pass(fresh, nullptr, box).end;
        ASSERT_NE(Visible("Lbl_current"), Visible("Lbl_verdict"));
        if (Visible("Lbl_current")) {
            EXPECT_TRUE(Text("Lbl_current").starts_with(Is_english(s) ? "Not current: " : "Ikke aktuelt: "));
            EXPECT_FALSE(Visible("Lbl_tverr_current"));
            // Choosing a typed he runs no pass, though one would leave out the check that had failed.
            EXPECT_TRUE(end != PassEnd::normal || Back("Txt_b1") == green || s.Man_he_on) << Text("Lbl_current");
            return;
        }
        ASSERT_EQ(end, PassEnd::normal) << Text("Lbl_verdict");
        const bool checked = !Visible("Lbl_tverr_current");
        if (checked && fresh.Man_he_on) {
            float h = 0.0F;
            float b = 0.0F;
            Get_splitting_member(fresh, h, b);
            Tverr_brudd(fresh, h, fresh.he, b, ScreenWriter{nullptr});
        }
        EXPECT_EQ(Text("Lbl_verdict"), Verdict_text(Verdict_of(fresh, checked), Is_english(s)));
        EXPECT_EQ(fresh.uf, s.uf);
        if (checked) {
            EXPECT_EQ(fresh.Tverr_kontroll, s.Tverr_kontroll);
        }
        // The mark of the sign: what is calculated against what is selected.
        const bool differs = s.P > 0.0F ? Checked("Opt_strekk") : Checked("Opt_trykk");
        EXPECT_EQ(Visible("Lbl_sign"), differs);
    }

    void Watch() {
        const auto repeat = [this] {
            ConnectionState copy = s;
            RecordingMessageBox box;
            last_ = std::make_unique<Screen>();
            last_end_ = Run_pass(copy, last_.get(), box).end;
        };
        repeat();
        QObject::connect(window.get(), &frmMain::Calculated, window.get(), repeat);
    }

    int Any(int below) { return std::uniform_int_distribution<>{0, below - 1}(random_); }
    template <class T, std::size_t n> T One_of(const T (&all)[n]) { return all[Any(static_cast<int>(n))]; }
    bool Usable(const std::string& name) { return Visible(name) && Enabled(name); }

    std::string Act() {
        static const char* const lists[] = {"Comb_bolter", "Comb_ant_bolt", "Comb_bolt_avstand", "cboMat",
                                            "cboProf1",    "cboProf2",      "Comb_bulldog"};
        static const char* const clicks[] = {
            "Cmd_type(0)",      "Cmd_type(1)",      "Cmd_type(2)", "Cmd_type(3)",         "Cmd_type(4)",
            "Opt_stand",        "Opt_valg",         "Opt_trykk",   "Opt_strekk",          "Opt_enk_1",
            "Opt_dob_1",        "Opt_enk_2",        "Opt_dob_2",   "Opt_bolt_bulldog(0)", "Opt_bolt_bulldog(1)",
            "Cmd_boltetype(0)", "Cmd_boltetype(1)", "Check_man"};
        static const char* const boxes_to_type[] = {"Txt_b1",   "Txt_h1",  "Txt_b2",    "Txt_h2",
                                                    "Txt_last", "Txt_alp", "Txt_man_he"};
        static const char* const texts[] = {"150", "61,5", "223", "405", "12.5", "0", "-4", "x", "300"};
        static const Qt::Key keys[] = {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Backtab};
        if (Any(12) == 0) {
            return Visit();
        }
        switch (Any(4)) {
        case 0: {
            const char* name = One_of(lists);
            if (Usable(name)) {
                const int row = Any(Find<QComboBox>(name).count());
                Pick_if_it_drops(name, row);
                return std::string{"pick "} + name + " row " + std::to_string(row);
            }
            return {};
        }
        case 1: {
            const char* name = One_of(clicks);
            if (Usable(name)) {
                Click(name);
                return std::string{"click "} + name;
            }
            return {};
        }
        case 2: {
            const char* name = One_of(boxes_to_type);
            if (Usable(name)) {
                Click(name);
                if (Focus() == name) {
                    const char* text = One_of(texts);
                    Type(name, text);
                    return std::string{"type "} + text + " into " + name;
                }
            }
            return {};
        }
        default: {
            if (QApplication::focusWidget() != nullptr) {
                Key(One_of(keys));
            }
            return "a key";
        }
        }
    }
    // Opens another window, if it comes up, does something in it and closes it; or makes this one smaller and
    // larger again.
    std::string Visit() {
        static const char* const buttons[] = {"Cmd_detail", "Cmd_tverr"};
        static const char* const classes[] = {"Opt_Lastvarighet(0)", "Opt_Lastvarighet(2)", "Opt_Lastvarighet(4)",
                                              "Opt_klimaklasse(0)",  "Opt_klimaklasse(1)",  "Opt_klimaklasse(2)"};
        const int which = Any(4);
        if (which == 0) {
            const QSize size = window->size();
            window->resize(200 + Any(size.width()), 200 + Any(size.height()));
            Settle();
            window->resize(size);
            Settle();
            return "resize";
        }
        const std::string choice = One_of(classes);
        QTimer::singleShot(0, window.get(), [which, choice] {
            QWidget* dialog = QApplication::activeModalWidget();
            if (dialog == nullptr) {
                return; // a refused value has kept it from coming
            }
            Settle();
            if (which == 1) {
                Click(Find_in<QWidget>(*dialog, choice));
            }
            dialog->close();
        });
        const std::string name = which == 1 ? "mnuklasse" : One_of(buttons);
        if (which == 1) {
            Find<QAction>(name).trigger();
            Settle();
        } else if (Usable(name)) {
            Click(name);
        }
        Be_active();
        return "visit " + name + " " + choice;
    }
    // A list does not drop down where the click first refuses the box that it leaves.
    void Pick_if_it_drops(const char* name, int row) {
        auto& list = Find<QComboBox>(name);
        Click(list);
        if (list.view()->isVisible()) {
            list.view()->setCurrentIndex(list.model()->index(row, 0));
            QTest::keyClick(list.view(), Qt::Key_Return);
            Settle();
        }
    }
    // Reads every box; a refused value is mended, so that the walk goes on.
    void Answer_all() {
        for (int i = 0; i < 20 && (boxes.Waiting() > 0 || window->Editing().Refusing()); ++i) {
            if (boxes.Waiting() > 0) {
                boxes.Answer();
            }
            Settle();
        }
        boxes.messages.clear();
    }

private:
    std::unique_ptr<Screen> last_;
    PassEnd last_end_{};
    std::mt19937 random_{static_cast<unsigned>(GetParam())};
};

TEST_P(Monkey, whatever_is_done_the_window_shows_what_the_state_holds) {
    Start(GetParam() % 2 == 0 ? "Eng" : "Nor");
    Watch();
    Pick("cboProf1", 55); // L 42x405: most cases fit
    Pick("cboProf2", 55);
    std::string history;
    // A longer walk: TARNVIK_MONKEY_STEPS=25000, or TARNVIK_MONKEY_SECONDS=600, which tells how it went.
    const int asked = qEnvironmentVariableIntValue("TARNVIK_MONKEY_STEPS");
    const int seconds = qEnvironmentVariableIntValue("TARNVIK_MONKEY_SECONDS");
    const int steps = asked > 0 ? asked : 250;
    const auto begin = std::chrono::steady_clock::now();
    const auto goes_on = [&](int step) {
        return seconds > 0 ? std::chrono::steady_clock::now() - begin < std::chrono::seconds{seconds} : step < steps;
    };
    int i = 0;
    for (; goes_on(i) && !HasFailure(); ++i) {
        if (seconds > 0 && i % 2000 == 0) {
            std::printf("walk %d: %d events, %ld MB\n", GetParam(), i, Resident_kB() / 1024);
            std::fflush(stdout);
        }
        const std::string did = Act();
        if (did.empty()) {
            continue;
        }
        if (history.size() > longest_history) {
            history.erase(0, longest_history / 2);
        }
        history += did + "\n";
        Answer_all();
        // The box in editing is accepted, or a good value is put in its place.
        if (auto* box = dynamic_cast<TextBox*>(QApplication::focusWidget());
            box != nullptr && did.starts_with("type")) {
            Key(Qt::Key_Tab);
            Answer_all();
            if (QApplication::focusWidget() == box) {
                Type(box->objectName().toStdString(), box->objectName() == QLatin1String("Txt_alp") ? "30" : "200");
                history += "mend\n";
                Key(Qt::Key_Tab);
                Answer_all();
            }
        }
        if (!s.Standard && Back("Txt_b1") == green && Focus() != "Txt_b1") {
            Click("Txt_b1"); // the focus stays in a box whose pass faults
            if (Focus() == "Txt_b1") {
                Type("Txt_b1", "48");
                Key(Qt::Key_Tab);
                Answer_all();
            }
        }
        Expect_consistent();
        Expect_true_marks();
    }
    if (seconds > 0) {
        std::printf("walk %d: %d events in %d s, %ld MB\n", GetParam(), i, seconds, Resident_kB() / 1024);
    }
    if (HasFailure()) {
        std::cerr << history;
    }
}

INSTANTIATE_TEST_SUITE_P(Walks, Monkey, testing::Range(1, 9));

} // namespace
} // namespace tarnvik::test
