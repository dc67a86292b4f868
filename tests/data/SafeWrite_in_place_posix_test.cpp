// Files that are written in place: on a full disk, through links, of other users.
#include "data/SafeWrite.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include <sys/stat.h>
#include <unistd.h>

#include "data/FileNames.h"
#include "platform/Machine.h"
#include "tests/support/Files.h"
#include "tests/support/Processes.h"

namespace tarnvik {
namespace {

namespace fs = std::filesystem;
using test::As_user;
using test::Fault_of;
using test::May_change_user;
using test::Mount_small_disk;
using test::no_mount;
using test::Read_file;
using test::TemporaryFolder;
using test::With_own_mounts;
using test::Write_file;

int Save(const fs::path& path, std::string_view content) {
    return Fault_of([&] { Safe_write(path, content, {}, "Test"); });
}

TEST(SafeWriteInPlace, a_full_disk_leaves_the_former_content_and_no_other_file) {
    const TemporaryFolder folder;
    const int failures = With_own_mounts([&] {
        if (!Mount_small_disk(folder.Path())) {
            return no_mount;
        }
        const std::string former(3000, 'f');
        Write_file(folder / "a", former);
        fs::create_hard_link(folder / "a", folder / "b");
        EXPECT_EQ(Save(folder / "a", std::string(200000, 'n')), fault_disk_full);
        EXPECT_EQ(Read_file(folder / "b"), former);
        EXPECT_EQ(folder.Files(), 2U);
        EXPECT_EQ(Save(folder / "a", std::string(20000, 'n')), 0);
        EXPECT_EQ(Read_file(folder / "b"), std::string(20000, 'n'));
        return test::Failures();
    });
    if (failures == no_mount) {
        GTEST_SKIP() << "no small file system can be mounted here";
    }
    EXPECT_EQ(failures, 0);
}

// Whatever room a disk has left, page by page, and however the file is written: the save is done, or refused as a
// whole.
TEST(SafeWriteInPlace, no_room_left_on_a_disk_makes_a_third_state) {
    const TemporaryFolder folder;
    const int failures = With_own_mounts([&] {
        const std::string former(12000, 'f');
        const std::string content(16000, 'n');
        int done = 0;
        int refused = 0;
        for (int i = 0; i < 24; ++i) {
            const bool linked = i % 2 == 1;
            const auto pages = static_cast<std::size_t>(i / 2); // of the 13 that are free beside the file
            if (!Mount_small_disk(folder.Path())) {
                return no_mount;
            }
            Write_file(folder / "a", former);
            Write_file(folder / "filling", std::string(pages * 4096, 'x'));
            if (linked) {
                fs::create_hard_link(folder / "a", folder / "b");
            }
            const int fault = Fault_of([&] { Safe_write(folder / "a", content, {OldTail::keep, true, {}}, "Test"); });
            const std::size_t others = linked ? 2 : 1; // the filling, and the link
            EXPECT_TRUE(fault == 0 || fault == fault_disk_full) << fault;
            EXPECT_EQ(Read_file(folder / "a"), fault == 0 ? content : former);
            const bool kept = fs::exists(folder / "a~");
            EXPECT_TRUE(kept || fault != 0);
            EXPECT_EQ(kept ? Read_file(folder / "a~") : former, former);
            EXPECT_EQ(folder.Files(), others + (kept ? 2U : 1U));
            (fault == 0 ? done : refused) += 1;
            umount(folder.Path().c_str());
        }
        EXPECT_GT(done, 0);
        EXPECT_GT(refused, 0);
        return test::Failures();
    });
    if (failures == no_mount) {
        GTEST_SKIP() << "no small file system can be mounted here";
    }
    EXPECT_EQ(failures, 0);
}

TEST(SafeWriteInPlace, a_disk_without_room_for_the_undo_copy_leaves_the_file_alone) {
    const TemporaryFolder folder;
    const int failures = With_own_mounts([&] {
        if (!Mount_small_disk(folder.Path())) {
            return no_mount;
        }
        const std::string former(40000, 'f');
        Write_file(folder / "a", former);
        fs::create_hard_link(folder / "a", folder / "b");
        EXPECT_EQ(Save(folder / "a", "new"), fault_disk_full);
        EXPECT_EQ(Read_file(folder / "a"), former);
        EXPECT_EQ(folder.Files(), 2U);
        return test::Failures();
    });
    if (failures == no_mount) {
        GTEST_SKIP() << "no small file system can be mounted here";
    }
    EXPECT_EQ(failures, 0);
}

TEST(SafeWriteInPlace, links_are_followed_to_the_copy) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "elsewhere");
    Write_file(folder / "elsewhere/real", "newm");
    Write_file(folder / "elsewhere/.real.undo", "former");
    fs::create_symlink("elsewhere/real", folder / "link");
    EXPECT_TRUE(Mend_file(folder / "link", "Test"));
    EXPECT_EQ(Read_file(folder / "elsewhere/real"), "former");
}

