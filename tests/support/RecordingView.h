// A view of a session that nobody looks at: it keeps what the session asks of it, in turn.
#pragma once

#include <string>
#include <vector>

#include "ports/MessageBox.h"
#include "session/Session.h"
#include "tests/support/RecordingMessageBox.h"

namespace tarnvik::test {

class RecordingView final : public SessionView {
public:
    MessageBox& Box() override { return box; }
    void Before_pass() override { events.emplace_back("before"); }
    void After_pass() override { events.emplace_back("after"); }

    RecordingMessageBox box;
    std::vector<std::string> events;
};

} // namespace tarnvik::test
