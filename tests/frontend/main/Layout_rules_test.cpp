// The layout: each control where its rule puts it. Expected places are worked out here from the window's size.
#include <cmath>

#include "tests/support/Window.h"

namespace tarnvik::test {
namespace {

// A place relative to the parent, in pixels; a negative number is not compared.
struct Expected {
    const char* control;
    double left, top, width, height;
};

constexpr double any = -1.0;
constexpr double twip = 1.0 / 15.0; // pixels at 96 dots per inch

class LayoutRules : public WindowTest {
protected:
    // A pixel for the rounding at each end.
    void Expect(const std::vector<Expected>& rows) {
        for (const Expected& row : rows) {
            const QRect place = Find(row.control).geometry();
            const auto compare = [&](const char* what, double expected, int actual) {
                if (expected >= 0.0) {
                    EXPECT_NEAR(actual, expected, 1.6) << row.control << " " << what;
                }
            };
            compare("left", row.left, place.left());
            compare("top", row.top, place.top());
            compare("width", row.width, place.width());
            compare("height", row.height, place.height());
        }
    }
    double Left(const char* name) { return Find(name).x(); }
    double Top(const char* name) { return Find(name).y(); }
    double Width(const char* name) { return Find(name).width(); }
    double Height(const char* name) { return Find(name).height(); }
    double Right(const char* name) { return Left(name) + Width(name); }
    double Bottom(const char* name) { return Top(name) + Height(name); }

