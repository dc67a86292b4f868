// Reports on paper: what is in a PDF file, and where. The tools of poppler read it where they are installed.
#include <array>
#include <filesystem>

#include <QBuffer>
#include <QGuiApplication>
#include <QPageSize>
#include <QPdfWriter>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include "calc/Version.h"
#include "frontend/painting/QtPrintTarget.h"
#include "frontend/painting/Texts.h"
#include "tests/support/Fakes.h"
#include "tests/support/Files.h"
#include "tests/support/Report.h"

namespace tarnvik {
namespace {

using namespace test;

// What a program prints; nothing where it is not installed.
std::optional<QString> Output_of(const char* program, const QStringList& arguments) {
    const QString path = QStandardPaths::findExecutable(QLatin1String(program));
    if (path.isEmpty()) {
        return std::nullopt;
    }
    QProcess process;
    process.start(path, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program;
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

#define READ_WITH(variable, program, ...)                                                                              \
    const std::optional<QString> variable = Output_of(program, __VA_ARGS__);                                           \
    if (!variable) {                                                                                                   \
        GTEST_SKIP() << program " is not installed (Debian package poppler-utils)";                                    \
    }

// The most that a report holds: six bolts with connectors, single shear.
struct Full : Connection {
    explicit Full(std::string_view lang) : Connection(lang) {
        Pick_connector(*s, 1);
        s->Bolt_index = 5;
        s->Ant_index = 4;
        s->Prosjekt = "Takstol på høyde";
        EXPECT_EQ(Pass(), PassEnd::normal);
    }
};

class Pdf : public testing::TestWithParam<const char*> {
protected:
    void Print(Connection& connection) {
        const auto target = Pdf_target(file, "Report");
        PrintReport(*target, *connection.s, connection.Pictures(), moment, texts);
        target->EndDoc(); // a second one has no effect
    }

    TemporaryFolder folder;
    std::filesystem::path file = folder / "report.pdf";
    QString name = Q(file.string());
    SpacingTexts texts;
};

TEST_P(Pdf, two_pages_of_a4_below_150_kB) {
    Full connection{GetParam()};
    Print(connection);
    EXPECT_LT(std::filesystem::file_size(file), 150'000U);
    READ_WITH(info, "pdfinfo", {name});
    EXPECT_TRUE(info->contains(QRegularExpression{QStringLiteral("Pages: +2\n")})) << info->toStdString();
    EXPECT_TRUE(
        info->contains(QRegularExpression{QStringLiteral("Page size: +59[45][.0-9]* x 84[12][.0-9]* pts \\(A4\\)")}))
        << info->toStdString();
}

TEST_P(Pdf, every_printed_text_is_found_in_it) {
    Full connection{GetParam()};
    Print(connection);
    Recorder recorder;
    PrintReport(recorder, *connection.s, connection.Pictures(), moment, texts);
    for (int page = 1; page <= 2; ++page) {
        READ_WITH(text, "pdftotext", {"-raw", "-f", QString::number(page), "-l", QString::number(page), name, "-"});
        for (const PrintCall& call : Prints(recorder)) {
            if (call.page != page) {
                continue;
            }
            for (const QString& word : Q(call.text).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
                EXPECT_TRUE(text->contains(word)) << word.toStdString() << " on page " << page;
            }
        }
    }
}

// EN 1995-1-1, (8.6 a) to (8.6 f): what a reader marks and copies are the letters themselves.
TEST_P(Pdf, equations_are_found_in_it) {
    Full connection{GetParam()};
    Print(connection);
    READ_WITH(text, "pdftotext", {"-raw", "-f", "1", "-l", "1", name, "-"});
    EXPECT_EQ(text->count(QStringLiteral("fh1k t1 d")), 3) << text->toStdString(); // a, c, d
    EXPECT_EQ(text->count(QStringLiteral("fh2k t2 d")), 1);                        // b
    EXPECT_EQ(text->count(QStringLiteral("Fax,Rk")), 4);                           // c to f
    EXPECT_EQ(text->count(QStringLiteral("My,Rk")), 3);                            // d to f
    EXPECT_EQ(text->count(QChar{0x221A}), 5);                                      // roots: one in c, d, e, two in f
    EXPECT_EQ(text->count(QChar{0x03B2}), 5 + 6 + 6 + 2);
    EXPECT_EQ(text->count(QChar{0x2212}), 3); // minus signs in c, d, e
}

TEST_P(Pdf, fonts_are_embedded_and_nothing_is_a_bitmap) {
    Full connection{GetParam()};
    Print(connection);
    READ_WITH(fonts, "pdffonts", {name});
    const QStringList lines = fonts->split(QLatin1Char('\n'), Qt::SkipEmptyParts).mid(2);
    EXPECT_GE(lines.size(), 4);
    for (const QString& line : lines) {
        // The last columns are: embedded, subset, with a map to Unicode, object.
        const QStringList columns = line.simplified().split(QLatin1Char(' '));
        EXPECT_EQ(columns[columns.size() - 5].toStdString(), "yes") << line.toStdString();
        EXPECT_EQ(columns[columns.size() - 3].toStdString(), "yes") << line.toStdString();
    }
    if (const auto images = Output_of("pdfimages", {"-list", name})) {
        EXPECT_EQ(images->split(QLatin1Char('\n'), Qt::SkipEmptyParts).size(), 2) << images->toStdString();
    }
    // A whole font would be hundreds of kB: what is embedded are the letters in use.
    EXPECT_LT(std::filesystem::file_size(file), 150'000U);
}

INSTANTIATE_TEST_SUITE_P(Languages, Pdf, testing::Values("Eng", "Nor"));

class PdfFile : public Pdf {};

// A unit is a millimetre, margins are 5 and 3.5 mm, a point is 25.4/72 mm; words start at the top left of their box.
TEST_F(PdfFile, words_stand_where_they_are_printed) {
    const auto target = Pdf_target(file, "Places");
    target->ScaleLeft(0.0F);
    target->ScaleTop(290.0F);
    target->ScaleWidth(200.0F);
    target->ScaleHeight(-290.0F);
    target->FontName("Times New Roman");
    target->FontSize(9.0F);
    struct Place {
        const char* word;
        float x, y;
    };
    const std::array places{Place{"Topleft", 0.0F, 290.0F}, Place{"Middle", 100.0F, 145.5F},
                            Place{"Low", 15.0F, 12.0F}};
    for (const Place& place : places) {
        target->CurrentX(place.x);
        target->CurrentY(place.y);
        target->Print(place.word);
    }
    target->EndDoc();
    READ_WITH(boxes, "pdftotext", {"-bbox", name, "-"});
    for (const Place& place : places) {
        const QRegularExpression word{
            QStringLiteral("xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\"[^>]*>%1<").arg(QLatin1String(place.word))};
        const auto match = word.match(*boxes);
        ASSERT_TRUE(match.hasMatch()) << boxes->toStdString();
        const double x = (5.0 + static_cast<double>(place.x)) * 72.0 / 25.4;
        const double y = (3.5 + 290.0 - static_cast<double>(place.y)) * 72.0 / 25.4;
        // A tenth of a millimetre: the page is 595 points wide and not 595.28, texts stand on pixels of 300 to the
        // inch.
        EXPECT_NEAR(match.captured(1).toDouble(), x, 0.3) << place.word;
        EXPECT_NEAR(match.captured(2).toDouble(), y, 0.3) << place.word;
    }
}

TEST_F(PdfFile, texts_are_as_wide_as_the_recorder_says) {
    const auto target = Pdf_target(file, "Widths");
    Recorder recorder;
    for (PrintTarget* each : {target.get(), static_cast<PrintTarget*>(&recorder)}) {
        each->ScaleWidth(200.0F);
        each->ScaleHeight(-290.0F);
    }
    for (const char* font : {"arial", "Times New Roman"}) {
        for (const float size : {7.0F, 8.0F, 9.0F, 11.0F}) {
            target->FontName(font);
            target->FontSize(size);
            recorder.FontName(font);
            recorder.FontSize(size);
            for (const char* text : {"Date:", "330 Kg/m3", "Halvårsla", "Tosidig", "AVAVAV To. fi fl", "", "  "}) {
                // The page of A4 is 210 mm and a pixel of 300 to the inch at most: 0.02 % of a width.
                EXPECT_NEAR(target->TextWidth(text), recorder.TextWidth(text), 0.01)
                    << font << ' ' << size << ' ' << text;
            }
        }
    }
}

TEST_F(PdfFile, appears_when_the_document_has_ended) {
    {
        const auto target = Pdf_target(file, "Dropped");
        target->Print("something");
        EXPECT_FALSE(std::filesystem::exists(file));
    }
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(PdfFile, a_report_that_fails_leaves_the_former_file) {
    Write_file(file, "the former one");
    Full connection{"Eng"};
    connection.s->Mat_index = 500;
    EXPECT_EQ(Fault_of([&] { Print(connection); }), fault_subscript);
    EXPECT_EQ(Read_file(file), "the former one");
}

TEST_F(PdfFile, a_shorter_one_leaves_nothing_of_the_longer) {
    Write_file(file, std::string(1'000'000, 'x'));
    Full connection{"Eng"};
    Print(connection);
    EXPECT_LT(std::filesystem::file_size(file), 300'000U);
    EXPECT_TRUE(Read_file(file).starts_with("%PDF"));
}

TEST_F(PdfFile, a_missing_folder_is_a_fault) {
    file = folder / "no" / "report.pdf";
    Full connection{"Eng"};
    EXPECT_EQ(Fault_of([&] { Print(connection); }), fault_path_not_found);
}

TEST_F(PdfFile, another_paper_takes_the_same_layout) {
    const QPageLayout letter{QPageSize{QPageSize::Letter}, QPageLayout::Portrait, {}};
    Full connection{"Eng"};
    const auto target = Pdf_target(file, "Letter", letter);
    PrintReport(*target, *connection.s, connection.Pictures(), moment, texts);
    READ_WITH(info, "pdfinfo", {name});
    EXPECT_TRUE(info->contains(QLatin1String("612 x 792"))) << info->toStdString();
    READ_WITH(text, "pdftotext", {"-raw", name, "-"});
    EXPECT_TRUE(text->contains(QLatin1String("Kontroll = P / ( Rd_bolt + Rd_con.)")));
}

TEST_F(PdfFile, a_printer_gets_both_pages) {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(name);
    printer->setPageSize(QPageSize{QPageSize::A4});
    Full connection{"Nor"};
    {
        const auto target = Printer_target(std::move(printer));
        PrintReport(*target, *connection.s, connection.Pictures(), moment, texts);
        target->EndDoc();
    }
    READ_WITH(info, "pdfinfo", {name});
    EXPECT_TRUE(info->contains(QRegularExpression{QStringLiteral("Pages: +2\n")})) << info->toStdString();
}

TEST_F(PdfFile, has_title_and_creator) {
    Pdf_target(file, "Høyhall, node 7")->EndDoc();
    READ_WITH(info, "pdfinfo", {name});
    EXPECT_TRUE(info->contains(QRegularExpression{QStringLiteral("Title: +Høyhall, node 7\n")})) << info->toStdString();
    EXPECT_TRUE(info->contains(QRegularExpression{QStringLiteral("Creator: +Tarnvik " TARNVIK_VERSION "\n")}))
        << info->toStdString();
}

// A printer that takes one page.
class OnePage : public QPdfWriter {
public:
    using QPdfWriter::QPdfWriter;
    bool newPage() override { return false; }
};

TEST_F(PdfFile, a_page_that_cannot_begin_is_a_fault) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QtPrintTarget target{std::make_unique<OnePage>(&bytes), [](QPagedPaintDevice&) { ADD_FAILURE() << "was sent"; }};
    Full connection{"Eng"};
    EXPECT_EQ(Fault_of([&] { PrintReport(target, *connection.s, connection.Pictures(), moment, texts); }),
              fault_path_access);
}

TEST_F(PdfFile, a_job_that_cannot_be_sent_is_a_fault) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QtPrintTarget target{std::make_unique<QPdfWriter>(&bytes), [](QPagedPaintDevice&) { Raise(fault_disk_full, "x"); }};
    EXPECT_EQ(Fault_of([&] { target.EndDoc(); }), fault_disk_full);
    target.EndDoc(); // a second one has no effect
}

TEST_F(PdfFile, a_printer_that_cannot_start_is_a_fault) {
    auto printer = std::make_unique<QPrinter>();
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(QStringLiteral("/no/such/folder/report.pdf"));
    EXPECT_EQ(Fault_of([&] { Printer_target(std::move(printer)); }), fault_path_access);
    Warnings().clear();
}

} // namespace
} // namespace tarnvik
