// Projects: save, save as, open, recent files, cancelled dialogs, files that cannot be read.
#include <fstream>

#include "data/ProjectFile.h"
#include "frontend/dialogs/Frm_tarn_vik_fak_klass.h"
#include "tests/support/RecordingMessageBox.h"
#include "tests/support/Window.h"

namespace tarnvik::test {
namespace {

class Files : public WindowTest {
protected:
    std::string Path(const char* name) { return (work / name).string(); }
    void Save_as(const std::string& path) {
        dialogs.answer = path;
        Menu("mnuFileItem(3)");
    }
    void Open(const std::string& path) {
        dialogs.answer = path;
        Menu("mnuFileItem(1)");
    }
    static ConnectionState Read(const std::string& path) {
        ConnectionState read;
        RecordingMessageBox box;
        EXPECT_EQ(Open_project(read, path, box), 0) << path;
        return read;
    }
    // Captions of the visible entries of recent files.
    std::vector<std::string> Recent() {
        std::vector<std::string> shown;
        for (int i = 1; i <= 4; ++i) {
            const auto& entry = Find<QAction>("mnurecentfile(" + std::to_string(i) + ")");
            if (entry.isVisible() && !entry.isSeparator()) {
                shown.push_back(entry.text().toStdString());
            }
        }
        return shown;
    }
    void Know(const std::vector<std::string>& files) {
        for (std::size_t i = 0; i < files.size(); ++i) {
            settings.Save("Tarn-Vik", "Recent Files", "RecentFile" + std::to_string(i + 1), files[i]);
        }
    }
    std::vector<std::string> Known() {
        std::vector<std::string> values;
        for (int i = 1; i <= 4; ++i) {
            if (std::string value = settings.Get("Tarn-Vik", "Recent Files", "RecentFile" + std::to_string(i));
                !value.empty()) {
                values.push_back(value);
            }
        }
        return values;
    }
};

using Names = std::vector<std::string>;

TEST_F(Files, save_on_a_new_project_writes_a_file_of_its_title_without_a_dialog) {
    Start("Nor");
    Menu("mnuFileItem(2)");
    EXPECT_TRUE(std::filesystem::exists(work / "Ny Fil"));
    EXPECT_EQ(work.Files(), 1U);
    EXPECT_TRUE(dialogs.asked.empty());
    EXPECT_TRUE(boxes.messages.empty());
    EXPECT_EQ(Caption(), "Tarnvik: Ny Fil");
    EXPECT_TRUE(Known().empty());
    EXPECT_EQ(passes, 0);
    Start("Eng");
    Menu("mnuFileItem(2)");
    EXPECT_TRUE(std::filesystem::exists(work / "New File"));
}

// A pass leaves a typed he out, and an opening is a pass. The box shows whole mm, and leaving it takes what it shows.
TEST_F(Files, a_typed_he_comes_with_the_project_and_is_checked_when_its_box_is_left) {
    Start("Eng");
    Click("Opt_valg");
    for (const char* box : {"Txt_b1", "Txt_b2"}) {
        Enter_value(box, "98");
    }
    for (const char* box : {"Txt_h1", "Txt_h2"}) {
        Enter_value(box, "398");
    }
    Enter_value("Txt_last", "2");
    Click("Check_man");
    Enter_value("Txt_man_he", "180.4");
    EXPECT_EQ(Text("Lbl_verdict"), "Holds");
    Save_as(Path("one.tnvik"));
    Open(Path("one.tnvik"));
    EXPECT_EQ(s.man_he, 180.4F);
    EXPECT_EQ(Text("Txt_man_he"), "180");
    EXPECT_EQ(Text("Lbl_verdict"), "Splitting not checked");
    Click("Txt_man_he");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Text("Lbl_verdict"), "Holds");
    EXPECT_EQ(s.man_he, 180.0F);
    EXPECT_EQ(s.he, 180.0F);
}

TEST_F(Files, save_as_asks_for_a_name_with_the_present_one) {
    Start();
    Save_as(Path("one.tnvik"));
    ASSERT_EQ(dialogs.asked.size(), 1U);
    EXPECT_EQ(dialogs.asked[0].dialog, "save");
    EXPECT_EQ(dialogs.asked[0].request.filter, "*.tnvik");
    EXPECT_EQ(dialogs.asked[0].request.file_name, "New File");
    EXPECT_EQ(dialogs.asked[0].request.default_extension, "tnvik");
    EXPECT_EQ(dialogs.asked[0].request.flags, 6);
    EXPECT_EQ(Caption(), "Tarnvik: " + Path("one.tnvik"));
    EXPECT_EQ(s.File_name, Path("one.tnvik"));
    EXPECT_TRUE(std::filesystem::exists(Path("one.tnvik")));
    EXPECT_EQ(Recent(), (Names{"1. " + Path("one.tnvik")}));
    EXPECT_EQ(passes, 0);
    Save_as(Path("two.tnvik"));
    EXPECT_EQ(dialogs.asked[1].request.file_name, Path("one.tnvik"));
    EXPECT_EQ(Recent(), (Names{"1. " + Path("two.tnvik"), "2. " + Path("one.tnvik")}));
}

TEST_F(Files, the_file_dialogs_speak_the_language_of_the_program) {
    Start("Eng");
    Menu("mnuFileItem(1)");
    Menu("mnuFileItem(3)");
    Menu("mnusetup", [](QWidget& dialog) { Click(Find_in<QWidget>(dialog, "Cmd_nor")); });
    Menu("mnuFileItem(1)");
    Menu("mnuFileItem(3)");
    ASSERT_EQ(dialogs.asked.size(), 4U);
    const auto expect = [this](std::size_t at, const char* caption, const char* accept, const char* cancel,
                               const char* files) {
        const FileDialogWords& words = dialogs.asked[at].request.words;
        EXPECT_EQ(words.caption, caption);
        EXPECT_EQ(words.accept, accept);
        EXPECT_EQ(words.cancel, cancel);
        EXPECT_EQ(words.files, files);
    };
    expect(0, "Open project", "Open", "Cancel", "Tarnvik projects");
    expect(1, "Save project as", "Save", "Cancel", "Tarnvik projects");
    expect(2, "Åpne prosjekt", "Åpne", "Avbryt", "Tarnvik-prosjekter");
    expect(3, "Lagre prosjekt som", "Lagre", "Avbryt", "Tarnvik-prosjekter");
}

TEST_F(Files, save_after_save_as_goes_to_the_same_file) {
    Start();
    Save_as(Path("one.tnvik"));
    Enter_value("Txt_last", "33");
    Menu("mnuFileItem(2)");
    EXPECT_EQ(Read(Path("one.tnvik")).P, 33.0F);
    EXPECT_EQ(dialogs.asked.size(), 1U);
}

TEST_F(Files, a_cancelled_save_as_changes_nothing) {
    Start();
    dialogs.answer.reset();
    Menu("mnuFileItem(3)");
    EXPECT_EQ(boxes.messages, (Messages{{"Cancel were pressed", 0}}));
    EXPECT_EQ(Caption(), "Tarnvik: New File");
    EXPECT_EQ(work.Files(), 0U);
    EXPECT_TRUE(Known().empty());
}

TEST_F(Files, a_cancelled_open_changes_nothing) {
    Start("Nor");
    dialogs.answer.reset();
    Menu("mnuFileItem(1)");
    ASSERT_EQ(dialogs.asked.size(), 1U);
    EXPECT_EQ(dialogs.asked[0].dialog, "open");
    EXPECT_EQ(dialogs.asked[0].request.filter, "*.tnvik");
    EXPECT_EQ(dialogs.asked[0].request.file_name, "*.tnvik");
    EXPECT_EQ(dialogs.asked[0].request.flags, 4100);
    EXPECT_EQ(boxes.messages, (Messages{{"Cancel were pressed", 0}})); // in English in both languages
    EXPECT_EQ(Caption(), "Tarnvik: Ny Fil");
    EXPECT_EQ(passes, 0);
}

TEST_F(Files, names_typed_but_not_yet_accepted_go_into_the_file) {
    Start();
    Type("txtid", "Knutepunkt Ø");
    Save_as(Path("one.tnvik")); // the command lets the box be left first
    EXPECT_EQ(s.Id, "Knutepunkt Ø");
    EXPECT_EQ(Read(Path("one.tnvik")).Id, "Knutepunkt Ø");
    EXPECT_EQ(Focus(), "txtid");
    EXPECT_EQ(Back("txtid"), green);
    Key(Qt::Key_Tab);
    EXPECT_EQ(s.Id, "Knutepunkt Ø");
}

TEST_F(Files, open_brings_every_input_back) {
    Start();
    Enter_value("txtprosjekt", "Bru");
    Enter_value("txtid", "Node 7");
    Pick("cboMat", 5);
    Click("Cmd_type(4)");
    Click("Opt_valg");
    Enter_value("Txt_h1", "250");
    Enter_value("Txt_b1", "48.3");
    Enter_value("Txt_h2", "223");
    Enter_value("Txt_b2", "61");
    Click("Opt_dob_2");
    Pick("Comb_bolter", 5);
    Pick("Comb_ant_bolt", 4);
    Click("Cmd_boltetype(0)");
    Pick("Comb_bolt_avstand", 3);
    Click("Opt_bolt_bulldog(1)");
    Pick("Comb_bulldog", 2);
    Enter_value("Txt_last", "17.25");
    Click("Opt_strekk");
    Menu("mnuklasse", [](QWidget& dialog) {
        Click(Find_in<QWidget>(dialog, "Opt_Lastvarighet(2)"));
        Click(Find_in<QWidget>(dialog, "Opt_klimaklasse(2)"));
        Click(Find_in<QWidget>(dialog, "Cmd_ok"));
    });
    Click("Check_man");
    Enter_value("Txt_man_he", "123");
    ASSERT_TRUE(boxes.messages.empty());
    const std::string uf = Text("Lbl_uf");
    const std::string splitting = Text("Lbl_tverr_2");
    Save_as(Path("one.tnvik"));

    s = ConnectionState{};
    Start();
    ASSERT_NE(Text("Lbl_uf"), uf);
    Open(Path("one.tnvik"));
    EXPECT_TRUE(boxes.messages.empty());
    EXPECT_EQ(passes, 1);
    EXPECT_FALSE(s.Loading);
    EXPECT_EQ(Caption(), "Tarnvik: " + Path("one.tnvik"));
    EXPECT_EQ(Text("txtprosjekt"), "Bru");
    EXPECT_EQ(Text("txtid"), "Node 7");
    EXPECT_EQ(Text("cboMat"), "C24");
    EXPECT_EQ(s.Con_code, "5.3");
    EXPECT_TRUE(Checked("Opt_valg"));
    EXPECT_FALSE(Enabled("Fra_standard"));
    EXPECT_TRUE(Enabled("Fra_valgfri"));
    EXPECT_EQ(Text("Txt_b1"), "48.3");
    EXPECT_EQ(Text("Txt_h1"), "250.0");
    EXPECT_EQ(Text("Txt_b2"), "61.0");
    EXPECT_EQ(Text("Txt_h2"), "223.0");
    EXPECT_EQ(Text("Comb_bolter"), "M16x8.8");
    EXPECT_EQ(Text("Comb_ant_bolt"), "6");
    EXPECT_EQ(Text("Comb_bolt_avstand"), "8d");
    EXPECT_EQ(s.Bolt_ab, "a");
    EXPECT_TRUE(Checked("Opt_bolt_bulldog(1)"));
    EXPECT_TRUE(Visible("Fra_bulldog"));
    EXPECT_TRUE(Visible("Fra_av_bulldog"));
    EXPECT_EQ(Text("Comb_bulldog"), "Double-sided D75");
    EXPECT_EQ(s.dc, 75.0F);
    EXPECT_EQ(Text("Txt_last"), "17.3");
    EXPECT_TRUE(Checked("Opt_strekk"));
    EXPECT_EQ(s.P, -17.25F);
    EXPECT_EQ(Text("Txt_alp"), "90.0");
    EXPECT_TRUE(Checked("Opt_dob_2"));
    EXPECT_TRUE(Checked("Opt_enk_1"));
    EXPECT_FALSE(Checked("Opt_enk_2"));
    EXPECT_TRUE(Enabled("Opt_dob_1")); // the option of single member 1 enables it again
    EXPECT_EQ(Text("Lbl_klima_2"), "3");
    EXPECT_EQ(Text("Lbl_lastvar_2"), "Medium term action  ");
    EXPECT_TRUE(Find_in<QAbstractButton>(Find<QDialog>("Frm_tarn_vik_fak_klass"), "Opt_Lastvarighet(2)").isChecked());
    EXPECT_TRUE(Find_in<QAbstractButton>(Find<QDialog>("Frm_tarn_vik_fak_klass"), "Opt_klimaklasse(2)").isChecked());
    EXPECT_TRUE(Checked("Check_man"));
    EXPECT_TRUE(Enabled("Txt_man_he"));
    EXPECT_TRUE(Enabled("Lbl_man_he"));
    EXPECT_EQ(Text("Txt_man_he"), "123");
    EXPECT_EQ(Text("Lbl_uf"), uf);
    // The check of a typed he is not in the file; leaving its box runs it again.
    Click("Txt_man_he");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Text("Lbl_tverr_2"), splitting);
}

