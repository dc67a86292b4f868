#include "platform/SystemFile.h"

#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace tarnvik {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t block_size = 65536;

} // namespace

SystemFile& SystemFile::operator=(SystemFile&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
}

int SystemFile::Release() {
    return std::exchange(descriptor_, -1);
}

void Throw_error(int number) {
    throw std::system_error{number, std::generic_category()};
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

fs::path Folder_of(const fs::path& path) {
    return path.has_parent_path() ? path.parent_path() : fs::path{"."};
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

} // namespace tarnvik
