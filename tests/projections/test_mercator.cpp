// Mercator against Snyder's and EPSG's worked examples, the closed-form
// isometric latitude and PROJ.
#include "support/proj_oracle.h"
#include "support/projcs_builder.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace veltra::test;

constexpr double kClarke1866Axis = 6378206.4;
constexpr double kClarke1866E2 = 0.00676866;

// Snyder, Map Projections: A Working Manual, p. 266-267.
TEST(Mercator, SnyderEllipsoidExample) {
    ProjcsPtr pcs = make_projcs("Mercator", kClarke1866Axis,
                                flattening_of(kClarke1866E2),
                                {{"Central_Meridian", -180}});
    const Point p = to_proj(pcs.get(), -75, 35);
    EXPECT_NEAR(p.x, 11688673.7, 0.05);
    EXPECT_NEAR(p.y, 4139145.6, 0.06);
    const Point g = to_geog(pcs.get(), 11688673.7, 4139145.6);
    EXPECT_NEAR(g.x, -75, 1e-6);  // 0.1 m of rounding in the example
    EXPECT_NEAR(g.y, 35, 1e-6);
}

TEST(Mercator, SnyderSphereExample) {
    ProjcsPtr pcs =
        make_projcs("Mercator", 1.0, 0, {{"Central_Meridian", -180}});
    const Point p = to_proj(pcs.get(), -75, 35);
    EXPECT_NEAR(p.x, 1.8325957, 5e-8);
    EXPECT_NEAR(p.y, 0.6528366, 5e-8);
}

// EPSG guidance note 7-2, Mercator (variant B): Pulkovo 1942 / Caspian Sea
// Mercator, standard parallel 42 N, natural origin 51 E.
TEST(Mercator, EpsgVariantBExample) {
    ProjcsPtr pcs = make_projcs("Mercator", 6378245.0, 1 / 298.3,
                                {{"Central_Meridian", 51},
                                 {"Standard_Parallel_1", 42}});
    const Point p = to_proj(pcs.get(), 53, 53);
    EXPECT_NEAR(p.x, 165704.29, 0.005);
    EXPECT_NEAR(p.y, 5171848.07, 0.005);
    const Point g = to_geog(pcs.get(), 165704.29, 5171848.07);
    EXPECT_NEAR(g.x, 53, 1e-7);
    EXPECT_NEAR(g.y, 53, 1e-7);
}

// y = a m1 psi with the isometric latitude in closed form,
// psi = ln(tan(pi/4 + phi/2) ((1 - e sin)/(1 + e sin))^(e/2)); the
// conformal series stays within about 5e-5 m of it below 89 degrees.
TEST(Mercator, MatchesTheClosedFormIsometricLatitude) {
    const double a = kWgs84Axis, f = kWgs84Flattening, e2 = (2 - f) * f;
    const double e = std::sqrt(e2), phi1 = 20 * kDegree;
    const double am1 = a * std::cos(phi1) / std::sqrt(1 - e2 * std::sin(phi1) *
                                                             std::sin(phi1));
    ProjcsPtr pcs = make_projcs("Mercator", a, f,
                                {{"Central_Meridian", 10},
                                 {"Standard_Parallel_1", 20}});
    for (double lat = -89; lat <= 89; lat += 1) {
        const double phi = lat * kDegree, s = std::sin(phi);
        const double psi = std::log(std::tan(kDegree * 45 + phi / 2) *
                                    std::pow((1 - e * s) / (1 + e * s), e / 2));
        const Point p = to_proj(pcs.get(), 25, lat);
        EXPECT_NEAR(p.y, am1 * psi, 1e-4) << lat;
        EXPECT_NEAR(p.x, am1 * 15 * kDegree, 1e-8);
    }
}

TEST(Mercator, StandardParallelZeroScalesLongitudeByTheAxis) {
    for (double flattening : {0.0, kWgs84Flattening}) {
        ProjcsPtr pcs = make_projcs("Mercator", kWgs84Axis, flattening,
                                    {{"Standard_Parallel_1", 0}});
        EXPECT_DOUBLE_EQ(to_proj(pcs.get(), 37, 10).x, kWgs84Axis * 37 * kDegree);
    }
}

