#include "session/SystemClock.h"

#include <ctime>
#include <iomanip>
#include <locale>
#include <sstream>
#include <stdexcept>

namespace tarnvik {

namespace {

// One kind of the regional settings alone: each is loaded from the disk.
std::locale System_locale(std::locale::category kind) {
    try {
        return {std::locale::classic(), "", kind};
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

char System_decimal_sign() {
    const std::locale settings = System_locale(std::locale::numeric);
    return std::use_facet<std::numpunct<char>>(settings).decimal_point() == ',' ? ',' : '.';
}

Moment SystemClock::Now() {
    const std::time_t now = std::time(nullptr);
    const std::tm* local = std::localtime(&now); // the program has one thread
    if (local == nullptr) {
        return {};
    }
    return {Text(*local, "%x", System_locale(std::locale::time)), Text(*local, "%H:%M:%S", std::locale::classic())};
}

} // namespace tarnvik
