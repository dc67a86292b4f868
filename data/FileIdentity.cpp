#include "data/FileIdentity.h"

#include <cerrno>
#include <system_error>
#include <vector>

#include <fcntl.h>

namespace tarnvik {

std::uint64_t Digest_of(std::string_view bytes, std::uint64_t before) {
    constexpr std::uint64_t prime = 0x100000001b3U;
    for (const char byte : bytes) {
        before = (before ^ static_cast<unsigned char>(byte)) * prime;
    }
    return before;
}

FileIdentity Identity_of(const SystemFile& file) {
    FileIdentity identity{FileIdentity::State::read, 0, empty_digest};
    std::vector<char> block(65536);
    for (;;) {
        const std::size_t count = Read_at(file, block.data(), block.size(), identity.size);
        if (count == 0) {
            return identity;
        }
        identity.size += count;
        identity.digest = Digest_of({block.data(), count}, identity.digest);
    }
}

FileIdentity Identity_of(const std::filesystem::path& path) {
    constexpr FileIdentity unreadable{FileIdentity::State::unreadable, 0, 0};
    constexpr off_t largest = off_t{64} * 1024 * 1024;
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) {
        return errno == ENOENT || errno == ENOTDIR ? FileIdentity{} : unreadable;
    }
    if (!S_ISREG(status.st_mode) || status.st_size > largest) { // before opening: a device may act on being opened
        return unreadable;
    }
    try {
        const SystemFile file = Open_file(path, O_RDONLY);
        return file ? Identity_of(file) : unreadable;
    } catch (const std::system_error&) {
        return unreadable;
    }
}

} // namespace tarnvik
