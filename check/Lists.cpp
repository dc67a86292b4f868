#include "check/Lists.h"

#include <algorithm>
#include <array>
#include <vector>

#include "calc/Connector.h"
#include "calc/Screen.h"
#include "check/JsonList.h"
#include "check/MessageLog.h"
#include "check/Named_inputs.h"
#include "check/Validation.h"
#include "spacing/Catalogue.h"

namespace tarnvik {

namespace {

using Row = std::vector<std::string>;

// The first row is the heading. A number stays one in the JSON.
struct List {
    std::vector<Row> rows;
    std::vector<bool> numbers; // by column
};

std::string Text(float value) {
    return std::string{Shortest(value).View()};
}

std::string Text(std::string_view text) {
    return std::string{text};
}

List Bolts(const ConnectionState&) {
    List list{{{"bolt", "d", "fuk"}}, {false, true, true}};
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

List Connectors(const ConnectionState& s) {
    List list{{{"connector", "dc", "hc", "bolts"}}, {false, true, true, false}};
    ConnectionValues asked = s;
    for (std::size_t i = 0; i < connector_table.size(); ++i) {
        const ConnectorRow& row = connector_table[i];
        asked.Bulldog_index = static_cast<std::int16_t>(i);
        list.rows.push_back({Text(row.size), Text(row.dc), Text(row.hc), Fitting_bolts(asked)});
    }
    return list;
}

List Materials(const ConnectionState& s) {
    List list{{{"material", "type", "fc90k", "dens"}}, {false, false, true, true}};
    for (int i = 0; i <= std::min<int>(s.Mat_count, mat_rows - 1); ++i) {
        const MatRecord& row = s.Mat[static_cast<std::size_t>(i)];
        list.rows.push_back({row.Id, row.Type, Text(row.fc90k), Text(row.dens)});
    }
    return list;
}

List Profiles(const ConnectionState& s) {
    List list{{{"profile", "type", "b", "h"}}, {false, false, true, true}};
    for (int i = 0; i <= std::min<int>(s.Prof1_count, prof_rows - 1); ++i) {
        const ProfRecord& row = s.Prof[static_cast<std::size_t>(i)];
        list.rows.push_back({row.Id, row.Type, Text(row.b), Text(row.h)});
    }
    return list;
}

List Joints(const ConnectionState&) {
    constexpr std::array<std::array<std::string_view, 3>, 3> variants{{
        {"single", "single", "1"},
        {"double", "single", "2"},
        {"single", "double", "2"},
    }};
    List list{{{"joint", "member 1", "member 2", "shear planes", "splits"}}, {false, false, false, true, false}};
    for (char type = '1'; type <= '5'; ++type) {
        for (std::size_t i = 0; i < variants.size(); ++i) {
            list.rows.push_back({std::string{type} + "." + std::to_string(i + 1), Text(variants[i][0]),
                                 Text(variants[i][1]), Text(variants[i][2]), type == '1' ? "member 2" : "member 1"});
        }
    }
    return list;
}

List Cases(const ConnectionState&) {
    List list{{{"case", "type", "bolts", "layout"}}, {false, true, true, false}};
    for (const CaseRow& row : case_table) {
        list.rows.push_back({Text(row.Case_code), std::string{row.type}, std::to_string(row.n_bolt),
                             row.letter == ' ' ? "any" : std::string{row.letter}});
    }
    return list;
}

List Inputs(const ConnectionState& s) {
    List list{{{"input", "written as", "allowed", "meaning"}}, {false, false, false, false}};
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
    List (*make)(const ConnectionState& s);
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

std::string As_table(const List& list) {
    std::vector<std::size_t> widths(list.numbers.size());
    for (const Row& row : list.rows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], Character_count(row[i]));
        }
    }
    std::string text;
    for (const Row& row : list.rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::string fill(widths[i] - Character_count(row[i]), ' ');
            line += list.numbers[i] ? fill + row[i] : row[i] + fill;
            line += "  ";
        }
        text += Right_trim(line);
        text += "\n";
    }
    return text;
}

std::string As_json(const List& list) {
    std::string json;
    {
        JsonList rows{json, '[', ']'};
        for (std::size_t i = 1; i < list.rows.size(); ++i) {
            rows.Next();
            JsonList object{json, '{', '}'};
            for (std::size_t k = 0; k < list.numbers.size(); ++k) {
                object.Name(list.rows[0][k]);
                if (list.numbers[k]) {
                    json += list.rows[i][k];
                } else {
                    Append_json(json, list.rows[i][k]);
                }
            }
        }
    }
    return json + "\n";
}

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
