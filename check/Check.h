// The headless tool: the same pass as the window's, without a screen.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

namespace tarnvik {

inline constexpr const char* version = "1.2.0";

// Exit status of tarnvik-check.
inline constexpr int exit_holds = 0;   // all calculated and no utilisation above 1.0
inline constexpr int exit_fails = 1;   // all calculated, some utilisation above 1.0
inline constexpr int exit_usage = 2;   // wrong usage or unreadable input
inline constexpr int exit_stopped = 3; // a pass was stopped or faulted

class Rendering;

// Runs the tool. `program_folder` is where the data files lie unless --data names another folder. `rendering` paints
// what is asked for as pictures; null in a build without the front end.
int Run_check(const std::vector<std::string>& arguments, const std::filesystem::path& program_folder, std::istream& in,
              std::ostream& out, std::ostream& err, Rendering* rendering = nullptr);

} // namespace tarnvik