TEST_F(Files, open_enables_the_shear_options_by_the_four_rules) {
    struct Case {
        const char* click;
        bool dob_1, dob_2; // enabled afterwards
    };
    for (const Case& one :
         {Case{"Opt_dob_1", true, false}, Case{"Opt_dob_2", true, true}, Case{"Opt_enk_1", true, true}}) {
        Start();
        Click(one.click);
        Save_as(Path("one.tnvik"));
        Start();
        Open(Path("one.tnvik"));
        EXPECT_EQ(Enabled("Opt_dob_1"), one.dob_1) << one.click;
        EXPECT_EQ(Enabled("Opt_dob_2"), one.dob_2) << one.click;
        EXPECT_TRUE(Checked(one.click));
    }
}

TEST_F(Files, open_of_bolts_only_hides_the_connectors) {
    Start();
    Save_as(Path("bolts.tnvik"));
    Click("Opt_bolt_bulldog(1)");
    ASSERT_TRUE(Visible("Fra_av_bulldog"));
    Open(Path("bolts.tnvik"));
    EXPECT_TRUE(Checked("Opt_bolt_bulldog(0)"));
    for (const char* name : {"Fra_bulldog", "Fra_av_bulldog", "Lbl_bulldog_kap1", "Lbl_bulldog_kap2", "Lbl_pluss",
                             "Lbl_Rd_bulldog_kontroll"}) {
        EXPECT_FALSE(Visible(name)) << name;
    }
}

