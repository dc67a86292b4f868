// The verdict on a connection as the tool tells it: what the window shows (session/Standing.h), with figures and
// clauses.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

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

// Follows the passes on one connection. A pass leaves a typed he out; the window checks it when its box is left, the
// tool as soon as it is written.
class Judge {
public:
    explicit Judge(Standing& results) : results_(results) {}

    // A connection without results.
    void Begin();

    // After a pass; `typed` where he has been written before it, or may have been.
    void After_pass(const ConnectionValues& s, const PassResult& result, bool typed);

    // Of the results as they stand.
    [[nodiscard]] Judgement Judge_results(const ConnectionValues& s) const;

private:
    void Check_typed_he(const ConnectionValues& s);

    // What a check of a typed he has found, apart from the state, in which the pass leaves the former results.
    struct Splitting {
        float he{}, F90_Rd{}, P_sin{}, Tverr_kontroll{};
    };
    Standing& results_;
    std::optional<Splitting> typed_;
};

// A check as the JSON, the summary and tables call it; i is its place in Check.
std::string_view Check_name(std::size_t i);

// The verdict in words, or why there is none.
std::string Judgement_text(const Judgement& judgement, bool english);

// The members of the group `checks`.
void Append_checks(std::string& json, const Judgement& judgement, bool english);

// The section of the summary: a line for each check, the mode that governs, the verdict. Empty without results.
std::string Checks_summary(const Judgement& judgement);

// The status of --strict: exit_fails also for what does not fit or has not been checked. `plain` is that of Status.
int Strict_status(int plain, const Judgement& judgement);

} // namespace tarnvik
