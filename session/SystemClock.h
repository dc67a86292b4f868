// The system's clock, for a program without the toolkit.
#pragma once

#include "ports/Clock.h"

namespace tarnvik {

// The date in the form of the environment's LC_TIME.
class SystemClock final : public Clock {
public:
    Moment Now() override;
};

} // namespace tarnvik
