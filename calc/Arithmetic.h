// Checked arithmetic: every formula is computed in double and rounded to 32 bits once, when its value is stored.
//
// The helpers raise the fault at the point where it happens, so that no infinity and no NaN ever reaches the state.
#pragma once

#include <cmath>
#include <string_view>

#include "calc/RuntimeFault.h"

namespace tarnvik {

// Degrees per radian as the calculation uses it: a rounded constant, on purpose. 90 degrees become slightly less than
// a right angle, and 30 degrees have a sine just under 0.5.
inline constexpr double degrees_per_radian = 57.297;

// Pi of the strength formulas, a 32-bit float of five decimals, on purpose.
inline constexpr float PI = 3.14159F;

// Rounds to 32 bits. Overflow (6) for what a 32-bit float cannot hold and for what is no number.
inline float Store(double value, std::string_view where) {
    // The largest double that still rounds to a finite float: FLT_MAX and half a unit of its last place, exclusive.
    constexpr double limit = 0x1.ffffffp127;
    if (!(value > -limit && value < limit)) { // also true for a NaN
        Raise(fault_overflow, where);
    }
    return static_cast<float>(value);
}

// Division by zero (11) whatever the numerator is.
inline double Divide(double numerator, double denominator, std::string_view where) {
    if (denominator == 0.0) {
        Raise(fault_division_by_zero, where);
    }
    return numerator / denominator;
}

// base ^ exponent. Invalid procedure call (5) for a negative base with a broken exponent and for zero to a negative
// power; overflow (6) where the result leaves the range of a double.
inline double Power(double base, double exponent, std::string_view where) {
    if ((base < 0.0 && std::trunc(exponent) != exponent) || (base == 0.0 && exponent < 0.0)) {
        Raise(fault_invalid_call, where);
    }
    const double result = std::pow(base, exponent);
    if (!std::isfinite(result)) {
        Raise(fault_overflow, where);
    }
    return result;
}

// A square root is the power 0.5.
inline double Root(double radicand, std::string_view where) {
    return Power(radicand, 0.5, where);
}

inline double Square(double value) {
    return value * value;
}

// The smallest and the largest of the first n of four values, n from 2 to 4; values beyond n are ignored. They serve
// every minimum and maximum of the calculation.
float MinVal(int n, float x1, float x2, float x3 = 0.0F, float x4 = 0.0F);
float MaxVal(int n, float x1, float x2, float x3 = 0.0F, float x4 = 0.0F);

} // namespace tarnvik
