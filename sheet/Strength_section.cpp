#include <array>
#include <span>
#include <string>
#include <vector>

#include "calc/Splitting.h"
#include "calc/Text.h"
#include "calc/Words.h"
#include "report/Member_texts.h"
#include "sheet/Formula.h"
#include "sheet/Sections.h"
#include "sheet/Symbols.h"
#include "spacing/sketch/Splitting_picture.h"
#include "spacing/sketch/Svg.h"

namespace tarnvik {

namespace {

using V = ConnectionValues;

// clang-format off
// A value with its formula, as the standard has it.
struct Derivation {
    Words name;
    std::string_view clause;
    std::string_view symbol;
    std::string_view formula;
};
constexpr std::array<Derivation, 9> strengths{{
    {{"Factor for the angle, softwood",  "Faktor for vinkel, bartre"},       "(8.33)",  "k90",      "1.35 + 0.015*d"},
    {{"Embedment along the grain",       "Hullkantfasthet langs fibrene"},   "(8.32)",  "fh0k",     "0.082*(1 - 0.01*d)*rho_k"},
    {{"Embedment in t_{1}",              "Hullkantfasthet i t_{1}"},          "(8.31)",  "fh1k",     "fh0k/(k90*sin(alp1)^2 + cos(alp1)^2)"},
    {{"Embedment in t_{2}",              "Hullkantfasthet i t_{2}"},          "(8.31)",  "fh2k",     "fh0k/(k90*sin(alp2)^2 + cos(alp2)^2)"},
    {{"Ratio of embedments",             "Forhold av fastheter"},            "(8.8)",   "beta",     "fh2k:fh1k"},
    {{"Yield moment of the bolt",        "Flytemoment av bolten"},           "(8.30)",  "My_Rk",    "0.3*fuk*d^2.6"},
    {{"Bolt in tension",                 "Bolt i strekk"},                   "8.5.2",   "Fax_bolt", "pi:4*fuk*d^2"},
    {{"Washer on the timber",            "Skive mot trevirket"},             "8.5.2 (2)", "Fax_skive", "pi:4*3*fc90k*(d_skive^2 - (d + 2)^2)"},
    {{"Largest rope effect",             "Største taueffekt"},               "8.2.2 (2)", "rope",   "min(Fax_bolt; Fax_skive):4"},
}};

// The Johansen part of a failure mode, N; the capacity with the rope effect, kN.
struct ModeRow {
    char mode;
    std::string_view clause;
    std::string_view formula;
    Number capacity;
    bool rope;
    bool two_lines; // the numbers stand below the formula
};
constexpr std::string_view mode_d = "1.05*fh1k*t1*d/(2 + beta)*(sqrt(2*beta*(1 + beta) + 4*beta*(2 + beta)*My_Rk/(fh1k*d*t1^2)) - beta)";
constexpr std::string_view mode_f = "1.15*sqrt(2*beta/(1 + beta))*sqrt(2*My_Rk*fh1k*d)";
constexpr std::array<ModeRow, 6> single_modes{{
    {'a', "(8.6 a)", "fh1k*t1*d", numbers::Fv_a, false, false},
    {'b', "(8.6 b)", "fh2k*t2*d", numbers::Fv_b, false, false},
    {'c', "(8.6 c)", "fh1k*t1*d/(1 + beta)*(sqrt(beta + 2*beta^2*(1 + t2/t1 + (t2/t1)^2) + beta^3*(t2/t1)^2) - beta*(1 + t2/t1))", numbers::Fv_c, true, true},
    {'d', "(8.6 d)", mode_d, numbers::Fv_d, true, true},
    {'e', "(8.6 e)", "1.05*fh1k*t2*d/(1 + 2*beta)*(sqrt(2*beta^2*(1 + beta) + 4*beta*(1 + 2*beta)*My_Rk/(fh1k*d*t2^2)) - beta)", numbers::Fv_e, true, true},
    {'f', "(8.6 f)", mode_f, numbers::Fv_f, true, false},
}};
constexpr std::array<ModeRow, 4> double_modes{{
    {'g', "(8.7 g)", "fh1k*t1*d", numbers::Fv_g, false, false},
    {'h', "(8.7 h)", "0.5*fh2k*t2*d", numbers::Fv_h, false, false},
    {'j', "(8.7 j)", mode_d, numbers::Fv_j, true, true},
    {'k', "(8.7 k)", mode_f, numbers::Fv_k, true, false},
}};
// clang-format on

std::string Shown(const Symbol& symbol, const V& s) {
    std::string text{Trim(Number_text(symbol.number, s))};
    if (!symbol.unit.empty()) {
        text += symbol.unit == "°" ? "" : " ";
        text += symbol.unit;
    }
    return text;
}

std::string Newtons_as_kN(double value) {
    return std::string{Trim(Format(static_cast<float>(value / 1000.0), "0.00"))};
}

class Derivations {
public:
    Derivations(Page& page, const SheetFacts& facts) : page_(page), facts_(facts) {}

