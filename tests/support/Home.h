// A home for the tests: what the program under test writes of the user's goes there, and none of the user's is read.
#pragma once

#include <filesystem>

namespace tarnvik::test {

// Until the end of the process; the folder has to be there. False where it cannot be had.
bool Move_home(const std::filesystem::path& folder);

} // namespace tarnvik::test
