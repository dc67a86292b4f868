// The tables beside the sketches: label, rule and number of each distance of a case, and the check of the sums against
// the heights of the members.
//
// Rows run down from y = 99 by the row height of the case. A printer takes the y of its row; everything is printed at
// the places of the text areas, x and y from 0 to 100.
#pragma once

#include "calc/GlobalParameter.h"
#include "calc/Screen.h"

namespace tarnvik {

// All rows of a case (a row of the catalogue) from the spacing record, in both tables, and its note in that of the
// bolts.
void Print_case(const ConnectionValues& s, int case_row, Screen& screen);

// One distance in both tables: the label, the rule and the number, in mm without decimals. The test for two digits is
// on the unrounded number: 99.6 reads "  100".
void Print_row(std::string_view label, std::string_view bolt_text, float bolt_value, std::string_view con_text,
               float con_value, double y, Screen& screen);

// The sum of a family in both tables, red where it is greater than the height of its member, and the line under it; h
// is the row height. The printers with 1 name the members of types 1 and 3, those with 2 the members of types 2, 4
// and 5.
void Print_sum_a1(const ConnectionValues& s, double y, double h, Screen& screen); // top chord, h1
void Print_sum_b1(const ConnectionValues& s, double y, double h, Screen& screen); // bottom chord, h2
void Print_sum_a2(const ConnectionValues& s, double y, double h, Screen& screen); // beam, h1
void Print_sum_b2(const ConnectionValues& s, double y, double h, Screen& screen); // column, h2

// A line across both tables.
void Print_line(double y, Screen& screen);

} // namespace tarnvik
