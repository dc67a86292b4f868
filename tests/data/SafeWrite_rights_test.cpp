// Owner, group, mode, access list and attributes over a save, and the files that are written in place to keep them.
#include "data/SafeWrite.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include <sys/stat.h>
#include <unistd.h>

#include "tests/support/Files.h"
#include "tests/support/Processes.h"

namespace tarnvik {
namespace {

namespace fs = std::filesystem;
using test::As_user;
using test::Fault_of;
using test::May_change_user;
using test::no_mount;
using test::Read_file;
using test::TemporaryFolder;
using test::User;
using test::With_own_mounts;
using test::Write_file;

constexpr uid_t ann = 20001;
constexpr uid_t bob = 20002;
constexpr gid_t ann_alone = 20001;
constexpr gid_t bob_alone = 20002;
constexpr gid_t office = 20010;
constexpr gid_t board = 20011; // bob is not in it
const User bob_at_work{bob, {bob_alone, office}};

int Save(const fs::path& path, std::string_view content) {
    return Fault_of([&] { Safe_write(path, content, {}, "Test"); });
}

struct stat Status_of_path(const fs::path& path) {
    struct stat status {};
    EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
    return status;
}

void Give(const fs::path& path, uid_t user, gid_t group, mode_t mode) {
    ASSERT_EQ(chown(path.c_str(), user, group), 0);
    ASSERT_EQ(chmod(path.c_str(), mode), 0);
}

void Expect_rights(const fs::path& path, uid_t user, gid_t group, mode_t mode) {
    const struct stat status = Status_of_path(path);
    EXPECT_EQ(status.st_uid, user);
    EXPECT_EQ(status.st_gid, group);
    EXPECT_EQ(status.st_mode & 07777U, mode);
}

// What a command prints, nothing where it fails.
std::string Output(const std::string& command) {
    struct Closer {
        void operator()(std::FILE* pipe) const { pclose(pipe); }
    };
    const std::unique_ptr<std::FILE, Closer> pipe{popen((command + " 2>/dev/null").c_str(), "r")};
    std::array<char, 4096> block{};
    std::string text;
    while (const std::size_t count = std::fread(block.data(), 1, block.size(), pipe.get())) {
        text.append(block.data(), count);
    }
    return text;
}

bool Succeeds(const std::string& command) {
    return std::system((command + " 2>/dev/null").c_str()) == 0;
}

class SafeWriteRights : public testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(chmod(folder_.Path().c_str(), 0777), 0); }

    // A file with former content, and where bob's copies go if need be.
    fs::path Former(uid_t user, gid_t group, mode_t mode) {
        Write_file(folder_ / "a", "former content");
        Give(folder_ / "a", user, group, mode);
        return folder_ / "a";
    }
    int Save_as_bob(std::string_view content) {
        return As_user(bob_at_work, [&] {
            setenv("XDG_STATE_HOME", (state_ / "state").c_str(), 1);
            return Save(folder_ / "a", content);
        });
    }
    void Open_state_folder() { Give(state_.Path(), bob, bob_alone, 0700); }
    [[nodiscard]] std::size_t Copies_in_state_folder() const {
        const fs::path copies = state_ / "state/tarnvik";
        return static_cast<std::size_t>(std::distance(fs::directory_iterator{copies}, {}));
    }

    TemporaryFolder folder_;
    TemporaryFolder state_;
};

TEST_F(SafeWriteRights, the_superuser_leaves_a_file_to_its_owner_and_group) {
    if (!May_change_user()) {
        GTEST_SKIP() << "not the superuser";
    }
    const fs::path file = Former(ann, office, 0640);
    const ino_t before = Status_of_path(file).st_ino;
    EXPECT_EQ(Save(file, "new"), 0);
    Expect_rights(file, ann, office, 0640);
    EXPECT_NE(Status_of_path(file).st_ino, before);
}

TEST_F(SafeWriteRights, a_group_that_the_process_is_in_stays_over_a_renaming) {
    if (!May_change_user()) {
        GTEST_SKIP() << "not the superuser";
    }
    const fs::path file = Former(bob, office, 0664);
    const ino_t before = Status_of_path(file).st_ino;
    EXPECT_EQ(Save_as_bob("new"), 0);
    Expect_rights(file, bob, office, 0664);
    EXPECT_NE(Status_of_path(file).st_ino, before);
    EXPECT_EQ(Read_file(file), "newmer content");
}

