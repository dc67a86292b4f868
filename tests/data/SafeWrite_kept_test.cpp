// The former content of a file as NAME~, the identity that asks for it, and what dead processes leave.
#include "data/SafeWrite.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <set>
#include <thread>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

#include "data/FileNames.h"
#include "platform/SystemFile.h"
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

TEST(FileIdentity, follows_the_content_and_nothing_else) {
    const TemporaryFolder folder;
    Write_file(folder / "a", "content");
    const FileIdentity before = Identity_of(folder / "a");
    EXPECT_EQ(before.state, FileIdentity::State::read);
    EXPECT_EQ(before.size, 7U);
    fs::remove(folder / "a");
    Write_file(folder / "a", "content");
    EXPECT_EQ(Identity_of(folder / "a"), before);
    Write_file(folder / "a", "Content"); // as long, and within the same tick of the clock
    EXPECT_NE(Identity_of(folder / "a"), before);
}

TEST(FileIdentity, of_a_large_file_to_its_last_byte) {
    const TemporaryFolder folder;
    for (const std::size_t size : {65535U, 65536U, 65537U, 200000U}) {
        std::string content(size, 'a');
        const FileIdentity saved = Save(folder / "a", content).identity; // looked at through the open file
        EXPECT_EQ(saved, Identity_of(folder / "a")) << size;
        EXPECT_EQ(saved.size, size);
        content.back() = 'b';
        Write_file(folder / "a", content);
        EXPECT_NE(saved, Identity_of(folder / "a")) << size;
        fs::remove(folder / "a");
    }
}

TEST(FileIdentity, comes_with_the_content) {
    const TemporaryFolder folder;
    Write_file(folder / "a", "content");
    EXPECT_EQ(See_file(folder / "a").content, "content");
    EXPECT_EQ(See_file(folder / "a").identity, Identity_of(folder / "a"));
    Write_file(folder / "a", "");
    EXPECT_EQ(See_file(folder / "a").content, ""); // not the same as none
    EXPECT_FALSE(See_file(folder / "missing").content);
    EXPECT_FALSE(See_file("/dev/zero").content);
    const SeenFile of_the_kernel = See_file("/proc/self/status"); // says that it has no bytes
    ASSERT_TRUE(of_the_kernel.content);
    EXPECT_GT(of_the_kernel.content->size(), 100U);
}

// The digest's published values.
TEST(FileIdentity, digest_by_its_published_values) {
    EXPECT_EQ(Digest_of(""), 0xcbf29ce484222325U);
    EXPECT_EQ(Digest_of("a"), 0xaf63dc4c8601ec8cU);
    EXPECT_EQ(Digest_of("foobar"), 0x85944171f73967e8U);
    EXPECT_EQ(Digest_of("bar", Digest_of("foo")), Digest_of("foobar"));
}

TEST(FileIdentity, what_cannot_be_read_is_told_apart_and_never_waited_for) {
    const TemporaryFolder folder;
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(Identity_of(folder / "missing").state, FileIdentity::State::missing);
    EXPECT_EQ(Identity_of(folder / "missing/a").state, FileIdentity::State::missing);
    EXPECT_EQ(Identity_of(folder / "pipe").state, FileIdentity::State::unreadable);
    EXPECT_EQ(Identity_of(folder.Path()).state, FileIdentity::State::unreadable);
    EXPECT_EQ(Identity_of("/dev/zero").state, FileIdentity::State::unreadable);
    Write_file(folder / "large", "");
    fs::resize_file(folder / "large", 64 * 1024 * 1024 + 1);
    EXPECT_EQ(Identity_of(folder / "large").state, FileIdentity::State::unreadable);
}

TEST(FileIdentity, a_save_tells_that_of_the_whole_file) {
    const TemporaryFolder folder;
    const FileIdentity first = Save(folder / "a", "content").identity;
    EXPECT_EQ(first, Identity_of(folder / "a"));
    const FileIdentity with_the_old_tail = Save(folder / "a", "new").identity;
    EXPECT_EQ(with_the_old_tail, Identity_of(folder / "a"));
    fs::create_hard_link(folder / "a", folder / "b");
    const FileIdentity in_place = Save(folder / "a", "N").identity;
    EXPECT_EQ(in_place, Identity_of(folder / "b"));
    EXPECT_NE(in_place, with_the_old_tail);
}

// ---------------------------------------------------------------------------------------------------------------------
// NAME~

