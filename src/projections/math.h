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
