// Texts set into rectangles.
#pragma once

#include <QFont>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

class QPainter;

namespace tarnvik {

// How a text is set into a rectangle: broken into lines at blanks where one line is too long, drawn narrower where a
// line still is.
struct SetText {
    QStringList lines;
    double line_height{};  // pixels
    double width{};        // pixels, of the widest line, before narrowing
    double narrowing{1.0}; // horizontal scale of what is drawn, 1 where it fits
    bool fits{};           // inside the rectangle, at no less than the least scale
};
inline constexpr double least_narrowing = 0.8;
SetText Set_text(const QString& text, const QFont& font, const QSizeF& room);
void Draw_text(QPainter& painter, const QString& text, const QFont& font, const QRectF& room, Qt::Alignment alignment);

} // namespace tarnvik
