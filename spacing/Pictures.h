// The keys of the stored pictures that a pass chooses: a sketch of the case for tension and one for compression, and a
// picture of the connection.
//
// A key is the form that holds the picture and the control in it, joined by "/".
#pragma once

#include <array>
#include <string_view>

#include "spacing/Catalogue.h"

namespace tarnvik {

struct SketchKeys {
    std::string_view Case_code;
    std::string_view strekk; // tension
    std::string_view trykk;  // compression
};

// One row for each case, in the order of the catalogue. The "a" arrangement of six bolts of type 4 is Pic4_6.
// clang-format off
inline constexpr std::array<SketchKeys, case_count> sketch_keys{{
    {"1.1. ", "Frm_tarn_vik_bolter_1_strekk/Pic1_1",    "Frm_tarn_vik_bolter_1_trykk/Pic1_1"},
    {"1.2.a", "Frm_tarn_vik_bolter_1_strekk/Pic1_2_a",  "Frm_tarn_vik_bolter_1_trykk/Pic1_2_a"},
    {"1.2.b", "Frm_tarn_vik_bolter_1_strekk/Pic1_2_b",  "Frm_tarn_vik_bolter_1_trykk/Pic1_2_b"},
    {"1.3.a", "Frm_tarn_vik_bolter_1_strekk/Pic1_3_a",  "Frm_tarn_vik_bolter_1_trykk/Pic1_3_a"},
    {"1.3.b", "Frm_tarn_vik_bolter_1_strekk/Pic1_3_b",  "Frm_tarn_vik_bolter_1_trykk/Pic1_3_b"},
    {"1.4. ", "Frm_tarn_vik_bolter_1_strekk/Pic1_4",    "Frm_tarn_vik_bolter_1_trykk/Pic1_4"},
    {"1.6. ", "Frm_tarn_vik_bolter_1_strekk/Pic1_6",    "Frm_tarn_vik_bolter_1_trykk/Pic1_6"},
    {"2.1. ", "Frm_tarn_vik_bolter_2_strekk/Pic2_1",    "Frm_tarn_vik_bolter_2_trykk/Pic2_1"},
    {"2.2. ", "Frm_tarn_vik_bolter_2_strekk/Pic2_2",    "Frm_tarn_vik_bolter_2_trykk/Pic2_2"},
    {"2.3. ", "Frm_tarn_vik_bolter_2_strekk/Pic2_3",    "Frm_tarn_vik_bolter_2_trykk/Pic2_3"},
    {"2.4. ", "Frm_tarn_vik_bolter_2_strekk/Pic2_4",    "Frm_tarn_vik_bolter_2_trykk/Pic2_4"},
    {"2.6. ", "Frm_tarn_vik_bolter_2_strekk/Pic2_6",    "Frm_tarn_vik_bolter_2_trykk/Pic2_6"},
    {"3.1. ", "Frm_tarn_vik_bolter_3_strekk/Pic3_1",    "Frm_tarn_vik_bolter_3_trykk/Pic3_1"},
    {"3.2.a", "Frm_tarn_vik_bolter_3_strekk/Pic3_2_a",  "Frm_tarn_vik_bolter_3_trykk/Pic3_2_a"},
    {"3.2.b", "Frm_tarn_vik_bolter_3_strekk/Pic3_2_b",  "Frm_tarn_vik_bolter_3_trykk/Pic3_2_b"},
    {"3.3.a", "Frm_tarn_vik_bolter_3_strekk/Pic3_3_a",  "Frm_tarn_vik_bolter_3_trykk/Pic3_3_a"},
    {"3.3.b", "Frm_tarn_vik_bolter_3_strekk/Pic3_3_b",  "Frm_tarn_vik_bolter_3_trykk/Pic3_3_b"},
    {"3.4. ", "Frm_tarn_vik_bolter_3_strekk/Pic3_4",    "Frm_tarn_vik_bolter_3_trykk/Pic3_4"},
    {"3.6. ", "Frm_tarn_vik_bolter_3_strekk/Pic3_6",    "Frm_tarn_vik_bolter_3_trykk/Pic3_6"},
    {"4.1. ", "Frm_tarn_vik_bolter_4_strekk/Pic4_1",    "Frm_tarn_vik_bolter_4_trykk/Pic4_1"},
    {"4.2.a", "Frm_tarn_vik_bolter_4_strekk/Pic4_2_a",  "Frm_tarn_vik_bolter_4_trykk/Pic4_2_a"},
    {"4.2.b", "Frm_tarn_vik_bolter_4_strekk/Pic4_2_b",  "Frm_tarn_vik_bolter_4_trykk/Pic4_2_b"},
    {"4.3.a", "Frm_tarn_vik_bolter_4_strekk/Pic4_3_a",  "Frm_tarn_vik_bolter_4_trykk/Pic4_3_a"},
    {"4.3.b", "Frm_tarn_vik_bolter_4_strekk/Pic4_3_b",  "Frm_tarn_vik_bolter_4_trykk/Pic4_3_b"},
    {"4.4. ", "Frm_tarn_vik_bolter_4_strekk/Pic4_4",    "Frm_tarn_vik_bolter_4_trykk/Pic4_4"},
    {"4.6.a", "Frm_tarn_vik_bolter_4_strekk/Pic4_6",    "Frm_tarn_vik_bolter_4_trykk/Pic4_6"},
    {"4.6.b", "Frm_tarn_vik_bolter_4_strekk/Pic4_6_b",  "Frm_tarn_vik_bolter_4_trykk/Pic4_6_b"},
    {"5.1. ", "Frm_tarn_vik_bolter_5_strekk/Pic5_1",    "Frm_tarn_vik_bolter_5_trykk/Pic5_1"},
    {"5.2.a", "Frm_tarn_vik_bolter_5_strekk/Pic5_2_a",  "Frm_tarn_vik_bolter_5_trykk/Pic5_2_a"},
    {"5.2.b", "Frm_tarn_vik_bolter_5_strekk/Pic5_2_b",  "Frm_tarn_vik_bolter_5_trykk/Pic5_2_b"},
    {"5.3.a", "Frm_tarn_vik_bolter_5_strekk/Pic5_3_a",  "Frm_tarn_vik_bolter_5_trykk/Pic5_3_a"},
    {"5.3.b", "Frm_tarn_vik_bolter_5_strekk/Pic5_3_b",  "Frm_tarn_vik_bolter_5_trykk/Pic5_3_b"},
    {"5.4. ", "Frm_tarn_vik_bolter_5_strekk/Pic5_4",    "Frm_tarn_vik_bolter_5_trykk/Pic5_4"},
    {"5.6.a", "Frm_tarn_vik_bolter_5_strekk/Pic5_6_a",  "Frm_tarn_vik_bolter_5_trykk/Pic5_6_a"},
    {"5.6.b", "Frm_tarn_vik_bolter_5_strekk/Pic5_6_b",  "Frm_tarn_vik_bolter_5_trykk/Pic5_6_b"},
}};
// clang-format on

struct ConnectionKey {
    std::string_view Con_code;
    std::string_view key;
};

// Two controls begin with a small letter.
// clang-format off
inline constexpr std::array<ConnectionKey, 15> connection_keys{{
    {"1.1", "Frm_tarn_vik_forbindelser/Pic_1_1"},
    {"1.2", "Frm_tarn_vik_forbindelser/Pic_1_2"},
    {"1.3", "Frm_tarn_vik_forbindelser/pic_1_3"},
    {"2.1", "Frm_tarn_vik_forbindelser/Pic_2_1"},
    {"2.2", "Frm_tarn_vik_forbindelser/Pic_2_2"},
    {"2.3", "Frm_tarn_vik_forbindelser/Pic_2_3"},
    {"3.1", "Frm_tarn_vik_forbindelser/Pic_3_1"},
    {"3.2", "Frm_tarn_vik_forbindelser/Pic_3_2"},
    {"3.3", "Frm_tarn_vik_forbindelser/Pic_3_3"},
    {"4.1", "Frm_tarn_vik_forbindelser2/Pic_4_1"},
    {"4.2", "Frm_tarn_vik_forbindelser2/Pic_4_2"},
    {"4.3", "Frm_tarn_vik_forbindelser2/pic_4_3"},
    {"5.1", "Frm_tarn_vik_forbindelser2/Pic_5_1"},
    {"5.2", "Frm_tarn_vik_forbindelser2/Pic_5_2"},
    {"5.3", "Frm_tarn_vik_forbindelser2/Pic_5_3"},
}};
// clang-format on

// The sketch of a case (a row of the catalogue) under a force in kN: tension at zero and below.
std::string_view Sketch_key(int case_row, float P);

// The picture of a connection; empty where the code has none.
std::string_view Connection_key(std::string_view Con_code);

} // namespace tarnvik
