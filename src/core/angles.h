// Angle constants shared by the projection, transformation and geodesic
// code.
#pragma once

#include <numbers>

namespace veltra {

inline constexpr double kPi = std::numbers::pi;
inline constexpr double kHalfPi = kPi / 2;
inline constexpr double kQuarterPi = kPi / 4;
inline constexpr double kRadiansPerDegree = kPi / 180;  // 0.017453292519943295

}  // namespace veltra
