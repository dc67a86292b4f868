// What the inputs may be. The calculation itself takes every value and goes as far as the arithmetic does.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "calc/GlobalParameter.h"

namespace tarnvik {

// A plain input as `--list inputs` tells it.
struct InputRow {
    std::string_view name;
    std::string allowed;
    std::string_view meaning;
};
std::vector<InputRow> Input_rows(const ConnectionState& s);

// Inputs outside their range and pairs that are impossible, in the order of the tables, in the words of a refusal:
// "Klima: expected 1 to 3, got 7". An input that plays no part is not looked at. Empty where all is well.
std::vector<std::string> Invalid_inputs(const ConnectionState& s);

} // namespace tarnvik
