#include "check/Check.h"

#include <filesystem>

#include "data/SetupFile.h"
#include "data/Tables.h"
#include "tests/support/Tool.h"

namespace tarnvik {
namespace {

namespace fs = std::filesystem;
using test::Json;
using test::Names;
using test::TemporaryFolder;
using test::Tool;
using test::ToolRun;

TEST(Check, without_a_project_it_is_that_of_a_new_one) {
    const Json json = Tool({"--json"}).Object();
    EXPECT_EQ(Names(json), (std::vector<std::string>{"end", "messages", "state", "checks"}));
    EXPECT_EQ(json["end"], "normal");
    EXPECT_EQ(json["messages"].size(), 0U);
    const Json& state = json["state"];
    EXPECT_EQ(state["Lang"], "Eng");
    EXPECT_EQ(state["Prosjekt"], "Project 1");
    EXPECT_EQ(state["Id"], "Bolt Connections -1");
    EXPECT_EQ(state["File_name"], "New File");
    EXPECT_EQ(state["Lastvar"], 1);
    EXPECT_EQ(state["Bolt_index"], 6);
    EXPECT_EQ(state["Mat_index"], 3);
    EXPECT_EQ(state["b1"], 34);
    EXPECT_EQ(state["h1"], 95);
    EXPECT_EQ(state["b2"], 36);
    EXPECT_EQ(state["h2"], 73);
    EXPECT_EQ(state["P"], 10);
    EXPECT_EQ(state["alp"], 25);
    EXPECT_EQ(state["Loading"], false);
    EXPECT_EQ(state["Con_code"], "1.1");
}

TEST(Check, exit_status) {
    struct Row {
        const char* name;
        std::vector<std::string> set;
        int status;
        const char* end;
    };
    // clang-format off
    const Row rows[] = {
        {"a small force holds",              {"P=0.01"},                               0, "normal"},
        {"a force of nothing holds",         {"P=0"},                                  0, "normal"},
        {"a large force does not",           {"P=1000"},                               1, "normal"},
        {"nor does it in tension",           {"P=-1000"},                              1, "normal"},
        // The force across the grain, 3 kN sin 25, stands against 14 b sqrt(he / (1 - he / h)) kmod / gamma M = 0.93 kN.
        {"nor in splitting alone",           {"P=3"},                                  1, "normal"},
        {"connector refused",                {"Med_bulldog=true", "Bulldog_index=0"},  3, "connector refused"},
        {"zero section",                     {"Standard=false", "Txt_h2=x"},           3, "zero section"},
        {"no such material",                 {"Mat_index=101"},                        3, "fault"},
    };
    // clang-format on
    for (const Row& row : rows) {
        std::vector<std::string> arguments{"--json"};
        for (const std::string& set : row.set) {
            arguments.insert(arguments.end(), {"--set", set});
        }
        const ToolRun run = Tool(arguments);
        EXPECT_EQ(run.status, row.status) << row.name;
        EXPECT_EQ(run.Object()["end"], row.end) << row.name;
        EXPECT_EQ(run.err, "") << row.name;
        EXPECT_EQ(run.Object().contains("fault"), std::string{row.end} == "fault") << row.name;
        EXPECT_EQ(Tool(std::vector<std::string>(arguments.begin() + 1, arguments.end())).status, row.status)
            << row.name;
    }
}

TEST(Check, splitting_alone_decides_as_well) {
    const Json state = Tool({"--json", "--set", "P=3"}).Object()["state"];
    EXPECT_LT(state["uf"], 1.0);
    EXPECT_GT(state["Tverr_kontroll"], 1.0);
}

TEST(Check, a_fault_is_told_by_number_description_and_place) {
    const Json json = Tool({"--json", "--set", "Mat_index=101"}).Object();
    EXPECT_EQ(json["fault"].dump(), R"({"number":9,"description":"subscript out of range","where":"Get_material"})");
}

TEST(Check, messages_have_text_and_style) {
    const std::vector<std::string> refused{"--json", "--set", "Med_bulldog=true", "--set", "Bulldog_index=0"};
    EXPECT_EQ(Tool(refused).Object()["messages"].dump(),
              R"([{"text":"Use larger connector or smaller bolt","style":0}])");
    std::vector<std::string> norwegian = refused;
    norwegian.insert(norwegian.end(), {"--lang", "Nor"});
    EXPECT_EQ(Tool(norwegian).Object()["messages"].dump(),
              R"([{"text":"Bruk større forbinder eller mindre bolt","style":0}])");
}

TEST(Check, the_language_of_a_new_project) {
    const Json state = Tool({"--json", "--lang", "Nor"}).Object()["state"];
    EXPECT_EQ(state["Lang"], "Nor");
    EXPECT_EQ(state["Prosjekt"], "Prosjekt 1");
    EXPECT_EQ(state["Id"], "Bolteforbindelse - 1");
    EXPECT_EQ(state["Lastvar_txt"], "Permanent           ");
    // Written as an input the language comes after the titles.
    const Json later = Tool({"--json", "--set", "Lang=Nor"}).Object()["state"];
    EXPECT_EQ(later["Prosjekt"], "Project 1");
    EXPECT_EQ(later["Lastvar_txt"], "Permanent           ");
}

TEST(Check, inputs_are_written_in_the_order_given) {
    const auto dc = [](const std::vector<std::string>& sets) {
        std::vector<std::string> arguments{"--fields", "dc"};
        for (const std::string& set : sets) {
            arguments.insert(arguments.end(), {"--set", set});
        }
        return Tool(arguments).Object()["state"]["dc"];
    };
    EXPECT_EQ(dc({}), 62);
    EXPECT_EQ(dc({"Bulldog_index=4"}), 117);
    EXPECT_EQ(dc({"Bulldog_index=4", "dc=60"}), 60);
    EXPECT_EQ(dc({"dc=60", "Bulldog_index=4"}), 117);
    EXPECT_EQ(dc({"Bulldog_index=4", "Bulldog_index=0"}), 48);
}

TEST(Check, only_the_fields_that_are_asked_for_in_their_order) {
    const Json state = Tool({"--fields", "uf,P,Mat,alp", "--set", "P=0.1"}).Object()["state"];
    EXPECT_EQ(Names(state), (std::vector<std::string>{"uf", "P", "Mat", "alp"}));
    EXPECT_EQ(state["Mat"].size(), 37U);
    EXPECT_NE(Tool({"--fields", "P", "--set", "P=0.1"}).out.find("\"P\":0.1}"), std::string::npos);
    EXPECT_EQ(Tool({"--fields", ""}).Object()["state"].dump(), "{}");
}

TEST(Check, the_screen_on_request) {
    EXPECT_FALSE(Tool({"--json"}).Object().contains("screen"));
    const Json screen = Tool({"--with", "screen", "--set", "P=1000"}).Object()["screen"];
    EXPECT_EQ(screen["txtprosjekt"]["caption"], "Project 1");
    EXPECT_EQ(screen["Lbl_kmod2"]["caption"], "0.60 ");
    EXPECT_EQ(screen["Lbl_last_kontroll"]["caption"], "1000.0");
    EXPECT_EQ(screen["Lbl_uf"]["fore"], 255);
    EXPECT_EQ(screen["Lbl_uf"]["bold"], true);
    EXPECT_EQ(screen["Cmd_detail"]["visible"], true);
    EXPECT_EQ(Tool({"--with", "screen", "--set", "P=0.01"}).Object()["screen"]["Lbl_uf"]["fore"], 32768);
}

TEST(Check, the_tables_of_distances_and_the_picture_keys_on_request) {
    const Json json = Tool({"--with", "tables,pictures"}).Object();
    EXPECT_EQ(Names(json), (std::vector<std::string>{"end", "messages", "state", "checks", "tables", "pictures"}));
    EXPECT_EQ(Names(json["tables"]), (std::vector<std::string>{"Pic_av_bolter_dif", "Pic_av_bulldog_dif"}));
    ASSERT_FALSE(json["tables"]["Pic_av_bolter_dif"].empty());
    EXPECT_EQ(Names(json["tables"]["Pic_av_bolter_dif"][0]),
              (std::vector<std::string>{"x", "y", "text", "bold", "fore"}));
    EXPECT_FALSE(json["pictures"].empty());
    for (const auto& picture : json["pictures"].items()) {
        EXPECT_TRUE(picture.value().is_string()) << picture.key();
    }
}

TEST(Check, pictures_and_the_report_need_the_build_with_the_window) {
    const TemporaryFolder folder;
    for (const char* option : {"--pictures", "--report"}) {
        const ToolRun run = Tool({option, (folder / "a").string()});
        EXPECT_EQ(run.status, exit_usage);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(
            run.err,
            "tarnvik-check: " + std::string{option} +
                " needs tarnvik-paint beside the program; the package tarnvik has it, or a build with the window\n");
    }
    EXPECT_EQ(folder.Files(), 0U);
}

TEST(Check, report_details_and_explanations_on_request) {
    const Json json = Tool({"--with", "report,detail,explanations"}).Object();
    EXPECT_EQ(Names(json),
              (std::vector<std::string>{"end", "messages", "state", "checks", "report", "detail", "explanations"}));
    EXPECT_EQ(json["report"].back().dump(), R"({"page":2,"op":"EndDoc"})");
    EXPECT_FALSE(json["detail"].empty());
    EXPECT_FALSE(json["explanations"].empty());
    EXPECT_EQ(json["state"]["Lastvar_txt"], "Permanent action    "); // the print, which cuts it, comes after the state
    // Texts first, then the equations.
    EXPECT_EQ(json["detail"].front().dump(), R"({"x":2,"y":98,"text":"Single shear :","font":"Tahoma","bold":true,)"
                                             R"("small":false,"right":false,"fore":0})");
    EXPECT_EQ(Names(json["detail"].back()), (std::vector<std::string>{"x", "y", "w", "h", "picture"}));
    EXPECT_EQ(json["detail"].back()["picture"], "frmDetailed/Pic_r_f");
    EXPECT_EQ(json["explanations"].size(), 5U);
    EXPECT_EQ(json["explanations"]["Frm_tarn_vik_effbolt"]["caption"], "Number of effective bolts");
    EXPECT_EQ(json["explanations"]["Frm_tarn_vik_effbolt"]["painting"][0]["text"], "Effective number of bolts:");
    // Without a pass that came to its end there is nothing to explain in detail.
    EXPECT_EQ(Tool({"--with", "detail", "--set", "Mat_index=101"}).Object()["detail"].size(), 0U);
}

TEST(Check, nothing_is_printed_that_rests_on_a_refused_input) {
    for (const char* set : {"P=x", "Nothing=1", "Klima=1.5", "enk_1=maybe"}) {
        const ToolRun run = Tool({"--set", "alp=30", "--set", set, "--set", "P=5"});
        EXPECT_EQ(run.status, exit_usage) << set;
        EXPECT_EQ(run.out, "") << set;
        EXPECT_NE(run.err.find(std::string{set}.substr(0, std::string{set}.find('='))), std::string::npos) << run.err;
    }
}

TEST(Check, a_refused_input_saves_nothing) {
    const TemporaryFolder folder;
    EXPECT_EQ(Tool({"--set", "P=x", "--save", (folder / "a").string()}).status, exit_usage);
    EXPECT_EQ(folder.Files(), 0U);
}

TEST(Check, data_files_of_another_folder) {
    const TemporaryFolder folder;
    for (const char* name : {material_file, profile_file, setup_file_read}) {
        fs::copy_file(fs::path{TARNVIK_DATA_DIR} / name, folder / name);
    }
    test::Write_file(folder / profile_file, "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n"
                                            "P0;T;S;1;2\r\nP1;T;S;1;2\r\nP2;T;S;1;2\r\nP3;T;S;61;198\r\nP4;T;S;1;2\r\n"
                                            "P5;T;S;1;2\r\nP6;T;S;73;148\r\n");
    const Json state = Tool({"--data", folder.Path().string(), "--json"}).Object()["state"];
    EXPECT_EQ(state["b1"], 61);
    EXPECT_EQ(state["h1"], 198);
    EXPECT_EQ(state["b2"], 73);
    EXPECT_EQ(state["h2"], 148);
    EXPECT_EQ(state["Prof1_count"], 6);
}

TEST(Check, a_missing_data_file_is_named) {
    const TemporaryFolder folder;
    const std::string dir = folder.Path().string();
    ToolRun run = Tool({"--data", dir});
    EXPECT_EQ(run.status, exit_usage);
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.err.find("tarnvik-check: TarnvikMaterial.csv in " + dir + ": file not found\n"), std::string::npos);
    fs::copy_file(fs::path{TARNVIK_DATA_DIR} / material_file, folder / material_file);
    run = Tool({"--data", dir});
    EXPECT_EQ(run.status, exit_usage);
    EXPECT_NE(run.err.find("tarnvik-check: TarnvikProfile.csv in " + dir + ": file not found\n"), std::string::npos);
}

TEST(Check, a_missing_setup_file_is_a_warning) {
    const TemporaryFolder folder;
    fs::copy_file(fs::path{TARNVIK_DATA_DIR} / material_file, folder / material_file);
    fs::copy_file(fs::path{TARNVIK_DATA_DIR} / profile_file, folder / profile_file);
    const ToolRun run = Tool({"--data", folder.Path().string(), "--json", "--set", "P=0.01"});
    EXPECT_EQ(run.status, exit_holds);
    EXPECT_NE(run.err.find("Tarnviksetup.csv"), std::string::npos);
    EXPECT_NE(run.err.find(folder.Path().string()), std::string::npos);
    EXPECT_NE(run.err.find("Norwegian"), std::string::npos);
    const Json state = run.Object()["state"];
    EXPECT_EQ(state["Lastvar_txt"], "Permanent           ");
    EXPECT_NE(run.out.find("\"gm_T\":1.3,\"gm_L\":1.25,\"gm_Ke\":1.2,\"gm_K\":1.25,"), std::string::npos);
}

class CheckProjects : public testing::Test {
protected:
    [[nodiscard]] std::string File(const std::string& name) const { return (folder / name).string(); }

