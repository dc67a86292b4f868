// A save and what POSIX knows of a file: number, mode, links; a disk that is full, a process that is killed.
#include "data/SafeWrite.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/support/Files.h"
#include "tests/support/Processes.h"

namespace tarnvik {
namespace {

namespace fs = std::filesystem;
using test::Fault_of;
using test::In_a_child;
using test::Mount_small_disk;
using test::no_mount;
using test::Read_file;
using test::TemporaryFolder;
using test::With_own_mounts;
using test::Write_file;

int Save(const fs::path& path, std::string_view content, OldTail tail = OldTail::keep) {
    return Fault_of([&] { Safe_write(path, content, {tail}, "Test"); });
}

TEST(SafeWrite, the_new_content_takes_the_place_by_renaming) {
    const TemporaryFolder folder;
    Write_file(folder / "a", "former");
    struct stat before {};
    struct stat after {};
    const fs::path held = folder / "a";
    std::ifstream reader{held, std::ios::binary}; // whoever has the former file open still reads it whole
    ASSERT_EQ(stat(held.c_str(), &before), 0);
    EXPECT_EQ(Save(held, "content"), 0);
    ASSERT_EQ(stat(held.c_str(), &after), 0);
    EXPECT_NE(before.st_ino, after.st_ino);
    EXPECT_EQ((std::string{std::istreambuf_iterator<char>{reader}, {}}), "former");
}

TEST(SafeWrite, the_permissions_of_the_former_file_stay) {
    const TemporaryFolder folder;
    for (const mode_t mode : {0600U, 0640U, 0664U, 0755U}) {
        Write_file(folder / "a", "former");
        ASSERT_EQ(chmod((folder / "a").c_str(), mode), 0);
        EXPECT_EQ(Save(folder / "a", "content"), 0);
        struct stat status {};
        ASSERT_EQ(stat((folder / "a").c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777U, mode);
        fs::remove(folder / "a");
    }
}

TEST(SafeWrite, a_new_file_has_the_permissions_of_any_new_file) {
    const TemporaryFolder folder;
    const mode_t mask = umask(027);
    EXPECT_EQ(Save(folder / "a", "content"), 0);
    umask(mask);
    struct stat status {};
    ASSERT_EQ(stat((folder / "a").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0640U);
}

TEST(SafeWrite, a_link_is_followed) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "elsewhere");
    Write_file(folder / "elsewhere/real", "former content");
    fs::create_symlink("elsewhere/real", folder / "link");
    fs::create_symlink(folder / "link", folder / "second");
    EXPECT_EQ(Save(folder / "second", "new"), 0);
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_TRUE(fs::is_symlink(folder / "second"));
    EXPECT_EQ(Read_file(folder / "elsewhere/real"), "newmer content");
    EXPECT_EQ(folder.Files(), 3U);
}

TEST(SafeWrite, a_link_that_leads_to_nothing_yet_gets_its_file) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "elsewhere");
    fs::create_symlink("elsewhere/real", folder / "link");
    fs::create_symlink("link", folder / "second");
    EXPECT_EQ(Save(folder / "second", "new"), 0);
    EXPECT_TRUE(fs::is_symlink(folder / "second"));
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_EQ(Read_file(folder / "elsewhere/real"), "new");
    fs::create_symlink("no/real", folder / "lost");
    EXPECT_EQ(Save(folder / "lost", "new"), fault_path_not_found);
}

TEST(SafeWrite, links_in_a_ring_are_refused) {
    const TemporaryFolder folder;
    fs::create_symlink("b", folder / "a");
    fs::create_symlink("a", folder / "b");
    EXPECT_NE(Save(folder / "a", "new"), 0);
    EXPECT_TRUE(fs::is_symlink(folder / "a"));
    EXPECT_TRUE(fs::is_symlink(folder / "b"));
}

TEST(SafeWrite, a_name_as_long_as_the_file_system_takes_is_no_obstacle) {
    const TemporaryFolder folder;
    const std::string name(255, 'n');
    EXPECT_EQ(Save(folder / name, "content"), 0);
    EXPECT_EQ(Read_file(folder / name), "content");
}

TEST(SafeWrite, a_file_or_folder_without_the_right_to_write_is_refused) {
    if (geteuid() == 0) {
        GTEST_SKIP() << "the superuser may write everywhere";
    }
    const TemporaryFolder folder;
    Write_file(folder / "a", "former");
    ASSERT_EQ(chmod((folder / "a").c_str(), 0444), 0);
    EXPECT_EQ(Save(folder / "a", "content"), fault_path_access);
    EXPECT_EQ(Read_file(folder / "a"), "former");
    ASSERT_EQ(chmod(folder.Path().c_str(), 0555), 0);
    EXPECT_EQ(Save(folder / "b", "content"), fault_path_access);
    ASSERT_EQ(chmod(folder.Path().c_str(), 0755), 0);
    EXPECT_EQ(folder.Files(), 1U);
}

// A limit on the size of files stops a write part of the way, as a full disk does.
TEST(SafeWrite, a_write_that_stops_on_the_way_leaves_the_former_file_and_no_other) {
    const TemporaryFolder folder;
    const std::string former(3000, 'f');
    for (const std::size_t room : {std::size_t{0}, std::size_t{1}, std::size_t{4096}, std::size_t{99999}}) {
        Write_file(folder / "a", former);
        const int number = In_a_child([&] {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{room, room};
            setrlimit(RLIMIT_FSIZE, &limit);
            return Save(folder / "a", std::string(100000, 'n'));
        });
        EXPECT_EQ(number, fault_disk_full) << room;
        EXPECT_EQ(Read_file(folder / "a"), former) << room;
        EXPECT_EQ(folder.Files(), 1U) << room;
    }
}

TEST(SafeWrite, a_killed_process_leaves_the_former_file) {
    const TemporaryFolder folder;
    const std::string former(3000, 'f');
    Write_file(folder / "a", former);
    const int number = In_a_child([&] {
        const rlimit limit{4096, 4096}; // the signal of the limit is fatal: a kill in the middle of the write
        setrlimit(RLIMIT_FSIZE, &limit);
        const rlimit no_core{0, 0};
        setrlimit(RLIMIT_CORE, &no_core);
        std::signal(SIGXFSZ, SIG_DFL);
        return Save(folder / "a", std::string(100000, 'n'));
    });
    EXPECT_EQ(number, -SIGXFSZ);
    EXPECT_EQ(Read_file(folder / "a"), former);
    EXPECT_EQ(folder.Files(), 2U);
    // The next save removes what the killed process left beside the file.
    EXPECT_EQ(Save(folder / "a", "content"), 0);
    EXPECT_EQ(Read_file(folder / "a").substr(0, 10), "contentfff");
    EXPECT_EQ(folder.Files(), 1U);
}

TEST(SafeWrite, a_full_disk_leaves_the_former_file_and_no_other) {
    const TemporaryFolder folder;
    const int number = With_own_mounts([&] {
        if (!Mount_small_disk(folder.Path())) {
            return no_mount;
        }
        const std::string former(3000, 'f');
        Write_file(folder / "a", former);
        const int fault = Save(folder / "a", std::string(200000, 'n'));
        const bool whole = Read_file(folder / "a") == former && folder.Files() == 1;
        const bool later = Save(folder / "a", "content") == 0;
        return whole && later ? fault : 254;
    });
    if (number == no_mount) {
        GTEST_SKIP() << "no small file system can be mounted here";
    }
    EXPECT_EQ(number, fault_disk_full);
}

} // namespace
} // namespace tarnvik
