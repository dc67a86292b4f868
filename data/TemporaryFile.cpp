#include "data/TemporaryFile.h"

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <string>
#include <system_error>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

#include "data/FileNames.h"

namespace tarnvik {

namespace fs = std::filesystem;

namespace {

// The lock tells, on every machine: a number of a process may belong to another one by now. On a network share whose
// locks end at the machine a file of another one has to be old as well; where there are no locks, the number has to do.
bool Is_stray(const SystemFile& file, const TemporaryOwner& owner) {
    constexpr std::time_t old_enough = 24L * 60 * 60; // seconds
    const struct stat status = Status_of(file);
    if (!S_ISREG(status.st_mode)) {
        return false;
    }
    const LockResult lock = Try_lock(file);
    if (owner.owner == Owner::elsewhere) {
        return lock != LockResult::busy && std::time(nullptr) - status.st_mtim.tv_sec > old_enough;
    }
    if (lock == LockResult::none_here) {
        return kill(static_cast<pid_t>(owner.process), 0) != 0 && errno == ESRCH;
    }
    return lock == LockResult::taken;
}

// What cannot be looked at or removed stays: it is in nobody's way.
void Remove_strays(const fs::path& target) {
    const std::string name = target.filename();
    std::error_code error;
    fs::directory_iterator entry{Folder_of(target), error};
    for (; !error && entry != fs::directory_iterator{}; entry.increment(error)) {
        const TemporaryOwner owner = Owner_of(entry->path().filename().native(), name);
        if (owner.owner == Owner::nobody) {
            continue;
        }
        const SystemFile file = Open_file(entry->path(), O_RDWR | O_NOFOLLOW | O_NONBLOCK);
        if (file && Is_stray(file, owner)) {
            unlink(entry->path().c_str());
        }
    }
}

} // namespace

// By way of the empty one, so that also one whose making fails half-way is removed.
TemporaryFile::TemporaryFile(const fs::path& target, mode_t mode) : TemporaryFile() {
    constexpr int most_tries = 100;
    static std::atomic<int> next_number; // never twice: whoever removes a stray by its name removes no later file
    Remove_strays(target);
    for (int i = 0; i < most_tries; ++i) {
        if (Create(Folder_of(target) / Temporary_name(target.filename().native(), next_number++), mode)) {
            return;
        }
    }
    Throw_error(EEXIST);
}

// False where the name is taken, or where another process has held the file for a stray before it was locked.
bool TemporaryFile::Create(const fs::path& path, mode_t mode) {
    file_ = Open_file(path, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, mode);
    if (!file_) {
        if (errno != EEXIST) {
            Throw_error();
        }
        return false;
    }
    path_ = path;
    return Try_lock(file_) != LockResult::busy && Status_of(file_).st_nlink > 0;
}

TemporaryFile::~TemporaryFile() {
    if (!renamed_ && !path_.empty()) {
        unlink(path_.c_str());
    }
}

void TemporaryFile::Replace(const fs::path& path) {
    if (std::rename(path_.c_str(), path.c_str()) != 0) {
        Throw_error();
    }
    renamed_ = true;
}

bool TemporaryFile::Take_free(const fs::path& path) {
    renamed_ = Rename_to_free(path_, path);
    return renamed_;
}

} // namespace tarnvik
