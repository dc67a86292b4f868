#include "report/Member_texts.h"

#include <array>

namespace tarnvik {

namespace {

// "(Enkel beam)" keeps its English noun.
// clang-format off
constexpr std::array<MemberTexts, 15> member_texts{{
    // code   label of t1                            label of t2                              note of t1                                           note of t2
    {"1.1", {"Top chord    :", "Overgurt     :"}, {"Bottom chord    :", "Undergurt     :"}, {"  (Single top chord)",    "  (Enkel overgurt)"},   {"  (Single bottom chord)", "  (Enkel undergurt)"}},
    {"1.2", {"Top chord    :", "Overgurt     :"}, {"Bottom chord    :", "Undergurt     :"}, {"  (Double top chord)",    "  (Dobbel overgurt)"},  {"  (Single bottom chord)", "  (Enkel undergurt)"}},
    {"1.3", {"Bottom chord :", "Undergurt    :"}, {"Top chord :",       "Overgurt    :"},   {"  (Double bottom chord)", "  (Dobbel undergurt)"}, {"  (Single top chord)",    "  (Enkel overgurt)"}},
    {"2.1", {"Column :",       "Søyle   :"},      {"Beam  :",           "Bjelke  :"},       {"  (Single column)",       "  (Enkel søyle)"},      {"  (Single beam)",         "  (Enkel bjelke)"}},
    {"2.2", {"Beam :",         "Bjelke   :"},     {"Column  :",         "Søyle   :"},       {"  (Double beam)",         "  (Dobbel bjelke)"},    {"  (Single column)",       "  (Enkel søyle)"}},
    {"2.3", {"Column :",       "Søyle   :"},      {"Beam  :",           "Bjelke  :"},       {"  (Double column)",       "  (Dobbel søyle)"},     {"  (Single beam)",         "  (Enkel beam)"}},
    {"3.1", {"Bottom chord :", "Undergurt    :"}, {"Top chord :",       "Overgurt    :"},   {"  (Single bottom chord)", "  (Enkel undergurt)"},  {"  (Single top chord)",    "  (Enkel overgurt)"}},
    {"3.2", {"Top chord :",    "Overgurt    :"},  {"Bottom chord :",    "Undergurt    :"},  {"  (Double top chord)",    "  (Dobbel overgurt)"},  {"  (Single bottom chord)", "  (Enkel undergurt)"}},
    {"3.3", {"Bottom chord :", "Undergurt    :"}, {"Top chord :",       "Overgurt    :"},   {"  (Double bottom chord)", "  (Dobbel undergurt)"}, {"  (Single top chord)",    "  (Enkel overgurt)"}},
    {"4.1", {"Column :",       "Søyle   :"},      {"Beam  :",           "Bjelke  :"},       {"  (Single column)",       "  (Enkel søyle)"},      {"  (Single beam)",         "  (Enkel bjelke)"}},
    {"4.2", {"Beam :",         "Bjelke   :"},     {"Column  :",         "Søyle   :"},       {"  (Double beam)",         "  (Dobbel bjelke)"},    {"  (Single column)",       "  (Enkel søyle)"}},
    {"4.3", {"Column :",       "Søyle   :"},      {"Beam  :",           "Bjelke  :"},       {"  (Double column)",       "  (Dobbel søyle)"},     {"  (Single beam)",         "  (Enkel beam)"}},
    {"5.1", {"Column :",       "Søyle   :"},      {"Beam  :",           "Bjelke  :"},       {"  (Single column)",       "  (Enkel søyle)"},      {"  (Single beam)",         "  (Enkel bjelke)"}},
    {"5.2", {"Beam :",         "Bjelke   :"},     {"Column  :",         "Søyle   :"},       {"  (Double beam)",         "  (Dobbel bjelke)"},    {"  (Single column)",       "  (Enkel søyle)"}},
    {"5.3", {"Column :",       "Søyle   :"},      {"Beam  :",           "Bjelke  :"},       {"  (Double column)",       "  (Dobbel søyle)"},     {"  (Single beam)",         "  (Enkel beam)"}},
}};
// clang-format on

// The group of codes that is looked at for a type.
enum Group : std::uint8_t { group_1, group_2_4_5, group_3, no_group };

Group Group_of(int type) {
    switch (type) {
    case 1:
        return group_1;
    case 2:
    case 4:
    case 5:
        return group_2_4_5;
    case 3:
        return group_3;
    default:
        return no_group;
    }
}

} // namespace

const MemberTexts* Member_labels(const ConnectionValues& s) {
    for (const MemberTexts& row : member_texts) {
        if (s.Con_code == row.Con_code) {
            return &row;
        }
    }
    return nullptr;
}

const MemberTexts* Member_notes(const ConnectionValues& s) {
    const MemberTexts* row = Member_labels(s);
    if (row == nullptr || Group_of(s.Con_type) == no_group ||
        Group_of(s.Con_type) != Group_of(row->Con_code.front() - '0')) {
        return nullptr;
    }
    return row;
}

} // namespace tarnvik
