// Geodesics: the destination point (Vincenty's direct iteration with the
// arcsine arc from the equator crossing; great circles on a sphere) and the
// distance (the inverse problem), against Karney's published examples and
// GeographicLib, with their pole, null-output and bad-input rules.
#include "veltra.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <random>
#include <tuple>

#if VELTRA_HAVE_GEOGRAPHICLIB
#include <GeographicLib/Geodesic.hpp>
#endif

namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kDeg = kPi / 180;

struct Ellipsoid {
    double a, f;
    double e2() const { return f * (2 - f); }
};
constexpr Ellipsoid kWgs84{6378137.0, 1 / 298.257223563}, kClarke1866{6378206.4, 1 / 294.9786982},
    kSphere{6371000.0, 0};

struct Point {
    double lon, lat;
};

Point destination(double a, double e2, double lon1, double lat1, double s, double az) {
    Point p{};
    ka_geodesic_coordinate(a, e2, lon1, lat1, s, az, &p.lon, &p.lat);
    return p;
}

struct Inverse {
    double s, az12, az21;
};

Inverse inverse(const Ellipsoid &e, double lon1, double lat1, double lon2, double lat2) {
    Inverse r{};
    ka_geodesic_distance(e.a, e.e2(), lon1, lat1, lon2, lat2, &r.s, &r.az12, &r.az21);
    return r;
}

// Difference of two angles in radians, modulo a full turn.
double angle_diff(double x, double y) { return std::fabs(std::remainder(x - y, 2 * kPi)); }

TEST(GeodesicCoordinate, StartPointsPolesMeridiansAndTheEquator) {
    const double a = kWgs84.a, e2 = kWgs84.e2();
    for (double flat : {0.0, e2}) {  // distance 0 returns the start, folded
        const Point p = destination(a, flat, 4.0, 0.7, 0, 1.0);
        EXPECT_DOUBLE_EQ(p.lon, 4.0 - 2 * kPi);
        EXPECT_NEAR(p.lat, 0.7, 1e-15);
    }
    // A start at a pole uses longitude 0.  On a sphere half a great circle
    // from a pole reaches the other one on the meridian pi - az from the
    // north, az from the south; a shorter trip runs down meridian pi - az.
    for (double az : {0.3, 2.0, -1.0}) {
        const Point north = destination(a, 0, 1.5, kPi / 2, kPi * a, az);
        EXPECT_DOUBLE_EQ(north.lon, ka_delta(kPi - az));
        EXPECT_DOUBLE_EQ(north.lat, -kPi / 2);
        const Point south = destination(a, 0, 1.5, -kPi / 2, kPi * a, az);
        EXPECT_DOUBLE_EQ(south.lon, az);
        EXPECT_DOUBLE_EQ(south.lat, kPi / 2);
        const Point down = destination(a, 0, 1.5, kPi / 2, 0.5 * a, az);
        EXPECT_NEAR(down.lon, ka_delta(kPi - az), 1e-15);
        EXPECT_NEAR(down.lat, kPi / 2 - 0.5, 1e-15);
    }
    const Point p = destination(a, e2, 2.5, -kPi / 2, 1e6, 0.4);
    const Point q = destination(a, e2, 0, -kPi / 2, 1e6, 0.4);
    EXPECT_TRUE(p.lon == q.lon && p.lat == q.lat);
    // Northward along a meridian the longitude stays; eastward along the
    // equator cos(alpha) is 0, so sigma1 = 0, A = 1, B = 0 and the longitude
    // advances by exactly s / a.
    for (double s : {1e3, 3e6, 9e6}) {
        EXPECT_EQ(destination(a, e2, 0.25, 0.1, s, 0).lon, 0.25);
        const Point east = destination(a, e2, 0.25, 0, s, kPi / 2);
        EXPECT_NEAR(east.lon, 0.25 + s / a, 1e-15);
        EXPECT_EQ(east.lat, 0.0);
    }
}

