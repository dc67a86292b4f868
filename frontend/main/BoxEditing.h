// The editing of text boxes in all windows of the program.
#pragma once

#include <QObject>
#include <QPointer>

#include <functional>
#include <string>
#include <string_view>

#include "calc/GlobalParameter.h"
#include "frontend/controls/Controls.h"
#include "frontend/dialogs/Editing.h"
#include "ports/Services.h"

namespace tarnvik {

class BoxEditing : public QObject, public Editing {
    Q_OBJECT

public:
    // Watches the whole application: between a refused value and the answer to its message nothing else happens in the
    // box's window.
    BoxEditing(QWidget& window, const ConnectionValues& s, BoxService& boxes);

    [[nodiscard]] bool Refusing() const override { return !refused_.isNull(); }
    void Enter_box(TextBox& box) override;
    void Refuse(TextBox& box, std::string_view text, int style, bool give_back) override;
    void Input_error(TextBox& box, int number) override;

    // Before a command that uses the inputs: leaves the box in editing. False where that was refused with a message, or
    // where another box stands refused, whose message comes again: the command is not carried out.
    bool Ready_for_command();

    // Carries the command out where the boxes are ready for it; the focus goes back to the box that was left.
    void Carry_out(const std::function<void()>& command);

signals:
    // A value was refused. It stays in the state.
    void Refused();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void End_refusal(bool give_back);

    QWidget& window_;
    const ConnectionValues& s_;
    BoxService& boxes_;
    QPointer<TextBox> refused_;
    bool told_{};                      // the refusal has a message
    std::function<void()> on_release_; // waits for the mouse button

    // A refused box that let the focus go: it stands refused as long as it is green.
    struct Left {
        QPointer<TextBox> box;
        std::string text;
        int style{};
    };
    Left left_;
};

} // namespace tarnvik
