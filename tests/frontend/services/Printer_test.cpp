// The printer dialog as the toolkit gives it.
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "frontend/services/PrinterDialog.h"
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

TEST_F(PrinterDialog, a_file_dialog_leads_to_pdf_where_there_is_no_printer) {
    Start();
    const std::filesystem::path file = work / "på valgt sted"; // gets the ending
    In_dialog([&](QWidget& dialog) {
        EXPECT_EQ(dialog.objectName(), QStringLiteral("PdfDialog"));
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Skriv ut"));
        EXPECT_EQ(Find_in<QLineEdit>(dialog, "fileNameEdit").text(), QStringLiteral("Hall A-B.pdf"));
        Find_in<QLineEdit>(dialog, "fileNameEdit").setText(QString::fromStdString(file.string()));
        dynamic_cast<QDialog&>(dialog).accept();
    });
    const auto target = Ask_for_pdf({1048580, "Hall A/B", "Skriv ut"});
    ASSERT_NE(target, nullptr);
    target->EndDoc();
    EXPECT_TRUE(Read_file(file.string() + ".pdf").starts_with("%PDF"));
    In_dialog([&](QWidget& dialog) { dynamic_cast<QDialog&>(dialog).reject(); });
    EXPECT_EQ(Ask_for_pdf({1048580, "Hall A/B"}), nullptr);
}

TEST_F(PrinterDialog, starts_with_a_file_named_as_the_document_is) {
    Start();
    for (const auto& [document, name] : std::vector<std::pair<std::string, std::string>>{
             {"Takstol på høyde, node v1.2", "Takstol på høyde, node v1.2"},
             {"Hall A/B \\ <1>:\"2\"|?*\n", "Hall A-B - -1---2-----"},
             {"../../etc", "..-..-etc"},
             {"", "Tarnvik"},
             {std::string(300, 'x'), std::string(80, 'x')}}) {
        In_dialog([&, wanted = name](QWidget& dialog) {
            EXPECT_EQ(Text_of(Find_in<QLineEdit>(dialog, "filename")),
                      (std::filesystem::current_path() / (wanted + ".pdf")).string());
            dynamic_cast<QDialog&>(dialog).reject();
        });
        service.Show_printer({1048580, document});
    }
}

TEST_F(PrinterDialog, offers_no_choice_of_pages) {
    Start();
    In_dialog([&](QWidget& dialog) {
        for (auto* button : dialog.findChildren<QPushButton*>()) {
            if (button->text().contains(QLatin1String("Options"))) {
                button->click(); // shows more of the dialog
            }
        }
        Settle();
        EXPECT_TRUE(Find_in<QWidget>(dialog, "copies").isVisible());
        for (const char* choice : {"printAll", "printRange", "from", "to", "pagesRadioButton", "pagesLineEdit",
                                   "printCurrentPage", "printSelection", "pageSetCombo"}) {
            auto& widget = Find_in<QWidget>(dialog, choice);
            EXPECT_TRUE(widget.visibleRegion().isEmpty()) << choice;
            EXPECT_FALSE(widget.isEnabled()) << choice;
        }
        dynamic_cast<QDialog&>(dialog).reject();
    });
    service.Show_printer({1048580, "Report"});
}

// From the window's command to the file, by the real dialog.
class PrintToFile : public PrinterDialog {
protected:
    PrintToFile() { printer_service = &service; }
    void Print_to(
        const std::filesystem::path& file, const std::function<void()>& meanwhile = [] {}) {
        Menu("mnuprint", [&](QWidget& dialog) {
            Find_in<QLineEdit>(dialog, "filename").setText(QString::fromStdString(file.string()));
            dynamic_cast<QDialog&>(dialog).accept();
            meanwhile();
        });
    }
};

TEST_F(PrintToFile, writes_it) {
    Start();
    Print_to(work / "report.pdf");
    EXPECT_TRUE(Read_file(work / "report.pdf").starts_with("%PDF"));
    EXPECT_TRUE(boxes.messages.empty());
}

class PrintToLostFile : public PrintToFile, public testing::WithParamInterface<const char*> {};

TEST_P(PrintToLostFile, is_told) {
    Start(GetParam());
    const std::filesystem::path stick = work / "stick";
    std::filesystem::create_directory(stick);
    Print_to(stick / "report.pdf", [&] { std::filesystem::remove(stick); });
    EXPECT_EQ(boxes.messages, (Messages{{"User pressed the Cancel button", 48}}));
    Answer();
    EXPECT_FALSE(window->isVisible());
}

