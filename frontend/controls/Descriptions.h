// What every control of the windows is, in both languages: the name that a screen reader says, and the tooltip with
// what it takes, its unit, what is allowed or what it does, and the clause of EN 1995-1-1.
#pragma once

#include <QString>

#include <span>
#include <string_view>

#include "calc/Words.h"

class QWidget;

namespace tarnvik {

// In the texts {1} and {2} stand for the members, as the window names them at the time. A name that reads a value has
// "%1" in its place.
struct Description {
    std::string_view window;
    std::string_view control;
    Words name;
    Words tip; // empty: what is no input has none, or makes its own
};
std::span<const Description> Descriptions();

// Names and tooltips of the controls of one window, which are looked for in `within`; a control that it does not have
// is passed over.
void Describe(const QWidget& within, std::string_view window, bool english, const QString& member_1 = {},
              const QString& member_2 = {});

} // namespace tarnvik
