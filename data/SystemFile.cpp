#include "data/SystemFile.h"

#include <algorithm>
#include <cstdio>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace tarnvik {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t block_size = 65536;

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

} // namespace

SystemFile& SystemFile::operator=(SystemFile&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
}

SystemFile::~SystemFile() {
    if (descriptor_ >= 0) {
        close(descriptor_);
    }
}

int SystemFile::Release() {
    return std::exchange(descriptor_, -1);
}

void SystemFile::Close() {
    if (close(Release()) != 0 && errno != EINTR) { // interrupted, it is closed all the same
        Throw_error();
    }
}

void Throw_error(int number) {
    throw std::system_error{number, std::generic_category()};
}

SystemFile Open_file(const fs::path& path, int flags, mode_t mode) {
    return SystemFile{Repeat([&] { return open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY, mode); })};
}

struct stat Status_of(const SystemFile& file) {
    struct stat status {};
    Check(fstat(file.Get(), &status));
    return status;
}

bool Unchanged(const struct stat& one, const struct stat& other) {
    const auto same = [](const timespec& a, const timespec& b) {
        return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
    };
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino && one.st_size == other.st_size &&
           same(one.st_mtim, other.st_mtim) && same(one.st_ctim, other.st_ctim);
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

void Copy_from(const SystemFile& from, std::uint64_t offset, const SystemFile& to) {
    std::vector<char> block(block_size);
    std::vector<char> there(block_size);
    for (;;) {
        const std::size_t count = Read_at(from, block.data(), block.size(), offset);
        if (count == 0) {
            return;
        }
        const std::string_view bytes{block.data(), count};
        if (bytes != std::string_view{there.data(), Read_at(to, there.data(), count, offset)}) {
            Write_at(to, bytes, offset);
        }
        offset += count;
    }
}

bool Same_content(const SystemFile& one, const SystemFile& other) {
    std::vector<char> block(block_size);
    std::vector<char> there(block_size);
    for (std::uint64_t offset = 0;;) {
        const std::size_t count = Read_at(one, block.data(), block.size(), offset);
        const std::size_t other_count = Read_at(other, there.data(), there.size(), offset);
        if (std::string_view{block.data(), count} != std::string_view{there.data(), other_count}) {
            return false;
        }
        if (count == 0) {
            return true;
        }
        offset += count;
    }
}

void Flush(const SystemFile& file) {
    Check(Repeat([&] { return fsync(file.Get()); }));
}

void Flush_folder(const fs::path& folder, const SystemFile& file) {
    const SystemFile names = Open_file(folder, O_RDONLY | O_DIRECTORY);
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

fs::path Folder_of(const fs::path& path) {
    return path.has_parent_path() ? path.parent_path() : fs::path{"."};
}

LockResult Try_lock(const SystemFile& file) {
    if (Repeat([&] { return flock(file.Get(), LOCK_EX | LOCK_NB); }) == 0) {
        return LockResult::taken;
    }
    return errno == EWOULDBLOCK ? LockResult::busy : LockResult::none_here;
}

Deadline End_of_patience() {
    return std::chrono::steady_clock::now() + std::chrono::seconds{5};
}

void Lock(const SystemFile& file, Deadline deadline) {
    while (Try_lock(file) == LockResult::busy) {
        if (std::chrono::steady_clock::now() > deadline) {
            Throw_error(EAGAIN);
        }
        std::this_thread::sleep_for(std::chrono::milliseconds{1});
    }
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

} // namespace tarnvik
