#include "check/Loads.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <memory>

#include "calc/RuntimeFault.h"
#include "calc/Text.h"
#include "check/Checks.h"
#include "check/JsonList.h"
#include "check/Named_inputs.h"
#include "check/Nearest.h"
#include "check/Options.h"
#include "check/Status.h"
#include "check/Table.h"
#include "data/Lines.h"
#include "platform/Path.h"

namespace tarnvik {

namespace {

// ---------------------------------------------------------------------------------------------------------------------
// The table

constexpr std::array<std::string_view, 3> columns{"name", "force", "load"};

[[noreturn]] void Refuse(const std::string& path, long line, const std::string& what) {
    throw UsageError{path + (line > 0 ? ", line " + std::to_string(line) : "") + ": " + what};
}

std::string Bytes(const std::string& path) {
    try {
        std::ifstream file = Open_text(Path_of(path), "Read_loads");
        return {std::istreambuf_iterator<char>{file}, {}};
    } catch (const RuntimeFault& fault) {
        Refuse(path, 0, "cannot be read: " + std::string{fault.description});
    }
}

// The places of the columns in a row.
std::array<std::size_t, columns.size()> Places(const std::string& path, const CsvRow& heading) {
    std::array<std::size_t, columns.size()> places{};
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const auto is_column = [&](const std::string& cell) { return Plain_name(cell) == columns[i]; };
        const auto found = std::find_if(heading.cells.begin(), heading.cells.end(), is_column);
        if (found == heading.cells.end() || std::any_of(found + 1, heading.cells.end(), is_column)) {
            std::string got;
            for (const std::string& cell : heading.cells) {
                got += (got.empty() ? "" : ", ") + cell;
            }
            Refuse(path, heading.line, "expected a heading with name, force and load, once each, got " + Quoted(got));
        }
        places[i] = static_cast<std::size_t>(found - heading.cells.begin());
    }
    for (std::size_t i = 0; i < heading.cells.size(); ++i) {
        const std::string& cell = heading.cells[i];
        if (std::find(places.begin(), places.end(), i) == places.end() && !cell.empty() && !cell.starts_with('#')) {
            Refuse(path, heading.line,
                   "expected name, force and load, got the column " + Quoted(cell) +
                       "; a column of your own begins with #");
        }
    }
    return places;
}

// The decimal sign is the one that is seen first: the other one may be meant to part thousands.
void Check_decimal(char& decimal, const std::string& force) {
    const std::size_t at = force.find_first_of(",.");
    if (at == std::string::npos) {
        return;
    }
    if (decimal == '\0') {
        decimal = force[at];
    }
    if (force.find(decimal == ',' ? '.' : ',') != std::string::npos) {
        throw UsageError{std::string{"force: expected a decimal "} + (decimal == ',' ? "comma" : "point") +
                         " as in the cells before, got " + Quoted(force)};
    }
}

// The force as an input by name takes it, with a sign before it; spreadsheets also write it as a minus sign of its own.
float Force(const std::string& cell) {
    constexpr std::string_view minus = "\u2212";
    std::string text = cell;
    if (text.starts_with(minus)) {
        text.replace(0, minus.size(), "-");
    }
    const bool tension = text.starts_with('-');
    if (tension || text.starts_with('+')) {
        text.erase(0, 1);
    }
    const auto s = std::make_unique<ConnectionState>();
    try {
        Set_named_inputs(*s, {{tension ? "tension" : "compression", text}});
    } catch (const UsageError&) {
        throw UsageError{"force: expected a force such as -12.5 or -12.5kN, above 0 in compression, got " +
                         Quoted(cell)};
    }
    return s->P;
}

std::int16_t Load_class(const std::string& cell) {
    const auto s = std::make_unique<ConnectionState>();
    Set_named_inputs(*s, {{"load", cell}});
    return s->Lastvar;
}

LoadCase Load_of(const CsvRow& row, const CsvRow& heading, const std::array<std::size_t, columns.size()>& places) {
    if (!row.error.empty()) {
        throw UsageError{row.error};
    }
    for (std::size_t i = 0; i < heading.cells.size(); ++i) {
        if (heading.cells[i].empty() && !row.cells[i].empty()) {
            throw UsageError{"column " + std::to_string(i + 1) + " has no name: expected nothing in it, got " +
                             Quoted(row.cells[i])};
        }
    }
    const std::string& name = row.cells[places[0]];
    if (name.empty()) {
        throw UsageError{"name: expected a name, got nothing"};
    }
    return {name, Force(row.cells[places[1]]), Load_class(row.cells[places[2]])};
}

// ---------------------------------------------------------------------------------------------------------------------
// What is told

std::string_view Class_name(std::int16_t Lastvar) {
    return load_names[static_cast<std::size_t>(Lastvar - 1)];
}

std::string Shown(float value, std::string_view picture) {
    return std::string{Trim(Format(value, picture))};
}

std::string Number(float value) {
    return std::string{Shortest(value).View()};
}

std::string Ratio(const Judgement& judgement, Check check) {
    const CheckResult& result = judgement.verdict[check];
    const bool known = judgement.not_current.empty() && result.checked;
    return known ? Shown(result.value, "0.00") : "-";
}

// What of the results a case governs: bolts, splitting, distances.
struct Governed {
    std::string_view name;
    std::optional<GoverningLoad> load;
    Check check;
};

std::array<Governed, 3> What_governs(const LoadsResult& result) {
    const Check distances = result.Governing_distances().value_or(Check::bolts_fit_1);
    const auto of = [&](std::string_view name, Check check) {
        return Governed{name, result.governing[static_cast<std::size_t>(check)], check};
    };
    return {of("bolts", Check::utilisation), of("splitting", Check::splitting), of("distances", distances)};
}

// clang-format off
// Distances as the summary names them. Row = Check.
constexpr std::array<std::string_view, check_count> distance_names{
    "", "", "bolts in member 1", "bolts in member 2", "connectors in member 1", "connectors in member 2",
};
// clang-format on

// The names of the cases that could not be calculated.
std::string Not_calculated(const LoadsResult& result) {
    std::string names;
    for (const CheckedLoad& one : result.loads) {
        if (!one.calculated) {
            names += (names.empty() ? "" : ", ") + one.load.name;
        }
    }
    return names;
}

// The verdict over all cases, in words: each check by its largest value.
std::string Verdict_over_all(const LoadsResult& result) {
    if (!result.Holds()) {
        const std::string names = Not_calculated(result);
        return names.empty() ? "Splitting not checked" : "Not calculated: " + names;
    }
    Verdict verdict;
    for (std::size_t i = 0; i < check_count; ++i) {
        if (result.governing[i]) {
            verdict.checks[i] = result.governing[i]->check;
        }
    }
    return Verdict_text(verdict, true);
}

std::string Governing_line(const LoadsResult& result, const Governed& governed) {
    if (!governed.load) {
        return "not checked";
    }
    const CheckResult& check = governed.load->check;
    const CheckedLoad& load = result.loads[governed.load->load];
    const bool length = governed.name == "distances";
    const std::string_view picture = length ? "0.0" : "0.00";
    std::string value = Shown(check.value, picture);
    const std::string limit = Shown(check.limit, picture);
    if (check.Fails() && value == limit) {
        value = Number(check.value); // rounding would hide it
    }
    std::string text = load.load.name + ": " + value + (check.Fails() ? " > " : " <= ") + limit;
    if (length) {
        text += " mm, " + std::string{distance_names[static_cast<std::size_t>(governed.check)]};
    } else if (governed.check == Check::utilisation) {
        const GoverningMode& mode = load.judgement.governing;
        text += std::string{", mode "} + mode.mode + " (" + std::string{mode.equation} + ")";
    }
    return text;
}

TableRow Line(const CheckedLoad& one) {
    return {one.load.name,
            Number(one.load.P),
            std::string{Class_name(one.load.Lastvar)},
            Shown(one.kmod, "0.00"),
            Ratio(one.judgement, Check::utilisation),
            Ratio(one.judgement, Check::splitting),
            Judgement_text(one.judgement, true)};
}

void Append_load(std::string& json, const CheckedLoad& one) {
    JsonList object{json, '{', '}'};
    object.Member("name", one.load.name);
    object.Member("force", one.load.P);
    object.Member("load", Class_name(one.load.Lastvar));
    object.Member("kmod", one.kmod);
    object.Name("checks");
    Append_checks(json, one.judgement, true);
}

void Append_governing(std::string& json, const LoadsResult& result, const Governed& governed) {
    if (!governed.load) {
        json += "null";
        return;
    }
    const CheckedLoad& load = result.loads[governed.load->load];
    JsonList object{json, '{', '}'};
    object.Member("name", load.load.name);
    object.Member("check", Check_name(static_cast<std::size_t>(governed.check)));
    object.Member("value", governed.load->check.value);
    object.Member("limit", governed.load->check.limit);
    object.Member("holds", !governed.load->check.Fails());
    if (governed.check == Check::utilisation) {
        object.Member("mode", std::string_view{&load.judgement.governing.mode, 1});
        object.Member("equation", load.judgement.governing.equation);
    }
}

} // namespace

