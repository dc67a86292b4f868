#include "calc/Arithmetic.h"

namespace tarnvik {

float MinVal(int n, float x1, float x2, float x3, float x4) {
    float least = x1;
    if (x2 < least) {
        least = x2;
    }
    if (n >= 3 && x3 < least) {
        least = x3;
    }
    if (n >= 4 && x4 < least) {
        least = x4;
    }
    return least;
}

float MaxVal(int n, float x1, float x2, float x3, float x4) {
    float most = x1;
    if (x2 > most) {
        most = x2;
    }
    if (n >= 3 && x3 > most) {
        most = x3;
    }
    if (n >= 4 && x4 > most) {
        most = x4;
    }
    return most;
}

} // namespace tarnvik
