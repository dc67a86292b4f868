// What the tests of the calculation and of the distances share.
#pragma once

#include <bit>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "calc/GlobalParameter.h"
#include "calc/RuntimeFault.h"
#include "data/Startup.h"

namespace tarnvik::test {

// A new project as the program starts it, from the delivered data files. Loading is off, as after the start.
inline std::unique_ptr<ConnectionState> New_project(std::string_view lang = "Eng") {
    auto s = std::make_unique<ConnectionState>();
    Start_state(*s, TARNVIK_DATA_DIR, lang);
    s->Loading = false;
    return s;
}

// The number of the fault that a call raises; 0 for none.
template <class Call> int Fault_of(Call call) {
    try {
        call();
    } catch (const RuntimeFault& fault) {
        return fault.number;
    }
    return 0;
}

// Picks a connector as its list does: the row and the diameter of the spacing rules.
inline void Pick_connector(ConnectionState& s, std::int16_t row) {
    s.Kun_bolt = false;
    s.Med_bulldog = true;
    s.Bulldog_index = row;
    Get_dc(s);
}

// The three variants of a type: 1 single with single, 2 member 1 double, 3 member 2 double.
inline void Pick_variant(ConnectionState& s, std::int16_t type, int variant) {
    s.Con_type = type;
    s.enk_1 = variant != 2;
    s.dob_1 = variant == 2;
    s.enk_2 = variant != 3;
    s.dob_2 = variant == 3;
}

inline constexpr std::uint64_t fnv_offset_basis = 0xcbf29ce484222325U;

// FNV-1a, 64 bits; goes on from `hash`.
constexpr std::uint64_t Fnv1a(std::string_view bytes, std::uint64_t hash = fnv_offset_basis) {
    for (const char c : bytes) {
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3U;
    }
    return hash;
}

// 16 or 8 lower-case hex digits.
inline std::string Hex(std::uint64_t value, std::size_t digits) {
    std::string text(digits, '0');
    for (std::size_t i = digits; i > 0; value >>= 4U) {
        text[--i] = "0123456789abcdef"[value & 15U];
    }
    return text;
}

// The 32 bits of a float.
inline std::string Bits(float value) {
    return Hex(std::bit_cast<std::uint32_t>(value), 8);
}

} // namespace tarnvik::test
