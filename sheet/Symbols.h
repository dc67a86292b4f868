// The symbols of the formulas on the check sheet: how each is written, and the number that stands for it.
#pragma once

#include <string_view>

#include "detail/Numbers.h"

namespace tarnvik {

struct Symbol {
    std::string_view name;  // in a formula
    std::string_view base;  // "f"
    std::string_view index; // "h,0,k"; may be empty
    Number number;
    std::string_view unit; // "N/mm²"; empty where it has none
};

// Null for a name that no formula has.
const Symbol* Find_symbol(std::string_view name);

// The symbol in MathML, and a piece of MathML as an element of its own.
std::string Symbol_markup(const Symbol& symbol);
std::string Math(const std::string& markup);

} // namespace tarnvik
