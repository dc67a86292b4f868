// The printer dialog as the toolkit gives it, and the clock.
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>

#include <filesystem>

#include "frontend/services/QtServices.h"
#include "report/PrintReport.h"
#include "tests/support/Window.h"

namespace tarnvik::test {
namespace {

class PrinterDialog : public WindowTest {
protected:
    QtPrinterService service;
};

TEST_F(PrinterDialog, offers_pdf_and_writes_it) {
    Start();
    const std::filesystem::path file = work / "from the dialog.pdf";
    In_dialog([&](QWidget& dialog) {
        EXPECT_EQ(dialog.objectName(), QStringLiteral("PrinterDialog"));
        auto& names = Find_in<QComboBox>(dialog, "printers");
        const int pdf = names.findText(QStringLiteral("Print to File (PDF)"));
        ASSERT_GE(pdf, 0);
        names.setCurrentIndex(pdf);
        Find_in<QLineEdit>(dialog, "filename").setText(QString::fromStdString(file.string()));
        dynamic_cast<QDialog&>(dialog).accept();
    });
    const auto target = service.Show_printer({1048580, "Report"});
    ASSERT_NE(target, nullptr);
    SpacingTexts texts;
    PrintReport(*target, s, {window->Work().Shown().Pic_forbindelse, window->Work().Shown().Pic_av_bolter}, clock.Now(),
                texts);
    target->EndDoc();
    EXPECT_TRUE(Read_file(file).starts_with("%PDF"));
}

TEST_F(PrinterDialog, cancelled_gives_no_job) {
    Start();
    In_dialog([&](QWidget& dialog) { dynamic_cast<QDialog&>(dialog).reject(); });
    EXPECT_EQ(service.Show_printer({1048580, "Report"}), nullptr);
}

} // namespace
} // namespace tarnvik::test
