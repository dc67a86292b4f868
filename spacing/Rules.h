// Minimum spacings and edge and end distances of bolts (EN 1995-1-1 table 8.4) and of tooth-plate connectors
// (table 8.8), laid out over the geometry of each case: every distance as a number in mm and as the text of its
// rule.
//
// Family a lies in member 1, family b in member 2. The first distances of a family lie across the member, from edge to
// edge, and make its sum; the rest lie along it, the end distance last. Both kinds are computed whatever the connection
// uses. Some cells keep a number and a text that do not belong together, on purpose: the tables hold them as they are.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "calc/GlobalParameter.h"
#include "spacing/Catalogue.h"

namespace tarnvik {

// The places of the spacing record, family a and then family b.
enum Distance : std::uint8_t { a1, a2, a3, a4, a5, a6, b1, b2, b3, b4, b5, b6 };
inline constexpr int distance_count = 12;

// How many distances the joint of a case has in a member: across it, as many as its lines of fasteners and one, and
// along it, the spacings between fasteners and the end distance. A member that runs through has no end. At the right
// angle of types 4 and 5 the spacings along one member are those across the other one and not counted twice.
struct MemberDistances {
    int across, along;
};
struct CaseDistances {
    std::string_view Case_code;
    MemberDistances a, b; // in member 1, in member 2
};

// clang-format off
inline constexpr std::array<CaseDistances, case_count> case_distances{{
    // case   a: across, along; b: across, along
    {"1.1. ", {2, 1}, {2, 1}},
    {"1.2.a", {3, 1}, {2, 2}},
    {"1.2.b", {2, 2}, {3, 1}},
    {"1.3.a", {4, 1}, {2, 3}},
    {"1.3.b", {2, 3}, {4, 1}},
    {"1.4. ", {3, 2}, {3, 2}},
    {"1.6. ", {4, 2}, {3, 3}},
    {"2.1. ", {2, 0}, {2, 1}},
    {"2.2. ", {3, 0}, {2, 2}},
    {"2.3. ", {4, 0}, {2, 3}},
    {"2.4. ", {3, 1}, {3, 2}},
    {"2.6. ", {4, 1}, {3, 3}},
    {"3.1. ", {2, 0}, {2, 1}},
    {"3.2.a", {2, 1}, {3, 1}},
    {"3.2.b", {3, 0}, {2, 2}},
    {"3.3.a", {2, 2}, {4, 1}},
    {"3.3.b", {4, 0}, {2, 3}},
    {"3.4. ", {3, 1}, {3, 2}},
    {"3.6. ", {4, 1}, {3, 3}},
    {"4.1. ", {2, 1}, {2, 1}},
    {"4.2.a", {2, 1}, {3, 1}},
    {"4.2.b", {3, 1}, {2, 1}},
    {"4.3.a", {2, 1}, {4, 1}},
    {"4.3.b", {4, 1}, {2, 1}},
    {"4.4. ", {3, 1}, {3, 1}},
    {"4.6.a", {3, 1}, {4, 1}},
    {"4.6.b", {4, 1}, {3, 1}},
    {"5.1. ", {2, 1}, {2, 1}},
    {"5.2.a", {2, 1}, {3, 1}},
    {"5.2.b", {3, 1}, {2, 1}},
    {"5.3.a", {2, 1}, {4, 1}},
    {"5.3.b", {4, 1}, {2, 1}},
    {"5.4. ", {3, 1}, {3, 1}},
    {"5.6.a", {3, 1}, {4, 1}},
    {"5.6.b", {4, 1}, {3, 1}},
}};
// clang-format on

// "a1" to "b6".
std::string_view Label_of(Distance distance);

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

// A distance of the joint under its own name, whatever a cell of the record leaves out or lends to another: the
// record's number, and the formula that it comes from, for bolts and for connectors. The formulas have d and D, the
// diameters of bolt and connector, N, the chosen spacing as a multiple of d, and alpha: "max((2 + 2*sin(alpha))*d;
// 3*d)", mm.
struct ListedDistance {
    Distance distance;
    std::string_view S_formula, C_formula;
    std::optional<float> S, C; // mm; nothing where the record has no number, which its sum then lacks
};

// All distances of the joint of a case (a row of the catalogue): those of member 1, then those of member 2, each in the
// order of MemberDistances. From the record as Calc_spacing has filled it, and the sign of P.
std::vector<ListedDistance> Listed_distances(const ConnectionValues& s, int case_row);

// Number of distances of a family that its sum adds, of the bolts.
int Sum_length_a(int case_row);
int Sum_length_b(int case_row);

} // namespace tarnvik
