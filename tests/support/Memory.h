// What a process takes of the memory, for the tests that run long.
#pragma once

#include <fstream>
#include <string>

namespace tarnvik::test {

// Resident memory of this process now, kB; 0 where the system does not tell.
inline long Resident_kB() {
    std::ifstream status{"/proc/self/status"};
    std::string line;
    while (std::getline(status, line)) {
        if (line.starts_with("VmRSS:")) {
            return std::stol(line.substr(6));
        }
    }
    return 0;
}

} // namespace tarnvik::test