TEST_F(SafeWriteRights, a_group_that_the_process_is_not_in_keeps_the_file_which_is_written_in_place) {
    if (!May_change_user()) {
        GTEST_SKIP() << "not the superuser";
    }
    const fs::path file = Former(bob, board, 0640);
    const ino_t before = Status_of_path(file).st_ino;
    EXPECT_EQ(Save_as_bob("new"), 0);
    Expect_rights(file, bob, board, 0640);
    EXPECT_EQ(Status_of_path(file).st_ino, before);
    EXPECT_EQ(Read_file(file), "newmer content");
    EXPECT_EQ(folder_.Files(), 1U);
}

TEST_F(SafeWriteRights, a_file_of_another_owner_stays_with_that_owner) {
    if (!May_change_user()) {
        GTEST_SKIP() << "not the superuser";
    }
    const fs::path file = Former(ann, office, 0664);
    EXPECT_EQ(Save_as_bob("a content that is longer than the former one"), 0);
    Expect_rights(file, ann, office, 0664);
    EXPECT_EQ(Read_file(file), "a content that is longer than the former one");
    EXPECT_EQ(folder_.Files(), 1U);
}

TEST_F(SafeWriteRights, a_file_that_may_not_be_written_stays_as_it_is) {
    if (!May_change_user()) {
        GTEST_SKIP() << "not the superuser";
    }
    const fs::path file = Former(ann, board, 0644);
    EXPECT_EQ(Save_as_bob("new"), fault_path_access);
    EXPECT_EQ(Read_file(file), "former content");
    EXPECT_EQ(folder_.Files(), 1U);
}

TEST_F(SafeWriteRights, a_folder_that_gives_its_group_to_new_files_does_not_take_it_from_an_old_one) {
    if (!May_change_user()) {
        GTEST_SKIP() << "not the superuser";
    }
    const fs::path file = Former(bob, bob_alone, 0640);
    Give(folder_.Path(), ann, office, 02775);
    EXPECT_EQ(Save_as_bob("new"), 0);
    Expect_rights(file, bob, bob_alone, 0640);
}

TEST_F(SafeWriteRights, access_lists_and_attributes_stay) {
    const fs::path file = folder_ / "a";
    Write_file(file, "former content");
    ASSERT_EQ(chmod(file.c_str(), 0640), 0);
    const std::string name = "'" + file.string() + "'";
    if (!Succeeds("setfacl -m u:20001:rw,g:20011:r " + name) ||
        !Succeeds("setfattr -n user.comment -v 'of the office' " + name)) {
        GTEST_SKIP() << "no setfacl and setfattr, or a file system without access lists";
    }
    const ino_t before = Status_of_path(file).st_ino;
    const std::string listed = Output("getfacl -cnp " + name);
    EXPECT_NE(listed.find("user:20001:rw-"), std::string::npos);
    EXPECT_EQ(Save(file, "new"), 0);
    EXPECT_EQ(Output("getfacl -cnp " + name), listed);
    EXPECT_EQ(Output("getfattr --only-values -n user.comment " + name), "of the office");
    EXPECT_NE(Status_of_path(file).st_ino, before);
}

TEST_F(SafeWriteRights, the_default_list_of_the_folder_opens_no_file_that_has_none) {
    const fs::path file = folder_ / "a";
    Write_file(file, "former content");
    ASSERT_EQ(chmod(file.c_str(), 0660), 0);
    if (!Succeeds("setfacl -d -m u:20001:rw '" + folder_.Path().string() + "'")) {
        GTEST_SKIP() << "no setfacl, or a file system without access lists";
    }
    EXPECT_EQ(Save(file, "new"), 0);
    EXPECT_EQ(Output("getfacl -cnp '" + file.string() + "'"), "user::rw-\ngroup::rw-\nother::---\n\n");
    // A new one takes it on, as any new file.
    EXPECT_EQ(Save(folder_ / "b", "new"), 0);
    Write_file(folder_ / "c", "new");
    EXPECT_EQ(Output("getfacl -cnp '" + (folder_ / "b").string() + "'"),
              Output("getfacl -cnp '" + (folder_ / "c").string() + "'"));
}

TEST_F(SafeWriteRights, in_a_folder_that_takes_no_file_the_copy_goes_to_the_state_folder) {
    if (!May_change_user()) {
        GTEST_SKIP() << "not the superuser";
    }
    Open_state_folder();
    const fs::path file = Former(bob, bob_alone, 0600);
    ASSERT_EQ(chmod(folder_.Path().c_str(), 0555), 0);
    const ino_t before = Status_of_path(file).st_ino;
    EXPECT_EQ(Save_as_bob("new"), 0);
    EXPECT_EQ(Read_file(file), "newmer content");
    EXPECT_EQ(Status_of_path(file).st_ino, before);
    EXPECT_EQ(folder_.Files(), 1U);
    EXPECT_EQ(Copies_in_state_folder(), 0U); // gone with the end of the save
    Expect_rights(state_ / "state/tarnvik", bob, bob_alone, 0700);
}

