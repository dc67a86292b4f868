#include "platform/SystemFile.h"

#include <cstdio>
#include <system_error>

#include <fcntl.h>
#include <stdlib.h> // NOLINT(modernize-deprecated-headers): mkostemps is the system's
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnvik {

namespace fs = std::filesystem;

namespace {

constexpr mode_t closed_file = 0600;
constexpr mode_t closed_folder = 0700;
constexpr mode_t of_a_new_file = 0666; // less what the umask takes

template <class Call> auto Repeat(Call call) {
    for (;;) {
        const auto result = call();
        if (result >= 0 || errno != EINTR) {
            return result;
        }
    }
}

void Check(int result) {
    if (result != 0) {
        Throw_error();
    }
}

SystemFile Open(const fs::path& path, int flags, mode_t mode = 0) {
    return SystemFile{Repeat([&] { return open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY, mode); })};
}

int Flags_of(Access access) {
    return access == Access::read ? O_RDONLY : O_RDWR;
}

FileStatus Plain(const struct stat& status) {
    return {S_ISREG(status.st_mode),
            static_cast<std::uint64_t>(status.st_size),
            status.st_nlink,
            status.st_mtim.tv_sec,
            {status.st_dev, status.st_ino},
            {status.st_mtim.tv_sec, status.st_mtim.tv_nsec, status.st_ctim.tv_sec, status.st_ctim.tv_nsec}};
}

} // namespace

SystemFile::~SystemFile() {
    if (descriptor_ >= 0) {
        close(descriptor_);
    }
}

void SystemFile::Close() {
    if (close(Release()) != 0 && errno != EINTR) { // interrupted, it is closed all the same
        Throw_error();
    }
}

bool Is_disk_full(int number) {
    return number == ENOSPC || number == EDQUOT || number == EFBIG;
}

SystemFile Open_file(const fs::path& path, Access access) {
    return Open(path, Flags_of(access));
}

SystemFile Open_no_link(const fs::path& path, Access access) {
    return Open(path, Flags_of(access) | O_NOFOLLOW | O_NONBLOCK);
}

SystemFile Create_file(const fs::path& path, NewRights rights) {
    return Open(path, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW,
                rights == NewRights::closed ? closed_file : of_a_new_file);
}

SystemFile Create_file(std::string& name, std::size_t after) {
    return SystemFile{mkostemps(name.data(), static_cast<int>(after), O_CLOEXEC)}; // mode 0600
}

FileStatus Status_of(const SystemFile& file) {
    struct stat status {};
    Check(fstat(file.Get(), &status));
    return Plain(status);
}

std::optional<FileStatus> Status_of(const fs::path& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 ? std::optional{Plain(status)} : std::nullopt;
}

std::optional<FileStatus> Status_of_link(const fs::path& path) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0 ? std::optional{Plain(status)} : std::nullopt;
}

std::size_t Read_at(const SystemFile& file, char* bytes, std::size_t count, std::uint64_t offset) {
    std::size_t done = 0;
    while (done < count) {
        const ssize_t read =
            Repeat([&] { return pread(file.Get(), bytes + done, count - done, static_cast<off_t>(offset + done)); });
        if (read < 0) {
            Throw_error();
        }
        if (read == 0) {
            break;
        }
        done += static_cast<std::size_t>(read);
    }
    return done;
}

void Write_at(const SystemFile& file, std::string_view bytes, std::uint64_t offset) {
    while (!bytes.empty()) {
        const ssize_t written =
            Repeat([&] { return pwrite(file.Get(), bytes.data(), bytes.size(), static_cast<off_t>(offset)); });
        if (written <= 0) {
            Throw_error(written == 0 ? ENOSPC : errno);
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
        offset += static_cast<std::uint64_t>(written);
    }
}

void Cut_at(const SystemFile& file, std::uint64_t size) {
    Check(Repeat([&] { return ftruncate(file.Get(), static_cast<off_t>(size)); }));
}

void Flush(const SystemFile& file) {
    Check(Repeat([&] { return fsync(file.Get()); }));
}

void Flush_folder(const fs::path& folder, const SystemFile& file) {
    const SystemFile names = Open(folder, O_RDONLY | O_DIRECTORY);
    if (!names) {
        if (errno != EACCES) {
            Throw_error();
        }
        Check(Repeat([&] { return syncfs(file.Get()); }));
        return;
    }
    if (Repeat([&] { return fsync(names.Get()); }) != 0 && errno != EINVAL) { // no such thing on this file system
        Throw_error();
    }
}

LockResult Try_lock(const SystemFile& file) {
    if (Repeat([&] { return flock(file.Get(), LOCK_EX | LOCK_NB); }) == 0) {
        return LockResult::taken;
    }
    return errno == EWOULDBLOCK ? LockResult::busy : LockResult::none_here;
}

void Make_closed_folder(const fs::path& folder) {
    if (fs::is_directory(folder)) {
        return;
    }
    Make_closed_folder(folder.parent_path());
    if (mkdir(folder.c_str(), closed_folder) != 0 && errno != EEXIST) {
        Throw_error();
    }
    Flush_folder(folder.parent_path(), Open(folder, O_RDONLY | O_DIRECTORY));
}

void Rename_over(const fs::path& from, const fs::path& to) {
    Check(std::rename(from.c_str(), to.c_str()));
}

bool Rename_to_free(const fs::path& from, const fs::path& to) {
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) {
        return true;
    }
    if (errno == EEXIST) {
        return false;
    }
    if (errno != EINVAL && errno != ENOSYS) {
        Throw_error();
    }
    if (link(from.c_str(), to.c_str()) != 0) { // a file system without that kind of renaming, as on a network
        if (errno == EEXIST) {
            return false;
        }
        Throw_error();
    }
    Check(unlink(from.c_str()));
    return true;
}

bool Remove_file(const fs::path& path) {
    return unlink(path.c_str()) == 0;
}

} // namespace tarnvik
