#include "spacing/Presentation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

#include "calc/pass/Main_beregn.h"
#include "spacing/Catalogue.h"
#include "spacing/Plot_screen.h"
#include "spacing/Rules.h"
#include "tests/support/Calculation.h"
#include "tests/support/RecordingMessageBox.h"

namespace tarnvik {
namespace {

using test::New_project;
using test::RecordingMessageBox;
using Table = std::vector<PositionedText>;
using Lines = std::vector<std::string>;

const std::string dashes = "-----------------------------------------------------";

// A text as "x y text", with its colour where it is bold.
std::string Line(const PositionedText& text) {
    std::string line{Shortest(text.x).View()};
    line += " ";
    line += Shortest(text.y).View();
    line += " " + text.text;
    if (text.bold || text.fore != 0) {
        line += text.bold ? " bold " : " plain ";
        line += std::to_string(text.fore);
    }
    return line;
}

Lines Lines_of(const Table& table) {
    Lines lines;
    std::transform(table.begin(), table.end(), std::back_inserter(lines), Line);
    return lines;
}

Lines operator+(Lines one, const Lines& other) {
    one.insert(one.end(), other.begin(), other.end());
    return one;
}

Lines Row(const std::string& y, const std::string& label, const std::string& rule, const std::string& number) {
    return {"2 " + y + " " + label, "25 " + y + " =", "31 " + y + " " + rule, "85 " + y + " =",
            "89 " + y + " " + number};
}

Lines Rule(const std::string& y) {
    return {"2 " + y + " " + dashes};
}

constexpr const char* red = " bold 255";
constexpr const char* green = " bold 32768";

Lines Sum(const std::string& y, const std::string& label, const std::string& number, const char* colour,
          const std::string& check, const std::string& member_y, const std::string& member, const std::string& line_y) {
    return Lines{"2 " + y + " " + label, "48 " + y + " =", "58 " + y + " " + number + colour, "68 " + y + " " + check,
                 "78 " + member_y + " " + member} +
           Rule(line_y);
}

// The connection of a case in a new project.
std::unique_ptr<ConnectionState> Of_case(const CaseRow& row, std::string_view lang = "Eng") {
    auto s = New_project(lang);
    s->Con_type = static_cast<std::int16_t>(row.type - '0');
    s->Ant_index = static_cast<std::int16_t>(row.n_bolt == 6 ? 4 : row.n_bolt - 1);
    s->Bolt_ab = std::string_view{&row.letter, 1};
    return s;
}

Screen Pass(ConnectionState& s) {
    Screen screen;
    RecordingMessageBox box;
    Run_pass(s, &screen, box);
    return screen;
}

// A record in which every field tells where it comes from: bolts 11 to 16 and 21 to 26, connectors 31 to 36 and 41
// to 46.
ConnectionValues Marked() {
    ConnectionValues s;
    s.Lang = "Eng";
    // clang-format off
    static constexpr std::array<std::string_view, 12> lbl{"a1", "a2", "a3", "a4", "a5", "a6", "b1", "b2", "b3", "b4", "b5", "b6"};
    static constexpr std::array<std::string_view, 12> bolt{"Sa1", "Sa2", "Sa3", "Sa4", "Sa5", "Sa6", "Sb1", "Sb2", "Sb3", "Sb4", "Sb5", "Sb6"};
    static constexpr std::array<std::string_view, 12> con{"Ca1", "Ca2", "Ca3", "Ca4", "Ca5", "Ca6", "Cb1", "Cb2", "Cb3", "Cb4", "Cb5", "Cb6"};
    static constexpr std::array<float, 12> S{11, 12, 13, 14, 15, 16, 21, 22, 23, 24, 25, 26};
    static constexpr std::array<float, 12> C{31, 32, 33, 34, 35, 36, 41, 42, 43, 44, 45, 46};
    // clang-format on
    for (std::size_t i = 0; i < 12; ++i) {
        const DistanceFields& fields = Fields_of(static_cast<Distance>(i));
        s.*fields.lbl = lbl[i];
        s.*fields.S_txt = bolt[i];
        s.*fields.S = S[i];
        s.*fields.C_txt = con[i];
        s.*fields.C = C[i];
    }
    s.Sum_a_txt = "sum a";
    s.Sum_b_txt = "sum b";
    return s;
}

// The texts of the first column, from the top, with "line" for a line; the line under a sum goes with the sum. Every
// item has to stand one row height below the last.
std::string Order(const Table& table, double h) {
    std::string order;
    double y = 99.0;
    for (const PositionedText& text : table) {
        if (text.x != 2.0F) {
            continue;
        }
        EXPECT_NEAR(text.y, y, 1e-5) << text.text; // a float of at most 99 is within 4e-6
        y -= h;
        const bool line = text.text == dashes;
        if (line && order.size() >= 5 && order.compare(order.size() - 5, 4, "sum ") == 0) {
            order += " "; // the sum has got its line
            continue;
        }
        if (!order.empty()) {
            order += order.back() == ' ' ? "" : " ";
        }
        order += line ? "line" : text.text;
    }
    return order;
}

struct CaseOrder {
    std::string_view Case_code;
    double h;
    std::string_view order;
};

// clang-format off
constexpr CaseOrder orders[] = {
    {"1.1. ", 5.3, "a1 a2 sum a a3 line b1 b2 sum b b3 line"},
    {"1.2.a", 5.0, "a1 a2 a3 sum a a4 line b1 b2 sum b b3 line b4 line"},
    {"1.2.b", 5.3, "a1 a2 sum a a3 line a4 line b1 b2 b3 sum b b4 line"},
    {"1.3.a", 5.0, "a1 a2 a3 a4 sum a a5 line b1 b2 sum b b3 b4 line b5 line"},
    {"1.3.b", 5.0, "a1 a2 sum a a3 a4 line a5 line b1 b2 b3 b4 sum b b5 line"},
    {"1.4. ", 5.0, "a1 a2 a3 sum a a4 line a5 line b1 b2 b3 sum b b4 line b5 line"},
    {"1.6. ", 5.0, "a1 a2 a3 a4 sum a a5 line a6 line b1 b2 b3 sum b b4 b5 line b6 line"},
    {"2.1. ", 5.0, "a1 a2 sum a b1 b2 sum b b3"},
    {"2.2. ", 5.0, "a1 a2 a3 sum a b1 b2 sum b b3 line b4"},
    {"2.3. ", 5.0, "a1 a2 a3 a4 sum a b1 b2 sum b b3 b4 line b5"},
    {"2.4. ", 5.0, "a1 a2 a3 sum a a4 line b1 b2 b3 sum b b4 line b5"},
    {"2.6. ", 5.0, "a1 a2 a3 a4 sum a a5 line b1 b2 b3 sum b b4 b5 line b6"},
    {"3.1. ", 5.3, "a1 a2 sum a b1 b2 sum b b3 line"},
    {"3.2.a", 5.0, "a1 a2 sum a a3 line b1 b2 b3 sum b b4 line"},
    {"3.2.b", 5.0, "a1 a2 a3 sum a b1 b2 sum b b3 line b4 line"},
    {"3.3.a", 5.0, "a1 a2 sum a a3 a4 line b1 b2 b3 b4 sum b b5 line"},
    {"3.3.b", 5.0, "a1 a2 a3 a4 sum a b1 b2 sum b b3 b4 line b5 line"},
    {"3.4. ", 5.0, "a1 a2 a3 sum a a4 line b1 b2 b3 sum b b4 line b5 line"},
    {"3.6. ", 5.0, "a1 a2 a3 a4 sum a a5 line b1 b2 b3 sum b b4 b5 line b6 line"},
    {"4.1. ", 5.0, "a1 a2 sum a a3 line b1 b2 sum b b3 line"},
    {"4.2.a", 5.0, "a1 a2 sum a a3 line b1 b2 b3 sum b b4 line"},
    {"4.2.b", 5.0, "a1 a2 a3 sum a a4 line b1 b2 sum b b3 line"},
    {"4.3.a", 5.0, "a1 a2 sum a a3 line b1 b2 b3 b4 sum b b5 line"},
    {"4.3.b", 5.0, "a1 a2 a3 a4 sum a a5 line b1 b2 sum b b3 line"},
    {"4.4. ", 5.0, "a1 a2 a3 sum a a4 line b1 b2 b3 sum b b4 line"},
    {"4.6.a", 5.0, "a1 a2 a3 sum a a4 line b1 b2 b3 b4 sum b b5 line"},
    {"4.6.b", 5.0, "a1 a2 a3 a4 sum a a5 line b1 b2 b3 sum b b4 line"},
    {"5.1. ", 5.0, "a1 a2 sum a a3 line b1 b2 sum b b3 line"},
    {"5.2.a", 5.0, "a1 a2 sum a a3 line b1 b2 b3 sum b b4 line"},
    {"5.2.b", 5.0, "a1 a2 a3 sum a a4 line b1 b2 sum b b3 line"},
    {"5.3.a", 5.0, "a1 a2 sum a a4 line b1 b2 b3 b4 sum b b5 line"},
    {"5.3.b", 5.0, "a1 a2 a3 a4 sum a a5 line b1 b2 sum b b3 line"},
    {"5.4. ", 5.0, "a1 a2 a3 sum a a4 line b1 b2 b3 sum b b4 line"},
    {"5.6.a", 5.0, "a1 a2 a3 sum a a4 line b1 b2 b3 b4 sum b b5 line"},
    {"5.6.b", 5.0, "a1 a2 a3 a4 sum a a5 line b1 b2 b3 sum b b4 line"},
};
// clang-format on
static_assert(std::size(orders) == case_count);

TEST(Presentation, prints_the_rows_of_every_case_in_order_in_both_tables) {
    const ConnectionValues s = Marked();
    for (const CaseOrder& wanted : orders) {
        SCOPED_TRACE(wanted.Case_code);
        const int row = Find_case(wanted.Case_code);
        ASSERT_GE(row, 0);
        Screen screen;
        Print_case(s, row, screen);
        EXPECT_EQ(Order(screen.Pic_av_bolter_dif, wanted.h), wanted.order);
        EXPECT_EQ(Order(screen.Pic_av_bulldog_dif, wanted.h), wanted.order);
    }
}

TEST(Presentation, takes_rules_and_numbers_of_the_distance_except_in_three_rows) {
    const ConnectionValues s = Marked();
    for (const CaseOrder& wanted : orders) {
        Screen screen;
        Print_case(s, Find_case(wanted.Case_code), screen);
        for (const bool connectors : {false, true}) {
            std::string label;
            std::string rule;
            for (const PositionedText& text : connectors ? screen.Pic_av_bulldog_dif : screen.Pic_av_bolter_dif) {
                if (text.x == 2.0F) {
                    label = text.text;
                } else if (text.x == 31.0F) {
                    rule = text.text;
                } else if (text.x == 89.0F) {
                    SCOPED_TRACE(std::string{wanted.Case_code} + " " + label);
                    const char family = label[0];
                    const char place = label[1];
                    std::string number = "  ";
                    number += connectors ? (family == 'a' ? '3' : '4') : (family == 'a' ? '1' : '2');
                    number += place;
                    if (connectors && wanted.Case_code == "1.6. " && label == "b6") {
                        number = "  36"; // Ca6
                    }
                    if (connectors && wanted.Case_code == "2.3. " && (label == "a2" || label == "a3")) {
                        number = "  34"; // Ca4
                    }
                    EXPECT_EQ(rule, (connectors ? "C" : "S") + label);
                    EXPECT_EQ(text.text, number);
                }
            }
        }
    }
}

TEST(Presentation, row_of_5_3_a_names_a_distance_that_the_case_does_not_have) {
    const auto s = Of_case(case_table.at(static_cast<std::size_t>(Find_case("5.3.a"))));
    const Screen screen = Pass(*s);
    EXPECT_GT(s->Sa3, 0.0F); // in the record for the report
    for (const Table& table : {screen.Pic_av_bolter_dif, screen.Pic_av_bulldog_dif}) {
        const Lines lines = Lines_of(table);
        const Lines row = Row("79", "", "", "  00"); // below a1, a2, the sum and its line
        EXPECT_NE(std::search(lines.begin(), lines.end(), row.begin(), row.end()), lines.end());
        EXPECT_TRUE(std::none_of(table.begin(), table.end(), [](const auto& text) { return text.text == "a3"; }));
    }
}

TEST(Presentation, tables_of_a_new_project) {
    // Two M20 along the grain, arrangement b, 25 degrees, compression, 34 x 95 and 36 x 73, D62.
    const auto s = New_project("Eng");
    const Screen screen = Pass(*s);
    const Lines bolts = Row("99", "a1", "3 x d", "  60") + Row("93.7", "a2", "3 x d", "  60") +
                        Sum("88.4", "a1+a2", "120", red, "  > h", "86.4", "top chord", "83.1") +
                        Lines{"1 10  Note:  b2 is not applicable for small angles"} +
                        Row("77.8", "a3", "5 x d", "100") + Rule("72.5") + Row("67.2", "a4", "4 x d", "  80") +
                        Rule("61.9") + Row("56.6", "b1", "3 x d", "  60") + Row("51.3", "b2", "4 x d", "  80") +
                        Row("46", "b3", "3 x d", "  60") +
                        Sum("40.7", "b1 + b2 +b3", "200", red, "  > h", "38.58", "bot. chord", "35.4") +
                        Row("30.1", "b4", "7 x d", "140") + Rule("24.8");
    EXPECT_EQ(Lines_of(screen.Pic_av_bolter_dif), bolts);
    const Lines connectors = Row("99", "a1", "D x 0.6", "  37") + Row("93.7", "a2", "D x 0.6", "  37") +
                             Sum("88.4", "a1+a2", "74", green, "  < h", "86.4", "top chord", "83.1") +
                             Row("77.8", "a3", "5 x d", "100") + Rule("72.5") + Row("67.2", "a4", "D x 1.2", "  74") +
                             Rule("61.9") + Row("56.6", "b1", "D x 0.6", "  37") +
                             Row("51.3", "b2", "D x 1.2", "  74") + Row("46", "b3", "Dx(0.6+0.2xSin alpha)", "  42") +
                             Sum("40.7", "b1 + b2 +b3", "154", red, "  > h", "38.58", "bot. chord", "35.4") +
                             Row("30.1", "b4", "D x 2", "124") + Rule("24.8");
    EXPECT_EQ(Lines_of(screen.Pic_av_bulldog_dif), connectors);
}

TEST(Presentation, numbers_are_whole_and_judged_before_rounding) {
    struct Number {
        const char* name;
        float value;
        const char* text;
    };
    // clang-format off
    const Number numbers[] = {
        {"not written",        0.0F,       "  00"},
        {"one digit",          7.0F,       "  07"},
        {"half up",            37.5F,      "  38"},
        {"below a half",       37.4999F,   "  37"},
        {"two digits",         99.4F,      "  99"},
        {"rounded to three",   99.6F,      "  100"},
        {"just below 100",     99.999992F, "  100"},
        {"100 itself",         100.0F,     "100"},
        {"three digits",       140.0F,     "140"},
        {"four digits",        1234.5F,    "1235"},
    };
    // clang-format on
    for (const Number& number : numbers) {
        SCOPED_TRACE(number.name);
        Screen screen;
        Print_row("a1", "bolts", number.value, "connectors", 55.0F, 99.0, screen);
        EXPECT_EQ(Lines_of(screen.Pic_av_bolter_dif), Row("99", "a1", "bolts", number.text));
        EXPECT_EQ(Lines_of(screen.Pic_av_bulldog_dif), Row("99", "a1", "connectors", "  55"));
    }
}

TEST(Presentation, sums_name_the_member_and_are_red_above_its_height) {
    using Printer = void (*)(const ConnectionValues&, double, double, Screen&);
    struct Case {
        const char* name;
        Printer print;
        const char* lang;
        const char* label;
        const char* member_y; // at y = 89 and h = 5
        const char* member;
        bool family_a;
    };
    // clang-format off
    const Case cases[] = {
        {"a1 English",   Print_sum_a1, "Eng", "Sum a", "87", "top chord",  true},
        {"a1 Norwegian", Print_sum_a1, "Nor", "Sum a", "87", "overgurt",   true},
        {"b1 English",   Print_sum_b1, "Eng", "Sum b", "87", "bot. chord", false},
        {"b1 Norwegian", Print_sum_b1, "Nor", "Sum b", "87", "undergurt",  false},
        {"a2 English",   Print_sum_a2, "Eng", "Sum a", "87", "beam",       true},
        {"a2 Norwegian", Print_sum_a2, "Nor", "Sum a", "87", "bjelke",     true},
        {"b2 English",   Print_sum_b2, "Eng", "Sum b", "87", "column",     false},
        {"b2 Norwegian", Print_sum_b2, "Nor", "Sum b", "87", "søyle",      false},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        ConnectionValues s;
        s.Lang = c.lang;
        s.Sum_a_txt = "Sum a";
        s.Sum_b_txt = "Sum b";
        s.h1 = c.family_a ? 120.0F : 1.0F;
        s.h2 = c.family_a ? 1.0F : 120.0F;
        // The bolts' sum above the height by the least step, the connectors' sum equal to it.
        (c.family_a ? s.Sum_a : s.Sum_b) = std::nextafter(120.0F, 200.0F);
        (c.family_a ? s.Sum_ca : s.Sum_cb) = 120.0F;
        Screen screen;
        c.print(s, 89.0, 5.0, screen);
        EXPECT_EQ(Lines_of(screen.Pic_av_bolter_dif),
                  Sum("89", c.label, "120", red, "  > h", c.member_y, c.member, "84"));
        EXPECT_EQ(Lines_of(screen.Pic_av_bulldog_dif),
                  Sum("89", c.label, "120", green, "  < h", c.member_y, c.member, "84"));
    }
}

TEST(Presentation, member_stands_by_the_row_height_except_in_the_first_printer) {
    ConnectionValues s;
    s.Lang = "Eng";
    const auto member_y = [&s](auto print) {
        Screen screen;
        print(s, 88.4, 5.3, screen);
        return screen.Pic_av_bolter_dif.at(4).y;
    };
    EXPECT_FLOAT_EQ(member_y(Print_sum_a1), 86.4F);
    EXPECT_FLOAT_EQ(member_y(Print_sum_b1), 86.28F);
    EXPECT_FLOAT_EQ(member_y(Print_sum_a2), 86.28F);
    EXPECT_FLOAT_EQ(member_y(Print_sum_b2), 86.28F);
}

TEST(Presentation, chords_in_types_1_and_3_beam_and_column_in_the_others) {
    ConnectionValues s = Marked();
    for (const CaseRow& row : case_table) {
        SCOPED_TRACE(row.Case_code);
        Screen screen;
        Print_case(s, Find_case(row.Case_code), screen);
        for (const Table& table : {screen.Pic_av_bolter_dif, screen.Pic_av_bulldog_dif}) {
            Lines members;
            for (const PositionedText& text : table) {
                if (text.x == 78.0F) {
                    members.push_back(text.text);
                }
            }
            const bool chords = row.type == '1' || row.type == '3';
            EXPECT_EQ(members, (chords ? Lines{"top chord", "bot. chord"} : Lines{"beam", "column"}));
        }
    }
}

TEST(Presentation, member_has_no_name_in_a_third_language) {
    ConnectionValues s = Marked();
    s.Lang = "Swe";
    Screen screen;
    Print_case(s, Find_case("1.2.a"), screen);
    const Table& table = screen.Pic_av_bolter_dif;
    EXPECT_TRUE(std::none_of(table.begin(), table.end(), [](const auto& text) { return text.x == 78.0F; }));
    EXPECT_TRUE(std::any_of(table.begin(), table.end(), [](const auto& text) {
        return text.text == "Note: Verdien av a2 gjelder ikke for små vinkler ";
    }));
}

TEST(Presentation, line_has_53_dashes) {
    Screen screen;
    Print_line(72.5, screen);
    EXPECT_EQ(dashes.size(), 53U);
    EXPECT_EQ(Lines_of(screen.Pic_av_bolter_dif), Rule("72.5"));
    EXPECT_EQ(Lines_of(screen.Pic_av_bulldog_dif), Rule("72.5"));
}

TEST(Presentation, ten_cases_have_a_note_at_a_fixed_place_whatever_the_angle) {
    struct Texts {
        const char *english, *norwegian;
    };
    // clang-format off
    const Texts a2{" Note:  a2 is not applicable for small angles",       "Note: Verdien av a2 gjelder ikke for små vinkler "};
    const Texts a2_a3{" Note:  a2,a3 is not applicable for small angles", "Note: Verdien av a2,a3 gjelder ikke for små vinkler "};
    const Texts b2{" Note:  b2 is not applicable for small angles",       "Note: Verdien av b2 gjelder ikke for små vinkler "};
    const Texts b2_b3{" Note:  b2,b3 is not applicable for small angles", "Note: Verdien av b2,b3 gjelder ikke for små vinkler "};
    const std::map<std::string_view, Texts> notes{
        {"1.2.a", a2},    {"2.2. ", a2},    {"3.2.b", a2},
        {"1.3.a", a2_a3}, {"2.3. ", a2_a3}, {"3.3.b", a2_a3},
        {"1.2.b", b2},    {"3.2.a", b2},
        {"1.3.b", b2_b3}, {"3.3.a", b2_b3},
    };
    // clang-format on
    for (const CaseRow& row : case_table) {
        for (const char* lang : {"Eng", "Nor"}) {
            for (const float alp : {0.0F, 25.0F, 90.0F}) {
                SCOPED_TRACE(std::string{row.Case_code} + " " + lang);
                const auto s = Of_case(row, lang);
                s->alp = alp;
                const Screen screen = Pass(*s);
                Lines shown;
                for (const PositionedText& text : screen.Pic_av_bolter_dif) {
                    if (text.text.find("Note:") != std::string::npos) {
                        shown.push_back(Line(text));
                    }
                }
                Lines wanted;
                if (const auto note = notes.find(row.Case_code); note != notes.end()) {
                    wanted.push_back("1 10 " +
                                     std::string{*lang == 'E' ? note->second.english : note->second.norwegian});
                }
                EXPECT_EQ(shown, wanted);
                EXPECT_TRUE(std::none_of(screen.Pic_av_bulldog_dif.begin(), screen.Pic_av_bulldog_dif.end(),
                                         [](const auto& text) { return text.y == 10.0F && text.x == 1.0F; }));
            }
        }
    }
}

TEST(Presentation, nothing_stands_outside_its_area) {
    for (const CaseRow& row : case_table) {
        Screen screen;
        Print_case(Marked(), Find_case(row.Case_code), screen);
        for (const PositionedText& text : screen.Pic_av_bolter_dif) {
            EXPECT_GE(text.y, 4.0F) << row.Case_code << " " << text.text;
            EXPECT_LE(text.y, 99.0F);
        }
    }
}

TEST(Presentation, tables_are_filled_with_bolts_only_too) {
    const auto s = New_project();
    s->Kun_bolt = true;
    s->Med_bulldog = false;
    EXPECT_FALSE(Pass(*s).Pic_av_bulldog_dif.empty());
}

class SecondPass : public testing::Test {
protected:
    void Next() { end = Run_pass(*s, &screen, box).end; }

