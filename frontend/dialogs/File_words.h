// What the program's file dialogs say.
#pragma once

#include "ports/Services.h"

namespace tarnvik {

// The words that all of them share, in the language, for opening or saving. The caption and the kind of file are the
// caller's.
FileDialogWords File_words(bool english, bool saves, const char* caption, const char* files);

} // namespace tarnvik
