#include "detail/Hjelpetext.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/Painting.h"

namespace tarnvik {
namespace {

struct Printed {
    double x;
    std::string text;
    std::string look{};
};

Painting Paint(const char* name, const char* lang) {
    const ExplanationWindow* window = Find_explanation(name);
    if (window == nullptr) {
        ADD_FAILURE() << name;
        return {};
    }
    ConnectionValues s;
    s.Lang = lang;
    return Paint_explanation(*window, s);
}

// Words and columns; the rows run downward from `first_y`, and two texts that stand under each other keep apart.
void Expect_words(const Painting& painting, double first_y, const std::vector<Printed>& expected) {
    ASSERT_FALSE(painting.texts.empty());
    EXPECT_EQ(painting.texts.front().y, first_y);
    for (std::size_t i = 0; i < std::max(painting.texts.size(), expected.size()); ++i) {
        ASSERT_LT(i, painting.texts.size()) << "missing: " << expected[i].text;
        ASSERT_LT(i, expected.size()) << "too many: " << painting.texts[i].text;
        const PaintedText& got = painting.texts[i];
        EXPECT_EQ(got.text, expected[i].text);
        EXPECT_NEAR(got.x, expected[i].x, 1e-5) << got.text;
        EXPECT_EQ(test::Look_of(got), expected[i].look) << got.text;
        EXPECT_GT(got.y, 0.0F) << got.text;
        EXPECT_LE(got.y, i == 0 ? first_y : painting.texts[i - 1].y) << got.text;
        if (i > 0 && painting.texts[i - 1].y == got.y) {
            EXPECT_GT(got.x, painting.texts[i - 1].x) << got.text;
        }
    }
}

TEST(Hjelpetext, captions_and_controls) {
    struct Row {
        const char *name, *text_control, *frame, *eng, *nor;
    };
    // clang-format off
    const std::vector<Row> rows{
        {"frm_tarn_vik_lastvarighet",    "Pic_txt_lastvarighet", "Fra_txt_lastvarighet", "Load-duration class",       "Lastvarighetsklasse"},
        {"frm_tarn_vik_klima",           "Pic_txt_klima",        "Fra_txt_klima",        "Service class",             "Klimaklasse"},
        {"frm_tarn_vik_matfak",          "Pic_txt_matfak",       "Fra_txt_matfak",       "Material factors",          "Materialfaktorer"},
        {"Frm_tarn_vik_effbolt",         "Pic_txt_effbolt",      "Fra_txt_effbolt",      "Number of effective bolts", "Antall effektive bolter"},
        {"Frm_tarn_vik_txt_tverr_brudd", "Pic_txt_tverr_brudd",  "",                     "Splitting capacity",        "Tverrstrekksbrudd"},
    };
    // clang-format on
    ASSERT_EQ(explanation_windows.size(), rows.size());
    for (const Row& row : rows) {
        const ExplanationWindow* window = Find_explanation(row.name);
        ASSERT_NE(window, nullptr) << row.name;
        EXPECT_EQ(window->text_control, row.text_control);
        EXPECT_EQ(window->frame, row.frame);
        EXPECT_EQ(Paint(row.name, "Eng").caption, row.eng);
        EXPECT_EQ(Paint(row.name, "Nor").caption, row.nor);
    }
    EXPECT_EQ(Find_explanation("frm_tarn_vik"), nullptr);
}

TEST(Hjelpetext, load_duration_in_Norwegian) {
    Expect_words(Paint("frm_tarn_vik_lastvarighet", "Nor"), 95,
                 {
                     {2, "Definisjon av lastvarighetsklasser :", "bold"},
                     {2, "Permanent :"},
                     {30, "Egenlast, (mer enn 10 år)"},
                     {2, "Langtidslast :"},
                     {30, "Lager last, (6 måneder -10 år)"},
                     {2, "Halvårslast :"},
                     {30, "Gulv last, snø, (1 uke - 6 måneder)"},
                     {30, "Personlast i offentlige lokaler"},
                     {2, "Kortidslast :"},
                     {30, "Vindlast,snø  (mindre enn en uke)"},
                     {2, "Øyeblikkslast :"},
                     {30, "Vind og Ulykkeslast"},
                     {2, "NB :"},
                     {30, "Dersom en lastkombinasjon består av laster fra ulike "},
                     {30, "lastvarihetsklasser, må brukeren velge lasten med "},
                     {30, "kortest varighet for beregning av kmod"},
                 });
}

TEST(Hjelpetext, load_duration_in_English) {
    Expect_words(Paint("frm_tarn_vik_lastvarighet", "Eng"), 95,
                 {
                     {2, "Definition of Load-duration classes :", "bold"},
                     {2, "Permanent :"},
                     {30, "Self-weight, (more than 10 years)"},
                     {2, "Long-term :"},
                     {30, "Storage, (6 months - 10 years)"},
                     {2, "Medium-term :"},
                     {30, "Imposed floor load, snow, (1 week - 6 months)"},
                     {2, "Short-term :"},
                     {30, "Wind,snow  (less than a week)"},
                     {2, "Instantaneous :"},
                     {30, "Wind and accidental loads"},
                     {2, "NB :"},
                     {30, "If a loacombination consist of loads from different"},
                     {30, "load-duration classes, the user must choose the load"},
                     {30, "with the shortest duration for calculating kmod"},
                 });
}

TEST(Hjelpetext, service_classes_in_Norwegian) {
    Expect_words(Paint("frm_tarn_vik_klima", "Nor"), 95,
                 {
                     {2, "Definisjon av klimaklasser :", "bold"},
                     {2, "Klasse 1 :"},
                     {18, "Bolteforbindelser innendørs i rom som er vanligvis oppvarmet."},
                     {18, "Bolteforbindelser i yttervegger som vanligvis er oppvarmet"},
                     {18, "og som er beskyttet av dampsperre på varm side"},
                     {18, "og av vindsperre og luftet kledning på motsatt side."},
                     {2, "Klasse 2 :"},
                     {18, "Bolteforbindelser i bygninger som ikke oppvarmet men ventilert."},
                     {18, "og bolteforbindelser i friluftsom er beskyttet mot regn."},
                     {2, "Klasse 3 :"},
                     {18, "Bolteforbindelser som ikke er beskyttet mot regn"},
                 });
}

TEST(Hjelpetext, service_classes_in_English) {
    Expect_words(Paint("frm_tarn_vik_klima", "Eng"), 95,
                 {
                     {2, "Definition of service classes :", "bold"},
                     {2, "Class 1 :"},
                     {18, "Moisture content in the material corresponding to a temperature"},
                     {18, "of 20 degree C  and the relative humidity only exceeding 65% for"},
                     {18, "a few weeks per year"},
                     {2, "Class 2 :"},
                     {18, "Moisture content in the material corresponding to a temperature"},
                     {18, "of 20 degree C  and the relative humidity only exceeding 85% for."},
                     {18, "a few weeks per year"},
                     {2, "Class 3 :"},
                     {18, "Climatic conditions leading to higher moisture contents than "},
                     {18, "service class 2 "},
                     {18, "More information about service classes may be given"},
                     {18, "in the National annex. "},
                 });
}

TEST(Hjelpetext, material_factors_are_Norwegian_in_both_languages) {
    for (const char* lang : {"Eng", "Nor"}) {
        Expect_words(
            Paint("frm_tarn_vik_matfak", lang), 95,
            {
                {2, "Definisjon av materialfaktorer :", "bold"},
                {2, "λ", "symbol"},
                {4, "1"},
                {12, "= 1.1 For materialer og produkter, inkl. fabrikkfremstilte komponenter som er underlagt"},
                {18, "sertifisering eller godkjenningsorden og kontinuerlig intern og ekstern kontroll."},
                {12, "= 1.2 For materialer og produkter og komponenter med dokumenterte fastheter,"},
                {18, "kapasiteter og stivhetstall."},
                {2, "λ", "symbol"},
                {4, "2"},
                {12, "= 1.0 For utvidet kontroll eller for komponenter med entydig monteringsanvisning."},
                {12, "= 1.1 For andre konstruksjoner underlagt normal kontroll."},
                {2, "λ", "symbol"},
                {4, "m"},
                {12, "= "},
                {14, "λ", "symbol"},
                {16, "1"},
                {19, "x "},
                {21, "λ", "symbol"},
                {23, "2"},
            });
    }
}

TEST(Hjelpetext, effective_number_in_Norwegian) {
    const Painting painting = Paint("Frm_tarn_vik_effbolt", "Nor");
    Expect_words(painting, 96,
                 {
                     {2, "Effektive antall bolter:", "bold"},
                     {2, "Effektive antall bolter er avhengig av antall bolter på rekke og avstanden mellom boltene."},
                     {2, "For belastning og for bolter parallelt med fiberetningen beregnes antall"},
                     {2, "effektive bolter etter følgende formula:"},
                     {2, "n=  Antall bolter på rekke parallelt med fiberretningen"},
                     {2, "a1= Avstand mellom bolter i mm "},
                     {2, "d=  Diameter på bolter i mm"},
                     {2, "Ved å øke avstanden mellom boltene kan brukeren øke kapasiteten av bolterekken"},
                     {2, "Effektive antall forbindere:", "bold"},
                     {2, "Effektive antall forbindere er avhengig av antall bolter på rekke og avstanden mellom "
                         "boltene."},
                     {2, "For belastning og for forbindere parallelt med fiberetningen beregnes antall"},
                     {2, "effektive forbindere etter følgende formula:"},
                     {2, "n   = 2 + (1- n / 20) (n-2)"},
                     {3.2, "ef", "small"},
                     {2, "n=  Antall forbindere på rekke parallelt med fiberretningen"},
                     {2, "Økes avstanden mellom boltene vil kapasiteten av forbindere også økes"},
                 });
    ASSERT_EQ(painting.pictures.size(), 1U);
    EXPECT_EQ(painting.pictures[0].control, "pic_eff_bolts");
    EXPECT_EQ(painting.pictures[0].key, "Frm_tarn_vik_effbolt/pic_eff_bolts");
    // Between the words that announce it and those that tell its letters.
    EXPECT_LT(painting.pictures[0].y, painting.texts[3].y);
    EXPECT_GT(painting.pictures[0].y - painting.pictures[0].h, painting.texts[4].y);
}

TEST(Hjelpetext, effective_number_in_English_speaks_of_bolts_twice) {
    const Painting painting = Paint("Frm_tarn_vik_effbolt", "Eng");
    Expect_words(
        painting, 96,
        {
            {2, "Effective number of bolts:", "bold"},
            {2, "Effective number of bolts is depending upon number of bolts in a row and the distance "},
            {2, "between the bolts."},
            {2, "For loads and for bolts parallel to the grain direction the number of"},
            {2, "effective bolts are calculated as follows:"},
            {2, "n=  Number of bolts in a row"},
            {2, "a1= Spacing between bolts in the grain direction "},
            {2, "d=  Diameter of the bolts"},
            {2, "By increasing the distance between the bolts the user can increase the capacity"},
            {2, "Effective number of connectors:", "bold"},
            {2, "Effective number of connectors is depending upon number of bolts in a row and the distance "},
            {2, "between the bolts."},
            {2, "For loads and for bolts parallel to the grain direction the number of"},
            {2, "effective bolts are calculated as follows:"},
            {2, "n   = 2 + (1- n / 20) (n-2)"},
            {3.2, "ef", "small"},
            {2, "n=  Number of bolts in a row"},
            {2, "By increasing the distance between the bolts, the capacity of the connectors will also increase"},
        });
    ASSERT_EQ(painting.pictures.size(), 1U);
    EXPECT_LT(painting.pictures[0].y, painting.texts[4].y);
    EXPECT_GT(painting.pictures[0].y - painting.pictures[0].h, painting.texts[5].y);
}

// Formula and figure of the splitting window, and the texts that they stand between.
// Beside the figure stands what its heavy line is.
void Expect_splitting_pictures(const Painting& painting, std::size_t before_formula, std::size_t beside_figure) {
    ASSERT_EQ(painting.pictures.size(), 2U);
    const PaintedPicture& formula = painting.pictures[0];
    EXPECT_EQ(formula.control, "Pic_tverr_brudd");
    EXPECT_EQ(formula.key, "Frm_tarn_vik_txt_tverr_brudd/Pic_tverr_brudd");
    EXPECT_LT(formula.y, painting.texts[before_formula].y);
    EXPECT_GT(formula.y - formula.h, painting.texts[before_formula + 1].y);
    const PaintedPicture& figure = painting.pictures[1];
    EXPECT_EQ(figure.control, "Pic_tverr_brudd_fig");
    EXPECT_EQ(figure.key, "Frm_tarn_vik_txt_tverr_brudd/Pic_tverr_brudd_fig");
    EXPECT_EQ(figure.y, painting.texts[beside_figure].y);
    EXPECT_GT(figure.x, painting.texts[beside_figure].x);
    for (const std::size_t legend : {beside_figure + 1, beside_figure + 2}) {
        EXPECT_LT(painting.texts[legend].y, figure.y);
        EXPECT_GT(painting.texts[legend].y, figure.y - figure.h);
        EXPECT_LT(painting.texts[legend].x, figure.x);
    }
    EXPECT_GT(figure.y - figure.h, painting.texts[beside_figure + 3].y);
    // It moves nothing: the next line stands 7.9 rows below the one that begins the figure's line.
    const float row = (painting.texts[0].y - painting.texts[1].y) / 1.5F;
    EXPECT_NEAR(painting.texts[beside_figure].y - painting.texts[beside_figure + 3].y, 7.9F * row, 1e-3F);
}

TEST(Hjelpetext, splitting_in_Norwegian) {
    const Painting painting = Paint("Frm_tarn_vik_txt_tverr_brudd", "Nor");
    Expect_words(painting, 99,
                 {
                     {2, "Tverrsnittsbrudd:", "bold"},
                     {2, "Når trevirket er påvirket av strekkkrefter vinkelrett på fiberretningen"},
                     {2, "kan det oppstå splitting av trevirke"},
                     {2, "Kapasiteten av en forbindelse er avhengig av at ikke tverrsstrekkbrudd opptrer."},
                     {2, "Karakterisk kapasitet for splitting beregnes etter følgende formula:"},
                     {2, "w =  Korreksjonsfaktor, 1 for bolter"},
                     {2, "he= Avstand mellom senter av bolt som har  "},
                     {7, "størst avstand til den belastete kant "},
                     {2, "h=  Høyde av stav som påvirkes av strekk på tverrs"},
                     {2, "b =  Bredde (tykkelse) av stav som påvirkes av strekk på tverrs"},
                     {2, "Når kraften ikke er vinkelerett på fiberretningen vil programmet "},
                     {2, "benytte den vinkelrette komponenten for kontroll."},
                     {2, "Programmet beregner"},
                     {29, "he"},
                     {34, "som følger:"},
                     {2, "he = h - a"},
                     {2, "Tykk strek: belastet kant,"},
                     {2, "også i skissene"},
                     {2, "Dersom brukeren ønsker en annen plassering av bolter,"},
                     {2, "kan"},
                     {8, "he"},
                     {13, "legges inn manuelt."},
                 });
    Expect_splitting_pictures(painting, 4, 15);
}

TEST(Hjelpetext, splitting_in_English) {
    const Painting painting = Paint("Frm_tarn_vik_txt_tverr_brudd", "Eng");
    Expect_words(painting, 99,
                 {
                     {2, "Splitting capacity:", "bold"},
                     {2, "When a member is influenced by tension forces perpendicular to the grain"},
                     {2, "possibility of splitting may occur"},
                     {2, "The capacity of the connection is depending upon that splitting does not occur."},
                     {2, "The characteristic capacity against splitting is calculated by the following formula:"},
                     {2, "w =  Modification factor, 1 for bolts"},
                     {2, "he= Distance between the loaded edge"},
                     {2, "and the most distanced bolt"},
                     {2, "h=  Member height"},
                     {2, "b =  Member thickness"},
                     {2, "When the force is not perpendicular to the grain,the program "},
                     {2, "will use the perpendicular component of the force."},
                     {2, "The program calculates "},
                     {31, "he"},
                     {35, "as follows:"},
                     {2, "he = h- a"},
                     {2, "Heavy line: loaded edge,"},
                     {2, "also in the sketches"},
                     {2, "If the user wants a diffenrent location of the bolts,"},
                     {2, "he"},
                     {7, "can be defined by manual input."},
                 });
    Expect_splitting_pictures(painting, 4, 15);
}

} // namespace
} // namespace tarnvik