TEST_F(Files, open_clears_the_check_box_of_manual_he_and_no_more) {
    Start();
    Save_as(Path("automatic.tnvik"));
    Click("Check_man");
    Open(Path("automatic.tnvik"));
    EXPECT_FALSE(Checked("Check_man"));
    EXPECT_FALSE(s.Man_he_on);
    EXPECT_TRUE(Enabled("Txt_man_he"));
}

TEST_F(Files, an_English_project_turns_a_Norwegian_program) {
    Start("Eng");
    Save_as(Path("english.tnvik"));
    s = ConnectionState{};
    Start("Nor");
    ASSERT_EQ(Text("lbl_prosjekt"), "Prosjekt navn");
    Open(Path("english.tnvik"));
    EXPECT_EQ(s.Lang, "Eng");
    EXPECT_EQ(Text("lbl_prosjekt"), "Project name");
    EXPECT_EQ(Text("mnuFileItem(1)"), "Open");
    EXPECT_EQ(Text("Fra_valgfri"), "Optional (mm)");
    EXPECT_EQ(Text("Lbl_lastvar_2"), "Permanent action    ");
    EXPECT_EQ(Find<QDialog>("Frm_tarn_vik_fak_klass").windowTitle(), QStringLiteral("Classes"));
}

TEST_F(Files, a_project_brings_its_own_materials_and_factors) {
    Start();
    const int materials = Find<QComboBox>("cboMat").count();
    s.gm_T = 1.5F;
    Menu("mnusetup", [](QWidget& dialog) { Click(Find_in<QWidget>(dialog, "Cmd_ok")); });
    Save_as(Path("own.tnvik"));
    std::ofstream{folder / "TarnvikMaterial.csv", std::ios::app} << "C99;T;S ;50;29;3.2;4;16000;10700;1000;460;0\r\n";
    s = ConnectionState{};
    Start();
    ASSERT_EQ(Find<QComboBox>("cboMat").count(), materials + 1);
    Open(Path("own.tnvik"));
    EXPECT_EQ(Find<QComboBox>("cboMat").count(), materials);
    EXPECT_EQ(s.gm_T, 1.5F);
    EXPECT_EQ(Text("lbl_gm"), "1.50 ");
}

