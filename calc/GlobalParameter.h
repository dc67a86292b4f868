// The connection state: one plain record of named values on which the whole program works, and the small tables of
// bolts, washers, connectors, modification factors and partial factors that are part of the calculation.
//
// Units: lengths mm, strengths N/mm2, density kg/m3, angles degrees, `P` and design capacities kN, characteristic
// capacities of a bolt N, characteristic capacity of a connector kN. Every `float` is rounded to 32 bits when it is
// stored (calc/Arithmetic.h).
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "calc/Text.h"

namespace tarnvik {

// The minimum distances of EN 1995-1-1 (tables 8.4 and 8.8) for the open connection, cleared and refilled in
// every pass. Family a belongs to member 1, family b to member 2. S.. are the values for bolts, C.. for connectors, in
// mm; .._txt the text of the rule that gave the value; .._lbl the label, empty while the case has no such distance.
// The texts are literals.
struct SpacingRecord {
    std::string_view Sa1_lbl{}, Sa2_lbl{}, Sa3_lbl{}, Sa4_lbl{}, Sa5_lbl{}, Sa6_lbl{};
    std::string_view Sb1_lbl{}, Sb2_lbl{}, Sb3_lbl{}, Sb4_lbl{}, Sb5_lbl{}, Sb6_lbl{};
    float Sa1{}, Sa2{}, Sa3{}, Sa4{}, Sa5{}, Sa6{};
    float Sb1{}, Sb2{}, Sb3{}, Sb4{}, Sb5{}, Sb6{};
    std::string_view Sa1_txt{}, Sa2_txt{}, Sa3_txt{}, Sa4_txt{}, Sa5_txt{}, Sa6_txt{};
    std::string_view Sb1_txt{}, Sb2_txt{}, Sb3_txt{}, Sb4_txt{}, Sb5_txt{}, Sb6_txt{};
    float Ca1{}, Ca2{}, Ca3{}, Ca4{}, Ca5{}, Ca6{};
    float Cb1{}, Cb2{}, Cb3{}, Cb4{}, Cb5{}, Cb6{};
    std::string_view Ca1_txt{}, Ca2_txt{}, Ca3_txt{}, Ca4_txt{}, Ca5_txt{}, Ca6_txt{};
    std::string_view Cb1_txt{}, Cb2_txt{}, Cb3_txt{}, Cb4_txt{}, Cb5_txt{}, Cb6_txt{};
    // Sums over the distances that lie across the member, from edge to edge, compared with its height.
    std::string_view Sum_a_txt{}, Sum_b_txt{};
    float Sum_a{}, Sum_b{};   // bolts
    float Sum_ca{}, Sum_cb{}; // connectors
};

// Inputs, classes, section and fastener data, results of the last pass.
// Members start with the values of a new connection; what has no default starts at zero or empty.
struct ConnectionValues : SpacingRecord {
    // Run control and language
    FixedText<3> Lang;      // "Eng" or "Nor"; what is not "Eng" gets Norwegian texts
    bool Loading{};         // the program itself sets controls: every input handler returns at once
    bool Bulldog_invalid{}; // the connector does not fit the bolt: the pass stops

    // Project identity
    std::string Prosjekt;  // project name
    std::string Id;        // name of the connection
    std::string File_name; // path of the project file, or the new-project title until one is opened or saved
    bool File_named{};     // File_name is a path: a project has been opened or saved

    // Classes and factors, EN 1995-1-1 2.3.1, 3.1.3 and 2.4.1
    std::int16_t Lastvar{1};   // load-duration class 1 to 5
    FixedText<20> Lastvar_txt; // its name in the language
    std::int16_t Klima{1};     // service class 1 to 3
    float kmod{};              // modification factor for duration of load and moisture content
    float gm_T{};              // partial factor gamma_M of solid timber
    float gm_L{};              // of glued laminated timber
    float gm_Ke{};             // of Kerto
    float gm_K{};              // of K-bjelke
    float gm{};                // of the chosen material

    // Material and sections
    std::int16_t Mat_index{3};   // row of Mat
    float rho_k{};               // characteristic density, kg/m3
    float fc90k{};               // characteristic compressive strength across the grain, N/mm2
    bool Standard{true};         // sections come from the profile table; false: from the free-entry texts
    std::int16_t Prof1_index{3}; // row of Prof for member 1
    std::int16_t Prof2_index{6}; // row of Prof for member 2
    float b1{}, h1{};            // width and height of member 1, mm
    float b2{}, h2{};            // width and height of member 2, mm
    // What the free-entry boxes show. A pass reads them where Standard is false and writes them back with one decimal:
    // from the second pass on a typed section is the rounded one.
    std::string Txt_b1, Txt_h1, Txt_b2, Txt_h2;