    TemporaryFolder folder;
};

TEST_F(CheckProjects, a_saved_project_opens_with_every_input) {
    const std::vector<std::string> sets{
        "Prosjekt=Brø – 1", "Id=S2",      "Lastvar=3",       "Klima=2",          "Mat_index=30", "Standard=false",
        "Txt_b1=90.5",      "Txt_h1=405", "Txt_b2=115",      "Txt_h2=360",       "Con_type=3",   "enk_1=false",
        "dob_1=true",       "alp=47.5",   "Kun_bolt=false",  "Med_bulldog=true", "Bolt_index=5", "Bulldog_index=2",
        "Ant_index=3",      "Bolt_ab=a",  "Avstand_index=7", "P=-33.25",         "gm_L=1.15",    "Prof1_index=10",
        "Prof2_index=12",   "man_he=44",  "Man_he_on=true"};
    std::vector<std::string> arguments{"--json", "--save", File("a.tnvik")};
    for (const std::string& set : sets) {
        arguments.insert(arguments.end(), {"--set", set});
    }
    Json saved = Tool(arguments).Object();
    Json opened = Tool({"--json", "--lang", "Nor", File("a.tnvik")}).Object();
    EXPECT_EQ(opened["project"], File("a.tnvik"));
    EXPECT_EQ(opened["state"]["File_name"], File("a.tnvik"));
    EXPECT_EQ(opened["state"]["Lang"], "Eng"); // the file's, whatever the option says for a new project
    EXPECT_EQ(opened["state"]["Prosjekt"], "Brø – 1");
    EXPECT_EQ(opened["state"]["P"], -33.25);
    EXPECT_EQ(opened["state"]["dc"], 75);
    EXPECT_NE(Tool({"--fields", "gm_L,gm", File("a.tnvik")}).out.find(R"({"gm_L":1.15,"gm":1.15})"), std::string::npos);
    opened.erase("project");
    opened["state"]["File_name"] = saved["state"]["File_name"];
    EXPECT_EQ(opened.dump(), saved.dump());
}

// Every line of bytes on the page: an offset of eight digits, two blanks and up to 16 bytes.
TEST_F(CheckProjects, the_worked_example_of_the_file_formats_page_is_a_new_project) {
    Tool({"--lang", "Eng", "--save", File("New File")});
    const std::string bytes = test::Read_file(folder / "New File");
    EXPECT_EQ(bytes.size(), 13443U);
    std::istringstream page{test::Read_file(fs::path{TARNVIK_SOURCE_DIR} / "docs" / "file-formats.md")};
    std::size_t compared = 0;
    for (std::string line; std::getline(page, line);) {
        const std::size_t digits = line.find_first_not_of("0123456789abcdef");
        if (digits != 8 || line.compare(8, 2, "  ") != 0) {
            continue;
        }
        const std::size_t offset = std::stoul(line.substr(0, 8), nullptr, 16);
        for (std::size_t i = 0; i < 16 && 10 + 3 * i < line.size() && line[10 + 3 * i] != ' '; ++i) {
            ASSERT_LT(offset + i, bytes.size());
            EXPECT_EQ(static_cast<unsigned char>(bytes[offset + i]),
                      std::stoul(line.substr(10 + 3 * i, 2), nullptr, 16))
                << line << ", byte " << i;
            ++compared;
        }
    }
    EXPECT_EQ(compared, 0xA0U + 0x76U);
}

TEST_F(CheckProjects, inputs_are_written_after_opening) {
    EXPECT_NE(Tool({"--set", "P=3", "--set", "alp=50", "--save", File("a")}).status, exit_usage);
    const Json state = Tool({"--json", "--set", "P=4", File("a")}).Object()["state"];
    EXPECT_EQ(state["P"], 4);
    EXPECT_EQ(state["alp"], 50);
}

TEST_F(CheckProjects, a_project_can_be_saved_onto_itself_or_under_another_name) {
    Tool({"--save", File("a")});
    Tool({"--set", "P=4", "--save", File("b"), File("a")});
    EXPECT_EQ(Tool({"--json", File("a")}).Object()["state"]["P"], 10);
    EXPECT_EQ(Tool({"--json", File("b")}).Object()["state"]["P"], 4);
    Tool({"--set", "P=5", "--save", File("b"), File("b")});
    EXPECT_EQ(Tool({"--json", File("b")}).Object()["state"]["P"], 5);
    EXPECT_EQ(folder.Files(), 2U);
}

TEST_F(CheckProjects, several_projects_are_independent_and_the_worst_status_counts) {
    Tool({"--set", "P=0.01", "--set", "Id=holds", "--save", File("holds")});
    Tool({"--set", "P=1000", "--set", "gm_T=2", "--lang", "Nor", "--save", File("fails")});
    Tool({"--set", "Mat_index=101", "--save", File("stops")});
    test::Write_file(folder / "damaged", "Eng");
    struct Row {
        std::vector<std::string> files;
        int status;
    };
    const Row rows[] = {
        {{"holds", "holds"}, 0},
        {{"holds", "fails"}, 1},
        {{"fails", "holds"}, 1},
        {{"fails", "stops", "holds"}, 3},
        {{"stops", "damaged", "holds"}, 2},
        {{"missing", "holds"}, 2},
    };
    for (const Row& row : rows) {
        std::vector<std::string> arguments{"--json"};
        std::size_t readable = 0;
        for (const std::string& file : row.files) {
            arguments.push_back(File(file));
            readable += file == "missing" || file == "damaged" ? 0 : 1;
        }
        const ToolRun run = Tool(arguments);
        EXPECT_EQ(run.status, row.status);
        ASSERT_EQ(run.Lines().size(), readable); // an unreadable one stands in nobody's way
        if (row.files.back() == "holds") {
            EXPECT_EQ(run.Lines().back().dump(), Tool({"--json", File("holds")}).Object().dump());
        }
    }
}

TEST_F(CheckProjects, a_half_written_project_is_mended_and_told) {
    ASSERT_EQ(Tool({"--json", "--save", File("holds")}).err, "");
    test::Write_file(folder / ".holds.undo", test::Read_file(File("holds")));
    const ToolRun whole = Tool({"--json", File("holds")});
    EXPECT_EQ(whole.err, "");
    test::Write_file(folder / ".holds.undo", test::Read_file(File("holds")));
    test::Write_file(folder / "holds", "half");
    const ToolRun mended = Tool({"--json", File("holds")});
    EXPECT_EQ(mended.out, whole.out);
    EXPECT_NE(mended.err.find("holds: was left half-written; its former content is back, what was there lies in "),
              std::string::npos);
    EXPECT_NE(mended.err.find("holds~\n"), std::string::npos);
}

TEST_F(CheckProjects, an_unreadable_project_is_named_with_what_was_expected) {
    test::Write_file(folder / "damaged", "Eng");
    struct Row {
        std::string path;
        const char* reason;
    };
    const Row rows[] = {
        {File("missing"), "expected a project file: file not found"},
        {File("no/a"), "expected a project file: path not found"},
        {File("damaged"), "expected a project file: it ends too soon"},
        {folder.Path().string(), "expected a project file: path or file cannot be accessed"},
    };
    for (const Row& row : rows) {
        const ToolRun run = Tool({row.path});
        EXPECT_EQ(run.status, exit_usage);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err, "tarnvik-check: " + row.path + ": " + row.reason + "\n");
    }
}