// A null output is left alone and the other still filled; a non-finite
// distance, or a spheroid so flat that the sigma iteration cycles, gives NaN.
TEST(GeodesicCoordinate, NullOutputsAndUnsettledIteration) {
    const double a = kWgs84.a, e2 = kWgs84.e2();
    for (double flat : {0.0, e2}) {
        const Point both = destination(a, flat, 0.1, 0.2, 5e6, 1.0);
        double lon = 7, lat = 7;
        ka_geodesic_coordinate(a, flat, 0.1, 0.2, 5e6, 1.0, nullptr, &lat);
        ka_geodesic_coordinate(a, flat, 0.1, 0.2, 5e6, 1.0, nullptr, nullptr);
        EXPECT_TRUE(lat == both.lat && lon == 7);
        ka_geodesic_coordinate(a, flat, 0.1, 0.2, 5e6, 1.0, &lon, nullptr);
        EXPECT_EQ(lon, both.lon);
    }
    for (double s : {std::nan(""), std::numeric_limits<double>::infinity()}) {
        const Point p = destination(a, e2, 0.1, 0.2, s, 1.0);
        EXPECT_TRUE(std::isnan(p.lon) && std::isnan(p.lat));
    }
    const Point p = destination(a, 0.9, 0, 0.5, 5e6, 0);
    EXPECT_TRUE(std::isnan(p.lon) && std::isnan(p.lat));
}

// Karney, "Algorithms for geodesics" (2013), on WGS 1984: the direct example
// (northward, where Vincenty's series are exact to their truncation), a short
// line and a nearly antipodal one (alpha2 is the forward azimuth at point 2).
TEST(Geodesic, KarneysWorkedExamples) {
    const Point p = destination(kWgs84.a, kWgs84.e2(), 0, 40 * kDeg, 10e6, 30 * kDeg);
    EXPECT_NEAR(p.lat, 41.79331020506 * kDeg, 1e-11);
    EXPECT_NEAR(p.lon, 137.84490004377 * kDeg, 1e-11);
    EXPECT_NEAR(inverse(kWgs84, 0, -30.12345 * kDeg, 0.00005 * kDeg, -30.12344 * kDeg).s, 4.944208,
                1e-6);
    const Inverse r = inverse(kWgs84, 0, -30 * kDeg, 179.8 * kDeg, 29.9 * kDeg);
    EXPECT_NEAR(r.s, 19989832.827610, 1e-6);
    EXPECT_NEAR(r.az12, 161.890524736 * kDeg, 1e-11);
    EXPECT_NEAR(r.az21, (18.090737246 - 180) * kDeg, 1e-11);
}

// Coincident points: distance 0, az12 = 0, az21 = pi.  Antipodes on the
// equator: over the north pole (twice the quarter meridian, 2 x 10001965.7293
// m on WGS 84), or the south one when the first point is south.
TEST(GeodesicDistance, Conventions) {
    for (const Ellipsoid &e : {kSphere, kWgs84}) {
        for (double lat : {0.0, 0.7, -1.2, kPi / 2}) {
            const Inverse same = inverse(e, 2.0, lat, 2.0 - 2 * kPi, lat);
            EXPECT_TRUE(same.s == 0 && same.az12 == 0 && same.az21 == kPi) << lat;
        }
        const Inverse anti = inverse(e, 0, 0, kPi, 0);
        EXPECT_NEAR(anti.s, e.f == 0 ? kPi * e.a : 20003931.4586, 1e-4);
        EXPECT_TRUE(anti.az12 == 0 && anti.az21 == 0);
    }
    const Inverse quarter = inverse(kSphere, 0, 0, kPi / 2, 0);
    EXPECT_NEAR(quarter.s, kSphere.a * kPi / 2, 1e-8);
    EXPECT_DOUBLE_EQ(quarter.az12, kPi / 2);
    EXPECT_DOUBLE_EQ(quarter.az21, -kPi / 2);
    EXPECT_NEAR(inverse(kSphere, 0, -kPi / 2, 1, kPi / 2).s, kSphere.a * kPi, 1e-8);
    const Inverse south = inverse(kSphere, 0, -0.5, kPi, 0.5);
    EXPECT_TRUE(south.az12 == kPi && south.az21 == kPi);
}

