// Batches on several threads.
#include "tests/support/Tool.h"

namespace tarnvik {
namespace {

using namespace test;

// Connections of every kind, among them lines that are refused, stopped and longer than others.
std::string Mixed_lines(int count) {
    std::string lines;
    for (int i = 0; i < count; ++i) {
        switch (i % 97) {
        case 13:
            lines += "{\"nix\":1}\n";
            break;
        case 14:
            lines += "{\"P\":\n";
            break;
        case 15:
            lines += R"([{"P":3},{"P":"x"}])"
                     "\n";
            break;
        case 16:
            lines += "{\"Mat_index\":101}\n";
            break;
        case 17:
            lines += "\n";
            break;
        default:
            lines += R"({"P":)" + std::to_string(i) + R"(,"Con_type":)" + std::to_string(i % 5 + 1) +
                     R"(,"Prosjekt":")" + std::string(static_cast<std::size_t>(i % 50), 'x') + "\"}\n";
        }
    }
    return lines;
}

TEST(BatchJobs, results_messages_and_status_are_those_of_one) {
    const std::string lines = Mixed_lines(3000) + "{\"P\":7}"; // the last without its end
    for (const std::vector<std::string>& options : {std::vector<std::string>{"--fields", "P,uf"},
                                                    {},
                                                    {"--with", "screen,tables,pictures,detail"},
                                                    {"--strict", "--fields", "P,checks"}}) {
        std::vector<std::string> arguments{"--batch", "--lang", "Eng", "--set", "Klima=3"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const ToolRun one = Tool(arguments, lines);
        EXPECT_EQ(one.status, exit_usage);
        EXPECT_EQ(std::count(one.out.begin(), one.out.end(), '\n'), 3001 - 31); // blank ones have no answer
        for (const char* jobs : {"1", "2", "3", "16"}) {
            arguments.insert(arguments.end(), {"--jobs", jobs});
            const ToolRun several = Tool(arguments, lines);
            EXPECT_EQ(several.out, one.out) << jobs;
            EXPECT_EQ(several.err, one.err) << jobs;
            EXPECT_EQ(several.status, one.status) << jobs;
        }
    }
}

// A row of the printed report shows what an earlier print left in it.
TEST(BatchJobs, reports_follow_one_another) {
    std::string lines;
    for (int i = 0; i < 60; ++i) {
        lines += i % 2 == 0 ? R"({"Con_type":1,"Ant_index":2,"Bolt_ab":"b","Id":")" + std::string(1000, 'x') + "\"}\n"
                            : R"({"Con_type":1,"Ant_index":4})"
                              "\n";
    }
    const std::vector<std::string> arguments{"--batch", "--fields", "P", "--with", "report"};
    std::vector<std::string> several = arguments;
    several.insert(several.end(), {"--jobs", "3"});
    const auto prints = [&](const std::vector<std::string>& all) {
        std::vector<Json> texts;
        for (const Json& line : Tool(all, lines).Lines()) {
            for (const Json& call : line.at("report")) {
                if (call.at("op") == "Print" && call.at("page") == 2 && call.at("y").get<double>() < 260) {
                    texts.push_back(call.at("text"));
                }
            }
        }
        return texts;
    };
    const auto alone = prints(arguments);
    EXPECT_GT(alone.size(), 60U);
    EXPECT_EQ(prints(several), alone);
}

// The results of the lines before it stand before a complaint, where both go the same way.
TEST(BatchJobs, a_complaint_stands_before_its_own_result) {
    for (const char* jobs : {"1", "2"}) {
        std::istringstream in{"{}\nx\n{}\n"};
        std::ostringstream both;
        Run_check({"--batch", "--fields", "P", "--jobs", jobs}, TARNVIK_DATA_DIR, in, both, both);
        const std::string text = both.str();
        const std::size_t first = text.find("\"end\"");
        const std::size_t complaint = text.find("tarnvik-check: line 2:");
        const std::size_t refused = text.find("{\"line\":2");
        EXPECT_LT(first, complaint);
        EXPECT_LT(complaint, refused);
        EXPECT_LT(refused, text.rfind("\"end\""));
    }
}

TEST(BatchJobs, wrong_numbers_of_threads) {
    for (const char* jobs : {"0", "-1", "2x", "", "257", "1.5", "99999999999"}) {
        const ToolRun run = Tool({"--batch", "--jobs", jobs}, "{}\n");
        EXPECT_EQ(run.status, exit_usage);
        EXPECT_EQ(run.err,
                  "tarnvik-check: --jobs: expected a whole number from 1 to 256, got \"" + std::string{jobs} + "\"\n");
    }
}

} // namespace
} // namespace tarnvik
