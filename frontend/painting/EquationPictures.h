// The stored equations by their keys: form and control, as "frmDetailed/Pic_r_a". Those of the failure modes stand in
// the detailed calculations and in the report and have a key in each; they are the right-hand sides, "Rk(a) = " stands
// beside them as text.
//
// They are letters in fonts of their own (EquationTable.h): the window paints the letters' outlines, on paper they are
// text, so that a document can be searched for them and stays small. As SVG files they lie in
// frontend/pictures/equations. The letter size is the em of the mathematical font, what a point size is in text;
// equations of the same letter size have the same letters.
#pragma once

#include <QSizeF>

#include <array>
#include <optional>
#include <string>
#include <string_view>

class QPainter;
class QRectF;

namespace tarnvik {

inline constexpr std::array<std::string_view, 22> equation_keys{
    "frmDetailed/Pic_r_a",
    "frmDetailed/Pic_r_b",
    "frmDetailed/Pic_r_c",
    "frmDetailed/Pic_r_d",
    "frmDetailed/Pic_r_e",
    "frmDetailed/Pic_r_f",
    "frmDetailed/Pic_r_g",
    "frmDetailed/Pic_r_h",
    "frmDetailed/Pic_r_j",
    "frmDetailed/Pic_r_k",
    "Frm_tarn_vik_likninger/Pic_r_a",
    "Frm_tarn_vik_likninger/Pic_r_b",
    "Frm_tarn_vik_likninger/Pic_r_c",
    "Frm_tarn_vik_likninger/Pic_r_d",
    "Frm_tarn_vik_likninger/Pic_r_e",
    "Frm_tarn_vik_likninger/Pic_r_f",
    "Frm_tarn_vik_likninger/Pic_r_g",
    "Frm_tarn_vik_likninger/Pic_r_h",
    "Frm_tarn_vik_likninger/Pic_r_j",
    "Frm_tarn_vik_likninger/Pic_r_k",
    "Frm_tarn_vik_effbolt/pic_eff_bolts",
    "Frm_tarn_vik_txt_tverr_brudd/Pic_tverr_brudd",
};

// Size of a picture at a letter size, in the letter size's unit. Nothing for a key that is not among equation_keys.
std::optional<QSizeF> Equation_size(std::string_view key, double letter);

// The picture as it is stored. Empty for a key that is not among equation_keys.
std::string Equation_svg(std::string_view key);

// Paints a picture into `room` with letters of that size, in the units of the painter: at the left of the room and, up
// and down, in its middle. Where the room is too small the picture is made smaller, evenly. False, with nothing
// painted, for a key that is not among equation_keys.
bool Paint_equation(std::string_view key, QPainter& painter, const QRectF& room, double letter);

// The same for paper, with the baseline of the equation on `baseline`, as near to it as the room allows.
bool Print_equation(std::string_view key, QPainter& painter, const QRectF& room, double letter, double baseline);

} // namespace tarnvik