    std::unique_ptr<ConnectionState> s = New_project();
    Screen screen;
    RecordingMessageBox box;
    PassEnd end{};
};

TEST_F(SecondPass, starts_from_empty_tables) {
    Next();
    const Lines bolts = Lines_of(screen.Pic_av_bolter_dif);
    const Lines connectors = Lines_of(screen.Pic_av_bulldog_dif);
    Next();
    EXPECT_EQ(Lines_of(screen.Pic_av_bolter_dif), bolts);
    EXPECT_EQ(Lines_of(screen.Pic_av_bulldog_dif), connectors);
}

TEST_F(SecondPass, stopped_at_a_refused_connector_leaves_tables_and_pictures) {
    Next();
    const Lines bolts = Lines_of(screen.Pic_av_bolter_dif);
    const Lines connectors = Lines_of(screen.Pic_av_bulldog_dif);
    s->Con_type = 4;
    s->Lang = "Nor";
    s->P = -5.0F;
    test::Pick_connector(*s, 0); // D50 takes no M20
    Next();
    EXPECT_EQ(end, PassEnd::connector_refused);
    EXPECT_EQ(Lines_of(screen.Pic_av_bolter_dif), bolts);
    EXPECT_EQ(Lines_of(screen.Pic_av_bulldog_dif), connectors);
    EXPECT_EQ(screen.Pic_forbindelse, "Frm_tarn_vik_forbindelser/Pic_1_1");
    EXPECT_EQ(screen.Pic_av_bolter, "Frm_tarn_vik_bolter_1_trykk/Pic1_2_b");
    EXPECT_EQ(screen.Pic_av_bulldog, "Frm_tarn_vik_bolter_1_trykk/Pic1_2_b");
}

TEST_F(SecondPass, stopped_at_a_zero_section_leaves_tables_and_pictures) {
    Next();
    const Lines bolts = Lines_of(screen.Pic_av_bolter_dif);
    s->Con_type = 4;
    s->Standard = false;
    s->Txt_h2 = "0";
    Next();
    EXPECT_EQ(end, PassEnd::zero_section);
    EXPECT_EQ(Lines_of(screen.Pic_av_bolter_dif), bolts);
    EXPECT_EQ(screen.Pic_forbindelse, "Frm_tarn_vik_forbindelser/Pic_1_1");
    EXPECT_EQ(screen.Pic_av_bolter, "Frm_tarn_vik_bolter_1_trykk/Pic1_2_b");
}

TEST_F(SecondPass, with_five_bolts_empties_the_tables_and_leaves_the_sketch) {
    Next();
    s->Ant_index = 9; // leaves n_bolt
    s->n_bolt = 5;
    s->P = -10.0F;
    Next();
    EXPECT_TRUE(screen.Pic_av_bolter_dif.empty());
    EXPECT_TRUE(screen.Pic_av_bulldog_dif.empty());
    EXPECT_EQ(screen.Pic_av_bolter, "Frm_tarn_vik_bolter_1_trykk/Pic1_2_b");
}

TEST_F(SecondPass, that_faults_later_shows_the_new_case) {
    Next();
    s->Con_type = 2;
    s->alp = 90.0F;
    s->gm_T = 0.0F; // the design capacity divides by it
    Next();
    EXPECT_EQ(end, PassEnd::fault);
    EXPECT_EQ(screen.Pic_av_bolter, "Frm_tarn_vik_bolter_2_trykk/Pic2_2");
    EXPECT_EQ(screen.Pic_av_bolter_dif.front().text, "a1");
}

TEST(Plot_screen, empties_the_table_of_the_bolts_itself_and_leaves_the_other_to_the_pass) {
    const auto s = New_project();
    Screen screen = Pass(*s);
    const std::size_t bolts = screen.Pic_av_bolter_dif.size();
    const std::size_t connectors = screen.Pic_av_bulldog_dif.size();
    Plot_screen(*s, ScreenWriter{&screen});
    EXPECT_EQ(screen.Pic_av_bolter_dif.size(), bolts);
    EXPECT_EQ(screen.Pic_av_bulldog_dif.size(), 2 * connectors);
    Clear_tables(ScreenWriter{&screen});
    EXPECT_TRUE(screen.Pic_av_bolter_dif.empty());
    EXPECT_TRUE(screen.Pic_av_bulldog_dif.empty());
}

TEST(Plot_screen, without_a_screen_computes_the_same_record) {
    const auto with = New_project();
    const auto without = New_project();
    Pass(*with);
    RecordingMessageBox box;
    Run_pass(*without, nullptr, box);
    EXPECT_EQ(without->Sa1, with->Sa1);
    EXPECT_EQ(without->Sum_cb, with->Sum_cb);
    EXPECT_EQ(without->Sb4_txt, with->Sb4_txt);
    EXPECT_EQ(without->Sb4, 140.0F);
}

} // namespace
} // namespace tarnvik
