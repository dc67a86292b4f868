// Texts, colours and fonts between the program and the toolkit.
#pragma once

#include <QColor>
#include <QFont>
#include <QString>

#include <cstdint>
#include <string>
#include <string_view>

namespace tarnvik {

// A text between UTF-8 and the toolkit.
QString Q(std::string_view text);
std::string U(const QString& text);

// Red, green and blue of a colour as the screen record holds it.
QColor To_colour(std::uint32_t colour);

// The window's face, what stands in for "Tahoma" (Faces.h).
QFont Text_font(double points = 8.0);

// Pixels for a length given at 96 dots per inch.
int Scaled(double pixels_at_96, double dots_per_inch);

} // namespace tarnvik
