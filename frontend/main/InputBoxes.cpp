#include "frontend/main/InputBoxes.h"

#include <QWidget>

#include <array>
#include <string_view>

#include "calc/RuntimeFault.h"
#include "calc/Splitting.h"
#include "frontend/painting/Texts.h"

namespace tarnvik {

// A numeric box: what it writes, how it shows the accepted value, and what it says of a value at or below zero.
struct InputBoxes::NumberBox {
    const char* name;
    float ConnectionValues::*value;
    const char* picture;
    const char* refusal_eng;
    const char* refusal_nor;
    bool moves_on_eng; // in English the focus is free to move on from a refused value
};

// clang-format off
const InputBoxes::NumberBox InputBoxes::number_boxes[6]{
    {"Txt_alp",  &ConnectionValues::alp, "0.00", "alp =< 0 ",  "alp = < 0 ", false},
    {"Txt_b1",   &ConnectionValues::b1,  "0.0",  "b1 =< 0 ",   "b1 = < 0 ",  true},
    {"Txt_b2",   &ConnectionValues::b2,  "0.0",  " b < 0 ",    " b < 0 ",    false},
    {"Txt_h1",   &ConnectionValues::h1,  "0.00", " h =< 0 ",   " h =< 0 ",   false},
    {"Txt_h2",   &ConnectionValues::h2,  "0.0",  " h =< 0 ",   " h =< 0 ",   false},
    {"Txt_last", &ConnectionValues::P,   "0.00", " Load has to be given as a posetiv value > 0  ",
                                                 "Last må angies som posetiv > 0", false},
};

namespace {

// Where the Enter key moves on to; a box that is not named here does nothing with it.
struct EnterMove {
    const char* from;
    const char* to;
};
constexpr std::array enter_moves{
    EnterMove{"Txt_h1",   "Txt_b1"},
    EnterMove{"Txt_b1",   "Txt_h2"},
    EnterMove{"Txt_h2",   "Txt_b2"},
    EnterMove{"Txt_b2",   "Pic_Dim"},
    EnterMove{"Txt_last", "Txt_alp"},
};
// clang-format on

// What is said of a typed he above the height of the member that may split.
std::string_view Too_high(int Con_type) {
    return Con_type == 1 ? " he  >  h  (Undergurt)" : Con_type == 2 ? " he   >  h  (Overgurt)" : " he   >  h  (Bjelke)";
}

} // namespace

InputBoxes::InputBoxes(const MainControls& controls, Session& session, BoxEditing& editing, const ScreenView& view)
    : session_(session), s_(session.State()), editing_(editing), view_(view),
      Prosjekt_(controls.Find<TextBox>("txtprosjekt")), Id_(controls.Find<TextBox>("txtid")),
      P_(controls.Find<TextBox>("Txt_last")), alp_(controls.Find<TextBox>("Txt_alp")),
      b1_(controls.Find<TextBox>("Txt_b1")), h1_(controls.Find<TextBox>("Txt_h1")),
      b2_(controls.Find<TextBox>("Txt_b2")), h2_(controls.Find<TextBox>("Txt_h2")),
      man_he_(controls.Find<TextBox>("Txt_man_he")) {
    for (const NumberBox& row : number_boxes) {
        auto& box = controls.Find<TextBox>(row.name);
        Connect_box(box, false);
        connect(&box, &TextBox::Lost_focus, this, [this, &box, &row] { Leave_number(box, row); });
    }
    Connect_box(man_he_, false);
    connect(&man_he_, &TextBox::Lost_focus, this, [this] { Leave_man_he(); });
    Connect_box(Prosjekt_, true);
    Connect_text(Prosjekt_, &ConnectionState::Prosjekt);
    Connect_box(Id_, false);
    Connect_text(Id_, &ConnectionState::Id);
    Connect_moves(controls);
}

void InputBoxes::Connect_box(TextBox& box, bool project) {
    connect(&box, &TextBox::Got_focus, this, [this, &box, project] {
        // The project's name turns green also while loading: the first activation of the window leaves it so.
        if ((!s_.Loading || project) && !editing_.Refusing()) {
            editing_.Enter_box(box);
        }
    });
}

void InputBoxes::Connect_moves(const MainControls& controls) {
    for (const EnterMove& move : enter_moves) {
        auto& box = controls.Find<TextBox>(move.from);
        auto& next = controls.Find<QWidget>(move.to);
        connect(&box, &TextBox::Enter_pressed, this, [&box, &next] {
            if (next.isEnabled()) {
                next.setFocus(Qt::TabFocusReason);
            } else {
                box.focusNextChild();
            }
        });
    }
}

void InputBoxes::Connect_text(TextBox& box, std::string ConnectionState::*text) {
    connect(&box, &QLineEdit::textChanged, this, &InputBoxes::Names_typed);
    connect(&box, &TextBox::Lost_focus, this, [this, &box, text] {
        if (!s_.Loading && !editing_.Refusing()) {
            box.Set_back(colour_white_box);
            s_.*text = U(box.text());
        }
    });
}

void InputBoxes::Leave_number(TextBox& box, const NumberBox& row) {
    if (s_.Loading || editing_.Refusing()) {
        return;
    }
    try {
        // The value goes into the state before it is tested: a refused one stays there.
        const float value = Str_to_num(U(box.text()));
        s_.*row.value = value;
        if (value <= 0.0F) {
            const bool english = s_.Lang == "Eng";
            const char* text = english ? row.refusal_eng : s_.Lang == "Nor" ? row.refusal_nor : "";
            editing_.Refuse(box, text, box_exclamation, !(english && row.moves_on_eng));
            return;
        }
        box.Set_back(colour_white_box);
        box.setText(Q(Format(value, row.picture)));
        session_.Main_beregn();
    } catch (const RuntimeFault& fault) {
        editing_.Input_error(box, fault.number);
    }
}

void InputBoxes::Leave_man_he() {
    if (s_.Loading || editing_.Refusing()) {
        return;
    }
    session_.Results().Forget_splitting();
    try {
        s_.man_he = Str_to_num(U(man_he_.text()));
        if (s_.man_he <= 0.0F) {
            editing_.Refuse(man_he_, " he < 0.1 ", box_exclamation, true);
            return;
        }
        float h = 0.0F;
        float b = 0.0F;
        Get_splitting_member(s_, h, b);
        if (s_.man_he > h) {
            editing_.Refuse(man_he_, Too_high(s_.Con_type), box_exclamation, true);
            return;
        }
        man_he_.Set_back(colour_white_box);
        Show_manual_he();
        Check_manual_he(h, b);
    } catch (const RuntimeFault& fault) {
        // he = h is accepted although the check divides by zero there: a quiet return with the old results.
        if (fault.number != fault_division_by_zero) {
            editing_.Input_error(man_he_, fault.number);
        } else {
            emit Splitting_checked();
        }
    }
}

// The splitting check alone, on a member of the height h and the width b.
void InputBoxes::Check_manual_he(float h, float b) {
    s_.he = s_.man_he;
    Screen& screen = session_.Shown();
    screen.controls = {};
    Tverr_brudd(s_, h, s_.he, b, ScreenWriter{&screen});
    view_.Show(screen);
    session_.Results().Note_splitting(s_);
    emit Splitting_checked();
}

void InputBoxes::Read_free_entry() const {
    s_.Txt_b1 = U(b1_.text());
    s_.Txt_h1 = U(h1_.text());
    s_.Txt_b2 = U(b2_.text());
    s_.Txt_h2 = U(h2_.text());
}

TypedNames InputBoxes::Names() const {
    return {U(Prosjekt_.text()), U(Id_.text())};
}

void InputBoxes::Show_force(float value) const {
    P_.setText(Q(Format(value, "0.0")));
}

void InputBoxes::Show_angle() const {
    alp_.setText(Q(Format(s_.alp, "0.0")));
}

void InputBoxes::Show_sections() const {
    b1_.setText(Q(Format(s_.b1, "0.0")));
    h1_.setText(Q(Format(s_.h1, "0.0")));
    b2_.setText(Q(Format(s_.b2, "0.0")));
    h2_.setText(Q(Format(s_.h2, "0.0")));
}

void InputBoxes::Show_manual_he() const {
    man_he_.setText(Q(Format(s_.man_he, "0")));
}

} // namespace tarnvik
