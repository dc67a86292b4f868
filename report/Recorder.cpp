#include "report/Recorder.h"

#include <array>

#include "calc/Text.h"

namespace tarnvik {

namespace {

// Advance widths of the upright regular faces in 1/2048 em, U+0020 to U+007F and U+00A0 to U+00FF.
using Widths = std::array<std::uint16_t, 192>;

// clang-format off
constexpr Widths arial{
     569,  569,  727, 1139, 1139, 1821, 1366,  391,  682,  682,  797, 1196,  569,  682,  569,  569, // U+0020
    1139, 1139, 1139, 1139, 1139, 1139, 1139, 1139, 1139, 1139,  569,  569, 1196, 1196, 1196, 1139, // U+0030
    2079, 1366, 1366, 1479, 1479, 1366, 1251, 1593, 1479,  569, 1024, 1366, 1139, 1706, 1479, 1593, // U+0040
    1366, 1593, 1479, 1366, 1251, 1479, 1366, 1933, 1366, 1366, 1251,  569,  569,  569,  961, 1139, // U+0050
     682, 1139, 1139, 1024, 1139, 1139,  569, 1139, 1139,  455,  455, 1024,  455, 1706, 1139, 1139, // U+0060
    1139, 1139,  682, 1024,  569, 1139, 1024, 1479, 1024, 1024, 1024,  684,  532,  684, 1196,    0, // U+0070
     569,  682, 1139, 1139, 1139, 1139,  532, 1139,  682, 1509,  758, 1139, 1196,  682, 1509, 1131, // U+00A0
     819, 1124,  682,  682,  682, 1180, 1100,  569,  682,  682,  748, 1139, 1708, 1708, 1708, 1251, // U+00B0
    1366, 1366, 1366, 1366, 1366, 1366, 2048, 1479, 1366, 1366, 1366, 1366,  569,  569,  569,  569, // U+00C0
    1479, 1479, 1593, 1593, 1593, 1593, 1593, 1196, 1593, 1479, 1479, 1479, 1479, 1366, 1366, 1251, // U+00D0
    1139, 1139, 1139, 1139, 1139, 1139, 1821, 1024, 1139, 1139, 1139, 1139,  569,  569,  569,  569, // U+00E0
    1139, 1139, 1139, 1139, 1139, 1139, 1139, 1124, 1251, 1139, 1139, 1139, 1139, 1024, 1139, 1024, // U+00F0
};

constexpr Widths times_new_roman{
     512,  682,  836, 1024, 1024, 1706, 1593,  369,  682,  682, 1024, 1155,  512,  682,  512,  569, // U+0020
    1024, 1024, 1024, 1024, 1024, 1024, 1024, 1024, 1024, 1024,  569,  569, 1155, 1155, 1155,  909, // U+0030
    1886, 1479, 1366, 1366, 1479, 1251, 1139, 1479, 1479,  682,  797, 1479, 1251, 1821, 1479, 1479, // U+0040
    1139, 1479, 1366, 1139, 1251, 1479, 1479, 1933, 1479, 1479, 1251,  682,  569,  682,  961, 1024, // U+0050
     682,  909, 1024,  909, 1024,  909,  682, 1024, 1024,  569,  569, 1024,  569, 1593, 1024, 1024, // U+0060
    1024, 1024,  682,  797,  569, 1024, 1024, 1479, 1024, 1024,  909,  983,  410,  983, 1108,    0, // U+0070
     512,  682, 1024, 1024, 1024, 1024,  410, 1024,  682, 1556,  565, 1024, 1155,  682, 1556, 1024, // U+00A0
     819, 1124,  614,  614,  682, 1180,  928,  512,  682,  614,  635, 1024, 1536, 1536, 1536,  909, // U+00B0
    1479, 1479, 1479, 1479, 1479, 1479, 1821, 1366, 1251, 1251, 1251, 1251,  682,  682,  682,  682, // U+00C0
    1479, 1479, 1479, 1479, 1479, 1479, 1479, 1155, 1479, 1479, 1479, 1479, 1479, 1479, 1139, 1024, // U+00D0
     909,  909,  909,  909,  909,  909, 1366,  909,  909,  909,  909,  909,  569,  569,  569,  569, // U+00E0
    1024, 1024, 1024, 1024, 1024, 1024, 1024, 1124, 1024, 1024, 1024, 1024, 1024, 1024, 1024, 1024, // U+00F0
};
// clang-format on

constexpr double units_per_em = 2048.0;
constexpr double millimetres_per_point = 25.4 / 72.0;
constexpr double area_width = 200.0; // mm

double Width_of(const Widths& widths, char32_t character) {
    if (character >= 0x20 && character < 0x80) {
        return widths[character - 0x20];
    }
    if (character >= 0xA0 && character < 0x100) {
        return widths[character - 0xA0 + 0x60];
    }
    return units_per_em / 2.0; // half an em for what is outside Latin-1
}

// Sum of the advances of a UTF-8 text.
double Units(const Widths& widths, std::string_view text) {
    double sum = 0.0;
    for (std::size_t i = 0; i < text.size();) {
        auto character = static_cast<char32_t>(static_cast<unsigned char>(text[i]));
        std::size_t length = 1;
        while (i + length < text.size() && (static_cast<unsigned char>(text[i + length]) & 0xC0U) == 0x80U) {
            ++length;
        }
        if (length == 2) {
            character = (character & 0x1FU) << 6U | (static_cast<unsigned char>(text[i + 1]) & 0x3FU);
        } else if (length > 2) {
            character = 0xFFFF;
        }
        sum += Width_of(widths, character);
        i += length;
    }
    return sum;
}

} // namespace

std::string_view Op_name(PrintCall::Op op) {
    constexpr std::array<std::string_view, 17> names{
        "ScaleLeft",    "ScaleTop",  "ScaleWidth", "ScaleHeight", "CurrentX",  "CurrentY",
        "FontName",     "FontSize",  "FontBold",   "FontItalic",  "DrawWidth", "Line",
        "PaintPicture", "TextWidth", "Print",      "NewPage",     "EndDoc"};
    return names[static_cast<std::size_t>(op)];
}

PrintCall& Recorder::Add(PrintCall::Op op) {
    PrintCall& call = calls.emplace_back();
    call.page = page_;
    call.op = op;
    return call;
}

void Recorder::Add_value(PrintCall::Op op, float value) {
    Add(op).value = value;
}

void Recorder::ScaleLeft(float x) {
    Add_value(PrintCall::Op::ScaleLeft, x);
}

void Recorder::ScaleTop(float y) {
    Add_value(PrintCall::Op::ScaleTop, y);
}

void Recorder::ScaleWidth(float width) {
    Add_value(PrintCall::Op::ScaleWidth, width);
    scale_width_ = width;
}

void Recorder::ScaleHeight(float height) {
    Add_value(PrintCall::Op::ScaleHeight, height);
}

void Recorder::CurrentX(float x) {
    Add_value(PrintCall::Op::CurrentX, x);
    x_ = x;
}

void Recorder::CurrentY(float y) {
    Add_value(PrintCall::Op::CurrentY, y);
    y_ = y;
}

void Recorder::FontName(std::string_view name) {
    Add(PrintCall::Op::FontName).text = name;
    font_.name = name;
}

void Recorder::FontSize(float points) {
    Add_value(PrintCall::Op::FontSize, points);
    font_.size = points;
}

void Recorder::FontBold(bool on) {
    Add(PrintCall::Op::FontBold).flag = on;
    font_.bold = on;
}

void Recorder::FontItalic(bool on) {
    Add(PrintCall::Op::FontItalic).flag = on;
    font_.italic = on;
}

void Recorder::DrawWidth(std::int16_t pixels) {
    Add_value(PrintCall::Op::DrawWidth, pixels);
    draw_width_ = pixels;
}

void Recorder::Line(float x1, float y1, float x2, float y2) {
    PrintCall& call = Add(PrintCall::Op::Line);
    call.x = x1;
    call.y = y1;
    call.x2 = x2;
    call.y2 = y2;
    call.width = draw_width_;
}

void Recorder::PaintPicture(std::string_view picture, float x, float y, float width, float height) {
    PrintCall& call = Add(PrintCall::Op::PaintPicture);
    call.text = picture;
    call.x = x;
    call.y = y;
    call.width = width;
    call.height = height;
}

float Recorder::TextWidth(std::string_view text) {
    const Widths& widths = font_.name == "arial" ? arial : times_new_roman;
    const double millimetres =
        Units(widths, text) / units_per_em * static_cast<double>(font_.size) * millimetres_per_point;
    const auto width = static_cast<float>(millimetres * static_cast<double>(scale_width_) / area_width);
    PrintCall& call = Add(PrintCall::Op::TextWidth);
    call.text = text;
    call.value = width;
    call.font = font_;
    return width;
}

void Recorder::Print(std::string_view text) {
    PrintCall& call = Add(PrintCall::Op::Print);
    call.text = text;
    call.x = x_;
    call.y = y_;
    call.font = font_;
}

void Recorder::NewPage() {
    Add(PrintCall::Op::NewPage);
    ++page_;
}

void Recorder::EndDoc() {
    Add(PrintCall::Op::EndDoc);
}

} // namespace tarnvik
