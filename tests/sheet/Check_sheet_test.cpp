// Sheets of all cases, signs, languages, variants, with and without connectors: every number against the state.
#include "sheet/Check_sheet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "calc/Text.h"
#include "calc/pass/Main_beregn.h"
#include "spacing/Catalogue.h"
#include "spacing/Rules.h"
#include "tests/support/Calculation.h"
#include "tests/support/RecordingMessageBox.h"

namespace tarnvik {
namespace {

const Moment now{"21.11.2026", "08:09:10"};

// The pieces of a text between two marks.
std::vector<std::string> Between(const std::string& text, const std::string& before, const std::string& behind) {
    std::vector<std::string> pieces;
    for (std::size_t at = text.find(before); at != std::string::npos; at = text.find(before, at)) {
        at += before.size();
        const std::size_t end = text.find(behind, at);
        if (end == std::string::npos) {
            return pieces;
        }
        pieces.push_back(text.substr(at, end - at));
        at = end;
    }
    return pieces;
}

// What is read of a piece of markup.
std::string Words_of(const std::string& markup) {
    std::string words;
    bool tag = false;
    for (const char c : markup) {
        tag = c == '<' || (tag && c != '>');
        if (!tag && c != '>') {
            words += c;
        }
    }
    return words;
}

// The cells of the rows of the tables of a look.
using Table = std::vector<std::vector<std::string>>;
std::vector<Table> Tables_of(const std::string& html, const std::string& look) {
    std::vector<Table> tables;
    for (const std::string& table : Between(html, "<table class=\"" + look + "\">", "</table>")) {
        tables.emplace_back();
        for (const std::string& row : Between(table.substr(table.find("<tbody>")), "<tr", "</tr>")) {
            std::vector<std::string> cells;
            for (std::size_t at = row.find('>') + 1; at < row.size();) {
                const std::size_t begin = row.find('>', at) + 1;
                const std::size_t end = std::min(row.find("</td>", begin), row.find("</th>", begin));
                cells.push_back(Words_of(row.substr(begin, end - begin)));
                at = end + 5;
            }
            tables.back().push_back(cells);
        }
    }
    return tables;
}

// The first number of a text: that of "> 1.00" too.
double Number_in(const std::string& text) {
    return std::strtod(text.c_str() + std::min(text.find_first_of("-0123456789"), text.size()), nullptr);
}

// A printed number is the value as it is rounded.
void Expect_shown(const std::string& text, double value, int decimals, const std::string& what) {
    EXPECT_NEAR(Number_in(text), value, 0.5001 * std::pow(10.0, -decimals) + 1e-6 * std::fabs(value))
        << what << ": " << text;
}

class Sheet : public testing::Test {
protected:
    // A connection of a case with members that are high enough, and its sheet.
    void Calculate(int row, int variant, bool compression, bool connectors, const char* lang) {
        const CaseRow& one = case_table[static_cast<std::size_t>(row)];
        s_ = test::New_project(lang);
        test::Pick_variant(*s_, static_cast<std::int16_t>(one.type - '0'), variant);
        const auto* const number = std::find(bolt_numbers.begin(), bolt_numbers.end(), one.n_bolt);
        s_->Ant_index = static_cast<std::int16_t>(number - bolt_numbers.begin());
        s_->Bolt_ab = std::string(1, one.letter == ' ' ? 'a' : one.letter);
        s_->Bolt_index = 5; // M16x8.8
        s_->Avstand_index = 2;
        s_->P = compression ? 21.5F : -21.5F;
        s_->alp = 38.0F;
        s_->Standard = false;
        s_->Txt_b1 = "48";
        s_->Txt_h1 = "360";
        s_->Txt_b2 = "45";
        s_->Txt_h2 = "330";
        if (connectors) {
            test::Pick_connector(*s_, 2);
        }
        test::RecordingMessageBox box;
        ASSERT_EQ(Main_beregn(*s_, nullptr, box), PassEnd::normal);
        ASSERT_EQ(std::string{s_->Case_code.View()}, std::string{one.Case_code});
        Write();
    }

    void Write() {
        verdict_ = Verdict_of(*s_, true);
        html_ = Check_sheet(*s_, verdict_, now, "1.2.0");
    }

