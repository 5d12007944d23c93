// Geodesics: the destination point (Vincenty's direct iteration with the
// arcsine arc from the equator crossing; great circles on a sphere) and the
// distance (the inverse problem), against Karney's published examples and
// GeographicLib, with their pole, null-output and bad-input rules.
#include "veltra.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>
#include <utility>

#if VELTRA_HAVE_GEOGRAPHICLIB
#include <GeographicLib/Geodesic.hpp>
#endif

namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kDeg = kPi / 180;

struct Ellipsoid { double a, f; double e2() const { return f * (2 - f); } };
constexpr Ellipsoid kWgs84{6378137.0, 1 / 298.257223563}, kClarke1866{6378206.4, 1 / 294.9786982},
    kSphere{6371000.0, 0};

struct Point { double lon, lat; };

Point destination(const Ellipsoid &e, double lon1, double lat1, double s, double az) {
    Point p{};
    ka_geodesic_coordinate(e.a, e.e2(), lon1, lat1, s, az, &p.lon, &p.lat);
    return p;
}

struct Inverse { double s, az12, az21; };

Inverse inverse(const Ellipsoid &e, double lon1, double lat1, double lon2, double lat2) {
    Inverse r{};
    ka_geodesic_distance(e.a, e.e2(), lon1, lat1, lon2, lat2, &r.s, &r.az12, &r.az21);
    return r;
}

// Uniform on [0, 1).
[[maybe_unused]] double unit(std::mt19937_64 &rng) { return std::uniform_real_distribution<double>(0, 1)(rng); }

// Difference of two angles in radians, modulo a full turn.
[[maybe_unused]] double angle_diff(double x, double y) { return std::fabs(std::remainder(x - y, 2 * kPi)); }

// A start at a pole uses longitude 0: on a sphere half a great circle from
// the north pole reaches the south one on meridian pi - az, from the south
// pole on az.  Northward along a meridian the longitude stays; eastward
// along the equator cos(alpha) is 0, so sigma1 = 0, A = 1, B = 0 and the
// longitude advances by exactly s / a.  Distance 0 returns the start, its
// longitude folded.  A null output is left alone and the other still
// filled; a non-finite distance, or a spheroid so flat that the sigma
// iteration cycles, gives NaN.
TEST(GeodesicCoordinate, EdgeCases) {
    for (double az : {0.3, 2.0, -1.0}) {
        const Point north = destination(kSphere, 1.5, kPi / 2, kPi * kSphere.a, az);
        const Point south = destination(kSphere, 1.5, -kPi / 2, kPi * kSphere.a, az);
        EXPECT_TRUE(north.lon == ka_delta(kPi - az) && north.lat == -kPi / 2) << north.lon;
        EXPECT_TRUE(south.lon == az && south.lat == kPi / 2) << south.lon;
    }
    EXPECT_EQ(destination(kWgs84, 2.5, -kPi / 2, 1e6, 0.4).lon,
              destination(kWgs84, 0, -kPi / 2, 1e6, 0.4).lon);
    for (double s : {1e3, 3e6, 9e6}) {
        EXPECT_EQ(destination(kWgs84, 0.25, 0.1, s, 0).lon, 0.25);
        const Point east = destination(kWgs84, 0.25, 0, s, kPi / 2);
        EXPECT_NEAR(east.lon, 0.25 + s / kWgs84.a, 1e-15);
        EXPECT_EQ(east.lat, 0.0);
    }
    for (const Ellipsoid &e : {kSphere, kWgs84}) {
        const Point start = destination(e, 4.0, 0.7, 0, 1.0);
        EXPECT_TRUE(start.lon == 4.0 - 2 * kPi && std::fabs(start.lat - 0.7) < 1e-15) << start.lat;
        const Point both = destination(e, 0.1, 0.2, 5e6, 1.0);
        double lon = 7, lat = 7;
        ka_geodesic_coordinate(e.a, e.e2(), 0.1, 0.2, 5e6, 1.0, nullptr, &lat);
        ka_geodesic_coordinate(e.a, e.e2(), 0.1, 0.2, 5e6, 1.0, nullptr, nullptr);
        EXPECT_TRUE(lat == both.lat && lon == 7);
        ka_geodesic_coordinate(e.a, e.e2(), 0.1, 0.2, 5e6, 1.0, &lon, nullptr);
        EXPECT_EQ(lon, both.lon);
    }
    for (const auto &[e, s] : {std::pair{kWgs84, std::nan("")}, std::pair{kWgs84, HUGE_VAL},
                               std::pair{Ellipsoid{kWgs84.a, 1 - std::sqrt(0.1)}, 5e6}}) {
        const Point p = destination(e, 0.1, 0.5, s, 0);
        EXPECT_TRUE(std::isnan(p.lon) && std::isnan(p.lat)) << s;
    }
}

