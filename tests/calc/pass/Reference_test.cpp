// The program against a calculation that was written apart from it, in another language, from the same rules
// (tests/reference/reference.py): every value of 3000 passes and of 894 single formulas, bit for bit.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <type_traits>

#include "calc/Connector.h"
#include "calc/DesignCapacity.h"
#include "calc/Shear.h"
#include "calc/Splitting.h"
#include "calc/StateFields.h"
#include "calc/pass/Main_beregn.h"
#include "tests/support/Calculation.h"
#include "tests/support/Record_hash.h"
#include "tests/support/RecordingMessageBox.h"

namespace tarnvik {
namespace {

using json = nlohmann::ordered_json; // keeps the order in which inputs are written
using test::Bits;
using test::Fnv1a;
using test::RecordingMessageBox;

std::vector<json> Lines(const char* file) {
    std::ifstream in{std::string{TARNVIK_SOURCE_DIR "/tests/reference/"} + file, std::ios::binary};
    EXPECT_TRUE(in) << file;
    std::vector<json> lines;
    for (std::string line; std::getline(in, line);) {
        lines.push_back(json::parse(line));
    }
    return lines;
}

// One value as a text that two values share only where they are the same to the last bit.
template <class Value> std::string Shown(const Value& value) {
    if constexpr (std::is_same_v<Value, float>) {
        return Bits(value);
    } else if constexpr (std::is_same_v<Value, bool>) {
        return value ? "true" : "false";
    } else if constexpr (std::is_same_v<Value, std::int16_t>) {
        return std::to_string(value);
    } else {
        return std::string{std::string_view{value}};
    }
}

std::string Shown(const ConnectionState& s, std::string_view name) {
    const StateField* field = Find_state_field(name);
    return field == nullptr ? "no such field"
                            : std::visit([&s](auto member) { return Shown(s.*member); }, field->member);
}

// The same of an expected value, in the type of the field it is for.
std::string Expected(std::string_view name, const json& value) {
    const StateField* field = Find_state_field(name);
    if (field == nullptr) {
        return "no such field";
    }
    if (std::holds_alternative<float ConnectionState::*>(field->member)) {
        return Shown(value.get<float>());
    }
    if (value.is_boolean()) {
        return Shown(value.get<bool>());
    }
    if (value.is_number()) {
        return std::to_string(value.get<int>());
    }
    return value.get<std::string>();
}

// A plain write of an input; picking a connector sets its diameter as well.
void Write(ConnectionState& s, const std::string& name, const json& value) {
    const StateField* field = Find_state_field(name);
    ASSERT_NE(field, nullptr) << name;
    std::visit(
        [&](auto member) {
            auto& target = s.*member;
            using Value = std::remove_reference_t<decltype(target)>;
            if constexpr (std::is_same_v<Value, float> || std::is_same_v<Value, std::int16_t> ||
                          std::is_same_v<Value, bool>) {
                target = value.get<Value>();
            } else if constexpr (std::is_same_v<Value, std::string_view>) {
                FAIL() << name << " is no input";
            } else {
                const auto text = value.get<std::string>();
                target = Value{std::string_view{text}};
            }
        },
        field->member);
    if (name == "Bulldog_index") {
        Get_dc(s);
    }
}

constexpr const char* pass_file = "passes.jsonl";
constexpr std::size_t pass_count = 3000;

// FNV-1a, 64 bits, over all expected values of passes.jsonl in the order of the file: "end", then for every value
// "name=value" and a line feed, a float as the 8 hex digits of its bits. Computed from that file, not by this program.
constexpr std::uint64_t expected_values_hash = 0xde52c1b4acee50faU;

// This test also is the proof that results are the same in debug and release builds: the values of the program are
// hashed and compared with one constant, which came from the reference calculation. A build that rounded one value of
// one pass differently would fail here; the presets debug, core, release and sanitize all run it.
TEST(Reference, passes_are_the_same_to_the_last_bit_in_every_build) {
    const auto fresh = test::New_project();
    std::size_t compared = 0;
    std::size_t lines = 0;
    std::size_t wrong = 0;
    std::uint64_t hash = test::fnv_offset_basis;
    std::set<std::string> con_codes;
    std::set<std::string> case_codes;
    std::map<std::string, int> ends;
    for (const json& line : Lines(pass_file)) {
        ++lines;
        const auto s = std::make_unique<ConnectionState>(*fresh);
        RecordingMessageBox box;
        PassResult result;
        const json& given = line.at("set");
        const json steps = given.is_array() ? given : json::array({given});
        for (const json& step : steps) {
            for (const auto& [name, value] : step.items()) {
                Write(*s, name, value);
            }
            result = Run_pass(*s, nullptr, box);
        }
        std::string differences;
        for (const auto& [name, value] : line.at("expect").items()) {
            std::string got;
            std::string wanted;
            if (name == "end") {
                got = Pass_end_name(result.end);
                wanted = value.get<std::string>();
                ++ends[wanted];
            } else if (name == "fault") {
                got = std::to_string(result.fault ? result.fault->number : 0);
                wanted = std::to_string(value.get<int>());
            } else if (name == "spacing") {
                got = test::Record_hash(*s);
                wanted = value.get<std::string>();
            } else {
                got = Shown(*s, name);
                wanted = Expected(name, value);
            }
            ++compared;
            if (got != wanted) {
                differences += "\n  " + name + ": " + got + ", wanted " + wanted + ", which is " + value.dump();
            }
            hash = Fnv1a(name + "=" + got + "\n", hash);
        }
        EXPECT_EQ(result.fault.has_value(), line.at("expect").contains("fault"));
        if (!differences.empty() && ++wrong <= 5) {
            ADD_FAILURE() << pass_file << " line " << lines << ": " << given.dump() << differences;
        }
        con_codes.insert(std::string{s->Con_code.View()});
        case_codes.insert(std::string{s->Case_code.View()});
    }
    EXPECT_EQ(wrong, 0U);
    EXPECT_EQ(hash, expected_values_hash) << test::Hex(hash, 16);
    // The file is whole and covers what it says.
    EXPECT_EQ(lines, pass_count);
    EXPECT_GT(compared, 60U * pass_count);
    EXPECT_EQ(con_codes.size(), 16U);  // the fifteen and the blank of a pass that never came so far
    EXPECT_EQ(case_codes.size(), 36U); // the 35 and the blank
    for (const char* end : {"normal", "connector refused", "zero section", "fault"}) {
        EXPECT_GT(ends[end], 0) << end;
    }
}

// A second state, with a screen this time: what is shown does not change what is calculated.
TEST(Reference, passes_with_a_screen_calculate_the_same) {
    const auto fresh = test::New_project();
    const std::vector<json> lines = Lines(pass_file);
    for (std::size_t i = 0; i < lines.size(); i += 10) {
        SCOPED_TRACE(testing::Message() << pass_file << " line " << i + 1);
        const auto plain = std::make_unique<ConnectionState>(*fresh);
        const auto shown = std::make_unique<ConnectionState>(*fresh);
        Screen screen;
        RecordingMessageBox box;
        const json& given = lines[i].at("set");
        const json steps = given.is_array() ? given : json::array({given});
        for (const json& step : steps) {
            for (const auto& [name, value] : step.items()) {
                Write(*plain, name, value);
                Write(*shown, name, value);
            }
            EXPECT_EQ(Run_pass(*plain, nullptr, box).end, Run_pass(*shown, &screen, box).end);
        }
        for (const StateField& field : State_fields()) {
            ASSERT_EQ(Shown(*plain, field.name), Shown(*shown, field.name)) << field.name;
        }
    }
}

TEST(Reference, single_formulas_are_the_same_to_the_last_bit) {
    const auto s = std::make_unique<ConnectionState>();
    std::map<std::string, int> count;
    const ScreenWriter nowhere{nullptr};
    int number = 0;
    for (const json& line : Lines("formulas.jsonl")) {
        ++number;
        const auto formula = line.at("formula").get<std::string>();
        const json& given = line.at("given");
        SCOPED_TRACE(testing::Message() << "formulas.jsonl line " << number << ": " << line.dump());
        ++count[formula];
        *s = ConnectionState{};
        float h = 0.0F;
        float he = 0.0F;
        float b = 0.0F;
        for (const auto& [name, value] : given.items()) {
            if (formula == "splitting" && (name == "h" || name == "he" || name == "b")) {
                (name == "h" ? h : name == "he" ? he : b) = value.get<float>();
            } else {
                Write(*s, name, value);
            }
        }
        float result = 0.0F;
        const int fault = test::Fault_of([&] {
            if (formula == "shear") {
                Get_Rk(*s, result);
            } else if (formula == "connector") {
                Bulldog_Rk(*s, result);
            } else if (formula == "rows") {
                Get_nef(*s);
            } else {
                Tverr_brudd(*s, h, he, b, nowhere);
            }
        });
        const json& wanted = line.at("wanted");
        EXPECT_EQ(fault, wanted.value("fault", 0));
        for (const auto& [name, value] : wanted.items()) {
            if (name == "result") {
                EXPECT_EQ(Shown(result), Shown(value.get<float>()));
            } else if (name != "fault") {
                EXPECT_EQ(Shown(*s, name), Expected(name, value)) << name;
            }
        }
        if (HasFailure()) {
            break; // one line tells enough
        }
    }
    EXPECT_EQ(count["shear"], 15 * 20);
    EXPECT_EQ(count["connector"], 6 * 5 * 5);
    EXPECT_EQ(count["rows"], 6 * 4 * 6);
    EXPECT_EQ(count["splitting"], 300);
}

} // namespace
} // namespace tarnvik