TEST_F(SafeWriteRights, a_folder_that_may_be_written_but_not_read_takes_a_save) {
    const fs::path file = folder_ / "a";
    const auto save = [&] { return Save(file, "new"); };
    Write_file(file, "former content");
    if (May_change_user()) {
        Give(file, bob, bob_alone, 0600);
    }
    ASSERT_EQ(chmod(folder_.Path().c_str(), 0333), 0);
    EXPECT_EQ(May_change_user() ? As_user(bob_at_work, save) : save(), 0);
    ASSERT_EQ(chmod(folder_.Path().c_str(), 0777), 0);
    EXPECT_EQ(Read_file(file), "newmer content");
    EXPECT_EQ(folder_.Files(), 1U);
}

TEST_F(SafeWriteRights, without_a_place_for_a_copy_the_save_is_refused) {
    if (!May_change_user()) {
        GTEST_SKIP() << "not the superuser";
    }
    const fs::path file = Former(bob, bob_alone, 0600);
    ASSERT_EQ(chmod(folder_.Path().c_str(), 0555), 0);
    EXPECT_EQ(Save_as_bob("new"), fault_path_access); // the state folder is not bob's
    EXPECT_EQ(Read_file(file), "former content");
}

TEST_F(SafeWriteRights, in_a_sticky_folder_a_file_of_another_owner_is_written_in_place) {
    if (!May_change_user()) {
        GTEST_SKIP() << "not the superuser";
    }
    const fs::path file = Former(ann, ann_alone, 0666);
    ASSERT_EQ(chmod(folder_.Path().c_str(), 01777), 0);
    EXPECT_EQ(Save_as_bob("new"), 0);
    EXPECT_EQ(Read_file(file), "newmer content");
    Expect_rights(file, ann, ann_alone, 0666);
    EXPECT_EQ(folder_.Files(), 1U);
}

TEST_F(SafeWriteRights, all_links_to_a_file_have_the_new_content) {
    Write_file(folder_ / "a", "former content");
    fs::create_hard_link(folder_ / "a", folder_ / "b");
    EXPECT_EQ(Save(folder_ / "a", "new"), 0);
    EXPECT_EQ(Read_file(folder_ / "b"), "newmer content");
    EXPECT_EQ(Status_of_path(folder_ / "a").st_nlink, 2U);
    EXPECT_EQ(folder_.Files(), 2U);
}

TEST_F(SafeWriteRights, a_file_that_is_mounted_by_itself_is_written_in_place) {
    Write_file(folder_ / "real", "former content");
    Write_file(folder_ / "a", "covered");
    const int failures = With_own_mounts([&] {
        if (mount((folder_ / "real").c_str(), (folder_ / "a").c_str(), nullptr, MS_BIND, nullptr) != 0) {
            return no_mount;
        }
        EXPECT_EQ(Save(folder_ / "a", "new"), 0);
        EXPECT_EQ(Read_file(folder_ / "a"), "newmer content");
        return test::Failures();
    });
    if (failures == no_mount) {
        GTEST_SKIP() << "nothing can be mounted here";
    }
    EXPECT_EQ(failures, 0);
    EXPECT_EQ(Read_file(folder_ / "real"), "newmer content");
    EXPECT_EQ(Read_file(folder_ / "a"), "covered");
    EXPECT_EQ(folder_.Files(), 2U);
}

TEST_F(SafeWriteRights, a_file_on_a_folder_that_is_mounted_for_reading_only_is_written_in_place) {
    fs::create_directory(folder_ / "folder");
    Write_file(folder_ / "real", "former content");
    Write_file(folder_ / "folder/a", "covered");
    const fs::path inner = folder_ / "folder";
    const int failures = With_own_mounts([&] {
        if (mount(inner.c_str(), inner.c_str(), nullptr, MS_BIND, nullptr) != 0 ||
            mount(nullptr, inner.c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr) != 0 ||
            mount((folder_ / "real").c_str(), (inner / "a").c_str(), nullptr, MS_BIND, nullptr) != 0) {
            return no_mount;
        }
        setenv("XDG_STATE_HOME", state_.Path().c_str(), 1);
        EXPECT_EQ(Save(inner / "a", "new"), 0);
        EXPECT_EQ(Save(inner / "b", "new"), fault_path_access);
        return test::Failures();
    });
    if (failures == no_mount) {
        GTEST_SKIP() << "nothing can be mounted here";
    }
    EXPECT_EQ(failures, 0);
    EXPECT_EQ(Read_file(folder_ / "real"), "newmer content");
}

} // namespace
} // namespace tarnvik
