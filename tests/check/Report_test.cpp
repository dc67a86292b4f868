// The report by the headless tool: the group `report` of the JSON and --report.
#include <filesystem>

#include "calc/RuntimeFault.h"
#include "tests/support/RecordingRendering.h"
#include "tests/support/Report.h"
#include "tests/support/Tool.h"

namespace tarnvik {
namespace {

using namespace test;

// The prints of a result, in turn.
std::vector<Json> Prints_of(const Json& result) {
    std::vector<Json> prints;
    for (const Json& call : result.at("report")) {
        if (call.at("op") == "Print") {
            prints.push_back(call);
        }
    }
    return prints;
}

// The text printed at a place of the second page.
std::string Text_on_2(const Json& result, double x, double y) {
    for (const Json& call : Prints_of(result)) {
        if (call.at("page") == 2 && call.at("x") == x && call.at("y") == y) {
            return call.at("text");
        }
    }
    return "(none)";
}

TEST(ReportGroup, is_every_call_with_its_page_arguments_and_font) {
    const Json result = Tool({"--lang", "Eng", "--with", "report"}).Object();
    const Json& calls = result.at("report");
    EXPECT_EQ(calls.at(0), Json::parse(R"({"page":1,"op":"ScaleLeft","value":0})"));
    EXPECT_EQ(calls.at(3), Json::parse(R"({"page":1,"op":"ScaleHeight","value":-290})"));
    EXPECT_EQ(calls.at(6), Json::parse(R"({"page":1,"op":"DrawWidth","value":6})"));
    EXPECT_EQ(calls.at(7), Json::parse(R"({"page":1,"op":"Line","x1":15,"y1":290,"x2":185,"y2":290,"draw_width":6})"));
    EXPECT_EQ(Prints_of(result).at(0), Json::parse(R"({"page":1,"op":"Print","text":"Tarnvik","x":16,"y":289.8,)"
                                                   R"("font":{"name":"arial","size":11,"bold":true,"italic":false}})"));
    EXPECT_EQ(calls.back(), Json::parse(R"({"page":2,"op":"EndDoc"})"));
    EXPECT_NE(std::find(calls.begin(), calls.end(),
                        Json::parse(R"({"page":1,"op":"PaintPicture","picture":"Frm_tarn_vik_forbindelser/Pic_1_1",)"
                                    R"("x":16,"y":229,"width":30,"height":-30})")),
              calls.end());
}

TEST(ReportGroup, the_state_beside_it_is_that_of_the_check) {
    const Json result = Tool({"--lang", "Eng", "--set", "Lastvar=3", "--with", "report"}).Object();
    EXPECT_EQ(result.at("state").at("Lastvar_txt"), "Medium term action  ");
    const auto prints = Prints_of(result);
    EXPECT_TRUE(
        std::any_of(prints.begin(), prints.end(), [](const Json& print) { return print.at("text") == "Medium te"; }));
}

TEST(ReportGroup, a_new_project_has_no_file_and_an_opened_one_has) {
    const TemporaryFolder folder;
    const std::string path = (folder / "truss.tnvik").string();
    EXPECT_EQ(Prints_of(Tool({"--lang", "Eng", "--with", "report", "--save", path}).Object()).at(14).at("text"), "");
    EXPECT_EQ(Prints_of(Tool({"--with", "report", path}).Object()).at(14).at("text"), path);
}

TEST(ReportGroup, texts_outlive_a_print_within_a_run) {
    const std::string six = R"({"Con_type":1,"Ant_index":4})";
    const std::string three = R"({"Con_type":1,"Ant_index":2,"Bolt_ab":"b"})";
    const auto lines =
        Tool({"--batch", "--lang", "Eng", "--with", "report"}, three + "\n" + six + "\n" + three + "\n").Lines();
    ASSERT_EQ(lines.size(), 3U);
    const double y13 = 262 - 4 * 17;
    EXPECT_EQ(Text_on_2(lines[0], 95, y13), "");
    EXPECT_EQ(Text_on_2(lines[2], 95, y13), "b5  = " + lines[1].at("state").at("Sb5_txt").get<std::string>());
}

TEST(ReportGroup, a_stopped_check_prints_what_stands) {
    const auto run = Tool({"--with", "report", "--set", "Bulldog_index=0", "--set", "Bolt_index=3", "--set",
                           "Med_bulldog=true", "--set", "Kun_bolt=false"});
    EXPECT_EQ(run.status, exit_stopped);
    EXPECT_EQ(run.Object().at("end"), "connector refused");
    EXPECT_EQ(run.Object().at("report").back().at("op"), "EndDoc");
}

TEST(ReportGroup, a_print_that_fails_ends_where_it_fails) {
    const auto run = Tool({"--batch", "--with", "report"}, "{\"Mat_index\":500}\n{}\n");
    const auto lines = run.Lines();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].at("end"), "fault");
    EXPECT_NE(lines[0].at("report").back().at("op"), "EndDoc");
    EXPECT_EQ(lines[1].at("report").back().at("op"), "EndDoc");
}

