// The two languages: every text that a language procedure writes, the member names by type, and what no procedure
// touches.
#include "frontend/dialogs/Frm_tarn_vik_fak_klass.h"
#include "spacing/sketch/Connection_picture.h"
#include "tests/support/Window.h"

#include <QImage>
#include <QPixmap>

namespace tarnvik::test {
namespace {

struct Wording {
    const char* control;
    const char* english; // null: the procedure of this language leaves the caption alone
    const char* norwegian;
};

// Misspellings and blanks belong to the texts.
// clang-format off
constexpr Wording captions[] = {
    {"mnuklasse",               "Classes",                                            "Klasser"},
    {"mnuprint",                "Print",                                              "Skriv ut"},
    {"mnuhelp",                 "Help",                                               "Hjelp"},
    {"mnuabout",                "Tarnvik",                                            "Tarnvik"},
    {"mnuFileItem(1)",          "Open",                                               "Åpne"},
    {"mnuFileItem(2)",          "Save",                                               "Lagre"},
    {"mnuFileItem(3)",          "Save as",                                            "Lagre som"},
    {"lbl_prosjekt",            "Project name",                                       "Prosjekt navn"},
    {"lblid",                   "Identification",                                     "Identifikasjon"},
    {"Fra_valg_bolt_bulldog",   "Type of fasteners",                                  "Valg av boltesystem"},
    {"Opt_bolt_bulldog(0)",     "Only bolts",                                         "Bare bolter"},
    {"Opt_bolt_bulldog(1)",     "Bolts and plate connectors",                         "Bolter og tannede forbinder"},
    {"Fra_bolter",              "Bolt data",                                          "Boltedata"},
    {"Lbl_ant_bolt",            "Number of bolts",                                    "Antall bolter"},
    {"Fra_bulldog",             "Double-sided Tooth-plate Connector",                 "Tannet forbinder"},
    {"Lbl_bulldog1",            "Characteristic capacity of a single connector=",     "Karakteristisk kapasitet av en enkel forbinder="},
    {"Fra_material",            "Timber Quality",                                     "Trekvalitet"},
    {"Lbl_densitet1",           "Density =",                                          "Densitet ="},
    {"Fra_dim_main",            "Dimensions",                                         "Dimensjoner"},
    {"Opt_stand",               "Standard dimensions",                                "Standard dimensioner"},
    {"Opt_valg",                "Optional dimensions",                                "Valgfrie dimensjoner"},
    {"Fra_standard",            "Standard",                                           nullptr},
    {"Fra_valgfri",             "Optional (mm)",                                      nullptr},
    {"Fra_klasse",              "Classes",                                            "Klasser"},
    {"Lbl_lastvar_1",           "Load-duration class =",                              "Lastvarighetsklasse = "},
    {"Lbl_klima_1",             "Service class =",                                    "Klimaklasse ="},
    {"Fra_type",                "Type of connection",                                 "Type forbindelse"},
    {"Fra_forbindelse",         "Connection",                                         "Forbindelse"},
    {"Fra_last",                "Load (kN,Degree",                                    "Last (kN,Grader"},
    {"Opt_trykk",               "Compression",                                        "Trykk"},
    {"Opt_strekk",              "Tension",                                            "Strekk"},
    {"Fra_bolt_alt",            "Alternative location of bolts",                      "Alternative plassering av bolter"},
    {"Fra_skive",               "Minimum washer (mm)",                                "Minimum skive (mm)"},
    {"Fra_bolt_for",            "Type of shear",                                      "Type snitt"},
    {"Opt_enk_1",               "Single shear",                                       "Enkelt"},
    {"Opt_dob_1",               "Double shear",                                       "Dobbelt"},
    {"Opt_enk_2",               "Single shear",                                       "Enkelt"},
    {"Opt_dob_2",               "Double shear",                                       "Dobbelt"},
    {"Fra_results",             "Results",                                            "Resultater"},
    {"Fra_bolt_kap",            "Capasity of the connection(kN)",                     "Kapasitet av forbindelse (kN)"},
    {"Lbl_bolt_kap1",           "Total capasity of bolts, Rd=",                       "Total kapasitet av bolter, Rd ="},
    {"Lbl_bulldog_kap1",        "Total capasity of connecters, Rd  =",                "Total kapasitet av forbinder, Rd  ="},
    {"Lbl_bolt_kontroll",       "Control ",                                           "Kontroll ="},
    {"Cmd_detail",              "Detailed results",                                   "Detalj resultater"},
    {"Fra_nef",                 "Effective bolts and connectors",                     "Effektive antall bolter og forbindere"},
    {"lbl_txt_avstand",         "Bolt distance",                                      "Bolte avstand"},
    {"Lbl_tot_eff_bolts_1",     "Eff. bolts",                                         "Eff. bolter"},
    {"Lbl_tot_eff_bulldog_1",   "Eff conect.",                                        "Eff. forb."},
    {"Fra_tverr_brudd",         "Splitting capacity",                                 "Tverrsnittsbrudd"},
    {"lbl_tverr_1",             "Control =",                                          "Kontroll ="},
    {"fra_av_bolter",           "Distance between bolts (mm)",                        "Avstand mellom bolter (mm)"},
    {"Fra_av_bolter_verdier",   "Min. distances and controll of heights of members",  "Min. avstander og kontroll av høyde av staver"},
    {"Fra_av_bulldog",          "Distance between Tooth-plate connecters",            "Avstand mellom tannete forbindere (mm)"},
    {"Fra_av_bulldog_verdier",  "Min. distances and controll of heights of members",  "Min. avstander og kontroll av høyde av staver"},
};

constexpr Wording captions_of_classes[] = {
    {"Frm_tarn_vik_fak_klass",  "Classes",                                            "Klasser"},
    {"Fra_lastvar",             "Load_duration class",                                "Lastvarighet"},
    {"Fra_klimaklasse",         "Service class",                                      "Klimaklasse"},
    {"Opt_Lastvarighet(0)",     "Permanent action",                                   "Permanent last"},
    {"Opt_Lastvarighet(1)",     "Long term action",                                   "Langtidslast"},
    {"Opt_Lastvarighet(2)",     "Medium term action",                                 "Halvårslast"},
    {"Opt_Lastvarighet(3)",     "Short term action",                                  "Kortidslast"},
    {"Opt_Lastvarighet(4)",     "Instantaneous action",                               "Øyeblikkslast"},
};

constexpr Wording captions_of_setup[] = {
    {"frmSetup",           "Setup",                        "Setup"},
    {"Fra_language",       "Language",                     "Språk"},
    {"Cmd_save",           "Save to file",                 "Lagre på fil"},
    {"Fra_set_annex",      "Partial factors and language", "Partialfaktorer og språk"},
    {"Fra_part_fac",       "Partial factors",              "Partialfaktorer"},
    {"Lbl_gamma_timb",     "Timber",                       "Trelast"},
    {"Lbl_gamma_lam",      "Laminated",                    "Laminert"},
    {"Lbl_gamma_kerto",    "Kerto",                        "Kerto"},
    {"Lbl_gamma_k_bjelke", "K-bjelke",                     "K-bjelke"},
};

struct Members {
    int Con_type;
    const char* english[4];   // name of member 1 and 2, section of member 1 and 2
    const char* norwegian[4];
};
constexpr Members members[] = {
    {1, {"Top chord ", "Bottom chord", "Top chord bxh", "Bottom chord bxh"}, {"Overgurt ", "Undergurt",  "Overgurt bxh", "Undergurt bxh"}},
    {2, {"Beam",       "Column",       "Beam bxh",      "Column bxh"},       {"Bjelke",    "Søyle",      "Bjelke bxh",   "Søyle  bxh"}},
    {3, {"Top chord ", "Bottom chord", "Top chord bxh", "Bottom chord bxh"}, {"Overgurt",  "Hanebjelke", "Overgurt bxh", "Hanebjelke bxh"}},
    {4, {"Beam",       "Column",       "Beam bxh",      "Column bxh "},      {"Bjelke",    "Søyle",      "Bjelke bxh",   "Søyle bxh "}},
    {5, {"Beam",       "Column",       "Beam bxh",      "Column bxh "},      {"Bjelke",    "Søyle",      "Bjelke bxh",   "Søyle bxh"}},
};

// Names of the load-duration classes as the state keeps them, 20 characters wide.
constexpr const char* class_names[5][2] = {
    {"Permanent action    ", "Permanent           "},
    {"Long term action    ", "Langtidslast        "},
    {"Medium term action  ", "Halvårslast         "},
    {"Short term action   ", "Kortidslast         "},
    {"Instantaneous action", "Øyeblikkslast       "},
};
// clang-format on

class Languages : public WindowTest {
protected:
    void Turn_to(const char* button) {
        Menu("mnusetup", [button](QWidget& dialog) { Click(Find_in<QWidget>(dialog, button)); });
    }
    void Expect_members(const char* const (&names)[4]) {
        for (const char* frame : {"Fra_snitt_1", "Fra_dim_1"}) {
            EXPECT_EQ(Text(frame), names[0]) << frame;
        }
        for (const char* frame : {"Fra_snitt_2", "Fra_dim_2"}) {
            EXPECT_EQ(Text(frame), names[1]) << frame;
        }
        EXPECT_EQ(Text("Fra_b1_h1"), names[2]);
        EXPECT_EQ(Text("Fra_b2_h2"), names[3]);
    }
};

TEST_F(Languages, every_caption_in_English) {
    Start("Eng");
    for (const Wording& row : captions) {
        EXPECT_EQ(Text(row.control), row.english) << row.control;
    }
    for (const Wording& row : captions_of_classes) {
        EXPECT_EQ(Text_of(Find_in<QObject>(Find<QDialog>("Frm_tarn_vik_fak_klass"), row.control)), row.english)
            << row.control;
    }
}

TEST_F(Languages, every_caption_in_Norwegian) {
    Start("Nor");
    for (const Wording& row : captions) {
        if (row.norwegian != nullptr) {
            EXPECT_EQ(Text(row.control), row.norwegian) << row.control;
        }
    }
    for (const Wording& row : captions_of_classes) {
        EXPECT_EQ(Text_of(Find_in<QObject>(Find<QDialog>("Frm_tarn_vik_fak_klass"), row.control)), row.norwegian)
            << row.control;
    }
}

TEST_F(Languages, captions_as_built_stand_where_Norwegian_writes_none) {
    Start("Nor");
    EXPECT_EQ(Text("Fra_standard"), "Standard");
    EXPECT_EQ(Text("Fra_valgfri"), "Valgfri (mm)");
}

TEST_F(Languages, English_captions_stay_where_Norwegian_writes_none) {
    Start("Eng");
    Turn_to("Cmd_nor");
    EXPECT_EQ(Text("Fra_standard"), "Standard");
    EXPECT_EQ(Text("Fra_valgfri"), "Optional (mm)");
    EXPECT_EQ(Text("lbl_prosjekt"), "Prosjekt navn");
}

TEST_F(Languages, every_caption_turns_at_the_button_of_the_setup) {
    Start("Eng");
    for (const bool english : {false, true, false}) {
        Turn_to(english ? "Cmd_eng" : "Cmd_nor");
        EXPECT_EQ(s.Lang, english ? "Eng" : "Nor");
        for (const Wording& row : captions) {
            if (const char* text = english ? row.english : row.norwegian) {
                EXPECT_EQ(Text(row.control), text) << row.control;
            }
        }
        for (const Wording& row : captions_of_classes) {
            EXPECT_EQ(Text_of(Find_in<QObject>(Find<QDialog>("Frm_tarn_vik_fak_klass"), row.control)),
                      english ? row.english : row.norwegian)
                << row.control;
        }
    }
}

TEST_F(Languages, the_setup_turns_its_own_captions) {
    Start("Eng");
    Menu("mnusetup", [](QWidget& dialog) {
        for (const Wording& row : captions_of_setup) {
            EXPECT_EQ(Text_of(Find_in<QObject>(dialog, row.control)), row.english) << row.control;
        }
        Click(Find_in<QWidget>(dialog, "Cmd_nor"));
        for (const Wording& row : captions_of_setup) {
            EXPECT_EQ(Text_of(Find_in<QObject>(dialog, row.control)), row.norwegian) << row.control;
        }
    });
}

TEST_F(Languages, member_names_of_every_type_in_both_languages) {
    Start("Eng");
    for (const Members& row : members) {
        Click("Cmd_type(" + std::to_string(row.Con_type - 1) + ")");
        Turn_to("Cmd_nor");
        SCOPED_TRACE(row.Con_type);
        Expect_members(row.norwegian);
        Turn_to("Cmd_eng");
        Expect_members(row.english);
    }
}

// The words of a picture with as much room as they ask for.
std::string Words(int Con_type, MemberNames names) {
    std::string words;
    const auto drawing = Draw_connection(std::to_string(Con_type) + ".1", 800.0, 500.0, names);
    for (const auto& shape : drawing->shapes) {
        if (const auto* text = std::get_if<TextShape>(&shape)) {
            words += text->text + ";";
        }
    }
    return words;
}

TEST_F(Languages, the_picture_of_the_connection_has_the_member_names_of_the_window) {
    const auto trimmed = [](std::string text) {
        while (text.ends_with(' ')) {
            text.pop_back();
        }
        return text;
    };
    for (const Members& row : members) {
        EXPECT_EQ(Words(row.Con_type, MemberNames::english),
                  "1 " + trimmed(row.english[0]) + ";2 " + trimmed(row.english[1]) + ";1;2;");
        EXPECT_EQ(Words(row.Con_type, MemberNames::norwegian),
                  "1 " + trimmed(row.norwegian[0]) + ";2 " + trimmed(row.norwegian[1]) + ";1;2;");
    }
}

TEST_F(Languages, the_picture_of_the_connection_turns) {
    Start("Eng");
    auto& picture = Find<PictureArea>("Pic_forbindelse");
    const QImage english = picture.grab().toImage();
    Turn_to("Cmd_nor");
    const QImage norwegian = picture.grab().toImage();
    EXPECT_NE(english, norwegian);
    Turn_to("Cmd_eng");
    EXPECT_EQ(picture.grab().toImage(), english);
}

TEST_F(Languages, a_change_of_type_alone_leaves_the_member_names) {
    Start("Eng");
    Click("Cmd_type(3)");
    Expect_members(members[0].english);
}

TEST_F(Languages, the_results_turn_with_the_language) {
    Start("Eng");
    for (int row = 0; row < 5; ++row) {
        s.Lastvar = static_cast<std::int16_t>(row + 1);
        Turn_to("Cmd_eng");
        EXPECT_EQ(s.Lastvar_txt, class_names[row][0]);
        EXPECT_EQ(Text("Lbl_lastvar_2"), class_names[row][0]);
        Turn_to("Cmd_nor");
        EXPECT_EQ(s.Lastvar_txt, class_names[row][1]);
        EXPECT_EQ(Text("Lbl_lastvar_2"), class_names[row][1]);
    }
}

TEST_F(Languages, menu_entries_keep_their_built_text_where_no_procedure_writes_one) {
    for (const char* lang : {"Eng", "Nor"}) {
        Start(lang);
        EXPECT_EQ(Text("mnufile"), "&File");
        EXPECT_EQ(Text("mnuexit"), "&Exit");
        EXPECT_EQ(Text("mnusetup"), "&Setup");
        EXPECT_EQ(Text("mnuDatabase"), "&Database");
        EXPECT_EQ(Text("mmuTheory"), "&User && Theory Manual");
    }
}

TEST_F(Languages, about_texts_of_both_languages) {
    const auto expect = [this](const char* title, const char* version) {
        Menu("mnuabout", [=](QWidget& about) {
            EXPECT_EQ(Text_of(Find_in<QLabel>(about, "Lbl_title")), title);
            EXPECT_EQ(Text_of(Find_in<QLabel>(about, "Lbl_version")), version);
        });
    };
    Start("Eng");
    expect("Calculation of bolts according to Eurocode 5", "Version  1.2.0");
    Turn_to("Cmd_nor");
    expect("Beregning av bolteforbindelser ifølge Eurocode 5", "Versjon  1.2.0");
}

TEST_F(Languages, the_button_refills_the_connector_list_with_D62_and_calculates_once) {
    Start("Eng");
    Click("Opt_bolt_bulldog(1)");
    Pick("Comb_bulldog", 2);
    ASSERT_EQ(s.dc, 75.0F);
    Menu("mnusetup", [this](QWidget& dialog) {
        passes = 0;
        Click(Find_in<QWidget>(dialog, "Cmd_nor"));
        EXPECT_EQ(passes, 1);
        EXPECT_EQ(Row("Comb_bulldog"), 1);
        EXPECT_EQ(Text("Comb_bulldog"), "Tosidig D62");
        EXPECT_EQ(s.Bulldog_index, 1);
        EXPECT_EQ(s.dc, 62.0F);
    });
    const char* const norwegian[] = {"Tosidig D50", "Tosidig D62", "Tosidig D75", "Tosidig D95", "Tosidig D117"};
    for (int row = 0; row < 5; ++row) {
        EXPECT_EQ(Find<QComboBox>("Comb_bulldog").itemText(row).toStdString(), norwegian[row]);
    }
}

TEST_F(Languages, the_note_on_small_angles_turns_too) {
    Start("Eng");
    const auto note = [this] {
        for (const PositionedText& row : Find<TableArea>("Pic_av_bolter_dif").Rows()) {
            if (row.text.find("Note") != std::string::npos) {
                return row.text;
            }
        }
        return std::string{};
    };
    EXPECT_EQ(note(), " Note:  b2 is not applicable for small angles");
    Turn_to("Cmd_nor");
    EXPECT_EQ(note(), "Note: Verdien av b2 gjelder ikke for små vinkler ");
}

} // namespace
} // namespace tarnvik::test
