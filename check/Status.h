// The exit status of tarnvik-check.
#pragma once

#include "calc/GlobalParameter.h"
#include "calc/pass/Main_beregn.h"

namespace tarnvik {

inline constexpr int exit_holds = 0;   // all calculated and no utilisation above 1.0
inline constexpr int exit_fails = 1;   // all calculated, some utilisation above 1.0
inline constexpr int exit_usage = 2;   // wrong usage or unreadable input
inline constexpr int exit_stopped = 3; // a pass was stopped or faulted

// Of one check.
int Status(const ConnectionValues& s, const PassResult& result);

// The worse one of two: 2 before 3 before 1 before 0.
int Worse(int one, int other);

} // namespace tarnvik
