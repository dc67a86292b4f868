#include "spacing/Rules.h"

#include <cmath>
#include <span>

#include "calc/Arithmetic.h"
#include "spacing/Catalogue.h"

namespace tarnvik {

namespace {

// The rules of the bolts and of the connectors, by number; a dash is a field that the case does not write.
// clang-format off
enum BoltCode : std::uint8_t {
    dash_B, B1, B2, B3, B4, B5, B6, B7, B8, B9, B10, B11, B12, B13, B14, B15, B16, B17, B18, B19, B20, B21, B22, B23, B24,
    B25, B26, B27, B28, B29, B30, B31, B32, B33, B34, B35,
};
enum ConnectorCode : std::uint8_t {
    dash_C, C1, C2, C3, C4, C5, C6, C7, C8, C9, C10, C11, C12, C13, C14, C15, C16, C17, C18, C19, C20, C21, C22, C23, C24,
    C25, C26, C27,
};
// clang-format on

// A dash stands for either.
struct Dash {
    constexpr operator BoltCode() const { return dash_B; }      // NOLINT(google-explicit-constructor)
    constexpr operator ConnectorCode() const { return dash_C; } // NOLINT(google-explicit-constructor)
};
constexpr Dash dash;

// Numbers of the bolt rules. S and K are the sine and the cosine of the angle between the members, N d the spacing that
// the user chose. Where two numbers meet, the comparison of the stored values decides the text as well.
enum BoltNumber : std::uint8_t {
    d3,             // 3 d
    d4,             // 4 d
    d7,             // 7 d
    Nd,             // N d, with the chosen text
    d4K,            // (4 + K) d, table 8.4 a1 or a2 at an angle
    end_7d,         // loaded end: 80 mm if 7 d is at most 80 mm, else 7 d
    loaded_3d,      // loaded edge: 3 d if (2 + 2 S) d is at most 3 d, else (2 + 2 S) d
    loaded_4d,      // end at an angle: 4 d if (1 + 6 S) d is at most 4 d, else (1 + 6 S) d
    loaded_4d_at_0, // the same at the angle 0, whatever the input
    across_K,       // 4 d if (4 + K) d S is at most 4 d, else (4 + K) d S
    across_N,       // N d S if 4 d is at most N d S, else 4 d
    only_7d,        // 7 d if it is above 80 mm, else not written
    only_80,        // 80 mm if 7 d is at most 80 mm, else not written
    no_number,      // not written; the text tells whether 7 d is at most 80 mm
};

// Numbers of the connector rules; D is the connector's diameter, r the value of rule C3 in the same case.
enum ConnectorNumber : std::uint8_t {
    D06,           // 0.6 D
    D08,           // 0.8 D
    D12,           // 1.2 D
    D15,           // 1.5 D
    D20,           // 2 D
    along_N,       // N d if 1.5 D is at most N d, else 1.5 D
    along_K,       // (1.2 + 0.3 K) D
    loaded_D,      // (0.6 + 0.2 S) D
    end_D,         // (0.9 + 0.6 S) D
    end_D_at_0,    // the same at the angle 0, whatever the input
    across_K_D,    // 1.2 D if (1.2 + 0.3 K) D S is at most 1.2 D, else (1.2 + 0.3 K) D S
    across_r,      // r S if 1.2 D is at most r S, else 1.2 D
    across_r_or_0, // 0 if 1.2 D is at most r S, else 1.2 D
    no_number_D,   // not written
};

// The formulas of the numbers above.
// clang-format off
constexpr std::array<std::string_view, no_number + 1> bolt_formulas{
    "3*d", "4*d", "7*d", "N*d",
    "(4 + cos(alpha))*d",
    "max(7*d; 80)",
    "max((2 + 2*sin(alpha))*d; 3*d)",
    "max((1 + 6*sin(alpha))*d; 4*d)",
    "max((1 + 6*sin(0))*d; 4*d)",
    "max((4 + cos(alpha))*d*sin(alpha); 4*d)",
    "max(N*d*sin(alpha); 4*d)",
    "max(7*d; 80)", "max(7*d; 80)", "max(7*d; 80)",
};
constexpr std::array<std::string_view, no_number_D + 1> connector_formulas{
    "0.6*D", "0.8*D", "1.2*D", "1.5*D", "2*D",
    "max(N*d; 1.5*D)",
    "(1.2 + 0.3*cos(alpha))*D",
    "(0.6 + 0.2*sin(alpha))*D",
    "(0.9 + 0.6*sin(alpha))*D",
    "(0.9 + 0.6*sin(0))*D",
    "max((1.2 + 0.3*cos(alpha))*D*sin(alpha); 1.2*D)",
    "max(max(N*d; 1.5*D)*sin(alpha); 1.2*D)", "max(max(N*d; 1.5*D)*sin(alpha); 1.2*D)",
    "0.6*D", // as the text says
};
// clang-format on

struct BoltRule {
    BoltCode code;
    BoltNumber number;
    std::string_view limit, formula;
};
struct ConnectorRule {
    ConnectorCode code;
    ConnectorNumber number;
    std::string_view limit, formula;
};

// clang-format off
//   rule  number         text at the limit, or the only one   text of the formula, where it goes beyond the limit
constexpr std::array<BoltRule, 35> bolt_legend{{
    {B1,  d3,            "3 x d",                      ""},
    {B2,  d4,            "4 x d",                      ""},
    {B3,  Nd,            "",                           ""},
    {B4,  end_7d,        "80 mm",                      "7 x d"},
    {B5,  d3,            "3d",                         ""},
    {B6,  d7,            "7 x d",                      ""},
    {B7,  d4K,           "(4+Cos alpha) x d",          ""},
    {B8,  loaded_3d,     "3 x d",                      "(2+2 x Sin alpha) x d"},
    {B9,  loaded_3d,     "3d",                         "(2+2 x Sin alpha) x d"},
    {B10, across_N,      "4 x d",                      "b5 x sin alpha "},
    {B11, across_K,      "4d",                         "a3 x Sin alpha"},
    {B12, across_K,      "4 x d",                      "b4 x Sin alpha"},
    {B13, across_N,      "4 x d",                      "a3 x Sin alpha "},
    {B14, across_N,      "4d",                         "b3 x Sin alpha "},
    {B15, loaded_3d,     "3 x d",                      "(2 + 2 x Sin alpha) x d"},
    {B16, across_K,      "4 x d",                      "b5 x Sin alpha"},
    {B17, across_N,      "4 x d",                      "b5 x Sin alpha "},
    {B18, loaded_3d,     "3d",                         "(2 + 2 x Sin alpha) x d"},
    {B19, loaded_3d,     "3 x d",                      "(2+2xSin alpha) x d"},
    {B20, across_K,      "4 x d",                      "b3 x Sin alpha"},
    {B21, loaded_4d_at_0,"4d",                         "(1+6 x Sin 0) x d"},
    {B22, across_N,      "4 x d",                      "a4 x Sin alpha "},
    {B23, across_N,      "4 x d",                      "a5 x Sin alpha "},
    {B24, across_N,      "4 x d",                      "b3 x sin alpha "},
    {B25, across_N,      "4 x d",                      "b4 x Sin alpha "},
    {B26, across_N,      "4 x d",                      "b4 x sin alpha "},
    {B27, d3,            "",                           ""},
    {B28, loaded_4d,     "4d",                         "(1+6 x Sin alpha) x d"},
    {B29, only_80,       "",                           ""},
    {B30, end_7d,        "",                           "7 x d"},
    {B31, no_number,     "80 mm",                      ""},
    {B32, only_7d,       "80 mm",                      "7 x d"},
    {B33, d3,            "",                           ""},
    {B34, d4,            "4d",                         ""},
    {B35, d4,            "",                           ""},
}};

//   rule  number         text at the limit, or the only one   text of the formula, where it goes beyond the limit
constexpr std::array<ConnectorRule, 27> connector_legend{{
    {C1,  D06,           "D x 0.6",                    ""},
    {C2,  D12,           "D x 1.2",                    ""},
    {C3,  along_N,       "D x 1.5",                    ""},
    {C4,  D20,           "D x 2",                      ""},
    {C5,  loaded_D,      "Dx(0.6+0.2xSin alpha)",      ""},
    {C6,  D15,           "D x 1.5 ",                   ""},
    {C7,  along_K,       "D x(1.2+0.3xCos alpha)",     ""},
    {C8,  D08,           "D x 0.8",                    ""},
    {C9,  across_r,      "D x 1.2",                    "b4 x Sin alpha "},
    {C10, across_r,      "D x 1.2",                    "b5 x Sin alpha "},
    {C11, across_K_D,    "D x 1.2",                    "a3 x Sin alpha"},
    {C12, across_r,      "D x 1.2",                    "a3 x Sin alpha "},
    {C13, D06,           "",                           ""},
    {C14, along_K,       "D x 1.2",                    ""},
    {C15, across_r,      "D x 1.2",                    "b3 x Sin alpha "},
    {C16, across_r_or_0, "D x 1.2",                    "b3 x Sin alpha "},
    {C17, across_K_D,    "D x 1.2",                    "b4 x Sin alpha"},
    {C18, end_D_at_0,    "D x (0.9+0.6xSin 0)",        ""},
    {C19, across_r,      "D x 1.2",                    "a4 x Sin alpha "},
    {C20, across_r,      "D x 1.2",                    "a5 x Sin alpha "},
    {C21, D06,           "",                           ""},
    {C22, D12,           "D x 0.6",                    ""},
    {C23, D12,           "D x(1.2+0.3xCos alpha)",     ""},
    {C24, no_number_D,   "D x 0.6",                    ""},
    {C25, end_D,         "D x (0.9+0.6xSin alpha)",    ""},
    {C26, D20,           "",                           ""},
    {C27, D12,           "D x 2",                      ""},
}};
// clang-format on

template <class Legend> constexpr bool In_order(const Legend& legend) {
    for (std::size_t i = 0; i < legend.size(); ++i) {
        if (legend[i].code != i + 1) {
            return false;
        }
    }
    return true;
}
static_assert(In_order(bolt_legend) && In_order(connector_legend));

struct DistanceRule {
    Distance distance;
    BoltCode bolt_tension, bolt_compression;
    ConnectorCode connector_tension, connector_compression;
};

// clang-format off
//                         bolts                connectors
//                   tension  compression  tension  compression
//                 "1.1."
constexpr std::array<DistanceRule, 6> rules_1_1{{
    {a1, B1,  B1,      C1,  C1},
    {a2, B1,  B1,      C1,  C1},
    {a3, B4,  B2,      C4,  C2},
    {b1, B19, B1,      C5,  C1},
    {b2, B1,  B19,     C1,  C5},
    {b3, B2,  B4,      C2,  C4},
}};
//                 "1.2.a"
constexpr std::array<DistanceRule, 8> rules_1_2_a{{
    {a1, B1,  B1,      C1,  C1},
    {a2, B20, B20,     C2,  C2},
    {a3, B1,  B1,      C1,  C1},
    {a4, B4,  B2,      C4,  C27},
    {b1, B8,  B1,      C5,  C1},
    {b2, B1,  B8,      C1,  C5},
    {b3, B7,  B7,      C7,  C7},
    {b4, B2,  B4,      C2,  C26},
}};
//                 "1.2.b"
constexpr std::array<DistanceRule, 8> rules_1_2_b{{
    {a1, B1,  B1,      C1,  C1},
    {a2, B1,  B1,      C1,  C1},
    {a3, B3,  B3,      C3,  C3},
    {a4, B4,  B2,      C4,  C2},
    {b1, B8,  B1,      C5,  C1},
    {b2, B13, B13,     C12, C12},
    {b3, B1,  B8,      C13, C5},
    {b4, B2,  B4,      C2,  C4},
}};
//                 "1.3.a"
constexpr std::array<DistanceRule, 10> rules_1_3_a{{
    {a1, B1,  B1,      C1,  C1},
    {a2, B12, B12,     C2,  C2},
    {a3, B12, B12,     C23, C23},
    {a4, B1,  B1,      C24, C24},
    {a5, B4,  B35,     C4,  C2},
    {b1, B8,  B1,      C5,  C1},
    {b2, B1,  B8,      C1,  C5},
    {b3, B7,  B7,      C14, C14},
    {b4, B7,  B7,      C14, C14},
    {b5, B34, B4,      C2,  C4},
}};
//                 "1.3.b"
constexpr std::array<DistanceRule, 10> rules_1_3_b{{
    {a1, B1,  B1,      C1,  C1},
    {a2, B1,  B1,      C1,  C1},
    {a3, B3,  B3,      C3,  C3},
    {a4, B3,  B3,      C3,  C3},
    {a5, B4,  B2,      C4,  C2},
    {b1, B8,  B1,      C5,  C1},
    {b2, B13, B13,     C12, C12},
    {b3, B13, B13,     C12, C12},
    {b4, B1,  B8,      C1,  C5},
    {b5, B2,  B4,      C2,  C4},
}};
//                 "1.4."
constexpr std::array<DistanceRule, 10> rules_1_4{{
    {a1, B1,  B1,      C1,  C1},
    {a2, B12, B12,     C17, C17},
    {a3, B1,  B1,      C1,  C1},
    {a4, B3,  B3,      C3,  C3},
    {a5, B4,  B2,      C4,  C2},
    {b1, B8,  B1,      C5,  C13},
    {b2, B22, B22,     C19, C19},
    {b3, B1,  B8,      C1,  C5},
    {b4, B7,  B7,      C7,  C7},
    {b5, B2,  B4,      C2,  C4},
}};
//                 "1.6."
constexpr std::array<DistanceRule, 12> rules_1_6{{
    {a1, B1,  B1,      C1,  C1},
    {a2, B16, B16,     C2,  C2},
    {a3, B16, B16,     C2,  C2},
    {a4, B1,  B1,      C1,  C1},
    {a5, B3,  B3,      C3,  C3},
    {a6, B4,  B2,      C4,  C2},
    {b1, B8,  B1,      C5,  C1},
    {b2, B23, B23,     C20, C20},
    {b3, B1,  B8,      C13, C5},
    {b4, B7,  B7,      C7,  C7},
    {b5, B7,  B7,      C7,  C7},
    {b6, B2,  B4,      C2,  C4},
}};
//                 "2.1."
constexpr std::array<DistanceRule, 6> rules_2_1{{
    {a1, B1,  B15,     C1,  C5},
    {a2, B8,  B1,      C5,  C1},
    {b1, B1,  B1,      C1,  C1},
    {b2, B27, B27,     C21, C21},
    {b3, B4,  B2,      C4,  dash},
    {b4, dash,dash,    dash,C2},
}};
//                 "2.2."
constexpr std::array<DistanceRule, 7> rules_2_2{{
    {a1, B1,  B15,     C1,  C5},
    {a2, B24, B24,     C15, C15},
    {a3, B8,  B1,      C5,  C1},
    {b1, B1,  B1,      C1,  C1},
    {b2, B1,  B1,      C1,  C1},
    {b3, B3,  B3,      C3,  C3},
    {b4, B4,  B2,      C4,  C2},
}};
//                 "2.3."
constexpr std::array<DistanceRule, 9> rules_2_3{{
    {a1, B1,  B15,     C1,  C5},
    {a2, B10, B10,     C9,  C9},
    {a3, B10, B10,     C9,  C9},
    {a4, B8,  B1,      C5,  C1},
    {b1, B1,  B1,      C1,  C1},
    {b2, B1,  B1,      C1,  C1},
    {b3, B3,  B3,      C3,  C3},
    {b4, B3,  B3,      C3,  C3},
    {b5, B4,  B2,      C4,  C2},
}};
//                 "2.4."
constexpr std::array<DistanceRule, 9> rules_2_4{{
    {a1, B1,  B15,     C1,  C5},
    {a2, B26, B26,     C9,  C9},
    {a3, B8,  B1,      C5,  C1},
    {a4, B7,  B7,      C7,  C7},
    {b1, B1,  B1,      C1,  C1},
    {b2, B2,  B2,      C2,  C2},
    {b3, B1,  B1,      C1,  C1},
    {b4, B3,  B3,      C3,  C3},
    {b5, B4,  B2,      C4,  C2},
}};
//                 "2.6."
constexpr std::array<DistanceRule, 11> rules_2_6{{
    {a1, B1,  B15,     C1,  C5},
    {a2, B10, B10,     C10, C10},
    {a3, B10, B10,     C10, C10},
    {a4, B8,  B1,      C5,  C1},
    {a5, B7,  B7,      C7,  C7},
    {b1, B1,  B1,      C1,  C1},
    {b2, B2,  B2,      C2,  C2},
    {b3, B1,  B1,      C1,  C1},
    {b4, B3,  B3,      C3,  C3},
    {b5, B3,  B3,      C3,  C3},
    {b6, B4,  B2,      C4,  C2},
}};
//                 "3.1."
constexpr std::array<DistanceRule, 5> rules_3_1{{
    {a1, B5,  B18,     C1,  C5},
    {a2, B9,  B5,      C5,  C1},
    {b1, B5,  B5,      C1,  C1},
    {b2, B5,  B5,      C1,  C1},
    {b3, B4,  B21,     C4,  C18},
}};
//                 "3.2.a"
constexpr std::array<DistanceRule, 7> rules_3_2_a{{
    {a1, B5,  B18,     C1,  C5},
    {a2, B9,  B5,      C5,  C1},
    {a3, B7,  B7,      C7,  C7},
    {b1, B5,  B5,      C1,  C1},
    {b2, B11, B11,     C11, C11},
    {b3, B5,  B5,      C1,  C1},
    {b4, B4,  B21,     C4,  C18},
}};
//                 "3.2.b"
constexpr std::array<DistanceRule, 7> rules_3_2_b{{
    {a1, B5,  B18,     C1,  C5},
    {a2, B14, B14,     C15, C15},
    {a3, B9,  B5,      C5,  C1},
    {b1, B5,  B5,      C1,  C1},
    {b2, B5,  B5,      C1,  C1},
    {b3, B3,  B3,      C3,  C3},
    {b4, B4,  B28,     C4,  C25},
}};
//                 "3.3.a"
constexpr std::array<DistanceRule, 9> rules_3_3_a{{
    {a1, B5,  B18,     C1,  C5},
    {a2, B9,  B5,      C5,  C1},
    {a3, B7,  B7,      C7,  C7},
    {a4, B7,  B7,      C7,  C7},
    {b1, B5,  B5,      C1,  C1},
    {b2, B11, B11,     C11, C11},
    {b3, B11, B11,     C11, C11},
    {b4, B5,  B5,      C1,  C1},
    {b5, B4,  B21,     C4,  C18},
}};
//                 "3.3.b"
constexpr std::array<DistanceRule, 9> rules_3_3_b{{
    {a1, B5,  B18,     C1,  C5},
    {a2, B14, B14,     C16, C16},
    {a3, B14, B14,     C16, C16},
    {a4, B9,  B5,      C5,  C1},
    {b1, B5,  B5,      C1,  C1},
    {b2, B5,  B5,      C1,  C1},
    {b3, B3,  B3,      C3,  C3},
    {b4, B3,  B3,      C3,  C3},
    {b5, B4,  B28,     C4,  C25},
}};
//                 "3.4."
constexpr std::array<DistanceRule, 9> rules_3_4{{
    {a1, B1,  B15,     C1,  C5},
    {a2, B25, B25,     C9,  C9},
    {a3, B9,  B1,      C5,  C1},
    {a4, B7,  B7,      C7,  C7},
    {b1, B1,  B1,      C1,  C1},
    {b2, B2,  B2,      C2,  C2},
    {b3, B1,  B1,      C1,  C1},
    {b4, B3,  B3,      C3,  C3},
    {b5, B4,  B2,      C4,  C2},
}};
//                 "3.6."
constexpr std::array<DistanceRule, 11> rules_3_6{{
    {a1, B1,  B15,     C1,  C5},
    {a2, B17, B17,     C10, C10},
    {a3, B17, B17,     C10, C10},
    {a4, B8,  B1,      C5,  C1},
    {a5, B7,  B7,      C7,  C7},
    {b1, B1,  B1,      C1,  C1},
    {b2, B2,  B2,      C2,  C2},
    {b3, B1,  B1,      C1,  C1},
    {b4, B3,  B3,      C3,  C3},
    {b5, B3,  B3,      C3,  C3},
    {b6, B4,  B2,      C4,  C2},
}};
//                 "4.1."
constexpr std::array<DistanceRule, 6> rules_4_1{{
    {a1, B1,  B2,      C1,  C8},
    {a2, B2,  B1,      C8,  C1},
    {a3, B6,  B6,      C6,  C6},
    {b1, B1,  B1,      C1,  C1},
    {b2, B1,  B1,      C1,  C1},
    {b3, B4,  B2,      C4,  C2},
}};
//                 "4.2.a"
constexpr std::array<DistanceRule, 7> rules_4_2_a{{
    {a1, B1,  B2,      C1,  C8},
    {a2, B2,  B1,      C8,  C1},
    {a3, B6,  B6,      C6,  C6},
    {b1, B1,  B1,      C1,  C1},
    {b2, B2,  B2,      C22, C22},
    {b3, B1,  B1,      C13, C13},
    {b4, B4,  B2,      C4,  C2},
}};
//                 "4.2.b", "5.2.b"
constexpr std::array<DistanceRule, 7> rules_4_2_b_5_2_b{{
    {a1, B1,  B2,      C1,  C8},
    {a2, B3,  B3,      C3,  C3},
    {a3, B2,  B1,      C8,  C1},
    {a4, B6,  B6,      C6,  C6},
    {b1, B1,  B1,      C1,  C1},
    {b2, B1,  B1,      C1,  C1},
    {b3, B4,  B2,      C4,  C2},
}};
//                 "4.3.a"
constexpr std::array<DistanceRule, 8> rules_4_3_a{{
    {a1, B1,  B2,      C1,  C8},
    {a2, B2,  B1,      C8,  C1},
    {a3, B6,  B6,      C6,  C6},
    {b1, B1,  B1,      C1,  C1},
    {b2, B2,  B2,      C2,  C2},
    {b3, B2,  B2,      C2,  C2},
    {b4, B1,  B1,      C1,  C1},
    {b5, B4,  B2,      C4,  C2},
}};
//                 "4.3.b", "5.3.b"
constexpr std::array<DistanceRule, 9> rules_4_3_b_5_3_b{{
    {a1, B1,  B2,      C1,  C8},
    {a2, B3,  B3,      C3,  C3},
    {a3, B3,  B3,      C3,  C3},
    {a4, B2,  B1,      C8,  C1},
    {a5, B6,  B6,      C6,  C6},
    {b1, B1,  B1,      C1,  C1},
    {b2, B1,  B1,      C1,  C1},
    {b3, B30, B2,      C4,  C2},
    {b4, B31, dash,    dash,dash},
}};
//                 "4.4."
constexpr std::array<DistanceRule, 8> rules_4_4{{
    {a1, B1,  B2,      C1,  C8},
    {a2, B3,  B3,      C3,  C3},
    {a3, B2,  B1,      C8,  C1},
    {a4, B6,  B6,      C6,  C6},
    {b1, B1,  B1,      C1,  C1},
    {b2, B2,  B2,      C2,  C2},
    {b3, B1,  B1,      C1,  C1},
    {b4, B4,  B2,      C4,  C2},
}};
//                 "4.6.a"
constexpr std::array<DistanceRule, 9> rules_4_6_a{{
    {a1, B1,  B2,      C1,  C8},
    {a2, B3,  B3,      C3,  C3},
    {a3, B2,  B1,      C8,  C1},
    {a4, B6,  B6,      C6,  C6},
    {b1, B1,  B1,      C1,  C1},
    {b2, B2,  B2,      C2,  C2},
    {b3, B2,  B2,      C2,  C2},
    {b4, B1,  B1,      C1,  C1},
    {b5, B4,  B2,      C4,  C2},
}};
//                 "4.6.b", "5.6.b"
constexpr std::array<DistanceRule, 9> rules_4_6_b_5_6_b{{
    {a1, B1,  B2,      C1,  C8},
    {a2, B3,  B3,      C3,  C3},
    {a3, B3,  B3,      C3,  C3},
    {a4, B2,  B1,      C8,  C1},
    {a5, B6,  B6,      C6,  C6},
    {b1, B1,  B1,      C1,  C1},
    {b2, B2,  B2,      C2,  C2},
    {b3, B1,  B1,      C1,  C1},
    {b4, B4,  B2,      C4,  C2},
}};
//                 "5.1."
constexpr std::array<DistanceRule, 7> rules_5_1{{
    {a1, B2,  B1,      C8,  C1},
    {a2, B1,  B2,      C1,  C8},
    {a3, B6,  B6,      C6,  C6},
    {b1, B1,  B1,      C1,  C1},
    {b2, B1,  B1,      C1,  C1},
    {b3, B32, B2,      C4,  C2},
    {b5, B29, dash,    dash,dash},
}};
//                 "5.2.a"
constexpr std::array<DistanceRule, 7> rules_5_2_a{{
    {a1, B2,  B1,      C8,  C1},
    {a2, B1,  B2,      C1,  C8},
    {a3, B6,  B6,      C6,  C6},
    {b1, B1,  B1,      C1,  C1},
    {b2, B2,  B2,      C2,  C2},
    {b3, B1,  B1,      C1,  C1},
    {b4, B4,  B2,      C4,  C2},
}};
//                 "5.3.a"
constexpr std::array<DistanceRule, 8> rules_5_3_a{{
    {a1, B2,  B1,      C8,  C1},
    {a2, B33, B2,      C13, C8},
    {a3, B6,  B6,      C6,  C6},
    {b1, B1,  B1,      C1,  C1},
    {b2, B2,  B2,      C2,  C2},
    {b3, B2,  B2,      C2,  C2},
    {b4, B1,  B1,      C1,  C1},
    {b5, B4,  B2,      C4,  C2},
}};
//                 "5.4."
constexpr std::array<DistanceRule, 8> rules_5_4{{
    {a1, B2,  B1,      C8,  C1},
    {a2, B3,  B3,      C3,  C3},
    {a3, B1,  B2,      C1,  C8},
    {a4, B6,  B6,      C6,  C6},
    {b1, B1,  B1,      C1,  C1},
    {b2, B2,  B2,      C2,  C2},
    {b3, B1,  B1,      C1,  C1},
    {b4, B4,  B2,      C4,  C2},
}};
//                 "5.6.a"
constexpr std::array<DistanceRule, 9> rules_5_6_a{{
    {a1, B2,  B1,      C8,  C1},
    {a2, B3,  B3,      C3,  C3},
    {a3, B1,  B2,      C1,  C8},
    {a4, B6,  B6,      C6,  C6},
    {b1, B1,  B1,      C1,  C1},
    {b2, B2,  B2,      C2,  C2},
    {b3, B2,  B2,      C2,  C2},
    {b4, B1,  B1,      C1,  C1},
    {b5, B4,  B2,      C4,  C2},
}};
// clang-format on

// The sum of a family: its label, and how many of the family's first distances it adds, of the bolts and of the
// connectors.
struct SumRule {
    std::string_view label;
    int bolts, connectors;
};

// No distance beside those of the joint; none that is judged differently at a force of exactly zero.
constexpr int none = -1;

// The distances are those of the joint and, in four cases, one beside them that the joint does not have: it takes a
// number or a text of the end distance b3.
//
// At a force of exactly zero every distance takes the tension column, but for the one named here, which takes the
// compression column with both its cells.
struct CaseRules {
    std::string_view Case_code;
    std::span<const DistanceRule> distances;
    int beside;
    SumRule sum_a, sum_b;
    int compression_at_zero;
};

// The lone 2 beside a 3: in case 2.2 the sum of the connectors ends at Ca2, although its label names the distance to
// the second edge as well. It is meant so: what stands against h1 is without Ca3.
// clang-format off
constexpr std::array<CaseRules, case_count> case_rules{{
    // case   distances          beside sum a: label, of bolts, of connectors; sum b likewise                      at zero
    {"1.1. ", rules_1_1,         none,  {"a1 + a2",             2, 2},  {"b1 + b2",             2, 2},  none},
    {"1.2.a", rules_1_2_a,       none,  {"a1+a2+a3",            3, 3},  {"b1 + b2 ",            2, 2},  none},
    {"1.2.b", rules_1_2_b,       none,  {"a1+a2",               2, 2},  {"b1 + b2 +b3",         3, 3},  b3},
    {"1.3.a", rules_1_3_a,       none,  {"a1+a2+a3+a4",         4, 4},  {"b1 + b2 ",            2, 2},  none},
    {"1.3.b", rules_1_3_b,       none,  {"a1+a2",               2, 2},  {"b1 + b2 + b3 + b4",   4, 4},  b4},
    {"1.4. ", rules_1_4,         none,  {"a1+a2+a3",            3, 3},  {"b1 + b2 +b3",         3, 3},  b3},
    {"1.6. ", rules_1_6,         none,  {"a1+a2+a3+a4",         4, 4},  {"b1 + b2 +b3",         3, 3},  b3},
    {"2.1. ", rules_2_1,         b4,    {"a1 + a2 ",            2, 2},  {"b1+b2",               2, 2},  none},
    {"2.2. ", rules_2_2,         none,  {"a1 + a2 +a3",         3, 2},  {"b1+b2",               2, 2},  none}, // without Ca3
    {"2.3. ", rules_2_3,         none,  {"a1 + a2 +a3 + a4",    4, 4},  {"b1+b2",               2, 2},  none},
    {"2.4. ", rules_2_4,         none,  {"a1 + a2 +a3 ",        3, 3},  {"b1+b2+b3",            3, 3},  none},
    {"2.6. ", rules_2_6,         none,  {"a1 + a2 +a3 + a4",    4, 4},  {"b1+b2+b3",            3, 3},  none},
    {"3.1. ", rules_3_1,         none,  {"a1 + a2 ",            2, 2},  {"b1+b2",               2, 2},  none},
    {"3.2.a", rules_3_2_a,       none,  {"a1 + a2 ",            2, 2},  {"b1+b2+b3",            3, 3},  none},
    {"3.2.b", rules_3_2_b,       none,  {"a1 + a2 + a3 ",       3, 3},  {"b1+b2",               2, 2},  none},
    {"3.3.a", rules_3_3_a,       none,  {"a1 + a2 ",            2, 2},  {"b1+b2+b3+b4",         4, 4},  none},
    {"3.3.b", rules_3_3_b,       none,  {"a1 + a2 + a3 + a4",   4, 4},  {"b1+b2",               2, 2},  none},
    {"3.4. ", rules_3_4,         none,  {"a1 + a2 + a3",        3, 3},  {"b1+b2+b3",            3, 3},  none},
    {"3.6. ", rules_3_6,         none,  {"a1 + a2 + a3 + a4",   4, 4},  {"b1+b2+b3",            3, 3},  none},
    {"4.1. ", rules_4_1,         none,  {"a1 + a2  ",           2, 2},  {"b1+b2",               2, 2},  a2},
    {"4.2.a", rules_4_2_a,       none,  {"a1 + a2  ",           2, 2},  {"b1+b2+b3",            3, 3},  a2},
    {"4.2.b", rules_4_2_b_5_2_b, none,  {"a1 + a2 +a3 ",        3, 3},  {"b1+b2",               2, 2},  a3},
    {"4.3.a", rules_4_3_a,       none,  {"a1 + a2 ",            2, 2},  {"b1+b2+b3+b4",         4, 4},  a2},
    {"4.3.b", rules_4_3_b_5_3_b, b4,    {"a1 + a2 +a3 + a4 ",   4, 4},  {"b1+b2",               2, 2},  a4},
    {"4.4. ", rules_4_4,         none,  {"a1 + a2 +a3 ",        3, 3},  {"b1+b2+b3",            3, 3},  a3},
    {"4.6.a", rules_4_6_a,       none,  {"a1 + a2 +a3 ",        3, 3},  {"b1+b2+b3+b4",         4, 4},  a3},
    {"4.6.b", rules_4_6_b_5_6_b, none,  {"a1 + a2 +a3 + a4 ",   4, 4},  {"b1+b2+b3",            3, 3},  a4},
    {"5.1. ", rules_5_1,         b5,    {"a1 + a2 ",            2, 2},  {"b1+b2",               2, 2},  a1},
    {"5.2.a", rules_5_2_a,       none,  {"a1 + a2 ",            2, 2},  {"b1+b2+b3",            3, 3},  a1},
    {"5.2.b", rules_4_2_b_5_2_b, none,  {"a1 + a2 + a3",        3, 3},  {"b1+b2",               2, 2},  a3},
    {"5.3.a", rules_5_3_a,       none,  {"a1 + a2  ",           2, 2},  {"b1+b2+b3+b4",         4, 4},  a1},
    {"5.3.b", rules_4_3_b_5_3_b, b4,    {"a1 + a2 +a3 + a4 ",   4, 4},  {"b1+b2",               2, 2},  a4},
    {"5.4. ", rules_5_4,         none,  {"a1 + a2 +a3 ",        3, 3},  {"b1+b2+b3",            3, 3},  a1},
    {"5.6.a", rules_5_6_a,       none,  {"a1 + a2 +a3 ",        3, 3},  {"b1+b2+b3+b4",         4, 4},  a1},
    {"5.6.b", rules_4_6_b_5_6_b, none,  {"a1 + a2 +a3 + a4 ",   4, 4},  {"b1+b2+b3",            3, 3},  a4},
}};
// clang-format on

// The rows of a case are all the distances of the joint in their order, a1 and on, b1 and on, and then the one beside
// them: a row more or a row less does not compile.
constexpr bool Lists(const CaseRules& rules, const CaseDistances& joint) {
    const int in_a = joint.a.across + joint.a.along;
    const int in_b = joint.b.across + joint.b.along;
    const int all = in_a + in_b;
    if (static_cast<int>(rules.distances.size()) != all + (rules.beside == none ? 0 : 1)) {
        return false;
    }
    for (int i = 0; i < all; ++i) {
        if (rules.distances[static_cast<std::size_t>(i)].distance != (i < in_a ? a1 + i : b1 + i - in_a)) {
            return false;
        }
    }
    return rules.beside == none || rules.distances.back().distance == rules.beside;
}

// A sum adds the distances across its member, the connectors' one no more than that, and its label names each of them.
constexpr bool Adds(const SumRule& sum, int across, char family) {
    int named = 0;
    for (const char c : sum.label) {
        named += c == family ? 1 : 0;
    }
    return sum.bolts == across && sum.connectors <= across && named == across;
}

constexpr bool Agree() {
    for (std::size_t i = 0; i < case_rules.size(); ++i) {
        const CaseRules& rules = case_rules[i];
        const CaseDistances& joint = case_distances[i];
        if (rules.Case_code != case_table[i].Case_code || joint.Case_code != case_table[i].Case_code ||
            !Lists(rules, joint) || !Adds(rules.sum_a, joint.a.across, 'a') ||
            !Adds(rules.sum_b, joint.b.across, 'b')) {
            return false;
        }
    }
    return true;
}
static_assert(Agree());

constexpr std::array<std::string_view, distance_count> labels{"a1", "a2", "a3", "a4", "a5", "a6",
                                                              "b1", "b2", "b3", "b4", "b5", "b6"};

using R = SpacingRecord;

// clang-format off
constexpr std::array<DistanceFields, distance_count> distance_fields{{
    {&R::Sa1_lbl, &R::Sa1, &R::Sa1_txt, &R::Ca1, &R::Ca1_txt},
    {&R::Sa2_lbl, &R::Sa2, &R::Sa2_txt, &R::Ca2, &R::Ca2_txt},
    {&R::Sa3_lbl, &R::Sa3, &R::Sa3_txt, &R::Ca3, &R::Ca3_txt},
    {&R::Sa4_lbl, &R::Sa4, &R::Sa4_txt, &R::Ca4, &R::Ca4_txt},
    {&R::Sa5_lbl, &R::Sa5, &R::Sa5_txt, &R::Ca5, &R::Ca5_txt},
    {&R::Sa6_lbl, &R::Sa6, &R::Sa6_txt, &R::Ca6, &R::Ca6_txt},
    {&R::Sb1_lbl, &R::Sb1, &R::Sb1_txt, &R::Cb1, &R::Cb1_txt},
    {&R::Sb2_lbl, &R::Sb2, &R::Sb2_txt, &R::Cb2, &R::Cb2_txt},
    {&R::Sb3_lbl, &R::Sb3, &R::Sb3_txt, &R::Cb3, &R::Cb3_txt},
    {&R::Sb4_lbl, &R::Sb4, &R::Sb4_txt, &R::Cb4, &R::Cb4_txt},
    {&R::Sb5_lbl, &R::Sb5, &R::Sb5_txt, &R::Cb5, &R::Cb5_txt},
    {&R::Sb6_lbl, &R::Sb6, &R::Sb6_txt, &R::Cb6, &R::Cb6_txt},
}};
// clang-format on

constexpr std::string_view where = "Calc_spacing";

// What the rules of one pass have in common.
struct Terms {
    double d, D; // bolt and connector diameter, mm
    double S, K; // sine and cosine of the angle between the members
    float Nd;    // the chosen spacing, mm
    std::string_view chosen;
    float r; // the connectors' spacing along the grain, mm
    bool r_chosen;
};

struct Cell {
    float number;
    std::string_view text;
};

Cell Bolt_cell(const BoltRule& rule, const Terms& t) {
    // The limit where the formula's value is at most the limit, else the formula; equality gives the limit.
    const auto limited = [&rule](float limit, float value) {
        return value <= limit ? Cell{limit, rule.limit} : Cell{value, rule.formula};
    };
    const float seven = Store(7.0 * t.d, where);
    switch (rule.number) {
    case d3:
        return {Store(3.0 * t.d, where), rule.limit};
    case d4:
        return {Store(4.0 * t.d, where), rule.limit};
    case d7:
        return {seven, rule.limit};
    case Nd:
        return {t.Nd, t.chosen};
    case d4K:
        return {Store((4.0 + t.K) * t.d, where), rule.limit};
    case end_7d:
        return limited(80.0F, seven);
    case loaded_3d:
        return limited(Store(3.0 * t.d, where), Store((2.0 + 2.0 * t.S) * t.d, where));
    case loaded_4d:
        return limited(Store(4.0 * t.d, where), Store((1.0 + 6.0 * t.S) * t.d, where));
    case loaded_4d_at_0:
        return limited(Store(4.0 * t.d, where), Store((1.0 + 6.0 * std::sin(0.0)) * t.d, where));
    case across_K:
        return limited(Store(4.0 * t.d, where), Store((4.0 + t.K) * t.d * t.S, where));
    case across_N: {
        // Here equality gives the formula.
        const float four = Store(4.0 * t.d, where);
        const float value = Store(t.Nd * t.S, where);
        return four <= value ? Cell{value, rule.formula} : Cell{four, rule.limit};
    }
    case only_7d:
        return seven <= 80.0F ? Cell{0.0F, rule.limit} : Cell{seven, rule.formula};
    case only_80:
        return seven <= 80.0F ? Cell{80.0F, rule.limit} : Cell{0.0F, rule.formula};
    case no_number:
        return {0.0F, seven <= 80.0F ? rule.limit : rule.formula};
    }
    return {};
}

Cell Connector_cell(const ConnectorRule& rule, const Terms& t) {
    const auto times = [&t, &rule](double factor) { return Cell{Store(factor * t.D, where), rule.limit}; };
    switch (rule.number) {
    case D06:
        return times(0.6);
    case D08:
        return times(0.8);
    case D12:
        return times(1.2);
    case D15:
        return times(1.5);
    case D20:
        return times(2.0);
    case along_N:
        return {t.r, t.r_chosen ? t.chosen : rule.limit};
    case along_K:
        return times(1.2 + 0.3 * t.K);
    case loaded_D:
        return times(0.6 + 0.2 * t.S);
    case end_D:
        return times(0.9 + 0.6 * t.S);
    case end_D_at_0:
        return times(0.9 + 0.6 * std::sin(0.0));
    case across_K_D: {
        const float limit = Store(1.2 * t.D, where);
        const float value = Store((1.2 + 0.3 * t.K) * t.D * t.S, where);
        return value <= limit ? Cell{limit, rule.limit} : Cell{value, rule.formula};
    }
    case across_r:
    case across_r_or_0: {
        const float limit = Store(1.2 * t.D, where);
        const float value = Store(t.r * t.S, where);
        return limit <= value ? Cell{rule.number == across_r ? value : 0.0F, rule.formula} : Cell{limit, rule.limit};
    }
    case no_number_D:
        return {0.0F, rule.limit};
    }
    return {};
}

// At a force of exactly zero every distance takes the tension column but one.
bool Takes_compression(const ConnectionValues& s, const CaseRules& rules, Distance distance) {
    return s.P > 0.0F || (s.P == 0.0F && distance == rules.compression_at_zero);
}

// The first n distances of a family from `first`, as they then stand.
float Sum(const SpacingRecord& record, int first, int n, float SpacingRecord::*DistanceFields::*kind) {
    double sum = 0.0;
    for (int i = 0; i < n; ++i) {
        sum += record.*(distance_fields[static_cast<std::size_t>(first + i)].*kind);
    }
    return Store(sum, where);
}

} // namespace

std::string_view Label_of(Distance distance) {
    return labels[distance];
}

const DistanceFields& Fields_of(Distance distance) {
    return distance_fields[distance];
}

void Clear_spacing(SpacingRecord& record) {
    record = SpacingRecord{};
}

void Get_N_d(const ConnectionValues& s, float& value, std::string_view& text) {
    constexpr std::array<std::string_view, 16> texts{"5 x d",  "6 x d",  "7 x d",  "8 x d",  "9 x d",  "10 x d",
                                                     "11 x d", "12 x d", "13 x d", "14 x d", "15 x d", "16 x d",
                                                     "17 x d", "18 x d", "19 x d", "20 x d"};
    const int i = s.Avstand_index;
    if (i >= 0 && i < static_cast<int>(texts.size())) {
        value = Store((i + 5.0) * s.d, "Get_N_d");
        text = texts[static_cast<std::size_t>(i)];
    }
}

void Calc_spacing(ConnectionValues& s, int case_row) {
    const CaseRules& rules = case_rules[static_cast<std::size_t>(case_row)];

    Terms t{};
    t.d = s.d;
    t.D = s.dc;
    t.S = std::sin(s.alp / degrees_per_radian);
    t.K = std::cos(s.alp / degrees_per_radian);
    Get_N_d(s, t.Nd, t.chosen);
    const float least = Store(1.5 * t.D, where);
    t.r_chosen = least <= t.Nd;
    t.r = t.r_chosen ? t.Nd : least;

    SpacingRecord& record = s;
    for (const DistanceRule& row : rules.distances) {
        const bool compression = Takes_compression(s, rules, row.distance);
        const DistanceFields& fields = distance_fields[row.distance];
        record.*fields.lbl = labels[row.distance];
        if (const BoltCode code = compression ? row.bolt_compression : row.bolt_tension; code != dash_B) {
            const Cell cell = Bolt_cell(bolt_legend[code - 1U], t);
            record.*fields.S = cell.number;
            record.*fields.S_txt = cell.text;
        }
        if (const ConnectorCode code = compression ? row.connector_compression : row.connector_tension;
            code != dash_C) {
            const Cell cell = Connector_cell(connector_legend[code - 1U], t);
            record.*fields.C = cell.number;
            record.*fields.C_txt = cell.text;
        }
    }

    record.Sum_a_txt = rules.sum_a.label;
    record.Sum_b_txt = rules.sum_b.label;
    record.Sum_a = Sum(record, a1, rules.sum_a.bolts, &DistanceFields::S);
    record.Sum_ca = Sum(record, a1, rules.sum_a.connectors, &DistanceFields::C);
    record.Sum_b = Sum(record, b1, rules.sum_b.bolts, &DistanceFields::S);
    record.Sum_cb = Sum(record, b1, rules.sum_b.connectors, &DistanceFields::C);
}

std::vector<ListedDistance> Listed_distances(const ConnectionValues& s, int case_row) {
    const CaseRules& rules = case_rules[static_cast<std::size_t>(case_row)];
    std::vector<ListedDistance> listed;
    for (const DistanceRule& row : rules.distances) {
        const bool compression = Takes_compression(s, rules, row.distance);
        const DistanceFields& fields = distance_fields[row.distance];
        ListedDistance found{row.distance, {}, {}, {}, {}};
        if (const BoltCode code = compression ? row.bolt_compression : row.bolt_tension; code != dash_B) {
            found.S_formula = bolt_formulas[bolt_legend[code - 1U].number];
        }
        if (const ConnectorCode code = compression ? row.connector_compression : row.connector_tension;
            code != dash_C) {
            found.C_formula = connector_formulas[connector_legend[code - 1U].number];
        }
        // A distance is above zero: zero stands for no number.
        if (s.*fields.S > 0.0F) {
            found.S = s.*fields.S;
        }
        if (s.*fields.C > 0.0F) {
            found.C = s.*fields.C;
        }
        if (row.distance != rules.beside) {
            listed.push_back(found);
            continue;
        }
        // What stands beside the joint belongs to its last distance, b3, which is the last one before it.
        ListedDistance& last = listed.back();
        if (!last.S) {
            last.S = found.S;
        }
        if (!last.C && found.C) {
            last.C = found.C;
            last.C_formula = found.C_formula;
        }
    }
    return listed;
}

int Sum_length_a(int case_row) {
    return case_rules[static_cast<std::size_t>(case_row)].sum_a.bolts;
}

int Sum_length_b(int case_row) {
    return case_rules[static_cast<std::size_t>(case_row)].sum_b.bolts;
}

} // namespace tarnvik
