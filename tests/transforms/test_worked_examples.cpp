// The worked examples of the EPSG guidance note 7-2 (Coordinate Conversions
// and Transformations including Formulas), run through the transformation
// drivers in degrees.  Published results are rounded to 0.001" and to the
// centimetre (millimetre for the abridged Molodensky height), so each is
// compared within half a unit of its last digit plus a small margin.
#include "transforms/fixtures.h"

#include <gtest/gtest.h>

namespace {

using namespace fixtures;

constexpr double kSecondsTolerance = 0.0006 / 3600;  // degrees
constexpr double kCentimetre = 0.006;                // metres
constexpr double kInverseAngleTolerance = 0.0011 / 3600;
constexpr double kInverseHeightTolerance = 0.012;

struct Geographic {
    double longitude;  // degrees
    double latitude;
    double height;  // metres
};

// North Sea point on WGS 84 of the geocentric translation and Molodensky
// examples, and its ED50 translation (to WGS 84 from ED50: +84.87, +96.49,
// +116.95 m).
constexpr Geographic kNorthSea{dms(2, 7, 46.380), dms(53, 48, 33.820), 73.0};

// WGS 72 point of the seven-parameter examples (WGS 72 to WGS 84: tZ = +4.5
// m, rZ = +0.554" position vector, dS = +0.219 ppm).
constexpr Geographic kWgs72Point{4.0, 55.0, 0.0};

Geographic forward(ka_geogtran *gt, Geographic in) {
    double coords[2] = {in.longitude, in.latitude};
    double height = in.height;
    EXPECT_EQ(ka_geog1_to_geog2(gt, 1, coords, &height), 1);
    return {coords[0], coords[1], height};
}

void expect_geographic(Geographic actual, Geographic expected,
                       double height_tolerance,
                       double angle_tolerance = kSecondsTolerance) {
    EXPECT_NEAR(actual.longitude, expected.longitude, angle_tolerance);
    EXPECT_NEAR(actual.latitude, expected.latitude, angle_tolerance);
    EXPECT_NEAR(actual.height, expected.height, height_tolerance);
}

// Geocentric coordinates of a result, to compare with the note's
// intermediate Cartesian values.
void expect_cartesian(const Ellipsoid &e, Geographic g, double x, double y,
                      double z) {
    double cx, cy, cz;
    ka_curv_to_cart(e.axis, eccentricity_squared(e), g.latitude * kDegree,
                    g.longitude * kDegree, g.height, &cx, &cy, &cz);
    EXPECT_NEAR(cx, x, kCentimetre);
    EXPECT_NEAR(cy, y, kCentimetre);
    EXPECT_NEAR(cz, z, kCentimetre);
}

ka_geogtran *north_sea(int method) {
    return geogtran(geogcs("D_WGS_1984", kWgs84),
                    geogcs("D_European_1950", kInternational1924), method,
                    {{kDx, 84.87}, {kDy, 96.49}, {kDz, 116.95}});
}

TEST(WorkedExample, GeocentricTranslationWgs84ToEd50) {
    ka_geogtran *gt = north_sea(kGeocentricTranslation);
    Geographic ed50 = forward(gt, kNorthSea);
    expect_geographic(ed50, {dms(2, 7, 51.477), dms(53, 48, 36.565), 28.02},
                      kCentimetre);
    expect_cartesian(kInternational1924, ed50, 3771878.84, 140349.83,
                     5124421.30);
    ka_geogtran_del(gt);
}

TEST(WorkedExample, PositionVectorWgs72ToWgs84) {
    ka_geogtran *gt =
        geogtran(geogcs("D_WGS_1972", kWgs72), geogcs("D_WGS_1984", kWgs84),
                 kPositionVector, {{kDz, 4.5}, {kRz, 0.554}, {kScale, 0.219}});
    Geographic wgs84 = forward(gt, kWgs72Point);
    expect_geographic(wgs84, {dms(4, 0, 0.554), dms(55, 0, 0.090), 3.22},
                      kCentimetre);
    expect_cartesian(kWgs84, wgs84, 3657660.78, 255778.43, 5201387.75);
    ka_geogtran_del(gt);
}

// The same transformation in the coordinate-frame convention: the rotation
// sign is reversed, the result is the same.
TEST(WorkedExample, CoordinateFrameWgs72ToWgs84) {
    for (int method : {kCoordinateFrame, kBursaWolf}) {
        ka_geogtran *gt = geogtran(
            geogcs("D_WGS_1972", kWgs72), geogcs("D_WGS_1984", kWgs84), method,
            {{kDz, 4.5}, {kRz, -0.554}, {kScale, 0.219}});
        Geographic wgs84 = forward(gt, kWgs72Point);
        expect_geographic(wgs84, {dms(4, 0, 0.554), dms(55, 0, 0.090), 3.22},
                          kCentimetre);
        expect_cartesian(kWgs84, wgs84, 3657660.78, 255778.43, 5201387.75);
        ka_geogtran_del(gt);
    }
}

TEST(WorkedExample, MolodenskyWgs84ToEd50) {
    ka_geogtran *gt = north_sea(kMolodensky);
    expect_geographic(forward(gt, kNorthSea),
                      {dms(2, 7, 51.477), dms(53, 48, 36.565), 28.02},
                      kCentimetre);
    ka_geogtran_del(gt);
}

TEST(WorkedExample, AbridgedMolodenskyWgs84ToEd50) {
    ka_geogtran *gt = north_sea(kMolodenskyAbridged);
    expect_geographic(forward(gt, kNorthSea),
                      {dms(2, 7, 51.477), dms(53, 48, 36.563), 28.091},
                      0.0006);
    ka_geogtran_del(gt);
}

// The examples read backwards: the inverse drivers bring the published
// results back to the published inputs, within the rounding of the results
// they start from (0.0005", 5 mm).
TEST(WorkedExample, InversesReturnThePublishedInputs) {
    for (int method : {kGeocentricTranslation, kMolodensky,
                       kMolodenskyAbridged}) {
        ka_geogtran *gt = north_sea(method);
        double coords[2] = {dms(2, 7, 51.477),
                            method == kMolodenskyAbridged ? dms(53, 48, 36.563)
                                                          : dms(53, 48, 36.565)};
        double height = method == kMolodenskyAbridged ? 28.091 : 28.02;
        EXPECT_EQ(ka_geog2_to_geog1(gt, 1, coords, &height), 1);
        expect_geographic({coords[0], coords[1], height}, kNorthSea,
                          kInverseHeightTolerance, kInverseAngleTolerance);
        ka_geogtran_del(gt);
    }
    ka_geogtran *gt =
        geogtran(geogcs("D_WGS_1972", kWgs72), geogcs("D_WGS_1984", kWgs84),
                 kPositionVector, {{kDz, 4.5}, {kRz, 0.554}, {kScale, 0.219}});
    double coords[2] = {dms(4, 0, 0.554), dms(55, 0, 0.090)};
    double height = 3.22;
    EXPECT_EQ(ka_geog2_to_geog1(gt, 1, coords, &height), 1);
    expect_geographic({coords[0], coords[1], height}, kWgs72Point,
                      kInverseHeightTolerance, kInverseAngleTolerance);
    ka_geogtran_del(gt);
}

}  // namespace
