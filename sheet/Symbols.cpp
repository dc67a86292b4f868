#include "sheet/Symbols.h"

#include <algorithm>
#include <array>

#include "calc/Arithmetic.h"
#include "calc/Connector.h"
#include "calc/Splitting.h"

namespace tarnvik {

namespace {

using V = ConnectionValues;

// The member that may split.
float Split_height(const V& s) {
    float h = 0.0F;
    float b = 0.0F;
    Get_splitting_member(s, h, b);
    return h;
}
float Split_width(const V& s) {
    float h = 0.0F;
    float b = 0.0F;
    Get_splitting_member(s, h, b);
    return b;
}

float Axial(const V& s) {
    return std::min(s.Fax_bolt, s.Fax_skive);
}

float Chosen_multiple(const V& s) {
    return s.Avstand_index + 5.0F;
}

float Governing(const V& s) {
    const std::array single{s.Fv_a, s.Fv_b, s.Fv_c, s.Fv_d, s.Fv_e, s.Fv_f};
    const std::array twice{s.Fv_g, s.Fv_h, s.Fv_j, s.Fv_k};
    const float least = s.dob_1 || s.dob_2 ? *std::min_element(twice.begin(), twice.end())
                                           : *std::min_element(single.begin(), single.end());
    return least / 1000.0F;
}

float Planes(const V& s) {
    return s.dob_1 || s.dob_2 ? 2.0F : 1.0F;
}

float Pi(const V& /*s*/) {
    return PI;
}

float Rope(const V& s) {
    return Axial(s) / 4.0F;
}

float Connector_diameter(const V& s) {
    const ConnectorRow* row = Row_of(connector_table, s.Bulldog_index);
    return row == nullptr ? 0.0F : row->dc;
}

struct Factors {
    float k1{}, k2{}, k3{};
};

// Of one connector, as its capacity has them.
Factors Factors_of(const V& s) {
    Factors k;
    if (const ConnectorRow* row = Row_of(connector_table, s.Bulldog_index)) {
        Bulldog_k(s, k.k1, k.k2, k.k3, row->t, row->hc, row->dc);
    }
    return k;
}

// clang-format off
constexpr std::array symbols{
    //     name       base  index      number                              unit
    Symbol{"d",       "d",  "",        numbers::d,                         "mm"},
    Symbol{"D",       "d",  "c",       {Of<&V::dc>, "0"},                  "mm"},
    Symbol{"N",       "N",  "",        {Chosen_multiple, "0"},             ""},
    Symbol{"alpha",   "α",  "",        {Of<&V::alp>, "0.0"},               "°"},
    Symbol{"alp1",    "α",  "1",       numbers::alp1,                      "°"},
    Symbol{"alp2",    "α",  "2",       numbers::alp2,                      "°"},
    Symbol{"rho_k",   "ρ",  "k",       numbers::rho_k,                     "kg/m³"},
    Symbol{"fuk",     "f",  "u,k",     {Of<&V::fuk>, "0"},                 "N/mm²"},
    Symbol{"fc90k",   "f",  "c,90,k",  {Of<&V::fc90k>, "0.00"},            "N/mm²"},
    Symbol{"d_skive", "d",  "w",       {Of<&V::d_skive>, "0.0"},           "mm"},
    Symbol{"k90",     "k",  "90",      numbers::k90,                       ""},
    Symbol{"fh0k",    "f",  "h,0,k",   numbers::fh0k,                      "N/mm²"},
    Symbol{"fh1k",    "f",  "h,1,k",   numbers::fh1k,                      "N/mm²"},
    Symbol{"fh2k",    "f",  "h,2,k",   numbers::fh2k,                      "N/mm²"},
    Symbol{"beta",    "β",  "",        numbers::beta,                      ""},
    Symbol{"t1",      "t",  "1",       numbers::t1,                        "mm"},
    Symbol{"t2",      "t",  "2",       numbers::t2,                        "mm"},
    Symbol{"My_Rk",   "M",  "y,Rk",    numbers::My_Rk,                     "Nmm"},
    Symbol{"Fax_bolt","F",  "ax,Rk,b", numbers::Fax_bolt,                  "N"},
    Symbol{"Fax_skive","F", "ax,Rk,w", numbers::Fax_skive,                 "N"},
    Symbol{"Fax",     "F",  "ax,Rk",   {Axial, "0.00"},                    "N"},
    Symbol{"Rk",      "F",  "v,Rk",    {Governing, "0.00"},                "kN"},
    Symbol{"Rc",      "F",  "v,Rk,c",  {Of<&V::Fv_Rk>, "0.00"},            "kN"},
    Symbol{"k1",      "k",  "1",       {[](const V& s) { return Factors_of(s).k1; }, "0.00"}, ""},
    Symbol{"k2",      "k",  "2",       {[](const V& s) { return Factors_of(s).k2; }, "0.00"}, ""},
    Symbol{"k3",      "k",  "3",       {[](const V& s) { return Factors_of(s).k3; }, "0.00"}, ""},
    Symbol{"dc",      "d",  "c",       {Connector_diameter, "0"},          "mm"},
    Symbol{"pi",      "π",  "",        {Pi, "0.000"},                      ""},
    Symbol{"rope",    "F",  "rope",    {Rope, "0.00"},                     "N"},
    Symbol{"uf",      "η",  "",        numbers::uf,                        ""},
    Symbol{"Tverr",   "η",  "",        {Of<&V::Tverr_kontroll>, "0.00"},   ""},
    Symbol{"kmod",    "k",  "mod",     {Of<&V::kmod>, "0.00"},             ""},
    Symbol{"gm",      "γ",  "M",       {Of<&V::gm>, "0.00"},               ""},
    Symbol{"n",       "n",  "",        numbers::n_bolt,                    ""},
    Symbol{"n_row",   "n",  "",        {Of<&V::n_row>, "0"},               ""},
    Symbol{"rows",    "m",  "",        {Of<&V::rows>, "0"},                ""},
    Symbol{"a1",      "a",  "1",       {Of<&V::a1>, "0"},                  "mm"},
    Symbol{"nef_b",   "n",  "ef",      numbers::nef_b,                     ""},
    Symbol{"nef_f",   "n",  "ef,c",    numbers::nef_f,                     ""},
    Symbol{"planes",  "i",  "",        {Planes, "0"},                      ""},
    Symbol{"Rd_bolt", "F",  "v,Rd",    numbers::Rd_bolt,                   "kN"},
    Symbol{"Rd_for",  "F",  "v,Rd,c",  numbers::Rd_for,                    "kN"},
    Symbol{"P",       "F",  "Ed",      numbers::P,                         "kN"},
    Symbol{"b",       "b",  "",        {Split_width, "0.0"},               "mm"},
    Symbol{"h",       "h",  "",        {Split_height, "0.0"},              "mm"},
    Symbol{"he",      "h",  "e",       {Of<&V::he>, "0"},                  "mm"},
    Symbol{"P_sin",   "F",  "v,Ed",    {Of<&V::P_sin>, "0.00"},            "kN"},
    Symbol{"F90_Rd",  "F",  "90,Rd",   {Of<&V::F90_Rd>, "0.00"},           "kN"},
};
// clang-format on

} // namespace

const Symbol* Find_symbol(std::string_view name) {
    const auto* const found =
        std::find_if(symbols.begin(), symbols.end(), [name](const Symbol& one) { return one.name == name; });
    return found == symbols.end() ? nullptr : found;
}

std::string Symbol_markup(const Symbol& symbol) {
    std::string base = "<mi>" + std::string{symbol.base} + "</mi>";
    if (symbol.index.empty()) {
        return base;
    }
    return "<msub>" + base + "<mtext>" + std::string{symbol.index} + "</mtext></msub>";
}

std::string Math(const std::string& markup) {
    return "<math>" + markup + "</math>";
}

} // namespace tarnvik
