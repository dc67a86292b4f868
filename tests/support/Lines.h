// The calls of a report as lines, for the tests to compare.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "calc/Text.h"
#include "report/Recorder.h"

namespace tarnvik::test {

inline void Append(std::string& line, float value) {
    line += ' ';
    line += Shortest(value).View();
}

inline void Append_text(std::string& line, std::string_view text) {
    line += " \"";
    for (const char c : text) {
        if (c == '"' || c == '\\') {
            line += '\\';
        }
        line += c;
    }
    line += '"';
}

inline void Append_font(std::string& line, const PrintFont& font) {
    line += " in ";
    line += font.name;
    Append(line, font.size);
    line += font.bold ? " bold" : "";
    line += font.italic ? " italic" : "";
}

// The call as a line, the number of its page first:
//
//     1 CurrentX 16
//     1 Line 15 290 185 290 width 6
//     2 PaintPicture "Frm_tarn_vik_bolter_1_trykk/Pic1_2_b" 10 255 65 -67.6
//     1 TextWidth "Date:" 5.9 in arial 7
//     1 Print "General data" at 15 268 in Times New Roman 9 bold italic
//
// Numbers stand in the shortest form that reads back to the same 32-bit float.
inline std::string Line_of(const PrintCall& call) {
    using Op = PrintCall::Op;
    std::string line = std::to_string(call.page) + " ";
    line += Op_name(call.op);
    switch (call.op) {
    case Op::FontName:
        Append_text(line, call.text);
        break;
    case Op::FontBold:
    case Op::FontItalic:
        line += call.flag ? " true" : " false";
        break;
    case Op::Line:
        for (const float value : {call.x, call.y, call.x2, call.y2}) {
            Append(line, value);
        }
        line += " width";
        Append(line, call.width);
        break;
    case Op::PaintPicture:
        Append_text(line, call.text);
        for (const float value : {call.x, call.y, call.width, call.height}) {
            Append(line, value);
        }
        break;
    case Op::TextWidth:
        Append_text(line, call.text);
        Append(line, call.value);
        Append_font(line, call.font);
        break;
    case Op::Print:
        Append_text(line, call.text);
        line += " at";
        Append(line, call.x);
        Append(line, call.y);
        Append_font(line, call.font);
        break;
    case Op::NewPage:
    case Op::EndDoc:
        break;
    default:
        Append(line, call.value);
        break;
    }
    return line;
}

inline std::vector<std::string> Lines_of(const Recorder& recorder) {
    std::vector<std::string> lines;
    lines.reserve(recorder.calls.size());
    for (const PrintCall& call : recorder.calls) {
        lines.push_back(Line_of(call));
    }
    return lines;
}

} // namespace tarnvik::test
