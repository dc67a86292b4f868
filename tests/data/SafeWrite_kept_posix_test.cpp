// Whose NAME~ is, whom it is closed to and where it lies; two that save one file.
#include "data/SafeWrite.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <set>
#include <thread>
#include <vector>

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

SaveReport Save(const fs::path& path, std::string_view content, const SaveRequest& request = {}) {
    return Safe_write(path, content, request, "Test");
}

constexpr SaveRequest keeping{OldTail::keep, true, {}};

SaveRequest Knowing(const FileIdentity& known) {
    return {OldTail::keep, false, known};
}

// ---------------------------------------------------------------------------------------------------------------------
// What a file is known by

TEST(SafeWriteKept, a_copy_has_the_rights_of_the_file_and_no_link_is_taken_for_it) {
    const TemporaryFolder folder;
    Write_file(folder / "a", "one");
    ASSERT_EQ(chmod((folder / "a").c_str(), 0640), 0);
    fs::create_symlink("nowhere", folder / "a~");
    Save(folder / "a", "two", keeping);
    EXPECT_TRUE(fs::is_symlink(folder / "a~"));
    EXPECT_EQ(Read_file(folder / "a~2"), "one");
    EXPECT_EQ(fs::status(folder / "a~2").permissions(), fs::perms{0640});
}

TEST(SafeWriteKept, names_as_long_as_they_may_be_are_cut_between_characters) {
    const TemporaryFolder folder;
    std::string name(253, 'n');
    name += "\xC3\xA5"; // one letter, two bytes
    Write_file(folder / name, "one");
    Save(folder / name, "two", keeping);
    EXPECT_EQ(Read_file(folder / (std::string(253, 'n') + "~")), "one");
    EXPECT_EQ(Read_file(folder / name), "two");
}

TEST(SafeWriteKept, without_room_for_the_copy_the_file_stays) {
    const TemporaryFolder folder;
    const int failures = With_own_mounts([&] {
        if (!Mount_small_disk(folder.Path())) {
            return no_mount;
        }
        const std::string former(40000, 'f');
        Write_file(folder / "a", former);
        EXPECT_EQ(Fault_of([&] { Save(folder / "a", "new", keeping); }), fault_disk_full);
        EXPECT_EQ(Read_file(folder / "a"), former);
        EXPECT_EQ(folder.Files(), 1U);
        return test::Failures();
    });
    if (failures == no_mount) {
        GTEST_SKIP() << "no small file system can be mounted here";
    }
    EXPECT_EQ(failures, 0);
}

constexpr uid_t ann = 20001;
constexpr uid_t bob = 20002;
constexpr gid_t office = 20010;

TEST(SafeWriteKept, a_copy_is_open_to_nobody_whom_the_file_is_closed_to) {
    if (!test::May_change_user()) {
        GTEST_SKIP() << "not the superuser";
    }
    struct Row {
        gid_t group; // of the file, which is ann's
        mode_t mode;
        mode_t kept; // of bob's copy
    };
    const Row rows[] = {
        {office, 0660, 0660}, // his as well: the group stays
        {office, 0664, 0664}, //
        {ann, 0606, 0600},    // not his: the group may not read it, so neither may those outside of his
        {ann, 0646, 0644},    // what group and others both may, both still may
        {ann, 0666, 0666},    //
    };
    for (const Row& row : rows) {
        const TemporaryFolder folder;
        ASSERT_EQ(chmod(folder.Path().c_str(), 0777), 0);
        Write_file(folder / "a", "one");
        ASSERT_EQ(chown((folder / "a").c_str(), ann, row.group), 0);
        ASSERT_EQ(chmod((folder / "a").c_str(), row.mode), 0);
        const auto save = [&] { return Fault_of([&] { Save(folder / "a", "two", keeping); }); };
        EXPECT_EQ(test::As_user({bob, {bob, office}}, save), 0);
        struct stat status {};
        ASSERT_EQ(stat((folder / "a~").c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777U, row.kept) << std::oct << row.mode;
        EXPECT_EQ(status.st_gid, row.group == office ? office : bob);
        EXPECT_EQ(Read_file(folder / "a~"), "one");
    }
}

TEST(SafeWriteKept, in_a_folder_that_takes_no_file_the_copy_lies_in_the_state_folder) {
    if (!test::May_change_user()) {
        GTEST_SKIP() << "not the superuser";
    }
    const TemporaryFolder folder;
    const TemporaryFolder state;
    Write_file(folder / "a", "one");
    ASSERT_EQ(chown((folder / "a").c_str(), bob, bob), 0);
    ASSERT_EQ(chmod(folder.Path().c_str(), 0555), 0);
    ASSERT_EQ(chown(state.Path().c_str(), bob, bob), 0);
    const int failures = test::As_user({bob, {bob}}, [&] {
        unsetenv("XDG_STATE_HOME");
        setenv("HOME", state.Path().c_str(), 1);
        const SaveReport report = Save(folder / "a", "two", keeping);
        EXPECT_EQ(report.kept, std::vector{state / ".local/state/tarnvik/a~"});
        return test::Failures();
    });
    EXPECT_EQ(failures, 0);
    EXPECT_EQ(Read_file(state / ".local/state/tarnvik/a~"), "one");
    EXPECT_EQ(Read_file(folder / "a"), "two");
}

// Two that save the same file again and again: what one of them finds gone, the other has kept.
TEST(SafeWriteKept, two_savers_lose_nothing_of_each_other) {
    const TemporaryFolder folder;
    const TemporaryFolder notes;
    constexpr int saves = 60;
    const auto content = [](char who, int i) { return who + std::string(4000, static_cast<char>('0' + i)); };
    const FileIdentity empty = Save(folder / "a", "").identity;
    const auto saver = [&](char who) {
        FileIdentity known = empty;
        for (int i = 0; i < saves; ++i) {
            const SaveReport report = Save(folder / "a", content(who, i), Knowing(known));
            if (i > 0 && !report.kept.empty()) { // the content before this one has been overwritten by the other
                Write_file(notes / (who + std::to_string(i - 1)), "");
            }
            known = report.identity;
            std::this_thread::sleep_for(
                std::chrono::microseconds{(i * 37 + who) % 5 * 500}); // now the one, now the other
        }
        return test::Failures();
    };
    const int failures = In_a_child([&] {
        const pid_t other = fork();
        if (other == 0) {
            _exit(In_a_child([&] { return saver('b'); }));
        }
        const int own = In_a_child([&] { return saver('a'); });
        int status = 0;
        waitpid(other, &status, 0);
        return own == 0 && status == 0 ? 0 : 1;
    });
    EXPECT_EQ(failures, 0);
    std::set<std::string> contents;
    for (const auto& entry : fs::directory_iterator{folder.Path()}) {
        contents.insert(Read_file(entry.path()));
    }
    EXPECT_EQ(contents.size(), folder.Files()); // no content is kept twice, no temporary file is left
    for (const auto& entry : fs::directory_iterator{notes.Path()}) {
        const std::string name = entry.path().filename();
        EXPECT_TRUE(contents.contains(content(name[0], std::stoi(name.substr(1))))) << name;
    }
}

} // namespace
} // namespace tarnvik