TEST_F(Files, an_empty_project_name_reads_as_empty) {
    Start();
    Enter_value("txtprosjekt", "");
    Save_as(Path("nameless.tnvik"));
    Enter_value("txtprosjekt", "other");
    Open(Path("nameless.tnvik"));
    EXPECT_EQ(Text("txtprosjekt"), "");
    EXPECT_EQ(s.Prosjekt, "");
}

TEST_F(Files, open_with_a_box_in_editing_shows_the_files_value) {
    Start();
    Save_as(Path("one.tnvik"));
    Type("Txt_last", "77");
    Open(Path("one.tnvik"));
    EXPECT_EQ(s.P, 10.0F);
    EXPECT_EQ(Text("Txt_last"), "10.0");
    Key(Qt::Key_Tab);
    EXPECT_EQ(s.P, 10.0F);
    EXPECT_EQ(passes, 2);
}

// The angle is disabled by the pass while it has the focus: that is not leaving it.
TEST_F(Files, open_disables_a_box_that_has_the_focus_without_a_second_pass) {
    Start();
    Click("Cmd_type(3)");
    Save_as(Path("type4.tnvik"));
    Click("Cmd_type(0)");
    Type("Txt_alp", "33");
    passes = 0;
    Open(Path("type4.tnvik"));
    EXPECT_EQ(passes, 1);
    EXPECT_EQ(s.alp, 90.0F);
    EXPECT_FALSE(Enabled("Txt_alp"));
    EXPECT_EQ(Text("Txt_alp"), "90.0");
    EXPECT_EQ(Back("Txt_alp"), white);
}

