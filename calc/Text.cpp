#include "calc/Text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>

#include "calc/Arithmetic.h"

namespace tarnvik {

namespace {

char decimal_sign = '.';

bool Is_digit(char c) {
    return c >= '0' && c <= '9';
}

// Length of the longest numeric prefix: sign, digits, point, digits, exponent. 0 where there is no digit.
std::size_t Numeric_prefix(std::string_view text, char point) {
    std::size_t i = 0;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
        ++i;
    }
    std::size_t digits = 0;
    while (i < text.size() && Is_digit(text[i])) {
        ++i;
        ++digits;
    }
    if (i < text.size() && text[i] == point) {
        std::size_t end = i + 1;
        while (end < text.size() && Is_digit(text[end])) {
            ++end;
            ++digits;
        }
        if (digits > 0) {
            i = end;
        }
    }
    if (digits == 0) {
        return 0;
    }
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
        std::size_t end = i + 1;
        if (end < text.size() && (text[end] == '+' || text[end] == '-')) {
            ++end;
        }
        if (end < text.size() && Is_digit(text[end])) {
            while (end < text.size() && Is_digit(text[end])) {
                ++end;
            }
            i = end;
        }
    }
    return i;
}

// The decimal place of the first digit that is not zero: 0 for units, 1 for tens, -1 for tenths.
long First_place(std::string_view number) {
    const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
    const std::string_view digits = number.substr(0, mark);
    const auto point = static_cast<long>(std::min(digits.find('.'), digits.size()));
    const auto first = static_cast<long>(std::min(digits.find_first_of("123456789"), digits.size()));
    long exponent = 0;
    if (mark < number.size()) {
        std::string_view text = number.substr(mark + 1);
        const bool negative = text.front() == '-';
        if (text.front() == '+' || negative) {
            text.remove_prefix(1);
        }
        for (const char c : text) {
            exponent = std::min(exponent * 10 + (c - '0'), 1000000000L);
        }
        exponent = negative ? -exponent : exponent;
    }
    return (first < point ? point - first - 1 : point - first) + exponent;
}

// The value of a short decimal number without an exponent: its digits as a whole number, and the power of ten that they
// are divided by, are exact in double, and so the quotient is the nearest double. Nothing for any other text.
std::optional<double> Short_decimal(std::string_view number) {
    constexpr std::array<double, 16> powers{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                            1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    if (number.size() >= powers.size()) {
        return std::nullopt;
    }
    std::int64_t digits = 0;
    std::size_t decimals = 0;
    bool point = false;
    for (const char c : number) {
        if (Is_digit(c)) {
            digits = 10 * digits + (c - '0');
            decimals += point ? 1 : 0;
        } else if (c == '.') {
            point = true;
        } else {
            return std::nullopt;
        }
    }
    return static_cast<double>(digits) / powers[decimals];
}

// The value of a numeric text that Numeric_prefix accepted; the point is ".".
float Numeric_value(std::string_view number, std::string_view where) {
    const bool negative = !number.empty() && number.front() == '-';
    if (!number.empty() && (number.front() == '+' || number.front() == '-')) {
        number.remove_prefix(1);
    }
    if (const auto value = Short_decimal(number)) {
        return static_cast<float>(negative ? -*value : *value);
    }
    double value = 0.0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error == std::errc::result_out_of_range) {
        // from_chars tells too large and too small alike: the decimal place of the first digit tells them apart.
        const bool tiny = First_place(number) < 0;
        if (!tiny) {
            Raise(fault_overflow, where);
        }
        value = 0.0;
    }
    return Store(negative ? -value : value, where);
}

struct Picture {
    std::size_t leading_blanks{}, digits{}, decimals{}, trailing_blanks{};
};

Picture Read_picture(std::string_view picture) {
    Picture wanted;
    while (wanted.leading_blanks < picture.size() && picture[wanted.leading_blanks] == ' ') {
        ++wanted.leading_blanks;
    }
    bool point = false;
    for (const char c : picture) {
        if (c == '.') {
            point = true;
        } else if (c == '0') {
            ++(point ? wanted.decimals : wanted.digits);
        }
    }
    wanted.trailing_blanks = picture.size() - Right_trim(picture).size();
    return wanted;
}

using Digits = std::array<char, 64>;

