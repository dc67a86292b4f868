#include "calc/Screen.h"

#include <gtest/gtest.h>

#include <set>

namespace tarnvik {
namespace {

TEST(Screen, every_control_that_a_pass_writes_has_its_name) {
    const std::set<std::string_view> wanted{
        "txtprosjekt",
        "txtid",
        "Fra_klasse",
        "Lbl_lastvar_1",
        "Lbl_lastvar_2",
        "Lbl_klima_2",
        "Lbl_kmod2",
        "Comb_bulldog",
        "mnuprint",
        "Lbl_skive_diameter2",
        "Lbl_skive_tykk2",
        "lbl_densitet2",
        "Lbl_fc90k2",
        "lbl_gm",
        "Txt_b1",
        "Txt_h1",
        "Txt_b2",
        "Txt_h2",
        "Cmd_boltetype(0)",
        "Cmd_boltetype(1)",
        "Lbl_bulldog2",
        "Fra_av_bulldog",
        "Fra_bulldog",
        "Lbl_bulldog_kap1",
        "Lbl_bulldog_kap2",
        "Lbl_pluss",
        "lbl_txt_avstand",
        "Comb_bolt_avstand",
        "Lbl_Rd_bulldog_kontroll",
        "Lbl_tot_eff_bulldog_1",
        "Lbl_2_nef_max",
        "Txt_alp",
        "Txt_man_he",
        "Lbl_tverr_2",
        "Lbl_tot_eff_bulldog_2",
        "Lbl_bolt_kap2",
        "Lbl_uf",
        "Lbl_last_kontroll",
        "Lbl_Rd_kontroll",
        "Cmd_detail",
    };
    std::set<std::string_view> names;
    for (std::size_t i = 0; i < control_count; ++i) {
        names.insert(Control_name(static_cast<Control>(i)));
    }
    // Other controls may join these: none of these may be missing and no name may stand twice.
    EXPECT_EQ(names.size(), control_count);
    for (const std::string_view name : wanted) {
        EXPECT_TRUE(names.contains(name)) << name;
    }
    EXPECT_EQ(Control_name(Control::Lbl_uf), "Lbl_uf");
    EXPECT_EQ(Control_name(Control::Cmd_boltetype_1), "Cmd_boltetype(1)");
    EXPECT_EQ(Control_name(Control::lbl_gm), "lbl_gm");
}

TEST(Screen, colours_are_those_of_the_window) {
    EXPECT_EQ(colour_green_box, 0x00FF00U);
    EXPECT_EQ(colour_white_box, 0xFFFFFFU);
    EXPECT_EQ(colour_holds, 32768U);
    EXPECT_EQ(colour_fails, 255U);
}

TEST(Screen, nothing_is_set_before_it_is_written) {
    const Screen screen;
    for (const ControlView& view : screen.controls) {
        EXPECT_FALSE(view.caption || view.visible || view.enabled || view.bold || view.fore || view.back || view.index);
    }
}

TEST(Screen, a_writer_sets_one_property_of_one_control) {
    Screen screen;
    const ScreenWriter show{&screen};
    show.Caption(Control::txtid, "B-7");
    show.Number(Control::Lbl_kmod2, 0.6F, "0.00 ");
    show.Visible(Control::Lbl_pluss, false);
    show.Enabled(Control::mnuprint, true);
    show.Back(Control::Comb_bulldog, colour_green_box);
    show.Index(Control::Comb_bolt_avstand, 3);
    EXPECT_EQ(screen[Control::txtid].caption, "B-7");
    EXPECT_EQ(screen[Control::Lbl_kmod2].caption, "0.60 ");
    EXPECT_EQ(screen[Control::Lbl_pluss].visible, false);
    EXPECT_EQ(screen[Control::mnuprint].enabled, true);
    EXPECT_EQ(screen[Control::Comb_bulldog].back, colour_green_box);
    EXPECT_EQ(screen[Control::Comb_bolt_avstand].index, 3);
    EXPECT_FALSE(screen[Control::txtid].visible.has_value());
    show.Caption(Control::txtid, "");
    EXPECT_EQ(screen[Control::txtid].caption, ""); // written, and empty
    EXPECT_EQ(show.Target(), &screen);
}

TEST(Screen, a_utilisation_is_bold_and_turns_red_above_the_limit) {
    struct Row {
        const char* name;
        float value;
        const char* text;
        std::uint32_t fore;
    };
    // clang-format off
    const Row rows[] = {
        {"zero",                      0.0F,           "0.00 ", 32768},
        {"below",                     0.99F,          "0.99 ", 32768},
        {"reads 1.00 and is below",   0.9999F,        "1.00 ", 32768},
        {"exactly 1.0",               1.0F,           "1.00 ", 32768},
        {"reads 1.00 and is above",   0x1.000002p0F,  "1.00 ", 255},
        {"above",                     1.987F,         "1.99 ", 255},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        Screen screen;
        ScreenWriter{&screen}.Utilisation(Control::Lbl_uf, row.value, "0.00 ");
        EXPECT_EQ(screen[Control::Lbl_uf].caption, row.text);
        EXPECT_EQ(screen[Control::Lbl_uf].bold, true);
        EXPECT_EQ(screen[Control::Lbl_uf].fore, row.fore);
    }
}

TEST(Screen, a_writer_without_a_screen_writes_nothing) {
    const ScreenWriter nowhere{nullptr};
    nowhere.Caption(Control::txtid, "B-7");
    nowhere.Number(Control::Lbl_kmod2, 0.6F, "0.00 ");
    nowhere.Visible(Control::Lbl_pluss, true);
    nowhere.Enabled(Control::mnuprint, true);
    nowhere.Back(Control::Comb_bulldog, 0);
    nowhere.Index(Control::Comb_bolt_avstand, 0);
    nowhere.Utilisation(Control::Lbl_uf, 2.0F, "0.00 ");
    EXPECT_EQ(nowhere.Target(), nullptr);
}

} // namespace
} // namespace tarnvik
