#include "data/RecoveryFile.h"

#include <algorithm>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/Path.h"

namespace tarnvik {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view prefix = "recovery-";
constexpr std::string_view suffix = ".tnvik";
constexpr std::string_view part = ".part"; // not whole yet
constexpr std::string_view tail_mark = "\nTarnvik recovery of: ";

bool Write_whole(const SystemFile& file, std::string_view content) {
    try {
        Write_at(file, content, 0);
        Flush(file);
        return true;
    } catch (const std::system_error&) {
        return false;
    }
}

bool Rename(const fs::path& from, const fs::path& to) {
    try {
        Rename_over(from, to);
        return true;
    } catch (const std::system_error&) {
        return false;
    }
}

// A file that still has the path that it was opened by: its process may just have put a new one in its place.
bool Stands_at(const SystemFile& file, const fs::path& path) {
    const std::optional<FileStatus> there = Status_of_link(path);
    return there && there->regular && there->file == Status_of(file).file;
}

struct Candidate {
    fs::path path;
    fs::file_time_type time;
};

std::vector<Candidate> Candidates(const fs::path& folder) {
    std::vector<Candidate> found;
    std::error_code error;
    for (fs::directory_iterator i{folder, error}, end; !error && i != end; i.increment(error)) {
        const std::string name = Text_of(i->path().filename());
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
    std::string name = Text_of(folder_ / prefix) + "XXXXXX" + std::string{suffix} + std::string{part};
    SystemFile file = Create_file(name, suffix.size() + part.size());
    if (!file) {
        return false;
    }
    const fs::path path = Path_of(name);
    const fs::path own = Path_of(std::string_view{name}.substr(0, name.size() - part.size()));
    fs::path target = path_.empty() ? own : path_;
    if (Try_lock(file) != LockResult::taken || !Write_whole(file, content) ||
        !(Rename(path, target) || Rename(path, target = own))) {
        Remove_file(path);
        return false;
    }
    if (!path_.empty() && target != path_) {
        Remove_file(path_); // which is open: not every file system puts another one in its place
    }
    path_ = std::move(target);
    locked_ = std::move(file);
    return true;
}

void RecoveryFile::Remove() {
    if (!path_.empty()) {
        Remove_file(path_);
        path_.clear();
        locked_ = {};
    }
}

std::optional<LeftWork> Claim_left_work(const fs::path& folder) {
    if (folder.empty()) {
        return std::nullopt;
    }
    for (const auto& [path, time] : Candidates(folder)) {
        SystemFile file = Open_no_link(path, Access::read);
        if (!file || Try_lock(file) != LockResult::taken || !Stands_at(file, path)) {
            continue;
        }
        if (Text_of(path).ends_with(part)) {
            Remove_file(path);
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
