#include "check/Checks.h"

#include <cmath>

#include "tests/support/Tool.h"

namespace tarnvik {
namespace {

using test::Json;
using test::Names;
using test::Tool;
using test::ToolRun;
using Arguments = std::vector<std::string>;

// A heel joint of two bolts M20x8.8, 48x198 on 48x223 of C20, 6 kN for medium term; then further inputs.
Arguments Heel_joint(const Arguments& further, const Arguments& options = {}) {
    Arguments arguments = options;
    arguments.insert(arguments.end(), {"--set", "P=6", "--set", "Lastvar=3", "--set", "Standard=false"});
    arguments.insert(arguments.end(), {"--set", "Txt_b1=48", "--set", "Txt_h1=198"});
    arguments.insert(arguments.end(), {"--set", "Txt_b2=48", "--set", "Txt_h2=223"});
    for (const std::string& one : further) {
        arguments.insert(arguments.end(), {"--set", one});
    }
    return arguments;
}

// (8.4) in the member 48x223, kmod 0.8, gamma M 1.3: utilisation by 6 kN at 25 degrees.
double Splitting_by_hand(double he) {
    const double F90_Rd = 14.0 * 48.0 * std::sqrt(he / (1.0 - he / 223.0)) / 1000.0 * 0.8 / 1.3;
    return 6.0 * std::sin(25.0 * 3.14159265 / 180.0) / F90_Rd;
}

TEST(Checks, each_has_value_limit_verdict_and_clause) {
    const Json checks = Tool(Heel_joint({}, {"--json"})).Object()["checks"];
    EXPECT_EQ(Names(checks), (Arguments{"holds", "text", "bolts", "splitting", "fits_a", "fits_b", "governing"}));
    EXPECT_EQ(checks["holds"], true);
    EXPECT_EQ(checks["text"], "Holds");
    EXPECT_EQ(Names(checks["bolts"]), (Arguments{"value", "limit", "holds", "clause"}));
    EXPECT_EQ(checks["bolts"]["limit"], 1);
    EXPECT_EQ(checks["bolts"]["clause"], "8.2.2, 8.5.1");
    EXPECT_NEAR(checks["splitting"]["value"], Splitting_by_hand(163.0), 1e-4); // b4 - d = 60 of 223
    EXPECT_EQ(checks["splitting"]["limit"], 1);
    EXPECT_EQ(checks["splitting"]["clause"], "8.1.4");
    EXPECT_EQ(checks["splitting"]["he_typed"], false);
    EXPECT_EQ(checks["splitting"]["current"], true);
    // a1 + a2 = 3d + 3d and b1 + b2 + b3 = 3d + 4d + 3d
    EXPECT_EQ(checks["fits_a"].dump(), R"({"value":120,"limit":198,"holds":true,"clause":"table 8.4"})");
    EXPECT_EQ(checks["fits_b"].dump(), R"({"value":200,"limit":223,"holds":true,"clause":"table 8.4"})");
    EXPECT_EQ(checks["governing"]["mode"], "c");
    EXPECT_EQ(checks["governing"]["equation"], "8.6 c");
}

TEST(Checks, connectors_have_their_own_distances) {
    const Json checks =
        Tool(Heel_joint({"Med_bulldog=true", "Kun_bolt=false", "Bulldog_index=2"}, {"--json"})).Object()["checks"];
    EXPECT_EQ(checks["bolts"]["clause"], "8.2.2, 8.5.1, 8.10");
    // b1 + b2 + b3: the loaded edge (0.6 + 0.2 sin 25) D, 1.2 D, 0.6 D
    EXPECT_NEAR(checks["connectors_fit_b"]["value"], (2.4 + 0.2 * 0.422618) * 75.0, 1e-3);
    EXPECT_EQ(checks["connectors_fit_b"]["limit"], 223);
    EXPECT_EQ(checks["connectors_fit_b"]["clause"], "8.10, table 8.8");
    EXPECT_TRUE(checks.contains("connectors_fit_a"));
}

TEST(Checks, the_text_is_the_windows) {
    const Json norwegian = Tool(Heel_joint({"P=100", "Txt_h2=199"}, {"--json", "--lang", "Nor"})).Object();
    EXPECT_EQ(norwegian["checks"]["text"], "Holder ikke: utnyttelse, tverrstrekk, avstander for bolter");
    EXPECT_EQ(norwegian["checks"]["holds"], false);
}

TEST(Checks, what_does_not_fit_fails_under_strict_only) {
    // 200 mm of distances in a member of 199: 0.1 kN makes no utilisation of it.
    const Arguments too_low{"P=0.1", "Txt_h2=199"};
    EXPECT_EQ(Tool(Heel_joint(too_low)).status, 0);
    const ToolRun strict = Tool(Heel_joint(too_low, {"--strict", "--json"}));
    EXPECT_EQ(strict.status, 1);
    const Json checks = strict.Object()["checks"];
    EXPECT_EQ(checks["holds"], false);
    EXPECT_EQ(checks["text"], "Does not hold: distances of bolts");
    EXPECT_EQ(checks["fits_b"].dump(), R"({"value":200,"limit":199,"holds":false,"clause":"table 8.4"})");
    EXPECT_EQ(Tool(Heel_joint({}, {"--strict"})).status, 0);
    EXPECT_EQ(Tool(Heel_joint({"P=1000"}, {"--strict"})).status, 1);
    EXPECT_EQ(Tool(Heel_joint({"Med_bulldog=true", "Kun_bolt=false", "Bulldog_index=0"}, {"--strict"})).status, 3);
    EXPECT_EQ(Tool({"--strict", "--batch", "--fields", "uf"}, "{\"P\":0.1}\n").status, 1); // 34x95 and 36x73
    EXPECT_EQ(Tool({"--batch", "--fields", "uf"}, "{\"P\":0.1}\n").status, 0);
}

TEST(Checks, a_typed_he_is_checked_as_leaving_its_box_does) {
    const Json json = Tool(Heel_joint({"Man_he_on=true", "man_he=100"}, {"--json"})).Object();
    EXPECT_NEAR(json["checks"]["splitting"]["value"], Splitting_by_hand(100.0), 1e-4);
    EXPECT_EQ(json["checks"]["splitting"]["he_typed"], true);
    EXPECT_EQ(json["checks"]["splitting"]["current"], true);
    EXPECT_EQ(json["checks"]["holds"], true);
    EXPECT_EQ(json["state"]["Tverr_kontroll"], 0); // the pass leaves it out
    struct Row {
        const char* name;
        const char* he;
        int strict;
    };
    const Row rows[] = {
        {"none at all", "0", 2},
        {"below the edge", "-5", 2},
        {"the whole height, where the check divides by zero", "223", 1},
        {"above the member", "224", 2},
    };
    for (const Row& row : rows) {
        const Arguments typed{"Man_he_on=true", std::string{"man_he="} + row.he};
        EXPECT_EQ(Tool(Heel_joint(typed, {"--strict"})).status, row.strict) << row.name;
        const ToolRun run = Tool(Heel_joint(typed, {"--json"}));
        EXPECT_EQ(run.status, 0) << row.name;
        EXPECT_EQ(run.Object()["checks"]["holds"], nullptr) << row.name;
        EXPECT_EQ(run.Object()["checks"]["text"], "Splitting not checked") << row.name;
        EXPECT_EQ(run.Object()["checks"]["splitting"].dump(),
                  R"({"value":null,"limit":1,"holds":null,"clause":"8.1.4","he_typed":true,"current":false})")
            << row.name;
    }
}

TEST(Checks, a_typed_he_goes_stale_in_a_later_step) {
    const std::string typed = R"({"Man_he_on":true,"man_he":100})";
    struct Row {
        const char* name;
        std::string line;
        const char* holds;
    };
    const Row rows[] = {
        {"one step", typed, "true"},
        {"nothing of it changes", "[" + typed + R"(,{"Id":"A"}])", "true"},
        {"the force changes", "[" + typed + R"(,{"P":5}])", "null"},
        {"and back", "[" + typed + R"(,{"P":5},{"P":6}])", "true"},
        {"he is typed again", "[" + typed + R"(,{"P":5,"man_he":100}])", "true"},
        {"another he", "[" + typed + R"(,{"man_he":90}])", "true"},
        {"no he by hand any more", "[" + typed + R"(,{"P":5},{"Man_he_on":false}])", "true"},
        {"it fails all the same", "[" + typed + R"(,{"P":500}])", "false"},
    };
    for (const Row& row : rows) {
        const Json json =
            Tool(Heel_joint({}, {"--batch", "--fields", "checks"}), row.line + "\n").Object()["checks"]["holds"];
        EXPECT_EQ(json.dump(), row.holds) << row.name;
    }
    const Arguments strict = Heel_joint({}, {"--batch", "--strict"});
    EXPECT_EQ(Tool(strict, "[" + typed + R"(,{"P":5}])" + "\n").status, 1);
    EXPECT_EQ(Tool(strict, typed + "\n").status, 0);
    // No line knows the check of the line before.
    const auto lines = Tool(Heel_joint({}, {"--batch"}),
                            typed + "\n" + R"([{"Mat_index":101},{"Mat_index":3}])" + "\n" +
                                R"([{"Mat_index":101,"Man_he_on":true,"man_he":100},)" + R"({"Mat_index":3}])" + "\n")
                           .Lines();
    EXPECT_EQ(lines[1]["checks"]["holds"], true);
    EXPECT_EQ(lines[2]["checks"]["holds"], nullptr);
}

TEST(Checks, without_results_the_text_tells_why) {
    EXPECT_EQ(Tool({"--json", "--set", "Med_bulldog=true", "--set", "Bulldog_index=0"}).Object()["checks"].dump(),
              R"({"holds":null,"text":"Not current: connector refused"})");
    EXPECT_EQ(Tool({"--json", "--set", "Mat_index=101"}).Object()["checks"]["text"],
              "Not current: material is not in its table");
    EXPECT_EQ(Tool({"--set", "Mat_index=101"}).out.find("Checks"), std::string::npos);
}

TEST(Checks, fields_leave_them_out_unless_they_are_named) {
    EXPECT_EQ(Names(Tool({"--fields", "uf"}).Object()), (Arguments{"end", "messages", "state"}));
    const Json json = Tool({"--fields", "uf,checks"}).Object();
    EXPECT_EQ(Names(json), (Arguments{"end", "messages", "state", "checks"}));
    EXPECT_EQ(Names(json["state"]), (Arguments{"uf"}));
    EXPECT_TRUE(Tool({"--batch"}, "{}\n").Object().contains("checks"));
    EXPECT_FALSE(Tool({"--batch", "--fields", "uf"}, "{}\n").Object().contains("checks"));
}

TEST(Checks, the_summary_has_a_line_for_each) {
    const std::string out = Tool(Heel_joint({})).out;
    const std::string section = out.substr(out.find("\nChecks\n"));
    // 10.20 kN and 0.65 are those of the section above it.
    EXPECT_EQ(section, "\nChecks\n"
                       "  bolts             0.65 <= 1.00            8.2.2, 8.5.1\n"
                       "  splitting         0.25 <= 1.00            8.1.4\n"
                       "  fits_a            120.0 <= 198.0 mm       table 8.4\n"
                       "  fits_b            200.0 <= 223.0 mm       table 8.4\n"
                       "  governing mode    c, (8.6 c)              10.20 kN\n"
                       "  verdict           Holds\n");
    const std::string fails = Tool(Heel_joint({"Txt_h2=199.9"})).out;
    EXPECT_NE(fails.find("  fits_b            200.0 > 199.9 mm        table 8.4\n"), std::string::npos) << fails;
    EXPECT_NE(fails.find("  verdict           Does not hold: distances of bolts\n"), std::string::npos);
    const std::string typed = Tool(Heel_joint({"Man_he_on=true", "man_he=224"})).out;
    EXPECT_NE(typed.find("  splitting         not checked             8.1.4, he given by hand\n"), std::string::npos);
    EXPECT_NE(typed.find("  verdict           Splitting not checked\n"), std::string::npos);
}

TEST(Checks, a_value_is_shown_in_full_where_rounding_would_hide_that_it_fails) {
    Judgement judgement;
    judgement.verdict.checks[0] = {true, true, 1.0000001F, 1.0F};
    judgement.verdict.checks[2] = {true, true, 120.04F, 120.0F};
    const std::string summary = Checks_summary(judgement);
    EXPECT_NE(summary.find("1.0000001 > 1.00"), std::string::npos);
    EXPECT_NE(summary.find("120.04 > 120.0 mm"), std::string::npos);
}

// The window opens the same project with splitting unchecked until the box of he is left; here there is no box to
// leave.
TEST(Checks, a_typed_he_that_comes_with_a_project_is_checked_at_once) {
    const test::TemporaryFolder folder;
    const std::string project = (folder / "he.tnvik").string();
    const std::vector<std::string> inputs{"--member1", "98x398", "--member2", "98x398", "--compression", "2"};
    std::vector<std::string> typed = inputs;
    typed.insert(typed.end(), {"--set", "Man_he_on=true", "--set", "man_he=180.4", "--save", project, "--json"});
    const Json saved = Tool(typed).Object();
    const Json opened = Tool({project, "--json"}).Object();
    EXPECT_EQ(opened["checks"], saved["checks"]);
    EXPECT_EQ(opened["checks"]["splitting"]["current"], true);
    EXPECT_TRUE(opened["checks"]["splitting"]["holds"].is_boolean());
    // The state is that of a pass, which leaves a typed he out.
    EXPECT_EQ(opened["state"]["man_he"].get<float>(), 180.4F);
    EXPECT_EQ(opened["state"]["he"], 0);
    EXPECT_EQ(opened["state"]["Tverr_kontroll"], 0);
}

} // namespace
} // namespace tarnvik
