// Another program that works for this one, and the channel to it, which passes bytes both ways. The other program finds
// the channel as its standard input.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tarnvik {

// Where the started program has its end.
inline constexpr int partner_channel = 0;

// Both ends of a new channel; a program that is started inherits neither. Errors: throws std::system_error.
std::array<int, 2> Make_channel();

// How many bytes were passed on or have come; 0 or less where the other side is gone.
long Send_some(int channel, std::string_view bytes);
long Receive_some(int channel, char* bytes, std::size_t count);

void Close_channel(int channel);

// The program is there and may be started.
bool Is_program(const std::filesystem::path& path);

// Starts a program, the first word its path, with that end of a channel as its own; the end is closed here, also after
// a failure. Returns what Wait_for asks for. Errors: throws std::system_error.
std::intptr_t Start_program(std::vector<std::string> command, int channel);
void Wait_for(std::intptr_t process);

} // namespace tarnvik
