#include "detail/Detailed_calc.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "calc/pass/Main_beregn.h"
#include "tests/support/Calculation.h"
#include "tests/support/Painting.h"
#include "tests/support/RecordingMessageBox.h"

namespace tarnvik {
namespace {

using test::Expect_pictures;
using test::Expect_texts;
using test::Lines;
using test::RecordingMessageBox;

// Values that can be told apart, as a pass might leave them.
ConnectionValues Values(const char* lang, const char* Con_code) {
    ConnectionValues s;
    s.Lang = lang;
    s.Con_code = Con_code;
    s.Con_type = static_cast<std::int16_t>(Con_code[0] - '0');
    s.enk_1 = Con_code[2] != '2';
    s.dob_1 = !s.enk_1;
    s.enk_2 = Con_code[2] != '3';
    s.dob_2 = !s.enk_2;
    s.d = 8.0F;
    s.k90 = 1.47F;
    s.rho_k = 350.0F;
    s.fh0k = 26.404F;
    s.alp1 = 0.0F;
    s.alp2 = 27.25F;
    s.fh1k = 25.125F;
    s.fh2k = 24.0F;
    s.beta = 0.956F;
    s.t1_txt = "t1 = ";
    s.t1 = 48.0F;
    s.t2_txt = "t2 =  ";
    s.t2 = 36.5F;
    s.My_Rk = 579280.94F;
    s.Fax_bolt = 251327.0F;
    s.Fax_skive = 16886.36F;
    s.Fv_a = 11004.0F;
    s.Fv_b = 12006.0F;
    s.Fv_c = 13000.0F;
    s.Fv_d = 14500.0F;
    s.Fv_e = 15990.0F;
    s.Fv_f = 16999.0F;
    s.Fv_g = 21000.0F;
    s.Fv_h = 22000.0F;
    s.Fv_j = 23000.0F;
    s.Fv_k = 24000.0F;
    s.n_bolt = 4;
    s.Has_row = false;
    s.nef_b = 3.25F;
    s.nef_f = 3.75F;
    s.Rd_bolt = 12.5F;
    s.Rd_for = 7.25F;
    s.P = -10.0F;
    s.uf = 0.8F;
    return s;
}

void With_connectors(ConnectionValues& s) {
    s.Kun_bolt = false;
    s.Med_bulldog = true;
}

Lines Strengths(const char* heading, const char* k90, const char* fhk) {
    return {
        {2, 98, heading, "bold"},
        {2, 94.25, k90},
        {2, 91.25, "k90 = 1.35 + 0.015 x d   = "},
        {22, 91.25, "1.35 + 0.015 x 08  ="},
        {40, 91.25, "1.47"},
        {2, 87.5, fhk},
        {2, 84.5, "fh0k = 0.082 x (1 - 0.01 x d) x pk  = "},
        {29, 84.5, " 0.082 x  ( 1 - 0.01  x 08) x 350 = "},
        {55, 84.5, "26.40"},
    };
}

// `y` is that of the upper row.
Lines Fraction(double y, const char* label, const char* angle, const char* symbol, const char* value) {
    return {
        {2, y, label},
        {8, y - 2.5, "α", "symbol"},
        {12, y - 2.5, angle},
        {22, y - 1.25, symbol},
        {35, y, "fh0k"},
        {29, y - 0.25, "____________________  "},
        {29.5, y - 2.5, "k90 x sin"},
        {38, y - 2.5, "α", "symbol"},
        {40, y - 2.5, "+  cos"},
        {46.1, y - 2.5, "α", "symbol"},
        {36.9, y - 2.25, "2", "small"},
        {45, y - 2.25, "2", "small"},
        {51, y - 1.25, value},
    };
}

Lines Fractions(const char* label1, const char* label2) {
    return Fraction(81.5, label1, "  =   0.0", "fh1k =", "= 25.13") +
           Fraction(77, label2, "  =   27.3", "fh2k =", "= 24.00");
}

Lines Thicknesses(const char* t1, const char* t2) {
    return {{2, 72.5, "Beta :  fh2k / fh1k = 0.96 "}, {2, 69.6, t1}, {2, 67, t2}};
}

const Lines beside_eng{
    {35, 72.5, "My,Rk (Bolt, yield moment)          ="}, {75, 72.5, "579280.94", "right"}, {77, 72.5, "Nmm"},
    {35, 69.6, "Fax,Rk (Bolt, tensile capacity)     ="}, {75, 69.6, "251327.00", "right"}, {77, 69.6, "N"},
    {35, 67, "Fax,Rk (Washer, axial capacity)  ="},      {75, 67, "16886.36", "right"},    {77, 67, "N"},
};
const Lines beside_nor{
    {35, 72.5, "My,Rk  (Bolt, flytemoment)        ="}, {75, 72.5, "579280.94", "right"}, {77, 72.5, "Nmm"},
    {35, 69.6, "Fax,Rk (Bolt, strekkapasitet)     ="}, {75, 69.6, "251327.00", "right"}, {77, 69.6, "N"},
    {35, 67, "Fax,Rk (Skivens, trykkapasitet) ="},     {75, 67, "16886.36", "right"},    {77, 67, "N"},
};

const Lines rope_eng{
    {2, 63.25, "Characteristic capacity of a single shear plane pr. bolt :"},
    {42, 63.25, "(The contribution from the Rope effect, Fax,Rk  is limited"},
    {2, 60.75, " to 25% of the capacity calculated by the Johansen part) "},
};
const Lines rope_nor{
    {2, 63.25, "Karakteristisk kapasitet av et enkelt snitt pr. bolt:"},
    {42, 63.25, "(Bidraget fra Rope effect, Fax,Rk er begrenset til 25% av kapasitet"},
    {2, 60.75, "beregnet etter Johansen del) "},
};

const Lines modes_single{
    {2, 58.5, "Rk(a) = "},   {77, 56, "="},    {79, 56, "11.00  kN"},    //
    {2, 54.5, "Rk(b) ="},    {77, 52, "="},    {79, 52, "12.01  kN"},    //
    {2, 47.75, "Rk(c) ="},   {77, 44.75, "="}, {79, 44.75, "13.00  kN"}, //
    {2, 39.75, "Rk(d) ="},   {77, 36, "="},    {79, 36, "14.50  kN"},    //
    {2, 31, "Rk(e) = "},     {77, 26.75, "="}, {79, 26.75, "15.99  kN"}, //
    {2, 21.75, "Rk(f)  = "}, {77, 18, "="},    {79, 18, "17.00  kN"},
};
const Lines modes_double{
    {2, 58.5, "Rk(g) = "}, {77, 54.5, "="}, {79, 54.5, "21.00  kN"}, //
    {2, 52.5, "Rk(h) = "}, {77, 49, "="},   {79, 49, "22.00  kN"},   //
    {2, 44.5, "Rk(j) = "}, {77, 42, "="},   {79, 42, "23.00  kN"},   //
    {2, 36.5, "Rk(k) = "}, {77, 34, "="},   {79, 34, "24.00  kN"},
};

TEST(Detailed_calc, single_shear_with_bolts_only_in_English) {
    Expect_texts(
        Paint_detailed(Values("Eng", "1.1")),
        Strengths("Single shear :", "Calculation of k90 :", "Calculation of characteristic embedment strength fhk :") +
            Fractions("Top chord    :", "Bottom chord    :") +
            Thicknesses("t1 = 48.00  (Single top chord)", "t2 =  36.50  (Single bottom chord)") + beside_eng +
            rope_eng + modes_single +
            Lines{
                {2, 10.75, "Number of effective bolts, nef_b"},
                {42, 10.75, "="},
                {45, 10.75, "4"},
                {2, 8, "Design capacity of bolts, Rd_bolt"},
                {42, 8, "="},
                {45, 8, "Rk x kmod x nef_b /"},
                {61, 8, "γ", "symbol"},
                {62, 8, "m"},
                {77, 8, "="},
                {79, 8, "12.50  kN"},
                {2, 5.5, "Kontroll  = P / Rd_bolt                                               ="},
                {45, 5.5, "10.00 / 12.50"},
                {77, 5.5, "="},
                {79, 5.5, "0.80"},
            });
}

TEST(Detailed_calc, single_shear_with_connectors_in_Norwegian) {
    ConnectionValues s = Values("Nor", "1.1");
    With_connectors(s);
    s.Has_row = true;
    Expect_texts(Paint_detailed(s), Strengths("Enkelsnittet forbindelse :", "Beregning av k90 :",
                                              "Beregning av karakteristisk hullkantfasthet fhk :") +
                                        Fractions("Overgurt     :", "Undergurt     :") +
                                        Thicknesses("t1 = 48.00  (Enkel overgurt)", "t2 =  36.50  (Enkel undergurt)") +
                                        beside_nor + rope_nor + modes_single +
                                        Lines{
                                            {2, 10.75, "Effektive antall bolter, nef_b"},
                                            {42, 10.75, "="},
                                            {45, 10.75, "3.25"},
                                            {50, 10.75, "Effektive antall forbindere, nef_f "},
                                            {77, 10.75, "="},
                                            {80, 10.75, "3.75"},
                                            {2, 8, "Dimensjonerende kapasitet av bolter, Rd_bolt"},
                                            {42, 8, "="},
                                            {45, 8, "Rk x kmod x nef_b /"},
                                            {61, 8, "γ", "symbol"},
                                            {62, 8, "m"},
                                            {77, 8, "="},
                                            {79, 8, "12.50  kN"},
                                            {2, 4.75, "Dimensjonerende kapasitet av forbinder, Rd_for."},
                                            {42, 4.75, "="},
                                            {45, 4.75, "Rk x kmod x nef_f /"},
                                            {61, 4.75, "γ", "symbol"},
                                            {62, 4.75, "m"},
                                            {77, 4.75, "="},
                                            {79, 4.75, "7.25  kN"},
                                            {2, 2.25, "Kontroll = P / ( Rd_bolt + Rd_for. )"},
                                            {42, 2.25, "="},
                                            {45, 2.25, "10.00 /  ( 12.50 + 7.25 ) "},
                                            {77, 2.25, "="},
                                            {79, 2.25, "0.80"},
                                        });
}

TEST(Detailed_calc, double_shear_with_connectors_in_English) {
    ConnectionValues s = Values("Eng", "2.2");
    With_connectors(s);
    Expect_texts(Paint_detailed(s), Strengths("Double shear :", "Calculation of k90 :",
                                              "Calculation of characteristic embedment strength fhk :") +
                                        Fractions("Beam :", "Column  :") +
                                        Thicknesses("t1 = 48.00  (Double beam)", "t2 =  36.50  (Single column)") +
                                        beside_eng + rope_eng + modes_double +
                                        Lines{
                                            {2, 21.25, "Number of effective bolts, nef_b"},
                                            {42, 21.25, "="},
                                            {45, 21.25, "4"},
                                            {50, 21.25, "Number of eff. connectors, nef_c "},
                                            {77, 21.25, "="},
                                            {80, 21.25, "4"},
                                            {2, 18.5, "Design capacity of bolts, Rd_bolt"},
                                            {42, 18.5, "="},
                                            {45, 18.5, "Rk x kmod x nef_b x 2 /"},
                                            {64, 18.5, "γ", "symbol"},
                                            {65, 18.5, "m"},
                                            {77, 18.5, "="},
                                            {79, 18.5, "12.50  kN"},
                                            {2, 15.25, "Design capacity of connectors, Rd_con."},
                                            {42, 15.25, "="},
                                            {45, 15.25, "Rk x kmod x nef_c x 2 /"},
                                            {72, 15.25, "γ", "symbol"},
                                            {73, 15.25, "m"},
                                            {77, 15.25, "="},
                                            {79, 15.25, "7.25  kN"},
                                            {2, 12.75, "Control = P / ( Rd_bolt + Rd_con. )"},
                                            {42, 12.75, "="},
                                            {45, 12.75, "10.00 /  ( 12.50 + 7.25 ) "},
                                            {77, 12.75, "="},
                                            {79, 12.75, "0.80"},
                                        });
}

TEST(Detailed_calc, double_shear_with_bolts_only_in_Norwegian) {
    ConnectionValues s = Values("Nor", "3.3");
    s.Has_row = true;
    Expect_texts(Paint_detailed(s),
                 Strengths("Dobbelsnittet forbindelse :", "Beregning av k90 :",
                           "Beregning av karakteristisk hullkantfasthet fhk :") +
                     Fractions("Undergurt    :", "Overgurt    :") +
                     Thicknesses("t1 = 48.00  (Dobbel undergurt)", "t2 =  36.50  (Enkel overgurt)") + beside_nor +
                     rope_nor + modes_double +
                     Lines{
                         {2, 21.25, "Effektive antall bolter, nef_b"},
                         {42, 21.25, "="},
                         {45, 21.25, "3.25"},
                         {2, 18.5, "Dimensjonerende kapasitet av bolter, Rd_bolt"},
                         {42, 18.5, "="},
                         {45, 18.5, "Rk x kmod x nef_b x 2 /"},
                         {64, 18.5, "γ", "symbol"},
                         {65, 18.5, "m"},
                         {77, 18.5, "="},
                         {79, 18.5, "12.50  kN"},
                         {2, 16, "Kontroll  = P / Rd_bolt                                               ="},
                         {45, 16, "10.00 / 12.50"},
                         {77, 16, "="},
                         {79, 16, "0.80"},
                     });
}

TEST(Detailed_calc, caption_by_language) {
    EXPECT_EQ(Paint_detailed(Values("Eng", "1.1")).caption, "Detailed calculations");
    EXPECT_EQ(Paint_detailed(Values("Nor", "1.1")).caption, "Detaljerte beregninger");
    EXPECT_EQ(Paint_detailed(Values("Deu", "1.1")).caption, "Detaljerte beregninger");
}

TEST(Detailed_calc, equations_of_single_shear) {
    Expect_pictures(Paint_detailed(Values("Eng", "4.1")), {
                                                              {"Pic_r_a", "frmDetailed/Pic_r_a", 10, 57},
                                                              {"Pic_r_b", "frmDetailed/Pic_r_b", 9, 52},
                                                              {"Pic_r_c", "frmDetailed/Pic_r_c", 12, 44},
                                                              {"Pic_r_d", "frmDetailed/Pic_r_d", 9, 39},
                                                              {"Pic_r_e", "frmDetailed/Pic_r_e", 9, 30},
                                                              {"Pic_r_f", "frmDetailed/Pic_r_f", 9, 21},
                                                          });
}

TEST(Detailed_calc, equations_of_double_shear) {
    for (const char* code : {"4.2", "4.3"}) {
        Expect_pictures(Paint_detailed(Values("Nor", code)), {
                                                                 {"Pic_r_g", "frmDetailed/Pic_r_g", 10, 55},
                                                                 {"Pic_r_h", "frmDetailed/Pic_r_h", 9, 49.5},
                                                                 {"Pic_r_j", "frmDetailed/Pic_r_j", 9, 45},
                                                                 {"Pic_r_k", "frmDetailed/Pic_r_k", 9, 36},
                                                             });
    }
}

std::vector<std::string> Texts_in(const Painting& painting, const std::string& look) {
    std::vector<std::string> found;
    for (const PaintedText& text : painting.texts) {
        if (test::Look_of(text) == look) {
            found.push_back(text.text);
        }
    }
    return found;
}

TEST(Detailed_calc, warning_colour_only_above_one) {
    ConnectionValues s = Values("Eng", "1.1");
    s.uf = 1.0F;
    EXPECT_EQ(Texts_in(Paint_detailed(s), "red"), std::vector<std::string>{});
    s.uf = std::nextafter(1.0F, 2.0F);
    EXPECT_EQ(Texts_in(Paint_detailed(s), "red"), (std::vector<std::string>{"10.00 / 12.50", "=", "1.00"}));
    With_connectors(s);
    s.uf = 2.0F;
    EXPECT_EQ(Texts_in(Paint_detailed(s), "red"), std::vector<std::string>{});
}

TEST(Detailed_calc, code_of_another_type_has_no_thicknesses) {
    ConnectionValues s = Values("Eng", "1.1");
    s.Con_type = 3;
    const Painting painting = Paint_detailed(s);
    for (const PaintedText& text : painting.texts) {
        EXPECT_FALSE(text.text.starts_with("Beta") || text.text.starts_with("t1") || text.text.starts_with("t2"));
    }
    // The rows below stay where they are.
    EXPECT_EQ(painting.texts.back().text, "0.80");
    EXPECT_NEAR(painting.texts.back().y, 5.5F, 0.001F);
    EXPECT_EQ(painting.texts[9].text, "Top chord    :");
}

TEST(Detailed_calc, unknown_code_has_no_labels) {
    ConnectionValues s = Values("Nor", "1.1");
    s.Con_code = "9.9";
    EXPECT_EQ(Paint_detailed(s).texts[9].text, "α");
}

// Both members of all 15 codes, through the painting.
TEST(Detailed_calc, labels_and_notes_of_all_codes) {
    struct Row {
        const char* code;
        const char* label1;
        const char* label2;
        const char* note1;
        const char* note2;
    };
    // clang-format off
    const std::array english{
        Row{"1.1", "Top chord    :", "Bottom chord    :", "  (Single top chord)",    "  (Single bottom chord)"},
        Row{"1.2", "Top chord    :", "Bottom chord    :", "  (Double top chord)",    "  (Single bottom chord)"},
        Row{"1.3", "Bottom chord :", "Top chord :",       "  (Double bottom chord)", "  (Single top chord)"},
        Row{"2.1", "Column :",       "Beam  :",           "  (Single column)",       "  (Single beam)"},
        Row{"2.2", "Beam :",         "Column  :",         "  (Double beam)",         "  (Single column)"},
        Row{"2.3", "Column :",       "Beam  :",           "  (Double column)",       "  (Single beam)"},
        Row{"3.1", "Bottom chord :", "Top chord :",       "  (Single bottom chord)", "  (Single top chord)"},
        Row{"3.2", "Top chord :",    "Bottom chord :",    "  (Double top chord)",    "  (Single bottom chord)"},
        Row{"3.3", "Bottom chord :", "Top chord :",       "  (Double bottom chord)", "  (Single top chord)"},
        Row{"4.1", "Column :",       "Beam  :",           "  (Single column)",       "  (Single beam)"},
        Row{"4.2", "Beam :",         "Column  :",         "  (Double beam)",         "  (Single column)"},
        Row{"4.3", "Column :",       "Beam  :",           "  (Double column)",       "  (Single beam)"},
        Row{"5.1", "Column :",       "Beam  :",           "  (Single column)",       "  (Single beam)"},
        Row{"5.2", "Beam :",         "Column  :",         "  (Double beam)",         "  (Single column)"},
        Row{"5.3", "Column :",       "Beam  :",           "  (Double column)",       "  (Single beam)"},
    };
    const std::array norwegian{
        Row{"1.1", "Overgurt     :", "Undergurt     :",   "  (Enkel overgurt)",      "  (Enkel undergurt)"},
        Row{"1.2", "Overgurt     :", "Undergurt     :",   "  (Dobbel overgurt)",     "  (Enkel undergurt)"},
        Row{"1.3", "Undergurt    :", "Overgurt    :",     "  (Dobbel undergurt)",    "  (Enkel overgurt)"},
        Row{"2.1", "Søyle   :",      "Bjelke  :",         "  (Enkel søyle)",         "  (Enkel bjelke)"},
        Row{"2.2", "Bjelke   :",     "Søyle   :",         "  (Dobbel bjelke)",       "  (Enkel søyle)"},
        Row{"2.3", "Søyle   :",      "Bjelke  :",         "  (Dobbel søyle)",        "  (Enkel beam)"},
        Row{"3.1", "Undergurt    :", "Overgurt    :",     "  (Enkel undergurt)",     "  (Enkel overgurt)"},
        Row{"3.2", "Overgurt    :",  "Undergurt    :",    "  (Dobbel overgurt)",     "  (Enkel undergurt)"},
        Row{"3.3", "Undergurt    :", "Overgurt    :",     "  (Dobbel undergurt)",    "  (Enkel overgurt)"},
        Row{"4.1", "Søyle   :",      "Bjelke  :",         "  (Enkel søyle)",         "  (Enkel bjelke)"},
        Row{"4.2", "Bjelke   :",     "Søyle   :",         "  (Dobbel bjelke)",       "  (Enkel søyle)"},
        Row{"4.3", "Søyle   :",      "Bjelke  :",         "  (Dobbel søyle)",        "  (Enkel beam)"},
        Row{"5.1", "Søyle   :",      "Bjelke  :",         "  (Enkel søyle)",         "  (Enkel bjelke)"},
        Row{"5.2", "Bjelke   :",     "Søyle   :",         "  (Dobbel bjelke)",       "  (Enkel søyle)"},
        Row{"5.3", "Søyle   :",      "Bjelke  :",         "  (Dobbel søyle)",        "  (Enkel beam)"},
    };
    // clang-format on
    const auto check = [](const char* lang, const auto& rows) {
        for (const Row& row : rows) {
            SCOPED_TRACE(std::string{lang} + " " + row.code);
            const Painting painting = Paint_detailed(Values(lang, row.code));
            constexpr std::size_t fraction = 13; // texts of a fraction
            EXPECT_EQ(painting.texts[9].text, row.label1);
            EXPECT_EQ(painting.texts[9 + fraction].text, row.label2);
            EXPECT_EQ(painting.texts[10 + 2 * fraction].text, std::string{"t1 = 48.00"} + row.note1);
            EXPECT_EQ(painting.texts[11 + 2 * fraction].text, std::string{"t2 =  36.50"} + row.note2);
        }
    };
    check("Eng", english);
    check("Nor", norwegian);
}

TEST(Detailed_calc, shows_the_values_of_the_last_pass) {
    const auto s = test::New_project("Eng");
    RecordingMessageBox box;
    Run_pass(*s, nullptr, box);
    const Painting painting = Paint_detailed(*s);
    ASSERT_EQ(painting.texts[2 + 2].text, std::string{Format(s->k90, "0.00").View()});
    EXPECT_EQ(painting.texts.back().text, std::string{Format(s->uf, "0.00").View()});
}

} // namespace
} // namespace tarnvik
