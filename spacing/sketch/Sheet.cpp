#include "spacing/sketch/Sheet.h"

namespace tarnvik {

bool Fits(const Rect& bounds, double width, double height) {
    constexpr double margin = 2.0;
    return bounds.right - bounds.left + 2.0 * margin <= width && bounds.high - bounds.low + 2.0 * margin <= height;
}

Sheet Centred(const Rect& bounds, double width, double height) {
    return {width,
            height,
            {width / 2.0 - (bounds.left + bounds.right) / 2.0, height / 2.0 - (bounds.low + bounds.high) / 2.0}};
}

} // namespace tarnvik
