#include "platform/Region.h"

#include <array>

#include <windows.h>

#include "platform/Path.h"

namespace tarnvik {

std::string Decimal_sign_text() {
    std::array<wchar_t, 8> sign{};
    const int size =
        GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, sign.data(), static_cast<int>(sign.size()));
    return size > 0 ? Text_of(sign.data()) : ".";
}

std::string Date_text(const std::tm& time) {
    SYSTEMTIME day{};
    day.wYear = static_cast<WORD>(time.tm_year + 1900);
    day.wMonth = static_cast<WORD>(time.tm_mon + 1);
    day.wDay = static_cast<WORD>(time.tm_mday);
    std::array<wchar_t, 80> text{};
    const int size = GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &day, nullptr, text.data(),
                                     static_cast<int>(text.size()), nullptr);
    return size > 0 ? Text_of(text.data()) : "";
}

} // namespace tarnvik
