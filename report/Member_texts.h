// What the two members of a connection are called, by Con_code: the labels of their embedment strengths and the notes
// on their thicknesses. The printed report and the detailed calculations on the screen show the same ones.
#pragma once

#include <string_view>

#include "calc/GlobalParameter.h"
#include "calc/Words.h"

namespace tarnvik {

// The differing numbers of blanks are deliberate.
struct MemberTexts {
    std::string_view Con_code;
    Words label1, label2; // of t1 and of t2
    Words note1, note2;
};

// The labels of a connection; null for a code outside the catalogue.
const MemberTexts* Member_labels(const ConnectionValues& s);

// The notes of a connection. Con_type says which codes are looked at: 1, then 2, 4 and 5 together, then 3. Null for a
// code outside that group: nothing of the thicknesses is shown then.
const MemberTexts* Member_notes(const ConnectionValues& s);

} // namespace tarnvik
