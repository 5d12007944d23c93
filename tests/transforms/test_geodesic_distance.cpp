// Geodesic distance: the inverse problem against GeographicLib over many
// kinds of point pairs, published worked examples, great-circle formulas
// on a sphere and the conventions for coincident and antipodal points.
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

struct Ellipsoid {
    const char *name;
    double a, inv_f;
    double f() const { return 1 / inv_f; }
    double e2() const { return f() * (2 - f()); }
};
constexpr Ellipsoid kWgs84{"WGS 1984", 6378137.0, 298.257223563};
constexpr Ellipsoid kClarke1866{"Clarke 1866", 6378206.4, 294.9786982};

struct Inverse {
    double s, az12, az21;
};

Inverse inverse(double a, double e2, double lon1, double lat1, double lon2, double lat2) {
    Inverse r{};
    ka_geodesic_distance(a, e2, lon1, lat1, lon2, lat2, &r.s, &r.az12, &r.az21);
    return r;
}

Inverse inverse_deg(const Ellipsoid &e, double lat1, double lon1, double lat2, double lon2) {
    return inverse(e.a, e.e2(), lon1 * kDeg, lat1 * kDeg, lon2 * kDeg, lat2 * kDeg);
}

// Difference of two azimuths in radians, modulo a full turn.
double az_diff(double x, double y) { return std::fabs(std::remainder(x - y, 2 * kPi)); }

TEST(GeodesicDistance, PublishedWorkedExamples) {
    // Karney, "Algorithms for geodesics" (2013), WGS 1984: a short line and
    // a nearly antipodal one (alpha2 is the forward azimuth at point 2).
    Inverse shortline = inverse_deg(kWgs84, -30.12345, 0, -30.12344, 0.00005);
    EXPECT_NEAR(shortline.s, 4.944208, 1e-6);
    Inverse antipodal = inverse_deg(kWgs84, -30, 0, 29.9, 179.8);
    EXPECT_NEAR(antipodal.s, 19989832.827610, 1e-6);
    EXPECT_NEAR(antipodal.az12, 161.890524736 * kDeg, 1e-11);
    EXPECT_NEAR(antipodal.az21, (18.090737246 - 180) * kDeg, 1e-11);
}

TEST(GeodesicDistance, SphereMatchesGreatCircleFormulas) {
    const double r = 6371000.0;
    std::mt19937_64 rng(11);
    std::uniform_real_distribution<double> unit(0, 1);
    for (int i = 0; i < 2000; ++i) {
        double lat1 = std::asin(2 * unit(rng) - 1), lat2 = std::asin(2 * unit(rng) - 1);
        double lon1 = (2 * unit(rng) - 1) * kPi, lon2 = (2 * unit(rng) - 1) * kPi;
        Inverse g = inverse(r, 0, lon1, lat1, lon2, lat2);
        // Haversine distance and the azimuths of the spherical triangle.
        double hav = std::pow(std::sin((lat2 - lat1) / 2), 2) +
                     std::cos(lat1) * std::cos(lat2) * std::pow(std::sin((lon2 - lon1) / 2), 2);
        EXPECT_NEAR(g.s, 2 * r * std::asin(std::sqrt(hav)), 1e-6);
        double dl = lon2 - lon1;
        double fwd = std::atan2(std::sin(dl) * std::cos(lat2),
                                std::cos(lat1) * std::sin(lat2) -
                                    std::sin(lat1) * std::cos(lat2) * std::cos(dl));
        double back = std::atan2(-std::sin(dl) * std::cos(lat1),
                                 std::cos(lat2) * std::sin(lat1) -
                                     std::sin(lat2) * std::cos(lat1) * std::cos(dl));
        EXPECT_LT(az_diff(g.az12, fwd), 1e-12);
        EXPECT_LT(az_diff(g.az21, back), 1e-12);
    }
    // A quarter of the equator, pole to pole, and the antipodes of (0, 0).
    Inverse quarter = inverse(r, 0, 0, 0, kPi / 2, 0);
    EXPECT_NEAR(quarter.s, r * kPi / 2, 1e-8);
    EXPECT_DOUBLE_EQ(quarter.az12, kPi / 2);
    EXPECT_DOUBLE_EQ(quarter.az21, -kPi / 2);
    EXPECT_NEAR(inverse(r, 0, 0, -kPi / 2, 1, kPi / 2).s, r * kPi, 1e-8);
    Inverse anti = inverse(r, 0, 0, 0, kPi, 0);
    EXPECT_DOUBLE_EQ(anti.s, r * kPi);
    EXPECT_EQ(anti.az12, 0.0);  // over the north pole
    EXPECT_EQ(anti.az21, 0.0);
    Inverse south = inverse(r, 0, 0, -0.5, kPi, 0.5);  // first point south
    EXPECT_DOUBLE_EQ(south.az12, kPi);
    EXPECT_DOUBLE_EQ(south.az21, kPi);
}

