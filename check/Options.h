// The command line of tarnvik-check.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "check/Named_inputs.h"
#include "check/Sweep.h"

namespace tarnvik {

struct Options {
    std::string data;                // --data; empty: the one that the program finds
    std::optional<std::string> lang; // --lang
    std::vector<std::pair<std::string, std::string>> set;
    NamedValues named;               // --bolt and the like
    std::optional<std::string> list; // --list
    bool json{};
    bool batch{};
    int jobs{1}; // --jobs: threads of a batch
    bool strict{};
    bool help{};
    bool version{};
    std::vector<std::string> with;                  // groups
    std::optional<std::vector<std::string>> fields; // names of the state
    bool checks{true};                              // the group `checks`: with --fields where it is asked for
    std::vector<SweepRange> sweep;                  // --sweep
    std::optional<std::string> plot;                // --plot: the SVG file
    bool csv{};                                     // --csv
    bool find{};                                    // --find
    bool with_connectors{};                         // --with-connectors
    NamedValues fix;                                // --fix
    std::optional<std::string> loads;               // --loads: the CSV file
    std::optional<std::string> save;
    std::optional<std::string> sheet;    // --sheet: the HTML file
    std::optional<std::string> sheets;   // --sheets: the folder of a batch's sheets
    std::optional<std::string> verify;   // --verify: such a file
    std::optional<std::string> report;   // --report: the PDF file
    std::optional<std::string> pictures; // --pictures: the folder
    std::vector<std::string> projects;
};

// What is wrong with a command line or an input, in words for the user.
struct UsageError {
    std::string text;
};

// Errors: throws UsageError.
Options Parse_options(const std::vector<std::string>& arguments);

// The text of --help.
std::string Help_text();

} // namespace tarnvik
