// Saving that never loses: the new content goes to a temporary file beside the target and is renamed over it.
#pragma once

#include <filesystem>
#include <string_view>

namespace tarnvik {

enum class OldTail {
    keep, // a longer file keeps what lies behind the new content, as overwriting in place would leave it
    drop,
};

// Writes the whole content, flushes it to the disk and renames it over the target; a full disk or a killed process
// leaves the former file whole. A link is followed, the former file's permissions are kept.
// Errors: path not found (76), disk full (61), path or file cannot be accessed (75), raised as from `where`.
void Safe_write(const std::filesystem::path& path, std::string_view content, OldTail tail, std::string_view where);

} // namespace tarnvik
