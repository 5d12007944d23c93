// Geodetic <-> geocentric conversion: the polar-axis convention, round
// trips, and GeographicLib's exact Geocentric as an oracle.
#include "veltra.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#if VELTRA_HAVE_GEOGRAPHICLIB
#include <GeographicLib/Geocentric.hpp>
#endif

namespace {

constexpr double kA = 6378137.0;             // GRS 1980
constexpr double kF = 1 / 298.257222101;
constexpr double kE2 = (2 - kF) * kF;
constexpr double kHalfPi = std::numbers::pi / 2;
constexpr double kDegree = std::numbers::pi / 180;

// On the polar axis p - a cos u is never positive: the height there is
// negative, 100 m above the pole included.
TEST(Geocentric, PolarAxisHeightIsNegative) {
    const double b = kA * std::sqrt(1 - kE2);
    double phi, lambda, h;
    ka_cart_to_curv(kA, kE2, 0, 0, b + 100, &phi, &lambda, &h);
    EXPECT_EQ(phi, kHalfPi);
    EXPECT_EQ(lambda, 0.0);
    EXPECT_NEAR(h, -100, 1e-8);
    ka_cart_to_curv(kA, kE2, 0, 0, -(b + 250), &phi, &lambda, &h);
    EXPECT_EQ(phi, -kHalfPi);
    EXPECT_NEAR(h, -250, 1e-8);
    // Any output may be left out.
    ka_cart_to_curv(kA, kE2, 1, 2, 3, nullptr, nullptr, nullptr);
    ka_curv_to_cart(kA, kE2, 1, 2, 3, nullptr, nullptr, nullptr);
}

TEST(Geocentric, RoundTripsWithinTenKilometres) {
    for (double lat = -89.5; lat <= 89.5; lat += 3.7)
        for (double lon = -179.0; lon < 180; lon += 23.3)
            for (double h : {-500.0, 0.0, 1234.5, 10000.0}) {
                double x, y, z, phi, lambda, height;
                ka_curv_to_cart(kA, kE2, lat * kDegree, lon * kDegree, h, &x,
                                &y, &z);
                ka_cart_to_curv(kA, kE2, x, y, z, &phi, &lambda, &height);
                EXPECT_NEAR(phi, lat * kDegree, 5e-16);
                EXPECT_NEAR(lambda, lon * kDegree, 5e-16);
                EXPECT_NEAR(height, h, 1e-8);
            }
}

#if VELTRA_HAVE_GEOGRAPHICLIB
// Points around the globe up to 10 km above and below the ellipsoid,
// against GeographicLib's exact conversion.
TEST(Geocentric, AgreesWithGeographicLib) {
    const GeographicLib::Geocentric exact(kA, kF);
    for (double lat = -89.9; lat <= 90; lat += 7.9)
        for (double lon = -180.0; lon <= 180; lon += 31.7)
            for (double h : {-10000.0, -50.0, 0.0, 800.0, 10000.0}) {
                double x, y, z;
                exact.Forward(lat, lon, h, x, y, z);
                double cx, cy, cz;
                ka_curv_to_cart(kA, kE2, lat * kDegree, lon * kDegree, h, &cx,
                                &cy, &cz);
                EXPECT_NEAR(cx, x, 1e-8);
                EXPECT_NEAR(cy, y, 1e-8);
                EXPECT_NEAR(cz, z, 1e-8);

                double phi, lambda, height, elat, elon, eh;
                exact.Reverse(x, y, z, elat, elon, eh);
                ka_cart_to_curv(kA, kE2, x, y, z, &phi, &lambda, &height);
                EXPECT_NEAR(phi, elat * kDegree, 1e-15);
                EXPECT_NEAR(lambda, elon * kDegree, 1e-15);
                EXPECT_NEAR(height, eh, 1e-8);
            }
}
#endif

}  // namespace
