#include "check/Sweep.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>
#include <variant>

#include "calc/StateFields.h"
#include "check/JsonList.h"
#include "check/Named_inputs.h"
#include "check/Nearest.h"
#include "check/Options.h"
#include "check/Table.h"

namespace tarnvik {

namespace {

constexpr std::size_t most_points = 100000;

// Inputs that are numbers, whatever type holds them.
constexpr std::array<std::string_view, 6> named_numbers{"bolts",       "spacing", "tension",
                                                        "compression", "angle",   "service"};
constexpr std::array<std::string_view, 4> typed_numbers{"Txt_b1", "Txt_h1", "Txt_b2", "Txt_h2"};

bool Is_number(std::string_view name) {
    const auto among = [name](const auto& names) { return std::find(names.begin(), names.end(), name) != names.end(); };
    if (among(named_numbers) || among(typed_numbers)) {
        return true;
    }
    const StateField* field = Find_state_field(name);
    return field != nullptr && field->is_input &&
           (std::holds_alternative<float ConnectionState::*>(field->member) ||
            std::holds_alternative<std::int16_t ConnectionState::*>(field->member));
}

// The shortest text of a value without the noise of adding steps up.
std::string Rounded(double value) {
    std::array<char, 32> text{};
    constexpr int digits = 9;
    const auto result =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, digits);
    return {text.data(), result.ptr};
}

bool Read(std::string_view text, double& value) {
    std::string number{text};
    std::replace(number.begin(), number.end(), ',', '.');
    const char* const end = number.data() + number.size();
    const auto [stop, error] = std::from_chars(number.data(), end, value);
    return error == std::errc{} && stop == end && std::isfinite(value);
}

} // namespace

std::size_t SweepRange::Count() const {
    constexpr double slack = 1e-6; // of a step: 0.1 three times is not quite 0.3
    return static_cast<std::size_t>(std::floor((to - from) / step + slack)) + 1;
}

double SweepRange::Value(std::size_t i) const {
    return from + step * static_cast<double>(i);
}

std::string SweepRange::Text(std::size_t i) const {
    const double value = Value(i);
    return Rounded(std::fabs(value) < std::fabs(step) / 1e6 ? 0.0 : value);
}

SweepRange Parse_sweep(const std::string& text) {
    const std::size_t equals = text.find('=');
    const std::size_t first = text.find(':', equals == std::string::npos ? 0 : equals);
    const std::size_t second = first == std::string::npos ? first : text.find(':', first + 1);
    SweepRange range;
    if (equals == std::string::npos || second == std::string::npos ||
        !Read(std::string_view{text}.substr(equals + 1, first - equals - 1), range.from) ||
        !Read(std::string_view{text}.substr(first + 1, second - first - 1), range.to) ||
        !Read(std::string_view{text}.substr(second + 1), range.step)) {
        throw UsageError{"--sweep: expected NAME=FROM:TO:STEP, got " + Quoted(text)};
    }
    range.name = text.substr(0, equals);
    if (!Is_number(range.name)) {
        std::vector<std::string_view> names{named_numbers.begin(), named_numbers.end()};
        for (const StateField& field : State_fields()) {
            if (Is_number(field.name)) {
                names.push_back(field.name);
            }
        }
        throw UsageError{"--sweep: expected an input that is a number, got " + Quoted(range.name) +
                         Nearest_names(range.name, names)};
    }
    const double steps = (range.to - range.from) / range.step;
    if (!(steps >= 0.0 && steps < static_cast<double>(most_points))) {
        throw UsageError{"--sweep: expected a step that leads from FROM to TO in fewer than 100000 steps, got " +
                         Quoted(text)};
    }
    return range;
}

std::string Sweep_heading(const std::vector<SweepRange>& ranges) {
    TableRow row;
    for (const SweepRange& range : ranges) {
        row.push_back(range.name);
    }
    Append_check_headings(row);
    row.emplace_back("warnings");
    return Csv_line(row);
}

std::string Sweep_line(const SweepPoint& point) {
    TableRow row;
    for (const double value : point.values) {
        row.push_back(Rounded(value));
    }
    Append_check_cells(row, point.judgement);
    std::string warnings;
    for (const std::string& warning : point.warnings) {
        warnings += (warnings.empty() ? "" : "; ") + warning;
    }
    row.push_back(warnings);
    return Csv_line(row);
}

std::string Sweep_json(const std::vector<SweepRange>& ranges, const SweepPoint& point) {
    std::string json;
    {
        JsonList object{json, '{', '}'};
        for (std::size_t i = 0; i < ranges.size(); ++i) {
            object.Name(ranges[i].name);
            json += Rounded(point.values[i]);
        }
        if (!point.warnings.empty()) {
            object.Member("warnings", point.warnings);
        }
        object.Name("checks");
        Append_checks(json, point.judgement, true);
    }
    return json + "\n";
}

} // namespace tarnvik
