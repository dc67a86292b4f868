#include "calc/Screen.h"

namespace tarnvik {

namespace {

constexpr std::array<std::string_view, control_count> control_names{
    "txtprosjekt",
    "txtid",
    "Fra_klasse",
    "Lbl_lastvar_1",
    "Lbl_lastvar_2",
    "Lbl_klima_2",
    "Lbl_kmod2",
    "Comb_bulldog",
    "mnuprint",
    "Lbl_skive_diameter2",
    "Lbl_skive_tykk2",
    "lbl_densitet2",
    "Lbl_fc90k2",
    "lbl_gm",
    "Txt_b1",
    "Txt_h1",
    "Txt_b2",
    "Txt_h2",
    "Cmd_boltetype(0)",
    "Cmd_boltetype(1)",
    "Lbl_bulldog2",
    "Fra_av_bulldog",
    "Fra_bulldog",
    "Lbl_bulldog_kap1",
    "Lbl_bulldog_kap2",
    "Lbl_pluss",
    "Lbl_Rd_bulldog_kontroll",
    "Comb_bolt_avstand",
    "Lbl_tot_eff_bulldog_1",
    "Lbl_tot_eff_bulldog_2",
    "Lbl_2_nef_max",
    "lbl_txt_avstand",
    "Txt_alp",
    "Txt_man_he",
    "Lbl_tverr_2",
    "Lbl_bolt_kap2",
    "Lbl_last_kontroll",
    "Lbl_Rd_kontroll",
    "Lbl_uf",
    "Cmd_detail",
};
static_assert(!control_names.back().empty());

} // namespace

std::string_view Control_name(Control control) {
    return control_names[static_cast<std::size_t>(control)];
}

} // namespace tarnvik