// A null output is skipped; a latitude beyond the poles, NaN or a
// non-finite longitude gives NaN in every output.
TEST(GeodesicDistance, NullOutputsAndBadInput) {
    const Inverse full = inverse(kWgs84, 0.3, 0.2, 1.7, -0.5);
    double s = -1, az1 = -1, az2 = -1;
    ka_geodesic_distance(kWgs84.a, kWgs84.e2(), 0.3, 0.2, 1.7, -0.5, nullptr, nullptr, &az2);
    ka_geodesic_distance(kWgs84.a, kWgs84.e2(), 0.3, 0.2, 1.7, -0.5, &s, nullptr, nullptr);
    ka_geodesic_distance(kWgs84.a, kWgs84.e2(), 0.3, 0.2, 1.7, -0.5, nullptr, nullptr, nullptr);
    EXPECT_TRUE(az2 == full.az21 && s == full.s && az1 == -1);
    const double nan = std::nan(""), inf = std::numeric_limits<double>::infinity();
    for (const Point bad : {Point{0, nan}, Point{0, 2.0}, Point{0, -1.6}, Point{inf, 0.1}}) {
        const Inverse r = inverse(kWgs84, bad.lon, bad.lat, 1, 0.5);
        EXPECT_TRUE(std::isnan(r.s) && std::isnan(r.az12) && std::isnan(r.az21)) << bad.lat;
    }
}

#if VELTRA_HAVE_GEOGRAPHICLIB
// Heading north (cos az >= 0) on WGS 84, Vincenty's series are good to a
// fraction of a millimetre; the sphere's closed formulas to rounding.
TEST(GeodesicCoordinate, AgreesWithGeographicLib) {
    std::mt19937_64 rng(9);
    std::uniform_real_distribution<double> unit(0, 1);
    for (const auto &[e, max_az, tolerance] :
         {std::tuple{kWgs84, 90.0, 5e-11}, std::tuple{kSphere, 180.0, 1e-12}}) {
        const GeographicLib::Geodesic g(e.a, e.f);
        for (int i = 0; i < 3000; ++i) {
            const double lat1 = unit(rng) * 180 - 90, az = (2 * unit(rng) - 1) * max_az;
            const double s = unit(rng) * 1.9e7;
            double lat2, lon2;
            g.Direct(lat1, 10, az, s, lat2, lon2);
            const Point q = destination(e.a, e.e2(), 10 * kDeg, lat1 * kDeg, s, az * kDeg);
            EXPECT_NEAR(q.lat, lat2 * kDeg, tolerance);
            EXPECT_NEAR(angle_diff(q.lon, lon2 * kDeg) * std::cos(q.lat), 0, tolerance);
        }
    }
}

// Heading south from a northern start, the arc sigma1 from the equator
// crossing is the arcsine value, which is that of the mirrored azimuth
// pi - az (the published atan2(tan U1, cos az) is not).  So the arc sigma
// travelled is GeographicLib's a12 along the northward line pi - az, the
// point reached lies that arc along az on the auxiliary sphere (spherical
// trigonometry from the reduced latitude U1), and its longitude carries the
// same ellipsoidal correction (lambda - L) as the mirrored line.  The true
// geodesic ends kilometres away.
TEST(GeodesicCoordinate, SouthwardArcIsTheArcsine) {
    const Ellipsoid e = kWgs84;
    const GeographicLib::Geodesic g(e.a, e.f);
    // Longitude on the auxiliary sphere and latitude reached after an arc.
    auto along = [&](double u1, double az, double sigma) {
        const double sin_u2 = std::sin(u1) * std::cos(sigma) + std::cos(u1) * std::sin(sigma) * std::cos(az);
        return Point{std::atan2(std::sin(sigma) * std::sin(az),
                                std::cos(u1) * std::cos(sigma) - std::sin(u1) * std::sin(sigma) * std::cos(az)),
                     std::atan2(sin_u2, (1 - e.f) * std::sqrt(1 - sin_u2 * sin_u2))};
    };
    for (double lat1 : {17.0, 50.0, 80.0}) {
        const double u1 = std::atan((1 - e.f) * std::tan(lat1 * kDeg));
        for (double az : {100.0, 150.0, -135.0}) {
            for (double s : {2e6, 8e6, 1.5e7}) {
                double lat2, lon2, mirrored_lat2, mirrored_lon2;
                const double arc = g.Direct(lat1, 0, 180 - az, s, mirrored_lat2, mirrored_lon2);
                const double correction =
                    along(u1, (180 - az) * kDeg, arc * kDeg).lon - mirrored_lon2 * kDeg;
                const Point expected = along(u1, az * kDeg, arc * kDeg);
                const Point ours = destination(e.a, e.e2(), 0, lat1 * kDeg, s, az * kDeg);
                EXPECT_NEAR(ours.lat, expected.lat, 1e-10) << lat1 << " " << az << " " << s;
                EXPECT_NEAR(angle_diff(ours.lon, expected.lon - correction), 0, 1e-10);
                g.Direct(lat1, 0, az, s, lat2, lon2);
                EXPECT_GT(std::fabs(ours.lat - lat2 * kDeg), 1e-7);
            }
        }
    }
}

