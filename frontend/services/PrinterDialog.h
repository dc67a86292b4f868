// The dialog that leads to a print job. Each system has its own.
#pragma once

#include <QString>

#include <memory>
#include <string>

#include "ports/PrintTarget.h"
#include "ports/Services.h"

namespace tarnvik {

// As PrinterService::Show_printer.
std::unique_ptr<PrintTarget> Ask_for_printer(const PrinterRequest& request);

// A PDF file of the user's choice, where there is no printer or none is wanted; null where the dialog was cancelled.
std::unique_ptr<PrintTarget> Ask_for_pdf(const PrinterRequest& request);

// Where the report would go as a file: named as the document is, in letters that every file system holds.
QString Pdf_path(const std::string& document);

} // namespace tarnvik
