// The captions of the main window and of the classes dialog in the two languages, and the names of the members.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "calc/GlobalParameter.h"
#include "frontend/dialogs/AboutTexts.h"

namespace tarnvik {

struct CaptionRow {
    std::string_view control; // "Form.Control" outside the main window
    const char* english;      // null: this language's procedure leaves the caption alone
    const char* norwegian;
};

std::span<const CaptionRow> Caption_rows();

// Names of the two members and of their sections, by Con_type.
struct MemberRow {
    std::string_view name_1, name_2;       // Fra_snitt_1, Fra_snitt_2, Fra_dim_1, Fra_dim_2
    std::string_view section_1, section_2; // Fra_b1_h1, Fra_b2_h2
};

// The row of a type 1 to 5, or null.
const MemberRow* Member_captions(int Con_type, bool english);

// Writes a caption by the name of its control.
using SetCaption = std::function<void(std::string_view control, std::string_view caption)>;

// Write all captions in table order, Lastvar_txt in the state, and the About texts. The member names follow the
// Con_type of this moment: a change of type alone leaves them as they are.
void English(ConnectionValues& s, AboutTexts& about, const SetCaption& set);
void Norsk(ConnectionValues& s, AboutTexts& about, const SetCaption& set);

} // namespace tarnvik
