#include "calc/GlobalParameter.h"

#include <gtest/gtest.h>

#include "calc/pass/Main_beregn.h"
#include "tests/support/Calculation.h"

namespace tarnvik {
namespace {

using test::Fault_of;

// The state is too large for the stack of a test.
std::unique_ptr<ConnectionState> Empty() {
    return std::make_unique<ConnectionState>();
}

TEST(GlobalParameter, a_new_state_has_the_defaults_of_a_new_connection) {
    const auto s = Empty();
    EXPECT_EQ(s->Lastvar, 1);
    EXPECT_EQ(s->Klima, 1);
    EXPECT_EQ(s->Mat_index, 3);
    EXPECT_TRUE(s->Standard);
    EXPECT_EQ(s->Prof1_index, 3);
    EXPECT_EQ(s->Prof2_index, 6);
    EXPECT_EQ(s->Con_type, 1);
    EXPECT_TRUE(s->enk_1);
    EXPECT_FALSE(s->dob_1);
    EXPECT_TRUE(s->enk_2);
    EXPECT_FALSE(s->dob_2);
    EXPECT_EQ(s->alp, 25.0F);
    EXPECT_TRUE(s->Kun_bolt);
    EXPECT_FALSE(s->Med_bulldog);
    EXPECT_EQ(s->Bolt_index, 6);
    EXPECT_EQ(s->Bulldog_index, 1);
    EXPECT_EQ(s->dc, 62.0F);
    EXPECT_EQ(s->Ant_index, 1);
    EXPECT_EQ(s->Bolt_ab.View(), "b");
    EXPECT_EQ(s->Avstand_index, 0);
    EXPECT_EQ(s->P, 10.0F);
    EXPECT_FALSE(s->Man_he_on);
    EXPECT_FALSE(s->Bulldog_invalid);
}

TEST(GlobalParameter, what_has_no_default_starts_at_zero_or_empty) {
    const auto s = Empty();
    EXPECT_EQ(s->gm, 0.0F);
    EXPECT_EQ(s->n_bolt, 0);
    EXPECT_EQ(s->n_row, 0);
    EXPECT_EQ(s->rows, 0);
    EXPECT_EQ(s->man_he, 0.0F);
    EXPECT_EQ(s->Con_code.View(), "   ");
    EXPECT_EQ(s->Case_code.View(), "     ");
    EXPECT_EQ(s->Lastvar_txt.View(), "                    ");
    EXPECT_EQ(s->t1_txt, "");
    EXPECT_EQ(s->Sa1_lbl, "");
    EXPECT_EQ(s->Sum_a, 0.0F);
    EXPECT_EQ(s->Mat.size(), 101U);  // rows 0 to 100
    EXPECT_EQ(s->Prof.size(), 401U); // rows 0 to 400
}

TEST(GlobalParameter, bolt_table) {
    struct Row {
        std::int16_t index;
        const char* caption;
        float d, fuk, d_skive, t_skive;
    };
    // clang-format off
    const Row rows[] = {
        {0, "M12x4.6", 12.0F, 400.0F, 36.0F, 3.6F},
        {1, "M16x4.6", 16.0F, 400.0F, 48.0F, 4.8F},
        {2, "M20x4.6", 20.0F, 400.0F, 60.0F, 6.0F},
        {3, "M24x4.6", 24.0F, 400.0F, 72.0F, 7.2F},
        {4, "M12x8.8", 12.0F, 800.0F, 36.0F, 3.6F},
        {5, "M16x8.8", 16.0F, 800.0F, 48.0F, 4.8F},
        {6, "M20x8.8", 20.0F, 800.0F, 60.0F, 6.0F},
        {7, "M24x8.8", 24.0F, 800.0F, 72.0F, 7.2F},
    };
    // clang-format on
    ASSERT_EQ(bolt_table.size(), std::size(rows));
    const auto s = Empty();
    for (const Row& row : rows) {
        SCOPED_TRACE(row.caption);
        EXPECT_EQ(bolt_table[static_cast<std::size_t>(row.index)].caption, row.caption);
        s->Bolt_index = row.index;
        Get_bolt(*s);
        Get_skive(*s);
        EXPECT_EQ(s->d, row.d);
        EXPECT_EQ(s->fuk, row.fuk);
        EXPECT_EQ(s->d_skive, row.d_skive);
        EXPECT_EQ(s->t_skive, row.t_skive);
    }
}

TEST(GlobalParameter, a_bolt_row_outside_the_table_leaves_the_bolt) {
    const auto s = Empty();
    for (const int index : {-1, 8, 32767, -32768}) {
        SCOPED_TRACE(index);
        s->d = 10.0F;
        s->fuk = 500.0F;
        s->Bolt_index = static_cast<std::int16_t>(index);
        Get_bolt(*s);
        EXPECT_EQ(s->d, 10.0F);
        EXPECT_EQ(s->fuk, 500.0F);
    }
}

TEST(GlobalParameter, connector_table) {
    struct Row {
        const char *eng, *nor;
        float picked_dc, dc, hc, t;
    };
    // D50 puts 48 into the state and counts as 50 in the strength formula: kept as it stands.
    // clang-format off
    const Row rows[] = {
        {"Double-sided D50",  "Tosidig D50",   48.0F,  50.0F, 13.0F, 1.0F},
        {"Double-sided D62",  "Tosidig D62",   62.0F,  62.0F, 16.0F, 1.2F},
        {"Double-sided D75",  "Tosidig D75",   75.0F,  75.0F, 19.5F, 1.25F},
        {"Double-sided D95",  "Tosidig D95",   95.0F,  95.0F, 24.0F, 1.35F},
        {"Double-sided D117", "Tosidig D117", 117.0F, 117.0F, 30.0F, 1.5F},
    };
    // clang-format on
    ASSERT_EQ(connector_table.size(), std::size(rows));
    const auto s = Empty();
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        SCOPED_TRACE(rows[i].eng);
        EXPECT_EQ(connector_table[i].caption_eng, rows[i].eng);
        EXPECT_EQ(connector_table[i].caption_nor, rows[i].nor);
        EXPECT_EQ(connector_table[i].dc, rows[i].dc);
        EXPECT_EQ(connector_table[i].hc, rows[i].hc);
        EXPECT_EQ(connector_table[i].t, rows[i].t);
        s->Bulldog_index = static_cast<std::int16_t>(i);
        Get_dc(*s);
        EXPECT_EQ(s->dc, rows[i].picked_dc);
    }
    for (const int index : {-1, 5}) {
        SCOPED_TRACE(index);
        s->Bulldog_index = static_cast<std::int16_t>(index);
        Get_dc(*s);
        EXPECT_EQ(s->dc, 117.0F);
    }
}

TEST(GlobalParameter, kmod_and_class_names) {
    struct Row {
        std::int16_t Lastvar;
        const char *eng, *nor; // as the fixed text of 20 characters holds them
        float klima_1, klima_2, klima_3;
    };
    // clang-format off
    const Row rows[] = {
        {1, "Permanent action    ", "Permanent           ", 0.6F, 0.6F, 0.5F},
        {2, "Long term action    ", "Langtidslast        ", 0.7F, 0.7F, 0.55F},
        {3, "Medium term action  ", "Halvårslast         ", 0.8F, 0.8F, 0.65F},
        {4, "Short term action   ", "Kortidslast         ", 0.9F, 0.9F, 0.7F},
        {5, "Instantaneous action", "Øyeblikkslast       ", 1.1F, 1.1F, 0.9F},
    };
    // clang-format on
    const auto s = Empty();
    const ScreenWriter nowhere{nullptr};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.eng);
        s->Lastvar = row.Lastvar;
        const float wanted[] = {row.klima_1, row.klima_2, row.klima_3};
        for (int klima = 1; klima <= 3; ++klima) {
            SCOPED_TRACE(klima);
            s->Klima = static_cast<std::int16_t>(klima);
            Get_kmod(*s);
            EXPECT_EQ(s->kmod, wanted[klima - 1]);
        }
        Lang_klasser_Eng(*s, nowhere);
        EXPECT_EQ(s->Lastvar_txt.View(), row.eng);
        Lang_klasser_Nor(*s, nowhere);
        EXPECT_EQ(s->Lastvar_txt.View(), row.nor);
    }
}

