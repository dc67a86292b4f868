#include "session/Load_cases.h"

#include <algorithm>

#include "session/Variants.h"

namespace tarnvik {

namespace {

void Note_governing(LoadsResult& result, std::size_t load) {
    const Judgement& judgement = result.loads[load].judgement;
    for (std::size_t i = 0; i < check_count && result.loads[load].calculated; ++i) {
        const CheckResult& check = judgement.verdict.checks[i];
        auto& governing = result.governing[i];
        if (check.applies && check.checked && (!governing || check.value > governing->check.value)) {
            governing = {load, check};
        }
    }
}

} // namespace

std::optional<Check> LoadsResult::Governing_distances() const {
    std::optional<Check> fullest;
    double most = -1.0;
    for (const Check check :
         {Check::bolts_fit_1, Check::bolts_fit_2, Check::connectors_fit_1, Check::connectors_fit_2}) {
        const auto& one = governing[static_cast<std::size_t>(check)];
        if (one && static_cast<double>(one->check.value) / one->check.limit > most) {
            most = static_cast<double>(one->check.value) / one->check.limit;
            fullest = check;
        }
    }
    return fullest;
}

std::optional<bool> LoadsResult::Holds() const {
    const auto is = [](std::optional<bool> holds) {
        return [holds](const CheckedLoad& one) { return one.judgement.Holds() == holds; };
    };
    if (std::any_of(loads.begin(), loads.end(), is(false))) {
        return false;
    }
    return std::all_of(loads.begin(), loads.end(), is(true)) ? std::optional{true} : std::nullopt;
}

LoadsResult Check_loads(const ConnectionState& joint, const std::vector<LoadCase>& loads) {
    Variants variants{joint};
    LoadsResult result;
    for (const LoadCase& load : loads) {
        ConnectionState& s = variants.Fresh();
        s.P = load.P;
        s.Lastvar = load.Lastvar;
        const bool calculated = variants.Pass().end == PassEnd::normal;
        result.loads.push_back({load, s.kmod, calculated, variants.Judge_results()});
        Note_governing(result, result.loads.size() - 1);
    }
    return result;
}

} // namespace tarnvik
