// --sheet, --sheets and --verify of the tool.
#include "check/Sheets.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "sheet/Record.h"
#include "tests/support/Tool.h"

namespace tarnvik {
namespace {

using namespace test;

std::string Read(const std::filesystem::path& file) {
    std::ifstream stream{file, std::ios::binary};
    return {std::istreambuf_iterator<char>{stream}, {}};
}

void Write(const std::filesystem::path& file, const std::string& content) {
    std::ofstream{file, std::ios::binary} << content;
}

void Replace(std::string& text, const std::string& former, const std::string& other) {
    const std::size_t at = text.find(former);
    ASSERT_NE(at, std::string::npos) << former;
    text.replace(at, former.size(), other);
}

// The record as it was before it went into the page: it has no other reference.
std::string Unquoted(std::string text) {
    for (std::size_t at = text.find("&quot;"); at != std::string::npos; at = text.find("&quot;")) {
        text.replace(at, 6, "\"");
    }
    return text;
}

class Sheets : public testing::Test {
protected:
    // Writes a sheet of a new project with these options besides.
    std::string Written(std::vector<std::string> options = {}) {
        options.insert(options.begin(), {"--lang", "Eng", "--sheet", file});
        const ToolRun run = Tool(options);
        EXPECT_LE(run.status, 1) << run.err;
        return Read(file);
    }

    // Changes a piece of the record of a sheet, and its checksum with it.
    void Forge(const std::string& former, const std::string& other) {
        std::string html = Written();
        const std::size_t begin = html.find("content=\"{") + 9;
        const std::string record = html.substr(begin, html.find("\">", begin) - begin);
        std::string forged = record;
        Replace(forged, former, other);
        Replace(html, record, forged);
        Replace(html, Record_checksum(Unquoted(record)), Record_checksum(Unquoted(forged)));
        Write(file, html);
    }

    TemporaryFolder folder;
    std::string file = (folder / "sheet.html").string();
};

TEST_F(Sheets, a_sheet_as_it_was_written_is_verified) {
    for (const std::vector<std::string>& options : std::vector<std::vector<std::string>>{
             {},
             {"--set", "Lang=Nor", "--connector", "D75", "--bolt", "M16x8.8", "--bolts", "6", "--joint", "1.3"},
             {"--set", "Man_he_on=true", "--set", "man_he=41"},
             {"--set", "Standard=false", "--set", "Txt_b1=48,5", "--set", "Txt_h1=198", "--set", "Txt_b2=48", "--set",
              "Txt_h2=223", "--tension", "7.25"},
             {"--set", "Prosjekt=A <b> & \"c\"", "--set", "gm_T=1.45"}}) {
        const std::string html = Written(options);
        EXPECT_TRUE(html.starts_with("<!DOCTYPE html>")) << html.substr(0, 40);
        const ToolRun run = Tool({"--verify", file});
        EXPECT_EQ(run.status, 0) << run.out << run.err;
        EXPECT_TRUE(run.out.starts_with(file + ": verified: results and page are as calculated, checksum ")) << run.out;
    }
}

TEST_F(Sheets, a_changed_page_is_not_verified) {
    std::string html = Written();
    Replace(html, ">Does not hold: ", ">Holds, but not: ");
    Write(file, html);
    const ToolRun run = Tool({"--verify", file});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.out.find("results verified, but the page differs in line "), std::string::npos) << run.out;
}

TEST_F(Sheets, changed_inputs_do_not_belong_to_the_checksum) {
    std::string html = Written();
    Replace(html, "&quot;P&quot;:10.0", "&quot;P&quot;:1.0");
    Write(file, html);
    const ToolRun run = Tool({"--verify", file});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.out.find("they do not belong to the checksum"), std::string::npos) << run.out;
}

// Whoever forges the checksum as well is found by the calculation.
TEST_F(Sheets, forged_results_are_found_by_calculating_again) {
    Forge("&quot;uf&quot;:1.9870343", "&quot;uf&quot;:0.9870343");
    const ToolRun run = Tool({"--verify", file});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, file + ": uf is 0.9870343 in the sheet, calculated 1.9870343\n");
}

TEST_F(Sheets, the_page_of_another_version_is_not_compared) {
    Forge("&quot;version&quot;:&quot;1.2.0&quot;", "&quot;version&quot;:&quot;1.1.0&quot;");
    const ToolRun run = Tool({"--verify", file});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, file + ": results verified; the page is of version 1.1.0 and was not compared\n");
}

