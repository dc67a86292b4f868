#include <array>
#include <cmath>
#include <initializer_list>
#include <string>

#include "calc/Words.h"
#include "report/Member_texts.h"
#include "report/Sections.h"

namespace tarnvik {

namespace {

std::string Join(std::initializer_list<std::string_view> parts) {
    std::string text;
    for (const std::string_view part : parts) {
        text += part;
    }
    return text;
}

// The angle's words, and where its value stands, by Con_code.
struct AngleText {
    std::string_view Con_code;
    Words words;
    double value_x;
};

// clang-format off
constexpr Words angle_chords{"Angle between top- and bottom chord, alpha =", "Vinkel mellom overgurt og undergurt, alpha ="};
constexpr Words angle_beam  {"Angle between beam and column, alpha =",       "Vinkel mellom bjelke og søyle, alpha ="};

constexpr std::array<AngleText, 15> angle_texts{{
    {"1.1", angle_chords, 60},
    {"1.2", angle_chords, 60},
    {"1.3", angle_chords, 60},
    {"2.1", angle_beam,   70},
    {"2.2", angle_beam,   70},
    {"2.3", angle_beam,   70},
    {"3.1", angle_chords, 65},
    {"3.2", angle_chords, 65},
    {"3.3", angle_chords, 65},
    {"4.1", angle_beam,   56},
    {"4.2", angle_beam,   56},
    {"4.3", angle_beam,   56},
    {"5.1", angle_beam,   56},
    {"5.2", angle_beam,   56},
    {"5.3", angle_beam,   56},
}};
// clang-format on

// A failure mode of (8.6) or (8.7): label and value on a row of text, and between them the picture of its equation,
// which stands at a fixed place of the page.
struct Mode {
    bool double_shear;
    double down; // the row, from the anchor
    std::string_view label;
    float ConnectionValues::*Fv;
    std::string_view equation;
    double y, width, height; // its top and size on the page; all stand at x = 30
};

constexpr bool single = false;
constexpr bool twice = true;

// clang-format off
constexpr std::array<Mode, 10> modes{{
    // shear  down  label                 value             equation                           y  width  height
    {single,  68, "Rk(a) = ", &ConnectionValues::Fv_a, "Frm_tarn_vik_likninger/Pic_r_a", 112,  18,  7},
    {single,  75, "Rk(b) = ", &ConnectionValues::Fv_b, "Frm_tarn_vik_likninger/Pic_r_b", 105,  18,  7},
    {single,  83, "Rk(c) = ", &ConnectionValues::Fv_c, "Frm_tarn_vik_likninger/Pic_r_c",  98, 111, 15},
    {single,  99, "Rk(d) = ", &ConnectionValues::Fv_d, "Frm_tarn_vik_likninger/Pic_r_d",  84, 111, 15},
    {single, 115, "Rk(e) = ", &ConnectionValues::Fv_e, "Frm_tarn_vik_likninger/Pic_r_e",  68, 109, 15},
    {single, 130, "Rk(f) = ", &ConnectionValues::Fv_f, "Frm_tarn_vik_likninger/Pic_r_f",  54,  60, 15},
    {twice,   68, "Rk(g) = ", &ConnectionValues::Fv_g, "Frm_tarn_vik_likninger/Pic_r_g", 112,  18,  7},
    {twice,   75, "Rk(h) = ", &ConnectionValues::Fv_h, "Frm_tarn_vik_likninger/Pic_r_h", 103,  18,  7},
    {twice,   88, "Rk(j) = ", &ConnectionValues::Fv_j, "Frm_tarn_vik_likninger/Pic_r_j",  94, 111, 15},
    {twice,  105, "Rk(k) = ", &ConnectionValues::Fv_k, "Frm_tarn_vik_likninger/Pic_r_k",  78,  60, 15},
}};
// clang-format on

bool Single_shear(const ConnectionValues& s) {
    return s.enk_1 && s.enk_2;
}

bool Double_shear(const ConnectionValues& s) {
    return s.dob_1 || s.dob_2;
}

const AngleText* Angle_of(const ConnectionValues& s) {
    for (const AngleText& row : angle_texts) {
        if (s.Con_code == row.Con_code) {
            return &row;
        }
    }
    return nullptr;
}

ShortText Load(const ConnectionValues& s) {
    return Format(std::fabs(s.P), "0.00");
}

std::string Kilonewtons(float value) {
    return Join({Format(value, "0.00"), "  kN"});
}

void PrintStrengths(PrintTarget& target, const ConnectionValues& s, double Y, double x) {
    const bool eng = Is_english(s);
    const auto d = Format(s.d, "00");
    if (Single_shear(s)) {
        Print_bold_at(target, x, Y, eng ? "Single shear=" : "Enkelsnittet forbindelse :");
    }
    if (Double_shear(s)) {
        Print_bold_at(target, x, Y, eng ? "Double shear=" : "Dobbelsnittet forbindelse :");
    }
    Print_at(target, x, Y - 5,
             eng ? "Calculations of k90 and characteristic embedment strength fhk :"
                 : "Beregning av k90 og karakteristisk flatetrykk fhk :  ");

    Print_at(target, x, Y - 10, "k90 = 1.35 + 0.015 x d   = ");
    Print_at(target, x + 35, Y - 10, Join({"1.35", " + ", "0.015", " x ", d, "  ="}));
    Print_at(target, x + 63, Y - 10, Format(s.k90, "0.00"));

    Print_at(target, x, Y - 15, "fh0k = 0.082 x (1 - 0.01 x d) x pk  = ");
    Print_at(target, x + 48, Y - 15,
             Join({" 0.082", " x  ( ", "1 - ", "0.01  x ", d, ")", " x ", Format(s.rho_k, "00"), " = "}));
    Print_at(target, x + 95, Y - 15, Format(s.fh0k, "0.00"));

    if (const AngleText* angle = Angle_of(s)) {
        Print_at(target, x, Y - 20, angle->words.In(eng));
        Print_at(target, x + angle->value_x, Y - 20, Format(s.alp, "0.0"));
    }
}

// fh,alpha = fh0k / (k90 sin2 alpha + cos2 alpha), EN 1995-1-1:2004+A1:2008, (8.31), set by hand from pieces.
void PrintFhk(PrintTarget& target, double y, double x, float value, int member) {
    Print_at(target, x - 3, y, member == 1 ? "fh1k =" : "fh2k =");
    Print_at(target, x + 24, y + 2, "fh0k");
    Print_at(target, x + 6, y + 1.5, "_____________________ ");
    Print_at(target, x + 7, y - 4, "k90 x sin");
    Print_at(target, x + 20, y - 4, "alpha");
    Print_at(target, x + 27, y - 4, " +  cos");
    Print_at(target, x + 36, y - 4, "alpha");
    Print_at(target, x + 35, y - 2, "2");
    Print_at(target, x + 19, y - 2, "2");
    Print_at(target, x + 42, y, Join({"=  ", Format(value, "0.00")}));
}

void PrintEmbedment(PrintTarget& target, const ConnectionValues& s, double y1, double y2, double x) {
    const bool eng = Is_english(s);
    const MemberTexts* texts = Member_labels(s);
    const auto row = [&](double y, const Words& label, float alp, float value, int member) {
        if (texts != nullptr) {
            Print_at(target, x, y, label.In(eng));
        }
        Print_at(target, x + 15, y, " alpha =");
        Print_at(target, x + 27, y, Format(alp, "0.0"));
        PrintFhk(target, y, x + 37, value, member);
    };
    row(y1, texts != nullptr ? texts->label1 : Words{}, s.alp1, s.fh1k, 1);
    row(y2, texts != nullptr ? texts->label2 : Words{}, s.alp2, s.fh2k, 2);
}

void PrintBeta(PrintTarget& target, const ConnectionValues& s, double y, double x) {
    const MemberTexts* texts = Member_notes(s);
    if (texts == nullptr) {
        return;
    }
    const bool eng = Is_english(s);
    Print_at(target, x, y, Join({"Beta :  fh2k / fh1k = ", Format(s.beta, "0.00 ")}));
    Print_at(target, x, y - 5, Join({s.t1_txt, Format(s.t1, "0.00"), texts->note1.In(eng)}));
    Print_at(target, x, y - 10, Join({s.t2_txt, Format(s.t2, "0.00"), texts->note2.In(eng)}));
}

// The equation stands as a picture between label and equals sign.
void PrintRk(PrintTarget& target, const ConnectionValues& s, const Mode& mode, double y, double x) {
    Print_at(target, x, y, mode.label);
    Print_at(target, x + 150, y, "=");
    Print_bold_at(target, x + 153, y, Kilonewtons(static_cast<float>(static_cast<double>(s.*mode.Fv) / 1000.0)));
}

// The modes of single or of double shear.
void PrintModes(PrintTarget& target, const ConnectionValues& s, bool double_shear, double Y, double x) {
    for (const Mode& mode : modes) {
        if (mode.double_shear == double_shear) {
            PrintRk(target, s, mode, Y - mode.down, x);
        }
    }
}

void PrintEffectiveNumbers(PrintTarget& target, const ConnectionValues& s, double y, double x) {
    const bool eng = Is_english(s);
    Print_at(target, x, y, eng ? "Number of effektive bolts " : "Effektive antall bolter ");
    Print_at(target, x + 75, y, "=");
    Print_bold_at(target, x + 80, y, s.Has_row ? Format(s.nef_b, "0.00") : Format(s.n_bolt, "0"));
    if (s.Med_bulldog) {
        Print_at(target, x + 90, y, eng ? "Number of effektive connectors " : "Effektive antall forbindere ");
        Print_at(target, x + 150, y, "=");
        if (s.Has_row) {
            Print_bold_at(target, x + 153, y, Format(s.nef_f, "0.00"));
        } else {
            Print_bold_at(target, x + 150, y, Format(s.n_bolt, "0")); // over the equals sign, as the layout has it
        }
    }
}

void PrintSplitting(PrintTarget& target, const ConnectionValues& s, double y, double x) {
    Print_at(target, x, y,
             Join({Is_english(s) ? "Control of splitting capacity,  he = " : "Kontrol av tverrsnittsbrudd,  he = ",
                   Format(s.he, "0")}));
    Print_at(target, x + 75, y, "=   P x sin alpha / F90,Rd =");
    Print_at(target, x + 113, y, Join({Format(s.P_sin, "0.00"), " / ", Format(s.F90_Rd, "0.00")}));
    Print_at(target, x + 150, y, "=");
    Print_bold_at(target, x + 153, y, Format(s.Tverr_kontroll, "0.00"));
}

// Rule and value of a design capacity, for single and double shear.
void PrintRule(PrintTarget& target, const ConnectionValues& s, double y, double x, const Words& single_rule,
               const Words& double_rule, float value) {
    const bool eng = Is_english(s);
    if (Single_shear(s)) {
        Print_at(target, x + 80, y, single_rule.In(eng));
    }
    if (Double_shear(s)) {
        Print_at(target, x + 80, y, double_rule.In(eng));
    }
    Print_at(target, x + 150, y, "=");
    Print_bold_at(target, x + 153, y, Kilonewtons(value));
}

// Figures of a check: what is divided, "=" and the utilisation.
void PrintCheck(PrintTarget& target, const ConnectionValues& s, double y, double x, std::string_view figures) {
    Print_at(target, x + 79, y, figures);
    Print_at(target, x + 150, y, "=");
    Print_bold_at(target, x + 153, y, Format(s.uf, "0.00"));
}

// clang-format off
constexpr Words bolts_single     {"Rk x kmod x number of effective bolts /gm",         "Rk x kmod x antall effektive bolter /gm"};
constexpr Words bolts_double     {"Rk x kmod x number of effective bolts x 2 /gm",     "Rk x kmod x antall effektive bolter x 2 /gm"};
constexpr Words connectors_single{"Rk x kmod x number of effective connectors/gm",     "Rk x kmod x antall effektive forbindere/gm"};
constexpr Words connectors_double{"Rk x kmod x number of effective connectors x 2 /gm", "Rk x kmod x antall effektive forbindere x 2 /gm"};
// clang-format on

void PrintRdBolt(PrintTarget& target, const ConnectionValues& s, double y, double x) {
    Print_at(target, x, y,
             Is_english(s) ? "Design capacity of the bolts, Rd_bolt" : "Dimensjonerende kapasitet av bolter, Rd_bolt ");
    Print_at(target, x + 75, y, "=");
    PrintRule(target, s, y, x, bolts_single, bolts_double, s.Rd_bolt);
    if (s.Kun_bolt) {
        Print_at(target, x, y - 6, "Kontroll = P / Rd_b"); // Norwegian in both languages
        Print_at(target, x + 75, y - 6, "=");
        PrintCheck(target, s, y - 6, x, Join({Load(s), " / ", Format(s.Rd_bolt, "0.00")}));
    }
}

void PrintRdConnector(PrintTarget& target, const ConnectionValues& s, double y, double x) {
    const bool eng = Is_english(s);
    Print_at(target, x, y,
             eng ? "Design capacity of Connectors, Rd_con."
                 : "Dimensjonerende kapasitet av tannete forbindere, Rd_for.");
    Print_at(target, x + 75, y, "=");
    PrintRule(target, s, y, x, connectors_single, connectors_double, s.Rd_for);
    Print_at(target, x, y - 6, eng ? "Kontroll = P / ( Rd_bolt + Rd_con.)" : "Kontroll = P / ( Rd_bolt + Rd_for. )");
    Print_at(target, x + 75, y - 6, "=");
    // The figures stand 2 units below their label, unlike those of the bolts.
    PrintCheck(target, s, y - 8, x,
               Join({Load(s), " / ", " ( ", Format(s.Rd_bolt, "0.00"), " + ", Format(s.Rd_for, "0.00"), " ) "}));
}

// Where PrintCapacity runs, and with it what the places of the equations fit.
constexpr double anchor_y = 177;

} // namespace

std::optional<double> Equation_row(std::string_view picture) {
    for (const Mode& mode : modes) {
        if (picture == mode.equation) {
            return anchor_y - mode.down;
        }
    }
    return std::nullopt;
}

void PrintCapacity(PrintTarget& target, const ConnectionValues& s, double X, double Y) {
    const bool eng = Is_english(s);
    PrintStrengths(target, s, Y, X);
    PrintEmbedment(target, s, Y - 27, Y - 37, X);
    PrintBeta(target, s, Y - 46, X);
    if (Single_shear(s)) {
        Print_at(target, X, Y - 62,
                 eng ? "Characteristic capacity of a single shear plane pr. bolt :"
                     : "Karakteristisk kapasitet av et enkelt snitt pr. bolt :");
        PrintModes(target, s, single, Y, X);
    }
    if (Double_shear(s)) {
        Print_at(target, X, Y - 61,
                 eng ? "Characteristic capacity of a single shear plane :"
                     : "Karakteristisk kapasitet av et enkelt snitt :");
        PrintModes(target, s, twice, Y, X);
    }

    const double y = Y - (Single_shear(s) ? 141 : 120);
    PrintEffectiveNumbers(target, s, y, X);
    PrintSplitting(target, s, y - 6, X);
    PrintRdBolt(target, s, y - 12, X);
    if (s.Med_bulldog) {
        PrintRdConnector(target, s, y - 18, X);
    }
}

void PrintEquations(PrintTarget& target, const ConnectionValues& s) {
    for (const Mode& mode : modes) {
        if (mode.double_shear ? Double_shear(s) : Single_shear(s)) {
            PrintPicture(target, mode.equation, 30, mode.y, mode.width, mode.height);
        }
    }
}

} // namespace tarnvik
