// Internal helpers of the ellipsoid mathematics.
//
// The latitude series and the meridian arc are split into their
// coefficients (which depend only on the ellipsoid) and their evaluation, so
// that per-point loops compute the coefficients once per call and still get
// exactly the results of the exported functions, which use the same two
// steps.
#pragma once

#include <cmath>

namespace veltra {

using BrentFn = double (*)(double x, const double *params);

// Root of f on [0, pi/2] by Brent's method (f called as f(x, params)).
double brent_root(const double *params, BrentFn f);

// Coefficients of c2 sin 2x + c4 sin 4x + c6 sin 6x + c8 sin 8x.
struct SineSeries {
    double c2, c4, c6, c8;
};

// The sum from one sine and one cosine of 2x: with s = sin 2x and
// c = cos 2x it is s (((8 c8 c + 4 c6) c + (2 c4 - 4 c8)) c + (c2 - c6)).
inline double sine_series_2x(double s, double c, const SineSeries &k) {
    return s * (((8 * k.c8 * c + 4 * k.c6) * c + (2 * k.c4 - 4 * k.c8)) * c +
                (k.c2 - k.c6));
}

inline double sine_series(double x, const SineSeries &k) {
    return sine_series_2x(std::sin(2 * x), std::cos(2 * x), k);
}

// Sine and cosine of 2x from those of x, for loops that already have them.
struct SinCos {
    double s, c;
};

inline SinCos double_angle(SinCos x) {
    return {2 * x.s * x.c, (x.c - x.s) * (x.c + x.s)};
}

// Sine and cosine of x + d from those of x, where d is the small
// correction of a latitude series: Taylor terms of sin d to d^5 and of
// cos d to d^6 (errors below 2e-18 and 3e-21 for |d| < 0.01; the
// corrections of terrestrial ellipsoids stay below 0.004), the library
// functions beyond.  The
// factorials are applied as reciprocal products: a division costs as much
// as the whole polynomial.
inline SinCos add_small_angle(SinCos x, double d) {
    constexpr double kTaylorLimit = 0.01;
    double sd, cd;
    if (std::fabs(d) < kTaylorLimit) {
        const double d2 = d * d;
        sd = d * (1 - d2 * (1.0 / 6) * (1 - d2 * (1.0 / 20)));
        cd = 1 - d2 * 0.5 * (1 - d2 * (1.0 / 12) * (1 - d2 * (1.0 / 30)));
    } else {
        sd = std::sin(d);
        cd = std::cos(d);
    }
    return {x.s * cd + x.c * sd, x.c * cd - x.s * sd};
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

// The same given sin 2phi and cos 2phi.
inline double meridian_arc_length(const MeridianArc &arc, double phi,
                                  SinCos twice_phi) {
    return arc.scale * (arc.c0 * phi + sine_series_2x(twice_phi.s, twice_phi.c,
                                                      arc.series));
}

}  // namespace veltra
