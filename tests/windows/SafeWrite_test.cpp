// Saving on Windows: names of all letters, files that others have open, attributes, locks.
#include "data/SafeWrite.h"

#include <gtest/gtest.h>

#include <windows.h>

#include "calc/RuntimeFault.h"
#include "data/RecoveryFile.h"
#include "platform/Path.h"
#include "platform/SystemFile.h"
#include "tests/support/Calculation.h"
#include "tests/support/Files.h"

namespace tarnvik {
namespace {

namespace fs = std::filesystem;

class SafeWriteOnWindows : public testing::Test {
protected:
    // The number of the fault, 0 without one.
    int Save(const fs::path& path, std::string_view content, const SaveRequest& request = {OldTail::drop}) {
        return test::Fault_of([&] { report = Safe_write(path, content, request, "Test"); });
    }

    // As another program has the file open, with what it leaves to others.
    HANDLE Open_elsewhere(DWORD shared) const {
        return CreateFileW(file.c_str(), GENERIC_READ, shared, nullptr, OPEN_EXISTING, 0, nullptr);
    }

    test::TemporaryFolder folder;
    fs::path file{folder / "bjørk nå.tnvik"};
    SaveReport report;
};

TEST_F(SafeWriteOnWindows, a_new_file_and_the_same_again) {
    EXPECT_EQ(Save(file, "first"), 0);
    EXPECT_EQ(test::Read_file(file), "first");
    EXPECT_EQ(Save(file, "second, longer"), 0);
    EXPECT_EQ(test::Read_file(file), "second, longer");
    EXPECT_EQ(Save(file, "third"), 0);
    EXPECT_EQ(test::Read_file(file), "third");
    EXPECT_EQ(folder.Files(), 1U);
}

TEST_F(SafeWriteOnWindows, a_file_that_others_read_is_replaced_or_written_over) {
    test::Write_file(file, "before");
    const HANDLE reader = Open_elsewhere(FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
    EXPECT_EQ(Save(file, "after"), 0);
    CloseHandle(reader);
    EXPECT_EQ(test::Read_file(file), "after");
    const HANDLE keeps_it = Open_elsewhere(FILE_SHARE_READ | FILE_SHARE_WRITE);
    EXPECT_EQ(Save(file, "at last"), 0);
    CloseHandle(keeps_it);
    EXPECT_EQ(test::Read_file(file), "at last");
    EXPECT_EQ(folder.Files(), 1U);
}

TEST_F(SafeWriteOnWindows, a_file_that_another_program_keeps_from_being_written_stays_and_it_is_told) {
    test::Write_file(file, "before");
    const HANDLE holder = Open_elsewhere(FILE_SHARE_READ);
    EXPECT_EQ(Save(file, "after"), fault_path_access);
    CloseHandle(holder);
    EXPECT_EQ(test::Read_file(file), "before");
    EXPECT_EQ(folder.Files(), 1U);
}

TEST_F(SafeWriteOnWindows, a_file_to_be_read_only_stays) {
    test::Write_file(file, "before");
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
    if (Open_file(file, Access::read_write)) {
        GTEST_SKIP() << "under Wine the superuser may write it";
    }
    EXPECT_EQ(Save(file, "after"), fault_path_access);
    EXPECT_EQ(test::Read_file(file), "before");
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(SafeWriteOnWindows, a_hidden_file_stays_hidden) {
    test::Write_file(file, "before");
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_HIDDEN);
    EXPECT_EQ(Save(file, "after"), 0);
    EXPECT_NE(GetFileAttributesW(file.c_str()) & FILE_ATTRIBUTE_HIDDEN, 0U);
}

TEST_F(SafeWriteOnWindows, a_name_with_the_mark_of_the_system_in_front_as_on_a_network) {
    fs::path marked{L"\\\\?\\"};
    marked += Absolute_path(file);
    EXPECT_EQ(Save(marked, "first"), 0);
    EXPECT_EQ(Save(marked, "second"), 0);
    EXPECT_EQ(test::Read_file(file), "second");
    EXPECT_EQ(folder.Files(), 1U);
}

TEST_F(SafeWriteOnWindows, two_savers_of_one_file_wait_for_each_other) {
    test::Write_file(file, "before");
    const SystemFile one = Open_file(file, Access::read_write);
    const SystemFile other = Open_file(file, Access::read);
    EXPECT_EQ(Try_lock(one), LockResult::taken);
    EXPECT_EQ(Try_lock(other), LockResult::busy);
    EXPECT_EQ(test::Read_file(file), "before"); // the lock keeps nobody from reading
}

TEST_F(SafeWriteOnWindows, the_work_of_a_process_that_is_gone_is_found) {
    {
        RecoveryFile recovery{folder.Path()};
        EXPECT_TRUE(recovery.Write("first"));
        EXPECT_TRUE(recovery.Write("unsaved work"));
        EXPECT_FALSE(Claim_left_work(folder.Path())); // it still runs
    }
    const std::optional<LeftWork> left = Claim_left_work(folder.Path());
    ASSERT_TRUE(left);
    EXPECT_EQ(test::Read_file(left->path), "unsaved work");
    EXPECT_EQ(folder.Files(), 1U);
    EXPECT_FALSE(Claim_left_work(folder.Path())); // nobody else is given it
    EXPECT_TRUE(fs::remove(left->path));
}

} // namespace
} // namespace tarnvik