LoadTable Read_loads(const std::string& path) {
    return Parse_loads(Bytes(path), path);
}

LoadTable Parse_loads(std::string_view text, const std::string& path) {
    CsvReader reader;
    std::vector<CsvRow> rows = reader.Read(text);
    for (CsvRow& row : reader.Finish()) {
        rows.push_back(std::move(row));
    }
    const CsvRow& heading = reader.Heading();
    if (!heading.error.empty()) {
        Refuse(path, heading.line, heading.error);
    }
    const auto places = Places(path, heading);
    LoadTable table{{}, reader.Style(), false};
    char decimal = '\0'; // none seen yet
    for (const CsvRow& row : rows) {
        try {
            table.loads.push_back(Load_of(row, heading, places));
            Check_decimal(decimal, row.cells[places[1]]);
        } catch (const UsageError& error) {
            Refuse(path, row.line, error.text);
        }
        const std::string& name = table.loads.back().name;
        if (std::any_of(table.loads.begin(), table.loads.end() - 1,
                        [&](const LoadCase& load) { return load.name == name; })) {
            Refuse(path, row.line, "name: expected each name once, got " + Quoted(name) + " again");
        }
    }
    if (table.loads.empty()) {
        Refuse(path, 0, "expected a load case below the heading");
    }
    table.decimal_comma = decimal == ',' || (decimal == '\0' && table.style.separator == ';');
    return table;
}

