#include "frontend/main/CommandLine.h"

#include <cstddef>
#include <string_view>

#include "platform/Path.h"

namespace tarnvik {

CommandLine Parse_command_line(const std::vector<std::string>& arguments) {
    constexpr std::string_view data_is = "--data=";
    CommandLine line;
    std::vector<std::string> projects;
    bool only_projects = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (only_projects || argument.empty() || argument[0] != '-') {
            projects.push_back(argument);
        } else if (argument == "--") {
            only_projects = true;
        } else if (argument == "--help") {
            line.help = true;
        } else if (argument == "--version") {
            line.version = true;
        } else if (argument == "--data" && i + 1 < arguments.size()) {
            line.data = arguments[++i];
        } else if (argument.starts_with(data_is) && argument.size() > data_is.size()) {
            line.data = argument.substr(data_is.size());
        } else {
            line.error = "unknown option " + argument + "; see tarnvik --help";
            return line;
        }
    }
    if (!line.data.empty()) {
        line.data = Absolute_path(Path_of(line.data)).string();
    }
    if (projects.size() > 1) {
        line.error = "expected one project, or none";
    } else if (projects.size() == 1 && projects.front().empty()) {
        line.error = "expected the path of a project, got an empty one";
    } else if (projects.size() == 1) {
        line.project = Absolute_path(Path_of(projects.front())).string();
    }
    return line;
}

std::string Command_line_help(const std::filesystem::path& data) {
    return "Usage: tarnvik [OPTION]... [PROJECT.tnvik]\n"
           "Check a bolted timber connection to EN 1995-1-1 in a window.\n"
           "\n"
           "  --data DIR  folder of the materials, the sections and the setup\n"
           "  --help      this text\n"
           "  --version   the version\n"
           "\n"
           "Data folder: " +
           data.string() +
           "\n"
           "\n"
           "Without a screen: tarnvik-check.\n"
           "\n"
           "Exit status: 0 at the end of the work; 1 where the program cannot start; 2 wrong usage.\n";
}

} // namespace tarnvik