    // Connection and fasteners
    std::int16_t Con_type{1};      // connection type 1 to 5
    bool enk_1{true}, dob_1{};     // member 1 is single or double
    bool enk_2{true}, dob_2{};     // member 2 is single or double
    FixedText<3> Con_code;         // "1.1" to "5.3": type and variant
    float alp{25.0F};              // angle between the members, degrees
    bool Kun_bolt{true};           // bolts only
    bool Med_bulldog{};            // bolts with tooth-plate connectors
    std::int16_t Bolt_index{6};    // row of the bolt table
    float d{}, fuk{};              // bolt diameter, mm; tensile strength, N/mm2
    float d_skive{}, t_skive{};    // washer diameter and thickness, mm
    std::int16_t Bulldog_index{1}; // row of the connector table
    float dc{62.0F};               // connector diameter of the spacing rules, mm, set when the connector is picked
    float hc{};                    // connector height, mm
    std::int16_t Ant_index{1};     // row of the list 1, 2, 3, 4, 6
    std::int16_t n_bolt{};         // number of bolts
    FixedText<1> Bolt_ab{"b"};     // arrangement "a" or "b"
    bool Ab_valg{};                // the arrangement can be chosen
    FixedText<5> Case_code;        // case such as "1.2.a" or "1.4. "
    std::int16_t Avstand_index{};  // spacing along the grain, row of "5d" to "20d"
    bool Has_row{};                // the case has a row of fasteners along the grain
    float a1{};                    // spacing along the grain of the effective number, mm
    std::int16_t n_row{}, rows{};  // fasteners in a row along the grain, number of such rows

    // Load and manual splitting input
    float P{10.0F};   // design force, kN: positive is compression, negative is tension
    bool Man_he_on{}; // he is typed by the user
    float man_he{};   // the typed value, mm

    // Bolt capacity per shear plane (calc/Shear.h)
    float t1{}, t2{};                                     // thicknesses of the formulas, mm
    std::string_view t1_txt{}, t2_txt{};                  // their labels
    float alp1{}, alp2{};                                 // angles of force to grain in t1 and t2, degrees
    float k90{};                                          // (8.33)
    float fh0k{}, fh1k{}, fh2k{}, beta{};                 // embedment strengths, N/mm2, and their ratio
    float My_Rk{};                                        // yield moment, Nmm
    float Fax_bolt{}, Fax_skive{}, Fax_min{};             // axial capacities of bolt and washer, N
    float Fv_a{}, Fv_b{}, Fv_c{}, Fv_d{}, Fv_e{}, Fv_f{}; // single shear modes, N
    float Fv_g{}, Fv_h{}, Fv_j{}, Fv_k{};                 // double shear modes, N
    // Connectors (calc/Connector.h)
    float Fv_Rk{}; // one connector per shear plane, kN
    // Effective numbers, design capacities, utilisation (calc/DesignCapacity.h)
    float nef_b_row{}, nef_b{}; // effective bolts in a row and in all rows
    float nef_f_row{}, nef_f{}; // effective connectors in a row and in all rows
    float Rd_bolt{}, Rd_for{};  // design capacities of bolts and connectors, kN
    float uf{};                 // utilisation
    // Splitting (calc/Splitting.h)
    float he{};                                // loaded edge to the farthest bolt, mm
    float F90_Rd{}, P_sin{}, Tverr_kontroll{}; // capacity, force across the grain, kN; utilisation
};

// A row of the material table. The calculation reads Type, fc90k and dens; Standard, G and s_fac are never filled.
struct MatRecord {
    std::string Id, Type, Standard;
    float fmk{}, fc0k{}, fc90k{}, fvk{}, E0_mean{}, E0_05{}, G{}, dens{}, s_fac{};
};

// A row of the profile table; b and h in mm. Standard is never filled.
struct ProfRecord {
    std::string Id, Type, Standard;
    float b{}, h{};
};

// What the setup file holds: language, its kept heading lines, partial factors.
struct SetupRecord {
    FixedText<3> Language;
    std::array<std::string, 6> Setup_line; // (4) and (5) stay empty
    float gam_timb{}, gam_lam{}, gam_kerto{}, gam_k_bjelke{};

