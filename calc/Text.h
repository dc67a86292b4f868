// Texts of the calculation: fixed-length texts, text to number, number to text.
//
// Texts are UTF-8; lengths count characters, never bytes.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace tarnvik {

// Number of characters (code points) of a UTF-8 text.
std::size_t Character_count(std::string_view utf8);

// The first n characters of a UTF-8 text; the whole text where it is shorter.
std::string_view First_characters(std::string_view utf8, std::size_t n);

// The text without the blanks (U+0020) at its right end.
std::string_view Right_trim(std::string_view text);

// The text without the blanks (U+0020) at both ends.
std::string_view Trim(std::string_view text);

// A text of exactly N characters, blank-padded on the right, held without heap memory.
template <std::size_t N> class FixedText {
public:
    FixedText() { Assign({}); }
    FixedText(std::string_view text) { Assign(text); } // NOLINT(google-explicit-constructor): a text like any other
    FixedText(const char* text) : FixedText(std::string_view{text}) {} // NOLINT(google-explicit-constructor)

    // In place: a text that is made first and then copied waits for its own bytes.
    FixedText& operator=(std::string_view text) {
        Assign(text);
        return *this;
    }
    FixedText& operator=(const char* text) {
        Assign(text);
        return *this;
    }

    // A text of another length is cut or filled up.
    template <std::size_t M> FixedText& operator=(const FixedText<M>& other) {
        Assign(other.View());
        return *this;
    }

    [[nodiscard]] std::string_view View() const { return {bytes_.data(), size_}; }
    operator std::string_view() const { return View(); } // NOLINT(google-explicit-constructor)

    friend bool operator==(const FixedText& one, const FixedText& other) { return one.View() == other.View(); }
    friend bool operator==(const FixedText& one, std::string_view text) { return one.View() == FixedText{text}.View(); }
    friend bool operator==(const FixedText& one, const char* text) { return one == std::string_view{text}; }

private:
    void Assign(std::string_view text) {
        const std::string_view begin = text.substr(0, N + 1);
        if (std::none_of(begin.begin(), begin.end(),
                         [](char c) { return (static_cast<unsigned char>(c) & 0x80U) != 0; })) {
            size_ = N; // a byte is a character
            const std::size_t count = std::min(text.size(), N);
            std::fill(std::copy_n(text.data(), count, bytes_.data()), bytes_.data() + N, ' ');
            return;
        }
        std::size_t characters = 0;
        size_ = 0;
        for (std::size_t i = 0; i < text.size() && characters < N; ++characters) {
            // A damaged sequence counts as one character and never as more than four bytes.
            std::size_t length = 1;
            while (length < 4 && i + length < text.size() &&
                   (static_cast<unsigned char>(text[i + length]) & 0xC0U) == 0x80U) {
                ++length;
            }
            for (std::size_t k = 0; k < length; ++k) {
                bytes_[size_++] = text[i + k];
            }
            i += length;
        }
        for (; characters < N; ++characters) {
            bytes_[size_++] = ' ';
        }
    }

    std::array<char, 4 * N> bytes_{};
    std::size_t size_{};
};

// Text to 32-bit float. Blanks at both ends are dropped, every "," becomes ".", and the value is that of the longest
// numeric prefix (sign, digits, point, exponent) of what is left, whatever the locale; 0 without one.
// Errors: overflow (6) where the value does not fit a 32-bit float.
float Str_to_num(std::string_view value);

// Text to 32-bit float under the regional settings: the whole text has to be one number with the decimal sign of
// Set_decimal_sign.
// Errors: type mismatch (13) for anything else, overflow (6) where the value does not fit.
float Regional_to_num(std::string_view value);

// The process-wide decimal sign of Format and Regional_to_num: "." at start; the front end takes it from the system.
void Set_decimal_sign(char sign);
char Decimal_sign();

// A short text without heap memory.
class ShortText {
public:
    ShortText() {} // NOLINT(cppcoreguidelines-pro-type-member-init,modernize-use-equals-default): bytes_ are not read

    void Append(char c) {
        if (size_ < bytes_.size()) {
            bytes_[size_++] = c;
        }
    }
    void Append(std::string_view text) {
        const std::size_t count = std::min(text.size(), bytes_.size() - size_);
        std::copy_n(text.data(), count, bytes_.data() + size_);
        size_ += count;
    }
    [[nodiscard]] std::string_view View() const { return {bytes_.data(), size_}; }
    operator std::string_view() const { return View(); } // NOLINT(google-explicit-constructor)

private:
    std::array<char, 64> bytes_; // filled as far as size_ says
    std::size_t size_{};
};

// Number to text by a picture such as "0", "00", "0.0", "0.00 ", "  00" or "#": as many digits before the decimal sign
// as there are zeros at least, as many after it as there are zeros, rounded half away from zero on the exact value;
// "#" shows no digit for zero; blanks before and after stand as they are. A minus sign stands in front of all; a value
// that rounds to zero has none.
ShortText Format(float value, std::string_view picture);

// The number in the shortest form that reads back to the same 32-bit float, with "." ("0.1", "1e+20").
ShortText Shortest(float value);

} // namespace tarnvik
