#include "check/Batch_table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <type_traits>
#include <variant>

#include "calc/StateFields.h"
#include "check/Inputs.h"
#include "check/Named_inputs.h"
#include "check/Nearest.h"

namespace tarnvik {

namespace {

// Numbers with decimals that the state keeps as texts, and those that go by name.
constexpr std::array<std::string_view, 4> typed_numbers{"Txt_b1", "Txt_h1", "Txt_b2", "Txt_h2"};
constexpr std::array<std::string_view, 3> named_numbers{"tension", "compression", "angle"};

template <class Names> bool Among(const Names& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

// A flag as spreadsheets show it, also in Norwegian.
std::string Flag(const std::string& text) {
    const std::string plain = Plain_name(text);
    if (plain == "true" || plain == "sann") {
        return "true";
    }
    return plain == "false" || plain == "usann" ? "false" : text;
}

std::string With_decimal(std::string_view number, char sign) {
    std::string text{number};
    std::replace(text.begin(), text.end(), '.', sign);
    return text;
}

std::string Joined(const std::vector<std::string>& texts) {
    std::string joined;
    for (const std::string& text : texts) {
        joined += (joined.empty() ? "" : "; ") + text;
    }
    return joined;
}

} // namespace

bool Is_table(std::string_view lines) {
    CsvReader reader;
    [[maybe_unused]] const std::vector<CsvRow> rows = reader.Read(lines);
    const std::vector<std::string>& names = reader.Heading().cells;
    return std::any_of(names.begin(), names.end(), [](const std::string& name) {
        const StateField* const field = Find_state_field(name);
        return Is_named_input(name) || (field != nullptr && field->is_input);
    });
}

BatchTable::BatchTable(const CsvRow& heading, const CsvStyle& style, const std::vector<CsvRow>& rows,
                       const Options& options)
    : style_(style), decimal_(style.separator == ';' ? ',' : '.'),
      fields_(options.fields.value_or(std::vector<std::string>{})), checks_(options.checks) {
    if (!options.with.empty()) {
        throw UsageError{"--with: expected JSON Lines as input, got a table"};
    }
    for (const std::string& field : fields_) {
        if (Find_state_field(field) == nullptr) {
            throw UsageError{"--fields: expected names that fit a cell of a table, got " + Quoted(field)};
        }
    }
    Take_columns(heading);
    if (!options.fields && Among(heading.cells, "Id")) {
        fields_.emplace_back("Id");
    }
    for (const CsvRow& row : rows) {
        for (std::size_t i = 0; i < row.cells.size() && row.error.empty() && !decimal_seen_; ++i) {
            const Kind kind = columns_[i].kind;
            const std::size_t sign = row.cells[i].find_first_of(",.");
            if ((kind == Kind::decimal || kind == Kind::named_decimal) && sign != std::string::npos) {
                decimal_ = row.cells[i][sign];
                decimal_seen_ = true;
            }
        }
    }
}

BatchTable::Kind BatchTable::Kind_of(const std::string& name) {
    if (name.empty() || name.front() == '#') {
        return name.empty() ? Kind::nameless : Kind::own;
    }
    if (Is_named_input(name)) {
        return Among(named_numbers, name) ? Kind::named_decimal : Kind::named;
    }
    const StateField& field = Find_input(name);
    if (std::holds_alternative<bool ConnectionState::*>(field.member)) {
        return Kind::flag;
    }
    const bool decimal =
        std::holds_alternative<float ConnectionState::*>(field.member) || Among(typed_numbers, field.name);
    return decimal ? Kind::decimal : Kind::input;
}

void BatchTable::Take_columns(const CsvRow& heading) {
    const std::string where = "line " + std::to_string(heading.line) + ": ";
    if (!heading.error.empty()) {
        throw UsageError{where + heading.error};
    }
    for (const std::string& name : heading.cells) {
        try {
            columns_.push_back({name, Kind_of(name)});
        } catch (const UsageError& error) {
            throw UsageError{where + error.text + "; a column of your own begins with #"};
        }
        const Kind kind = columns_.back().kind;
        const bool twice = std::count_if(columns_.begin(), columns_.end(),
                                         [&name](const Column& column) { return column.name == name; }) > 1;
        if (twice && kind != Kind::own && kind != Kind::nameless) {
            throw UsageError{where + Quoted(name) + ": expected one column, got two"};
        }
    }
}

// A cell as an input takes it. With a decimal comma a point may be meant to part thousands, and the other way round:
// nobody knows. Errors: throws UsageError.
std::string BatchTable::Cell(std::size_t column, std::string_view text) const {
    const auto& [name, kind] = columns_[column];
    std::string cell{text};
    const char other = decimal_ == ',' ? '.' : ',';
    if (kind == Kind::nameless) {
        throw UsageError{"column " + std::to_string(column + 1) + " has no name: expected nothing in it, got " +
                         Quoted(cell)};
    }
    if ((kind == Kind::decimal || kind == Kind::named_decimal) && decimal_seen_ &&
        cell.find(other) != std::string::npos) {
        throw UsageError{name + ": expected a decimal " + (decimal_ == ',' ? "comma" : "point") +
                         " as in the first rows, got " + Quoted(cell)};
    }
    return kind == Kind::flag ? Flag(cell) : cell;
}

void BatchTable::Set_inputs(ConnectionState& s, const CsvRow& row) const {
    if (!row.error.empty()) {
        throw UsageError{row.error};
    }
    NamedValues named;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        const auto& [name, kind] = columns_[i];
        const std::string_view text = Trim(row.cells[i]);
        if (text.empty() || kind == Kind::own) {
            continue;
        }
        const std::string cell = Cell(i, text);
        if (kind == Kind::named || kind == Kind::named_decimal) {
            named.emplace_back(name, cell);
        } else {
            Set_input(s, name, cell);
        }
    }
    Set_named_inputs(s, named);
}

std::string_view BatchTable::Id(const CsvRow& row) const {
    for (std::size_t i = 0; i < std::min(row.cells.size(), columns_.size()); ++i) {
        if (columns_[i].name == "Id") {
            return Trim(row.cells[i]);
        }
    }
    return {};
}

std::string BatchTable::Heading() const {
    std::vector<std::string> names = fields_;
    if (checks_) {
        Append_check_headings(names);
    }
    names.insert(names.end(), {"warnings", "error"});
    std::string text = style_.bom ? "\xEF\xBB\xBF" : "";
    Append_csv_row(text, style_, names);
    return text;
}

// A value of the state as a cell has it.
std::string BatchTable::Shown(const ConnectionState& s, const std::string& field) const {
    return std::visit(
        [&](auto member) -> std::string {
            const auto& value = s.*member;
            using Value = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<Value, float>) {
                return std::isfinite(value) ? With_decimal(Shortest(value).View(), decimal_) : std::string{};
            } else if constexpr (std::is_same_v<Value, bool>) {
                return value ? "true" : "false";
            } else if constexpr (std::is_arithmetic_v<Value>) {
                return std::to_string(value);
            } else {
                return std::string{std::string_view{value}};
            }
        },
        Find_state_field(field)->member);
}

void BatchTable::Append_result(std::string& text, const ConnectionState& s, const Judgement& judgement,
                               const std::vector<std::string>& warnings) const {
    std::vector<std::string> cells;
    for (const std::string& field : fields_) {
        cells.push_back(Shown(s, field));
    }
    if (checks_) {
        const auto first = static_cast<std::ptrdiff_t>(cells.size());
        Append_check_cells(cells, judgement);
        std::transform(cells.begin() + first, cells.end(), cells.begin() + first,
                       [this](const std::string& number) { return With_decimal(number, decimal_); });
        cells.back() = Judgement_text(judgement, Is_english(s));
    }
    cells.push_back(Joined(warnings));
    cells.emplace_back();
    Append_csv_row(text, style_, cells);
}

void BatchTable::Append_error(std::string& text, std::string_view id, std::string_view error) const {
    std::vector<std::string> cells;
    for (const std::string& field : fields_) {
        cells.emplace_back(field == "Id" ? id : std::string_view{});
    }
    std::vector<std::string> unknown;
    if (checks_) {
        Append_check_headings(unknown);
    }
    cells.resize(cells.size() + unknown.size() + 1);
    cells.emplace_back(error);
    Append_csv_row(text, style_, cells);
}

} // namespace tarnvik
