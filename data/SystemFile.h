// A file of the operating system, by its descriptor, and the calls on it that saving is made of. They repeat what a
// signal has interrupted. Errors: throws std::system_error, unless it says otherwise.
#pragma once

#include <cerrno>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string_view>

#include <sys/stat.h>
#include <sys/types.h>

namespace tarnvik {

// Closes itself.
class SystemFile {
public:
    SystemFile() = default;
    explicit SystemFile(int descriptor) : descriptor_(descriptor) {}
    SystemFile(SystemFile&& other) noexcept : descriptor_(other.Release()) {}
    SystemFile& operator=(SystemFile&& other) noexcept;
    SystemFile(const SystemFile&) = delete;
    SystemFile& operator=(const SystemFile&) = delete;
    ~SystemFile();

    [[nodiscard]] explicit operator bool() const { return descriptor_ >= 0; }
    [[nodiscard]] int Get() const { return descriptor_; }

    // Where it has been written, the system may tell a failure as late as here.
    void Close();

private:
    int Release();

    int descriptor_{-1};
};

// The failure of the last call.
[[noreturn]] void Throw_error(int number = errno);

// As open(2), not inherited by other programs and never waiting for a pipe's other end. No file on failure; errno says
// why.
SystemFile Open_file(const std::filesystem::path& path, int flags, mode_t mode = 0);

struct stat Status_of(const SystemFile& file);

// Two looks at the same file, with nothing written and no right changed in between.
bool Unchanged(const struct stat& one, const struct stat& other);

// At most so many bytes, fewer at the end of the file only; returns how many.
std::size_t Read_at(const SystemFile& file, char* bytes, std::size_t count, std::uint64_t offset);
void Write_at(const SystemFile& file, std::string_view bytes, std::uint64_t offset);
void Cut_at(const SystemFile& file, std::uint64_t size);

// From the offset to the end, to the same place of the other file. Leaves alone what is there already.
void Copy_from(const SystemFile& from, std::uint64_t offset, const SystemFile& to);

bool Same_content(const SystemFile& one, const SystemFile& other);

// Content and rights are on the disk when it returns.
void Flush(const SystemFile& file);

// The names of the folder are. A folder that may be written but not read is flushed with its whole file system, which
// `file` names.
void Flush_folder(const std::filesystem::path& folder, const SystemFile& file);

// The folder that a path lies in: "." of a bare name.
std::filesystem::path Folder_of(const std::filesystem::path& path);

// The lock of flock(2), which ends with its process, on every machine that shares the file.
enum class LockResult : std::uint8_t {
    taken,
    busy,
    none_here, // the file system knows no locks
};
LockResult Try_lock(const SystemFile& file);

// Waits for the lock, but not for ever.
using Deadline = std::chrono::steady_clock::time_point;
Deadline End_of_patience(); // of one that begins to wait now
void Lock(const SystemFile& file, Deadline deadline = End_of_patience());

// Gives a file a further name, unless it is taken: then false. `from` is gone afterwards.
bool Rename_to_free(const std::filesystem::path& from, const std::filesystem::path& to);

} // namespace tarnvik
