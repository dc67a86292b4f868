// The stored pictures of the program, by their keys: form and control, as "Frm_tarn_vik_bolter_1_strekk/Pic1_2_a".
#pragma once

#include <string_view>

class QPainter;
class QRectF;

namespace tarnvik {

// Paints the picture of a key into a rectangle of the painter's current scale. False, with nothing painted, where the
// store has no picture of that key.
bool Paint_picture(std::string_view key, QPainter& painter, const QRectF& room);

} // namespace tarnvik
