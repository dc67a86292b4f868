#include "frontend/main/ControlTable.h"

#include <array>

namespace tarnvik {

namespace {

constexpr double line = 14.0;       // a line of text
constexpr double box_height = 17.0; // a text box
constexpr double list_height = 19.0;

using enum Kind;

// clang-format off
constexpr std::array control_rows{
    ControlRow{"fra_input",               frame,          "",                       "Input",       0, 0, 0, 0},
    ControlRow{"lbl_prosjekt",            label,          "fra_input",              "",            0, 0, 0, line},
    ControlRow{"txtprosjekt",             text_box,       "fra_input",              "",            0, 0, 0, box_height},
    ControlRow{"lblid",                   label,          "fra_input",              "",            0, 0, 0, 13},
    ControlRow{"txtid",                   text_box,       "fra_input",              "",            0, 0, 0, box_height},

    ControlRow{"Fra_valg_bolt_bulldog",   frame,          "fra_input",              "",            0, 0, 0, 0},
    ControlRow{"Opt_bolt_bulldog(0)",     option,         "Fra_valg_bolt_bulldog",  "",            6, 16, 103, 20},
    ControlRow{"Opt_bolt_bulldog(1)",     option,         "Fra_valg_bolt_bulldog",  "",            6, 40, 0, 30},
    ControlRow{"Fra_bolter",              frame,          "fra_input",              "",            0, 0, 0, 0},
    ControlRow{"Comb_bolter",             list,           "Fra_bolter",             "",            8, 17, 107, list_height},
    ControlRow{"Lbl_ant_bolt",            label,          "Fra_bolter",             "",            4, 48, 79, line},
    ControlRow{"Comb_ant_bolt",           list,           "Fra_bolter",             "",            84, 46, 37, list_height},
    ControlRow{"Fra_bulldog",             frame,          "fra_input",              "",            0, 0, 0, 0},
    ControlRow{"Comb_bulldog",            list,           "Fra_bulldog",            "",            0, 0, 0, list_height},
    ControlRow{"Lbl_bulldog1",            label,          "Fra_bulldog",            "",            0, 0, 148, 28},
    ControlRow{"Lbl_bulldog2",            value,          "Fra_bulldog",            "",            0, 0, 38, 28},

    ControlRow{"Fra_material",            frame,          "fra_input",              "",            0, 0, 0, 0},
    ControlRow{"cboMat",                  list,           "Fra_material",           "",            8, 19, 96, list_height},
    ControlRow{"Lbl_densitet1",           label,          "Fra_material",           "",            122, 22, 54, line},
    ControlRow{"lbl_densitet2",           value,          "Fra_material",           "",            177, 22, 32, line},
    ControlRow{"Lbl_fc90k1",              label,          "Fra_material",           "fc90k =",     232, 22, 42, line},
    ControlRow{"Lbl_fc90k2",              value,          "Fra_material",           "",            275, 22, 32, line},
    ControlRow{"Lbl_gm1",                 label,          "Fra_material",           "gm =",        334, 22, 32, line},
    ControlRow{"lbl_gm",                  value,          "Fra_material",           "",            367, 22, 36, line},

    ControlRow{"Fra_dim_main",            frame,          "fra_input",              "",            0, 0, 0, 0},
    ControlRow{"Opt_stand",               option,         "Fra_dim_main",           "",            0, 0, 0, 0},
    ControlRow{"Opt_valg",                option,         "Fra_dim_main",           "",            0, 0, 0, 0},
    ControlRow{"Fra_standard",            frame,          "Fra_dim_main",           "Standard",    0, 0, 0, 0},
    ControlRow{"Fra_b1_h1",               frame,          "Fra_standard",           "",            0, 0, 0, 0},
    ControlRow{"cboProf1",                list,           "Fra_b1_h1",              "",            0, 0, 87, list_height},
    ControlRow{"Fra_b2_h2",               frame,          "Fra_standard",           "",            0, 0, 0, 0},
    ControlRow{"cboProf2",                list,           "Fra_b2_h2",              "",            0, 0, 87, list_height},
    ControlRow{"Fra_valgfri",             frame,          "Fra_dim_main",           "Valgfri (mm)", 0, 0, 248, 0},
    ControlRow{"Pic_Dim",                 focus_area,     "Fra_valgfri",            "",            0, 0, 0, 0},
    ControlRow{"Fra_dim_1",               frame,          "Pic_Dim",                "",            0, 0, 0, 0},
    ControlRow{"Pic_dim_1",               plain,          "Fra_dim_1",              "",            0, 0, 0, 0},
    ControlRow{"Lbl_b1",                  label,          "Pic_dim_1",              "b =",         0, 0, 26, 18},
    ControlRow{"Lbl_h1",                  label,          "Pic_dim_1",              "h =",         0, 0, 26, 18},
    ControlRow{"Txt_b1",                  text_box,       "Pic_dim_1",              "",            0, 0, 62, 18},
    ControlRow{"Txt_h1",                  text_box,       "Pic_dim_1",              "",            0, 0, 62, 18},
    ControlRow{"Fra_dim_2",               frame,          "Pic_Dim",                "",            0, 0, 0, 0},
    ControlRow{"Pic_dim_2",               plain,          "Fra_dim_2",              "",            0, 0, 0, 0},
    ControlRow{"Lbl_b2",                  label,          "Pic_dim_2",              "b =",         0, 0, 26, 18},
    ControlRow{"Lbl_h2",                  label,          "Pic_dim_2",              "h =",         0, 0, 26, 18},
    ControlRow{"Txt_b2",                  text_box,       "Pic_dim_2",              "",            0, 0, 62, 18},
    ControlRow{"Txt_h2",                  text_box,       "Pic_dim_2",              "",            0, 0, 62, 18},

    ControlRow{"Fra_klasse",              frame,          "fra_input",              "",            0, 0, 0, 0},
    ControlRow{"Lbl_lastvar_1",           label,          "Fra_klasse",             "",            0, 0, 0, line},
    ControlRow{"Lbl_lastvar_2",           value,          "Fra_klasse",             "",            0, 0, 0, line},
    ControlRow{"Lbl_klima_1",             label,          "Fra_klasse",             "",            0, 0, 0, line},
    ControlRow{"Lbl_klima_2",             value,          "Fra_klasse",             "",            0, 0, 14, line},
    ControlRow{"Lbl_kmod1",               label,          "Fra_klasse",             "kmod =",      0, 0, 39, line},
    ControlRow{"Lbl_kmod2",               value,          "Fra_klasse",             "",            0, 0, 36, line},

    ControlRow{"Fra_type",                frame,          "fra_input",              "",            0, 0, 0, 0},
    ControlRow{"Cmd_type(0)",             picture_button, "Fra_type",               "1",           8, 15, 82, 43},
    ControlRow{"Cmd_type(1)",             picture_button, "Fra_type",               "2",           95, 15, 82, 43},
    ControlRow{"Cmd_type(2)",             picture_button, "Fra_type",               "3",           182, 15, 82, 43},
    ControlRow{"Cmd_type(3)",             picture_button, "Fra_type",               "4",           269, 15, 82, 43},
    ControlRow{"Cmd_type(4)",             picture_button, "Fra_type",               "5",           356, 15, 82, 43},

    ControlRow{"Fra_forbindelse",         frame,          "fra_input",              "",            0, 0, 249, 0},
    ControlRow{"Pic_forbindelse",         picture,        "Fra_forbindelse",        "",            5, 0, 239, 0},
    ControlRow{"Fra_last",                frame,          "fra_input",              "",            0, 0, 0, 0},
    ControlRow{"Pic_last",                plain,          "Fra_last",               "",            0, 0, 0, 0},
    ControlRow{"Lbl_last",                label,          "Pic_last",               "P=",          0, 0, 16, 18},
    ControlRow{"Txt_last",                text_box,       "Pic_last",               "",            0, 0, 54, 18},
    ControlRow{"Lbl_alp",                 label,          "Pic_last",               "a =",         0, 0, 20, 18},
    ControlRow{"Txt_alp",                 text_box,       "Pic_last",               "",            0, 0, 50, 18},
    ControlRow{"Opt_trykk",               option,         "Fra_last",               "",            0, 0, 86, 20},
    ControlRow{"Opt_strekk",              option,         "Fra_last",               "",            0, 0, 80, 20},
    ControlRow{"Fra_bolt_alt",            frame,          "fra_input",              "",            0, 0, 0, 0},
    ControlRow{"Cmd_boltetype(0)",        choice_button,"Fra_bolt_alt",           "Alt. 1",      16, 21, 70, 26},
    ControlRow{"Cmd_boltetype(1)",        choice_button,"Fra_bolt_alt",           "Alt. 2",      104, 21, 70, 26},
    ControlRow{"Fra_skive",               frame,          "fra_input",              "",            0, 0, 0, 0},
    ControlRow{"Lbl_skive_diameter1",     label,          "Fra_skive",              "Diameter=",   10, 0, 56, line},
    ControlRow{"Lbl_skive_diameter2",     value,          "Fra_skive",              "",            74, 0, 50, line},
    ControlRow{"Lbl_skive_tykk1",         label,          "Fra_skive",              "Tykkelse=",   10, 0, 56, line},
    ControlRow{"Lbl_skive_tykk2",         value,          "Fra_skive",              "",            0, 0, 50, line},

    ControlRow{"Fra_bolt_for",            frame,          "fra_input",              "",            0, 0, 0, 0},
    ControlRow{"Fra_snitt_1",             frame,          "Fra_bolt_for",           "",            0, 0, 0, 0},
    ControlRow{"Opt_enk_1",               option,         "Fra_snitt_1",            "",            0, 0, 96, 24},
    ControlRow{"Opt_dob_1",               option,         "Fra_snitt_1",            "",            0, 0, 92, 24},
    ControlRow{"Fra_snitt_2",             frame,          "Fra_bolt_for",           "",            0, 0, 0, 0},
    ControlRow{"Opt_enk_2",               option,         "Fra_snitt_2",            "",            0, 0, 96, 24},
    ControlRow{"Opt_dob_2",               option,         "Fra_snitt_2",            "",            0, 0, 92, 24},

    ControlRow{"Fra_results",             frame,          "",                       "Results",     0, 0, 0, 0},
    ControlRow{"Fra_bolt_kap",            frame,          "Fra_results",            "",            0, 0, 0, 0},
    ControlRow{"Lbl_bolt_kap1",           label,          "Fra_bolt_kap",           "",            0, 0, 158, line},
    ControlRow{"Lbl_bolt_kap2",           value,          "Fra_bolt_kap",           "",            0, 0, 40, line},
    ControlRow{"Lbl_bulldog_kap1",        label,          "Fra_bolt_kap",           "",            0, 0, 180, line},
    ControlRow{"Lbl_bulldog_kap2",        value,          "Fra_bolt_kap",           "",            0, 0, 40, line},
    ControlRow{"Lbl_bolt_kontroll",       label,          "Fra_bolt_kap",           "",            0, 0, 51, line},
    ControlRow{"Lbl_last_kontroll",       value,          "Fra_bolt_kap",           "",            0, 0, 29, line},
    ControlRow{"Lbl_strek",               label,          "Fra_bolt_kap",           "/ (",         0, 0, 11, line},
    ControlRow{"Lbl_Rd_kontroll",         value,          "Fra_bolt_kap",           "",            0, 0, 29, line},
    ControlRow{"Lbl_pluss",               label,          "Fra_bolt_kap",           "+",           0, 0, 9, line},
    ControlRow{"Lbl_Rd_bulldog_kontroll", value,          "Fra_bolt_kap",           "",            0, 0, 29, line},
    ControlRow{"Lbl_lik",                 label,          "Fra_bolt_kap",           ") = ",        0, 0, 15, line},
    ControlRow{"Lbl_uf",                  value,          "Fra_bolt_kap",           "",            0, 0, 40, line},
    ControlRow{"Cmd_detail",              button,         "Fra_bolt_kap",           "",            0, 0, 0, 0},
    ControlRow{"Fra_tverr_brudd",         frame,          "Fra_bolt_kap",           "",            0, 0, 0, 0},
    ControlRow{"Pic_tverr_brudd",         plain,          "Fra_tverr_brudd",        "",            0, 0, 0, 0},
    ControlRow{"Check_man",               check,          "Pic_tverr_brudd",        "Man. he",     0, 0, 86, 17},
    ControlRow{"Lbl_man_he",              label,          "Pic_tverr_brudd",        "he =",        0, 0, 24, 18},
    ControlRow{"Txt_man_he",              text_box,       "Pic_tverr_brudd",        "",            0, 0, 36, 18},
    ControlRow{"lbl_tverr_1",             label,          "Pic_tverr_brudd",        "",            0, 0, 0, 0},
    ControlRow{"Lbl_tverr_2",             value,          "Pic_tverr_brudd",        "",            0, 0, 0, 0},
    ControlRow{"Cmd_tverr",               button,         "Pic_tverr_brudd",        "?",           0, 0, 40, 20},
    ControlRow{"Fra_nef",                 frame,          "Fra_bolt_kap",           "",            0, 0, 0, 0},
    ControlRow{"Lbl_tot_eff_bolts_1",     label,          "Fra_nef",                "",            0, 0, 0, 0},
    ControlRow{"Lbl_2_nef_max",           value,          "Fra_nef",                "",            0, 0, 27, 17},
    ControlRow{"Lbl_tot_eff_bulldog_1",   label,          "Fra_nef",                "",            0, 0, 0, 17},
    ControlRow{"Lbl_tot_eff_bulldog_2",   value,          "Fra_nef",                "",            0, 0, 25, 17},
    ControlRow{"lbl_txt_avstand",         label,          "Fra_nef",                "",            0, 0, 0, 0},
    ControlRow{"Comb_bolt_avstand",       list,           "Fra_nef",                "",            0, 0, 54, list_height},
    ControlRow{"Cmd_Bolt_eff_bolt",       button,         "Fra_nef",                "?",           0, 0, 40, 20},

    ControlRow{"fra_av_bolter",           frame,          "Fra_results",            "",            0, 0, 0, 0},
    ControlRow{"Pic_av_bolter",           picture,        "fra_av_bolter",          "",            0, 0, 0, 0},
    ControlRow{"Fra_av_bolter_verdier",   frame,          "fra_av_bolter",          "",            0, 0, 0, 0},
    ControlRow{"Pic_av_bolter_dif",       table,          "Fra_av_bolter_verdier",  "",            0, 0, 0, 0},
    ControlRow{"Fra_av_bulldog",          frame,          "Fra_results",            "",            0, 0, 0, 0},
    ControlRow{"Pic_av_bulldog",          picture,        "Fra_av_bulldog",         "",            8, 0, 0, 0},
    ControlRow{"Fra_av_bulldog_verdier",  frame,          "Fra_av_bulldog",         "",            0, 0, 0, 0},
    ControlRow{"Pic_av_bulldog_dif",      table,          "Fra_av_bulldog_verdier", "",            0, 0, 0, 0},

    // The program's own, placed by frontend/main/Marks.cpp.
    ControlRow{"Lbl_file",                mark,           "Fra_results",            "",            0, 0, 0, 0},
    ControlRow{"Lbl_current",             mark,           "Fra_results",            "",            0, 0, 0, 0},
    ControlRow{"Lbl_verdict",             mark,           "Fra_results",            "",            0, 0, 0, 0},
    ControlRow{"Lbl_sign",                mark,           "Fra_last",               "",            0, 0, 0, 0},
    ControlRow{"Lbl_tverr_current",       mark,           "Pic_tverr_brudd",        "",            0, 0, 0, 0},
};

constexpr std::array buddies{
    Buddy{"lbl_prosjekt", "txtprosjekt"}, Buddy{"lblid", "txtid"},       Buddy{"Lbl_ant_bolt", "Comb_ant_bolt"},
    Buddy{"Lbl_b1", "Txt_b1"},            Buddy{"Lbl_h1", "Txt_h1"},     Buddy{"Lbl_b2", "Txt_b2"},
    Buddy{"Lbl_h2", "Txt_h2"},            Buddy{"Lbl_last", "Txt_last"}, Buddy{"Lbl_alp", "Txt_alp"},
    Buddy{"Lbl_man_he", "Txt_man_he"},    Buddy{"lbl_txt_avstand", "Comb_bolt_avstand"},
};

constexpr std::array captioned{
    CaptionedValue{"Lbl_bulldog1", "Lbl_bulldog2"},
    CaptionedValue{"Lbl_densitet1", "lbl_densitet2"},
    CaptionedValue{"Lbl_fc90k1", "Lbl_fc90k2"},
    CaptionedValue{"Lbl_gm1", "lbl_gm"},
    CaptionedValue{"Lbl_lastvar_1", "Lbl_lastvar_2"},
    CaptionedValue{"Lbl_klima_1", "Lbl_klima_2"},
    CaptionedValue{"Lbl_kmod1", "Lbl_kmod2"},
    CaptionedValue{"Lbl_skive_diameter1", "Lbl_skive_diameter2"},
    CaptionedValue{"Lbl_skive_tykk1", "Lbl_skive_tykk2"},
    CaptionedValue{"Lbl_bolt_kap1", "Lbl_bolt_kap2"},
    CaptionedValue{"Lbl_bulldog_kap1", "Lbl_bulldog_kap2"},
    CaptionedValue{"Lbl_bolt_kontroll", "Lbl_last_kontroll"},
    CaptionedValue{"Lbl_strek", "Lbl_Rd_kontroll"},
    CaptionedValue{"Lbl_pluss", "Lbl_Rd_bulldog_kontroll"},
    CaptionedValue{"lbl_tverr_1", "Lbl_tverr_2"},
    CaptionedValue{"Lbl_tot_eff_bolts_1", "Lbl_2_nef_max"},
    CaptionedValue{"Lbl_tot_eff_bulldog_1", "Lbl_tot_eff_bulldog_2"},
};
// clang-format on

} // namespace

std::span<const ControlRow> Control_rows() {
    return control_rows;
}

std::span<const Buddy> Buddies() {
    return buddies;
}

std::span<const CaptionedValue> Captioned_values() {
    return captioned;
}

} // namespace tarnvik
