// Windows-1252, the 8-bit code page of the program's files, to and from UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace tarnvik {

// Every byte has a character; the five that the code page leaves open become the control characters of the same number,
// so that any file reads and writes back byte for byte.
std::string From_windows_1252(std::string_view bytes);

// A character that the code page lacks becomes "?", and so does a damaged UTF-8 sequence.
std::string To_windows_1252(std::string_view utf8);

} // namespace tarnvik
