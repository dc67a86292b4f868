// Double-sided tooth-plate connectors of type C1, EN 1995-1-1 8.10.
#pragma once

#include "calc/GlobalParameter.h"
#include "calc/Screen.h"
#include "ports/MessageBox.h"

namespace tarnvik {

// Whether the connector fits the bolt, by Bulldog_index and Bolt_index: sets Bulldog_invalid, the colour of
// Comb_bulldog and whether mnuprint is enabled, and tells the user where it does not. A Bulldog_index outside the table
// does nothing.
void Bulldog_check(ConnectionValues& s, const ScreenWriter& show, MessageBox& box);

// Characteristic capacity of one connector per shear plane, kN: Fv_Rk = 25 k1 k2 k3 dc^1.5 / 1000, (8.72). Stores hc.
// With a Bulldog_index outside the table the value passed in goes to Fv_Rk.
void Bulldog_Rk(ConnectionValues& s, float& Fv_Rk_kN);

// The factors for member thickness (8.73), end distance (8.74) and density (8.78). t plate thickness, hc height over
// the teeth, dc diameter, all mm. The end distance is always taken as sufficient: k2 is 1.0.
void Bulldog_k(const ConnectionValues& s, float& k1, float& k2, float& k3, float t, float hc, float dc);

} // namespace tarnvik
