#include "check/Find.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>

#include "calc/Text.h"
#include "check/Checks.h"
#include "check/JsonList.h"
#include "check/Nearest.h"
#include "check/Options.h"
#include "check/Status.h"
#include "check/Table.h"

namespace tarnvik {

namespace {

constexpr int least_spacing = 5; // diameters, in row 0

// clang-format off
constexpr std::array<std::string_view, 5> searched_names{"bolt", "bolts", "connector", "layout", "spacing"};

// The inputs of the state that they stand for.
constexpr std::array<std::string_view, 8> searched_fields{
    "Bolt_index", "Ant_index", "Kun_bolt", "Med_bulldog", "Bulldog_index", "dc", "Bolt_ab", "Avstand_index",
};

// What a choice fails in. Row = Check.
constexpr std::array<std::string_view, check_count> failures{
    "utilisation above 1.0",
    "splitting above 1.0",
    "distances of bolts do not fit into member 1",
    "distances of bolts do not fit into member 2",
    "distances of connectors do not fit into member 1",
    "distances of connectors do not fit into member 2",
};
// clang-format on

template <class Names> bool Is_among(const Names& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

std::string Bolt(std::int16_t Bolt_index) {
    return std::string{bolt_table[static_cast<std::size_t>(Bolt_index)].caption};
}

std::vector<std::string> Other_bolts(const FoundFasteners& found) {
    std::vector<std::string> names;
    for (const std::int16_t row : found.other_bolts) {
        names.push_back(Bolt(row));
    }
    return names;
}

// A text for each with a word between them.
std::string Joined(std::string text, const std::vector<std::string>& further, std::string_view between) {
    for (const std::string& one : further) {
        text += text.empty() ? std::string_view{} : between;
        text += one;
    }
    return text;
}

int Number(const Fasteners& fasteners) {
    return bolt_numbers[static_cast<std::size_t>(fasteners.Ant_index)];
}

std::string Connector(const Fasteners& fasteners) {
    return std::string{fasteners.Bulldog_index == no_connector
                           ? "none"
                           : connector_table[static_cast<std::size_t>(fasteners.Bulldog_index)].size};
}

std::string Spacing(std::int16_t row) {
    return std::to_string(row + least_spacing) + "d";
}

std::string_view Governs(const FoundFasteners& found) {
    return Check_name(static_cast<std::size_t>(found.Governs()));
}

// The distances across a member with its height, those of the fasteners that need more of it.
std::string Fit(const Verdict& verdict, Check bolts, Check connectors) {
    const bool of_connectors = verdict[connectors].applies && verdict[connectors].value > verdict[bolts].value;
    const CheckResult& check = verdict[of_connectors ? connectors : bolts];
    return std::string{Trim(Format(check.value, "0.0"))} + " of " + std::string{Trim(Format(check.limit, "0.0"))};
}

TableRow Line(const FoundFasteners& found) {
    const Fasteners& f = found.fasteners;
    const Verdict& verdict = found.judgement.verdict;
    const GoverningMode& mode = found.judgement.governing;
    std::string spacing = Spacing(f.Avstand_index);
    if (found.last_spacing != f.Avstand_index) {
        spacing += " to " + Spacing(found.last_spacing);
    }
    std::string governs{Governs(found)};
    if (found.Governs() == Check::utilisation) {
        governs += std::string{", mode "} + mode.mode + " (" + std::string{mode.equation} + ")";
    }
    return {std::to_string(Number(f)),
            Joined(Bolt(f.Bolt_index), Other_bolts(found), " or "),
            Connector(f),
            found.both_layouts ? "a or b" : std::string(1, f.Bolt_ab),
            spacing,
            std::string{Trim(Format(verdict[Check::utilisation].value, "0.00"))},
            std::string{Trim(Format(verdict[Check::splitting].value, "0.00"))},
            Fit(verdict, Check::bolts_fit_1, Check::connectors_fit_1),
            Fit(verdict, Check::bolts_fit_2, Check::connectors_fit_2),
            governs};
}

struct Reason {
    std::string text;
    std::size_t choices;
};

std::vector<Reason> Reasons(const SearchResult& result) {
    std::vector<Reason> reasons;
    for (std::size_t i = 0; i < check_count; ++i) {
        reasons.push_back({std::string{failures[i]}, result.failing[i]});
    }
    reasons.push_back({"splitting not checked, he lies outside the member", result.not_checked});
    for (const SearchResult::Stopped& stopped : result.stopped) {
        reasons.push_back({"not calculated: " + std::string{stopped.reason}, stopped.choices});
    }
    std::erase_if(reasons, [](const Reason& reason) { return reason.choices == 0; });
    return reasons;
}

void Append_found(std::string& json, const FoundFasteners& found) {
    const Fasteners& f = found.fasteners;
    JsonList object{json, '{', '}'};
    object.Member("bolt", Bolt(f.Bolt_index));
    object.Member("bolts", Number(f));
    object.Member("connector", Connector(f));
    object.Member("layout", std::string_view{&f.Bolt_ab, 1});
    object.Member("spacing", Spacing(f.Avstand_index));
    object.Member("other_bolts", Other_bolts(found));
    object.Member("any_layout", found.both_layouts);
    object.Member("last_spacing", Spacing(found.last_spacing));
    object.Member("governs", Governs(found));
    object.Member("Rd_bolt", found.Rd_bolt);
    object.Member("Rd_for", found.Rd_for);
    object.Name("checks");
    Append_checks(json, found.judgement, true);
}

} // namespace

NamedValues Parse_fixed(const std::string& text) {
    NamedValues fixed;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find(',', begin), text.size());
        const std::string part = text.substr(begin, end - begin);
        const std::size_t equals = part.find('=');
        if (equals == std::string::npos) {
            throw UsageError{"--fix: expected NAME=VALUE,..., got " + Quoted(text)};
        }
        const std::string name = part.substr(0, equals);
        if (!Is_among(searched_names, name)) {
            throw UsageError{"--fix: expected bolt, bolts, connector, layout or spacing, got " + Quoted(name) +
                             Nearest_names(name, {searched_names.begin(), searched_names.end()})};
        }
        fixed.emplace_back(name, part.substr(equals + 1));
        begin = end + 1;
    }
    return fixed;
}

