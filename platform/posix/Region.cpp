#include "platform/Region.h"

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

} // namespace

std::string Decimal_sign_text() {
    return {std::use_facet<std::numpunct<char>>(System_locale(std::locale::numeric)).decimal_point()};
}

std::string Date_text(const std::tm& time) {
    std::ostringstream text;
    text.imbue(System_locale(std::locale::time));
    text << std::put_time(&time, "%x");
    return text.str();
}

} // namespace tarnvik