// Point pairs of one kind, in degrees.
enum class Kind { Random, Short, VeryShort, NearlyAntipodal, Equatorial, Meridional, Polar };

struct Pair {
    double lat1, lon1, lat2, lon2;
};

Pair make_pair(Kind kind, std::mt19937_64 &rng) {
    std::uniform_real_distribution<double> unit(0, 1);
    auto lat = [&] { return std::asin(2 * unit(rng) - 1) / kDeg; };
    auto lon = [&] { return unit(rng) * 360 - 180; };
    auto offset = [&](double max_exp) {  // +-10^-u, u in [0, max_exp]
        return (unit(rng) < 0.5 ? -1 : 1) * std::pow(10.0, -max_exp * unit(rng));
    };
    Pair p{lat(), lon(), lat(), lon()};
    switch (kind) {
    case Kind::Random: break;
    case Kind::Short: p.lat2 = std::clamp(p.lat1 + offset(2), -90.0, 90.0), p.lon2 = p.lon1 + offset(2); break;
    case Kind::VeryShort: p.lat2 = std::clamp(p.lat1 + offset(9), -90.0, 90.0), p.lon2 = p.lon1 + offset(9); break;
    case Kind::NearlyAntipodal:
        p.lat2 = std::clamp(-p.lat1 + offset(7), -90.0, 90.0), p.lon2 = p.lon1 + 180 + 3 * offset(7);
        break;
    case Kind::Equatorial: p.lat1 = p.lat2 = 0; break;
    case Kind::Meridional: p.lon2 = p.lon1 + (unit(rng) < 0.5 ? 0 : 180); break;
    case Kind::Polar: p.lat1 = unit(rng) < 0.5 ? 90 : -90; break;
    }
    return p;
}

// Distances to 1e-6 m and, where the azimuths are well conditioned, azimuths
// to 1e-9 rad of GeographicLib's; for very short and nearly antipodal lines
// the azimuths are checked by the direct problem instead: from the first
// point along our azimuth and distance GeographicLib reaches the second
// point within 1e-6 m, arriving with our back azimuth (ill-conditioned
// within a hair of either end or its antipode).
TEST(GeodesicDistance, AgreesWithGeographicLib) {
    std::mt19937_64 rng(20130101);
    for (const Ellipsoid &e : {kWgs84, kClarke1866, kSphere}) {
        const GeographicLib::Geodesic g(e.a, e.f);
        for (Kind kind : {Kind::Random, Kind::Short, Kind::VeryShort, Kind::NearlyAntipodal,
                          Kind::Equatorial, Kind::Meridional, Kind::Polar}) {
            const bool conditioned = kind != Kind::VeryShort && kind != Kind::NearlyAntipodal;
            for (int i = 0; i < 2000; ++i) {
                const Pair p = make_pair(kind, rng);
                SCOPED_TRACE(testing::Message() << e.f << ": " << p.lat1 << " " << p.lon1 << " "
                                                << p.lat2 << " " << p.lon2);
                double s, azi1, azi2, lat2, lon2, miss;
                g.Inverse(p.lat1, p.lon1, p.lat2, p.lon2, s, azi1, azi2);
                const Inverse r = inverse(e, p.lon1 * kDeg, p.lat1 * kDeg, p.lon2 * kDeg, p.lat2 * kDeg);
                ASSERT_NEAR(r.s, s, 1e-6);
                if (conditioned && s > 1e-6) {
                    ASSERT_LE(angle_diff(r.az12, azi1 * kDeg), 1e-9);
                    ASSERT_LE(angle_diff(r.az21, (azi2 + 180) * kDeg), 1e-9);
                }
                g.Direct(p.lat1, p.lon1, r.az12 / kDeg, r.s, lat2, lon2, azi2);
                g.Inverse(lat2, lon2, p.lat2, p.lon2, miss);
                ASSERT_LT(miss, 1e-6);
                const double from_an_end = std::min(r.s, std::fabs(kPi * e.a - r.s));
                ASSERT_LT(angle_diff(r.az21, (azi2 + 180) * kDeg), 1e-9 + 1e-15 * e.a / from_an_end);
            }
        }
    }
}
#endif  // VELTRA_HAVE_GEOGRAPHICLIB

}  // namespace
