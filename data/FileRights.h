// Owner, group, mode, access list and extended attributes of a file, for another one that takes its place or keeps its
// content. Both are open; `to` is a file of this process that nobody else may read yet (mode 0600).
#pragma once

#include "data/SystemFile.h"

namespace tarnvik {

// All of them, or false, with `to` as closed as before, where the process may not give one. Never is `to` open to
// anybody whom `from` is closed to, on the way neither. Errors: throws std::system_error.
bool Copy_rights(const SystemFile& from, const SystemFile& to);

// For a copy: all of them, or as many as the process may give without opening it to anybody new.
// Errors: throws std::system_error.
void Copy_rights_or_fewer(const SystemFile& from, const SystemFile& to);

} // namespace tarnvik