// Poles are clamped to pi/2 less 25 ulps: finite y, every point counted.
TEST(Mercator, PolesAreClampedNotFailed) {
    ProjcsPtr sphere = make_projcs("Mercator", 1.0, 0, {});
    double c[4] = {0, 90, 0, -90};
    EXPECT_EQ(ka_geog_to_proj(sphere.get(), 2, c), 2);
    EXPECT_NEAR(c[1], 33.53602631873441, 1e-9);
    EXPECT_NEAR(c[3], -33.53602631873441, 1e-9);
    ProjcsPtr ellipsoid = make_projcs("Mercator", kWgs84Axis, kWgs84Flattening, {});
    double d[2] = {0, 90};
    EXPECT_EQ(ka_geog_to_proj(ellipsoid.get(), 1, d), 1);
    EXPECT_TRUE(std::isfinite(d[1]));
    EXPECT_NEAR(d[1] / kWgs84Axis, 33.536, 1e-3);
}

TEST(Mercator, LongitudesFoldAroundTheCentralMeridian) {
    ProjcsPtr pcs = make_projcs("Mercator", kWgs84Axis, kWgs84Flattening,
                                {{"Central_Meridian", -100}});
    const Point east = to_proj(pcs.get(), 90, 30);   // 190 east of -100
    const Point west = to_proj(pcs.get(), -270, 30);  // 170 west
    EXPECT_NEAR(east.x, west.x, 1e-6);
    EXPECT_NEAR(east.x, -kWgs84Axis * 170 * kDegree, 1e-6);
    const Point g = to_geog(pcs.get(), kWgs84Axis * 150 * kDegree, 0);
    EXPECT_NEAR(g.x, 50, 1e-10);  // -100 + 150
    const Point h = to_geog(pcs.get(), -kWgs84Axis * 150 * kDegree, 0);
    EXPECT_NEAR(h.x, 110, 1e-10);  // -250 folded
}

TEST(Mercator, RoundTrips) {
    ProjcsPtr pcs = make_projcs("Mercator", kWgs84Axis, kWgs84Flattening,
                                {{"Central_Meridian", 12},
                                 {"Standard_Parallel_1", -35}});
    for (double lat = -85; lat <= 85; lat += 5) {
        for (double lon = -165; lon <= 190; lon += 25) {
            const Point p = to_proj(pcs.get(), lon, lat);
            const Point g = to_geog(pcs.get(), p.x, p.y);
            EXPECT_NEAR(g.x, std::remainder(lon, 360.0), 1e-9);  // folded
            // The two conformal series invert each other to ~1e-12 rad.
            EXPECT_NEAR(g.y, lat, 1e-9);
        }
    }
}

#if VELTRA_HAVE_PROJ
TEST(Mercator, AgreesWithProj) {
    ProjOracle ellipsoid("+proj=merc +ellps=WGS84 +lon_0=10 +lat_ts=20");
    ProjOracle sphere("+proj=merc +R=6371000 +lon_0=10 +lat_ts=20");
    ASSERT_TRUE(ellipsoid.valid() && sphere.valid());
    ProjcsPtr ours = make_projcs("Mercator", kWgs84Axis, kWgs84Flattening,
                                 {{"Central_Meridian", 10},
                                  {"Standard_Parallel_1", 20}});
    ProjcsPtr ours_sphere = make_projcs("Mercator", 6371000, 0,
                                        {{"Central_Meridian", 10},
                                         {"Standard_Parallel_1", 20}});
    for (double lat = -88; lat <= 88; lat += 4) {
        for (double lon = -160; lon <= 180; lon += 20) {
            double x, y;
            ellipsoid.forward(lon * kDegree, lat * kDegree, x, y);
            Point p = to_proj(ours.get(), lon, lat);
            EXPECT_NEAR(p.x, x, 1e-6);
            EXPECT_NEAR(p.y, y, 1e-4);  // the conformal series' truncation
            double lam, phi;
            ellipsoid.inverse(x, y, lam, phi);
            const Point g = to_geog(ours.get(), x, y);
            EXPECT_NEAR(g.y, phi / kDegree, 1e-9);
            sphere.forward(lon * kDegree, lat * kDegree, x, y);
            p = to_proj(ours_sphere.get(), lon, lat);
            EXPECT_NEAR(p.x, x, 1e-6);
            EXPECT_NEAR(p.y, y, 1e-6);
        }
    }
}
#endif

}  // namespace
