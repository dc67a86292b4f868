// The report's print target on a printer or into a PDF file.
//
// Every point is mapped by hand, y turned over on the way: the painter is never mirrored, so that text stands upright
// and is anchored at its top left. Texts are real texts, in the fonts that are asked for by name or in those of the
// same widths that stand in for them; pictures are painted as vectors.
#pragma once

#include <QFont>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "ports/PrintTarget.h"

class QPrinter;

namespace tarnvik {

class QtPrintTarget : public PrintTarget {
public:
    // Draws on `device`, which paints on the full page. `finish` runs when the document has ended. A job that is not
    // ended is dropped.
    // Errors: throws RuntimeFault (75) where nothing can be drawn.
    QtPrintTarget(std::unique_ptr<QPagedPaintDevice> device, std::function<void(QPagedPaintDevice&)> finish);
    ~QtPrintTarget() override;

    void ScaleLeft(float x) override { scale_left_ = static_cast<double>(x); }
    void ScaleTop(float y) override { scale_top_ = static_cast<double>(y); }
    void ScaleWidth(float width) override { scale_width_ = static_cast<double>(width); }
    void ScaleHeight(float height) override { scale_height_ = static_cast<double>(height); }
    void CurrentX(float x) override { x_ = x; }
    void CurrentY(float y) override { y_ = y; }
    void FontName(std::string_view name) override { font_name_ = name; }
    void FontSize(float points) override { font_size_ = static_cast<double>(points); }
    void FontBold(bool on) override { bold_ = on; }
    void FontItalic(bool on) override { italic_ = on; }
    void DrawWidth(std::int16_t pixels) override { draw_width_ = pixels; }
    void Line(float x1, float y1, float x2, float y2) override;
    void PaintPicture(std::string_view picture, float x, float y, float width, float height) override;
    float TextWidth(std::string_view text) override;
    void Print(std::string_view text) override;
    void NewPage() override;
    void EndDoc() override;

private:
    [[nodiscard]] QPointF Mapped(float x, float y) const;
    // The font in force; the size is set by the caller.
    [[nodiscard]] QFont Font() const;
    // From the top of a text to its line, device pixels.
    [[nodiscard]] double Ascent() const;

    std::unique_ptr<QPagedPaintDevice> device_;
    std::function<void(QPagedPaintDevice&)> finish_;
    QPainter painter_;
    bool ended_{};
    double dots_per_inch_{};
    QRectF area_; // the printable area, device pixels

    double scale_left_{}, scale_top_{}, scale_width_{1.0}, scale_height_{1.0};
    float x_{}, y_{};
    std::string font_name_;
    double font_size_{9.0};
    bool bold_{}, italic_{};
    int draw_width_{1};
};

// What a document names as its maker: the program and its version.
QString Program_name();

// A PDF file, on A4 or with the paper and orientation of a layout, written whole at the end of the document: until
// then, and where it cannot be written, a former file stays. Errors of EndDoc: throws RuntimeFault (61, 75, 76).
std::unique_ptr<PrintTarget> Pdf_target(const std::filesystem::path& file, const std::string& title,
                                        const std::optional<QPageLayout>& layout = std::nullopt);

// A printer as it has been set up. Errors: throws RuntimeFault (75) where the job cannot be started or sent.
std::unique_ptr<PrintTarget> Printer_target(std::unique_ptr<QPrinter> printer);

} // namespace tarnvik
