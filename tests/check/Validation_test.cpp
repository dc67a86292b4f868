#include "check/Validation.h"

#include <algorithm>

#include "calc/StateFields.h"
#include "tests/support/Tool.h"

namespace tarnvik {
namespace {

using test::Json;
using test::Tool;
using test::ToolRun;
using Arguments = std::vector<std::string>;

Arguments Sets(const Arguments& sets, Arguments arguments = {}) {
    for (const std::string& set : sets) {
        arguments.insert(arguments.end(), {"--set", set});
    }
    return arguments;
}

TEST(Validation, every_input_has_a_row) {
    const ConnectionState s;
    const auto rows = Input_rows(s);
    std::size_t inputs = 0;
    for (const StateField& field : State_fields()) {
        if (field.is_input) {
            ++inputs;
            EXPECT_TRUE(std::any_of(rows.begin(), rows.end(), [&](const InputRow& row) {
                return row.name == field.name;
            })) << field.name;
        }
    }
    EXPECT_EQ(rows.size(), inputs);
}

TEST(Validation, what_may_not_be_is_a_warning_and_an_error_under_strict) {
    struct Row {
        Arguments sets;
        const char* warning;
    };
    const char* const side = ": expected a length above 0 mm, got ";
    const auto typed = [](const std::string& text) {
        return Arguments{"Standard=false", "Txt_b1=48", "Txt_h1=198", "Txt_b2=48", "Txt_h2=223", text};
    };
    const std::string txt_b1 = std::string{"Txt_b1"} + side;
    const std::string b1_text = txt_b1 + "\"12abc\"";
    const std::string b1_small = txt_b1 + "\"0.04\"";
    const std::string h1_empty = std::string{"Txt_h1"} + side + "\"\"";
    const std::string b2_negative = std::string{"Txt_b2"} + side + "\"-5\"";
    const std::string h2_word = std::string{"Txt_h2"} + side + "\"x\"";
    // clang-format off
    const Row rows[] = {
        {{"Lang=Swe"},            "Lang: expected Eng or Nor, got \"Swe\""},
        {{"Lastvar=6"},           "Lastvar: expected 1 to 5, got 6"},
        {{"Lastvar=0"},           "Lastvar: expected 1 to 5, got 0"},
        {{"Klima=7"},             "Klima: expected 1 to 3, got 7"},
        {{"gm_T=0"},              "gm_T: expected a factor above 0.1, got 0"},
        {{"gm_L=-1"},             "gm_L: expected a factor above 0.1, got -1"},
        {{"gm_Ke=0.1"},           "gm_Ke: expected a factor above 0.1, got 0.1"},
        {{"gm_K=0"},              "gm_K: expected a factor above 0.1, got 0"},
        {{"Mat_index=37"},        "Mat_index: expected 0 to 36, a row of the materials, got 37"},
        {{"Mat_index=-1"},        "Mat_index: expected 0 to 36, a row of the materials, got -1"},
        {{"Prof1_index=220"},     "Prof1_index: expected 0 to 219, a row of the profiles, got 220"},
        {{"Prof2_index=-1"},      "Prof2_index: expected 0 to 219, a row of the profiles, got -1"},
        {typed("Txt_b1=12abc"),   b1_text.c_str()},
        {typed("Txt_b1=0.04"),    b1_small.c_str()},
        {typed("Txt_h1="),        h1_empty.c_str()},
        {typed("Txt_b2=-5"),      b2_negative.c_str()},
        {typed("Txt_h2=x"),       h2_word.c_str()},
        {{"Con_type=6"},          "Con_type: expected 1 to 5, got 6"},
        {{"alp=-1"},              "alp: expected 0 to 90 degrees, got -1"},
        {{"alp=90.5"},            "alp: expected 0 to 90 degrees, got 90.5"},
        {{"Bolt_index=8"},        "Bolt_index: expected 0 to 7, a row of the bolts, got 8"},
        {{"Kun_bolt=false", "Med_bulldog=true", "Bulldog_index=5"},
                                  "Bulldog_index: expected 0 to 4, a row of the connectors, got 5"},
        {{"Kun_bolt=false", "Med_bulldog=true", "dc=0"},
                                  "dc: expected a length above 0 mm, got 0"},
        {{"Ant_index=5"},         "Ant_index: expected 0 to 4, a row of 1, 2, 3, 4, 6, got 5"},
        {{"Bolt_ab=c"},           "Bolt_ab: expected a or b, got \"c\""},
        {{"Avstand_index=16"},    "Avstand_index: expected 0 to 15, a row of 5d to 20d, got 16"},
        {{"Man_he_on=true"},      "man_he: expected above 0 mm and at most the height of the member that may split, got 0"},
        {{"Man_he_on=true", "man_he=74"}, // h2 is 73
                                  "man_he: expected above 0 mm and at most the height of the member that may split, got 74"},
        {{"dob_1=true"},          "enk_1, dob_1: expected one of them true, got both"},
        {{"enk_1=false"},         "enk_1, dob_1: expected one of them true, got neither"},
        {{"enk_2=false"},         "enk_2, dob_2: expected one of them true, got neither"},
        {{"enk_1=false", "dob_1=true", "enk_2=false", "dob_2=true"},
                                  "dob_1, dob_2: expected at most one of them true, got both"},
        {{"Kun_bolt=false"},      "Kun_bolt, Med_bulldog: expected one of them true, got neither"},
        {{"Med_bulldog=true"},    "Kun_bolt, Med_bulldog: expected one of them true, got both"},
    };
    // clang-format on
    for (const Row& row : rows) {
        const ToolRun json = Tool(Sets(row.sets, {"--json"}));
        EXPECT_EQ(json.err, "") << row.warning;
        EXPECT_EQ(json.Object()["warnings"].dump(), Json::array({row.warning}).dump());
        const ToolRun plain = Tool(Sets(row.sets));
        EXPECT_EQ(plain.err, std::string{"tarnvik-check: warning: "} + row.warning + "\n");
        EXPECT_EQ(plain.status, json.status) << row.warning;
        EXPECT_NE(plain.status, 2) << row.warning;
        const ToolRun strict = Tool(Sets(row.sets, {"--strict"}));
        EXPECT_EQ(strict.status, 2) << row.warning;
        EXPECT_EQ(strict.out, "") << row.warning;
        EXPECT_EQ(strict.err, std::string{"tarnvik-check: "} + row.warning + "\n");
    }
}

TEST(Validation, what_plays_no_part_is_not_looked_at) {
    for (const Arguments& sets :
         {Arguments{"Txt_b1=x"}, Arguments{"Bulldog_index=9"}, Arguments{"dc=0"}, Arguments{"man_he=-1"},
          Arguments{"Standard=false", "Txt_b1= 48,5 ", "Txt_h1=198 mm", "Txt_b2=48", "Txt_h2=223", "Prof1_index=999"},
          Arguments{"Man_he_on=true", "man_he=73"}, Arguments{"alp=0"}, Arguments{"alp=90"}}) {
        const ToolRun run = Tool(Sets(sets, {"--json"}));
        EXPECT_FALSE(run.Object().contains("warnings")) << sets[0] << run.out.substr(0, 200);
    }
}

TEST(Validation, batch_lines) {
    const std::string lines = "{\"Klima\":7}\n{}\n[{\"Klima\":7},{\"Klima\":1}]\n";
    const auto plain = Tool({"--batch", "--fields", "Klima"}, lines);
    EXPECT_EQ(plain.Lines()[0]["warnings"].dump(), R"(["Klima: expected 1 to 3, got 7"])");
    EXPECT_FALSE(plain.Lines()[1].contains("warnings"));
    EXPECT_FALSE(plain.Lines()[2].contains("warnings")); // of the last step
    EXPECT_EQ(plain.err, "");
    const auto strict = Tool({"--batch", "--strict", "--fields", "Klima"}, lines);
    EXPECT_EQ(strict.status, 2);
    EXPECT_EQ(strict.Lines()[0].dump(), R"({"line":1,"error":"Klima: expected 1 to 3, got 7"})");
    EXPECT_TRUE(strict.Lines()[1].contains("state"));
    EXPECT_EQ(strict.Lines()[2]["error"], "element 1: Klima: expected 1 to 3, got 7");
}

TEST(Validation, of_several_projects_the_one_that_is_refused_is_named) {
    const test::TemporaryFolder folder;
    const std::string good = (folder / "good.tnvik").string();
    const std::string bad = (folder / "bad.tnvik").string();
    Tool({"--save", good});
    Tool({"--set", "Klima=7", "--save", bad});
    const ToolRun plain = Tool({bad, good});
    EXPECT_EQ(plain.err, "tarnvik-check: " + bad + ": warning: Klima: expected 1 to 3, got 7\n");
    const ToolRun strict = Tool({"--strict", "--json", bad, good});
    EXPECT_EQ(strict.err, "tarnvik-check: " + bad + ": Klima: expected 1 to 3, got 7\n");
    EXPECT_EQ(strict.status, 2);
    EXPECT_EQ(strict.Object()["project"], good);
}

TEST(Validation, lines_that_are_no_json_are_told_in_words_of_the_tools_own) {
    struct Row {
        std::string line;
        std::string error;
    };
    const std::string long_text(300, 'x');
    const std::string cut = std::string(60, 'x') + "...";
    // clang-format off
    const Row rows[] = {
        {"{",                             "expected JSON, got something else at character 2"},
        {"P=1",                           "expected JSON, got something else at character 1"},
        {R"({"P":1,})",                   "expected JSON, got something else at character 8"},
        {R"({"P":1e999})",                "expected JSON with numbers that a 64-bit float holds"},
        {R"({"P":1,"alp":30,"P":2})",     "\"P\": expected once in an object, got it twice"},
        {R"([{"P":1},{"P":1,"P":2}])",    "\"P\": expected once in an object, got it twice"},
        {R"({"bolt":"M12x4.6","bolt":"M12x8.8"})", "\"bolt\": expected once in an object, got it twice"},
        {R"([{},5])",                     "element 2: expected an object of inputs, got 5"},
        {R"([{},{},{"P":"x"}])",          "element 3: P: expected a number, got \"x\""},
        {R"([{},{"bolts":5}])",           "element 2: bolts: expected 1, 2, 3, 4 or 6, got \"5\""},
        {R"([{"P":"x"}])",                "P: expected a number, got \"x\""},
        {R"({"P":")" + long_text + "\"}", "P: expected a number, got \"" + cut + "\""},
        {"{\"" + long_text + "\":1}",     "\"" + cut + "\" is no input; see tarnvik-check --help"},
        {R"({"Bolt_indx":1})",            "\"Bolt_indx\" is no input; see tarnvik-check --help; nearest: Bolt_index"},
    };
    // clang-format on
    for (const Row& row : rows) {
        const ToolRun run = Tool({"--batch"}, row.line + "\n");
        EXPECT_EQ(run.Object()["error"], row.error);
        EXPECT_EQ(run.err, "tarnvik-check: line 1: " + row.error + "\n");
        EXPECT_EQ(run.status, 2);
    }
    // The same key in two objects is no key twice.
    EXPECT_EQ(Tool({"--batch"}, R"([{"P":0.01},{"P":0.02}])"
                                "\n")
                  .status,
              0);
}

TEST(Validation, blank_lines_are_skipped_but_count) {
    const ToolRun run = Tool({"--batch", "--fields", "P"}, "\n{}\n \t\r\n\nx\n{}\n\n");
    ASSERT_EQ(run.Lines().size(), 3U);
    EXPECT_EQ(run.Lines()[1]["line"], 5);
}

TEST(Validation, names_that_are_nearly_right_and_long_ones) {
    const std::string long_text(300, 'x');
    const std::string cut = std::string(60, 'x') + "...";
    struct Row {
        Arguments arguments;
        std::string err;
    };
    const Row rows[] = {
        {{"--jsn"}, "unknown option --jsn; see tarnvik-check --help; nearest: --json"},
        {{"--blt", "x"}, "unknown option --blt; see tarnvik-check --help; nearest: --bolt"},
        {{"--" + long_text}, "unknown option --" + std::string(58, 'x') + "...; see tarnvik-check --help"},
        {{"--set", "Bolt_indx=1"}, "\"Bolt_indx\" is no input; see tarnvik-check --help; nearest: Bolt_index"},
        {{"--set", long_text}, "--set: expected NAME=VALUE, got \"" + cut + "\""},
        {{"--set", "P=" + long_text}, "P: expected a number, got \"" + cut + "\""},
        {{"--lang", long_text}, "--lang: expected Eng or Nor, got \"" + cut + "\""},
        {{"--with", "scren"},
         "--with: expected screen,tables,pictures,report,detail,explanations, got \"scren\"; nearest: "
         "screen"},
        {{"--fields", "Tver_kontroll"}, "--fields: \"Tver_kontroll\" is no name of the state; nearest: Tverr_kontroll"},
        {{"--fields", "check"}, "--fields: \"check\" is no name of the state; nearest: checks"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Tool(row.arguments).err, "tarnvik-check: " + row.err + "\n");
    }
}

} // namespace
} // namespace tarnvik
