#include "data/KeptCopy.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

#include "data/FileNames.h"
#include "data/FileRights.h"
#include "data/Folders.h"
#include "data/TemporaryFile.h"

namespace tarnvik {

namespace fs = std::filesystem;

namespace {

constexpr mode_t closed_file = 0600;
constexpr mode_t closed_folder = 0700;

void Make_folder(const fs::path& folder) {
    if (fs::is_directory(folder)) {
        return;
    }
    Make_folder(folder.parent_path());
    if (mkdir(folder.c_str(), closed_folder) != 0 && errno != EEXIST) {
        Throw_error();
    }
    Flush_folder(folder.parent_path(), Open_file(folder, O_RDONLY | O_DIRECTORY));
}

// The file's folder is there: whatever is missing here, it is no path of the user's that was not found.
fs::path State_folder_made() {
    fs::path folder = User_state_folder();
    if (folder.empty()) {
        Throw_error(EACCES);
    }
    try {
        Make_folder(folder);
    } catch (const std::system_error& error) {
        Throw_error(error.code() == std::errc::no_space_on_device ? ENOSPC : EACCES);
    }
    return folder;
}

// Whole and on the disk, but for its name.
void Fill(TemporaryFile& copy, const SystemFile& former) {
    Copy_from(former, 0, copy.File());
    Copy_rights_or_fewer(former, copy.File());
    Flush(copy.File());
}

// `path` names the file that is copied, in the folder where the copy goes.
fs::path Keep_copy_at(const SystemFile& former, const fs::path& path) {
    TemporaryFile copy{path, closed_file};
    Fill(copy, former);
    for (int number = 1;; ++number) {
        fs::path kept = Folder_of(path) / Kept_name(path.filename().native(), number);
        if (copy.Take_free(kept)) {
            Flush_folder(Folder_of(path), copy.File());
            copy.Close();
            return kept;
        }
    }
}

// `path` as above; `undo` is the name that the copy gets.
UndoCopy Make_undo_copy_at(const SystemFile& former, const fs::path& path, const fs::path& undo) {
    TemporaryFile copy{path, closed_file};
    Fill(copy, former);
    if (!copy.Take_free(undo)) {
        Throw_error(EPERM); // of somebody who is not trusted with the file
    }
    return {undo, copy.Take_file()};
}

fs::path Beside(const fs::path& target) {
    return Folder_of(target) / Undo_name(target.filename().native());
}

std::array<fs::path, 2> Undo_paths(const fs::path& target) {
    const fs::path folder = User_state_folder();
    return {Beside(target), folder.empty() ? fs::path{} : folder / Undo_name_of_path(target)};
}

// Where everybody may make files but nobody remove another's, a copy made by anybody has no say in the file.
bool Is_trusted(const SystemFile& copy, const SystemFile& former, const fs::path& folder) {
    const struct stat status = Status_of(copy);
    struct stat around {};
    if (stat(folder.c_str(), &around) != 0) {
        Throw_error();
    }
    return status.st_uid == geteuid() || status.st_uid == 0 || status.st_uid == Status_of(former).st_uid ||
           (around.st_mode & static_cast<mode_t>(S_ISVTX)) == 0;
}

// A folder that cannot be looked into holds no copy of ours.
bool Is_there(const fs::path& path) {
    constexpr std::array absences{ENOENT, ENOTDIR, EACCES, ENAMETOOLONG, ELOOP};
    struct stat status {};
    if (path.empty()) {
        return false;
    }
    if (lstat(path.c_str(), &status) != 0) {
        if (std::find(absences.begin(), absences.end(), errno) == absences.end()) {
            Throw_error();
        }
        return false;
    }
    return S_ISREG(status.st_mode);
}

} // namespace

bool Folder_refuses(int error) {
    constexpr std::array refusals{EACCES, EPERM, EROFS, EBUSY, EXDEV, ENAMETOOLONG};
    return std::find(refusals.begin(), refusals.end(), error) != refusals.end();
}

fs::path Keep_copy(const SystemFile& former, const fs::path& target) {
    try {
        return Keep_copy_at(former, target);
    } catch (const std::system_error& error) {
        if (!Folder_refuses(error.code().value())) {
            throw;
        }
    }
    return Keep_copy_at(former, State_folder_made() / target.filename());
}

UndoCopy Make_undo_copy(const SystemFile& former, const fs::path& target) {
    try {
        return Make_undo_copy_at(former, target, Beside(target));
    } catch (const std::system_error& error) {
        if (!Folder_refuses(error.code().value())) {
            throw;
        }
    }
    const fs::path folder = State_folder_made();
    return Make_undo_copy_at(former, folder / target.filename(), folder / Undo_name_of_path(target));
}

std::optional<UndoCopy> Find_undo_copy(const SystemFile& former, const fs::path& target) {
    for (const fs::path& path : Undo_paths(target)) {
        if (!Is_there(path)) {
            continue;
        }
        SystemFile file = Open_file(path, O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
        if (!file) {
            Throw_error();
        }
        if (Is_trusted(file, former, Folder_of(path))) {
            return UndoCopy{path, std::move(file)};
        }
    }
    return {};
}

bool Has_undo_copy(const fs::path& target) {
    const auto paths = Undo_paths(target);
    return Is_there(paths[0]) || Is_there(paths[1]);
}

void Remove_undo_copy(const UndoCopy& copy) {
    if (unlink(copy.path.c_str()) != 0) {
        Throw_error();
    }
    Flush_folder(Folder_of(copy.path), copy.file);
}

std::optional<fs::path> Retire_undo_copy(const fs::path& target) {
    for (const fs::path& path : Undo_paths(target)) {
        if (!Is_there(path)) {
            continue;
        }
        for (int number = 1;; ++number) {
            fs::path kept = Folder_of(path) / Kept_name(target.filename().native(), number);
            if (Rename_to_free(path, kept)) {
                return kept;
            }
        }
    }
    return {};
}

} // namespace tarnvik