TEST(SafeWriteKept, the_former_content_is_kept_under_the_next_free_name) {
    const TemporaryFolder folder;
    Write_file(folder / "a", "one");
    ASSERT_EQ(chmod((folder / "a").c_str(), 0640), 0);
    const fs::path real = fs::canonical(folder.Path());
    EXPECT_EQ(Save(folder / "a", "two", keeping).kept, std::vector{real / "a~"});
    EXPECT_EQ(Save(folder / "a", "three", keeping).kept, std::vector{real / "a~2"});
    EXPECT_EQ(Save(folder / "a", "four!", keeping).kept, std::vector{real / "a~3"});
    EXPECT_EQ(Read_file(folder / "a"), "four!");
    EXPECT_EQ(Read_file(folder / "a~"), "one");
    EXPECT_EQ(Read_file(folder / "a~2"), "two");
    EXPECT_EQ(Read_file(folder / "a~3"), "three");
    struct stat status {};
    ASSERT_EQ(stat((folder / "a~2").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
    EXPECT_EQ(folder.Files(), 4U);
}

TEST(SafeWriteKept, a_name_that_is_taken_by_anything_is_left_alone) {
    const TemporaryFolder folder;
    Write_file(folder / "a", "one");
    fs::create_directory(folder / "a~");
    fs::create_symlink("nowhere", folder / "a~2");
    Save(folder / "a", "two", keeping);
    EXPECT_TRUE(fs::is_directory(folder / "a~"));
    EXPECT_TRUE(fs::is_symlink(folder / "a~2"));
    EXPECT_EQ(Read_file(folder / "a~3"), "one");
}

TEST(SafeWriteKept, nothing_is_kept_where_nothing_would_be_lost) {
    const TemporaryFolder folder;
    EXPECT_TRUE(Save(folder / "a", "content", keeping).kept.empty());     // there was no file
    EXPECT_TRUE(Save(folder / "a", "content", keeping).kept.empty());     // it had this content
    EXPECT_TRUE(Save(folder / "a", "content", Knowing({})).kept.empty()); // known to be missing, and the same
    EXPECT_TRUE(Save(folder / "a", "cont", keeping).kept.empty());        // the rest stays behind it
    EXPECT_TRUE(Save(folder / "a", "contents", Knowing(Identity_of(folder / "a"))).kept.empty());
    EXPECT_EQ(folder.Files(), 1U);
    EXPECT_EQ(Safe_write(folder / "a", "con", {OldTail::drop, true, {}}, "Test").kept.size(), 1U);
    EXPECT_EQ(Read_file(folder / "a~"), "contents");
}

TEST(SafeWriteKept, only_another_content_than_the_known_one_is_kept) {
    const TemporaryFolder folder;
    const FileIdentity missing = Identity_of(folder / "a");
    Write_file(folder / "a", "appeared");
    EXPECT_EQ(Save(folder / "a", "mine", Knowing(missing)).kept.size(), 1U);
    EXPECT_EQ(Read_file(folder / "a~"), "appeared");

    const FileIdentity known = Identity_of(folder / "a");
    Write_file(folder / "b", Read_file(folder / "a"));
    fs::rename(folder / "b", folder / "a"); // another file with the same content
    EXPECT_TRUE(Save(folder / "a", "again", Knowing(known)).kept.empty());

    Write_file(folder / "a", "of another window");
    EXPECT_EQ(Save(folder / "a", "last", Knowing(known)).kept.size(), 1U);
    EXPECT_EQ(Read_file(folder / "a~2"), "of another window");

    fs::remove(folder / "a");
    EXPECT_TRUE(Save(folder / "a", "anew", Knowing(known)).kept.empty());
    EXPECT_EQ(Read_file(folder / "a"), "anew");
}

TEST(SafeWriteKept, a_file_that_is_written_in_place_is_kept_as_well) {
    const TemporaryFolder folder;
    Write_file(folder / "a", "one");
    fs::create_hard_link(folder / "a", folder / "b");
    EXPECT_EQ(Save(folder / "b", "two", keeping).kept.size(), 1U);
    EXPECT_EQ(Read_file(folder / "b~"), "one");
    EXPECT_EQ(Read_file(folder / "a"), "two");
    EXPECT_EQ(folder.Files(), 3U);
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

// ---------------------------------------------------------------------------------------------------------------------
// Temporary files

TEST(FileNames, a_temporary_file_tells_whose_it_is) {
    const std::string name = Temporary_name("Ny Fil", 7);
    EXPECT_TRUE(name.starts_with(".Ny Fil."));
    EXPECT_TRUE(name.ends_with("." + std::to_string(getpid()) + "-7.tmp"));
    EXPECT_EQ(Owner_of(name, "Ny Fil").owner, Owner::here);
    EXPECT_EQ(Owner_of(name, "Ny Fil").process, getpid());
    EXPECT_EQ(Owner_of(name, "Ny").owner, Owner::nobody);
    EXPECT_EQ(Owner_of(".a.no-such-host.12-0.tmp", "a").owner, Owner::elsewhere);
    for (const char* other : {"a", ".a.tmp", ".a..tmp", ".a.12-0.tmp", ".a.host.12.tmp", ".a.host.-1-0.tmp",
                              ".a.host.12-0x.tmp", ".a.host.12-0.tmq", "a.host.12-0.tmp"}) {
        EXPECT_EQ(Owner_of(other, "a").owner, Owner::nobody) << other;
    }
    EXPECT_LE(Temporary_name(std::string(255, 'n'), 99).size(), 255U);
}

TEST(SafeWriteStrays, those_of_dead_processes_go_and_those_at_work_stay) {
    const TemporaryFolder folder;
    const std::string end = Temporary_name("a", 5).substr(2); // ".HOST.PID-5.tmp"
    Write_file(folder / (".a" + end), "half");
    Write_file(folder / (".b" + end), "of another file");
    Write_file(folder / Temporary_name("a", 6), "half");
    const SystemFile at_work = Open_file(folder / Temporary_name("a", 6), Access::read_write);
    ASSERT_EQ(Try_lock(at_work), LockResult::taken);
    Save(folder / "a", "content");
    EXPECT_FALSE(fs::exists(folder / (".a" + end)));
    EXPECT_TRUE(fs::exists(folder / (".b" + end)));
    EXPECT_TRUE(fs::exists(folder / Temporary_name("a", 6)));
}

TEST(SafeWriteStrays, those_of_other_machines_go_when_they_are_a_day_old) {
    const TemporaryFolder folder;
    Write_file(folder / ".a.no-such-host.12-0.tmp", "fresh");
    Write_file(folder / ".a.no-such-host.12-1.tmp", "old");
    fs::last_write_time(folder / ".a.no-such-host.12-1.tmp", fs::file_time_type::clock::now() - std::chrono::hours{25});
    Save(folder / "a", "content");
    EXPECT_TRUE(fs::exists(folder / ".a.no-such-host.12-0.tmp"));
    EXPECT_FALSE(fs::exists(folder / ".a.no-such-host.12-1.tmp"));
}

} // namespace
} // namespace tarnvik
