// What every projection routine shares: the parameter slots it reads, the
// pole clamp, longitude folding, failure marking and access to a loaded
// constants record.
#pragma once

#include "core/angles.h"
#include "core/tolerance.h"
#include "veltra.h"

#include <cmath>

namespace veltra {


// Slots of the 16 parameter values a routine receives.
enum ParameterSlot : int {
    kFalseEastingSlot = 0,
    kFalseNorthingSlot = 1,
    kCentralMeridianSlot = 2,
    kStandardParallel1Slot = 3,
    kStandardParallel2Slot = 4,
    kScaleFactorSlot = 5,
    kLatitudeOfOriginSlot = 6,
};

// An ellipsoid argument {a, e2}: a sphere when e2 is below the tolerance.
inline bool is_ellipsoid(const double *ellipsoid) {
    return ellipsoid[1] >= kTol;
}

// pi/2 less 25 units in the last place: the latitude a pole is moved to
// where a formula would divide by cos(phi) = 0 or take the logarithm of an
// infinite tangent.
inline constexpr double kClampedPole = 1.570796326794891;

inline bool is_pole(double phi) { return tol_eq(std::fabs(phi), kHalfPi); }

inline double clamp_pole(double phi) {
    if (!is_pole(phi)) return phi;
    return phi < 0 ? -kClampedPole : kClampedPole;
}

// ka_delta with a fast path: a longitude already in [-pi, pi] is returned
// as is, which is exactly what the folding does with it.
inline double fold_longitude(double lambda) {
    return std::fabs(lambda) <= kPi ? lambda : ka_delta(lambda);
}

// Marks a point that cannot be converted.
inline void mark_failed(double *point) {
    ka_set_nan(point);
    ka_set_nan(point + 1);
}

// Count returned by a routine that converts every point.
inline int all_points(int n) { return n < 0 ? 0 : n; }

// The constants handed to a routine when they are a record of the layout it
// expects (count doubles), else nullptr: the routine then computes them.
inline const double *usable_constants(const int *header,
                                      const double *constants, int count) {
    if (header == nullptr || constants == nullptr || header[1] != count)
        return nullptr;
    return constants;
}

}  // namespace veltra
