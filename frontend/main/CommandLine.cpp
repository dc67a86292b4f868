#include "frontend/main/CommandLine.h"

#include <filesystem>

namespace tarnvik {

CommandLine Parse_command_line(const std::vector<std::string>& arguments) {
    CommandLine line;
    std::vector<std::string> projects;
    bool only_projects = false;
    for (const std::string& argument : arguments) {
        if (only_projects || argument.empty() || argument[0] != '-') {
            projects.push_back(argument);
        } else if (argument == "--") {
            only_projects = true;
        } else if (argument == "--help") {
            line.help = true;
        } else if (argument == "--version") {
            line.version = true;
        } else {
            line.error = "unknown option " + argument + "; see tarnvik --help";
            return line;
        }
    }
    if (projects.size() > 1) {
        line.error = "expected one project, or none";
    } else if (projects.size() == 1 && projects.front().empty()) {
        line.error = "expected the path of a project, got an empty one";
    } else if (projects.size() == 1) {
        line.project = std::filesystem::absolute(projects.front()).string();
    }
    return line;
}

std::string Command_line_help() {
    return "Usage: tarnvik [PROJECT.tnvik]\n"
           "Check a bolted timber connection to EN 1995-1-1 in a window.\n"
           "\n"
           "  --help     this text\n"
           "  --version  the version\n"
           "\n"
           "Without a screen: tarnvik-check.\n"
           "\n"
           "Exit status: 0 at the end of the work; 1 where the program cannot start; 2 wrong usage.\n";
}

} // namespace tarnvik
