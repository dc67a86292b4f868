// Tables of a batch: however they come, the same rows; what is read can be written; a row is refused with a reason or
// calculated.
#include <algorithm>
#include <string>

#include "Fuzz.h"
#include "calc/pass/Main_beregn.h"
#include "check/Batch_table.h"
#include "check/Csv.h"
#include "check/MessageLog.h"
#include "session/Judge.h"

namespace {

using namespace tarnvik;

struct ReadTable {
    CsvRow heading;
    CsvStyle style;
    std::vector<CsvRow> rows;
};

// In pieces that end with a line, as a batch reads them, or in one.
ReadTable Read(std::string_view text, bool pieces) {
    CsvReader reader;
    ReadTable table;
    const auto add = [&table](const std::vector<CsvRow>& rows) {
        table.rows.insert(table.rows.end(), rows.begin(), rows.end());
    };
    while (!text.empty()) {
        const std::size_t end = pieces ? std::min(text.find('\n'), text.size() - 1) + 1 : text.size();
        add(reader.Read(text.substr(0, end)));
        text.remove_prefix(end);
    }
    add(reader.Finish());
    table.heading = reader.Heading();
    table.style = reader.Style();
    return table;
}

void Check_same(const ReadTable& one, const ReadTable& other) {
    FUZZ_CHECK(one.heading.cells == other.heading.cells && one.rows.size() == other.rows.size());
    for (std::size_t i = 0; i < one.rows.size(); ++i) {
        FUZZ_CHECK(one.rows[i].cells == other.rows[i].cells);
        FUZZ_CHECK(one.rows[i].error == other.rows[i].error);
    }
}

// The heading has to show how the table is written: a first line with ";" in a cell of its own does not.
bool Tells_style(const ReadTable& table) {
    for (const std::string& name : table.heading.cells) {
        if (name.find(';') != std::string::npos) {
            return false;
        }
    }
    return !table.heading.cells.front().starts_with("\xEF\xBB\xBF");
}

void Check_written(const ReadTable& table) {
    std::string text;
    Append_csv_row(text, table.style, table.heading.cells);
    ReadTable sound{table.heading, table.style, {}};
    for (const CsvRow& row : table.rows) {
        if (row.error.empty()) {
            FUZZ_CHECK(row.cells.size() == table.heading.cells.size());
            Append_csv_row(text, table.style, row.cells);
            sound.rows.push_back(row);
        }
    }
    Check_same(Read(text, false), sound);
}

void Calculate(const ReadTable& table) {
    static const auto s = std::make_unique<ConnectionState>();
    *s = fuzz::New_project();
    try {
        const BatchTable batch{table.heading, table.style, table.rows, Options{}};
        for (const CsvRow& row : table.rows) {
            static_cast<ConnectionValues&>(*s) = fuzz::New_project();
            std::string results;
            try {
                batch.Set_inputs(*s, row);
                MessageLog box;
                Standing standing;
                standing.Note_pass(*s, Run_pass(*s, nullptr, box));
                batch.Append_result(results, *s, Judge{standing}.Judge_results(*s), {});
            } catch (const UsageError& error) {
                FUZZ_CHECK(!error.text.empty());
                batch.Append_error(results, batch.Id(row), error.text);
            }
            // A row of as many cells as the heading of the results.
            const ReadTable written = Read(batch.Heading() + results, true);
            FUZZ_CHECK(written.rows.size() == 1 && written.rows.front().error.empty());
        }
    } catch (const UsageError& error) {
        FUZZ_CHECK(!error.text.empty());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text{reinterpret_cast<const char*>(data), size};
    const ReadTable table = Read(text, false);
    Check_same(table, Read(text, true));
    if (table.heading.line > 0 && table.heading.error.empty()) {
        if (Tells_style(table)) {
            Check_written(table);
        }
        if (Is_table(text)) {
            Calculate(table);
        }
    }
    return 0;
}
