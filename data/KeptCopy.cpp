#include "data/KeptCopy.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

#include "data/FileNames.h"
#include "data/TemporaryFile.h"
#include "platform/FileRights.h"
#include "platform/Machine.h"
#include "platform/Path.h"

namespace tarnvik {

namespace fs = std::filesystem;

namespace {

// The file's folder is there: whatever is missing here, it is no path of the user's that was not found.
fs::path State_folder_made() {
    fs::path folder = User_state_folder();
    if (folder.empty()) {
        Throw_error(EACCES);
    }
    try {
        Make_closed_folder(folder);
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
    TemporaryFile copy{path, NewRights::closed};
    Fill(copy, former);
    for (int number = 1;; ++number) {
        fs::path kept = Folder_of(path) / Path_of(Kept_name(Text_of(path.filename()), number));
        if (copy.Take_free(kept)) {
            Flush_folder(Folder_of(path), copy.File());
            copy.Close();
            return kept;
        }
    }
}

// `path` as above; `undo` is the name that the copy gets.
UndoCopy Make_undo_copy_at(const SystemFile& former, const fs::path& path, const fs::path& undo) {
    TemporaryFile copy{path, NewRights::closed};
    Fill(copy, former);
    if (!copy.Take_free(undo)) {
        Throw_error(EPERM); // of somebody who is not trusted with the file
    }
    return {undo, copy.Take_file()};
}

fs::path Beside(const fs::path& target) {
    return Folder_of(target) / Path_of(Undo_name(Text_of(target.filename())));
}

std::array<fs::path, 2> Undo_paths(const fs::path& target) {
    const fs::path folder = User_state_folder();
    return {Beside(target), folder.empty() ? fs::path{} : folder / Path_of(Undo_name_of_path(target))};
}

// A folder that cannot be looked into holds no copy of ours.
bool Is_there(const fs::path& path) {
    constexpr std::array absences{ENOENT, ENOTDIR, EACCES, ENAMETOOLONG, ELOOP};
    if (path.empty()) {
        return false;
    }
    const std::optional<FileStatus> status = Status_of_link(path);
    if (!status) {
        if (std::find(absences.begin(), absences.end(), errno) == absences.end()) {
            Throw_error();
        }
        return false;
    }
    return status->regular;
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
    return Make_undo_copy_at(former, folder / target.filename(), folder / Path_of(Undo_name_of_path(target)));
}

std::optional<UndoCopy> Find_undo_copy(const SystemFile& former, const fs::path& target) {
    for (const fs::path& path : Undo_paths(target)) {
        if (!Is_there(path)) {
            continue;
        }
        SystemFile file = Open_no_link(path, Access::read);
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
    if (!Remove_file(copy.path)) {
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
            fs::path kept = Folder_of(path) / Path_of(Kept_name(Text_of(target.filename()), number));
            if (Rename_to_free(path, kept)) {
                return kept;
            }
        }
    }
    return {};
}

} // namespace tarnvik
