// Inputs as an office names them: a bolt by its name, a member by its pieces and its section.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "calc/GlobalParameter.h"

namespace tarnvik {

struct NamedInput {
    std::string_view name;    // the option without its dashes, and the key of a batch line
    std::string_view allowed; // what it takes, in words
    std::string_view meaning;
};
std::span<const NamedInput> Named_inputs();

// The load-duration classes by name. Row = Lastvar - 1.
inline constexpr std::array<std::string_view, 5> load_names{"permanent", "long", "medium", "short", "instantaneous"};

bool Is_named_input(std::string_view name);

using NamedValues = std::vector<std::pair<std::string, std::string>>;

// Writes what the names stand for. What belongs together is set together: one of single and double of each member, one
// of bolts only and bolts with connectors, sections of both members from the table or both typed. Decimals take a comma
// or a point.
// Errors: throws UsageError for a value that nothing is named by, a name given twice, and names that contradict each
// other; nothing is written then.
void Set_named_inputs(ConnectionState& s, const NamedValues& values);

} // namespace tarnvik
