#include <array>
#include <string>

#include "report/Sections.h"
#include "spacing/Catalogue.h"
#include "spacing/Rules.h"

namespace tarnvik {

namespace {

// What a row prints: one of the twelve distances, or a sum.
struct Printed {
    constexpr Printed() = default;
    constexpr Printed(Distance of) : place(of) {} // NOLINT(google-explicit-constructor): the table reads like the rows
    constexpr explicit Printed(int of) : place(static_cast<std::uint8_t>(of)) {}
    friend constexpr bool operator==(Printed one, Printed other) { return one.place == other.place; }

    std::uint8_t place{};
};
constexpr Printed Sa{distance_count};        // sum of family a
constexpr Printed Sb{distance_count + 1};    // sum of family b
constexpr Printed rule{distance_count + 2};  // a line of hyphens, a row without number and text
constexpr Printed none{distance_count + 3};  // as a text: the case does not fill the row's buffer
constexpr Printed later{distance_count + 4}; // as a text: the case fills the row's buffer, the row prints the next one

struct Row {
    constexpr Row() = default;
    constexpr Row(Distance of) : used(true), value(of), text(of) {} // NOLINT(google-explicit-constructor)
    constexpr Row(Printed of) : used(true), value(of), text(of) {}  // NOLINT(google-explicit-constructor)
    constexpr Row(Printed number, Printed words) : used(true), value(number), text(words) {}

