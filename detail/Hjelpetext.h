// The five windows that explain terms of the code: fixed texts in the language of `Lang`. They read nothing else of the
// connection.
#pragma once

#include <array>
#include <string_view>

#include "calc/GlobalParameter.h"
#include "detail/Painting.h"

namespace tarnvik {

struct ExplanationWindow {
    std::string_view name;
    std::string_view text_control;
    std::string_view frame; // empty: the text stands in the window itself
    std::string_view caption_eng, caption_nor;
    double width, height; // parts of the main window
    double frame_height;  // part of the window; without a frame that of the text
};

// clang-format off
inline constexpr std::array<ExplanationWindow, 5> explanation_windows{{
    {"frm_tarn_vik_lastvarighet",    "Pic_txt_lastvarighet", "Fra_txt_lastvarighet", "Load-duration class",       "Lastvarighetsklasse",     0.5, 0.4,  0.75},
    {"frm_tarn_vik_klima",           "Pic_txt_klima",        "Fra_txt_klima",        "Service class",             "Klimaklasse",             0.5, 0.45, 0.78},
    {"frm_tarn_vik_matfak",          "Pic_txt_matfak",       "Fra_txt_matfak",       "Material factors",          "Materialfaktorer",        0.5, 0.4,  0.75},
    {"Frm_tarn_vik_effbolt",         "Pic_txt_effbolt",      "Fra_txt_effbolt",      "Number of effective bolts", "Antall effektive bolter", 0.5, 0.8,  0.87},
    {"Frm_tarn_vik_txt_tverr_brudd", "Pic_txt_tverr_brudd",  "",                     "Splitting capacity",        "Tverrstrekksbrudd",       0.5, 0.85, 0.87},
}};
// clang-format on

// A window by its name; null where there is none of that name.
const ExplanationWindow* Find_explanation(std::string_view name);

// Caption, texts and pictures of a window.
Painting Paint_explanation(const ExplanationWindow& window, const ConnectionValues& s);

} // namespace tarnvik
