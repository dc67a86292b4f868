#include "calc/Shear.h"

#include <cmath>

#include "calc/Arithmetic.h"

namespace tarnvik {

namespace {

constexpr bool single = false;
constexpr bool twice = true;

enum class Width : std::uint8_t { b1, b2 };
enum class Angle : std::uint8_t { zero, alp, right };

struct ShearRow {
    std::string_view Con_code;
    Width t1, t2;
    Angle angle1, angle2;
    bool double_shear;
    std::string_view t1_txt, t2_txt; // the differing numbers of blanks are deliberate
};

// The force runs along the grain of one member and at alp to the grain of the other. 4.1 and 4.2 stand at a fixed right
// angle while 4.3 follows the input, and 5.2 takes both thicknesses from b1: deliberate exceptions.
// clang-format off
constexpr std::array<ShearRow, 15> shear_table{{
    // code   t1         t2         angle in t1   angle in t2    shear    labels
    {"1.1", Width::b1, Width::b2, Angle::zero,  Angle::alp,    single,  "t1 = ",  "t2 = "},
    {"1.2", Width::b1, Width::b2, Angle::zero,  Angle::alp,    twice,   "t1 =  ", "t2 ="},
    {"1.3", Width::b2, Width::b1, Angle::alp,   Angle::zero,   twice,   "t1 = ",  "t2 =  "},
    {"2.1", Width::b2, Width::b1, Angle::zero,  Angle::alp,    single,  "t1 =  ", "t2 = "},
    {"2.2", Width::b1, Width::b2, Angle::alp,   Angle::zero,   twice,   "t1 =  ", "t2 =  "},
    {"2.3", Width::b2, Width::b1, Angle::zero,  Angle::alp,    twice,   "t1 =",   "t2 = "},
    {"3.1", Width::b2, Width::b1, Angle::zero,  Angle::alp,    single,  "t1 =  ", "t2 = "},
    {"3.2", Width::b1, Width::b2, Angle::alp,   Angle::zero,   twice,   "t1 =  ", "t2 =  "},
    {"3.3", Width::b2, Width::b1, Angle::zero,  Angle::alp,    twice,   "t1 =  ", "t2 = "},
    {"4.1", Width::b2, Width::b1, Angle::zero,  Angle::right,  single,  "t1 = ",  "t2 = "},
    {"4.2", Width::b1, Width::b2, Angle::right, Angle::zero,   twice,   "t1 =  ", "t2 = "},
    {"4.3", Width::b2, Width::b1, Angle::zero,  Angle::alp,    twice,   "t1 =  ", "t2 = "},
    {"5.1", Width::b2, Width::b1, Angle::zero,  Angle::alp,    single,  "t1 =  ", "t2 = "},
    {"5.2", Width::b1, Width::b1, Angle::alp,   Angle::zero,   twice,   "t1 = ",  "t2 = "},
    {"5.3", Width::b2, Width::b1, Angle::zero,  Angle::alp,    twice,   "t1 = ",  "t2 = "},
}};
// clang-format on

double Radians(const ConnectionValues& s, Angle angle) {
    switch (angle) {
    case Angle::alp:
        return s.alp / degrees_per_radian;
    case Angle::right:
        return 90.0 / degrees_per_radian;
    case Angle::zero:
        break;
    }
    return 0.0;
}

// Yield moment and axial capacities, the same for single and double shear.
void Bolt_values(ConnectionValues& s, std::string_view where) {
    // (8.30)
    s.My_Rk = Store(0.3 * s.fuk * Power(s.d, 2.6, where), where);
    s.Fax_bolt = Store((PI / 4.0) * s.fuk * Square(s.d), where);
    // 8.5.2 (2): three times the compressive strength under the washer. The hole is d + 2, wider than the d + 1 of the
    // theory manual, on purpose.
    s.Fax_skive =
        Store((Square(s.d_skive) - Square(static_cast<double>(s.d) + 2.0)) * 3.0 * s.fc90k * (PI / 4.0), where);
}

// What the failure modes of a shear plane are made of.
struct ShearPlane {
    double d, t1, t2, fh, be, My; // fh of the member of t1
    std::string_view where;
};

ShearPlane Plane_of(const ConnectionValues& s, float fh1k, float beta, std::string_view where) {
    return {s.d, s.t1, s.t2, fh1k, beta, s.My_Rk, where};
}

// The failure modes without the rope effect, N. All of double shear but h are formulas of single shear.

// (8.6) a, (8.7) g
float Mode_a_g(const ShearPlane& p) {
    return Store(p.t1 * p.fh * p.d, p.where);
}

// (8.6) b
float Mode_b(const ShearPlane& p, float fh2k) {
    return Store(p.t2 * fh2k * p.d, p.where);
}

// (8.6) c
float Mode_c(const ShearPlane& p) {
    const double be = p.be;
    const double r = Divide(p.t2, p.t1, p.where);
    return Store(
        Divide(p.d * p.fh * p.t1, be + 1.0, p.where) *
            (Root(be + 2.0 * Square(be) * (1.0 + r + Square(r)) + be * be * be * Square(r), p.where) - (r + 1.0) * be),
        p.where);
}

// (8.6) d, (8.7) j
float Mode_d_j(const ShearPlane& p) {
    const double be = p.be;
    return Store(
        Divide(1.05 * p.d * p.fh * p.t1, be + 2.0, p.where) *
            (Root(2.0 * be * (be + 1.0) + Divide(4.0 * be * (be + 2.0) * p.My, Square(p.t1) * p.d * p.fh, p.where),
                  p.where) -
             be),
        p.where);
}

// (8.6) e
float Mode_e(const ShearPlane& p) {
    const double be = p.be;
    return Store(Divide(1.05 * p.d * p.fh * p.t2, 2.0 * be + 1.0, p.where) *
                     (Root(2.0 * Square(be) * (be + 1.0) +
                               Divide(4.0 * be * (2.0 * be + 1.0) * p.My, Square(p.t2) * p.d * p.fh, p.where),
                           p.where) -
                      be),
                 p.where);
}

// (8.6) f, (8.7) k
float Mode_f_k(const ShearPlane& p) {
    return Store(1.15 * Root(Divide(2.0 * p.be, p.be + 1.0, p.where), p.where) * Root(2.0 * p.My * p.fh * p.d, p.where),
                 p.where);
}

// (8.7) h
float Mode_h(const ShearPlane& p, float fh2k) {
    return Store(0.5 * fh2k * p.t2 * p.d, p.where);
}

// 8.2.2 (2): the rope effect adds a quarter of the axial capacity, at most 25 % of the Johansen part, taken on each
// mode by itself before the modes are compared.
float With_rope(float johansen, float Fax_q, std::string_view where) {
    const float limit = Store(johansen * 0.25, where);
    return Store(static_cast<double>(johansen) + (limit < Fax_q ? limit : Fax_q), where);
}

} // namespace

void Get_fh(ConnectionValues& s, double angle1, double angle2, float& fh1k, float& fh2k, float& beta) {
    constexpr std::string_view where = "Get_fh";
    s.fh0k = Store((1.0 - s.d * 0.01) * 0.082 * s.rho_k, where);
    fh1k = Store(Divide(s.fh0k, Square(std::sin(angle1)) * s.k90 + Square(std::cos(angle1)), where), where);
    fh2k = Store(Divide(s.fh0k, Square(std::sin(angle2)) * s.k90 + Square(std::cos(angle2)), where), where);
    beta = Store(Divide(fh2k, fh1k, where), where);
}

void Enkeltsnitt_Rk(ConnectionValues& s, float fh1k, float fh2k, float beta, float& Rk) {
    constexpr std::string_view where = "Enkeltsnitt_Rk";
    Bolt_values(s, where);
    const ShearPlane plane = Plane_of(s, fh1k, beta, where);
    s.Fv_a = Mode_a_g(plane);
    s.Fv_b = Mode_b(plane, fh2k);
    const float c0 = Mode_c(plane);
    const float d0 = Mode_d_j(plane);
    const float e0 = Mode_e(plane);
    const float f0 = Mode_f_k(plane);

    const float Fax_q = Store(MinVal(2, s.Fax_bolt, s.Fax_skive) / 4.0, where);
    s.Fv_c = With_rope(c0, Fax_q, where);
    s.Fv_d = With_rope(d0, Fax_q, where);
    s.Fv_e = With_rope(e0, Fax_q, where);
    s.Fv_f = With_rope(f0, Fax_q, where);
    Rk = MinVal(3, MinVal(4, s.Fv_c, s.Fv_d, s.Fv_e, s.Fv_f), s.Fv_a, s.Fv_b);
}

void Dobbeltsnitt_Rk(ConnectionValues& s, float fh1k, float fh2k, float beta, float& Rk) {
    constexpr std::string_view where = "Dobbeltsnitt_Rk";
    Bolt_values(s, where);
    const ShearPlane plane = Plane_of(s, fh1k, beta, where);
    s.Fv_g = Mode_a_g(plane);
    s.Fv_h = Mode_h(plane, fh2k);
    const float j0 = Mode_d_j(plane);
    const float k0 = Mode_f_k(plane);

    s.Fax_min = MinVal(2, s.Fax_bolt, s.Fax_skive);
    const float Fax_q = Store(s.Fax_min / 4.0, where);
    s.Fv_j = With_rope(j0, Fax_q, where);
    s.Fv_k = With_rope(k0, Fax_q, where);
    Rk = MinVal(3, MinVal(2, s.Fv_j, s.Fv_k), s.Fv_g, s.Fv_h);
}

void Get_Rk(ConnectionValues& s, float& Rk_bolt) {
    constexpr std::string_view where = "Get_Rk";
    s.k90 = Store(1.35 + 0.015 * s.d, where); // (8.33), softwood
    Rk_bolt = 0.0F;
    for (const ShearRow& row : shear_table) {
        if (s.Con_code.View() != row.Con_code) {
            continue;
        }
        s.t1 = row.t1 == Width::b1 ? s.b1 : s.b2;
        s.t2 = row.t2 == Width::b1 ? s.b1 : s.b2;
        s.t1_txt = row.t1_txt;
        s.t2_txt = row.t2_txt;
        const double angle1 = Radians(s, row.angle1);
        const double angle2 = Radians(s, row.angle2);
        Get_fh(s, angle1, angle2, s.fh1k, s.fh2k, s.beta);
        s.alp1 = Store(angle1 * degrees_per_radian, where);
        s.alp2 = Store(angle2 * degrees_per_radian, where);
        if (row.double_shear) {
            Dobbeltsnitt_Rk(s, s.fh1k, s.fh2k, s.beta, Rk_bolt);
        } else {
            Enkeltsnitt_Rk(s, s.fh1k, s.fh2k, s.beta, Rk_bolt);
        }
        return;
    }
}

} // namespace tarnvik
