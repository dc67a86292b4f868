#include "check/Validation.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <type_traits>
#include <variant>

#include "calc/StateFields.h"
#include "check/Nearest.h"

namespace tarnvik {

namespace {

using S = ConnectionState;

constexpr bool Between(int value, int least, int most) {
    return value >= least && value <= most;
}

template <class Table> constexpr int Last_row(const Table& table) {
    return static_cast<int>(table.size()) - 1;
}

// The free entry of a side, as the calculation reads it: a comma serves as the decimal mark.
std::optional<double> Side(const std::string& text) {
    std::string number{Trim(text)};
    std::replace(number.begin(), number.end(), ',', '.');
    double value = 0.0;
    const char* const end = number.data() + number.size();
    const auto [stop, error] = std::from_chars(number.data(), end, value);
    const bool whole =
        error == std::errc{} && (stop == end || Trim({stop, static_cast<std::size_t>(end - stop)}) == "mm");
    return whole ? std::optional{value} : std::nullopt;
}

// It shows with one decimal, and is that from the second pass on.
bool Is_side(const S& s, const std::string& text) {
    constexpr double least = 0.05;
    constexpr double most = 1e6;
    const std::optional<double> value = Side(text);
    return s.Standard || (value && *value >= least && *value < most);
}

// The height of the member that may split, where it is known.
std::optional<double> Splitting_height(const S& s) {
    const bool second = s.Con_type == 1;
    if (!s.Standard) {
        return Side(second ? s.Txt_h2 : s.Txt_h1);
    }
    const ProfRecord* row = Row_of(s.Prof, second ? s.Prof2_index : s.Prof1_index);
    return row != nullptr ? std::optional<double>{row->h} : std::nullopt;
}

bool Is_he(const S& s) {
    if (!s.Man_he_on) {
        return true;
    }
    const std::optional<double> height = Splitting_height(s);
    return s.man_he > 0.0F && (!height || s.man_he <= *height);
}

constexpr float least_factor = 0.1F;
constexpr float right_angle = 90.0F;

// clang-format off
struct Rule {
    std::string_view name;
    std::string_view allowed;
    bool (*holds)(const S& s); // null: every value
    int (*last)(const S& s);   // the last row of a table; null: no row
    std::string_view meaning;
};
constexpr std::array rules{
    Rule{"Lang",          "Eng or Nor",               [](const S& s) { return s.Lang == "Eng" || s.Lang == "Nor"; }, nullptr, "language of the texts"},
    Rule{"Prosjekt",      "a text",                   nullptr, nullptr, "name of the project"},
    Rule{"Id",            "a text",                   nullptr, nullptr, "name of the connection"},
    Rule{"Lastvar",       "1 to 5",                   [](const S& s) { return Between(s.Lastvar, 1, 5); }, nullptr, "load-duration class, 1 permanent to 5 instantaneous"},
    Rule{"Klima",         "1 to 3",                   [](const S& s) { return Between(s.Klima, 1, 3); }, nullptr, "service class"},
    Rule{"gm_T",          "a factor above 0.1",       [](const S& s) { return s.gm_T > least_factor; }, nullptr, "partial factor of solid timber"},
    Rule{"gm_L",          "a factor above 0.1",       [](const S& s) { return s.gm_L > least_factor; }, nullptr, "partial factor of glued laminated timber"},
    Rule{"gm_Ke",         "a factor above 0.1",       [](const S& s) { return s.gm_Ke > least_factor; }, nullptr, "partial factor of Kerto"},
    Rule{"gm_K",          "a factor above 0.1",       [](const S& s) { return s.gm_K > least_factor; }, nullptr, "partial factor of K-bjelke"},
    Rule{"Mat_index",     "a row of the materials",   [](const S& s) { return Between(s.Mat_index, 0, s.Mat_count); }, [](const S& s) { return static_cast<int>(s.Mat_count); }, "material"},
    Rule{"Standard",      "true or false",            nullptr, nullptr, "sections from the profile table, else typed"},
    Rule{"Prof1_index",   "a row of the profiles",    [](const S& s) { return !s.Standard || Between(s.Prof1_index, 0, s.Prof1_count); }, [](const S& s) { return static_cast<int>(s.Prof1_count); }, "section of member 1"},
    Rule{"Prof2_index",   "a row of the profiles",    [](const S& s) { return !s.Standard || Between(s.Prof2_index, 0, s.Prof2_count); }, [](const S& s) { return static_cast<int>(s.Prof2_count); }, "section of member 2"},
    Rule{"Txt_b1",        "a length above 0 mm",      [](const S& s) { return Is_side(s, s.Txt_b1); }, nullptr, "typed width of member 1"},
    Rule{"Txt_h1",        "a length above 0 mm",      [](const S& s) { return Is_side(s, s.Txt_h1); }, nullptr, "typed height of member 1"},
    Rule{"Txt_b2",        "a length above 0 mm",      [](const S& s) { return Is_side(s, s.Txt_b2); }, nullptr, "typed width of member 2"},
    Rule{"Txt_h2",        "a length above 0 mm",      [](const S& s) { return Is_side(s, s.Txt_h2); }, nullptr, "typed height of member 2"},
    Rule{"Con_type",      "1 to 5",                   [](const S& s) { return Between(s.Con_type, 1, 5); }, nullptr, "connection type"},
    Rule{"enk_1",         "true or false",            nullptr, nullptr, "member 1 is single"},
    Rule{"dob_1",         "true or false",            nullptr, nullptr, "member 1 is double"},
    Rule{"enk_2",         "true or false",            nullptr, nullptr, "member 2 is single"},
    Rule{"dob_2",         "true or false",            nullptr, nullptr, "member 2 is double"},
    Rule{"alp",           "0 to 90 degrees",          [](const S& s) { return s.alp >= 0.0F && s.alp <= right_angle; }, nullptr, "angle between the members"},
    Rule{"Kun_bolt",      "true or false",            nullptr, nullptr, "bolts only"},
    Rule{"Med_bulldog",   "true or false",            nullptr, nullptr, "bolts with tooth-plate connectors"},
    Rule{"Bolt_index",    "a row of the bolts",       [](const S& s) { return Between(s.Bolt_index, 0, Last_row(bolt_table)); }, [](const S&) { return Last_row(bolt_table); }, "bolt"},
    Rule{"Bulldog_index", "a row of the connectors",  [](const S& s) { return !s.Med_bulldog || Between(s.Bulldog_index, 0, Last_row(connector_table)); }, [](const S&) { return Last_row(connector_table); }, "connector"},
    Rule{"dc",            "a length above 0 mm",      [](const S& s) { return !s.Med_bulldog || s.dc > 0.0F; }, nullptr, "connector diameter of the distances"},
    Rule{"Ant_index",     "a row of 1, 2, 3, 4, 6",   [](const S& s) { return Between(s.Ant_index, 0, Last_row(bolt_numbers)); }, [](const S&) { return Last_row(bolt_numbers); }, "number of bolts"},
    Rule{"Bolt_ab",       "a or b",                   [](const S& s) { return s.Bolt_ab == "a" || s.Bolt_ab == "b"; }, nullptr, "arrangement of the bolts"},
    Rule{"Avstand_index", "a row of 5d to 20d",       [](const S& s) { return Between(s.Avstand_index, 0, 15); }, [](const S&) { return 15; }, "spacing of the bolts along the grain"},
    Rule{"P",             "a force in kN",            nullptr, nullptr, "design force, above 0 compression"},
    Rule{"Man_he_on",     "true or false",            nullptr, nullptr, "he of the splitting check is typed"},
    Rule{"man_he",        "above 0 mm and at most the height of the member that may split", Is_he, nullptr, "the typed he"},
};

// What holds between flags.
struct Pair {
    std::string_view names;
    bool ConnectionValues::*one;
    bool ConnectionValues::*other;
    bool exactly_one; // else at most one
};
constexpr std::array pairs{
    Pair{"enk_1, dob_1",          &ConnectionValues::enk_1,    &ConnectionValues::dob_1,       true},
    Pair{"enk_2, dob_2",          &ConnectionValues::enk_2,    &ConnectionValues::dob_2,       true},
    Pair{"dob_1, dob_2",          &ConnectionValues::dob_1,    &ConnectionValues::dob_2,       false},
    Pair{"Kun_bolt, Med_bulldog", &ConnectionValues::Kun_bolt, &ConnectionValues::Med_bulldog, true},
};
// clang-format on

std::string Allowed(const Rule& rule, const S& s) {
    std::string text;
    if (rule.last != nullptr) {
        text = "0 to " + std::to_string(rule.last(s)) + ", ";
    }
    text += rule.allowed;
    return text;
}

std::string Shown(const S& s, std::string_view name) {
    return std::visit(
        [&s](auto member) -> std::string {
            const auto& value = s.*member;
            using Value = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<Value, float>) {
                return std::string{Shortest(value).View()};
            } else if constexpr (std::is_arithmetic_v<Value>) {
                return std::to_string(value);
            } else {
                return Quoted(value);
            }
        },
        Find_state_field(name)->member);
}

} // namespace

std::vector<InputRow> Input_rows(const ConnectionState& s) {
    std::vector<InputRow> rows;
    for (const Rule& rule : rules) {
        rows.push_back({rule.name, Allowed(rule, s), rule.meaning});
    }
    return rows;
}

std::vector<std::string> Invalid_inputs(const ConnectionState& s) {
    std::vector<std::string> invalid;
    for (const Rule& rule : rules) {
        if (rule.holds != nullptr && !rule.holds(s)) {
            invalid.push_back(std::string{rule.name} + ": expected " + Allowed(rule, s) + ", got " +
                              Shown(s, rule.name));
        }
    }
    for (const Pair& pair : pairs) {
        const bool both = s.*pair.one && s.*pair.other;
        const bool neither = !(s.*pair.one || s.*pair.other);
        if (both || (neither && pair.exactly_one)) {
            invalid.push_back(std::string{pair.names} + ": expected " +
                              (pair.exactly_one ? "one of them true" : "at most one of them true") + ", got " +
                              (both ? "both" : "neither"));
        }
    }
    return invalid;
}

} // namespace tarnvik
