// Inverse geodesic problem: the shortest distance between two points and
// the azimuths at its ends.  On a spheroid, C. F. F. Karney, "Algorithms for
// geodesics", J. Geodesy 87 (2013) 43-55: the geodesic is followed on the
// auxiliary sphere with its distance and longitude integrals expanded in
// the third flattening n and in eps (order 6), and the azimuth at the first
// point is found by Newton's method on the longitude reached, started from
// a spherical estimate, or from the astroid for nearly antipodal points, and
// kept inside a bracket.  On a sphere, closed great-circle formulas.
#include "core/angles.h"
#include "transforms/geodesic_trig.h"
#include "veltra.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using veltra::exact_cos;
using veltra::exact_sin;

using veltra::kHalfPi;
using veltra::kPi;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// Below this eccentricity squared the spheroid is treated as a sphere.
constexpr double kSphereE2 = 0x1p-48;

// Newton's method stops once both its step in alpha1 and the residual in
// lambda12 are below this (the residual too, because near the cusp of the
// antipodal region lambda12 is far from linear).  The last step is still
// applied, so the azimuth error is of the order of its square, and the
// distance is corrected to first order in it.
constexpr double kStepTol = 0x1p-30;
// Newton and bisection rounds together: bisection alone narrows the
// bracket [0, pi] to a double's resolution well within this.
constexpr int kMaxRounds = 100;
// Radius, in the astroid's own scale, of the nearly antipodal region where
// the astroid estimate replaces the spherical one.
constexpr double kAstroidRadius = 4;
// Arc on the auxiliary sphere below which the mean-radius spherical
// estimate of alpha1 is already better than its longitude-corrected one.
constexpr double kShortArc = 0.1;

double sq(double x) { return x * x; }

// Azimuth in (-pi, pi] from its sine and cosine, with -0 written as 0.
double azimuth_of(double s, double c) {
    double az = std::atan2(s, c);
    return az == -kPi ? kPi : az + 0.0;
}

// ---------------------------------------------------------------------------
// Series of the geodesic integrals on the auxiliary sphere.  With
// k2 = ep2 cos^2 alpha0 and eps = (sqrt(1 + k2) - 1) / (sqrt(1 + k2) + 1):
//   I1(sigma) = A1 (sigma + sum C1l sin 2l sigma)   distance / b
//   I2(sigma) = A2 (sigma + sum C2l sin 2l sigma)   (reduced length)
//   I3(sigma) = A3 (sigma + sum C3l sin 2l sigma)   longitude correction
// ---------------------------------------------------------------------------

constexpr int kOrder = 6;   // I1 and I2, in eps
constexpr int kOrder3 = 5;  // I3, in eps and n (it is multiplied by f)

// Sum of c[l-1] sin(2 l sigma) for l = 1..N by Clenshaw's recurrence, from
// the sine and cosine of sigma.
template <int N>
double sine_sum(const double (&c)[N], double ssig, double csig) {
    double twice_cos2 = 2 * (csig - ssig) * (csig + ssig);
    double b1 = 0, b2 = 0;
    for (int l = N - 1; l >= 0; --l) {
        double b0 = c[l] + twice_cos2 * b1 - b2;
        b2 = b1;
        b1 = b0;
    }
    return 2 * ssig * csig * b1;
}

double a1_of(double eps) {
    double e2 = eps * eps;
    return (1 + e2 * (1.0 / 4 + e2 * (1.0 / 64 + e2 / 256))) / (1 - eps);
}

void c1_of(double eps, double (&c)[kOrder]) {
    double e2 = eps * eps, d = eps;
    c[0] = d * (-1.0 / 2 + e2 * (3.0 / 16 - e2 / 32));
    d *= eps;
    c[1] = d * (-1.0 / 16 + e2 * (1.0 / 32 - e2 * 9 / 2048));
    d *= eps;
    c[2] = d * (-1.0 / 48 + e2 * 3 / 256);
    d *= eps;
    c[3] = d * (-5.0 / 512 + e2 * 3 / 512);
    d *= eps;
    c[4] = d * (-7.0 / 1280);
    d *= eps;
    c[5] = d * (-7.0 / 2048);
}

