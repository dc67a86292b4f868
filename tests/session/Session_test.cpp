#include "session/Session.h"

#include <gtest/gtest.h>

#include "report/Recorder.h"
#include "tests/support/Files.h"
#include "tests/support/Lines.h"
#include "tests/support/RecordingView.h"

namespace tarnvik::test {
namespace {

class SessionTest : public testing::Test {
protected:
    void Start() { session.Start(TARNVIK_DATA_DIR, "Eng"); }

    TemporaryFolder folder;
    RecordingView view;
    ConnectionState s;
    Session session{s, view};
};

TEST_F(SessionTest, start_gives_a_new_project_that_loads_until_its_first_pass) {
    const StartReport report = session.Start(TARNVIK_DATA_DIR, "Eng");
    EXPECT_FALSE(report.setup);
    EXPECT_EQ(session.Folder(), TARNVIK_DATA_DIR);
    EXPECT_TRUE(s.Loading);
    EXPECT_EQ(session.First_pass().end, PassEnd::normal);
    EXPECT_FALSE(s.Loading);
}

TEST_F(SessionTest, first_pass_ends_loading_also_where_it_is_stopped) {
    Start();
    s.Standard = false; // the texts of the free entry are empty: a section of zero
    EXPECT_EQ(session.First_pass().end, PassEnd::zero_section);
    EXPECT_FALSE(s.Loading);
    s.Loading = true;
    s.Mat_index = -1;
    EXPECT_EQ(session.First_pass().end, PassEnd::fault);
    EXPECT_FALSE(s.Loading);
}

TEST_F(SessionTest, a_pass_asks_its_view_before_and_after_however_it_ends) {
    Start();
    session.Pass();
    s.Mat_index = -1;
    session.Pass();
    EXPECT_EQ(view.events, (std::vector<std::string>{"before", "after", "before", "after"}));
}

TEST_F(SessionTest, a_pass_shows_on_the_screen_unless_nothing_is_to_be_shown) {
    Start();
    session.Pass(Session::Showing::nothing);
    EXPECT_FALSE(session.Shown()[Control::Lbl_uf].caption);
    EXPECT_TRUE(session.Shown().Pic_av_bolter.empty());
    session.Pass();
    EXPECT_TRUE(session.Shown()[Control::Lbl_uf].caption);
    EXPECT_FALSE(session.Shown().Pic_av_bolter.empty());
}

TEST_F(SessionTest, a_fault_is_thrown_after_the_view_was_told) {
    Start();
    s.Mat_index = -1;
    EXPECT_EQ(Fault_of([&] { session.Main_beregn(); }), fault_subscript);
    EXPECT_EQ(view.events.back(), "after");
    EXPECT_TRUE(view.box.messages.empty());
}

TEST_F(SessionTest, the_last_resort_tells_a_fault_in_a_plain_box) {
    Start();
    session.Recalculate();
    EXPECT_TRUE(view.box.messages.empty());
    s.Mat_index = -1;
    session.Recalculate();
    ASSERT_EQ(view.box.messages.size(), 1U);
    EXPECT_TRUE(view.box.messages[0].text.starts_with("Run-time error 9: subscript out of range"));
    EXPECT_EQ(view.box.messages[0].style, box_plain);
}

TEST_F(SessionTest, saves_names_that_are_typed_and_opens_them_again) {
    Start();
    s.P = 17.5F;
    const std::string path = (folder / "joint.tnvik").string();
    session.Save(path, TypedNames{"Typed project", "Typed joint"});
    EXPECT_EQ(s.Prosjekt, "Project 1"); // the state has not accepted them
    EXPECT_FALSE(s.File_named);         // nor is the project named by a save
    s.P = 1.0F;
    bool loading = false;
    EXPECT_FALSE(session.Open_project(path, [&] { loading = s.Loading; }));
    EXPECT_TRUE(loading);
    EXPECT_EQ(s.P, 17.5F);
    EXPECT_EQ(s.Prosjekt, "Typed project");
    EXPECT_EQ(s.Id, "Typed joint");
    EXPECT_EQ(s.File_name, path);
    EXPECT_TRUE(s.File_named);
}

TEST_F(SessionTest, a_failed_opening_is_told_handed_back_and_names_the_project_all_the_same) {
    Start();
    const std::string path = (folder / "cut.tnvik").string();
    session.Save(path);
    std::filesystem::resize_file(Path_of(path), 1000);
    bool shown = false;
    const auto failure = session.Open_project(path, [&] { shown = true; });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number, fault_bad_record_length);
    EXPECT_FALSE(shown);
    ASSERT_EQ(view.box.messages.size(), 1U);
    EXPECT_EQ(view.box.messages[0].text, "Input file not compatible with Tarn-Vik Version  1.2.0");
    EXPECT_EQ(s.File_name, path);
}

TEST_F(SessionTest, a_project_that_a_crash_left_half_written_is_mended_and_told) {
    Start();
    const std::filesystem::path path = folder / "joint.tnvik";
    session.Save(path.string());
    test::Write_file(folder / ".joint.tnvik.undo", test::Read_file(path));
    test::Write_file(path, "half");
    EXPECT_FALSE(session.Open_project(path.string()));
    ASSERT_TRUE(session.File().Mended());
    EXPECT_EQ(test::Read_file(*session.File().Mended()), "half");
    EXPECT_FALSE(session.Open_project(path.string()));
    EXPECT_FALSE(session.File().Mended());
}

TEST_F(SessionTest, a_fault_while_the_controls_are_filled_counts_as_one_of_the_opening) {
    Start();
    const std::string path = (folder / "joint.tnvik").string();
    session.Save(path);
    const auto failure = session.Open_project(path, [] { Raise(fault_subscript, "test"); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number, fault_subscript);
    EXPECT_TRUE(view.box.messages.empty()); // this one has no message
    EXPECT_TRUE(s.File_named);
}

TEST_F(SessionTest, a_save_that_fails_throws) {
    Start();
    EXPECT_EQ(Fault_of([&] { session.Save((folder / "none" / "joint.tnvik").string()); }), fault_path_not_found);
}

TEST_F(SessionTest, prints_the_pictures_that_the_last_pass_chose) {
    Start();
    session.First_pass();
    Recorder recorder;
    session.Print(recorder, {"21.11.2026", "08:09:10"});
    std::vector<std::string> pictures;
    for (const PrintCall& call : recorder.calls) {
        if (call.op == PrintCall::Op::PaintPicture && call.page == 2) {
            pictures.push_back(call.text);
        }
    }
    EXPECT_EQ(pictures, (std::vector<std::string>{"Frm_tarn_vik_bolter_1_trykk/Pic1_2_b"}));
}

TEST_F(SessionTest, row_texts_of_the_report_outlive_a_print) {
    Start();
    s.Bolt_ab = "b";
    s.Ant_index = 2; // 1.3.b prints two rows from buffers that it does not fill
    session.First_pass();
    Recorder first;
    session.Print(first, {"", ""});
    s.Ant_index = 4; // six bolts fill them
    session.First_pass();
    Recorder six;
    session.Print(six, {"", ""});
    s.Ant_index = 2;
    session.First_pass();
    Recorder again;
    session.Print(again, {"", ""});
    EXPECT_NE(Lines_of(first), Lines_of(again));
}

} // namespace
} // namespace tarnvik::test
