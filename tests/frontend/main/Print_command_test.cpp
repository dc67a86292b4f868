// The print command of the window: the dialog, the job, and every way in which it can fail.
#include "report/PrintReport.h"
#include "tests/support/Report.h"
#include "tests/support/Window.h"

namespace tarnvik::test {
namespace {

class PrintCommand : public WindowTest {
protected:
    using Reply = ScriptedPrinter::Answer;
    void Start_and_watch(std::string_view lang = "Eng") {
        Start(lang);
        QObject::connect(window.get(), &frmMain::Unloaded, window.get(), [this] { ++unloaded; });
    }
    // The text behind "File:" of the last job.
    std::string File_printed() { return Text_at(*printer.jobs.back(), 23.0F, 274.3F).value_or("(none)"); }

    int unloaded{};
};

TEST_F(PrintCommand, prints_the_report_of_the_state_and_ends_the_job_twice) {
    Start_and_watch();
    Menu("mnuprint");
    ASSERT_EQ(printer.asked.size(), 1U);
    EXPECT_EQ(printer.asked[0].flags, 1048580);
    EXPECT_EQ(printer.asked[0].document, "Project 1, Bolt Connections -1");
    ASSERT_EQ(printer.jobs.size(), 1U);
    Recorder expected;
    SpacingTexts texts;
    PrintReport(expected, s, {window->Work().Shown().Pic_forbindelse, window->Work().Shown().Pic_av_bolter},
                clock.Now(), texts);
    expected.EndDoc();
    EXPECT_EQ(Lines_of(*printer.jobs[0]), Lines_of(expected));
    EXPECT_TRUE(boxes.messages.empty());
    EXPECT_EQ(unloaded, 0);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(PrintCommand, the_dialog_has_its_caption_in_the_language) {
    Start("Eng");
    Menu("mnuprint");
    Start("Nor");
    Menu("mnuprint");
    ASSERT_EQ(printer.asked.size(), 2U);
    EXPECT_EQ(printer.asked[0].caption, "Print");
    EXPECT_EQ(printer.asked[1].caption, "Skriv ut");
}

TEST_F(PrintCommand, no_pass_runs_for_it) {
    Start_and_watch();
    Menu("mnuprint");
    EXPECT_EQ(passes, 0);
    EXPECT_EQ(s.Lastvar_txt, "Permanent");
    EXPECT_EQ(s.Lastvar_txt.View().size(), 20U);
}

// Cancel and every failure: the same words in both languages, and then the window closes.
class PrintFailure : public PrintCommand,
                     public testing::WithParamInterface<std::tuple<ScriptedPrinter::Answer, const char*>> {};

TEST_P(PrintFailure, is_told_as_a_cancelled_dialog_and_closes_the_window) {
    Start_and_watch(std::get<1>(GetParam()));
    printer.answer = std::get<0>(GetParam());
    Menu("mnuprint");
    EXPECT_EQ(boxes.messages, (Messages{{"User pressed the Cancel button", 48}}));
    EXPECT_EQ(unloaded, 0) << "before the answer";
    EXPECT_TRUE(window->isVisible());
    Answer();
    EXPECT_EQ(unloaded, 1);
    EXPECT_FALSE(window->isVisible());
    for (const auto& job : printer.jobs) {
        for (const std::string& line : Lines_of(*job)) {
            if (printer.answer == Reply::fails_at_print) {
                EXPECT_FALSE(line.ends_with("EndDoc")) << "a document begun is not ended";
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, PrintFailure,
    testing::Combine(testing::Values(ScriptedPrinter::Answer::cancelled, ScriptedPrinter::Answer::no_printer,
                                     ScriptedPrinter::Answer::fails_at_print, ScriptedPrinter::Answer::fails_at_end),
                     testing::Values("Eng", "Nor")));

TEST_F(PrintCommand, the_file_is_named_once_a_project_has_been_opened_or_saved) {
    Start_and_watch();
    Menu("mnuprint");
    EXPECT_EQ(Caption(), "Tarnvik: New File");
    EXPECT_EQ(File_printed(), "");
    dialogs.answer = (work / "truss.tnvik").string();
    Menu("mnuFileItem(3)");
    Menu("mnuprint");
    EXPECT_EQ(File_printed(), (work / "truss.tnvik").string());
}

TEST_F(PrintCommand, a_new_project_that_is_saved_has_its_title_as_its_file) {
    Start_and_watch();
    Menu("mnuFileItem(2)");
    Menu("mnuprint");
    EXPECT_EQ(File_printed(), "New File");
}

TEST_F(PrintCommand, a_cancelled_save_names_no_file) {
    Start_and_watch();
    dialogs.answer.reset();
    Menu("mnuFileItem(3)");
    boxes.Answer();
    Menu("mnuprint");
    EXPECT_EQ(File_printed(), "");
}

TEST_F(PrintCommand, texts_of_the_spacing_tables_outlive_a_print) {
    Start_and_watch();
    s.Ant_index = 4; // six bolts
    window->Work().Recalculate();
    Menu("mnuprint");
    const std::string b5 = "b5  = " + std::string{s.Sb5_txt};
    s.Ant_index = 2; // three, arrangement b
    window->Work().Recalculate();
    Menu("mnuprint");
    ASSERT_EQ(s.Case_code, "1.3.b");
    EXPECT_EQ(Text_at(*printer.jobs[1], 95.0F, 262.0F - 4.0F * 17.0F, 2), b5);
}

} // namespace
} // namespace tarnvik::test
