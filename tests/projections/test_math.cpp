// Ellipsoid and auxiliary-latitude helpers against closed forms, published
// values and GeographicLib's exact auxiliary latitudes.
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
constexpr double kA = 6378137.0, kF = 1 / 298.257223563;
constexpr double kE2 = (2 - kF) * kF;

TEST(Delta, FoldsIntoTheClosedPrincipalRange) {
    EXPECT_EQ(ka_delta(kPi), kPi);
    EXPECT_EQ(ka_delta(-kPi), -kPi);
    EXPECT_NEAR(ka_delta(3 * kPi), kPi, 1e-15);  // fmod gives pi, kept
    EXPECT_GT(ka_delta(3 * kPi), 0);
    EXPECT_NEAR(ka_delta(1.5 * kPi), -0.5 * kPi, 1e-15);
    EXPECT_NEAR(ka_delta(-1.5 * kPi), 0.5 * kPi, 1e-15);
    EXPECT_EQ(ka_delta(0.25), 0.25);
}

TEST(Eq, IsAbsoluteNearZeroAndRelativeForLargeValues) {
    EXPECT_TRUE(ka_eq(0, 3e-15));
    EXPECT_FALSE(ka_eq(0, 4e-15));
    EXPECT_TRUE(ka_eq(1e6, 1e6 + 1e-9));
    EXPECT_FALSE(ka_eq(1e6, 1e6 + 1e-8));
    EXPECT_FALSE(ka_eq(NAN, NAN));
}

TEST(Sphere, LatitudeConversionsAreTheIdentity) {
    for (double phi : {-1.5, -0.7, 0.0, 0.3, 1.2, kPi / 2}) {
        for (auto f : {ka_phi_to_chi, ka_chi_to_phi, ka_phi_to_beta,
                       ka_beta_to_phi, ka_phi_to_mu, ka_mu_to_phi,
                       ka_phi_to_eta, ka_eta_to_phi})
            EXPECT_NEAR(f(0, phi), phi, 1e-15);
        EXPECT_NEAR(ka_q(6371000, 0, phi), 6371000 * phi, 1e-8);
    }
    EXPECT_DOUBLE_EQ(ka_q90(6371000, 0), 6371000 * kPi / 2);
    EXPECT_DOUBLE_EQ(ka_auth_r(6371000, 0), 6371000);
}

// Closed forms: chi = 2 atan(tan(pi/4 + phi/2) ((1 - e s)/(1 + e s))^(e/2))
// - pi/2 and beta = asin(q(phi) / q(pi/2)).  The e^8 conformal series is
// within about 1.3e-12 rad of it, the e^6 authalic series within 2e-10.
TEST(AuxiliaryLatitudes, SeriesMatchClosedFormsToTheirTruncation) {
    const double e = std::sqrt(kE2);
    auto q = [&](double phi) {
        const double s = std::sin(phi);
        return (1 - kE2) * (s / (1 - kE2 * s * s) -
                            std::log((1 - e * s) / (1 + e * s)) / (2 * e));
    };
    for (double deg = -89.5; deg <= 89.5; deg += 0.5) {
        const double phi = deg * kDeg, s = std::sin(phi);
        const double chi =
            2 * std::atan(std::tan(kPi / 4 + phi / 2) *
                          std::pow((1 - e * s) / (1 + e * s), e / 2)) -
            kPi / 2;
        EXPECT_NEAR(ka_phi_to_chi(kE2, phi), chi, 3e-12) << deg;
        EXPECT_NEAR(ka_chi_to_phi(kE2, chi), phi, 3e-12) << deg;
        const double beta = std::asin(q(phi) / q(kPi / 2));
        EXPECT_NEAR(ka_phi_to_beta(kE2, phi), beta, 5e-10) << deg;
        EXPECT_NEAR(ka_beta_to_phi(kE2, beta), phi, 5e-10) << deg;
    }
    EXPECT_NEAR(ka_phi_to_beta(kE2, -kPi / 2), -kPi / 2, 1e-15);
    // Published WGS 84 values: authalic radius and quarter meridian.
    EXPECT_NEAR(ka_auth_r(kA, kE2), 6371007.181, 1e-3);
    EXPECT_NEAR(ka_q90(kA, kE2), 10001965.729, 1e-3);
}

