// Recovery files: the unsaved work of a running program, kept so that a crash does not take it.
//
// A file is a project file, followed by the path of the project that the work belongs to. It lies in the state folder
// as "recovery-XXXXXX.tnvik", readable by its owner alone, and its process holds a lock on it for as long as it runs,
// so that the system itself tells whose process is gone.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "platform/SystemFile.h"

namespace tarnvik {

// The recovery file of this process.
class RecoveryFile {
public:
    // Nothing is written yet. With an empty folder nothing ever is.
    explicit RecoveryFile(std::filesystem::path folder);

    // The content whole, flushed, in place of the former one. False where it cannot be written; the former one stays.
    bool Write(std::string_view content);

    // The work is saved: there is nothing to recover.
    void Remove();

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; } // empty while there is none

private:
    std::filesystem::path folder_;
    std::filesystem::path path_;
    SystemFile locked_;
};

// The recovery file of a process that no longer runs, claimed: no other process is given it.
struct LeftWork {
    std::filesystem::path path;
    SystemFile locked;
};

// The newest one; nothing where there is none. Removes what a process left half written.
std::optional<LeftWork> Claim_left_work(const std::filesystem::path& folder);

// What follows the project in the file: the path of the project, empty where it has none yet.
std::string Recovery_tail(std::string_view project);

// The path of the project from a file's bytes; empty where there is none.
std::string Recovered_project(std::string_view bytes);

} // namespace tarnvik
