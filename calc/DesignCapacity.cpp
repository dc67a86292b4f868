#include "calc/DesignCapacity.h"

#include <cmath>

#include "calc/Arithmetic.h"

namespace tarnvik {

namespace {

using V = ConnectionValues;

struct RowOfCase {
    std::string_view Case_code;
    float V::*a1; // the distance along the grain, bolts' value
    std::int16_t n_row, rows;
};

// clang-format off
constexpr std::array<RowOfCase, 22> row_table{{
    // case     a1       n_row rows
    {"1.2.b", &V::Sa3,  2,  1},
    {"1.3.b", &V::Sa3,  3,  1},
    {"1.4. ", &V::Sa4,  2,  2},
    {"1.6. ", &V::Sa5,  2,  3},

    {"2.2. ", &V::Sb3,  2,  1},
    {"2.3. ", &V::Sb3,  3,  1},
    {"2.4. ", &V::Sb4,  2,  2},
    {"2.6. ", &V::Sb4,  3,  2},

    {"3.2.b", &V::Sb3,  2,  1},
    {"3.3.b", &V::Sb3,  3,  1},
    {"3.4. ", &V::Sb4,  2,  2},
    {"3.6. ", &V::Sb4,  3,  2},

    {"4.2.b", &V::Sa2,  2,  1},
    {"4.3.b", &V::Sa2,  3,  1},
    {"4.4. ", &V::Sa2,  2,  2},
    {"4.6.a", &V::Sa2,  2,  3},
    {"4.6.b", &V::Sa2,  3,  2},

    {"5.2.b", &V::Sa2,  2,  1},
    {"5.3.b", &V::Sa2,  3,  1},
    {"5.4. ", &V::Sa2,  2,  2},
    {"5.6.a", &V::Sa2,  2,  3},
    {"5.6.b", &V::Sa2,  3,  2},
}};
// clang-format on

void Get_rows(ConnectionValues& s, char type) {
    const std::string_view code = s.Case_code.View();
    if (code.front() != type) {
        return;
    }
    for (const RowOfCase& row : row_table) {
        if (row.Case_code == code) {
            s.a1 = s.*row.a1;
            s.n_row = row.n_row;
            s.rows = row.rows;
            s.Has_row = true;
            return;
        }
    }
}

// Shear planes of the connection.
double Planes(const ConnectionValues& s) {
    return s.dob_1 || s.dob_2 ? 2.0 : 1.0;
}

} // namespace

void Get_rows_1(ConnectionValues& s) {
    Get_rows(s, '1');
}

void Get_rows_2(ConnectionValues& s) {
    Get_rows(s, '2');
}

void Get_rows_3(ConnectionValues& s) {
    Get_rows(s, '3');
}

void Get_rows_4(ConnectionValues& s) {
    Get_rows(s, '4');
}

void Get_rows_5(ConnectionValues& s) {
    Get_rows(s, '5');
}

void Get_nef(ConnectionValues& s) {
    constexpr std::string_view where = "Main_beregn";
    // (8.34)
    s.nef_b_row = Store(Power(s.n_row, 0.9, where) * Power(Divide(s.a1, 13.0 * s.d, where), 0.25, where), where);
    if (s.nef_b_row > s.n_row) {
        s.nef_b_row = s.n_row;
    }
    // (8.71)
    s.nef_f_row = Store(2.0 + (1.0 - s.n_row / 20.0) * (s.n_row - 2), where);
    s.nef_f = Store(static_cast<double>(s.rows) * s.nef_f_row, where);
    s.nef_b = Store(static_cast<double>(s.rows) * s.nef_b_row, where);
}

void Get_Rd_bolt(ConnectionValues& s, float Rk_bolt) {
    constexpr std::string_view where = "Main_beregn";
    const double number = s.Has_row ? static_cast<double>(s.nef_b) : s.n_bolt;
    s.Rd_bolt = Store(Divide(static_cast<double>(s.kmod) * Rk_bolt * number * Planes(s), s.gm * 1000.0, where), where);
}

void Get_Rd_for(ConnectionValues& s, float Rk_for) {
    constexpr std::string_view where = "Main_beregn";
    const double number = s.Has_row ? static_cast<double>(s.nef_f) : s.n_bolt;
    s.Rd_for = Store(Divide(static_cast<double>(s.kmod) * Rk_for * number * Planes(s), s.gm, where), where);
}

void Get_uf(ConnectionValues& s) {
    constexpr std::string_view where = "Main_beregn";
    const double capacity = s.Med_bulldog ? static_cast<double>(s.Rd_for) + s.Rd_bolt : s.Rd_bolt;
    s.uf = Store(std::fabs(Divide(s.P, capacity, where)), where);
}

} // namespace tarnvik
