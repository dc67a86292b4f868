// Start values of a new project.
#pragma once

#include "calc/GlobalParameter.h"

namespace tarnvik {

// A project that no file holds yet: its title follows Lang, "Eng" or "Nor"; another language leaves the former one.
void Name_new_file(ConnectionState& s);

// Gives a new project its every default. The titles follow Lang: "Eng" or "Nor"; another language sets none. dob_1 and
// dob_2 keep what they are, and the sections come from the profile table in the next pass.
void StartValue(ConnectionState& s);

} // namespace tarnvik
