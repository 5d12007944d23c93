// Internal helpers of the ellipsoid mathematics.
//
// The latitude series and the meridian arc are split into their
// coefficients (which depend only on the ellipsoid) and their evaluation, so
// that per-point loops compute the coefficients once per call and still get
// exactly the results of the exported functions, which use the same two
// steps.
#pragma once

#include "core/tolerance.h"

#include <cmath>

namespace veltra {

using BrentFn = double (*)(double x, const double *params);

// Root of f on [0, pi/2] by Brent's method (f called as f(x, params)).
double brent_root(const double *params, BrentFn f);

// Radii of curvature at a latitude given by its sine: W = sqrt(1 - e2
// sin^2 phi), the meridian radius M = a (1 - e2) / W^3 and the
// prime-vertical radius N = a / W.
struct Radii {
    double w, m, n;
};

inline Radii radii(double a, double e2, double sin_phi) {
    const double w = std::sqrt(1 - e2 * sin_phi * sin_phi);
    return {w, a * (1 - e2) / (w * w * w), a / w};
}

// Conversions between geodetic (phi, lambda, h) and geocentric Cartesian
// coordinates on one ellipsoid, with what depends only on the ellipsoid
// computed once.  Inline, so that per-point loops pay no call.
class Geocentric {
public:
    Geocentric(double a, double e2)
        : a_(a), e2_(e2), k_(std::sqrt(1 - e2)), b_(a * k_),
          ep2_(e2 / (1 - e2)) {}

    void to_cartesian(double phi, double lambda, double h, double &x,
                      double &y, double &z) const {
        const double sin_phi = std::sin(phi), cos_phi = std::cos(phi);
        const double n = a_ / std::sqrt(1 - e2_ * sin_phi * sin_phi);
        x = (n + h) * cos_phi * std::cos(lambda);
        y = (n + h) * cos_phi * std::sin(lambda);
        z = ((1 - e2_) * n + h) * sin_phi;
    }

    // Bowring's method carried through exactly two latitude evaluations.
    // The angles of the method, theta = atan2(a z, b p) and the reduced
    // latitude u = atan(tan(phi1) sqrt(1 - e2)) of the first evaluation
    // phi1 = atan2(n1, d1), are only used through their sines and cosines,
    // which are taken from the ratios directly.  The height is measured
    // from the ellipse point of reduced latitude u, negative inside it; on
    // the polar axis it is always taken as negative.
    void to_geodetic(double x, double y, double z, double &phi,
                     double &lambda, double &h) const {
        const double p2 = x * x + y * y;
        const double p = std::sqrt(p2);
        const bool on_axis = tol_eq(p, 0);

        // r = |(a z, b p)|, taken from p^2 so that both roots run at once.
        const double az = a_ * z;
        const double r = std::sqrt(az * az + b_ * b_ * p2);
        const double inv_r = r > 0 ? 1 / r : 0.0;
        const double sin_theta = az * inv_r;
        const double cos_theta = r > 0 ? b_ * p * inv_r : 1.0;

        const double n1 = z + ep2_ * b_ * cube(sin_theta);
        const double d1 = p - a_ * e2_ * cube(cos_theta);
        // tan u = sqrt(1 - e2) n1 / d1 with u in [-pi/2, pi/2].
        const double kn = d1 < 0 ? -k_ * n1 : k_ * n1;
        const double s = std::sqrt(kn * kn + d1 * d1);
        const double inv_s = s > 0 ? 1 / s : 0.0;
        const double sin_u = kn * inv_s;
        const double cos_u = s > 0 ? std::fabs(d1) * inv_s : 1.0;

        phi = angle(z + ep2_ * b_ * cube(sin_u), p - a_ * e2_ * cube(cos_u));
        lambda = on_axis ? 0.0 : std::atan2(y, x);
        const double dz = z - b_ * sin_u, dp = p - a_ * cos_u;
        const double height = std::sqrt(dz * dz + dp * dp);
        h = dp < 0 || on_axis ? -height : height;
    }

private:
    static double cube(double v) { return v * v * v; }

    // atan2(num, den), by the cheaper arc tangent of the ratio in the
    // right half-plane, where the two agree.
    static double angle(double num, double den) {
        return den > 0 ? std::atan(num / den) : std::atan2(num, den);
    }

    double a_, e2_;
    double k_;    // sqrt(1 - e2) = b / a
    double b_;    // semi-minor axis
    double ep2_;  // second eccentricity squared
};

// Coefficients of c2 sin 2x + c4 sin 4x + c6 sin 6x + c8 sin 8x.
struct SineSeries {
    double c2, c4, c6, c8;
};

// The sum from one sine and one cosine of 2x: with s = sin 2x and
// c = cos 2x it is s (((8 c8 c + 4 c6) c + (2 c4 - 4 c8)) c + (c2 - c6)).
inline double sine_series(double x, const SineSeries &k) {
    const double s = std::sin(2 * x);
    const double c = std::cos(2 * x);
    return s * (((8 * k.c8 * c + 4 * k.c6) * c + (2 * k.c4 - 4 * k.c8)) * c +
                (k.c2 - k.c6));
}

// Series from geodetic to conformal latitude (to e^8), from conformal back
// to geodetic, and from rectifying to geodetic latitude (to n^4).
SineSeries phi_to_chi_series(double e2);
SineSeries chi_to_phi_series(double e2);
SineSeries mu_to_phi_series(double e2);

// Helmert's meridian arc: scale (a / (1 + n)) times c0 phi plus the series.
struct MeridianArc {
    double scale;
    double c0;
    SineSeries series;
};

MeridianArc meridian_arc(double a, double e2);

inline double meridian_arc_length(const MeridianArc &arc, double phi) {
    return arc.scale * (arc.c0 * phi + sine_series(phi, arc.series));
}

}  // namespace veltra
