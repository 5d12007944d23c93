// Ellipsoid and auxiliary-latitude helpers against closed forms, hand
// derivations and GeographicLib's exact auxiliary latitudes.
#include "projections/math.h"
#include "veltra.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#if VELTRA_HAVE_GEOGRAPHICLIB
#include <GeographicLib/Ellipsoid.hpp>
#include <GeographicLib/Geocentric.hpp>
#endif

namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kDeg = kPi / 180;
constexpr double kA = 6378137.0;
constexpr double kF = 1 / 298.257223563;
constexpr double kE2 = (2 - kF) * kF;
constexpr double kGrs80F = 1 / 298.257222101;
constexpr double kGrs80E2 = (2 - kGrs80F) * kGrs80F;

TEST(Delta, FoldsIntoTheClosedPrincipalRange) {
    EXPECT_EQ(ka_delta(kPi), kPi);
    EXPECT_EQ(ka_delta(-kPi), -kPi);
    EXPECT_EQ(ka_delta(3 * kPi), std::fmod(3 * kPi, 2 * kPi));  // pi kept
    EXPECT_NEAR(ka_delta(3 * kPi), kPi, 1e-15);
    EXPECT_NEAR(ka_delta(1.5 * kPi), -0.5 * kPi, 1e-15);
    EXPECT_NEAR(ka_delta(-1.5 * kPi), 0.5 * kPi, 1e-15);
    EXPECT_NEAR(ka_delta(190 * kDeg), -170 * kDeg, 1e-15);
    EXPECT_EQ(ka_delta(0.25), 0.25);
    EXPECT_TRUE(std::isnan(ka_delta(NAN)));
}

TEST(Eq, IsAbsoluteNearZeroAndRelativeForLargeValues) {
    EXPECT_TRUE(ka_eq(0, 3e-15));
    EXPECT_FALSE(ka_eq(0, 4e-15));
    EXPECT_TRUE(ka_eq(1e6, 1e6 + 1e-9));
    EXPECT_FALSE(ka_eq(1e6, 1e6 + 1e-8));
    EXPECT_TRUE(ka_eq(kPi / 2, 1.570796326794891));  // the pole clamp
    EXPECT_FALSE(ka_eq(NAN, NAN));
}

TEST(Radii, MatchTheirValuesAtTheEquatorAndThePole) {
    EXPECT_DOUBLE_EQ(ka_n(kA, kE2, 0), kA);
    EXPECT_DOUBLE_EQ(ka_m(kA, kE2, 0), kA * (1 - kE2));
    const double polar = kA / std::sqrt(1 - kE2);  // c = a^2 / b
    EXPECT_DOUBLE_EQ(ka_n(kA, kE2, kPi / 2), polar);
    EXPECT_DOUBLE_EQ(ka_m(kA, kE2, kPi / 2), polar);
    EXPECT_DOUBLE_EQ(ka_w(kE2, kPi / 6), std::sqrt(1 - kE2 / 4));
}

TEST(Sphere, EveryLatitudeConversionIsTheIdentity) {
    for (double phi : {-1.5, -0.7, 0.0, 0.3, 1.2, kPi / 2}) {
        EXPECT_NEAR(ka_phi_to_chi(0, phi), phi, 1e-16);
        EXPECT_NEAR(ka_chi_to_phi(0, phi), phi, 1e-16);
        EXPECT_NEAR(ka_phi_to_beta(0, phi), phi, 1e-16);
        EXPECT_NEAR(ka_beta_to_phi(0, phi), phi, 1e-16);
        EXPECT_NEAR(ka_phi_to_mu(0, phi), phi, 1e-16);
        EXPECT_NEAR(ka_mu_to_phi(0, phi), phi, 1e-16);
        EXPECT_NEAR(ka_phi_to_eta(0, phi), phi, 1e-15);
        EXPECT_NEAR(ka_eta_to_phi(0, phi), phi, 1e-15);
        EXPECT_NEAR(ka_q(6371000, 0, phi), 6371000 * phi, 1e-8);
    }
    EXPECT_DOUBLE_EQ(ka_q90(6371000, 0), 6371000 * kPi / 2);
    EXPECT_DOUBLE_EQ(ka_auth_r(6371000, 0), 6371000);
}

// The conformal latitude in closed form, 2 atan(tan(pi/4 + phi/2)
// ((1 - e sin)/(1 + e sin))^(e/2)) - pi/2: the e^8 series is within its
// truncation (about 1.3e-12 rad on WGS 84).
TEST(Conformal, SeriesMatchesTheClosedFormToItsTruncation) {
    const double e = std::sqrt(kE2);
    for (double deg = -89.5; deg <= 89.5; deg += 0.5) {
        const double phi = deg * kDeg, s = std::sin(phi);
        const double chi =
            2 * std::atan(std::tan(kPi / 4 + phi / 2) *
                          std::pow((1 - e * s) / (1 + e * s), e / 2)) -
            kPi / 2;
        EXPECT_NEAR(ka_phi_to_chi(kE2, phi), chi, 3e-12) << deg;
        EXPECT_NEAR(ka_chi_to_phi(kE2, chi), phi, 3e-12) << deg;
    }
}

