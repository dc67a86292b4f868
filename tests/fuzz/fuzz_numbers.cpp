// Text to number and number to text.
//
// Byte 0: bit 0 chooses the decimal sign, the rest the picture; bytes 1 to 4 are a float, the rest is a text.
#include <array>
#include <bit>
#include <cmath>
#include <string>

#include "Fuzz.h"
#include "calc/RuntimeFault.h"
#include "calc/Text.h"

namespace {

using namespace tarnvik;

constexpr std::array<std::string_view, 12> pictures{"0",     "00",   "000",  "0.0",    "0.00", "0.000",
                                                    "0.00 ", "0.0 ", "  00", "  0.00", "#",    "0 "};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input input{data, size};
    const unsigned kind = input.Byte();
    const char sign = (kind & 1U) != 0 ? ',' : '.';
    Set_decimal_sign(sign);
    const std::string_view picture = pictures[(kind >> 1U) % pictures.size()];
    const std::uint32_t low = input.Word();
    const auto value = std::bit_cast<float>(low | (static_cast<std::uint32_t>(input.Word()) << 16U));
    const std::string_view text = input.Rest();

    const ShortText formatted_text = Format(value, picture);
    const std::string_view formatted = formatted_text;
    FUZZ_CHECK(!formatted.empty() || (picture == "#" && std::fabs(value) < 0.5F));
    if (std::isfinite(value)) {
        const std::size_t point = picture.find('.');
        double unit = 1.0;
        for (std::size_t i = point; i < picture.size(); ++i) {
            unit /= picture[i] == '0' ? 10.0 : 1.0;
        }
        const std::size_t decimals = point == std::string_view::npos ? 0 : Right_trim(picture).size() - point - 1;
        FUZZ_CHECK(decimals == 0 || Right_trim(formatted).size() - formatted.find(sign) == decimals + 1);
        // The text holds the exact decimal value, rounded; a double reads it with an error far below the unit.
        std::string plain{formatted};
        for (char& c : plain) {
            c = c == ',' ? '.' : c;
        }
        std::erase(plain, ' '); // "-  05" has its blanks behind the sign
        const double shown = plain.empty() ? 0.0 : std::strtod(plain.c_str(), nullptr);
        FUZZ_CHECK(std::fabs(shown - static_cast<double>(value)) <= 0.5 * unit + 1e-12 * std::fabs(shown));
        FUZZ_CHECK(shown != 0.0 || plain.find('-') == std::string::npos);
        FUZZ_CHECK(Str_to_num(Shortest(value)) == value);
    }

    try {
        const float read = Str_to_num(text);
        FUZZ_CHECK(std::isfinite(read));
        // Blanks around it and the other decimal sign change nothing.
        FUZZ_CHECK(Str_to_num("  " + std::string{text} + " ") == read);
        std::string other{text};
        for (char& c : other) {
            c = c == ',' ? '.' : c == '.' ? ',' : c;
        }
        FUZZ_CHECK(Str_to_num(other) == read);
    } catch (const RuntimeFault& fault) {
        FUZZ_CHECK(fault.number == fault_overflow);
    }
    try {
        // What reads under the regional settings has the same value in the reader that takes both signs.
        const float read = Regional_to_num(text);
        FUZZ_CHECK(Str_to_num(text) == read);
    } catch (const RuntimeFault& fault) {
        FUZZ_CHECK(fault.number == fault_type_mismatch || fault.number == fault_overflow);
    }
    return 0;
}
