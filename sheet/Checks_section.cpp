#include <algorithm>
#include <string>
#include <vector>

#include "calc/Text.h"
#include "calc/Words.h"
#include "sheet/Diagram_svg.h"
#include "sheet/Sections.h"
#include "sheet/Symbols.h"

namespace tarnvik {

namespace {

// Demand and capacity of a check as they are shown.
struct Pair {
    std::string demand, capacity;
};

std::string Shown(float value, std::string_view picture) {
    return std::string{Trim(Format(value, picture))};
}

std::string Symbol_text(std::string_view name, const ConnectionState& s) {
    const Symbol& symbol = *Find_symbol(name);
    return std::string{Trim(Number_text(symbol.number, s))} + " " + std::string{symbol.unit};
}

Pair Pair_of(const SheetFacts& facts, Check check) {
    const ConnectionState& s = facts.s;
    switch (check) {
    case Check::utilisation:
        if (s.Med_bulldog) {
            return {Symbol_text("P", s),
                    std::string{Trim(Number_text(numbers::Rd_bolt, s))} + " + " + Symbol_text("Rd_for", s)};
        }
        return {Symbol_text("P", s), Symbol_text("Rd_bolt", s)};
    case Check::splitting:
        return {Symbol_text("P_sin", s), Symbol_text("F90_Rd", s)};
    default:
        return {Shown(facts.verdict[check].value, "0") + " mm", Shown(facts.verdict[check].limit, "0") + " mm"};
    }
}

float Ratio(const CheckResult& result) {
    return result.limit > 0.0F ? result.value / result.limit : 0.0F;
}

// A ratio above 1 never reads as 1.00.
std::string Ratio_text(const CheckResult& result) {
    std::string text = Shown(Ratio(result), "0.00");
    if (result.Fails() && text == Shown(1.0F, "0.00")) {
        text = "> " + text;
    }
    return text;
}

std::string Holds_text(const SheetFacts& facts, const CheckResult& result) {
    if (!result.checked) {
        return facts.english ? "not checked" : "ikke kontrollert";
    }
    if (result.Fails()) {
        return facts.english ? "✗ does not hold" : "✗ holder ikke";
    }
    return facts.english ? "✓ holds" : "✓ holder";
}

// ---------------------------------------------------------------------------------------------------------------------
// Bars

constexpr double bars_width = 330.0;
constexpr double name_width = 158.0; // of the column of names
constexpr double bar_left = 162.0;
constexpr double one = 110.0; // the length of a bar of 1.0
constexpr double bar_step = 17.0;
constexpr double bar_height = 10.0;
constexpr double longest = 1.2;

std::string Line(double x, double y1, double y2) {
    return "<line x1=\"" + Coordinate(x) + "\" y1=\"" + Coordinate(y1) + "\" x2=\"" + Coordinate(x) + "\" y2=\"" +
           Coordinate(y2) + "\" stroke=\"#000\" stroke-width=\"1.2\"/>\n";
}

// What fails is hatched as well, so that nothing hangs on a colour.
std::string Bar(double y, const CheckResult& result) {
    const double length = one * std::min(static_cast<double>(Ratio(result)), longest);
    return "<rect x=\"" + Coordinate(bar_left) + "\" y=\"" + Coordinate(y) + "\" width=\"" + Coordinate(length) +
           "\" height=\"" + Coordinate(bar_height) + "\" stroke=\"#000\" stroke-width=\"0.6\" fill=\"" +
           (result.Fails() ? "url(#fails)" : "#9dbbd8") + "\"/>\n";
}

constexpr std::string_view hatching =
    "<defs><pattern id=\"fails\" width=\"5\" height=\"5\" patternUnits=\"userSpaceOnUse\" "
    "patternTransform=\"rotate(45)\"><rect width=\"5\" height=\"5\" fill=\"#f3c9c4\"/>"
    "<rect width=\"1.6\" height=\"5\" fill=\"#a01010\"/></pattern></defs>\n";

std::string Bars(const SheetFacts& facts, std::string_view title) {
    std::string rows;
    double y = 4.0;
    for (std::size_t i = 0; i < check_count; ++i) {
        const auto check = static_cast<Check>(i);
        const CheckResult& result = facts.verdict[check];
        if (!result.applies) {
            continue;
        }
        const double base = y + bar_height - 1.5;
        rows += Diagram_text(name_width, base, "end", Check_words(check, facts.english));
        if (result.checked) {
            rows += Bar(y, result);
            const double end = one * std::min(static_cast<double>(Ratio(result)), longest);
            rows +=
                Diagram_text(std::max(bar_left + end + 4.0, bar_left + one + 4.0), base, "start", Ratio_text(result));
        } else {
            rows += Diagram_text(bar_left + 4.0, base, "start", Holds_text(facts, result));
        }
        y += bar_step;
    }
    std::string svg = Begin_diagram(bars_width, y + 12.0, title);
    svg += hatching;
    svg += rows;
    svg += Line(bar_left, 0.0, y) + Line(bar_left + one, 0.0, y);
    svg += Diagram_text(bar_left, y + 9.0, "middle", "0") +
           Diagram_text(bar_left + one, y + 9.0, "middle", Shown(1.0F, "0.0"));
    return svg + "</svg>\n";
}

} // namespace

void Write_checks(Page& page, const SheetFacts& facts) {
    const bool english = facts.english;
    page.Heading(english ? "Checks" : "Kontroller");
    const std::vector<Cell> headings{english ? "Check" : "Kontroll",
                                     "EN 1995-1-1",
                                     {english ? "Demand" : "Påvirkning", "n"},
                                     {english ? "Capacity" : "Kapasitet", "n"},
                                     {english ? "Utilisation" : "Utnyttelse", "n"},
                                     english ? "Result" : "Resultat"};
    page.Begin_table("checks", english ? "Checks with demand and capacity" : "Kontroller med påvirkning og kapasitet",
                     headings);
    for (std::size_t i = 0; i < check_count; ++i) {
        const auto check = static_cast<Check>(i);
        const CheckResult& result = facts.verdict[check];
        if (!result.applies) {
            continue;
        }
        const Pair pair = result.checked ? Pair_of(facts, check) : Pair{"–", "–"};
        page.Row({Check_words(check, english),
                  Check_clause(facts.verdict, check, english),
                  {pair.demand, "n"},
                  {pair.capacity, "n"},
                  {result.checked ? Ratio_text(result) : std::string{"–"}, "n"},
                  {Holds_text(facts, result), result.Fails() ? "fails" : ""}},
                 result.Fails() ? "fails" : "");
    }
    page.End_table();
    page.Add("<div class=\"pictures\">\n");
    const Words title{"Utilisation of every check against 1", "Utnyttelse av hver kontroll mot 1"};
    page.Figure({}, Bars(facts, title.In(english)), title.In(english));
    Write_angle(page, facts);
    page.Add("</div>\n");
}

} // namespace tarnvik
