// Lines of a batch: JSON that is refused with a reason, or a pass whose result is JSON; and the same text as the value
// of an option.
#include <string>

#include <nlohmann/json.hpp>

#include "Fuzz.h"
#include "calc/pass/Main_beregn.h"
#include "check/Checks.h"
#include "check/Find.h"
#include "check/Inputs.h"
#include "check/Json.h"
#include "check/Named_inputs.h"
#include "check/Plot.h"
#include "check/Summary.h"
#include "check/Sweep.h"
#include "check/Validation.h"

namespace {

using namespace tarnvik;

// Whatever the joint: every choice is counted once, and what was found is told.
void Search(const ConnectionState& joint, const SearchLimits& limits) {
    const SearchResult result = Search_fasteners(joint, limits, true);
    FUZZ_CHECK(result.choices == limits.Count());
    FUZZ_CHECK(result.holding >= result.found.size() && result.holding + result.Stopped_choices() <= result.choices);
    FUZZ_CHECK(nlohmann::json::parse(Found_json(result, {})).at("found").size() == result.found.size());
    FUZZ_CHECK(!Found_table(result).empty() && !Found_csv(result).empty());
}

// A diagram has a place for every point, whatever its figures.
void Plot(const SweepRange& range, const Judgement& judgement) {
    constexpr std::size_t most_points = 50;
    if (range.Count() > most_points) {
        return;
    }
    std::vector<SweepPoint> points;
    std::vector<SweepPoint> grid;
    for (std::size_t i = 0; i < range.Count(); ++i) {
        points.push_back({{range.Value(i)}, {}, judgement});
        grid.push_back({{range.Value(i), 1.0}, {}, judgement});
    }
    for (const std::string& svg :
         {Plot_sweep(range, points, "<&>"), Plot_grid({range, {"bolts", 1.0, 1.0, 1.0}}, grid, "<&>")}) {
        FUZZ_CHECK(svg.ends_with("</svg>\n"));
        FUZZ_CHECK(svg.find("nan") == std::string::npos && svg.find("inf\"") == std::string::npos);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using Json = nlohmann::ordered_json;
    static const auto s = std::make_unique<ConnectionState>();
    static_cast<ConnectionValues&>(*s) = fuzz::New_project();
    if (s->Prof1_count == 0) {
        *s = fuzz::New_project();
    }
    try {
        const Json inputs = Parse_line({reinterpret_cast<const char*>(data), size});
        Screen screen;
        Options options;
        options.with = {"screen"};
        Standing results;
        Judge judge{results};
        for (const Json& object : inputs.is_array() ? inputs : Json::array({inputs})) {
            MessageLog box;
            Set_inputs(*s, object);
            const PassResult result = Run_pass(*s, &screen, box);
            FUZZ_CHECK((result.end == PassEnd::fault) == result.fault.has_value());
            std::string json;
            results.Note_pass(*s, result);
            judge.After_pass(*s, result, object.contains("man_he"));
            const Judgement judgement = judge.Judge_results(*s);
            FUZZ_CHECK(judgement.Holds() != std::optional{true} || result.end == PassEnd::normal);
            Append_result(json, options, {}, *s, screen, result, box, {}, {Invalid_inputs(*s), judgement});
            // Inputs are finite, and the arithmetic stops before an infinity: no value is missing.
            const Json shown = Json::parse(json);
            for (const auto& [name, value] : shown.at("state").items()) {
                FUZZ_CHECK(!value.is_null());
            }
            FUZZ_CHECK(!Summary({}, *s, result, box).empty());
            FUZZ_CHECK(Checks_summary(judgement).empty() == !judgement.not_current.empty());
            if (size % 8 == 0) {
                SearchLimits limits = Search_limits({{"bolts", "3"}, {"spacing", "9d"}}, true);
                limits.Bolt_index = static_cast<std::int16_t>(size / 8 % bolt_table.size());
                Search(*s, limits);
            }
            if (size % 16 == 0) { // a report is long
                options.with = {"tables", "pictures", "detail", "explanations", "report"};
                json.clear();
                Append_result(json, options, {}, *s, screen, result, box,
                              [&] { return fuzz::Print_on_recorder(*s, screen); });
                FUZZ_CHECK(Json::accept(json));
                options.with = {"screen"};
            }
        }
    } catch (const UsageError& error) {
        FUZZ_CHECK(!error.text.empty());
    }
    // The same text as the value of an option.
    if (size > 0 && data[0] >= 'A') {
        const std::string pair{reinterpret_cast<const char*>(data), size};
        const std::size_t equals = pair.find('=');
        if (equals != std::string::npos) {
            try {
                const SweepRange range = Parse_sweep(pair);
                FUZZ_CHECK(range.Count() > 0 && !range.Text(range.Count() - 1).empty());
                Standing results;
                Judge judge{results};
                MessageLog box;
                results.Note_pass(*s, Run_pass(*s, nullptr, box));
                Plot(range, judge.Judge_results(*s));
            } catch (const UsageError& error) {
                FUZZ_CHECK(!error.text.empty());
            }
            try {
                const SearchLimits limits = Search_limits(Parse_fixed(pair), size % 2 == 0);
                FUZZ_CHECK(limits.Count() > 0 && limits.Count() <= 7680);
                if (limits.Count() <= 64) {
                    Search(*s, limits);
                }
            } catch (const UsageError& error) {
                FUZZ_CHECK(!error.text.empty());
            }
            try {
                const std::string name = pair.substr(0, equals);
                if (Is_named_input(name)) {
                    Set_named_inputs(*s, {{name, pair.substr(equals + 1)}});
                } else {
                    Set_input(*s, name, pair.substr(equals + 1));
                }
                MessageLog box;
                Run_pass(*s, nullptr, box);
            } catch (const UsageError& error) {
                FUZZ_CHECK(!error.text.empty());
            }
        }
    }
    return 0;
}