TEST(GlobalParameter, a_class_outside_the_table_leaves_kmod_and_its_name) {
    const auto s = Empty();
    const ScreenWriter nowhere{nullptr};
    for (const int lastvar : {0, 6, -1, 32767}) {
        SCOPED_TRACE(lastvar);
        s->kmod = 0.33F;
        s->Lastvar_txt = "before";
        s->Klima = 1;
        s->Lastvar = static_cast<std::int16_t>(lastvar);
        Get_kmod(*s);
        Lang_klasser_Eng(*s, nowhere);
        Lang_klasser_Nor(*s, nowhere);
        EXPECT_EQ(s->kmod, 0.33F);
        EXPECT_EQ(s->Lastvar_txt, "before");
    }
    s->Lastvar = 5;
    for (const int klima : {0, 4, -1}) {
        SCOPED_TRACE(klima);
        s->Klima = static_cast<std::int16_t>(klima);
        Get_kmod(*s);
        EXPECT_EQ(s->kmod, 0.33F);
    }
}

TEST(GlobalParameter, class_captions_in_both_languages) {
    const auto s = Empty();
    Screen screen;
    const ScreenWriter show{&screen};
    Lang_klasser_Eng(*s, show);
    EXPECT_EQ(screen[Control::Fra_klasse].caption, "Classes");
    EXPECT_EQ(screen[Control::Lbl_lastvar_1].caption, "Load-duration class ="); // no blank at its end, unlike the other
    Lang_klasser_Nor(*s, show);
    EXPECT_EQ(screen[Control::Fra_klasse].caption, "Klasser");
    EXPECT_EQ(screen[Control::Lbl_lastvar_1].caption, "Lastvarighetsklasse = ");
}

