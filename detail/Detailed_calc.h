// The step-by-step calculation of the connection, as the window frmDetailed shows it.
#pragma once

#include <array>
#include <string_view>

#include "calc/GlobalParameter.h"
#include "detail/Painting.h"

namespace tarnvik {

// The control of an equation, in parts of the area that holds it. Top and left stand fixed; the height puts the middle
// of the equation on the line of its value, as far as the equation below leaves room.
struct EquationPlace {
    std::string_view control;
    std::string_view key;
    bool double_shear;
    double top, left, width, height;
};

// clang-format off
inline constexpr std::array<EquationPlace, 10> equation_places{{
    // control   key                      double  top    left  width  height
    {"Pic_r_a", "frmDetailed/Pic_r_a",    false,  0.43,  0.1,  0.66,  0.04},
    {"Pic_r_b", "frmDetailed/Pic_r_b",    false,  0.48,  0.09, 0.67,  0.02},
    {"Pic_r_c", "frmDetailed/Pic_r_c",    false,  0.56,  0.12, 0.64,  0.05},
    {"Pic_r_d", "frmDetailed/Pic_r_d",    false,  0.61,  0.09, 0.67,  0.08},
    {"Pic_r_e", "frmDetailed/Pic_r_e",    false,  0.7,   0.09, 0.67,  0.085},
    {"Pic_r_f", "frmDetailed/Pic_r_f",    false,  0.79,  0.09, 0.67,  0.08},
    {"Pic_r_g", "frmDetailed/Pic_r_g",    true,   0.45,  0.1,  0.66,  0.03},
    {"Pic_r_h", "frmDetailed/Pic_r_h",    true,   0.505, 0.09, 0.67,  0.03},
    {"Pic_r_j", "frmDetailed/Pic_r_j",    true,   0.55,  0.09, 0.67,  0.08},
    {"Pic_r_k", "frmDetailed/Pic_r_k",    true,   0.64,  0.09, 0.67,  0.06},
}};
// clang-format on

// The values of the last pass; calculates nothing but capacities in kN.
Painting Paint_detailed(const ConnectionValues& s);

} // namespace tarnvik
