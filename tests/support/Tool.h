// What the tests of the headless tool share.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "check/Check.h"
#include "tests/support/Files.h"

namespace tarnvik::test {

using Json = nlohmann::ordered_json;

struct ToolRun {
    int status{};
    std::string out, err;

    // The one JSON object that was printed.
    [[nodiscard]] Json Object() const {
        EXPECT_EQ(Lines().size(), 1U) << out << err;
        return Lines().empty() ? Json{} : Lines().front();
    }
    // One JSON value for each line that was printed.
    [[nodiscard]] std::vector<Json> Lines() const {
        std::vector<Json> values;
        std::istringstream lines{out};
        for (std::string line; std::getline(lines, line);) {
            values.push_back(Json::parse(line));
        }
        return values;
    }
};

// The tool within this process, with a painter or null; the data files are the delivered ones.
inline ToolRun Tool_with(Rendering* rendering, const std::vector<std::string>& arguments,
                         const std::string& input = {}) {
    std::istringstream in{input};
    std::ostringstream out;
    std::ostringstream err;
    ToolRun run;
    run.status = Run_check(arguments, TARNVIK_DATA_DIR, in, out, err, rendering);
    run.out = out.str();
    run.err = err.str();
    return run;
}

inline ToolRun Tool(const std::vector<std::string>& arguments, const std::string& input = {}) {
    return Tool_with(nullptr, arguments, input);
}

// What was printed, line by line.
inline std::vector<std::string> Text_lines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in{text};
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

inline std::vector<std::string> Names(const Json& object) {
    std::vector<std::string> names;
    for (const auto& member : object.items()) {
        names.push_back(member.key());
    }
    return names;
}

} // namespace tarnvik::test