TEST_F(CheckProjects, what_cannot_be_saved_is_told) {
    const ToolRun run = Tool({"--json", "--save", File("no/a")});
    EXPECT_EQ(run.status, exit_usage);
    EXPECT_EQ(run.err, "tarnvik-check: " + File("no/a") + ": cannot be saved: path not found\n");
}

TEST(CheckBatch, one_result_a_line_each_from_a_new_project) {
    const ToolRun run = Tool({"--batch", "--fields", "P,alp,Prosjekt"}, "{\"P\":1}\n{\"alp\":30}\r\n{}");
    ASSERT_EQ(run.Lines().size(), 3U);
    EXPECT_EQ(run.Lines()[0]["state"].dump(), R"({"P":1,"alp":25,"Prosjekt":"Project 1"})");
    EXPECT_EQ(run.Lines()[1]["state"].dump(), R"({"P":10,"alp":30,"Prosjekt":"Project 1"})");
    EXPECT_EQ(run.Lines()[2]["state"].dump(), R"({"P":10,"alp":25,"Prosjekt":"Project 1"})");
    EXPECT_EQ(run.err, "");
}

TEST(CheckBatch, a_line_gives_what_the_same_options_give) {
    const ToolRun options = Tool({"--json", "--set", "Con_type=4", "--set", "alp=90", "--set", "P=-3"});
    const ToolRun batch = Tool({"--batch"}, R"({"Con_type":4,"alp":90,"P":-3})");
    EXPECT_EQ(batch.out, options.out);
    EXPECT_EQ(batch.status, options.status);
}

