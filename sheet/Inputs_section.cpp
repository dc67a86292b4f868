#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "calc/Text.h"
#include "calc/Words.h"
#include "sheet/Sections.h"
#include "spacing/Catalogue.h"
#include "spacing/Member_names.h"
#include "spacing/sketch/Connection_picture.h"
#include "spacing/sketch/Sketch.h"
#include "spacing/sketch/Svg.h"

namespace tarnvik {

namespace {

using V = ConnectionValues;

// As the window has them, pixels.
constexpr double connection_width = 239.0;
constexpr double connection_height = 174.0;
constexpr double sketch_width = 264.0;
constexpr double sketch_height = 174.0;

std::string Shown(float value, std::string_view picture) {
    return std::string{Trim(Format(value, picture))};
}

// The members of the type digit of Con_code; those of type 1 for a code that has none.
const std::array<Words, 2>& Members(const V& s) {
    const char type = s.Con_code.View().front();
    return Member_names_of(type >= '1' && type <= '5' ? type : '1');
}

std::string Member_text(const SheetFacts& facts, int member) {
    const V& s = facts.s;
    const bool twice = member == 1 ? s.dob_1 : s.dob_2;
    std::string text{Members(s)[static_cast<std::size_t>(member - 1)].In(facts.english)};
    text += ", ";
    text += twice ? Words{"double, 2 × ", "dobbel, 2 × "}.In(facts.english)
                  : Words{"single, ", "enkel, "}.In(facts.english);
    return text + Shown(member == 1 ? s.b1 : s.b2, "0.0") + " × " + Shown(member == 1 ? s.h1 : s.h2, "0.0") + " mm";
}

std::string Member_1(const SheetFacts& facts) {
    return Member_text(facts, 1);
}

std::string Member_2(const SheetFacts& facts) {
    return Member_text(facts, 2);
}

std::string Joint_text(const SheetFacts& facts) {
    std::string text{Trim(facts.s.Con_code)};
    text += facts.english ? ", case " : ", tilfelle ";
    std::string_view code = Trim(facts.s.Case_code);
    if (code.ends_with('.')) {
        code.remove_suffix(1);
    }
    return text + std::string{code};
}

std::string Angle_text(const SheetFacts& facts) {
    return "α = " + Shown(facts.s.alp, "0.0") + "°";
}

std::string Material_text(const SheetFacts& facts) {
    const ConnectionState& s = facts.s;
    const MatRecord* row = Row_of(s.Mat, s.Mat_index);
    std::string text{row == nullptr ? std::string_view{} : Trim(row->Id)};
    return text + ", ρ_{k} = " + Shown(s.rho_k, "0") + " kg/m³, f_{c,90,k} = " + Shown(s.fc90k, "0.00") + " N/mm²";
}

std::string Class_text(const SheetFacts& facts) {
    const V& s = facts.s;
    const ClassRow* row = Row_of(class_table, s.Lastvar - 1);
    std::string text{row == nullptr ? std::string_view{} : Trim(facts.english ? row->name_eng : row->name_nor)};
    text += facts.english ? ", service class " : ", klimaklasse ";
    return text + Shown(s.Klima, "0");
}

std::string Factors_text(const SheetFacts& facts) {
    return "k_{mod} = " + Shown(facts.s.kmod, "0.00") + ", γ_{M} = " + Shown(facts.s.gm, "0.00");
}

std::string Bolts_text(const SheetFacts& facts) {
    const V& s = facts.s;
    const BoltRow* row = Row_of(bolt_table, s.Bolt_index);
    std::string text = Shown(s.n_bolt, "0") + " × " + std::string{row == nullptr ? std::string_view{} : row->caption};
    text += ", f_{u,k} = " + Shown(s.fuk, "0") + " N/mm²";
    if (s.Ab_valg) {
        text += facts.english ? ", arrangement " : ", plassering ";
        text += s.Bolt_ab.View();
    }
    return text;
}

std::string Spacing_text(const SheetFacts& facts) {
    const V& s = facts.s;
    const int multiple = s.Avstand_index + 5;
    return std::to_string(multiple) + " d = " + Shown(static_cast<float>(multiple) * s.d, "0") + " mm";
}

std::string Washer_text(const SheetFacts& facts) {
    const V& s = facts.s;
    std::string text = "⌀ " + Shown(s.d_skive, "0.0") + " × " + Shown(s.t_skive, "0.0") + " mm";
    return text + (facts.english ? ", hole " : ", hull ") + Shown(s.d + 2.0F, "0") + " mm";
}

std::string Connector_text(const SheetFacts& facts) {
    const V& s = facts.s;
    const ConnectorRow* row = Row_of(connector_table, s.Bulldog_index);
    if (!s.Med_bulldog || row == nullptr) {
        return facts.english ? "none" : "ingen";
    }
    std::string text{facts.english ? row->caption_eng : row->caption_nor};
    return text + ", type C1, d_{c} = " + Shown(s.dc, "0") + " mm";
}

std::string Force_text(const SheetFacts& facts) {
    const V& s = facts.s;
    const Words kind = s.P > 0.0F ? Words{"compression", "trykk"} : Words{"tension", "strekk"};
    return "F_{Ed} = " + Shown(std::fabs(s.P), "0.00") + " kN " + std::string{kind.In(facts.english)};
}

std::string He_text(const SheetFacts& facts) {
    if (!facts.s.Man_he_on) {
        return facts.english ? "at the minimum distances" : "ved minsteavstandene";
    }
    return (facts.english ? "given: " : "gitt: ") + Shown(facts.s.man_he, "0") + " mm";
}

// clang-format off
struct InputRow {
    Words name;
    std::string (*text)(const SheetFacts& facts);
};
constexpr std::array<InputRow, 13> input_rows{{
    {{"Connection",               "Forbindelse"},            Joint_text},
    {{"Angle between members",    "Vinkel mellom delene"},   Angle_text},
    {{"Member 1",                 "Del 1"},                  Member_1},
    {{"Member 2",                 "Del 2"},                  Member_2},
    {{"Material",                 "Materiale"},              Material_text},
    {{"Load duration, climate",   "Lastvarighet, klima"},    Class_text},
    {{"Factors",                  "Faktorer"},               Factors_text},
    {{"Design force",             "Dimensjonerende kraft"},  Force_text},
    {{"Bolts",                    "Bolter"},                 Bolts_text},
    {{"Spacing along the grain",  "Avstand langs fibrene"},  Spacing_text},
    {{"Washers",                  "Skiver"},                 Washer_text},
    {{"Connectors",               "Forbindere"},             Connector_text},
    {{"h_{e} for splitting",      "h_{e} for tverrstrekk"},     He_text},
}};

// What the reader of a sheet has to know; the manual has the whole table.
constexpr std::array<Words, 6> unchecked{{
    {"The members themselves: tension, compression and shear in the net section, block and plug shear (annex A), tear-out of the group.",
     "Delene selv: strekk, trykk og skjær i netto tverrsnitt, blokkutrivning (tillegg A), utrivning av gruppen."},
    {"The distances as built: sums of minimum distances are compared with the heights; splitting is taken at these distances unless h_{e} is given.",
     "Avstandene som bygd: summer av minsteavstander sammenlignes med høydene; tverrstrekk regnes ved disse dersom h_{e} ikke er gitt."},
    {"Eccentricity and moment, slip and stiffness, fire, fatigue, corrosion, moisture movements across the grain.",
     "Eksentrisitet og moment, forskyvning og stivhet, brann, utmatting, korrosjon, fuktbevegelser på tvers av fibrene."},
    {"Connectors: the factor of the capacity is 25, where (8.72) has 18 for type C1; k_{1} of D95 and D117 is too large in thin members; no factor for the end distance, no minimum thickness; h_{e} is that of the bolts; D50 counts as 48 mm for distances.",
     "Forbindere: faktoren i kapasiteten er 25, der (8.72) har 18 for type C1; k_{1} for D95 og D117 er for stor i tynne deler; ingen faktor for endeavstand, ingen minste tykkelse; h_{e} er boltenes; D50 regnes som 48 mm i avstander."},
    {"All timber counts as softwood of one density (k_{90}, k_{mod} of one table); γ_{M} is that of the material, where table 2.3 has 1.3 for connections; D35 is delivered with 640 kg/m³; washers with a hole of d + 2 mm.",
     "Alt trevirke regnes som bartre med én densitet (k_{90}, k_{mod} fra én tabell); γ_{M} er materialets, der tabell 2.3 har 1,3 for forbindelser; D35 leveres med 640 kg/m³; skiver med hull d + 2 mm."},
    {"Joint 2.3 takes half the force for the splitting of one beam; joint 5.2 takes both thicknesses from member 1.",
     "Forbindelse 2.3 regner tverrstrekk i én bjelke med halve kraften; forbindelse 5.2 tar begge tykkelser fra del 1."},
}};
// clang-format on

} // namespace

void Write_pictures(Page& page, const SheetFacts& facts) {
    const V& s = facts.s;
    const bool english = facts.english;
    page.Add("<div class=\"pictures\">\n");
    const MemberNames names = english ? MemberNames::english : MemberNames::norwegian;
    if (const auto drawing = Draw_connection(s.Con_code.View(), connection_width, connection_height, names)) {
        const Words title{"The joint: members in elevation and section",
                          "Forbindelsen: delene sett fra siden og i snitt"};
        page.Figure({}, Svg_of(*drawing, connection_width, connection_height, title.In(english)), title.In(english));
    }
    if (const int row = Plotted_case(s); row >= 0) {
        const Sketch sketch = Draw_sketch(row, s.P > 0.0F, sketch_width, sketch_height);
        const Words title{"Distances of the fasteners; heavy: the loaded edge",
                          "Avstander for forbindelsesmidlene; tykk strek: belastet kant"};
        page.Figure({}, Svg_of(sketch.drawing, sketch_width, sketch_height, title.In(english)), title.In(english));
    }
    page.Add("</div>\n");
}

void Write_inputs(Page& page, const SheetFacts& facts) {
    page.Heading(facts.english ? "Inputs" : "Inndata");
    const std::vector<Cell> headings{facts.english ? "Input" : "Størrelse", facts.english ? "Value" : "Verdi"};
    page.Add("<div class=\"halves\">\n");
    constexpr std::size_t in_first = 7;
    for (const std::size_t begin : {std::size_t{0}, in_first}) {
        page.Begin_table("inputs", facts.english ? "Inputs" : "Inndata", headings);
        const std::size_t end = begin == 0 ? in_first : input_rows.size();
        for (std::size_t i = begin; i < end; ++i) {
            page.Row({Indexed(input_rows[i].name.In(facts.english)), Indexed(input_rows[i].text(facts))});
        }
        page.End_table();
    }
    page.Add("</div>\n");
}

void Write_unchecked(Page& page, const SheetFacts& facts) {
    page.Heading(facts.english ? "What is not checked" : "Hva som ikke er kontrollert");
    page.Add("<ul class=\"unchecked\">\n");
    for (const Words& line : unchecked) {
        page.Add("<li>" + Indexed(line.In(facts.english)).html + "</li>\n");
    }
    page.Add("</ul>\n");
}

} // namespace tarnvik
