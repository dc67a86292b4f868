// Lines and fields of the program's text files.
#pragma once

#include <filesystem>
#include <fstream>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnvik {

// Opens a text file for reading. Errors, raised as from `where`: file not found (53); path or file cannot be accessed
// (75), with the reason: no right to read it, no regular file (a pipe or a device would never end), larger than 64 MB.
std::ifstream Open_text(const std::filesystem::path& path, std::string_view where);

// The next line of a Windows-1252 stream as UTF-8, without its end (CR LF, CR or LF); nothing at the end of the file.
std::optional<std::string> Read_line(std::istream& file);

// The line split at every ";": always at least one field.
std::vector<std::string_view> Split(std::string_view line);

} // namespace tarnvik