TEST(CheckBatch, what_is_set_on_the_command_line_is_there_for_every_line) {
    const ToolRun run = Tool({"--batch", "--set", "P=7", "--lang", "Nor", "--fields", "P,Lang"}, "{}\n{\"P\":1}\n{}\n");
    ASSERT_EQ(run.Lines().size(), 3U);
    EXPECT_EQ(run.Lines()[0]["state"].dump(), R"({"P":7,"Lang":"Nor"})");
    EXPECT_EQ(run.Lines()[1]["state"].dump(), R"({"P":1,"Lang":"Nor"})");
    EXPECT_EQ(run.Lines()[2]["state"].dump(), R"({"P":7,"Lang":"Nor"})");
}

// From the second pass on a typed section is the rounded one: 48.26 is shown as 48.3.
TEST(CheckBatch, the_objects_of_an_array_follow_one_another) {
    const std::string first = R"({"Standard":false,"Txt_b1":"48.26","Txt_h1":"98","Txt_b2":"48","Txt_h2":"98"})";
    const ToolRun run =
        Tool({"--batch", "--fields", "b1,P"}, "[" + first + "]\n[" + first + ",{\"P\":2}]\n" + "[{\"P\":5},{},{}]\n");
    ASSERT_EQ(run.Lines().size(), 3U);
    EXPECT_NE(run.out.find(R"({"b1":48.26,"P":10})"), std::string::npos);
    EXPECT_NE(run.out.find(R"({"b1":48.3,"P":2})"), std::string::npos);
    EXPECT_NE(run.out.find(R"({"b1":34,"P":5})"), std::string::npos);
}

