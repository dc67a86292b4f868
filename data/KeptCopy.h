// Copies of what a file holds, kept while or because it is about to hold something else. Where the file's folder takes
// no new file they go to the user's state folder (User_state_folder). Errors: throws std::system_error.
#pragma once

#include <filesystem>
#include <optional>

#include "platform/SystemFile.h"

namespace tarnvik {

// Whether a failure means that this folder, and not the disk, denies a new file or a renaming: no right to write, read
// only, sticky and another's file, a file that is mounted by itself.
bool Folder_refuses(int error);

// NAME~, or the first of NAME~2, NAME~3 and so on that is free, with the rights of the file as far as they may be
// given. On the disk when it returns; the path.
std::filesystem::path Keep_copy(const SystemFile& former, const std::filesystem::path& target);

// What a file held before it was written in place. It exists whole or not at all, and as long as the writing may be cut
// off.
struct UndoCopy {
    std::filesystem::path path;
    SystemFile file;
};

// The name is not flushed yet.
UndoCopy Make_undo_copy(const SystemFile& former, const std::filesystem::path& target);

// The one that is there, and that belongs to somebody who may be trusted with the file.
std::optional<UndoCopy> Find_undo_copy(const SystemFile& former, const std::filesystem::path& target);

// Whether one may be there.
bool Has_undo_copy(const std::filesystem::path& target);

void Remove_undo_copy(const UndoCopy& copy);

// The file that it was made for is gone, and a new one of its name comes: the copy becomes a NAME~. The path, if there
// was one.
std::optional<std::filesystem::path> Retire_undo_copy(const std::filesystem::path& target);

} // namespace tarnvik
