#include "platform/Machine.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <system_error>

#include <csignal>
#include <unistd.h>

namespace tarnvik {

namespace fs = std::filesystem;

namespace {

// A variable of the environment that is to hold an absolute path; empty where it does not.
fs::path Absolute(const char* variable) {
    const char* value = std::getenv(variable); // NOLINT(concurrency-mt-unsafe): nothing here writes the environment
    fs::path path = value == nullptr ? "" : value;
    return path.is_absolute() ? path : fs::path{};
}

// By the rules of the XDG base directories.
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

std::string Host_name() {
    std::array<char, 256> name{};
    return gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
}

long Process_number() {
    return getpid();
}

bool Is_running(long process) {
    return kill(static_cast<pid_t>(process), 0) == 0 || errno != ESRCH;
}

std::vector<std::string> Arguments(int argc, char** argv) {
    return {argv + std::min(argc, 1), argv + argc};
}

fs::path Program_path(const char* call) {
    std::error_code error;
    fs::path program = fs::canonical("/proc/self/exe", error);
    return error ? fs::absolute(call, error) : program;
}

fs::path User_data_folder() {
    return User_folder("XDG_DATA_HOME", ".local/share");
}

fs::path User_state_folder() {
    return User_folder("XDG_STATE_HOME", ".local/state");
}

void Prepare_streams() {}

bool Is_terminal(int stream) {
    return isatty(stream) == 1;
}

void Attach_terminal() {}

} // namespace tarnvik
