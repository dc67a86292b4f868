#include "check/Inputs.h"

#include <limits>
#include <memory>

#include "check/Options.h"
#include "tests/support/Tool.h"

namespace tarnvik {
namespace {

using test::Json;

class Inputs : public testing::Test {
protected:
    // The message of a refusal, empty where the value was taken.
    std::string Set(const std::string& name, const std::string& value) {
        try {
            Set_input(s, name, value);
        } catch (const UsageError& error) {
            return error.text;
        }
        return {};
    }
    std::string Set(const char* json) {
        try {
            Set_inputs(s, Json::parse(json));
        } catch (const UsageError& error) {
            return error.text;
        }
        return {};
    }

    std::unique_ptr<ConnectionState> state_ = std::make_unique<ConnectionState>();
    ConnectionState& s = *state_;
};

TEST_F(Inputs, numbers_as_text) {
    struct Row {
        const char* text;
        float value;
    };
    // clang-format off
    const Row rows[] = {
        {"12",               12.0F},
        {"12.5",             12.5F},
        {"12,5",             12.5F},
        {"-12.5",            -12.5F},
        {"+12.5",            12.5F},
        {"1e2",              100.0F},
        {"0.1",              0.1F},
        {"3.4028235e38",     std::numeric_limits<float>::max()},
        {"1e-45",            std::numeric_limits<float>::denorm_min()},
        {"16777217",         16777216.0F}, // the nearest, to even
    };
    // clang-format on
    for (const Row& row : rows) {
        EXPECT_EQ(Set("P", row.text), "") << row.text;
        EXPECT_EQ(s.P, row.value) << row.text;
    }
}

TEST_F(Inputs, what_is_refused_is_named_with_what_was_expected) {
    struct Row {
        const char* name;
        const char* value;
        const char* message;
    };
    // clang-format off
    const Row rows[] = {
        {"P",       "",         "P: expected a number, got \"\""},
        {"P",       "abc",      "P: expected a number, got \"abc\""},
        {"P",       "12abc",    "P: expected a number, got \"12abc\""},
        {"P",       " 12",      "P: expected a number, got \" 12\""},
        {"P",       "1.2,3",    "P: expected a number, got \"1.2,3\""},
        {"P",       "inf",      "P: expected a number, got \"inf\""},
        {"P",       "nan",      "P: expected a number, got \"nan\""},
        {"P",       "+-1",      "P: expected a number, got \"+-1\""},
        {"P",       "3.5e38",   "P: expected a number that a 32-bit float holds, got \"3.5e38\""},
        {"P",       "1e999",    "P: expected a number that a 32-bit float holds, got \"1e999\""},
        {"Lastvar", "1.5",      "Lastvar: expected a whole number from -32768 to 32767, got \"1.5\""},
        {"Lastvar", "32768",    "Lastvar: expected a whole number from -32768 to 32767, got \"32768\""},
        {"Lastvar", "x",        "Lastvar: expected a number, got \"x\""},
        {"enk_1",   "yes",      "enk_1: expected true or false, got \"yes\""},
        {"enk_1",   "1",        "enk_1: expected true or false, got \"1\""},
        {"Uf",      "1",        "\"Uf\" is no input; see tarnvik-check --help"},
        {"uf",      "1",        "\"uf\" is no input; see tarnvik-check --help"},
        {"t1_txt",  "1",        "\"t1_txt\" is no input; see tarnvik-check --help"},
        {"Mat",     "1",        "\"Mat\" is no input; see tarnvik-check --help"},
    };
    // clang-format on
    s.P = 7.0F;
    s.Lastvar = 3;
    s.enk_1 = false;
    for (const Row& row : rows) {
        EXPECT_EQ(Set(row.name, row.value), row.message);
        EXPECT_EQ(s.P, 7.0F);
        EXPECT_EQ(s.Lastvar, 3);
        EXPECT_FALSE(s.enk_1);
    }
}

TEST_F(Inputs, whole_numbers_flags_and_texts) {
    EXPECT_EQ(Set("Lastvar", "-32768"), "");
    EXPECT_EQ(s.Lastvar, -32768);
    EXPECT_EQ(Set("Lastvar", "3.0"), "");
    EXPECT_EQ(s.Lastvar, 3);
    for (const char* on : {"true", "-1"}) {
        s.dob_1 = false;
        EXPECT_EQ(Set("dob_1", on), "");
        EXPECT_TRUE(s.dob_1) << on;
    }
    for (const char* off : {"false", "0"}) {
        s.dob_1 = true;
        EXPECT_EQ(Set("dob_1", off), "");
        EXPECT_FALSE(s.dob_1) << off;
    }
    EXPECT_EQ(Set("Prosjekt", " Søyle=1 "), "");
    EXPECT_EQ(s.Prosjekt, " Søyle=1 ");
    EXPECT_EQ(Set("Bolt_ab", ""), "");
    EXPECT_EQ(s.Bolt_ab.View(), " ");
    EXPECT_EQ(Set("Lang", "English"), "");
    EXPECT_EQ(s.Lang.View(), "Eng");
    EXPECT_EQ(Set("Txt_b1", "12abc"), ""); // the pass reads it as the box would be read
    EXPECT_EQ(s.Txt_b1, "12abc");
}

TEST_F(Inputs, a_connector_sets_its_diameter_in_the_order_of_writing) {
    const float diameters[] = {48.0F, 62.0F, 75.0F, 95.0F, 117.0F};
    for (int row = 0; row < 5; ++row) {
        EXPECT_EQ(Set("Bulldog_index", std::to_string(row)), "");
        EXPECT_EQ(s.dc, diameters[row]);
    }
    EXPECT_EQ(Set("dc", "50"), "");
    EXPECT_EQ(s.dc, 50.0F);
    EXPECT_EQ(Set("Bulldog_index", "7"), ""); // no such row
    EXPECT_EQ(s.dc, 50.0F);
    EXPECT_EQ(Set(R"({"Bulldog_index":0,"dc":60})"), "");
    EXPECT_EQ(s.dc, 60.0F);
    EXPECT_EQ(Set(R"({"dc":60,"Bulldog_index":0})"), "");
    EXPECT_EQ(s.dc, 48.0F);
}

TEST_F(Inputs, no_other_input_writes_more_than_itself) {
    EXPECT_EQ(Set(R"({"Med_bulldog":true})"), "");
    EXPECT_TRUE(s.Kun_bolt);
    EXPECT_EQ(Set(R"({"dob_1":true})"), "");
    EXPECT_TRUE(s.enk_1);
    EXPECT_EQ(Set(R"({"Con_type":2})"), "");
    EXPECT_EQ(s.alp, 25.0F);
}

TEST_F(Inputs, members_of_an_object) {
    EXPECT_EQ(Set(R"({"P":-1.5,"Klima":2,"Kun_bolt":false,"Id":"å","Bolt_ab":"a","enk_1":0,"enk_2":-1,"Lastvar":2.0})"),
              "");
    EXPECT_EQ(s.P, -1.5F);
    EXPECT_EQ(s.Klima, 2);
    EXPECT_FALSE(s.Kun_bolt);
    EXPECT_EQ(s.Id, "å");
    EXPECT_EQ(s.Bolt_ab.View(), "a");
    EXPECT_FALSE(s.enk_1);
    EXPECT_TRUE(s.enk_2);
    EXPECT_EQ(s.Lastvar, 2);
    EXPECT_EQ(Set("{}"), "");
}

TEST_F(Inputs, members_that_are_refused) {
    struct Row {
        const char* json;
        const char* message;
    };
    // clang-format off
    const Row rows[] = {
        {R"({"P":"1"})",           "P: expected a number, got \"1\""},
        {R"({"P":null})",          "P: expected a number, got null"},
        {R"({"P":true})",          "P: expected a number, got true"},
        {R"({"P":[1]})",           "P: expected a number, got an array"},
        {R"({"P":{"a":1}})",       "P: expected a number, got an object"},
        {R"({"P":1e39})",          "P: expected a number that a 32-bit float holds, got 1e+39"},
        {R"({"Klima":1.5})",       "Klima: expected a whole number from -32768 to 32767, got 1.5"},
        {R"({"Klima":40000})",     "Klima: expected a whole number from -32768 to 32767, got 40000"},
        {R"({"enk_1":1})",         "enk_1: expected true or false, got 1"},
        {R"({"enk_1":"true"})",    "enk_1: expected true or false, got \"true\""},
        {R"({"Id":5})",            "Id: expected a text, got 5"},
        {R"({"Rd_bolt":5})",       "\"Rd_bolt\" is no input; see tarnvik-check --help"},
        {R"(5)",                   "expected an object of inputs, got 5"},
        {R"("P")",                 "expected an object of inputs, got \"P\""},
        {R"(null)",                "expected an object of inputs, got null"},
        {R"([{"P":1}])",           "expected an object of inputs, got an array"},
    };
    // clang-format on
    for (const Row& row : rows) {
        EXPECT_EQ(Set(row.json), row.message);
    }
}

} // namespace
} // namespace tarnvik
