// Today's date and the time of day as the report prints them.
#pragma once

#include <string>

namespace tarnvik {

struct Moment {
    std::string date; // the system's short date form
    std::string time; // hh:mm:ss
};

class Clock {
public:
    Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    virtual ~Clock() = default;

    virtual Moment Now() = 0;
};

} // namespace tarnvik
