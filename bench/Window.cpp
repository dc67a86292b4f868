// What the user waits for: from the Tab that leaves a box to the window painted anew, and from the start of the process
// to the first sight of the window; and how many widgets are painted, what is asked of operator new, how much memory
// the process has held at most. Without a display, unless QT_QPA_PLATFORM says otherwise.
#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QProcess>
#include <QSet>
#include <QString>
#include <QWidget>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "bench/Allocations.h"
#include "frontend/controls/Controls.h"
#include "frontend/controls/Scrolling.h"
#include "frontend/controls/Style.h"
#include "frontend/main/frmMain.h"
#include "frontend/painting/Icon.h"
#include "frontend/painting/Texts.h"
#include "session/SystemClock.h"
#include "tests/support/Fakes.h"
#include "tests/support/MemorySettingsStore.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int presses = 200;
constexpr int starts = 21;

// No message may come up while the clock runs.
class NoBoxes : public tarnvik::BoxService {
public:
    void Show_then(std::string_view text, int /*style*/, std::function<void()> /*then*/) override {
        std::fprintf(stderr, "unexpected message: %.*s\n", static_cast<int>(text.size()), text.data());
        std::exit(1);
    }
    void Ask(const tarnvik::Question& question, std::function<void(bool yes)> /*then*/) override {
        Show_then(question.text, tarnvik::box_plain, {});
    }
};

// The window as the program makes it, on the delivered data.
struct Program {
    NoBoxes boxes;
    tarnvik::test::ScriptedDialogs files;
    tarnvik::test::RecordingOpener opener;
    tarnvik::test::MemorySettingsStore settings;
    tarnvik::test::ScriptedPrinter printer;
    tarnvik::SystemClock clock;
    tarnvik::ConnectionState state;
    tarnvik::frmMain window{
        state, {boxes, files, opener, settings, printer, clock}, {TARNVIK_DATA_DIR, TARNVIK_DATA_DIR, {}}};
};

// Which widgets were painted.
class Painted : public QObject {
public:
    QSet<const QObject*> widgets;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            widgets.insert(watched);
        }
        return false;
    }
};

template <class T> T& Find(const QObject& window, const std::string& name) {
    T* const found = window.findChild<T*>(QString::fromStdString(name));
    if (found == nullptr) {
        std::fprintf(stderr, "no control named %s\n", name.c_str());
        std::exit(1);
    }
    return *found;
}

double Milliseconds(Clock::duration time) {
    return std::chrono::duration<double, std::milli>(time).count();
}

void Print(const char* what, std::vector<double> values, const char* unit = "ms") {
    std::sort(values.begin(), values.end());
    std::printf("%-28s median %7.2f %-7s worst %7.2f %-7s of %zu\n", what, values[values.size() / 2], unit,
                values.back(), unit, values.size());
}

// The most that this process has held so far. What the system tells of its use includes the parent's before the start.
double Peak_megabytes() {
    std::ifstream status{"/proc/self/status"};
    for (std::string word; status >> word;) {
        if (double kilobytes = 0.0; word == "VmHWM:" && status >> kilobytes) {
            return kilobytes / 1024.0;
        }
    }
    return 0.0;
}

void Press(QWidget& widget, int key) {
    QKeyEvent press{QEvent::KeyPress, key, Qt::NoModifier};
    QApplication::sendEvent(&widget, &press);
    QKeyEvent release{QEvent::KeyRelease, key, Qt::NoModifier};
    QApplication::sendEvent(&widget, &release);
}

// Everything that was posted, paint requests among them.
void Settle() {
    for (int i = 0; i < 4; ++i) {
        QApplication::processEvents();
        QApplication::sendPostedEvents();
    }
}

int Measure_window(QApplication& application) {
    Program program;
    tarnvik::frmMain& window = program.window;
    window.Load();
    window.activateWindow();
    Settle();
    // The screen that stands in for a display is smaller than the window, part of which would not be painted.
    window.resize(tarnvik::Laid_out_size(window));
    Settle();
    Find<QAbstractButton>(window, "Opt_bolt_bulldog(1)").setChecked(true);
    auto& number = Find<tarnvik::ListBox>(window, "Comb_ant_bolt");
    number.setCurrentIndex(number.count() - 1); // six bolts
    Settle();

    Painted painted;
    application.installEventFilter(&painted);
    auto& box = Find<tarnvik::TextBox>(window, "Txt_last");
    auto& ground = Find<QWidget>(window, "ground");
    auto& utilisation = Find<QWidget>(window, "Lbl_uf");
    std::vector<double> dirty;
    std::vector<double> whole;
    std::vector<double> widgets;
    std::vector<double> asked;
    for (int i = 0; i < presses; ++i) {
        box.setFocus(Qt::OtherFocusReason);
        box.setText(QString::number(5 + i % 7));
        Settle();
        painted.widgets.clear();
        const long before = tarnvik::Allocations();
        const auto start = Clock::now();
        Press(box, Qt::Key_Tab);
        Settle();
        const auto shown = Clock::now();
        asked.push_back(static_cast<double>(tarnvik::Allocations() - before));
        widgets.push_back(static_cast<double>(painted.widgets.size()));
        const bool seen = painted.widgets.contains(&box) && painted.widgets.contains(&utilisation);
        ground.repaint();
        const auto all_shown = Clock::now();
        if (box.hasFocus() || !seen) {
            std::fprintf(stderr, "the Tab key was not taken, or its result not painted\n");
            return 1;
        }
        dirty.push_back(Milliseconds(shown - start));
        whole.push_back(Milliseconds(all_shown - start));
    }
    Print("Tab to what changed painted", dirty);
    Print("  painted", widgets, "widgets");
    Print("  operator new", asked, "calls");
    Print("and then the whole window", whole);

    // Another connection each time: three pictures that were not shown before are composed and painted.
    std::vector<double> pictures;
    Find<QAbstractButton>(window, "Cmd_type(4)").click();
    for (int row = 0; row < number.count(); ++row) {
        number.setCurrentIndex(row);
        for (int type = 0; type < 5; ++type) {
            Settle();
            painted.widgets.clear();
            const auto start = Clock::now();
            Find<QAbstractButton>(window, "Cmd_type(" + std::to_string(type) + ")").click();
            Settle();
            pictures.push_back(Milliseconds(Clock::now() - start));
            if (!painted.widgets.contains(&Find<QWidget>(window, "Pic_av_bolter"))) {
                std::fprintf(stderr, "the sketch was not painted\n");
                return 1;
            }
        }
    }
    Print("type to new pictures painted", pictures);
    std::printf("peak memory after all that %17.1f MB\n", Peak_megabytes());
    return 0;
}

