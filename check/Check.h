// The headless tool: the same pass as the window's, without a screen.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

#include "check/Status.h"

namespace tarnvik {

class Rendering;

// Runs the tool and gives its exit status (check/Status.h). `program_folder` is where the data files lie unless --data
// names another folder. `rendering` paints what is asked for as pictures; null where there is nothing to paint with.
int Run_check(const std::vector<std::string>& arguments, const std::filesystem::path& program_folder, std::istream& in,
              std::ostream& out, std::ostream& err, Rendering* rendering = nullptr);

} // namespace tarnvik
