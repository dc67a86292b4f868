// The user of this process.
#pragma once

#include <array>
#include <cstdint>

#include <windows.h>

namespace tarnvik {

// Errors: throws std::system_error.
class Self {
public:
    Self();

    [[nodiscard]] PSID User() { return reinterpret_cast<TOKEN_USER*>(room_.data())->User.Sid; }

private:
    std::array<std::uint64_t, 32> room_{};
};

} // namespace tarnvik