// Karney, "Algorithms for geodesics" (2013), on WGS 1984: the direct example
// (northward, where Vincenty's series are exact to their truncation) and a
// nearly antipodal inverse one (alpha2 is the forward azimuth at point 2).
TEST(Geodesic, KarneysWorkedExamples) {
    const Point p = destination(kWgs84, 0, 40 * kDeg, 10e6, 30 * kDeg);
    EXPECT_NEAR(p.lat, 41.79331020506 * kDeg, 1e-11);
    EXPECT_NEAR(p.lon, 137.84490004377 * kDeg, 1e-11);
    const Inverse r = inverse(kWgs84, 0, -30 * kDeg, 179.8 * kDeg, 29.9 * kDeg);
    EXPECT_NEAR(r.s, 19989832.827610, 1e-6);
    EXPECT_NEAR(r.az12, 161.890524736 * kDeg, 1e-11);
    EXPECT_NEAR(r.az21, (18.090737246 - 180) * kDeg, 1e-11);
}

// Coincident points: distance 0, az12 = 0, az21 = pi.  Antipodes on the
// equator: over the north pole (twice the quarter meridian, 2 x 10001965.7293
// m on WGS 84), or the south one when the first point is south.  A null
// output is skipped; a latitude beyond the poles or a non-finite input gives
// NaN in every output.
TEST(GeodesicDistance, ConventionsNullOutputsAndBadInput) {
    for (const Ellipsoid &e : {kSphere, kWgs84}) {
        for (double lat : {0.0, 0.7, -1.2, kPi / 2}) {
            const Inverse same = inverse(e, 2.0, lat, 2.0 - 2 * kPi, lat);
            EXPECT_TRUE(same.s == 0 && same.az12 == 0 && same.az21 == kPi) << lat;
        }
        const Inverse anti = inverse(e, 0, 0, kPi, 0);
        EXPECT_NEAR(anti.s, e.f == 0 ? kPi * e.a : 20003931.4586, 1e-4);
        EXPECT_TRUE(anti.az12 == 0 && anti.az21 == 0);
        const Inverse south = inverse(e, 0, -0.5, kPi, 0.5);
        EXPECT_TRUE(south.az12 == kPi && south.az21 == kPi);
    }

    const Inverse full = inverse(kWgs84, 0.3, 0.2, 1.7, -0.5);
    double s = -1, az1 = -1, az2 = -1;
    ka_geodesic_distance(kWgs84.a, kWgs84.e2(), 0.3, 0.2, 1.7, -0.5, nullptr, nullptr, &az2);
    ka_geodesic_distance(kWgs84.a, kWgs84.e2(), 0.3, 0.2, 1.7, -0.5, &s, nullptr, nullptr);
    ka_geodesic_distance(kWgs84.a, kWgs84.e2(), 0.3, 0.2, 1.7, -0.5, nullptr, nullptr, nullptr);
    EXPECT_TRUE(az2 == full.az21 && s == full.s && az1 == -1);
    for (const Point p : {Point{0, NAN}, Point{0, 2.0}, Point{0, -1.6}, Point{HUGE_VAL, 0.1}}) {
        const Inverse r = inverse(kWgs84, p.lon, p.lat, 1, 0.5);
        EXPECT_TRUE(std::isnan(r.s) && std::isnan(r.az12) && std::isnan(r.az21)) << p.lat;
    }
}

#if VELTRA_HAVE_GEOGRAPHICLIB
// Heading north (cos az >= 0) Vincenty's series are good to a fraction of a
// millimetre on WGS 84, the sphere's closed formulas to rounding.  Heading
// south (the mirrored azimuth pi - az) the arc sigma1 from the equator
// crossing is the arcsine value, the same as for az (the published
// atan2(tan U1, cos az) is not).  So the arc sigma travelled is
// GeographicLib's a12 along az, the point reached lies that arc along
// pi - az on the auxiliary sphere (spherical trigonometry from the reduced
// latitude U1), and its longitude carries the same ellipsoidal correction
// (lambda - L) as the line along az.
TEST(GeodesicCoordinate, AgreesWithGeographicLibAndKeepsTheArcsineArc) {
    std::mt19937_64 rng(9);
    for (const auto &[e, tolerance] : {std::pair{kWgs84, 1e-10}, std::pair{kSphere, 1e-12}}) {
        const GeographicLib::Geodesic g(e.a, e.f);
        for (int i = 0; i < 3000; ++i) {
            const double lat1 = unit(rng) * 180 - 90, az = unit(rng) * 180 - 90, s = unit(rng) * 1.9e7;
            const double u1 = std::atan((1 - e.f) * std::tan(lat1 * kDeg));
            const double su = std::sin(u1), cu = std::cos(u1);
            // Auxiliary-sphere longitude and latitude reached after an arc.
            auto along = [&](double azimuth, double sigma) {
                const double c = std::cos(azimuth), z = su * std::cos(sigma) + cu * std::sin(sigma) * c;
                const double x = cu * std::cos(sigma) - su * std::sin(sigma) * c;
                return Point{std::atan2(std::sin(sigma) * std::sin(azimuth), x),
                             std::atan2(z, (1 - e.f) * std::sqrt(1 - z * z))};
            };
            double lat2, lon2;
            const double arc = g.Direct(lat1, 0, az, s, lat2, lon2) * kDeg;
            const Point north = destination(e, 0, lat1 * kDeg, s, az * kDeg);
            EXPECT_NEAR(north.lat, lat2 * kDeg, tolerance);
            EXPECT_NEAR(angle_diff(north.lon, lon2 * kDeg) * std::cos(north.lat), 0, tolerance);
            const double shift = along(az * kDeg, arc).lon - lon2 * kDeg;  // lambda - L
            const Point want = along(kPi - az * kDeg, arc);
            const Point south = destination(e, 0, lat1 * kDeg, s, kPi - az * kDeg);
            EXPECT_NEAR(south.lat, want.lat, tolerance) << lat1 << " " << az << " " << s;
            EXPECT_NEAR(angle_diff(south.lon, want.lon - shift) * std::cos(south.lat), 0, tolerance);
        }
    }
}

