// The sections of the check sheet, in its order.
#pragma once

#include "calc/GlobalParameter.h"
#include "session/Standing.h"
#include "sheet/Page.h"

namespace tarnvik {

struct SheetFacts {
    const ConnectionState& s;
    const Verdict& verdict;
    bool english;
};

void Write_pictures(Page& page, const SheetFacts& facts); // the joint and its distances
void Write_inputs(Page& page, const SheetFacts& facts);
void Write_checks(Page& page, const SheetFacts& facts);    // with their bars
void Write_angle(Page& page, const SheetFacts& facts);     // capacity over the angle
void Write_unchecked(Page& page, const SheetFacts& facts); // what is not checked
void Write_strengths(Page& page, const SheetFacts& facts);
void Write_modes(Page& page, const SheetFacts& facts);
void Write_capacities(Page& page, const SheetFacts& facts);
void Write_splitting(Page& page, const SheetFacts& facts);
void Write_distances(Page& page, const SheetFacts& facts);

} // namespace tarnvik
