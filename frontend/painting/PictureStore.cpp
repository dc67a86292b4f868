#include "frontend/painting/PictureStore.h"

#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

#include <deque>
#include <optional>

#include "frontend/painting/EquationPictures.h"
#include "frontend/painting/Texts.h"
#include "spacing/Pictures.h"
#include "spacing/sketch/Connection_picture.h"
#include "spacing/sketch/Drawing.h"
#include "spacing/sketch/Sketch.h"

namespace tarnvik {

namespace {

// Two wood tones that stay apart in black and white, dark enough edges, and one blue-black for what is measured.
QColor Colour_of(Tone tone) {
    switch (tone) {
    case Tone::wood_1:
        return {0xf3, 0xdc, 0xb4};
    case Tone::wood_2:
        return {0xdd, 0xba, 0x80};
    case Tone::white:
        return Qt::white;
    case Tone::black:
        return Qt::black;
    case Tone::none:
        break;
    }
    return Qt::transparent;
}

QPen Pen_of(Pen pen) {
    switch (pen) {
    case Pen::outline:
        return {QColor{0x6b, 0x4a, 0x1e}, 1.2};
    case Pen::hidden: {
        QPen hidden{QColor{0x6b, 0x4a, 0x1e}, 0.8};
        hidden.setDashPattern({4.0, 3.0});
        return hidden;
    }
    case Pen::extension:
        return {QColor{0x60, 0x60, 0x60}, 0.6};
    case Pen::dimension:
        return {Qt::black, 0.8};
    case Pen::bolt:
        return {Qt::black, 1.2};
    case Pen::force:
        return {Qt::black, 2.2};
    case Pen::none:
        break;
    }
    return {Qt::NoPen};
}

// Letters of 8 points, in pixels at 96 dots per inch.
constexpr int letter_pixels = 11;
// The equations' letters: 9 points, as their indices are smaller.
constexpr double equation_letter = 12.0;

void Paint(QPainter& painter, const Drawing& drawing) {
    painter.setRenderHint(QPainter::Antialiasing);
    // A PDF file strokes what is opaque by itself; what shines through would go into it as an outline many times
    // longer.
    const bool pdf = painter.paintEngine()->type() == QPaintEngine::Pdf;
    const int rim_opacity = pdf ? 255 : 170;
    QFont font = Text_font();
    font.setPixelSize(letter_pixels);
    for (const auto& shape : drawing.shapes) {
        if (const auto* polygon = std::get_if<PolygonShape>(&shape)) {
            QPolygonF corners;
            for (const Point& corner : polygon->corners) {
                corners << QPointF{corner.x, corner.y};
            }
            painter.setPen(Pen_of(polygon->pen));
            painter.setBrush(polygon->fill == Tone::none ? QBrush{Qt::NoBrush} : QBrush{Colour_of(polygon->fill)});
            if (polygon->closed) {
                painter.drawPolygon(corners);
            } else {
                painter.drawPolyline(corners);
            }
        } else if (const auto* circle = std::get_if<CircleShape>(&shape)) {
            painter.setPen(Pen_of(circle->pen));
            painter.setBrush(Colour_of(circle->fill));
            painter.drawEllipse(QPointF{circle->centre.x, circle->centre.y}, circle->radius, circle->radius);
        } else if (const auto* text = std::get_if<TextShape>(&shape)) {
            font.setBold(text->bold);
            const QFontMetricsF metrics{font};
            const QString words = Q(text->text);
            const QPointF at{text->centre.x - metrics.horizontalAdvance(words) / 2.0,
                             text->centre.y + (metrics.ascent() - metrics.descent()) / 2.0 - 0.5};
            // A light rim keeps the letters apart from the edges that they stand on.
            QPainterPath letters;
            letters.addText(at, font, words);
            painter.strokePath(letters, QPen{QColor{255, 255, 255, rim_opacity}, 2.4});
            painter.setFont(font);
            painter.setPen(Qt::black);
            painter.drawText(at, words);
        }
    }
}

constexpr int type_count = 5;

// Pictures of the five Cmd_type buttons.
std::string Type_key(int type) {
    return "frmMain/Cmd_type(" + std::to_string(type - 1) + ")";
}

std::optional<Drawing> Make(std::string_view key, double width, double height) {
    for (std::size_t i = 0; i < sketch_keys.size(); ++i) {
        if (key == sketch_keys[i].strekk || key == sketch_keys[i].trykk) {
            return Draw_sketch(static_cast<int>(i), key == sketch_keys[i].trykk, width, height).drawing;
        }
    }
    for (std::size_t i = 0; i < connection_keys.size(); ++i) {
        if (key == connection_keys[i].key) {
            return Draw_connection(connection_keys[i].Con_code, width, height);
        }
    }
    for (int type = 1; type <= type_count; ++type) {
        if (key == Type_key(type)) {
            return Draw_type(type, width, height);
        }
    }
    return std::nullopt;
}

// The last drawings: a window repaints the same few over and over, and choosing the places of a sketch takes some time.
const std::optional<Drawing>& Compose(std::string_view key, double width, double height) {
    struct Kept {
        std::string key;
        double width, height;
        std::optional<Drawing> drawing;
    };
    constexpr std::size_t most = 24;
    static std::deque<Kept> kept;
    for (const Kept& one : kept) {
        if (one.key == key && one.width == width && one.height == height) {
            return one.drawing;
        }
    }
    if (kept.size() == most) {
        kept.pop_back();
    }
    kept.push_front({std::string{key}, width, height, Make(key, width, height)});
    return kept.front().drawing;
}

} // namespace

bool Paint_picture(std::string_view key, QPainter& painter, const QRectF& room, double unit) {
    if (Paint_equation(key, painter, room, equation_letter * unit)) {
        return true;
    }
    const auto& drawing = Compose(key, room.width() / unit, room.height() / unit);
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
    return {76.0, 37.0}; // a button
}

std::vector<std::string> Picture_keys() {
    std::vector<std::string> keys;
    for (const SketchKeys& row : sketch_keys) {
        keys.emplace_back(row.strekk);
        keys.emplace_back(row.trykk);
    }
    for (const auto& row : connection_keys) {
        keys.emplace_back(row.key);
    }
    for (int type = 1; type <= type_count; ++type) {
        keys.push_back(Type_key(type));
    }
    keys.insert(keys.end(), equation_keys.begin(), equation_keys.end());
    return keys;
}

} // namespace tarnvik
