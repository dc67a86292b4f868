#include "data/Tables.h"

#include <algorithm>
#include <limits>

#include "calc/RuntimeFault.h"
#include "calc/Text.h"
#include "data/Lines.h"

namespace tarnvik {

namespace {

using Fields = std::vector<std::string_view>;

constexpr int heading_lines = 7;
constexpr std::size_t mark_field = 2;

// Calls store(index, fields) for every row that counts, and returns the last used index. The counter is 16 bits wide
// and stops at its end.
template <class Store> std::int16_t Read_rows(std::istream& file, Store store) {
    for (int i = 0; i < heading_lines; ++i) {
        Read_line(file);
    }
    int rows = 0;
    while (const auto line = Read_line(file)) {
        const Fields fields = Split(*line);
        if (fields.size() > mark_field && !fields[mark_field].empty() && fields[mark_field].front() == 'S') {
            store(rows, fields);
            rows = std::min(rows + 1, static_cast<int>(std::numeric_limits<std::int16_t>::max()));
        }
    }
    return static_cast<std::int16_t>(rows - 1);
}

void Put_text(std::string& value, const Fields& fields, std::size_t column) {
    if (column < fields.size()) {
        value = fields[column];
    }
}

// A number that fails to convert leaves the value, like a field that is missing.
void Put_number(float& value, const Fields& fields, std::size_t column, float (*convert)(std::string_view)) {
    if (column >= fields.size()) {
        return;
    }
    try {
        value = convert(fields[column]);
    } catch (const RuntimeFault&) { // NOLINT(bugprone-empty-catch): a failed statement of the reader is skipped
    }
}

} // namespace

void Read_material(ConnectionState& s, std::istream& file) {
    s.Mat_count = Read_rows(file, [&s](int i, const Fields& fields) {
        if (i >= mat_rows) {
            return;
        }
        MatRecord& row = s.Mat[static_cast<std::size_t>(i)];
        Put_text(row.Id, fields, 0);
        Put_text(row.Type, fields, 1);
        Put_number(row.fmk, fields, 3, Str_to_num);
        Put_number(row.fc0k, fields, 4, Str_to_num);
        Put_number(row.fc90k, fields, 5, Str_to_num);
        Put_number(row.fvk, fields, 6, Str_to_num);
        Put_number(row.E0_mean, fields, 7, Str_to_num);
        Put_number(row.E0_05, fields, 8, Str_to_num);
        // Columns 9 and 11, G and s_fac, stand in the file for the reader of the file only.
        Put_number(row.dens, fields, 10, Str_to_num);
    });
}

void Read_profile(ConnectionState& s, std::istream& file) {
    s.Prof1_count = Read_rows(file, [&s](int i, const Fields& fields) {
        if (i >= prof_rows) {
            return;
        }
        ProfRecord& row = s.Prof[static_cast<std::size_t>(i)];
        Put_text(row.Id, fields, 0);
        Put_text(row.Type, fields, 1);
        // By the regional settings, unlike the material file: there is no comma rule here.
        Put_number(row.b, fields, 3, Regional_to_num);
        Put_number(row.h, fields, 4, Regional_to_num);
    });
    s.Prof2_count = s.Prof1_count;
}

void Read_material(ConnectionState& s, const std::filesystem::path& folder) {
    std::ifstream file = Open_text(folder / material_file, "Read_material");
    Read_material(s, file);
}

void Read_profile(ConnectionState& s, const std::filesystem::path& folder) {
    std::ifstream file = Open_text(folder / profile_file, "Read_profile");
    Read_profile(s, file);
}

void Check_counts(const ConnectionState& s) {
    if (s.Prof1_count >= prof_rows || s.Prof2_count >= prof_rows || s.Mat_count >= mat_rows) {
        Raise(fault_subscript, "WritefrmCboMatProf");
    }
}

} // namespace tarnvik