    bool used{};
    Printed value;
    Printed text;
};

// How the texts of the distances are made; a sum has its own text in every form.
enum class Form : std::uint8_t {
    L, // the label, "   =  " and the rule
    A, // the name of the place, as "a1   = ", and the rule
    T, // a placeholder, as "txt1_a   = ", and the rule
};

struct CaseTable {
    std::string_view Case_code;
    Form form;
    std::array<Row, 20> rows;
};

using enum Form;

// One row for each case, for both tables; {x, y} prints the number of x with the text of y. These crossings and forms
// are how each case prints, they are meant so.
// clang-format off
constexpr std::array<CaseTable, case_count> case_tables{{
    {"1.1. ", L, {a1, a2, Sa, rule, {a3, Sa}, rule, b1, b2, Sb, rule, b3}},
    {"1.2.a", T, {a1, a2, Sa, rule, a3, rule, a4, rule, b1, b2, {b3, b4}, Sb, rule, b4}},
    {"1.2.b", L, {a1, a2, a3, {Sa, a4}, rule, a4, rule, b1, b2, Sb, rule, b3, rule, b4}},
    {"1.3.a", L, {a1, a2, Sa, rule, a3, a4, rule, a5, rule, b1, b2, b3, b4, Sb, rule, b5}},
    {"1.3.b", L, {a1, a2, a3, a4, Sa, rule, a5, rule, {a6, b1}, rule, {b1, b2}, {b2, Sb}, b3, {Sb, b4}, rule, {b4, b5}, {b5, none}, rule, {b6, none}}},
    {"1.4. ", L, {a1, a2, a3, Sa, rule, a4, rule, a5, rule, b1, b2, b3, Sb, rule, b4, rule, b5}},
    {"1.6. ", A, {a1, a2, a3, a4, Sa, rule, a5, rule, a6, rule, b1, b2, b3, Sb, rule, b4, b5, rule, b6}},
    {"2.1. ", L, {a1, a2, Sa, rule, b1, b2, Sb, rule, b3}},
    {"2.2. ", L, {a1, a2, a3, Sa, rule, b1, b2, Sb, rule, b3, rule, b4}},
    {"2.3. ", L, {a1, a2, a3, a4, Sa, rule, b1, b2, Sb, rule, b3, b4, rule, b5}},
    {"2.4. ", L, {a1, a2, a3, Sa, rule, a4, rule, b1, b2, b3, Sb, rule, b4, rule, b5}},
    {"2.6. ", L, {a1, a2, a3, a4, Sa, rule, a5, rule, b1, b2, b3, Sb, rule, b4, b5, rule, b6}},
    {"3.1. ", A, {a1, a2, Sa, rule, b1, b2, Sb, rule, b3}},
    {"3.2.a", A, {a1, a2, Sa, rule, a3, rule, b1, b2, b3, Sb, rule, b4}},
    {"3.2.b", A, {a1, a2, a3, Sa, rule, b1, b2, Sb, rule, b3, rule, b4}},
    {"3.3.a", A, {a1, a2, Sa, rule, a3, a4, rule, b1, b2, b3, b4, Sb, rule, b5}},
    {"3.3.b", A, {a1, a2, a3, a4, Sa, rule, b1, b2, Sb, rule, {b3, b4}, b4, rule, b5}},
    {"3.4. ", A, {a1, a2, a3, Sa, rule, a4, rule, b1, b2, b3, Sb, rule, b4, b5}},
    {"3.6. ", A, {a1, a2, a3, a4, Sa, rule, a5, rule, b1, b2, b3, Sb, rule, b4, b5, rule, {b6, later}}},
    {"4.1. ", A, {a1, a2, Sa, rule, a3, rule, b1, b2, Sb, rule, b3}},
    {"4.2.a", A, {a1, a2, Sa, rule, a3, rule, b1, b2, b3, Sb, rule, b4}},
    {"4.2.b", A, {a1, a2, a3, Sa, rule, a4, rule, b1, b2, Sb, rule, b3}},
    {"4.3.a", A, {a1, a2, Sa, rule, a3, rule, b1, b2, b3, b4, Sb, rule, b5}},
    {"4.3.b", A, {a1, a2, a3, a4, Sa, rule, a5, rule, b1, b2, Sb, rule, {b3, b4}}},
    {"4.4. ", A, {a1, a2, a3, Sa, rule, a4, rule, b1, b2, b3, Sb, rule, b4}},
    {"4.6.a", A, {a1, a2, a3, Sa, rule, a4, rule, b1, b2, b3, b4, Sb, rule, b5}},
    {"4.6.b", A, {a1, a2, a3, a4, Sa, rule, a5, rule, b1, b2, b3, Sb, rule, b4}},
    {"5.1. ", A, {a1, a2, Sa, rule, a3, rule, b1, b2, Sb, rule, b3}},
    {"5.2.a", A, {a1, a2, Sa, rule, a3, rule, b1, b2, b3, Sb, rule, b4}},
    {"5.2.b", A, {a1, a2, a3, Sa, rule, a4, rule, b1, b2, Sb, rule, b3}},
    {"5.3.a", A, {a1, a2, Sa, rule, a3, rule, b1, b2, b3, b4, Sb, rule, b5}},
    {"5.3.b", A, {a1, a2, a3, a4, Sa, rule, a5, rule, b1, b2, Sb, rule, {b3, b4}}},
    {"5.4. ", A, {a1, a2, a3, Sa, rule, a4, rule, b1, b2, b3, Sb, rule, b4}},
    {"5.6.a", A, {a1, a2, a3, Sa, rule, a4, rule, b1, b2, b3, b4, Sb, rule, b5}},
    {"5.6.b", A, {a1, a2, a3, a4, Sa, rule, a5, rule, b1, b2, b3, Sb, rule, b4}},
}};

// Names of the places in form A; those of family b have a blank less below the sum of the family.
constexpr std::array<std::string_view, distance_count> names_A{
    "a1   = ", "a2   = ", "a3   = ", "a4   = ", "a5   = ", "a6   = ",
    "b1   = ", "b2   = ", "b3   = ", "b4   = ", "b5   = ", "b6   = "};
constexpr std::array<std::string_view, distance_count> names_A_below_sum{
    "a1   = ", "a2   = ", "a3   = ", "a4   = ", "a5   = ", "a6   = ",
    "b1  = ",  "b2  = ",  "b3  = ",  "b4  = ",  "b5  = ",  "b6  = "};
constexpr std::array<std::string_view, distance_count> names_T{
    "txt1_a   = ", "txt2_a   = ", "txt3_a   = ", "txt4_a   = ", "txt5_a   = ", "txt6_a   = ",
    "txt1_b   = ", "txt2_b   = ", "txt3_b   = ", "txt4_b   = ", "txt5_b   = ", "txt6_b   = "};
// clang-format on

constexpr bool Same_cases() {
    for (std::size_t i = 0; i < case_tables.size(); ++i) {
        if (case_tables[i].Case_code != case_table[i].Case_code) {
            return false;
        }
    }
    return true;
}
static_assert(Same_cases(), "one table for each case of the catalogue, in its order");

constexpr std::string_view hyphens = "---------------------------------------------------------";
static_assert(hyphens.size() == 57);

constexpr double row_height = 4.0;

enum class Kind : std::uint8_t { bolts, connectors };

float Value_of(const ConnectionValues& s, Printed row, Kind kind) {
    if (row == Sa) {
        return kind == Kind::bolts ? s.Sum_a : s.Sum_ca;
    }
    if (row == Sb) {
        return kind == Kind::bolts ? s.Sum_b : s.Sum_cb;
    }
    const DistanceFields& fields = Fields_of(static_cast<Distance>(row.place));
    return s.*(kind == Kind::bolts ? fields.S : fields.C);
}

// The text of `words` for the row that prints the number of `number`.
std::string Text_of(const ConnectionValues& s, Form form, Printed number, Printed words, bool below_sum_b, Kind kind) {
    if (words == Sa) {
        return std::string{s.Sum_a_txt};
    }
    if (words == Sb) {
        return std::string{s.Sum_b_txt};
    }
    const DistanceFields& fields = Fields_of(static_cast<Distance>(words.place));
    std::string text;
    switch (form) {
    case L:
        text = s.*fields.lbl;
        text += "   =  ";
        break;
    case A:
        // A crossing keeps the name of the number's own place.
        text = (below_sum_b ? names_A_below_sum : names_A)[number.place];
        break;
    case T:
        text = names_T[words.place];
        break;
    }
    text += s.*(kind == Kind::bolts ? fields.S_txt : fields.C_txt);
    return text;
}

void PrintSpacingRow(PrintTarget& target, std::string_view text, float value, double y, double X) {
    Print_at(target, X + 80, y, text);
    Print_at(target, X + 130, y, "=");
    Print_at(target, X + 135, y, Format(value, "00"));
}

void PrintNote(PrintTarget& target, double y, double X, bool below, std::string_view member) {
    Print_at(target, X + 140, y, below ? "  < h" : "  > h");
    Print_at(target, X + 147, y - 1, member);
}

// The three notes judge unlike: all look at h1, whichever member the sum lies on; that of the chords looks at the
// bolts' sum of family a in every row and in both tables; that of the column has one outcome.
void PrintSumNote(PrintTarget& target, const ConnectionValues& s, Printed row, float value, double y, double X) {
    const bool eng = Is_english(s);
    const char type = s.Con_code.View().front();
    if (type == '1' || type == '3') {
        PrintNote(target, y, X, s.Sum_a < s.h1, eng ? "top chord" : "overgurt");
    } else if (row == Sa) {
        PrintNote(target, y, X, value < s.h1, eng ? "beam" : "bjelk");
    } else {
        PrintNote(target, y, X, false, eng ? "column" : "søyle");
    }
}

float Print_table(PrintTarget& target, const ConnectionValues& s, std::array<std::string, SpacingTexts::count>& texts,
                  double X, double Y, Kind kind) {
    float r = 1.0F;
    const int case_row = Plotted_case(s);
    if (case_row < 0) {
        return static_cast<float>(row_height * static_cast<double>(r));
    }
    const CaseTable& table = case_tables[static_cast<std::size_t>(case_row)];

    // First all buffers of the case, in the order of its rows; then the rows from them.
    std::size_t buffer = 0;
    bool below_sum_b = false;
    for (const Row& row : table.rows) {
        if (!row.used || row.value == rule) {
            continue;
        }
        if (row.text == later) {
            texts[buffer] = Text_of(s, table.form, row.value, row.value, below_sum_b, kind);
        } else if (!(row.text == none)) {
            texts[buffer] = Text_of(s, table.form, row.value, row.text, below_sum_b, kind);
        }
        below_sum_b = below_sum_b || row.value == Sb;
        ++buffer;
    }

    buffer = 0;
    for (const Row& row : table.rows) {
        if (!row.used) {
            break;
        }
        const double y = Y - row_height * static_cast<double>(r);
        r += 1.0F;
        if (row.value == rule) {
            Print_at(target, X + 80, y, hyphens);
            continue;
        }
        // The row that prints the next buffer is that of the bolts; the connectors' prints its own.
        const bool next = row.text == later && kind == Kind::bolts;
        const float value = Value_of(s, row.value, kind);
        PrintSpacingRow(target, texts[next ? buffer + 1 : buffer], value, y, X);
        if (row.value == Sa || row.value == Sb) {
            PrintSumNote(target, s, row.value, value, y, X);
        }
        ++buffer;
    }
    return static_cast<float>(row_height * static_cast<double>(r));
}

} // namespace

float PrintSpacing(PrintTarget& target, const ConnectionValues& s, SpacingTexts& texts, double X, double Y) {
    return Print_table(target, s, texts.bolts, X, Y, Kind::bolts);
}

float PrintSpacingConnector(PrintTarget& target, const ConnectionValues& s, SpacingTexts& texts, double X, double Y) {
    return Print_table(target, s, texts.connectors, X, Y, Kind::connectors);
}

} // namespace tarnvik
