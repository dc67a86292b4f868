// A message box that nobody reads: it keeps what was shown.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ports/MessageBox.h"

namespace tarnvik::test {

class RecordingMessageBox final : public MessageBox {
public:
    struct Message {
        std::string text;
        int style;
    };

    void Show(std::string_view text, int style) override { messages.push_back({std::string{text}, style}); }

    std::vector<Message> messages;
};

} // namespace tarnvik::test
