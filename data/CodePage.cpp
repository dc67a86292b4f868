#include "data/CodePage.h"

#include <array>
#include <cstdint>

namespace tarnvik {

namespace {

// Code points of the bytes 0x80 to 0x9F; all others are their own.
constexpr std::array<std::uint16_t, 32> upper_controls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

// All code points of the code page lie below U+10000: up to three bytes.
void Append_utf8(std::string& text, std::uint32_t code) {
    if (code < 0x80) {
        text += static_cast<char>(code);
    } else if (code < 0x800) {
        text += static_cast<char>(0xC0U | (code >> 6U));
        text += static_cast<char>(0x80U | (code & 0x3FU));
    } else {
        text += static_cast<char>(0xE0U | (code >> 12U));
        text += static_cast<char>(0x80U | ((code >> 6U) & 0x3FU));
        text += static_cast<char>(0x80U | (code & 0x3FU));
    }
}

char To_byte(std::uint32_t code) {
    if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) {
        return static_cast<char>(code);
    }
    for (std::size_t i = 0; i < upper_controls.size(); ++i) {
        if (upper_controls[i] == code) {
            return static_cast<char>(0x80U + i);
        }
    }
    return '?';
}

} // namespace

std::string From_windows_1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        Append_utf8(text, byte >= 0x80 && byte < 0xA0 ? upper_controls[byte - 0x80U] : byte);
    }
    return text;
}

std::string To_windows_1252(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        const auto lead = static_cast<unsigned char>(utf8[i]);
        std::size_t length = 1;
        std::uint32_t code = lead;
        std::uint32_t least = 0;
        if (lead >= 0xC0 && lead < 0xE0) {
            length = 2;
            code = lead & 0x1FU;
            least = 0x80;
        } else if (lead >= 0xE0 && lead < 0xF0) {
            length = 3;
            code = lead & 0x0FU;
            least = 0x800;
        } else if (lead >= 0xF0 && lead < 0xF8) {
            length = 4;
            code = lead & 0x07U;
            least = 0x10000;
        } else if (lead >= 0x80) {
            bytes += '?';
            ++i;
            continue;
        }
        std::size_t k = 1;
        for (; k < length && i + k < utf8.size(); ++k) {
            const auto next = static_cast<unsigned char>(utf8[i + k]);
            if ((next & 0xC0U) != 0x80U) {
                break;
            }
            code = (code << 6U) | (next & 0x3FU);
        }
        bytes += k < length || code < least ? '?' : To_byte(code);
        i += k;
    }
    return bytes;
}

} // namespace tarnvik
