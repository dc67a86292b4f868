#include "calc/StateFields.h"

#include <gtest/gtest.h>

#include <set>

namespace tarnvik {
namespace {

// A field of the list next to the member that it has to be.
struct Named {
    std::string_view name;
    StateField::Member member;
};

template <class Value, class Owner> StateField::Member Member_of(Value Owner::*member) {
    Value ConnectionState::*of_state = member;
    return of_state;
}

#define NAMED(field)                                                                                                   \
    Named {                                                                                                            \
#field, Member_of(&ConnectionState::field)                                                                     \
    }

// Every named value: first the state, then the spacing record.
std::vector<Named> All_named() {
    // clang-format off
    return {
        NAMED(Lang), NAMED(Loading), NAMED(Bulldog_invalid), NAMED(Prosjekt), NAMED(Id), NAMED(File_name),
        NAMED(Lastvar), NAMED(Lastvar_txt), NAMED(Klima), NAMED(kmod), NAMED(gm_T), NAMED(gm_L), NAMED(gm_Ke),
        NAMED(gm_K), NAMED(gm), NAMED(Mat_index), NAMED(Mat_count), NAMED(rho_k), NAMED(fc90k), NAMED(Standard),
        NAMED(Prof1_index), NAMED(Prof1_count), NAMED(Prof2_index), NAMED(Prof2_count), NAMED(b1), NAMED(h1),
        NAMED(b2), NAMED(h2), NAMED(Txt_b1), NAMED(Txt_h1), NAMED(Txt_b2), NAMED(Txt_h2), NAMED(Con_type),
        NAMED(enk_1), NAMED(dob_1), NAMED(enk_2), NAMED(dob_2), NAMED(Con_code), NAMED(alp), NAMED(Kun_bolt),
        NAMED(Med_bulldog), NAMED(Bolt_index), NAMED(d), NAMED(fuk), NAMED(d_skive), NAMED(t_skive),
        NAMED(Bulldog_index), NAMED(dc), NAMED(hc), NAMED(Ant_index), NAMED(n_bolt), NAMED(Bolt_ab), NAMED(Ab_valg),
        NAMED(Case_code), NAMED(Avstand_index), NAMED(Has_row), NAMED(a1), NAMED(n_row), NAMED(rows), NAMED(P),
        NAMED(Man_he_on), NAMED(man_he), NAMED(t1), NAMED(t2), NAMED(t1_txt), NAMED(t2_txt), NAMED(alp1),
        NAMED(alp2), NAMED(k90), NAMED(fh0k), NAMED(fh1k), NAMED(fh2k), NAMED(beta), NAMED(My_Rk), NAMED(Fax_bolt),
        NAMED(Fax_skive), NAMED(Fax_min), NAMED(Fv_a), NAMED(Fv_b), NAMED(Fv_c), NAMED(Fv_d), NAMED(Fv_e),
        NAMED(Fv_f), NAMED(Fv_g), NAMED(Fv_h), NAMED(Fv_j), NAMED(Fv_k), NAMED(Fv_Rk), NAMED(nef_b_row),
        NAMED(nef_b), NAMED(nef_f_row), NAMED(nef_f), NAMED(Rd_bolt), NAMED(Rd_for), NAMED(uf), NAMED(he),
        NAMED(F90_Rd), NAMED(P_sin), NAMED(Tverr_kontroll),
        NAMED(Sa1_lbl), NAMED(Sa1), NAMED(Sa1_txt), NAMED(Ca1), NAMED(Ca1_txt), NAMED(Sa2_lbl), NAMED(Sa2),
        NAMED(Sa2_txt), NAMED(Ca2), NAMED(Ca2_txt), NAMED(Sa3_lbl), NAMED(Sa3), NAMED(Sa3_txt), NAMED(Ca3),
        NAMED(Ca3_txt), NAMED(Sa4_lbl), NAMED(Sa4), NAMED(Sa4_txt), NAMED(Ca4), NAMED(Ca4_txt), NAMED(Sa5_lbl),
        NAMED(Sa5), NAMED(Sa5_txt), NAMED(Ca5), NAMED(Ca5_txt), NAMED(Sa6_lbl), NAMED(Sa6), NAMED(Sa6_txt),
        NAMED(Ca6), NAMED(Ca6_txt), NAMED(Sb1_lbl), NAMED(Sb1), NAMED(Sb1_txt), NAMED(Cb1), NAMED(Cb1_txt),
        NAMED(Sb2_lbl), NAMED(Sb2), NAMED(Sb2_txt), NAMED(Cb2), NAMED(Cb2_txt), NAMED(Sb3_lbl), NAMED(Sb3),
        NAMED(Sb3_txt), NAMED(Cb3), NAMED(Cb3_txt), NAMED(Sb4_lbl), NAMED(Sb4), NAMED(Sb4_txt), NAMED(Cb4),
        NAMED(Cb4_txt), NAMED(Sb5_lbl), NAMED(Sb5), NAMED(Sb5_txt), NAMED(Cb5), NAMED(Cb5_txt), NAMED(Sb6_lbl),
        NAMED(Sb6), NAMED(Sb6_txt), NAMED(Cb6), NAMED(Cb6_txt), NAMED(Sum_a_txt), NAMED(Sum_b_txt), NAMED(Sum_a),
        NAMED(Sum_b), NAMED(Sum_ca), NAMED(Sum_cb),
    };
    // clang-format on
}

TEST(StateFields, every_named_value_is_listed_once_and_refers_to_its_own_member) {
    const std::vector<Named> wanted = All_named();
    std::set<std::string_view> names;
    for (const StateField& field : State_fields()) {
        EXPECT_TRUE(names.insert(field.name).second) << field.name << " stands twice";
    }
    for (const Named& named : wanted) {
        SCOPED_TRACE(named.name);
        const StateField* field = Find_state_field(named.name);
        ASSERT_NE(field, nullptr);
        EXPECT_EQ(field->name, named.name);
        EXPECT_TRUE(field->member == named.member);
    }
    EXPECT_EQ(State_fields().size(), wanted.size());
}

TEST(StateFields, inputs_are_what_a_user_can_choose) {
    const std::set<std::string_view> inputs{
        "Lastvar",  "Klima",         "Mat_index",  "Standard",      "Prof1_index", "Prof2_index",
        "Con_type", "enk_1",         "dob_1",      "enk_2",         "dob_2",       "alp",
        "Kun_bolt", "Med_bulldog",   "Bolt_index", "Bulldog_index", "dc",          "Ant_index",
        "Bolt_ab",  "Avstand_index", "P",          "Man_he_on",     "man_he",      "gm_T",
        "gm_L",     "gm_Ke",         "gm_K",       "Lang",          "Prosjekt",    "Id",
        "Txt_b1",   "Txt_h1",        "Txt_b2",     "Txt_h2",
    };
    for (const StateField& field : State_fields()) {
        EXPECT_EQ(field.is_input, inputs.contains(field.name)) << field.name;
    }
}

TEST(StateFields, stand_in_the_order_of_the_state_and_then_of_the_record) {
    EXPECT_EQ(State_fields().front().name, "Lang");
    const auto place = [](std::string_view name) { return Find_state_field(name) - State_fields().data(); };
    EXPECT_LT(place("Lang"), place("uf"));
    EXPECT_LT(place("Tverr_kontroll"), place("Sa1_lbl"));
    EXPECT_LT(place("Tverr_kontroll"), place("Sum_cb"));
}

TEST(StateFields, an_unknown_name_is_not_found) {
    for (const char* name : {"", "lang", "Mat", "Prof", "Setup", "Rk_bolt", "P ", "Sa7"}) {
        EXPECT_EQ(Find_state_field(name), nullptr) << name;
    }
}

} // namespace
} // namespace tarnvik
