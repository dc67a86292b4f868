// Load cases of a table, and the verdict under all of them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "check/Csv.h"
#include "session/Load_cases.h"

namespace tarnvik {

struct Options;

struct LoadTable {
    std::vector<LoadCase> loads;
    CsvStyle style;
    bool decimal_comma{}; // as in the forces; where none has decimals, with ";"
};

// A CSV file with the columns name, force (kN or with its unit, above 0 compression) and load (load-duration class), in
// any order; others are refused, but for those that begin with "#".
// Errors: throws UsageError with the file and the line.
LoadTable Read_loads(const std::string& path);

// The same of what the file holds.
LoadTable Parse_loads(std::string_view text, const std::string& path);

// Errors: throws UsageError where force or load-duration class are given beside --loads, which would count for nothing.
void Refuse_loads_inputs(const Options& options);

// The case in columns, what governs, the verdict.
std::string Loads_summary(const LoadsResult& result);

// A line for each case, written as the table that was read.
std::string Loads_csv(const LoadsResult& result, const LoadTable& table);

// One object in a line, with the warnings of the joint.
std::string Loads_json(const LoadsResult& result, const std::vector<std::string>& warnings);

// As Status and, with `strict`, Strict_status: the worst of all cases.
int Loads_status(const LoadsResult& result, bool strict);

} // namespace tarnvik
