// Lines of a batch: JSON that is refused with a reason, or a pass whose result is JSON.
#include <string>

#include <nlohmann/json.hpp>

#include "Fuzz.h"
#include "calc/pass/Main_beregn.h"
#include "check/Checks.h"
#include "check/Inputs.h"
#include "check/Json.h"
#include "check/Named_inputs.h"
#include "check/Summary.h"
#include "check/Sweep.h"
#include "check/Validation.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tarnvik;
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
