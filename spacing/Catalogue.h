// The catalogue of connections: the 35 cases told by connection type, number of bolts and arrangement.
#pragma once

#include <array>

#include "calc/GlobalParameter.h"

namespace tarnvik {

struct CaseRow {
    std::string_view Case_code; // five characters; a case without a letter ends in a full stop and a blank
    char type;                  // '1' to '5'
    std::int16_t n_bolt;
    char letter; // 'a', 'b', or ' ' where the arrangement plays no part
};

inline constexpr int case_count = 35;

// clang-format off
inline constexpr std::array<CaseRow, case_count> case_table{{
    {"1.1. ", '1', 1, ' '},
    {"1.2.a", '1', 2, 'a'},
    {"1.2.b", '1', 2, 'b'},
    {"1.3.a", '1', 3, 'a'},
    {"1.3.b", '1', 3, 'b'},
    {"1.4. ", '1', 4, ' '},
    {"1.6. ", '1', 6, ' '},
    {"2.1. ", '2', 1, ' '},
    {"2.2. ", '2', 2, ' '},
    {"2.3. ", '2', 3, ' '},
    {"2.4. ", '2', 4, ' '},
    {"2.6. ", '2', 6, ' '},
    {"3.1. ", '3', 1, ' '},
    {"3.2.a", '3', 2, 'a'},
    {"3.2.b", '3', 2, 'b'},
    {"3.3.a", '3', 3, 'a'},
    {"3.3.b", '3', 3, 'b'},
    {"3.4. ", '3', 4, ' '},
    {"3.6. ", '3', 6, ' '},
    {"4.1. ", '4', 1, ' '},
    {"4.2.a", '4', 2, 'a'},
    {"4.2.b", '4', 2, 'b'},
    {"4.3.a", '4', 3, 'a'},
    {"4.3.b", '4', 3, 'b'},
    {"4.4. ", '4', 4, ' '},
    {"4.6.a", '4', 6, 'a'},
    {"4.6.b", '4', 6, 'b'},
    {"5.1. ", '5', 1, ' '},
    {"5.2.a", '5', 2, 'a'},
    {"5.2.b", '5', 2, 'b'},
    {"5.3.a", '5', 3, 'a'},
    {"5.3.b", '5', 3, 'b'},
    {"5.4. ", '5', 4, ' '},
    {"5.6.a", '5', 6, 'a'},
    {"5.6.b", '5', 6, 'b'},
}};
// clang-format on

// The row of the catalogue, or -1. A case with a letter asks for `letter`; the others take any.
int Find_case(char type, int n_bolt, char letter);

// The row of the catalogue with this code, or -1.
int Find_case(std::string_view Case_code);

// The case whose distances and sketch are shown: by the type digit of Con_code, n_bolt, and Bolt_ab = "b" or not, any
// other letter counting as "a"; -1 where there is none.
int Plotted_case(const ConnectionValues& s);

// Case_code from Con_type, n_bolt and Bolt_ab; it stays as it was where no row fits.
void Get_Case_code(ConnectionValues& s);

// Ab_valg from the type digit of Con_code and n_bolt; any other number of bolts than 1, 2, 3, 4 and 6 leaves it.
void Get_Ab_valg(ConnectionValues& s);

} // namespace tarnvik
