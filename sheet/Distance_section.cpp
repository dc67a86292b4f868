#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "calc/Text.h"
#include "calc/Words.h"
#include "sheet/Formula.h"
#include "sheet/Sections.h"
#include "spacing/Catalogue.h"
#include "spacing/Member_names.h"
#include "spacing/Rules.h"
#include "spacing/sketch/Sketch.h"

namespace tarnvik {

namespace {

// clang-format off
// What a distance is, with its symbol in tables 8.4 and 8.8.
struct Role {
    Words words;
    std::string_view symbol;
};
constexpr Role loaded_edge  {{"loaded edge",               "belastet kant"},               "a_{4,t}"};
constexpr Role unloaded_edge{{"unloaded edge",             "ubelastet kant"},              "a_{4,c}"};
constexpr Role loaded_end   {{"loaded end",                "belastet ende"},               "a_{3,t}"};
constexpr Role unloaded_end {{"unloaded end",              "ubelastet ende"},              "a_{3,c}"};
constexpr Role along        {{"spacing along the grain",   "avstand langs fibrene"},       "a_{1}"};
constexpr Role across       {{"spacing across the grain",  "avstand på tvers av fibrene"}, "a_{2}"};
// At a right angle, along the grain of the other member.
constexpr Role along_other  {{"spacing across the grain",  "avstand på tvers av fibrene"}, "a_{2}, a_{1}"};
// clang-format on

const Role& Role_of(const std::vector<SketchedDistance>& drawn, std::string_view label, int place, int in_across,
                    int in_all, bool right_angle) {
    const auto found =
        std::find_if(drawn.begin(), drawn.end(), [label](const SketchedDistance& one) { return one.label == label; });
    const bool loaded = found != drawn.end() && found->loaded;
    if (place == 0 || place == in_across - 1) {
        return loaded ? loaded_edge : unloaded_edge;
    }
    if (place < in_across) {
        return right_angle ? along_other : across;
    }
    if (place < in_all - 1) {
        return along;
    }
    return loaded ? loaded_end : unloaded_end;
}

std::string Shown(float value) {
    return std::string{Trim(Format(value, "00"))};
}

class DistanceTables {
public:
    DistanceTables(Page& page, const SheetFacts& facts, int case_row)
        : page_(page), facts_(facts), s_(facts.s), listed_(Listed_distances(facts.s, case_row)),
          joint_(case_distances[static_cast<std::size_t>(case_row)]),
          type_(case_table[static_cast<std::size_t>(case_row)].type) {
        constexpr double width = 264.0;
        constexpr double height = 174.0;
        drawn_ = Draw_sketch(case_row, s_.P > 0.0F, width, height).distances;
    }

    void Write() {
        const auto in_a = static_cast<std::size_t>(joint_.a.across + joint_.a.along);
        Member(0, 0, joint_.a, s_.h1, s_.Sum_a, s_.Sum_ca);
        Member(1, in_a, joint_.b, s_.h2, s_.Sum_b, s_.Sum_cb);
    }

private:
    void Member(std::size_t member, std::size_t begin, const MemberDistances& in, float h, float bolts,
                float connectors) {
        const bool english = facts_.english;
        const std::string name{Member_names_of(type_)[member].In(english)};
        std::vector<Cell> headings{name,
                                   english ? "Distance" : "Avstand",
                                   "EN 1995-1-1",
                                   english ? "Bolts, table 8.4" : "Bolter, tabell 8.4",
                                   {"mm", "n"}};
        if (s_.Med_bulldog) {
            headings.emplace_back(english ? "Connectors, table 8.8" : "Forbindere, tabell 8.8");
            headings.emplace_back("mm", "n");
        }
        page_.Begin_table("distances",
                          (english ? "Minimum distances in member " : "Minsteavstander i del ") +
                              std::to_string(member + 1),
                          headings);
        const int all = in.across + in.along;
        for (int i = 0; i < all; ++i) {
            Distance_row(listed_[begin + static_cast<std::size_t>(i)], i, in);
        }
        Sum_row(begin, in.across, h, bolts, connectors);
        page_.End_table();
    }

    void Distance_row(const ListedDistance& distance, int place, const MemberDistances& in) {
        const std::string_view label = Label_of(distance.distance);
        const bool right_angle = type_ == '4' || type_ == '5';
        const Role& role = Role_of(drawn_, label, place, in.across, in.across + in.along, right_angle);
        std::vector<Cell> cells{label, role.words.In(facts_.english), Cell{Indexed(role.symbol)}};
        const auto add = [&](std::string_view formula, const std::optional<float>& value) {
            cells.push_back(formula.empty() ? Cell{"–"} : Cell{Markup{Formula{With_spacing(formula)}.Symbols()}});
            cells.emplace_back(value ? Shown(*value) : std::string{"–"}, "n");
        };
        add(distance.S_formula, distance.S);
        if (s_.Med_bulldog) {
            add(distance.C_formula, distance.C);
        }
        page_.Row(cells);
    }

    // N is the chosen number.
    [[nodiscard]] std::string With_spacing(std::string_view formula) const {
        std::string text{formula};
        if (const std::size_t at = text.find('N'); at != std::string::npos) {
            text.replace(at, 1, std::to_string(s_.Avstand_index + 5));
        }
        return text;
    }

    void Sum_row(std::size_t begin, int in_across, float h, float bolts, float connectors) {
        const bool english = facts_.english;
        std::string names;
        for (int i = 0; i < in_across; ++i) {
            names += names.empty() ? "" : " + ";
            names += Label_of(listed_[begin + static_cast<std::size_t>(i)].distance);
        }
        std::vector<Cell> cells{"Sum", names, ""};
        const auto add = [&](float sum, std::optional<float> ListedDistance::*kind) {
            std::string note = Compared(sum, h);
            if (const std::string missing = Missing(begin, in_across, sum, kind); !missing.empty()) {
                note += (english ? "; without " : "; uten ") + missing +
                        (english ? ": add by hand" : ": legg til for hånd");
            }
            cells.emplace_back(note);
            cells.emplace_back(Shown(sum), "n");
        };
        add(bolts, &ListedDistance::S);
        if (s_.Med_bulldog) {
            add(connectors, &ListedDistance::C);
        }
        page_.Row(cells, "sum");
    }

    [[nodiscard]] static std::string Compared(float sum, float h) {
        return (sum > h ? "> h = " : "≤ h = ") + Shown(h) + " mm";
    }

    // The distances that the sum does not add: those without a number, and in one case the last one.
    [[nodiscard]] std::string Missing(std::size_t begin, int in_across, float sum,
                                      std::optional<float> ListedDistance::*kind) const {
        std::string names;
        double added = 0.0;
        constexpr double rounding = 0.01;
        for (int i = 0; i < in_across; ++i) {
            const ListedDistance& distance = listed_[begin + static_cast<std::size_t>(i)];
            const std::optional<float>& value = distance.*kind;
            if (!value || added + *value > sum + rounding) {
                names += names.empty() ? "" : ", ";
                names += Label_of(distance.distance);
            } else {
                added += *value;
            }
        }
        return names;
    }

    Page& page_;
    const SheetFacts& facts_;
    const ConnectionValues& s_;
    std::vector<ListedDistance> listed_;
    const CaseDistances& joint_;
    char type_;
    std::vector<SketchedDistance> drawn_;
};

} // namespace

void Write_distances(Page& page, const SheetFacts& facts) {
    page.Heading(facts.english ? "Minimum distances" : "Minsteavstander");
    if (const int row = Plotted_case(facts.s); row >= 0) {
        DistanceTables{page, facts, row}.Write();
    }
}

} // namespace tarnvik
