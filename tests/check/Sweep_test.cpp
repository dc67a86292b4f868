#include "check/Sweep.h"

#include <algorithm>
#include <sstream>

#include "tests/support/Tool.h"

namespace tarnvik {
namespace {

using test::Json;
using test::Text_lines;
using test::Tool;
using test::ToolRun;
using Arguments = std::vector<std::string>;

Arguments Joint(const Arguments& further) {
    Arguments arguments{"--lang",     "Eng",    "--joint", "1.2",     "--member1", "2x48x198", "--member2",
                        "48x223",     "--bolt", "M16x8.8", "--bolts", "2",         "--layout", "b",
                        "--material", "C24",    "--angle", "40",      "--load",    "medium"};
    arguments.insert(arguments.end(), further.begin(), further.end());
    return arguments;
}

TEST(Sweep, ranges_end_where_they_are_said_to) {
    struct Row {
        const char* text;
        std::vector<std::string> values;
    };
    const Row rows[] = {
        {"P=0:40:10", {"0", "10", "20", "30", "40"}},
        {"P=0:39:10", {"0", "10", "20", "30"}},
        {"P=0:0.3:0.1", {"0", "0.1", "0.2", "0.3"}},
        {"P=0:0,2:0,1", {"0", "0.1", "0.2"}},
        {"P=-0.2:0.1:0.1", {"-0.2", "-0.1", "0", "0.1"}},
        {"P=2:1:-0.5", {"2", "1.5", "1"}},
        {"P=5:5:1", {"5"}},
    };
    for (const Row& row : rows) {
        const SweepRange range = Parse_sweep(row.text);
        std::vector<std::string> values;
        for (std::size_t i = 0; i < range.Count(); ++i) {
            values.push_back(range.Text(i));
        }
        EXPECT_EQ(values, row.values) << row.text;
    }
}

TEST(Sweep, a_point_is_the_check_of_its_inputs) {
    const auto lines = Tool(Joint({"--json", "--sweep", "tension=5:20:5"})).Lines();
    ASSERT_EQ(lines.size(), 4U);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string tension = std::to_string(5 * (i + 1));
        EXPECT_EQ(lines[i]["tension"].dump(), tension);
        EXPECT_EQ(lines[i]["checks"], Tool(Joint({"--json", "--tension", tension})).Object()["checks"]);
    }
    // The force across the grain goes with the force.
    EXPECT_NEAR(lines[3]["checks"]["splitting"]["value"].get<double>(),
                4.0 * lines[0]["checks"]["splitting"]["value"].get<double>(), 1e-5);
}

TEST(Sweep, a_table_with_a_line_a_point) {
    const auto lines = Text_lines(Tool(Joint({"--tension", "5", "--sweep", "Txt_h2=150:200:50"})).out);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0], "Txt_h2,utilisation,splitting,fits_a,fits_a_limit,fits_b,fits_b_limit,connectors_fit_a,"
                        "connectors_fit_a_limit,connectors_fit_b,connectors_fit_b_limit,governing,holds,text,warnings");
    const auto columns = std::count(lines[0].begin(), lines[0].end(), ',');
    for (const std::string& line : lines) {
        EXPECT_EQ(std::count(line.begin(), line.end(), ','), columns) << line;
    }
    EXPECT_EQ(lines[1].substr(0, 4), "150,");
    EXPECT_NE(lines[1].find(",96,198,"), std::string::npos); // a1 + a2 = 3d + 3d
    EXPECT_NE(lines[1].find(",150,,,,,h,false,Does not hold: distances of bolts,"), std::string::npos) << lines[1];
    EXPECT_NE(lines[2].find(",200,,,,,h,true,Holds,"), std::string::npos) << lines[2];
    const std::string failing = Tool(Joint({"--sweep", "tension=40:40:1"})).out;
    EXPECT_NE(failing.find(",\"Does not hold: utilisation, splitting\",\n"), std::string::npos);
}

