// Mercator (normal aspect, conformal), true to scale on the standard
// parallel phi1.  On the ellipsoid the isometric latitude is taken through
// the conformal-latitude series: y = a m1 ln tan(pi/4 + chi/2).
//
// Constants: 0 m1 = cos(phi1) / W(phi1) (cos(phi1) on a sphere), 1 a m1.
#include "projections/math.h"
#include "projections/pcsconstants.h"
#include "projections/projection_support.h"
#include "projections/routines.h"

#include <algorithm>

namespace veltra {

namespace {

constexpr int kConstantsCount = 2;

struct Mercator {
    double m1;  // scale of the equator relative to the standard parallel
    double am1;
};

Mercator mercator_setup(const double *ellipsoid, const double *params) {
    const double a = ellipsoid[0], e2 = ellipsoid[1];
    const double phi1 = params[kStandardParallel1Slot];
    const double m1 = is_ellipsoid(ellipsoid) ? std::cos(phi1) / ka_w(e2, phi1)
                                              : std::cos(phi1);
    return {m1, a * m1};
}

Mercator mercator_values(const double *ellipsoid, const double *params,
                         const int *header, const double *constants) {
    if (const double *k = usable_constants(header, constants, kConstantsCount))
        return {k[0], k[1]};
    return mercator_setup(ellipsoid, params);
}

// The isometric latitude psi = ln tan(pi/4 + chi/2) is odd in chi and is
// computed as copysign(ln A, chi) from the argument A >= 1 below.  The
// forward loop works on blocks of points in three passes: the sines and
// cosines of the latitudes, the signed arguments (plain arithmetic, which
// vectorises), then the logarithms.
constexpr int kBlock = 64;

// At the (clamped) poles A = tan(pi/4 + |chi|/2), the form whose value
// there the library keeps; on |chi| because near the south pole
// pi/4 + chi/2 would lose all but a few digits to cancellation.
double signed_argument_at_pole(double chi) {
    return std::copysign(std::tan(kQuarterPi + std::fabs(chi) / 2), chi);
}

// Elsewhere A = (1 + |sin chi|) / cos chi, the same quantity without a
// tangent: sin and cos of chi come from those of phi turned by the small
// series correction chi - phi.
double signed_argument(SinCos chi) {
    return std::copysign((1 + std::fabs(chi.s)) / chi.c, chi.s);
}

}  // namespace

int mercator_constants(PcsConstants *record, const double *ellipsoid,
                       const double *params) {
    double *k = pcsconstants_fill(record, kConstantsCount);
    if (k == nullptr) return 0;
    const Mercator m = mercator_setup(ellipsoid, params);
    k[0] = m.m1;
    k[1] = m.am1;
    return kConstantsCount;
}

// Poles are clamped, so no point fails.
int mercator_forward(const double *ellipsoid, const double *params, int n,
                     double *points, const int *header,
                     const double *constants) {
    const Mercator m = mercator_values(ellipsoid, params, header, constants);
    const double lambda0 = params[kCentralMeridianSlot];
    // chi - phi by the conformal series; none on a sphere.
    const SineSeries to_chi = is_ellipsoid(ellipsoid)
                                  ? phi_to_chi_series(ellipsoid[1])
                                  : SineSeries{};
    const bool small_shift = series_bound(to_chi) < kSmallAngle;
    auto shift = [&to_chi](SinCos phi) {
        const SinCos twice = double_angle(phi);
        return sine_series_2x(twice.s, twice.c, to_chi);
    };
    double phi[kBlock], sin_phi[kBlock], cos_phi[kBlock];
    for (int first = 0; first < n; first += kBlock) {
        const int count = std::min(n - first, kBlock);
        double *block = points + 2 * first;
        bool any_pole = false;
        for (int i = 0; i < count; ++i) {
            double *p = block + 2 * i;
            p[0] = m.am1 * fold_longitude(p[0] - lambda0);
            phi[i] = clamp_pole(p[1]);
            any_pole |= is_pole(phi[i]);
            sin_phi[i] = std::sin(phi[i]);
            cos_phi[i] = std::cos(phi[i]);
        }
        if (small_shift) {
            for (int i = 0; i < count; ++i) {
                const SinCos sc{sin_phi[i], cos_phi[i]};
                block[2 * i + 1] =
                    signed_argument(rotate_by_small_angle(sc, shift(sc)));
            }
        } else {
            for (int i = 0; i < count; ++i) {
                const SinCos sc{sin_phi[i], cos_phi[i]};
                block[2 * i + 1] =
                    signed_argument(add_small_angle(sc, shift(sc)));
            }
        }
        if (any_pole)
            for (int i = 0; i < count; ++i)
                if (is_pole(phi[i]))
                    block[2 * i + 1] = signed_argument_at_pole(
                        phi[i] + shift({sin_phi[i], cos_phi[i]}));
        for (int i = 0; i < count; ++i) {
            double &y = block[2 * i + 1];
            y = std::copysign(m.am1 * std::log(std::fabs(y)), y);
        }
    }
    return all_points(n);
}

int mercator_inverse(const double *ellipsoid, const double *params, int n,
                     double *points, const int *header,
                     const double *constants) {
    const Mercator m = mercator_values(ellipsoid, params, header, constants);
    const double lambda0 = params[kCentralMeridianSlot];
    const bool ellipsoidal = is_ellipsoid(ellipsoid);
    const SineSeries to_phi = chi_to_phi_series(ellipsoid[1]);
    for (int i = 0; i < n; ++i) {
        double *p = points + 2 * i;
        const double chi = kHalfPi - 2 * std::atan(std::exp(-p[1] / m.am1));
        p[1] = ellipsoidal ? chi + sine_series(chi, to_phi) : chi;
        p[0] = fold_longitude(p[0] / m.am1 + lambda0);
    }
    return all_points(n);
}

}  // namespace veltra
