#include "data/RecoveryFile.h"

#include <algorithm>
#include <system_error>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <stdlib.h> // NOLINT(modernize-deprecated-headers): mkostemps is the system's
#include <unistd.h>

namespace tarnvik {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view prefix = "recovery-";
constexpr std::string_view suffix = ".tnvik";
constexpr std::string_view part = ".part"; // not whole yet
constexpr std::string_view tail_mark = "\nTarnvik recovery of: ";

bool Write_all(const SystemFile& file, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = write(file.Get(), content.data(), content.size());
        if (written <= 0) {
            return false;
        }
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return fsync(file.Get()) == 0;
}

// A file that still has the path that it was opened by: its process may just have put a new one in its place.
bool Stands_at(const SystemFile& file, const fs::path& path) {
    struct stat one {};
    struct stat other {};
    return fstat(file.Get(), &one) == 0 && lstat(path.c_str(), &other) == 0 && one.st_dev == other.st_dev &&
           one.st_ino == other.st_ino && S_ISREG(one.st_mode);
}

struct Candidate {
    fs::path path;
    fs::file_time_type time;
};

std::vector<Candidate> Candidates(const fs::path& folder) {
    std::vector<Candidate> found;
    std::error_code error;
    for (fs::directory_iterator i{folder, error}, end; !error && i != end; i.increment(error)) {
        const std::string name = i->path().filename().string();
        if (name.starts_with(prefix) && (name.ends_with(suffix) || name.ends_with(part))) {
            std::error_code ignored;
            found.push_back({i->path(), i->last_write_time(ignored)});
        }
    }
    std::sort(found.begin(), found.end(),
              [](const Candidate& one, const Candidate& other) { return one.time > other.time; });
    return found;
}

} // namespace

RecoveryFile::RecoveryFile(fs::path folder) : folder_(std::move(folder)) {}

bool RecoveryFile::Write(std::string_view content) {
    if (folder_.empty()) {
        return false;
    }
    std::error_code error;
    if (fs::create_directories(folder_, error)) {
        fs::permissions(folder_, fs::perms::owner_all, error);
    }
    std::string name = (folder_ / prefix).string() + "XXXXXX" + std::string{suffix} + std::string{part};
    SystemFile file{mkostemps(name.data(), static_cast<int>(suffix.size() + part.size()), O_CLOEXEC)}; // mode 0600
    if (!file) {
        return false;
    }
    fs::path target = path_.empty() ? fs::path{name.substr(0, name.size() - part.size())} : path_;
    if (Try_lock(file) != LockResult::taken || !Write_all(file, content) || rename(name.c_str(), target.c_str()) != 0) {
        unlink(name.c_str());
        return false;
    }
    path_ = std::move(target);
    locked_ = std::move(file);
    return true;
}

void RecoveryFile::Remove() {
    if (!path_.empty()) {
        unlink(path_.c_str());
        path_.clear();
        locked_ = {};
    }
}

std::optional<LeftWork> Claim_left_work(const fs::path& folder) {
    if (folder.empty()) {
        return std::nullopt;
    }
    for (const auto& [path, time] : Candidates(folder)) {
        SystemFile file{open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK)};
        if (!file || Try_lock(file) != LockResult::taken || !Stands_at(file, path)) {
            continue;
        }
        if (path.native().ends_with(part)) {
            unlink(path.c_str());
            continue;
        }
        return LeftWork{path, std::move(file)};
    }
    return std::nullopt;
}

std::string Recovery_tail(std::string_view project) {
    return std::string{tail_mark} + std::string{project} + "\n";
}

std::string Recovered_project(std::string_view bytes) {
    const std::size_t mark = bytes.rfind(tail_mark);
    if (mark == std::string_view::npos || bytes.back() != '\n') {
        return {};
    }
    const std::string_view rest = bytes.substr(mark + tail_mark.size());
    return std::string{rest.substr(0, rest.size() - 1)};
}

} // namespace tarnvik