// Files that cannot be read: what is told, and what goes on all the same

TEST_F(Files, a_file_that_is_gone) {
    Start();
    Open(Path("gone.tnvik"));
    EXPECT_EQ(boxes.messages, (Messages{{" Can't find file ", 48}}));
    EXPECT_EQ(Caption(), "Tarnvik: " + Path("gone.tnvik"));
    EXPECT_EQ(passes, 1);
    EXPECT_FALSE(s.Loading);
    EXPECT_EQ(Text("txtprosjekt"), "Project 1");
}

TEST_F(Files, a_folder_that_is_gone) {
    Start("Nor");
    Open(Path("nowhere/gone.tnvik"));
    EXPECT_EQ(boxes.messages, (Messages{{" Path not found ", 48}}));
    EXPECT_EQ(Caption(), "Tarnvik: " + Path("nowhere/gone.tnvik"));
}

TEST_F(Files, a_file_cut_short) {
    Start();
    Save_as(Path("whole.tnvik"));
    const std::string bytes = Read_file(Path("whole.tnvik"));
    for (const std::size_t length : {std::size_t{0}, std::size_t{2}, bytes.size() / 2, bytes.size() - 1}) {
        boxes.messages.clear();
        Write_file(Path("short.tnvik"), bytes.substr(0, length));
        Open(Path("short.tnvik"));
        EXPECT_EQ(boxes.messages, (Messages{{"Input file not compatible with Tarn-Vik Version  1.2.0", 0}})) << length;
        EXPECT_EQ(Caption(), "Tarnvik: " + Path("short.tnvik"));
        EXPECT_FALSE(s.Loading) << length;
        Open(Path("whole.tnvik"));
        EXPECT_EQ(boxes.messages.size(), 1U) << length;
        EXPECT_EQ(Text("cboMat"), "C20");
    }
    Click("Cmd_type(1)"); // input is alive
    EXPECT_EQ(s.Con_type, 2);
}