TEST(GlobalParameter, gm_follows_the_whole_text_of_the_type) {
    struct Row {
        const char* type;
        float gm;
    };
    // clang-format off
    const Row rows[] = {
        {"T",   1.31F},
        {"L",   1.26F},
        {"Ke",  1.21F},
        {"K",   1.24F},
        {"",    9.0F}, // any other type keeps the former factor
        {"t",   9.0F},
        {"T ",  9.0F},
        {"KE",  9.0F},
        {"Ker", 9.0F},
        {"X",   9.0F},
    };
    // clang-format on
    const auto s = Empty();
    s->gm_T = 1.31F;
    s->gm_L = 1.26F;
    s->gm_Ke = 1.21F;
    s->gm_K = 1.24F;
    s->Mat_index = 7;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.type);
        s->gm = 9.0F;
        s->Mat[7].Type = row.type;
        Get_gm(*s);
        EXPECT_EQ(s->gm, row.gm);
    }
}

TEST(GlobalParameter, material_of_a_row_and_the_fault_outside_the_table) {
    const auto s = Empty();
    s->Mat[0].dens = 290.0F;
    s->Mat[0].fc90k = 2.0F;
    s->Mat[100].dens = 460.0F;
    s->Mat[100].fc90k = 3.2F;
    Get_material(*s, 0);
    EXPECT_EQ(s->rho_k, 290.0F);
    EXPECT_EQ(s->fc90k, 2.0F);
    Get_material(*s, 100);
    EXPECT_EQ(s->rho_k, 460.0F);
    EXPECT_EQ(s->fc90k, 3.2F);
    for (const int index : {-1, 101, 32767}) {
        SCOPED_TRACE(index);
        EXPECT_EQ(Fault_of([&] { Get_material(*s, index); }), 9);
        s->Mat_index = static_cast<std::int16_t>(index);
        EXPECT_EQ(Fault_of([&] { Get_gm(*s); }), 9);
        EXPECT_EQ(s->rho_k, 460.0F);
    }
}

