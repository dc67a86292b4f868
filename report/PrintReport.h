// The report: the paper record of one connection, two pages of fixed layout, drawn from the state that the last pass
// left. Nothing is calculated for it.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "calc/GlobalParameter.h"
#include "ports/Clock.h"
#include "ports/PrintTarget.h"

namespace tarnvik {

// Lines of the page frame and of the About window, by language.
struct InfoLines {
    std::string_view Info_1; // what the program does
    std::string_view Info_2; // version
    std::string_view Info_3; // rights
};
const InfoLines& Info_lines(bool english);

// Keys of the pictures that the main window shows.
struct ReportPictures {
    std::string_view Pic_forbindelse; // the connection
    std::string_view Pic_av_bolter;   // the sketch of the case, printed for the connectors too
};

// The row of text that an equation picture of the report belongs to: the y of its texts, as Print gets it. With it a
// target sets the equation on the line of its row. Nothing for any other picture.
std::optional<double> Equation_row(std::string_view picture);

// The row texts of the two spacing tables. They outlive a print: a row whose text a case does not fill shows what an
// earlier print of another case left there. One for the life of the program.
struct SpacingTexts {
    static constexpr std::size_t count = 14;
    std::array<std::string, count> bolts, connectors;
};

// The report's title as a document: project and identification.
std::string Report_title(const ConnectionState& s);

// Draws the whole report and ends the document. Cuts Lastvar_txt to its first 9 characters, until the next pass sets it
// again.
// Errors: subscript out of range (9) where Mat_index has no row, and what the target throws.
void PrintReport(PrintTarget& target, ConnectionState& s, const ReportPictures& pictures, const Moment& now,
                 SpacingTexts& texts);

} // namespace tarnvik
