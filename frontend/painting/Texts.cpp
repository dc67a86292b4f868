#include "frontend/painting/Texts.h"

#include <QByteArray>

#include <cmath>

#include "frontend/painting/Faces.h"

namespace tarnvik {

QString Q(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string U(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    return {bytes.data(), static_cast<std::size_t>(bytes.size())};
}

QColor To_colour(std::uint32_t colour) {
    return {static_cast<int>(colour & 0xFFU), static_cast<int>((colour >> 8U) & 0xFFU),
            static_cast<int>((colour >> 16U) & 0xFFU)};
}

QFont Text_font(double points) {
    QFont font{Sans_family()};
    font.setPointSizeF(points);
    font.setHintingPreference(QFont::PreferVerticalHinting); // others, if asked for, round the widths of letters
    return font;
}

int Scaled(double pixels_at_96, double dots_per_inch) {
    return static_cast<int>(std::lround(pixels_at_96 * dots_per_inch / 96.0));
}

} // namespace tarnvik