TEST(CheckBatch, the_result_is_that_of_the_last_pass) {
    // The refused pair leaves the results of the pass before; its message is told by the line that ends with it only.
    const std::string refused = R"({"Med_bulldog":true,"Kun_bolt":false,"Bulldog_index":0})";
    const ToolRun run = Tool({"--batch", "--fields", "uf,Bulldog_invalid"},
                             "{}\n[{}," + refused + "]\n[" + refused + ",{\"Bulldog_index\":1}]\n");
    ASSERT_EQ(run.Lines().size(), 3U);
    EXPECT_EQ(run.Lines()[1]["end"], "connector refused");
    EXPECT_EQ(run.Lines()[1]["messages"].size(), 1U);
    EXPECT_EQ(run.Lines()[1]["state"]["uf"], run.Lines()[0]["state"]["uf"]);
    EXPECT_EQ(run.Lines()[2]["end"], "normal");
    EXPECT_EQ(run.Lines()[2]["messages"].size(), 0U);
    EXPECT_EQ(run.status, exit_stopped);
}

TEST(CheckBatch, a_bad_line_is_told_and_the_run_goes_on) {
    struct Row {
        const char* line;
        const char* words; // in the message
    };
    // clang-format off
    const Row rows[] = {
        {"{",                         "expected JSON"},
        {"{} {}",                     "expected JSON"},
        {"P=1",                       "expected JSON"},
        {"{\"Id\":\"\xC3\"}",         "expected JSON"},
        {"{\"P\":1e999}",             "expected JSON"},
        {"5",                         "expected an object of inputs, got 5"},
        {"[]",                        "expected at least one object of inputs, got []"},
        {"[5]",                       "expected an object of inputs, got 5"},
        {R"({"P":"x"})",              "P: expected a number, got \"x\""},
        {R"({"Pp":1})",               "\"Pp\" is no input"},
        {R"([{"alp":30},{"P":"x"}])", "P: expected a number, got \"x\""},
    };
    // clang-format on
    std::string input = "{}\n";
    for (const Row& row : rows) {
        input += std::string{row.line} + "\n{}\n";
    }
    const ToolRun run = Tool({"--batch", "--fields", "P,alp,uf"}, input);
    const std::vector<Json> lines = run.Lines();
    ASSERT_EQ(lines.size(), 2 * std::size(rows) + 1);
    EXPECT_EQ(run.status, exit_usage);
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        const Json& bad = lines[2 * i + 1];
        EXPECT_EQ(Names(bad), (std::vector<std::string>{"line", "error"})) << rows[i].line; // and no result
        EXPECT_EQ(bad["line"], 2 * i + 2);
        EXPECT_NE(bad["error"].get<std::string>().find(rows[i].words), std::string::npos) << bad;
        EXPECT_NE(run.err.find("tarnvik-check: line " + std::to_string(2 * i + 2) + ": "), std::string::npos);
        EXPECT_EQ(lines[2 * i + 2].dump(), lines[0].dump()) << "behind " << rows[i].line; // no trace of the bad one
    }
}

