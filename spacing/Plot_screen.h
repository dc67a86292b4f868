// The spacing stage of a pass: the distances of the case that stands on the screen.
#pragma once

#include "calc/GlobalParameter.h"
#include "calc/Screen.h"

namespace tarnvik {

// Fills the spacing record for the case that Con_code, n_bolt and Bolt_ab tell. Any other combination does nothing.
void Plot_screen(ConnectionValues& s, const ScreenWriter& show);

} // namespace tarnvik
