// The window's surroundings in its tests: what was asked for is kept, the answers are the test's.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "frontend/Services.h"

namespace tarnvik::test {

// Warnings of the toolkit since the test began (main.cpp).
std::vector<std::string>& Warnings();

// Keeps every box; it stands until the test answers it.
class RecordingBoxes final : public BoxService {
public:
    struct Message {
        std::string text;
        int style;
        friend bool operator==(const Message& one, const Message& other) = default;
    };

    void Show_then(std::string_view text, int style, std::function<void()> then) override {
        messages.push_back({std::string{text}, style});
        waiting_.push_back(std::move(then));
    }

    // The user reads the oldest box and presses OK.
    void Answer() {
        const std::function<void()> then = waiting_.front();
        waiting_.pop_front();
        if (then) {
            then();
        }
    }
    [[nodiscard]] std::size_t Waiting() const { return waiting_.size(); }

    std::vector<Message> messages; // all that were shown, in turn

private:
    std::deque<std::function<void()>> waiting_;
};

class ScriptedDialogs final : public FileDialogs {
public:
    struct Asked {
        std::string dialog; // "open", "save"
        FileRequest request;
    };

    std::optional<std::string> Open(const FileRequest& request) override { return Answer("open", request); }
    std::optional<std::string> Save(const FileRequest& request) override { return Answer("save", request); }

    std::optional<std::string> answer; // of the next dialogs; nothing: cancelled
    std::vector<Asked> asked;

private:
    std::optional<std::string> Answer(const char* dialog, const FileRequest& request) {
        asked.push_back({dialog, request});
        return answer;
    }
};

class RecordingOpener final : public DocumentOpener {
public:
    bool Open_file(const std::string& path) override {
        files.push_back(path);
        return opens;
    }
    bool Open_link(const std::string& url) override {
        links.push_back(url);
        return opens;
    }

    bool opens{true};
    std::vector<std::string> files, links;
};

} // namespace tarnvik::test
