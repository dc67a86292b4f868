#include "session/Judge.h"

#include "calc/RuntimeFault.h"
#include "calc/Screen.h"
#include "calc/Splitting.h"

namespace tarnvik {

std::optional<bool> Judgement::Holds() const {
    for (const CheckResult& check : verdict.checks) {
        if (not_current.empty() && check.Fails()) {
            return false;
        }
    }
    return not_current.empty() && verdict.Holds() ? std::optional{true} : std::nullopt;
}

void Judge::Begin() {
    results_.Forget_splitting();
    typed_.reset();
}

void Judge::After_pass(const ConnectionValues& s, const PassResult& result, bool typed) {
    if (result.end == PassEnd::normal && s.Man_he_on && typed) {
        Check_typed_he(s);
    }
}

// As leaving its box does: a he outside the member is refused there, and one as large as the member's height leaves
// the check undone, since it divides by zero.
void Judge::Check_typed_he(const ConnectionValues& s) {
    Begin();
    float h = 0.0F;
    float b = 0.0F;
    Get_splitting_member(s, h, b);
    if (!(s.man_he > 0.0F && s.man_he <= h)) {
        return;
    }
    ConnectionValues checked = s;
    checked.he = s.man_he;
    try {
        Tverr_brudd(checked, h, checked.he, b, ScreenWriter{nullptr});
    } catch (const RuntimeFault&) {
        return;
    }
    typed_ = {checked.he, checked.F90_Rd, checked.P_sin, checked.Tverr_kontroll};
    results_.Note_splitting(checked);
}

Judgement Judge::Judge_results(const ConnectionValues& s) const {
    Judgement judgement;
    judgement.not_current = results_.Not_current(s, Is_english(s));
    judgement.governing = Governing_mode(s);
    judgement.he_typed = s.Man_he_on;
    if (!s.Man_he_on) {
        judgement.verdict = Verdict_of(s, results_.Splitting_current(s));
        return judgement;
    }
    const ConnectionValues seen = With_typed_he(s);
    judgement.verdict = Verdict_of(seen, typed_ && results_.Splitting_current(seen));
    return judgement;
}

ConnectionValues Judge::With_typed_he(const ConnectionValues& s) const {
    ConnectionValues seen = s;
    if (s.Man_he_on && typed_) {
        seen.he = typed_->he;
        seen.F90_Rd = typed_->F90_Rd;
        seen.P_sin = typed_->P_sin;
        seen.Tverr_kontroll = typed_->Tverr_kontroll;
    }
    return seen;
}

} // namespace tarnvik
