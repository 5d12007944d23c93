// The geographic-projected drivers: units of points and parameters, the
// false origin, prime meridians, failed points, counts.
#include <gtest/gtest.h>

#include <cmath>

#include "support/proj_oracle.h"
#include "support/projcs_builder.h"

namespace {

using namespace veltra::test;

TEST(GeogToProj, NothingToConvertTouchesNothing) {
    ProjcsPtr pcs = make_projcs("Mercator", kWgs84Axis, kWgs84Flattening,
                                {{"False_Easting", 1000}});
    double c[2] = {12.0, 34.0};
    EXPECT_EQ(ka_geog_to_proj(pcs.get(), 0, c), 0);
    EXPECT_EQ(ka_proj_to_geog(pcs.get(), 0, c), 0);
    EXPECT_EQ(ka_geog_to_proj(pcs.get(), -3, c), 0);
    EXPECT_EQ(c[0], 12.0);
    EXPECT_EQ(c[1], 34.0);
    EXPECT_EQ(ka_geog_to_proj(pcs.get(), 5, nullptr), 0);
    // An invalid system: factors 1, no false origin, the routine that
    // changes nothing and returns n.
    EXPECT_EQ(ka_geog_to_proj(nullptr, 1, c), 1);
    EXPECT_EQ(ka_proj_to_geog(nullptr, 1, c), 1);
    EXPECT_EQ(c[0], 12.0);
}

// Plate Carree on the unit sphere shows what the routine receives.
TEST(GeogToProj, AnglesReachTheRoutineInRadians) {
    ProjcsPtr deg = make_projcs("Plate_Carree", 1.0, 0, {});
    const Point p = to_proj(deg.get(), 1.0, -2.0);
    EXPECT_DOUBLE_EQ(p.x, kDegree);
    EXPECT_DOUBLE_EQ(p.y, -2 * kDegree);
    ProjcsPtr grad =
        make_projcs("Plate_Carree", 1.0, 0, {{"Central_Meridian", 100}},
                    {.angular = kGrad});
    const Point g = to_proj(grad.get(), 150, 50);
    EXPECT_DOUBLE_EQ(g.x, 50 * kGrad);
    EXPECT_DOUBLE_EQ(g.y, 50 * kGrad);
    const Point back = to_geog(grad.get(), g.x, g.y);
    EXPECT_NEAR(back.x, 150, 1e-12);
    EXPECT_NEAR(back.y, 50, 1e-12);
}

// US survey feet: the false origin is in feet, added in metres, and the
// sum is written in feet.  PROJ takes the false origin in metres.
TEST(GeogToProj, FeetSystemAddsTheFalseOriginInMetres) {
    const double fe = 2000000, fn = 500000, f = 1 / 298.257222101;
    ProjcsPtr feet = make_projcs("Transverse_Mercator", kWgs84Axis, f,
                                 {{"False_Easting", fe},
                                  {"False_Northing", fn},
                                  {"Central_Meridian", -120.5},
                                  {"Scale_Factor", 0.9999},
                                  {"Latitude_Of_Origin", 35.0}},
                                 {.linear = kUsFoot});
    ProjcsPtr metres = make_projcs("Transverse_Mercator", kWgs84Axis, f,
                                   {{"Central_Meridian", -120.5},
                                    {"Scale_Factor", 0.9999},
                                    {"Latitude_Of_Origin", 35.0}});
    const Point p = to_proj(feet.get(), -121.25, 36.5);
    const Point m = to_proj(metres.get(), -121.25, 36.5);
    EXPECT_NEAR(p.x, (m.x + fe * kUsFoot) / kUsFoot, 1e-7);
    EXPECT_NEAR(p.y, (m.y + fn * kUsFoot) / kUsFoot, 1e-7);
    const Point back = to_geog(feet.get(), p.x, p.y);
    EXPECT_NEAR(back.x, -121.25, 1e-10);
    EXPECT_NEAR(back.y, 36.5, 1e-10);
#if VELTRA_HAVE_PROJ
    ProjOracle oracle(
        "+proj=tmerc +ellps=GRS80 +lat_0=35 +lon_0=-120.5 +k=0.9999 "
        "+x_0=609601.2192024384 +y_0=152400.3048006096 +units=us-ft");
    ASSERT_TRUE(oracle.valid());
    double x, y;
    oracle.run(PJ_FWD, -121.25 * kDegree, 36.5 * kDegree, x, y);
    EXPECT_NEAR(p.x, x, 1e-3);
    EXPECT_NEAR(p.y, y, 1e-3);
#endif
}

// Longitudes and the central meridian are both taken relative to the
// system's own prime meridian (Paris here).
TEST(GeogToProj, PrimeMeridianIsNotApplied) {
    const double a = 6378249.2, f = 1 / 293.4660212936269;
    ProjcsPtr paris = make_projcs("Mercator", a, f, {{"Central_Meridian", 1.5}},
                                  {.prime_meridian = 2.33722917});
    ProjcsPtr greenwich =
        make_projcs("Mercator", a, f, {{"Central_Meridian", 1.5}});
    const Point p = to_proj(paris.get(), 4.0, 46.0);
    EXPECT_EQ(p.x, to_proj(greenwich.get(), 4.0, 46.0).x);
    EXPECT_NEAR(p.x, a * 2.5 * kDegree, 1e-6);
}

TEST(GeogToProj, FailedPointsStayNaNThroughTheUnitsAndAreNotCounted) {
    ProjcsPtr polar =
        make_projcs("Cylindrical_Equal_Area", kWgs84Axis, kWgs84Flattening,
                    {{"Standard_Parallel_1", 90},
                     {"False_Easting", 1000},
                     {"False_Northing", 1000}},
                    {.linear = 0.3048});
    double c[4] = {10, 20, 30, 40};
    EXPECT_EQ(ka_geog_to_proj(polar.get(), 2, c), 0);
    for (double v : c) EXPECT_TRUE(std::isnan(v));
}

}  // namespace
