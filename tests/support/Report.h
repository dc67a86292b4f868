// What the tests of the report share.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calc/pass/Main_beregn.h"
#include "report/PrintReport.h"
#include "report/Recorder.h"
#include "report/Sections.h"
#include "tests/support/Calculation.h"
#include "tests/support/Lines.h"
#include "tests/support/RecordingMessageBox.h"

namespace tarnvik::test {

inline const Moment moment{"21.11.2026", "08:09:10"};

// A new project after its first pass, and what the window shows of it.
struct Connection {
    explicit Connection(std::string_view lang = "Eng", bool first_pass = true) : s(New_project(lang)) {
        if (first_pass) {
            Pass();
        }
    }

    PassEnd Pass() {
        RecordingMessageBox box;
        return Run_pass(*s, &screen, box).end;
    }
    [[nodiscard]] ReportPictures Pictures() const { return {screen.Pic_forbindelse, screen.Pic_av_bolter}; }

    std::unique_ptr<ConnectionState> s;
    Screen screen;
};

// A recorder with a font, as the section before leaves it.
inline Recorder After_title() {
    Recorder recorder;
    recorder.FontName("Times New Roman");
    recorder.FontSize(9.0F);
    recorder.calls.clear();
    return recorder;
}

// The calls that leave ink, and the page breaks, as lines.
inline std::vector<std::string> Drawn(const Recorder& recorder) {
    using Op = PrintCall::Op;
    std::vector<std::string> lines;
    for (const PrintCall& call : recorder.calls) {
        if (call.op == Op::Line || call.op == Op::PaintPicture || call.op == Op::Print || call.op == Op::NewPage ||
            call.op == Op::EndDoc) {
            lines.push_back(Line_of(call));
        }
    }
    return lines;
}

inline std::vector<PrintCall> Calls_of(const Recorder& recorder, PrintCall::Op op) {
    std::vector<PrintCall> calls;
    for (const PrintCall& call : recorder.calls) {
        if (call.op == op) {
            calls.push_back(call);
        }
    }
    return calls;
}

inline std::vector<PrintCall> Prints(const Recorder& recorder) {
    return Calls_of(recorder, PrintCall::Op::Print);
}

// The text printed at a place; nothing where there is none.
inline std::optional<std::string> Text_at(const Recorder& recorder, float x, float y, int page = 1) {
    for (const PrintCall& call : Prints(recorder)) {
        if (call.page == page && call.x == x && call.y == y) {
            return call.text;
        }
    }
    return std::nullopt;
}

// The print of a text; fails the test where there is not exactly one.
inline PrintCall Print_of(const Recorder& recorder, std::string_view text) {
    std::vector<PrintCall> found;
    for (const PrintCall& call : Prints(recorder)) {
        if (call.text == text) {
            found.push_back(call);
        }
    }
    EXPECT_EQ(found.size(), 1U) << '"' << text << '"';
    return found.empty() ? PrintCall{} : found.front();
}

inline bool Printed(const Recorder& recorder, std::string_view text) {
    const auto calls = Prints(recorder);
    return std::any_of(calls.begin(), calls.end(), [&](const PrintCall& call) { return call.text == text; });
}

} // namespace tarnvik::test
