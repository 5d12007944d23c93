// Transverse Mercator / Gauss-Kruger against EPSG's and Snyder's worked
// examples, PROJ (exact and approximate algorithms) and GeographicLib.
#include "support/proj_oracle.h"
#include "support/projcs_builder.h"

#include <gtest/gtest.h>

#include <cmath>

#if VELTRA_HAVE_GEOGRAPHICLIB
#include <GeographicLib/TransverseMercator.hpp>
#endif

namespace {

using namespace veltra::test;

ProjcsPtr utm(double central_meridian, const char *name = "Transverse_Mercator") {
    return make_projcs(name, kWgs84Axis, kWgs84Flattening,
                       {{"Central_Meridian", central_meridian},
                        {"Scale_Factor", 0.9996},
                        {"Latitude_Of_Origin", 0}});
}

// EPSG guidance note 7-2 (JHS formulas): OSGB 1936 / British National Grid.
TEST(TransverseMercator, EpsgBritishNationalGridExample) {
    ProjcsPtr pcs = make_projcs("Transverse_Mercator", 6377563.396,
                                1 / 299.3249646,
                                {{"False_Easting", 400000},
                                 {"False_Northing", -100000},
                                 {"Central_Meridian", -2},
                                 {"Scale_Factor", 0.9996012717},
                                 {"Latitude_Of_Origin", 49}});
    const Point p = to_proj(pcs.get(), 0.5, 50.5);
    EXPECT_NEAR(p.x, 577274.98, 0.006);
    EXPECT_NEAR(p.y, 69740.49, 0.006);
    const Point g = to_geog(pcs.get(), 577274.98, 69740.49);
    EXPECT_NEAR(g.x, 0.5, 1e-7);
    EXPECT_NEAR(g.y, 50.5, 1e-7);
}

// Snyder, Map Projections: A Working Manual, p. 269: Clarke 1866.
TEST(TransverseMercator, SnyderEllipsoidExample) {
    ProjcsPtr pcs = make_projcs("Transverse_Mercator", 6378206.4,
                                flattening_of(0.00676866),
                                {{"Central_Meridian", -75},
                                 {"Scale_Factor", 0.9996}});
    const Point p = to_proj(pcs.get(), -73.5, 40.5);
    EXPECT_NEAR(p.x, 127106.5, 0.05);
    EXPECT_NEAR(p.y, 4484124.4, 0.05);
}

// k0 0.9996 on WGS 84, 45 degrees north, 3 degrees from the meridian.
TEST(TransverseMercator, UtmPointAndItsRoundTrip) {
    ProjcsPtr pcs = utm(0);
    const Point p = to_proj(pcs.get(), 3, 45);
    EXPECT_NEAR(p.x, 236446.026, 0.0005);
    EXPECT_NEAR(p.y, 4987329.505, 0.0005);
    const Point g = to_geog(pcs.get(), p.x, p.y);
    EXPECT_NEAR(g.x, 3, 1e-10);
    EXPECT_NEAR(g.y, 45, 1e-10);
}

// Far outside the zone the series drift, without any failure reported.
TEST(TransverseMercator, FarFromTheMeridianTheRoundTripDriftsSilently) {
    ProjcsPtr pcs = utm(0);
    double c[2] = {30, 45};
    EXPECT_EQ(ka_geog_to_proj(pcs.get(), 1, c), 1);
    EXPECT_EQ(ka_proj_to_geog(pcs.get(), 1, c), 1);
    EXPECT_NEAR(c[0] - 30, -0.014, 0.0005);
    EXPECT_NEAR(c[1] - 45, 0.0016, 0.0001);
}

TEST(TransverseMercator, OriginMapsToZeroAndBackExactly) {
    ProjcsPtr pcs = make_projcs("Transverse_Mercator", kWgs84Axis,
                                kWgs84Flattening,
                                {{"Central_Meridian", 15},
                                 {"Scale_Factor", 0.9999},
                                 {"Latitude_Of_Origin", 37.5}});
    const Point p = to_proj(pcs.get(), 15, 37.5);
    EXPECT_EQ(p.x, 0.0);
    EXPECT_EQ(p.y, 0.0);
    // Back through the footpoint series, which invert the meridian arc to
    // its truncation (a few 1e-14 rad).
    const Point g = to_geog(pcs.get(), 0, 0);
    EXPECT_DOUBLE_EQ(g.x, 15);
    EXPECT_NEAR(g.y, 37.5, 1e-11);
}

// The pole is clamped: x vanishes for any longitude, y is k0 (Q - M0).
TEST(TransverseMercator, NorthPoleIsTheQuarterMeridian) {
    const double e2 = (2 - kWgs84Flattening) * kWgs84Flattening;
    ProjcsPtr pcs = make_projcs("Transverse_Mercator", kWgs84Axis,
                                kWgs84Flattening,
                                {{"Central_Meridian", 0},
                                 {"Scale_Factor", 0.9996},
                                 {"Latitude_Of_Origin", 10}});
    const double expected =
        0.9996 * (ka_q90(kWgs84Axis, e2) - ka_q(kWgs84Axis, e2, 10 * kDegree));
    for (double lon : {-170.0, -45.0, 0.0, 3.0, 90.0, 180.0}) {
        const Point p = to_proj(pcs.get(), lon, 90);
        EXPECT_LT(std::fabs(p.x), 1e-9) << lon;
        EXPECT_NEAR(p.y, expected, 1e-7) << lon;
    }
    EXPECT_NEAR(expected, 0.9996 * (10001965.7293 - 1105854.8332), 1e-3);
}

TEST(TransverseMercator, GaussKrugerIsTheSameProjection) {
    ProjcsPtr tm = utm(9), gk = utm(9, "Gauss_Kruger");
    const Point a = to_proj(tm.get(), 11.5, 52.25);
    const Point b = to_proj(gk.get(), 11.5, 52.25);
    EXPECT_EQ(a.x, b.x);
    EXPECT_EQ(a.y, b.y);
    ka_projection *p43005 = ka_factory_projection(43005);
    ka_projection *p43006 = ka_projection_clone(ka_projcs_projection(tm.get()));
    EXPECT_EQ(ka_projection_forward(p43005), ka_projection_forward(p43006));
    EXPECT_EQ(ka_projection_inverse(p43005), ka_projection_inverse(p43006));
    EXPECT_EQ(ka_projection_horizon(p43005), ka_projection_horizon(p43006));
    EXPECT_FALSE(ka_projection_eq(p43005, p43006));  // names differ
    ka_projection_del(p43005);
    ka_projection_del(p43006);
}

TEST(TransverseMercator, RoundTripsAcrossAZone) {
    ProjcsPtr pcs = make_projcs("Transverse_Mercator", kWgs84Axis,
                                kWgs84Flattening,
                                {{"False_Easting", 500000},
                                 {"False_Northing", 10000000},
                                 {"Central_Meridian", -63},
                                 {"Scale_Factor", 0.9996}});
    for (double lat = -84; lat <= 84; lat += 4) {
        for (double dl = -3; dl <= 3; dl += 0.75) {
            const Point p = to_proj(pcs.get(), -63 + dl, lat);
            const Point g = to_geog(pcs.get(), p.x, p.y);
            EXPECT_NEAR(g.x, -63 + dl, 1e-9) << lat << " " << dl;
            EXPECT_NEAR(g.y, lat, 1e-9) << lat << " " << dl;
        }
    }
}

TEST(TransverseMercator, SphereAtNinetyDegreesFromTheMeridianIsFinite) {
    ProjcsPtr pcs = make_projcs("Transverse_Mercator", 6371000, 0,
                                {{"Scale_Factor", 1}});
    double c[4] = {90, 0, -90, 0};
    EXPECT_EQ(ka_geog_to_proj(pcs.get(), 2, c), 2);
    EXPECT_TRUE(std::isfinite(c[0]));
    EXPECT_GT(c[0], to_proj(pcs.get(), 89.999, 0).x);
    EXPECT_EQ(c[2], -c[0]);
    // Back to where cos(phi) sin(dl) is the clamped B = 1 - 3.6e-15:
    // dl = 90 degrees less sqrt(7.2e-15) rad.
    EXPECT_EQ(ka_proj_to_geog(pcs.get(), 2, c), 2);
    EXPECT_NEAR(c[0], 90 - std::sqrt(7.2e-15) / kDegree, 1e-7);
    EXPECT_NEAR(c[2], -c[0], 1e-12);
}

#if VELTRA_HAVE_PROJ
// PROJ's default is an exact algorithm; within a 3-degree zone the eighth
// order series stays within a millimetre of it.
TEST(TransverseMercator, AgreesWithProjWithinAZone) {
    ProjOracle exact("+proj=tmerc +ellps=WGS84 +lon_0=-63 +lat_0=20 +k=0.9996");
    ProjOracle approx(
        "+proj=tmerc +approx +ellps=WGS84 +lon_0=-63 +lat_0=20 +k=0.9996");
    ASSERT_TRUE(exact.valid() && approx.valid());
    ProjcsPtr pcs = make_projcs("Transverse_Mercator", kWgs84Axis,
                                kWgs84Flattening,
                                {{"Central_Meridian", -63},
                                 {"Scale_Factor", 0.9996},
                                 {"Latitude_Of_Origin", 20}});
    for (double lat = -80; lat <= 84; lat += 4) {
        for (double dl = -3; dl <= 3; dl += 0.5) {
            const double lon = -63 + dl;
            double x, y;
            exact.forward(lon * kDegree, lat * kDegree, x, y);
            const Point p = to_proj(pcs.get(), lon, lat);
            EXPECT_NEAR(p.x, x, 1e-3) << lat << " " << dl;
            EXPECT_NEAR(p.y, y, 1e-3) << lat << " " << dl;
            const Point g = to_geog(pcs.get(), x, y);
            EXPECT_NEAR(g.x, lon, 1e-8);
            EXPECT_NEAR(g.y, lat, 1e-8);
            approx.forward(lon * kDegree, lat * kDegree, x, y);
            EXPECT_NEAR(p.x, x, 2e-3) << lat << " " << dl;
            EXPECT_NEAR(p.y, y, 2e-3) << lat << " " << dl;
        }
    }
}

TEST(TransverseMercator, SphereAgreesWithProj) {
    ProjOracle oracle("+proj=tmerc +R=6371000 +lon_0=20 +lat_0=-30 +k=0.9999");
    ASSERT_TRUE(oracle.valid());
    ProjcsPtr pcs = make_projcs("Transverse_Mercator", 6371000, 0,
                                {{"Central_Meridian", 20},
                                 {"Scale_Factor", 0.9999},
                                 {"Latitude_Of_Origin", -30}});
    // PROJ takes the spherical northing through an arccosine, which loses
    // half its digits at the equator: the grid steps over latitude 0.
    for (double lat = -82.5; lat <= 85; lat += 5) {
        for (double dl = -60; dl <= 60; dl += 10) {
            double x, y;
            oracle.forward((20 + dl) * kDegree, lat * kDegree, x, y);
            const Point p = to_proj(pcs.get(), 20 + dl, lat);
            EXPECT_NEAR(p.x, x, 1e-6) << lat << " " << dl;
            EXPECT_NEAR(p.y, y, 1e-6) << lat << " " << dl;
            const Point g = to_geog(pcs.get(), x, y);
            EXPECT_NEAR(g.x, 20 + dl, 1e-9);
            EXPECT_NEAR(g.y, lat, 1e-9);
        }
    }
}
#endif

#if VELTRA_HAVE_GEOGRAPHICLIB
TEST(TransverseMercator, AgreesWithGeographicLibWithinAZone) {
    const GeographicLib::TransverseMercator krueger(kWgs84Axis,
                                                    kWgs84Flattening, 0.9996);
    ProjcsPtr pcs = utm(123);
    for (double lat = -80; lat <= 84; lat += 8) {
        for (double dl = -3; dl <= 3; dl += 1.5) {
            double x, y;
            krueger.Forward(123, lat, 123 + dl, x, y);
            const Point p = to_proj(pcs.get(), 123 + dl, lat);
            EXPECT_NEAR(p.x, x, 1e-3);
            EXPECT_NEAR(p.y, y, 1e-3);
        }
    }
}
#endif

}  // namespace
