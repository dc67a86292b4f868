#include "calc/Connector.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tarnvik {
namespace {

// Every named value is rounded to 24 bits, about 6e-8 of it; a hand value in double differs by a few of those.
constexpr double hand = 5e-7;

TEST(Connector, refuses_the_bolts_of_the_table_in_both_qualities) {
    // clang-format off
    const bool refused[][8] = {
        //              M12    M16    M20    M24    M12    M16    M20    M24
        //              4.6    4.6    4.6    4.6    8.8    8.8    8.8    8.8
        /* D50  */    {false, false, true,  true,  false, false, true,  true},
        /* D62  */    {false, false, false, true,  false, false, false, true},
        /* D75  */    {false, false, false, true,  false, false, false, true},
        /* D95  */    {true,  false, false, false, true,  false, false, false},
        /* D117 */    {true,  false, false, false, true,  false, false, false},
    };
    // clang-format on
    static_assert(std::size(refused) == connector_table.size() && std::size(refused[0]) == bolt_table.size());
    for (std::int16_t connector = 0; connector < std::ssize(refused); ++connector) {
        for (std::int16_t bolt = 0; bolt < std::ssize(refused[0]); ++bolt) {
            SCOPED_TRACE(testing::Message() << connector_table[static_cast<std::size_t>(connector)].caption_eng
                                            << " with " << bolt_table[static_cast<std::size_t>(bolt)].caption);
            ConnectionValues s;
            s.Lang = "Eng";
            s.Bulldog_index = connector;
            s.Bolt_index = bolt;
            const bool wanted = refused[connector][bolt];
            s.Bulldog_invalid = !wanted;
            Screen screen;
            RecordingMessageBox box;
            Bulldog_check(s, ScreenWriter{&screen}, box);
            EXPECT_EQ(s.Bulldog_invalid, wanted);
            EXPECT_EQ(screen[Control::Comb_bulldog].back, wanted ? 65280U : 16777215U);
            EXPECT_EQ(screen[Control::mnuprint].enabled, !wanted);
            EXPECT_EQ(box.messages.size(), wanted ? 1U : 0U);
        }
    }
}

TEST(Connector, one_message_serves_both_directions) {
    struct Row {
        const char* name;
        const char* lang;
        std::int16_t connector, bolt;
        const char* text; // null: no message
    };
    // clang-format off
    const Row rows[] = {
        {"M20x8.8 is too large for D50",  "Eng", 0, 6, "Use larger connector or smaller bolt"},
        {"M12x4.6 is too small for D95",  "Eng", 3, 0, "Use larger connector or smaller bolt"},
        {"M24x4.6 is too large for D62",  "Nor", 1, 3, "Bruk større forbinder eller mindre bolt"},
        {"M12x8.8 is too small for D117", "Nor", 4, 4, "Bruk større forbinder eller mindre bolt"},
        {"another language",              "Swe", 0, 6, nullptr},
        {"no language",                   "",    0, 6, nullptr},
        {"M16x8.8 fits D50",              "Eng", 0, 5, nullptr},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        ConnectionValues s;
        s.Lang = row.lang;
        s.Bulldog_index = row.connector;
        s.Bolt_index = row.bolt;
        RecordingMessageBox box;
        Bulldog_check(s, ScreenWriter{nullptr}, box);
        if (row.text == nullptr) {
            EXPECT_TRUE(box.messages.empty());
        } else {
            ASSERT_EQ(box.messages.size(), 1U);
            EXPECT_EQ(box.messages[0].text, row.text);
            EXPECT_EQ(box.messages[0].style, 0); // a plain box
        }
    }
}

TEST(Connector, the_check_reads_the_row_of_the_bolt_not_its_diameter) {
    ConnectionValues s;
    s.Lang = "Eng";
    s.Bulldog_index = 0;
    s.Bolt_index = 5; // M16x8.8
    s.d = 24.0F;
    RecordingMessageBox box;
    Bulldog_check(s, ScreenWriter{nullptr}, box);
    EXPECT_FALSE(s.Bulldog_invalid);
    s.Bolt_index = static_cast<std::int16_t>(bolt_table.size()); // no such row: nothing to refuse
    Bulldog_check(s, ScreenWriter{nullptr}, box);
    EXPECT_FALSE(s.Bulldog_invalid);
}

TEST(Connector, a_connector_row_outside_the_table_is_not_checked) {
    for (const int index : {-1, static_cast<int>(connector_table.size())}) {
        for (const bool invalid : {false, true}) {
            SCOPED_TRACE(index);
            ConnectionValues s;
            s.Lang = "Eng";
            s.Bulldog_index = static_cast<std::int16_t>(index);
            s.Bulldog_invalid = invalid;
            Screen screen;
            RecordingMessageBox box;
            Bulldog_check(s, ScreenWriter{&screen}, box);
            EXPECT_EQ(s.Bulldog_invalid, invalid);
            EXPECT_FALSE(screen[Control::Comb_bulldog].back.has_value());
            EXPECT_FALSE(screen[Control::mnuprint].enabled.has_value());
            EXPECT_TRUE(box.messages.empty());
        }
    }
}

TEST(Connector, capacity_of_every_size_by_hand) {
    struct Row {
        const char* name;
        std::int16_t index;
        float t1, t2, rho;
        double he_c; // effective tooth depth
        double dc;   // in the strength formula
        double k1, k3;
        float hc;
    };
    // clang-format off
    const Row rows[] = {
        {"D50 in thick members",        0, 100.0F, 100.0F, 350.0F, 6.0,   50.0,  1.0,           1.0,          13.0F},
        {"D62 in thick members",        1, 100.0F, 100.0F, 350.0F, 7.4,   62.0,  1.0,           1.0,          16.0F},
        {"D75 in thick members",        2, 100.0F, 100.0F, 350.0F, 9.125, 75.0,  1.0,           1.0,          19.5F},
        {"D95 in thick members",        3, 100.0F, 100.0F, 350.0F, 9.5,   95.0,  1.0,           1.0,          24.0F},
        {"D117 in thick members",       4, 100.0F, 100.0F, 350.0F, 12.5, 117.0,  1.0,           1.0,          30.0F},
        {"D62, t1 just enough",         1,  22.25F, 100.0F, 350.0F, 7.4,  62.0,  1.0,           1.0,          16.0F},
        {"D62, t1 too thin",            1,  11.1F, 100.0F, 350.0F, 7.4,   62.0,  11.1 / 22.2,   1.0,          16.0F},
        {"D62, t2 too thin",            1, 100.0F,  27.75F, 350.0F, 7.4,  62.0,  27.75 / 37.0,  1.0,          16.0F},
        {"D62, both thin, t2 decides",  1,  20.0F,  20.0F, 350.0F, 7.4,   62.0,  20.0 / 37.0,   1.0,          16.0F},
        {"D95, tooth depth overruled",  3,  19.0F, 100.0F, 350.0F, 9.5,   95.0,  19.0 / 28.5,   1.0,          24.0F},
        {"D117, tooth depth overruled", 4, 100.0F,  50.0F, 350.0F, 12.5, 117.0,  50.0 / 62.5,   1.0,          30.0F},
        {"light timber",                1, 100.0F, 100.0F, 290.0F, 7.4,   62.0,  1.0,           290.0 / 350.0, 16.0F},
        {"density at the limit",        1, 100.0F, 100.0F, 525.0F, 7.4,   62.0,  1.0,           1.5,          16.0F},
        {"density above the limit",     1, 100.0F, 100.0F, 700.0F, 7.4,   62.0,  1.0,           1.5,          16.0F},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        ConnectionValues s;
        s.Bulldog_index = row.index;
        s.t1 = row.t1;
        s.t2 = row.t2;
        s.rho_k = row.rho;
        s.d = 16.0F;
        s.dc = 1.0F; // takes no part
        float k1 = 0.0F;
        float k2 = 0.0F;
        float k3 = 0.0F;
        const ConnectorRow& connector = connector_table[static_cast<std::size_t>(row.index)];
        Bulldog_k(s, k1, k2, k3, connector.t, connector.hc, connector.dc);
        EXPECT_NEAR(k1, row.k1, hand);
        EXPECT_EQ(k2, 1.0F); // the end distance has no effect
        EXPECT_NEAR(k3, row.k3, hand);
        float kN = 0.0F;
        Bulldog_Rk(s, kN);
        const double wanted = 25.0 * row.k1 * row.k3 * std::pow(row.dc, 1.5) / 1000.0;
        EXPECT_NEAR(kN, wanted, hand * wanted);
        EXPECT_EQ(s.Fv_Rk, kN);
        EXPECT_EQ(s.hc, row.hc);
        EXPECT_EQ(s.dc, 1.0F);
    }
}

TEST(Connector, D62_carries_12_2_kN_in_timber_of_density_350) {
    // 25 x 62^1.5 = 12204.71 N
    ConnectionValues s;
    s.Bulldog_index = 1;
    s.t1 = 48.0F;
    s.t2 = 48.0F;
    s.rho_k = 350.0F;
    float kN = 0.0F;
    Bulldog_Rk(s, kN);
    EXPECT_NEAR(kN, 12.20471, 1e-5); // the five decimals of the hand value
}

TEST(Connector, density_factor_is_exact_where_it_turns) {
    ConnectionValues s;
    s.t1 = s.t2 = 100.0F;
    struct Row {
        float rho, k3;
    };
    for (const Row row : {Row{350.0F, 1.0F}, Row{525.0F, 1.5F}, Row{525.1F, 1.5F}, Row{0.0F, 0.0F}}) {
        SCOPED_TRACE(row.rho);
        s.rho_k = row.rho;
        float k1 = 0.0F;
        float k2 = 0.0F;
        float k3 = 0.0F;
        Bulldog_k(s, k1, k2, k3, 1.2F, 16.0F, 62.0F);
        EXPECT_EQ(k3, row.k3);
    }
}

TEST(Connector, a_row_outside_the_table_passes_the_callers_value_on) {
    for (const int index : {-1, static_cast<int>(connector_table.size())}) {
        SCOPED_TRACE(index);
        ConnectionValues s;
        s.Bulldog_index = static_cast<std::int16_t>(index);
        s.hc = 13.0F;
        s.Fv_Rk = 9.0F;
        float kN = 0.0F; // as a pass starts it
        Bulldog_Rk(s, kN);
        EXPECT_EQ(kN, 0.0F);
        EXPECT_EQ(s.Fv_Rk, 0.0F);
        EXPECT_EQ(s.hc, 13.0F);
    }
}

} // namespace
} // namespace tarnvik