TEST(SafeWriteInPlace, a_copy_in_the_state_folder_mends_as_well) {
    const TemporaryFolder folder;
    const TemporaryFolder state;
    const char* before = std::getenv("XDG_STATE_HOME");
    const std::string kept = before == nullptr ? "" : before;
    setenv("XDG_STATE_HOME", state.Path().c_str(), 1);
    fs::create_directory(state / "tarnvik");
    const fs::path file = fs::canonical(folder.Path()) / "a";
    Write_file(file, "newm");
    Write_file(User_state_folder() / Undo_name_of_path(file), "former");
    EXPECT_TRUE(Mend_file(file, "Test"));
    EXPECT_EQ(Read_file(file), "former");
    EXPECT_TRUE(fs::is_empty(state / "tarnvik"));
    before == nullptr ? unsetenv("XDG_STATE_HOME") : setenv("XDG_STATE_HOME", kept.c_str(), 1);
}

constexpr uid_t ann = 20001;
constexpr uid_t bob = 20002;

TEST(SafeWriteInPlace, a_half_written_file_that_the_reader_may_not_mend_is_refused) {
    if (!May_change_user()) {
        GTEST_SKIP() << "not the superuser";
    }
    const TemporaryFolder folder;
    ASSERT_EQ(chmod(folder.Path().c_str(), 0755), 0);
    Write_file(folder / "a", "newm");
    Write_file(folder / ".a.undo", "former");
    const auto mend = [&] { return Fault_of([&] { Mend_file(folder / "a", "Test"); }); };
    EXPECT_EQ(As_user({ann, {ann}}, mend), fault_path_access);
    Write_file(folder / "a", "former"); // whole: it may be read as it is
    EXPECT_EQ(As_user({ann, {ann}}, mend), 0);
    EXPECT_EQ(folder.Files(), 2U);
    ASSERT_EQ(chmod((folder / ".a.undo").c_str(), 0600), 0);
    EXPECT_EQ(As_user({ann, {ann}}, mend), fault_path_access);
}

TEST(SafeWriteInPlace, where_everybody_may_make_files_a_strangers_copy_has_no_say) {
    if (!May_change_user()) {
        GTEST_SKIP() << "not the superuser";
    }
    const TemporaryFolder folder;
    Write_file(folder / "a", "content");
    ASSERT_EQ(chown((folder / "a").c_str(), ann, ann), 0);
    Write_file(folder / ".a.undo", "planted");
    ASSERT_EQ(chown((folder / ".a.undo").c_str(), bob, bob), 0);
    ASSERT_EQ(chmod(folder.Path().c_str(), 01777), 0);
    EXPECT_EQ(As_user({ann, {ann}}, [&] { return Mend_file(folder / "a", "Test") ? 1 : 0; }), 0);
    EXPECT_EQ(Read_file(folder / "a"), "content");
    fs::remove(folder / ".a.undo");
    fs::create_symlink("a", folder / ".a.undo");
    EXPECT_FALSE(Mend_file(folder / "a", "Test"));
}

} // namespace
} // namespace tarnvik
