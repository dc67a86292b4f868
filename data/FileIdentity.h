// What a file held when it was looked at, to know later whether it has changed.
//
// The content alone counts: another program that writes the same bytes has changed nothing that could be lost, whatever
// the times of the file say, and one that writes others is seen also within one tick of the file system's clock.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "platform/SystemFile.h"

namespace tarnvik {

struct FileIdentity {
    enum class State : std::uint8_t {
        missing,
        unreadable, // or no regular file, or too large for a project
        read,
    };
    State state{State::missing};
    std::uint64_t size{};   // bytes
    std::uint64_t digest{}; // of this process: another one may have other digests

    friend bool operator==(const FileIdentity& one, const FileIdentity& other) = default;
};

// Never fails and never waits. Look before a file is read rather than after: what changes it in between is then
// noticed.
FileIdentity Identity_of(const std::filesystem::path& path);

// The same with the content, where it could be read, for whoever is to read just that.
struct SeenFile {
    FileIdentity identity;
    std::optional<std::string> content;
};
SeenFile See_file(const std::filesystem::path& path);

// Of an open file, however large. Errors: throws std::system_error.
FileIdentity Identity_of(const SystemFile& file);

// 64 bits FNV-1a, going on from `before`.
inline constexpr std::uint64_t empty_digest = 0xcbf29ce484222325U;
std::uint64_t Digest_of(std::string_view bytes, std::uint64_t before = empty_digest);

} // namespace tarnvik
