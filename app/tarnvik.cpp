// main() of the program.
#include <QApplication>
#include <QMessageBox>

#include <filesystem>
#include <iostream>
#include <optional>
#include <string>

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
#include "platform/Machine.h"
#include "platform/Path.h"
#include "session/SystemClock.h"

namespace {

namespace fs = std::filesystem;

// A plain box, and the end of the program.
int Give_up(const std::string& text) {
    QMessageBox box{QMessageBox::NoIcon, QStringLiteral("Tarnvik"), tarnvik::Q(text)};
    box.exec();
    return 1;
}

// What the command line alone decides, on the terminal and without a display; nothing where the window is to open.
std::optional<int> Answer(const tarnvik::CommandLine& line, const fs::path& program) {
    if (!line.error.empty() || line.help || line.version) {
        tarnvik::Attach_terminal();
    }
    if (!line.error.empty()) {
        std::cerr << "tarnvik: " << line.error << "\n";
        return 2;
    }
    if (line.help) {
        std::cout << tarnvik::Command_line_help(tarnvik::Find_data_folder(program, tarnvik::Path_of(line.data)).folder);
        return 0;
    }
    if (line.version) {
        std::cout << "tarnvik " << TARNVIK_VERSION << "\n";
        return 0;
    }
    return std::nullopt;
}

// The user's own data folder is filled at the first start; where that cannot be, the delivered files are read.
tarnvik::Folders Open_folders(const fs::path& program, const std::string& asked) {
    const tarnvik::DataFolder data = tarnvik::Find_data_folder(program, tarnvik::Path_of(asked));
    bool filled = false;
    try {
        filled = tarnvik::Fill_data_folder(data);
    } catch (const fs::filesystem_error&) { // NOLINT(bugprone-empty-catch): Readable_folder knows
    }
    return {tarnvik::Readable_folder(data), program, tarnvik::User_state_folder(), filled};
}

int Run_window(int argc, char** argv, const tarnvik::CommandLine& line, const fs::path& program) {
    QApplication application{argc, argv};
    QApplication::setApplicationName(QStringLiteral("Tarn-Vik"));
    QApplication::setDesktopFileName(QStringLiteral("tarnvik"));
    QApplication::setWindowIcon(tarnvik::Program_icon());
    tarnvik::Set_looks(application);
    tarnvik::Set_decimal_sign(tarnvik::System_decimal_sign());

    tarnvik::ConnectionState state;
    tarnvik::QtBoxService boxes;
    tarnvik::QtFileDialogs files;
    tarnvik::QtDocumentOpener opener;
    tarnvik::QtSettingsStore settings;
    tarnvik::QtPrinterService printer;
    tarnvik::SystemClock clock;
    try {
        tarnvik::frmMain window{
            state, {boxes, files, opener, settings, printer, clock}, Open_folders(program, line.data)};
        window.Load();
        if (!line.project.empty()) {
            window.Open(line.project);
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
    const tarnvik::CommandLine line = tarnvik::Parse_command_line(tarnvik::Arguments(argc, argv));
    const fs::path program = tarnvik::Program_path(argv[0]).parent_path();
    if (const std::optional<int> status = Answer(line, program)) {
        return *status;
    }
    return Run_window(argc, argv, line, program);
}
