// What the tests of the files share.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

#include "calc/RuntimeFault.h"
#include "calc/Text.h"
#include "data/ProjectFile.h"
#include "platform/Path.h"
#include "tests/support/Calculation.h"

namespace tarnvik::test {

// A folder of its own for one test, gone at its end.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::random_device random;
        do {
            path_ = std::filesystem::temp_directory_path() / Path_of("tarnvik-test-" + std::to_string(random()));
        } while (!std::filesystem::create_directory(path_));
        std::filesystem::permissions(path_, std::filesystem::perms::owner_all);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
    [[nodiscard]] std::filesystem::path operator/(std::string_view name) const { return path_ / Path_of(name); }
    [[nodiscard]] std::size_t Files() const {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator{path_}, {}));
    }

private:
    std::filesystem::path path_;
};

inline void Write_file(const std::filesystem::path& path, std::string_view bytes) {
    std::ofstream file{path, std::ios::binary};
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    ASSERT_TRUE(file.good()) << path;
}

inline std::string Read_file(const std::filesystem::path& path) {
    std::ifstream file{path, std::ios::binary};
    EXPECT_TRUE(file.good()) << path;
    return {std::istreambuf_iterator<char>{file}, {}};
}

// Reads and applies a project, failures told in the box, as the window does. The number of the failure, 0 without one.
inline int Open_project(ConnectionState& s, const std::filesystem::path& path, MessageBox& box) {
    try {
        Project_record record;
        Load_project(s, record, path);
        Apply_project(s, record);
        return 0;
    } catch (const RuntimeFault& fault) {
        Open_project_failed(s, fault.number, box);
        return fault.number;
    }
}

// The decimal sign of the regional settings while it lives; "." again afterwards.
class DecimalSign {
public:
    explicit DecimalSign(char sign) { Set_decimal_sign(sign); }
    DecimalSign(const DecimalSign&) = delete;
    DecimalSign& operator=(const DecimalSign&) = delete;
    ~DecimalSign() { Set_decimal_sign('.'); }
};

} // namespace tarnvik::test
