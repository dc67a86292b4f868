// The former content of a file as NAME~, the identity that asks for it, and what dead processes leave.
#include "data/SafeWrite.h"

#include <gtest/gtest.h>

#include <chrono>
#include <vector>

#include "data/FileNames.h"
#include "platform/Machine.h"
#include "platform/SystemFile.h"
#include "tests/support/Files.h"

namespace tarnvik {
namespace {

namespace fs = std::filesystem;
using test::Read_file;
using test::TemporaryFolder;
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
}

// The digest's published values.
TEST(FileIdentity, digest_by_its_published_values) {
    EXPECT_EQ(Digest_of(""), 0xcbf29ce484222325U);
    EXPECT_EQ(Digest_of("a"), 0xaf63dc4c8601ec8cU);
    EXPECT_EQ(Digest_of("foobar"), 0x85944171f73967e8U);
    EXPECT_EQ(Digest_of("bar", Digest_of("foo")), Digest_of("foobar"));
}

TEST(FileIdentity, what_cannot_be_read_is_told_apart) {
    const TemporaryFolder folder;
    EXPECT_EQ(Identity_of(folder / "missing").state, FileIdentity::State::missing);
    EXPECT_EQ(Identity_of(folder / "missing/a").state, FileIdentity::State::missing);
    EXPECT_EQ(Identity_of(folder.Path()).state, FileIdentity::State::unreadable);
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
    const fs::path real = fs::canonical(folder.Path());
    EXPECT_EQ(Save(folder / "a", "two", keeping).kept, std::vector{real / "a~"});
    EXPECT_EQ(Save(folder / "a", "three", keeping).kept, std::vector{real / "a~2"});
    EXPECT_EQ(Save(folder / "a", "four!", keeping).kept, std::vector{real / "a~3"});
    EXPECT_EQ(Read_file(folder / "a"), "four!");
    EXPECT_EQ(Read_file(folder / "a~"), "one");
    EXPECT_EQ(Read_file(folder / "a~2"), "two");
    EXPECT_EQ(Read_file(folder / "a~3"), "three");
    EXPECT_EQ(folder.Files(), 4U);
}

TEST(SafeWriteKept, a_name_that_is_taken_by_anything_is_left_alone) {
    const TemporaryFolder folder;
    Write_file(folder / "a", "one");
    fs::create_directory(folder / "a~");
    Save(folder / "a", "two", keeping);
    EXPECT_TRUE(fs::is_directory(folder / "a~"));
    EXPECT_EQ(Read_file(folder / "a~2"), "one");
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

// ---------------------------------------------------------------------------------------------------------------------
// Temporary files

TEST(FileNames, a_temporary_file_tells_whose_it_is) {
    const std::string name = Temporary_name("Ny Fil", 7);
    EXPECT_TRUE(name.starts_with(".Ny Fil."));
    EXPECT_TRUE(name.ends_with("." + std::to_string(Process_number()) + "-7.tmp"));
    EXPECT_EQ(Owner_of(name, "Ny Fil").owner, Owner::here);
    EXPECT_EQ(Owner_of(name, "Ny Fil").process, Process_number());
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
