#include "frontend/controls/PaintedArea.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numeric>

#include "frontend/controls/Areas.h"
#include "frontend/controls/ReadLines.h"
#include "frontend/painting/Texts.h"

namespace tarnvik {

namespace {

constexpr double text_points = 8.0;
constexpr double small_points = 6.0;

// A trailing blank asks for no room.
QString Right_trimmed(const std::string& text) {
    QString trimmed = Q(text);
    while (trimmed.endsWith(QLatin1Char(' '))) {
        trimmed.chop(1);
    }
    return trimmed;
}

} // namespace

void PaintedArea::Set_painting(Painting painting) {
    painting_ = std::move(painting);
    setAccessibleName(Q(painting_.caption));
    for (auto* area : findChildren<PictureArea*>()) {
        area->hide();
    }
    for (const PaintedPicture& picture : painting_.pictures) {
        auto* area = findChild<PictureArea*>(Q(picture.control));
        if (area == nullptr) {
            area = new PictureArea{this};
            area->setObjectName(Q(picture.control));
            area->Set_framed(false);
        }
        area->Set_picture(picture.key);
        area->show();
    }
    Place_pictures();
    update();
}

QStringList PaintedArea::Lines() const {
    constexpr float off_row = 1.0F; // an index or a power
    return Read_lines(painting_.texts, off_row);
}

void PaintedArea::Place_pictures() {
    const double x_unit = width() / 100.0;
    const double y_unit = height() / 100.0;
    for (const PaintedPicture& picture : painting_.pictures) {
        findChild<PictureArea*>(Q(picture.control))
            ->setGeometry(QRectF{static_cast<double>(picture.x) * x_unit,
                                 (100.0 - static_cast<double>(picture.y)) * y_unit,
                                 static_cast<double>(picture.w) * x_unit, static_cast<double>(picture.h) * y_unit}
                              .toRect());
    }
}

QFont PaintedArea::Font_of(const TextLook& look) const {
    // The letters that the symbol font draws are in the text font.
    QFont text_font = Text_font(look.small ? small_points : text_points);
    text_font.setBold(look.bold);
    return text_font;
}

std::vector<PaintedArea::Placed> PaintedArea::Place_texts() const {
    const double x_unit = width() / 100.0;
    const double y_unit = height() / 100.0;
    std::vector<Placed> placed;
    std::vector<QRectF> covered; // by the whole of a text
    placed.reserve(painting_.texts.size());
    covered.reserve(painting_.texts.size());
    for (const PaintedText& text : painting_.texts) {
        const QFontMetricsF metrics{Font_of(text.look)};
        const QString words = Right_trimmed(text.text);
        Placed place;
        place.left = static_cast<double>(text.x) * x_unit;
        if (text.look.right) {
            place.left -= metrics.horizontalAdvance(words);
        }
        place.base = std::round((100.0 - static_cast<double>(text.y)) * y_unit + metrics.ascent());
        qsizetype start = 0;
        for (const QString& word : words.split(QLatin1Char(' '))) {
            if (!word.isEmpty()) {
                const double before = metrics.horizontalAdvance(words.left(start));
                place.ink.push_back(metrics.tightBoundingRect(word).translated(place.left + before, place.base));
            }
            start += word.size() + 1;
        }
        covered.push_back(std::accumulate(place.ink.begin(), place.ink.end(), QRectF{},
                                          [](const QRectF& all, const QRectF& word) { return all | word; }));
        placed.push_back(std::move(place));
    }
    const double blank = QFontMetricsF{Text_font(text_points)}.horizontalAdvance(QLatin1Char(' '));
    for (std::size_t i = 0; i < placed.size(); ++i) {
        Placed& place = placed[i];
        // A Greek letter stands close to its index, and a power to its letter.
        const TextLook& look = painting_.texts[i].look;
        const double gap = look.font == TextFont::symbol || look.small ? 0.0 : blank;
        double end = width() - blank;
        for (std::size_t k = 0; k < placed.size(); ++k) {
            const bool same_line = covered[i].top() < covered[k].bottom() && covered[k].top() < covered[i].bottom();
            const bool reaches = covered[k].left() > covered[i].left() && covered[i].right() > covered[k].left() - gap;
            // An index has its place between the words.
            if (same_line && reaches && !painting_.texts[k].look.small) {
                end = std::min(end, covered[k].left() - gap);
            }
        }
        if (covered[i].right() > end) {
            place.narrowing = std::max(1.0, end - place.left) / (covered[i].right() - place.left);
            for (QRectF& word : place.ink) {
                word = QRectF{place.left + (word.left() - place.left) * place.narrowing, word.top(),
                              word.width() * place.narrowing, word.height()};
            }
        }
    }
    return placed;
}

void PaintedArea::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    painter.fillRect(rect(), Qt::white);
    const std::vector<Placed> placed = Place_texts();
    for (std::size_t i = 0; i < placed.size(); ++i) {
        const PaintedText& text = painting_.texts[i];
        painter.setFont(Font_of(text.look));
        painter.setPen(To_colour(text.fore));
        painter.save();
        painter.translate(placed[i].left, placed[i].base);
        painter.scale(placed[i].narrowing, 1.0);
        painter.drawText(QPointF{0.0, 0.0}, Right_trimmed(text.text));
        painter.restore();
    }
}

void PaintedArea::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    Place_pictures();
}

} // namespace tarnvik