TEST_F(Files, a_project_whose_pass_faults_opens_without_a_word) {
    Start();
    Pick("cboProf2", 12); // T  45x45
    Answer();
    Save_as(Path("low.tnvik"));
    s = ConnectionState{};
    Start();
    boxes.messages.clear();
    Open(Path("low.tnvik"));
    EXPECT_TRUE(boxes.messages.empty());
    EXPECT_EQ(Text("cboProf2"), "T  45x45");
    EXPECT_FALSE(s.Loading);
    Pick("cboProf2", 11);
    EXPECT_EQ(Text("Txt_h2"), "198.0");
}

TEST_F(Files, a_save_that_fails_is_told_and_the_program_goes_on) {
    Start();
    s.File_name = Path("nowhere/one.tnvik");
    Menu("mnuFileItem(2)");
    ASSERT_EQ(boxes.messages.size(), 1U);
    EXPECT_TRUE(boxes.messages[0].text.starts_with("Run-time error 76: path not found")) << boxes.messages[0].text;
    EXPECT_EQ(boxes.messages[0].style, 0);
}

TEST_F(Files, a_save_as_that_fails_is_skipped_silently) {
    Start();
    Save_as(Path("nowhere/one.tnvik"));
    EXPECT_TRUE(boxes.messages.empty());
    EXPECT_EQ(Caption(), "Tarnvik: " + Path("nowhere/one.tnvik"));
}

// Recent files

TEST_F(Files, without_recent_files_the_menu_shows_none) {
    Start();
    EXPECT_TRUE(Recent().empty());
    for (int i = 1; i <= 3; ++i) {
        EXPECT_FALSE(Find<QAction>("mnurecentfile(" + std::to_string(i) + ")").isVisible());
    }
}

TEST_F(Files, known_files_stand_in_the_menu_in_the_stores_order) {
    Know({"/a b/one.x.tnvik", "/two & three.tnvik"});
    Start();
    EXPECT_EQ(Recent(), (Names{"1. /a b/one.x.tnvik", "2. /two && three.tnvik"})); // "&&" shows one "&"
    Know({"/1", "/2", "/3", "/4"});
    Start();
    EXPECT_EQ(Recent(), (Names{"1. /1", "2. /2", "3. /3", "4. /4"}));
}

TEST_F(Files, save_as_shifts_the_list_and_the_oldest_falls_off) {
    Know({"/1", "/2", "/3"});
    Start();
    Save_as(Path("a.tnvik"));
    EXPECT_EQ(Known(), (Names{Path("a.tnvik"), "/1", "/2", "/3"}));
    EXPECT_EQ(Recent().size(), 4U);
    Save_as(Path("a.tnvik")); // a path may stand twice
    EXPECT_EQ(Known(), (Names{Path("a.tnvik"), Path("a.tnvik"), "/1", "/2"}));
}

