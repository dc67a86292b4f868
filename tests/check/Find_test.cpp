#include "check/Find.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

#include "tests/support/Tool.h"

namespace tarnvik {
namespace {

using test::Json;
using test::Names;
using test::Text_lines;
using test::Tool;
using test::ToolRun;
using Arguments = std::vector<std::string>;

// A web of two pieces on a chord, in tension.
Arguments Joint(const Arguments& further, const char* angle = "40") {
    Arguments arguments{"--lang", "Eng",        "--joint", "1.2",     "--member1", "2x48x198", "--member2",
                        "48x223", "--material", "C24",     "--angle", angle,       "--load",   "medium"};
    arguments.insert(arguments.end(), further.begin(), further.end());
    return arguments;
}

TEST(Find, what_it_lists_is_the_check_of_it) {
    const Json object = Tool(Joint({"--tension", "12", "--find", "--with-connectors", "--json"})).Object();
    EXPECT_EQ(Names(object), (Arguments{"choices", "holding", "left_out", "found"}));
    EXPECT_EQ(object["choices"], 7680);
    ASSERT_GT(object["found"].size(), 100U);
    for (std::size_t i = 0; i < object["found"].size(); i += 40) {
        const Json& found = object["found"][i];
        EXPECT_EQ(Names(found), (Arguments{"bolt", "bolts", "connector", "layout", "spacing", "other_bolts",
                                           "any_layout", "last_spacing", "governs", "Rd_bolt", "Rd_for", "checks"}));
        // One asks for it with the same words, also for the last of those that make no difference.
        for (const char* spacing : {"spacing", "last_spacing"}) {
            const Json& others = found["other_bolts"];
            const Json& bolt = spacing[0] == 's' || others.empty() ? found["bolt"] : others.back();
            const Json asked =
                Tool(Joint({"--tension", "12", "--json", "--bolt", bolt, "--bolts", found["bolts"].dump(), "--layout",
                            found["layout"], "--connector", found["connector"], "--spacing", found[spacing]}))
                    .Object();
            EXPECT_EQ(found["checks"], asked["checks"]);
            EXPECT_EQ(found["Rd_bolt"], asked["state"]["Rd_bolt"]);
            EXPECT_EQ(found["Rd_for"], asked["state"]["Rd_for"]);
        }
    }
}

TEST(Find, a_table_for_a_person) {
    const ToolRun run = Tool(Joint({"--tension", "12", "--find", "--fix", "bolt=M16x8.8,bolts=2,layout=b"}));
    EXPECT_EQ(run.status, 0);
    const auto lines = Text_lines(run.out);
    ASSERT_GT(lines.size(), 3U);
    EXPECT_EQ(lines[0],
              "bolts  bolt     connector  layout  spacing  utilisation  splitting   member 1, mm    member 2, mm"
              "  governs");
    // a1 + a2 = 3d + 3d = 96 across member 1 of 198
    EXPECT_NE(lines[1].find("    2  M16x8.8  none       b       "), std::string::npos) << lines[1];
    EXPECT_NE(lines[1].find("  96.0 of 198.0  "), std::string::npos) << lines[1];
    EXPECT_EQ(lines[lines.size() - 2], "");
    const std::string counted = std::to_string(lines.size() - 3);
    EXPECT_EQ(lines.back(), counted + " of 16 choices hold and fit; those that make no difference are listed once");
}

TEST(Find, the_mode_that_governs_or_splitting) {
    const std::string bolts = Tool(Joint({"--tension", "4", "--find", "--fix", "bolts=1"}, "0")).out;
    EXPECT_NE(bolts.find("  bolts, mode "), std::string::npos) << bolts;
    EXPECT_NE(bolts.find(" (8.7 "), std::string::npos);
    EXPECT_EQ(bolts.find("  splitting\n"), std::string::npos);
    const std::string splitting = Tool(Joint({"--tension", "6", "--find", "--fix", "bolt=M12x8.8,bolts=4"}, "90")).out;
    EXPECT_NE(splitting.find("  splitting\n"), std::string::npos) << splitting;
}

TEST(Find, connectors_show_the_distances_that_need_more) {
    const ToolRun run =
        Tool(Joint({"--tension", "4", "--find", "--fix", "connector=D75,bolt=M16x8.8,bolts=1,layout=a,spacing=5d"}));
    // Half a connector and its edge distance on both sides: (0.6 + 0.6) D = 90 in member 1, where the bolt needs 3d +
    // 3d.
    EXPECT_NE(run.out.find("    1  M16x8.8  D75        a       5d "), std::string::npos) << run.out;
    EXPECT_NE(run.out.find(" of 198.0"), std::string::npos);
    const Json object =
        Tool(Joint({"--tension", "4", "--find", "--json", "--fix", "connector=D75,bolt=M16x8.8,bolts=1,layout=a"}))
            .Object();
    const Json& checks = object["found"].at(0)["checks"];
    const double more =
        std::max(checks["fits_a"]["value"].get<double>(), checks["connectors_fit_a"]["value"].get<double>());
    std::ostringstream shown;
    shown << "  " << std::fixed << std::setprecision(1) << more << " of 198.0  ";
    EXPECT_NE(run.out.find(shown.str()), std::string::npos) << run.out << shown.str();
}

TEST(Find, csv_with_the_inputs_by_name) {
    const ToolRun run = Tool(Joint({"--tension", "4", "--find", "--csv", "--fix", "bolts=1"}));
    EXPECT_EQ(run.err, "");
    const auto lines = Text_lines(run.out);
    ASSERT_GT(lines.size(), 1U);
    EXPECT_EQ(lines[0],
              "bolt,bolts,connector,layout,spacing,other_bolts,any_layout,last_spacing,governs,Rd_bolt,Rd_for,"
              "utilisation,splitting,"
              "fits_a,fits_a_limit,fits_b,fits_b_limit,connectors_fit_a,connectors_fit_a_limit,connectors_fit_b,"
              "connectors_fit_b_limit,governing,holds,text");
    const auto columns = std::count(lines[0].begin(), lines[0].end(), ',');
    for (std::size_t i = 1; i < lines.size(); ++i) {
        EXPECT_EQ(std::count(lines[i].begin(), lines[i].end(), ','), columns) << lines[i];
        const std::string diameter = lines[i].substr(0, 3);
        EXPECT_EQ(lines[i].find(diameter + "x4.6,1,none,a,5d," + diameter + "x8.8,true,20d,"), 0U) << lines[i];
        EXPECT_TRUE(lines[i].ends_with(",true,Holds")) << lines[i];
    }
}

TEST(Find, nothing_found_says_why) {
    const Arguments joint = Joint({"--tension", "900", "--find", "--fix", "bolts=1,bolt=M24x8.8,spacing=5d"});
    ToolRun run = Tool(joint);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "None of 2 choices holds and fits\n  2: utilisation above 1.0\n  2: splitting above 1.0\n");
    Arguments csv = joint;
    csv.emplace_back("--csv");
    run = Tool(csv);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(Text_lines(run.out).size(), 1U); // the heading
    EXPECT_EQ(run.err, "tarnvik-check: None of 2 choices holds and fits\n"
                       "  2: utilisation above 1.0\n  2: splitting above 1.0\n");
    Arguments json = joint;
    json.emplace_back("--json");
    EXPECT_EQ(Tool(json).out, R"({"choices":2,"holding":0,"left_out":[{"reason":"utilisation above 1.0","choices":2},)"
                              R"({"reason":"splitting above 1.0","choices":2}],"found":[]})"
                              "\n");
    // Each of the other reasons.
    struct Row {
        Arguments further;
        const char* out;
        int status;
    };
    const Row rows[] = {
        {{"--member1", "2x48x70", "--tension", "0.1", "--find", "--fix", "bolts=1,bolt=M12x4.6,spacing=5d"},
         "None of 2 choices holds and fits\n  2: distances of bolts do not fit into member 1\n",
         1},
        {{"--member2", "48x70", "--tension", "0.1", "--find", "--fix", "bolts=1,bolt=M12x4.6,spacing=5d"},
         "None of 2 choices holds and fits\n  2: distances of bolts do not fit into member 2\n",
         1},
        {{"--tension", "0.1", "--find", "--fix", "bolts=1,bolt=M24x4.6,connector=D50"},
         "None of 32 choices holds and fits\n  32: not calculated: connector refused\n",
         3},
        {{"--tension", "0.1", "--set", "Man_he_on=true", "--set", "man_he=300", "--find", "--fix",
          "bolts=1,bolt=M12x4.6,spacing=5d"},
         "None of 2 choices holds and fits\n  2: splitting not checked, he lies outside the member\n",
         1},
    };
    for (const Row& row : rows) {
        Arguments arguments{"--lang", "Eng", "--joint", "1.2", "--angle", "40"};
        const bool sections = row.further[0].starts_with("--member");
        arguments.insert(arguments.end(), {sections && row.further[0] == "--member1" ? "--member2" : "--member1",
                                           sections && row.further[0] == "--member1" ? "48x223" : "2x48x198"});
        if (!sections) {
            arguments.insert(arguments.end(), {"--member2", "48x223"});
        }
        arguments.insert(arguments.end(), row.further.begin(), row.further.end());
        run = Tool(arguments);
        EXPECT_EQ(run.out, row.out);
        EXPECT_EQ(run.status, row.status);
    }
}

TEST(Find, the_joint_may_not_be_anything) {
    const Arguments find{"--lang", "Eng", "--set", "Klima=7", "--tension", "1", "--find"};
    ToolRun run = Tool(find);
    EXPECT_EQ(run.err, "tarnvik-check: warning: Klima: expected 1 to 3, got 7\n");
    Arguments json = find;
    json.emplace_back("--json");
    run = Tool(json);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.Object()["warnings"], Json::parse(R"(["Klima: expected 1 to 3, got 7"])"));
    json.emplace_back("--strict");
    run = Tool(json);
    EXPECT_EQ(run.err, "tarnvik-check: Klima: expected 1 to 3, got 7\n");
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.status, 2);
}

