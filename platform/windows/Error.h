// Errors of Windows as the numbers of errno, which the rest of the program knows.
#pragma once

namespace tarnvik {

int Errno_of(unsigned long error);

// The error of the last call of Windows, in errno.
void Note_error();

} // namespace tarnvik
