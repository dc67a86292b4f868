// What keeps the new project of a start from being calculated, where a data file is the cause. The program's own.
#pragma once

#include <filesystem>
#include <string>

#include "calc/GlobalParameter.h"
#include "calc/pass/Main_beregn.h"

namespace tarnvik {

// File and folder, row, what was expected and what stands there, in a few lines; empty where the first pass ended
// normally. The state is the one that this pass left, its tables those of the folder.
std::string Start_finding(const ConnectionState& s, const PassResult& first_pass, const std::filesystem::path& folder);

} // namespace tarnvik
