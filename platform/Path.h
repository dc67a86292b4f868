// Paths and their texts. Every text of the program is UTF-8, also where the system's own paths are not.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tarnvik {

// A path made from a text in another way has the wrong letters outside ASCII on some systems.
inline std::filesystem::path Path_of(std::string_view text) {
    return std::u8string{text.begin(), text.end()};
}

inline std::string Text_of(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

// The standard library's own functions take the name of a server, as in //server/folder, for a folder.

// From the root.
std::filesystem::path Absolute_path(const std::filesystem::path& path);

// The same without "." and "..", links followed as far as they are there; unchanged where the system does not tell.
std::filesystem::path Plain_path(const std::filesystem::path& path);

// The file that a path leads to. A link that leads to nothing yet is followed as well: the file is created at its end.
std::filesystem::path Target_of(const std::filesystem::path& path);

} // namespace tarnvik
