// Transverse Mercator / Gauss-Kruger against EPSG's and Snyder's worked
// examples and PROJ (exact and series algorithms).
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "support/proj_oracle.h"
#include "support/projcs_builder.h"

namespace {

using namespace veltra::test;

ProjcsPtr tm(double central_meridian, double origin = 0,
             double flattening = kWgs84Flattening) {
    return make_projcs("Transverse_Mercator", kWgs84Axis, flattening,
                       {{"Central_Meridian", central_meridian},
                        {"Scale_Factor", 0.9996},
                        {"Latitude_Of_Origin", origin}});
}

// EPSG guidance note 7-2 (JHS formulas): OSGB 1936 / British National
// Grid; Snyder p. 269 (Clarke 1866, values to 0.1 m).
TEST(TransverseMercator, WorkedExamples) {
    ProjcsPtr bng =
        make_projcs("Transverse_Mercator", 6377563.396, 1 / 299.3249646,
                    {{"False_Easting", 400000},
                     {"False_Northing", -100000},
                     {"Central_Meridian", -2},
                     {"Scale_Factor", 0.9996012717},
                     {"Latitude_Of_Origin", 49}});
    const Point p = to_proj(bng.get(), 0.5, 50.5);
    EXPECT_NEAR(p.x, 577274.98, 0.006);
    EXPECT_NEAR(p.y, 69740.49, 0.006);
    const Point g = to_geog(bng.get(), 577274.98, 69740.49);
    EXPECT_NEAR(g.x, 0.5, 1e-7);
    EXPECT_NEAR(g.y, 50.5, 1e-7);
    ProjcsPtr snyder =
        make_projcs("Transverse_Mercator", 6378206.4, flattening_of(0.00676866),
                    {{"Central_Meridian", -75}, {"Scale_Factor", 0.9996}});
    const Point s = to_proj(snyder.get(), -73.5, 40.5);
    EXPECT_NEAR(s.x, 127106.5, 0.05);
    EXPECT_NEAR(s.y, 4484124.4, 0.05);
}

// k0 0.9996 on WGS 84: 3 degrees out the round trip holds to 1e-10
// degrees; 30 degrees out it drifts by about 0.014 and 0.0016 degrees,
// silently.
TEST(TransverseMercator, UtmPointAndTheSeriesLimits) {
    ProjcsPtr pcs = tm(0);
    const Point p = to_proj(pcs.get(), 3, 45);
    EXPECT_NEAR(p.x, 236446.026, 0.0005);
    EXPECT_NEAR(p.y, 4987329.505, 0.0005);
    const Point g = to_geog(pcs.get(), p.x, p.y);
    EXPECT_NEAR(g.x, 3, 1e-10);
    EXPECT_NEAR(g.y, 45, 1e-10);
    double c[2] = {30, 45};
    EXPECT_EQ(ka_geog_to_proj(pcs.get(), 1, c), 1);
    EXPECT_EQ(ka_proj_to_geog(pcs.get(), 1, c), 1);
    EXPECT_NEAR(c[0] - 30, -0.014, 0.0005);
    EXPECT_NEAR(c[1] - 45, 0.0016, 0.0001);
}

TEST(TransverseMercator, OriginMapsToZero) {
    ProjcsPtr pcs = tm(15, 37.5);
    const Point p = to_proj(pcs.get(), 15, 37.5);
    EXPECT_EQ(p.x, 0.0);
    EXPECT_EQ(p.y, 0.0);
    // Back through the footpoint series, which invert the meridian arc to
    // their truncation (a few 1e-14 rad).
    const Point g = to_geog(pcs.get(), 0, 0);
    EXPECT_DOUBLE_EQ(g.x, 15);
    EXPECT_NEAR(g.y, 37.5, 1e-11);
}

// Every longitude of the pole lands on the central meridian at k0 (Q - M0):
// 0.9996 (10001965.729 - 1105854.833) m for an origin at 10 degrees.
TEST(TransverseMercator, PoleIsTheQuarterMeridian) {
    ProjcsPtr pcs = tm(0, 10);
    const double quarter = 0.9996 * (ka_q90(kWgs84Axis, kWgs84E2) -
                                     ka_q(kWgs84Axis, kWgs84E2, 10 * kDegree));
    for (double lon : {-170.0, -45.0, 0.0, 3.0, 90.0, 180.0}) {
        const Point p = to_proj(pcs.get(), lon, 90);
        EXPECT_LT(std::fabs(p.x), 1e-9) << lon;
        EXPECT_NEAR(p.y, quarter, 1e-7) << lon;
        EXPECT_NEAR(p.y, 0.9996 * (10001965.729 - 1105854.833), 1e-3);
        EXPECT_NEAR(to_proj(pcs.get(), lon, -90).y,
                    -0.9996 * (10001965.729 + 1105854.833), 1e-3);
    }
}

// The clamped B = 1 - 3.6e-15 gives a finite x, which comes back to
// dl = 90 degrees less sqrt(7.2e-15) rad.
TEST(TransverseMercator, SphereAtNinetyDegreesFromTheMeridianIsFinite) {
    ProjcsPtr pcs =
        make_projcs("Transverse_Mercator", 6371000, 0, {{"Scale_Factor", 1}});
    double c[4] = {90, 0, -90, 0};
    EXPECT_EQ(ka_geog_to_proj(pcs.get(), 2, c), 2);
    EXPECT_TRUE(std::isfinite(c[0]));
    EXPECT_GT(c[0], to_proj(pcs.get(), 89.999, 0).x);
    EXPECT_EQ(c[2], -c[0]);
    EXPECT_EQ(ka_proj_to_geog(pcs.get(), 2, c), 2);
    EXPECT_NEAR(c[0], 90 - std::sqrt(7.2e-15) / kDegree, 1e-7);
}

#if VELTRA_HAVE_PROJ
// PROJ's default is an exact algorithm, +approx a series of its own: within
// a 3-degree zone ours stays within a millimetre of the first.
TEST(TransverseMercator, AgreesWithProjWithinAZone) {
    const std::string common = " +ellps=WGS84 +lon_0=-63 +lat_0=20 +k=0.9996";
    ProjOracle exact("+proj=tmerc" + common),
        approx("+proj=tmerc +approx" + common);
    ASSERT_TRUE(exact.valid() && approx.valid());
    ProjcsPtr pcs = tm(-63, 20);
    for (double lat = -80; lat <= 84; lat += 4) {
        for (double dl = -3; dl <= 3; dl += 0.5) {
            double x, y, ax, ay;
            exact.run(PJ_FWD, (-63 + dl) * kDegree, lat * kDegree, x, y);
            approx.run(PJ_FWD, (-63 + dl) * kDegree, lat * kDegree, ax, ay);
            const Point p = to_proj(pcs.get(), -63 + dl, lat);
            EXPECT_NEAR(p.x, x, 1e-3) << lat << " " << dl;
            EXPECT_NEAR(p.y, y, 1e-3) << lat << " " << dl;
            EXPECT_NEAR(p.x, ax, 2e-3);
            EXPECT_NEAR(p.y, ay, 2e-3);
            const Point g = to_geog(pcs.get(), x, y);
            EXPECT_NEAR(g.x, -63 + dl, 1e-8);
            EXPECT_NEAR(g.y, lat, 1e-8);
        }
    }
}

// PROJ takes the spherical northing through an arccosine, which loses half
// its digits at the equator: the grid steps over latitude 0.
TEST(TransverseMercator, SphereAgreesWithProj) {
    ProjOracle oracle("+proj=tmerc +R=6378137 +lon_0=20 +lat_0=-30 +k=0.9996");
    ASSERT_TRUE(oracle.valid());
    ProjcsPtr pcs = tm(20, -30, 0);
    for (double lat = -82.5; lat <= 85; lat += 5) {
        for (double dl = -60; dl <= 60; dl += 10) {
            double x, y;
            oracle.run(PJ_FWD, (20 + dl) * kDegree, lat * kDegree, x, y);
            const Point p = to_proj(pcs.get(), 20 + dl, lat);
            EXPECT_NEAR(p.x, x, 1e-6);
            EXPECT_NEAR(p.y, y, 1e-6);
            const Point g = to_geog(pcs.get(), x, y);
            EXPECT_NEAR(g.x, 20 + dl, 1e-9);
            EXPECT_NEAR(g.y, lat, 1e-9);
        }
    }
}
#endif

}  // namespace
