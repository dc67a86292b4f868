// Regional settings of the system for a test, made where they are not installed.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/Files.h"

namespace tarnvik::test {

// The environment names a region until the end of the test; processes that it starts have it too.
class Region {
public:
    // "nb_NO"; "C" needs nothing. Made() tells whether the system could make it.
    explicit Region(const std::string& name) {
        const std::string locale = name == "C" ? name : name + ".UTF-8";
        if (name != "C") {
            const std::string command =
                "localedef -i " + name + " -f UTF-8 '" + (folder_ / locale).string() + "' 2>/dev/null";
            made_ = std::system(command.c_str()) == 0; // NOLINT(cert-env33-c,concurrency-mt-unsafe): a test's own words
            Set("LOCPATH", folder_.Path().string());
        }
        Set("LC_ALL", locale);
    }
    Region(const Region&) = delete;
    Region& operator=(const Region&) = delete;
    ~Region() {
        for (const auto& [variable, value] : former_) {
            if (value.empty()) {
                unsetenv(variable.c_str());
            } else {
                setenv(variable.c_str(), value.c_str(), 1);
            }
        }
    }

    [[nodiscard]] bool Made() const { return made_; }

private:
    void Set(const std::string& variable, const std::string& value) {
        const char* former = std::getenv(variable.c_str());
        former_.emplace_back(variable, former == nullptr ? "" : former);
        setenv(variable.c_str(), value.c_str(), 1);
    }

    TemporaryFolder folder_;
    bool made_{true};
    std::vector<std::pair<std::string, std::string>> former_;
};

} // namespace tarnvik::test
