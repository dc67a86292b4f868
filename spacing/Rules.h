// Minimum spacings and edge and end distances of bolts (EN 1995-1-1 table 8.4) and of tooth-plate connectors
// (tables 8.7 to 8.9), laid out over the geometry of each case: every distance as a number in mm and as the text of its
// rule.
//
// Family a lies in member 1, family b in member 2. The first distances of a family lie across the member, from edge to
// edge, and make its sum; the rest lie along it, the end distance last. Both kinds are computed whatever the connection
// uses. Some cells keep a number and a text that do not belong together, on purpose: the tables hold them as they are.
#pragma once

#include "calc/GlobalParameter.h"

namespace tarnvik {

// The places of the spacing record, family a and then family b.
enum Distance : std::uint8_t { a1, a2, a3, a4, a5, a6, b1, b2, b3, b4, b5, b6 };
inline constexpr int distance_count = 12;

// The fields of one distance of the record.
struct DistanceFields {
    std::string_view SpacingRecord::*lbl;
    float SpacingRecord::*S; // bolts
    std::string_view SpacingRecord::*S_txt;
    float SpacingRecord::*C; // connectors
    std::string_view SpacingRecord::*C_txt;
};
const DistanceFields& Fields_of(Distance distance);

// Empties all texts of the record and sets all its values to 0.
void Clear_spacing(SpacingRecord& record);

// The spacing that the user chose: N d and its text, N = Avstand_index + 5; nothing is written for an index outside 0
// to 15. d in mm.
void Get_N_d(const ConnectionValues& s, float& value, std::string_view& text);

// Fills the record with the distances of a case (a row of the catalogue), from d, dc, alp, P and Avstand_index.
void Calc_spacing(ConnectionValues& s, int case_row);

// Number of distances of a family that its sum adds.
int Sum_length_a(int case_row);
int Sum_length_b(int case_row);

} // namespace tarnvik
