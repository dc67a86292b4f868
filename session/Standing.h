// How the results stand: whether they belong to the inputs, and whether the connection holds. The program's own, beside
// what a pass shows.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "calc/GlobalParameter.h"
#include "calc/pass/Main_beregn.h"

namespace tarnvik {

// What has to hold. The sums of the distances across a member have room in its height.
enum class Check : std::uint8_t {
    utilisation, // of bolts and connectors
    splitting,
    bolts_fit_1, // member 1
    bolts_fit_2,
    connectors_fit_1, // with connectors only
    connectors_fit_2,
};
inline constexpr std::size_t check_count = 6;

struct CheckResult {
    bool applies{};
    bool checked{}; // the value belongs to the inputs
    float value{};  // utilisation, or sum of the distances, mm
    float limit{};  // 1.0, or height of the member, mm

    [[nodiscard]] bool Fails() const { return applies && checked && value > limit; }
};

struct Verdict {
    std::array<CheckResult, check_count> checks;

    [[nodiscard]] const CheckResult& operator[](Check check) const { return checks[static_cast<std::size_t>(check)]; }

    // Everything that applies has been checked and holds.
    [[nodiscard]] bool Holds() const;
};

// From the results of the last pass. `splitting_checked` tells whether the splitting result belongs to the inputs.
Verdict Verdict_of(const ConnectionValues& s, bool splitting_checked);

// "Holds", "Splitting not checked", or what does not hold, in words.
std::string Verdict_text(const Verdict& verdict, bool english);

// What is checked, in words, and the clause of EN 1995-1-1 or its table.
std::string_view Check_words(Check check, bool english);
std::string_view Check_clause(const Verdict& verdict, Check check, bool english);

// A line for each check with its figures, and the failure mode that governs.
std::string Verdict_details(const Verdict& verdict, const ConnectionValues& s, bool english);

// The failure mode with the smallest capacity of the last pass, 'a' to 'k', and its equation of EN 1995-1-1 8.2.2.
// The first of equal ones.
struct GoverningMode {
    char mode;
    std::string_view equation; // "8.6 c"
    float value;               // N
};
GoverningMode Governing_mode(const ConnectionValues& s);

// What a pass that did not end normally says for itself, in words.
std::string_view Reason_of(const PassResult& result, const ConnectionValues& s, bool english);

// Keeps what the results on the screen were calculated from.
class Standing {
public:
    // After every pass.
    void Note_pass(const ConnectionValues& s, const PassResult& result);

    // The splitting check alone has been made on what the state holds; or what is shown of it does not belong to the
    // inputs any more, whatever they are.
    void Note_splitting(const ConnectionValues& s);
    void Forget_splitting() { splitting_.reset(); }

    // The last pass ended normally, and no input of it has changed since (a refused value stays in the state).
    [[nodiscard]] bool Current(const ConnectionValues& s) const;

    // The same of the splitting check, which a typed he leaves out of the pass.
    [[nodiscard]] bool Splitting_current(const ConnectionValues& s) const;

    // "Not current: " and the reason; empty where the results are current.
    [[nodiscard]] std::string Not_current(const ConnectionValues& s, bool english) const;

private:
    // What a pass reads. Sections are those that it has made of profile or texts.
    struct Inputs {
        std::array<std::int16_t, 10> choices{};
        std::array<bool, 7> flags{};
        std::array<float, 11> values{};
        FixedText<1> Bolt_ab;

        friend bool operator==(const Inputs& one, const Inputs& other) = default;
    };
    static Inputs Inputs_of(const ConnectionValues& s);

    // What the splitting check reads.
    struct SplittingInputs {
        std::array<float, 7> values{};
        FixedText<3> Con_code;

        friend bool operator==(const SplittingInputs& one, const SplittingInputs& other) = default;
    };
    static SplittingInputs Splitting_inputs_of(const ConnectionValues& s);

    std::optional<Inputs> inputs_; // of the last pass, where it ended normally
    PassResult last_;
    std::optional<SplittingInputs> splitting_;
};

} // namespace tarnvik
