// The regional settings of the user.
#pragma once

#include <ctime>
#include <string>

namespace tarnvik {

std::string Decimal_sign_text();

// The date in its short form. UTF-8.
std::string Date_text(const std::tm& time);

} // namespace tarnvik