double a2_of(double eps) {
    double e2 = eps * eps;
    return (1 + e2 * (1.0 / 4 + e2 * (9.0 / 64 + e2 * 25 / 256))) * (1 - eps);
}

void c2_of(double eps, double (&c)[kOrder]) {
    double e2 = eps * eps, d = eps;
    c[0] = d * (1.0 / 2 + e2 * (1.0 / 16 + e2 / 32));
    d *= eps;
    c[1] = d * (3.0 / 16 + e2 * (1.0 / 32 + e2 * 35 / 2048));
    d *= eps;
    c[2] = d * (5.0 / 48 + e2 * 5 / 256);
    d *= eps;
    c[3] = d * (35.0 / 512 + e2 * 7 / 512);
    d *= eps;
    c[4] = d * (63.0 / 1280);
    d *= eps;
    c[5] = d * (77.0 / 2048);
}

// Polynomial sum of p[j] x^j, j = 0..N-1, by Horner's rule.
template <int N>
double horner(const double (&p)[N], double x) {
    double y = p[N - 1];
    for (int j = N - 2; j >= 0; --j) y = y * x + p[j];
    return y;
}

// The spheroid and the coefficients of I3 that depend on it only: each
// coefficient of A3 and C3l is a polynomial in n, evaluated once per call.
struct Spheroid {
    double a, f, b, e2, ep2, n;
    double a3[kOrder3 + 1];                 // A3 = sum a3[j] eps^j
    double c3[kOrder3][kOrder3 + 1] = {};   // C3l = sum c3[l-1][j] eps^j

    Spheroid(double a_, double e2_) : a(a_), e2(e2_) {
        double root = std::sqrt(1 - e2);
        f = 1 - root;
        b = a * root;
        ep2 = e2 / (1 - e2);
        n = f / (2 - f);
        double n2 = n * n;
        a3[0] = 1;
        a3[1] = (n - 1) / 2;
        a3[2] = (3 * n2 - n - 2) / 8;
        a3[3] = -(n2 + 3 * n + 1) / 16;
        a3[4] = -(2 * n + 3) / 64;
        a3[5] = -3.0 / 128;
        c3[0][1] = (1 - n) / 4;
        c3[0][2] = (1 - n2) / 8;
        c3[0][3] = (3 + 3 * n - n2) / 64;
        c3[0][4] = (5 + 2 * n) / 128;
        c3[0][5] = 3.0 / 128;
        c3[1][2] = (2 - 3 * n + n2) / 32;
        c3[1][3] = (3 - 2 * n - 3 * n2) / 64;
        c3[1][4] = (3 + n) / 128;
        c3[1][5] = 5.0 / 256;
        c3[2][3] = (5 - 9 * n + 5 * n2) / 192;
        c3[2][4] = (9 - 10 * n) / 384;
        c3[2][5] = 7.0 / 512;
        c3[3][4] = (7 - 14 * n) / 512;
        c3[3][5] = 7.0 / 512;
        c3[4][5] = 21.0 / 2560;
    }

    double a3_of(double eps) const { return horner(a3, eps); }
    void c3_of(double eps, double (&c)[kOrder3]) const {
        for (int l = 0; l < kOrder3; ++l) c[l] = horner(c3[l], eps);
    }
    // eps of a geodesic from cos^2 alpha0.
    double eps_of(double calp0_sq) const {
        double k2 = ep2 * calp0_sq;
        return k2 / (2 * (1 + std::sqrt(1 + k2)) + k2);
    }
};

// Sine and cosine of the reduced latitude of a geodetic latitude.
struct Reduced {
    double s, c;
};
Reduced reduced_latitude(double f, double sin_phi, double cos_phi) {
    double s = (1 - f) * sin_phi;
    double h = std::hypot(s, cos_phi);
    return {s / h, cos_phi / h};
}

// Two points in the canonical arrangement: beta1 <= 0, |beta2| <= |beta1|,
// and the longitude difference lam12 in [0, pi] (point 2 east of point 1).
struct Problem {
    bool pole1;  // point 1 at a pole: every geodesic from it is a meridian
    double sbet1, cbet1, sbet2, cbet2;
    double lam12, slam12, clam12;
};

