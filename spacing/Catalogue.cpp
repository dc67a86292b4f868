#include "spacing/Catalogue.h"

namespace tarnvik {

int Find_case(char type, int n_bolt, char letter) {
    for (std::size_t i = 0; i < case_table.size(); ++i) {
        const CaseRow& row = case_table[i];
        if (row.type == type && row.n_bolt == n_bolt && (row.letter == ' ' || row.letter == letter)) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

int Find_case(std::string_view Case_code) {
    for (std::size_t i = 0; i < case_table.size(); ++i) {
        if (case_table[i].Case_code == Case_code) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

int Plotted_case(const ConnectionValues& s) {
    const std::string_view code = s.Con_code.View();
    if (code.size() != 3 || code[1] != '.' || code[2] < '1' || code[2] > '3') {
        return -1;
    }
    return Find_case(code[0], s.n_bolt, s.Bolt_ab == "b" ? 'b' : 'a');
}

void Get_Case_code(ConnectionValues& s) {
    if (s.Con_type < 1 || s.Con_type > 5) {
        return;
    }
    const int row = Find_case(static_cast<char>('0' + s.Con_type), s.n_bolt, s.Bolt_ab.View().front());
    if (row >= 0) {
        s.Case_code = case_table[static_cast<std::size_t>(row)].Case_code;
    }
}

void Get_Ab_valg(ConnectionValues& s) {
    bool two_or_three = false;
    bool six = false;
    switch (s.Con_code.View().front()) {
    case '1':
    case '3':
        two_or_three = true;
        break;
    case '2':
        break;
    case '4':
    case '5':
        two_or_three = true;
        six = true;
        break;
    default:
        return;
    }
    switch (s.n_bolt) {
    case 1:
    case 4:
        s.Ab_valg = false;
        break;
    case 2:
    case 3:
        s.Ab_valg = two_or_three;
        break;
    case 6:
        s.Ab_valg = six;
        break;
    default:
        break;
    }
}

} // namespace tarnvik
