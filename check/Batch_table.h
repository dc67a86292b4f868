// A batch as a table: a row of inputs in, a row of its verdict out.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "calc/GlobalParameter.h"
#include "check/Checks.h"
#include "check/Csv.h"
#include "check/Options.h"

namespace tarnvik {

// Whether the begin of a batch is that of a table: its heading names an input, be it damaged.
bool Is_table(std::string_view lines);

// Columns are inputs, or inputs by name; one that begins with "#" is the user's own and left out, and one without a
// name has to be empty. A cell that is empty leaves its input as it is. Decimals are those of the input: a comma, or a
// point, whichever is first seen, else a comma where ";" stands between the cells.
class BatchTable {
public:
    // `rows` are those that came with the heading. Errors: throws UsageError for a column that is no input or stands
    // there twice, for what of the options does not fit into a table, and for a damaged heading.
    BatchTable(const CsvRow& heading, const CsvStyle& style, const std::vector<CsvRow>& rows, const Options& options);

    // Writes the inputs of a row. Errors: throws UsageError, also for a damaged row.
    void Set_inputs(ConnectionState& s, const CsvRow& row) const;

    // What the row is called in its column Id; empty where it has none.
    [[nodiscard]] std::string_view Id(const CsvRow& row) const;

    // The heading of the results, the row of a check, and that of a row that cannot be read.
    [[nodiscard]] std::string Heading() const;
    void Append_result(std::string& text, const ConnectionState& s, const Judgement& judgement,
                       const std::vector<std::string>& warnings) const;
    void Append_error(std::string& text, std::string_view id, std::string_view error) const;

private:
    enum class Kind : std::uint8_t { input, decimal, flag, named, named_decimal, own, nameless };
    struct Column {
        std::string name;
        Kind kind{};
    };

    static Kind Kind_of(const std::string& name);
    void Take_columns(const CsvRow& heading);
    [[nodiscard]] std::string Cell(std::size_t column, std::string_view text) const;
    [[nodiscard]] std::string Shown(const ConnectionState& s, const std::string& field) const;

    CsvStyle style_;
    std::vector<Column> columns_;
    char decimal_{'.'};
    bool decimal_seen_{};
    std::vector<std::string> fields_; // of the results, before the verdict
    bool checks_;                     // the verdict is among them
};

} // namespace tarnvik