// The geodesic leaving point 1 with azimuth alpha1, followed to where it
// first reaches the latitude of point 2 heading north.
struct Arc {
    double residual;  // longitude difference reached, less that of point 2
    double dlam12;    // d lambda12 / d alpha1
    double salp2, calp2;
    double ssig1, csig1, ssig2, csig2, sig12;
    double eps;
    double s12;  // distance, b (I1(sigma2) - I1(sigma1))
    double m12;  // reduced length
};

// Distance and reduced length of the arc: with J = I1 - I2 and
// dn = sqrt(1 + k2 sin^2 sigma),
//   m12 = b (dn2 cos s1 sin s2 - dn1 sin s1 cos s2 - cos s1 cos s2 (J(s2) - J(s1))).
void lengths(const Spheroid &sp, Arc &arc) {
    double c1[kOrder], c2[kOrder];
    c1_of(arc.eps, c1);
    c2_of(arc.eps, c2);
    double a1 = a1_of(arc.eps), a2 = a2_of(arc.eps);
    double i1_12 = arc.sig12 + sine_sum(c1, arc.ssig2, arc.csig2) -
                   sine_sum(c1, arc.ssig1, arc.csig1);
    double i2_12 = arc.sig12 + sine_sum(c2, arc.ssig2, arc.csig2) -
                   sine_sum(c2, arc.ssig1, arc.csig1);
    double j12 = a1 * i1_12 - a2 * i2_12;
    double k2 = 4 * arc.eps / sq(1 - arc.eps);
    double dn1 = std::sqrt(1 + k2 * sq(arc.ssig1));
    double dn2 = std::sqrt(1 + k2 * sq(arc.ssig2));
    arc.s12 = sp.b * a1 * i1_12;
    arc.m12 = sp.b * (dn2 * arc.csig1 * arc.ssig2 - dn1 * arc.ssig1 * arc.csig2 -
                      arc.csig1 * arc.csig2 * j12);
}

struct Heading {
    double s, c;
};

// Azimuth where the geodesic from point 1 with azimuth alpha1 (sine salp0
// at the equator) first reaches the latitude of point 2, heading north:
// Clairaut's relation, with the difference of the squared cosines taken in
// its better-conditioned form.
Heading arrival(const Problem &p, double salp1, double calp1, double salp0) {
    Heading alp2;
    alp2.s = p.cbet2 != p.cbet1 ? salp0 / p.cbet2 : salp1;
    if (p.cbet2 != p.cbet1 || std::fabs(p.sbet2) != -p.sbet1) {
        double dcos2 = p.cbet1 < -p.sbet1 ? (p.cbet2 - p.cbet1) * (p.cbet1 + p.cbet2)
                                          : (p.sbet1 - p.sbet2) * (p.sbet1 + p.sbet2);
        alp2.c = std::sqrt(sq(calp1 * p.cbet1) + dcos2) / p.cbet2;
    } else {
        alp2.c = std::fabs(calp1);  // beta2 = -beta1: symmetric about the equator
    }
    return alp2;
}

