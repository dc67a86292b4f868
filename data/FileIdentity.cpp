#include "data/FileIdentity.h"

#include <cerrno>
#include <functional>
#include <system_error>
#include <utility>
#include <vector>

namespace tarnvik {

std::uint64_t Digest_of(std::string_view bytes, std::uint64_t before) {
    constexpr std::uint64_t prime = 0x100000001b3U;
    for (const char byte : bytes) {
        before = (before ^ static_cast<unsigned char>(byte)) * prime;
    }
    return before;
}

namespace {

// Goes on with a block of a file; all but its last are as large. The library's hash takes words at a time.
constexpr std::size_t block_size = 65536;
void Add_block(FileIdentity& identity, std::string_view block) {
    constexpr std::uint64_t multiplier = 0x9e3779b97f4a7c15U;
    identity.size += block.size();
    identity.digest = identity.digest * multiplier + std::hash<std::string_view>{}(block);
}

// To its end, wherever that is by now.
std::string Content_of(const SystemFile& file, std::size_t expected) {
    std::string content(expected + 1, '\0');
    for (std::size_t count = 0;;) {
        count += Read_at(file, content.data() + count, content.size() - count, count);
        if (count < content.size()) {
            content.resize(count);
            return content;
        }
        content.resize(count + block_size);
    }
}

} // namespace

FileIdentity Identity_of(const SystemFile& file) {
    FileIdentity identity{FileIdentity::State::read, 0, 0};
    std::vector<char> block(block_size);
    while (const std::size_t count = Read_at(file, block.data(), block.size(), identity.size)) {
        Add_block(identity, {block.data(), count});
    }
    return identity;
}

SeenFile See_file(const std::filesystem::path& path) {
    SeenFile unreadable{{FileIdentity::State::unreadable, 0, 0}, {}};
    constexpr std::uint64_t largest = std::uint64_t{64} * 1024 * 1024;
    const std::optional<FileStatus> status = Status_of(path);
    if (!status) {
        return errno == ENOENT || errno == ENOTDIR ? SeenFile{} : unreadable;
    }
    if (!status->regular || status->size > largest) { // before opening: a device may act on being opened
        return unreadable;
    }
    try {
        const SystemFile file = Open_file(path, Access::read);
        if (!file) {
            return unreadable;
        }
        std::string content = Content_of(file, static_cast<std::size_t>(status->size));
        FileIdentity identity{FileIdentity::State::read, 0, 0};
        while (identity.size < content.size()) {
            Add_block(identity, std::string_view{content}.substr(identity.size, block_size));
        }
        return {identity, std::move(content)};
    } catch (const std::system_error&) {
        return unreadable;
    }
}

FileIdentity Identity_of(const std::filesystem::path& path) {
    return See_file(path).identity;
}

} // namespace tarnvik
