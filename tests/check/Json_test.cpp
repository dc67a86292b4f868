#include "check/Json.h"

#include <bit>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <memory>
#include <random>

#include "calc/StateFields.h"
#include "tests/support/Tool.h"

namespace tarnvik {
namespace {

using test::Json;

// The result of a pass that left this state.
std::string Result(const ConnectionState& s, std::vector<std::string> fields) {
    Options options;
    options.fields = std::move(fields);
    std::string json;
    Append_result(json, options, {}, s, Screen{}, PassResult{}, MessageLog{});
    return json;
}

TEST(Json, texts_are_escaped) {
    struct Row {
        const char* name;
        std::string text;
        std::string json;
    };
    // clang-format off
    const Row rows[] = {
        {"empty",          "",                      R"("")"},
        {"plain",          "1.2.a",                 R"("1.2.a")"},
        {"Norwegian",      "Halvårslast",           R"("Halvårslast")"},
        {"quotes",         "a\"b",                  R"("a\"b")"},
        {"backslash",      "a\\b",                  R"("a\\b")"},
        {"line end",       "a\r\nb",                R"("a\r\nb")"},
        {"control",        std::string("a\0b\x1F", 4), R"("a\u0000b\u001f")"},
        {"damaged UTF-8",  "a\xC3z",                "\"a\xEF\xBF\xBDz\""},
    };
    // clang-format on
    for (const Row& row : rows) {
        std::string json;
        Append_json(json, row.text);
        EXPECT_EQ(json, row.json) << row.name;
    }
}

TEST(Json, a_float_stands_in_its_shortest_form_that_reads_back) {
    const auto s = std::make_unique<ConnectionState>();
    struct Row {
        float value;
        const char* text;
    };
    // clang-format off
    const Row rows[] = {
        {0.0F,                               "0"},
        {-0.0F,                              "-0.0"},
        {1.0F,                               "1"},
        {0.1F,                               "0.1"},
        {1.3F,                               "1.3"},
        {-12.5F,                             "-12.5"},
        {16777216.0F,                        "16777216"},
        {std::numeric_limits<float>::max(),  "3.4028235e+38"},
    };
    // clang-format on
    for (const Row& row : rows) {
        s->P = row.value;
        EXPECT_EQ(Result(*s, {"P"}), R"({"end":"normal","messages":[],"state":{"P":)" + std::string{row.text} + "}}");
    }
}

TEST(Json, every_float_reads_back_to_the_same_bits) {
    const auto s = std::make_unique<ConnectionState>();
    std::mt19937 random{1};
    for (int i = 0; i < 20000; ++i) {
        const auto value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
        if (!std::isfinite(value)) {
            continue;
        }
        s->P = value;
        const std::string json = Result(*s, {"P"});
        const float read = std::strtof(json.c_str() + json.find("\"P\":") + 4, nullptr);
        ASSERT_EQ(std::bit_cast<std::uint32_t>(read), std::bit_cast<std::uint32_t>(value)) << json;
    }
}

TEST(Json, what_is_no_number_is_null) {
    const auto s = std::make_unique<ConnectionState>();
    for (const float value : {std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(),
                              std::numeric_limits<float>::quiet_NaN()}) {
        s->P = value;
        EXPECT_TRUE(Json::parse(Result(*s, {"P"}))["state"]["P"].is_null());
    }
}

TEST(Json, flags_whole_numbers_and_fixed_texts) {
    const auto s = std::make_unique<ConnectionState>();
    s->enk_1 = true;
    s->dob_1 = false;
    s->Lastvar = -3;
    s->Case_code = "1.1. ";
    s->Lastvar_txt = "Permanent";
    EXPECT_EQ(Result(*s, {"enk_1", "dob_1", "Lastvar", "Case_code", "Lastvar_txt"}),
              R"({"end":"normal","messages":[],"state":{"enk_1":true,"dob_1":false,"Lastvar":-3,)"
              R"("Case_code":"1.1. ","Lastvar_txt":"Permanent           "}})");
}

TEST(Json, tables_hold_their_used_rows) {
    const auto s = std::make_unique<ConnectionState>();
    s->Mat[0] = {"C20", "T", "", 20, 19, 2.3F, 3.6F, 9500, 6400, 0, 330, 0};
    s->Mat_count = 0;
    s->Prof[1] = {"T  34x95", "T", "", 34, 95};
    s->Prof1_count = 1;
    s->Setup.Language = "Nor";
    s->Setup.Setup_line[1] = "Language";
    s->Setup.gam_k_bjelke = 1.25F;
    const Json state = Json::parse(Result(*s, {"Mat", "Prof", "Setup"}))["state"];
    EXPECT_EQ(state["Mat"].dump(), R"([{"Id":"C20","Type":"T","Standard":"","fmk":20,"fc0k":19,"fc90k":2.3,"fvk":3.6,)"
                                   R"("E0_mean":9500,"E0_05":6400,"G":0,"dens":330,"s_fac":0}])");
    EXPECT_EQ(state["Prof"].dump(), R"([{"Id":"","Type":"","Standard":"","b":0,"h":0},)"
                                    R"({"Id":"T  34x95","Type":"T","Standard":"","b":34,"h":95}])");
    EXPECT_EQ(state["Setup"].dump(), R"({"Language":"Nor","Setup_line":["","Language","","","",""],)"
                                     R"("gam_timb":0,"gam_lam":0,"gam_kerto":0,"gam_k-bjelke":1.25})");
    s->Mat_count = -1; // an empty table, and counts beyond one
    s->Prof1_count = 32767;
    const Json bounds = Json::parse(Result(*s, {"Mat", "Prof"}))["state"];
    EXPECT_EQ(bounds["Mat"].size(), 0U);
    EXPECT_EQ(bounds["Prof"].size(), 401U);
    s->Prof1_count = -32768;
    EXPECT_EQ(Json::parse(Result(*s, {"Prof"}))["state"]["Prof"].size(), 0U);
}

TEST(Json, a_result_has_its_members_in_order) {
    const auto s = std::make_unique<ConnectionState>();
    Options options;
    options.with = {"screen"};
    options.fields = std::vector<std::string>{};
    Screen screen;
    screen[Control::Lbl_uf].caption = "1.25 ";
    screen[Control::Lbl_uf].bold = true;
    screen[Control::Lbl_uf].fore = colour_fails;
    screen[Control::Cmd_detail].visible = true;
    screen[Control::Cmd_boltetype_0].enabled = false;
    screen[Control::Comb_bulldog].back = colour_green_box;
    MessageLog box;
    box.Show("told", box_exclamation);
    PassResult result;
    result.end = PassEnd::fault;
    result.fault = RuntimeFault{5, "invalid procedure call or argument", "Tverr_brudd"};
    std::string text;
    Append_result(text, options, "a.tnvik", *s, screen, result, box);
    const Json json = Json::parse(text);
    EXPECT_EQ(test::Names(json), (std::vector<std::string>{"project", "end", "fault", "messages", "state", "screen"}));
    EXPECT_EQ(json["project"], "a.tnvik");
    EXPECT_EQ(json["end"], "fault");
    EXPECT_EQ(json["fault"].dump(),
              R"({"number":5,"description":"invalid procedure call or argument","where":"Tverr_brudd"})");
    EXPECT_EQ(json["messages"].dump(), R"([{"text":"told","style":48}])");
    EXPECT_EQ(json["state"].dump(), "{}");
    EXPECT_EQ(json["screen"]["Lbl_uf"].dump(), R"({"caption":"1.25 ","bold":true,"fore":255})");
    EXPECT_EQ(json["screen"]["Cmd_detail"].dump(), R"({"visible":true})");
    EXPECT_EQ(json["screen"]["Cmd_boltetype(0)"].dump(), R"({"enabled":false})");
    EXPECT_EQ(json["screen"]["Comb_bulldog"].dump(), R"({"back":65280})");
}

TEST(Json, the_state_is_whole_unless_fields_are_asked_for) {
    const test::ToolRun run = test::Tool({"--json"});
    const Json state = run.Object()["state"];
    std::vector<std::string> names;
    for (const StateField& field : State_fields()) {
        names.emplace_back(field.name);
    }
    EXPECT_EQ(test::Names(state), names);
    for (const char* name : {"Rd_bolt", "uf", "Case_code", "Sa1", "Sb6_txt", "Cb6", "Sum_ca", "Sum_b_txt"}) {
        EXPECT_TRUE(state.contains(name)) << name;
    }
}

} // namespace
} // namespace tarnvik
