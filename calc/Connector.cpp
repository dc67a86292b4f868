#include "calc/Connector.h"

#include <algorithm>

#include "calc/Arithmetic.h"

namespace tarnvik {

namespace {

enum Fit : std::uint8_t { unstated, fits, refused };

constexpr std::array<float, 4> bolt_diameters{12.0F, 16.0F, 20.0F, 24.0F}; // mm

// Which bolts a connector refuses, by the diameter of the bolt: both qualities count. A row for each connector of the
// connector table, in its order, a column for each diameter of the bolt table.
struct ConnectorFits {
    float dc;
    std::array<Fit, bolt_diameters.size()> bolts;
};
// clang-format off
constexpr std::array<ConnectorFits, connector_table.size()> connector_fits{{
    // dc       M12      M16      M20      M24
    { 50.0F, {{fits,    fits,    refused, refused}}},
    { 62.0F, {{fits,    fits,    fits,    refused}}},
    { 75.0F, {{fits,    fits,    fits,    refused}}},
    { 95.0F, {{refused, fits,    fits,    fits}}},
    {117.0F, {{refused, fits,    fits,    fits}}},
}};
// clang-format on

// The column of a bolt; the number of columns where it has none.
constexpr std::size_t Column_of(const BoltRow& bolt) {
    std::size_t column = 0;
    while (column < bolt_diameters.size() && bolt_diameters[column] != bolt.d) {
        ++column;
    }
    return column;
}

static_assert(std::all_of(bolt_table.begin(), bolt_table.end(),
                          [](const BoltRow& bolt) { return Column_of(bolt) < bolt_diameters.size(); }),
              "a bolt of the table says with which connectors it fits");

constexpr bool Every_pair_is_stated() {
    for (std::size_t i = 0; i < connector_table.size(); ++i) {
        const ConnectorFits& row = connector_fits[i];
        if (row.dc != connector_table[i].dc || std::count(row.bolts.begin(), row.bolts.end(), unstated) > 0) {
            return false;
        }
    }
    return true;
}
static_assert(Every_pair_is_stated(), "a connector of the table says which bolts it refuses");

// Depth of the teeth of the two large sizes, mm, in place of (hc - t) / 2, which gives 11.325 and 14.25: a deliberate
// exception.
constexpr float he_D95 = 9.5F;
constexpr float he_D117 = 12.5F;

// Of (8.78).
constexpr double reference_density = 350.0; // kg/m3
constexpr float largest_k3 = 1.5F;

} // namespace

void Bulldog_check(ConnectionValues& s, const ScreenWriter& show, MessageBox& box) {
    const ConnectorFits* connector = Row_of(connector_fits, s.Bulldog_index);
    if (connector == nullptr) {
        return;
    }
    const BoltRow* bolt = Row_of(bolt_table, s.Bolt_index);
    s.Bulldog_invalid = bolt != nullptr && connector->bolts[Column_of(*bolt)] == refused;
    show.Back(Control::Comb_bulldog, s.Bulldog_invalid ? colour_green_box : colour_white_box);
    show.Enabled(Control::mnuprint, !s.Bulldog_invalid);
    if (!s.Bulldog_invalid) {
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
        he_c = he_D95;
    } else if (dc == 117.0F) {
        he_c = he_D117;
    }
    // (8.73)
    k1 = MinVal(3, 1.0F, Store(Divide(s.t1, 3.0 * he_c, where), where), Store(Divide(s.t2, 5.0 * he_c, where), where));
    // (8.74). The end distance is taken as that of the minimum spacing, whatever it is.
    const float a3t = Store(dc * 1.5, where);
    const float ratio = Store(Divide(a3t, dc * 1.5, where), where);
    k2 = ratio > 1.0F ? 1.0F : ratio;
    // (8.78)
    k3 = Store(s.rho_k / reference_density, where);
    if (largest_k3 < k3) {
        k3 = largest_k3;
    }
}

void Bulldog_Rk(ConnectionValues& s, float& Fv_Rk_kN) {
    constexpr std::string_view where = "Bulldog_Rk";
    if (const ConnectorRow* row = Row_of(connector_table, s.Bulldog_index)) {
        s.hc = row->hc;
        float k1 = 0.0F;
        float k2 = 0.0F;
        float k3 = 0.0F;
        Bulldog_k(s, k1, k2, k3, row->t, row->hc, row->dc);
        Fv_Rk_kN = Store(25.0 * k1 * k2 * k3 * Power(row->dc, 1.5, where) / 1000.0, where);
    }
    s.Fv_Rk = Fv_Rk_kN;
}

} // namespace tarnvik