TEST(CheckBatch, the_worst_status_counts) {
    const std::string holds = R"({"P":0.01})";
    const std::string fails = R"({"P":1000})";
    const std::string stops = R"({"Mat_index":101})";
    EXPECT_EQ(Tool({"--batch"}, "").status, exit_holds);
    EXPECT_EQ(Tool({"--batch"}, "").out, "");
    EXPECT_EQ(Tool({"--batch"}, holds).status, exit_holds);
    EXPECT_EQ(Tool({"--batch"}, fails + "\n" + holds).status, exit_fails);
    EXPECT_EQ(Tool({"--batch"}, stops + "\n" + fails).status, exit_stopped);
    EXPECT_EQ(Tool({"--batch"}, "x\n" + stops).status, exit_usage);
}

TEST(CheckBatch, nesting_of_any_depth_is_an_error_of_its_line) {
    const std::string deep(200000, '[');
    const std::string closed = deep + std::string(200000, ']');
    const ToolRun run = Tool({"--batch", "--fields", "P"}, closed + "\n{\"P\":" + closed + "}\n" + deep + "\n{}\n");
    ASSERT_EQ(run.Lines().size(), 4U);
    EXPECT_EQ(run.Lines()[0]["error"], "expected an object of inputs, got an array");
    EXPECT_EQ(run.Lines()[1]["error"], "P: expected a number, got an array");
    EXPECT_TRUE(run.Lines()[2].contains("error"));
    EXPECT_EQ(run.Lines()[3]["end"], "normal");
}

TEST(CheckBatch, screen_of_every_line) {
    const ToolRun run = Tool({"--batch", "--with", "screen"}, "{\"Mat_index\":101}\n{}\n{\"Mat_index\":101}\n");
    ASSERT_EQ(run.Lines().size(), 3U);
    EXPECT_EQ(run.Lines()[1]["screen"]["Cmd_detail"]["visible"], true);
    EXPECT_EQ(run.Lines()[0].dump(), run.Lines()[2].dump()); // a fresh screen for each
    EXPECT_FALSE(run.Lines()[2]["screen"]["Cmd_detail"].contains("visible"));
}

} // namespace
} // namespace tarnvik
