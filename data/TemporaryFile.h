// A file under a name of its own until its content is whole and on the disk; then it takes its place by one renaming.
#pragma once

#include <filesystem>
#include <utility>

#include "platform/SystemFile.h"

namespace tarnvik {

// Whose process ends in between leaves the file behind. It is then without a lock, and the next temporary file of the
// same name in the same folder removes it.
class TemporaryFile {
public:
    // Empty and locked, in the folder of `target`. Removes what dead processes left there of it.
    // Errors: throws std::system_error, as do all below.
    TemporaryFile(const std::filesystem::path& target, NewRights rights);
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    [[nodiscard]] const SystemFile& File() const { return file_; }

    // Over what has the name.
    void Replace(const std::filesystem::path& path);

    // Only where the name is free; otherwise false.
    bool Take_free(const std::filesystem::path& path);

    // After it has taken its place.
    void Close() { file_.Close(); }
    SystemFile Take_file() { return std::move(file_); }

private:
    TemporaryFile() = default;
    bool Create(const std::filesystem::path& path, NewRights rights);

    std::filesystem::path path_; // once it exists
    SystemFile file_;
    bool renamed_{};
};

} // namespace tarnvik