    [[nodiscard]] bool Twice() const { return s_->dob_1 || s_->dob_2; }

    void Expect_checks() const {
        const Table rows = Tables_of(html_, "checks").at(0);
        const ConnectionState& s = *s_;
        ASSERT_EQ(rows.size(), s.Med_bulldog ? 6U : 4U);
        Expect_shown(rows[0][2], std::fabs(s.P), 2, "force");
        Expect_shown(rows[0][3], s.Rd_bolt, 2, "bolts");
        if (s.Med_bulldog) {
            Expect_shown(rows[0][3].substr(rows[0][3].find('+') + 1), s.Rd_for, 2, "connectors");
        }
        Expect_shown(rows[0][4], s.uf, 2, "utilisation");
        Expect_shown(rows[1][2], s.P_sin, 2, "force across");
        Expect_shown(rows[1][3], s.F90_Rd, 2, "splitting capacity");
        Expect_shown(rows[1][4], s.Tverr_kontroll, 2, "splitting");
        const float sums[]{s.Sum_a, s.Sum_b, s.Sum_ca, s.Sum_cb};
        const float heights[]{s.h1, s.h2, s.h1, s.h2};
        for (std::size_t i = 2; i < rows.size(); ++i) {
            Expect_shown(rows[i][2], sums[i - 2], 0, "sum");
            Expect_shown(rows[i][3], heights[i - 2], 0, "height");
            Expect_shown(rows[i][4], static_cast<double>(sums[i - 2]) / heights[i - 2], 2, "ratio");
        }
        for (const auto& row : rows) {
            const bool holds = Number_in(row[4]) <= 1.0 && row[4].find("&gt;") == std::string::npos;
            EXPECT_EQ(row[5].starts_with("✓"), holds) << row[0];
        }
    }

    void Expect_modes() const {
        const Table rows = Tables_of(html_, "modes").at(0);
        const ConnectionState& s = *s_;
        const std::vector<float> single{s.Fv_a, s.Fv_b, s.Fv_c, s.Fv_d, s.Fv_e, s.Fv_f};
        const std::vector<float> twice{s.Fv_g, s.Fv_h, s.Fv_j, s.Fv_k};
        const std::vector<float>& forces = Twice() ? twice : single;
        ASSERT_EQ(rows.size(), forces.size());
        const double rope = std::min(s.Fax_bolt, s.Fax_skive) / 4.0;
        int governing = 0;
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const double johansen = Number_in(rows[i][2]) * 1000.0;
            const bool has_rope = rows[i][3] != "–";
            EXPECT_EQ(has_rope, i >= 2) << rows[i][0];
            Expect_shown(rows[i][4], forces[i] / 1000.0, 2, rows[i][0]);
            const double wanted = johansen + (has_rope ? std::min(johansen / 4.0, rope) : 0.0);
            EXPECT_NEAR(forces[i], wanted, 7.0) << rows[i][0]; // two decimals of a kN, and a quarter of them
            if (rows[i][0].find(s.Lang == "Eng" ? "governs" : "avgjørende") != std::string::npos) {
                EXPECT_EQ(forces[i], *std::min_element(forces.begin(), forces.end()));
                ++governing;
            }
        }
        EXPECT_EQ(governing, 1);
    }

    // The value at the end of each row of the three tables of formulas.
    void Expect_formulas() const {
        const std::vector<Table> tables = Tables_of(html_, "formulas");
        ASSERT_EQ(tables.size(), 3U);
        const ConnectionState& s = *s_;
        const double axial = std::min(s.Fax_bolt, s.Fax_skive);
        Expect_values(tables[0],
                      {s.k90, s.fh0k, s.fh1k, s.fh2k, s.beta, s.My_Rk, s.Fax_bolt, s.Fax_skive, axial / 4.0});
        std::vector<double> capacities;
        if (s.Has_row) {
            capacities.push_back(s.nef_b);
            if (s.Med_bulldog) {
                capacities.push_back(s.nef_f);
            }
        }
        capacities.push_back(s.Rd_bolt);
        if (s.Med_bulldog) {
            capacities.push_back(s.Fv_Rk);
            capacities.push_back(s.Rd_for);
        }
        capacities.push_back(s.uf);
        Expect_values(tables[1], capacities);
        Expect_values(tables[2], {s.F90_Rd, s.P_sin, s.Tverr_kontroll});
    }