TEST(AuxiliaryLatitudes, ReducedLatitudeKeepsThePoles) {
    const double root = std::sqrt(1 - kE2);
    EXPECT_EQ(ka_phi_to_eta(kE2, kPi / 2), kPi / 2);
    EXPECT_EQ(ka_phi_to_eta(kE2, -kPi / 2), -kPi / 2);
    EXPECT_EQ(ka_phi_to_eta(kE2, kPi), 0.0);
    EXPECT_NEAR(ka_phi_to_eta(kE2, -kPi / 4), -std::atan(root), 1e-15);
    EXPECT_NEAR(ka_phi_to_eta(kE2, 3 * kPi / 4), std::atan(root), 1e-15);
    EXPECT_NEAR(ka_eta_to_phi(kE2, std::atan(root)), kPi / 4, 1e-15);
}

#if VELTRA_HAVE_GEOGRAPHICLIB
TEST(AuxiliaryLatitudes, AgreeWithGeographicLib) {
    const GeographicLib::Ellipsoid ellipsoid(kA, kF);
    for (double deg = -89; deg <= 89; deg += 2) {
        const double phi = deg * kDeg;
        EXPECT_NEAR(ka_phi_to_chi(kE2, phi),
                    ellipsoid.ConformalLatitude(deg) * kDeg, 3e-12);
        EXPECT_NEAR(ka_phi_to_mu(kE2, phi),
                    ellipsoid.RectifyingLatitude(deg) * kDeg, 1e-14);
        EXPECT_NEAR(ka_mu_to_phi(kE2, ellipsoid.RectifyingLatitude(deg) * kDeg),
                    phi, 1e-12);
        EXPECT_NEAR(ka_phi_to_eta(kE2, phi),
                    ellipsoid.ParametricLatitude(deg) * kDeg, 1e-15);
        EXPECT_NEAR(ka_q(kA, kE2, phi), ellipsoid.MeridianDistance(deg), 1e-6);
        EXPECT_NEAR(ka_m(kA, kE2, phi),
                    ellipsoid.MeridionalCurvatureRadius(deg), 1e-7);
        EXPECT_NEAR(ka_n(kA, kE2, phi),
                    ellipsoid.TransverseCurvatureRadius(deg), 1e-7);
    }
}

// GRS 1980: within 10 km of the ellipsoid the round trip keeps phi to a
// few 1e-16 rad and h to 1e-8 m.
TEST(Geocentric, AgreesWithGeographicLibAndRoundTrips) {
    const double f = 1 / 298.257222101, e2 = (2 - f) * f;
    const GeographicLib::Geocentric earth(kA, f);
    for (double lat : {-89.9, -45.0, 0.0, 12.5, 60.0, 89.9}) {
        for (double h : {-100.0, 0.0, 10000.0}) {
            double x, y, z, gx, gy, gz, phi, lambda, height;
            ka_curv_to_cart(kA, e2, lat * kDeg, 2.0, h, &x, &y, &z);
            earth.Forward(lat, 2.0 / kDeg, h, gx, gy, gz);
            EXPECT_NEAR(x, gx, 1e-8);
            EXPECT_NEAR(y, gy, 1e-8);
            EXPECT_NEAR(z, gz, 1e-8);
            ka_cart_to_curv(kA, e2, x, y, z, &phi, &lambda, &height);
            EXPECT_NEAR(phi, lat * kDeg, 5e-16);
            EXPECT_NEAR(lambda, 2.0, 1e-15);
            EXPECT_NEAR(height, h, 1e-8);
        }
    }
}
#endif

// On the polar axis p is 0 while a cos u is tiny and positive, so the
// height takes the negative sign.
TEST(Geocentric, PolarAxisPointHasZeroLongitudeAndNegativeHeight) {
    const double f = 1 / 298.257222101, e2 = (2 - f) * f;
    double phi, lambda, h;
    ka_cart_to_curv(kA, e2, 0, 0, kA * (1 - f) + 100, &phi, &lambda, &h);
    EXPECT_EQ(lambda, 0.0);
    EXPECT_DOUBLE_EQ(phi, kPi / 2);
    EXPECT_NEAR(h, -100, 1e-8);
}

double dottie(double x, const double *) { return std::cos(x) - x; }
double positive(double x, const double *) { return 1 + x; }

TEST(BrentRoot, FindsTheRootOnTheQuarterCircleAndEndsWithoutOne) {
    EXPECT_NEAR(veltra::brent_root(nullptr, dottie), 0.7390851332151607, 1e-14);
    const double root = veltra::brent_root(nullptr, positive);
    EXPECT_GE(root, 0.0);
    EXPECT_LE(root, kPi / 2 + 1e-12);
}

}  // namespace
