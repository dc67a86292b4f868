// The message box of the program, behind an interface so that a pass and a file routine can ask for one without a
// screen.
#pragma once

#include <string_view>

namespace tarnvik {

inline constexpr int box_plain = 0;
inline constexpr int box_exclamation = 48;

class MessageBox {
public:
    MessageBox() = default;
    MessageBox(const MessageBox&) = delete;
    MessageBox& operator=(const MessageBox&) = delete;
    virtual ~MessageBox() = default;

    // Shows a text without a title and waits for the answer. `style` is box_plain or box_exclamation.
    virtual void Show(std::string_view text, int style) = 0;
};

} // namespace tarnvik
