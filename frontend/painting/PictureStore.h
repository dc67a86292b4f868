// The stored pictures of the program, by their keys: form and control, as "Frm_tarn_vik_bolter_1_strekk/Pic1_2_a".
//
// Every picture is a vector drawing, composed afresh for the proportions of the room that it fills: line weights and
// letters keep their size, nothing is ever stretched.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "spacing/sketch/Connection_picture.h"

class QPainter;
class QRectF;
class QSizeF;

namespace tarnvik {

// Paints the picture of a key into a rectangle of the painter's scale. `unit` is the size of a pixel at 96 dots per
// inch in that scale: line weights and letters follow it. The picture of a connection calls its members by `names`.
// False, with nothing painted, where the store has no picture of that key.
bool Paint_picture(std::string_view key, QPainter& painter, const QRectF& room, double unit = 1.0,
                   MemberNames names = MemberNames::numbers);

// The size that the window gives a picture, in pixels at 96 dots per inch.
QSizeF Picture_size(std::string_view key);

// All keys of the store.
std::vector<std::string> Picture_keys();

} // namespace tarnvik
