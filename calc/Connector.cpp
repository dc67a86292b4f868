#include "calc/Connector.h"

#include "calc/Arithmetic.h"

namespace tarnvik {

namespace {

// Which bolts a connector refuses, by the row of the bolt table modulo 4 (M12, M16, M20, M24): both qualities count.
struct Refusal {
    bool M12, M16, M20, M24;
};
constexpr std::array<Refusal, 5> refusals{{
    {false, false, true, true},  // D50
    {false, false, false, true}, // D62
    {false, false, false, true}, // D75
    {true, false, false, false}, // D95
    {true, false, false, false}, // D117
}};

bool Refuses(const Refusal& connector, int Bolt_index) {
    switch (Bolt_index) {
    case 0:
    case 4:
        return connector.M12;
    case 1:
    case 5:
        return connector.M16;
    case 2:
    case 6:
        return connector.M20;
    case 3:
    case 7:
        return connector.M24;
    default:
        return false;
    }
}

} // namespace

void Bulldog_check(ConnectionValues& s, const ScreenWriter& show, MessageBox& box) {
    if (s.Bulldog_index < 0 || s.Bulldog_index >= static_cast<int>(refusals.size())) {
        return;
    }
    const bool refused = Refuses(refusals[static_cast<std::size_t>(s.Bulldog_index)], s.Bolt_index);
    show.Back(Control::Comb_bulldog, refused ? colour_green_box : colour_white_box);
    show.Enabled(Control::mnuprint, !refused);
    s.Bulldog_invalid = refused;
    if (!refused) {
        return;
    }
    // One message for a bolt that is too large and for one that is too small.
    if (s.Lang == "Eng") {
        box.Show("Use larger connector or smaller bolt", box_plain);
    } else if (s.Lang == "Nor") {
        box.Show("Bruk større forbinder eller mindre bolt", box_plain);
    }
}

void Bulldog_k(const ConnectionValues& s, float& k1, float& k2, float& k3, float t, float hc, float dc) {
    constexpr std::string_view where = "Bulldog_k";
    float he_c = Store((static_cast<double>(hc) - t) / 2.0, where);
    if (dc == 95.0F) {
        he_c = 9.5F; // in place of 11.325
    } else if (dc == 117.0F) {
        he_c = 12.5F; // in place of 14.25
    }
    k1 = MinVal(3, 1.0F, Store(Divide(s.t1, 3.0 * he_c, where), where), Store(Divide(s.t2, 5.0 * he_c, where), where));
    // The end distance is taken as that of the minimum spacing, whatever it is.
    const float a3t = Store(dc * 1.5, where);
    const float ratio = Store(Divide(a3t, dc * 1.5, where), where);
    k2 = ratio > 1.0F ? 1.0F : ratio;
    k3 = Store(s.rho_k / 350.0, where);
    if (1.5F < k3) {
        k3 = 1.5F;
    }
}

void Bulldog_Rk(ConnectionValues& s, float& Fv_Rk_kN) {
    constexpr std::string_view where = "Bulldog_Rk";
    if (s.Bulldog_index >= 0 && s.Bulldog_index < static_cast<int>(connector_table.size())) {
        const ConnectorRow& row = connector_table[static_cast<std::size_t>(s.Bulldog_index)];
        s.hc = row.hc;
        float k1 = 0.0F;
        float k2 = 0.0F;
        float k3 = 0.0F;
        Bulldog_k(s, k1, k2, k3, row.t, row.hc, row.dc);
        Fv_Rk_kN = Store(25.0 * k1 * k2 * k3 * Power(row.dc, 1.5, where) / 1000.0, where);
    }
    s.Fv_Rk = Fv_Rk_kN;
}

} // namespace tarnvik
