// What the pictures of the main window show, in words.
#pragma once

#include <string>

#include "calc/GlobalParameter.h"

namespace tarnvik {

// The connection of the last pass: "Connection 1.2: Top chord double, Bottom chord single."
std::string Connection_words(const ConnectionValues& s, bool english);

// The case of the last pass: "Case 1.2.b: 2 bolts, Alt. 2, compression." `sketch` is the key of its picture, which goes
// by the sign that the force had then.
std::string Case_words(const ConnectionValues& s, std::string_view sketch, bool english);

} // namespace tarnvik
