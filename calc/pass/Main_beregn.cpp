#include "calc/pass/Main_beregn.h"

#include <array>
#include <cmath>

#include "calc/Connector.h"
#include "calc/DesignCapacity.h"
#include "calc/Shear.h"
#include "calc/Splitting.h"
// The one place where the calculation looks up: the distances of the case feed the rows and the splitting check.
#include "spacing/Catalogue.h"
#include "spacing/Plot_screen.h"
#include "spacing/Rules.h"

namespace tarnvik {

namespace {

constexpr std::string_view where = "Main_beregn";

void Lang_klasser(ConnectionValues& s, const ScreenWriter& show, bool english) {
    show.Caption(Control::Fra_klasse, english ? "Classes" : "Klasser");
    show.Caption(Control::Lbl_lastvar_1, english ? "Load-duration class =" : "Lastvarighetsklasse = ");
    if (const ClassRow* row = Row_of(class_table, s.Lastvar - 1)) {
        s.Lastvar_txt = english ? row->name_eng : row->name_nor;
    }
}

// A section of the profile table.
const ProfRecord& Profile(const ConnectionState& s, int index) {
    const ProfRecord* row = Row_of(s.Prof, index);
    if (row == nullptr) {
        Raise(fault_subscript, where);
    }
    return *row;
}

void Get_sections(ConnectionState& s) {
    if (s.Standard) {
        const ProfRecord& one = Profile(s, s.Prof1_index);
        s.b1 = one.b;
        s.h1 = one.h;
        const ProfRecord& two = Profile(s, s.Prof2_index);
        s.b2 = two.b;
        s.h2 = two.h;
    } else {
        s.b1 = Str_to_num(s.Txt_b1);
        s.h1 = Str_to_num(s.Txt_h1);
        s.b2 = Str_to_num(s.Txt_b2);
        s.h2 = Str_to_num(s.Txt_h2);
    }
}

void Show_section(std::string& text, float value, Control control, const ScreenWriter& show) {
    const ShortText formatted = Format(value, "0.0");
    text.assign(formatted.View());
    show.Caption(control, formatted);
}

// Names of project and classes, and what the classes and the number of bolts give.
void Classes(ConnectionState& s, const ScreenWriter& show) {
    show.Caption(Control::txtprosjekt, s.Prosjekt);
    show.Caption(Control::txtid, s.Id);
    if (Is_english(s)) {
        Lang_klasser_Eng(s, show);
    } else {
        Lang_klasser_Nor(s, show);
    }
    show.Caption(Control::Lbl_lastvar_2, s.Lastvar_txt);
    show.Number(Control::Lbl_klima_2, s.Klima, "0");
    Get_kmod(s);
    show.Number(Control::Lbl_kmod2, s.kmod, "0.00 ");
    Get_n_bolt(s);
}

void Bolt_and_material(ConnectionState& s, const ScreenWriter& show) {
    Get_bolt(s);
    Get_skive(s);
    show.Number(Control::Lbl_skive_diameter2, s.d_skive, "0.0 ");
    show.Number(Control::Lbl_skive_tykk2, s.t_skive, "0.0 ");
    Get_material(s, s.Mat_index);
    Get_gm(s);
    show.Number(Control::lbl_densitet2, s.rho_k, "0 ");
    show.Number(Control::Lbl_fc90k2, s.fc90k, "0.0 ");
    show.Number(Control::lbl_gm, s.gm, "0.00 ");
}

// Also into the state: the next pass on free entry reads the texts, and so the rounded section.
void Show_sections(ConnectionState& s, const ScreenWriter& show) {
    Show_section(s.Txt_b1, s.b1, Control::Txt_b1, show);
    Show_section(s.Txt_h1, s.h1, Control::Txt_h1, show);
    Show_section(s.Txt_b2, s.b2, Control::Txt_b2, show);
    Show_section(s.Txt_h2, s.h2, Control::Txt_h2, show);
}

// What the members make of the connection: its code, its picture and whether its arrangement can be chosen.
void Connection(ConnectionState& s, const ScreenWriter& show) {
    Get_Con_code(s);
    Plot_connection(s, show);
    Get_Ab_valg(s);
    show.Enabled(Control::Cmd_boltetype_0, s.Ab_valg);
    show.Enabled(Control::Cmd_boltetype_1, s.Ab_valg);
}

// The distances of the case, and the case itself, which all that follows goes by.
void Distances(ConnectionState& s, const ScreenWriter& show) {
    Clear_tables(show);
    Clear_spacing(s);
    for (const Control control : {Control::Fra_av_bulldog, Control::Fra_bulldog, Control::Lbl_bulldog_kap1,
                                  Control::Lbl_bulldog_kap2, Control::Lbl_pluss, Control::Lbl_Rd_bulldog_kontroll}) {
        show.Visible(control, !s.Kun_bolt);
    }
    Plot_screen(s, show);
    show.Index(Control::Comb_bolt_avstand, s.Avstand_index);
    Get_Case_code(s);
}

// By the type that is selected: a case that stays from another type, where a pass finds none, has no row here. A type
// outside 1 to 5 has none either.
void Get_rows(ConnectionValues& s) {
    constexpr std::array get_rows{Get_rows_1, Get_rows_2, Get_rows_3, Get_rows_4, Get_rows_5};
    s.Has_row = false;
    if (s.Con_type >= 1 && s.Con_type <= static_cast<int>(get_rows.size())) {
        get_rows[static_cast<std::size_t>(s.Con_type - 1)](s);
    }
}

void Effective_numbers(ConnectionState& s, const ScreenWriter& show) {
    Get_rows(s);
    Get_nef(s);
    show.Visible(Control::Lbl_tot_eff_bulldog_1, s.Med_bulldog);
    show.Visible(Control::Lbl_tot_eff_bulldog_2, s.Med_bulldog);
    show.Number(Control::Lbl_2_nef_max, s.Has_row ? s.nef_b : s.n_bolt, "0.00 ");
    show.Number(Control::Lbl_tot_eff_bulldog_2, s.Has_row ? s.nef_f : s.n_bolt, "0.0 ");
    show.Visible(Control::lbl_txt_avstand, s.Has_row);
    show.Visible(Control::Comb_bolt_avstand, s.Has_row);
}

// The splitting check at minimum distance. By the case alone, also by one that stays from an earlier pass: unlike the
// rows the check is never left out, and the case says which member splits.
void Check_splitting(ConnectionState& s, const ScreenWriter& show) {
    constexpr std::array get_he{Get_he_1, Get_he_2, Get_he_3, Get_he_4, Get_he_5};
    float h = 0.0F;
    float b = 0.0F;
    float he = 0.0F;
    if (const char type = s.Case_code.View().front(); type >= '1' && type <= '5') {
        get_he[static_cast<std::size_t>(type - '1')](s, h, b, he);
        show.Enabled(Control::Txt_alp, type <= '3'); // the angle of types 4 and 5 is fixed
    }
    s.he = he;
    show.Number(Control::Txt_man_he, s.he, "00");
    Tverr_brudd(s, h, he, b, show);
}

// Capacities of the whole connection from those of one bolt, N, and one connector, kN, and its utilisation.
void Utilisation(ConnectionState& s, const ScreenWriter& show, float Rk_bolt, float Rk_for) {
    Get_Rd_bolt(s, Rk_bolt);
    show.Number(Control::Lbl_bolt_kap2, s.Rd_bolt, "0.0 ");
    if (s.Med_bulldog) {
        Get_Rd_for(s, Rk_for);
    }
    show.Number(Control::Lbl_bulldog_kap2, s.Rd_for, "0.0 "); // also the one of an earlier pass
    show.Number(Control::Lbl_last_kontroll, std::fabs(s.P), "0.0");
    show.Number(Control::Lbl_Rd_kontroll, s.Rd_bolt, "0.0");
    if (s.Med_bulldog) {
        show.Number(Control::Lbl_Rd_bulldog_kontroll, s.Rd_for, "0.0");
    }
    Get_uf(s);
    show.Utilisation(Control::Lbl_uf, s.uf, "0.00 ");
}

} // namespace

std::string_view Pass_end_name(PassEnd end) {
    switch (end) {
    case PassEnd::normal:
        return "normal";
    case PassEnd::connector_refused:
        return "connector refused";
    case PassEnd::zero_section:
        return "zero section";
    case PassEnd::fault:
        break;
    }
    return "fault";
}

void Lang_klasser_Eng(ConnectionValues& s, const ScreenWriter& show) {
    Lang_klasser(s, show, true);
}

void Lang_klasser_Nor(ConnectionValues& s, const ScreenWriter& show) {
    Lang_klasser(s, show, false);
}

PassEnd Main_beregn(ConnectionState& s, Screen* screen, MessageBox& box) {
    const ScreenWriter show{screen};
    Classes(s, show);
    if (s.Med_bulldog) {
        Bulldog_check(s, show, box);
        if (s.Bulldog_invalid) {
            return PassEnd::connector_refused;
        }
    }
    Bolt_and_material(s, show);
    Get_sections(s);
    if (s.b1 == 0.0F || s.b2 == 0.0F || s.h1 == 0.0F || s.h2 == 0.0F) {
        return PassEnd::zero_section;
    }
    Show_sections(s, show);
    Connection(s, show);

    float Rk_bolt = 0.0F;
    Get_Rk(s, Rk_bolt);
    float Rk_for = 0.0F;
    if (s.Med_bulldog) {
        Bulldog_Rk(s, Rk_for);
        show.Number(Control::Lbl_bulldog2, s.Fv_Rk, "0.00 ");
    }
    Distances(s, show);
    Effective_numbers(s, show);
    // With he typed by the user the check runs only when he is accepted.
    if (!s.Man_he_on) {
        Check_splitting(s, show);
    }
    Utilisation(s, show, Rk_bolt, Rk_for);
    show.Visible(Control::Cmd_detail, true);
    s.Loading = false;
    return PassEnd::normal;
}

PassResult Run_pass(ConnectionState& s, Screen* screen, MessageBox& box) {
    try {
        return {Main_beregn(s, screen, box), std::nullopt};
    } catch (const RuntimeFault& fault) {
        return {PassEnd::fault, fault};
    }
}

} // namespace tarnvik
