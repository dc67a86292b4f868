#include "check/Lists.h"

#include <algorithm>
#include <array>
#include <vector>

#include "calc/Connector.h"
#include "calc/Screen.h"
#include "check/MessageLog.h"
#include "check/Named_inputs.h"
#include "check/Table.h"
#include "check/Validation.h"
#include "spacing/Catalogue.h"

namespace tarnvik {

namespace {

std::string Text(float value) {
    return std::string{Shortest(value).View()};
}

std::string Text(std::string_view text) {
    return std::string{text};
}

Table Bolts(const ConnectionState&) {
    Table list{{{"bolt", "d", "fuk"}}, {false, true, true}};
    for (const BoltRow& row : bolt_table) {
        list.rows.push_back({Text(row.caption), Text(row.d), Text(row.fuk)});
    }
    return list;
}

// The bolts that the connector takes.
std::string Fitting_bolts(ConnectionValues& s) {
    std::string bolts;
    for (std::size_t i = 0; i < bolt_table.size(); ++i) {
        MessageLog box;
        s.Bolt_index = static_cast<std::int16_t>(i);
        Bulldog_check(s, ScreenWriter{nullptr}, box);
        if (!s.Bulldog_invalid) {
            bolts += bolts.empty() ? "" : " ";
            bolts += bolt_table[i].caption;
        }
    }
    return bolts;
}

Table Connectors(const ConnectionState& s) {
    Table list{{{"connector", "dc", "hc", "bolts"}}, {false, true, true, false}};
    ConnectionValues asked = s;
    for (std::size_t i = 0; i < connector_table.size(); ++i) {
        const ConnectorRow& row = connector_table[i];
        asked.Bulldog_index = static_cast<std::int16_t>(i);
        list.rows.push_back({Text(row.size), Text(row.dc), Text(row.hc), Fitting_bolts(asked)});
    }
    return list;
}

Table Materials(const ConnectionState& s) {
    Table list{{{"material", "type", "fc90k", "dens"}}, {false, false, true, true}};
    for (int i = 0; i <= std::min<int>(s.Mat_count, mat_rows - 1); ++i) {
        const MatRecord& row = s.Mat[static_cast<std::size_t>(i)];
        list.rows.push_back({row.Id, row.Type, Text(row.fc90k), Text(row.dens)});
    }
    return list;
}

Table Profiles(const ConnectionState& s) {
    Table list{{{"profile", "type", "b", "h"}}, {false, false, true, true}};
    for (int i = 0; i <= std::min<int>(s.Prof1_count, prof_rows - 1); ++i) {
        const ProfRecord& row = s.Prof[static_cast<std::size_t>(i)];
        list.rows.push_back({row.Id, row.Type, Text(row.b), Text(row.h)});
    }
    return list;
}

Table Joints(const ConnectionState&) {
    constexpr std::array<std::array<std::string_view, 3>, 3> variants{{
        {"single", "single", "1"},
        {"double", "single", "2"},
        {"single", "double", "2"},
    }};
    Table list{{{"joint", "member 1", "member 2", "shear planes", "splits"}}, {false, false, false, true, false}};
    for (char type = '1'; type <= '5'; ++type) {
        for (std::size_t i = 0; i < variants.size(); ++i) {
            list.rows.push_back({std::string{type} + "." + std::to_string(i + 1), Text(variants[i][0]),
                                 Text(variants[i][1]), Text(variants[i][2]), type == '1' ? "member 2" : "member 1"});
        }
    }
    return list;
}

Table Cases(const ConnectionState&) {
    Table list{{{"case", "type", "bolts", "layout"}}, {false, true, true, false}};
    for (const CaseRow& row : case_table) {
        list.rows.push_back({Text(row.Case_code), std::string{row.type}, std::to_string(row.n_bolt),
                             row.letter == ' ' ? "any" : std::string{row.letter}});
    }
    return list;
}

Table Inputs(const ConnectionState& s) {
    Table list{{{"input", "written as", "allowed", "meaning"}}, {false, false, false, false}};
    for (const NamedInput& input : Named_inputs()) {
        list.rows.push_back({Text(input.name), "--" + Text(input.name), Text(input.allowed), Text(input.meaning)});
    }
    for (const InputRow& input : Input_rows(s)) {
        list.rows.push_back({Text(input.name), "--set", input.allowed, Text(input.meaning)});
    }
    return list;
}

struct ListRow {
    std::string_view name;
    Table (*make)(const ConnectionState& s);
};
constexpr std::array list_rows{
    ListRow{"bolts", Bolts},       ListRow{"connectors", Connectors}, ListRow{"materials", Materials},
    ListRow{"profiles", Profiles}, ListRow{"joints", Joints},         ListRow{"cases", Cases},
    ListRow{"inputs", Inputs},
};

constexpr std::array<std::string_view, list_rows.size()> Names_of_rows() {
    std::array<std::string_view, list_rows.size()> names;
    for (std::size_t i = 0; i < names.size(); ++i) {
        names[i] = list_rows[i].name;
    }
    return names;
}
constexpr std::array<std::string_view, list_rows.size()> list_names = Names_of_rows();

} // namespace

std::span<const std::string_view> List_names() {
    return list_names;
}

std::string List_text(const ConnectionState& s, std::string_view list, bool json) {
    const auto* const row =
        std::find_if(list_rows.begin(), list_rows.end(), [list](const ListRow& one) { return one.name == list; });
    return json ? As_json(row->make(s)) : As_table(row->make(s));
}

} // namespace tarnvik
