// The messages of a check: nobody is there to read a box, so they are kept and told with the result.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ports/MessageBox.h"

namespace tarnvik {

class MessageLog final : public MessageBox {
public:
    struct Message {
        std::string text;
        int style;
    };

    void Show(std::string_view text, int style) override { messages.push_back({std::string{text}, style}); }

    std::vector<Message> messages; // in the order in which they were shown
};

} // namespace tarnvik
