#include "frontend/services/PrinterDialog.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QRegularExpression>

#include "frontend/painting/QtPrintTarget.h"
#include "frontend/painting/Texts.h"
#include "platform/Path.h"

namespace tarnvik {

QString Pdf_path(const std::string& document) {
    constexpr qsizetype longest = 80; // letters, which never take 255 bytes together
    QString name = Q(document);
    static const QRegularExpression held_nowhere{QStringLiteral(R"([/\\:*?"<>|\x00-\x1f\x7f])")};
    name = name.replace(held_nowhere, QStringLiteral("-")).left(longest).trimmed();
    return QDir::current().filePath((name.isEmpty() ? QStringLiteral("Tarnvik") : name) + QStringLiteral(".pdf"));
}

std::unique_ptr<PrintTarget> Ask_for_pdf(const PrinterRequest& request) {
    QFileDialog dialog{QApplication::activeWindow()};
    dialog.setObjectName(QStringLiteral("PdfDialog"));
    dialog.setWindowTitle(Q(request.caption));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilter(QStringLiteral("PDF (*.pdf)"));
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    const QFileInfo start{Pdf_path(request.document)};
    dialog.setDirectory(start.absoluteDir());
    dialog.selectFile(start.fileName());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return nullptr;
    }
    return Pdf_target(Path_of(U(dialog.selectedFiles().constFirst())), request.document);
}

} // namespace tarnvik
