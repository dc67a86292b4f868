#include "frontend/painting/QtPrintTarget.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QLibrary>
#include <QPageSize>
#include <QPdfWriter>
#include <QPrinter>

#include <algorithm>

#include "calc/RuntimeFault.h"
#include "calc/Version.h"
#include "data/SafeWrite.h"
#include "frontend/painting/EquationPictures.h"
#include "frontend/painting/Faces.h"
#include "frontend/painting/PictureStore.h"
#include "frontend/painting/Texts.h"
#include "report/PrintReport.h"

namespace tarnvik {

namespace {

// Margins around the printable area, mm: on A4 they leave 200 by 290 mm. A printer that needs more gets more.
constexpr double side_margin = 5.0;
constexpr double end_margin = 3.5;

constexpr double millimetres_per_inch = 25.4;
constexpr double points_per_inch = 72.0;

// The device's pixels: the frame's lines of 6 are then 0.5 mm and those of a table 0.08 mm wide, on every device.
constexpr int device_dots_per_inch = 300;

// Texts are measured with letters of this size, whose widths are those of the font's own drawing.
constexpr int measuring_pixels = 2048;

// Whether the print system took the last job. The toolkit sends the job and keeps the answer to itself, so that a
// printer that is gone, or takes no jobs, would go unnoticed.
bool Job_taken() {
    using LastError = int (*)();
    const auto last_error = reinterpret_cast<LastError>(QLibrary::resolve(QStringLiteral("cups"), 2, "cupsLastError"));
    constexpr int first_failure = 0x0400; // of the status codes of the Internet Printing Protocol
    return last_error == nullptr || last_error() < first_failure;
}

} // namespace

QString Program_name() {
    return QStringLiteral("Tarnvik " TARNVIK_VERSION);
}

QtPrintTarget::QtPrintTarget(std::unique_ptr<QPagedPaintDevice> device, std::function<void(QPagedPaintDevice&)> finish)
    : device_(std::move(device)), finish_(std::move(finish)) {
    if (!painter_.begin(device_.get())) {
        Raise(fault_path_access, "QtPrintTarget");
    }
    dots_per_inch_ = device_->logicalDpiX();
    QPageLayout layout = device_->pageLayout();
    layout.setUnits(QPageLayout::Millimeter);
    const QMarginsF least = layout.minimumMargins();
    const QRectF area =
        layout.fullRect(QPageLayout::Millimeter)
            .marginsRemoved({std::max(side_margin, least.left()), std::max(end_margin, least.top()),
                             std::max(side_margin, least.right()), std::max(end_margin, least.bottom())});
    const double pixels = dots_per_inch_ / millimetres_per_inch;
    area_ = {area.topLeft() * pixels, area.size() * pixels};
}

QtPrintTarget::~QtPrintTarget() {
    if (!ended_) {
        if (auto* printer = dynamic_cast<QPrinter*>(device_.get())) {
            printer->abort();
        }
        painter_.end();
    }
}

QPointF QtPrintTarget::Mapped(float x, float y) const {
    return {area_.left() + (static_cast<double>(x) - scale_left_) / scale_width_ * area_.width(),
            area_.top() + (static_cast<double>(y) - scale_top_) / scale_height_ * area_.height()};
}

QFont QtPrintTarget::Font() const {
    QFont font{Family_for(font_name_)};
    font.setBold(bold_);
    font.setItalic(italic_);
    // The letters' own widths and nothing else: no hinting, no kerning, no ligatures, which a search would not find.
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setKerning(false);
    font.setStyleStrategy(QFont::PreferNoShaping);
    return font;
}

void QtPrintTarget::Line(float x1, float y1, float x2, float y2) {
    painter_.setPen(QPen{Qt::black, static_cast<double>(draw_width_), Qt::SolidLine, Qt::SquareCap});
    painter_.drawLine(QLineF{Mapped(x1, y1), Mapped(x2, y2)});
}

void QtPrintTarget::PaintPicture(std::string_view picture, float x, float y, float width, float height) {
    const QRectF room = QRectF{Mapped(x, y), Mapped(x + width, y + height)}.normalized();
    if (const auto row = Equation_row(picture)) {
        // Letters as large as those of the text, on its line.
        const double letter = font_size_ / points_per_inch * dots_per_inch_;
        Print_equation(picture, painter_, room, letter, Mapped(x, static_cast<float>(*row)).y() + Ascent());
        return;
    }
    constexpr double screen_dots_per_inch = 96.0;
    Paint_picture(picture, painter_, room, dots_per_inch_ / screen_dots_per_inch);
}

double QtPrintTarget::Ascent() const {
    QFont font = Font();
    font.setPixelSize(measuring_pixels);
    return QFontMetricsF{font}.ascent() / measuring_pixels * font_size_ / points_per_inch * dots_per_inch_;
}

float QtPrintTarget::TextWidth(std::string_view text) {
    QFont font = Font();
    font.setPixelSize(measuring_pixels);
    const double em = QFontMetricsF{font}.horizontalAdvance(Q(text)) / measuring_pixels;
    const double pixels = em * font_size_ / points_per_inch * dots_per_inch_;
    return static_cast<float>(pixels * scale_width_ / area_.width());
}

void QtPrintTarget::Print(std::string_view text) {
    QFont font = Font();
    font.setPointSizeF(font_size_);
    painter_.setFont(font);
    painter_.setPen(Qt::black);
    painter_.drawText(Mapped(x_, y_) + QPointF{0.0, Ascent()}, Q(text));
}

void QtPrintTarget::NewPage() {
    if (!device_->newPage()) {
        Raise(fault_path_access, "NewPage");
    }
}

void QtPrintTarget::EndDoc() {
    if (ended_) {
        return;
    }
    if (!painter_.end()) {
        Raise(fault_path_access, "EndDoc");
    }
    ended_ = true;
    finish_(*device_);
}

std::unique_ptr<PrintTarget> Pdf_target(const std::filesystem::path& file, const std::string& title,
                                        const std::optional<QPageLayout>& layout) {
    auto bytes = std::make_shared<QBuffer>();
    bytes->open(QIODevice::WriteOnly);
    auto writer = std::make_unique<QPdfWriter>(bytes.get());
    writer->setResolution(device_dots_per_inch);
    writer->setPageSize(layout ? layout->pageSize() : QPageSize{QPageSize::A4});
    writer->setPageOrientation(layout ? layout->orientation() : QPageLayout::Portrait);
    writer->setPageMargins({});
    writer->setTitle(Q(title));
    writer->setCreator(Program_name());
    return std::make_unique<QtPrintTarget>(std::move(writer), [bytes, file](QPagedPaintDevice& /*writer*/) {
        const QByteArray& content = bytes->data();
        Safe_write(file, {content.constData(), static_cast<std::size_t>(content.size())}, {OldTail::drop}, "EndDoc");
    });
}

std::unique_ptr<PrintTarget> Printer_target(std::unique_ptr<QPrinter> printer) {
    printer->setFullPage(true);
    printer->setResolution(device_dots_per_inch); // or the nearest that the printer has
    return std::make_unique<QtPrintTarget>(std::move(printer), [](QPagedPaintDevice& device) {
        auto& sent = dynamic_cast<QPrinter&>(device);
        if (sent.printerState() == QPrinter::Error || (sent.outputFormat() == QPrinter::NativeFormat && !Job_taken())) {
            Raise(fault_path_access, "EndDoc");
        }
    });
}

} // namespace tarnvik
