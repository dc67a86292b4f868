// A table of texts as it is printed: in columns, as JSON, as CSV.
#pragma once

#include <string>
#include <vector>

#include "check/Csv.h"

namespace tarnvik {

using TableRow = std::vector<std::string>;

// The first row is the heading. Numbers stand to the right of their column, and stay numbers in the JSON.
struct Table {
    std::vector<TableRow> rows;
    std::vector<bool> numbers; // by column
};

// Columns with two blanks between them.
std::string As_table(const Table& table);

// An array of objects in a line.
std::string As_json(const Table& table);

// A line of CSV.
std::string Csv_line(const TableRow& row, const CsvStyle& style = {});

} // namespace tarnvik
