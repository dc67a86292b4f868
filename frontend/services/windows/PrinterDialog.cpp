#include "frontend/services/PrinterDialog.h"

#include <QApplication>
#include <QPageSize>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include <utility>

#include "frontend/painting/QtPrintTarget.h"
#include "frontend/painting/Texts.h"

namespace tarnvik {

// The system's own dialog, which takes printers alone: its box "Print to file" is the way to a PDF file.
std::unique_ptr<PrintTarget> Ask_for_printer(const PrinterRequest& request) {
    if (QPrinterInfo::availablePrinterNames().isEmpty()) {
        return Ask_for_pdf(request);
    }
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    if (!printer->isValid()) { // none of them is the default one
        printer->setPrinterName(QPrinterInfo::availablePrinterNames().constFirst());
    }
    printer->setPageSize(QPageSize{QPageSize::A4}); // what the report is laid out for
    printer->setDocName(Q(request.document));
    printer->setCreator(Program_name());
    QPrintDialog dialog{printer.get(), QApplication::activeWindow()};
    dialog.setOption(QPrintDialog::PrintSelection, (request.flags & no_selection) == 0);
    dialog.setOption(QPrintDialog::PrintPageRange, false); // the report is always printed whole
    dialog.setOption(QPrintDialog::PrintToFile, true);
    if (dialog.exec() != QDialog::Accepted) {
        return nullptr;
    }
    return printer->outputFileName().isEmpty() ? Printer_target(std::move(printer)) : Ask_for_pdf(request);
}

} // namespace tarnvik
