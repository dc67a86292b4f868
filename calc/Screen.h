// What the controls of the main window show, as a plain record: a pass writes it, the front end applies it.
//
// A Screen lives as long as its state. No pass clears the controls: what it does not reach keeps what an earlier one
// wrote, and so a stopped pass leaves standing what the user has before him. Of the two that run passes
//  - the window empties `controls` before each pass and puts on its controls only what that pass wrote: a text that the
//    user has typed since the last one stays. Tables and pictures it takes as they stand.
//  - the headless tool has one for each result, clears nothing between its passes, and shows what has come together.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calc/Text.h"

namespace tarnvik {

// Colours as red + 256 green + 65536 blue.
inline constexpr std::uint32_t colour_green_box = 65280;    // a box in editing or refused
inline constexpr std::uint32_t colour_white_box = 16777215; // an accepted box
inline constexpr std::uint32_t colour_holds = 32768;        // green: at or below the limit
inline constexpr std::uint32_t colour_fails = 255;          // red: above the limit
inline constexpr std::uint32_t colour_black = 0;

// The controls that the calculation writes.
enum class Control : std::uint8_t {
    txtprosjekt,
    txtid,
    Fra_klasse,
    Lbl_lastvar_1,
    Lbl_lastvar_2,
    Lbl_klima_2,
    Lbl_kmod2,
    Comb_bulldog,
    mnuprint,
    Lbl_skive_diameter2,
    Lbl_skive_tykk2,
    lbl_densitet2,
    Lbl_fc90k2,
    lbl_gm,
    Txt_b1,
    Txt_h1,
    Txt_b2,
    Txt_h2,
    Cmd_boltetype_0,
    Cmd_boltetype_1,
    Lbl_bulldog2,
    Fra_av_bulldog,
    Fra_bulldog,
    Lbl_bulldog_kap1,
    Lbl_bulldog_kap2,
    Lbl_pluss,
    Lbl_Rd_bulldog_kontroll,
    Comb_bolt_avstand,
    Lbl_tot_eff_bulldog_1,
    Lbl_tot_eff_bulldog_2,
    Lbl_2_nef_max,
    lbl_txt_avstand,
    Txt_alp,
    Txt_man_he,
    Lbl_tverr_2,
    Lbl_bolt_kap2,
    Lbl_last_kontroll,
    Lbl_Rd_kontroll,
    Lbl_uf,
    Cmd_detail,
    count,
};

inline constexpr std::size_t control_count = static_cast<std::size_t>(Control::count);

// The control's name; a member of a control array with its index, as "Cmd_boltetype(0)".
std::string_view Control_name(Control control);

// What is set of one control; empty members have not been written yet.
struct ControlView {
    std::optional<std::string> caption; // caption or text
    std::optional<bool> visible;
    std::optional<bool> enabled;
    std::optional<bool> bold;
    std::optional<std::uint32_t> fore;
    std::optional<std::uint32_t> back;
    std::optional<int> index; // selected row of a list
};

// A text in a text area. The coordinates run from 0 to 100, x to the right and y upward; the text hangs below its
// point, as a print at CurrentX, CurrentY does. An empty text shows nothing.
struct PositionedText {
    float x{}, y{};
    std::string text;
    bool bold{};
    std::uint32_t fore{colour_black};
};

struct Screen {
    std::array<ControlView, control_count> controls;

    // The rules and numbers of the distances: bolts and connectors.
    std::vector<PositionedText> Pic_av_bolter_dif, Pic_av_bulldog_dif;

    // Keys of the stored pictures that the picture areas show, as "Frm_tarn_vik_bolter_1_strekk/Pic1_2_a"; empty until
    // a pass chose one. The keys are literals.
    std::string_view Pic_forbindelse;               // the connection
    std::string_view Pic_av_bolter, Pic_av_bulldog; // the sketch of the case, the same one twice

    ControlView& operator[](Control control) { return controls[static_cast<std::size_t>(control)]; }
    const ControlView& operator[](Control control) const { return controls[static_cast<std::size_t>(control)]; }
};

// Writes to a Screen, or to nothing: a pass on the state alone formats no texts.
class ScreenWriter {
public:
    explicit ScreenWriter(Screen* screen) : screen_(screen) {}

    void Caption(Control control, std::string_view text) const {
        if (screen_ != nullptr) {
            auto& caption = (*screen_)[control].caption;
            if (caption) {
                caption->assign(text);
            } else {
                caption.emplace(text);
            }
        }
    }
    void Number(Control control, float value, std::string_view picture) const {
        if (screen_ != nullptr) {
            Caption(control, Format(value, picture));
        }
    }
    void Visible(Control control, bool visible) const {
        if (screen_ != nullptr) {
            (*screen_)[control].visible = visible;
        }
    }
    void Enabled(Control control, bool enabled) const {
        if (screen_ != nullptr) {
            (*screen_)[control].enabled = enabled;
        }
    }
    void Back(Control control, std::uint32_t colour) const {
        if (screen_ != nullptr) {
            (*screen_)[control].back = colour;
        }
    }
    void Index(Control control, int row) const {
        if (screen_ != nullptr) {
            (*screen_)[control].index = row;
        }
    }
    // A utilisation: bold, red where it is above 1.0. The unrounded value decides, so that 1.00 can be red.
    void Utilisation(Control control, float value, std::string_view picture) const {
        if (screen_ != nullptr) {
            Number(control, value, picture);
            (*screen_)[control].bold = true;
            (*screen_)[control].fore = 1.0F < value ? colour_fails : colour_holds;
        }
    }
    [[nodiscard]] Screen* Target() const { return screen_; }

private:
    Screen* screen_;
};

} // namespace tarnvik
