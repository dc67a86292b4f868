// What mends a file that was being written in place when the power went.
#include "data/SafeWrite.h"

#include <gtest/gtest.h>

#include "platform/SystemFile.h"
#include "tests/support/Files.h"

namespace tarnvik {
namespace {

namespace fs = std::filesystem;
using test::Read_file;
using test::TemporaryFolder;
using test::Write_file;

TEST(SafeWriteInPlace, a_reader_finds_the_former_content_again_and_what_was_there_kept) {
    const TemporaryFolder folder;
    Write_file(folder / "a", "newmer co");
    Write_file(folder / ".a.undo", "former content");
    const auto before = Status_of(folder / "a");
    const auto found = Mend_file(folder / "a", "Test");
    ASSERT_TRUE(found);
    EXPECT_EQ(found->filename(), "a~");
    EXPECT_EQ(Read_file(*found), "newmer co");
    EXPECT_EQ(Read_file(folder / "a"), "former content");
    const auto after = Status_of(folder / "a");
    ASSERT_TRUE(before && after);
    EXPECT_EQ(before->file, after->file);
    EXPECT_EQ(folder.Files(), 2U);
    EXPECT_FALSE(Mend_file(folder / "a", "Test"));
}

TEST(SafeWriteInPlace, a_longer_content_is_cut_to_the_former_one) {
    const TemporaryFolder folder;
    Write_file(folder / "a", std::string(200000, 'n'));
    Write_file(folder / ".a.undo", "");
    EXPECT_TRUE(Mend_file(folder / "a", "Test"));
    EXPECT_EQ(Read_file(folder / "a"), "");
}

TEST(SafeWriteInPlace, a_write_that_had_not_begun_is_mended_in_silence) {
    const TemporaryFolder folder;
    Write_file(folder / "a", "former content");
    Write_file(folder / ".a.undo", "former content");
    EXPECT_FALSE(Mend_file(folder / "a", "Test"));
    EXPECT_EQ(folder.Files(), 1U);
}

TEST(SafeWriteInPlace, the_next_save_mends_first) {
    const TemporaryFolder folder;
    Write_file(folder / "a", "newm");
    Write_file(folder / ".a.undo", "former content");
    const SaveReport report = Safe_write(folder / "a", "later", {}, "Test");
    EXPECT_TRUE(report.mended);
    ASSERT_EQ(report.kept.size(), 1U);
    EXPECT_EQ(Read_file(report.kept[0]), "newm");
    EXPECT_EQ(Read_file(folder / "a"), "laterr content");
    EXPECT_EQ(folder.Files(), 2U);
}

TEST(SafeWriteInPlace, a_copy_whose_file_is_gone_is_kept_when_a_new_file_comes) {
    const TemporaryFolder folder;
    Write_file(folder / ".a.undo", "former content");
    EXPECT_FALSE(Mend_file(folder / "a", "Test"));
    const SaveReport report = Safe_write(folder / "a", "new", {}, "Test");
    EXPECT_FALSE(report.mended);
    ASSERT_EQ(report.kept.size(), 1U);
    EXPECT_EQ(Read_file(report.kept[0]), "former content");
    EXPECT_EQ(Read_file(folder / "a"), "new");
    EXPECT_EQ(folder.Files(), 2U);
}

} // namespace
} // namespace tarnvik