TEST(Sweep, two_inputs_give_a_grid) {
    const auto lines =
        Tool(Joint({"--json", "--tension", "1", "--sweep", "angle=0:90:45", "--sweep", "bolts=1:2:1"})).Lines();
    ASSERT_EQ(lines.size(), 6U);
    EXPECT_EQ(lines[1]["angle"], 0);
    EXPECT_EQ(lines[1]["bolts"], 2);
    EXPECT_EQ(lines[2]["angle"], 45);
    EXPECT_EQ(lines[2]["bolts"], 1);
}

TEST(Sweep, status_and_points_that_stop) {
    EXPECT_EQ(Tool(Joint({"--sweep", "tension=0:1:1"})).status, 0);
    EXPECT_EQ(Tool(Joint({"--sweep", "tension=0:100:50"})).status, 1);
    EXPECT_EQ(Tool(Joint({"--tension", "1", "--sweep", "Txt_h2=150:150:1"})).status, 0);
    EXPECT_EQ(Tool(Joint({"--tension", "1", "--strict", "--sweep", "Txt_h2=150:150:1"})).status, 1);
    const ToolRun run = Tool(Joint({"--sweep", "Mat_index=36:101:65"}));
    EXPECT_EQ(run.status, 3);
    EXPECT_NE(run.out.find("\n101,,,,,,,,,,,,,Not current: material is not in its table,"
                           "\"Mat_index: expected 0 to 36, a row of the materials, got 101\"\n"),
              std::string::npos)
        << run.out;
    EXPECT_EQ(Tool(Joint({"--strict", "--sweep", "Mat_index=36:101:65"})).err,
              "tarnvik-check: --sweep: Mat_index: expected 0 to 36, a row of the materials, got 101\n");
    const ToolRun refused = Tool(Joint({"--sweep", "angle=80:100:10"}));
    EXPECT_EQ(refused.out, ""); // nothing of a sweep that does not come to its end
    EXPECT_EQ(refused.err, "tarnvik-check: angle: expected 0 to 90 degrees, got \"100\"\n");
}

TEST(Sweep, refusals) {
    struct Row {
        Arguments arguments;
        const char* err;
    };
    // clang-format off
    const Row rows[] = {
        {{"--sweep", "P"},                  "--sweep: expected NAME=FROM:TO:STEP, got \"P\""},
        {{"--sweep", "P=1:2"},              "--sweep: expected NAME=FROM:TO:STEP, got \"P=1:2\""},
        {{"--sweep", "P=1:2:x"},            "--sweep: expected NAME=FROM:TO:STEP, got \"P=1:2:x\""},
        {{"--sweep", "P=1:2:1:1"},          "--sweep: expected NAME=FROM:TO:STEP, got \"P=1:2:1:1\""},
        {{"--sweep", "bolt=1:2:1"},         "--sweep: expected an input that is a number, got \"bolt\"; nearest: bolts"},
        {{"--sweep", "uf=1:2:1"},           "--sweep: expected an input that is a number, got \"uf\""},
        {{"--sweep", "P=1:2:0"},            "--sweep: expected a step that leads from FROM to TO in fewer than 100000 steps, got \"P=1:2:0\""},
        {{"--sweep", "P=1:2:-1"},           "--sweep: expected a step that leads from FROM to TO in fewer than 100000 steps, got \"P=1:2:-1\""},
        {{"--sweep", "P=0:1:1e-9"},         "--sweep: expected a step that leads from FROM to TO in fewer than 100000 steps, got \"P=0:1:1e-9\""},
        {{"--sweep", "P=0:1:1", "--sweep", "P=0:1:1"}, "--sweep: expected one input, or two for a grid"},
        {{"--sweep", "P=0:1:0.001", "--sweep", "alp=0:90:0.1"}, "--sweep: expected a grid of at most 100000 points"},
        {{"--sweep", "P=0:1:1", "--batch"}, "--batch, --sweep: expected one of them, got both"},
        {{"--plot", "f.svg"},               "--plot: expected --sweep beside it"},
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
