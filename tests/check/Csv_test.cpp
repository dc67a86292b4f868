#include "check/Csv.h"

#include <gtest/gtest.h>

namespace tarnvik {
namespace {

using Cells = std::vector<std::string>;

struct Table {
    CsvRow heading;
    CsvStyle style;
    std::vector<CsvRow> rows;
};

// Read in pieces, each of whole lines, as they may come.
Table Read_pieces(const std::vector<std::string>& pieces) {
    CsvReader reader;
    Table table;
    const auto add = [&table](std::vector<CsvRow> rows) {
        table.rows.insert(table.rows.end(), rows.begin(), rows.end());
    };
    for (const std::string& piece : pieces) {
        add(reader.Read(piece));
    }
    add(reader.Finish());
    table.heading = reader.Heading();
    table.style = reader.Style();
    return table;
}

Table Read_all(const std::string& text) {
    return Read_pieces({text});
}

std::string Written(const Cells& cells, const CsvStyle& style) {
    std::string text;
    Append_csv_row(text, style, cells);
    return text;
}

TEST(Csv, heading_rows_and_lines) {
    const Table table = Read_all("Id,P\nK1,8.5\nK2,-3\n");
    EXPECT_EQ(table.heading.cells, (Cells{"Id", "P"}));
    EXPECT_EQ(table.heading.line, 1);
    ASSERT_EQ(table.rows.size(), 2U);
    EXPECT_EQ(table.rows[0].cells, (Cells{"K1", "8.5"}));
    EXPECT_EQ(table.rows[1].cells, (Cells{"K2", "-3"}));
    EXPECT_EQ(table.rows[1].line, 3);
    EXPECT_EQ(table.rows[1].error, "");
}

TEST(Csv, the_heading_tells_the_separator) {
    const Table table = Read_all("Id;P\nK1;8,5\n");
    EXPECT_EQ(table.style.separator, ';');
    EXPECT_EQ(table.rows.at(0).cells, (Cells{"K1", "8,5"}));
    EXPECT_EQ(Read_all("P\n1\n").style.separator, ',');
}

TEST(Csv, mark_of_utf8_and_line_ends) {
    const Table windows = Read_all("\xEF\xBB\xBFId;P\r\nBj\u00F8rn;8,5\r\n");
    EXPECT_TRUE(windows.style.bom);
    EXPECT_TRUE(windows.style.crlf);
    EXPECT_EQ(windows.heading.cells, (Cells{"Id", "P"}));
    EXPECT_EQ(windows.rows.at(0).cells, (Cells{"Bj\u00F8rn", "8,5"}));
    const Table plain = Read_all("Id;P\nK1;8,5");
    EXPECT_FALSE(plain.style.bom);
    EXPECT_FALSE(plain.style.crlf);
    EXPECT_EQ(plain.rows.at(0).cells, (Cells{"K1", "8,5"}));
    EXPECT_EQ(Read_all("Id,P\rK1,2\rK2,3\r").rows.at(1).cells, (Cells{"K2", "3"}));
    EXPECT_EQ(Read_all("Id,P\rK1,2\rK2,3\r").rows.at(1).line, 3);
}

TEST(Csv, quotes_hold_separators_quotes_and_line_ends) {
    const Table table = Read_all("Id,P,member1\n\"a, b\",\"8,5\",\"2x\"\"48\"\"\"\n\"two\nlines\", 3 ,x\nlast,1,y\n");
    ASSERT_EQ(table.rows.size(), 3U);
    EXPECT_EQ(table.rows[0].cells, (Cells{"a, b", "8,5", "2x\"48\""}));
    EXPECT_EQ(table.rows[1].cells, (Cells{"two\nlines", "3", "x"}));
    EXPECT_EQ(table.rows[1].line, 3);
    EXPECT_EQ(table.rows[2].line, 5);
}

TEST(Csv, rows_without_a_character_are_left_out) {
    const Table table = Read_all("\n  \nId;P;\r\n\r\n;;\nK1;1;\n \t\n;;\n");
    EXPECT_EQ(table.heading.line, 3);
    EXPECT_EQ(table.style.separator, ';');
    ASSERT_EQ(table.rows.size(), 1U);
    EXPECT_EQ(table.rows[0].line, 6);
}

TEST(Csv, nothing) {
    EXPECT_EQ(Read_all("").heading.line, 0);
    EXPECT_EQ(Read_all("\n;;\n").heading.line, 0);
}

TEST(Csv, rows_come_as_soon_as_they_end) {
    CsvReader reader;
    EXPECT_TRUE(reader.Read("Id,P\n").empty());
    EXPECT_EQ(reader.Heading().cells, (Cells{"Id", "P"}));
    EXPECT_EQ(reader.Read("K1,1\n\"K2\n").size(), 1U);
    const std::vector<CsvRow> rows = reader.Read("more\",2\nK3,3\n");
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].cells, (Cells{"K2\nmore", "2"}));
    EXPECT_EQ(rows[0].line, 3);
    EXPECT_EQ(rows[1].line, 5);
    EXPECT_TRUE(reader.Finish().empty());
}

