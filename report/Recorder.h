// A print target that keeps every call, for tests and for the headless tool.
#pragma once

#include <string>
#include <vector>

#include "ports/PrintTarget.h"

namespace tarnvik {

struct PrintFont {
    std::string name;
    float size{}; // points
    bool bold{};
    bool italic{};
    friend bool operator==(const PrintFont& one, const PrintFont& other) = default;
};

// One call. What an operation does not have stays at its default.
struct PrintCall {
    enum class Op : unsigned char {
        ScaleLeft,
        ScaleTop,
        ScaleWidth,
        ScaleHeight,
        CurrentX,
        CurrentY,
        FontName,
        FontSize,
        FontBold,
        FontItalic,
        DrawWidth,
        Line,
        PaintPicture,
        TextWidth,
        Print,
        NewPage,
        EndDoc,
    };

    int page{1};
    Op op{};
    float value{};    // of a set operation with a number; what TextWidth answered
    bool flag{};      // of FontBold and FontItalic
    std::string text; // of FontName, TextWidth and Print; the key of PaintPicture
    float x{}, y{};   // Line: from; PaintPicture: top left corner; Print: the current place
    float x2{}, y2{}; // Line: to
    float width{};    // PaintPicture; Line: DrawWidth
    float height{};   // PaintPicture
    PrintFont font;   // of TextWidth and Print
};

std::string_view Op_name(PrintCall::Op op);

// Its paper is A4 and its printable area 200 mm by 290 mm. Widths of texts are those of the upright regular faces of
// Arial and Times New Roman, which the fonts that stand in for them share; any other name measures as Times New Roman.
class Recorder final : public PrintTarget {
public:
    void ScaleLeft(float x) override;
    void ScaleTop(float y) override;
    void ScaleWidth(float width) override;
    void ScaleHeight(float height) override;
    void CurrentX(float x) override;
    void CurrentY(float y) override;
    void FontName(std::string_view name) override;
    void FontSize(float points) override;
    void FontBold(bool on) override;
    void FontItalic(bool on) override;
    void DrawWidth(std::int16_t pixels) override;
    void Line(float x1, float y1, float x2, float y2) override;
    void PaintPicture(std::string_view picture, float x, float y, float width, float height) override;
    float TextWidth(std::string_view text) override;
    void Print(std::string_view text) override;
    void NewPage() override;
    void EndDoc() override;

    std::vector<PrintCall> calls;

private:
    PrintCall& Add(PrintCall::Op op);
    void Add_value(PrintCall::Op op, float value);

    int page_{1};
    float x_{}, y_{};
    float scale_width_{200.0F};
    float draw_width_{1.0F};
    PrintFont font_;
};

} // namespace tarnvik
