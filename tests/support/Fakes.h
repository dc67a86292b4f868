// The window's surroundings in its tests: what was asked for is kept, the answers are the test's.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "calc/RuntimeFault.h"
#include "ports/Clock.h"
#include "ports/Services.h"
#include "report/Recorder.h"

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

    void Ask(const Question& question, std::function<void(bool yes)> then) override {
        questions.push_back(question);
        messages.push_back({question.text, box_plain});
        waiting_.push_back([then = std::move(then), this] { then(yes_); });
    }

    // The user reads the oldest box and presses OK, or one of the buttons of a question.
    void Answer(bool yes = true) {
        yes_ = yes;
        const std::function<void()> then = waiting_.front();
        waiting_.pop_front();
        if (then) {
            then();
        }
    }
    // The program ended with its boxes.
    void Forget() {
        messages.clear();
        questions.clear();
        waiting_.clear();
    }
    [[nodiscard]] std::size_t Waiting() const { return waiting_.size(); }

    std::vector<Message> messages; // all that were shown, in turn
    std::vector<Question> questions;

private:
    std::deque<std::function<void()>> waiting_;
    bool yes_{};
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

// Answers the printer dialog; what is printed goes to `calls`, one list for each job that was started.
class ScriptedPrinter final : public PrinterService {
public:
    enum class Answer { accepted, cancelled, no_printer, fails_at_print, fails_at_end };

    std::unique_ptr<PrintTarget> Show_printer(const PrinterRequest& request) override {
        asked.push_back(request);
        if (answer == Answer::cancelled) {
            return nullptr;
        }
        if (answer == Answer::no_printer) {
            Raise(fault_path_access, "Show_printer");
        }
        jobs.push_back(std::make_shared<Recorder>());
        return std::make_unique<Job>(jobs.back(), answer);
    }

    Answer answer{Answer::accepted};
    std::vector<PrinterRequest> asked;
    std::vector<std::shared_ptr<Recorder>> jobs;

private:
    // Passes the calls on to a recorder that outlives it.
    class Job final : public PrintTarget {
    public:
        Job(std::shared_ptr<Recorder> recorder, Answer answer) : recorder_(std::move(recorder)), answer_(answer) {}
        void ScaleLeft(float x) override { recorder_->ScaleLeft(x); }
        void ScaleTop(float y) override { recorder_->ScaleTop(y); }
        void ScaleWidth(float width) override { recorder_->ScaleWidth(width); }
        void ScaleHeight(float height) override { recorder_->ScaleHeight(height); }
        void CurrentX(float x) override { recorder_->CurrentX(x); }
        void CurrentY(float y) override { recorder_->CurrentY(y); }
        void FontName(std::string_view name) override { recorder_->FontName(name); }
        void FontSize(float points) override { recorder_->FontSize(points); }
        void FontBold(bool on) override { recorder_->FontBold(on); }
        void FontItalic(bool on) override { recorder_->FontItalic(on); }
        void DrawWidth(std::int16_t pixels) override { recorder_->DrawWidth(pixels); }
        void Line(float x1, float y1, float x2, float y2) override { recorder_->Line(x1, y1, x2, y2); }
        void PaintPicture(std::string_view picture, float x, float y, float width, float height) override {
            recorder_->PaintPicture(picture, x, y, width, height);
        }
        float TextWidth(std::string_view text) override { return recorder_->TextWidth(text); }
        void Print(std::string_view text) override {
            if (answer_ == Answer::fails_at_print && recorder_->calls.size() > 200) {
                throw std::runtime_error{"out of paper"};
            }
            recorder_->Print(text);
        }
        void NewPage() override { recorder_->NewPage(); }
        void EndDoc() override {
            if (answer_ == Answer::fails_at_end) {
                Raise(fault_disk_full, "EndDoc");
            }
            recorder_->EndDoc();
        }

    private:
        std::shared_ptr<Recorder> recorder_;
        Answer answer_;
    };
};

// Always the same moment.
class StoppedClock final : public Clock {
public:
    Moment Now() override { return {"21.11.2026", "08:09:10"}; }
};

} // namespace tarnvik::test
