#include "session/SystemClock.h"

#include <array>
#include <ctime>

#include "platform/Region.h"

namespace tarnvik {

char System_decimal_sign() {
    return Decimal_sign_text() == "," ? ',' : '.';
}

Moment SystemClock::Now() {
    const std::time_t now = std::time(nullptr);
    const std::tm* local = std::localtime(&now); // the program has one thread
    if (local == nullptr) {
        return {};
    }
    std::array<char, 16> time{};
    std::strftime(time.data(), time.size(), "%H:%M:%S", local);
    return {Date_text(*local), time.data()};
}

} // namespace tarnvik