// Follows the geodesic from point 1 with azimuth (salp1, calp1), salp1 >= 0.
Arc follow(const Spheroid &sp, const Problem &p, double salp1, double calp1) {
    Arc arc;
    // Clairaut: the azimuth alpha0 where the geodesic crosses the equator.
    double salp0 = salp1 * p.cbet1;
    double calp0 = std::hypot(calp1, salp1 * p.sbet1);

    // Arc sigma and spherical longitude omega from the equator crossing.
    arc.ssig1 = p.sbet1;
    double somg1 = salp0 * p.sbet1;
    arc.csig1 = calp1 * p.cbet1;
    double comg1 = arc.csig1;
    double h1 = std::hypot(arc.ssig1, arc.csig1);
    arc.ssig1 /= h1;
    arc.csig1 /= h1;

    Heading alp2 = arrival(p, salp1, calp1, salp0);
    arc.salp2 = alp2.s;
    arc.calp2 = alp2.c;

    arc.ssig2 = p.sbet2;
    double somg2 = salp0 * p.sbet2;
    arc.csig2 = arc.calp2 * p.cbet2;
    double comg2 = arc.csig2;
    double h2 = std::hypot(arc.ssig2, arc.csig2);
    arc.ssig2 /= h2;
    arc.csig2 /= h2;

    // sigma12 and omega12 lie in [0, pi]: clamp the rounding of their sines.
    arc.sig12 = std::atan2(std::max(0.0, arc.csig1 * arc.ssig2 - arc.ssig1 * arc.csig2),
                           arc.csig1 * arc.csig2 + arc.ssig1 * arc.ssig2);
    // omega12 less the longitude difference of point 2, as one small angle
    // (its sine and cosine by the difference formulas) so that the residual
    // keeps its relative precision as it vanishes.
    double somg12 = std::max(0.0, comg1 * somg2 - somg1 * comg2);
    double comg12 = comg1 * comg2 + somg1 * somg2;
    double domg = std::atan2(somg12 * p.clam12 - comg12 * p.slam12,
                             comg12 * p.clam12 + somg12 * p.slam12);

    // lambda12 = omega12 - f sin(alpha0) (I3(sigma2) - I3(sigma1)).
    arc.eps = sp.eps_of(sq(calp0));
    double c3[kOrder3];
    sp.c3_of(arc.eps, c3);
    double i3_12 = arc.sig12 + sine_sum(c3, arc.ssig2, arc.csig2) -
                   sine_sum(c3, arc.ssig1, arc.csig1);
    arc.residual = domg - sp.f * salp0 * sp.a3_of(arc.eps) * i3_12;

    // d lambda12 / d alpha1 = m12 / (a cos alpha2 cos beta2).  cos alpha2
    // is never exactly 0 here (cos alpha1 comes from std::cos); were it so,
    // the infinite or NaN Newton step would give way to bisection.
    lengths(sp, arc);
    arc.dlam12 = arc.m12 / (sp.a * arc.calp2 * p.cbet2);
    return arc;
}

// Positive root mu of x^2 / (1 + mu)^2 + y^2 / mu^2 = 1 (the astroid), by
// Newton's method from the lower bound max(|y|, |x| - 1): the left side is
// convex and decreasing in mu, so the iterates rise monotonically to it.
double astroid_root(double x, double y) {
    double x2 = x * x, y2 = y * y;
    double mu = std::max(std::fabs(y), std::fabs(x) - 1);
    for (int round = 0; round < 50; ++round) {
        double p = 1 + mu;
        double g = x2 / (p * p) + y2 / (mu * mu) - 1;
        double dg = -2 * (x2 / (p * p * p) + y2 / (mu * mu * mu));
        double step = -g / dg;
        if (!(step > 0)) break;
        mu += step;
        if (step <= mu * 0x1p-20) break;
    }
    return mu;
}

// Starting estimate of alpha1 in [0, pi].
double initial_azimuth(const Spheroid &sp, const Problem &p) {
    // Nearly antipodal points, measured in units of the scale
    // f pi cos(beta1) of the region where geodesics from point 1 converge.
    double lam_scale = sp.f * kPi * p.cbet1 * sp.a3_of(sp.eps_of(1 - sq(p.cbet1)));
    double sbet12a = p.sbet1 * p.cbet2 + p.cbet1 * p.sbet2;  // sin(beta1 + beta2)
    double cbet12a = p.cbet1 * p.cbet2 - p.sbet1 * p.sbet2;
    double x = (p.lam12 - kPi) / lam_scale;
    double y = std::atan2(sbet12a, cbet12a) / (lam_scale * p.cbet1);
    if (x * x + y * y < sq(kAstroidRadius)) {
        // sin alpha1 = -x / (1 + mu), cos alpha1 = y / mu.
        if (y == 0) {
            if (x >= -1) return std::atan2(-x, -std::sqrt(1 - x * x));
            return kPi / 2;
        }
        double mu = astroid_root(x, y);
        return std::atan2(-x / (1 + mu), y / mu);
    }

    // Otherwise the great circle on the auxiliary sphere, with the
    // longitude scaled by the mean of sqrt(1 - e2 cos^2 beta) so that short
    // lines start close to the answer; then once more with the longitude
    // on the sphere corrected by the leading term f sin(alpha0) A3 sigma12
    // of the longitude integral for that great circle.
    double w = std::sqrt(1 - sp.e2 * sq((p.cbet1 + p.cbet2) / 2));
    double omg12 = std::min(p.lam12 / w, kPi);
    double east = p.cbet2 * std::sin(omg12);
    double north = p.cbet1 * p.sbet2 - p.sbet1 * p.cbet2 * std::cos(omg12);
    double sig12 = std::atan2(std::hypot(east, north),
                              p.sbet1 * p.sbet2 + p.cbet1 * p.cbet2 * std::cos(omg12));
    if (sig12 < kShortArc) return std::clamp(std::atan2(east, north), 0.0, kPi);
    double salp0 = east / std::hypot(east, north) * p.cbet1;
    omg12 = p.lam12 + sp.f * salp0 * sp.a3_of(sp.eps_of(1 - sq(salp0))) * sig12;
    omg12 = std::min(omg12, kPi);
    east = p.cbet2 * std::sin(omg12);
    north = p.cbet1 * p.sbet2 - p.sbet1 * p.cbet2 * std::cos(omg12);
    return std::clamp(std::atan2(east, north), 0.0, kPi);
}

