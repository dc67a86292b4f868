#include "tests/support/Home.h"

#include <cstdlib>

namespace tarnvik::test {

bool Move_home(const std::filesystem::path& folder) {
    bool moved = setenv("HOME", folder.c_str(), 1) == 0;
    for (const char* name :
         {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"}) {
        moved = setenv(name, folder.c_str(), 1) == 0 && moved;
    }
    return moved;
}

} // namespace tarnvik::test
