// main() of the window's tests: the offscreen platform and a home of its own, so that plain ctest passes anywhere; an
// unexpected warning of the toolkit fails the test in which it comes.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <cstdlib>
#include <string>
#include <vector>

#include "calc/Text.h"
#include "frontend/controls/Style.h"
#include "platform/Path.h"
#include "tests/support/Fakes.h"
#include "tests/support/Home.h"

namespace tarnvik::test {

std::vector<std::string>& Warnings() {
    static std::vector<std::string> warnings;
    return warnings;
}

} // namespace tarnvik::test

namespace {

// What the offscreen platform says of itself.
bool Expected(const QString& text) {
    return text.startsWith(QLatin1String("This plugin does not support")) ||
           text.startsWith(QLatin1String("QFontDatabase: Cannot find font directory")); // the faces are in the program
}

void Keep_message(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (type != QtDebugMsg && type != QtInfoMsg && !Expected(text)) {
        tarnvik::test::Warnings().push_back(text.toStdString());
    }
    if (type == QtFatalMsg) {
        std::abort();
    }
}

// One screen that the window fits on, unless TARNVIK_TEST_SCREEN names another size such as 1366x768, of the resolution
// that TARNVIK_TEST_DPI names, or QT_FONT_DPI, which the offscreen platform does not heed by itself.
bool Use_screen(const QTemporaryDir& home) {
    if (qEnvironmentVariableIsSet("TARNVIK_TEST_DPI")) {
        qputenv("QT_FONT_DPI", qgetenv("TARNVIK_TEST_DPI"));
    }
    const int dpi = qEnvironmentVariableIsSet("QT_FONT_DPI") ? qEnvironmentVariableIntValue("QT_FONT_DPI") : 96;
    const QStringList size =
        qEnvironmentVariable("TARNVIK_TEST_SCREEN", QStringLiteral("3840x2160")).split(QLatin1Char('x'));
    const QString path = home.filePath(QStringLiteral("screen.json"));
    QFile file{path};
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    file.write(QStringLiteral(R"({"screens": [{"name": "test", "x": 0, "y": 0, "width": %2, "height": %3,
                               "logicalDpi": %1, "logicalBaseDpi": %1, "dpr": 1}]})")
                   .arg(QString::number(dpi), size.constFirst(), size.constLast())
                   .toUtf8());
    qputenv("QT_QPA_PLATFORM",
            "offscreen:configfile=screen.json"); // in the current folder: a drive's colon would end it
    return true;
}

class NoWarnings : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo& /*info*/) override { tarnvik::test::Warnings().clear(); }
    void OnTestEnd(const testing::TestInfo& /*info*/) override {
        for (const std::string& warning : tarnvik::test::Warnings()) {
            ADD_FAILURE() << "unexpected warning of the toolkit: " << warning;
        }
    }
};

} // namespace

int main(int argc, char** argv) {
    qputenv("LANG", "C.UTF-8");
    qputenv("LC_ALL", "C.UTF-8");
    qunsetenv("QT_SCALE_FACTOR");
    qunsetenv("QT_STYLE_OVERRIDE");
    const QTemporaryDir home;
    if (!home.isValid() || !tarnvik::test::Move_home(tarnvik::Path_of(home.path().toStdString()))) {
        return 1;
    }
    qputenv("CUPS_SERVER",
            QFile::encodeName(home.filePath(QStringLiteral("cups.sock")))); // none of the machine's printers
    if (!Use_screen(home)) {
        return 1;
    }
    qInstallMessageHandler(Keep_message);
    testing::InitGoogleTest(&argc, argv);
    const QString folder = QDir::currentPath();
    QDir::setCurrent(home.path());
    QApplication application{argc, argv};
    QDir::setCurrent(folder);
    QApplication::setApplicationName(QStringLiteral("Tarn-Vik"));
    QApplication::setQuitOnLastWindowClosed(false);
    tarnvik::Set_looks(application);
    tarnvik::Set_decimal_sign('.');
    testing::UnitTest::GetInstance()->listeners().Append(new NoWarnings);
    return RUN_ALL_TESTS();
}
