// A file of the operating system and the calls on it that saving is made of. They repeat what a signal has interrupted.
// Errors: throws std::system_error of the generic category, unless it says otherwise.
#pragma once

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <ctime>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

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

// Nothing more fits on the disk, or into what the user, or a file, may take of it.
bool Is_disk_full(int number);

// The files that are opened or made are not inherited by other programs. No file on failure; errno says why.
enum class Access : std::uint8_t {
    read,
    read_write,
};
SystemFile Open_file(const std::filesystem::path& path, Access access);
SystemFile Open_no_link(const std::filesystem::path& path, Access access); // nor a pipe whose other end it waits for

// A new one, for reading and writing; errno is EEXIST where the name is taken.
enum class NewRights : std::uint8_t {
    closed, // to everybody but the user
    usual,
};
SystemFile Create_file(const std::filesystem::path& path, NewRights rights);

// The same, closed, with "XXXXXX" in its name replaced by letters that are free; `after` letters follow them.
SystemFile Create_file(std::string& name, std::size_t after);

// Of the file itself, and when it was last written. Two looks that are equal have nothing written in between.
struct FileStatus {
    bool regular{};
    std::uint64_t size{};  // bytes
    std::uint64_t names{}; // hard links
    std::time_t modified{};
    std::array<std::uint64_t, 2> file{};  // the same for all names of one file alone
    std::array<std::int64_t, 4> change{}; // times of the last change, as fine as the system has them

    friend bool operator==(const FileStatus& one, const FileStatus& other) = default;
};
FileStatus Status_of(const SystemFile& file);
std::optional<FileStatus> Status_of(const std::filesystem::path& path);      // nothing on failure; errno says why
std::optional<FileStatus> Status_of_link(const std::filesystem::path& path); // the same of a link itself

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

// With those above it, closed to everybody but the user, and on the disk.
void Make_closed_folder(const std::filesystem::path& folder);

// A lock that ends with its process, on every machine that shares the file. Whoever reads or writes need not ask for
// it.
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

// Gives a file the name of another one, which is gone afterwards, in one step.
void Rename_over(const std::filesystem::path& from, const std::filesystem::path& to);

// Gives a file a further name, unless it is taken: then false. `from` is gone afterwards.
bool Rename_to_free(const std::filesystem::path& from, const std::filesystem::path& to);

// False on failure; errno says why.
bool Remove_file(const std::filesystem::path& path);

} // namespace tarnvik
