#include "detail/Detailed_calc.h"

#include <span>

#include "calc/Words.h"
#include "detail/Numbers.h"
#include "report/Member_texts.h"

namespace tarnvik {

namespace {

using V = ConnectionValues;

// What has to hold for a piece to be printed: all of the named ones.
enum Need : unsigned {
    always = 0,
    single = 1,
    twice = 2, // double shear
    bolts_only = 4,
    connectors = 8,
    row = 16, // a row along the grain
    no_row = 32,
    members = 64, // the code belongs to its type
};
constexpr Need operator|(Need one, Need other) {
    return static_cast<Need>(static_cast<unsigned>(one) | static_cast<unsigned>(other));
}

using Text = std::string_view (*)(const V& s, bool english);

enum class Style : std::uint8_t {
    plain,
    bold,
    symbol,
    power,
    right,
    warned, // in the warning colour where the utilisation is above 1
};

TextLook Look_of(Style style) {
    switch (style) {
    case Style::bold:
        return {.bold = true};
    case Style::symbol:
        return {.font = TextFont::symbol};
    case Style::power:
        return {.small = true};
    case Style::right:
        return {.right = true};
    case Style::plain:
    case Style::warned:
        break;
    }
    return {};
}

constexpr double joined = -1.0; // in place of an x: continues the text before

// One printed piece: words, then a text of the connection, then a number.
struct Piece {
    Need need;
    double down; // rows, from the piece before
    double x;
    Words words{};
    Number number{};
    Style style{Style::plain};
    Text text{};
};

constexpr Words none{};

constexpr double first_y = 98.0;
constexpr double row_height = 2.5;

// clang-format off
constexpr std::array strengths{
    //    need    down   x       words, number
    Piece{single, 0.0,   2.0,    {"Single shear :", "Enkelsnittet forbindelse :"}, {}, Style::bold},
    Piece{twice,  0.0,   2.0,    {"Double shear :", "Dobbelsnittet forbindelse :"}, {}, Style::bold},
    Piece{always, 1.5,   2.0,    {"Calculation of k90 :", "Beregning av k90 :"}},
    Piece{always, 1.2,   2.0,    "k90 = 1.35 + 0.015 x d   = "},
    Piece{always, 0.0,  22.0,    "1.35 + 0.015 x ", numbers::d},
    Piece{always, 0.0,  joined,  "  ="},
    Piece{always, 0.0,  40.0,    none, numbers::k90},
    Piece{always, 1.5,   2.0,    {"Calculation of characteristic embedment strength fhk :",
                                  "Beregning av karakteristisk hullkantfasthet fhk :"}},
    Piece{always, 1.2,   2.0,    "fh0k = 0.082 x (1 - 0.01 x d) x pk  = "},
    Piece{always, 0.0,  29.0,    " 0.082 x  ( 1 - 0.01  x ", numbers::d},
    Piece{always, 0.0,  joined,  ") x ", numbers::rho_k},
    Piece{always, 0.0,  joined,  " = "},
    Piece{always, 0.0,  55.0,    none, numbers::fh0k},
    Piece{always, 1.2,   2.0}, // to the first row of the fractions
};

// fh,alpha,k = fh0k / (k90 sin2 alpha + cos2 alpha) of (8.31), set from pieces on two rows. The label of the member stands
// on the upper one and its angle on the lower, because the angle's place leaves the label no room beside it.
struct Embedment {
    Text label;
    Number alpha;
    std::string_view symbol;
    Number fhk;
};
constexpr std::array embedments{
    Embedment{[](const V& s, bool english) {
                  const MemberTexts* texts = Member_labels(s);
                  return texts == nullptr ? std::string_view{} : texts->label1.In(english);
              },
              numbers::alp1, "fh1k =", numbers::fh1k},
    Embedment{[](const V& s, bool english) {
                  const MemberTexts* texts = Member_labels(s);
                  return texts == nullptr ? std::string_view{} : texts->label2.In(english);
              },
              numbers::alp2, "fh2k =", numbers::fh2k},
};

// The pieces of a fraction that are the same for both members.
constexpr std::array fraction{
    Piece{always, 0.0,  35.0,    "fh0k"},
    Piece{always, 0.1,  29.0,    "____________________  "},
    Piece{always, 0.9,  29.5,    "k90 x sin"},
    Piece{always, 0.0,  38.0,    "α", {}, Style::symbol},
    Piece{always, 0.0,  40.0,    "+  cos"},
    Piece{always, 0.0,  46.1,    "α", {}, Style::symbol},
    Piece{always, -0.1, 36.9,    "2", {}, Style::power},
    Piece{always, 0.0,  45.0,    "2", {}, Style::power},
};
constexpr double fraction_rows = 1.8; // its two rows; a fifth of a row each goes to rope_rows
constexpr double label_x = 2.0;
constexpr double alpha_x = 8.0;
constexpr double angle_x = 12.0;
constexpr double symbol_x = 22.0;
constexpr double value_x = 51.0;

constexpr std::array thicknesses{
    Piece{members, 0.0,  2.0,    "Beta :  fh2k / fh1k = ", numbers::beta},
    Piece{members, 1.16, 2.0,    none, numbers::t1, Style::plain,
          [](const V& s, bool /*english*/) { return s.t1_txt; }},
    Piece{members, 0.0,  joined, none, {}, Style::plain,
          [](const V& s, bool english) { return Member_notes(s)->note1.In(english); }},
    Piece{members, 1.04, 2.0,    none, numbers::t2, Style::plain,
          [](const V& s, bool /*english*/) { return s.t2_txt; }},
    Piece{members, 0.0,  joined, none, {}, Style::plain,
          [](const V& s, bool english) { return Member_notes(s)->note2.In(english); }},
};
constexpr double thickness_rows = 1.16 + 1.04; // also where the rows themselves are left out

// Beside those rows, at heights above the last of them.
struct BesideRow {
    double up; // units
    Words words;
    Number number;
    Words unit;
};
constexpr std::array beside{
    BesideRow{5.5, {"My,Rk (Bolt, yield moment)          =", "My,Rk  (Bolt, flytemoment)        ="}, numbers::My_Rk,     "Nmm"},
    BesideRow{2.6, {"Fax,Rk (Bolt, tensile capacity)     =", "Fax,Rk (Bolt, strekkapasitet)     ="}, numbers::Fax_bolt,  "N"},
    BesideRow{0.0, {"Fax,Rk (Washer, axial capacity)  =",    "Fax,Rk (Skivens, trykkapasitet) ="},   numbers::Fax_skive, "N"},
};
constexpr double beside_x = 35.0;
constexpr double beside_value_x = 75.0;
constexpr double beside_unit_x = 77.0;

constexpr std::array rope{
    Piece{always, 1.5,   2.0,    {"Characteristic capacity of a single shear plane pr. bolt :",
                                  "Karakteristisk kapasitet av et enkelt snitt pr. bolt:"}},
    Piece{always, 0.0,  42.0,    {"(The contribution from the Rope effect, Fax,Rk  is limited",
                                  "(Bidraget fra Rope effect, Fax,Rk er begrenset til 25% av kapasitet"}},
    Piece{always, 1.0,   2.0,    {" to 25% of the capacity calculated by the Johansen part) ",
                                  "beregnet etter Johansen del) "}},
};

constexpr double rope_rows = 0.4; // keeps the label of the first mode clear of the note

// A failure mode of (8.6) or (8.7): the label, and lower by `offset` the value, against the middle of the equation.
//
// The next label follows from the value's row. Counted from the label's row instead, the labels of a and b would stand
// on each other and the equations, whose places are fixed, beside rows that are not theirs.
struct Mode {
    Need need;
    double down;
    const char* label;
    double offset;
    Number capacity;
};
constexpr std::array modes{
    Mode{single, 0.5, "Rk(a) = ",  1.0, numbers::Fv_a},
    Mode{single, 0.6, "Rk(b) =",   1.0, numbers::Fv_b},
    Mode{single, 1.7, "Rk(c) =",   1.2, numbers::Fv_c},
    Mode{single, 2.0, "Rk(d) =",   1.5, numbers::Fv_d},
    Mode{single, 2.0, "Rk(e) = ",  1.7, numbers::Fv_e},
    Mode{single, 2.0, "Rk(f)  = ", 1.5, numbers::Fv_f},
    Mode{twice,  0.5, "Rk(g) = ",  1.6, numbers::Fv_g},
    Mode{twice,  0.8, "Rk(h) = ",  1.4, numbers::Fv_h},
    Mode{twice,  1.8, "Rk(j) = ",  1.0, numbers::Fv_j},
    Mode{twice,  2.2, "Rk(k) = ",  1.0, numbers::Fv_k},
};
constexpr double twice_rows = 2.2; // below the modes of double shear
constexpr double mode_rows = 2.9;  // below the modes of either

constexpr std::array design{
    Piece{always,               0.0,  2.0,   {"Number of effective bolts, nef_b", "Effektive antall bolter, nef_b"}},
    Piece{always,               0.0, 42.0,   "="},
    Piece{no_row,               0.0, 45.0,   none, numbers::n_bolt},
    Piece{row,                  0.0, 45.0,   none, numbers::nef_b},
    Piece{connectors,           0.0, 50.0,   {"Number of eff. connectors, nef_c ", "Effektive antall forbindere, nef_f "}},
    Piece{connectors,           0.0, 77.0,   "="},
    Piece{connectors | no_row,  0.0, 80.0,   none, numbers::n_bolt},
    Piece{connectors | row,     0.0, 80.0,   none, numbers::nef_f},

    Piece{always,               1.1,  2.0,   {"Design capacity of bolts, Rd_bolt", "Dimensjonerende kapasitet av bolter, Rd_bolt"}},
    Piece{always,               0.0, 42.0,   "="},
    Piece{single,               0.0, 45.0,   "Rk x kmod x nef_b /"},
    Piece{single,               0.0, 61.0,   "γ", {}, Style::symbol},
    Piece{single,               0.0, 62.0,   "m"},
    Piece{twice,                0.0, 45.0,   "Rk x kmod x nef_b x 2 /"},
    Piece{twice,                0.0, 64.0,   "γ", {}, Style::symbol},
    Piece{twice,                0.0, 65.0,   "m"},
    Piece{always,               0.0, 77.0,   "="},
    Piece{always,               0.0, 79.0,   none, numbers::Rd_bolt},
    Piece{always,               0.0, joined, "  kN"},

    Piece{bolts_only,           1.0,  2.0,   "Kontroll  = P / Rd_bolt                                               ="},
    Piece{bolts_only,           0.0, 45.0,   none,  numbers::P, Style::warned},
    Piece{bolts_only,           0.0, joined, " / ", numbers::Rd_bolt},
    Piece{bolts_only,           0.0, 77.0,   "=",   {}, Style::warned},
    Piece{bolts_only,           0.0, 79.0,   none,  numbers::uf, Style::warned},

    Piece{connectors,           1.3,  2.0,   {"Design capacity of connectors, Rd_con.", "Dimensjonerende kapasitet av forbinder, Rd_for."}},
    Piece{connectors,           0.0, 42.0,   "="},
    Piece{connectors | single,  0.0, 45.0,   {"Rk x kmod x nef_c /", "Rk x kmod x nef_f /"}},
    Piece{connectors | single,  0.0, 61.0,   "γ", {}, Style::symbol},
    Piece{connectors | single,  0.0, 62.0,   "m"},
    Piece{connectors | twice,   0.0, 45.0,   {"Rk x kmod x nef_c x 2 /", "Rk x kmod x nef_f x 2 /"}},
    Piece{connectors | twice,   0.0, 72.0,   "γ", {}, Style::symbol},
    Piece{connectors | twice,   0.0, 73.0,   "m"},
    Piece{connectors,           0.0, 77.0,   "="},
    Piece{connectors,           0.0, 79.0,   none, numbers::Rd_for},
    Piece{connectors,           0.0, joined, "  kN"},
    Piece{connectors,           1.0,  2.0,   {"Control = P / ( Rd_bolt + Rd_con. )", "Kontroll = P / ( Rd_bolt + Rd_for. )"}},
    Piece{connectors,           0.0, 42.0,   "="},
    Piece{connectors,           0.0, 45.0,   none,     numbers::P},
    Piece{connectors,           0.0, joined, " /  ( ", numbers::Rd_bolt},
    Piece{connectors,           0.0, joined, " + ",    numbers::Rd_for},
    Piece{connectors,           0.0, joined, " ) "},
    Piece{connectors,           0.0, 77.0,   "="},
    Piece{connectors,           0.0, 79.0,   none, numbers::uf},
};
// clang-format on

class Printer {
public:
    Printer(Painting& painting, const V& s) : painting_(painting), s_(s), english_(Is_english(s)) {
        const auto hold = [this](bool holds, Need need) {
            if (holds) {
                holds_ = holds_ | need;
            }
        };
        hold(s.enk_1 && s.enk_2, single);
        hold(s.dob_1 || s.dob_2, twice);
        hold(s.Kun_bolt, bolts_only);
        hold(s.Med_bulldog, connectors);
        hold(s.Has_row, row);
        hold(!s.Has_row, no_row);
        hold(Member_notes(s) != nullptr, members);
    }

