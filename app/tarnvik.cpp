// main() of the program.
#include <QApplication>
#include <QLocale>
#include <QMessageBox>

#include "calc/RuntimeFault.h"
#include "data/Startup.h"
#include "frontend/controls/Style.h"
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

} // namespace

int main(int argc, char** argv) {
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
        tarnvik::frmMain window{state,
                                {boxes, files, opener, settings, printer, clock},
                                tarnvik::U(QCoreApplication::applicationDirPath())};
        window.Load();
        return QApplication::exec();
    } catch (const tarnvik::DataFileError& error) {
        return Give_up(error.Text());
    } catch (const tarnvik::RuntimeFault& fault) {
        return Give_up(tarnvik::Fault_text(fault));
    }
}
