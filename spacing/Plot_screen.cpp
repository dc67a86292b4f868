#include "spacing/Plot_screen.h"

#include "spacing/Catalogue.h"
#include "spacing/Rules.h"

namespace tarnvik {

void Plot_screen(ConnectionValues& s, const ScreenWriter& /*show*/) {
    const int row = Plotted_case(s);
    if (row >= 0) {
        Calc_spacing(s, row);
    }
}

} // namespace tarnvik
