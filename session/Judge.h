// What is known of a connection after its passes: whether it holds, with a typed he as well.
#pragma once

#include <optional>
#include <string>

#include "calc/GlobalParameter.h"
#include "calc/pass/Main_beregn.h"
#include "session/Standing.h"

namespace tarnvik {

struct Judgement {
    std::string not_current; // why there are no results, as the window tells it; empty where there are
    Verdict verdict;         // of the results
    GoverningMode governing{};
    bool he_typed{}; // he of the splitting check is given by hand

    // All that applies holds; nothing where a part of it has not been checked and none fails.
    [[nodiscard]] std::optional<bool> Holds() const;
};

// Follows the passes on one connection. A pass leaves a typed he out; the window checks it when its box is left,
// the tool as soon as it is written.
class Judge {
public:
    explicit Judge(Standing& results) : results_(results) {}

    // A connection without results.
    void Begin();

    // After a pass; `typed` where he has been written before it, or may have been.
    void After_pass(const ConnectionValues& s, const PassResult& result, bool typed);

    // Of the results as they stand.
    [[nodiscard]] Judgement Judge_results(const ConnectionValues& s) const;

    // The values as they are judged: with what the check of a typed he has found, which the pass leaves out.
    [[nodiscard]] ConnectionValues With_typed_he(const ConnectionValues& s) const;

private:
    void Check_typed_he(const ConnectionValues& s);

    // What a check of a typed he has found, apart from the state, in which the pass leaves the former results.
    struct Splitting {
        float he{}, F90_Rd{}, P_sin{}, Tverr_kontroll{};
    };
    Standing& results_;
    std::optional<Splitting> typed_;
};

} // namespace tarnvik