    void Begin(std::string_view caption) {
        const bool english = facts_.english;
        const std::vector<Cell> headings{english ? "Quantity" : "Størrelse",
                                         "EN 1995-1-1",
                                         english ? "Formula" : "Formel",
                                         english ? "Numbers put in" : "Med tall",
                                         {english ? "Value" : "Verdi", "n"}};
        page_.Begin_table("formulas", caption, headings);
    }

    void Row(const Words& name, std::string_view clause, std::string_view symbol_name, std::string_view notation) {
        const Symbol& symbol = *Find_symbol(symbol_name);
        const Formula formula{notation};
        const std::string left = Math(Symbol_markup(symbol) + "<mo>=</mo>");
        page_.Row({Indexed(name.In(facts_.english)), clause, Cell{Markup{left + formula.Symbols()}},
                   Cell{Markup{formula.Numbers(facts_.s)}}, Cell{Shown(symbol, facts_.s), "n"}});
    }

    void End() { page_.End_table(); }

private:
    Page& page_;
    const SheetFacts& facts_;
};

// "t1 = 48.00 (Single top chord)" in the words of the detailed calculations.
std::string Thickness(std::string_view label, float value, const Words& note, bool english) {
    std::string text{Trim(label)};
    text += " ";
    text += Trim(Format(value, "0.00"));
    text += " mm ";
    text += Trim(note.In(english));
    return text;
}

} // namespace

void Write_strengths(Page& page, const SheetFacts& facts) {
    const V& s = facts.s;
    page.Heading(facts.english ? "Strengths" : "Fastheter");
    if (const MemberTexts* notes = Member_notes(s)) {
        page.Add("<p>" + Escaped(Thickness(s.t1_txt, s.t1, notes->note1, facts.english)) + "; " +
                 Escaped(Thickness(s.t2_txt, s.t2, notes->note2, facts.english)) + "</p>\n");
    }
    Derivations table{page, facts};
    table.Begin(facts.english ? "Strengths with their formulas" : "Fastheter med formler");
    for (const Derivation& row : strengths) {
        table.Row(row.name, row.clause, row.symbol, row.formula);
    }
    table.End();
}

void Write_modes(Page& page, const SheetFacts& facts) {
    const bool english = facts.english;
    const V& s = facts.s;
    const bool twice = s.dob_1 || s.dob_2;
    page.Heading(twice ? Words{"Failure modes in double shear, each bolt and shear plane",
                               "Bruddformer i dobbelt snitt, for hver bolt og hvert snitt"}
                             .In(english)
                       : Words{"Failure modes in single shear, each bolt and shear plane",
                               "Bruddformer i enkelt snitt, for hver bolt og hvert snitt"}
                             .In(english));
    page.Add("<p>" + Indexed("F_{v,Rk} = F_{J} + min(F_{J}/4; F_{ax,Rk}/4)").html +
             (english ? ", rope effect by 8.2.2 (2)</p>\n" : ", taueffekt etter 8.2.2 (2)</p>\n"));
    const std::vector<Cell> headings{"EN 1995-1-1",
                                     english ? Indexed("Johansen part F_{J}, formula and numbers put in")
                                             : Indexed("Johansens del F_{J}, formel og med tall"),
                                     {Indexed("F_{J}, kN"), "n"},
                                     {english ? "rope, kN" : "tau, kN", "n"},
                                     {Indexed("F_{v,Rk}, kN"), "n"}};
    page.Begin_table("modes", english ? "Failure modes" : "Bruddformer", headings);
    const GoverningMode governing = Governing_mode(s);
    const std::span<const ModeRow> rows = twice ? std::span<const ModeRow>{double_modes} : single_modes;
    for (const ModeRow& row : rows) {
        const Formula formula{row.formula};
        const double johansen = formula.Value(s);
        const double whole = static_cast<double>(row.capacity.of(s)) * 1000.0;
        const bool governs = row.mode == governing.mode;
        std::string mode{row.clause};
        if (governs) {
            mode += english ? " governs" : " avgjørende";
        }
        page.Row({mode,
                  Cell{Markup{formula.Symbols() + (row.two_lines ? "<br>= " : " = ") + formula.Numbers(s)}},
                  {Newtons_as_kN(johansen), "n"},
                  {row.rope ? Newtons_as_kN(whole - johansen) : std::string{"–"}, "n"},
                  {std::string{Trim(Number_text(row.capacity, s))}, "n"}},
                 governs ? "governs" : "");
    }
    page.End_table();
}

void Write_capacities(Page& page, const SheetFacts& facts) {
    const V& s = facts.s;
    page.Heading(facts.english ? "Effective numbers and design capacities"
                               : "Effektive antall og dimensjonerende kapasitet");
    Derivations table{page, facts};
    table.Begin(facts.english ? "Design capacities with their formulas" : "Dimensjonerende kapasitet med formler");
    if (s.Has_row) {
        table.Row({"Effective bolts, m rows of n", "Effektive bolter, m rekker med n"}, "(8.34)", "nef_b",
                  "rows*min(n_row; n_row^0.9*(a1/(13*d))^0.25)");
        if (s.Med_bulldog) {
            table.Row({"Effective connectors", "Effektive forbindere"}, "(8.71)", "nef_f",
                      "rows*(2 + (1 - n_row:20)*(n_row - 2))");
        }
    }
    table.Row({"Bolts, i shear planes", "Bolter, i snitt"}, "(2.17)", "Rd_bolt",
              s.Has_row ? "kmod:gm*Rk*nef_b*planes" : "kmod:gm*Rk*n*planes");
    if (s.Med_bulldog) {
        table.Row({"One connector in a plane, kN", "Én forbinder i et snitt, kN"}, "(8.72)", "Rc",
                  "0.025*k1*k2*k3*dc^1.5");
        table.Row({"Connectors", "Forbindere"}, "(2.17)", "Rd_for",
                  s.Has_row ? "kmod:gm*Rc*nef_f*planes" : "kmod:gm*Rc*n*planes");
    }
    table.Row({"Utilisation", "Utnyttelse"}, s.Med_bulldog ? "8.10" : "8.5.1", "uf",
              s.Med_bulldog ? "P:(Rd_bolt + Rd_for)" : "P:Rd_bolt");
    table.End();
}

void Write_splitting(Page& page, const SheetFacts& facts) {
    const V& s = facts.s;
    const bool english = facts.english;
    page.Heading(english ? "Splitting" : "Tverrstrekk");
    if (!facts.verdict[Check::splitting].checked) {
        page.Add(english ? "<p>Not checked: h<sub>e</sub> has not been accepted.</p>\n"
                         : "<p>Ikke kontrollert: h<sub>e</sub> er ikke godtatt.</p>\n");
        return;
    }
    constexpr double width = 180.0;
    constexpr double height = 100.0;
    page.Add("<div class=\"beside\">\n");
    Derivations table{page, facts};
    table.Begin(english ? "Splitting with its formulas" : "Tverrstrekk med formler");
    table.Row({"Design capacity, kN", "Dimensjonerende kapasitet, kN"}, "(8.4)", "F90_Rd",
              "kmod:gm*0.014*b*sqrt(he/(1 - he:h))");
    table.Row({"Force across the grain", "Kraft på tvers av fibrene"}, "8.1.4", "P_sin",
              Takes_half_force(s) ? "P:2*sin(alpha)" : "P*sin(alpha)");
    table.Row({"Utilisation", "Utnyttelse"}, "(8.2)", "Tverr", "P_sin:F90_Rd");
    table.End();
    const Words title{"h, he and the loaded edge", "h, he og belastet kant"};
    page.Figure({}, Svg_of(Draw_splitting(width, height), width, height, title.In(english)), title.In(english));
    page.Add("</div>\n");
}

} // namespace tarnvik
