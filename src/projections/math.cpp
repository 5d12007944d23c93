// Ellipsoid and auxiliary-latitude mathematics shared by the projection
// routines, the geodesic routines and the geocentric methods.  The series
// are truncated where the projection results are defined against them; no
// iteration refines them.
#include "projections/math.h"

#include "core/angles.h"
#include "core/tolerance.h"
#include "veltra.h"

#include <cmath>

namespace {

using veltra::kHalfPi;
using veltra::kPi;

// Third flattening n from e2.
double third_flattening(double e2) {
    double root = std::sqrt(1 - e2);
    return (1 - root) / (1 + root);
}

// Runs f on |x| and gives the result the sign of x.
template <class F>
double odd(double x, F f) {
    double r = f(std::fabs(x));
    return x < 0 ? -r : r;
}

// Reduced-latitude conversion: atan(tan(t) * ratio) on [0, pi/2] with the
// sign of sin(phi); the pole is returned as is.
double reduced(double phi, double ratio) {
    double s = std::sin(phi) >= 0 ? 1.0 : -1.0;
    double t = std::fabs(std::fmod(phi, kPi));
    if (t > kHalfPi) t = kPi - t;
    if (veltra::tol_eq(t, kHalfPi)) return s * t;
    return s * std::atan(std::tan(t) * ratio);
}

}  // namespace

namespace veltra {

// Brent's zero-in on the fixed bracket [0, pi/2].  The minimum step tol
// makes it terminate for any f; without a sign change it returns the last
// estimate.
double brent_root(const double *params, BrentFn f) {
    double a = 0, b = kHalfPi, c = 0;
    double fa = f(a, params), fb = f(b, params), fc = fa;
    const double tol = kTol * b;
    for (;;) {
        double e = b - a;
        if (std::fabs(fc) < std::fabs(fb)) {
            a = b;
            b = c;
            c = a;
            fa = fb;
            fb = fc;
            fc = fa;
        }
        double xm = (c - b) / 2;
        if (std::fabs(xm) <= tol || std::fabs(fb) <= kTol) return b;

        double d = xm;  // bisection unless interpolation is acceptable
        if (std::fabs(e) >= tol && std::fabs(fa) > std::fabs(fb)) {
            double p, q;
            double s = fb / fa;
            if (tol_eq(a, c)) {  // secant
                p = (c - b) * s;
                q = 1 - s;
            } else {  // inverse quadratic interpolation
                double qq = fa / fc;
                double r = fb / fc;
                p = s * ((c - b) * qq * (qq - r) - (b - a) * (r - 1));
                q = (qq - 1) * (r - 1) * (s - 1);
            }
            if (p > 0)
                q = -q;
            else
                p = -p;
            if (2 * p < 1.5 * (c - b) * q - std::fabs(tol * q) &&
                2 * p < std::fabs(e * q))
                d = p / q;
        }
        if (std::fabs(d) < tol) d = d < 0 ? -tol : tol;
        a = b;
        fa = fb;
        b += d;
        fb = f(b, params);
        if ((fb > 0 && fc > 0) || (fb < 0 && fc < 0)) {
            c = a;
            fc = fa;
        }
    }
}

SineSeries phi_to_chi_series(double e2) {
    double e4 = e2 * e2, e6 = e4 * e2, e8 = e6 * e2;
    return {-(e2 / 2 + 5 * e4 / 24 + 3 * e6 / 32 + 281 * e8 / 5760),
            5 * e4 / 48 + 7 * e6 / 80 + 697 * e8 / 11520,
            -(13 * e6 / 480 + 461 * e8 / 13440),
            1237 * e8 / 161280};
}

SineSeries chi_to_phi_series(double e2) {
    double e4 = e2 * e2, e6 = e4 * e2, e8 = e6 * e2;
    return {e2 / 2 + 5 * e4 / 24 + e6 / 12 + 13 * e8 / 360,
            7 * e4 / 48 + 29 * e6 / 240 + 811 * e8 / 11520,
            7 * e6 / 120 + 81 * e8 / 1120,
            4279 * e8 / 161280};
}

SineSeries mu_to_phi_series(double e2) {
    double e1 = third_flattening(e2);
    double e1_2 = e1 * e1, e1_3 = e1_2 * e1, e1_4 = e1_3 * e1;
    return {3 * e1 / 2 - 27 * e1_3 / 32,
            21 * e1_2 / 16 - 55 * e1_4 / 32,
            151 * e1_3 / 96,
            1097 * e1_4 / 512};
}

MeridianArc meridian_arc(double a, double e2) {
    double n = third_flattening(e2);
    double n2 = n * n, n3 = n2 * n, n4 = n3 * n;
    return {a / (1 + n),
            1 + n2 / 4 + n4 / 64,
            {-1.5 * (n - n3 / 8), 15.0 / 16 * (n2 - n4 / 4), -35.0 / 48 * n3,
             315.0 / 512 * n4}};
}

}  // namespace veltra

