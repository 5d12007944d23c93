// The transformation drivers: units, prime meridians, the longitude-rotation
// rules, what a method routine receives, and bad input.
#include "transforms/fixtures.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

namespace {

using namespace fixtures;

constexpr double kParis = 2.33722917;     // degrees east of Greenwich
constexpr double kMadrid = -3.687938889;  // degrees east of Greenwich
constexpr double kDegreesPerGrad = 0.9;
constexpr double kSecond = 1.0 / 3600;    // degrees

// The EPSG guidance note's geocentric translation example (WGS 84 to ED50,
// +84.87, +96.49, +116.95 m), expressed in other units and meridians.
constexpr double kLongitudeIn = dms(2, 7, 46.380), kLatitudeIn = dms(53, 48, 33.820);
constexpr double kLongitudeOut = dms(2, 7, 51.477), kLatitudeOut = dms(53, 48, 36.565);

ka_geogtran *north_sea(ka_geogcs *from, ka_geogcs *to) {
    return geogtran(from, to, kGeocentricTranslation,
                    {{kDx, 84.87}, {kDy, 96.49}, {kDz, 116.95}});
}

TEST(Driver, ConvertsFromAndToGrads) {
    ka_geogtran *gt =
        north_sea(geogcs("D_WGS_1984", kWgs84, 0, kGrad),
                  geogcs("D_European_1950", kInternational1924, 0, kGrad));
    double coords[2] = {kLongitudeIn / kDegreesPerGrad,
                        kLatitudeIn / kDegreesPerGrad};
    double height = 73.0;
    EXPECT_EQ(ka_geog1_to_geog2(gt, 1, coords, &height), 1);
    const double tolerance = 0.0006 * kSecond / kDegreesPerGrad;
    EXPECT_NEAR(coords[0], kLongitudeOut / kDegreesPerGrad, tolerance);
    EXPECT_NEAR(coords[1], kLatitudeOut / kDegreesPerGrad, tolerance);
    EXPECT_NEAR(height, 28.02, 0.006);
    ka_geogtran_del(gt);
}

// Source in grads about Paris, target in degrees about Madrid: longitudes
// enter and leave relative to each system's own meridian.
TEST(Driver, AppliesBothPrimeMeridiansBothWays) {
    ka_geogtran *gt = north_sea(
        geogcs("D_WGS_1984", kWgs84, kParis, kGrad),
        geogcs("D_European_1950", kInternational1924, kMadrid, kDegree));
    double coords[2] = {(kLongitudeIn - kParis) / kDegreesPerGrad,
                        kLatitudeIn / kDegreesPerGrad};
    EXPECT_EQ(ka_geog1_to_geog2(gt, 1, coords, nullptr), 1);
    // Without heights the input height is 0: the latitude moves by less than
    // the published rounding, the longitude not at all.
    EXPECT_NEAR(coords[0], kLongitudeOut - kMadrid, 0.0006 * kSecond);
    EXPECT_NEAR(coords[1], kLatitudeOut, 0.002 * kSecond);

    // With the heights carried along, the way back is exact.
    coords[0] = (kLongitudeIn - kParis) / kDegreesPerGrad;
    coords[1] = kLatitudeIn / kDegreesPerGrad;
    double height = 73.0;
    EXPECT_EQ(ka_geog1_to_geog2(gt, 1, coords, &height), 1);
    EXPECT_NEAR(coords[0], kLongitudeOut - kMadrid, 0.0006 * kSecond);
    EXPECT_NEAR(height, 28.02, 0.006);
    EXPECT_EQ(ka_geog2_to_geog1(gt, 1, coords, &height), 1);
    EXPECT_NEAR(coords[0], (kLongitudeIn - kParis) / kDegreesPerGrad, 1e-12);
    EXPECT_NEAR(coords[1], kLatitudeIn / kDegreesPerGrad, 1e-12);
    EXPECT_NEAR(height, 73.0, 1e-6);
    ka_geogtran_del(gt);
}

TEST(Driver, CountsAndBadInput) {
    ka_geogtran *gt = north_sea(geogcs("D_WGS_1984", kWgs84),
                                geogcs("D_European_1950", kInternational1924));
    double coords[2] = {10.0, 20.0};
    double height = 5.0;
    EXPECT_EQ(ka_geog1_to_geog2(gt, 0, coords, &height), 0);
    EXPECT_EQ(ka_geog2_to_geog1(gt, -3, coords, &height), 0);
    EXPECT_EQ(ka_geog1_to_geog2(gt, 1, nullptr, &height), 0);
    EXPECT_EQ(coords[0], 10.0);
    EXPECT_EQ(coords[1], 20.0);
    EXPECT_EQ(height, 5.0);

    // Not a transformation: nothing is converted.
    ka_unit *unit = ka_unit_new("Degree", kDegree);
    auto *wrong = reinterpret_cast<const ka_geogtran *>(unit);
    EXPECT_EQ(ka_geog1_to_geog2(wrong, 1, coords, &height), 0);
    EXPECT_EQ(ka_geog2_to_geog1(nullptr, 1, coords, &height), 0);
    EXPECT_EQ(coords[0], 10.0);
    EXPECT_EQ(coords[1], 20.0);
    ka_unit_del(unit);
    ka_geogtran_del(gt);
}

// Longitude rotation between one datum on two meridians, in grads: the
// second system's meridian lies 2.5969213 grads (Paris) east of the first's.
TEST(Driver, LongitudeRotationBothWays) {
    const double paris_grads = kParis / kDegreesPerGrad;
    ka_geogtran *gt = geogtran(
        geogcs("D_NTF", kClarke1880Ign, 0, kGrad),
        geogcs("D_NTF", kClarke1880Ign, kParis, kGrad), kLongitudeRotation);
    double coords[4] = {0.0, 50.0, 199.0, -30.0};
    double heights[2] = {12.0, -4.0};
    EXPECT_EQ(ka_geog1_to_geog2(gt, 2, coords, heights), 2);
    EXPECT_NEAR(coords[0], -paris_grads, 1e-12);
    EXPECT_NEAR(coords[1], 50.0, 1e-12);
    EXPECT_NEAR(coords[2], 199.0 - paris_grads, 1e-12);
    EXPECT_NEAR(coords[3], -30.0, 1e-12);
    EXPECT_EQ(heights[0], 12.0);
    EXPECT_EQ(heights[1], -4.0);

    EXPECT_EQ(ka_geog2_to_geog1(gt, 2, coords, heights), 2);
    EXPECT_NEAR(coords[0], 0.0, 1e-12);
    EXPECT_NEAR(coords[2], 199.0, 1e-12);
    ka_geogtran_del(gt);
}

// Rotation onto a meridian 10 degrees west: 179.1 degrees becomes 189.1,
// folded to -170.9.
TEST(Driver, LongitudeRotationFoldsIntoThePrincipalRange) {
    ka_geogtran *gt =
        geogtran(geogcs("D_NTF", kClarke1880Ign, 0, kGrad),
                 geogcs("D_NTF", kClarke1880Ign, -10.0, kDegree),
                 kLongitudeRotation);
    double coords[2] = {199.0, 0.0};
    EXPECT_EQ(ka_geog1_to_geog2(gt, 1, coords, nullptr), 1);
    EXPECT_NEAR(coords[0], -170.9, 1e-12);
    ka_geogtran_del(gt);
}

// A Z_Axis_Rotation carried by a longitude rotation is ignored forwards and
// added backwards.
TEST(Driver, LongitudeRotationZAxisRotationActsBackwardsOnly) {
    ka_geogtran *gt = geogtran(geogcs("D_NTF", kClarke1880Ign, kParis),
                               geogcs("D_NTF", kClarke1880Ign),
                               kLongitudeRotation, {{kRz, 3600.0}});
    double coords[2] = {1.0, 45.0};
    EXPECT_EQ(ka_geog1_to_geog2(gt, 1, coords, nullptr), 1);
    EXPECT_NEAR(coords[0], 1.0 + kParis, 1e-12);
    EXPECT_EQ(ka_geog2_to_geog1(gt, 1, coords, nullptr), 1);
    EXPECT_NEAR(coords[0], 2.0, 1e-12);  // 1 degree + the 3600" rotation
    EXPECT_NEAR(coords[1], 45.0, 1e-12);
    ka_geogtran_del(gt);
}

TEST(Driver, LongitudeRotationBetweenUnequalDatumsConvertsNothing) {
    ka_geogtran *gt = geogtran(geogcs("D_NTF", kClarke1880Ign, kParis, kGrad),
                               geogcs("D_WGS_1984", kWgs84),
                               kLongitudeRotation);
    double coords[2] = {3.0, 50.0};
    double height = 7.0;
    EXPECT_EQ(ka_geog1_to_geog2(gt, 1, coords, &height), 0);
    EXPECT_EQ(ka_geog2_to_geog1(gt, 1, coords, &height), 0);
    EXPECT_EQ(coords[0], 3.0);
    EXPECT_EQ(coords[1], 50.0);
    EXPECT_EQ(height, 7.0);
    ka_geogtran_del(gt);
}

// What a method routine is handed, recorded by a routine of our own.
struct Received {
    double spheroid1[2], spheroid2[2], values[KA_PARAMETER_SLOTS];
    const char *grid_name;
    int n;
    double longitude, latitude;
    void *constants[3];
};
Received received;

int probe(const double *spheroid1, const double *spheroid2,
          const double *values, const char *grid_name, int n, double *coords,
          double *, void *constants_a, void *constants_b, void *constants_c) {
    std::memcpy(received.spheroid1, spheroid1, sizeof received.spheroid1);
    std::memcpy(received.spheroid2, spheroid2, sizeof received.spheroid2);
    std::memcpy(received.values, values, sizeof received.values);
    received.grid_name = grid_name;
    received.n = n;
    received.longitude = coords[0];
    received.latitude = coords[1];
    received.constants[0] = constants_a;
    received.constants[1] = constants_b;
    received.constants[2] = constants_c;
    return 42;
}

int probe_inverse(const double *spheroid1, const double *spheroid2,
                  const double *values, const char *grid_name, int n,
                  double *coords, double *heights, void *a, void *b, void *c) {
    return probe(spheroid1, spheroid2, values, grid_name, n, coords, heights,
                 a, b, c) + 1;
}

TEST(Driver, HandsTheRoutineRadiansAndConvertedValues) {
    ka_parameter *slots[KA_PARAMETER_SLOTS] = {};
    const std::pair<int, double> values[] = {
        {kDx, 1.5}, {kDy, -2.0}, {kDz, 3.0}, {kRx, 1.0},
        {kRy, -2.0}, {kRz, 0.5}, {kScale, 5.0}};
    for (auto [code, value] : values) {
        ka_parameter *p = ka_factory_parameter(code);
        ka_parameter_value_set(p, value);
        slots[ka_parameter_index(p)] = p;
    }
    ka_geogtran *gt = ka_geogtran_new(
        "Probe", geogcs("D_One", kInternational1924, kParis, kGrad),
        geogcs("D_Two", kWgs84, kMadrid, kDegree),
        ka_method_new("Probe", probe, probe_inverse), slots);
    ASSERT_NE(gt, nullptr);

    const double f1 = 1 / kInternational1924.inverse_flattening;
    const double f2 = 1 / kWgs84.inverse_flattening;
    const double arc_second = 4.84813681109536e-06;  // radians
    auto expect_received = [&](double longitude_degrees, double latitude_degrees) {
        EXPECT_EQ(received.spheroid1[0], kInternational1924.axis);
        EXPECT_DOUBLE_EQ(received.spheroid1[1], (2 - f1) * f1);
        EXPECT_EQ(received.spheroid2[0], kWgs84.axis);
        EXPECT_DOUBLE_EQ(received.spheroid2[1], (2 - f2) * f2);
        EXPECT_EQ(received.values[0], 1.5);
        EXPECT_EQ(received.values[1], -2.0);
        EXPECT_EQ(received.values[2], 3.0);
        EXPECT_DOUBLE_EQ(received.values[3], arc_second);
        EXPECT_DOUBLE_EQ(received.values[4], -2 * arc_second);
        EXPECT_DOUBLE_EQ(received.values[5], 0.5 * arc_second);
        EXPECT_DOUBLE_EQ(received.values[6], 5e-6);
        for (int i = 7; i < KA_PARAMETER_SLOTS; ++i)
            EXPECT_EQ(received.values[i], 0.0);
        EXPECT_EQ(received.grid_name, nullptr);
        EXPECT_EQ(received.n, 1);
        EXPECT_NEAR(received.longitude, longitude_degrees * kDegree, 1e-15);
        EXPECT_NEAR(received.latitude, latitude_degrees * kDegree, 1e-15);
        for (void *block : received.constants) EXPECT_EQ(block, nullptr);
    };

    // 10 grads east of Paris is 9 + 2.33722917 degrees east of Greenwich;
    // the routine leaves the point, so it comes out about Madrid in degrees.
    double coords[2] = {10.0, 40.0};
    EXPECT_EQ(ka_geog1_to_geog2(gt, 1, coords, nullptr), 42);
    expect_received(9 + kParis, 36.0);
    EXPECT_NEAR(coords[0], 9 + kParis - kMadrid, 1e-12);
    EXPECT_NEAR(coords[1], 36.0, 1e-12);

    // Backwards: spheroids still first system first.
    EXPECT_EQ(ka_geog2_to_geog1(gt, 1, coords, nullptr), 43);
    expect_received(9 + kParis, 36.0);
    EXPECT_NEAR(coords[0], 10.0, 1e-12);
    EXPECT_NEAR(coords[1], 40.0, 1e-12);
    ka_geogtran_del(gt);
}

// A transformation whose method handle is not a method still converts units
// and meridians, and counts every point.
TEST(Driver, InvalidMethodStillConvertsUnitsAndMeridians) {
    ka_unit *not_a_method = ka_unit_new("Degree", kDegree);
    ka_parameter *slots[KA_PARAMETER_SLOTS] = {};
    ka_geogtran *gt = ka_geogtran_new(
        "Broken", geogcs("D_One", kClarke1880Ign, kParis, kGrad),
        geogcs("D_Two", kWgs84), reinterpret_cast<ka_method *>(not_a_method),
        slots);
    ASSERT_NE(gt, nullptr);
    double coords[4] = {10.0, 40.0, -5.0, 0.0};
    EXPECT_EQ(ka_geog1_to_geog2(gt, 2, coords, nullptr), 2);
    EXPECT_NEAR(coords[0], 9 + kParis, 1e-12);
    EXPECT_NEAR(coords[1], 36.0, 1e-12);
    EXPECT_NEAR(coords[2], -4.5 + kParis, 1e-12);
    ka_geogtran_del(gt);
    ka_unit_del(not_a_method);
}

}  // namespace