struct Solution {
    double s12;
    double salp1, calp1, salp2, calp2;  // forward azimuths at both ends
};

// The geodesic in the canonical arrangement.
Solution solve(const Spheroid &sp, const Problem &p) {
    // Along a meridian (or from a pole, where every geodesic is one): the
    // meridian is the shortest path unless it passes a conjugate point,
    // which shows as a negative reduced length.
    if (p.slam12 == 0 || p.pole1) {
        Arc arc = follow(sp, p, p.slam12, p.clam12);
        if (p.pole1 || arc.sig12 < 1 || arc.m12 >= 0) {
            // d lambda / d alpha1 is not needed: the azimuths are exact.
            return {arc.s12, p.slam12, p.clam12, 0, 1};
        }
    }

    // Along the equator, as long as it stays shorter than the geodesics
    // that leave it (longitude difference up to (1 - f) pi).
    if (p.sbet1 == 0 && p.lam12 <= (1 - sp.f) * kPi)
        return {sp.a * p.lam12, 1, 0, 1, 0};

    // Newton's method on alpha1 for lambda12(alpha1) = lam12, which is
    // increasing on [0, pi]; each residual narrows the bracket [lo, hi],
    // and a step leaving it is replaced by bisection.
    double alpha1 = initial_azimuth(sp, p);
    double lo = 0, hi = kPi;
    Arc arc{};
    double residual = 0;
    bool converged = false;
    for (int round = 0; round < kMaxRounds && !converged; ++round) {
        arc = follow(sp, p, std::sin(alpha1), std::cos(alpha1));
        residual = arc.residual;
        if (residual > 0)
            hi = std::min(hi, alpha1);
        else
            lo = std::max(lo, alpha1);
        double step = -residual / arc.dlam12;
        double next = alpha1 + step;
        converged = residual == 0 || (std::fabs(step) <= kStepTol &&
                                      std::fabs(residual) <= kStepTol &&
                                      next >= lo && next <= hi);
        if (!converged && !(next > lo && next < hi)) {
            next = (lo + hi) / 2;
            // A bracket at the resolution of a double ends the search.
            if (!(next > lo && next < hi)) break;
        }
        alpha1 = next;
    }
    // The last geodesic followed left point 1 at the previous alpha1 and
    // ended residual east of point 2.  The final Newton step is kept: the
    // arrival azimuth is exact for it by Clairaut's relation, and the
    // distance is carried back along the parallel to first order.
    double salp1 = std::sin(alpha1), calp1 = std::cos(alpha1);
    Heading alp2 = arrival(p, salp1, calp1, salp1 * p.cbet1);
    double s12 = arc.s12 - sp.a * p.cbet2 * arc.salp2 * residual;
    return {s12, salp1, calp1, alp2.s, alp2.c};
}

