// The start: what a new project shows, in both languages, and what a missing file does.
#include <QScreen>

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "calc/RuntimeFault.h"
#include "data/Startup.h"
#include "frontend/dialogs/Frm_tarn_vik_fak_klass.h"
#include "tests/support/Window.h"

namespace tarnvik::test {
namespace {

using StartUp = WindowTest;

TEST_F(StartUp, shows_a_new_project_in_English) {
    Start("Eng");
    EXPECT_EQ(Caption(), "Tarnvik: New File");
    EXPECT_EQ(Text("txtprosjekt"), "Project 1");
    EXPECT_EQ(Text("txtid"), "Bolt Connections -1");
    EXPECT_EQ(Text("Lbl_lastvar_2"), "Permanent action    ");
}

TEST_F(StartUp, shows_a_new_project_in_Norwegian) {
    Start("Nor");
    EXPECT_EQ(Caption(), "Tarnvik: Ny Fil");
    EXPECT_EQ(Text("txtprosjekt"), "Prosjekt 1");
    EXPECT_EQ(Text("txtid"), "Bolteforbindelse - 1");
    EXPECT_EQ(Text("Lbl_lastvar_2"), "Permanent           ");
}

TEST_F(StartUp, selects_the_start_values) {
    Start();
    EXPECT_TRUE(Checked("Opt_bolt_bulldog(0)"));
    EXPECT_FALSE(Checked("Opt_bolt_bulldog(1)"));
    EXPECT_EQ(Text("Comb_bolter"), "M20x8.8");
    EXPECT_EQ(Text("Comb_ant_bolt"), "2");
    EXPECT_EQ(Text("Comb_bolt_avstand"), "5d");
    EXPECT_EQ(Text("Comb_bulldog"), "Double-sided D62");
    EXPECT_EQ(Text("cboMat"), "C20");
    EXPECT_EQ(Text("cboProf1"), "T  34x95");
    EXPECT_EQ(Text("cboProf2"), "T  36x73");
    EXPECT_TRUE(Checked("Opt_stand"));
    EXPECT_TRUE(Checked("Opt_trykk"));
    EXPECT_FALSE(Checked("Opt_strekk"));
    EXPECT_TRUE(Enabled("Opt_strekk"));
    EXPECT_EQ(Text("Txt_last"), "10.0");
    EXPECT_EQ(Text("Txt_alp"), "25.0");
    EXPECT_TRUE(Checked("Opt_enk_1"));
    EXPECT_TRUE(Checked("Opt_enk_2"));
    EXPECT_FALSE(Checked("Check_man"));
    EXPECT_FALSE(Enabled("Txt_man_he"));
    EXPECT_FALSE(Enabled("Lbl_man_he"));
    EXPECT_TRUE(Enabled("Fra_standard"));
    EXPECT_FALSE(Enabled("Fra_valgfri"));
    auto& classes = Find<QDialog>("Frm_tarn_vik_fak_klass");
    EXPECT_TRUE(Find_in<QAbstractButton>(classes, "Opt_Lastvarighet(0)").isChecked());
    EXPECT_TRUE(Find_in<QAbstractButton>(classes, "Opt_klimaklasse(0)").isChecked());
}

TEST_F(StartUp, has_calculated_once_before_the_first_input) {
    int before = -1;
    Write_setup_language("Eng");
    window = std::make_unique<frmMain>(s, Services{boxes, dialogs, opener, settings, printer, clock}, Own_folders());
    QObject::connect(window.get(), &frmMain::Calculated, window.get(), [this] { ++passes; });
    before = passes;
    window->Load();
    Settle();
    EXPECT_EQ(passes - before, 1);
    EXPECT_FALSE(s.Loading);
    EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(StartUp, shows_the_first_results) {
    Start();
    EXPECT_EQ(Text("Lbl_klima_2"), "1");
    EXPECT_EQ(Text("Lbl_kmod2"), "0.60 ");
    EXPECT_EQ(Text("lbl_densitet2"), "330 ");
    EXPECT_EQ(Text("Lbl_fc90k2"), "2.3 ");
    EXPECT_EQ(Text("lbl_gm"), "1.30 ");
    EXPECT_EQ(Text("Lbl_skive_diameter2"), "60.0 ");
    EXPECT_EQ(Text("Lbl_skive_tykk2"), "6.0 ");
    EXPECT_EQ(Text("Txt_b1"), "34.0");
    EXPECT_EQ(Text("Txt_h1"), "95.0");
    EXPECT_EQ(Text("Txt_b2"), "36.0");
    EXPECT_EQ(Text("Txt_h2"), "73.0");
    EXPECT_EQ(Text("Lbl_last_kontroll"), "10.0");
    EXPECT_EQ(Text("Lbl_bolt_kap2"), std::string{Format(s.Rd_bolt, "0.0 ").View()});
    EXPECT_EQ(Text("Lbl_Rd_kontroll"), std::string{Format(s.Rd_bolt, "0.0").View()});
    EXPECT_EQ(Text("Lbl_uf"), std::string{Format(s.uf, "0.00 ").View()});
    EXPECT_TRUE(Find("Lbl_uf").font().bold());
    EXPECT_EQ(Fore("Lbl_uf"), s.uf > 1.0F ? red : dark_green);
    EXPECT_EQ(Text("Lbl_tverr_2"), std::string{Format(s.Tverr_kontroll, "0.00").View()});
    EXPECT_TRUE(Find("Lbl_tverr_2").font().bold());
    EXPECT_EQ(Fore("Lbl_tverr_2"), s.Tverr_kontroll > 1.0F ? red : dark_green);
    EXPECT_EQ(Text("Txt_man_he"), std::string{Format(s.he, "00").View()});
    EXPECT_EQ(s.Case_code, "1.2.b");
    EXPECT_FALSE(Find<TableArea>("Pic_av_bolter_dif").Rows().empty());
    EXPECT_EQ(Find<PictureArea>("Pic_forbindelse").Picture(), std::string{window->Work().Shown().Pic_forbindelse});
    EXPECT_FALSE(Find<PictureArea>("Pic_forbindelse").Picture().empty());
    EXPECT_FALSE(Find<PictureArea>("Pic_av_bolter").Picture().empty());
    EXPECT_TRUE(Visible("Cmd_detail"));
}

TEST_F(StartUp, hides_what_belongs_to_connectors) {
    Start();
    for (const char* name : {"Fra_bulldog", "Fra_av_bulldog", "Lbl_bulldog_kap1", "Lbl_bulldog_kap2", "Lbl_pluss",
                             "Lbl_Rd_bulldog_kontroll", "Lbl_tot_eff_bulldog_1", "Lbl_tot_eff_bulldog_2"}) {
        EXPECT_FALSE(Visible(name)) << name;
    }
}

TEST_F(StartUp, puts_the_focus_into_the_project_name_green_and_selected) {
    Start();
    EXPECT_EQ(Focus(), "txtprosjekt");
    EXPECT_EQ(Back("txtprosjekt"), green);
    EXPECT_EQ(Box("txtprosjekt").selectedText(), QStringLiteral("Project 1"));
    for (const char* other : {"txtid", "Txt_b1", "Txt_h1", "Txt_b2", "Txt_h2", "Txt_last", "Txt_alp", "Txt_man_he"}) {
        EXPECT_EQ(Back(other), white) << other;
    }
}

TEST_F(StartUp, sizes_the_window_by_the_screen) {
    Start();
    EXPECT_EQ(window->width(), std::lround(1024.0 * window->logicalDpiX() / 96.0));
    EXPECT_EQ(window->height(), std::lround(0.965 * 768.0 * window->logicalDpiY() / 96.0));
}

TEST_F(StartUp, a_window_that_the_user_resizes_keeps_its_controls_where_they_are) {
    Start();
    const QRect input = Find("fra_input").geometry();
    const QRect results = Find("Fra_results").geometry();
    window->resize(window->width() + 200, window->height() + 100);
    Settle();
    EXPECT_GT(window->width(), 1100);
    EXPECT_EQ(Find("fra_input").geometry(), input);
    EXPECT_EQ(Find("Fra_results").geometry(), results);
}

TEST_F(StartUp, a_missing_setup_file_gives_Norwegian_texts_standard_factors_and_a_box_that_names_it) {
    std::filesystem::remove(folder / "Tarnviksetup.csv");
    Start_as_is();
    EXPECT_EQ(Text("lbl_prosjekt"), "Prosjekt navn");
    EXPECT_FLOAT_EQ(s.gm_T, 1.3F);
    EXPECT_FLOAT_EQ(s.gm_L, 1.25F);
    EXPECT_FLOAT_EQ(s.gm_Ke, 1.2F);
    EXPECT_FLOAT_EQ(s.gm_K, 1.25F);
    EXPECT_EQ(Text("lbl_gm"), "1.30 ");
    ASSERT_EQ(boxes.messages.size(), 1U);
    EXPECT_NE(boxes.messages[0].text.find("Tarnviksetup.csv"), std::string::npos) << boxes.messages[0].text;
    EXPECT_EQ(boxes.messages[0].style, 48);
    Answer();
    Click("Cmd_type(1)"); // the program works
    EXPECT_EQ(s.Con_type, 2);
}

TEST_F(StartUp, a_missing_material_or_profile_file_ends_the_start_with_its_name_and_folder) {
    for (const char* file : {"TarnvikMaterial.csv", "TarnvikProfile.csv"}) {
        const std::string kept = Read_file(folder / file);
        std::filesystem::remove(folder / file);
        window =
            std::make_unique<frmMain>(s, Services{boxes, dialogs, opener, settings, printer, clock}, Own_folders());
        try {
            window->Load();
            FAIL() << "started without " << file;
        } catch (const DataFileError& error) {
            EXPECT_NE(error.Text().find(file), std::string::npos) << error.Text();
            EXPECT_NE(error.Text().find(folder.Path().string()), std::string::npos) << error.Text();
        }
        Write_file(folder / file, kept);
    }
}

TEST_F(StartUp, a_shorter_profile_file_leaves_the_lists_without_a_selection) {
    Write_file(folder / "TarnvikProfile.csv", "Type: ;T;Timber;;\r\n;L;;;\r\n;Ke;;;\r\n;K;;;\r\nStandard:;S;;;\r\n"
                                              "0;1;2;3;4\r\nId;Type;Standard;b;h\r\nT  48x198;T;S;48;198\r\n");
    Write_setup_language("Eng");
    Start_as_is();
    EXPECT_EQ(Row("cboProf1"), -1);
    EXPECT_EQ(Row("cboProf2"), -1);
    Pick("cboProf1", 0);
    EXPECT_EQ(s.Prof1_index, 0);
    Pick("cboProf2", 0);
    EXPECT_EQ(Text("Txt_h2"), "198.0");
}

// The lines of a delivered file in the program's folder, to be changed and put back.
class DamagedTable : public WindowTest {
protected:
    std::vector<std::string> Lines(const char* file) const {
        std::istringstream text{Read_file(folder / file)};
        std::vector<std::string> lines;
        for (std::string line; std::getline(text, line);) {
            lines.push_back(line);
        }
        return lines;
    }
    void Put(const char* file, const std::vector<std::string>& lines) const {
        std::string text;
        for (const std::string& line : lines) {
            text += line + "\n";
        }
        Write_file(folder / file, text);
    }
    // Starts, and answers the one box, which has to hold the texts.
    void Start_with_box(std::string_view lang, const std::vector<std::string>& texts) {
        Start(lang);
        ASSERT_EQ(boxes.messages.size(), 1U);
        EXPECT_EQ(boxes.messages[0].style, 48);
        for (const std::string& text : texts) {
            EXPECT_NE(boxes.messages[0].text.find(text), std::string::npos) << boxes.messages[0].text;
        }
        EXPECT_EQ(boxes.messages[0].text.find("Run-time"), std::string::npos) << boxes.messages[0].text;
        Answer();
    }

    static constexpr std::size_t headings = 7;
};

TEST_F(DamagedTable, a_short_material_table_is_told_by_file_and_row_and_another_row_can_be_chosen) {
    std::vector<std::string> lines = Lines("TarnvikMaterial.csv");
    lines.resize(headings + 2);
    Put("TarnvikMaterial.csv", lines);
    Start_with_box("Eng", {"TarnvikMaterial.csv in " + folder.Path().string(), "row 4 marked S is missing",
                           "the table has 2.", "not current until"});
    EXPECT_EQ(Text("Lbl_current"), "Not current: the material has no density");
    EXPECT_EQ(Row("cboMat"), -1);
    Pick("cboMat", 1);
    EXPECT_FALSE(Visible("Lbl_current"));
    EXPECT_EQ(s.rho_k, 310.0F); // C16
}

TEST_F(DamagedTable, an_empty_material_table_does_not_lock_the_user_out) {
    Write_file(folder / "TarnvikMaterial.csv", "");
    Start_with_box("Nor",
                   {"TarnvikMaterial.csv i " + folder.Path().string(), "rad 4 merket S mangler", "tabellen har 0."});
    EXPECT_TRUE(Visible("Lbl_current"));
}

TEST_F(DamagedTable, a_material_without_density_is_told_by_its_row_and_column) {
    std::vector<std::string> lines = Lines("TarnvikMaterial.csv");
    lines[headings + 3] = "C20;T;S ;20;19;2.3;3.6;9500;6400;590";
    Put("TarnvikMaterial.csv", lines);
    Start_with_box("Eng",
                   {"row 4 marked S (\"C20\"): characteristic density, column 11, = 0 kg/m3, expected above 0."});
    Pick("cboMat", 4);
    EXPECT_FALSE(Visible("Lbl_current"));
}

TEST_F(DamagedTable, short_profile_tables_are_told_by_both_rows) {
    std::vector<std::string> lines = Lines("TarnvikProfile.csv");
    lines.resize(headings + 1);
    Put("TarnvikProfile.csv", lines);
    Start_with_box("Eng", {"TarnvikProfile.csv in ", "row 4 marked S is missing", "row 7 marked S is missing"});
    EXPECT_EQ(Text("Lbl_current"), "Not current: a section has a side of zero");
}

TEST_F(DamagedTable, a_section_too_low_for_its_bolts_is_told_with_the_height_that_it_needs) {
    std::vector<std::string> lines = Lines("TarnvikProfile.csv");
    lines[headings + 6] = "T  36x48;T;S;36;48";
    Put("TarnvikProfile.csv", lines);
    // The loaded edge of M20 at 25 degrees: (2 + 2 sin alpha) d = 56.9 mm is less than 3 d = 60 mm, EN 1995-1-1
    // table 8.4.
    Start_with_box("Eng", {"row 7 marked S (\"T  36x48\"): h = 48 mm, expected above 60."});
    EXPECT_EQ(Text("Lbl_current"), "Not current: member too low for the distances");
    Pick("cboProf2", 20);
    EXPECT_FALSE(Visible("Lbl_current"));
}

TEST_F(DamagedTable, a_section_without_width_is_told_in_Norwegian) {
    std::vector<std::string> lines = Lines("TarnvikProfile.csv");
    lines[headings + 3] = "T  34x95;T;S;;95";
    Put("TarnvikProfile.csv", lines);
    Start_with_box("Nor", {"rad 4 merket S (\"T  34x95\"): b = 0 mm, ventet over 0.", "er ikke aktuelle"});
}

} // namespace
} // namespace tarnvik::test
