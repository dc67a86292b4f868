#include "frontend/services/PrinterDialog.h"

#include <QApplication>
#include <QPageSize>
#include <QPrintDialog>
#include <QPrinter>
#include <QWidget>

#include <utility>

#include "frontend/painting/QtPrintTarget.h"
#include "frontend/painting/Texts.h"
#include "platform/Path.h"

namespace tarnvik {

std::unique_ptr<PrintTarget> Ask_for_printer(const PrinterRequest& request) {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setPageSize(QPageSize{QPageSize::A4}); // what the report is laid out for
    printer->setDocName(Q(request.document));
    printer->setCreator(Program_name());
    const QPrinter::OutputFormat format = printer->outputFormat(); // of the default printer, PDF where there is none
    printer->setOutputFileName(Pdf_path(request.document));        // makes it PDF
    printer->setOutputFormat(format);
    QPrintDialog dialog{printer.get(), QApplication::activeWindow()};
    dialog.setObjectName(QStringLiteral("PrinterDialog"));
    dialog.setWindowTitle(Q(request.caption));
    dialog.setOption(QPrintDialog::PrintSelection, (request.flags & no_selection) == 0);
    // The report is always printed whole. The box for printing to a file, which the flags hide, is the entry "Print to
    // File (PDF)" of the list of printers here: it stays, as the printer of a machine without one.
    dialog.setOption(QPrintDialog::PrintPageRange, false);
    // The toolkit shows the choice of pages whenever it shows the dialog, whatever the option says.
    if (auto* pages = dialog.findChild<QWidget*>(QStringLiteral("gbPrintRange"))) {
        pages->setEnabled(false);
        pages->setFixedSize(0, 0);
    }
    dialog.setOption(QPrintDialog::PrintToFile, true);
    if (dialog.exec() != QDialog::Accepted) {
        return nullptr;
    }
    if (printer->outputFormat() == QPrinter::PdfFormat) {
        return Pdf_target(Path_of(U(printer->outputFileName())), request.document, printer->pageLayout());
    }
    return Printer_target(std::move(printer));
}

} // namespace tarnvik
