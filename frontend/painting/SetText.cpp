#include "frontend/painting/SetText.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tarnvik {

namespace {

// Greedy lines of at most `width` pixels.
QStringList Break(const QString& text, const QFontMetricsF& metrics, double width) {
    QStringList lines;
    QString line;
    for (const QString& word : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QString longer = line.isEmpty() ? word : line + QLatin1Char(' ') + word;
        if (!line.isEmpty() && metrics.horizontalAdvance(longer) > width) {
            lines << line;
            line = word;
        } else {
            line = longer;
        }
    }
    if (!line.isEmpty()) {
        lines << line;
    }
    return lines;
}

double Widest(const QStringList& lines, const QFontMetricsF& metrics) {
    double widest = 0.0;
    for (const QString& line : lines) {
        widest = std::max(widest, metrics.horizontalAdvance(line));
    }
    return widest;
}

} // namespace

SetText Set_text(const QString& text, const QFont& font, const QSizeF& room) {
    const QFontMetricsF metrics{font};
    SetText set;
    // Two lines may stand closer than the font would like, but not touch.
    const double least_height = metrics.ascent() + metrics.descent() * 0.8;
    set.line_height = metrics.height();
    set.lines = QStringList{text};
    while (set.lines.back().endsWith(QLatin1Char(' '))) { // a trailing blank asks for no room
        set.lines.back().chop(1);
    }
    set.width = Widest(set.lines, metrics);
    if (set.width > room.width()) {
        const QStringList broken = Break(text, metrics, room.width());
        if (broken.size() > 1 && least_height * static_cast<double>(broken.size()) <= room.height() + 1.0) {
            set.lines = broken;
            set.width = Widest(broken, metrics);
            set.line_height = std::min(metrics.height(), room.height() / static_cast<double>(broken.size()));
        }
    }
    if (set.width > room.width() && set.width > 0.0) {
        set.narrowing = room.width() / set.width;
    }
    set.fits =
        set.narrowing >= least_narrowing && least_height * static_cast<double>(set.lines.size()) <= room.height() + 1.0;
    return set;
}

void Draw_text(QPainter& painter, const QString& text, const QFont& font, const QRectF& room, Qt::Alignment alignment) {
    if (text.isEmpty()) {
        return;
    }
    const SetText set = Set_text(text, font, room.size());
    const QFontMetricsF metrics{font};
    const double height = set.line_height * static_cast<double>(set.lines.size());
    double y = room.top();
    if (alignment.testFlag(Qt::AlignVCenter)) {
        y += (room.height() - height) / 2.0;
    }
    painter.setFont(font);
    for (const QString& line : set.lines) {
        double x = room.left();
        if (alignment.testFlag(Qt::AlignHCenter)) {
            x += (room.width() - metrics.horizontalAdvance(line) * set.narrowing) / 2.0;
        } else if (alignment.testFlag(Qt::AlignRight)) {
            x += room.width() - metrics.horizontalAdvance(line) * set.narrowing;
        }
        painter.save();
        painter.translate(x, std::round(y + metrics.ascent()));
        painter.scale(set.narrowing, 1.0);
        painter.drawText(QPointF{0.0, 0.0}, line);
        painter.restore();
        y += set.line_height;
    }
}

} // namespace tarnvik
