#include "calc/pass/Main_beregn.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

#include "spacing/Catalogue.h"
#include "tests/support/Calculation.h"
#include "tests/support/RecordingMessageBox.h"

namespace tarnvik {
namespace {

using test::New_project;
using test::Pick_connector;
using test::Pick_variant;
using test::RecordingMessageBox;

// One project with its screen, as the window holds them.
struct Desk {
    explicit Desk(std::string_view lang = "Eng") : state(New_project(lang)) {}

    PassResult Pass() { return Run_pass(s(), &screen, box); }
    ConnectionState& s() { return *state; }
    std::string Text(Control control) const { return screen[control].caption.value_or("(not written)"); }

    std::unique_ptr<ConnectionState> state;
    Screen screen;
    RecordingMessageBox box;
};

// A project with six bolts M16 and connectors D75 in glued laminated timber, Norwegian, all inputs unlike a new one.
void Make_other(ConnectionState& s) {
    s.Lang = "Nor";
    s.Prosjekt = "Bru";
    s.Id = "B-7";
    s.Lastvar = 3;
    s.Klima = 2;
    Pick_variant(s, 3, 3);
    s.Ant_index = 4;
    s.Bolt_ab = "a";
    s.Bolt_index = 5;
    Pick_connector(s, 2);
    s.Avstand_index = 6;
    s.Mat_index = 23; // GL22H
    s.Standard = false;
    s.Txt_b1 = "90";
    s.Txt_h1 = "400";
    s.Txt_b2 = "48,5";
    s.Txt_h2 = "300";
    s.alp = 40.0F;
    s.P = -60.0F;
}

// ---------------------------------------------------------------- the anchors: a new project

TEST(Main_beregn, a_new_project_calculates_to_the_known_values) {
    Desk desk;
    ConnectionState& s = desk.s();
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(s.Con_code.View(), "1.1");
    EXPECT_EQ(s.Case_code.View(), "1.2.b");
    EXPECT_EQ(s.n_bolt, 2);
    EXPECT_TRUE(s.Ab_valg);
    EXPECT_TRUE(s.Has_row);
    EXPECT_EQ(s.a1, 100.0F);
    EXPECT_EQ(s.n_row, 2);
    EXPECT_EQ(s.rows, 1);
    EXPECT_EQ(s.b1, 34.0F);
    EXPECT_EQ(s.h1, 95.0F);
    EXPECT_EQ(s.b2, 36.0F);
    EXPECT_EQ(s.h2, 73.0F);
    EXPECT_EQ(s.kmod, 0.6F);
    EXPECT_EQ(s.gm, 1.3F);
    EXPECT_EQ(s.fh1k, 21.648000717163086F);
    EXPECT_EQ(s.fh2k, 19.39629554748535F);
    EXPECT_EQ(s.My_Rk, 579280.9375F);
    EXPECT_EQ(s.Fax_skive, 16886.361328125F);
    EXPECT_EQ(s.Fv_c, 7419.98486328125F); // governs
    for (const float other : {s.Fv_a, s.Fv_b, s.Fv_d, s.Fv_e, s.Fv_f}) {
        EXPECT_LT(s.Fv_c, other);
    }
    EXPECT_EQ(s.nef_b, 1.4695476293563843F);
    EXPECT_EQ(s.Rd_bolt, 5.032625675201416F);
    EXPECT_EQ(s.uf, 1.9870343208312988F);
    EXPECT_EQ(s.he, 13.0F);
    EXPECT_EQ(s.F90_Rd, 0.9251154661178589F);
    EXPECT_EQ(s.Tverr_kontroll, 4.568184852600098F);
    EXPECT_EQ(s.Sb2, 80.0F);
    EXPECT_EQ(s.Sb2_txt, "4 x d");
    EXPECT_EQ(s.Ca3, 100.0F);
    EXPECT_EQ(s.Ca3_txt, "5 x d");
    EXPECT_EQ(s.Cb3, 42.44036102294922F);
    EXPECT_EQ(s.Cb3_txt, "Dx(0.6+0.2xSin alpha)");
    EXPECT_EQ(s.Sum_cb, 154.0403594970703F);
    EXPECT_TRUE(desk.box.messages.empty());
}

// ---------------------------------------------------------------- what every control shows

struct Shown {
    Control control;
    std::optional<std::string> caption{};
    std::optional<bool> visible{}, enabled{}, bold{};
    std::optional<std::uint32_t> fore{}, back{};
    std::optional<int> index{};
};

void Expect_screen(const Screen& screen, const std::vector<Shown>& wanted) {
    const Shown nothing{Control::count};
    for (std::size_t i = 0; i < control_count; ++i) {
        const auto control = static_cast<Control>(i);
        const auto found =
            std::find_if(wanted.begin(), wanted.end(), [control](const Shown& row) { return row.control == control; });
        const Shown& row = found == wanted.end() ? nothing : *found;
        const ControlView& view = screen.controls[i];
        SCOPED_TRACE(Control_name(control));
        EXPECT_EQ(view.caption, row.caption);
        EXPECT_EQ(view.visible, row.visible);
        EXPECT_EQ(view.enabled, row.enabled);
        EXPECT_EQ(view.bold, row.bold);
        EXPECT_EQ(view.fore, row.fore);
        EXPECT_EQ(view.back, row.back);
        EXPECT_EQ(view.index, row.index);
    }
}

// Controls that are not listed are not written at all.
TEST(Main_beregn, screen_of_a_new_project) {
    Desk desk;
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    // clang-format off
    Expect_screen(desk.screen, {
        {.control = Control::txtprosjekt,             .caption = "Project 1"},
        {.control = Control::txtid,                   .caption = "Bolt Connections -1"},
        {.control = Control::Fra_klasse,              .caption = "Classes"},
        {.control = Control::Lbl_lastvar_1,           .caption = "Load-duration class ="},
        {.control = Control::Lbl_lastvar_2,           .caption = "Permanent action    "},
        {.control = Control::Lbl_klima_2,             .caption = "1"},
        {.control = Control::Lbl_kmod2,               .caption = "0.60 "},
        {.control = Control::Lbl_skive_diameter2,     .caption = "60.0 "},
        {.control = Control::Lbl_skive_tykk2,         .caption = "6.0 "},
        {.control = Control::lbl_densitet2,           .caption = "330 "},
        {.control = Control::Lbl_fc90k2,              .caption = "2.3 "},
        {.control = Control::lbl_gm,                  .caption = "1.30 "},
        {.control = Control::Txt_b1,                  .caption = "34.0"},
        {.control = Control::Txt_h1,                  .caption = "95.0"},
        {.control = Control::Txt_b2,                  .caption = "36.0"},
        {.control = Control::Txt_h2,                  .caption = "73.0"},
        {.control = Control::Cmd_boltetype_0,         .enabled = true},
        {.control = Control::Cmd_boltetype_1,         .enabled = true},
        {.control = Control::Fra_av_bulldog,          .visible = false},
        {.control = Control::Fra_bulldog,             .visible = false},
        {.control = Control::Lbl_bulldog_kap1,        .visible = false},
        {.control = Control::Lbl_bulldog_kap2,        .caption = "0.0 ", .visible = false},
        {.control = Control::Lbl_pluss,               .visible = false},
        {.control = Control::Lbl_Rd_bulldog_kontroll, .visible = false},
        {.control = Control::Comb_bolt_avstand,       .visible = true, .index = 0},
        {.control = Control::Lbl_tot_eff_bulldog_1,   .visible = false},
        {.control = Control::Lbl_tot_eff_bulldog_2,   .caption = "2.0 ", .visible = false},
        {.control = Control::Lbl_2_nef_max,           .caption = "1.47 "},
        {.control = Control::lbl_txt_avstand,         .visible = true},
        {.control = Control::Txt_alp,                 .enabled = true},
        {.control = Control::Txt_man_he,              .caption = "13"},
        {.control = Control::Lbl_tverr_2,             .caption = "4.57", .bold = true, .fore = 255},
        {.control = Control::Lbl_bolt_kap2,           .caption = "5.0 "},
        {.control = Control::Lbl_last_kontroll,       .caption = "10.0"},
        {.control = Control::Lbl_Rd_kontroll,         .caption = "5.0"},
        {.control = Control::Lbl_uf,                  .caption = "1.99 ", .bold = true, .fore = 255},
        {.control = Control::Cmd_detail,              .visible = true},
    });
    // clang-format on
}

// Values of the other project by the reference calculation: kmod 0.8, gm 1.25, d_skive 48, t_skive 4.8, rho_k 370,
// fc90k 2.5, Fv_Rk 17.166, nef_b 5.156, nef_f 5.7, Rd_bolt 97.364, Rd_for 125.242, uf 0.2695, he 352, splitting 0.883.
std::vector<Shown> Other_screen() {
    // clang-format off
    return {
        {.control = Control::txtprosjekt,             .caption = "Bru"},
        {.control = Control::txtid,                   .caption = "B-7"},
        {.control = Control::Fra_klasse,              .caption = "Klasser"},
        {.control = Control::Lbl_lastvar_1,           .caption = "Lastvarighetsklasse = "},
        {.control = Control::Lbl_lastvar_2,           .caption = "Halvårslast         "},
        {.control = Control::Lbl_klima_2,             .caption = "2"},
        {.control = Control::Lbl_kmod2,               .caption = "0.80 "},
        {.control = Control::Comb_bulldog,            .back = 16777215},
        {.control = Control::mnuprint,                .enabled = true},
        {.control = Control::Lbl_skive_diameter2,     .caption = "48.0 "},
        {.control = Control::Lbl_skive_tykk2,         .caption = "4.8 "},
        {.control = Control::lbl_densitet2,           .caption = "370 "},
        {.control = Control::Lbl_fc90k2,              .caption = "2.5 "},
        {.control = Control::lbl_gm,                  .caption = "1.25 "},
        {.control = Control::Txt_b1,                  .caption = "90.0"},
        {.control = Control::Txt_h1,                  .caption = "400.0"},
        {.control = Control::Txt_b2,                  .caption = "48.5"},
        {.control = Control::Txt_h2,                  .caption = "300.0"},
        {.control = Control::Cmd_boltetype_0,         .enabled = false},
        {.control = Control::Cmd_boltetype_1,         .enabled = false},
        {.control = Control::Lbl_bulldog2,            .caption = "17.17 "},
        {.control = Control::Fra_av_bulldog,          .visible = true},
        {.control = Control::Fra_bulldog,             .visible = true},
        {.control = Control::Lbl_bulldog_kap1,        .visible = true},
        {.control = Control::Lbl_bulldog_kap2,        .caption = "125.2 ", .visible = true},
        {.control = Control::Lbl_pluss,               .visible = true},
        {.control = Control::Lbl_Rd_bulldog_kontroll, .caption = "125.2", .visible = true},
        {.control = Control::Comb_bolt_avstand,       .visible = true, .index = 6},
        {.control = Control::Lbl_tot_eff_bulldog_1,   .visible = true},
        {.control = Control::Lbl_tot_eff_bulldog_2,   .caption = "5.7 ", .visible = true},
        {.control = Control::Lbl_2_nef_max,           .caption = "5.16 "},
        {.control = Control::lbl_txt_avstand,         .visible = true},
        {.control = Control::Txt_alp,                 .enabled = true},
        {.control = Control::Txt_man_he,              .caption = "352"},
        {.control = Control::Lbl_tverr_2,             .caption = "0.88", .bold = true, .fore = 32768},
        {.control = Control::Lbl_bolt_kap2,           .caption = "97.4 "},
        {.control = Control::Lbl_last_kontroll,       .caption = "60.0"},
        {.control = Control::Lbl_Rd_kontroll,         .caption = "97.4"},
        {.control = Control::Lbl_uf,                  .caption = "0.27 ", .bold = true, .fore = 32768},
        {.control = Control::Cmd_detail,              .visible = true},
    };
    // clang-format on
}

TEST(Main_beregn, screen_of_a_norwegian_project_with_connectors) {
    Desk desk;
    Make_other(desk.s());
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    Expect_screen(desk.screen, Other_screen());
    EXPECT_EQ(desk.s().Case_code.View(), "3.6. ");
    EXPECT_EQ(Other_screen().size(), control_count); // such a pass writes every control
}

TEST(Main_beregn, the_system_sign_stands_in_every_number) {
    Set_decimal_sign(',');
    Desk desk;
    Make_other(desk.s());
    const PassEnd end = desk.Pass().end;
    const PassEnd second = desk.Pass().end; // reads its own texts back
    Set_decimal_sign('.');
    ASSERT_EQ(end, PassEnd::normal);
    ASSERT_EQ(second, PassEnd::normal);
    EXPECT_EQ(desk.s().b2, 48.5F);
    for (Shown row : Other_screen()) {
        if (row.caption && row.control != Control::txtid && row.control != Control::txtprosjekt) {
            std::replace(row.caption->begin(), row.caption->end(), '.', ',');
            EXPECT_EQ(desk.screen[row.control].caption, row.caption) << Control_name(row.control);
        }
    }
}

TEST(Main_beregn, a_case_without_a_row_shows_the_number_of_bolts_and_hides_the_spacing) {
    Desk desk;
    desk.s().Bolt_ab = "a";
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(desk.s().Case_code.View(), "1.2.a");
    EXPECT_FALSE(desk.s().Has_row);
    EXPECT_EQ(desk.Text(Control::Lbl_2_nef_max), "2.00 ");
    EXPECT_EQ(desk.Text(Control::Lbl_tot_eff_bulldog_2), "2.0 ");
    EXPECT_EQ(desk.screen[Control::lbl_txt_avstand].visible, false);
    EXPECT_EQ(desk.screen[Control::Comb_bolt_avstand].visible, false);
    // 0.6 x 7419.985 x 2 / 1300
    EXPECT_NEAR(desk.s().Rd_bolt, 0.6 * 7419.98486328125 * 2.0 / 1300.0, 1e-6);
}

TEST(Main_beregn, the_angle_box_is_enabled_for_types_1_to_3) {
    Desk desk;
    desk.s().Prof1_index = desk.s().Prof2_index = 120;
    for (std::int16_t type = 1; type <= 5; ++type) {
        SCOPED_TRACE(type);
        Pick_variant(desk.s(), type, 1);
        desk.s().alp = type <= 3 ? 27.0F : 90.0F;
        ASSERT_EQ(desk.Pass().end, PassEnd::normal);
        EXPECT_EQ(desk.screen[Control::Txt_alp].enabled, type <= 3);
    }
}

TEST(Main_beregn, a_typed_he_keeps_the_angle_box_as_it_was) {
    Desk desk;
    desk.s().Prof1_index = desk.s().Prof2_index = 120;
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    desk.s().Man_he_on = true;
    Pick_variant(desk.s(), 4, 1);
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(desk.s().Case_code.View(), "4.2.b");
    EXPECT_EQ(desk.screen[Control::Txt_alp].enabled, true);
}

TEST(Main_beregn, utilisation_turns_red_on_the_unrounded_value) {
    Desk desk;
    desk.s().Man_he_on = true;
    desk.s().P = 5.0326257F; // the capacity itself: 5.032625675
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(desk.s().uf, 1.0F);
    EXPECT_EQ(desk.Text(Control::Lbl_uf), "1.00 ");
    EXPECT_EQ(desk.screen[Control::Lbl_uf].fore, 32768U);
    desk.s().P = 5.0327F;
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(desk.Text(Control::Lbl_uf), "1.00 ");
    EXPECT_EQ(desk.screen[Control::Lbl_uf].fore, 255U);
}

// ---------------------------------------------------------------- order of the steps

// One thing that a step leaves behind, as a text.
struct Probe {
    double step;
    const char* name;
    std::function<std::string(const Desk&)> value;
};

std::string Text_of(float value) {
    return test::Bits(value);
}

std::vector<Probe> Probes() {
    const auto caption = [](double step, const char* name, Control control) {
        return Probe{step, name, [control](const Desk& desk) { return desk.Text(control); }};
    };
    const auto number = [](double step, const char* name, float ConnectionValues::*member) {
        return Probe{step, name, [member](const Desk& desk) { return Text_of((*desk.state).*member); }};
    };
    const auto visible = [](double step, const char* name, Control control) {
        return Probe{step, name, [control](const Desk& desk) {
                         return std::to_string(int{desk.screen[control].visible.value_or(false)});
                     }};
    };
    const auto enabled = [](double step, const char* name, Control control) {
        return Probe{step, name, [control](const Desk& desk) {
                         return std::to_string(int{desk.screen[control].enabled.value_or(false)});
                     }};
    };
    using V = ConnectionValues;
    // clang-format off
    return {
        caption(1,    "txtprosjekt",       Control::txtprosjekt),
        caption(1,    "txtid",             Control::txtid),
        caption(2,    "Fra_klasse",        Control::Fra_klasse),
        caption(2,    "Lbl_lastvar_1",     Control::Lbl_lastvar_1),
        caption(3,    "Lbl_lastvar_2",     Control::Lbl_lastvar_2),
        caption(3,    "Lbl_klima_2",       Control::Lbl_klima_2),
        number (4,    "kmod",              &V::kmod),
        caption(4,    "Lbl_kmod2",         Control::Lbl_kmod2),
        {5,           "n_bolt",            [](const Desk& desk) { return std::to_string(desk.state->n_bolt); }},
        number (7,    "d",                 &V::d),
        number (7,    "d_skive",           &V::d_skive),
        caption(7,    "Lbl_skive_tykk2",   Control::Lbl_skive_tykk2),
        number (8,    "rho_k",             &V::rho_k),
        number (8,    "gm",                &V::gm),
        caption(8,    "lbl_densitet2",     Control::lbl_densitet2),
        caption(8,    "lbl_gm",            Control::lbl_gm),
        number (9.1,  "b1",                &V::b1),
        number (9.1,  "h1",                &V::h1),
        number (9.2,  "b2",                &V::b2),
        number (9.2,  "h2",                &V::h2),
        caption(11,   "Txt_b1",            Control::Txt_b1),
        caption(11,   "Txt_h2",            Control::Txt_h2),
        {11,          "Txt_h1 of the state", [](const Desk& desk) { return desk.state->Txt_h1; }},
        {12,          "Con_code",          [](const Desk& desk) { return std::string{desk.state->Con_code.View()}; }},
        {13,          "Ab_valg",           [](const Desk& desk) { return std::to_string(int{desk.state->Ab_valg}); }},
        enabled(14,   "Cmd_boltetype(0)",  Control::Cmd_boltetype_0),
        enabled(14,   "Cmd_boltetype(1)",  Control::Cmd_boltetype_1),
        number (15.1, "k90",               &V::k90),
        number (15.2, "t1",                &V::t1),
        number (15.5, "alp2",              &V::alp2),
        number (15.6, "My_Rk",             &V::My_Rk),
        number (16,   "Fv_Rk",             &V::Fv_Rk),
        caption(16,   "Lbl_bulldog2",      Control::Lbl_bulldog2),
        {17,          "Sb6_lbl",           [](const Desk& desk) { return std::string{desk.state->Sb6_lbl}; }}, // cleared
        visible(18,   "Fra_bulldog",       Control::Fra_bulldog),
        visible(18,   "Lbl_pluss",         Control::Lbl_pluss),
        number (17,   "Sum_cb",            &V::Sum_cb), // cleared, filled by step 19
        {20,          "Comb_bolt_avstand", [](const Desk& desk) {
                                               return std::to_string(desk.screen[Control::Comb_bolt_avstand].index.value_or(-1));
                                           }},
        {21,          "Case_code",         [](const Desk& desk) { return std::string{desk.state->Case_code.View()}; }},
        {22,          "Has_row",           [](const Desk& desk) { return std::to_string(int{desk.state->Has_row}); }},
        number (22,   "a1",                &V::a1),
        {22,          "rows",              [](const Desk& desk) { return std::to_string(desk.state->rows); }},
        number (23,   "nef_b",             &V::nef_b),
        number (23,   "nef_f",             &V::nef_f),
        visible(24,   "Lbl_tot_eff_1",     Control::Lbl_tot_eff_bulldog_1),
        visible(24,   "Lbl_tot_eff_2",     Control::Lbl_tot_eff_bulldog_2),
        caption(25,   "Lbl_2_nef_max",     Control::Lbl_2_nef_max),
        visible(25,   "lbl_txt_avstand",   Control::lbl_txt_avstand),
        visible(25,   "Comb_bolt_avstand", Control::Comb_bolt_avstand),
        enabled(26.1, "Txt_alp",           Control::Txt_alp),
        number (26.2, "he",                &V::he),
        caption(26.3, "Txt_man_he",        Control::Txt_man_he),
        number (26.9, "Tverr_kontroll",    &V::Tverr_kontroll),
        caption(26.9, "Lbl_tverr_2",       Control::Lbl_tverr_2),
        number (27,   "Rd_bolt",           &V::Rd_bolt),
        caption(27,   "Lbl_bolt_kap2",     Control::Lbl_bolt_kap2),
        number (28,   "Rd_for",            &V::Rd_for),
        caption(29,   "Lbl_bulldog_kap2",  Control::Lbl_bulldog_kap2),
        caption(30,   "Lbl_last_kontroll", Control::Lbl_last_kontroll),
        caption(30,   "Lbl_Rd_kontroll",   Control::Lbl_Rd_kontroll),
        caption(31.1, "Lbl_Rd_bulldog_kontroll", Control::Lbl_Rd_bulldog_kontroll),
        number (31.2, "uf",                &V::uf),
        caption(32,   "Lbl_uf",            Control::Lbl_uf),
        visible(33,   "Cmd_detail",        Control::Cmd_detail),
        {34,          "Loading",           [](const Desk& desk) { return std::to_string(int{desk.state->Loading}); }},
    };
    // clang-format on
}

// A desk after one pass; everything that a second pass may change differs from what it will leave.
std::unique_ptr<Desk> Before() {
    auto desk = std::make_unique<Desk>();
    desk->s().Bolt_ab = "a";  // 1.2.a: no row
    desk->s().Rd_for = 33.0F; // of an earlier pass
    EXPECT_EQ(desk->Pass().end, PassEnd::normal);
    // The traces of a longer record, which the clearing of the distances takes away.
    desk->s().Sb6_lbl = "b6";
    desk->s().Loading = true;
    desk->screen[Control::Cmd_detail].visible = false;
    ConnectionState& s = desk->s();
    // The inputs of a second pass: 4.4 in glued laminated timber, M16 with D75, all unlike the first.
    s.Lang = "Nor";
    s.Prosjekt = "Bru";
    s.Id = "B-7";
    s.Lastvar = 4;
    s.Klima = 3;
    Pick_variant(s, 4, 1);
    s.Ant_index = 3;
    s.Bolt_index = 1;
    Pick_connector(s, 2);
    s.Avstand_index = 4;
    s.Mat_index = 23;
    s.Prof1_index = 126;
    s.Prof2_index = 120;
    s.alp = 90.0F;
    s.P = -40.0F;
    return desk;
}

TEST(Main_beregn, a_whole_pass_brings_everything_up_to_date) {
    const auto desk = Before();
    std::vector<std::string> old;
    for (const Probe& probe : Probes()) {
        old.push_back(probe.value(*desk));
    }
    ASSERT_EQ(desk->Pass().end, PassEnd::normal);
    std::size_t i = 0;
    for (const Probe& probe : Probes()) {
        EXPECT_NE(probe.value(*desk), old[i++]) << probe.name;
    }
    EXPECT_EQ(desk->s().Case_code.View(), "4.4. ");
}

TEST(Main_beregn, a_pass_that_ends_early_has_done_the_steps_before_and_none_behind) {
    struct Row {
        const char* name;
        std::function<void(ConnectionState&)> disturb;
        PassEnd end;
        int fault;
        double done, not_reached; // steps up to and including the one, from the other on
    };
    // clang-format off
    const Row rows[] = {
        {"step 6: connector refused",
         [](ConnectionState& s) { s.Bolt_index = 0; s.Bulldog_index = 3; },
         PassEnd::connector_refused, 0, 5, 7},
        {"step 8: no such material",
         [](ConnectionState& s) { s.Mat_index = 101; },
         PassEnd::fault, 9, 7, 8},
        {"step 9: no such section of member 1",
         [](ConnectionState& s) { s.Prof1_index = 401; },
         PassEnd::fault, 9, 8, 9.1},
        {"step 9: no such section of member 2",
         [](ConnectionState& s) { s.Prof2_index = -1; },
         PassEnd::fault, 9, 9.1, 9.2},
        {"step 10: a section without size",
         [](ConnectionState& s) { s.Prof2_index = 400; },
         PassEnd::zero_section, 0, 9.2, 11},
        {"step 15: no density",
         [](ConnectionState& s) { s.Mat[23].dens = 0.0F; },
         PassEnd::fault, 11, 15.2, 15.5},
        {"step 19: a connector beyond a float",
         [](ConnectionState& s) { s.dc = 3e38F; },
         PassEnd::fault, 6, 18, 20},
        {"step 26: a member lower than its edge distance",
         [](ConnectionState& s) { s.Prof[126].h = 10.0F; },
         PassEnd::fault, 5, 26.3, 26.9},
        {"step 27: no partial factor, he typed",
         [](ConnectionState& s) { s.Mat[23].Type = "L"; s.gm_L = 0.0F; s.Man_he_on = true; },
         PassEnd::fault, 11, 25, 26.1},
        {"step 31: a capacity next to nothing",
         [](ConnectionState& s) { s.Mat[23].dens = 1e-37F; },
         PassEnd::fault, 6, 31.1, 31.2},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const auto desk = Before();
        std::vector<std::string> old;
        for (const Probe& probe : Probes()) {
            old.push_back(probe.value(*desk));
        }
        row.disturb(desk->s());
        const PassResult result = desk->Pass();
        EXPECT_EQ(result.end, row.end);
        EXPECT_EQ(result.fault.has_value(), row.fault != 0);
        if (result.fault) {
            EXPECT_EQ(result.fault->number, row.fault);
        }
        std::size_t i = 0;
        for (const Probe& probe : Probes()) {
            if (probe.step <= row.done) {
                EXPECT_NE(probe.value(*desk), old[i]) << probe.name << " of step " << probe.step;
            } else if (probe.step >= row.not_reached) {
                EXPECT_EQ(probe.value(*desk), old[i]) << probe.name << " of step " << probe.step;
            }
            ++i;
        }
    }
}

TEST(Main_beregn, effective_numbers_come_before_the_labels_of_step_24) {
    Desk desk;
    desk.s().Bolt_ab = "a"; // no row: n_row stays what it is
    desk.s().n_row = -1;
    const PassResult result = desk.Pass();
    ASSERT_TRUE(result.fault.has_value());
    EXPECT_EQ(result.fault->number, 5);
    EXPECT_EQ(desk.s().Case_code.View(), "1.2.a");
    EXPECT_EQ(desk.screen[Control::Comb_bolt_avstand].index, 0);
    EXPECT_FALSE(desk.screen[Control::Lbl_tot_eff_bulldog_1].visible.has_value());
}

// ---------------------------------------------------------------- the ends of a pass

TEST(Main_beregn, names_of_the_ends) {
    EXPECT_EQ(Pass_end_name(PassEnd::normal), "normal");
    EXPECT_EQ(Pass_end_name(PassEnd::connector_refused), "connector refused");
    EXPECT_EQ(Pass_end_name(PassEnd::zero_section), "zero section");
    EXPECT_EQ(Pass_end_name(PassEnd::fault), "fault");
}

TEST(Main_beregn, only_the_normal_end_clears_loading_and_shows_the_detail_button) {
    struct Row {
        PassEnd end;
        std::function<void(ConnectionState&)> disturb;
    };
    const Row rows[] = {
        {PassEnd::normal, [](ConnectionState&) {}},
        {PassEnd::connector_refused, [](ConnectionState& s) { Pick_connector(s, 0); }}, // M20 with D50
        {PassEnd::zero_section, [](ConnectionState& s) { s.Prof1_index = 400; }},
        {PassEnd::fault, [](ConnectionState& s) { s.Mat_index = -1; }},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(Pass_end_name(row.end));
        Desk desk;
        desk.s().Loading = true; // a pass does not test it
        row.disturb(desk.s());
        EXPECT_EQ(desk.Pass().end, row.end);
        EXPECT_EQ(desk.s().Loading, row.end != PassEnd::normal);
        EXPECT_EQ(desk.screen[Control::Cmd_detail].visible.value_or(false), row.end == PassEnd::normal);
    }
}

TEST(Main_beregn, a_refused_connector_leaves_sections_and_results_until_the_choice_is_mended) {
    Desk desk;
    desk.s().Prof1_index = desk.s().Prof2_index = 120;
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    const ConnectionState before = desk.s();
    Pick_connector(desk.s(), 0); // D50 with M20x8.8
    desk.s().Prof1_index = 100;
    desk.s().P = 77.0F;
    EXPECT_EQ(desk.Pass().end, PassEnd::connector_refused);
    ASSERT_EQ(desk.box.messages.size(), 1U);
    EXPECT_EQ(desk.box.messages[0].text, "Use larger connector or smaller bolt");
    EXPECT_EQ(desk.s().b1, before.b1);
    EXPECT_EQ(desk.s().uf, before.uf);
    EXPECT_EQ(desk.s().Sum_b, before.Sum_b);
    EXPECT_EQ(desk.Text(Control::Lbl_last_kontroll), "10.0");
    EXPECT_EQ(desk.screen[Control::Comb_bulldog].back, 65280U);
    EXPECT_EQ(desk.screen[Control::mnuprint].enabled, false);
    desk.s().Bolt_index = 5; // M16x8.8
    EXPECT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(desk.Text(Control::Lbl_last_kontroll), "77.0");
    EXPECT_EQ(desk.screen[Control::Comb_bulldog].back, 16777215U);
    EXPECT_EQ(desk.screen[Control::mnuprint].enabled, true);
    EXPECT_EQ(desk.box.messages.size(), 1U);
}

TEST(Main_beregn, leaving_a_refused_connector_for_bolts_only_leaves_its_colour_and_the_menu) {
    Desk desk;
    Pick_connector(desk.s(), 0);
    EXPECT_EQ(desk.Pass().end, PassEnd::connector_refused);
    desk.s().Med_bulldog = false;
    desk.s().Kun_bolt = true;
    EXPECT_EQ(desk.Pass().end, PassEnd::normal); // the check does not run
    EXPECT_TRUE(desk.s().Bulldog_invalid);
    EXPECT_EQ(desk.screen[Control::Comb_bulldog].back, 65280U);
    EXPECT_EQ(desk.screen[Control::mnuprint].enabled, false);
    Pick_connector(desk.s(), 1); // D62 fits M20
    EXPECT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_FALSE(desk.s().Bulldog_invalid);
    EXPECT_EQ(desk.screen[Control::Comb_bulldog].back, 16777215U);
    EXPECT_EQ(desk.screen[Control::mnuprint].enabled, true);
}

TEST(Main_beregn, an_invalid_flag_of_earlier_stops_a_pass_with_a_connector_outside_the_table) {
    Desk desk;
    Pick_connector(desk.s(), 0);
    EXPECT_EQ(desk.Pass().end, PassEnd::connector_refused);
    desk.s().Bulldog_index = 5; // not checked: the flag stays
    EXPECT_EQ(desk.Pass().end, PassEnd::connector_refused);
    EXPECT_EQ(desk.box.messages.size(), 1U);
}

TEST(Main_beregn, each_side_of_zero_ends_the_pass_silently) {
    std::string ConnectionValues::*const texts[] = {&ConnectionValues::Txt_b1, &ConnectionValues::Txt_h1,
                                                    &ConnectionValues::Txt_b2, &ConnectionValues::Txt_h2};
    for (const auto text : texts) {
        for (const char* zero : {"0", "0,0", "", "abc", "-0"}) {
            SCOPED_TRACE(zero);
            Desk desk;
            ConnectionState& s = desk.s();
            s.Standard = false;
            s.Txt_b1 = s.Txt_b2 = "90";
            s.Txt_h1 = s.Txt_h2 = "400";
            s.*text = zero;
            EXPECT_EQ(desk.Pass().end, PassEnd::zero_section);
            EXPECT_EQ(s.*text, zero); // neither written back nor shown
            EXPECT_EQ(desk.Text(Control::Txt_b1), "(not written)");
            EXPECT_EQ(s.Con_code.View(), "   ");
            EXPECT_TRUE(desk.box.messages.empty());
        }
    }
}

TEST(Main_beregn, a_side_that_only_shows_as_zero_is_computed_once_and_stops_the_next_pass) {
    Desk desk;
    desk.s().Standard = false;
    desk.s().Txt_b1 = "0,04";
    desk.s().Txt_b2 = "90";
    desk.s().Txt_h1 = desk.s().Txt_h2 = "400";
    EXPECT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(desk.s().b1, 0.04F);
    EXPECT_EQ(desk.s().Txt_b1, "0.0");
    EXPECT_EQ(desk.Pass().end, PassEnd::zero_section);
}

TEST(Main_beregn, a_negative_width_is_computed_with) {
    Desk desk;
    desk.s().Standard = false;
    desk.s().Txt_b1 = "-45";
    desk.s().Txt_b2 = "90";
    desk.s().Txt_h1 = desk.s().Txt_h2 = "400";
    EXPECT_NE(desk.Pass().end, PassEnd::zero_section);
    EXPECT_EQ(desk.s().b1, -45.0F);
    EXPECT_EQ(desk.Text(Control::Txt_b1), "-45.0");
    EXPECT_EQ(desk.s().t1, -45.0F);
}

TEST(Main_beregn, a_typed_section_drifts_to_one_decimal_in_the_second_pass) {
    for (const char sign : {'.', ','}) {
        SCOPED_TRACE(sign);
        Set_decimal_sign(sign);
        Desk desk;
        ConnectionState& s = desk.s();
        s.Standard = false;
        s.Txt_b1 = "100,55";
        s.Txt_h1 = "100.25"; // half, away from zero
        s.Txt_b2 = "90";
        s.Txt_h2 = "400";
        const PassEnd first = desk.Pass().end;
        const float b1_first = s.b1;
        const float h1_first = s.h1;
        const std::string shown = desk.Text(Control::Txt_b1);
        const std::string held = s.Txt_b1;
        const PassEnd second = desk.Pass().end;
        Set_decimal_sign('.');
        ASSERT_EQ(first, PassEnd::normal);
        ASSERT_EQ(second, PassEnd::normal);
        EXPECT_EQ(b1_first, 100.55F);
        EXPECT_EQ(h1_first, 100.25F);
        EXPECT_EQ(shown, sign == '.' ? "100.6" : "100,6");
        EXPECT_EQ(held, shown);
        EXPECT_EQ(s.b1, 100.6F);
        EXPECT_EQ(s.h1, 100.3F);
    }
}

TEST(Main_beregn, sections_of_the_table_overwrite_the_typed_texts) {
    Desk desk;
    desk.s().Txt_b1 = "77,7";
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(desk.s().Txt_b1, "34.0");
}

// ---------------------------------------------------------------- stale values

TEST(Main_beregn, the_modes_of_the_other_family_stay) {
    Desk desk;
    ConnectionState& s = desk.s();
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(s.Fv_g, 0.0F);
    EXPECT_EQ(s.Fax_min, 0.0F); // single shear does not store it
    const float Fv_c = s.Fv_c;
    Pick_variant(s, 1, 2);
    s.Bolt_index = 0;
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(s.Fv_c, Fv_c);
    EXPECT_GT(s.Fv_g, 0.0F);
    const float Fv_g = s.Fv_g;
    const float Fax_min = s.Fax_min;
    Pick_variant(s, 1, 1);
    s.Bolt_index = 3;
    s.Prof1_index = s.Prof2_index = 120;
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(s.Fv_g, Fv_g);
    EXPECT_EQ(s.Fax_min, Fax_min);
    EXPECT_NE(s.Fv_c, Fv_c);
}

TEST(Main_beregn, bolts_only_after_connectors_shows_the_old_capacity_hidden_and_ignores_it) {
    Desk desk;
    ConnectionState& s = desk.s();
    s.Prof1_index = s.Prof2_index = 120;
    Pick_connector(s, 1);
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    const float Rd_for = s.Rd_for;
    const float Fv_Rk = s.Fv_Rk;
    const float hc = s.hc;
    const std::string shown = desk.Text(Control::Lbl_bulldog_kap2);
    const std::string check = desk.Text(Control::Lbl_Rd_bulldog_kontroll);
    ASSERT_GT(Rd_for, 0.0F);
    s.Med_bulldog = false;
    s.Kun_bolt = true;
    s.Lastvar = 5;
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(s.Rd_for, Rd_for);
    EXPECT_EQ(s.Fv_Rk, Fv_Rk);
    EXPECT_EQ(s.hc, hc);
    EXPECT_EQ(desk.Text(Control::Lbl_bulldog_kap2), shown); // written again, hidden
    EXPECT_EQ(desk.screen[Control::Lbl_bulldog_kap2].visible, false);
    EXPECT_EQ(desk.Text(Control::Lbl_Rd_bulldog_kontroll), check);
    EXPECT_EQ(s.uf, static_cast<float>(std::fabs(static_cast<double>(s.P) / s.Rd_bolt)));
}

TEST(Main_beregn, lbl_bulldog_kap2_is_written_without_connectors_too) {
    Desk desk;
    desk.s().Rd_for = 12.34F; // from an opened project
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(desk.Text(Control::Lbl_bulldog_kap2), "12.3 ");
    EXPECT_EQ(desk.Text(Control::Lbl_bulldog2), "(not written)");
}

TEST(Main_beregn, a_case_without_a_row_computes_effective_numbers_from_the_last_row_and_does_not_use_them) {
    Desk desk;
    ConnectionState& s = desk.s();
    s.Prof1_index = s.Prof2_index = 120;
    s.Ant_index = 4;     // 1.6.: 2 in each of 3 rows
    s.Avstand_index = 8; // 13 d: 2^0.9 a row
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(s.Case_code.View(), "1.6. ");
    EXPECT_EQ(s.nef_b_row, static_cast<float>(1.8660659830736148));
    EXPECT_EQ(s.a1, 260.0F);
    s.Ant_index = 0; // 1.1.: no row
    s.Bolt_index = 0;
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_FALSE(s.Has_row);
    EXPECT_EQ(s.a1, 260.0F);
    EXPECT_EQ(s.n_row, 2);
    EXPECT_EQ(s.rows, 3);
    EXPECT_EQ(s.nef_b_row, 2.0F); // 260 is more than 13 d of M12: limited
    EXPECT_EQ(s.nef_b, 6.0F);
    EXPECT_EQ(desk.Text(Control::Lbl_2_nef_max), "1.00 ");
    const float one = s.Rd_bolt;
    s.rows = 1;
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(s.Rd_bolt, one);
}

TEST(Main_beregn, before_any_row_the_effective_numbers_are_zero) {
    Desk desk;
    desk.s().Bolt_ab = "a";
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(desk.s().nef_b_row, 0.0F);
    EXPECT_EQ(desk.s().nef_f_row, 0.0F);
    EXPECT_EQ(desk.s().nef_b, 0.0F);
    EXPECT_EQ(desk.s().nef_f, 0.0F);
    EXPECT_GT(desk.s().Rd_bolt, 0.0F);
}

TEST(Main_beregn, the_distances_are_cleared_in_every_pass) {
    Desk desk;
    ConnectionState& s = desk.s();
    s.Prof1_index = s.Prof2_index = 120;
    s.Ant_index = 4;
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(s.Sb6_lbl, "b6");
    s.Ant_index = 0;
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(s.Sb6_lbl, "");
    EXPECT_EQ(s.Sb6, 0.0F);
    EXPECT_EQ(s.Sb4, 0.0F);
}

TEST(Main_beregn, a_typed_he_keeps_the_splitting_result_whatever_else_changes) {
    Desk desk;
    ConnectionState& s = desk.s();
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    s.Man_he_on = true;
    s.man_he = 44.0F;
    s.P = 20.0F;
    s.alp = 60.0F;
    s.Lastvar = 5;
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(s.he, 13.0F);
    EXPECT_EQ(s.F90_Rd, 0.9251154661178589F);
    EXPECT_EQ(s.Tverr_kontroll, 4.568184852600098F);
    EXPECT_EQ(desk.Text(Control::Lbl_tverr_2), "4.57");
    EXPECT_EQ(desk.Text(Control::Txt_man_he), "13");
    s.Man_he_on = false;
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_NE(s.Tverr_kontroll, 4.568184852600098F);
}

TEST(Main_beregn, he_reaches_to_the_farthest_bolt_at_minimum_distance_for_either_sign) {
    Desk desk;
    ConnectionState& s = desk.s();
    s.Prof1_index = s.Prof2_index = 120;
    s.alp = 45.0F;
    for (const CaseRow& row : case_table) {
        SCOPED_TRACE(row.Case_code);
        Pick_variant(s, static_cast<std::int16_t>(row.type - '0'), 1);
        s.Ant_index = static_cast<std::int16_t>(row.n_bolt == 6 ? 4 : row.n_bolt - 1);
        s.Bolt_ab = row.letter == 'a' ? "a" : "b";
        s.P = 10.0F;
        ASSERT_EQ(desk.Pass().end, PassEnd::normal);
        const float pressed = s.he;
        s.P = -10.0F;
        ASSERT_EQ(desk.Pass().end, PassEnd::normal);
        // The bolts lie 3 d from the unloaded edge for either sign. 5.2.b, 5.3.b and 5.6.b have the distances of type 4
        // and the columns of type 5: there it is the 4 d of the other edge.
        const bool other_edge = row.type == '5' && row.letter == 'b';
        const float height = row.type == '1' ? s.h2 : s.h1;
        EXPECT_EQ(pressed, height - (other_edge ? 80.0F : 60.0F));
        EXPECT_EQ(s.he, height - (other_edge ? 80.0F : 60.0F));
    }
}

TEST(Main_beregn, a_force_of_exactly_zero_is_tension_for_the_splitting_check) {
    // Case 1.2.b: tension reads b3, which at zero holds the loaded edge of compression: (2 + 2 S) d = 68.28 at 45
    // degrees.
    Desk desk;
    ConnectionState& s = desk.s();
    s.Prof1_index = s.Prof2_index = 120;
    s.alp = 45.0F;
    s.P = 0.0F;
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_NEAR(s.he, s.h2 - (2.0 + 2.0 * 0.7070949513) * 20.0, 2e-5); // one step of a float of that size
    EXPECT_EQ(s.uf, 0.0F);
    EXPECT_EQ(s.Tverr_kontroll, 0.0F);
    EXPECT_EQ(desk.Text(Control::Lbl_tverr_2), "0.00");
    EXPECT_EQ(desk.screen[Control::Lbl_tverr_2].fore, 32768U);
}

// ---------------------------------------------------------------- faults and inputs out of range

TEST(Main_beregn, a_material_of_an_unknown_type_keeps_gm_and_faults_right_after_the_start) {
    Desk desk;
    desk.s().Mat[3].Type = "X";
    PassResult result = desk.Pass();
    ASSERT_EQ(result.end, PassEnd::fault);
    EXPECT_EQ(result.fault->number, 11);
    EXPECT_EQ(desk.Text(Control::lbl_gm), "0.00 ");
    desk.s().Mat_index = 4;
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    desk.s().Mat_index = 3;
    ASSERT_EQ(desk.Pass().end, PassEnd::normal); // with the factor of before
    EXPECT_EQ(desk.s().gm, 1.3F);
}

TEST(Main_beregn, a_type_outside_the_catalogue_before_any_other_faults_in_the_splitting_check) {
    Desk desk;
    desk.s().Con_type = 6;
    desk.s().he = 55.0F;
    const PassResult result = desk.Pass();
    ASSERT_EQ(result.end, PassEnd::fault);
    EXPECT_EQ(result.fault->number, 11);
    EXPECT_EQ(result.fault->where, "Tverr_brudd");
    EXPECT_EQ(desk.s().Con_code.View(), "   ");
    EXPECT_EQ(desk.s().Case_code.View(), "     ");
    EXPECT_EQ(desk.s().he, 0.0F); // stored before the fault
    EXPECT_EQ(desk.Text(Control::Txt_man_he), "00");
    EXPECT_FALSE(desk.screen[Control::Txt_alp].enabled.has_value());
}

TEST(Main_beregn, a_type_outside_the_catalogue_later_keeps_code_and_case) {
    Desk desk;
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    desk.s().Con_type = 6;
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(desk.s().Con_code.View(), "1.1");
    EXPECT_EQ(desk.s().Case_code.View(), "1.2.b");
    EXPECT_FALSE(desk.s().Has_row); // no routine of a type runs
    EXPECT_EQ(desk.s().Sb2, 80.0F); // but the sketch follows the code
}

TEST(Main_beregn, member_lower_than_its_edge_distance_faults) {
    struct Row {
        const char* name;
        float h2;
        int fault;
    };
    for (const Row row : {Row{"he below zero", 59.0F, 5}, Row{"he zero", 60.0F, 11}, Row{"he just above", 61.0F, 0}}) {
        SCOPED_TRACE(row.name);
        Desk desk;
        desk.s().Prof[6].h = row.h2;
        const PassResult result = desk.Pass();
        EXPECT_EQ(result.fault ? result.fault->number : 0, row.fault);
        if (result.fault) {
            EXPECT_EQ(result.fault->where, "Tverr_brudd");
        }
    }
}

TEST(Main_beregn, a_foreign_letter_draws_the_a_branch_and_keeps_the_former_case) {
    Desk desk;
    ConnectionState& s = desk.s();
    s.Prof1_index = s.Prof2_index = 120;
    s.Ant_index = 4;
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(s.Case_code.View(), "1.6. ");
    Pick_variant(s, 5, 1);
    s.Bolt_ab = "x";
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(s.Con_code.View(), "5.1");
    EXPECT_EQ(s.Case_code.View(), "1.6. ");
    EXPECT_EQ(s.Sum_b_txt, "b1+b2+b3+b4"); // 5.6.a
}

TEST(Main_beregn, a_distance_of_zero_makes_he_the_whole_height_and_faults) {
    // The case of before reads a4 in compression; the three distances of 3.2.a do not reach so far.
    Desk desk;
    ConnectionState& s = desk.s();
    s.Prof1_index = s.Prof2_index = 120;
    Pick_variant(s, 2, 1);
    s.Ant_index = 4;
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(s.Case_code.View(), "2.6. ");
    Pick_variant(s, 3, 1);
    s.Ant_index = 1;
    s.Bolt_ab = "x";
    const PassResult result = desk.Pass();
    ASSERT_EQ(result.end, PassEnd::fault);
    EXPECT_EQ(result.fault->number, 11);
    EXPECT_EQ(result.fault->where, "Tverr_brudd");
    EXPECT_EQ(s.Case_code.View(), "2.6. ");
    EXPECT_EQ(s.he, s.h1);
}

TEST(Main_beregn, no_capacity_faults_in_the_utilisation) {
    Desk desk;
    desk.s().Lastvar = 0; // kmod stays 0
    desk.s().Man_he_on = true;
    const PassResult result = desk.Pass();
    ASSERT_EQ(result.end, PassEnd::fault);
    EXPECT_EQ(result.fault->number, 11);
    EXPECT_EQ(desk.s().Rd_bolt, 0.0F);
    EXPECT_EQ(desk.Text(Control::Lbl_bolt_kap2), "0.0 ");
    EXPECT_EQ(desk.Text(Control::Lbl_Rd_kontroll), "0.0");
    EXPECT_EQ(desk.Text(Control::Lbl_uf), "(not written)");
}

TEST(Main_beregn, service_class_3_lowers_kmod) {
    Desk desk;
    desk.s().Klima = 3;
    desk.s().Lastvar = 5;
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(desk.s().kmod, 0.9F);
    EXPECT_EQ(desk.Text(Control::Lbl_kmod2), "0.90 ");
    EXPECT_EQ(desk.Text(Control::Lbl_klima_2), "3");
    desk.s().Klima = 2;
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(desk.s().kmod, 1.1F);
    desk.s().Klima = 4; // outside: stays
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(desk.s().kmod, 1.1F);
    EXPECT_EQ(desk.Text(Control::Lbl_klima_2), "4");
}

TEST(Main_beregn, every_language_but_eng_is_norwegian) {
    Desk desk;
    desk.s().Lang = "Swe";
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(desk.Text(Control::Fra_klasse), "Klasser");
    EXPECT_EQ(desk.s().Lastvar_txt.View(), "Permanent           ");
}

TEST(Main_beregn, the_five_bolt_row_and_a_number_out_of_the_list_keep_the_former) {
    Desk desk;
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    desk.s().Ant_index = 5;
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(desk.s().n_bolt, 2);
    EXPECT_EQ(desk.s().Case_code.View(), "1.2.b");
}

TEST(Main_beregn, the_letter_waits_while_type_2_does_not_use_it) {
    Desk desk;
    ConnectionState& s = desk.s();
    s.Prof1_index = s.Prof2_index = 120;
    s.Bolt_ab = "a";
    Pick_variant(s, 2, 1);
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(s.Case_code.View(), "2.2. ");
    EXPECT_EQ(s.Bolt_ab.View(), "a");
    EXPECT_FALSE(s.Ab_valg);
    EXPECT_EQ(desk.screen[Control::Cmd_boltetype_0].enabled, false);
    EXPECT_EQ(desk.screen[Control::Cmd_boltetype_1].enabled, false);
    Pick_variant(s, 3, 1);
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(s.Case_code.View(), "3.2.a");
    EXPECT_EQ(desk.screen[Control::Cmd_boltetype_0].enabled, true);
}

TEST(Main_beregn, six_bolts_stand_2_by_3_or_3_by_2) {
    struct Row {
        std::int16_t type;
        const char* letter;
        std::int16_t n_row, rows;
    };
    // clang-format off
    const Row table[] = {
        {1, "a", 2, 3}, {1, "b", 2, 3},
        {2, "a", 3, 2}, {2, "b", 3, 2},
        {3, "a", 3, 2}, {3, "b", 3, 2},
        {4, "a", 2, 3}, {4, "b", 3, 2},
        {5, "a", 2, 3}, {5, "b", 3, 2},
    };
    // clang-format on
    Desk desk;
    ConnectionState& s = desk.s();
    s.Prof1_index = s.Prof2_index = 120;
    s.Ant_index = 4;
    for (const Row& row : table) {
        SCOPED_TRACE(testing::Message() << row.type << row.letter);
        Pick_variant(s, row.type, 1);
        s.Bolt_ab = row.letter;
        ASSERT_EQ(desk.Pass().end, PassEnd::normal);
        EXPECT_EQ(s.n_row, row.n_row);
        EXPECT_EQ(s.rows, row.rows);
    }
}

TEST(Main_beregn, the_spacing_of_the_row_is_the_bolts_also_with_connectors) {
    Desk desk;
    ConnectionState& s = desk.s();
    s.Prof1_index = s.Prof2_index = 120;
    s.Bolt_index = 1;
    Pick_connector(s, 3); // D95: 1.5 D is 142.5, 5 d is 80
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    EXPECT_EQ(s.Ca3, 142.5F);
    EXPECT_EQ(s.a1, 80.0F);
}

TEST(Main_beregn, shows_no_message_of_its_own) {
    Desk desk;
    desk.s().Mat_index = 101;
    EXPECT_EQ(desk.Pass().end, PassEnd::fault);
    desk.s().Mat_index = 3;
    desk.s().Prof1_index = 400;
    EXPECT_EQ(desk.Pass().end, PassEnd::zero_section);
    EXPECT_TRUE(desk.box.messages.empty());
}

TEST(Main_beregn, the_fault_is_thrown_where_nobody_asked_for_a_result) {
    Desk desk;
    desk.s().Mat_index = 101;
    EXPECT_EQ(test::Fault_of([&] { Main_beregn(desk.s(), nullptr, desk.box); }), 9);
}

TEST(Main_beregn, the_same_inputs_give_the_same_results_again) {
    Desk desk;
    Make_other(desk.s());
    ASSERT_EQ(desk.Pass().end, PassEnd::normal);
    const float uf = desk.s().uf;
    const float sum = desk.s().Sum_cb;
    for (int i = 0; i < 3; ++i) {
        ASSERT_EQ(desk.Pass().end, PassEnd::normal);
        EXPECT_EQ(desk.s().uf, uf);
        EXPECT_EQ(desk.s().Sum_cb, sum);
    }
}

} // namespace
} // namespace tarnvik
