// Tables as spreadsheets write them: a heading and rows of cells, with ";" or "," between them. Cells in quotes hold
// separators, line ends and quotes, each quote twice. Blanks around a cell without quotes are not part of it.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct csv_parser;

namespace tarnvik {

// How a table is written.
struct CsvStyle {
    char separator{','};
    bool bom{};  // begins with the mark of UTF-8
    bool crlf{}; // line ends
};

struct CsvRow {
    long line{};                    // on which it begins, from 1
    std::vector<std::string> cells; // as many as the heading has, where the row is not damaged
    std::string error;              // what is wrong with the row, in words
};

// Reads a table as its lines come. Its first row is the heading, whose line tells how the table is written. Rows
// without a character in any cell are left out. A damaged row is told and the next line read on its own, also where an
// open quote has taken in the lines behind it.
class CsvReader {
public:
    static constexpr std::size_t longest_row = 1U << 16U; // bytes; an open quote is not looked for beyond

    CsvReader();
    CsvReader(const CsvReader&) = delete;
    CsvReader& operator=(const CsvReader&) = delete;
    ~CsvReader();

    // The rows that end in these lines, in order and without the heading. Lines are complete, but for the last one.
    std::vector<CsvRow> Read(std::string_view lines);

    // The rows that are left at the end of the table.
    std::vector<CsvRow> Finish();

    // Known once a row with a character has been read; the line of the heading is 0 before. A damaged one keeps the
    // cells that could be read.
    [[nodiscard]] const CsvRow& Heading() const { return heading_; }
    [[nodiscard]] const CsvStyle& Style() const { return style_; }

private:
    std::vector<CsvRow> Rows(bool last);
    std::size_t Take_row(std::string_view text, bool last, CsvRow& row);
    void See_style(std::string_view heading);
    void Add(CsvRow row, std::vector<CsvRow>& rows);

    std::unique_ptr<csv_parser> parser_;
    CsvStyle style_;
    CsvRow heading_;
    std::string text_; // of a row that has not ended yet
    long line_{1};     // where it begins
    bool begun_{};
};

// Writes a row: cells, in quotes where they have to be, and the line end.
void Append_csv_row(std::string& text, const CsvStyle& style, const std::vector<std::string>& cells);

} // namespace tarnvik
