// Mercator against Snyder's and EPSG's worked examples and the closed-form
// isometric latitude (PROJ: test_cylindrical).
#include <gtest/gtest.h>

#include <cmath>

#include "support/projcs_builder.h"

namespace {

using namespace veltra::test;

// Snyder, Map Projections: A Working Manual, pp. 266-267 (Clarke 1866 and
// the unit sphere); values published to 0.1 m and 1e-7.
TEST(Mercator, SnyderExamples) {
    ProjcsPtr pcs =
        make_projcs("Mercator", 6378206.4, flattening_of(0.00676866),
                    {{"Central_Meridian", -180}});
    const Point p = to_proj(pcs.get(), -75, 35);
    EXPECT_NEAR(p.x, 11688673.7, 0.05);
    EXPECT_NEAR(p.y, 4139145.6, 0.06);
    const Point g = to_geog(pcs.get(), 11688673.7, 4139145.6);
    EXPECT_NEAR(g.x, -75, 1e-6);
    EXPECT_NEAR(g.y, 35, 1e-6);
    ProjcsPtr sphere =
        make_projcs("Mercator", 1.0, 0, {{"Central_Meridian", -180}});
    const Point s = to_proj(sphere.get(), -75, 35);
    EXPECT_NEAR(s.x, 1.8325957, 5e-8);
    EXPECT_NEAR(s.y, 0.6528366, 5e-8);
}

// EPSG guidance note 7-2, Mercator (variant B): Pulkovo 1942 / Caspian Sea
// Mercator, standard parallel 42 N, natural origin 51 E.
TEST(Mercator, EpsgVariantBExample) {
    ProjcsPtr pcs =
        make_projcs("Mercator", 6378245.0, 1 / 298.3,
                    {{"Central_Meridian", 51}, {"Standard_Parallel_1", 42}});
    const Point p = to_proj(pcs.get(), 53, 53);
    EXPECT_NEAR(p.x, 165704.29, 0.005);
    EXPECT_NEAR(p.y, 5171848.07, 0.005);
    const Point g = to_geog(pcs.get(), 165704.29, 5171848.07);
    EXPECT_NEAR(g.x, 53, 1e-7);
    EXPECT_NEAR(g.y, 53, 1e-7);
}

// y = a m1 psi, psi = ln(tan(pi/4 + phi/2) ((1 - e s)/(1 + e s))^(e/2)) in
// closed form: the conformal series stays within about 5e-5 m of it.
TEST(Mercator, MatchesTheClosedFormIsometricLatitudeAndRoundTrips) {
    const double a = kWgs84Axis, e = std::sqrt(kWgs84E2);
    const double s1 = std::sin(-35 * kDegree);
    const double am1 =
        a * std::cos(35 * kDegree) / std::sqrt(1 - kWgs84E2 * s1 * s1);
    ProjcsPtr pcs =
        make_projcs("Mercator", a, kWgs84Flattening,
                    {{"Central_Meridian", 12}, {"Standard_Parallel_1", -35}});
    for (double lat = -89; lat <= 89; lat += 2) {
        const double s = std::sin(lat * kDegree);
        const double psi = std::log(std::tan(kDegree * (45 + lat / 2)) *
                                    std::pow((1 - e * s) / (1 + e * s), e / 2));
        for (double lon = -165; lon <= 190; lon += 71) {
            const Point p = to_proj(pcs.get(), lon, lat);
            EXPECT_NEAR(p.y, am1 * psi, 1e-4) << lat;
            // A longitude 190 east of the meridian is 170 west of it.
            EXPECT_NEAR(p.x, am1 * std::remainder(lon - 12, 360.0) * kDegree,
                        1e-6);
            const Point g = to_geog(pcs.get(), p.x, p.y);
            EXPECT_NEAR(g.x, std::remainder(lon, 360.0), 1e-9);
            EXPECT_NEAR(g.y, lat, 1e-9);
        }
    }
}

TEST(Mercator, StandardParallelZeroScalesLongitudeByTheAxis) {
    for (double flattening : {0.0, kWgs84Flattening}) {
        ProjcsPtr pcs = make_projcs("Mercator", kWgs84Axis, flattening,
                                    {{"Standard_Parallel_1", 0}});
        EXPECT_DOUBLE_EQ(to_proj(pcs.get(), 37, 10).x,
                         kWgs84Axis * 37 * kDegree);
    }
}

// Poles are clamped to pi/2 less 25 ulps: finite and symmetric, counted.
TEST(Mercator, PolesAreClampedNotFailed) {
    for (double flattening : {0.0, kWgs84Flattening}) {
        ProjcsPtr pcs = make_projcs("Mercator", 1.0, flattening, {});
        double c[4] = {0, 90, 0, -90};
        EXPECT_EQ(ka_geog_to_proj(pcs.get(), 2, c), 2);
        EXPECT_NEAR(c[1], 33.53602631873441, 1e-9);
        EXPECT_EQ(c[3], -c[1]);
    }
}

}  // namespace
