// The spacing stage of a pass: the distances of the case, its sketch and the tables beside it.
#pragma once

#include "calc/GlobalParameter.h"
#include "calc/Screen.h"

namespace tarnvik {

// Chooses Pic_forbindelse by Con_code; a code without a picture leaves it.
void Plot_connection(const ConnectionValues& s, const ScreenWriter& show);

// Empties both tables.
void Clear_tables(const ScreenWriter& show);

// Chooses the sketch and fills the spacing record and the tables for the case that Con_code, n_bolt and Bolt_ab tell.
// Any other combination does nothing. Of the tables only that of the bolts is emptied here: a pass empties both
// beforehand.
void Plot_screen(ConnectionValues& s, const ScreenWriter& show);

} // namespace tarnvik
