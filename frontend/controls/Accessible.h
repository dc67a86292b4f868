// What screen readers are told of the program's own controls, where the toolkit by itself would tell them nothing or
// something else: tables and calculations as lines of text, lists by name and value, choices with the one in force.
#pragma once

namespace tarnvik {

// Once in a program, before the first control is made.
void Install_accessibility();

} // namespace tarnvik
