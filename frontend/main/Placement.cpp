#include "frontend/main/Placement.h"

#include <QFontMetricsF>
#include <QMainWindow>

#include <algorithm>
#include <cmath>
#include <map>
#include <string_view>

#include "frontend/controls/Areas.h"
#include "frontend/controls/Controls.h"
#include "frontend/controls/Scrolling.h"
#include "frontend/main/ControlTable.h"
#include "frontend/main/Languages.h"
#include "frontend/main/Layout.h"
#include "frontend/main/Marks.h"
#include "frontend/painting/Texts.h"

namespace tarnvik {

namespace {

constexpr double twips_per_inch = 1440.0;
constexpr double twips_per_pixel = 15.0; // at 96 dpi

Boxes Built_sizes() {
    Boxes boxes;
    for (const ControlRow& row : Control_rows()) {
        boxes[row.name] = Box{row.left * twips_per_pixel, row.top * twips_per_pixel, row.width * twips_per_pixel,
                              row.height * twips_per_pixel};
    }
    return boxes;
}

// Labels whose built size is not given get the room that their texts need in both languages.
void Widen_labels(const QMainWindow& window, Boxes& boxes) {
    const QFontMetricsF metrics{window.font()};
    const double to_twips = twips_per_inch / window.logicalDpiX();
    constexpr double gap = 5.0 * twips_per_pixel; // before the value that follows
    const auto widen = [&](std::string_view control, const char* caption) {
        const auto box = boxes.find(control);
        if (caption == nullptr || box == boxes.end()) {
            return;
        }
        const double width = metrics.horizontalAdvance(Q(caption)) * to_twips + gap;
        box->second.width = std::max(box->second.width, width);
    };
    std::map<std::string_view, bool> measured;
    for (const ControlRow& row : Control_rows()) {
        measured[row.name] = row.kind == Kind::label && row.width == 0.0;
        if (measured[row.name]) {
            widen(row.name, row.caption);
        }
    }
    for (const CaptionRow& row : Caption_rows()) {
        if (const auto found = measured.find(row.control); found != measured.end() && found->second) {
            widen(row.control, row.english);
            widen(row.control, row.norwegian);
        }
    }
}

// A text box or a list never gets lower than a line of text and its frame.
double Least_height(std::string_view control, const void* context) {
    constexpr double least = 16.5 * twips_per_pixel;
    QObject* object = static_cast<const MainControls*>(context)->Look_up(control);
    return dynamic_cast<TextBox*>(object) != nullptr || dynamic_cast<ListBox*>(object) != nullptr ? least : 0.0;
}

// Edges are rounded where they lie in the window, not where they lie in the parent: neighbours keep their distance. The
// lower ones are rounded down, so that neighbours whose rules let them touch do not overlap; the right ones stay inside
// the frame.
void Set_geometry(const QMainWindow& window, const MainControls& controls, const Boxes& boxes) {
    const double dpi_x = window.logicalDpiX();
    const double dpi_y = window.logicalDpiY();
    std::map<std::string_view, QPointF> origins;
    std::map<std::string_view, QPoint> ends;
    const int border = Scaled(2, dpi_x);
    for (const ControlRow& row : Control_rows()) {
        const Box& box = boxes.find(row.name)->second;
        const QPointF parent = *row.parent == '\0' ? QPointF{} : origins[row.parent];
        const double left = parent.x() + box.left * dpi_x / twips_per_inch;
        const double top = parent.y() + box.top * dpi_y / twips_per_inch;
        const double right = left + box.width * dpi_x / twips_per_inch;
        const double bottom = top + box.height * dpi_y / twips_per_inch;
        origins[row.name] = QPointF{left, top};
        const QPoint corner{static_cast<int>(std::lround(parent.x())), static_cast<int>(std::lround(parent.y()))};
        const QPoint from{static_cast<int>(std::lround(left)), static_cast<int>(std::lround(top))};
        QPoint to{static_cast<int>(std::lround(right)), static_cast<int>(std::floor(bottom + 0.001))};
        if (const auto end = ends.find(row.parent); end != ends.end()) {
            to.setX(std::min(to.x(), end->second.x() - border));
        }
        ends[row.name] = to;
        controls.Find<QWidget>(row.name).setGeometry(QRect{from - corner, QSize{to.x() - from.x(), to.y() - from.y()}});
    }
}

// The tables lie over the right ends of the sketches.
void Cover_sketches(const QMainWindow& window, const MainControls& controls) {
    const int covered = Scaled(400.0 / twips_per_pixel, window.logicalDpiX());
    for (const char* sketch : {"Pic_av_bolter", "Pic_av_bulldog"}) {
        controls.Find<PictureArea>(sketch).Set_covered(covered);
    }
    for (const char* cover : {"Fra_av_bolter_verdier", "Fra_av_bulldog_verdier"}) {
        auto& table_frame = controls.Find<QWidget>(cover);
        table_frame.setAutoFillBackground(true);
        table_frame.raise();
    }
}

// As large as the frames need; below that the window scrolls.
void Set_least_size(const MainControls& controls) {
    QWidget& ground = *controls.Find<QWidget>("fra_input").parentWidget();
    const QRect frames = ground.childrenRect();
    ground.setMinimumSize(frames.right() + 1 + frames.left(), frames.bottom() + 1);
}

} // namespace

void WritefrmInput1(QMainWindow& window, const MainControls& controls) {
    Boxes boxes = Built_sizes();
    Widen_labels(window, boxes);
    const QSize size = Laid_out_size(window);
    const Box inside{0.0, 0.0, size.width() * twips_per_inch / window.logicalDpiX(),
                     size.height() * twips_per_inch / window.logicalDpiY()};
    Apply_layout(boxes, inside, Least_height, &controls);
    Place_marks(boxes, window.font(), window.logicalDpiX());
    Set_geometry(window, controls, boxes);
    Set_least_size(controls);
    Cover_sketches(window, controls);
}

} // namespace tarnvik
