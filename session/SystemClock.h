// The system's clock, for a program without the toolkit.
#pragma once

#include "ports/Clock.h"

namespace tarnvik {

// The decimal sign of the system's regional settings: a comma where it is one, else a point.
char System_decimal_sign();

// The date in the form of the environment's LC_TIME.
class SystemClock final : public Clock {
public:
    Moment Now() override;
};

} // namespace tarnvik