// The authalic latitude asin(q(phi) / q(pi/2)): the e^6 series is within
// its truncation (about 2e-10 rad).
TEST(Authalic, SeriesMatchesTheClosedFormToItsTruncation) {
    const double e = std::sqrt(kE2);
    auto q = [&](double phi) {
        const double s = std::sin(phi);
        return (1 - kE2) * (s / (1 - kE2 * s * s) -
                            std::log((1 - e * s) / (1 + e * s)) / (2 * e));
    };
    // (At the poles asin of a ratio near 1 loses half the digits.)
    for (double deg = -89.5; deg <= 89.5; deg += 0.5) {
        const double phi = deg * kDeg;
        const double beta = std::asin(q(phi) / q(kPi / 2));
        EXPECT_NEAR(ka_phi_to_beta(kE2, phi), beta, 5e-10) << deg;
        EXPECT_NEAR(ka_beta_to_phi(kE2, beta), phi, 5e-10) << deg;
    }
    EXPECT_NEAR(ka_phi_to_beta(kE2, kPi / 2), kPi / 2, 1e-15);
    EXPECT_NEAR(ka_phi_to_beta(kE2, -kPi / 2), -kPi / 2, 1e-15);
}

TEST(Authalic, RadiusMatchesTheClosedForm) {
    // R^2 = a^2 / 2 (1 + (1 - e2) / (2e) ln((1 + e) / (1 - e))).
    const double e = std::sqrt(kE2);
    const double r = std::sqrt(
        kA * kA / 2 *
        (1 + (1 - kE2) / (2 * e) * std::log((1 + e) / (1 - e))));
    EXPECT_NEAR(ka_auth_r(kA, kE2), r, 1e-6);
    EXPECT_NEAR(r, 6371007.181, 1e-3);  // the published WGS 84 value
}

// Meridian arc by Simpson's rule over M(phi) = a (1 - e2) / W^3.
double meridian_arc_by_quadrature(double a, double e2, double phi) {
    const int steps = 2000;
    const double h = phi / steps;
    double sum = 0;
    for (int i = 0; i <= steps; ++i) {
        const double w = i == 0 || i == steps ? 1 : (i % 2 ? 4 : 2);
        sum += w * ka_m(a, e2, i * h);
    }
    return sum * h / 3;
}

TEST(MeridianArc, MatchesQuadratureAndIsOdd) {
    for (double deg : {1.0, 30.0, 45.0, 60.0, 89.0, 90.0}) {
        const double phi = deg * kDeg;
        EXPECT_NEAR(ka_q(kA, kE2, phi), meridian_arc_by_quadrature(kA, kE2, phi),
                    1e-6)
            << deg;
        EXPECT_DOUBLE_EQ(ka_q(kA, kE2, -phi), -ka_q(kA, kE2, phi));
    }
    EXPECT_NEAR(ka_q90(kA, kE2), 10001965.7293, 1e-3);  // WGS 84 quarter meridian
    EXPECT_NEAR(ka_q(kA, kE2, kPi / 2), ka_q90(kA, kE2), 1e-8);
}

TEST(Rectifying, InverseSeriesUndoesTheForwardSeries) {
    for (double deg = -90; deg <= 90; deg += 1) {
        const double phi = deg * kDeg;
        EXPECT_NEAR(ka_mu_to_phi(kE2, ka_phi_to_mu(kE2, phi)), phi, 1e-12)
            << deg;
        // mu is the meridian arc scaled to a quarter circle.
        EXPECT_NEAR(ka_phi_to_mu(kE2, phi),
                    ka_q(kA, kE2, phi) / ka_q90(kA, kE2) * kPi / 2, 1e-14)
            << deg;
    }
}

TEST(Reduced, IsTanScaledByBOverAAndKeepsThePoles) {
    const double root = std::sqrt(1 - kE2);
    EXPECT_EQ(ka_phi_to_eta(kE2, kPi / 2), kPi / 2);
    EXPECT_EQ(ka_phi_to_eta(kE2, -kPi / 2), -kPi / 2);
    EXPECT_EQ(ka_phi_to_eta(kE2, kPi), 0.0);
    EXPECT_NEAR(ka_phi_to_eta(kE2, kPi / 4), std::atan(root), 1e-15);
    EXPECT_NEAR(ka_eta_to_phi(kE2, std::atan(root)), kPi / 4, 1e-15);
    EXPECT_NEAR(ka_phi_to_eta(kE2, -kPi / 4), -std::atan(root), 1e-15);
    // Angles beyond the pole come back into [-pi/2, pi/2].
    EXPECT_NEAR(ka_phi_to_eta(kE2, 3 * kPi / 4), std::atan(root), 1e-15);
}

