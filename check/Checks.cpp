#include "check/Checks.h"

#include <array>
#include <cstddef>
#include <string_view>

#include "calc/Text.h"
#include "check/JsonList.h"
#include "check/Status.h"

namespace tarnvik {

namespace {

// clang-format off
// The checks by their names in the JSON and the summary. Row = Check.
struct CheckRow {
    std::string_view name;
    bool length; // mm; otherwise a ratio
};
constexpr std::array<CheckRow, check_count> check_rows{{
    {"bolts",            false},
    {"splitting",        false},
    {"fits_a",           true},
    {"fits_b",           true},
    {"connectors_fit_a", true},
    {"connectors_fit_b", true},
}};
// clang-format on

bool Is_splitting(std::size_t i) {
    return i == static_cast<std::size_t>(Check::splitting);
}

void Append_check(std::string& json, const Judgement& judgement, std::size_t i) {
    const CheckResult& check = judgement.verdict.checks[i];
    JsonList object{json, '{', '}'};
    if (check.checked) {
        object.Member("value", check.value);
    } else {
        object.Null("value");
    }
    object.Member("limit", check.limit);
    if (check.checked) {
        object.Member("holds", !check.Fails());
    } else {
        object.Null("holds");
    }
    object.Member("clause", Check_clause(judgement.verdict, static_cast<Check>(i), true));
    if (Is_splitting(i)) {
        object.Member("he_typed", judgement.he_typed);
        object.Member("current", check.checked);
    }
}

void Append_holds(JsonList& object, std::optional<bool> holds) {
    if (holds) {
        object.Member("holds", *holds);
    } else {
        object.Null("holds");
    }
}

// A value that fails is shown in full where rounding would hide it.
std::string Compared(const CheckResult& check, std::string_view picture) {
    const std::string limit{Trim(Format(check.limit, picture))};
    std::string value{Trim(Format(check.value, picture))};
    if (check.Fails() && value == limit) {
        value = Shortest(check.value).View();
    }
    return value + (check.Fails() ? " > " : " <= ") + limit;
}

void Add_line(std::string& text, std::string_view name, std::string_view value, std::string_view clause = {}) {
    const std::size_t begin = text.size();
    text += "  ";
    text += name;
    text.append(begin + 20 > text.size() ? begin + 20 - text.size() : 1, ' ');
    text += value;
    if (!clause.empty()) {
        text.append(begin + 44 > text.size() ? begin + 44 - text.size() : 1, ' ');
        text += clause;
    }
    text += "\n";
}

} // namespace

std::string_view Check_name(std::size_t i) {
    return check_rows[i].name;
}

std::string Judgement_text(const Judgement& judgement, bool english) {
    return judgement.not_current.empty() ? Verdict_text(judgement.verdict, english) : judgement.not_current;
}

void Append_checks(std::string& json, const Judgement& judgement, bool english) {
    JsonList object{json, '{', '}'};
    Append_holds(object, judgement.Holds());
    object.Member("text", Judgement_text(judgement, english));
    if (!judgement.not_current.empty()) {
        return;
    }
    for (std::size_t i = 0; i < check_count; ++i) {
        if (judgement.verdict.checks[i].applies) {
            object.Name(check_rows[i].name);
            Append_check(json, judgement, i);
        }
    }
    object.Name("governing");
    JsonList mode{json, '{', '}'};
    mode.Member("mode", std::string_view{&judgement.governing.mode, 1});
    mode.Member("equation", judgement.governing.equation);
    mode.Member("value", judgement.governing.value);
}

void Append_check_headings(TableRow& row) {
    for (std::size_t i = 0; i < check_count; ++i) {
        row.emplace_back(i == static_cast<std::size_t>(Check::utilisation) ? "utilisation" : check_rows[i].name);
        if (check_rows[i].length) {
            row.push_back(row.back() + "_limit");
        }
    }
    row.insert(row.end(), {"governing", "holds", "text"});
}

void Append_check_cells(TableRow& row, const Judgement& judgement) {
    const bool current = judgement.not_current.empty();
    for (std::size_t i = 0; i < check_count; ++i) {
        const CheckResult& check = judgement.verdict.checks[i];
        const bool known = current && check.applies && check.checked;
        row.emplace_back(known ? Shortest(check.value).View() : std::string_view{});
        if (check_rows[i].length) {
            row.emplace_back(known ? Shortest(check.limit).View() : std::string_view{});
        }
    }
    const std::optional<bool> holds = judgement.Holds();
    row.push_back(current ? std::string(1, judgement.governing.mode) : std::string{});
    row.emplace_back(holds ? *holds ? "true" : "false" : "");
    row.push_back(Judgement_text(judgement, true));
}

std::string Checks_summary(const Judgement& judgement) {
    if (!judgement.not_current.empty()) {
        return {};
    }
    std::string text = "\nChecks\n";
    for (std::size_t i = 0; i < check_count; ++i) {
        const CheckResult& check = judgement.verdict.checks[i];
        if (!check.applies) {
            continue;
        }
        std::string value = check.checked ? Compared(check, check_rows[i].length ? "0.0" : "0.00") : "not checked";
        if (check.checked && check_rows[i].length) {
            value += " mm";
        }
        const bool typed = Is_splitting(i) && judgement.he_typed;
        Add_line(text, check_rows[i].name, value,
                 std::string{Check_clause(judgement.verdict, static_cast<Check>(i), true)} +
                     (typed ? ", he given by hand" : ""));
    }
    const GoverningMode& mode = judgement.governing;
    Add_line(text, "governing mode", std::string{mode.mode} + ", (" + std::string{mode.equation} + ")",
             std::string{Trim(Format(mode.value / 1000.0F, "0.00"))} + " kN");
    Add_line(text, "verdict", Verdict_text(judgement.verdict, true));
    return text;
}

int Strict_status(int plain, const Judgement& judgement) {
    const bool fails = plain == exit_holds && judgement.Holds() != std::optional{true};
    return fails ? exit_fails : plain;
}

} // namespace tarnvik
