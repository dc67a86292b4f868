#include "session/File_standing.h"

#include <gtest/gtest.h>

#include <string>

#include "session/Session.h"
#include "tests/support/Files.h"
#include "tests/support/RecordingView.h"

namespace tarnvik {
namespace {

namespace fs = std::filesystem;
using test::Read_file;
using test::RecordingView;
using test::TemporaryFolder;
using test::Write_file;

// A session on a file, and another window on the same one.
class FileOfSession : public testing::Test {
protected:
    FileOfSession() {
        for (Session* each : {&session, &other}) {
            each->Start(TARNVIK_DATA_DIR, "Eng");
            each->First_pass();
        }
        s.P = 7.0F;
        session.Save(path);
    }
    std::string Line() const { return session.File().Text(true); }

    TemporaryFolder folder;
    const std::string path = (folder / "house.tnvik").string();
    RecordingView view;
    std::unique_ptr<ConnectionState> state_ = std::make_unique<ConnectionState>();
    std::unique_ptr<ConnectionState> other_state_ = std::make_unique<ConnectionState>();
    ConnectionState& s = *state_;
    Session session{s, view};
    Session other{*other_state_, view};
};

TEST_F(FileOfSession, nothing_is_said_of_what_works) {
    EXPECT_EQ(Line(), "");
    EXPECT_FALSE(session.Open_project(path));
    EXPECT_EQ(Line(), "");
    s.P = 8.0F;
    session.Save(path);
    EXPECT_EQ(Line(), "");
    EXPECT_EQ(folder.Files(), 1U);
}

TEST_F(FileOfSession, why_an_opening_failed_until_the_next_that_works) {
    session.Open_project((folder / "garden.tnvik").string());
    EXPECT_EQ(Line(), "Not opened: file not found");
    EXPECT_EQ(session.File().Text(false), "Ikke åpnet: filen finnes ikke");
    EXPECT_TRUE(session.File().Failed());
    session.Open_project((folder / "no folder" / "garden.tnvik").string());
    EXPECT_EQ(Line(), "Not opened: folder not found");
    session.Open_project(folder.Path().string());
    EXPECT_EQ(Line(), "Not opened: the file cannot be read");
    Write_file(folder / "cut.tnvik", Read_file(Path_of(path)).substr(0, 1000));
    session.Open_project((folder / "cut.tnvik").string());
    EXPECT_EQ(Line(), "Not opened: not a whole project file");
    session.Open_project(path);
    EXPECT_EQ(Line(), "");
    EXPECT_FALSE(session.File().Failed());
}

TEST_F(FileOfSession, why_a_save_failed_until_the_next_that_works) {
    EXPECT_THROW(session.Save((folder / "no folder" / "garden.tnvik").string()), RuntimeFault);
    EXPECT_EQ(Line(), "Not saved: folder not found");
    EXPECT_EQ(session.File().Text(false), "Ikke lagret: mappen finnes ikke");
    EXPECT_THROW(session.Save(folder.Path().string()), RuntimeFault);
    EXPECT_EQ(Line(), "Not saved: the file cannot be written");
    session.Save(path);
    EXPECT_EQ(Line(), "");
}

TEST_F(FileOfSession, what_could_not_be_opened_is_kept_when_it_is_saved_over) {
    const std::string cut = (folder / "cut.tnvik").string();
    Write_file(cut, "what a disk left of it");
    session.Open_project(cut);
    session.Open_project(path); // another one in between
    s.P = 9.0F;
    session.Save(cut);
    EXPECT_EQ(Read_file(cut + "~"), "what a disk left of it");
    EXPECT_EQ(Line(), "Saved; what could not be opened is kept as cut.tnvik~");
    EXPECT_EQ(session.File().Text(false), "Lagret; det som ikke lot seg åpne, ligger i cut.tnvik~");
    EXPECT_EQ(session.File().Paths(), (fs::canonical(folder.Path()) / "cut.tnvik~").string());
    EXPECT_FALSE(session.File().Failed());
    s.P = 10.0F;
    session.Save(cut); // its own now
    EXPECT_EQ(Line(), "");
    EXPECT_FALSE(fs::exists(cut + "~2"));
}

TEST_F(FileOfSession, what_another_window_saved_meanwhile_is_kept_and_told) {
    session.Open_project(path);
    other.Open_project(path);
    other.State().P = 20.0F;
    other.Save(path);
    EXPECT_EQ(other.File().Text(true), ""); // it was the first
    const std::string theirs = Read_file(path);
    s.P = 30.0F;
    session.Save(path);
    EXPECT_EQ(Read_file(path + "~"), theirs);
    EXPECT_EQ(Line(), "Saved; changed by others, their file is kept as house.tnvik~");
    other.State().P = 40.0F;
    other.Save(path); // and the other way round, under the next number
    EXPECT_TRUE(fs::exists(path + "~2"));
    EXPECT_EQ(Read_file(path + "~"), theirs);
}

TEST_F(FileOfSession, the_same_content_written_by_another_program_is_no_change) {
    session.Open_project(path);
    const std::string bytes = Read_file(path);
    Write_file(path, bytes);
    s.P = 8.0F;
    session.Save(path);
    EXPECT_EQ(Line(), "");
    EXPECT_EQ(folder.Files(), 1U);
}

TEST_F(FileOfSession, a_file_that_the_user_chose_to_replace_is_replaced) {
    Write_file(folder / "old.tnvik", "old");
    session.Save((folder / "old.tnvik").string());
    EXPECT_EQ(Line(), "");
    EXPECT_EQ(folder.Files(), 2U);
}

TEST_F(FileOfSession, a_file_that_nobody_was_asked_about_is_kept) {
    Write_file(folder / "New File", "of another day");
    session.Save((folder / "New File").string(), std::nullopt, false);
    EXPECT_EQ(Read_file(folder / "New File~"), "of another day");
    EXPECT_EQ(Line(), "Saved; a file of this name is kept as New File~");
    s.P = 8.0F;
    session.Save((folder / "New File").string(), std::nullopt, false); // known now
    EXPECT_EQ(Line(), "");
}

TEST_F(FileOfSession, long_names_are_shortened_in_the_line_alone) {
    const std::string name = "a name that is rather longer than the line.tnvik";
    Write_file(folder / name, "x");
    session.Open_project((folder / name).string());
    session.Save((folder / name).string());
    EXPECT_EQ(Line(), "Saved; what could not be opened is kept as ...ger than the line.tnvik~");
    EXPECT_NE(session.File().Paths().find(name + "~"), std::string::npos);
}

} // namespace
} // namespace tarnvik