    [[nodiscard]] bool Holds(Need need) const { return (need & ~static_cast<unsigned>(holds_)) == 0; }
    void Down(double rows) { r_ = static_cast<float>(r_ + rows); }

    // At the row as it stands, or off it by rows or by units of y.
    void Print(double x, std::string_view text, Style style = Style::plain, double rows_down = 0.0,
               double units_up = 0.0) {
        if (text.empty()) {
            return;
        }
        const double y = first_y - row_height * (r_ + rows_down) + units_up;
        const bool warns = style == Style::warned && s_.uf > 1.0F;
        painting_.texts.push_back({static_cast<float>(x), static_cast<float>(y), std::string{text}, Look_of(style),
                                   warns ? colour_fails : colour_black});
    }

    void Print(std::span<const Piece> pieces) {
        for (const Piece& piece : pieces) {
            if (!Holds(piece.need)) {
                continue;
            }
            std::string text{piece.words.In(english_)};
            if (piece.text != nullptr) {
                text += piece.text(s_, english_);
            }
            if (piece.number.of != nullptr) {
                text += Shown(piece.number);
            }
            if (piece.x == joined) {
                painting_.texts.back().text += text;
            } else {
                Down(piece.down);
                Print(piece.x, text, piece.style);
            }
        }
    }

