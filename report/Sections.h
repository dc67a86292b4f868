// The sections of the report. Each gets the target and an anchor in report units; y runs upward, so that every step
// down the page is a subtraction. A section that sets no font runs on the one that the section before it has left.
#pragma once

#include <cstdint>
#include <string_view>

#include "calc/GlobalParameter.h"
#include "ports/PrintTarget.h"
#include "report/PrintReport.h"

namespace tarnvik {

inline constexpr std::int16_t report_font_size = 9;

// One text with its top left corner at (x, y), in the font in force.
void Print_at(PrintTarget& target, double x, double y, std::string_view text);
// The same in bold, which goes off again at once.
void Print_bold_at(PrintTarget& target, double x, double y, std::string_view text);
// One text that ends at x = right. A text longer than its column starts left of it.
void Print_right(PrintTarget& target, double right, double y, std::string_view text);
// A line; the arithmetic is double, the target's coordinates are floats.
void Draw_line(PrintTarget& target, double x1, double y1, double x2, double y2);

// The frame at the top of a page (report/PageFrame.cpp).
void PrintHeader(PrintTarget& target, const ConnectionValues& s, const Moment& now, double X, double Y, int N);

// What the connection is (report/InputSections.cpp).
void PrintSectionTitle(PrintTarget& target, const ConnectionValues& s, int section, double X, double Y,
                       std::int16_t font_size);
void PrintGeneral(PrintTarget& target, ConnectionState& s, double X, double Y, std::int16_t font_size,
                  double& row_step);
void PrintPicture(PrintTarget& target, std::string_view picture, double x, double y, double width, double height);
void PrintDimensions(PrintTarget& target, const ConnectionValues& s, double X, double Y, std::int16_t font_size);
void PrintLoad(PrintTarget& target, const ConnectionValues& s, double X, double Y, std::int16_t font_size);

// What it carries (report/CapacitySection.cpp). Runs on the font of the title before it.
void PrintCapacity(PrintTarget& target, const ConnectionValues& s, double X, double Y);
// The equations between label and result of each failure mode: at fixed places of the page, set by hand to fit the rows
// of PrintCapacity at the anchor (16, 177).
void PrintEquations(PrintTarget& target, const ConnectionValues& s);

// The minimum distances (report/SpacingTables.cpp), for the case that Con_code, n_bolt and Bolt_ab tell; nothing for
// any other combination. Run on the font of the title before them. Return the height that the table took.
float PrintSpacing(PrintTarget& target, const ConnectionValues& s, SpacingTexts& texts, double X, double Y);
float PrintSpacingConnector(PrintTarget& target, const ConnectionValues& s, SpacingTexts& texts, double X, double Y);

} // namespace tarnvik