    static void Expect_values(const Table& table, const std::vector<double>& wanted) {
        ASSERT_EQ(table.size(), wanted.size());
        for (std::size_t i = 0; i < wanted.size(); ++i) {
            Expect_shown(table[i].back(), wanted[i], 2, table[i].front());
        }
    }

    void Expect_distances(int row) const {
        const std::vector<Table> tables = Tables_of(html_, "distances");
        ASSERT_EQ(tables.size(), 2U);
        const CaseDistances& joint = case_distances[static_cast<std::size_t>(row)];
        Expect_member(tables[0], 'a', joint.a, a1, s_->Sum_a, s_->Sum_ca, s_->h1);
        Expect_member(tables[1], 'b', joint.b, b1, s_->Sum_b, s_->Sum_cb, s_->h2);
    }

    void Expect_member(const Table& table, char family, const MemberDistances& in, int first, float sum,
                       float connector_sum, float h) const {
        const auto count = static_cast<std::size_t>(in.across + in.along);
        ASSERT_EQ(table.size(), count + 1);
        for (std::size_t i = 0; i < count; ++i) {
            const std::vector<std::string>& cells = table[i];
            const DistanceFields& fields = Fields_of(static_cast<Distance>(first + static_cast<int>(i)));
            EXPECT_EQ(cells[0], family + std::to_string(i + 1));
            EXPECT_EQ(cells[2].front(), 'a') << cells[2];
            const float bolts = (*s_).*fields.S;
            if (bolts > 0.0F) {
                Expect_shown(cells[4], bolts, 0, cells[0]);
            }
            if (const float connectors = (*s_).*fields.C; s_->Med_bulldog && connectors > 0.0F) {
                Expect_shown(cells[6], connectors, 0, cells[0]);
            }
        }
        const std::vector<std::string>& last = table.back();
        Expect_shown(last[4], sum, 0, "sum");
        EXPECT_TRUE(last[3].starts_with(sum > h ? "&gt; h = " : "≤ h = ")) << last[3];
        if (s_->Med_bulldog) {
            Expect_shown(last[6], connector_sum, 0, "sum of connectors");
        }
    }

