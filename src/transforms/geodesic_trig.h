// Sine and cosine that give a clean zero where the geodesic formulas meet
// a right or straight angle, instead of the 6e-17 or 1.2e-16 of the double
// nearest pi/2 or pi.
#pragma once

#include <cmath>
#include <numbers>

namespace veltra {

// cos x, exactly 0 when |x| is the double nearest pi/2.
inline double exact_cos(double x) {
    return std::fabs(x) == std::numbers::pi / 2 ? 0.0 : std::cos(x);
}

// sin x, exactly 0 when |x| is the double nearest pi.
inline double exact_sin(double x) {
    return std::fabs(x) == std::numbers::pi ? 0.0 : std::sin(x);
}

}  // namespace veltra
