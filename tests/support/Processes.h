// Actions in processes of their own: as another user, with mounts that nobody else sees.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <grp.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarnvik::test {

// Runs an action in a process of its own and returns what it returns; the negative signal that has ended it.
template <class Action> int In_a_child(Action action) {
    const pid_t child = fork();
    if (child == 0) {
        try {
            _exit(action());
        } catch (...) {
            _exit(253);
        }
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

inline constexpr int no_mount = 255;

// The same in a name space of mounts of its own; no_mount where there are none to be had.
template <class Action> int With_own_mounts(Action action) {
    return In_a_child([&] {
        const std::string user = std::to_string(geteuid());
        const std::string group = std::to_string(getegid());
        if (unshare(CLONE_NEWNS) != 0) {
            // Without the right to mount: where the system lets everybody have name spaces, in one of the user's own.
            if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) {
                return no_mount;
            }
            std::ofstream{"/proc/self/setgroups"} << "deny";
            std::ofstream{"/proc/self/uid_map"} << "0 " + user + " 1";
            std::ofstream{"/proc/self/gid_map"} << "0 " + group + " 1";
        }
        if (mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) {
            return no_mount;
        }
        return action();
    });
}

// A file system of 64 kB over a folder.
inline bool Mount_small_disk(const std::filesystem::path& folder) {
    return mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=64k") == 0;
}

struct User {
    uid_t user{};
    std::vector<gid_t> groups; // the first is the user's own
};

// The superuser alone can become another user: tests that do so ask for it first.
inline bool May_change_user() {
    return geteuid() == 0;
}

template <class Action> int As_user(const User& user, Action action) {
    return In_a_child([&] {
        if (setgroups(user.groups.size(), user.groups.data()) != 0 || setgid(user.groups[0]) != 0 ||
            setuid(user.user) != 0) {
            return 254;
        }
        return action();
    });
}

// Whether everything that the action expects came true, for what is expected in another process.
inline int Failures() {
    return testing::Test::HasFailure() ? 1 : 0;
}

} // namespace tarnvik::test