// Great-circle distance and azimuths on a sphere of radius a.
void sphere_inverse(double a, double lat1, double lat2, double dlon,
                    double *distance, double *az12, double *az21) {
    double s1 = std::sin(lat1), c1 = std::cos(lat1);
    double s2 = std::sin(lat2), c2 = std::cos(lat2);
    double sl = exact_sin(dlon), cl = exact_cos(dlon);
    double east1 = c2 * sl, north1 = c1 * s2 - s1 * c2 * cl;
    double east2 = -c1 * sl, north2 = c2 * s1 - s2 * c1 * cl;
    double sigma = std::atan2(std::hypot(east1, north1), s1 * s2 + c1 * c2 * cl);
    double s12 = a * sigma;
    double fwd = azimuth_of(east1, north1), back = azimuth_of(east2, north2);
    if (sigma == 0) {
        fwd = 0;
        back = kPi;
    } else if (east1 == 0 && north1 == 0) {
        // Antipodes: the meridian over the pole on the first point's side.
        fwd = back = lat1 < 0 ? kPi : 0;
    }
    if (distance != nullptr) *distance = s12;
    if (az12 != nullptr) *az12 = fwd;
    if (az21 != nullptr) *az21 = back;
}

void write_nan(double *distance, double *az12, double *az21) {
    if (distance != nullptr) *distance = kNaN;
    if (az12 != nullptr) *az12 = kNaN;
    if (az21 != nullptr) *az21 = kNaN;
}

}  // namespace

extern "C" {

KA_API void ka_geodesic_distance(double a, double e2, double lon1,
                                 double lat1, double lon2, double lat2,
                                 double *distance, double *az12,
                                 double *az21) {
    if (!(std::fabs(lat1) <= kHalfPi && std::fabs(lat2) <= kHalfPi) ||
        !std::isfinite(lon1) || !std::isfinite(lon2) || !std::isfinite(a) ||
        !(e2 < 1)) {
        write_nan(distance, az12, az21);
        return;
    }
    double lon12 = std::remainder(lon2 - lon1, 2 * kPi);
    if (e2 < kSphereE2) {
        sphere_inverse(a, lat1, lat2, lon12, distance, az12, az21);
        return;
    }

    // Canonical arrangement: the point farther from the equator first, in
    // the southern hemisphere, the other to its east.  Undone below by
    // exchanging the ends, reflecting in the equator (alpha -> pi - alpha)
    // and reflecting in the meridian (alpha -> -alpha).
    bool swap = std::fabs(lat1) < std::fabs(lat2);
    if (swap) {
        std::swap(lat1, lat2);
        lon12 = -lon12;
    }
    bool lat_flip = lat1 >= 0;
    if (lat_flip) {
        lat1 = -lat1;
        lat2 = -lat2;
    }
    bool lon_flip = std::signbit(lon12);
    lon12 = std::fabs(lon12);

    Spheroid sp(a, e2);
    Problem p;
    p.pole1 = std::fabs(lat1) == kHalfPi;
    Reduced b1 = reduced_latitude(sp.f, std::sin(lat1), std::cos(lat1));
    Reduced b2 = reduced_latitude(sp.f, std::sin(lat2), std::cos(lat2));
    p.sbet1 = b1.s;
    p.cbet1 = b1.c;
    p.sbet2 = b2.s;
    p.cbet2 = b2.c;
    p.lam12 = lon12;
    p.slam12 = exact_sin(lon12);
    p.clam12 = exact_cos(lon12);

    Solution sol = solve(sp, p);

    double s1 = sol.salp1, c1 = sol.calp1, s2 = sol.salp2, c2 = sol.calp2;
    if (lon_flip) {
        s1 = -s1;
        s2 = -s2;
    }
    if (lat_flip) {
        c1 = -c1;
        c2 = -c2;
    }
    // Forward azimuth at point 1, and at point 2 reversed (back azimuth).
    double fwd = azimuth_of(s1, c1), back = azimuth_of(-s2, -c2);
    if (swap) {
        fwd = azimuth_of(-s2, -c2);
        back = azimuth_of(s1, c1);
    }
    if (sol.s12 == 0) {
        fwd = 0;
        back = kPi;
    }
    if (distance != nullptr) *distance = sol.s12;
    if (az12 != nullptr) *az12 = fwd;
    if (az21 != nullptr) *az21 = back;
}

}  // extern "C"