TEST(GlobalParameter, number_of_bolts_never_is_five) {
    const auto s = Empty();
    const std::int16_t wanted[] = {1, 2, 3, 4, 6};
    for (std::int16_t index = 0; index < 5; ++index) {
        SCOPED_TRACE(index);
        s->Ant_index = index;
        Get_n_bolt(*s);
        EXPECT_EQ(s->n_bolt, wanted[index]);
    }
    for (const int index : {-1, 5, 100}) {
        SCOPED_TRACE(index);
        s->n_bolt = 4;
        s->Ant_index = static_cast<std::int16_t>(index);
        Get_n_bolt(*s);
        EXPECT_EQ(s->n_bolt, 4);
    }
}

TEST(GlobalParameter, con_code_by_type_and_members) {
    struct Row {
        const char* name;
        std::int16_t type;
        bool enk_1, dob_1, enk_2, dob_2;
        const char* code;
    };
    // clang-format off
    const Row rows[] = {
        {"single with single",          1, true,  false, true,  false, "1.1"},
        {"member 1 double",             1, false, true,  true,  false, "1.2"},
        {"member 2 double",             1, true,  false, false, true,  "1.3"},
        {"single with single",          2, true,  false, true,  false, "2.1"},
        {"member 1 double",             2, false, true,  true,  false, "2.2"},
        {"member 2 double",             2, true,  false, false, true,  "2.3"},
        {"single with single",          3, true,  false, true,  false, "3.1"},
        {"member 1 double",             3, false, true,  true,  false, "3.2"},
        {"member 2 double",             3, true,  false, false, true,  "3.3"},
        {"single with single",          4, true,  false, true,  false, "4.1"},
        {"member 1 double",             4, false, true,  true,  false, "4.2"},
        {"member 2 double",             4, true,  false, false, true,  "4.3"},
        {"single with single",          5, true,  false, true,  false, "5.1"},
        {"member 1 double",             5, false, true,  true,  false, "5.2"},
        {"member 2 double",             5, true,  false, false, true,  "5.3"},
        // stale flags resolve towards the higher variant
        {"variants 1 and 2 hold",       3, true,  true,  true,  false, "3.2"},
        {"variants 1 and 3 hold",       3, true,  false, true,  true,  "3.3"},
        {"all flags",                   3, true,  true,  true,  true,  "3.3"},
        // no match: the code stays
        {"both double",                 3, false, true,  false, true,  "old"},
        {"no flag",                     3, false, false, false, false, "old"},
        {"enk_1 alone",                 3, true,  false, false, false, "old"},
        {"type 0",                      0, true,  false, true,  false, "old"},
        {"type 6",                      6, true,  false, true,  false, "old"},
        {"type -1",                    -1, true,  false, true,  false, "old"},
    };
    // clang-format on
    const auto s = Empty();
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.name << ", type " << row.type);
        s->Con_code = "old";
        s->Con_type = row.type;
        s->enk_1 = row.enk_1;
        s->dob_1 = row.dob_1;
        s->enk_2 = row.enk_2;
        s->dob_2 = row.dob_2;
        Get_Con_code(*s);
        EXPECT_EQ(s->Con_code.View(), row.code);
    }
}

TEST(GlobalParameter, only_eng_is_english) {
    const auto s = Empty();
    for (const char* lang : {"Nor", "eng", "ENG", "", "Swe"}) {
        SCOPED_TRACE(lang);
        s->Lang = lang;
        EXPECT_FALSE(Is_english(*s));
    }
    s->Lang = "Eng";
    EXPECT_TRUE(Is_english(*s));
}

} // namespace
} // namespace tarnvik
