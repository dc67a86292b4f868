#include "session/SystemClock.h"

#include <ctime>
#include <iomanip>
#include <locale>
#include <sstream>
#include <stdexcept>

namespace tarnvik {

namespace {

std::locale System_locale() {
    try {
        return std::locale{""};
    } catch (const std::runtime_error&) { // the environment names a locale that is not installed
        return std::locale::classic();
    }
}

std::string Text(const std::tm& time, const char* form, const std::locale& locale) {
    std::ostringstream text;
    text.imbue(locale);
    text << std::put_time(&time, form);
    return text.str();
}

} // namespace

Moment SystemClock::Now() {
    const std::time_t now = std::time(nullptr);
    const std::tm* local = std::localtime(&now); // the program has one thread
    if (local == nullptr) {
        return {};
    }
    return {Text(*local, "%x", System_locale()), Text(*local, "%H:%M:%S", std::locale::classic())};
}

} // namespace tarnvik