// Point pairs of each kind: anywhere, short (down to 1e-9 degrees), nearly
// antipodal (to 1e-7 degrees), equatorial, meridional, from a pole.
// Distances to 1e-6 m and, where the azimuths are well conditioned (not
// near the antipode, not within 100 m), azimuths to 1e-9 rad of
// GeographicLib's.  Every azimuth is also checked by the direct problem:
// from the first point along our azimuth and distance GeographicLib reaches
// the second point within 1e-6 m, arriving with our back azimuth (to within
// the conditioning near either end or its antipode).
enum class Kind { Random, Short, NearlyAntipodal, Equatorial, Meridional, Polar };

TEST(GeodesicDistance, AgreesWithGeographicLib) {
    std::mt19937_64 rng(20130101);
    auto lat = [&] { return std::asin(2 * unit(rng) - 1) / kDeg; };
    auto lon = [&] { return unit(rng) * 360 - 180; };
    auto offset = [&](double max_exp) {  // +-10^-u, u in [0, max_exp]
        return (unit(rng) < 0.5 ? -1 : 1) * std::pow(10.0, -max_exp * unit(rng));
    };
    for (const Ellipsoid &e : {kWgs84, kClarke1866, kSphere}) {
        const GeographicLib::Geodesic g(e.a, e.f);
        for (Kind kind : {Kind::Random, Kind::Short, Kind::NearlyAntipodal, Kind::Equatorial,
                          Kind::Meridional, Kind::Polar}) {
            for (int i = 0; i < 2000; ++i) {
                double lat1 = lat(), lon1 = lon(), lat2 = lat(), lon2 = lon();
                if (kind == Kind::Short)
                    lat2 = std::clamp(lat1 + offset(9), -90.0, 90.0), lon2 = lon1 + offset(9);
                if (kind == Kind::NearlyAntipodal)
                    lat2 = std::clamp(-lat1 + offset(7), -90.0, 90.0), lon2 = lon1 + 180 + 3 * offset(7);
                if (kind == Kind::Equatorial) lat1 = lat2 = 0;
                if (kind == Kind::Meridional) lon2 = lon1 + (unit(rng) < 0.5 ? 0 : 180);
                if (kind == Kind::Polar) lat1 = unit(rng) < 0.5 ? 90 : -90;
                SCOPED_TRACE(testing::Message() << e.f << ": " << lat1 << " " << lon1 << " " << lat2
                                                << " " << lon2);
                double s, azi1, azi2, lat3, lon3, miss;
                g.Inverse(lat1, lon1, lat2, lon2, s, azi1, azi2);
                const Inverse r = inverse(e, lon1 * kDeg, lat1 * kDeg, lon2 * kDeg, lat2 * kDeg);
                ASSERT_NEAR(r.s, s, 1e-6);
                if (kind != Kind::NearlyAntipodal && s > 100) {
                    ASSERT_LE(angle_diff(r.az12, azi1 * kDeg), 1e-9);
                    ASSERT_LE(angle_diff(r.az21, (azi2 + 180) * kDeg), 1e-9);
                }
                g.Direct(lat1, lon1, r.az12 / kDeg, r.s, lat3, lon3, azi2);
                g.Inverse(lat3, lon3, lat2, lon2, miss);
                ASSERT_LT(miss, 1e-6);
                const double from_an_end = std::min(r.s, std::fabs(kPi * e.a - r.s));
                ASSERT_LT(angle_diff(r.az21, (azi2 + 180) * kDeg), 1e-9 + 1e-15 * e.a / from_an_end);
            }
        }
    }
}
#endif  // VELTRA_HAVE_GEOGRAPHICLIB

}  // namespace
