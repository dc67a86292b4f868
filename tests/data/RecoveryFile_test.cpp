#include "data/RecoveryFile.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "tests/support/Files.h"

namespace tarnvik {
namespace {

namespace fs = std::filesystem;
using test::Read_file;
using test::TemporaryFolder;
using test::Write_file;

class Recovery : public testing::Test {
protected:
    std::vector<fs::path> Files() const {
        std::vector<fs::path> files;
        for (const auto& entry : fs::directory_iterator{folder}) {
            files.push_back(entry.path());
        }
        return files;
    }

    TemporaryFolder parent;
    fs::path folder = parent / "state" / "tarnvik";
};

TEST_F(Recovery, one_file_whatever_is_written) {
    RecoveryFile file{folder};
    EXPECT_TRUE(file.Path().empty());
    ASSERT_TRUE(file.Write("one"));
    ASSERT_TRUE(file.Write("another"));
    ASSERT_EQ(Files(), std::vector{file.Path()});
    EXPECT_EQ(Read_file(file.Path()), "another");
    EXPECT_TRUE(file.Path().filename().string().starts_with("recovery-"));
    EXPECT_EQ(file.Path().extension(), ".tnvik");
    file.Remove();
    EXPECT_TRUE(Files().empty());
}

TEST_F(Recovery, two_runs_have_a_file_each) {
    RecoveryFile one{folder};
    RecoveryFile other{folder};
    ASSERT_TRUE(one.Write("one"));
    ASSERT_TRUE(other.Write("other"));
    EXPECT_EQ(Files().size(), 2U);
    EXPECT_EQ(Read_file(one.Path()), "one");
}

TEST_F(Recovery, work_of_a_run_that_goes_on_is_not_left) {
    RecoveryFile file{folder};
    ASSERT_TRUE(file.Write("one"));
    EXPECT_FALSE(Claim_left_work(folder));
    ASSERT_TRUE(file.Write("another")); // the lock goes over to the new file
    EXPECT_FALSE(Claim_left_work(folder));
}

TEST_F(Recovery, work_of_a_run_that_ended_is_given_to_one_other_only) {
    std::make_unique<RecoveryFile>(folder)->Write("left");
    const std::optional<LeftWork> left = Claim_left_work(folder);
    ASSERT_TRUE(left);
    EXPECT_EQ(Read_file(left->path), "left");
    EXPECT_FALSE(Claim_left_work(folder));
}

TEST_F(Recovery, the_newest_comes_first_and_the_older_one_next) {
    std::make_unique<RecoveryFile>(folder)->Write("older");
    const fs::path older = Files().front();
    fs::last_write_time(older, fs::last_write_time(older) - std::chrono::hours{1});
    std::make_unique<RecoveryFile>(folder)->Write("newer");
    const std::optional<LeftWork> first = Claim_left_work(folder);
    const std::optional<LeftWork> second = Claim_left_work(folder);
    ASSERT_TRUE(first && second);
    EXPECT_EQ(Read_file(first->path), "newer");
    EXPECT_EQ(second->path, older);
}

TEST_F(Recovery, what_was_left_half_written_is_removed_and_other_files_are_left_alone) {
    fs::create_directories(folder);
    Write_file(folder / "recovery-abcdef.tnvik.part", "ha");
    Write_file(folder / "my house.tnvik", "whole");
    EXPECT_FALSE(Claim_left_work(folder));
    EXPECT_FALSE(fs::exists(folder / "recovery-abcdef.tnvik.part"));
    EXPECT_EQ(Read_file(folder / "my house.tnvik"), "whole");
}

TEST_F(Recovery, no_place_for_the_file_is_no_failure) {
    EXPECT_FALSE(RecoveryFile{fs::path{}}.Write("x"));
    EXPECT_FALSE(Claim_left_work({}));
    Write_file(parent / "state", "a file where the folder would be");
    EXPECT_FALSE(RecoveryFile{folder}.Write("x"));
    EXPECT_FALSE(Claim_left_work(folder));
}

TEST_F(Recovery, the_project_of_the_work_follows_the_project_file) {
    EXPECT_EQ(Recovered_project("PROJECT" + Recovery_tail("/home/a/b c.tnvik")), "/home/a/b c.tnvik");
    EXPECT_EQ(Recovered_project("PROJECT" + Recovery_tail("")), "");
    EXPECT_EQ(Recovered_project("PROJECT" + Recovery_tail("/a\nb.tnvik")), "/a\nb.tnvik");
    EXPECT_EQ(Recovered_project("PROJECT"), "");
    EXPECT_EQ(Recovered_project(""), "");
}

} // namespace
} // namespace tarnvik