// Something else to be the start of: a window of the toolkit as large, with nothing in it or with one text.
class Plain_window : public QWidget {
public:
    Plain_window(QSize size, bool text) : text_(text) { resize(size); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        if (text_) {
            QPainter{this}.drawText(20, 20, QStringLiteral("Tarnvik"));
        }
    }

private:
    bool text_;
};

// In a process of its own: from `begun`, which the parent took before it started this one, to the first paint.
void Run_to_first_paint(const QWidget& last, Clock::time_point begun) {
    Painted painted;
    qApp->installEventFilter(&painted);
    while (!painted.widgets.contains(&last)) {
        QApplication::processEvents();
    }
    QApplication::processEvents(); // the rest of the same paint, and what goes to the display
    std::printf("%.3f %.3f %.3f\n", Milliseconds(Clock::now() - begun),
                static_cast<double>(std::clock()) * 1000.0 / CLOCKS_PER_SEC, Peak_megabytes());
}

constexpr std::string_view of_window = "--start";
constexpr std::string_view of_empty = "--empty";
constexpr std::string_view of_text = "--text";

int Start_once(QApplication& application, std::string_view what, Clock::time_point begun) {
    if (what == of_window) {
        QApplication::setWindowIcon(tarnvik::Program_icon());
        tarnvik::Set_looks(application);
        Program program;
        program.window.Load();
        Run_to_first_paint(Find<QWidget>(program.window, "Lbl_uf"), begun);
        return 0;
    }
    constexpr QSize as_large{1000, 700};
    Plain_window window{as_large, what == of_text};
    window.show();
    Run_to_first_paint(window, begun);
    return 0;
}

struct Starts {
    std::string_view what;
    const char* name;
    std::vector<double> wall, processor, peak;
};

bool Start(Starts& one) {
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const auto begun = Clock::now().time_since_epoch().count();
    child.start(QCoreApplication::applicationFilePath(),
                {QString::fromUtf8(one.what.data(), static_cast<qsizetype>(one.what.size())), QString::number(begun)});
    if (!child.waitForFinished() || child.exitCode() != 0) {
        std::fprintf(stderr, "the start failed\n");
        return false;
    }
    const QList<QByteArray> measured = child.readAllStandardOutput().trimmed().split(' ');
    one.wall.push_back(measured[0].toDouble());
    one.processor.push_back(measured[1].toDouble());
    one.peak.push_back(measured[2].toDouble());
    return true;
}

// In turn, so that what else the machine does hits all of them.
int Measure_starts() {
    std::vector<Starts> all{{of_window, "start to window painted", {}, {}, {}},
                            {of_empty, "an empty one of the toolkit", {}, {}, {}},
                            {of_text, "the same with one text", {}, {}, {}}};
    for (int i = 0; i < starts; ++i) {
        for (Starts& one : all) {
            if (!Start(one)) {
                return 1;
            }
        }
    }
    std::printf("first start %34.2f ms\n", all.front().wall.front());
    const auto least = [](const std::vector<double>& values) {
        return *std::min_element(values.begin(), values.end());
    };
    for (const Starts& one : all) {
        Print(one.name, one.wall);
        Print("  of the processor", one.processor);
        Print("  peak memory", one.peak, "MB");
        std::printf("  the window's least time is %.2f of its least, of the processor %.2f\n",
                    least(all.front().wall) / least(one.wall), least(all.front().processor) / least(one.processor));
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application{argc, argv};
    tarnvik::Set_decimal_sign('.');
    if (argc == 3) {
        return Start_once(application, argv[1], Clock::time_point{Clock::duration{std::stoll(argv[2])}});
    }
    tarnvik::Set_looks(application);
    const int status = Measure_window(application);
    return status != 0 ? status : Measure_starts();
}
