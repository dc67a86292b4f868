// One hash for the whole spacing record, as the head of tests/reference/spacings.csv defines it.
#pragma once

#include "spacing/Rules.h"
#include "tests/support/Calculation.h"

namespace tarnvik::test {

inline constexpr std::array<Distance, distance_count> all_distances{a1, a2, a3, a4, a5, a6, b1, b2, b3, b4, b5, b6};

// The items of the record in the order of the hash, joined by "|".
inline std::string Record_text(const SpacingRecord& r) {
    std::string text;
    const auto item = [&text](std::string_view part) {
        text += part;
        text += '|';
    };
    for (const Distance distance : all_distances) {
        const DistanceFields& fields = Fields_of(distance);
        item(r.*fields.lbl);
        item(Bits(r.*fields.S));
        item(r.*fields.S_txt);
        item(Bits(r.*fields.C));
        item(r.*fields.C_txt);
    }
    item(r.Sum_a_txt);
    item(Bits(r.Sum_a));
    item(Bits(r.Sum_ca));
    item(r.Sum_b_txt);
    item(Bits(r.Sum_b));
    item(Bits(r.Sum_cb));
    text.pop_back();
    return text;
}

inline std::string Record_hash(const SpacingRecord& r) {
    return Hex(Fnv1a(Record_text(r)), 16);
}

} // namespace tarnvik::test