SearchLimits Search_limits(const NamedValues& fixed, bool with_connectors) {
    const auto s = std::make_unique<ConnectionState>();
    try {
        Set_named_inputs(*s, fixed);
    } catch (const UsageError& error) {
        throw UsageError{"--fix: " + error.text};
    }
    SearchLimits limits;
    limits.with_connectors = with_connectors;
    for (const auto& [name, value] : fixed) {
        if (name == "bolt") {
            limits.Bolt_index = s->Bolt_index;
        } else if (name == "bolts") {
            limits.Ant_index = s->Ant_index;
        } else if (name == "connector") {
            limits.Bulldog_index = s->Med_bulldog ? s->Bulldog_index : no_connector;
        } else if (name == "layout") {
            limits.Bolt_ab = s->Bolt_ab.View().front();
        } else {
            limits.Avstand_index = s->Avstand_index;
        }
    }
    return limits;
}

void Refuse_searched_inputs(const Options& options) {
    for (const auto& [name, value] : options.named) {
        if (Is_among(searched_names, name)) {
            throw UsageError{"--find looks for " + name + ": expected --fix " + name + "=" + Cut(value) + ", got --" +
                             name};
        }
    }
    for (const auto& [name, value] : options.set) {
        if (Is_among(searched_fields, name)) {
            throw UsageError{"--find looks for " + name + ": expected --fix with an input by name, got --set " + name};
        }
    }
}

std::string Found_table(const SearchResult& result) {
    if (result.found.empty()) {
        return Nothing_found_text(result);
    }
    Table table{{{"bolts", "bolt", "connector", "layout", "spacing", "utilisation", "splitting", "member 1, mm",
                  "member 2, mm", "governs"}},
                {true, false, false, false, false, true, true, true, true, false}};
    for (const FoundFasteners& found : result.found) {
        table.rows.push_back(Line(found));
    }
    return As_table(table) + "\n" + std::to_string(result.holding) + " of " + std::to_string(result.choices) +
           " choices hold and fit; those that make no difference are listed once\n";
}

std::string Found_csv(const SearchResult& result) {
    TableRow heading{"bolt",       "bolts",        "connector", "layout",  "spacing", "other_bolts",
                     "any_layout", "last_spacing", "governs",   "Rd_bolt", "Rd_for"};
    Append_check_headings(heading);
    std::string csv = Csv_line(heading);
    for (const FoundFasteners& found : result.found) {
        const Fasteners& f = found.fasteners;
        TableRow row{Bolt(f.Bolt_index),
                     std::to_string(Number(f)),
                     Connector(f),
                     std::string(1, f.Bolt_ab),
                     Spacing(f.Avstand_index),
                     Joined({}, Other_bolts(found), " "),
                     found.both_layouts ? "true" : "false",
                     Spacing(found.last_spacing),
                     std::string{Governs(found)},
                     std::string{Shortest(found.Rd_bolt).View()},
                     std::string{Shortest(found.Rd_for).View()}};
        Append_check_cells(row, found.judgement);
        csv += Csv_line(row);
    }
    return csv;
}

std::string Found_json(const SearchResult& result, const std::vector<std::string>& warnings) {
    std::string json;
    {
        JsonList object{json, '{', '}'};
        object.Member("choices", static_cast<std::uint32_t>(result.choices));
        object.Member("holding", static_cast<std::uint32_t>(result.holding));
        if (!warnings.empty()) {
            object.Member("warnings", warnings);
        }
        object.Name("left_out");
        {
            JsonList reasons{json, '[', ']'};
            for (const Reason& reason : Reasons(result)) {
                reasons.Next();
                JsonList one{json, '{', '}'};
                one.Member("reason", reason.text);
                one.Member("choices", static_cast<std::uint32_t>(reason.choices));
            }
        }
        object.Name("found");
        JsonList list{json, '[', ']'};
        for (const FoundFasteners& found : result.found) {
            list.Next();
            Append_found(json, found);
        }
    }
    return json + "\n";
}

std::string Nothing_found_text(const SearchResult& result) {
    std::string text = "None of " + std::to_string(result.choices) + " choices holds and fits\n";
    for (const Reason& reason : Reasons(result)) {
        text += "  " + std::to_string(reason.choices) + ": " + reason.text + "\n";
    }
    return text;
}

int Search_status(const SearchResult& result) {
    if (!result.found.empty()) {
        return exit_holds;
    }
    return result.Stopped_choices() == result.choices ? exit_stopped : exit_fails;
}

} // namespace tarnvik
