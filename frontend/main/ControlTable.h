// The controls of the main window as tables: name, kind, parent and what is built in; which label names which box, and
// which value.
#pragma once

#include <cstdint>
#include <span>

namespace tarnvik {

enum class Kind : std::uint8_t {
    frame,
    label,
    value,
    mark,
    text_box,
    list,
    option,
    check,
    button,
    choice_button,
    picture_button,
    picture,
    table,
    focus_area,
    plain
};

// Built place and size in pixels at 96 dpi; a width of 0 is measured from the texts that the control takes. What the
// layout gives overrides them.
struct ControlRow {
    const char* name;
    Kind kind;
    const char* parent; // empty: the window
    const char* caption;
    double left, top, width, height;
};

// In reading order, which is also the order of the Tab key; a parent stands before its children.
std::span<const ControlRow> Control_rows();

// A box and the label that names it; a list without one is named by its frame.
struct Buddy {
    const char* label;
    const char* box;
};
std::span<const Buddy> Buddies();

// A value and the caption that it stands behind.
struct CaptionedValue {
    const char* caption;
    const char* value;
};
std::span<const CaptionedValue> Captioned_values();

} // namespace tarnvik
