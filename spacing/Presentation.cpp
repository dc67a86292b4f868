#include "spacing/Presentation.h"

#include <array>

#include "spacing/Catalogue.h"
#include "spacing/Rules.h"

namespace tarnvik {

namespace {

// One printed item of a case.
struct Item {
    enum Kind : std::uint8_t { end, row, sum_a, sum_b, line };

    constexpr Item() = default;
    constexpr Item(Kind of_kind)
        : kind(of_kind) {}                        // NOLINT(google-explicit-constructor): the table reads like the rows
    constexpr Item(Distance of) : Item(of, of) {} // NOLINT(google-explicit-constructor)
    constexpr Item(Distance of, Distance number) : kind(row), distance(of), con_number(number) {}

    Kind kind{end};
    Distance distance{a1};   // label, rules and bolt number
    Distance con_number{a1}; // connector number
};

constexpr Item::Kind sum_a = Item::sum_a;
constexpr Item::Kind sum_b = Item::sum_b;
constexpr Item::Kind line = Item::line;

// Three rows print the connector number of another distance beside their own texts. They are meant so.
constexpr Item b6_Ca6{b6, a6};
constexpr Item a2_Ca4{a2, a4};
constexpr Item a3_Ca4{a3, a4};

enum Note : std::uint8_t { no_note, note_a2, note_a2_a3, note_b2, note_b2_b3 };

struct CasePrint {
    std::string_view Case_code;
    double h; // row height
    Note note;
    std::array<Item, 18> printed;
};

// Every item takes a row of its own, a sum two: itself and its line. The tables of type 2 end without a line. The row
// a4 of "5.3.a" is a distance that the case does not have: it shows no label, no rules and zeros, and a3 is not shown.
// clang-format off
constexpr std::array<CasePrint, case_count> case_prints{{
    // case   h    note        printed, in this order
    {"1.1. ", 5.3, no_note,    {a1, a2, sum_a, a3, line, b1, b2, sum_b, b3, line}},
    {"1.2.a", 5.0, note_a2,    {a1, a2, a3, sum_a, a4, line, b1, b2, sum_b, b3, line, b4, line}},
    {"1.2.b", 5.3, note_b2,    {a1, a2, sum_a, a3, line, a4, line, b1, b2, b3, sum_b, b4, line}},
    {"1.3.a", 5.0, note_a2_a3, {a1, a2, a3, a4, sum_a, a5, line, b1, b2, sum_b, b3, b4, line, b5, line}},
    {"1.3.b", 5.0, note_b2_b3, {a1, a2, sum_a, a3, a4, line, a5, line, b1, b2, b3, b4, sum_b, b5, line}},
    {"1.4. ", 5.0, no_note,    {a1, a2, a3, sum_a, a4, line, a5, line, b1, b2, b3, sum_b, b4, line, b5, line}},
    {"1.6. ", 5.0, no_note,    {a1, a2, a3, a4, sum_a, a5, line, a6, line, b1, b2, b3, sum_b, b4, b5, line, b6_Ca6, line}},
    {"2.1. ", 5.0, no_note,    {a1, a2, sum_a, b1, b2, sum_b, b3}},
    {"2.2. ", 5.0, note_a2,    {a1, a2, a3, sum_a, b1, b2, sum_b, b3, line, b4}},
    {"2.3. ", 5.0, note_a2_a3, {a1, a2_Ca4, a3_Ca4, a4, sum_a, b1, b2, sum_b, b3, b4, line, b5}},
    {"2.4. ", 5.0, no_note,    {a1, a2, a3, sum_a, a4, line, b1, b2, b3, sum_b, b4, line, b5}},
    {"2.6. ", 5.0, no_note,    {a1, a2, a3, a4, sum_a, a5, line, b1, b2, b3, sum_b, b4, b5, line, b6}},
    {"3.1. ", 5.3, no_note,    {a1, a2, sum_a, b1, b2, sum_b, b3, line}},
    {"3.2.a", 5.0, note_b2,    {a1, a2, sum_a, a3, line, b1, b2, b3, sum_b, b4, line}},
    {"3.2.b", 5.0, note_a2,    {a1, a2, a3, sum_a, b1, b2, sum_b, b3, line, b4, line}},
    {"3.3.a", 5.0, note_b2_b3, {a1, a2, sum_a, a3, a4, line, b1, b2, b3, b4, sum_b, b5, line}},
    {"3.3.b", 5.0, note_a2_a3, {a1, a2, a3, a4, sum_a, b1, b2, sum_b, b3, b4, line, b5, line}},
    {"3.4. ", 5.0, no_note,    {a1, a2, a3, sum_a, a4, line, b1, b2, b3, sum_b, b4, line, b5, line}},
    {"3.6. ", 5.0, no_note,    {a1, a2, a3, a4, sum_a, a5, line, b1, b2, b3, sum_b, b4, b5, line, b6, line}},
    {"4.1. ", 5.0, no_note,    {a1, a2, sum_a, a3, line, b1, b2, sum_b, b3, line}},
    {"4.2.a", 5.0, no_note,    {a1, a2, sum_a, a3, line, b1, b2, b3, sum_b, b4, line}},
    {"4.2.b", 5.0, no_note,    {a1, a2, a3, sum_a, a4, line, b1, b2, sum_b, b3, line}},
    {"4.3.a", 5.0, no_note,    {a1, a2, sum_a, a3, line, b1, b2, b3, b4, sum_b, b5, line}},
    {"4.3.b", 5.0, no_note,    {a1, a2, a3, a4, sum_a, a5, line, b1, b2, sum_b, b3, line}},
    {"4.4. ", 5.0, no_note,    {a1, a2, a3, sum_a, a4, line, b1, b2, b3, sum_b, b4, line}},
    {"4.6.a", 5.0, no_note,    {a1, a2, a3, sum_a, a4, line, b1, b2, b3, b4, sum_b, b5, line}},
    {"4.6.b", 5.0, no_note,    {a1, a2, a3, a4, sum_a, a5, line, b1, b2, b3, sum_b, b4, line}},
    {"5.1. ", 5.0, no_note,    {a1, a2, sum_a, a3, line, b1, b2, sum_b, b3, line}},
    {"5.2.a", 5.0, no_note,    {a1, a2, sum_a, a3, line, b1, b2, b3, sum_b, b4, line}},
    {"5.2.b", 5.0, no_note,    {a1, a2, a3, sum_a, a4, line, b1, b2, sum_b, b3, line}},
    {"5.3.a", 5.0, no_note,    {a1, a2, sum_a, a4, line, b1, b2, b3, b4, sum_b, b5, line}},
    {"5.3.b", 5.0, no_note,    {a1, a2, a3, a4, sum_a, a5, line, b1, b2, sum_b, b3, line}},
    {"5.4. ", 5.0, no_note,    {a1, a2, a3, sum_a, a4, line, b1, b2, b3, sum_b, b4, line}},
    {"5.6.a", 5.0, no_note,    {a1, a2, a3, sum_a, a4, line, b1, b2, b3, b4, sum_b, b5, line}},
    {"5.6.b", 5.0, no_note,    {a1, a2, a3, a4, sum_a, a5, line, b1, b2, b3, sum_b, b4, line}},
}};
// clang-format on

constexpr bool Same_order() {
    for (std::size_t i = 0; i < case_prints.size(); ++i) {
        if (case_prints[i].Case_code != case_table[i].Case_code || case_prints[i].printed[0].kind == Item::end) {
            return false;
        }
    }
    return true;
}
static_assert(Same_order());

struct NoteTexts {
    Note note;
    std::string_view english, norwegian;
};

// The limit of a distance across the grain does not hold for small angles. The note stands at a fixed height, in the
// table of the bolts alone, at every angle.
// clang-format off
constexpr std::array<NoteTexts, 5> note_texts{{
    {no_note,    "",                                                 ""},
    {note_a2,    " Note:  a2 is not applicable for small angles",    "Note: Verdien av a2 gjelder ikke for små vinkler "},
    {note_a2_a3, " Note:  a2,a3 is not applicable for small angles", "Note: Verdien av a2,a3 gjelder ikke for små vinkler "},
    {note_b2,    " Note:  b2 is not applicable for small angles",    "Note: Verdien av b2 gjelder ikke for små vinkler "},
    {note_b2_b3, " Note:  b2,b3 is not applicable for small angles", "Note: Verdien av b2,b3 gjelder ikke for små vinkler "},
}};
// clang-format on
static_assert(note_texts[note_b2_b3].note == note_b2_b3);

constexpr double first_row_y = 99.0;
constexpr double note_x = 1.0;
constexpr double note_y = 10.0;

using Table = std::vector<PositionedText>;

void Print(Table& table, double x, double y, std::string_view text, bool bold = false,
           std::uint32_t fore = colour_black) {
    PositionedText& printed = table.emplace_back(); // in its place: a text is not copied about
    printed.x = static_cast<float>(x);
    printed.y = static_cast<float>(y);
    printed.text = text;
    printed.bold = bold;
    printed.fore = fore;
}

void Print_distance(Table& table, std::string_view label, std::string_view rule, float value, double y) {
    Print(table, 2.0, y, label);
    Print(table, 25.0, y, "=");
    Print(table, 31.0, y, rule);
    Print(table, 85.0, y, "=");
    Print(table, 89.0, y, Format(value, value < 100.0F ? "  00" : "00"));
}

void Print_sum(Table& table, std::string_view label, float sum, float height, std::string_view member, double y,
               double member_y) {
    const bool fails = sum > height;
    Print(table, 2.0, y, label);
    Print(table, 48.0, y, "=");
    Print(table, 58.0, y, Format(sum, "00"), true, fails ? colour_fails : colour_holds);
    Print(table, 68.0, y, fails ? "  > h" : "  < h");
    if (!member.empty()) {
        Print(table, 78.0, member_y, member);
    }
}

// A member has a name in the two languages only.
std::string_view Member(const ConnectionValues& s, std::string_view english, std::string_view norwegian) {
    return s.Lang == "Eng" ? english : s.Lang == "Nor" ? norwegian : std::string_view{};
}

void Print_sum_a(const ConnectionValues& s, std::string_view member, double y, double member_y, double h,
                 Screen& screen) {
    Print_sum(screen.Pic_av_bolter_dif, s.Sum_a_txt, s.Sum_a, s.h1, member, y, member_y);
    Print_sum(screen.Pic_av_bulldog_dif, s.Sum_a_txt, s.Sum_ca, s.h1, member, y, member_y);
    Print_line(y - h, screen);
}

void Print_sum_b(const ConnectionValues& s, std::string_view member, double y, double h, Screen& screen) {
    const double member_y = y - 0.4 * h;
    Print_sum(screen.Pic_av_bolter_dif, s.Sum_b_txt, s.Sum_b, s.h2, member, y, member_y);
    Print_sum(screen.Pic_av_bulldog_dif, s.Sum_b_txt, s.Sum_cb, s.h2, member, y, member_y);
    Print_line(y - h, screen);
}

void Print_note(const ConnectionValues& s, Note note, Screen& screen) {
    if (note != no_note) {
        const NoteTexts& texts = note_texts[note];
        Print(screen.Pic_av_bolter_dif, note_x, note_y, Is_english(s) ? texts.english : texts.norwegian);
    }
}

} // namespace

void Print_row(std::string_view label, std::string_view bolt_text, float bolt_value, std::string_view con_text,
               float con_value, double y, Screen& screen) {
    Print_distance(screen.Pic_av_bolter_dif, label, bolt_text, bolt_value, y);
    Print_distance(screen.Pic_av_bulldog_dif, label, con_text, con_value, y);
}

void Print_sum_a1(const ConnectionValues& s, double y, double h, Screen& screen) {
    // Alone among the four, its member stands at a fixed distance from the row.
    Print_sum_a(s, Member(s, "top chord", "overgurt"), y, y - 2.0, h, screen);
}

void Print_sum_b1(const ConnectionValues& s, double y, double h, Screen& screen) {
    Print_sum_b(s, Member(s, "bot. chord", "undergurt"), y, h, screen);
}

void Print_sum_a2(const ConnectionValues& s, double y, double h, Screen& screen) {
    Print_sum_a(s, Member(s, "beam", "bjelke"), y, y - 0.4 * h, h, screen);
}

void Print_sum_b2(const ConnectionValues& s, double y, double h, Screen& screen) {
    Print_sum_b(s, Member(s, "column", "søyle"), y, h, screen);
}

void Print_line(double y, Screen& screen) {
    for (Table* table : {&screen.Pic_av_bolter_dif, &screen.Pic_av_bulldog_dif}) {
        Print(*table, 2.0, y, "-----------------------------------------------------");
    }
}

void Print_case(const ConnectionValues& s, int case_row, Screen& screen) {
    const CasePrint& print = case_prints[static_cast<std::size_t>(case_row)];
    const char type = print.Case_code[0];
    const bool chords = type == '1' || type == '3';
    int r = 0;
    for (const Item& item : print.printed) {
        const double y = first_row_y - r * print.h;
        switch (item.kind) {
        case Item::end:
            return;
        case Item::row: {
            const DistanceFields& own = Fields_of(item.distance);
            Print_row(s.*own.lbl, s.*own.S_txt, s.*own.S, s.*own.C_txt, s.*Fields_of(item.con_number).C, y, screen);
            break;
        }
        case Item::sum_a:
            (chords ? Print_sum_a1 : Print_sum_a2)(s, y, print.h, screen);
            ++r;
            Print_note(s, print.note, screen); // the first rows of every case end in this sum
            break;
        case Item::sum_b:
            (chords ? Print_sum_b1 : Print_sum_b2)(s, y, print.h, screen);
            ++r;
            break;
        case Item::line:
            Print_line(y, screen);
            break;
        }
        ++r;
    }
}

} // namespace tarnvik
