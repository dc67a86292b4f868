#include "calc/GlobalParameter.h"

#include "calc/Arithmetic.h"

namespace tarnvik {

void Get_bolt(ConnectionValues& s) {
    if (const BoltRow* row = Row_of(bolt_table, s.Bolt_index)) {
        s.d = row->d;
        s.fuk = row->fuk;
    }
}

void Get_skive(ConnectionValues& s) {
    s.d_skive = Store(3.0 * s.d, "Get_skive");
    s.t_skive = Store(0.3 * s.d, "Get_skive");
}

void Get_material(ConnectionState& s, int index) {
    const MatRecord* row = Row_of(s.Mat, index);
    if (row == nullptr) {
        Raise(fault_subscript, "Get_material");
    }
    s.rho_k = row->dens;
    s.fc90k = row->fc90k;
}

void Get_gm(ConnectionState& s) {
    const MatRecord* row = Row_of(s.Mat, s.Mat_index);
    if (row == nullptr) {
        Raise(fault_subscript, "Get_gm");
    }
    if (row->Type == "T") {
        s.gm = s.gm_T;
    } else if (row->Type == "L") {
        s.gm = s.gm_L;
    } else if (row->Type == "Ke") {
        s.gm = s.gm_Ke;
    } else if (row->Type == "K") {
        s.gm = s.gm_K;
    }
}

void Get_kmod(ConnectionValues& s) {
    if (const ClassRow* row = Row_of(class_table, s.Lastvar - 1)) {
        if (s.Klima == 1 || s.Klima == 2) {
            s.kmod = row->kmod_12;
        } else if (s.Klima == 3) {
            s.kmod = row->kmod_3;
        }
    }
}

void Get_n_bolt(ConnectionValues& s) {
    if (const std::int16_t* number = Row_of(bolt_numbers, s.Ant_index)) {
        s.n_bolt = *number;
    }
}

void Get_Con_code(ConnectionValues& s) {
    if (s.Con_type < 1 || s.Con_type > 5) {
        return;
    }
    char variant = 0;
    if (s.enk_1 && s.enk_2) {
        variant = '1';
    }
    if (s.dob_1 && s.enk_2) {
        variant = '2';
    }
    if (s.enk_1 && s.dob_2) {
        variant = '3';
    }
    if (variant != 0) {
        const std::array<char, 3> code{static_cast<char>('0' + s.Con_type), '.', variant};
        s.Con_code = std::string_view{code.data(), code.size()};
    }
}

void Get_dc(ConnectionValues& s) {
    if (const ConnectorRow* row = Row_of(connector_table, s.Bulldog_index)) {
        s.dc = row->picked_dc;
    }
}

} // namespace tarnvik
