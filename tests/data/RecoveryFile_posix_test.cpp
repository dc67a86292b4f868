// Who may read recovered work, and the work of a process that is killed.
#include "data/RecoveryFile.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "tests/support/Files.h"

namespace tarnvik {
namespace {

namespace fs = std::filesystem;
using test::Read_file;
using test::TemporaryFolder;
using test::Write_file;

class RecoveryRights : public testing::Test {
protected:
    TemporaryFolder parent;
    fs::path folder = parent / "state" / "tarnvik";
};

TEST_F(RecoveryRights, a_file_that_only_its_owner_can_read_in_a_folder_that_only_he_can_enter) {
    RecoveryFile file{folder};
    ASSERT_TRUE(file.Write("one"));
    EXPECT_EQ(fs::status(file.Path()).permissions(), fs::perms{0600});
    EXPECT_EQ(fs::status(folder).permissions(), fs::perms{0700});
}

TEST_F(RecoveryRights, no_link_is_taken_for_left_work) {
    fs::create_directories(folder);
    Write_file(folder / "my house.tnvik", "whole");
    fs::create_symlink(folder / "my house.tnvik", folder / "recovery-fedcba.tnvik");
    EXPECT_FALSE(Claim_left_work(folder));
    EXPECT_EQ(Read_file(folder / "my house.tnvik"), "whole");
}

TEST_F(RecoveryRights, a_killed_process_leaves_its_work) {
    const pid_t child = fork();
    if (child == 0) {
        RecoveryFile file{folder};
        file.Write("of a process");
        raise(SIGKILL);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status));
    const std::optional<LeftWork> left = Claim_left_work(folder);
    ASSERT_TRUE(left);
    EXPECT_EQ(Read_file(left->path), "of a process");
}

} // namespace
} // namespace tarnvik
