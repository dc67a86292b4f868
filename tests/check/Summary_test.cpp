#include "check/Summary.h"

#include <memory>

#include "tests/support/Tool.h"

namespace tarnvik {
namespace {

using test::Tool;

std::string Value_of(const std::string& summary, const std::string& name) {
    const std::size_t at = summary.find("\n  " + name + "  ");
    if (at == std::string::npos) {
        return {};
    }
    const std::size_t begin = summary.find_first_not_of(' ', at + 3 + name.size());
    return summary.substr(begin, summary.find('\n', begin) - begin);
}

TEST(Summary, the_inputs_of_a_new_project) {
    const test::ToolRun run = Tool({});
    EXPECT_EQ(run.out.substr(0, run.out.find('\n')), "Project 1, Bolt Connections -1");
    EXPECT_EQ(Value_of(run.out, "Connection"), "1.1, case 1.2.b, 25.0 degrees between the members");
    EXPECT_EQ(Value_of(run.out, "Member 1"), "single top chord      34.0 x 95.0 mm  (T  34x95)");
    EXPECT_EQ(Value_of(run.out, "Member 2"), "single bottom chord   36.0 x 73.0 mm  (T  36x73)");
    EXPECT_EQ(Value_of(run.out, "Material"), "C20, density 330 kg/m3, fc90k 2.3 N/mm2, gamma M 1.30");
    EXPECT_EQ(Value_of(run.out, "Classes"), "Permanent action, service class 1, kmod 0.60");
    EXPECT_EQ(Value_of(run.out, "Bolts"), "2 x M20x8.8, washer 60.0 x 6.0 mm");
    EXPECT_EQ(Value_of(run.out, "Connectors"), "none");
    EXPECT_EQ(Value_of(run.out, "Design force"), "10.00 kN compression");
}

TEST(Summary, no_line_ends_in_a_blank) {
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{}, std::vector<std::string>{"--set", "Med_bulldog=true", "--set", "Kun_bolt=false"},
          std::vector<std::string>{"--lang", "Nor", "--set", "Con_type=4", "--set", "P=-3"}}) {
        EXPECT_EQ(Tool(arguments).out.find(" \n"), std::string::npos);
    }
}

TEST(Summary, a_check_without_results_says_so) {
    EXPECT_NE(Tool({"--set", "Mat_index=101"}).out.find("Not calculated: Run-time error 9: subscript out of range"),
              std::string::npos);
    EXPECT_NE(
        Tool({"--set", "Standard=false", "--set", "Txt_b1=0"}).out.find("Not calculated: a member has a side of 0 mm."),
        std::string::npos);
    const test::ToolRun refused = Tool({"--set", "Med_bulldog=true", "--set", "Bulldog_index=0"});
    EXPECT_NE(refused.out.find("Not calculated: the connector does not fit the bolt."), std::string::npos);
    EXPECT_NE(refused.out.find("Use larger connector or smaller bolt"), std::string::npos);
    EXPECT_EQ(refused.out.find("utilisation"), std::string::npos);
}

TEST(Summary, the_unrounded_utilisation_decides_and_is_shown_where_rounding_would_hide_it) {
    const auto s = std::make_unique<ConnectionState>();
    MessageLog box;
    s->Con_code = "1.1";
    s->Case_code = "1.1. ";
    s->enk_1 = s->enk_2 = true;
    s->Man_he_on = true; // one verdict only
    struct Row {
        float uf;
        const char* verdict;
    };
    const Row rows[] = {
        {0.5F, "0.50  holds"},
        {1.0F, "1.00  holds"},
        {1.0000001F, "1.0000001  DOES NOT HOLD"},
        {1.004F, "1.004  DOES NOT HOLD"},
        {1.006F, "1.01  DOES NOT HOLD"},
        {2.0F, "2.00  DOES NOT HOLD"},
    };
    for (const Row& row : rows) {
        s->uf = row.uf;
        EXPECT_EQ(Value_of(Summary({}, *s, PassResult{}, box), "utilisation"), row.verdict);
    }
}

TEST(Summary, an_opened_project_is_named) {
    const auto s = std::make_unique<ConnectionState>();
    s->Prosjekt = "Bru";
    s->Id = "B1";
    EXPECT_EQ(Summary("a.tnvik", *s, {PassEnd::zero_section, std::nullopt}, MessageLog{}).substr(0, 16),
              "a.tnvik: Bru, B1");
}

} // namespace
} // namespace tarnvik
