#include "frontend/main/Languages.h"

#include <array>

#include "report/PrintReport.h"

namespace tarnvik {

namespace {

// Misspellings and blanks belong to the texts.
// clang-format off
constexpr std::array<CaptionRow, 62> caption_rows{{
    // control                                     English                                              Norwegian
    {"mnuklasse",                                  "Classes",                                           "Klasser"},
    {"mnuprint",                                   "Print",                                             "Skriv ut"},
    {"mnuhelp",                                    "Help",                                              "Hjelp"},
    {"mnuabout",                                   "Tarnvik",                                           "Tarnvik"},
    {"mnuFileItem(1)",                             "Open",                                              "Åpne"},
    {"mnuFileItem(2)",                             "Save",                                              "Lagre"},
    {"mnuFileItem(3)",                             "Save as",                                           "Lagre som"},
    {"lbl_prosjekt",                               "Project name",                                      "Prosjekt navn"},
    {"lblid",                                      "Identification",                                    "Identifikasjon"},
    {"Fra_valg_bolt_bulldog",                      "Type of fasteners",                                 "Valg av boltesystem"},
    {"Opt_bolt_bulldog(0)",                        "Only bolts",                                        "Bare bolter"},
    {"Opt_bolt_bulldog(1)",                        "Bolts and plate connectors",                        "Bolter og tannede forbinder"},
    {"Fra_bolter",                                 "Bolt data",                                         "Boltedata"},
    {"Lbl_ant_bolt",                               "Number of bolts",                                   "Antall bolter"},
    {"Fra_bulldog",                                "Double-sided Tooth-plate Connector",                "Tannet forbinder"},
    {"Lbl_bulldog1",                               "Characteristic capacity of a single connector=",    "Karakteristisk kapasitet av en enkel forbinder="},
    {"Fra_material",                               "Timber Quality",                                    "Trekvalitet"},
    {"Lbl_densitet1",                              "Density =",                                         "Densitet ="},
    {"Fra_dim_main",                               "Dimensions",                                        "Dimensjoner"},
    {"Opt_stand",                                  "Standard dimensions",                               "Standard dimensioner"},
    {"Opt_valg",                                   "Optional dimensions",                               "Valgfrie dimensjoner"},
    {"Fra_standard",                               "Standard",                                          nullptr},
    {"Fra_valgfri",                                "Optional (mm)",                                     nullptr},
    {"Fra_klasse",                                 "Classes",                                           "Klasser"},
    {"Lbl_lastvar_1",                              "Load-duration class =",                             "Lastvarighetsklasse = "},
    {"Lbl_klima_1",                                "Service class =",                                   "Klimaklasse ="},
    {"Fra_type",                                   "Type of connection",                                "Type forbindelse"},
    {"Fra_forbindelse",                            "Connection",                                        "Forbindelse"},
    {"Fra_last",                                   "Load (kN,Degree",                                   "Last (kN,Grader"},
    {"Opt_trykk",                                  "Compression",                                       "Trykk"},
    {"Opt_strekk",                                 "Tension",                                           "Strekk"},
    {"Fra_bolt_alt",                               "Alternative location of bolts",                     "Alternative plassering av bolter"},
    {"Fra_skive",                                  "Minimum washer (mm)",                               "Minimum skive (mm)"},
    {"Fra_bolt_for",                               "Type of shear",                                     "Type snitt"},
    {"Opt_enk_1",                                  "Single shear",                                      "Enkelt"},
    {"Opt_dob_1",                                  "Double shear",                                      "Dobbelt"},
    {"Opt_enk_2",                                  "Single shear",                                      "Enkelt"},
    {"Opt_dob_2",                                  "Double shear",                                      "Dobbelt"},
    {"Fra_results",                                "Results",                                           "Resultater"},
    {"Fra_bolt_kap",                               "Capasity of the connection(kN)",                    "Kapasitet av forbindelse (kN)"},
    {"Lbl_bolt_kap1",                              "Total capasity of bolts, Rd=",                      "Total kapasitet av bolter, Rd ="},
    {"Lbl_bulldog_kap1",                           "Total capasity of connecters, Rd  =",               "Total kapasitet av forbinder, Rd  ="},
    {"Lbl_bolt_kontroll",                          "Control ",                                          "Kontroll ="},
    {"Cmd_detail",                                 "Detailed results",                                  "Detalj resultater"},
    {"Fra_nef",                                    "Effective bolts and connectors",                    "Effektive antall bolter og forbindere"},
    {"lbl_txt_avstand",                            "Bolt distance",                                     "Bolte avstand"},
    {"Lbl_tot_eff_bolts_1",                        "Eff. bolts",                                        "Eff. bolter"},
    {"Lbl_tot_eff_bulldog_1",                      "Eff conect.",                                       "Eff. forb."},
    {"Fra_tverr_brudd",                            "Splitting capacity",                                "Tverrsnittsbrudd"},
    {"lbl_tverr_1",                                "Control =",                                         "Kontroll ="},
    {"fra_av_bolter",                              "Distance between bolts (mm)",                       "Avstand mellom bolter (mm)"},
    {"Fra_av_bolter_verdier",                      "Min. distances and controll of heights of members", "Min. avstander og kontroll av høyde av staver"},
    {"Fra_av_bulldog",                             "Distance between Tooth-plate connecters",           "Avstand mellom tannete forbindere (mm)"},
    {"Fra_av_bulldog_verdier",                     "Min. distances and controll of heights of members", "Min. avstander og kontroll av høyde av staver"},
    {"Frm_tarn_vik_fak_klass",                     "Classes",                                           "Klasser"},
    {"Frm_tarn_vik_fak_klass.Fra_lastvar",         "Load_duration class",                               "Lastvarighet"},
    {"Frm_tarn_vik_fak_klass.Fra_klimaklasse",     "Service class",                                     "Klimaklasse"},
    {"Frm_tarn_vik_fak_klass.Opt_Lastvarighet(0)", "Permanent action",                                  "Permanent last"},
    {"Frm_tarn_vik_fak_klass.Opt_Lastvarighet(1)", "Long term action",                                  "Langtidslast"},
    {"Frm_tarn_vik_fak_klass.Opt_Lastvarighet(2)", "Medium term action",                                "Halvårslast"},
    {"Frm_tarn_vik_fak_klass.Opt_Lastvarighet(3)", "Short term action",                                 "Kortidslast"},
    {"Frm_tarn_vik_fak_klass.Opt_Lastvarighet(4)", "Instantaneous action",                              "Øyeblikkslast"},
}};

constexpr std::array<MemberRow, 5> members_english{{
    {"Top chord ", "Bottom chord", "Top chord bxh", "Bottom chord bxh"},
    {"Beam",       "Column",       "Beam bxh",      "Column bxh"},
    {"Top chord ", "Bottom chord", "Top chord bxh", "Bottom chord bxh"},
    {"Beam",       "Column",       "Beam bxh",      "Column bxh "},
    {"Beam",       "Column",       "Beam bxh",      "Column bxh "},
}};

// Type 3 has a collar beam here where the English text says bottom chord.
constexpr std::array<MemberRow, 5> members_norwegian{{
    {"Overgurt ", "Undergurt",  "Overgurt bxh", "Undergurt bxh"},
    {"Bjelke",    "Søyle",      "Bjelke bxh",   "Søyle  bxh"},
    {"Overgurt",  "Hanebjelke", "Overgurt bxh", "Hanebjelke bxh"},
    {"Bjelke",    "Søyle",      "Bjelke bxh",   "Søyle bxh "},
    {"Bjelke",    "Søyle",      "Bjelke bxh",   "Søyle bxh"},
}};
// clang-format on

void Write(ConnectionValues& s, const SetCaption& set, bool english) {
    for (const CaptionRow& row : caption_rows) {
        if (const char* caption = english ? row.english : row.norwegian) {
            set(row.control, caption);
        }
    }
    if (const MemberRow* row = Member_captions(s.Con_type, english)) {
        for (const std::string_view control : {"Fra_snitt_1", "Fra_dim_1"}) {
            set(control, row->name_1);
        }
        for (const std::string_view control : {"Fra_snitt_2", "Fra_dim_2"}) {
            set(control, row->name_2);
        }
        set("Fra_b1_h1", row->section_1);
        set("Fra_b2_h2", row->section_2);
    }
    if (s.Lastvar >= 1 && s.Lastvar <= static_cast<int>(class_table.size())) {
        const ClassRow& row = class_table[static_cast<std::size_t>(s.Lastvar - 1)];
        s.Lastvar_txt = english ? row.name_eng : row.name_nor;
    }
}

// The lines of the printed report.
void Set_about(AboutTexts& about, bool english) {
    const InfoLines& info = Info_lines(english);
    about.title = info.Info_1;
    about.version = info.Info_2;
}

} // namespace

std::span<const CaptionRow> Caption_rows() {
    return caption_rows;
}

const MemberRow* Member_captions(int Con_type, bool english) {
    if (Con_type < 1 || Con_type > 5) {
        return nullptr;
    }
    const auto row = static_cast<std::size_t>(Con_type - 1);
    return english ? &members_english[row] : &members_norwegian[row];
}

void English(ConnectionValues& s, AboutTexts& about, const SetCaption& set) {
    Write(s, set, true);
    Set_about(about, true);
}

void Norsk(ConnectionValues& s, AboutTexts& about, const SetCaption& set) {
    Write(s, set, false);
    Set_about(about, false);
}

} // namespace tarnvik