TEST(GeodesicDistance, CoincidentAndAntipodalConventions) {
    for (double e2 : {0.0, kWgs84.e2()}) {
        for (double lat : {0.0, 0.7, -1.2, kPi / 2}) {
            Inverse same = inverse(kWgs84.a, e2, 2.0, lat, 2.0 - 2 * kPi, lat);
            EXPECT_EQ(same.s, 0.0) << lat;
            EXPECT_EQ(same.az12, 0.0);
            EXPECT_EQ(same.az21, kPi);
        }
    }
    // Antipodes on the equator of an oblate spheroid: over the north pole,
    // twice the quarter meridian.
    Inverse anti = inverse_deg(kWgs84, 0, 0, 0, 180);
    EXPECT_NEAR(anti.s, 20003931.4586, 1e-4);  // 2 x 10001965.7293 m
    EXPECT_EQ(anti.az12, 0.0);
    EXPECT_EQ(anti.az21, 0.0);
}

TEST(GeodesicDistance, NullOutputsAndBadInput) {
    double s = -1, az1 = -1, az2 = -1;
    Inverse full = inverse_deg(kWgs84, 10, 20, -30, 100);
    ka_geodesic_distance(kWgs84.a, kWgs84.e2(), 20 * kDeg, 10 * kDeg, 100 * kDeg,
                         -30 * kDeg, nullptr, nullptr, &az2);
    EXPECT_EQ(az2, full.az21);
    ka_geodesic_distance(kWgs84.a, kWgs84.e2(), 20 * kDeg, 10 * kDeg, 100 * kDeg,
                         -30 * kDeg, &s, nullptr, nullptr);
    EXPECT_EQ(s, full.s);
    ka_geodesic_distance(kWgs84.a, kWgs84.e2(), 0, 0, 1, 1, nullptr, nullptr, nullptr);

    const double nan = std::nan("");
    for (double bad_lat : {nan, 2.0, -1.6}) {
        ka_geodesic_distance(kWgs84.a, kWgs84.e2(), 0, bad_lat, 1, 0.5, &s, &az1, &az2);
        EXPECT_TRUE(std::isnan(s) && std::isnan(az1) && std::isnan(az2)) << bad_lat;
    }
    ka_geodesic_distance(kWgs84.a, kWgs84.e2(), std::numeric_limits<double>::infinity(), 0.1, 1, 0.5, &s, &az1, &az2);
    EXPECT_TRUE(std::isnan(s) && std::isnan(az1) && std::isnan(az2));
}

#if VELTRA_HAVE_GEOGRAPHICLIB

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
    case Kind::Short:
        p.lat2 = std::clamp(p.lat1 + offset(2), -90.0, 90.0);
        p.lon2 = p.lon1 + offset(2);
        break;
    case Kind::VeryShort:
        p.lat2 = std::clamp(p.lat1 + offset(9), -90.0, 90.0);
        p.lon2 = p.lon1 + offset(9);
        break;
    case Kind::NearlyAntipodal:
        p.lat2 = std::clamp(-p.lat1 + offset(7), -90.0, 90.0);
        p.lon2 = p.lon1 + 180 + 3 * offset(7);
        break;
    case Kind::Equatorial: p.lat1 = p.lat2 = 0; break;
    case Kind::Meridional: p.lon2 = p.lon1 + (unit(rng) < 0.5 ? 0 : 180); break;
    case Kind::Polar: p.lat1 = unit(rng) < 0.5 ? 90 : -90; break;
    }
    return p;
}

