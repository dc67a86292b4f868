// Pipes, devices and files of the kernel where a file of the user is meant: none is waited for, none is written over.
#include <gtest/gtest.h>

#include <sys/stat.h>

#include "data/SafeWrite.h"
#include "data/SetupFile.h"
#include "tests/support/Files.h"

namespace tarnvik {
namespace {

using test::TemporaryFolder;

// Nobody writes to it: an open that waits would never end.
void Make_pipe(const std::filesystem::path& path) {
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
}

TEST(SpecialFiles, are_not_read) {
    const TemporaryFolder folder;
    Make_pipe(folder / "pipe");
    EXPECT_EQ(Identity_of(folder / "pipe").state, FileIdentity::State::unreadable);
    EXPECT_EQ(Identity_of("/dev/zero").state, FileIdentity::State::unreadable);
    EXPECT_FALSE(See_file("/dev/zero").content);
    const SeenFile of_the_kernel = See_file("/proc/self/status"); // says that it has no bytes
    ASSERT_TRUE(of_the_kernel.content);
    EXPECT_GT(of_the_kernel.content->size(), 100U);
}

TEST(SpecialFiles, are_not_written) {
    const TemporaryFolder folder;
    Make_pipe(folder / "pipe");
    const auto save = [](const std::filesystem::path& path) {
        return test::Fault_of([&] { Safe_write(path, "content", {}, "Test"); });
    };
    EXPECT_EQ(save(folder / "pipe"), fault_path_access);
    EXPECT_EQ(save("/dev/full"), fault_path_access);
    EXPECT_EQ(folder.Files(), 1U);
}

TEST(SpecialFiles, a_pipe_for_the_setup_file_is_told) {
    const TemporaryFolder folder;
    Make_pipe(folder / setup_file_read);
    SetupRecord setup;
    const auto problem = Load_setup(setup, folder.Path());
    ASSERT_TRUE(problem);
    EXPECT_TRUE(Setup_problem_text(*problem, "/f", false).starts_with("Tarnviksetup.csv i /f: ikke en vanlig fil."));
}

} // namespace
} // namespace tarnvik
