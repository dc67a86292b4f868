#include <array>

#include "calc/Version.h"
#include "report/Sections.h"

namespace tarnvik {

namespace {

constexpr std::array<InfoLines, 2> info_lines{{
    {"Calculation of bolts according to Eurocode 5", "Version  " TARNVIK_VERSION, "Tarnvik developers"},
    {"Beregning av bolteforbindelser ifølge Eurocode 5", "Versjon  " TARNVIK_VERSION, "Tarnvik developers"},
}};

struct FrameLine {
    double x1, y1, x2, y2; // from the anchor, y downward
};

// clang-format off
constexpr std::array<FrameLine, 11> frame_lines{{
    // from         to
    {  0,  0,    170,  0},    // top
    { 62,  8,    170,  8},    // under project box
    {  0, 15,    170, 15},    // under identification box
    {  0, 19,    170, 19},    // bottom
    {147, 11.5,  170, 11.5},  // between date and time
    {  0,  5.5,   62,  5.5},  // under the product name
    {  0, 19,      0,  0},    // left edge
    { 62, 15,     62,  0},    // left edge of project box
    {147, 15,    147,  8},    // left edge of date box
    {158,  0,    158,  8},    // left edge of page box
    {170,  0,    170, 19},    // right edge
}};
// clang-format on

constexpr std::int16_t frame_width = 6; // device pixels

// Characters first to last of a UTF-8 text, counted from 1; fewer where it is shorter.
std::string_view Characters(std::string_view text, std::size_t first, std::size_t last) {
    return First_characters(text, last).substr(First_characters(text, first - 1).size());
}

void Text(PrintTarget& target, double x, double y, float size, std::string_view text, bool bold = false) {
    target.CurrentY(static_cast<float>(y));
    target.CurrentX(static_cast<float>(x));
    target.FontName("arial");
    target.FontSize(size);
    target.FontBold(bold);
    target.Print(text);
}

// A text behind a label; the room that the label takes is that of the English word in either language, so that date
// and time stand at the same place.
void Text_behind(PrintTarget& target, std::string_view english_label, double x, double y, float size,
                 std::string_view text) {
    target.FontName("arial");
    target.FontSize(size);
    target.FontBold(false);
    Text(target, x + static_cast<double>(target.TextWidth(english_label)), y, size, text);
}

} // namespace

const InfoLines& Info_lines(bool english) {
    return info_lines[english ? 0 : 1];
}

void PrintHeader(PrintTarget& target, const ConnectionValues& s, const Moment& now, double X, double Y, int N) {
    target.CurrentY(static_cast<float>(Y));
    target.CurrentX(static_cast<float>(X));
    target.DrawWidth(frame_width);
    for (const FrameLine& line : frame_lines) {
        Draw_line(target, X + line.x1, Y - line.y1, X + line.x2, Y - line.y2);
    }

    const bool eng = Is_english(s);
    const InfoLines& info = Info_lines(eng);
    Text(target, X + 1, Y - 0.2, 11, "Tarnvik", true);
    Text(target, X + 1, Y - 5.8, 8, info.Info_1);
    Text(target, X + 1, Y - 8.7, 8, info.Info_2);
    Text(target, X + 1, Y - 11.8, 8, info.Info_3);
    Text(target, X + 63, Y - 0.8, 8, eng ? "Project:" : "Prosjekt:");
    Text(target, X + 75, Y - 0.8, 8, Characters(s.Prosjekt, 1, 37));
    Text(target, X + 75, Y - 4, 8, Characters(s.Prosjekt, 38, 97));
    Text(target, X + 159, Y - 0.7, 8, eng ? "Page:" : "Side:");
    Text(target, X + 159, Y - 4, 8, std::to_string(N));
    Text(target, X + 162, Y - 4, 8, "/ 1"); // the report does not count its pages
    Text(target, X + 63, Y - 8.7, 8, eng ? "Identification:" : "Identifikation:");
    Text(target, X + 81, Y - 8.7, 8, Characters(s.Id, 1, 44));
    Text(target, X + 81, Y - 12, 8, Characters(s.Id, 45, 104));
    Text(target, X + 1, Y - 15.7, 8, "File:");
    Text(target, X + 8, Y - 15.7, 8, s.File_named ? std::string_view{s.File_name} : std::string_view{});
    Text(target, X + 148, Y - 8.7, 7, eng ? "Date:" : "Dato:");
    Text_behind(target, "Date:", X + 150, Y - 8.7, 7, now.date);
    Text(target, X + 148, Y - 12, 7, eng ? "Time:" : "Tid:");
    Text_behind(target, "Time:", X + 150, Y - 12, 7, now.time);
}

} // namespace tarnvik
