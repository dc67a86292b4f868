// The command line of the window's program: a project to open, --help, --version.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tarnvik {

struct CommandLine {
    std::string data;    // --data; empty: the folder that the program finds
    std::string project; // absolute; empty: a new project
    bool help{};
    bool version{};
    std::string error; // what is wrong, in words for the user; empty where nothing is
};

// `arguments` without the program's name. A relative path is one from the current directory.
CommandLine Parse_command_line(const std::vector<std::string>& arguments);

// The text of --help, with the data folder.
std::string Command_line_help(const std::filesystem::path& data);

} // namespace tarnvik
