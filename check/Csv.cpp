#include "check/Csv.h"

#include <algorithm>
#include <new>
#include <utility>

#include <csv.h>
#include <simdjson.h>

namespace tarnvik {

namespace {

constexpr std::string_view bom = "\xEF\xBB\xBF";

// Where the line that begins at `begin` ends, its end included; the end of the text where it has none.
std::size_t Line_end(std::string_view text, std::size_t begin) {
    const std::size_t end = text.find_first_of("\r\n", begin);
    if (end == std::string_view::npos) {
        return text.size();
    }
    const bool two = text[end] == '\r' && end + 1 < text.size() && text[end + 1] == '\n';
    return end + (two ? 2 : 1);
}

long Line_count(std::string_view text) {
    long count = 0;
    for (std::size_t at = 0; at < text.size(); at = Line_end(text, at)) {
        ++count;
    }
    return count;
}

struct Taken {
    CsvRow& row;
    bool ended{};
};

void Take_cell(void* cell, std::size_t size, void* taken) {
    static_cast<Taken*>(taken)->row.cells.emplace_back(static_cast<const char*>(cell), size);
}

void Take_end(int, void* taken) {
    static_cast<Taken*>(taken)->ended = true;
}

// What the library takes off the ends of a cell without quotes.
bool Is_blank(char c) {
    return c == ' ' || c == '\t';
}

// The library skips a line of nothing but blanks before a row.
bool Is_blank_line(std::string_view line) {
    return line.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

void Append_cell(std::string& text, const CsvStyle& style, const std::string& cell) {
    const bool padded = !cell.empty() && (Is_blank(cell.front()) || Is_blank(cell.back()));
    if (!padded && cell.find_first_of("\"\r\n") == std::string::npos &&
        cell.find(style.separator) == std::string::npos) {
        text += cell;
        return;
    }
    const std::size_t begin = text.size();
    text.resize(begin + 2 * cell.size() + 2);
    text.resize(begin + csv_write2(text.data() + begin, text.size() - begin, cell.data(), cell.size(), '"'));
}

} // namespace

CsvReader::CsvReader() : parser_(std::make_unique<csv_parser>()) {
    if (csv_init(parser_.get(), CSV_STRICT) != 0) {
        throw std::bad_alloc{};
    }
}

CsvReader::~CsvReader() {
    csv_free(parser_.get());
}

std::vector<CsvRow> CsvReader::Read(std::string_view lines) {
    text_ += lines;
    return Rows(false);
}

std::vector<CsvRow> CsvReader::Finish() {
    return Rows(true);
}

std::vector<CsvRow> CsvReader::Rows(bool last) {
    std::vector<CsvRow> rows;
    std::size_t begin = 0;
    while (begin < text_.size()) {
        const std::string_view rest = std::string_view{text_}.substr(begin);
        if (!begun_) {
            begun_ = true;
            style_.bom = rest.starts_with(bom);
            begin += style_.bom ? bom.size() : 0;
            continue;
        }
        if (heading_.line == 0) {
            See_style(rest.substr(0, Line_end(rest, 0)));
        }
        CsvRow row{line_, {}, {}};
        const std::size_t end = Take_row(rest, last, row);
        if (end == 0) {
            break; // a quote is open, and its end may be still to come
        }
        line_ += Line_count(rest.substr(0, end));
        begin += end;
        Add(std::move(row), rows);
    }
    text_.erase(0, begin);
    return rows;
}

void CsvReader::See_style(std::string_view heading) {
    style_.crlf = heading.ends_with("\r\n");
    style_.separator = heading.find(';') != std::string_view::npos ? ';' : ',';
    csv_set_delim(parser_.get(), static_cast<unsigned char>(style_.separator));
}

// The row at the begin of the text. Gives its length, 0 where its end is not there.
std::size_t CsvReader::Take_row(std::string_view text, bool last, CsvRow& row) {
    const std::size_t first_end = Line_end(text, 0);
    if (Is_blank_line(text.substr(0, first_end))) {
        return first_end;
    }
    Taken taken{row};
    const auto wrong = [&](const char* what) {
        csv_fini(parser_.get(), nullptr, nullptr, nullptr); // the next line is a new row to it
        if (heading_.line != 0) {
            row.cells.clear();
        }
        row.error = what;
        return first_end;
    };
    std::size_t begin = 0;
    for (std::size_t end = first_end; begin < end; begin = end, end = Line_end(text, end)) {
        if (end > longest_row) {
            return wrong("expected a row of at most 65536 characters; is a quote open?");
        }
        if (csv_parse(parser_.get(), text.data() + begin, end - begin, Take_cell, Take_end, &taken) != end - begin) {
            return wrong("expected a cell with quotes in it in quotes, each of them twice");
        }
        if (!taken.ended && end == text.size() && last) { // the last line may have no end
            csv_parse(parser_.get(), "\n", 1, Take_cell, Take_end, &taken);
        }
        if (taken.ended) {
            return simdjson::validate_utf8(text.data(), end) ? end
                                                             : wrong("expected UTF-8; save the table as CSV in UTF-8");
        }
    }
    if (last) {
        return wrong("expected a quote at the end of the cell that one begins");
    }
    csv_fini(parser_.get(), nullptr, nullptr, nullptr);
    return 0;
}

void CsvReader::Add(CsvRow row, std::vector<CsvRow>& rows) {
    const bool empty =
        std::all_of(row.cells.begin(), row.cells.end(), [](const std::string& cell) { return cell.empty(); });
    if (empty && row.error.empty()) {
        return;
    }
    if (heading_.line == 0) {
        heading_ = std::move(row);
        return;
    }
    if (row.error.empty() && row.cells.size() != heading_.cells.size()) {
        row.error = "expected " + std::to_string(heading_.cells.size()) + " cells as in the heading, got " +
                    std::to_string(row.cells.size());
    }
    rows.push_back(std::move(row));
}

void Append_csv_row(std::string& text, const CsvStyle& style, const std::vector<std::string>& cells) {
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (i > 0) {
            text += style.separator;
        }
        Append_cell(text, style, cells[i]);
    }
    text += style.crlf ? "\r\n" : "\n";
}

} // namespace tarnvik