#if VELTRA_HAVE_GEOGRAPHICLIB
TEST(AuxiliaryLatitudes, AgreeWithGeographicLib) {
    const GeographicLib::Ellipsoid ellipsoid(kA, kF);
    for (double deg = -89; deg <= 89; deg += 2) {
        const double phi = deg * kDeg;
        EXPECT_NEAR(ka_phi_to_chi(kE2, phi),
                    ellipsoid.ConformalLatitude(deg) * kDeg, 3e-12);
        EXPECT_NEAR(ka_phi_to_beta(kE2, phi),
                    ellipsoid.AuthalicLatitude(deg) * kDeg, 5e-10);
        EXPECT_NEAR(ka_phi_to_mu(kE2, phi),
                    ellipsoid.RectifyingLatitude(deg) * kDeg, 1e-14);
        EXPECT_NEAR(ka_phi_to_eta(kE2, phi),
                    ellipsoid.ParametricLatitude(deg) * kDeg, 1e-15);
        EXPECT_NEAR(ka_q(kA, kE2, phi), ellipsoid.MeridianDistance(deg), 1e-6);
    }
    EXPECT_NEAR(ka_q90(kA, kE2), ellipsoid.QuarterMeridian(), 1e-6);
}

TEST(Geocentric, AgreesWithGeographicLibAndRoundTrips) {
    const double a = 6378137.0;
    const GeographicLib::Geocentric earth(a, kGrs80F);
    for (double lat : {-89.9, -45.0, 0.0, 12.5, 60.0, 89.9}) {
        for (double h : {-100.0, 0.0, 2500.0, 10000.0}) {
            double x, y, z, gx, gy, gz;
            ka_curv_to_cart(a, kGrs80E2, lat * kDeg, 2.0, h, &x, &y, &z);
            earth.Forward(lat, 2.0 / kDeg, h, gx, gy, gz);
            EXPECT_NEAR(x, gx, 1e-8);
            EXPECT_NEAR(y, gy, 1e-8);
            EXPECT_NEAR(z, gz, 1e-8);
            double phi, lambda, height;
            ka_cart_to_curv(a, kGrs80E2, x, y, z, &phi, &lambda, &height);
            EXPECT_NEAR(phi, lat * kDeg, 5e-16);
            EXPECT_NEAR(lambda, 2.0, 1e-15);
            EXPECT_NEAR(height, h, 1e-8);
        }
    }
}
#endif

// On the polar axis p is 0 while a cos u is a tiny positive number, so the
// height takes the negative sign.
TEST(Geocentric, PolarAxisPointHasZeroLongitudeAndNegativeHeight) {
    const double a = 6378137.0, b = a * std::sqrt(1 - kGrs80E2);
    double phi, lambda, h;
    ka_cart_to_curv(a, kGrs80E2, 0, 0, b + 100, &phi, &lambda, &h);
    EXPECT_EQ(lambda, 0.0);
    EXPECT_DOUBLE_EQ(phi, kPi / 2);
    EXPECT_NEAR(h, -100, 1e-8);
    ka_cart_to_curv(a, kGrs80E2, 0, 0, b + 100, nullptr, nullptr, nullptr);
}

double dottie(double x, const double *) { return std::cos(x) - x; }
double shifted_sine(double x, const double *params) {
    return std::sin(x) - params[0];
}
double positive(double x, const double *) { return 1 + x; }

TEST(BrentRoot, FindsRootsOnTheQuarterCircle) {
    EXPECT_NEAR(veltra::brent_root(nullptr, dottie), 0.7390851332151607, 1e-14);
    const double half = 0.5;
    EXPECT_NEAR(veltra::brent_root(&half, shifted_sine), kPi / 6, 1e-14);
    // No sign change: it still ends, somewhere in the bracket.
    const double root = veltra::brent_root(nullptr, positive);
    EXPECT_GE(root, 0.0);
    EXPECT_LE(root, kPi / 2 + 1e-12);
}

TEST(SineSeries, EqualsTheFourSineSum) {
    const veltra::SineSeries k{0.3, -0.2, 0.05, 0.01};
    for (double x : {-1.2, 0.1, 0.7, 1.5}) {
        const double sum = k.c2 * std::sin(2 * x) + k.c4 * std::sin(4 * x) +
                           k.c6 * std::sin(6 * x) + k.c8 * std::sin(8 * x);
        EXPECT_NEAR(veltra::sine_series(x, k), sum, 1e-15);
    }
}

}  // namespace
