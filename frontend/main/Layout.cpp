#include "frontend/main/Layout.h"

#include <array>
#include <cassert>
#include <charconv>
#include <stdexcept>

namespace tarnvik {

namespace {

// clang-format off
constexpr std::array<LayoutRow, 105> layout_rows{{
    // control, left, top, width, height
    {"fra_input", "Width x 0.005", "0", "Width x 0.45", "Height x 0.93"},
    {"lbl_prosjekt", "fra_input.Width x 0.02", "fra_input.Height x 0.02", "", ""},
    {"txtprosjekt", "fra_input.Width x 0.02", "fra_input.Height x 0.04", "fra_input.Width x 0.79", "fra_input.Height x 0.015"},
    {"lblid", "fra_input.Width x 0.02", "txtprosjekt.Height + txtprosjekt.Top", "", ""},
    {"txtid", "fra_input.Width x 0.02", "((lblid.Height + lblid.Top) + 50.0)", "fra_input.Width x 0.79", "fra_input.Height x 0.02"},
    {"Fra_valg_bolt_bulldog", "fra_input.Width x 0.02", "((txtid.Height + txtid.Top) + 50.0)", "fra_input.Width x 0.25", "fra_input.Height x 0.11"},
    {"Fra_bolter", "((Fra_valg_bolt_bulldog.Width + Fra_valg_bolt_bulldog.Left) + 50.0)", "Fra_valg_bolt_bulldog.Top", "fra_input.Width x 0.27", "Fra_valg_bolt_bulldog.Height"},
    {"Opt_bolt_bulldog(1)", "", "", "Fra_valg_bolt_bulldog.Width x 0.9", ""},
    {"Fra_bulldog", "((Fra_bolter.Width + Fra_bolter.Left) + 100.0)", "Fra_bolter.Top", "fra_input.Width x 0.44", "Fra_bolter.Height"},
    {"Comb_bulldog", "Fra_bulldog.Width x 0.05", "Fra_bulldog.Height x 0.23", "Comb_bolter.Width x 1.1", ""},
    {"Lbl_bulldog1", "Comb_bulldog.Left", "((Comb_bulldog.Height + Comb_bulldog.Top) + 50.0)", "", ""},
    {"Lbl_bulldog2", "((Lbl_bulldog1.Width + Lbl_bulldog1.Left) + 20.0)", "Lbl_bulldog1.Top", "", ""},
    {"Fra_material", "Fra_valg_bolt_bulldog.Left", "Fra_bolter.Height + Fra_bolter.Top", "fra_input.Width x 0.97", "fra_input.Height x 0.07"},
    {"Fra_dim_main", "Fra_material.Left", "((Fra_material.Height + Fra_material.Top) + 40.0)", "fra_input.Width x 0.97", "fra_input.Height x 0.17"},
    {"Opt_stand", "Fra_dim_main.Width x 0.005", "Fra_dim_main.Height x 0.2", "Fra_dim_main.Width x 0.175", "Fra_dim_main.Height x 0.3"},
    {"Opt_valg", "Opt_stand.Left", "Fra_dim_main.Height x 0.5", "Opt_stand.Width", "Fra_dim_main.Height x 0.3"},
    {"Fra_standard", "Fra_dim_main.Width x 0.18", "Fra_dim_main.Height x 0.07", "Fra_dim_main.Width x 0.24", "Fra_dim_main.Height x 0.89"},
    {"Fra_b1_h1", "Fra_standard.Width x 0.06", "Fra_standard.Height x 0.12", "Fra_standard.Width x 0.89", "Fra_standard.Height x 0.4"},
    {"cboProf1", "Fra_b1_h1.Width x 0.05", "Fra_b1_h1.Height x 0.3", "", ""},
    {"Fra_b2_h2", "Fra_standard.Width x 0.06", "Fra_standard.Height x 0.53", "Fra_standard.Width x 0.89", "Fra_standard.Height x 0.42"},
    {"cboProf2", "Fra_b2_h2.Width x 0.05", "Fra_b2_h2.Height x 0.35", "", ""},
    {"Fra_valgfri", "Fra_dim_main.Width x 0.43", "Fra_standard.Top", "", "Fra_standard.Height"},
    {"Pic_Dim", "Fra_valgfri.Width x 0.03", "Fra_valgfri.Height x 0.15", "Fra_valgfri.Width x 0.95", "Fra_valgfri.Height x 0.8"},
    {"Fra_dim_1", "Pic_Dim.Width x 0.02", "Pic_Dim.Height x 0.005", "Pic_Dim.Width x 0.48", "Pic_Dim.Height x 0.96"},
    {"Pic_dim_1", "Fra_dim_1.Width x 0.05", "Fra_dim_1.Height x 0.15", "Fra_dim_1.Width x 0.9", "Fra_dim_1.Height x 0.8"},
    {"Lbl_b1", "Pic_dim_1.Width x 0.01", "Pic_dim_1.Height x 0.08", "", ""},
    {"Txt_b1", "Pic_dim_1.Width x 0.3", "Lbl_b1.Top", "", ""},
    {"Lbl_h1", "Lbl_b1.Left", "Pic_dim_1.Height x 0.55", "", ""},
    {"Txt_h1", "Txt_b1.Left", "Lbl_h1.Top", "", ""},
    {"Fra_dim_2", "((Fra_dim_1.Width + Fra_dim_1.Left) + 25.0)", "Fra_dim_1.Top", "Fra_dim_1.Width", "Fra_dim_1.Height"},
    {"Pic_dim_2", "Fra_dim_2.Width x 0.05", "Fra_dim_2.Height x 0.15", "Fra_dim_2.Width x 0.9", "Fra_dim_2.Height x 0.8"},
    {"Lbl_b2", "Pic_dim_2.Width x 0.01", "Pic_dim_2.Height x 0.08", "", ""},
    {"Txt_b2", "Pic_dim_2.Width x 0.3", "Lbl_b2.Top", "", ""},
    {"Lbl_h2", "Lbl_b2.Left", "Pic_dim_2.Height x 0.55", "", ""},
    {"Txt_h2", "Txt_b2.Left", "Lbl_h2.Top", "", ""},
    {"Fra_klasse", "fra_input.Width x 0.02", "Fra_dim_main.Height + Fra_dim_main.Top", "fra_input.Width x 0.97", "fra_input.Height x 0.055"},
    {"Lbl_lastvar_1", "Fra_klasse.Width x 0.012", "Fra_klasse.Height x 0.4", "Fra_klasse.Width x 0.23", ""},
    {"Lbl_lastvar_2", "Lbl_lastvar_1.Width + Lbl_lastvar_1.Left", "Lbl_lastvar_1.Top", "Fra_klasse.Width x 0.2", ""},
    {"Lbl_klima_1", "((Lbl_lastvar_2.Width + Lbl_lastvar_2.Left) + 150.0)", "Lbl_lastvar_1.Top", "", ""},
    {"Lbl_klima_2", "Lbl_klima_1.Width + Lbl_klima_1.Left", "Lbl_lastvar_1.Top", "", ""},
    {"Lbl_kmod1", "Fra_klasse.Width x 0.73", "Lbl_klima_2.Top", "", ""},
    {"Lbl_kmod2", "Fra_klasse.Width x 0.82", "Fra_klasse.Height x 0.38", "", ""},
    {"Fra_type", "Fra_klasse.Left", "fra_input.Height x 0.53", "Fra_klasse.Width", "fra_input.Width x 0.135"},
    {"Fra_forbindelse", "Fra_klasse.Left", "fra_input.Height x 0.62", "", "fra_input.Height x 0.28"},
    {"Pic_forbindelse", "", "Fra_forbindelse.Height x 0.07", "", "Fra_forbindelse.Height x 0.9"},
    {"Fra_last", "fra_input.Width x 0.57", "Fra_forbindelse.Top", "fra_input.Width x 0.42", "fra_input.Height x 0.1"},
    {"Pic_last", "Fra_last.Width x 0.01", "Fra_last.Height x 0.2", "Fra_last.Width x 0.97", "Fra_last.Height x 0.5"},
    {"Lbl_last", "Pic_last.Width x 0.02", "Pic_last.Height x 0.15", "", ""},
    {"Txt_last", "((Lbl_last.Width + Lbl_last.Left) + 45.0)", "Lbl_last.Top", "", ""},
    {"Lbl_alp", "((Txt_last.Width + Txt_last.Left) + 50.0)", "Lbl_last.Top", "", ""},
    {"Txt_alp", "((Lbl_alp.Width + Lbl_alp.Left) + 45.0)", "Lbl_last.Top", "", ""},
    {"Opt_trykk", "Lbl_last.Left", "Fra_last.Height x 0.65", "", ""},
    {"Opt_strekk", "Lbl_alp.Left + 200.0", "Opt_trykk.Top", "", ""},
    {"Fra_bolt_alt", "Fra_last.Left", "((Fra_last.Height + Fra_last.Top) + 20.0)", "Fra_last.Width", "Fra_forbindelse.Height x 0.3"},
    {"Fra_skive", "Fra_bolt_alt.Left", "((Fra_bolt_alt.Height + Fra_bolt_alt.Top) + 20.0)", "Fra_bolt_alt.Width", "Fra_forbindelse.Height x 0.33"},
    {"Lbl_skive_diameter1", "", "Fra_skive.Height x 0.25", "", ""},
    {"Lbl_skive_diameter2", "", "Lbl_skive_diameter1.Top", "", ""},
    {"Lbl_skive_tykk1", "", "Fra_skive.Height x 0.6", "", ""},
    {"Lbl_skive_tykk2", "Lbl_skive_diameter2.Left", "Lbl_skive_tykk1.Top", "", ""},
    {"Fra_bolt_for", "Fra_forbindelse.Left", "Fra_forbindelse.Height + Fra_forbindelse.Top", "fra_input.Width x 0.97", "fra_input.Height x 0.09"},
    {"Fra_snitt_1", "Fra_bolt_for.Width x 0.02", "Fra_bolt_for.Height x 0.2", "Fra_bolt_for.Width x 0.475", "Fra_bolt_for.Height x 0.75"},
    {"Opt_enk_1", "Fra_snitt_1.Width x 0.03", "Fra_snitt_1.Height x 0.3", "", ""},
    {"Opt_dob_1", "Fra_snitt_1.Width x 0.55", "Opt_enk_1.Top", "", ""},
    {"Fra_snitt_2", "((Fra_snitt_1.Width + Fra_snitt_1.Left) + 100.0)", "Fra_bolt_for.Height x 0.2", "Fra_snitt_1.Width", "Fra_snitt_1.Height"},
    {"Opt_enk_2", "Fra_snitt_2.Width x 0.03", "Fra_snitt_2.Height x 0.3", "", ""},
    {"Opt_dob_2", "Fra_snitt_2.Width x 0.55", "Opt_enk_2.Top", "", ""},
    {"Fra_results", "((fra_input.Width + fra_input.Left) + 75.0)", "fra_input.Top", "Width x 0.53", "fra_input.Height"},
    {"Fra_bolt_kap", "Fra_results.Width x 0.012", "Fra_results.Height x 0.016", "Fra_results.Width x 0.975", "Fra_results.Height x 0.17"},
    {"Lbl_bolt_kap1", "Fra_bolt_kap.Width x 0.01", "Fra_bolt_kap.Height x 0.15", "", ""},
    {"Lbl_bolt_kap2", "((Lbl_bolt_kap1.Width + Lbl_bolt_kap1.Left) + 390.0)", "Lbl_bolt_kap1.Top", "", ""},
    {"Lbl_bulldog_kap1", "Lbl_bolt_kap1.Left", "((Lbl_bolt_kap1.Height + Lbl_bolt_kap1.Top) + 100.0)", "", ""},
    {"Lbl_bulldog_kap2", "Lbl_bolt_kap2.Left", "Lbl_bulldog_kap1.Top", "", ""},
    {"Lbl_bolt_kontroll", "Lbl_bolt_kap1.Left", "((Lbl_bulldog_kap1.Height + Lbl_bulldog_kap1.Top) + 100.0)", "", ""},
    {"Lbl_last_kontroll", "Lbl_bolt_kontroll.Width + Lbl_bolt_kontroll.Left", "Lbl_bolt_kontroll.Top", "", ""},
    {"Lbl_strek", "((Lbl_last_kontroll.Width + Lbl_last_kontroll.Left) + 50.0)", "Lbl_bolt_kontroll.Top - 50.0", "", ""},
    {"Lbl_Rd_kontroll", "Lbl_strek.Width + Lbl_strek.Left", "Lbl_bolt_kontroll.Top", "", ""},
    {"Lbl_pluss", "((Lbl_Rd_kontroll.Width + Lbl_Rd_kontroll.Left) + 50.0)", "Lbl_bolt_kontroll.Top", "", ""},
    {"Lbl_uf", "Lbl_bolt_kap2.Left", "Lbl_bolt_kontroll.Top", "", ""},
    {"Lbl_Rd_bulldog_kontroll", "Lbl_pluss.Width + Lbl_pluss.Left", "Lbl_bolt_kontroll.Top", "", ""},
    {"Lbl_lik", "((Lbl_Rd_bulldog_kontroll.Width + Lbl_Rd_bulldog_kontroll.Left) + 50.0)", "Lbl_bolt_kontroll.Top", "", ""},
    {"Fra_tverr_brudd", "((Lbl_bolt_kap2.Width + Lbl_bolt_kap2.Left) + 50.0)", "Fra_bolt_kap.Height x 0.08", "1600", "Fra_bolt_kap.Height x 0.9"},
    {"Pic_tverr_brudd", "Fra_tverr_brudd.Width x 0.03", "Fra_tverr_brudd.Height x 0.115", "Fra_tverr_brudd.Width x 0.95", "Fra_tverr_brudd.Height x 0.86"},
    {"Check_man", "Pic_tverr_brudd.Width x 0.05", "Pic_tverr_brudd.Height x 0.05", "", ""},
    {"Lbl_man_he", "Check_man.Left", "Pic_tverr_brudd.Height x 0.26", "", ""},
    {"Txt_man_he", "((Lbl_man_he.Width + Lbl_man_he.Left) + 500.0)", "Lbl_man_he.Top", "", ""},
    {"lbl_tverr_1", "Check_man.Left", "Pic_tverr_brudd.Height x 0.51", "800", "250"},
    {"Lbl_tverr_2", "Txt_man_he.Left", "lbl_tverr_1.Top", "Txt_man_he.Width", "250"},
    {"Cmd_tverr", "Pic_tverr_brudd.Width x 0.4", "Pic_tverr_brudd.Height x 0.73", "", ""},
    {"Fra_nef", "((Fra_tverr_brudd.Width + Fra_tverr_brudd.Left) + 50.0)", "Fra_bolt_kap.Height x 0.08", "Fra_bolt_kap.Width x 0.35", "Fra_tverr_brudd.Height"},
    {"lbl_txt_avstand", "Fra_nef.Left x 0.02", "Fra_nef.Height x 0.47", "600", "360"},
    {"Comb_bolt_avstand", "((lbl_txt_avstand.Width + lbl_txt_avstand.Left) + 200.0)", "lbl_txt_avstand.Top", "", ""},
    {"Cmd_Bolt_eff_bolt", "Comb_bolt_avstand.Left + 20.0", "Fra_nef.Height x 0.75", "", ""},
    {"Lbl_tot_eff_bolts_1", "Fra_nef.Width x 0.028", "Fra_nef.Height x 0.22", "750", "250"},
    {"Lbl_2_nef_max", "((Lbl_tot_eff_bolts_1.Width + Lbl_tot_eff_bolts_1.Left) + 100.0)", "Lbl_tot_eff_bolts_1.Top", "", ""},
    {"Lbl_tot_eff_bulldog_1", "((Lbl_2_nef_max.Width + Lbl_2_nef_max.Left) + 100.0)", "Lbl_tot_eff_bolts_1.Top", "780", ""},
    {"Lbl_tot_eff_bulldog_2", "((Lbl_tot_eff_bulldog_1.Width + Lbl_tot_eff_bulldog_1.Left) + 100.0)", "Lbl_tot_eff_bulldog_1.Top", "", ""},
    {"Cmd_detail", "Fra_bolt_kap.Width x 0.15", "Fra_bolt_kap.Height x 0.75", "1400", "Fra_bolt_kap.Height x 0.2"},
    {"fra_av_bolter", "Fra_bolt_kap.Left", "Fra_bolt_kap.Height + Fra_bolt_kap.Top", "Fra_bolt_kap.Width", "Fra_results.Height x 0.4"},
    {"Pic_av_bolter", "fra_av_bolter.Width x 0.015", "fra_av_bolter.Height x 0.05", "Fra_bolt_kap.Width x 0.55", "fra_av_bolter.Height x 0.6"},
    {"Fra_av_bolter_verdier", "((Pic_av_bolter.Width + Pic_av_bolter.Left) - 400.0)", "fra_av_bolter.Height x 0.03", "fra_av_bolter.Width x 0.48", "fra_av_bolter.Height x 0.95"},
    {"Pic_av_bolter_dif", "Fra_av_bolter_verdier.Width x 0.02", "Fra_av_bolter_verdier.Height x 0.05", "Fra_av_bolter_verdier.Width x 0.96", "Fra_av_bolter_verdier.Height x 0.93"},
    {"Fra_av_bulldog", "fra_av_bolter.Left", "((fra_av_bolter.Height + fra_av_bolter.Top) + 10.0)", "fra_av_bolter.Width", "fra_av_bolter.Height"},
    {"Pic_av_bulldog", "", "Fra_av_bulldog.Height x 0.05", "Pic_av_bolter.Width", "Pic_av_bolter.Height"},
    {"Fra_av_bulldog_verdier", "Fra_av_bolter_verdier.Left", "Fra_av_bulldog.Height x 0.05", "Fra_av_bolter_verdier.Width", "Fra_av_bulldog.Height x 0.93"},
    {"Pic_av_bulldog_dif", "Fra_av_bulldog_verdier.Width x 0.02", "Fra_av_bulldog_verdier.Height x 0.05", "Fra_av_bulldog_verdier.Width x 0.95", "Fra_av_bulldog_verdier.Height x 0.93"},
}};
// clang-format on

// A rule is a property ("fra_input.Width", "Width"), a number, a sum, a difference or a product ("x") of such, with
// parentheses. Products bind tighter than sums.
class Rule {
public:
    Rule(std::string_view text, const Boxes& boxes, const Box& window) : text_(text), boxes_(boxes), window_(window) {}

