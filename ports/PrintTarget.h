// What the report is drawn on: the operations of a printer, and no more. Three things have them: a recorder that keeps
// the calls (report/Recorder.h), and the toolkit's printer and PDF file (frontend/painting/QtPrintTarget.h).
//
// Positions are report units in the scale that the report sets: x to the right, y upward.
#pragma once

#include <cstdint>
#include <string_view>

namespace tarnvik {

class PrintTarget {
public:
    PrintTarget() = default;
    virtual ~PrintTarget() = default;

    // The printable area in report units. A negative height makes y run upward.
    virtual void ScaleLeft(float x) = 0;
    virtual void ScaleTop(float y) = 0;
    virtual void ScaleWidth(float width) = 0;
    virtual void ScaleHeight(float height) = 0;

    // Where the next text starts: the top left corner of its box.
    virtual void CurrentX(float x) = 0;
    virtual void CurrentY(float y) = 0;

    virtual void FontName(std::string_view name) = 0;
    virtual void FontSize(float points) = 0;
    virtual void FontBold(bool on) = 0;
    virtual void FontItalic(bool on) = 0;

    // Width of lines in device pixels.
    virtual void DrawWidth(std::int16_t pixels) = 0;

    // A straight black line.
    virtual void Line(float x1, float y1, float x2, float y2) = 0;

    // A stored picture by its key, its top left corner at (x, y). A negative height puts it below its corner, the right
    // way up. A key that the picture store does not have paints nothing.
    virtual void PaintPicture(std::string_view picture, float x, float y, float width, float height) = 0;

    // Width of a text in the font in force, in report units.
    virtual float TextWidth(std::string_view text) = 0;

    // Writes one text, UTF-8, at the current place.
    virtual void Print(std::string_view text) = 0;

    // Ends the page and begins the next; font and scale stay.
    virtual void NewPage() = 0;

    // Ends the print job and sends it out; a second one has no effect.
    virtual void EndDoc() = 0;

protected:
    PrintTarget(const PrintTarget&) = default;
    PrintTarget& operator=(const PrintTarget&) = default;
};

} // namespace tarnvik
