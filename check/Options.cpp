#include "check/Options.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "calc/StateFields.h"

namespace tarnvik {

namespace {

constexpr std::array<std::string_view, 6> groups{"screen", "tables", "pictures", "report", "detail", "explanations"};
// The tables behind the state, shown when they are asked for by name.
constexpr std::array<std::string_view, 3> tables{"Mat", "Prof", "Setup"};

std::vector<std::string> Split_list(const std::string& list) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    while (start <= list.size()) {
        const std::size_t end = std::min(list.find(',', start), list.size());
        if (end > start) {
            parts.push_back(list.substr(start, end - start));
        }
        start = end + 1;
    }
    return parts;
}

} // namespace

std::string Help_text() {
    std::string text = R"(Usage: tarnvik-check [OPTION]... [PROJECT.tnvik]...
Check a bolted timber connection to EN 1995-1-1 without a screen.

Without a project the check is that of a new project; with projects each one is
opened and checked.

  --data DIR         folder of the three CSV files (default: the program's folder)
  --lang Eng|Nor     language of a new project (default: the setup file's)
  --set NAME=VALUE   write an input before the check; repeatable, in the order given
  --json             one JSON object a line instead of the readable summary
  --with GROUPS      more in the JSON, separated by commas:
                     screen,tables,pictures,report,detail,explanations
  --fields A,B,...   only these names of the state; Mat, Prof and Setup show the tables
  --batch            read inputs as JSON Lines from standard input, one result a line
  --save FILE        save the project after the check
  --report FILE.pdf  write the two-page report
  --pictures DIR     write every stored picture, as PNG and SVG, under its key
  --help             this text
  --version          the version

A batch line is an object of inputs, or an array of such objects that are applied to
the same connection one after the other; every line starts from a new project.

Inputs (NAME): flags take true or false, the others a number or a text.
)";
    std::string line = " ";
    for (const StateField& field : State_fields()) {
        if (!field.is_input) {
            continue;
        }
        if (line.size() + field.name.size() + 1 > 84) {
            text += line + "\n";
            line = " ";
        }
        line += " ";
        line += field.name;
    }
    text += line + R"(

Exit status: 0 all calculated and no utilisation above 1.0; 1 all calculated, some
utilisation above 1.0; 2 wrong usage or unreadable input; 3 a check was stopped or its
arithmetic failed.
)";
    return text;
}

Options Parse_options(const std::vector<std::string>& arguments) {
    Options options;
    bool only_projects = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        std::string name = arguments[i];
        if (only_projects || name.size() < 2 || name[0] != '-') {
            options.projects.push_back(name);
            continue;
        }
        if (name == "--") {
            only_projects = true;
            continue;
        }
        std::optional<std::string> attached;
        if (const std::size_t equals = name.find('='); name.starts_with("--") && equals != std::string::npos) {
            attached = name.substr(equals + 1);
            name.resize(equals);
        }
        const auto value = [&](const char* expected) {
            if (attached) {
                return *std::exchange(attached, std::nullopt);
            }
            if (i + 1 >= arguments.size()) {
                throw UsageError{name + ": expected " + expected};
            }
            return arguments[++i];
        };
        if (name == "--data") {
            options.data = value("a folder");
        } else if (name == "--lang") {
            options.lang = value("Eng or Nor");
            if (*options.lang != "Eng" && *options.lang != "Nor") {
                throw UsageError{"--lang: expected Eng or Nor, got \"" + *options.lang + "\""};
            }
        } else if (name == "--set") {
            const std::string pair = value("NAME=VALUE");
            const std::size_t equals = pair.find('=');
            if (equals == std::string::npos || equals == 0) {
                throw UsageError{"--set: expected NAME=VALUE, got \"" + pair + "\""};
            }
            options.set.emplace_back(pair.substr(0, equals), pair.substr(equals + 1));
        } else if (name == "--json") {
            options.json = true;
        } else if (name == "--with") {
            for (std::string& group : Split_list(value("a list of groups"))) {
                if (std::find(groups.begin(), groups.end(), group) == groups.end()) {
                    throw UsageError{"--with: unknown group \"" + group +
                                     "\", expected screen,tables,pictures,report,detail,explanations"};
                }
                options.with.push_back(std::move(group));
            }
            options.json = true;
        } else if (name == "--fields") {
            options.fields = Split_list(value("a list of names"));
            for (const std::string& field : *options.fields) {
                if (Find_state_field(field) == nullptr &&
                    std::find(tables.begin(), tables.end(), field) == tables.end()) {
                    throw UsageError{"--fields: \"" + field + "\" is no name of the state"};
                }
            }
            options.json = true;
        } else if (name == "--batch") {
            options.batch = true;
            options.json = true;
        } else if (name == "--save") {
            options.save = value("a file");
        } else if (name == "--report") {
            options.report = value("a file");
        } else if (name == "--pictures") {
            options.pictures = value("a folder");
        } else if (name == "--help") {
            options.help = true;
        } else if (name == "--version") {
            options.version = true;
        } else {
            throw UsageError{"unknown option " + name + "; see tarnvik-check --help"};
        }
        if (attached) {
            throw UsageError{name + " takes no value"};
        }
    }
    if (options.batch && !options.projects.empty()) {
        throw UsageError{"--batch starts every line from a new project: expected no project, got \"" +
                         options.projects.front() + "\""};
    }
    if (options.save && (options.batch || options.projects.size() > 1)) {
        throw UsageError{"--save: expected one project, or none"};
    }
    if (options.report && (options.batch || options.projects.size() > 1)) {
        throw UsageError{"--report: expected one project, or none"};
    }
    return options;
}

} // namespace tarnvik
