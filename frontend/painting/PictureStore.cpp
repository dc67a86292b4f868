#include "frontend/painting/PictureStore.h"

#include <QFontMetricsF>
#include <QPainter>

#include <deque>
#include <optional>

#include "frontend/painting/EquationPictures.h"
#include "frontend/painting/Texts.h"
#include "spacing/sketch/Drawing.h"
#include "spacing/sketch/Picture.h"

namespace tarnvik {

namespace {

QPen Pen_of(Pen pen) {
    constexpr double dash = 4.0;
    constexpr double gap = 3.0;
    if (pen == Pen::none) {
        return {Qt::NoPen};
    }
    const double width = Width_of(pen);
    QPen drawn{QColor::fromRgb(Colour_of(pen)), width};
    drawn.setCapStyle(Qt::FlatCap);
    drawn.setJoinStyle(Qt::MiterJoin);
    if (Is_dashed(pen)) {
        drawn.setDashPattern({dash / width, gap / width});
    }
    return drawn;
}

QBrush Brush_of(Tone tone) {
    return tone == Tone::none ? QBrush{Qt::NoBrush} : QBrush{QColor::fromRgb(Colour_of(tone))};
}

// The equations' letters: 9 points, as their indices are smaller.
constexpr double equation_letter = 12.0;

void Paint(QPainter& painter, const Drawing& drawing) {
    painter.setRenderHint(QPainter::Antialiasing);
    QFont font = Text_font();
    font.setPixelSize(static_cast<int>(letter_pixels));
    for (const auto& shape : drawing.shapes) {
        if (const auto* polygon = std::get_if<PolygonShape>(&shape)) {
            QPolygonF corners;
            for (const Point& corner : polygon->corners) {
                corners << QPointF{corner.x, corner.y};
            }
            painter.setPen(Pen_of(polygon->pen));
            painter.setBrush(Brush_of(polygon->fill));
            if (polygon->closed) {
                painter.drawPolygon(corners);
            } else {
                painter.drawPolyline(corners);
            }
        } else if (const auto* circle = std::get_if<CircleShape>(&shape)) {
            painter.setPen(Pen_of(circle->pen));
            painter.setBrush(Brush_of(circle->fill));
            painter.drawEllipse(QPointF{circle->centre.x, circle->centre.y}, circle->radius, circle->radius);
        } else if (const auto* text = std::get_if<TextShape>(&shape)) {
            font.setBold(text->bold);
            const QFontMetricsF metrics{font};
            const QString words = Q(text->text);
            const QPointF at{text->centre.x - metrics.horizontalAdvance(words) / 2.0,
                             text->centre.y + metrics.capHeight() / 2.0};
            painter.setFont(font);
            painter.setPen(Qt::black);
            painter.drawText(at, words);
        }
    }
}

// The last drawings: a window repaints the same few over and over, and choosing the places of a sketch takes some time.
const std::optional<Drawing>& Compose(std::string_view key, double width, double height, MemberNames names) {
    struct Kept {
        std::string key;
        double width, height;
        MemberNames names;
        std::optional<Drawing> drawing;
    };
    constexpr std::size_t most = 24;
    static std::deque<Kept> kept;
    for (const Kept& one : kept) {
        if (one.key == key && one.width == width && one.height == height && one.names == names) {
            return one.drawing;
        }
    }
    if (kept.size() == most) {
        kept.pop_back();
    }
    kept.push_front({std::string{key}, width, height, names, Draw_picture(key, width, height, names)});
    return kept.front().drawing;
}

} // namespace

bool Paint_picture(std::string_view key, QPainter& painter, const QRectF& room, double unit, MemberNames names) {
    if (Paint_equation(key, painter, room, equation_letter * unit)) {
        return true;
    }
    const auto& drawing = Compose(key, room.width() / unit, room.height() / unit, names);
    if (!drawing) {
        return false;
    }
    painter.save();
    painter.setClipRect(room, Qt::IntersectClip);
    painter.translate(room.topLeft());
    painter.scale(unit, unit);
    Paint(painter, *drawing);
    painter.restore();
    return true;
}

QSizeF Picture_size(std::string_view key) {
    if (key.starts_with("Frm_tarn_vik_bolter_")) {
        return {264.0, 165.0}; // what the table beside it leaves of the sketch area
    }
    if (key.starts_with("Frm_tarn_vik_forbindelser")) {
        return {239.0, 174.0};
    }
    if (const auto equation = Equation_size(key, equation_letter)) {
        return *equation;
    }
    if (key == splitting_figure) {
        return {258.0, 150.0};
    }
    return {76.0, 37.0}; // a button
}

std::vector<std::string> Picture_keys() {
    std::vector<std::string> keys = Drawing_keys();
    keys.insert(keys.end(), equation_keys.begin(), equation_keys.end());
    return keys;
}

} // namespace tarnvik