TEST(ReportFile, is_drawn_once_with_project_and_identification_as_its_title) {
    RecordingRendering rendering;
    const ToolRun run = Tool_with(&rendering, {"--lang", "Eng", "--set", "P=1", "--report", "out.pdf"});
    EXPECT_EQ(run.status, exit_holds) << run.err;
    ASSERT_EQ(rendering.files.size(), 1U);
    EXPECT_EQ(rendering.files[0], "out.pdf");
    EXPECT_EQ(rendering.titles[0], "Project 1, Bolt Connections -1");
    EXPECT_TRUE(Printed(rendering.recorder, "21.11.2026"));
    EXPECT_EQ(rendering.recorder.calls.back().op, PrintCall::Op::EndDoc);
}

TEST(ReportFile, the_exit_status_stays_that_of_the_check) {
    RecordingRendering rendering;
    EXPECT_EQ(Tool_with(&rendering, {"--set", "P=500", "--report", "out.pdf"}).status, exit_fails);
    EXPECT_EQ(rendering.files.size(), 1U);
}

TEST(ReportFile, is_not_written_where_the_check_was_stopped) {
    RecordingRendering rendering;
    const ToolRun run = Tool_with(&rendering, {"--set", "Bulldog_index=0", "--set", "Bolt_index=3", "--set",
                                               "Med_bulldog=true", "--set", "Kun_bolt=false", "--report", "out.pdf"});
    EXPECT_EQ(run.status, exit_stopped);
    EXPECT_TRUE(rendering.files.empty());
    EXPECT_EQ(run.err, "tarnvik-check: out.pdf: not written, the check was stopped\n");
}

TEST(ReportFile, a_file_that_cannot_be_written_is_told) {
    RecordingRendering rendering;
    rendering.fault = fault_path_not_found;
    const ToolRun run = Tool_with(&rendering, {"--set", "P=1", "--report", "/no/such/out.pdf"});
    EXPECT_EQ(run.status, exit_usage);
    EXPECT_EQ(run.err, "tarnvik-check: /no/such/out.pdf: cannot be written: path not found\n");
}

TEST(ReportFile, wrong_usage) {
    RecordingRendering rendering;
    EXPECT_EQ(Tool_with(nullptr, {"--report", "out.pdf"}).err,
              "tarnvik-check: --report needs tarnvik-paint beside the program; the package tarnvik has it, or a build "
              "with the window\n");
    EXPECT_EQ(Tool_with(nullptr, {"--report", "out.pdf"}).status, exit_usage);
    EXPECT_EQ(Tool_with(&rendering, {"--report"}).err, "tarnvik-check: --report: expected a file\n");
    EXPECT_EQ(Tool_with(&rendering, {"--report", "out.pdf", "--batch"}, "{}\n").err,
              "tarnvik-check: --report: expected one project, or none\n");
    EXPECT_EQ(Tool_with(&rendering, {"--report", "out.pdf", "a.tnvik", "b.tnvik"}).status, exit_usage);
    EXPECT_TRUE(rendering.files.empty());
}

} // namespace
} // namespace tarnvik