    friend bool operator==(const SetupRecord& one, const SetupRecord& other) = default;
};

inline constexpr int mat_rows = 101;  // rows 0 to 100
inline constexpr int prof_rows = 401; // rows 0 to 400

struct ConnectionState : ConnectionValues {
    std::array<MatRecord, mat_rows> Mat;
    std::int16_t Mat_count{}; // last used index of Mat
    std::array<ProfRecord, prof_rows> Prof;
    std::int16_t Prof1_count{}, Prof2_count{}; // last used index of Prof, one for each member's list
    SetupRecord Setup;
};

// The text choice of the whole program: everything but "Eng" is Norwegian.
inline bool Is_english(const ConnectionValues& s) {
    return s.Lang == "Eng";
}

struct BoltRow {
    std::string_view caption;
    float d;   // mm
    float fuk; // N/mm2
};
inline constexpr std::array<BoltRow, 8> bolt_table{{
    {"M12x4.6", 12.0F, 400.0F},
    {"M16x4.6", 16.0F, 400.0F},
    {"M20x4.6", 20.0F, 400.0F},
    {"M24x4.6", 24.0F, 400.0F},
    {"M12x8.8", 12.0F, 800.0F},
    {"M16x8.8", 16.0F, 800.0F},
    {"M20x8.8", 20.0F, 800.0F},
    {"M24x8.8", 24.0F, 800.0F},
}};

// Double-sided tooth-plate connectors of type C1. Which bolts a connector refuses stands in calc/Connector.cpp.
struct ConnectorRow {
    std::string_view caption_eng;
    std::string_view caption_nor;
    std::string_view size; // as the report prints it
    float picked_dc;       // diameter that picking the connector puts into the state, mm: D50 gives 48 there
    float dc;              // diameter in the strength formula, mm
    float hc;              // height over the teeth, mm
    float t;               // plate thickness, mm
};
inline constexpr std::array<ConnectorRow, 5> connector_table{{
    {"Double-sided D50", "Tosidig D50", "D50", 48.0F, 50.0F, 13.0F, 1.0F},
    {"Double-sided D62", "Tosidig D62", "D62", 62.0F, 62.0F, 16.0F, 1.2F},
    {"Double-sided D75", "Tosidig D75", "D75", 75.0F, 75.0F, 19.5F, 1.25F},
    {"Double-sided D95", "Tosidig D95", "D95", 95.0F, 95.0F, 24.0F, 1.35F},
    {"Double-sided D117", "Tosidig D117", "D117", 117.0F, 117.0F, 30.0F, 1.5F},
}};

inline constexpr std::array<std::int16_t, 5> bolt_numbers{1, 2, 3, 4, 6}; // row = Ant_index

// Names of the load-duration classes and kmod, EN 1995-1-1 table 3.1, one table for all materials. Row = Lastvar - 1.
struct ClassRow {
    std::string_view name_eng;
    std::string_view name_nor;
    float kmod_12; // service classes 1 and 2
    float kmod_3;  // service class 3
};
inline constexpr std::array<ClassRow, 5> class_table{{
    {"Permanent action", "Permanent     ", 0.6F, 0.5F},
    {"Long term action", "Langtidslast  ", 0.7F, 0.55F},
    {"Medium term action", "Halvårslast   ", 0.8F, 0.65F},
    {"Short term action", "Kortidslast   ", 0.9F, 0.7F},
    {"Instantaneous action", "Øyeblikkslast ", 1.1F, 0.9F},
}};

// The row of a table, or null where the index lies outside it.
template <class Table> constexpr const typename Table::value_type* Row_of(const Table& table, int index) {
    return index >= 0 && index < static_cast<int>(table.size()) ? &table[static_cast<std::size_t>(index)] : nullptr;
}

// d and fuk from Bolt_index; a row outside the table leaves them.
void Get_bolt(ConnectionValues& s);

// Washer by rule: d_skive = 3 d, t_skive = 0.3 d (EN 1995-1-1 10.4.3).
void Get_skive(ConnectionValues& s);

// rho_k and fc90k from a row of Mat. Errors: subscript out of range (9).
void Get_material(ConnectionState& s, int index);

// gm by the Type of row Mat_index: "T", "L", "Ke", "K"; any other type leaves it. Errors: subscript out of range (9).
void Get_gm(ConnectionState& s);

// kmod from Lastvar and Klima; a class outside the table leaves it.
void Get_kmod(ConnectionValues& s);

// n_bolt from Ant_index; a row outside the list leaves it.
void Get_n_bolt(ConnectionValues& s);

// Con_code from Con_type and the member flags. The variants are tested in the order 1, 2, 3 and the last that holds
// wins; with none of them, or a type outside 1 to 5, the code stays.
void Get_Con_code(ConnectionValues& s);

// dc as picking the connector of Bulldog_index sets it; a row outside the list leaves it.
void Get_dc(ConnectionValues& s);

} // namespace tarnvik
