// The drawings by their keys: form and control, as "Frm_tarn_vik_bolter_strekk/Pic_11" (spacing/Pictures.h).
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "spacing/sketch/Connection_picture.h"
#include "spacing/sketch/Drawing.h"

namespace tarnvik {

inline constexpr std::string_view splitting_figure = "Frm_tarn_vik_txt_tverr_brudd/Pic_tverr_brudd_fig";

// The keys of all drawings: sketches, connections, types, the figure of the splitting check.
std::vector<std::string> Drawing_keys();

// Composes a drawing for a room of that size, in pixels. Nothing for a key that is not among Drawing_keys.
std::optional<Drawing> Draw_picture(std::string_view key, double width, double height,
                                    MemberNames names = MemberNames::numbers);

} // namespace tarnvik
