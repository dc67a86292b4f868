// A text of the program in its two languages.
#pragma once

#include <string_view>

namespace tarnvik {

struct Words {
    constexpr Words() = default;
    constexpr Words(const char* same) : eng(same), nor(same) {} // NOLINT(google-explicit-constructor): like any text
    constexpr Words(const char* english, const char* norwegian) : eng(english), nor(norwegian) {}

    [[nodiscard]] constexpr std::string_view In(bool english) const { return english ? eng : nor; }

    std::string_view eng, nor;
};

} // namespace tarnvik
