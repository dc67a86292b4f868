#include "calc/StateFields.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace tarnvik {

namespace {

using S = ConnectionState;

constexpr bool input = true;
constexpr bool result = false;

constexpr std::array<StateField, 165> state_fields{{
    {"Lang", &S::Lang, input},
    {"Loading", &S::Loading, result},
    {"Bulldog_invalid", &S::Bulldog_invalid, result},
    {"Prosjekt", &S::Prosjekt, input},
    {"Id", &S::Id, input},
    {"File_name", &S::File_name, result},
    {"Lastvar", &S::Lastvar, input},
    {"Lastvar_txt", &S::Lastvar_txt, result},
    {"Klima", &S::Klima, input},
    {"kmod", &S::kmod, result},
    {"gm_T", &S::gm_T, input},
    {"gm_L", &S::gm_L, input},
    {"gm_Ke", &S::gm_Ke, input},
    {"gm_K", &S::gm_K, input},
    {"gm", &S::gm, result},
    {"Mat_index", &S::Mat_index, input},
    {"Mat_count", &S::Mat_count, result},
    {"rho_k", &S::rho_k, result},
    {"fc90k", &S::fc90k, result},
    {"Standard", &S::Standard, input},
    {"Prof1_index", &S::Prof1_index, input},
    {"Prof1_count", &S::Prof1_count, result},
    {"Prof2_index", &S::Prof2_index, input},
    {"Prof2_count", &S::Prof2_count, result},
    {"b1", &S::b1, result},
    {"h1", &S::h1, result},
    {"b2", &S::b2, result},
    {"h2", &S::h2, result},
    {"Txt_b1", &S::Txt_b1, input},
    {"Txt_h1", &S::Txt_h1, input},
    {"Txt_b2", &S::Txt_b2, input},
    {"Txt_h2", &S::Txt_h2, input},
    {"Con_type", &S::Con_type, input},
    {"enk_1", &S::enk_1, input},
    {"dob_1", &S::dob_1, input},
    {"enk_2", &S::enk_2, input},
    {"dob_2", &S::dob_2, input},
    {"Con_code", &S::Con_code, result},
    {"alp", &S::alp, input},
    {"Kun_bolt", &S::Kun_bolt, input},
    {"Med_bulldog", &S::Med_bulldog, input},
    {"Bolt_index", &S::Bolt_index, input},
    {"d", &S::d, result},
    {"fuk", &S::fuk, result},
    {"d_skive", &S::d_skive, result},
    {"t_skive", &S::t_skive, result},
    {"Bulldog_index", &S::Bulldog_index, input},
    {"dc", &S::dc, input},
    {"hc", &S::hc, result},
    {"Ant_index", &S::Ant_index, input},
    {"n_bolt", &S::n_bolt, result},
    {"Bolt_ab", &S::Bolt_ab, input},
    {"Ab_valg", &S::Ab_valg, result},
    {"Case_code", &S::Case_code, result},
    {"Avstand_index", &S::Avstand_index, input},
    {"Has_row", &S::Has_row, result},
    {"a1", &S::a1, result},
    {"n_row", &S::n_row, result},
    {"rows", &S::rows, result},
    {"P", &S::P, input},
    {"Man_he_on", &S::Man_he_on, input},
    {"man_he", &S::man_he, input},
    {"t1", &S::t1, result},
    {"t2", &S::t2, result},
    {"t1_txt", &S::t1_txt, result},
    {"t2_txt", &S::t2_txt, result},
    {"alp1", &S::alp1, result},
    {"alp2", &S::alp2, result},
    {"k90", &S::k90, result},
    {"fh0k", &S::fh0k, result},
    {"fh1k", &S::fh1k, result},
    {"fh2k", &S::fh2k, result},
    {"beta", &S::beta, result},
    {"My_Rk", &S::My_Rk, result},
    {"Fax_bolt", &S::Fax_bolt, result},
    {"Fax_skive", &S::Fax_skive, result},
    {"Fax_min", &S::Fax_min, result},
    {"Fv_a", &S::Fv_a, result},
    {"Fv_b", &S::Fv_b, result},
    {"Fv_c", &S::Fv_c, result},
    {"Fv_d", &S::Fv_d, result},
    {"Fv_e", &S::Fv_e, result},
    {"Fv_f", &S::Fv_f, result},
    {"Fv_g", &S::Fv_g, result},
    {"Fv_h", &S::Fv_h, result},
    {"Fv_j", &S::Fv_j, result},
    {"Fv_k", &S::Fv_k, result},
    {"Fv_Rk", &S::Fv_Rk, result},
    {"nef_b_row", &S::nef_b_row, result},
    {"nef_b", &S::nef_b, result},
    {"nef_f_row", &S::nef_f_row, result},
    {"nef_f", &S::nef_f, result},
    {"Rd_bolt", &S::Rd_bolt, result},
    {"Rd_for", &S::Rd_for, result},
    {"uf", &S::uf, result},
    {"he", &S::he, result},
    {"F90_Rd", &S::F90_Rd, result},
    {"P_sin", &S::P_sin, result},
    {"Tverr_kontroll", &S::Tverr_kontroll, result},
    {"Sa1_lbl", &S::Sa1_lbl, result},
    {"Sa2_lbl", &S::Sa2_lbl, result},
    {"Sa3_lbl", &S::Sa3_lbl, result},
    {"Sa4_lbl", &S::Sa4_lbl, result},
    {"Sa5_lbl", &S::Sa5_lbl, result},
    {"Sa6_lbl", &S::Sa6_lbl, result},
    {"Sb1_lbl", &S::Sb1_lbl, result},
    {"Sb2_lbl", &S::Sb2_lbl, result},
    {"Sb3_lbl", &S::Sb3_lbl, result},
    {"Sb4_lbl", &S::Sb4_lbl, result},
    {"Sb5_lbl", &S::Sb5_lbl, result},
    {"Sb6_lbl", &S::Sb6_lbl, result},
    {"Sa1", &S::Sa1, result},
    {"Sa2", &S::Sa2, result},
    {"Sa3", &S::Sa3, result},
    {"Sa4", &S::Sa4, result},
    {"Sa5", &S::Sa5, result},
    {"Sa6", &S::Sa6, result},
    {"Sb1", &S::Sb1, result},
    {"Sb2", &S::Sb2, result},
    {"Sb3", &S::Sb3, result},
    {"Sb4", &S::Sb4, result},
    {"Sb5", &S::Sb5, result},
    {"Sb6", &S::Sb6, result},
    {"Sa1_txt", &S::Sa1_txt, result},
    {"Sa2_txt", &S::Sa2_txt, result},
    {"Sa3_txt", &S::Sa3_txt, result},
    {"Sa4_txt", &S::Sa4_txt, result},
    {"Sa5_txt", &S::Sa5_txt, result},
    {"Sa6_txt", &S::Sa6_txt, result},
    {"Sb1_txt", &S::Sb1_txt, result},
    {"Sb2_txt", &S::Sb2_txt, result},
    {"Sb3_txt", &S::Sb3_txt, result},
    {"Sb4_txt", &S::Sb4_txt, result},
    {"Sb5_txt", &S::Sb5_txt, result},
    {"Sb6_txt", &S::Sb6_txt, result},
    {"Ca1", &S::Ca1, result},
    {"Ca2", &S::Ca2, result},
    {"Ca3", &S::Ca3, result},
    {"Ca4", &S::Ca4, result},
    {"Ca5", &S::Ca5, result},
    {"Ca6", &S::Ca6, result},
    {"Cb1", &S::Cb1, result},
    {"Cb2", &S::Cb2, result},
    {"Cb3", &S::Cb3, result},
    {"Cb4", &S::Cb4, result},
    {"Cb5", &S::Cb5, result},
    {"Cb6", &S::Cb6, result},
    {"Ca1_txt", &S::Ca1_txt, result},
    {"Ca2_txt", &S::Ca2_txt, result},
    {"Ca3_txt", &S::Ca3_txt, result},
    {"Ca4_txt", &S::Ca4_txt, result},
    {"Ca5_txt", &S::Ca5_txt, result},
    {"Ca6_txt", &S::Ca6_txt, result},
    {"Cb1_txt", &S::Cb1_txt, result},
    {"Cb2_txt", &S::Cb2_txt, result},
    {"Cb3_txt", &S::Cb3_txt, result},
    {"Cb4_txt", &S::Cb4_txt, result},
    {"Cb5_txt", &S::Cb5_txt, result},
    {"Cb6_txt", &S::Cb6_txt, result},
    {"Sum_a_txt", &S::Sum_a_txt, result},
    {"Sum_b_txt", &S::Sum_b_txt, result},
    {"Sum_a", &S::Sum_a, result},
    {"Sum_b", &S::Sum_b, result},
    {"Sum_ca", &S::Sum_ca, result},
    {"Sum_cb", &S::Sum_cb, result},
}};

// Where the names stand, by a hash of theirs: the row is in the slot of the hash or in the next free one.
constexpr std::size_t slot_count = 512;
constexpr std::uint8_t no_row = 255;
static_assert(state_fields.size() < no_row);

// Names differ in their first letters, their last ones or their length.
constexpr std::size_t Slot_of(std::string_view name) {
    std::size_t hash = name.size();
    const std::size_t first = std::min<std::size_t>(name.size(), 3);
    for (std::size_t i = 0; i < first; ++i) {
        hash = hash * 31 + static_cast<unsigned char>(name[i]);
        hash = hash * 31 + static_cast<unsigned char>(name[name.size() - 1 - i]);
    }
    return hash % slot_count;
}

constexpr std::array<std::uint8_t, slot_count> slots = [] {
    std::array<std::uint8_t, slot_count> made{};
    made.fill(no_row);
    for (std::size_t row = 0; row < state_fields.size(); ++row) {
        std::size_t slot = Slot_of(state_fields[row].name);
        while (made[slot] != no_row) {
            slot = (slot + 1) % slot_count;
        }
        made[slot] = static_cast<std::uint8_t>(row);
    }
    return made;
}();

} // namespace

std::span<const StateField> State_fields() {
    return state_fields;
}

const StateField* Find_state_field(std::string_view name) {
    for (std::size_t slot = Slot_of(name); slots[slot] != no_row; slot = (slot + 1) % slot_count) {
        if (const StateField& field = state_fields[slots[slot]]; field.name == name) {
            return &field;
        }
    }
    return nullptr;
}

} // namespace tarnvik