TEST_F(Files, until_four_files_are_known_an_open_adds_none) {
    Know({"/1", "/2", "/3"});
    Start();
    Save_project(s, Path("new.tnvik"));
    Open(Path("new.tnvik"));
    EXPECT_EQ(Known(), (Names{"/1", "/2", "/3"}));
    EXPECT_EQ(Caption(), "Tarnvik: " + Path("new.tnvik"));
    EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(Files, with_four_known_an_open_puts_the_file_in_front) {
    Know({"/1", "/2", "/3", "/4"});
    Start();
    Save_project(s, Path("new.tnvik"));
    Open(Path("new.tnvik"));
    EXPECT_EQ(Known(), (Names{Path("new.tnvik"), "/1", "/2", "/3"}));
    EXPECT_EQ(Recent()[0], "1. " + Path("new.tnvik"));
}

TEST_F(Files, a_recent_entry_opens_its_file) {
    const std::string path = Path("Å & B. 2.tnvik");
    Know({"/1", "/2", path, "/4"});
    Start();
    s.P = 44.0F;
    Save_project(s, Path_of(path));
    s.P = 10.0F;
    Menu("mnurecentfile(3)");
    EXPECT_TRUE(boxes.messages.empty());
    EXPECT_EQ(s.P, 44.0F);
    EXPECT_EQ(Text("Txt_last"), "44.0");
    EXPECT_EQ(Caption(), "Tarnvik: " + path);
    EXPECT_EQ(Known(), (Names{path, "/1", "/2", "/4"}));
    EXPECT_EQ(passes, 1);
    EXPECT_TRUE(dialogs.asked.empty());
}

TEST_F(Files, a_recent_entry_whose_file_is_gone) {
    Know({"/1", "/2", "/3", Path("gone.tnvik")});
    Start();
    Menu("mnurecentfile(4)");
    EXPECT_EQ(boxes.messages, (Messages{{" Can't find file ", 48}}));
    EXPECT_EQ(Caption(), "Tarnvik: " + Path("gone.tnvik"));
    EXPECT_EQ(Known(), (Names{Path("gone.tnvik"), "/1", "/2", "/3"}));
    EXPECT_EQ(passes, 1);
}

// What the files have to say, in the title row of the results.

TEST_F(Files, a_failed_opening_is_told_before_anything_else_until_one_that_works) {
    Start("Eng");
    Save_as(Path("one.tnvik"));
    Open(Path("missing.tnvik"));
    EXPECT_EQ(Text("Lbl_file"), "Not opened: file not found");
    EXPECT_EQ(Fore("Lbl_file"), red);
    EXPECT_TRUE(Visible("Lbl_file"));
    EXPECT_FALSE(Visible("Lbl_verdict"));
    EXPECT_FALSE(Visible("Lbl_current"));
    Enter_value("Txt_last", "7");
    EXPECT_TRUE(Visible("Lbl_file")); // a pass does not end it
    Open(Path("one.tnvik"));
    EXPECT_FALSE(Visible("Lbl_file"));
    EXPECT_TRUE(Visible("Lbl_verdict"));
}

TEST_F(Files, a_save_as_that_fails_in_silence_is_told_in_the_line_in_the_language) {
    Start("Nor");
    Save_as(Path("no folder/one.tnvik"));
    EXPECT_TRUE(boxes.messages.empty());
    EXPECT_EQ(Text("Lbl_file"), "Ikke lagret: mappen finnes ikke");
    Save_as(Path("one.tnvik"));
    EXPECT_FALSE(Visible("Lbl_file"));
}

TEST_F(Files, a_save_over_what_could_not_be_opened_keeps_it) {
    Start("Eng");
    Write_file(work / "cut.tnvik", "what is left");
    Open(Path("cut.tnvik"));
    Menu("mnuFileItem(2)");
    EXPECT_EQ(Read_file(work / "cut.tnvik~"), "what is left");
    EXPECT_EQ(Text("Lbl_file"), "Saved; what could not be opened is kept as cut.tnvik~");
    EXPECT_EQ(Read(Path("cut.tnvik")).P, s.P);
}

TEST_F(Files, save_without_a_name_keeps_the_file_that_is_in_its_way) {
    Start("Eng");
    Write_file(work / "New File", "of another day");
    Menu("mnuFileItem(2)");
    EXPECT_EQ(Read_file(work / "New File~"), "of another day");
    EXPECT_TRUE(Visible("Lbl_file"));
}

TEST_F(Files, open_starts_where_the_last_project_lay) {
    Start();
    Open(Path("missing.tnvik"));
    EXPECT_EQ(dialogs.asked.back().request.folder, ""); // nothing known: the current folder
    EXPECT_EQ(dialogs.asked.back().request.file_name, "*.tnvik");
    std::filesystem::create_directory(work / "houses");
    Save_as(Path("houses/one.tnvik"));
    Open(Path("houses/one.tnvik"));
    EXPECT_EQ(dialogs.asked.back().request.folder, Path("houses"));
}

TEST_F(Files, open_starts_where_the_last_project_of_a_former_run_lay) {
    std::filesystem::create_directory(work / "houses");
    Know({Path("houses/one.tnvik")});
    Start();
    Open(Path("houses/one.tnvik"));
    EXPECT_EQ(dialogs.asked.back().request.folder, Path("houses"));
    Know({Path("gone/one.tnvik")});
    Start();
    Open(Path("houses/one.tnvik"));
    EXPECT_EQ(dialogs.asked.back().request.folder, ""); // a folder that is gone
}

} // namespace
} // namespace tarnvik::test
