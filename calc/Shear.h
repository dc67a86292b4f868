// Capacity of one bolt per shear plane, EN 1995-1-1:2004+A1:2008 8.2.2 and 8.5.1: embedment strength, yield moment,
// axial capacity for the rope effect, failure modes of single and double shear (Johansen).
//
// Symbols: d bolt diameter, mm; rho_k density, kg/m3; fuk tensile strength, N/mm2; fc90k compressive strength across
// the grain, N/mm2; t1, t2 thicknesses, mm; capacities in N, My_Rk in Nmm.
#pragma once

#include "calc/GlobalParameter.h"

namespace tarnvik {

// The capacity per shear plane, N, for Con_code: stores k90, then t1, t2, their labels, the angles, the embedment
// strengths and the failure modes of single or double shear. A code without a row gives 0 and touches only k90. The
// family of modes that is not evaluated keeps its old values.
// Errors: division by zero (11), overflow (6), root of a negative number (5).
void Get_Rk(ConnectionValues& s, float& Rk_bolt);

// Embedment strengths for angles of force to grain in radians:
//   fh0k = (1 - 0.01 d) 0.082 rho_k                        (8.32)
//   fhk  = fh0k / (k90 sin^2 + cos^2)                      (8.31)
//   beta = fh2k / fh1k                                     (8.8)
// One density serves both members.
void Get_fh(ConnectionValues& s, double angle1, double angle2, float& fh1k, float& fh2k, float& beta);

// Single shear, modes a to f, (8.6). Stores My_Rk (8.30), Fax_bolt, Fax_skive and Fv_a to Fv_f.
void Enkeltsnitt_Rk(ConnectionValues& s, float fh1k, float fh2k, float beta, float& Rk);

// Double shear, modes g, h, j, k, (8.7). Stores My_Rk (8.30), Fax_bolt, Fax_skive, Fax_min and Fv_g to Fv_k.
void Dobbeltsnitt_Rk(ConnectionValues& s, float fh1k, float fh2k, float beta, float& Rk);

} // namespace tarnvik
