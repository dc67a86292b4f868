// The text boxes of the main window: what each writes, tests and shows.
#pragma once

#include <QObject>

#include <string>

#include "frontend/main/BoxEditing.h"
#include "frontend/main/MainControls.h"
#include "frontend/main/ScreenView.h"
#include "session/Session.h"

namespace tarnvik {

class InputBoxes : public QObject {
    Q_OBJECT

public:
    InputBoxes(const MainControls& controls, Session& session, BoxEditing& editing, const ScreenView& view);

    // What the boxes of the free entry show, accepted or not, into the state.
    void Read_free_entry() const;

    // The names of the project as they stand in their boxes, so that one typed but not yet accepted counts.
    [[nodiscard]] TypedNames Names() const;

    // Shows the values of the state: of the force, of the angle, of the free entry, of a typed he.
    void Show_force(float value) const;
    void Show_angle() const;
    void Show_sections() const;
    void Show_manual_he() const;

signals:
    // A name of the project is being typed.
    void Names_typed();
    // The splitting check was made on a typed he, or could not be.
    void Splitting_checked();

private:
    struct NumberBox;
    static const NumberBox number_boxes[6];

    void Connect_box(TextBox& box, bool project);
    void Connect_moves(const MainControls& controls);
    void Connect_text(TextBox& box, std::string ConnectionState::*text);
    void Leave_number(TextBox& box, const NumberBox& row);
    void Leave_man_he();
    void Check_manual_he(float h, float b);

    Session& session_;
    ConnectionState& s_;
    BoxEditing& editing_;
    const ScreenView& view_;
    TextBox& Prosjekt_;
    TextBox& Id_;
    TextBox& P_;
    TextBox& alp_;
    TextBox& b1_;
    TextBox& h1_;
    TextBox& b2_;
    TextBox& h2_;
    TextBox& man_he_;
};

} // namespace tarnvik