TEST(Csv, a_row_with_more_or_fewer_cells_than_the_heading) {
    const Table table = Read_all("Id,P\nK1\nK2,1,\nK3,1\n");
    ASSERT_EQ(table.rows.size(), 3U);
    EXPECT_EQ(table.rows[0].error, "expected 2 cells as in the heading, got 1");
    EXPECT_EQ(table.rows[0].cells, (Cells{"K1"}));
    EXPECT_EQ(table.rows[1].error, "expected 2 cells as in the heading, got 3");
    EXPECT_EQ(table.rows[2].error, "");
}

TEST(Csv, a_quote_inside_a_cell) {
    const Table table = Read_all("Id,P\n48\" beam,1\n\"K2\"x,2\nK3,3\n");
    ASSERT_EQ(table.rows.size(), 3U);
    EXPECT_EQ(table.rows[0].error, "expected a cell with quotes in it in quotes, each of them twice");
    EXPECT_EQ(table.rows[0].line, 2);
    EXPECT_EQ(table.rows[1].error, table.rows[0].error);
    EXPECT_EQ(table.rows[2].cells, (Cells{"K3", "3"}));
}

TEST(Csv, an_open_quote_costs_its_own_line_only) {
    for (const Table& table :
         {Read_all("Id,P\n\"K1,1\nK2,2\nK3,3\n"), Read_pieces({"Id,P\n", "\"K1,1\n", "K2,2\n", "K3,3"})}) {
        ASSERT_EQ(table.rows.size(), 3U);
        EXPECT_EQ(table.rows[0].error, "expected a quote at the end of the cell that one begins");
        EXPECT_EQ(table.rows[0].line, 2);
        EXPECT_EQ(table.rows[1].cells, (Cells{"K2", "2"}));
        EXPECT_EQ(table.rows[1].line, 3);
        EXPECT_EQ(table.rows[2].cells, (Cells{"K3", "3"}));
    }
    // The next quote closes it: the text behind that one is damaged.
    const Table closed = Read_all("Id,P\n\"K1,1\n\"K2\",2\nK3,3\n");
    ASSERT_EQ(closed.rows.size(), 3U);
    EXPECT_EQ(closed.rows[0].error, "expected a cell with quotes in it in quotes, each of them twice");
    EXPECT_EQ(closed.rows[1].cells, (Cells{"K2", "2"}));
    EXPECT_EQ(closed.rows[2].cells, (Cells{"K3", "3"}));
}

TEST(Csv, an_open_quote_is_not_looked_for_without_end) {
    std::string lines = "Id,P\n\"K1,1\n";
    const long count = static_cast<long>(CsvReader::longest_row) / 5 + 2;
    for (long i = 0; i < count; ++i) {
        lines += "K2,2\n";
    }
    CsvReader reader;
    const std::vector<CsvRow> rows = reader.Read(lines);
    ASSERT_EQ(rows.size(), static_cast<std::size_t>(count + 1));
    EXPECT_EQ(rows[0].error, "expected a row of at most 65536 characters; is a quote open?");
    EXPECT_EQ(rows.back().cells, (Cells{"K2", "2"}));
    EXPECT_EQ(rows.back().line, count + 2);
}

TEST(Csv, text_that_is_not_utf8) {
    const Table table = Read_all("Id,P\nBj\xF8rn,1\nK2,2\n");
    ASSERT_EQ(table.rows.size(), 2U);
    EXPECT_EQ(table.rows[0].error, "expected UTF-8; save the table as CSV in UTF-8");
    EXPECT_EQ(table.rows[1].cells, (Cells{"K2", "2"}));
    EXPECT_EQ(Read_all("Bj\xF8rn,P\n").heading.error, "expected UTF-8; save the table as CSV in UTF-8");
}

TEST(Csv, written_cells_read_back) {
    const Cells cells{"K1", "", "a;b", "a,b", "say \"x\"", "two\r\nlines", " blank ", "\ttab", "8,5", "Bj\u00F8rn"};
    for (const char separator : {';', ','}) {
        const CsvStyle style{separator, false, true};
        const std::string heading(cells.size() - 1, separator);
        const Table table = Read_all("x" + heading + "\n" + Written(cells, style));
        EXPECT_EQ(table.rows.at(0).cells, cells);
    }
}

TEST(Csv, quotes_are_written_where_they_have_to_be) {
    EXPECT_EQ(Written({"K1", "8,5", "a;b"}, {';', false, true}), "K1;8,5;\"a;b\"\r\n");
    EXPECT_EQ(Written({"K1", "8,5", "", "x\"y"}, {}), "K1,\"8,5\",,\"x\"\"y\"\n");
}

} // namespace
} // namespace tarnvik
