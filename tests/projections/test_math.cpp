// Ellipsoid and auxiliary-latitude helpers against closed forms, published
// values and GeographicLib's exact auxiliary latitudes and geocentric
// conversion.
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
constexpr double kA = 6378137.0, kF = 1 / 298.257223563;  // WGS 84

TEST(DeltaAndEq, FoldingAndEquality) {
    // Both ends are kept; 3 pi folds to +pi (fmod keeps the sign).
    const double cases[][2] = {{kPi, kPi}, {-kPi, -kPi}, {3 * kPi, kPi}, {0.25, 0.25},
                               {1.5 * kPi, -0.5 * kPi}, {-1.5 * kPi, 0.5 * kPi}};
    for (const auto &c : cases) EXPECT_NEAR(ka_delta(c[0]), c[1], 1e-15) << c[0];
    // The equality test is absolute near zero and relative for large values.
    EXPECT_TRUE(ka_eq(0, 3e-15));
    EXPECT_FALSE(ka_eq(0, 4e-15));
    EXPECT_TRUE(ka_eq(1e6, 1e6 + 1e-9));
    EXPECT_FALSE(ka_eq(1e6, 1e6 + 1e-8));
    EXPECT_FALSE(ka_eq(NAN, NAN));
}

#if VELTRA_HAVE_GEOGRAPHICLIB
// GeographicLib's auxiliary latitudes are exact: the series keep to their
// truncation (e^8 conformal about 1.3e-12 rad, e^6 authalic 2e-10), both
// ways, and on a sphere every conversion is the identity.
TEST(AuxiliaryLatitudes, AgreeWithGeographicLib) {
    using GeographicLib::Ellipsoid;
    const struct {
        double (*forward)(double, double), (*inverse)(double, double);
        double (Ellipsoid::*exact)(double) const;
        double tolerance, inverse_tolerance;
    } conversions[] = {
        {ka_phi_to_chi, ka_chi_to_phi, &Ellipsoid::ConformalLatitude, 3e-12, 3e-12},
        {ka_phi_to_beta, ka_beta_to_phi, &Ellipsoid::AuthalicLatitude, 5e-10, 5e-10},
        {ka_phi_to_mu, ka_mu_to_phi, &Ellipsoid::RectifyingLatitude, 1e-14, 1e-12},
        {ka_phi_to_eta, ka_eta_to_phi, &Ellipsoid::ParametricLatitude, 1e-15, 1e-15},
    };
    for (double f : {kF, 0.0}) {
        const Ellipsoid ellipsoid(kA, f);
        const double e2 = (2 - f) * f;
        for (double deg = -89.5; deg <= 89.5; deg += 1) {
            const double phi = deg * kDeg;
            for (const auto &c : conversions) {
                const double exact = (ellipsoid.*c.exact)(deg) * kDeg;
                EXPECT_NEAR(c.forward(e2, phi), exact, c.tolerance) << deg << " " << f;
                EXPECT_NEAR(c.inverse(e2, exact), phi, c.inverse_tolerance) << deg << " " << f;
            }
            EXPECT_NEAR(ka_q(kA, e2, phi), ellipsoid.MeridianDistance(deg), 1e-6);
            EXPECT_NEAR(ka_m(kA, e2, phi), ellipsoid.MeridionalCurvatureRadius(deg), 1e-7);
            EXPECT_NEAR(ka_n(kA, e2, phi), ellipsoid.TransverseCurvatureRadius(deg), 1e-7);
        }
        EXPECT_NEAR(ka_q90(kA, e2), ellipsoid.QuarterMeridian(), 1e-6);
        EXPECT_NEAR(ka_auth_r(kA, e2), std::sqrt(ellipsoid.Area() / (4 * kPi)), 1e-3);
    }
}

// GRS 1980, up to 10 km above and below the ellipsoid: the Cartesian
// coordinates are GeographicLib's, and the way back keeps phi to a few
// 1e-16 rad and h to 1e-8 m.
TEST(Geocentric, AgreesWithGeographicLibAndRoundTrips) {
    const double f = 1 / 298.257222101, e2 = (2 - f) * f;
    const GeographicLib::Geocentric exact(kA, f);
    for (double lat = -89.9; lat <= 90; lat += 7.9)
        for (double lon = -180.0; lon <= 180; lon += 31.7)
            for (double h : {-10000.0, -50.0, 0.0, 1234.5, 10000.0}) {
                double x, y, z, gx, gy, gz, phi, lambda, height;
                ka_curv_to_cart(kA, e2, lat * kDeg, lon * kDeg, h, &x, &y, &z);
                exact.Forward(lat, lon, h, gx, gy, gz);
                EXPECT_NEAR(std::hypot(x - gx, y - gy, z - gz), 0, 1e-8);
                ka_cart_to_curv(kA, e2, x, y, z, &phi, &lambda, &height);
                EXPECT_NEAR(phi, lat * kDeg, 5e-16) << lat << " " << h;
                EXPECT_NEAR(lambda, lon * kDeg, 5e-16);
                EXPECT_NEAR(height, h, 1e-8);
            }
}
#endif

// The reduced latitude keeps the poles exactly and folds any angle.  On the
// polar axis p is 0 while a cos u is tiny and positive, so the geocentric
// height takes the negative sign.
TEST(Poles, ReducedLatitudeAndThePolarAxis) {
    const double f = 1 / 298.257222101, e2 = (2 - f) * f, b = kA * (1 - f);  // GRS 1980
    EXPECT_EQ(ka_phi_to_eta(e2, kPi / 2), kPi / 2);
    EXPECT_EQ(ka_phi_to_eta(e2, -kPi / 2), -kPi / 2);
    EXPECT_EQ(ka_phi_to_eta(e2, kPi), 0.0);
    EXPECT_NEAR(ka_phi_to_eta(e2, 3 * kPi / 4), std::atan(std::sqrt(1 - e2)), 1e-15);
    double phi, lambda, h;
    ka_cart_to_curv(kA, e2, 0, 0, b + 100, &phi, &lambda, &h);
    EXPECT_EQ(lambda, 0.0);
    EXPECT_EQ(phi, kPi / 2);
    EXPECT_NEAR(h, -100, 1e-8);
    // Any output may be left out.
    ka_cart_to_curv(kA, e2, 1, 2, 3, nullptr, nullptr, nullptr);
    ka_curv_to_cart(kA, e2, 1, 2, 3, nullptr, nullptr, nullptr);
}

TEST(BrentRoot, FindsTheRootOnTheQuarterCircleAndEndsWithoutOne) {
    auto dottie = [](double x, const double *) { return std::cos(x) - x; };
    EXPECT_NEAR(veltra::brent_root(nullptr, dottie), 0.7390851332151607, 1e-14);
    // Without a sign change it still ends, inside the bracket.
    const double root = veltra::brent_root(nullptr, [](double x, const double *) { return 1 + x; });
    EXPECT_TRUE(root >= 0 && root <= kPi / 2 + 1e-12) << root;
}

}  // namespace