    // The window of 1024 by 741 pixels.
    const double w = 1024.0;
    const double h = 0.965 * 768.0;
    const double input_w = w * 0.45;
    const double input_h = h * 0.93;
    const double results_w = w * 0.53;
    const double kap_w = results_w * 0.975;
    const double kap_h = input_h * 0.17;
};

TEST_F(LayoutRules, the_two_halves) {
    Start();
    Expect({{"fra_input", w * 0.005, 0.0, input_w, input_h},
            {"Fra_results", w * 0.005 + input_w + 75.0 * twip, 0.0, results_w, input_h}});
}

TEST_F(LayoutRules, names_and_fasteners) {
    Start();
    Click("Opt_bolt_bulldog(1)");
    const double x = input_w * 0.02;
    Expect({
        {"lbl_prosjekt", x, input_h * 0.02, any, any},
        {"txtprosjekt", x, input_h * 0.04, input_w * 0.79, any},
        {"lblid", x, Bottom("txtprosjekt"), any, any},
        {"txtid", x, Bottom("lblid") + 50.0 * twip, input_w * 0.79, any},
        {"Fra_valg_bolt_bulldog", x, Bottom("txtid") + 50.0 * twip, input_w * 0.25, input_h * 0.11},
        {"Fra_bolter", x + input_w * 0.25 + 50.0 * twip, Top("Fra_valg_bolt_bulldog"), input_w * 0.27, input_h * 0.11},
        {"Fra_bulldog", x + input_w * 0.52 + 150.0 * twip, Top("Fra_bolter"), any, input_h * 0.11},
        {"Opt_bolt_bulldog(1)", any, any, input_w * 0.25 * 0.9, any},
        {"Comb_bulldog", input_w * 0.44 * 0.05, input_h * 0.11 * 0.23, Width("Comb_bolter") * 1.1, any},
        {"Lbl_bulldog1", input_w * 0.44 * 0.05, Bottom("Comb_bulldog") + 50.0 * twip, any, any},
        {"Lbl_bulldog2", Right("Lbl_bulldog1") + 20.0 * twip, Top("Lbl_bulldog1"), any, any},
    });
    // Its rule takes it a pixel past the frame, where it ends.
    EXPECT_NEAR(Width("Fra_bulldog"), input_w * 0.44, 3.0);
    EXPECT_LE(Right("Fra_bulldog"), Width("fra_input") - 1.0);
    EXPECT_GE(Height("txtprosjekt"), 16.0); // never lower than a line of text, whatever the share of the frame
    EXPECT_GE(Height("txtid"), 16.0);
}

TEST_F(LayoutRules, material_and_dimensions) {
    Start();
    const double x = input_w * 0.02;
    const double main_w = input_w * 0.97;
    const double main_h = input_h * 0.17;
    const double standard_w = main_w * 0.24;
    const double standard_h = main_h * 0.89;
    const double member_w = standard_w * 0.89;
    const double free_w = Width("Fra_valgfri");
    const double area_w = free_w * 0.95;
    const double area_h = standard_h * 0.8;
    const double dim_w = area_w * 0.48;
    const double dim_h = area_h * 0.96;
    const double inner_w = dim_w * 0.9;
    const double inner_h = dim_h * 0.8;
    Expect({
        {"Fra_material", x, Bottom("Fra_bolter"), main_w, input_h * 0.07},
        {"Fra_dim_main", x, Bottom("Fra_material") + 40.0 * twip, main_w, main_h},
        {"Opt_stand", main_w * 0.005, main_h * 0.2, main_w * 0.175, main_h * 0.3},
        {"Opt_valg", main_w * 0.005, main_h * 0.5, main_w * 0.175, main_h * 0.3},
        {"Fra_standard", main_w * 0.18, main_h * 0.07, standard_w, standard_h},
        {"Fra_b1_h1", standard_w * 0.06, standard_h * 0.12, member_w, standard_h * 0.4},
        {"cboProf1", member_w * 0.05, standard_h * 0.4 * 0.3, any, any},
        {"Fra_b2_h2", standard_w * 0.06, standard_h * 0.53, member_w, standard_h * 0.42},
        {"cboProf2", member_w * 0.05, standard_h * 0.42 * 0.35, any, any},
        {"Fra_valgfri", main_w * 0.43, Top("Fra_standard"), any, standard_h},
        {"Pic_Dim", free_w * 0.03, standard_h * 0.15, area_w, area_h},
        {"Fra_dim_1", area_w * 0.02, area_h * 0.005, dim_w, dim_h},
        {"Fra_dim_2", area_w * 0.02 + dim_w + 25.0 * twip, area_h * 0.005, dim_w, dim_h},
        {"Pic_dim_1", dim_w * 0.05, dim_h * 0.15, inner_w, inner_h},
        {"Pic_dim_2", dim_w * 0.05, dim_h * 0.15, inner_w, inner_h},
        {"Lbl_b1", inner_w * 0.01, inner_h * 0.08, any, any},
        {"Txt_b1", inner_w * 0.3, inner_h * 0.08, any, any},
        {"Lbl_h1", inner_w * 0.01, inner_h * 0.55, any, any},
        {"Txt_h1", inner_w * 0.3, inner_h * 0.55, any, any},
        {"Lbl_b2", inner_w * 0.01, inner_h * 0.08, any, any},
        {"Txt_b2", inner_w * 0.3, inner_h * 0.08, any, any},
        {"Lbl_h2", inner_w * 0.01, inner_h * 0.55, any, any},
        {"Txt_h2", inner_w * 0.3, inner_h * 0.55, any, any},
    });
}

TEST_F(LayoutRules, classes_type_and_connection) {
    Start();
    const double x = input_w * 0.02;
    const double klasse_w = input_w * 0.97;
    const double klasse_h = input_h * 0.055;
    const double last_w = input_w * 0.42;
    const double last_h = input_h * 0.1;
    const double picture_h = input_h * 0.28;
    const double forces_h = last_h * 0.5;
    const double shear_w = input_w * 0.97;
    const double shear_h = input_h * 0.09;
    Expect({
        {"Fra_klasse", x, Bottom("Fra_dim_main"), klasse_w, klasse_h},
        {"Lbl_lastvar_1", klasse_w * 0.012, klasse_h * 0.4, klasse_w * 0.23, any},
        {"Lbl_lastvar_2", klasse_w * 0.242, klasse_h * 0.4, klasse_w * 0.2, any},
        {"Lbl_klima_1", klasse_w * 0.442 + 150.0 * twip, klasse_h * 0.4, any, any},
        {"Lbl_klima_2", Right("Lbl_klima_1"), klasse_h * 0.4, any, any},
        {"Lbl_kmod1", klasse_w * 0.73, klasse_h * 0.4, any, any},
        {"Lbl_kmod2", klasse_w * 0.82, klasse_h * 0.38, any, any},
        {"Fra_type", x, input_h * 0.53, klasse_w, input_w * 0.135},
        {"Fra_forbindelse", x, input_h * 0.62, any, picture_h},
        {"Pic_forbindelse", any, picture_h * 0.07, any, picture_h * 0.9},
        {"Fra_last", input_w * 0.57, input_h * 0.62, last_w, last_h},
        {"Pic_last", last_w * 0.01, last_h * 0.2, last_w * 0.97, forces_h},
        {"Lbl_last", last_w * 0.97 * 0.02, forces_h * 0.15, any, any},
        {"Txt_last", Right("Lbl_last") + 45.0 * twip, forces_h * 0.15, any, any},
        {"Lbl_alp", Right("Txt_last") + 50.0 * twip, forces_h * 0.15, any, any},
        {"Txt_alp", Right("Lbl_alp") + 45.0 * twip, forces_h * 0.15, any, any},
        {"Opt_trykk", last_w * 0.97 * 0.02, last_h * 0.65, any, any},
        {"Opt_strekk", Left("Lbl_alp") + 200.0 * twip, last_h * 0.65, any, any},
        {"Fra_bolt_alt", input_w * 0.57, input_h * 0.72 + 20.0 * twip, last_w, picture_h * 0.3},
        {"Fra_skive", input_w * 0.57, input_h * 0.72 + picture_h * 0.3 + 40.0 * twip, last_w, picture_h * 0.33},
        {"Lbl_skive_diameter1", any, picture_h * 0.33 * 0.25, any, any},
        {"Lbl_skive_diameter2", any, picture_h * 0.33 * 0.25, any, any},
        {"Lbl_skive_tykk1", any, picture_h * 0.33 * 0.6, any, any},
        {"Lbl_skive_tykk2", Left("Lbl_skive_diameter2"), picture_h * 0.33 * 0.6, any, any},
        {"Fra_bolt_for", x, input_h * 0.9, shear_w, shear_h},
        {"Fra_snitt_1", shear_w * 0.02, shear_h * 0.2, shear_w * 0.475, shear_h * 0.75},
        {"Fra_snitt_2", shear_w * 0.495 + 100.0 * twip, shear_h * 0.2, shear_w * 0.475, shear_h * 0.75},
        {"Opt_enk_1", shear_w * 0.475 * 0.03, shear_h * 0.75 * 0.3, any, any},
        {"Opt_dob_1", shear_w * 0.475 * 0.55, shear_h * 0.75 * 0.3, any, any},
        {"Opt_enk_2", shear_w * 0.475 * 0.03, shear_h * 0.75 * 0.3, any, any},
        {"Opt_dob_2", shear_w * 0.475 * 0.55, shear_h * 0.75 * 0.3, any, any},
    });
}

TEST_F(LayoutRules, capacities) {
    Start();
    Click("Opt_bolt_bulldog(1)");
    const double tverr_h = kap_h * 0.9;
    const double tverr_w = 1600.0 * twip;
    const double area_w = tverr_w * 0.95;
    const double area_h = tverr_h * 0.86;
    const double nef_w = kap_w * 0.35;
    const double nef_left = Right("Fra_tverr_brudd") + 50.0 * twip;
    const double control = Top("Lbl_bolt_kontroll");
    Expect({
        {"Fra_bolt_kap", results_w * 0.012, input_h * 0.016, kap_w, kap_h},
        {"Lbl_bolt_kap1", kap_w * 0.01, kap_h * 0.15, any, any},
        {"Lbl_bolt_kap2", Right("Lbl_bolt_kap1") + 390.0 * twip, kap_h * 0.15, any, any},
        {"Lbl_bulldog_kap1", kap_w * 0.01, Bottom("Lbl_bolt_kap1") + 100.0 * twip, any, any},
        {"Lbl_bulldog_kap2", Left("Lbl_bolt_kap2"), Top("Lbl_bulldog_kap1"), any, any},
        {"Lbl_bolt_kontroll", kap_w * 0.01, Bottom("Lbl_bulldog_kap1") + 100.0 * twip, any, any},
        {"Lbl_last_kontroll", Right("Lbl_bolt_kontroll"), control, any, any},
        {"Lbl_strek", Right("Lbl_last_kontroll") + 50.0 * twip, control - 50.0 * twip, any, any},
        {"Lbl_Rd_kontroll", Right("Lbl_strek"), control, any, any},
        {"Lbl_pluss", Right("Lbl_Rd_kontroll") + 50.0 * twip, control, any, any},
        {"Lbl_Rd_bulldog_kontroll", Right("Lbl_pluss"), control, any, any},
        {"Lbl_lik", Right("Lbl_Rd_bulldog_kontroll") + 50.0 * twip, control, any, any},
        {"Lbl_uf", Left("Lbl_bolt_kap2"), control, any, any},
        {"Fra_tverr_brudd", Right("Lbl_bolt_kap2") + 50.0 * twip, kap_h * 0.08, tverr_w, tverr_h},
        {"Pic_tverr_brudd", tverr_w * 0.03, tverr_h * 0.115, area_w, area_h},
        {"Check_man", area_w * 0.05, area_h * 0.05, any, any},
        {"Lbl_man_he", area_w * 0.05, area_h * 0.26, any, any},
        {"Txt_man_he", Right("Lbl_man_he") + 500.0 * twip, area_h * 0.26, any, any},
        {"lbl_tverr_1", area_w * 0.05, area_h * 0.51, 800.0 * twip, 250.0 * twip},
        {"Lbl_tverr_2", Left("Txt_man_he"), area_h * 0.51, Width("Txt_man_he"), 250.0 * twip},
        {"Cmd_tverr", area_w * 0.4, area_h * 0.73, any, any},
        {"Fra_nef", nef_left, kap_h * 0.08, nef_w, tverr_h},
        {"lbl_txt_avstand", nef_left * 0.02, tverr_h * 0.47, 600.0 * twip, 360.0 * twip},
        {"Comb_bolt_avstand", Right("lbl_txt_avstand") + 200.0 * twip, tverr_h * 0.47, any, any},
        {"Cmd_Bolt_eff_bolt", Left("Comb_bolt_avstand") + 20.0 * twip, tverr_h * 0.75, any, any},
        {"Lbl_tot_eff_bolts_1", nef_w * 0.028, tverr_h * 0.22, 750.0 * twip, 250.0 * twip},
        {"Lbl_2_nef_max", Right("Lbl_tot_eff_bolts_1") + 100.0 * twip, tverr_h * 0.22, any, any},
        {"Lbl_tot_eff_bulldog_1", Right("Lbl_2_nef_max") + 100.0 * twip, tverr_h * 0.22, 780.0 * twip, any},
        {"Lbl_tot_eff_bulldog_2", Right("Lbl_tot_eff_bulldog_1") + 100.0 * twip, tverr_h * 0.22, any, any},
        {"Cmd_detail", kap_w * 0.15, kap_h * 0.75, 1400.0 * twip, kap_h * 0.2},
    });
}

TEST_F(LayoutRules, sketches_and_tables) {
    Start();
    Click("Opt_bolt_bulldog(1)");
    const double frame_h = input_h * 0.4;
    const double top = input_h * 0.016 + kap_h;
    const double sketch_w = kap_w * 0.55;
    const double table_left = sketch_w + kap_w * 0.015 - 400.0 * twip;
    const double table_w = kap_w * 0.48;
    Expect({
        {"fra_av_bolter", results_w * 0.012, top, kap_w, frame_h},
        {"Pic_av_bolter", kap_w * 0.015, frame_h * 0.05, sketch_w, frame_h * 0.6},
        {"Fra_av_bolter_verdier", table_left, frame_h * 0.03, table_w, frame_h * 0.95},
        {"Pic_av_bolter_dif", table_w * 0.02, frame_h * 0.95 * 0.05, table_w * 0.96, frame_h * 0.95 * 0.93},
        {"Fra_av_bulldog", results_w * 0.012, top + frame_h + 10.0 * twip, kap_w, frame_h},
        {"Pic_av_bulldog", any, frame_h * 0.05, sketch_w, frame_h * 0.6},
        {"Fra_av_bulldog_verdier", table_left, frame_h * 0.05, table_w, frame_h * 0.93},
        {"Pic_av_bulldog_dif", table_w * 0.02, frame_h * 0.93 * 0.05, table_w * 0.95, frame_h * 0.93 * 0.93},
    });
    // The tables stand over the right end of the sketches.
    EXPECT_GT(Right("Pic_av_bolter"), Left("Fra_av_bolter_verdier"));
}

} // namespace
} // namespace tarnvik::test
