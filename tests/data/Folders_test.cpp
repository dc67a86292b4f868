#include "data/Folders.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "data/SetupFile.h"
#include "data/Tables.h"
#include "platform/Machine.h"
#include "tests/support/Files.h"

namespace tarnvik {
namespace {

namespace fs = std::filesystem;
using test::Read_file;
using test::TemporaryFolder;
using test::Write_file;

// A program in a folder of its own, the delivered files in another, a user with a home.
class DataFolders : public testing::Test {
protected:
    DataFolders() {
        const char* home = std::getenv("HOME");
        former_home_ = home == nullptr ? "" : home;
        setenv("HOME", (root / "home").c_str(), 1);
        unsetenv("XDG_DATA_HOME");
        fs::create_directories(program);
        fs::create_directories(delivered);
        for (const char* file : {material_file, profile_file, setup_file_read}) {
            Write_file(delivered / file, file);
        }
    }
    ~DataFolders() override {
        setenv("HOME", former_home_.c_str(), 1);
        unsetenv("XDG_DATA_HOME");
    }
    void Say(const std::string& folder) const { Write_file(program / folder_file, folder + "\n"); }

    TemporaryFolder root;
    fs::path program = root / "lib";
    fs::path delivered = root / "etc" / "tarnvik";
    fs::path own = root / "home" / ".local" / "share" / "tarnvik";

private:
    std::string former_home_;
};

TEST_F(DataFolders, the_one_that_is_asked_for_comes_first) {
    Say(".");
    const DataFolder data = Find_data_folder(program, "/elsewhere");
    EXPECT_EQ(data.folder, "/elsewhere");
    EXPECT_FALSE(Fill_data_folder(data));
    EXPECT_EQ(Readable_folder(data), "/elsewhere"); // whether or not anything is in it
}

TEST_F(DataFolders, a_build_and_an_unpacked_folder_have_them_beside_the_program) {
    Say(".");
    const DataFolder data = Find_data_folder(program);
    EXPECT_EQ(data.folder, program);
    EXPECT_FALSE(Fill_data_folder(data));
    EXPECT_FALSE(fs::exists(own));
}

TEST_F(DataFolders, an_installed_program_fills_the_users_own_once) {
    Say(delivered.string());
    const DataFolder data = Find_data_folder(program);
    EXPECT_EQ(data.folder, own);
    EXPECT_EQ(Readable_folder(data), delivered); // the tool creates nothing
    EXPECT_FALSE(fs::exists(own));
    EXPECT_TRUE(Fill_data_folder(data));
    EXPECT_EQ(Read_file(own / material_file), material_file);
    EXPECT_EQ(Read_file(own / setup_file_read), setup_file_read);
    EXPECT_EQ(Readable_folder(data), own);
    Write_file(own / profile_file, "the user's");
    EXPECT_FALSE(Fill_data_folder(data));
    EXPECT_EQ(Read_file(own / profile_file), "the user's");
}

TEST_F(DataFolders, a_file_that_the_user_removed_does_not_come_back) {
    Say(delivered.string());
    const DataFolder data = Find_data_folder(program);
    Fill_data_folder(data);
    fs::remove(own / setup_file_read);
    EXPECT_FALSE(Fill_data_folder(data));
    EXPECT_FALSE(fs::exists(own / setup_file_read));
    EXPECT_EQ(Readable_folder(data), own);
}

TEST_F(DataFolders, the_base_directory_is_followed_and_a_relative_place_is_one_from_the_program) {
    setenv("XDG_DATA_HOME", (root / "xdg").c_str(), 1);
    Say("../etc/tarnvik");
    const DataFolder data = Find_data_folder(program);
    EXPECT_EQ(data.folder, root / "xdg" / "tarnvik");
    EXPECT_EQ(data.delivered, delivered);
}

TEST_F(DataFolders, other_files_in_the_users_folder_stay) {
    Say(delivered.string());
    fs::create_directories(own);
    Write_file(own / "notes.txt", "mine");
    fs::create_directory(root / "home" / ".local" / "share" / "tarnvik.new"); // of a start that was cut off
    const DataFolder data = Find_data_folder(program);
    EXPECT_TRUE(Fill_data_folder(data));
    EXPECT_EQ(Read_file(own / "notes.txt"), "mine");
    EXPECT_EQ(Read_file(own / profile_file), profile_file);
    EXPECT_FALSE(fs::exists(root / "home" / ".local" / "share" / "tarnvik.new"));
}

TEST_F(DataFolders, files_that_an_administrator_protected_can_be_edited_in_the_users_folder) {
    Say(delivered.string());
    fs::permissions(delivered / material_file, fs::perms{0444});
    Fill_data_folder(Find_data_folder(program));
    EXPECT_NE(fs::status(own / material_file).permissions() & fs::perms::owner_write, fs::perms::none);
}

TEST_F(DataFolders, without_a_home_and_where_it_cannot_be_made_the_delivered_files_are_read) {
    Say(delivered.string());
    Write_file(root / "home", "a file where the home would be");
    const DataFolder data = Find_data_folder(program);
    EXPECT_THROW(Fill_data_folder(data), fs::filesystem_error);
    EXPECT_EQ(Readable_folder(data), delivered);
    unsetenv("HOME");
    EXPECT_EQ(Find_data_folder(program).folder, delivered);
}

TEST_F(DataFolders, where_nothing_is_said_the_delivered_files_lie_beside_the_program) {
    EXPECT_EQ(Find_data_folder(program).delivered, program);
}

TEST_F(DataFolders, the_state_folder_follows_the_base_directories) {
    setenv("HOME", "/home/anna", 1);
    setenv("XDG_STATE_HOME", "/var/anna", 1);
    EXPECT_EQ(User_state_folder(), "/var/anna/tarnvik");
    setenv("XDG_STATE_HOME", "not/absolute", 1);
    EXPECT_EQ(User_state_folder(), "/home/anna/.local/state/tarnvik");
    unsetenv("XDG_STATE_HOME");
    EXPECT_EQ(User_state_folder(), "/home/anna/.local/state/tarnvik");
    unsetenv("HOME");
    EXPECT_EQ(User_state_folder(), "");
}

} // namespace
} // namespace tarnvik
