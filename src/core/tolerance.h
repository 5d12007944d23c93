// The library tolerance and its equality test, used by every comparison of
// values (object equality, pole and zero tests in the projection code).
#pragma once

#include <cmath>

namespace veltra {

// 2^-48: sixteen times the double machine epsilon.
inline constexpr double kTol = 0x1p-48;

// x and y are equal when |x - y| <= ((|x| + |y|) / 2 + 1) * 2^-48: relative
// for large magnitudes, absolute (about 3.55e-15) near zero.
inline bool tol_eq(double x, double y) {
    return std::fabs(x - y) <= ((std::fabs(x) + std::fabs(y)) / 2 + 1) * kTol;
}

}  // namespace veltra