TEST(Find, on_a_project_whose_own_fasteners_count_for_nothing) {
    const test::TemporaryFolder folder;
    const std::string file = (folder / "joint.tnvik").string();
    Tool(Joint({"--tension", "12", "--set", "Bolt_index=99", "--connector", "D117", "--save", file}));
    const ToolRun run = Tool({"--find", "--strict", file});
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, Tool(Joint({"--tension", "12", "--find"})).out);
}

TEST(Find, refusals) {
    struct Row {
        Arguments arguments;
        const char* err;
    };
    // clang-format off
    const Row rows[] = {
        {{"--find", "--fix", "bolt"},                "--fix: expected NAME=VALUE,..., got \"bolt\""},
        {{"--find", "--fix", "bolt=M16x8.8,"},       "--fix: expected NAME=VALUE,..., got \"bolt=M16x8.8,\""},
        {{"--find", "--fix", "angle=3"},             "--fix: expected bolt, bolts, connector, layout or spacing, got \"angle\""},
        {{"--find", "--fix", "bold=M16x8.8"},        "--fix: expected bolt, bolts, connector, layout or spacing, got \"bold\"; nearest: bolt"},
        {{"--find", "--fix", "bolt=M16x8.9"},        "--fix: bolt: expected a bolt, such as M16x8.8, got \"M16x8.9\"; nearest: M16x8.8, M16x4.6, M12x8.8"},
        {{"--find", "--fix", "bolts=5"},             "--fix: bolts: expected 1, 2, 3, 4 or 6, got \"5\""},
        {{"--find", "--fix", "bolts=2", "--fix", "bolts=3"}, "--fix: bolts: expected once, got \"2\" and \"3\""},
        {{"--find", "--fix"},                        "--fix: expected NAME=VALUE,..."},
        {{"--fix", "bolts=2"},                       "--fix: expected --find beside it"},
        {{"--with-connectors"},                      "--with-connectors: expected --find beside it"},
        {{"--find", "--bolt", "M16x8.8"},            "--find looks for bolt: expected --fix bolt=M16x8.8, got --bolt"},
        {{"--find", "--set", "Bolt_index=3"},        "--find looks for Bolt_index: expected --fix with an input by name, got --set Bolt_index"},
        {{"--find", "--sweep", "P=0:1:1"},           "--sweep, --find: expected one of them, got both"},
        {{"--find", "--batch"},                      "--batch, --find: expected one of them, got both"},
        {{"--find", "a.tnvik", "b.tnvik"},           "--find: expected one project or none, and no --save, --report, --sheet, --with or --fields"},
        {{"--find", "--save", "a.tnvik"},            "--find: expected one project or none, and no --save, --report, --sheet, --with or --fields"},
        {{"--csv"},                                  "--csv: expected --find, --loads or --sweep beside it"},
        {{"--find", "--csv", "--json"},              "--csv, --json: expected one of them, got both"},
    };
    // clang-format on
    for (const Row& row : rows) {
        const ToolRun run = Tool(row.arguments);
        EXPECT_EQ(run.err, std::string{"tarnvik-check: "} + row.err + "\n");
        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.out, "");
    }
}

} // namespace
} // namespace tarnvik