    double Value() {
        const double value = Sum();
        if (at_ != text_.size()) {
            Fail();
        }
        return value;
    }

private:
    double Sum() {
        double value = Product();
        for (;;) {
            if (Take('+')) {
                value += Product();
            } else if (Take('-')) {
                value -= Product();
            } else {
                return value;
            }
        }
    }
    double Product() {
        double value = Term();
        while (Take('x')) {
            value *= Term();
        }
        return value;
    }
    double Term() {
        if (Take('(')) {
            const double value = Sum();
            if (!Take(')')) {
                Fail();
            }
            return value;
        }
        const std::size_t start = at_;
        while (at_ < text_.size() && text_[at_] != ' ' && text_[at_] != ')') {
            ++at_;
        }
        const std::string_view word = text_.substr(start, at_ - start);
        Skip();
        if (!word.empty() && word.front() >= '0' && word.front() <= '9') {
            double number = 0.0;
            std::from_chars(word.data(), word.data() + word.size(), number);
            return number;
        }
        const std::size_t point = word.find('.');
        if (point == std::string_view::npos) {
            return Property(window_, word);
        }
        const auto box = boxes_.find(word.substr(0, point));
        if (box == boxes_.end()) {
            Fail();
        }
        return Property(box->second, word.substr(point + 1));
    }
    double Property(const Box& box, std::string_view name) const {
        if (name == "Left") {
            return box.left;
        }
        if (name == "Top") {
            return box.top;
        }
        if (name == "Width") {
            return box.width;
        }
        if (name == "Height") {
            return box.height;
        }
        Fail();
    }
    bool Take(char sign) {
        if (at_ < text_.size() && text_[at_] == sign) {
            ++at_;
            Skip();
            return true;
        }
        return false;
    }
    void Skip() {
        while (at_ < text_.size() && text_[at_] == ' ') {
            ++at_;
        }
    }
    [[noreturn]] void Fail() const { throw std::logic_error("layout rule: " + std::string{text_}); }

    std::string_view text_;
    std::size_t at_{};
    const Boxes& boxes_;
    const Box& window_;
};

} // namespace

std::span<const LayoutRow> Layout_rows() {
    return layout_rows;
}

double Evaluate_rule(std::string_view rule, const Boxes& boxes, const Box& window) {
    return Rule{rule, boxes, window}.Value();
}

void Apply_layout(Boxes& boxes, const Box& window, LeastHeight least_height, const void* context) {
    for (const LayoutRow& row : layout_rows) {
        const auto found = boxes.find(row.control);
        if (found == boxes.end()) {
            throw std::logic_error("layout of a control that does not exist: " + std::string{row.control});
        }
        Box& box = found->second;
        if (!row.left.empty()) {
            box.left = Evaluate_rule(row.left, boxes, window);
        }
        if (!row.top.empty()) {
            box.top = Evaluate_rule(row.top, boxes, window);
        }
        if (!row.width.empty()) {
            box.width = Evaluate_rule(row.width, boxes, window);
        }
        if (!row.height.empty()) {
            box.height = Evaluate_rule(row.height, boxes, window);
            const double least = least_height(row.control, context);
            if (box.height < least) {
                box.height = least;
            }
        }
    }
}

} // namespace tarnvik
