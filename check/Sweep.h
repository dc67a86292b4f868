// One connection over a range of an input, or over a grid of two.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "check/Checks.h"

namespace tarnvik {

// Values from `from` by `step` up to `to`, itself included.
struct SweepRange {
    std::string name;
    double from{}, to{}, step{};

    [[nodiscard]] std::size_t Count() const;
    [[nodiscard]] double Value(std::size_t i) const;
    [[nodiscard]] std::string Text(std::size_t i) const; // as an input takes it
};

// "NAME=FROM:TO:STEP" with an input, or an input by name. The step may go down.
// Errors: throws UsageError.
SweepRange Parse_sweep(const std::string& text);

struct SweepPoint {
    std::vector<double> values; // of each range
    std::vector<std::string> warnings;
    Judgement judgement;
};

// The heading of the table, and a line of it: comma, decimal point, nothing where a value is not known.
std::string Sweep_heading(const std::vector<SweepRange>& ranges);
std::string Sweep_line(const SweepPoint& point);

// The same as an object in a line: values, warnings, and the group `checks`.
std::string Sweep_json(const std::vector<SweepRange>& ranges, const SweepPoint& point);

} // namespace tarnvik