INSTANTIATE_TEST_SUITE_P(Languages, PrintToLostFile, testing::Values("Eng", "Nor"));

// A print system of the test's own, with one printer.
class PrintSystem : public PrintToFile {
protected:
    ~PrintSystem() override {
        server_.terminate();
        server_.waitForFinished();
    }
    // False where it is not installed.
    bool Start_printer() {
        setenv("PATH", (std::string{getenv("PATH")} + ":/usr/sbin").c_str(), 1);
        const QString daemon = QStandardPaths::findExecutable(QStringLiteral("cupsd"));
        if (daemon.isEmpty() || QStandardPaths::findExecutable(QStringLiteral("lpadmin")).isEmpty()) {
            return false;
        }
        const std::string root = folder_.Path().string();
        for (const char* part : {"conf", "spool", "cache", "run"}) {
            std::filesystem::create_directory(folder_ / part);
        }
        Write_file(folder_ / "cupsd.conf", "Listen " + std::string{getenv("CUPS_SERVER")} +
                                               "\nBrowsing Off\n<Location />\nAllow all\n</Location>\n"
                                               "<Location /admin>\nAllow all\n</Location>\n"
                                               "<Policy default>\n<Limit All>\nAllow all\n</Limit>\n</Policy>\n");
        std::string files = "FileDevice Yes\nServerRoot " + root + "/conf\nRequestRoot " + root + "/spool\nTempDir " +
                            root + "/spool\nCacheDir " + root + "/cache\nStateDir " + root + "/run\n";
        for (const char* log : {"AccessLog ", "ErrorLog ", "PageLog "}) {
            files += log + root + "/log\n";
        }
        Write_file(folder_ / "cups-files.conf", files);
        server_.start(daemon, {QStringLiteral("-f"), QStringLiteral("-c"), QString::fromStdString(root + "/cupsd.conf"),
                               QStringLiteral("-s"), QString::fromStdString(root + "/cups-files.conf")});
        for (int i = 0; i < 100; ++i) {
            if (Run("lpadmin", {"-p", "Paper", "-E", "-v", "file:/dev/null"})) {
                return Run("lpadmin", {"-d", "Paper"});
            }
            QTest::qWait(50);
        }
        return false;
    }
    static bool Run(const char* program, const QStringList& arguments) {
        QProcess process;
        process.start(QLatin1String(program), arguments);
        return process.waitForFinished() && process.exitCode() == 0;
    }
    void Print_on_paper(const std::function<void()>& meanwhile) {
        Menu("mnuprint", [&](QWidget& dialog) {
            EXPECT_EQ(Text_of(Find_in<QComboBox>(dialog, "printers")), "Paper");
            meanwhile();
            dynamic_cast<QDialog&>(dialog).accept();
        });
    }

private:
    TemporaryFolder folder_;
    QProcess server_;
};

// What is done to the printer while the dialog is open, and what the user is told.
struct Mishap {
    const char* name;
    const char* command;
    std::size_t messages;
};
class PrinterThatFails : public PrintSystem, public testing::WithParamInterface<Mishap> {};

TEST_P(PrinterThatFails, is_told) {
    if (!Start_printer()) {
        GTEST_SKIP() << "no print system could be started (Debian packages cups-daemon, cups-client)";
    }
    Start();
    QStringList command = QString::fromLatin1(GetParam().command).split(QLatin1Char(' '));
    const QByteArray program = command.takeFirst().toLatin1();
    Print_on_paper([&] { EXPECT_TRUE(Run(program.constData(), command)); });
    EXPECT_EQ(boxes.messages,
              Messages(GetParam().messages, RecordingBoxes::Message{"User pressed the Cancel button", 48}));
    EXPECT_TRUE(window->isVisible());
}

INSTANTIATE_TEST_SUITE_P(Mishaps, PrinterThatFails,
                         testing::Values(Mishap{"none", "lpstat -p", 0}, Mishap{"gone", "lpadmin -x Paper", 1},
                                         Mishap{"takes_no_jobs", "cupsreject Paper", 1}),
                         [](const auto& mishap) { return std::string{mishap.param.name}; });

} // namespace
} // namespace tarnvik::test
