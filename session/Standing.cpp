#include "session/Standing.h"

#include <algorithm>
#include <span>

#include "calc/RuntimeFault.h"
#include "calc/Splitting.h"
#include "calc/Text.h"
#include "calc/Words.h"

namespace tarnvik {

namespace {

CheckResult Fit(bool applies, float sum, float height) {
    return {applies, true, sum, height};
}

// clang-format off
// What fails, as the verdict names it: distances of both members in one word.
struct FailureWords {
    Check one, other;
    Words words;
};
constexpr std::array<FailureWords, 4> failure_words{{
    {Check::utilisation,      Check::utilisation,      {"utilisation",              "utnyttelse"}},
    {Check::splitting,        Check::splitting,        {"splitting",                "tverrstrekk"}},
    {Check::bolts_fit_1,      Check::bolts_fit_2,      {"distances of bolts",       "avstander for bolter"}},
    {Check::connectors_fit_1, Check::connectors_fit_2, {"distances of connectors",  "avstander for forbindere"}},
}};

struct CheckRow {
    Words words, clause;
};
constexpr std::array<CheckRow, check_count> check_rows{{
    {{"Utilisation",                        "Utnyttelse"},                         "8.2.2, 8.5.1"},
    {{"Splitting",                          "Tverrstrekk"},                        "8.1.4"},
    {{"Distances of bolts, member 1",       "Avstander for bolter, del 1"},        {"table 8.4", "tabell 8.4"}},
    {{"Distances of bolts, member 2",       "Avstander for bolter, del 2"},        {"table 8.4", "tabell 8.4"}},
    {{"Distances of connectors, member 1",  "Avstander for forbindere, del 1"},    {"8.10, table 8.8", "8.10, tabell 8.8"}},
    {{"Distances of connectors, member 2",  "Avstander for forbindere, del 2"},    {"8.10, table 8.8", "8.10, tabell 8.8"}},
}};

// A failure mode of single or of double shear.
struct ModeRow {
    char mode;
    std::string_view equation;
    float ConnectionValues::*value;
};
constexpr std::array<ModeRow, 6> single_modes{{
    {'a', "8.6 a", &ConnectionValues::Fv_a},
    {'b', "8.6 b", &ConnectionValues::Fv_b},
    {'c', "8.6 c", &ConnectionValues::Fv_c},
    {'d', "8.6 d", &ConnectionValues::Fv_d},
    {'e', "8.6 e", &ConnectionValues::Fv_e},
    {'f', "8.6 f", &ConnectionValues::Fv_f},
}};
constexpr std::array<ModeRow, 4> double_modes{{
    {'g', "8.7 g", &ConnectionValues::Fv_g},
    {'h', "8.7 h", &ConnectionValues::Fv_h},
    {'j', "8.7 j", &ConnectionValues::Fv_j},
    {'k', "8.7 k", &ConnectionValues::Fv_k},
}};

// The cause of a fault in plain words: by the procedure that raised it where one has only one cause, else by its number.
struct FaultWords {
    std::string_view where; // empty: any
    int number;             // 0: any
    Words words;
};
constexpr Words too_low{"member too low for the distances", "delen er for lav for avstandene"};
constexpr std::array<FaultWords, 10> fault_words{{
    {"Tverr_brudd", 0,                      too_low},
    {"Get_material", 0,                     {"material is not in its table",        "materialet er ikke i tabellen"}},
    {"Get_gm",       0,                     {"material is not in its table",        "materialet er ikke i tabellen"}},
    {"Get_fh",       fault_division_by_zero,{"the material has no density",         "materialet har ingen densitet"}},
    {"Main_beregn",  fault_subscript,       {"section is not in its table",         "tverrsnittet er ikke i tabellen"}},
    {"Main_beregn",  fault_division_by_zero,{"no capacity, or a partial factor of zero", "ingen kapasitet, eller partialfaktor lik null"}},
    {"",             fault_overflow,        {"a number is too large",               "et tall er for stort"}},
    {"",             fault_subscript,       {"a choice is not in its table",        "et valg er ikke i tabellen"}},
    {"",             fault_division_by_zero,{"division by zero",                    "divisjon med null"}},
    {"",             fault_invalid_call,    {"no capacity for these sections and angle", "ingen kapasitet for disse tverrsnitt og vinkel"}},
}};
// clang-format on

std::string_view Fault_words(const RuntimeFault& fault, const ConnectionValues& s, bool english) {
    if (fault.where == "Tverr_brudd" && (s.gm == 0.0F || s.kmod == 0.0F)) {
        return english ? "partial factor or kmod of zero" : "partialfaktor eller kmod lik null";
    }
    for (const FaultWords& row : fault_words) {
        if ((row.where.empty() || row.where == fault.where) && (row.number == 0 || row.number == fault.number)) {
            return row.words.In(english);
        }
    }
    return english ? "the calculation failed" : "beregningen feilet";
}

} // namespace

bool Verdict::Holds() const {
    return std::none_of(checks.begin(), checks.end(),
                        [](const CheckResult& check) { return check.applies && (!check.checked || check.Fails()); });
}

Verdict Verdict_of(const ConnectionValues& s, bool splitting_checked) {
    const bool connectors = s.Med_bulldog;
    return {{{{true, true, s.uf, 1.0F},
              {true, splitting_checked, s.Tverr_kontroll, 1.0F},
              Fit(true, s.Sum_a, s.h1),
              Fit(true, s.Sum_b, s.h2),
              Fit(connectors, s.Sum_ca, s.h1),
              Fit(connectors, s.Sum_cb, s.h2)}}};
}

std::string Verdict_text(const Verdict& verdict, bool english) {
    std::string text;
    for (const FailureWords& row : failure_words) {
        if (verdict[row.one].Fails() || verdict[row.other].Fails()) {
            text += text.empty() ? english ? "Does not hold: " : "Holder ikke: " : ", ";
            text += row.words.In(english);
        }
    }
    if (!text.empty()) {
        return text;
    }
    if (!verdict[Check::splitting].checked) {
        return english ? "Splitting not checked" : "Tverrstrekk ikke kontrollert";
    }
    return english ? "Holds" : "Holder";
}

std::string_view Check_words(Check check, bool english) {
    return check_rows[static_cast<std::size_t>(check)].words.In(english);
}

// The utilisation is that of bolts and connectors together.
std::string_view Check_clause(const Verdict& verdict, Check check, bool english) {
    const bool connectors = check == Check::utilisation && verdict[Check::connectors_fit_1].applies;
    return connectors ? "8.2.2, 8.5.1, 8.10" : check_rows[static_cast<std::size_t>(check)].clause.In(english);
}

std::string Verdict_details(const Verdict& verdict, const ConnectionValues& s, bool english) {
    std::string text;
    for (std::size_t i = 0; i < check_count; ++i) {
        const CheckResult& check = verdict.checks[i];
        if (!check.applies) {
            continue;
        }
        text += check_rows[i].words.In(english);
        text += ": ";
        if (check.checked) {
            const bool ratio = i < static_cast<std::size_t>(Check::bolts_fit_1);
            text += Format(check.value, ratio ? "0.00" : "0").View();
            text += check.Fails() ? " > " : " <= ";
            text += Format(check.limit, ratio ? "0.00" : "0").View();
            text += ratio ? "\n" : " mm\n";
        } else {
            text += english ? "not checked\n" : "ikke kontrollert\n";
        }
    }
    const GoverningMode governing = Governing_mode(s);
    text += english ? "Failure mode " : "Bruddform ";
    text += governing.mode;
    text += english ? " governs, (" : " er avgjørende, (";
    text += governing.equation;
    text += ")";
    return text;
}

GoverningMode Governing_mode(const ConnectionValues& s) {
    const std::span<const ModeRow> rows = s.dob_1 || s.dob_2 ? std::span<const ModeRow>{double_modes} : single_modes;
    const ModeRow& least = *std::min_element(rows.begin(), rows.end(), [&s](const ModeRow& one, const ModeRow& other) {
        return s.*one.value < s.*other.value;
    });
    return {least.mode, least.equation, s.*least.value};
}

std::string_view Reason_of(const PassResult& result, const ConnectionValues& s, bool english) {
    switch (result.end) {
    case PassEnd::connector_refused:
        return english ? "connector refused" : "forbinderen er avvist";
    case PassEnd::zero_section:
        return english ? "a section has a side of zero" : "et tverrsnitt har en side lik null";
    case PassEnd::fault:
        return Fault_words(*result.fault, s, english);
    case PassEnd::normal:
        break;
    }
    return {};
}

void Standing::Note_pass(const ConnectionValues& s, const PassResult& result) {
    last_ = result;
    if (result.end != PassEnd::normal) {
        inputs_.reset();
        return;
    }
    inputs_ = Inputs_of(s);
    if (!s.Man_he_on) {
        Note_splitting(s);
    }
}

void Standing::Note_splitting(const ConnectionValues& s) {
    splitting_ = Splitting_inputs_of(s);
}

bool Standing::Current(const ConnectionValues& s) const {
    return inputs_ && *inputs_ == Inputs_of(s);
}

bool Standing::Splitting_current(const ConnectionValues& s) const {
    return Current(s) && splitting_ && *splitting_ == Splitting_inputs_of(s);
}

std::string Standing::Not_current(const ConnectionValues& s, bool english) const {
    if (Current(s)) {
        return {};
    }
    std::string text = english ? "Not current: " : "Ikke aktuelt: ";
    if (last_.end != PassEnd::normal) {
        text += Reason_of(last_, s, english);
    } else if (inputs_) {
        text += english ? "a value is not accepted" : "en verdi er ikke godtatt";
    } else {
        text += english ? "not calculated yet" : "ikke beregnet ennå";
    }
    return text;
}

Standing::Inputs Standing::Inputs_of(const ConnectionValues& s) {
    return {{s.Lastvar, s.Klima, s.Mat_index, s.Prof1_index, s.Prof2_index, s.Con_type, s.Bolt_index, s.Bulldog_index,
             s.Ant_index, s.Avstand_index},
            {s.Standard, s.enk_1, s.dob_1, s.enk_2, s.dob_2, s.Kun_bolt, s.Med_bulldog},
            {s.gm_T, s.gm_L, s.gm_Ke, s.gm_K, s.b1, s.h1, s.b2, s.h2, s.alp, s.P, s.dc},
            s.Bolt_ab};
}

Standing::SplittingInputs Standing::Splitting_inputs_of(const ConnectionValues& s) {
    float h = 0.0F;
    float b = 0.0F;
    Get_splitting_member(s, h, b);
    return {{s.P, s.alp, h, b, s.he, s.kmod, s.gm}, s.Con_code};
}

} // namespace tarnvik
