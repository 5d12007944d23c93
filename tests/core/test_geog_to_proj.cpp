// The geographic-projected drivers: unit conversion of points and
// parameters, the false origin, prime meridians, failed points, counts.
#include "support/proj_oracle.h"
#include "support/projcs_builder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

namespace {

using namespace veltra::test;

TEST(GeogToProj, ZeroPointsTouchNothing) {
    ProjcsPtr pcs = make_projcs("Mercator", kWgs84Axis, kWgs84Flattening,
                                {{"False_Easting", 1000}});
    double c[2] = {12.0, 34.0};
    EXPECT_EQ(ka_geog_to_proj(pcs.get(), 0, c), 0);
    EXPECT_EQ(ka_proj_to_geog(pcs.get(), 0, c), 0);
    EXPECT_EQ(c[0], 12.0);
    EXPECT_EQ(c[1], 34.0);
    EXPECT_EQ(ka_geog_to_proj(pcs.get(), -3, c), 0);
    EXPECT_EQ(c[0], 12.0);
    EXPECT_EQ(ka_geog_to_proj(pcs.get(), 5, nullptr), 0);
    EXPECT_EQ(ka_proj_to_geog(pcs.get(), 5, nullptr), 0);
}

// An invalid system: factors 1, no false origin, a routine that changes
// nothing and returns n.
TEST(GeogToProj, InvalidSystemLeavesPointsAsTheyAre) {
    double c[4] = {1.25, -2.5, 100.0, 200.0};
    EXPECT_EQ(ka_geog_to_proj(nullptr, 2, c), 2);
    EXPECT_EQ(ka_proj_to_geog(nullptr, 2, c), 2);
    EXPECT_EQ(c[0], 1.25);
    EXPECT_EQ(c[1], -2.5);
    EXPECT_EQ(c[3], 200.0);
}

// The routine sees radians: Plate Carree of one degree on the unit sphere
// is one degree in radians.
TEST(GeogToProj, DegreesReachTheRoutineAsRadians) {
    ProjcsPtr pcs = make_projcs("Plate_Carree", 1.0, 0, {});
    const Point p = to_proj(pcs.get(), 1.0, -2.0);
    EXPECT_DOUBLE_EQ(p.x, kDegree);
    EXPECT_DOUBLE_EQ(p.y, -2 * kDegree);
    const Point g = to_geog(pcs.get(), p.x, p.y);
    EXPECT_DOUBLE_EQ(g.x, 1.0);
    EXPECT_DOUBLE_EQ(g.y, -2.0);
}

TEST(GeogToProj, GradsConvertPointsAndAngularParameters) {
    ProjcsPtr deg = make_projcs("Equidistant_Cylindrical", 6371000, 0,
                                {{"Central_Meridian", 9},
                                 {"Standard_Parallel_1", 45}});
    ProjcsPtr grad = make_projcs("Equidistant_Cylindrical", 6371000, 0,
                                 {{"Central_Meridian", 10},
                                  {"Standard_Parallel_1", 50}},
                                 {.angular = kGrad});
    const Point d = to_proj(deg.get(), 18.0, 27.0);
    const Point g = to_proj(grad.get(), 20.0, 30.0);
    EXPECT_NEAR(g.x, d.x, 1e-7);
    EXPECT_NEAR(g.y, d.y, 1e-7);
    const Point back = to_geog(grad.get(), g.x, g.y);
    EXPECT_NEAR(back.x, 20.0, 1e-12);
    EXPECT_NEAR(back.y, 30.0, 1e-12);
}

// A system in US survey feet: the false easting is in feet, the result is
// (routine x + FE in metres) / foot.
TEST(GeogToProj, FeetSystemAddsTheFalseOriginInMetresThenConverts) {
    const double fe = 2000000, fn = 500000;
    ProjcsPtr feet = make_projcs(
        "Transverse_Mercator", 6378137.0, 1 / 298.257222101,
        {{"False_Easting", fe},
         {"False_Northing", fn},
         {"Central_Meridian", -120.5},
         {"Scale_Factor", 0.9999},
         {"Latitude_Of_Origin", 35.0}},
        {.linear = kUsFoot});
    ProjcsPtr metres = make_projcs(
        "Transverse_Mercator", 6378137.0, 1 / 298.257222101,
        {{"Central_Meridian", -120.5},
         {"Scale_Factor", 0.9999},
         {"Latitude_Of_Origin", 35.0}});
    const Point f = to_proj(feet.get(), -121.25, 36.5);
    const Point m = to_proj(metres.get(), -121.25, 36.5);
    EXPECT_NEAR(f.x, (m.x + fe * kUsFoot) / kUsFoot, 1e-7);
    EXPECT_NEAR(f.y, (m.y + fn * kUsFoot) / kUsFoot, 1e-7);
    const Point back = to_geog(feet.get(), f.x, f.y);
    EXPECT_NEAR(back.x, -121.25, 1e-10);
    EXPECT_NEAR(back.y, 36.5, 1e-10);
#if VELTRA_HAVE_PROJ
    // PROJ takes the false origin in metres and writes feet.
    ProjOracle oracle(
        "+proj=tmerc +ellps=GRS80 +lat_0=35 +lon_0=-120.5 +k=0.9999 "
        "+x_0=609601.2192024384 +y_0=152400.3048006096 +units=us-ft");
    ASSERT_TRUE(oracle.valid());
    double x, y;
    oracle.forward(-121.25 * kDegree, 36.5 * kDegree, x, y);
    EXPECT_NEAR(f.x, x, 1e-3);
    EXPECT_NEAR(f.y, y, 1e-3);
#endif
}

// Longitudes and the central meridian are both relative to the system's
// own prime meridian: the Paris meridian changes nothing.
TEST(GeogToProj, PrimeMeridianIsNotApplied) {
    ProjcsPtr paris = make_projcs("Mercator", 6378249.2, 1 / 293.4660212936269,
                                  {{"Central_Meridian", 1.5}},
                                  {.prime_meridian = 2.33722917});
    ProjcsPtr greenwich = make_projcs(
        "Mercator", 6378249.2, 1 / 293.4660212936269, {{"Central_Meridian", 1.5}});
    const Point p = to_proj(paris.get(), 4.0, 46.0);
    const Point g = to_proj(greenwich.get(), 4.0, 46.0);
    EXPECT_EQ(p.x, g.x);
    EXPECT_EQ(p.y, g.y);
    EXPECT_NEAR(p.x, 6378249.2 * 2.5 * kDegree, 1e-6);
}

TEST(GeogToProj, FailedPointsReachTheCallerAsNaNAndAreNotCounted) {
    ProjcsPtr polar = make_projcs("Cylindrical_Equal_Area", kWgs84Axis,
                                  kWgs84Flattening,
                                  {{"Standard_Parallel_1", 90},
                                   {"False_Easting", 1000},
                                   {"False_Northing", 1000}},
                                  {.linear = 0.3048});
    double c[4] = {10, 20, 30, 40};
    EXPECT_EQ(ka_geog_to_proj(polar.get(), 2, c), 0);
    for (double v : c) EXPECT_TRUE(std::isnan(v));
}

TEST(GeogToProj, ConvertsWholeArraysInOneCall) {
    ProjcsPtr pcs = make_projcs("Transverse_Mercator", kWgs84Axis,
                                kWgs84Flattening,
                                {{"False_Easting", 500000},
                                 {"Central_Meridian", 9},
                                 {"Scale_Factor", 0.9996}});
    double many[6] = {8, 50, 9, 0, 10.5, -33};
    EXPECT_EQ(ka_geog_to_proj(pcs.get(), 3, many), 3);
    for (int i = 0; i < 3; ++i) {
        const double lon[] = {8, 9, 10.5}, lat[] = {50, 0, -33};
        const Point one = to_proj(pcs.get(), lon[i], lat[i]);
        EXPECT_EQ(many[2 * i], one.x);
        EXPECT_EQ(many[2 * i + 1], one.y);
    }
    EXPECT_EQ(many[2], 500000.0);
    EXPECT_EQ(many[3], 0.0);
    EXPECT_EQ(ka_proj_to_geog(pcs.get(), 3, many), 3);
    EXPECT_NEAR(many[4], 10.5, 1e-10);
    EXPECT_NEAR(many[5], -33, 1e-10);
}

}  // namespace
