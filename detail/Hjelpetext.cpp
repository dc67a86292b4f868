#include "detail/Hjelpetext.h"

#include <algorithm>
#include <span>

namespace tarnvik {

namespace {

struct Figure {
    std::string_view control, key;
    double width, height; // units
};

// One printed text, or a figure.
struct Row {
    double down; // rows, from the one before
    double x;
    std::string_view eng, nor; // a language without this line leaves it empty, and takes no row for it
    TextLook look{};
    const Figure* figure{};
};

constexpr TextLook plain{};
constexpr TextLook bold{.bold = true};
constexpr TextLook symbol{.font = TextFont::symbol};
constexpr TextLook subscript{.small = true};

// The misspellings and the doubled and missing blanks of these texts are theirs.
// clang-format off

// Only the Norwegian text has the line on persons in public rooms.
constexpr std::array load_duration{
    //  down  x     English                                                   Norwegian
    Row{0.0,  2.0,  "Definition of Load-duration classes :",                  "Definisjon av lastvarighetsklasser :", bold},
    Row{1.5,  2.0,  "Permanent :",                                            "Permanent :"},
    Row{0.0,  30.0, "Self-weight, (more than 10 years)",                      "Egenlast, (mer enn 10 år)"},
    Row{1.0,  2.0,  "Long-term :",                                            "Langtidslast :"},
    Row{0.0,  30.0, "Storage, (6 months - 10 years)",                         "Lager last, (6 måneder -10 år)"},
    Row{1.0,  2.0,  "Medium-term :",                                          "Halvårslast :"},
    Row{0.0,  30.0, "Imposed floor load, snow, (1 week - 6 months)",          "Gulv last, snø, (1 uke - 6 måneder)"},
    Row{1.0,  30.0, "",                                                       "Personlast i offentlige lokaler"},
    Row{1.0,  2.0,  "Short-term :",                                           "Kortidslast :"},
    Row{0.0,  30.0, "Wind,snow  (less than a week)",                          "Vindlast,snø  (mindre enn en uke)"},
    Row{1.0,  2.0,  "Instantaneous :",                                        "Øyeblikkslast :"},
    Row{0.0,  30.0, "Wind and accidental loads",                              "Vind og Ulykkeslast"},
    Row{1.5,  2.0,  "NB :",                                                   "NB :"},
    Row{0.0,  30.0, "If a loacombination consist of loads from different",    "Dersom en lastkombinasjon består av laster fra ulike "},
    Row{1.0,  30.0, "load-duration classes, the user must choose the load",   "lastvarihetsklasser, må brukeren velge lasten med "},
    Row{1.0,  30.0, "with the shortest duration for calculating kmod",        "kortest varighet for beregning av kmod"},
};

// The English text goes by moisture, the Norwegian one by place of use.
constexpr std::array service{
    Row{0.0,  2.0,  "Definition of service classes :",                                  "Definisjon av klimaklasser :", bold},
    Row{1.5,  2.0,  "Class 1 :",                                                        "Klasse 1 :"},
    Row{0.0,  18.0, "Moisture content in the material corresponding to a temperature",  "Bolteforbindelser innendørs i rom som er vanligvis oppvarmet."},
    Row{1.0,  18.0, "of 20 degree C  and the relative humidity only exceeding 65% for", "Bolteforbindelser i yttervegger som vanligvis er oppvarmet"},
    Row{1.0,  18.0, "a few weeks per year",                                             "og som er beskyttet av dampsperre på varm side"},
    Row{1.0,  18.0, "",                                                                 "og av vindsperre og luftet kledning på motsatt side."},
    Row{1.4,  2.0,  "Class 2 :",                                                        "Klasse 2 :"},
    Row{0.0,  18.0, "Moisture content in the material corresponding to a temperature",  "Bolteforbindelser i bygninger som ikke oppvarmet men ventilert."},
    Row{1.0,  18.0, "of 20 degree C  and the relative humidity only exceeding 85% for.", "og bolteforbindelser i friluftsom er beskyttet mot regn."},
    Row{1.0,  18.0, "a few weeks per year",                                             ""},
    Row{1.4,  2.0,  "Class 3 :",                                                        "Klasse 3 :"},
    Row{0.0,  18.0, "Climatic conditions leading to higher moisture contents than ",    "Bolteforbindelser som ikke er beskyttet mot regn"},
    Row{1.0,  18.0, "service class 2 ",                                                 ""},
    Row{1.0,  18.0, "More information about service classes may be given",              ""},
    Row{1.0,  18.0, "in the National annex. ",                                          ""},
};

// One text in both languages. The factor's letter is the symbol font's "l", a lambda, and stays one.
constexpr auto material = [] {
    constexpr std::array texts{
        Row{0.0, 2.0,  "Definisjon av materialfaktorer :", "", bold},
        Row{1.5, 2.0,  "λ", "", symbol},
        Row{0.0, 4.0,  "1", ""},
        Row{0.0, 12.0, "= 1.1 For materialer og produkter, inkl. fabrikkfremstilte komponenter som er underlagt", ""},
        Row{1.0, 18.0, "sertifisering eller godkjenningsorden og kontinuerlig intern og ekstern kontroll.", ""},
        Row{1.0, 12.0, "= 1.2 For materialer og produkter og komponenter med dokumenterte fastheter,", ""},
        Row{1.0, 18.0, "kapasiteter og stivhetstall.", ""},
        Row{1.4, 2.0,  "λ", "", symbol},
        Row{0.0, 4.0,  "2", ""},
        Row{0.0, 12.0, "= 1.0 For utvidet kontroll eller for komponenter med entydig monteringsanvisning.", ""},
        Row{1.0, 12.0, "= 1.1 For andre konstruksjoner underlagt normal kontroll.", ""},
        Row{1.4, 2.0,  "λ", "", symbol},
        Row{0.0, 4.0,  "m", ""},
        Row{0.0, 12.0, "= ", ""},
        Row{0.0, 14.0, "λ", "", symbol},
        Row{0.0, 16.0, "1", ""},
        Row{0.0, 19.0, "x ", ""},
        Row{0.0, 21.0, "λ", "", symbol},
        Row{0.0, 23.0, "2", ""},
    };
    auto both = texts;
    for (Row& row : both) {
        row.nor = row.eng;
    }
    return both;
}();

constexpr Figure eff_bolts{"pic_eff_bolts", "Frm_tarn_vik_effbolt/pic_eff_bolts", 60.0, 7.0};

// The part on connectors speaks of bolts in English.
constexpr std::array effective{
    Row{0.0,  2.0, "Effective number of bolts:",  "Effektive antall bolter:", bold},
    Row{1.5,  2.0, "Effective number of bolts is depending upon number of bolts in a row and the distance ",
                   "Effektive antall bolter er avhengig av antall bolter på rekke og avstanden mellom boltene."},
    Row{1.0,  2.0, "between the bolts.",                                                 ""},
    Row{1.2,  2.0, "For loads and for bolts parallel to the grain direction the number of",
                   "For belastning og for bolter parallelt med fiberetningen beregnes antall"},
    Row{1.0,  2.0, "effective bolts are calculated as follows:",                         "effektive bolter etter følgende formula:"},
    Row{1.2,  2.0, "", "", plain, &eff_bolts},
    Row{2.0,  2.0, "n=  Number of bolts in a row",                                       "n=  Antall bolter på rekke parallelt med fiberretningen"},
    Row{1.0,  2.0, "a1= Spacing between bolts in the grain direction ",                  "a1= Avstand mellom bolter i mm "},
    Row{1.0,  2.0, "d=  Diameter of the bolts",                                          "d=  Diameter på bolter i mm"},
    Row{1.2,  2.0, "By increasing the distance between the bolts the user can increase the capacity",
                   "Ved å øke avstanden mellom boltene kan brukeren øke kapasiteten av bolterekken"},
    Row{1.8,  2.0, "Effective number of connectors:",                                    "Effektive antall forbindere:", bold},
    Row{1.5,  2.0, "Effective number of connectors is depending upon number of bolts in a row and the distance ",
                   "Effektive antall forbindere er avhengig av antall bolter på rekke og avstanden mellom boltene."},
    Row{1.0,  2.0, "between the bolts.",                                                 ""},
    Row{1.2,  2.0, "For loads and for bolts parallel to the grain direction the number of",
                   "For belastning og for forbindere parallelt med fiberetningen beregnes antall"},
    Row{1.0,  2.0, "effective bolts are calculated as follows:",                         "effektive forbindere etter følgende formula:"},
    Row{1.2,  2.0, "n   = 2 + (1- n / 20) (n-2)",                                        "n   = 2 + (1- n / 20) (n-2)"},
    Row{0.25, 3.2, "ef",                                                                 "ef", subscript},
    Row{1.2,  2.0, "n=  Number of bolts in a row",                                       "n=  Antall forbindere på rekke parallelt med fiberretningen"},
    Row{1.2,  2.0, "By increasing the distance between the bolts, the capacity of the connectors will also increase",
                   "Økes avstanden mellom boltene vil kapasiteten av forbindere også økes"},
};

constexpr Figure splitting_formula{"Pic_tverr_brudd", "Frm_tarn_vik_txt_tverr_brudd/Pic_tverr_brudd", 60.0, 8.0};
constexpr Figure splitting_figure{"Pic_tverr_brudd_fig", "Frm_tarn_vik_txt_tverr_brudd/Pic_tverr_brudd_fig", 60.0, 28.0};

constexpr std::array splitting{
    Row{0.0,  2.0,  "Splitting capacity:",                                                           "Tverrsnittsbrudd:", bold},
    Row{1.5,  2.0,  "When a member is influenced by tension forces perpendicular to the grain",      "Når trevirket er påvirket av strekkkrefter vinkelrett på fiberretningen"},
    Row{1.0,  2.0,  "possibility of splitting may occur",                                            "kan det oppstå splitting av trevirke"},
    Row{1.2,  2.0,  "The capacity of the connection is depending upon that splitting does not occur.", "Kapasiteten av en forbindelse er avhengig av at ikke tverrsstrekkbrudd opptrer."},
    Row{1.0,  2.0,  "The characteristic capacity against splitting is calculated by the following formula:", "Karakterisk kapasitet for splitting beregnes etter følgende formula:"},
    Row{1.2,  2.0,  "", "", plain, &splitting_formula},
    Row{2.4,  2.0,  "w =  Modification factor, 1 for bolts",                                         "w =  Korreksjonsfaktor, 1 for bolter"},
    Row{1.0,  2.0,  "he= Distance between the loaded edge",                                          "he= Avstand mellom senter av bolt som har  "},
    Row{1.0,  2.0,  "and the most distanced bolt",                                                   ""},
    Row{1.0,  7.0,  "",                                                                              "størst avstand til den belastete kant "},
    Row{1.0,  2.0,  "h=  Member height",                                                             "h=  Høyde av stav som påvirkes av strekk på tverrs"},
    Row{1.0,  2.0,  "b =  Member thickness",                                                         "b =  Bredde (tykkelse) av stav som påvirkes av strekk på tverrs"},
    Row{1.2,  2.0,  "When the force is not perpendicular to the grain,the program ",                 "Når kraften ikke er vinkelerett på fiberretningen vil programmet "},
    Row{1.0,  2.0,  "will use the perpendicular component of the force.",                            "benytte den vinkelrette komponenten for kontroll."},
    Row{1.2,  2.0,  "The program calculates ",                                                       "Programmet beregner"},
    Row{0.0,  29.0, "",                                                                              "he"},
    Row{0.0,  34.0, "",                                                                              "som følger:"},
    Row{0.0,  31.0, "he",                                                                            ""},
    Row{0.0,  35.0, "as follows:",                                                                   ""},
    Row{1.2,  2.0,  "he = h- a",                                                                     "he = h - a"},
    Row{0.0,  30.0, "", "", plain, &splitting_figure},
    Row{2.5,  2.0,  "Heavy line: loaded edge,",                                                      "Tykk strek: belastet kant,"}, // the program's own
    Row{1.0,  2.0,  "also in the sketches",                                                          "også i skissene"},            // likewise
    Row{4.4,  2.0,  "If the user wants a diffenrent location of the bolts,",                         "Dersom brukeren ønsker en annen plassering av bolter,"},
    Row{1.0,  2.0,  "he",                                                                            "kan"},
    Row{0.0,  8.0,  "",                                                                              "he"},
    Row{0.0,  13.0, "",                                                                              "legges inn manuelt."},
    Row{0.0,  7.0,  "can be defined by manual input.",                                               ""},
};

struct Text {
    std::string_view window;
    double first_y, row_height;
    std::span<const Row> rows;
};

constexpr std::array<Text, explanation_windows.size()> window_texts{{
    {"frm_tarn_vik_lastvarighet",    95.0, 8.5, load_duration},
    {"frm_tarn_vik_klima",           95.0, 7.6, service},
    {"frm_tarn_vik_matfak",          95.0, 9.0, material},
    {"Frm_tarn_vik_effbolt",         96.0, 4.0, effective},
    {"Frm_tarn_vik_txt_tverr_brudd", 99.0, 3.6, splitting},
}};
// clang-format on

} // namespace

const ExplanationWindow* Find_explanation(std::string_view name) {
    const auto found = std::find_if(explanation_windows.begin(), explanation_windows.end(),
                                    [name](const ExplanationWindow& window) { return window.name == name; });
    return found == explanation_windows.end() ? nullptr : &*found;
}

Painting Paint_explanation(const ExplanationWindow& window, const ConnectionValues& s) {
    const bool english = Is_english(s);
    Painting painting;
    painting.caption = english ? window.caption_eng : window.caption_nor;
    const auto* text = std::find_if(window_texts.begin(), window_texts.end(),
                                    [&window](const Text& one) { return one.window == window.name; });
    if (text == window_texts.end()) {
        return painting;
    }
    double rows = 0.0;
    for (const Row& row : text->rows) {
        const std::string_view words = english ? row.eng : row.nor;
        if (words.empty() && row.figure == nullptr) {
            continue;
        }
        rows += row.down;
        const auto x = static_cast<float>(row.x);
        const auto y = static_cast<float>(text->first_y - text->row_height * rows);
        if (row.figure != nullptr) {
            painting.pictures.push_back({row.figure->control, row.figure->key, x, y,
                                         static_cast<float>(row.figure->width),
                                         static_cast<float>(row.figure->height)});
        } else {
            painting.texts.push_back({x, y, std::string{words}, row.look});
        }
    }
    return painting;
}

} // namespace tarnvik