// The digits of a number with so many decimals, without its decimal sign, rounded half up.
//
// A 32-bit float times 10, 100 or 1000 is exact in double, and so are its whole and its broken part: the half that
// decides is never a rounded one.
std::string_view Rounded_digits(double magnitude, std::size_t decimals, Digits& buffer) {
    double scale = 1.0;
    for (std::size_t i = 0; i < decimals; ++i) {
        scale *= 10.0;
    }
    const double scaled = magnitude * scale;
    char* const begin = buffer.data();
    char* const room = begin + buffer.size();
    char* end = nullptr;
    if (scaled < 0x1p62) { // many times faster than the digits of a double, which only the largest floats need
        auto rounded = static_cast<std::int64_t>(scaled);
        if (scaled - static_cast<double>(rounded) >= 0.5) {
            ++rounded;
        }
        end = std::to_chars(begin, room, rounded).ptr;
    } else {
        end = std::to_chars(begin, room, scaled, std::chars_format::fixed, 0).ptr; // such a number is whole
    }
    return {begin, static_cast<std::size_t>(end - begin)};
}

void Append(ShortText& text, std::size_t count, char c) {
    for (std::size_t i = 0; i < count; ++i) {
        text.Append(c);
    }
}

} // namespace

std::size_t Character_count(std::string_view utf8) {
    return static_cast<std::size_t>(std::count_if(
        utf8.begin(), utf8.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

std::string_view First_characters(std::string_view utf8, std::size_t n) {
    std::size_t characters = 0;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        if ((static_cast<unsigned char>(utf8[i]) & 0xC0U) != 0x80U) {
            if (characters == n) {
                return utf8.substr(0, i);
            }
            ++characters;
        }
    }
    return utf8;
}

std::string_view Right_trim(std::string_view text) {
    while (!text.empty() && text.back() == ' ') {
        text.remove_suffix(1);
    }
    return text;
}

std::string_view Trim(std::string_view text) {
    while (!text.empty() && text.front() == ' ') {
        text.remove_prefix(1);
    }
    return Right_trim(text);
}

float Str_to_num(std::string_view value) {
    std::string text{Trim(value)};
    std::replace(text.begin(), text.end(), ',', '.');
    const std::size_t length = Numeric_prefix(text, '.');
    return length == 0 ? 0.0F : Numeric_value(std::string_view{text}.substr(0, length), "Str_to_num");
}

float Regional_to_num(std::string_view value) {
    const std::string_view trimmed = Trim(value);
    if (trimmed.empty() || Numeric_prefix(trimmed, decimal_sign) != trimmed.size()) {
        Raise(fault_type_mismatch, "Regional_to_num");
    }
    std::string text{trimmed};
    std::replace(text.begin(), text.end(), decimal_sign, '.');
    return Numeric_value(text, "Regional_to_num");
}

void Set_decimal_sign(char sign) {
    decimal_sign = sign;
}

char Decimal_sign() {
    return decimal_sign;
}

ShortText Format(float value, std::string_view picture) {
    const Picture wanted = Read_picture(picture);
    ShortText text;
    if (!std::isfinite(value)) {
        text.Append(std::isnan(value) ? "NaN" : value < 0.0F ? "-Inf" : "Inf");
        return text;
    }

    const double magnitude = std::fabs(static_cast<double>(value));
    const bool whole_only = magnitude >= 0x1p40; // a float as large has no broken part that could be rounded
    const std::size_t broken = whole_only ? 0 : wanted.decimals;
    Digits buffer; // filled as far as it is read
    const std::string_view number = Rounded_digits(magnitude, broken, buffer);
    const bool zero = number == "0";

    if (value < 0.0F && !zero) {
        text.Append('-');
    }
    Append(text, wanted.leading_blanks, ' ');
    const std::size_t whole = number.size() > broken ? number.size() - broken : 0;
    const bool nothing_before = whole == 0 || (broken == 0 && zero);
    const std::size_t shown = nothing_before ? 0 : whole;
    if (shown < wanted.digits) {
        Append(text, wanted.digits - shown, '0');
    }
    text.Append(number.substr(0, shown));
    if (wanted.decimals > 0) {
        const std::string_view tail = number.substr(whole);
        text.Append(decimal_sign);
        Append(text, wanted.decimals - tail.size(), '0');
        text.Append(tail);
    }
    Append(text, wanted.trailing_blanks, ' ');
    return text;
}

ShortText Shortest(float value) {
    std::array<char, 32> buffer{};
    char* const room = buffer.data() + buffer.size();
    char* end = nullptr;
    // From 100000 on an exponent may be shorter.
    const int whole = std::fabs(value) < 1e5F ? static_cast<int>(value) : 0;
    if (whole != 0 && static_cast<float>(whole) == value) {
        end = std::to_chars(buffer.data(), room, whole).ptr;
    } else {
        end = std::to_chars(buffer.data(), room, value).ptr;
    }
    ShortText text;
    text.Append(std::string_view{buffer.data(), static_cast<std::size_t>(end - buffer.data())});
    return text;
}

} // namespace tarnvik
