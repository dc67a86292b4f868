// The editing of text boxes, as the windows with boxes share it: a box in editing is green; a refused value brings a
// message, and then the focus back to the box.
#pragma once

#include <string_view>

namespace tarnvik {

class TextBox;

class Editing {
public:
    Editing() = default;
    Editing(const Editing&) = delete;
    Editing& operator=(const Editing&) = delete;
    virtual ~Editing() = default;

    // The sign that a text box was refused and its message is still to be answered: other boxes wait.
    [[nodiscard]] virtual bool Refusing() const = 0;

    // Green, and all its text selected.
    virtual void Enter_box(TextBox& box) = 0;

    // Message, then focus back to the box (unless `give_back` is false); the box stays green. The click or key that
    // left the box does not act. Without a message it does, and the focus goes back afterwards.
    virtual void Refuse(TextBox& box, std::string_view text, int style, bool give_back) = 0;

    // The common error step of the numeric boxes, by the number of the fault.
    virtual void Input_error(TextBox& box, int number) = 0;
};

} // namespace tarnvik
