#include "check/Table.h"

#include <algorithm>
#include <cstddef>

#include "calc/Text.h"
#include "check/JsonList.h"

namespace tarnvik {

std::string As_table(const Table& table) {
    std::vector<std::size_t> widths(table.numbers.size());
    for (const TableRow& row : table.rows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], Character_count(row[i]));
        }
    }
    std::string text;
    for (const TableRow& row : table.rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::string fill(widths[i] - Character_count(row[i]), ' ');
            line += table.numbers[i] ? fill + row[i] : row[i] + fill;
            line += "  ";
        }
        text += Right_trim(line);
        text += "\n";
    }
    return text;
}

std::string As_json(const Table& table) {
    std::string json;
    {
        JsonList rows{json, '[', ']'};
        for (std::size_t i = 1; i < table.rows.size(); ++i) {
            rows.Next();
            JsonList object{json, '{', '}'};
            for (std::size_t k = 0; k < table.numbers.size(); ++k) {
                object.Name(table.rows[0][k]);
                if (table.numbers[k]) {
                    json += table.rows[i][k];
                } else {
                    Append_json(json, table.rows[i][k]);
                }
            }
        }
    }
    return json + "\n";
}

std::string Csv_line(const TableRow& row, const CsvStyle& style) {
    std::string line;
    Append_csv_row(line, style, row);
    return line;
}

} // namespace tarnvik
