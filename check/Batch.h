// A batch: a line of inputs in, a line of results out, in the order of the lines.
#pragma once

#include <iosfwd>

#include "calc/GlobalParameter.h"
#include "check/Options.h"

namespace tarnvik {

// Reads to the end of `in` and gives the worst exit status. Every line starts from `fresh`. Results are written in
// blocks; whoever sends a line and waits gets his answer at once. Input of any length takes the same memory.
// Errors: throws UsageError where the input cannot be read to its end.
int Run_batch(const Options& options, const ConnectionState& fresh, std::istream& in, std::ostream& out,
              std::ostream& err);

} // namespace tarnvik
