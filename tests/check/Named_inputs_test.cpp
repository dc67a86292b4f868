#include "check/Named_inputs.h"

#include "tests/support/Tool.h"

namespace tarnvik {
namespace {

using test::Json;
using test::Tool;
using test::ToolRun;
using Arguments = std::vector<std::string>;

TEST(Named_inputs, a_joint_is_asked_for_by_names) {
    const Json state = Tool({"--json",    "--bolt",    "M16x8.8",     "--bolts", "3",          "--layout",  "b",
                             "--spacing", "7d",        "--connector", "D75",     "--material", "C24",       "--member1",
                             "2x48x198",  "--member2", "48x223",      "--joint", "1.2",        "--tension", "25kN",
                             "--angle",   "30",        "--load",      "medium",  "--service",  "1"})
                           .Object()["state"];
    EXPECT_EQ(state["Bolt_index"], 5);
    EXPECT_EQ(state["d"], 16);
    EXPECT_EQ(state["fuk"], 800);
    EXPECT_EQ(state["n_bolt"], 3);
    EXPECT_EQ(state["Case_code"], "1.3.b");
    EXPECT_EQ(state["Avstand_index"], 2);
    EXPECT_EQ(state["Bulldog_index"], 2);
    EXPECT_EQ(state["dc"], 75);
    EXPECT_EQ(state["Med_bulldog"], true);
    EXPECT_EQ(state["Kun_bolt"], false);
    EXPECT_EQ(state["Mat_index"], 5);
    EXPECT_EQ(state["b1"], 48);
    EXPECT_EQ(state["h1"], 198);
    EXPECT_EQ(state["h2"], 223);
    EXPECT_EQ(state["Con_code"], "1.2");
    EXPECT_EQ(state["enk_1"], false);
    EXPECT_EQ(state["dob_1"], true);
    EXPECT_EQ(state["enk_2"], true);
    EXPECT_EQ(state["dob_2"], false);
    EXPECT_EQ(state["P"], -25);
    EXPECT_EQ(state["alp"], 30);
    EXPECT_EQ(state["Lastvar"], 3);
    EXPECT_EQ(state["Klima"], 1);
}

TEST(Named_inputs, a_batch_line_has_the_same_keys) {
    const std::string line = R"({"bolt":"M16x8.8","bolts":3,"layout":"b","spacing":"7d","connector":"D75",)"
                             R"("material":"C24","member1":"2x48x198","member2":"48x223","joint":"1.2",)"
                             R"("tension":25,"angle":30,"load":"medium","service":1})";
    const Arguments options{"--bolt",    "M16x8.8",     "--bolts", "3",          "--layout",  "b",         "--spacing",
                            "7d",        "--connector", "D75",     "--material", "C24",       "--member1", "2x48x198",
                            "--member2", "48x223",      "--joint", "1.2",        "--tension", "25",        "--angle",
                            "30",        "--load",      "medium",  "--service",  "1",         "--json"};
    EXPECT_EQ(Tool({"--batch"}, line + "\n").out, Tool(options).out);
    // Those of the command line hold for every line.
    const auto lines = Tool({"--batch", "--bolt", "M24x8.8"}, "{}\n{\"bolt\":\"M12x4.6\"}\n").Lines();
    EXPECT_EQ(lines[0]["state"]["Bolt_index"], 7);
    EXPECT_EQ(lines[1]["state"]["Bolt_index"], 0);
}

TEST(Named_inputs, each_value_in_its_forms) {
    struct Row {
        const char* option;
        const char* value;
        const char* name;
        const char* wanted; // as JSON
    };
    // clang-format off
    const Row rows[] = {
        {"--bolt",        "m12X4.6",       "Bolt_index",    "0"},
        {"--bolts",       "1",             "n_bolt",        "1"},
        {"--bolts",       "6",             "n_bolt",        "6"},
        {"--layout",      "A",             "Bolt_ab",       "\"a\""},
        {"--spacing",     "5",             "Avstand_index", "0"},
        {"--spacing",     "20d",           "Avstand_index", "15"},
        {"--connector",   "d50",           "dc",            "48"}, // as picking it does
        {"--material",    "gl30c",         "Mat_index",     "30"},
        {"--compression", "12,5",          "P",             "12.5"},
        {"--tension",     "12.5 kN",       "P",             "-12.5"},
        {"--tension",     "800N",          "P",             "-0.8"},
        {"--angle",       "27,5",          "alp",           "27.5"},
        {"--angle",       "90deg",         "alp",           "90"},
        {"--angle",       "45°",           "alp",           "45"},
        {"--load",        "Instantaneous", "Lastvar",       "5"},
        {"--load",        "2",             "Lastvar",       "2"},
        {"--service",     "3",             "Klima",         "3"},
        {"--member1",     "36.5x98",       "b1",            "36.5"},
        {"--member1",     "36,5 x 98",     "b1",            "36.5"},
        {"--member1",     "2X45x95",       "dob_1",         "true"},
        {"--member2",     "1x45x95",       "dob_2",         "false"},
        {"--member2",     "2x45x95",       "dob_2",         "true"},
        {"--member1",     "T 48x198",      "Prof1_index",   "25"},
        {"--member1",     "t  48x198",     "Prof1_index",   "25"},
        {"--member2",     "2x T 48x198",   "dob_2",         "true"},
        {"--member2",     "2x T 48x198",   "Standard",      "true"},
        {"--joint",       "5.3",           "Con_code",      "\"5.3\""},
        {"--joint",       "4.1",           "Con_type",      "4"},
    };
    // clang-format on
    for (const Row& row : rows) {
        const Json state = Tool({"--fields", row.name, row.option, row.value}).Object()["state"];
        EXPECT_EQ(state[row.name].dump(), row.wanted) << row.option << " " << row.value;
    }
}

TEST(Named_inputs, no_impossible_pair_comes_out) {
    const auto flags = [](const Arguments& options) {
        Arguments arguments{"--fields", "enk_1,dob_1,enk_2,dob_2,Kun_bolt,Med_bulldog"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        std::string text;
        const Json state = Tool(arguments).Object()["state"];
        for (const auto& flag : state) {
            text += flag.get<bool>() ? '1' : '0';
        }
        return text;
    };
    EXPECT_EQ(flags({}), "101010");
    EXPECT_EQ(flags({"--member1", "2x48x198"}), "011010");
    EXPECT_EQ(flags({"--member2", "2x48x198"}), "100110");
    EXPECT_EQ(flags({"--joint", "2.2"}), "011010");
    EXPECT_EQ(flags({"--joint", "2.3"}), "100110");
    EXPECT_EQ(flags({"--set", "dob_1=true"}), "111010"); // plain writes stay plain
    EXPECT_EQ(flags({"--set", "dob_1=true", "--joint", "2.1"}), "101010");
    // One that is made double makes the other one single.
    EXPECT_EQ(flags({"--set", "dob_1=true", "--set", "enk_1=false", "--member2", "2x48x198"}), "100110");
    EXPECT_EQ(flags({"--set", "dob_2=true", "--set", "enk_2=false", "--member1", "2x48x198"}), "011010");
    EXPECT_EQ(flags({"--set", "dob_2=true", "--set", "enk_2=false", "--member1", "48x198"}), "100110");
    EXPECT_EQ(flags({"--connector", "D62"}), "101001");
    EXPECT_EQ(flags({"--set", "Med_bulldog=true", "--connector", "none"}), "101010");
}

TEST(Named_inputs, a_typed_section_takes_the_other_member_along) {
    const auto sections = [](const Arguments& options) {
        Arguments arguments{"--fields", "Standard,b1,h1,b2,h2"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return Tool(arguments).Object()["state"].dump();
    };
    EXPECT_EQ(sections({}), R"({"Standard":true,"b1":34,"h1":95,"b2":36,"h2":73})");
    EXPECT_EQ(sections({"--member1", "50x200"}), R"({"Standard":false,"b1":50,"h1":200,"b2":36,"h2":73})");
    EXPECT_EQ(sections({"--member2", "50x200"}), R"({"Standard":false,"b1":34,"h1":95,"b2":50,"h2":200})");
    EXPECT_EQ(sections({"--member1", "T 48x198", "--member2", "50x200"}),
              R"({"Standard":false,"b1":48,"h1":198,"b2":50,"h2":200})");
    EXPECT_EQ(sections({"--member1", "T 48x198"}), R"({"Standard":true,"b1":48,"h1":198,"b2":36,"h2":73})");
    const Arguments typed{"--set",     "Standard=false", "--set",     "Txt_b1=10", "--set",
                          "Txt_h1=20", "--set",          "Txt_b2=30", "--set",     "Txt_h2=40"};
    Arguments mixed = typed;
    mixed.insert(mixed.end(), {"--member2", "T 48x198"});
    EXPECT_EQ(sections(mixed), R"({"Standard":false,"b1":10,"h1":20,"b2":48,"h2":198})");
    mixed.insert(mixed.end(), {"--member1", "T 48x223"});
    EXPECT_EQ(sections(mixed), R"({"Standard":true,"b1":48,"h1":223,"b2":48,"h2":198})");
}

TEST(Named_inputs, what_nothing_is_named_by_is_refused) {
    struct Row {
        Arguments arguments;
        const char* err;
    };
    const std::string long_name(200, 'M');
    // clang-format off
    const Row rows[] = {
        {{"--bolt", "M15x8.8"},     "bolt: expected a bolt, such as M16x8.8, got \"M15x8.8\"; nearest: M12x8.8, M16x8.8, M20x8.8"},
        {{"--bolts", "5"},          "bolts: expected 1, 2, 3, 4 or 6, got \"5\""},
        {{"--bolts", "two"},        "bolts: expected 1, 2, 3, 4 or 6, got \"two\""},
        {{"--layout", "c"},         "layout: expected a or b, got \"c\""},
        {{"--spacing", "4d"},       "spacing: expected 5d to 20d, got \"4d\""},
        {{"--spacing", "21"},       "spacing: expected 5d to 20d, got \"21\""},
        {{"--spacing", "5.5d"},     "spacing: expected 5d to 20d, got \"5.5d\""},
        {{"--spacing", "7mm"},      "spacing: expected 5d to 20d, got \"7mm\""},
        {{"--connector", "D76"},    "connector: expected a connector, such as D75, or none, got \"D76\"; nearest: D75"},
        {{"--material", "C25"},     "material: expected a material, such as C24, got \"C25\"; nearest: C20, C22, C24"},
        {{"--material", ""},        "material: expected a material, such as C24, got \"\""},
        {{"--member1", "48"},       "member1: expected 2x48x198 (pieces, mm), 48x198 or a profile, got \"48\""},
        {{"--member1", "T 48x199"}, "nearest: T  48x198, T  45x195, T  48x98"},
        {{"--member2", "3x48x198"}, "member2: expected 2x48x198 (pieces, mm), 48x198 or a profile, got \"3x48x198\""},
        {{"--member2", "0x198"},    "member2: expected"},
        {{"--member2", "48x-198"},  "member2: expected"},
        {{"--member2", "48x198x"},  "member2: expected"},
        {{"--member2", "2x4x8x9"},  "member2: expected"},
        {{"--joint", "1.4"},        "joint: expected a type from 1 to 5 and a variant from 1 to 3, such as 1.2, got \"1.4\""},
        {{"--joint", "12"},         "joint: expected"},
        {{"--tension", "-5"},       "tension: expected a force of 0 kN or more, such as 25kN, got \"-5\""},
        {{"--tension", "5 t"},      "tension: expected"},
        {{"--tension", "1e39"},     "tension: expected"},
        {{"--compression", "x"},    "compression: expected"},
        {{"--angle", "91"},         "angle: expected 0 to 90 degrees, got \"91\""},
        {{"--angle", "nan"},        "angle: expected"},
        {{"--load", "medum"},       "load: expected permanent, long, medium, short or instantaneous, got \"medum\"; nearest: medium"},
        {{"--load", "6"},           "load: expected"},
        {{"--service", "4"},        "service: expected 1, 2 or 3, got \"4\""},
        {{"--bolt", long_name},     "got \"MMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMM...\""},
        {{"--bolt"},                "--bolt: expected a value"},
        // Names that contradict each other.
        {{"--bolts", "2", "--bolts", "3"},             "bolts: expected once, got \"2\" and \"3\""},
        {{"--tension", "5", "--compression", "5"},     "tension, compression: expected one of them, got both"},
        {{"--joint", "1.2", "--member1", "48x198"},    "joint, member1: expected two pieces in member1 of joint 1.2, got \"48x198\""},
        {{"--joint", "1.3", "--member1", "2x48x198"},  "joint, member1: expected one piece in member1 of joint 1.3, got \"2x48x198\""},
        {{"--joint", "1.1", "--member2", "2x48x198"},  "joint, member2: expected one piece in member2 of joint 1.1, got \"2x48x198\""},
        {{"--member1", "2x48x198", "--member2", "2x48x198"},
                                                       "member1, member2: expected one of them in one piece, got \"2x48x198\" and \"2x48x198\""},
    };
    // clang-format on
    for (const Row& row : rows) {
        const ToolRun run = Tool(row.arguments);
        EXPECT_EQ(run.status, 2) << row.err;
        EXPECT_EQ(run.out, "") << row.err;
        EXPECT_NE(run.err.find(row.err), std::string::npos) << run.err << row.err;
    }
    const ToolRun line = Tool({"--batch"}, "{\"bolt\":[1]}\n{\"bolts\":5}\n");
    EXPECT_EQ(line.Lines()[0]["error"], "bolt: expected a text or a number, got an array");
    EXPECT_EQ(line.Lines()[1]["error"], "bolts: expected 1, 2, 3, 4 or 6, got \"5\"");
    EXPECT_EQ(line.status, 2);
}

TEST(Named_inputs, a_profile_without_pieces_goes_with_any_joint) {
    EXPECT_EQ(Tool({"--joint", "1.2", "--member1", "T 48x198", "--fields", "Con_code"}).Object()["state"]["Con_code"],
              "1.2");
    EXPECT_EQ(Tool({"--joint", "1.2", "--member1", "1x T 48x198"}).status, 2);
}

} // namespace
} // namespace tarnvik
