#include "calc/Splitting.h"

#include <algorithm>
#include <cmath>

#include "calc/Arithmetic.h"

namespace tarnvik {

namespace {

using V = ConnectionValues;

struct LoadedEdge {
    std::string_view Case_code;
    float V::*compression; // P above 0
    float V::*tension;     // P at or below 0
};

// he is the height of the member less this distance: the loaded edge to the farthest bolt. Type 5 is the mirror of
// types 2 to 4: there the loaded edge changes sides with the sign of the force.
// clang-format off
constexpr std::array<LoadedEdge, 35> edge_table{{
    //          compression  tension
    {"1.1. ", &V::Sb1,     &V::Sb2},
    {"1.2.a", &V::Sb1,     &V::Sb2},
    {"1.3.a", &V::Sb1,     &V::Sb2},
    {"1.2.b", &V::Sb1,     &V::Sb3},
    {"1.4. ", &V::Sb1,     &V::Sb3},
    {"1.6. ", &V::Sb1,     &V::Sb3},
    {"1.3.b", &V::Sb1,     &V::Sb4},

    {"2.1. ", &V::Sa2,     &V::Sa1},
    {"2.2. ", &V::Sa3,     &V::Sa1},
    {"2.4. ", &V::Sa3,     &V::Sa1},
    {"2.3. ", &V::Sa4,     &V::Sa1},
    {"2.6. ", &V::Sa4,     &V::Sa1},

    {"3.1. ", &V::Sa2,     &V::Sa1},
    {"3.2.a", &V::Sa2,     &V::Sa1},
    {"3.3.a", &V::Sa2,     &V::Sa1},
    {"3.2.b", &V::Sa3,     &V::Sa1},
    {"3.4. ", &V::Sa3,     &V::Sa1},
    {"3.3.b", &V::Sa4,     &V::Sa1},
    {"3.6. ", &V::Sa4,     &V::Sa1},

    {"4.1. ", &V::Sa2,     &V::Sa1},
    {"4.2.a", &V::Sa2,     &V::Sa1},
    {"4.3.a", &V::Sa2,     &V::Sa1},
    {"4.2.b", &V::Sa3,     &V::Sa1},
    {"4.4. ", &V::Sa3,     &V::Sa1},
    {"4.6.a", &V::Sa3,     &V::Sa1},
    {"4.3.b", &V::Sa4,     &V::Sa1},
    {"4.6.b", &V::Sa4,     &V::Sa1},

    {"5.1. ", &V::Sa1,     &V::Sa2},
    {"5.2.a", &V::Sa1,     &V::Sa2},
    {"5.3.a", &V::Sa1,     &V::Sa2},
    {"5.2.b", &V::Sa1,     &V::Sa3},
    {"5.4. ", &V::Sa1,     &V::Sa3},
    {"5.6.a", &V::Sa1,     &V::Sa3},
    {"5.3.b", &V::Sa1,     &V::Sa4},
    {"5.6.b", &V::Sa1,     &V::Sa4},
}};
// clang-format on

// Only half of the force acts on the member that splits. 2.3 stands here although member 1 splits and is single there:
// a required exception.
constexpr std::array<std::string_view, 5> half_force{"1.3", "2.3", "3.2", "4.2", "5.2"};

void Get_he(const ConnectionValues& s, char type, float& h, float& b, float& he) {
    h = 0.0F;
    b = 0.0F;
    he = 0.0F;
    const std::string_view code = s.Case_code.View();
    if (code.front() != type) {
        return;
    }
    for (const LoadedEdge& row : edge_table) {
        if (row.Case_code == code) {
            h = type == '1' ? s.h2 : s.h1;
            b = type == '1' ? s.b2 : s.b1;
            he = Store(static_cast<double>(h) - s.*(s.P > 0.0F ? row.compression : row.tension), "Get_he");
            return;
        }
    }
}

} // namespace

void Get_he_1(const ConnectionValues& s, float& h, float& b, float& he) {
    Get_he(s, '1', h, b, he);
}

void Get_he_2(const ConnectionValues& s, float& h, float& b, float& he) {
    Get_he(s, '2', h, b, he);
}

void Get_he_3(const ConnectionValues& s, float& h, float& b, float& he) {
    Get_he(s, '3', h, b, he);
}

void Get_he_4(const ConnectionValues& s, float& h, float& b, float& he) {
    Get_he(s, '4', h, b, he);
}

void Get_he_5(const ConnectionValues& s, float& h, float& b, float& he) {
    Get_he(s, '5', h, b, he);
}

void Get_splitting_member(const ConnectionValues& s, float& h, float& b) {
    h = s.Con_type == 1 ? s.h2 : s.h1;
    b = s.Con_type == 1 ? s.b2 : s.b1;
}

bool Takes_half_force(const ConnectionValues& s) {
    return std::find(half_force.begin(), half_force.end(), s.Con_code.View()) != half_force.end();
}

void Tverr_brudd(ConnectionValues& s, float h, float he, float b, const ScreenWriter& show) {
    constexpr std::string_view where = "Tverr_brudd";
    const float x = Store(Divide(he, h, where), where);
    const float y = Store(Divide(he, 1.0 - x, where), where);
    const float F90_Rk = Store(14.0 * b * Root(y, where) / 1000.0, where);
    s.F90_Rd = Store(Divide(static_cast<double>(s.kmod) * F90_Rk, s.gm, where), where);
    const double force = std::fabs(Takes_half_force(s) ? s.P / 2.0 : s.P);
    s.P_sin = Store(std::sin(s.alp / degrees_per_radian) * force, where);
    s.Tverr_kontroll = Store(Divide(s.P_sin, s.F90_Rd, where), where);
    show.Utilisation(Control::Lbl_tverr_2, s.Tverr_kontroll, "0.00");
}

} // namespace tarnvik