    std::unique_ptr<ConnectionState> s_;
    Verdict verdict_{};
    std::string html_;
};

TEST_F(Sheet, every_number_is_that_of_the_state_in_every_case) {
    for (int row = 0; row < case_count; ++row) {
        for (int variant = 1; variant <= 3; ++variant) {
            for (const bool compression : {false, true}) {
                for (const bool connectors : {false, true}) {
                    const char* const lang = (row + variant) % 2 == 0 ? "Eng" : "Nor";
                    SCOPED_TRACE(std::string{case_table[static_cast<std::size_t>(row)].Case_code} + " variant " +
                                 std::to_string(variant) + (compression ? " compression" : " tension") +
                                 (connectors ? " connectors" : ""));
                    Calculate(row, variant, compression, connectors, lang);
                    Expect_checks();
                    Expect_modes();
                    Expect_formulas();
                    Expect_distances(row);
                    EXPECT_EQ(html_.find("nan"), std::string::npos);
                    EXPECT_EQ(html_.find(">inf"), std::string::npos);
                }
            }
        }
    }
}

// By hand: case 1.1 in tension loads the end of the top chord and the upper edge of the bottom chord; compression the
// end of the bottom chord and its lower edge.
TEST_F(Sheet, tells_loaded_edges_and_ends) {
    const auto roles = [this](bool compression) {
        Calculate(Find_case("1.1. "), 1, compression, false, "Eng");
        std::string all;
        for (const Table& table : Tables_of(html_, "distances")) {
            for (std::size_t i = 0; i + 1 < table.size(); ++i) {
                all += table[i][0] + " " + table[i][1] + " " + table[i][2] + "\n";
            }
        }
        return all;
    };
    EXPECT_EQ(roles(false), "a1 unloaded edge a4,c\na2 unloaded edge a4,c\na3 loaded end a3,t\n"
                            "b1 loaded edge a4,t\nb2 unloaded edge a4,c\nb3 unloaded end a3,c\n");
    EXPECT_EQ(roles(true), "a1 unloaded edge a4,c\na2 unloaded edge a4,c\na3 unloaded end a3,c\n"
                           "b1 unloaded edge a4,c\nb2 loaded edge a4,t\nb3 loaded end a3,t\n");
}

// The sum of the connectors of case 2.2 ends before a3, as its table has it; that of 1.3.a lacks a number.
TEST_F(Sheet, says_what_a_sum_leaves_out) {
    Calculate(Find_case("2.2. "), 1, false, true, "Eng");
    EXPECT_NE(Tables_of(html_, "distances")[0].back()[5].find("without a3: add by hand"), std::string::npos);
    Calculate(Find_case("1.3.a"), 1, false, true, "Nor");
    EXPECT_NE(Tables_of(html_, "distances")[0].back()[5].find("uten a4: legg til for hånd"), std::string::npos);
    Calculate(Find_case("2.4. "), 1, false, true, "Eng");
    EXPECT_EQ(html_.find("add by hand"), std::string::npos);
}

TEST_F(Sheet, texts_of_the_user_are_escaped) {
    Calculate(0, 1, true, false, "Eng");
    s_->Prosjekt = "<script>alert(\"1\")</script> & more";
    s_->Id = "\"></title><b>";
    Write();
    EXPECT_EQ(html_.find("<script"), std::string::npos);
    EXPECT_EQ(html_.find("\"></title><b>"), std::string::npos);
    EXPECT_NE(html_.find("Project: &lt;script&gt;alert(&quot;1&quot;)&lt;/script&gt; &amp; more<br>"),
              std::string::npos);
}

TEST_F(Sheet, needs_no_network_and_no_script) {
    Calculate(0, 1, true, true, "Eng");
    std::string rest = html_;
    const std::string name_space = "xmlns=\"http://www.w3.org/2000/svg\"";
    for (std::size_t at = rest.find(name_space); at != std::string::npos; at = rest.find(name_space)) {
        rest.erase(at, name_space.size());
    }
    for (const char* word : {"http", "src=", "href", "@import", "<script", "url("}) {
        const std::size_t at = rest.find(word);
        EXPECT_TRUE(at == std::string::npos || rest.compare(at, 10, "url(#fails") == 0) << word;
    }
}

TEST_F(Sheet, has_two_diagrams_two_sketches_and_the_figure_of_splitting_each_with_a_title) {
    Calculate(6, 1, true, true, "Eng");
    EXPECT_EQ(Between(html_, "<svg ", "</svg>").size(), 5U);
    EXPECT_EQ(Between(html_, "<title>", "</title>").size(), 6U); // and that of the page
    for (const std::string& svg : Between(html_, "<svg ", "</svg>")) {
        EXPECT_NE(svg.find("role=\"img\""), std::string::npos);
        EXPECT_NE(svg.find("<title>"), std::string::npos);
    }
}

TEST_F(Sheet, the_verdict_stands_in_the_language) {
    Calculate(6, 1, true, false, "Nor");
    EXPECT_NE(html_.find("<html lang=\"nb\">"), std::string::npos);
    EXPECT_EQ(Tables_of(html_, "checks").at(0)[2][1], "tabell 8.4");
    EXPECT_NE(html_.find(">" + Verdict_text(verdict_, false) + "</p>"), std::string::npos);
    Calculate(6, 1, true, false, "Eng");
    EXPECT_NE(html_.find("<html lang=\"en\">"), std::string::npos);
    EXPECT_NE(html_.find(">" + Verdict_text(verdict_, true) + "</p>"), std::string::npos);
}

TEST_F(Sheet, a_splitting_check_that_was_not_made_is_told_and_has_no_numbers) {
    Calculate(0, 1, true, false, "Eng");
    html_ = Check_sheet(*s_, Verdict_of(*s_, false), now, "1.2.0");
    EXPECT_NE(html_.find("Not checked: h<sub>e</sub> has not been accepted."), std::string::npos);
    const Table rows = Tables_of(html_, "checks").at(0);
    EXPECT_EQ(rows[1][2] + rows[1][3] + rows[1][4] + rows[1][5], "–––not checked");
    EXPECT_EQ(Tables_of(html_, "formulas").size(), 2U);
}

} // namespace
} // namespace tarnvik
