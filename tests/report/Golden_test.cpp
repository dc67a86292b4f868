// Whole reports against expected lines that were made apart from the program: places and words from tables of their
// own, values from the state. Every connection code, every case, with and without connectors, both languages, both
// signs of the force; printed one after the other, so that texts of earlier prints show where they have to.
#include <fstream>
#include <set>

#include <nlohmann/json.hpp>

#include "check/Inputs.h"
#include "tests/support/Report.h"

namespace tarnvik {
namespace {

using namespace test;
using Json = nlohmann::ordered_json;

TEST(Golden, whole_reports_line_by_line) {
    std::ifstream file{std::string{TARNVIK_SOURCE_DIR} + "/tests/report/golden.jsonl"};
    ASSERT_TRUE(file.good());
    SpacingTexts texts;
    std::set<std::string> codes;
    std::set<std::string> cases;
    int reports = 0;
    for (std::string line; std::getline(file, line); ++reports) {
        const Json golden = Json::parse(line);
        Connection connection{"Eng", false};
        Set_inputs(*connection.s, golden.at("inputs"));
        ASSERT_EQ(connection.Pass(), PassEnd::normal) << golden.at("inputs");
        Recorder recorder;
        PrintReport(recorder, *connection.s, connection.Pictures(), moment, texts);
        const std::vector<std::string> drawn = Drawn(recorder);
        const auto wanted = golden.at("lines").get<std::vector<std::string>>();
        for (std::size_t i = 0; i < std::min(wanted.size(), drawn.size()); ++i) {
            ASSERT_EQ(drawn[i], wanted[i]) << golden.at("inputs");
        }
        ASSERT_EQ(drawn.size(), wanted.size()) << golden.at("inputs");
        codes.emplace(connection.s->Con_code.View());
        cases.emplace(connection.s->Case_code.View());
    }
    EXPECT_EQ(reports, 70);
    EXPECT_EQ(codes.size(), 15U);
    EXPECT_EQ(cases.size(), 35U);
}

} // namespace
} // namespace tarnvik
