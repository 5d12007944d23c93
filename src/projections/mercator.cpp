// Mercator (normal aspect, conformal), true to scale on the standard
// parallel phi1.  On the ellipsoid the isometric latitude is taken through
// the conformal-latitude series: y = a m1 ln tan(pi/4 + chi/2).
//
// Constants: 0 m1 = cos(phi1) / W(phi1) (cos(phi1) on a sphere), 1 a m1.
#include "projections/math.h"
#include "projections/pcsconstants.h"
#include "projections/projection_support.h"
#include "projections/routines.h"

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

// Poles are clamped, so no point fails.  ln tan(pi/4 + chi/2) is odd in chi
// and is taken on |chi|: near the south pole pi/4 + chi/2 would lose all
// but a few digits to cancellation, so both poles map to the same |y|.
int mercator_forward(const double *ellipsoid, const double *params, int n,
                     double *points, const int *header,
                     const double *constants) {
    const Mercator m = mercator_values(ellipsoid, params, header, constants);
    const double lambda0 = params[kCentralMeridianSlot];
    const bool ellipsoidal = is_ellipsoid(ellipsoid);
    const SineSeries to_chi = phi_to_chi_series(ellipsoid[1]);
    for (int i = 0; i < n; ++i) {
        double *p = points + 2 * i;
        const double dl = fold_longitude(p[0] - lambda0);
        const double phi = clamp_pole(p[1]);
        const double chi =
            ellipsoidal ? phi + sine_series(phi, to_chi) : phi;
        p[0] = m.am1 * dl;
        p[1] = std::copysign(
            m.am1 * std::log(std::tan(kQuarterPi + std::fabs(chi) / 2)), chi);
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
