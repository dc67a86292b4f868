#include "sheet/Check_sheet.h"

#include <algorithm>

#include "calc/Text.h"
#include "calc/Words.h"
#include "sheet/Page.h"
#include "sheet/Record.h"
#include "sheet/Sections.h"

namespace tarnvik {

namespace {

// Colours have a contrast of 4.5 at least on white, and what they say stands there in words as well. Fonts for formulas
// have room for the tallest above and below every line, which some browsers then leave.
constexpr std::string_view style = R"(
@page { size: A4; margin: 9mm 10mm; }
* { box-sizing: border-box; }
body { font: 8pt/1.25 'Liberation Sans', Arial, Helvetica, sans-serif; color: #000; background: #fff; margin: 0 auto;
  max-width: 190mm; }
@font-face { font-family: "Formulas"; ascent-override: 80%; descent-override: 25%; line-gap-override: 0%;
  src: local("STIX Two Math"), local("Cambria Math"), local("STIX Math"), local("STIXMath-Regular"),
    local("Latin Modern Math"), local("DejaVu Math TeX Gyre"); }
math { font-family: "Formulas", math, serif; font-size: 8pt;
  math-style: normal; }
header { display: flex; justify-content: space-between; align-items: baseline; border-bottom: 1.5pt solid #000; }
h1 { font-size: 13pt; margin: 0 0 1mm; }
h2 { font-size: 9pt; margin: 2mm 0 0.6mm; break-after: avoid; }
p { margin: 0.6mm 0; }
.unchecked { font-size: 7.5pt; } ul { margin: 0; padding-left: 4mm; }
.verdict { font-size: 10.5pt; font-weight: bold; padding: 1mm 2mm; margin: 1.5mm 0; border: 1.2pt solid #000; }
.verdict.holds { background: #e3f1e1; } .verdict.fails { background: #f9e0dd; } .verdict.open { background: #fdf3d0; }
table { border-collapse: collapse; width: 100%; break-inside: avoid; }
caption { position: absolute; width: 1px; height: 1px; overflow: hidden; clip-path: inset(50%); }
th, td { text-align: left; vertical-align: middle; padding: 0.25mm 1mm; border-bottom: 0.4pt solid #999; font-weight: normal; }
thead th { font-weight: bold; border-bottom: 0.8pt solid #000; vertical-align: bottom; }
tbody th { white-space: nowrap; }
.n { text-align: right; white-space: nowrap; font-variant-numeric: tabular-nums; }
tr.governs, tr.sum { font-weight: bold; } tr.governs th, tr.governs td { font-weight: bold; background: #eee; }
tr.sum th, tr.sum td { font-weight: bold; border-top: 0.8pt solid #000; }
td.fails { font-weight: bold; color: #a01010; }
.halves, .pictures, .beside { display: flex; gap: 4mm; align-items: flex-start; }
.halves > * { flex: 1; } .pictures { justify-content: space-around; margin-top: 1mm; }
.beside > table { flex: 1; }
figure { margin: 0; text-align: center; break-inside: avoid; }
figcaption { font-size: 7pt; }
svg { max-width: 100%; height: auto; }
.modes math { font-size: 7pt; } .formulas math { font-size: 7.5pt; } .formulas td { white-space: nowrap; }
.modes td, .formulas td:nth-child(2), .formulas thead th, .modes thead th { white-space: nowrap; }
.distances { table-layout: fixed; } .distances th:nth-child(1) { width: 21mm; } .distances th:nth-child(3) { width: 20mm; }
.distances th.n { width: 11mm; } .distances th:nth-child(2) { width: 42mm; }
header div:last-child { text-align: right; }
footer { margin-top: 2mm; border-top: 0.8pt solid #000; font-size: 7pt; }
.second { break-before: page; }
@media screen { body { padding: 6mm; } }
)";

std::string_view Verdict_look(const Verdict& verdict) {
    if (verdict.Holds()) {
        return "holds";
    }
    const bool fails = std::any_of(verdict.checks.begin(), verdict.checks.end(),
                                   [](const CheckResult& check) { return check.Fails(); });
    return fails ? "fails" : "open";
}

void Write_head(Page& page, const SheetFacts& facts, const SheetRecord& record) {
    const std::string_view title = facts.english ? "Check sheet" : "Kontrollark";
    page.Add(facts.english ? "<!DOCTYPE html>\n<html lang=\"en\">\n" : "<!DOCTYPE html>\n<html lang=\"nb\">\n");
    page.Add("<head>\n<meta charset=\"utf-8\">\n<meta name=\"viewport\" content=\"width=device-width\">\n");
    page.Add("<meta name=\"generator\" content=\"Tarnvik " + Plain(record.version).html + "\">\n");
    page.Add("<meta name=\"tarnvik-record\" content=\"" + Plain(record.json).html + "\">\n");
    page.Add("<title>" + Plain(title).html + ", " + Plain(facts.s.Prosjekt).html + ", " + Plain(facts.s.Id).html +
             "</title>\n<style>");
    page.Add(style);
    page.Add("</style>\n</head>\n<body>\n");
}

void Write_title(Page& page, const SheetFacts& facts, const Moment& now) {
    const bool english = facts.english;
    page.Add("<header>\n<div><h1>");
    page.Add(english ? "Check sheet: bolted timber connection" : "Kontrollark: bolteforbindelse i tre");
    page.Add("</h1>\nEN 1995-1-1:2004+A1:2008</div>\n<div>");
    page.Add((english ? "Project: " : "Prosjekt: ") + Plain(facts.s.Prosjekt).html + "<br>" +
             (english ? "Connection: " : "Forbindelse: ") + Plain(facts.s.Id).html + "<br>" + Plain(now.date).html +
             " " + Plain(now.time).html + "</div>\n</header>\n");
    const std::string text = Verdict_text(facts.verdict, english);
    page.Add("<p class=\"verdict " + std::string{Verdict_look(facts.verdict)} + "\">" + Plain(text).html + "</p>\n");
}

void Write_foot(Page& page, const SheetFacts& facts, const SheetRecord& record) {
    page.Add("<footer>Tarnvik " + Plain(record.version).html + ". ");
    page.Add(facts.english ? "Checksum of inputs and results: " : "Kontrollsum av inndata og resultater: ");
    page.Add("<code>" + record.checksum + "</code>. ");
    page.Add(facts.english ? "Calculated again and compared by: " : "Beregnes på nytt og sammenlignes med: ");
    page.Add("<code>tarnvik-check --verify</code></footer>\n</body>\n</html>\n");
}

} // namespace

std::string Check_sheet(const ConnectionState& s, const Verdict& verdict, const Moment& now,
                        const std::string& version) {
    const SheetFacts facts{s, verdict, Is_english(s)};
    const SheetRecord record = Record_of(s, verdict, now, version);
    Page page;
    Write_head(page, facts, record);
    page.Add("<main>\n");
    Write_title(page, facts, now);
    Write_pictures(page, facts);
    Write_inputs(page, facts);
    Write_checks(page, facts);
    Write_distances(page, facts);
    page.Add("<div class=\"second\">\n");
    Write_strengths(page, facts);
    Write_modes(page, facts);
    Write_capacities(page, facts);
    Write_splitting(page, facts);
    Write_unchecked(page, facts);
    page.Add("</div>\n</main>\n");
    Write_foot(page, facts, record);
    return page.Html();
}

} // namespace tarnvik
