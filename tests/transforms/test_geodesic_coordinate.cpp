// Geodesic destination point: Vincenty's direct iteration with the arcsine
// arc from the equator crossing, the great-circle formulas on a sphere, the
// pole and null-output rules.
#include "veltra.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <random>

#if VELTRA_HAVE_GEOGRAPHICLIB
#include <GeographicLib/Geodesic.hpp>
#endif

namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kDeg = kPi / 180;
constexpr double kA = 6378137.0;
constexpr double kF = 1 / 298.257223563;
constexpr double kE2 = kF * (2 - kF);

struct Point {
    double lon, lat;
};

Point destination(double a, double e2, double lon1, double lat1, double s, double az) {
    Point p{};
    ka_geodesic_coordinate(a, e2, lon1, lat1, s, az, &p.lon, &p.lat);
    return p;
}

// Vincenty's direct formulae in long double, with the arc sigma1 from the
// equator crossing either by arcsine (this library's form) or by
// atan2(tan U1, cos az) (the published form).
Point vincenty_long_double(long double lat1, long double s, long double az, bool arcsine) {
    using L = long double;
    const L a = kA, e2 = kE2, f = 1 - std::sqrt(1 - e2);
    L tan_u1 = (1 - f) * std::tan(lat1);
    L u1 = std::atan(tan_u1);
    L su1 = std::sin(u1), cu1 = std::cos(u1), saz = std::sin(az), caz = std::cos(az);
    L salpha = cu1 * saz, c2alpha = 1 - salpha * salpha;
    L sigma1 = arcsine ? std::asin(std::clamp(su1 / std::sqrt(c2alpha), L(-1), L(1)))
                       : std::atan2(tan_u1, caz);
    L u2 = e2 / (1 - e2) * c2alpha;
    L big_a = 1 + u2 / 16384 * (4096 + u2 * (-768 + u2 * (320 - 175 * u2)));
    L big_b = u2 / 1024 * (256 + u2 * (-128 + u2 * (74 - 47 * u2)));
    L sigma0 = s / ((1 - f) * a * big_a), sigma = sigma0, prev;
    do {
        prev = sigma;
        L c2m = std::cos(2 * sigma1 + sigma), ss = std::sin(sigma), cs = std::cos(sigma);
        L dsigma = big_b * ss * (c2m + big_b / 4 * (cs * (2 * c2m * c2m - 1) -
                                                    big_b / 6 * c2m * (4 * ss * ss - 3) *
                                                        (4 * c2m * c2m - 3)));
        sigma = sigma0 + dsigma;
    } while (std::fabs(sigma - prev) > 1e-18L);
    L ss = std::sin(sigma), cs = std::cos(sigma), c2m = std::cos(2 * sigma1 + sigma);
    L lat2 = std::atan2(su1 * cs + cu1 * ss * caz,
                        (1 - f) * std::hypot(salpha, su1 * ss - cu1 * cs * caz));
    L lambda = std::atan2(ss * saz, cu1 * cs - su1 * ss * caz);
    L c = f / 16 * c2alpha * (4 + f * (4 - 3 * c2alpha));
    L lon2 = lambda - (1 - c) * f * salpha *
                          (sigma + c * ss * (c2m + c * cs * (2 * c2m * c2m - 1)));
    return {static_cast<double>(lon2), static_cast<double>(lat2)};
}

TEST(GeodesicCoordinate, ZeroDistanceReturnsTheStart) {
    for (double e2 : {0.0, kE2}) {
        Point p = destination(kA, e2, 4.0, 0.7, 0, 1.0);
        EXPECT_DOUBLE_EQ(p.lon, 4.0 - 2 * kPi);  // folded into [-pi, pi]
        EXPECT_NEAR(p.lat, 0.7, 1e-15);
    }
}

TEST(GeodesicCoordinate, PoleStartUsesLongitudeZero) {
    // On a sphere, half a great circle from a pole reaches the other pole on
    // the meridian the azimuth points to.
    for (double az : {0.3, 2.0, -1.0}) {
        Point from_north = destination(kA, 0, 1.5, kPi / 2, kPi * kA, az);
        EXPECT_DOUBLE_EQ(from_north.lon, ka_delta(kPi - az));
        EXPECT_DOUBLE_EQ(from_north.lat, -kPi / 2);
        Point from_south = destination(kA, 0, 1.5, -kPi / 2, kPi * kA, az);
        EXPECT_DOUBLE_EQ(from_south.lon, az);
        EXPECT_DOUBLE_EQ(from_south.lat, kPi / 2);
        // A shorter trip from the north pole runs down the meridian pi - az.
        Point down = destination(kA, 0, 1.5, kPi / 2, 0.5 * kA, az);
        EXPECT_NEAR(down.lon, ka_delta(kPi - az), 1e-15);
        EXPECT_NEAR(down.lat, kPi / 2 - 0.5, 1e-15);
    }
    // On the spheroid too the start longitude is replaced by 0.
    Point p = destination(kA, kE2, 2.5, -kPi / 2, 1e6, 0.4);
    Point q = destination(kA, kE2, 0, -kPi / 2, 1e6, 0.4);
    EXPECT_EQ(p.lon, q.lon);
    EXPECT_EQ(p.lat, q.lat);
}

TEST(GeodesicCoordinate, MeridianAndEquator) {
    for (double s : {1e3, 3e6, 9e6}) {
        EXPECT_EQ(destination(kA, kE2, 0.25, 0.1, s, 0).lon, 0.25);
        Point east = destination(kA, kE2, 0.25, 0, s, kPi / 2);
        EXPECT_NEAR(east.lon, 0.25 + s / kA, 1e-15);
        EXPECT_EQ(east.lat, 0.0);
    }
}

