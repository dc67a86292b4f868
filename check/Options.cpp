#include "check/Options.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <system_error>

#include "calc/StateFields.h"
#include "check/Find.h"
#include "check/Lists.h"
#include "check/Loads.h"
#include "check/Nearest.h"

namespace tarnvik {

namespace {

constexpr std::array<std::string_view, 6> groups{"screen", "tables", "pictures", "report", "detail", "explanations"};
// The tables behind the state, shown when they are asked for by name.
constexpr std::array<std::string_view, 3> tables{"Mat", "Prof", "Setup"};

// The group of the verdict, which --fields leaves out unless it names it.
constexpr std::string_view checks_group = "checks";

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

  --data DIR         folder of the three CSV files (default: the window's own)
  --lang Eng|Nor     language of a new project (default: the setup file's)
  --bolt, --bolts, --layout, --spacing, --connector, --material, --member1, --member2,
  --joint, --tension, --compression, --angle, --load, --service
                     inputs by name, such as --bolt M16x8.8 --bolts 3 --joint 1.2
                     --member1 2x48x198 --member2 48x223 --tension 25kN
  --list LIST        what can be asked for: bolts,connectors,materials,profiles,joints,
                     cases,inputs; as a table, or JSON with --json
  --set NAME=VALUE   write an input before the check; repeatable, in the order given
  --json             one JSON object a line instead of the readable summary
  --with GROUPS      more in the JSON, separated by commas:
                     screen,tables,pictures,report,detail,explanations
  --fields A,B,...   only these names of the state; Mat, Prof and Setup show the tables,
                     checks the verdict
  --strict           fail also where distances do not fit or a check was not made;
                     refuse inputs outside their ranges and impossible pairs
  --batch            read inputs from standard input, as JSON Lines or as a table (CSV),
                     and print results of the same kind, one a line
  --jobs N           check the lines of a batch on N threads; results stay in order
  --sweep NAME=FROM:TO:STEP
                     verdicts over a range of an input, as CSV, or JSON with --json;
                     two of them give a grid
  --plot FILE.svg    draw the utilisations over the input of --sweep, or what holds in
                     the grid
  --find             every bolt, number, layout and spacing of the bolts that holds and
                     fits, fewest bolts first; as a table, CSV or JSON
  --with-connectors  look among connectors too
  --fix NAME=VALUE,...
                     keep some of bolt,bolts,connector,layout,spacing
  --loads FILE.csv   check the joint under load cases with the columns name, force (kN,
                     above 0 compression) and load (load-duration class), and tell
                     which governs; as a summary, CSV or JSON
  --csv              CSV instead of the table of --find or --loads
  --save FILE        save the project after the check
  --report FILE.pdf  write the two-page report
  --sheet FILE.html  write the check sheet: one page for a browser, two of A4 printed
  --sheets DIR       write the check sheets of a batch, each by its number and Id
  --verify FILE.html calculate a check sheet again and hold it against that
  --pictures DIR     write every stored picture, as PNG and SVG, under its key
  -h, --help         this text
  -V, --version      the version; with --json as JSON

A batch line is an object of inputs, or an array of such objects that are applied to
the same connection one after the other; every line starts from a new project. Its
keys are inputs, or the inputs by name without their dashes. In a table these are the
columns; "Id" names a row. Between its cells stands ";" or ",", decimals are as in the
input, and a column whose name begins with "#" is left out.

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
utilisation above 1.0, or with --strict something that does not fit or was not
checked, or nothing found; 2 wrong usage or unreadable input; 3 a check was stopped or
its arithmetic failed.

What is checked and what is not: "Tarnvik User & Theory Manual.pdf", section 12.
)";
    return text;
}

namespace {

void Set_lang(Options& options, const std::string& value) {
    if (value != "Eng" && value != "Nor") {
        throw UsageError{"--lang: expected Eng or Nor, got " + Quoted(value)};
    }
    options.lang = value;
}

void Add_input(Options& options, const std::string& pair) {
    const std::size_t equals = pair.find('=');
    if (equals == std::string::npos || equals == 0) {
        throw UsageError{"--set: expected NAME=VALUE, got " + Quoted(pair)};
    }
    options.set.emplace_back(pair.substr(0, equals), pair.substr(equals + 1));
}

void Add_groups(Options& options, const std::string& list) {
    for (std::string& group : Split_list(list)) {
        if (std::find(groups.begin(), groups.end(), group) == groups.end()) {
            throw UsageError{"--with: expected screen,tables,pictures,report,detail,explanations, got " +
                             Quoted(group) + Nearest_names(group, {groups.begin(), groups.end()})};
        }
        options.with.push_back(std::move(group));
    }
    options.json = true;
}

void Set_list(Options& options, const std::string& value) {
    const auto names = List_names();
    if (std::find(names.begin(), names.end(), value) == names.end()) {
        std::string expected;
        for (const std::string_view name : names) {
            expected += expected.empty() ? "" : ",";
            expected += name;
        }
        throw UsageError{"--list: expected one of " + expected + ", got " + Quoted(value)};
    }
    options.list = value;
}

std::vector<std::string_view> Field_names() {
    std::vector<std::string_view> names{tables.begin(), tables.end()};
    names.push_back(checks_group);
    for (const StateField& field : State_fields()) {
        names.push_back(field.name);
    }
    return names;
}

void Set_fields(Options& options, const std::string& list) {
    options.fields = Split_list(list);
    options.checks = std::erase(*options.fields, checks_group) > 0;
    for (const std::string& field : *options.fields) {
        if (Find_state_field(field) == nullptr && std::find(tables.begin(), tables.end(), field) == tables.end()) {
            throw UsageError{"--fields: " + Quoted(field) + " is no name of the state" +
                             Nearest_names(field, Field_names())};
        }
    }
    options.json = true;
}

void Set_jobs(Options& options, const std::string& value) {
    constexpr int most = 256;
    const char* const end = value.data() + value.size();
    const auto [stop, error] = std::from_chars(value.data(), end, options.jobs);
    if (error != std::errc{} || stop != end || options.jobs < 1 || options.jobs > most) {
        throw UsageError{"--jobs: expected a whole number from 1 to 256, got " + Quoted(value)};
    }
}

void Set_fixed(Options& options, const std::string& value) {
    for (auto& fixed : Parse_fixed(value)) {
        options.fix.push_back(std::move(fixed));
    }
}

// An option, what it expects as its value (null: it takes none) and what it does.
struct OptionRow {
    std::string_view name;
    const char* expected;
    void (*take)(Options& options, const std::string& value);
};

// clang-format off
constexpr std::array option_rows{
    OptionRow{"--data",     "a folder",         [](Options& o, const std::string& value) { o.data = value; }},
    OptionRow{"--lang",     "Eng or Nor",       Set_lang},
    OptionRow{"--set",      "NAME=VALUE",       Add_input},
    OptionRow{"--list",     "a list",           Set_list},
    OptionRow{"--json",     nullptr,            [](Options& o, const std::string&) { o.json = true; }},
    OptionRow{"--with",     "a list of groups", Add_groups},
    OptionRow{"--fields",   "a list of names",  Set_fields},
    OptionRow{"--batch",    nullptr,            [](Options& o, const std::string&) { o.batch = o.json = true; }},
    OptionRow{"--jobs",     "a whole number",   Set_jobs},
    OptionRow{"--strict",   nullptr,            [](Options& o, const std::string&) { o.strict = true; }},
    OptionRow{"--sweep",    "NAME=FROM:TO:STEP", [](Options& o, const std::string& value) { o.sweep.push_back(Parse_sweep(value)); }},
    OptionRow{"--plot",     "a file",           [](Options& o, const std::string& value) { o.plot = value; }},
    OptionRow{"--find",     nullptr,            [](Options& o, const std::string&) { o.find = true; }},
    OptionRow{"--with-connectors", nullptr,     [](Options& o, const std::string&) { o.with_connectors = true; }},
    OptionRow{"--fix",      "NAME=VALUE,...",   Set_fixed},
    OptionRow{"--loads",    "a file",           [](Options& o, const std::string& value) { o.loads = value; }},
    OptionRow{"--csv",      nullptr,            [](Options& o, const std::string&) { o.csv = true; }},
    OptionRow{"--save",     "a file",           [](Options& o, const std::string& value) { o.save = value; }},
    OptionRow{"--report",   "a file",           [](Options& o, const std::string& value) { o.report = value; }},
    OptionRow{"--sheet",    "a file",           [](Options& o, const std::string& value) { o.sheet = value; }},
    OptionRow{"--sheets",   "a folder",         [](Options& o, const std::string& value) { o.sheets = value; }},
    OptionRow{"--verify",   "a file",           [](Options& o, const std::string& value) { o.verify = value; }},
    OptionRow{"--pictures", "a folder",         [](Options& o, const std::string& value) { o.pictures = value; }},
    OptionRow{"--help",     nullptr,            [](Options& o, const std::string&) { o.help = true; }},
    OptionRow{"-h",         nullptr,            [](Options& o, const std::string&) { o.help = true; }},
    OptionRow{"--version",  nullptr,            [](Options& o, const std::string&) { o.version = true; }},
    OptionRow{"-V",         nullptr,            [](Options& o, const std::string&) { o.version = true; }},
};
// clang-format on

std::vector<std::string_view> Option_names() {
    static const std::vector<std::string> named = [] {
        std::vector<std::string> names;
        for (const NamedInput& input : Named_inputs()) {
            names.push_back("--" + std::string{input.name});
        }
        return names;
    }();
    std::vector<std::string_view> names{named.begin(), named.end()};
    for (const OptionRow& row : option_rows) {
        names.push_back(row.name);
    }
    return names;
}

const OptionRow& Find_option(const std::string& name) {
    const auto* const row =
        std::find_if(option_rows.begin(), option_rows.end(), [&](const OptionRow& one) { return one.name == name; });
    if (row == option_rows.end()) {
        throw UsageError{"unknown option " + Cut(name) + "; see tarnvik-check --help" +
                         Nearest_names(name, Option_names())};
    }
    return *row;
}

// The option at `i`, with its value attached by "=" or in the next argument; `i` moves on to what was taken last.
void Take_option(Options& options, const std::vector<std::string>& arguments, std::size_t& i) {
    std::string name = arguments[i];
    std::optional<std::string> attached;
    if (const std::size_t equals = name.find('='); name.starts_with("--") && equals != std::string::npos) {
        attached = name.substr(equals + 1);
        name.resize(equals);
    }
    const bool named = name.starts_with("--") && Is_named_input(name.substr(2));
    if (named) {
        if (!attached && i + 1 == arguments.size()) {
            throw UsageError{name + ": expected a value"};
        }
        options.named.emplace_back(name.substr(2), attached ? *attached : arguments[++i]);
        return;
    }
    const OptionRow& row = Find_option(name);
    if (row.expected == nullptr) {
        row.take(options, {});
        if (attached) {
            throw UsageError{name + " takes no value"};
        }
    } else if (attached) {
        row.take(options, *attached);
    } else if (i + 1 < arguments.size()) {
        row.take(options, arguments[++i]);
    } else {
        throw UsageError{name + ": expected " + row.expected};
    }
}

// What is asked for in place of a check with its result. Of a project, or of nothing but the tables.
struct TaskRow {
    std::string_view option;
    bool (*asked)(const Options& options);
    bool of_project;
};

// clang-format off
constexpr std::array task_rows{
    TaskRow{"--list",     [](const Options& o) { return o.list.has_value(); },     false},
    TaskRow{"--batch",    [](const Options& o) { return o.batch; },                false},
    TaskRow{"--sweep",    [](const Options& o) { return !o.sweep.empty(); },       true},
    TaskRow{"--find",     [](const Options& o) { return o.find; },                 true},
    TaskRow{"--loads",    [](const Options& o) { return o.loads.has_value(); },    true},
    TaskRow{"--pictures", [](const Options& o) { return o.pictures.has_value(); }, false},
    TaskRow{"--verify",   [](const Options& o) { return o.verify.has_value(); },   false},
};
// clang-format on

// One of them, and with it nothing of a result that it does not have.
void Check_task(const Options& options) {
    const TaskRow* task = nullptr;
    for (const TaskRow& row : task_rows) {
        if (!row.asked(options)) {
            continue;
        }
        if (task != nullptr) {
            throw UsageError{std::string{task->option} + ", " + std::string{row.option} +
                             ": expected one of them, got both"};
        }
        task = &row;
    }
    if (task == nullptr || options.batch) {
        return;
    }
    const bool projects = options.projects.size() > (task->of_project ? 1 : 0);
    if (projects || options.save || options.report || options.sheet || !options.with.empty() || options.fields) {
        throw UsageError{std::string{task->option} + ": expected " +
                         (task->of_project ? "one project or none" : "no project") +
                         ", and no --save, --report, --sheet, --with or --fields"};
    }
}

void Check_find(const Options& options) {
    if (!options.find) {
        if (options.with_connectors || !options.fix.empty()) {
            throw UsageError{std::string{options.with_connectors ? "--with-connectors" : "--fix"} +
                             ": expected --find beside it"};
        }
        return;
    }
    Refuse_searched_inputs(options);
}

void Check_csv(const Options& options) {
    if (options.csv && options.json) {
        throw UsageError{"--csv, --json: expected one of them, got both"};
    }
    if (options.csv && !options.find && !options.loads && options.sweep.empty()) {
        throw UsageError{"--csv: expected --find, --loads or --sweep beside it"};
    }
}

void Check_sweep(const Options& options) {
    constexpr std::size_t most_points = 100000;
    if (options.plot && options.sweep.empty()) {
        throw UsageError{"--plot: expected --sweep beside it"};
    }
    if (options.sweep.empty()) {
        return;
    }
    if (options.sweep.size() > 2 || (options.sweep.size() == 2 && options.sweep[0].name == options.sweep[1].name)) {
        throw UsageError{"--sweep: expected one input, or two for a grid"};
    }
    if (options.sweep.size() == 2 && options.sweep[0].Count() * options.sweep[1].Count() > most_points) {
        throw UsageError{"--sweep: expected a grid of at most 100000 points"};
    }
}

void Check_combination(const Options& options) {
    if (options.batch && !options.projects.empty()) {
        throw UsageError{"--batch starts every line from a new project: expected no project, got " +
                         Quoted(options.projects.front())};
    }
    Check_task(options);
    Check_sweep(options);
    Check_find(options);
    if (options.loads) {
        Refuse_loads_inputs(options);
    }
    Check_csv(options);
    const bool several = options.batch || options.projects.size() > 1;
    if (options.save && several) {
        throw UsageError{"--save: expected one project, or none"};
    }
    if (options.sheets && !options.batch) {
        throw UsageError{"--sheets: expected --batch beside it"};
    }
    if (options.sheet && several) {
        throw UsageError{"--sheet: expected one project, or none"};
    }
    if (options.report && several) {
        throw UsageError{"--report: expected one project, or none"};
    }
}

} // namespace

Options Parse_options(const std::vector<std::string>& arguments) {
    Options options;
    bool only_projects = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (only_projects || argument.size() < 2 || argument[0] != '-') {
            options.projects.push_back(argument);
        } else if (argument == "--") {
            only_projects = true;
        } else {
            Take_option(options, arguments, i);
        }
    }
    Check_combination(options);
    return options;
}

} // namespace tarnvik
