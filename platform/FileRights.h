// Owner, group, mode, access list and attributes of a file, for another one that takes its place or keeps its
// content. Both are open; `to` is a file of this process that nobody else may read yet.
#pragma once

#include <filesystem>

#include "platform/SystemFile.h"

namespace tarnvik {

// All of them, or false, with `to` as closed as before, where the process may not give one. Never is `to` open to
// anybody whom `from` is closed to, on the way neither. Errors: throws std::system_error.
bool Copy_rights(const SystemFile& from, const SystemFile& to);

// For a copy: all of them, or as many as the process may give without opening it to anybody new.
// Errors: throws std::system_error.
void Copy_rights_or_fewer(const SystemFile& from, const SystemFile& to);

// Where everybody may make files but nobody remove another's, a copy in the folder made by anybody has no say in the
// file. Errors: throws std::system_error.
bool Is_trusted(const SystemFile& copy, const SystemFile& former, const std::filesystem::path& folder);

} // namespace tarnvik
