// Splitting of the member that carries a force across its grain, EN 1995-1-1:2004+A1:2008 8.1.4.
#pragma once

#include "calc/GlobalParameter.h"
#include "calc/Screen.h"

namespace tarnvik {

// Height and width of the member that splits and he, the distance from the loaded edge to the farthest bolt at minimum
// distance, mm, by Case_code and the sign of P, for the connection types 1 to 5. A code that the type does not hold
// gives 0 for all three.
void Get_he_1(const ConnectionValues& s, float& h, float& b, float& he);
void Get_he_2(const ConnectionValues& s, float& h, float& b, float& he);
void Get_he_3(const ConnectionValues& s, float& h, float& b, float& he);
void Get_he_4(const ConnectionValues& s, float& h, float& b, float& he);
void Get_he_5(const ConnectionValues& s, float& h, float& b, float& he);

// Height and width of the member that splits by Con_type: member 2 of type 1, member 1 of all others.
void Get_splitting_member(const ConnectionValues& s, float& h, float& b);

// Only half of the force acts on the member that splits: by Con_code.
bool Takes_half_force(const ConnectionValues& s);

// The check: F90_Rk = 14 b sqrt(he / (1 - he/h)), (8.4) with w = 1 for bolts; F90_Rd = kmod F90_Rk / gm; the force
// across the grain, halved where the member that splits is doubled; Tverr_kontroll = P_sin / F90_Rd, shown in
// Lbl_tverr_2. h, he, b in mm, capacities in kN.
// Errors: division by zero (11) for he = h, h = 0 or no capacity; root of a negative number (5) for he outside 0 to h.
void Tverr_brudd(ConnectionValues& s, float h, float he, float b, const ScreenWriter& show);

} // namespace tarnvik
