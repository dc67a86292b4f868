// Saving that never loses: whatever stops a save, the file has its former content or the new one, whole, and afterwards
// the owner, group, mode, access list and extended attributes that it had.
//
// The new content goes to a temporary file beside the target, is flushed to the disk and renamed over the target; then
// the folder is flushed. Where that would take one of the rights away from the file (another owner's, a group that the
// process is not in), cut one of several hard links, or where the folder denies it, the file is written in place, with
// an undo copy meanwhile. Two savers of one file wait for each other. docs/file-formats.md has the names of all
// files.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

#include "data/FileIdentity.h"
#include "data/InPlace.h"

namespace tarnvik {

struct SaveRequest {
    OldTail tail{OldTail::keep};

    // The former content, if there is one, is kept as NAME~ before it is overwritten: always, or where it is not what
    // the saver knows (Identity_of when it opened the file, SaveReport when it saved it). Never where the new content
    // holds the whole of it.
    bool keep_former{false};
    std::optional<FileIdentity> known{};
};

struct SaveReport {
    FileIdentity identity;                   // of the file as it is now
    std::vector<std::filesystem::path> kept; // copies that the save has made, the oldest content first
    bool mended{};                           // a save that was cut off had left the file; the first of `kept` is that
};

// A link is followed. A new file has the rights of any new file. The copies are on the disk before the file changes,
// and where one cannot be made, the file is not touched. Errors: path not found (76), disk full (61), path or file
// cannot be accessed (75), raised as from `where`. A fault tells that the new content is not surely on the disk; the
// file may have it all the same, where only the last flush failed.
SaveReport Safe_write(const std::filesystem::path& path, std::string_view content, const SaveRequest& request,
                      std::string_view where);

// Before reading: mends what a save in place that was cut off has left. The path of what was there instead of the
// former content; nothing where nothing had to be mended. Errors: path or file cannot be accessed (75), disk full (61)
// where it has to be mended and cannot be.
std::optional<std::filesystem::path> Mend_file(const std::filesystem::path& path, std::string_view where);

} // namespace tarnvik
