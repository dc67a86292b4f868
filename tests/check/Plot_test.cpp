#include "check/Plot.h"

#include <algorithm>
#include <cmath>

#include "platform/Path.h"
#include "tests/support/Tool.h"

namespace tarnvik {
namespace {

using test::Tool;
using test::ToolRun;
using Arguments = std::vector<std::string>;

Arguments Joint(const Arguments& further) {
    Arguments arguments{"--lang", "Eng",    "--joint", "1.2",     "--member1", "2x48x198", "--member2",
                        "48x223", "--bolt", "M16x8.8", "--bolts", "2",         "--layout", "b"};
    arguments.insert(arguments.end(), further.begin(), further.end());
    return arguments;
}

std::size_t Count(const std::string& svg, const std::string& text) {
    std::size_t count = 0;
    for (std::size_t at = svg.find(text); at != std::string::npos; at = svg.find(text, at + 1)) {
        ++count;
    }
    return count;
}

// Readable in grey: every colour is one.
void Expect_grey(const std::string& svg) {
    for (std::size_t at = svg.find("=\"#"); at != std::string::npos; at = svg.find("=\"#", at + 1)) {
        EXPECT_TRUE(svg[at + 3] == svg[at + 4] && svg[at + 4] == svg[at + 5] && svg[at + 6] == '"')
            << svg.substr(at, 8);
    }
}

SweepPoint Point(double value, float bolts, char mode) {
    SweepPoint point;
    point.values = {value};
    point.judgement.verdict.checks[0] = {true, true, bolts, 1.0F};
    point.judgement.verdict.checks[1] = {true, true, 0.5F, 1.0F};
    point.judgement.verdict.checks[2] = {true, true, 60.0F, 100.0F};
    point.judgement.governing.mode = mode;
    return point;
}

TEST(Plot, curves_limit_modes_and_units) {
    SweepPoint stopped = Point(20.0, 0.7F, 'a');
    stopped.judgement.not_current = "Not current";
    const std::vector<SweepPoint> points{Point(0.0, 0.3F, 'c'), Point(10.0, 0.6F, 'c'), stopped, Point(30.0, 0.9F, 'f'),
                                         Point(40.0, 1.2F, 'f')};
    const std::string svg = Plot_sweep({"tension", 0.0, 40.0, 10.0}, points, "A < B");
    EXPECT_EQ(svg.substr(0, 5), "<svg ");
    EXPECT_EQ(svg.substr(svg.size() - 7), "</svg>\n");
    EXPECT_NE(svg.find(">A &lt; B</text>"), std::string::npos);
    EXPECT_NE(svg.find(">tension, kN</text>"), std::string::npos);
    EXPECT_NE(svg.find(">limit 1.0</text>"), std::string::npos);
    // 0 to 40 from x = 70 to 600; 0 to 1.26 (5 % above the largest) from y = 430 to 50: 0.3 at 339.5, 0.6 at 249.0.
    EXPECT_NE(svg.find("points=\"70.0,339.5 70.0,339.5 202.5,249.0\""), std::string::npos) << svg;
    EXPECT_NE(svg.find("points=\"467.5,158.6 467.5,158.6 600.0,68.1\""), std::string::npos); // behind the gap
    const auto letters = [&svg](char mode) {
        return Count(svg, std::string{"font-weight=\"bold\">"} + mode + "</text>");
    };
    EXPECT_EQ(letters('c'), 1U); // where it begins
    EXPECT_EQ(letters('f'), 1U);
    EXPECT_EQ(letters('a'), 0U);
    Expect_grey(svg);
}

TEST(Plot, is_written_with_the_sweep) {
    const test::TemporaryFolder folder;
    const std::string file = (folder / "plot.svg").string();
    const ToolRun run = Tool(Joint({"--tension", "12", "--sweep", "angle=0:90:1", "--plot", file}));
    EXPECT_EQ(std::count(run.out.begin(), run.out.end(), '\n'), 92);
    EXPECT_NE(test::Read_file(Path_of(file)).find("angle between the members, degrees"), std::string::npos);
    const ToolRun nowhere = Tool(Joint({"--sweep", "angle=0:9:9", "--plot", "/nowhere/plot.svg"}));
    EXPECT_EQ(nowhere.status, 2);
    EXPECT_EQ(nowhere.err, "tarnvik-check: /nowhere/plot.svg: cannot be written: path not found\n");
    // One value alone still has an axis.
    EXPECT_EQ(Tool(Joint({"--tension", "1", "--sweep", "angle=5:5:1", "--plot", file})).status, 0);
    EXPECT_EQ(test::Read_file(Path_of(file)).find("nan"), std::string::npos);
}

SweepPoint Grid_point(double first, double second, float bolts, char mode) {
    SweepPoint point = Point(first, bolts, mode);
    point.values.push_back(second);
    return point;
}

TEST(Plot, a_grid_is_a_field_with_a_limit) {
    SweepPoint stopped = Grid_point(20.0, 1.0, 0.7F, 'a');
    stopped.judgement.not_current = "Not current";
    SweepPoint splitting = Grid_point(20.0, 2.0, 0.7F, 'a');
    splitting.judgement.verdict.checks[1].value = 1.5F;
    // The second input runs; splitting is 0.5 and the distances 0.6 in the others.
    const std::vector<SweepPoint> points{Grid_point(0.0, 1.0, 0.3F, 'c'),
                                         Grid_point(0.0, 2.0, 0.9F, 'c'),
                                         Grid_point(10.0, 1.0, 1.2F, 'f'),
                                         Grid_point(10.0, 2.0, 1.0F, 'g'),
                                         stopped,
                                         splitting};
    const std::string svg = Plot_grid({{"tension", 0.0, 20.0, 10.0}, {"bolts", 1.0, 2.0, 1.0}}, points, "A");
    EXPECT_EQ(svg.substr(0, 5), "<svg ");
    EXPECT_EQ(svg.substr(svg.size() - 7), "</svg>\n");
    Expect_grey(svg);
    // Cells of 10 by 1 about the values: columns from 70 to 246.7, 423.3 and 600, rows from 430 to 240 and 50.
    for (const char* cell : {R"svg(x="70.0" y="240.0" width="176.7" height="190.0" fill="#ddd")svg",
                             R"svg(x="70.0" y="50.0" width="176.7" height="190.0" fill="#aaa")svg",
                             R"svg(x="246.7" y="240.0" width="176.7" height="190.0" fill="#555")svg",
                             R"svg(x="246.7" y="50.0" width="176.7" height="190.0" fill="#aaa")svg",
                             R"svg(x="423.3" y="240.0" width="176.7" height="190.0" fill="url(#none)")svg",
                             R"svg(x="423.3" y="50.0" width="176.7" height="190.0" fill="#555")svg"}) {
        EXPECT_EQ(Count(svg, cell), 1U) << cell;
    }
    for (const char* line : {R"(x1="246.7" y1="430.0" x2="246.7" y2="240.0" stroke="#000" stroke-width="3")",
                             R"(x1="246.7" y1="240.0" x2="423.3" y2="240.0" stroke="#000" stroke-width="3")",
                             R"(x1="423.3" y1="240.0" x2="423.3" y2="50.0" stroke="#000" stroke-width="3")"}) {
        EXPECT_EQ(Count(svg, line), 1U) << line;
    }
    EXPECT_EQ(Count(svg, "stroke-width=\"3\""), 4U); // with that of the legend
    EXPECT_EQ(Count(svg, R"(text-anchor="middle" fill="#000">D</text>)"), 1U);
    EXPECT_EQ(Count(svg, R"(text-anchor="middle" fill="#000">c</text>)"), 1U);
    EXPECT_EQ(Count(svg, R"(text-anchor="middle" fill="#fff">f</text>)"), 1U);
    EXPECT_EQ(Count(svg, R"(text-anchor="middle" fill="#000">g</text>)"), 1U); // 1.0 holds
    EXPECT_EQ(Count(svg, R"(text-anchor="middle" fill="#fff">S</text>)"), 1U);
    EXPECT_EQ(Count(svg, ">a</text>"), 0U);
    EXPECT_EQ(Count(svg, ">tension, kN</text>"), 1U);
    EXPECT_EQ(Count(svg, ">number of bolts</text>"), 1U);
    // Few values have a tick each.
    for (const char* tick : {">0</text>", ">10</text>", ">20</text>", ">1</text>", ">2</text>"}) {
        EXPECT_EQ(Count(svg, tick), 1U) << tick;
    }
    EXPECT_EQ(Count(svg, ">1.5</text>"), 0U);
}

TEST(Plot, cells_of_one_tone_are_one_and_letters_keep_off_the_limit) {
    std::vector<SweepPoint> points;
    const SweepRange across{"tension", 0.0, 100.0, 1.0};
    const SweepRange up{"angle", 90.0, 0.0, -1.0}; // downwards
    for (std::size_t i = 0; i < across.Count(); ++i) {
        for (std::size_t k = 0; k < up.Count(); ++k) {
            points.push_back(Grid_point(across.Value(i), up.Value(k), i < 50 ? 0.7F : 1.1F, 'j'));
        }
    }
    const std::string svg = Plot_grid({across, up}, points, "A");
    EXPECT_EQ(Count(svg, "<rect "), 1U + 101U + 5U); // paper, a column each, legend
    EXPECT_EQ(Count(svg, "height=\"380.0\""), 101U);
    // The limit lies at 49.5 of 0 to 100: x = 70 + 50 / 101 * 530 = 332.4. A letter's middle is 9 or more from it.
    std::size_t letters = 0;
    for (std::size_t at = svg.find(">j</text>"); at != std::string::npos; at = svg.find(">j</text>", at + 1)) {
        const std::size_t x = svg.rfind("x=\"", at) + 3;
        EXPECT_GT(std::fabs(std::stod(svg.substr(x)) - 332.4), 8.5);
        ++letters;
    }
    EXPECT_GT(letters, 100U);
    EXPECT_LT(letters, 300U);
}

TEST(Plot, a_grid_is_written_with_the_sweep) {
    const test::TemporaryFolder folder;
    const std::string file = (folder / "grid.svg").string();
    const ToolRun run = Tool(Joint({"--sweep", "tension=0:30:10", "--sweep", "angle=0:90:15", "--plot", file}));
    EXPECT_EQ(std::count(run.out.begin(), run.out.end(), '\n'), 29);
    const std::string svg = test::Read_file(Path_of(file));
    EXPECT_NE(svg.find("angle between the members, degrees"), std::string::npos);
    EXPECT_NE(svg.find("tension, kN"), std::string::npos);
    // One value of each still is a field.
    EXPECT_EQ(
        Tool(Joint({"--tension", "1", "--sweep", "angle=5:5:1", "--sweep", "bolts=1:1:1", "--plot", file})).status, 0);
    EXPECT_EQ(test::Read_file(Path_of(file)).find("nan"), std::string::npos);
}

} // namespace
} // namespace tarnvik
