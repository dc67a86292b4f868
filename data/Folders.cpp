#include "data/Folders.h"

#include <cstdlib>

namespace tarnvik {

namespace fs = std::filesystem;

namespace {

// A variable of the environment that is to hold an absolute path; empty where it does not.
fs::path Absolute(const char* variable) {
    const char* value = std::getenv(variable); // NOLINT(concurrency-mt-unsafe): nothing here writes the environment
    fs::path path = value == nullptr ? "" : value;
    return path.is_absolute() ? path : fs::path{};
}

fs::path User_folder(const char* variable, const char* below_home) {
    fs::path folder = Absolute(variable);
    if (folder.empty()) {
        const fs::path home = Absolute("HOME");
        if (home.empty()) {
            return {};
        }
        folder = home / below_home;
    }
    return folder / "tarnvik";
}

} // namespace

fs::path User_state_folder() {
    return User_folder("XDG_STATE_HOME", ".local/state");
}

} // namespace tarnvik
