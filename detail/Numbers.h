// The numbers of the step-by-step calculation, each with the picture in which it is shown: one table for the window of
// the detailed calculations and the check sheet, so that they cannot print one value in two ways.
#pragma once

#include <cmath>
#include <string>
#include <string_view>

#include "calc/GlobalParameter.h"
#include "calc/Text.h"

namespace tarnvik {

struct Number {
    float (*of)(const ConnectionValues& s){};
    std::string_view picture; // of Format
};

// As it is shown.
inline std::string Number_text(const Number& number, const ConnectionValues& s) {
    return std::string{Format(number.of(s), number.picture).View()};
}

template <auto member> float Of(const ConnectionValues& s) {
    return static_cast<float>(s.*member);
}
template <auto member> float Absolute_of(const ConnectionValues& s) {
    return std::fabs(s.*member);
}
template <auto member> float Thousandth_of(const ConnectionValues& s) {
    return s.*member / 1000.0F;
}

namespace numbers {

using V = ConnectionValues;

// clang-format off
inline constexpr Number d        {Of<&V::d>,              "00"};   // mm
inline constexpr Number rho_k    {Of<&V::rho_k>,          "00"};   // kg/m3
inline constexpr Number k90      {Of<&V::k90>,            "0.00"};
inline constexpr Number fh0k     {Of<&V::fh0k>,           "0.00"}; // N/mm2
inline constexpr Number fh1k     {Of<&V::fh1k>,           "0.00"};
inline constexpr Number fh2k     {Of<&V::fh2k>,           "0.00"};
inline constexpr Number alp1     {Of<&V::alp1>,           "0.0"};  // degrees
inline constexpr Number alp2     {Of<&V::alp2>,           "0.0"};
inline constexpr Number beta     {Of<&V::beta>,           "0.00 "};
inline constexpr Number t1       {Of<&V::t1>,             "0.00"}; // mm
inline constexpr Number t2       {Of<&V::t2>,             "0.00"};
inline constexpr Number My_Rk    {Of<&V::My_Rk>,          "0.00"}; // Nmm
inline constexpr Number Fax_bolt {Of<&V::Fax_bolt>,       "0.00"}; // N
inline constexpr Number Fax_skive{Of<&V::Fax_skive>,      "0.00"};
inline constexpr Number Fv_a     {Thousandth_of<&V::Fv_a>, "0.00"}; // kN, as all that follow
inline constexpr Number Fv_b     {Thousandth_of<&V::Fv_b>, "0.00"};
inline constexpr Number Fv_c     {Thousandth_of<&V::Fv_c>, "0.00"};
inline constexpr Number Fv_d     {Thousandth_of<&V::Fv_d>, "0.00"};
inline constexpr Number Fv_e     {Thousandth_of<&V::Fv_e>, "0.00"};
inline constexpr Number Fv_f     {Thousandth_of<&V::Fv_f>, "0.00"};
inline constexpr Number Fv_g     {Thousandth_of<&V::Fv_g>, "0.00"};
inline constexpr Number Fv_h     {Thousandth_of<&V::Fv_h>, "0.00"};
inline constexpr Number Fv_j     {Thousandth_of<&V::Fv_j>, "0.00"};
inline constexpr Number Fv_k     {Thousandth_of<&V::Fv_k>, "0.00"};
inline constexpr Number n_bolt   {Of<&V::n_bolt>,         "0"};
inline constexpr Number nef_b    {Of<&V::nef_b>,          "0.00"};
inline constexpr Number nef_f    {Of<&V::nef_f>,          "0.00"};
inline constexpr Number Rd_bolt  {Of<&V::Rd_bolt>,        "0.00"}; // kN
inline constexpr Number Rd_for   {Of<&V::Rd_for>,         "0.00"};
inline constexpr Number P        {Absolute_of<&V::P>,     "0.00"};
inline constexpr Number uf       {Of<&V::uf>,             "0.00"};
// clang-format on

} // namespace numbers

} // namespace tarnvik