// The oracle's azimuths change by this much when one input moves by two
// units in the last place of its radian value: the size of the rounding of
// our radian inputs from the oracle's degrees.  It is the conditioning of
// the problem, large for very short and nearly antipodal lines.
double azimuth_conditioning(const GeographicLib::Geodesic &g, const Pair &p,
                            double azi1, double azi2) {
    double worst = 0;
    for (int which = 0; which < 4; ++which) {
        Pair q = p;
        double &v = which == 0 ? q.lat1 : which == 1 ? q.lon1 : which == 2 ? q.lat2 : q.lon2;
        double r = v * kDeg;
        double step = 2 * (std::nextafter(std::fabs(r), 1e3) - std::fabs(r)) / kDeg;
        v += which % 2 == 0 && v > 0 ? -step : step;  // latitudes towards the equator
        double s, z1, z2;
        g.Inverse(q.lat1, q.lon1, q.lat2, q.lon2, s, z1, z2);
        worst = std::max({worst, std::fabs(std::remainder(z1 - azi1, 360.0)),
                          std::fabs(std::remainder(z2 - azi2, 360.0))});
    }
    return worst * kDeg;
}

class GeodesicOracle : public ::testing::TestWithParam<Ellipsoid> {};

TEST_P(GeodesicOracle, AgreesWithGeographicLibInverse) {
    const Ellipsoid e = GetParam();
    const GeographicLib::Geodesic g(e.a, e.f());
    std::mt19937_64 rng(20130101);
    double worst_s = 0, worst_az = 0;
    for (Kind kind : {Kind::Random, Kind::Short, Kind::VeryShort, Kind::NearlyAntipodal,
                      Kind::Equatorial, Kind::Meridional, Kind::Polar}) {
        for (int i = 0; i < 3000; ++i) {
            Pair p = make_pair(kind, rng);
            double s, azi1, azi2;
            g.Inverse(p.lat1, p.lon1, p.lat2, p.lon2, s, azi1, azi2);
            Inverse r = inverse_deg(e, p.lat1, p.lon1, p.lat2, p.lon2);
            ASSERT_NEAR(r.s, s, 1e-6) << e.name << " " << p.lat1 << " " << p.lon1 << " "
                                      << p.lat2 << " " << p.lon2;
            worst_s = std::max(worst_s, std::fabs(r.s - s));
            if (s < 1e-6) continue;  // azimuths of a point to itself: by convention
            double conditioning = azimuth_conditioning(g, p, azi1, azi2);
            double tol = 1e-9 + 2 * conditioning;
            double d1 = az_diff(r.az12, azi1 * kDeg);
            double d2 = az_diff(r.az21, (azi2 + 180) * kDeg);
            ASSERT_LE(d1, tol) << e.name << " " << p.lat1 << " " << p.lon1 << " " << p.lat2
                               << " " << p.lon2;
            ASSERT_LE(d2, tol) << e.name << " " << p.lat1 << " " << p.lon1 << " " << p.lat2
                               << " " << p.lon2;
            if (conditioning < 1e-13) worst_az = std::max({worst_az, d1, d2});
        }
    }
    // The well-conditioned majority is far inside the tolerances.
    EXPECT_LT(worst_s, 1e-7);
    EXPECT_LT(worst_az, 1e-12);
}

TEST_P(GeodesicOracle, DirectProblemFromTheResultReachesTheSecondPoint) {
    const Ellipsoid e = GetParam();
    const GeographicLib::Geodesic g(e.a, e.f());
    std::mt19937_64 rng(42);
    for (Kind kind : {Kind::Random, Kind::Short, Kind::NearlyAntipodal}) {
        for (int i = 0; i < 1000; ++i) {
            Pair p = make_pair(kind, rng);
            Inverse r = inverse_deg(e, p.lat1, p.lon1, p.lat2, p.lon2);
            double lat2, lon2, azi2;
            g.Direct(p.lat1, p.lon1, r.az12 / kDeg, r.s, lat2, lon2, azi2);
            // Distance between the point reached and the second point.
            double miss;
            g.Inverse(lat2, lon2, p.lat2, p.lon2, miss);
            EXPECT_LT(miss, 1e-6) << p.lat1 << " " << p.lon1 << " " << p.lat2 << " " << p.lon2;
            EXPECT_LT(az_diff(r.az21, (azi2 + 180) * kDeg), 1e-9 + 1e-15 * e.a / r.s);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Ellipsoids, GeodesicOracle,
                         ::testing::Values(kWgs84, kClarke1866),
                         [](const auto &info) {
                             return std::string(info.param.inv_f > 296 ? "Wgs84" : "Clarke1866");
                         });

#endif  // VELTRA_HAVE_GEOGRAPHICLIB

}  // namespace
