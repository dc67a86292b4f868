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

TEST(SafeWrite, a_new_file_holds_the_content_and_nothing_else_is_left) {
    const TemporaryFolder folder;
    EXPECT_EQ(Save(folder / "Ny Fil", std::string("a\0\r\n\xFF", 5)), 0);
    EXPECT_EQ(Read_file(folder / "Ny Fil"), std::string("a\0\r\n\xFF", 5));
    EXPECT_EQ(folder.Files(), 1U);
}

TEST(SafeWrite, an_empty_content_makes_an_empty_file) {
    const TemporaryFolder folder;
    EXPECT_EQ(Save(folder / "empty", ""), 0);
    EXPECT_EQ(Read_file(folder / "empty"), "");
}

TEST(SafeWrite, a_longer_file_keeps_its_old_tail_byte_for_byte) {
    const TemporaryFolder folder;
    std::string old(200000, '\0'); // longer than any block of the copy
    for (std::size_t i = 0; i < old.size(); ++i) {
        old[i] = static_cast<char>(i * 7 + i / 256);
    }
    for (const std::size_t length : {std::size_t{0}, std::size_t{1}, std::size_t{65535}, std::size_t{65536},
                                     std::size_t{199999}, std::size_t{200000}, std::size_t{200001}}) {
        Write_file(folder / "a", old);
        const std::string content(length, 'n');
        EXPECT_EQ(Save(folder / "a", content), 0);
        const std::string tail = length < old.size() ? old.substr(length) : std::string{};
        EXPECT_EQ(Read_file(folder / "a"), content + tail) << length;
    }
    EXPECT_EQ(folder.Files(), 1U);
}

TEST(SafeWrite, a_file_that_is_replaced_loses_its_tail) {
    const TemporaryFolder folder;
    Write_file(folder / "a", "a long former content");
    EXPECT_EQ(Save(folder / "a", "short", OldTail::drop), 0);
    EXPECT_EQ(Read_file(folder / "a"), "short");
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

TEST(SafeWrite, a_bare_name_goes_to_the_current_folder) {
    const TemporaryFolder folder;
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    const int number = Save("Ny Fil", "content");
    fs::current_path(before);
    EXPECT_EQ(number, 0);
    EXPECT_EQ(Read_file(folder / "Ny Fil"), "content");
}

TEST(SafeWrite, a_name_as_long_as_the_file_system_takes_is_no_obstacle) {
    const TemporaryFolder folder;
    const std::string name(255, 'n');
    EXPECT_EQ(Save(folder / name, "content"), 0);
    EXPECT_EQ(Read_file(folder / name), "content");
}

TEST(SafeWrite, what_is_no_place_for_a_file_is_refused) {
    const TemporaryFolder folder;
    Write_file(folder / "file", "former");
    fs::create_directory(folder / "folder");
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(Save(folder / "missing/a", "content"), fault_path_not_found);
    EXPECT_EQ(Save(folder / "file/a", "content"), fault_path_not_found);
    EXPECT_EQ(Save(folder / "folder", "content"), fault_path_access);
    EXPECT_EQ(Save(folder / "folder/", "content"), fault_path_access);
    EXPECT_EQ(Save(folder / "pipe", "content"), fault_path_access);
    EXPECT_EQ(Save("/dev/full", "content"), fault_path_access);
    EXPECT_EQ(Save("", "content"), fault_path_access);
    EXPECT_EQ(Read_file(folder / "file"), "former");
    EXPECT_EQ(folder.Files(), 3U);
}

TEST(SafeWrite, the_fault_names_the_caller) {
    const TemporaryFolder folder;
    try {
        Safe_write(folder / "missing/a", "content", {}, "Save_project");
        FAIL() << "no fault";
    } catch (const RuntimeFault& fault) {
        EXPECT_EQ(Fault_text(fault), "Run-time error 76: path not found (Save_project)");
    }
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
