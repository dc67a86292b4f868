#include <array>
#include <cmath>

#include "calc/RuntimeFault.h"
#include "calc/Words.h"
#include "report/Sections.h"

namespace tarnvik {

namespace {

constexpr std::string_view report_font = "Times New Roman";

// Blanks and misspellings belong to the texts. The English titles of sections 5 and 6 differ in their number alone, the
// Norwegian ones go on with a diameter.
// clang-format off
constexpr std::array<Words, 6> titles{{
    {"1.0  General data  ",           "1.0  Generelle data "},
    {"2.0  Bolt connection ",         "2.0  Bolteforbindelse "},
    {"3.0 Loading, ULS ( kN ) ",      "3.0 Last, Bruddgrensetilstanden ( kN ) "},
    {"4.0  Capacity of bolts (kN)",   "4.0 Kapasitet av bolter (kN ) "},
    {"5.0 Location of bolts ",        "5.0 Min. avstand mellom bolter,   d = "},
    {"6.0 Location of bolts ",        "6.0 Min. avstand mellom bulldog, D = "},
}};

constexpr Words bolt_type      {"Bolt type       =",         "Boltebetegnelse ="};
constexpr Words number_of_bolts{"Number of bolts =",         "Antall bolter   ="};
constexpr Words connector      {"Toooth-plate connector =",  "Tannet forbinder   ="};
constexpr Words double_sided   {"Double-sided",              "Tosidig"};
constexpr Words dimension      {"Dimension=",                "Dimensjon="};
constexpr Words capacity       {"Characteristic capacity =", "Karakterisk kapasitet ="};
constexpr Words timber_quality {"Timber quality =",          "Trekvalitet ="};
constexpr Words density        {"Density =",                 "Densitet ="};
constexpr Words duration_class {"Load duration class=",      "Lastvarighetsklasse ="};
constexpr Words service_class  {"Service class=",            "Klimaklasse ="};

constexpr Words connection     {"Connection",                "Forbindelse"};
constexpr Words dimensions     {"Dimensions (mm)",           "Dimensjoner (mm)"};
constexpr Words beam           {"Beam",                      "Bjelke "};
constexpr Words column         {"Column",                    "Søyle "};
constexpr Words top_chord      {"Top chord",                 "Overgurt "};
constexpr Words bottom_chord   {"Bottom chord",              "Undergurt "};
// clang-format on

std::string Number(float value, std::string_view picture, std::string_view behind = {}) {
    std::string text{Format(value, picture).View()};
    text += behind;
    return text;
}

void Set_font(PrintTarget& target, std::int16_t font_size) {
    target.FontName(report_font);
    target.FontSize(font_size);
    target.FontBold(false);
}

} // namespace

void PrintSectionTitle(PrintTarget& target, const ConnectionValues& s, int section, double X, double Y,
                       std::int16_t font_size) {
    const bool eng = Is_english(s);
    std::string title{titles.at(static_cast<std::size_t>(section - 1)).In(eng)};
    if (!eng && section >= 5) {
        title += Number(section == 5 ? s.d : s.dc, "00", "   mm");
    }
    target.CurrentX(static_cast<float>(X));
    target.CurrentY(static_cast<float>(Y));
    target.FontName(report_font);
    target.FontSize(font_size);
    target.FontBold(true);
    target.FontItalic(true);
    target.Print(title);
    target.FontBold(false);
    target.FontItalic(false);
}

void PrintGeneral(PrintTarget& target, ConnectionState& s, double X, double Y, std::int16_t font_size,
                  double& row_step) {
    row_step = 5;
    const bool eng = Is_english(s);
    Set_font(target, font_size);
    // Columns: label at X, X+58 and X+98; value right at X+52, X+85 and where its row says.
    const auto label = [&](double x, double y, std::string_view text) { Print_at(target, X + x, y, text); };
    const auto value = [&](double right, double y, std::string_view text) { Print_right(target, X + right, y, text); };

    double y = Y;
    label(0, y, bolt_type.In(eng));
    const BoltRow* bolt = Row_of(bolt_table, s.Bolt_index);
    value(52, y, bolt != nullptr ? bolt->caption : std::string_view{});
    label(58, y, number_of_bolts.In(eng));
    value(85, y, Number(s.n_bolt, "0"));
    label(98, y, "fuk=");
    value(116, y, Number(s.fuk, "0", " MPa"));
    value(148, y, "gm = " + Number(s.gm, "0.00"));

    if (s.Med_bulldog) {
        y -= row_step;
        label(0, y, connector.In(eng));
        value(52, y, double_sided.In(eng));
        label(58, y, dimension.In(eng));
        const ConnectorRow* size = Row_of(connector_table, s.Bulldog_index);
        value(85, y, size != nullptr ? size->size : std::string_view{});
        label(98, y, capacity.In(eng));
        value(143, y, Number(s.Fv_Rk, "0.00", "  kN"));
    }

    y -= row_step;
    label(0, y, timber_quality.In(eng));
    const auto material = static_cast<std::size_t>(s.Mat_index);
    if (material >= s.Mat.size()) {
        Raise(fault_subscript, "PrintGeneral");
    }
    value(52, y, s.Mat[material].Id);
    label(58, y, density.In(eng));
    value(85, y, Number(s.rho_k, "0", " Kg/m3"));
    label(98, y, "fc90k =");
    value(116, y, Number(s.fc90k, "0.00"));

    y -= row_step;
    s.Lastvar_txt = First_characters(s.Lastvar_txt, 9); // a write: the state keeps the short name until the next pass
    label(0, y, duration_class.In(eng));
    value(52, y, First_characters(s.Lastvar_txt, 9));
    label(58, y, service_class.In(eng));
    value(85, y, Number(s.Klima, "0"));
    label(98, y, "kmod =");
    value(116, y, Number(s.kmod, "0.00"));
}

void PrintPicture(PrintTarget& target, std::string_view picture, double x, double y, double width, double height) {
    target.PaintPicture(picture, static_cast<float>(x), static_cast<float>(y), static_cast<float>(width),
                        static_cast<float>(-height));
}

void PrintDimensions(PrintTarget& target, const ConnectionValues& s, double X, double Y, std::int16_t font_size) {
    const bool eng = Is_english(s);
    Set_font(target, font_size);
    target.DrawWidth(1);
    Draw_line(target, X, Y, X + 94, Y);
    Draw_line(target, X, Y - 5, X + 94, Y - 5);
    Draw_line(target, X + 40, Y - 10, X + 94, Y - 10);
    Draw_line(target, X, Y - 38, X + 94, Y - 38);

    Print_at(target, X + 10, Y - 1, connection.In(eng));
    Print_at(target, X + 50, Y - 1, dimensions.In(eng));
    const bool beam_and_column = s.Con_type == 2 || s.Con_type == 4 || s.Con_type == 5;
    if (beam_and_column || s.Con_type == 1 || s.Con_type == 3) {
        Print_at(target, X + 45, Y - 6, (beam_and_column ? beam : top_chord).In(eng));
        Print_at(target, X + 72, Y - 6, (beam_and_column ? column : bottom_chord).In(eng));
    }
    const auto side = [&](double x, double y, std::string_view name, float value) {
        Print_at(target, X + x, y, name);
        Print_right(target, X + x + 19, y, Format(value, "0.00"));
    };
    side(41, Y - 17, "b  =", s.b1);
    side(41, Y - 23, "h  =", s.h1);
    side(68, Y - 17, "b  =", s.b2);
    side(68, Y - 23, "h  =", s.h2);

    Draw_line(target, X, Y - 38, X, Y);
    Draw_line(target, X + 40, Y - 38, X + 40, Y);
    Draw_line(target, X + 67, Y - 38, X + 67, Y - 5);
    Draw_line(target, X + 94, Y - 38, X + 94, Y);
}

void PrintLoad(PrintTarget& target, const ConnectionValues& s, double X, double Y, std::int16_t font_size) {
    target.DrawWidth(1);
    Set_font(target, font_size);
    Print_at(target, X, Y, "P=");
    Print_right(target, X + 25, Y, Format(std::fabs(s.P), "0.00"));
    Print_at(target, X + 35, Y, s.P > 0.0F ? "Trykk" : "Strekk"); // Norwegian in both languages
}

} // namespace tarnvik
