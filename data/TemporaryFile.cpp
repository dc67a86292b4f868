#include "data/TemporaryFile.h"

#include <atomic>
#include <cerrno>
#include <ctime>
#include <string>
#include <system_error>

#include "data/FileNames.h"
#include "platform/Machine.h"
#include "platform/Path.h"

namespace tarnvik {

namespace fs = std::filesystem;

namespace {

// The lock tells, on every machine: a number of a process may belong to another one by now. On a network share whose
// locks end at the machine a file of another one has to be old as well; where there are no locks, the number has to do.
bool Is_stray(const SystemFile& file, const TemporaryOwner& owner) {
    constexpr std::time_t old_enough = 24L * 60 * 60; // seconds
    const FileStatus status = Status_of(file);
    if (!status.regular) {
        return false;
    }
    const LockResult lock = Try_lock(file);
    if (owner.owner == Owner::elsewhere) {
        return lock != LockResult::busy && std::time(nullptr) - status.modified > old_enough;
    }
    if (lock == LockResult::none_here) {
        return !Is_running(owner.process);
    }
    return lock == LockResult::taken;
}

// What cannot be looked at or removed stays: it is in nobody's way.
void Remove_strays(const fs::path& target) {
    const std::string name = Text_of(target.filename());
    std::error_code error;
    fs::directory_iterator entry{Folder_of(target), error};
    for (; !error && entry != fs::directory_iterator{}; entry.increment(error)) {
        const TemporaryOwner owner = Owner_of(Text_of(entry->path().filename()), name);
        if (owner.owner == Owner::nobody) {
            continue;
        }
        const SystemFile file = Open_no_link(entry->path(), Access::read_write);
        if (file && Is_stray(file, owner)) {
            Remove_file(entry->path());
        }
    }
}

} // namespace

// By way of the empty one, so that also one whose making fails half-way is removed.
TemporaryFile::TemporaryFile(const fs::path& target, NewRights rights) : TemporaryFile() {
    constexpr int most_tries = 100;
    static std::atomic<int> next_number; // never twice: whoever removes a stray by its name removes no later file
    Remove_strays(target);
    for (int i = 0; i < most_tries; ++i) {
        if (Create(Folder_of(target) / Path_of(Temporary_name(Text_of(target.filename()), next_number++)), rights)) {
            return;
        }
    }
    Throw_error(EEXIST);
}

// False where the name is taken, or where another process has held the file for a stray before it was locked.
bool TemporaryFile::Create(const fs::path& path, NewRights rights) {
    file_ = Create_file(path, rights);
    if (!file_) {
        if (errno != EEXIST) {
            Throw_error();
        }
        return false;
    }
    path_ = path;
    return Try_lock(file_) != LockResult::busy && Status_of(file_).names > 0;
}

TemporaryFile::~TemporaryFile() {
    if (!renamed_ && !path_.empty()) {
        Remove_file(path_);
    }
}

void TemporaryFile::Replace(const fs::path& path) {
    Rename_over(path_, path);
    renamed_ = true;
}

bool TemporaryFile::Take_free(const fs::path& path) {
    renamed_ = Rename_to_free(path_, path);
    return renamed_;
}

} // namespace tarnvik