TEST(GeodesicCoordinate, NullOutputsAreSkipped) {
    Point both = destination(kA, kE2, 0.1, 0.2, 5e6, 1.0);
    double lon = 7, lat = 7;
    ka_geodesic_coordinate(kA, kE2, 0.1, 0.2, 5e6, 1.0, nullptr, &lat);
    EXPECT_EQ(lat, both.lat);
    ka_geodesic_coordinate(kA, kE2, 0.1, 0.2, 5e6, 1.0, &lon, nullptr);
    EXPECT_EQ(lon, both.lon);
    lon = lat = 7;
    ka_geodesic_coordinate(kA, 0, 0.1, 0.2, 5e6, 1.0, nullptr, &lat);
    EXPECT_NE(lat, 7);
    EXPECT_EQ(lon, 7);
    ka_geodesic_coordinate(kA, kE2, 0.1, 0.2, 5e6, 1.0, nullptr, nullptr);
}

TEST(GeodesicCoordinate, IterationEndsOnNonFiniteOrUnsettledInput) {
    for (double s : {std::nan(""), std::numeric_limits<double>::infinity()}) {
        Point p = destination(kA, kE2, 0.1, 0.2, s, 1.0);
        EXPECT_TRUE(std::isnan(p.lon) && std::isnan(p.lat));
    }
    // So flat a spheroid that the sigma iteration cycles without settling.
    Point p = destination(kA, 0.9, 0, 0.5, 5e6, 0);
    EXPECT_TRUE(std::isnan(p.lon) && std::isnan(p.lat));
}

TEST(GeodesicCoordinate, SouthwardArcFromTheEquatorCrossingIsTheArcsine) {
    // Northern starts heading south, where the arcsine and the published
    // atan2 differ; ours follows the arcsine form evaluated in long double.
    for (double lat1 : {0.3, 0.9, 1.4}) {
        for (double az_deg : {100.0, 150.0, -135.0}) {
            for (double s : {2e6, 8e6, 1.5e7}) {
                Point ours = destination(kA, kE2, 0, lat1, s, az_deg * kDeg);
                Point ref = vincenty_long_double(lat1, s, az_deg * kDeg, true);
                EXPECT_NEAR(ours.lat, ref.lat, 1e-13) << lat1 << " " << az_deg << " " << s;
                EXPECT_NEAR(std::remainder(ours.lon - ref.lon, 2 * kPi), 0, 1e-13);
            }
        }
    }
}

#if VELTRA_HAVE_GEOGRAPHICLIB

TEST(GeodesicCoordinate, NorthwardMatchesTheTrueGeodesic) {
    // Karney (2013), worked direct example on WGS 1984.
    Point p = destination(kA, kE2, 0, 40 * kDeg, 10e6, 30 * kDeg);
    EXPECT_NEAR(p.lat, 41.79331020506 * kDeg, 1e-11);
    EXPECT_NEAR(p.lon, 137.84490004377 * kDeg, 1e-11);

    // With cos(az) >= 0 the two arc forms agree, and Vincenty's series are
    // good to a fraction of a millimetre against GeographicLib.
    const GeographicLib::Geodesic g(kA, kF);
    std::mt19937_64 rng(9);
    std::uniform_real_distribution<double> unit(0, 1);
    for (int i = 0; i < 5000; ++i) {
        double lat1 = unit(rng) * 180 - 90, az = unit(rng) * 180 - 90, s = unit(rng) * 1.9e7;
        double lat2, lon2;
        g.Direct(lat1, 0, az, s, lat2, lon2);
        Point q = destination(kA, kE2, 0, lat1 * kDeg, s, az * kDeg);
        EXPECT_NEAR(q.lat, lat2 * kDeg, 5e-11);
        EXPECT_NEAR(std::remainder(q.lon - lon2 * kDeg, 2 * kPi) * std::cos(q.lat), 0, 5e-11);
    }
}

TEST(GeodesicCoordinate, SouthwardDepartsFromThePublishedForm) {
    // The published atan2 form tracks the true geodesic; the arcsine form
    // kept here lands kilometres away for a long southward line.
    const GeographicLib::Geodesic g(kA, kF);
    double lat2, lon2;
    g.Direct(50, 0, 150, 1.5e7, lat2, lon2);
    Point published = vincenty_long_double(50 * kDeg, 1.5e7, 150 * kDeg, false);
    EXPECT_NEAR(published.lat, lat2 * kDeg, 5e-11);
    Point ours = destination(kA, kE2, 0, 50 * kDeg, 1.5e7, 150 * kDeg);
    EXPECT_GT(std::fabs(ours.lat - lat2 * kDeg), 1e-5);
}

TEST(GeodesicCoordinate, SphereMatchesGeographicLib) {
    const double r = 6371000.0;
    const GeographicLib::Geodesic g(r, 0);
    std::mt19937_64 rng(3);
    std::uniform_real_distribution<double> unit(0, 1);
    for (int i = 0; i < 2000; ++i) {
        double lat1 = unit(rng) * 180 - 90, az = unit(rng) * 360 - 180, s = unit(rng) * 3e7;
        double lat2, lon2;
        g.Direct(lat1, 10, az, s, lat2, lon2);
        Point q = destination(r, 0, 10 * kDeg, lat1 * kDeg, s, az * kDeg);
        EXPECT_NEAR(q.lat, lat2 * kDeg, 1e-12);
        EXPECT_NEAR(std::remainder(q.lon - lon2 * kDeg, 2 * kPi) * std::cos(q.lat), 0, 1e-12);
    }
}

#endif  // VELTRA_HAVE_GEOGRAPHICLIB

}  // namespace
