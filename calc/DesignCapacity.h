// From the capacity of one fastener per shear plane to the whole connection: rows along the grain, effective numbers,
// design capacities, utilisation.
#pragma once

#include "calc/GlobalParameter.h"

namespace tarnvik {

// Has_row, a1, n_row and rows by Case_code, for the connection types 1 to 5. A case without a row of fasteners along
// the grain, or of another type, sets nothing. The spacing is the bolts' value, also with connectors.
void Get_rows_1(ConnectionValues& s);
void Get_rows_2(ConnectionValues& s);
void Get_rows_3(ConnectionValues& s);
void Get_rows_4(ConnectionValues& s);
void Get_rows_5(ConnectionValues& s);

// Effective numbers, computed for every case from whatever a1, n_row and rows are:
//   nef_b_row = min(n_row; n_row^0.9 (a1 / 13 d)^0.25)            EN 1995-1-1 (8.34)
//   nef_f_row = 2 + (1 - n_row / 20) (n_row - 2)                  EN 1995-1-1 (8.71)
// Errors: division by zero (11), root of a negative number (5).
void Get_nef(ConnectionValues& s);

// Design capacity of the bolts, kN: kmod Rk n F / (gm 1000), EN 1995-1-1 (2.17); n is n_bolt, or nef_b where the case
// has a row, F the number of shear planes. Rk_bolt in N.
void Get_Rd_bolt(ConnectionValues& s, float Rk_bolt);

// Design capacity of the connectors, kN: kmod Rk n F / gm; n is n_bolt or nef_f. Rk_for in kN.
void Get_Rd_for(ConnectionValues& s, float Rk_for);

// uf = |P / (Rd_for + Rd_bolt)| with connectors, otherwise |P / Rd_bolt|. The capacities are simply added.
// Errors: division by zero (11).
void Get_uf(ConnectionValues& s);

} // namespace tarnvik
