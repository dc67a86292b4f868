// The controls of the main window: each exists under its name and in its frame, with the text that no language
// procedure writes; the lists and menus hold what they should.
#include <QMenuBar>

#include "frontend/painting/Texts.h"
#include "tests/support/Window.h"

namespace tarnvik::test {
namespace {

using Controls = WindowTest;

struct Place {
    const char* frame;
    std::vector<const char*> controls;
};

const std::vector<Place> places{
    {"fra_input",
     {"lbl_prosjekt", "txtprosjekt", "lblid", "txtid", "Fra_valg_bolt_bulldog", "Fra_bolter", "Fra_bulldog",
      "Fra_material", "Fra_dim_main", "Fra_klasse", "Fra_type", "Fra_forbindelse", "Fra_last", "Fra_bolt_alt",
      "Fra_skive", "Fra_bolt_for"}},
    {"Fra_valg_bolt_bulldog", {"Opt_bolt_bulldog(0)", "Opt_bolt_bulldog(1)"}},
    {"Fra_bolter", {"Comb_bolter", "Lbl_ant_bolt", "Comb_ant_bolt"}},
    {"Fra_bulldog", {"Comb_bulldog", "Lbl_bulldog1", "Lbl_bulldog2"}},
    {"Fra_material", {"cboMat", "Lbl_densitet1", "lbl_densitet2", "Lbl_fc90k1", "Lbl_fc90k2", "lbl_gm"}},
    {"Fra_dim_main", {"Opt_stand", "Opt_valg", "Fra_standard", "Fra_valgfri"}},
    {"Fra_standard", {"Fra_b1_h1", "Fra_b2_h2"}},
    {"Fra_b1_h1", {"cboProf1"}},
    {"Fra_b2_h2", {"cboProf2"}},
    {"Fra_valgfri", {"Pic_Dim"}},
    {"Pic_Dim", {"Fra_dim_1", "Fra_dim_2"}},
    {"Fra_dim_1", {"Pic_dim_1"}},
    {"Pic_dim_1", {"Lbl_b1", "Txt_b1", "Lbl_h1", "Txt_h1"}},
    {"Fra_dim_2", {"Pic_dim_2"}},
    {"Pic_dim_2", {"Lbl_b2", "Txt_b2", "Lbl_h2", "Txt_h2"}},
    {"Fra_klasse", {"Lbl_lastvar_1", "Lbl_lastvar_2", "Lbl_klima_1", "Lbl_klima_2", "Lbl_kmod1", "Lbl_kmod2"}},
    {"Fra_type", {"Cmd_type(0)", "Cmd_type(1)", "Cmd_type(2)", "Cmd_type(3)", "Cmd_type(4)"}},
    {"Fra_forbindelse", {"Pic_forbindelse"}},
    {"Fra_last", {"Pic_last", "Opt_trykk", "Opt_strekk"}},
    {"Pic_last", {"Lbl_last", "Txt_last", "Lbl_alp", "Txt_alp"}},
    {"Fra_bolt_alt", {"Cmd_boltetype(0)", "Cmd_boltetype(1)"}},
    {"Fra_skive", {"Lbl_skive_diameter1", "Lbl_skive_diameter2", "Lbl_skive_tykk1", "Lbl_skive_tykk2"}},
    {"Fra_bolt_for", {"Fra_snitt_1", "Fra_snitt_2"}},
    {"Fra_snitt_1", {"Opt_enk_1", "Opt_dob_1"}},
    {"Fra_snitt_2", {"Opt_enk_2", "Opt_dob_2"}},
    {"Fra_results", {"Fra_bolt_kap", "fra_av_bolter", "Fra_av_bulldog"}},
    {"Fra_bolt_kap",
     {"Lbl_bolt_kap1", "Lbl_bolt_kap2", "Lbl_bulldog_kap1", "Lbl_bulldog_kap2", "Lbl_bolt_kontroll",
      "Lbl_last_kontroll", "Lbl_strek", "Lbl_Rd_kontroll", "Lbl_pluss", "Lbl_Rd_bulldog_kontroll", "Lbl_lik", "Lbl_uf",
      "Cmd_detail", "Fra_tverr_brudd", "Fra_nef"}},
    {"Fra_tverr_brudd", {"Pic_tverr_brudd"}},
    {"Pic_tverr_brudd", {"Check_man", "Lbl_man_he", "Txt_man_he", "lbl_tverr_1", "Lbl_tverr_2", "Cmd_tverr"}},
    {"Fra_nef",
     {"lbl_txt_avstand", "Comb_bolt_avstand", "Lbl_tot_eff_bolts_1", "Lbl_2_nef_max", "Lbl_tot_eff_bulldog_1",
      "Lbl_tot_eff_bulldog_2", "Cmd_Bolt_eff_bolt"}},
    {"fra_av_bolter", {"Pic_av_bolter", "Fra_av_bolter_verdier"}},
    {"Fra_av_bolter_verdier", {"Pic_av_bolter_dif"}},
    {"Fra_av_bulldog", {"Pic_av_bulldog", "Fra_av_bulldog_verdier"}},
    {"Fra_av_bulldog_verdier", {"Pic_av_bulldog_dif"}},
};

TEST_F(Controls, every_one_stands_in_its_frame) {
    Start();
    EXPECT_EQ(window->objectName(), QStringLiteral("frmMain"));
    for (const Place& place : places) {
        for (const char* control : place.controls) {
            EXPECT_EQ(Find(control).parentWidget(), &Find(place.frame)) << control << " in " << place.frame;
        }
    }
    for (const char* frame : {"fra_input", "Fra_results"}) {
        EXPECT_EQ(Find(frame).window(), window.get()) << frame;
    }
}

TEST_F(Controls, texts_that_no_language_writes) {
    for (const char* lang : {"Eng", "Nor"}) {
        Start(lang);
        EXPECT_EQ(Text("fra_input"), "Input");
        EXPECT_EQ(Text("Lbl_fc90k1"), "fc90k =");
        EXPECT_EQ(Text("Lbl_b1"), "b =");
        EXPECT_EQ(Text("Lbl_h1"), "h =");
        EXPECT_EQ(Text("Lbl_b2"), "b =");
        EXPECT_EQ(Text("Lbl_h2"), "h =");
        EXPECT_EQ(Text("Lbl_last"), "P=");
        EXPECT_EQ(Text("Lbl_alp"), "a =");
        EXPECT_EQ(Text("Cmd_boltetype(0)"), "Alt. 1");
        EXPECT_EQ(Text("Cmd_boltetype(1)"), "Alt. 2");
        EXPECT_EQ(Text("Lbl_skive_diameter1"), "Diameter=");
        EXPECT_EQ(Text("Lbl_skive_tykk1"), "Tykkelse=");
        EXPECT_EQ(Text("Lbl_lik"), ") = ");
        EXPECT_EQ(Text("Lbl_man_he"), "he =");
        bool found = false;
        for (const QLabel* label : Find("Fra_material").findChildren<QLabel*>()) {
            found = found || label->text() == QLatin1String("gm =");
        }
        EXPECT_TRUE(found) << "the label of gm";
    }
}

TEST_F(Controls, fixed_lists) {
    Start("Eng");
    const auto items = [this](const char* name) {
        std::vector<std::string> all;
        auto& list = Find<QComboBox>(name);
        for (int row = 0; row < list.count(); ++row) {
            all.push_back(list.itemText(row).toStdString());
        }
        return all;
    };
    using Items = std::vector<std::string>;
    EXPECT_EQ(items("Comb_bolter"),
              (Items{"M12x4.6", "M16x4.6", "M20x4.6", "M24x4.6", "M12x8.8", "M16x8.8", "M20x8.8", "M24x8.8"}));
    EXPECT_EQ(items("Comb_ant_bolt"), (Items{"1", "2", "3", "4", "6"}));
    EXPECT_EQ(items("Comb_bolt_avstand"), (Items{"5d", "6d", "7d", "8d", "9d", "10d", "11d", "12d", "13d", "14d", "15d",
                                                 "16d", "17d", "18d", "19d", "20d"}));
    EXPECT_EQ(items("Comb_bulldog"), (Items{"Double-sided D50", "Double-sided D62", "Double-sided D75",
                                            "Double-sided D95", "Double-sided D117"}));
    ASSERT_EQ(items("cboMat").size(), static_cast<std::size_t>(s.Mat_count) + 1);
    EXPECT_EQ(items("cboMat")[0], "C14");
    EXPECT_EQ(items("cboMat")[5], "C24");
    ASSERT_EQ(items("cboProf1").size(), static_cast<std::size_t>(s.Prof1_count) + 1);
    EXPECT_EQ(items("cboProf1")[0], "T  28x70"); // with both blanks
    EXPECT_EQ(items("cboProf2"), items("cboProf1"));
    EXPECT_EQ(items("cboProf1").back(), s.Prof[static_cast<std::size_t>(s.Prof1_count)].Id);
}

// The style keeps a picture for every palette: a new one for every change would take memory without end.
TEST_F(Controls, a_list_is_drawn_in_its_colour_with_the_palette_that_it_had_before) {
    Start();
    auto& list = Find<ListBox>("Comb_bulldog");
    const QImage as_built = list.grab().toImage();
    list.Set_back(green);
    const QImage on_green = list.grab().toImage();
    EXPECT_NE(on_green, as_built);
    EXPECT_GT(on_green.pixelColor(6, list.height() / 2).green(), on_green.pixelColor(6, list.height() / 2).red());
    EXPECT_EQ(list.view()->palette().color(QPalette::Base), To_colour(green));
    const qint64 identity = list.palette().cacheKey();
    list.Set_back(white);
    EXPECT_EQ(list.grab().toImage(), as_built);
    EXPECT_EQ(list.view()->palette().color(QPalette::Base), To_colour(white));
    EXPECT_EQ(list.palette().cacheKey(), identity);
}

TEST_F(Controls, the_menu_bar_in_its_order) {
    Start("Eng");
    std::vector<std::string> names;
    for (const QAction* action : window->menuBar()->actions()) {
        names.push_back(
            (action->menu() != nullptr ? action->menu()->objectName() : action->objectName()).toStdString());
    }
    EXPECT_EQ(names,
              (std::vector<std::string>{"mnufile", "mnusetup", "mnuklasse", "mnuDatabase", "mnuprint", "mnuhelp"}));
    const auto entries = [this](const char* menu) {
        std::vector<std::string> all;
        for (const QAction* action : Find<QMenu>(menu).actions()) {
            all.push_back(action->objectName().toStdString());
        }
        return all;
    };
    EXPECT_EQ(entries("mnufile"), (std::vector<std::string>{"mnuFileItem(1)", "mnuFileItem(2)", "mnuFileItem(3)",
                                                            "mnurecentfile(0)", "mnurecentfile(1)", "mnurecentfile(2)",
                                                            "mnurecentfile(3)", "mnurecentfile(4)", "mnuexit"}));
    EXPECT_EQ(entries("mnuhelp"), (std::vector<std::string>{"mmuTheory", "mnuabout"}));
    EXPECT_TRUE(Find<QAction>("mnurecentfile(0)").isSeparator());
    EXPECT_TRUE(Find<QAction>("mnurecentfile(4)").isSeparator());
}

TEST_F(Controls, the_menus_as_built) {
    window = std::make_unique<frmMain>(s, Services{boxes, dialogs, opener, settings, printer, clock}, Own_folders());
    EXPECT_EQ(Text("mnufile"), "&File");
    EXPECT_EQ(Text("mnuFileItem(1)"), "&Åpne");
    EXPECT_EQ(Text("mnuFileItem(2)"), "&Lagre");
    EXPECT_EQ(Text("mnuFileItem(3)"), "&Lagre som");
    EXPECT_EQ(Text("mnuexit"), "&Exit");
    EXPECT_EQ(Text("mnusetup"), "&Setup");
    EXPECT_EQ(Text("mnuklasse"), "&Klasser");
    EXPECT_EQ(Text("mnuDatabase"), "&Database");
    EXPECT_EQ(Text("mnuprint"), "&Skriv ut");
    EXPECT_EQ(Text("mnuhelp"), "&Hjelp");
    EXPECT_EQ(Text("mmuTheory"), "&User && Theory Manual");
    EXPECT_EQ(Text("mnuabout"), "&Om Tarnvik");
}

TEST_F(Controls, every_box_and_every_picture_has_an_accessible_name) {
    Start("Eng");
    for (const char* picture : {"Pic_forbindelse", "Pic_av_bolter", "Pic_av_bulldog", "Cmd_type(0)", "Cmd_type(1)",
                                "Cmd_type(2)", "Cmd_type(3)", "Cmd_type(4)"}) {
        EXPECT_FALSE(Find(picture).accessibleName().isEmpty()) << picture;
    }
    const std::pair<const char*, const char*> buddies[] = {
        {"lbl_prosjekt", "txtprosjekt"},
        {"lblid", "txtid"},
        {"Lbl_ant_bolt", "Comb_ant_bolt"},
        {"Lbl_b1", "Txt_b1"},
        {"Lbl_h1", "Txt_h1"},
        {"Lbl_b2", "Txt_b2"},
        {"Lbl_h2", "Txt_h2"},
        {"Lbl_last", "Txt_last"},
        {"Lbl_alp", "Txt_alp"},
        {"Lbl_man_he", "Txt_man_he"},
        {"lbl_txt_avstand", "Comb_bolt_avstand"},
    };
    for (const auto& [label, box] : buddies) {
        EXPECT_EQ(Find<QLabel>(label).buddy(), &Find(box)) << label;
    }
}

TEST_F(Controls, the_tab_key_goes_through_the_window_in_reading_order) {
    Start("Eng");
    Click("Opt_valg"); // with the free entry, without the lists of sections
    Find("txtprosjekt").setFocus();
    Settle();
    std::vector<std::string> order{Focus()};
    while (order.size() < 60) {
        Key(Qt::Key_Tab);
        if (Focus() == order.front()) {
            break;
        }
        order.push_back(Focus());
    }
    EXPECT_TRUE(boxes.messages.empty());
    const std::vector<std::string> expected{"txtprosjekt",
                                            "txtid",
                                            "Opt_bolt_bulldog(0)",
                                            "Comb_bolter",
                                            "Comb_ant_bolt",
                                            "cboMat",
                                            "Opt_valg",
                                            "Txt_b1",
                                            "Txt_h1",
                                            "Txt_b2",
                                            "Txt_h2",
                                            "Pic_Dim",
                                            "Cmd_type(0)",
                                            "Cmd_type(1)",
                                            "Cmd_type(2)",
                                            "Cmd_type(3)",
                                            "Cmd_type(4)",
                                            "Txt_last",
                                            "Txt_alp",
                                            "Opt_trykk",
                                            "Cmd_boltetype(0)",
                                            "Cmd_boltetype(1)",
                                            "Opt_enk_1",
                                            "Opt_enk_2",
                                            "Cmd_detail",
                                            "Check_man",
                                            "Cmd_tverr",
                                            "Comb_bolt_avstand",
                                            "Cmd_Bolt_eff_bolt"};
    EXPECT_EQ(order, expected);
}

} // namespace
} // namespace tarnvik::test