extern "C" {

KA_API double ka_delta(double lambda) {
    double r = std::fmod(lambda, 2 * kPi);
    if (std::fabs(r) <= kPi) return r;  // both ends of [-pi, pi] kept
    return r >= 0 ? r - 2 * kPi : r + 2 * kPi;
}

KA_API int ka_eq(double x, double y) { return veltra::tol_eq(x, y); }

KA_API double ka_w(double e2, double phi) {
    return veltra::radii(1, e2, std::sin(phi)).w;
}

KA_API double ka_m(double a, double e2, double phi) {
    return veltra::radii(a, e2, std::sin(phi)).m;
}

KA_API double ka_n(double a, double e2, double phi) {
    return veltra::radii(a, e2, std::sin(phi)).n;
}

// Conformal latitude by its series in e2 to e8.
KA_API double ka_phi_to_chi(double e2, double phi) {
    return phi + veltra::sine_series(phi, veltra::phi_to_chi_series(e2));
}

KA_API double ka_chi_to_phi(double e2, double chi) {
    return chi + veltra::sine_series(chi, veltra::chi_to_phi_series(e2));
}

// Authalic latitude by its series in e2 to e6, coefficients by Horner.
KA_API double ka_phi_to_beta(double e2, double phi) {
    double c2 = e2 * (1.0 / 3 + e2 * (31.0 / 180 + e2 * (59.0 / 560)));
    double c4 = e2 * e2 * (17.0 / 360 + e2 * (61.0 / 1260));
    double c6 = e2 * e2 * e2 * (383.0 / 45360);
    return odd(phi, [&](double p) {
        return p - c2 * std::sin(2 * p) + c4 * std::sin(4 * p) -
               c6 * std::sin(6 * p);
    });
}

KA_API double ka_beta_to_phi(double e2, double beta) {
    double c2 = e2 * (1.0 / 3 + e2 * (31.0 / 180 + e2 * (517.0 / 5040)));
    double c4 = e2 * e2 * (23.0 / 360 + e2 * (251.0 / 3780));
    double c6 = e2 * e2 * e2 * (761.0 / 45360);
    return odd(beta, [&](double p) {
        return p + c2 * std::sin(2 * p) + c4 * std::sin(4 * p) +
               c6 * std::sin(6 * p);
    });
}

// Rectifying latitude by its series in the third flattening to n^5.
KA_API double ka_phi_to_mu(double e2, double phi) {
    double n = third_flattening(e2);
    double n2 = n * n, n3 = n2 * n, n4 = n3 * n, n5 = n4 * n;
    double c2 = 3 * n / 2 - 9 * n3 / 16 + 3 * n5 / 32;
    double c4 = 15 * n2 / 16 - 15 * n4 / 32;
    double c6 = 35 * n3 / 48 - 105 * n5 / 256;
    double c8 = 315 * n4 / 512;
    return odd(phi, [&](double p) {
        return p - c2 * std::sin(2 * p) + c4 * std::sin(4 * p) -
               c6 * std::sin(6 * p) + c8 * std::sin(8 * p);
    });
}

KA_API double ka_mu_to_phi(double e2, double mu) {
    return mu + veltra::sine_series(mu, veltra::mu_to_phi_series(e2));
}

KA_API double ka_phi_to_eta(double e2, double phi) {
    return reduced(phi, std::sqrt(1 - e2));
}

KA_API double ka_eta_to_phi(double e2, double eta) {
    return reduced(eta, 1 / std::sqrt(1 - e2));
}

// Meridian arc by Helmert's series in the third flattening.
KA_API double ka_q(double a, double e2, double phi) {
    return veltra::meridian_arc_length(veltra::meridian_arc(a, e2), phi);
}

KA_API double ka_q90(double a, double e2) {
    double n = third_flattening(e2);
    double n2 = n * n;
    return a * kHalfPi * (1 + n2 / 4 + n2 * n2 / 64) / (1 + n);
}

// Radius of the sphere of equal area, as a series in ep2 to the fifth power.
KA_API double ka_auth_r(double a, double e2) {
    double x = e2 / (1 - e2);
    double series =
        1 + x * (-2.0 / 3 +
                 x * (26.0 / 45 +
                      x * (-100.0 / 189 +
                           x * (7034.0 / 14175 + x * (-220652.0 / 467775)))));
    return a / std::sqrt(1 - e2) * series;
}

KA_API void ka_curv_to_cart(double a, double e2, double phi, double lambda,
                            double h, double *x, double *y, double *z) {
    double cx, cy, cz;
    veltra::Geocentric(a, e2).to_cartesian(phi, lambda, h, cx, cy, cz);
    if (x != nullptr) *x = cx;
    if (y != nullptr) *y = cy;
    if (z != nullptr) *z = cz;
}

KA_API void ka_cart_to_curv(double a, double e2, double x, double y, double z,
                            double *phi, double *lambda, double *h) {
    double cphi, clambda, ch;
    veltra::Geocentric(a, e2).to_geodetic(x, y, z, cphi, clambda, ch);
    if (phi != nullptr) *phi = cphi;
    if (lambda != nullptr) *lambda = clambda;
    if (h != nullptr) *h = ch;
}

}  // extern "C"
