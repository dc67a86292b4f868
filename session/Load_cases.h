// One joint under several load cases, each with its own force and load-duration class, and so its own kmod.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "calc/GlobalParameter.h"
#include "session/Judge.h"

namespace tarnvik {

struct LoadCase {
    std::string name;
    float P{}; // kN, above 0 compression
    std::int16_t Lastvar{1};
};

struct CheckedLoad {
    LoadCase load;
    float kmod{};
    bool calculated{}; // the pass was not stopped
    Judgement judgement;
};

// The largest value of a check under all load cases, and the first case that has it.
struct GoverningLoad {
    std::size_t load{}; // place in the list
    CheckResult check;
};

struct LoadsResult {
    std::vector<CheckedLoad> loads; // in the order given
    // Row = Check. Nothing where the check does not apply, or is not known under any case.
    std::array<std::optional<GoverningLoad>, check_count> governing;

    // The fullest of the heights by the distances of bolts and connectors.
    [[nodiscard]] std::optional<Check> Governing_distances() const;

    // All holds under every case; nothing where a part of it has not been checked and none fails.
    [[nodiscard]] std::optional<bool> Holds() const;
};

// Checks each on the joint as Search_fasteners does; the joint itself stays as it is.
LoadsResult Check_loads(const ConnectionState& joint, const std::vector<LoadCase>& loads);

} // namespace tarnvik
