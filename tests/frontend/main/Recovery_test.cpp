// Work that no project file holds yet: the label, the recovery file, the offer at the next start.
#include <vector>

#include "calc/pass/Main_beregn.h"
#include "data/ProjectFile.h"
#include "data/RecoveryFile.h"
#include "tests/support/RecordingMessageBox.h"
#include "tests/support/Window.h"

namespace tarnvik::test {
namespace {

class RecoveryOfWork : public WindowTest {
protected:
    std::vector<std::filesystem::path> Files() const {
        std::vector<std::filesystem::path> files;
        for (const auto& entry : std::filesystem::directory_iterator{state_folder.Path()}) {
            files.push_back(entry.path());
        }
        return files;
    }
    // Longer than the pause between a change and its file.
    static void Be_idle() { QTest::qWait(1300); }

    // A window that is gone without having been closed, as after a crash.
    void Crash() {
        window.reset();
        Settle();
        boxes.Forget();
        s = {};
    }
    void Work_and_crash(std::string_view lang = "Eng") {
        Start(lang);
        Enter_value("Txt_last", "17");
        Be_idle();
        Crash();
    }
};

TEST_F(RecoveryOfWork, the_label_says_what_is_not_saved_in_both_languages) {
    Start("Eng");
    EXPECT_EQ(Text("Lbl_unsaved"), "");
    Enter_value("Txt_last", "17");
    EXPECT_EQ(Text("Lbl_unsaved"), "Not saved");
    EXPECT_EQ(Caption(), "Tarnvik: New File"); // as ever
    EXPECT_TRUE(Visible("Lbl_unsaved"));
    Enter_value("Txt_last", "10");
    EXPECT_EQ(Text("Lbl_unsaved"), ""); // back where it was
    Type("txtprosjekt", "House");
    EXPECT_EQ(Text("Lbl_unsaved"), "Not saved"); // also while the box is in editing
    Menu("mnusetup", [this](QWidget& dialog) { Click(Find_in<QWidget>(dialog, "Cmd_nor")); });
    EXPECT_EQ(Text("Lbl_unsaved"), "Ikke lagret");
}

// A typed he changes the project without a pass.
TEST_F(RecoveryOfWork, a_typed_he_is_not_saved_either) {
    Start("Eng");
    Click("Check_man");
    EXPECT_EQ(Text("Lbl_unsaved"), "Not saved");
    Click("Check_man");
    EXPECT_EQ(Text("Lbl_unsaved"), "");
    Click("Check_man");
    dialogs.answer = (work / "house.tnvik").string();
    Menu("mnuFileItem(3)");
    EXPECT_EQ(Text("Lbl_unsaved"), "");
    Enter_value("Txt_man_he", "50");
    EXPECT_EQ(Text("Lbl_unsaved"), "Not saved");
    Be_idle();
    EXPECT_EQ(Files().size(), 1U);
}

TEST_F(RecoveryOfWork, a_save_ends_it_and_a_failed_save_does_not) {
    Start();
    Enter_value("Txt_last", "17");
    dialogs.answer = (work / "no folder" / "house.tnvik").string();
    Menu("mnuFileItem(3)");
    EXPECT_EQ(Text("Lbl_unsaved"), "Not saved");
    dialogs.answer = (work / "house.tnvik").string();
    Menu("mnuFileItem(3)");
    EXPECT_EQ(Text("Lbl_unsaved"), "");
    Pick("Comb_bolter", 3);
    EXPECT_EQ(Text("Lbl_unsaved"), "Not saved");
    Menu("mnuFileItem(2)");
    EXPECT_EQ(Text("Lbl_unsaved"), "");
}

TEST_F(RecoveryOfWork, an_opened_project_is_saved_and_one_that_could_not_be_read_is_not) {
    Start();
    dialogs.answer = (work / "house.tnvik").string();
    Menu("mnuFileItem(3)");
    Enter_value("Txt_last", "17");
    Menu("mnuFileItem(1)");
    EXPECT_EQ(Text("Lbl_unsaved"), "");
    Write_file(work / "cut.tnvik", Read_file(work / "house.tnvik").substr(0, 40));
    dialogs.answer = (work / "cut.tnvik").string();
    Menu("mnuFileItem(1)");
    EXPECT_EQ(Text("Lbl_unsaved"), "Not saved");
}

TEST_F(RecoveryOfWork, nothing_is_written_before_the_first_change) {
    Start();
    Be_idle();
    EXPECT_TRUE(Files().empty());
}

TEST_F(RecoveryOfWork, the_file_holds_what_a_save_would_write_and_goes_with_the_save) {
    Start();
    Enter_value("Txt_last", "17");
    Enter_value("txtid", "Node 4");
    EXPECT_TRUE(Files().empty()); // not before the window is idle
    Be_idle();
    ASSERT_EQ(Files().size(), 1U);
    const std::filesystem::path file = Files().front();
    ConnectionState recovered;
    Project_record record;
    Load_project(recovered, record, file);
    EXPECT_EQ(record.P, 17.0F);
    EXPECT_EQ(record.Id, "Node 4");
    EXPECT_EQ(Recovered_project(Read_file(file)), "");
    Enter_value("Txt_last", "18");
    Be_idle();
    ASSERT_EQ(Files().size(), 1U); // one, whatever happens
    Load_project(recovered, record, Files().front());
    EXPECT_EQ(record.P, 18.0F);
    dialogs.answer = (work / "house.tnvik").string();
    Menu("mnuFileItem(3)");
    Be_idle();
    EXPECT_TRUE(Files().empty());
}

TEST_F(RecoveryOfWork, a_normal_end_deletes_it) {
    Start();
    Enter_value("Txt_last", "17");
    Be_idle();
    ASSERT_EQ(Files().size(), 1U);
    window->close();
    EXPECT_TRUE(Files().empty());
    Crash();
    Start();
    EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(RecoveryOfWork, after_a_crash_it_is_offered_once_and_opened_as_unsaved_work) {
    Work_and_crash();
    Start("Eng");
    ASSERT_EQ(boxes.questions.size(), 1U);
    EXPECT_TRUE(boxes.questions[0].text.starts_with("Work on a new project was not saved")) << boxes.questions[0].text;
    EXPECT_EQ(boxes.questions[0].yes, "Open");
    EXPECT_EQ(boxes.questions[0].no, "Discard");
    EXPECT_EQ(Text("Txt_last"), "10.0"); // nothing happens before the answer
    boxes.Answer(true);
    Settle();
    EXPECT_EQ(Text("Txt_last"), "17.0");
    EXPECT_EQ(s.P, 17.0F);
    EXPECT_EQ(Text("Lbl_unsaved"), "Not saved");
    EXPECT_EQ(Caption(), "Tarnvik: New File");
    EXPECT_FALSE(s.File_named);
    Be_idle();
    ASSERT_EQ(Files().size(), 1U); // that of this run
    dialogs.answer = (work / "house.tnvik").string();
    Menu("mnuFileItem(3)");
    Be_idle();
    Crash();
    Start();
    EXPECT_TRUE(boxes.questions.empty());
}

TEST_F(RecoveryOfWork, declined_it_is_gone) {
    Work_and_crash("Nor");
    Start("Nor");
    ASSERT_EQ(boxes.questions.size(), 1U);
    EXPECT_TRUE(boxes.questions[0].text.starts_with("Arbeid på et nytt prosjekt var ikke lagret"));
    EXPECT_EQ(boxes.questions[0].yes, "Åpne");
    EXPECT_EQ(boxes.questions[0].no, "Forkast");
    boxes.Answer(false);
    Settle();
    EXPECT_EQ(s.P, 10.0F);
    Be_idle();
    EXPECT_TRUE(Files().empty());
}

TEST_F(RecoveryOfWork, the_offer_names_the_project_and_a_save_goes_there) {
    Start();
    const std::string project = (work / "house.tnvik").string();
    dialogs.answer = project;
    Menu("mnuFileItem(3)");
    Enter_value("Txt_last", "17");
    Be_idle();
    Crash();
    Start();
    ASSERT_EQ(boxes.questions.size(), 1U);
    EXPECT_NE(boxes.questions[0].text.find(project), std::string::npos) << boxes.questions[0].text;
    boxes.Answer(true);
    Settle();
    EXPECT_EQ(Caption(), "Tarnvik: " + project);
    Menu("mnuFileItem(2)");
    ConnectionState saved;
    Project_record record;
    Load_project(saved, record, project);
    EXPECT_EQ(record.P, 17.0F);
}

TEST_F(RecoveryOfWork, an_offer_that_nobody_answered_comes_again) {
    Work_and_crash();
    Start();
    Crash();
    Start();
    EXPECT_EQ(boxes.questions.size(), 1U);
}

TEST_F(RecoveryOfWork, the_end_of_a_cancelled_print_leaves_the_work_for_the_next_start) {
    Start();
    printer.answer = ScriptedPrinter::Answer::cancelled;
    Enter_value("Txt_last", "17");
    Menu("mnuprint"); // at once: no pause has passed
    Answer();
    EXPECT_FALSE(window->isVisible());
    Crash();
    Start();
    ASSERT_EQ(boxes.questions.size(), 1U);
    boxes.Answer(true);
    Settle();
    EXPECT_EQ(s.P, 17.0F);
}

TEST_F(RecoveryOfWork, a_damaged_file_is_told_and_leaves_the_new_project) {
    Write_file(state_folder / "recovery-abcdef.tnvik", "far too short");
    Start();
    boxes.Answer(true);
    Settle();
    EXPECT_EQ(boxes.messages.back().text, "Input file not compatible with Tarn-Vik Version  1.2.0");
    EXPECT_EQ(Caption(), "Tarnvik: New File");
}

} // namespace
} // namespace tarnvik::test
