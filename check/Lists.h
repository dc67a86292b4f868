// What can be asked for by name.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "calc/GlobalParameter.h"

namespace tarnvik {

// The lists of --list.
std::span<const std::string_view> List_names();

// One of them, of the tables of the state: a table with a heading, or an array of objects in one line. Numbers in mm,
// N/mm2 and kg/m3.
std::string List_text(const ConnectionState& s, std::string_view list, bool json);

} // namespace tarnvik