void Refuse_loads_inputs(const Options& options) {
    constexpr std::array<std::string_view, 3> named{"tension", "compression", "load"};
    constexpr std::array<std::string_view, 2> plain{"P", "Lastvar"};
    const auto refuse = [](const std::string& option) {
        throw UsageError{"--loads has force and load-duration class of every case: expected no " + option +
                         " beside it"};
    };
    for (const auto& [name, value] : options.named) {
        if (std::find(named.begin(), named.end(), name) != named.end()) {
            refuse("--" + name);
        }
    }
    for (const auto& [name, value] : options.set) {
        if (std::find(plain.begin(), plain.end(), name) != plain.end()) {
            refuse("--set " + name);
        }
    }
}

std::string Loads_summary(const LoadsResult& result) {
    Table table{{{"case", "force, kN", "class", "kmod", "utilisation", "splitting", "verdict"}},
                {false, true, false, true, true, true, false}};
    for (const CheckedLoad& one : result.loads) {
        table.rows.push_back(Line(one));
    }
    Table governing{{}, {false, false}};
    for (const Governed& governed : What_governs(result)) {
        governing.rows.push_back({std::string{governed.name}, Governing_line(result, governed)});
    }
    governing.rows.push_back({"verdict", Verdict_over_all(result)});
    return As_table(table) + "\nGoverning\n" + As_table(governing);
}

std::string Loads_csv(const LoadsResult& result, const LoadTable& table) {
    TableRow heading{"name", "force", "load", "kmod"};
    Append_check_headings(heading);
    heading.emplace_back("governs");
    std::string csv = (table.style.bom ? "\xEF\xBB\xBF" : "") + Csv_line(heading, table.style);
    const auto governing = What_governs(result);
    for (std::size_t i = 0; i < result.loads.size(); ++i) {
        const CheckedLoad& one = result.loads[i];
        TableRow row{Number(one.load.P), std::string{Class_name(one.load.Lastvar)}, Number(one.kmod)};
        Append_check_cells(row, one.judgement);
        const std::string text = row.back();
        row.pop_back();
        if (table.decimal_comma) {
            for (std::string& cell : row) {
                std::replace(cell.begin(), cell.end(), '.', ',');
            }
        }
        row.insert(row.begin(), one.load.name);
        row.push_back(text);
        std::string governs;
        for (const Governed& governed : governing) {
            if (governed.load && governed.load->load == i) {
                governs += (governs.empty() ? "" : " ") + std::string{governed.name};
            }
        }
        row.push_back(governs);
        csv += Csv_line(row, table.style);
    }
    return csv;
}

std::string Loads_json(const LoadsResult& result, const std::vector<std::string>& warnings) {
    std::string json;
    {
        JsonList object{json, '{', '}'};
        const std::optional<bool> holds = result.Holds();
        if (holds) {
            object.Member("holds", *holds);
        } else {
            object.Null("holds");
        }
        object.Member("text", Verdict_over_all(result));
        if (!warnings.empty()) {
            object.Member("warnings", warnings);
        }
        object.Name("governing");
        {
            JsonList list{json, '{', '}'};
            for (const Governed& governed : What_governs(result)) {
                list.Name(governed.name);
                Append_governing(json, result, governed);
            }
        }
        object.Name("cases");
        JsonList cases{json, '[', ']'};
        for (const CheckedLoad& one : result.loads) {
            cases.Next();
            Append_load(json, one);
        }
    }
    return json + "\n";
}

int Loads_status(const LoadsResult& result, bool strict) {
    int status = exit_holds;
    for (const CheckedLoad& one : result.loads) {
        const Verdict& verdict = one.judgement.verdict;
        const bool fails = verdict[Check::utilisation].Fails() || verdict[Check::splitting].Fails();
        const int plain = !one.calculated ? exit_stopped : fails ? exit_fails : exit_holds;
        status = Worse(status, strict ? Strict_status(plain, one.judgement) : plain);
    }
    return status;
}

} // namespace tarnvik
