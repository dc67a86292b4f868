// Batches that are tables.
#include "tests/support/Tool.h"

#include "check/Csv.h"

namespace tarnvik {
namespace {

using namespace test;

const std::vector<std::string> batch{"--batch", "--lang", "Eng"};

// What a run printed, by heading; the heading itself as the first row.
std::vector<std::vector<std::string>> Rows(const std::string& table) {
    CsvReader reader;
    std::vector<CsvRow> read = reader.Read(table);
    std::vector<std::vector<std::string>> rows{reader.Heading().cells};
    for (const CsvRow& row : read) {
        EXPECT_EQ(row.error, "");
        rows.push_back(row.cells);
    }
    return rows;
}

std::string Cell(const std::vector<std::vector<std::string>>& rows, std::size_t row, const std::string& column) {
    const auto found = std::find(rows[0].begin(), rows[0].end(), column);
    EXPECT_NE(found, rows[0].end()) << column;
    return row < rows.size() && found != rows[0].end() ? rows[row][static_cast<std::size_t>(found - rows[0].begin())]
                                                       : "no cell";
}

std::vector<std::string> With(std::vector<std::string> arguments, const std::vector<std::string>& more) {
    arguments.insert(arguments.end(), more.begin(), more.end());
    return arguments;
}

TEST(BatchTable, a_row_has_the_verdict_of_the_same_batch_line) {
    const ToolRun table = Tool(batch, "Id,joint,member1,member2,bolt,bolts,compression,angle,load\n"
                                      "K1,1.2,2x48x198,48x223,M16x8.8,2,12.5,40,medium\n"
                                      "K2,1.1,48x198,48x223,M20x8.8,4,60,30,short\n");
    const ToolRun lines =
        Tool(batch, R"({"Id":"K1","joint":"1.2","member1":"2x48x198","member2":"48x223","bolt":"M16x8.8","bolts":2,)"
                    R"("compression":12.5,"angle":40,"load":"medium"})"
                    "\n"
                    R"({"Id":"K2","joint":"1.1","member1":"48x198","member2":"48x223","bolt":"M20x8.8","bolts":4,)"
                    R"("compression":60,"angle":30,"load":"short"})");
    const auto rows = Rows(table.out);
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(table.err, "");
    EXPECT_EQ(table.status, lines.status);
    for (const std::size_t i : {std::size_t{0}, std::size_t{1}}) {
        const Json checks = lines.Lines().at(i)["checks"];
        EXPECT_EQ(Cell(rows, i + 1, "Id"), i == 0 ? "K1" : "K2");
        EXPECT_EQ(std::stof(Cell(rows, i + 1, "utilisation")), checks["bolts"]["value"].get<float>());
        EXPECT_EQ(std::stof(Cell(rows, i + 1, "splitting")), checks["splitting"]["value"].get<float>());
        EXPECT_EQ(std::stof(Cell(rows, i + 1, "fits_b")), checks["fits_b"]["value"].get<float>());
        EXPECT_EQ(std::stof(Cell(rows, i + 1, "fits_b_limit")), 223.0F);
        EXPECT_EQ(Cell(rows, i + 1, "connectors_fit_a"), "");
        EXPECT_EQ(Cell(rows, i + 1, "governing"), checks["governing"]["mode"]);
        EXPECT_EQ(Cell(rows, i + 1, "holds"), checks["holds"].get<bool>() ? "true" : "false");
        EXPECT_EQ(Cell(rows, i + 1, "text"), checks["text"]);
        EXPECT_EQ(Cell(rows, i + 1, "error"), "");
    }
}

TEST(BatchTable, separator_decimal_sign_mark_and_line_ends_are_those_of_the_input) {
    const auto run = [](const std::string& table) { return Tool(With(batch, {"--fields", "Id,P,alp"}), table).out; };
    EXPECT_EQ(run("Id,P,alp\nK1,8.5,30\n"), "Id,P,alp,warnings,error\nK1,8.5,30,,\n");
    EXPECT_EQ(run("Id;P;alp\nK1;8,5;30\n"), "Id;P;alp;warnings;error\nK1;8,5;30;;\n");
    EXPECT_EQ(run("Id;P;alp\nK1;8.5;30\n"), "Id;P;alp;warnings;error\nK1;8.5;30;;\n");
    EXPECT_EQ(run("Id,P,alp\nK1,\"8,5\",30\n"), "Id,P,alp,warnings,error\nK1,\"8,5\",30,,\n");
    EXPECT_EQ(run("\xEF\xBB\xBFId;P\r\nBj\u00F8rn;8,5\r\n"),
              "\xEF\xBB\xBFId;P;alp;warnings;error\r\nBj\u00F8rn;8,5;25;;\r\n");
    // No decimals in the input: as goes with the separator.
    EXPECT_EQ(run("Id;tension;angle\nK1;8;30\n"), "Id;P;alp;warnings;error\nK1;-8;30;;\n");
    EXPECT_EQ(Rows(Tool(With(batch, {"--fields", "fh1k"}), "P;alp\n8;30\n").out)[1][0].find('.'), std::string::npos);
}

TEST(BatchTable, the_sign_that_is_not_that_of_the_decimals_is_refused) {
    const std::vector<std::string> arguments = With(batch, {"--fields", "Id,P"});
    const ToolRun comma = Tool(arguments, "Id;P\nK1;1,5\nK2;1.234\n");
    EXPECT_EQ(comma.out, "Id;P;warnings;error\nK1;1,5;;\n"
                         "K2;;;\"P: expected a decimal comma as in the first rows, got \"\"1.234\"\"\"\n");
    EXPECT_EQ(comma.err,
              "tarnvik-check: line 3 (K2): P: expected a decimal comma as in the first rows, got \"1.234\"\n");
    EXPECT_EQ(comma.status, exit_usage);
    const ToolRun point = Tool(arguments, "Id;tension\nK1;1.5\nK2;1,5\n");
    EXPECT_EQ(point.err,
              "tarnvik-check: line 3 (K2): tension: expected a decimal point as in the first rows, got \"1,5\"\n");
    // The kind of joint is no number.
    EXPECT_EQ(Tool(With(batch, {"--fields", "Con_code,P"}), "joint;P\n1.2;1,5\n1,3;2,5\n").out,
              "Con_code;P;warnings;error\n1.2;1,5;;\n1.3;2,5;;\n");
}

TEST(BatchTable, an_empty_cell_leaves_the_input_as_it_is) {
    const ToolRun run =
        Tool(With(batch, {"--set", "Klima=3", "--set", "P=4", "--fields", "Klima,P"}), "P,Klima\n,2\n5,\n ,\" \"\n");
    EXPECT_EQ(run.out, "Klima,P,warnings,error\n2,4,,\n3,5,,\n3,4,,\n");
}

TEST(BatchTable, flags_as_spreadsheets_show_them) {
    const ToolRun run = Tool(With(batch, {"--set", "Txt_b1=48", "--set", "Txt_h1=198", "--set", "Txt_b2=48", "--set",
                                          "Txt_h2=223", "--fields", "Standard"}),
                             "Standard,P\nTRUE,1\nFALSE,1\nSann,1\nUSANN,1\n0,1\n-1,1\ntrue,1\nyes,1\n");
    EXPECT_EQ(run.out, "Standard,warnings,error\ntrue,,\nfalse,,\ntrue,,\nfalse,,\nfalse,,\ntrue,,\ntrue,,\n"
                       ",,\"Standard: expected true or false, got \"\"yes\"\"\"\n");
}

TEST(BatchTable, columns_of_the_user_and_columns_without_a_name) {
    const std::vector<std::string> arguments = With(batch, {"--fields", "P"});
    EXPECT_EQ(Tool(arguments, "P,# drawing,#,,\n5,A-17,x,,\n").out, "P,warnings,error\n5,,\n");
    EXPECT_EQ(Tool(arguments, "P,,Klima\n5,6,1\n").err,
              "tarnvik-check: line 2: column 2 has no name: expected nothing in it, got \"6\"\n");
}

TEST(BatchTable, a_heading_that_cannot_be_is_refused_as_a_whole) {
    const auto refused = [](const std::string& table) {
        const ToolRun run = Tool(batch, table);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.status, exit_usage);
        return run.err;
    };
    EXPECT_EQ(refused("P,bolds\n5,2\n"),
              "tarnvik-check: line 1: \"bolds\" is no input; see tarnvik-check --help; nearest: "
              "bolts; a column of your own begins with #\n");
    EXPECT_EQ(refused("\nuf;P\n1;2\n"),
              "tarnvik-check: line 2: \"uf\" is no input; see tarnvik-check --help; a column of "
              "your own begins with #\n");
    EXPECT_EQ(refused("P;Id;P\n1;2;3\n"), "tarnvik-check: line 1: \"P\": expected one column, got two\n");
    EXPECT_EQ(refused("P;Bj\xF8rn\n1;2\n"), "tarnvik-check: line 1: expected UTF-8; save the table as CSV in UTF-8\n");
    EXPECT_EQ(refused("P;48\" beam\n1;2\n"),
              "tarnvik-check: line 1: expected a cell with quotes in it in quotes, each of them twice\n");
    const ToolRun groups = Tool(With(batch, {"--with", "screen"}), "P\n5\n");
    EXPECT_EQ(groups.err, "tarnvik-check: --with: expected JSON Lines as input, got a table\n");
    EXPECT_EQ(groups.status, exit_usage);
    EXPECT_EQ(Tool(With(batch, {"--fields", "P,Mat"}), "P\n5\n").err,
              "tarnvik-check: --fields: expected names that fit a cell of a table, got \"Mat\"\n");
}

TEST(BatchTable, errors_stand_in_their_row_and_on_standard_error) {
    const ToolRun run = Tool(With(batch, {"--fields", "P,Id"}), "Id,bolt,P\nK1,M16x8.8,1\nK2,M16x8.9,1\nK3,M16x8.8\n"
                                                                "K\"4,M16x8.8,1\nK5,M16x8.8,2\n");
    EXPECT_EQ(run.out, "P,Id,warnings,error\n1,K1,,\n"
                       ",K2,,\"bolt: expected a bolt, such as M16x8.8, got \"\"M16x8.9\"\"; nearest: M16x8.8, M16x4.6, "
                       "M12x8.8\"\n"
                       ",K3,,\"expected 3 cells as in the heading, got 2\"\n"
                       ",,,\"expected a cell with quotes in it in quotes, each of them twice\"\n"
                       "2,K5,,\n");
    EXPECT_EQ(run.err,
              "tarnvik-check: line 3 (K2): bolt: expected a bolt, such as M16x8.8, got \"M16x8.9\"; nearest: M16x8.8, "
              "M16x4.6, M12x8.8\n"
              "tarnvik-check: line 4 (K3): expected 3 cells as in the heading, got 2\n"
              "tarnvik-check: line 5: expected a cell with quotes in it in quotes, each of them twice\n");
    EXPECT_EQ(run.status, exit_usage);
}

TEST(BatchTable, warnings_and_strict) {
    const std::string table = "Id,Klima\nK1,7\n";
    const ToolRun plain = Tool(With(batch, {"--fields", "Id"}), table);
    EXPECT_EQ(plain.out, "Id,warnings,error\nK1,\"Klima: expected 1 to 3, got 7\",\n");
    EXPECT_EQ(plain.err, "");
    const ToolRun strict = Tool(With(batch, {"--fields", "Id", "--strict"}), table);
    EXPECT_EQ(strict.out, "Id,warnings,error\nK1,,\"Klima: expected 1 to 3, got 7\"\n");
    EXPECT_EQ(strict.status, exit_usage);
}

TEST(BatchTable, status_is_that_of_the_worst_row) {
    EXPECT_EQ(Tool(batch, "P\n0.01\n").status, exit_holds);
    EXPECT_EQ(Tool(batch, "P\n0.01\n1000\n").status, exit_fails);
    EXPECT_EQ(Tool(batch, "P,Mat_index\n0.01,101\n1000,0\n").status, exit_stopped);
    // What fits its bolts but not its member fails under --strict only.
    const std::string tight = "P,member1,member2,bolts\n0.01,48x98,48x98,4\n";
    EXPECT_EQ(Tool(batch, tight).status, exit_holds);
    EXPECT_EQ(Tool(With(batch, {"--strict"}), tight).status, exit_fails);
}

TEST(BatchTable, a_stopped_check_says_why) {
    const auto rows = Rows(Tool(batch, "Id,Mat_index\nK1,101\n").out);
    EXPECT_EQ(Cell(rows, 1, "holds"), "");
    EXPECT_EQ(Cell(rows, 1, "utilisation"), "");
    EXPECT_TRUE(Cell(rows, 1, "text").starts_with("Not current: ")) << Cell(rows, 1, "text");
}

TEST(BatchTable, text_of_the_verdict_in_the_language_of_the_project) {
    const auto rows = Rows(Tool({"--batch", "--lang", "Nor"}, "P\n0.01\n").out);
    const ToolRun line = Tool({"--batch", "--lang", "Nor"}, "{\"P\":0.01}");
    EXPECT_EQ(Cell(rows, 1, "text"), line.Object()["checks"]["text"]);
    EXPECT_NE(Cell(rows, 1, "text"), "Holds");
}

TEST(BatchTable, without_a_column_id_the_results_have_none) {
    EXPECT_EQ(Rows(Tool(batch, "P\n5\n").out)[0].front(), "utilisation");
    EXPECT_EQ(Rows(Tool(batch, "P,Id\n5,K1\n").out)[0].front(), "Id");
}

TEST(BatchTable, a_table_without_rows) {
    EXPECT_EQ(Tool(With(batch, {"--fields", "Id"}), "Id,P\n").out, "Id,warnings,error\n");
    EXPECT_EQ(Tool(With(batch, {"--fields", "Id"}), "Id,P\n").status, exit_holds);
    EXPECT_EQ(Tool(batch, "").out, "");
}

TEST(BatchTable, a_typed_he_is_checked) {
    const auto rows = Rows(Tool(batch, "P,member2,Man_he_on,man_he\n1,48x223,true,100\n").out);
    const ToolRun line = Tool(batch, R"({"P":1,"member2":"48x223","Man_he_on":true,"man_he":100})");
    EXPECT_EQ(std::stof(Cell(rows, 1, "splitting")), line.Object()["checks"]["splitting"]["value"].get<float>());
    EXPECT_NE(Cell(rows, 1, "holds"), "");
}

TEST(BatchTable, several_threads_print_what_one_does) {
    std::string table = "Id;bolts;P;angle\n";
    for (int i = 0; i < 3000; ++i) {
        table += "\"K\n" + std::to_string(i) + "\";" + (i % 89 == 7 ? "5" : "2") + ";" + std::to_string(i % 40) + "," +
                 std::to_string(i % 10) + ";" + std::to_string(i % 91) + "\n";
    }
    const ToolRun one = Tool(batch, table);
    EXPECT_EQ(Rows(one.out).size(), 3001U);
    for (const char* jobs : {"2", "5"}) {
        const ToolRun several = Tool(With(batch, {"--jobs", jobs}), table);
        EXPECT_EQ(several.out, one.out);
        EXPECT_EQ(several.err, one.err);
        EXPECT_EQ(several.status, one.status);
    }
}

TEST(BatchLines, the_id_names_a_line_that_cannot_be_read) {
    const ToolRun run = Tool(batch, "{\"Id\":\"K7\",\"P\":\"x\"}\n{\"P\":\"x\"}\n[{\"Id\":\"K8\"},{\"bolt\":\"M1\"}]");
    EXPECT_EQ(run.out, "{\"line\":1,\"Id\":\"K7\",\"error\":\"P: expected a number, got \\\"x\\\"\"}\n"
                       "{\"line\":2,\"error\":\"P: expected a number, got \\\"x\\\"\"}\n"
                       "{\"line\":3,\"Id\":\"K8\",\"error\":\"element 2: bolt: expected a bolt, such as M16x8.8, got "
                       "\\\"M1\\\"\"}\n");
    EXPECT_EQ(run.err, "tarnvik-check: line 1 (K7): P: expected a number, got \"x\"\n"
                       "tarnvik-check: line 2: P: expected a number, got \"x\"\n"
                       "tarnvik-check: line 3 (K8): element 2: bolt: expected a bolt, such as M16x8.8, got \"M1\"\n");
}

} // namespace
} // namespace tarnvik
