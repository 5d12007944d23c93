// Transverse Mercator (Gauss-Kruger).  On the ellipsoid, Redfearn's power
// series to the eighth order in the longitude difference (forward) and in
// the easting (inverse) about the meridian arc; on a sphere the closed
// formulas (Snyder, Map Projections: A Working Manual, eqs. 8-1 to 8-7).
// Far from the central meridian the series lose accuracy; no point is ever
// marked as failed.
//
// Constants, ellipsoid (3): 0 ep2 = e2 / (1 - e2), 1 M0 the meridian arc to
// the latitude of origin, 2 Q the quarter meridian.  Sphere (2): 0 a k0,
// 1 0.5 a k0.
#include "projections/math.h"
#include "projections/pcsconstants.h"
#include "projections/projection_support.h"
#include "projections/routines.h"

namespace veltra {

namespace {

constexpr int kEllipsoidCount = 3;
constexpr int kSphereCount = 2;
// |B| = 1 (a point 90 degrees from the central meridian on the equator)
// would make the spherical easting infinite.
constexpr double kClampedB = 0.9999999999999964;

struct TransverseMercator {
    bool ellipsoidal;
    double ep2, m0, q90;  // ellipsoid
    double ak0, half_ak0;  // sphere
};

TransverseMercator tm_setup(const double *ellipsoid, const double *params) {
    const double a = ellipsoid[0], e2 = ellipsoid[1];
    TransverseMercator tm{};
    tm.ellipsoidal = is_ellipsoid(ellipsoid);
    if (tm.ellipsoidal) {
        tm.ep2 = e2 / (1 - e2);
        tm.m0 = ka_q(a, e2, params[kLatitudeOfOriginSlot]);
        tm.q90 = ka_q90(a, e2);
    } else {
        const double k0 = params[kScaleFactorSlot];
        tm.ak0 = a * k0;
        tm.half_ak0 = 0.5 * a * k0;
    }
    return tm;
}

TransverseMercator tm_values(const double *ellipsoid, const double *params,
                             const int *header, const double *constants) {
    const bool ellipsoidal = is_ellipsoid(ellipsoid);
    const double *k = usable_constants(
        header, constants, ellipsoidal ? kEllipsoidCount : kSphereCount);
    if (k == nullptr) return tm_setup(ellipsoid, params);
    TransverseMercator tm{};
    tm.ellipsoidal = ellipsoidal;
    if (ellipsoidal) {
        tm.ep2 = k[0];
        tm.m0 = k[1];
        tm.q90 = k[2];
    } else {
        tm.ak0 = k[0];
        tm.half_ak0 = k[1];
    }
    return tm;
}

// Forward on the ellipsoid.  With u = dl cos(phi), t = tan(phi), T = t^2,
// h = ep2 cos^2(phi) and N the prime-vertical radius, the terms
// Y2k dl^2k = k0 N t u^2k (...) and X2k+1 dl^2k+1 = k0 N u^2k+1 (...).
void tm_forward_ellipsoid(const TransverseMercator &tm, const double *ellipsoid,
                          const double *params, int n, double *points) {
    const double a = ellipsoid[0], e2 = ellipsoid[1];
    const double lambda0 = params[kCentralMeridianSlot];
    const double k0 = params[kScaleFactorSlot];
    const MeridianArc arc = meridian_arc(a, e2);
    for (int i = 0; i < n; ++i) {
        double *p = points + 2 * i;
        const double dl = fold_longitude(p[0] - lambda0);
        const double phi = clamp_pole(p[1]);
        const double m = k0 * (meridian_arc_length(arc, phi) - tm.m0);
        if (is_pole(p[1])) {
            // A pole lies on the central meridian whatever the longitude;
            // the dl terms of the clamped latitude would only add noise.
            p[0] = 0;
            p[1] = m;
            continue;
        }
        const double s = std::sin(phi), c = std::cos(phi);
        const double t = s / c, T = t * t;
        const double h = tm.ep2 * c * c;
        const double kN = k0 * a / std::sqrt(1 - e2 * s * s);
        const double u = dl * c, u2 = u * u;

        const double y4 = (5 - T + h * (9 + 4 * h)) / 24;
        const double y6 = (61 + T * (-58 + T) + h * (270 - 330 * T) +
                           h * h * (445 - 680 * T) +
                           h * h * h * (324 - 600 * T) +
                           h * h * h * h * (88 - 192 * T)) /
                          720;
        const double y8 = (1385 + T * (-3111 + T * (543 - T))) / 40320;
        const double x3 = (1 - T + h) / 6;
        const double x5 = (5 + T * (-18 + T) + h * (14 - 58 * T) +
                           h * h * (13 - 64 * T) + h * h * h * (4 - 24 * T)) /
                          120;
        const double x7 = (61 + T * (-479 + T * (179 - T))) / 5040;

        p[1] = m + kN * t * u2 * (0.5 + u2 * (y4 + u2 * (y6 + u2 * y8)));
        p[0] = kN * u * (1 + u2 * (x3 + u2 * (x5 + u2 * x7)));
    }
}

// Inverse on the ellipsoid from the footpoint latitude phi1, whose
// rectifying latitude is the meridian arc scaled by the quarter meridian.
// With D = x / (k0 N), the terms Pk x^k = (t N / R) D^k (...) / k! and
// Lk x^k = D^k (...) / (k! cos phi1), the seventh-order longitude term
// divided by 5020 where the forward series has 5040.
void tm_inverse_ellipsoid(const TransverseMercator &tm, const double *ellipsoid,
                          const double *params, int n, double *points) {
    const double a = ellipsoid[0], e2 = ellipsoid[1];
    const double lambda0 = params[kCentralMeridianSlot];
    const double k0 = params[kScaleFactorSlot];
    const double to_mu = kHalfPi / tm.q90;
    const SineSeries to_phi = mu_to_phi_series(e2);
    for (int i = 0; i < n; ++i) {
        double *p = points + 2 * i;
        const double x = p[0], y = p[1];
        const double mu = (y / k0 + tm.m0) * to_mu;
        const double phi1 = mu + sine_series(mu, to_phi);
        const double s = std::sin(phi1), c = std::cos(phi1);
        const double t = s / c, T = t * t;
        const double h = tm.ep2 * c * c;
        const double w2 = 1 - e2 * s * s;
        const double d = x * std::sqrt(w2) / (k0 * a);  // x / (k0 N)
        const double d2 = d * d;
        const double t_n_over_r = t * w2 / (1 - e2);

        const double p4 = (5 + 3 * T + h * (1 - 9 * T - 4 * h)) / 24;
        const double p6 =
            (61 + T * (90 + 45 * T) + h * (46 - T * (252 + 90 * T)) +
             h * h * (-3 + T * (-66 + 225 * T)) + h * h * h * (100 + 84 * T) +
             h * h * h * h * (88 - 192 * T)) /
            720;
        const double p8 = (1385 + T * (3633 + T * (4095 + 1575 * T))) / 40320;
        const double l3 = (1 + 2 * T + h) / 6;
        const double l5 = (5 + T * (28 + 24 * T) + h * (6 + 8 * T) +
                           h * h * (-3 + 4 * T) + h * h * h * (-4 + 24 * T)) /
                          120;
        const double l7 = (61 + T * (662 + T * (1320 + 720 * T))) / 5020;

        p[1] = phi1 - t_n_over_r * d2 * (0.5 - d2 * (p4 - d2 * (p6 - d2 * p8)));
        const double dl = d * (1 - d2 * (l3 - d2 * (l5 - d2 * l7))) / c;
        p[0] = fold_longitude(lambda0 + dl);
    }
}

void tm_forward_sphere(const TransverseMercator &tm, const double *params,
                       int n, double *points) {
    const double lambda0 = params[kCentralMeridianSlot];
    const double phi0 = params[kLatitudeOfOriginSlot];
    for (int i = 0; i < n; ++i) {
        double *p = points + 2 * i;
        const double dl = fold_longitude(p[0] - lambda0);
        const double phi = clamp_pole(p[1]);
        double b = std::cos(phi) * std::sin(dl);
        if (tol_eq(std::fabs(b), 1)) b = std::copysign(kClampedB, b);
        p[0] = tm.half_ak0 * std::log((1 + b) / (1 - b));
        p[1] = tm.ak0 * (std::atan2(std::tan(phi), std::cos(dl)) - phi0);
    }
}

void tm_inverse_sphere(const TransverseMercator &tm, const double *params,
                       int n, double *points) {
    const double lambda0 = params[kCentralMeridianSlot];
    const double phi0 = params[kLatitudeOfOriginSlot];
    for (int i = 0; i < n; ++i) {
        double *p = points + 2 * i;
        const double d = p[1] / tm.ak0 + phi0;
        const double e = std::exp(p[0] / tm.ak0);
        double r = 2 * std::sin(d) / (e + 1 / e);
        if (std::fabs(r) > 1) r = std::copysign(1.0, r);
        p[1] = std::asin(r);
        p[0] = fold_longitude(lambda0 + std::atan2(e - 1 / e, 2 * std::cos(d)));
    }
}

}  // namespace

int gauss_kruger_constants(PcsConstants *record, const double *ellipsoid,
                           const double *params) {
    const TransverseMercator tm = tm_setup(ellipsoid, params);
    if (tm.ellipsoidal) {
        double *k = pcsconstants_fill(record, kEllipsoidCount);
        if (k == nullptr) return 0;
        k[0] = tm.ep2;
        k[1] = tm.m0;
        k[2] = tm.q90;
        return kEllipsoidCount;
    }
    double *k = pcsconstants_fill(record, kSphereCount);
    if (k == nullptr) return 0;
    k[0] = tm.ak0;
    k[1] = tm.half_ak0;
    return kSphereCount;
}

int gauss_kruger_forward(const double *ellipsoid, const double *params, int n,
                         double *points, const int *header,
                         const double *constants) {
    const TransverseMercator tm =
        tm_values(ellipsoid, params, header, constants);
    if (tm.ellipsoidal)
        tm_forward_ellipsoid(tm, ellipsoid, params, n, points);
    else
        tm_forward_sphere(tm, params, n, points);
    return all_points(n);
}

int gauss_kruger_inverse(const double *ellipsoid, const double *params, int n,
                         double *points, const int *header,
                         const double *constants) {
    const TransverseMercator tm =
        tm_values(ellipsoid, params, header, constants);
    if (tm.ellipsoidal)
        tm_inverse_ellipsoid(tm, ellipsoid, params, n, points);
    else
        tm_inverse_sphere(tm, params, n, points);
    return all_points(n);
}

}  // namespace veltra