TEST_F(Sheets, what_is_no_sheet_is_told) {
    EXPECT_EQ(Tool({"--verify", file}).err, "tarnvik-check: " + file + ": cannot be read\n");
    for (const char* content : {"", "<html></html>", "<meta name=\"tarnvik-record\" content=\"{}\"><footer></footer>",
                                "<meta name=\"tarnvik-record\" content=\"{&quot;inputs&quot;:1}\"><footer></footer>",
                                "<meta name=\"tarnvik-record\" content=\"not json\"><footer></footer>"}) {
        Write(file, content);
        const ToolRun run = Tool({"--verify", file});
        EXPECT_EQ(run.status, 2) << content;
        EXPECT_EQ(run.err, "tarnvik-check: " + file + ": expected a check sheet\n") << content;
    }
}

TEST_F(Sheets, a_stopped_check_has_none) {
    const ToolRun run = Tool({"--lang", "Eng", "--set", "Bolt_index=7", "--set", "Med_bulldog=true", "--set",
                              "Kun_bolt=false", "--set", "Bulldog_index=0", "--sheet", file});
    EXPECT_EQ(run.status, 3);
    EXPECT_EQ(run.err, "tarnvik-check: " + file + ": not written, the check was stopped\n");
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(Sheets, a_folder_that_is_not_there_is_told) {
    const ToolRun run = Tool({"--sheet", (folder / "none" / "sheet.html").string()});
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.err.find("sheet.html: cannot be written: "), std::string::npos) << run.err;
}

TEST_F(Sheets, options_that_do_not_go_together_are_refused) {
    const auto error = [](const std::vector<std::string>& options) { return Tool(options).err; };
    EXPECT_EQ(error({"--verify", "a", "--batch"}),
              "tarnvik-check: --batch, --verify: expected one of them, got both\n");
    EXPECT_EQ(error({"--batch", "--sheet", "a"}), "tarnvik-check: --sheet: expected one project, or none\n");
    EXPECT_EQ(error({"--sheets", "a"}), "tarnvik-check: --sheets: expected --batch beside it\n");
    EXPECT_EQ(error({"--verify", "a", "--save", "b"}),
              "tarnvik-check: --verify: expected no project, and no --save, --report, --sheet, --with or --fields\n");
}

TEST_F(Sheets, every_line_of_a_batch_has_its_own) {
    const std::string sheets = (folder / "all" / "sheets").string();
    const ToolRun run = Tool({"--lang", "Eng", "--batch", "--jobs", "2", "--fields", "uf", "--sheets", sheets},
                             "{\"Id\":\"Heel 1/ø\",\"P\":1}\n\n{\"Lastvar\":9}\n{\"P\":\"x\"}\n{\"Id\":\"\"}\n");
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator{sheets}) {
        names.insert(entry.path().filename().string());
        EXPECT_EQ(Tool({"--verify", entry.path().string()}).status, 0) << entry.path();
    }
    EXPECT_TRUE(names.contains("000001-Heel_1_ø.html"));
    EXPECT_TRUE(names.contains("000005.html"));
    EXPECT_FALSE(names.contains("000004.html")); // refused
    EXPECT_EQ(run.status, 2) << run.err;         // the worst
}

// The line leaves he out of date: the sheet says so, and is verified as it is.
TEST_F(Sheets, a_splitting_check_out_of_date_stays_so) {
    const std::string sheets = (folder / "sheets").string();
    Tool({"--lang", "Eng", "--batch", "--fields", "uf", "--sheets", sheets},
         "[{\"Man_he_on\":true,\"man_he\":40},{\"P\":11}]\n");
    const std::filesystem::path sheet = std::filesystem::directory_iterator {
        sheets
        } -> path();
    EXPECT_NE(Read(sheet).find("Not checked: h<sub>e</sub> has not been accepted."), std::string::npos);
    EXPECT_EQ(Tool({"--verify", sheet.string()}).status, 0);
}

TEST(SheetName, holds_what_a_file_name_can) {
    EXPECT_EQ(Sheet_name(7, "A.1 b/c:d"), "000007-A.1_b_c_d.html");
    EXPECT_EQ(Sheet_name(1234567, "  "), "1234567.html");
    EXPECT_EQ(Sheet_name(1, std::string(60, 'x')), "000001-" + std::string(40, 'x') + ".html");
}

} // namespace
} // namespace tarnvik
