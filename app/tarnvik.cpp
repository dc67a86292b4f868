// main() of the program.
#include <QApplication>
#include <QLocale>
#include <QMessageBox>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "calc/RuntimeFault.h"
#include "calc/Version.h"
#include "data/Folders.h"
#include "data/Startup.h"
#include "frontend/controls/Style.h"
#include "frontend/main/CommandLine.h"
#include "frontend/main/frmMain.h"
#include "frontend/painting/Icon.h"
#include "frontend/painting/Texts.h"
#include "frontend/services/QtServices.h"

namespace {

// A plain box, and the end of the program.
int Give_up(const std::string& text) {
    QMessageBox box{QMessageBox::NoIcon, QStringLiteral("Tarnvik"), tarnvik::Q(text)};
    box.exec();
    return 1;
}

// What the command line alone decides, on the terminal and without a display; nothing where the window is to open.
std::optional<int> Answer(const tarnvik::CommandLine& line) {
    if (!line.error.empty()) {
        std::cerr << "tarnvik: " << line.error << "\n";
        return 2;
    }
    if (line.help) {
        std::cout << tarnvik::Command_line_help();
        return 0;
    }
    if (line.version) {
        std::cout << "tarnvik " << TARNVIK_VERSION << "\n";
        return 0;
    }
    return std::nullopt;
}

int Run_window(int argc, char** argv, const std::string& project) {
    QApplication application{argc, argv};
    QApplication::setApplicationName(QStringLiteral("Tarn-Vik"));
    QApplication::setDesktopFileName(QStringLiteral("tarnvik"));
    QApplication::setWindowIcon(tarnvik::Program_icon());
    tarnvik::Set_looks(application);
    const QString point = QLocale::system().decimalPoint();
    tarnvik::Set_decimal_sign(point == QLatin1String(",") ? ',' : '.');

    tarnvik::ConnectionState state;
    tarnvik::QtBoxService boxes;
    tarnvik::QtFileDialogs files;
    tarnvik::QtDocumentOpener opener;
    tarnvik::QtSettingsStore settings;
    tarnvik::QtPrinterService printer;
    tarnvik::QtClock clock;
    try {
        const std::filesystem::path folder = tarnvik::U(QCoreApplication::applicationDirPath());
        tarnvik::frmMain window{
            state, {boxes, files, opener, settings, printer, clock}, {folder, folder, tarnvik::User_state_folder()}};
        window.Load();
        if (!project.empty()) {
            window.Open(project);
        }
        return QApplication::exec();
    } catch (const tarnvik::DataFileError& error) {
        return Give_up(error.Text());
    } catch (const tarnvik::RuntimeFault& fault) {
        return Give_up(tarnvik::Fault_text(fault));
    }
}

} // namespace

int main(int argc, char** argv) {
    const tarnvik::CommandLine line =
        tarnvik::Parse_command_line(std::vector<std::string>(argv + std::min(argc, 1), argv + argc));
    if (const std::optional<int> status = Answer(line)) {
        return *status;
    }
    return Run_window(argc, argv, line.project);
}
