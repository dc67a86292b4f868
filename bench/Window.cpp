// What the user waits for: from the Tab that leaves a box to the window painted anew, and from the start of the process
// to the first sight of the window; and how many widgets are painted, what is asked of operator new, how much memory
// the process has held at most. Without a display, unless QT_QPA_PLATFORM says otherwise.
#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QProcess>
#include <QSet>
#include <QString>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
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
    QSet<QObject*> widgets;

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

// In a process of its own: from `begun`, which the parent took before it started this one, to the first paint.
int Start_once(Clock::time_point begun) {
    Program program;
    program.window.Load();
    Painted painted;
    qApp->installEventFilter(&painted);
    auto& last = Find<QWidget>(program.window, "Lbl_uf");
    while (!painted.widgets.contains(&last)) {
        QApplication::processEvents();
    }
    QApplication::processEvents(); // the rest of the same paint, and what goes to the display
    std::printf("%.3f %.3f\n", Milliseconds(Clock::now() - begun), Peak_megabytes());
    return 0;
}

int Measure_starts() {
    std::vector<double> times;
    std::vector<double> peaks;
    for (int i = 0; i < starts; ++i) {
        QProcess child;
        child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        const auto begun = Clock::now().time_since_epoch().count();
        child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--start"), QString::number(begun)});
        if (!child.waitForFinished() || child.exitCode() != 0) {
            std::fprintf(stderr, "the start failed\n");
            return 1;
        }
        const QList<QByteArray> measured = child.readAllStandardOutput().trimmed().split(' ');
        times.push_back(measured.front().toDouble());
        peaks.push_back(measured.back().toDouble());
    }
    std::printf("first start %34.2f ms\n", times.front());
    Print("start to window painted", times);
    Print("  peak memory", peaks, "MB");
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application{argc, argv};
    QApplication::setWindowIcon(tarnvik::Program_icon());
    tarnvik::Set_looks(application);
    tarnvik::Set_decimal_sign('.');
    if (argc == 3 && std::string_view{argv[1]} == "--start") {
        return Start_once(Clock::time_point{Clock::duration{std::stoll(argv[2])}});
    }
    const int status = Measure_window(application);
    return status != 0 ? status : Measure_starts();
}