    void Print(const Embedment& member) {
        Print(label_x, member.label(s_, english_));
        Print(alpha_x, "α", Style::symbol, 1.0);
        Print(angle_x, "  =   " + Shown(member.alpha), Style::plain, 1.0);
        Print(symbol_x, member.symbol, Style::plain, 0.5);
        const float upper = r_;
        Print(fraction);
        r_ = upper;
        Print(value_x, "= " + Shown(member.fhk), Style::plain, 0.5);
        Down(fraction_rows);
    }

    void Print(const BesideRow& beside_row) {
        Print(beside_x, beside_row.words.In(english_), Style::plain, 0.0, beside_row.up);
        Print(beside_value_x, Shown(beside_row.number), Style::right, 0.0, beside_row.up);
        Print(beside_unit_x, beside_row.unit.In(english_), Style::plain, 0.0, beside_row.up);
    }

    void Print(const Mode& mode) {
        if (!Holds(mode.need)) {
            return;
        }
        Down(mode.down);
        Print(2.0, mode.label);
        Down(mode.offset);
        Print(77.0, "=");
        Print(79.0, Shown(mode.capacity) + "  kN");
    }

    void Calculation() {
        painting_.caption = english_ ? "Detailed calculations" : "Detaljerte beregninger";
        Print(strengths);
        for (const Embedment& member : embedments) {
            Print(member);
        }
        const float first_thickness = r_;
        Print(thicknesses);
        r_ = first_thickness;
        Down(thickness_rows);
        for (const BesideRow& beside_row : beside) {
            Print(beside_row);
        }
        Print(rope);
        Down(rope_rows);
        for (const Mode& mode : modes) {
            Print(mode);
        }
        if (Holds(twice)) {
            Down(twice_rows);
        }
        Down(mode_rows);
        Print(design);
        for (const EquationPlace& place : equation_places) {
            if (Holds(place.double_shear ? twice : single)) {
                painting_.pictures.push_back({place.control, place.key, static_cast<float>(100.0 * place.left),
                                              static_cast<float>(100.0 - 100.0 * place.top),
                                              static_cast<float>(100.0 * place.width),
                                              static_cast<float>(100.0 * place.height)});
            }
        }
    }

private:
    [[nodiscard]] std::string Shown(const Number& number) const { return Number_text(number, s_); }

    Painting& painting_;
    const V& s_;
    bool english_;
    Need holds_{always};
    float r_{};
};

} // namespace

Painting Paint_detailed(const ConnectionValues& s) {
    Painting painting;
    Printer{painting, s}.Calculation();
    return painting;
}

} // namespace tarnvik
