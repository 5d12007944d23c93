// The transformation drivers: what a method routine receives (radians about
// Greenwich, converted values, spheroids first system first), units and
// prime meridians both ways, the longitude-rotation rules, and bad input.
#include "transforms/fixtures.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

using namespace fixtures;

constexpr double kParis = 2.33722917;     // degrees east of Greenwich
constexpr double kMadrid = -3.687938889;  // degrees east of Greenwich

// What a method routine is handed, recorded by a routine of our own.
struct Received {
    double spheroids[4], values[KA_PARAMETER_SLOTS], longitude, latitude;
    const char *grid_name;
    int n;
    void *constants[3];
} received;

int probe(const double *spheroid1, const double *spheroid2, const double *values,
          const char *grid_name, int n, double *coords, double *, void *a, void *b, void *c) {
    received = {{}, {}, coords[0], coords[1], grid_name, n, {a, b, c}};
    std::memcpy(received.spheroids, spheroid1, 2 * sizeof(double));
    std::memcpy(received.spheroids + 2, spheroid2, 2 * sizeof(double));
    std::memcpy(received.values, values, sizeof received.values);
    return 42;
}

int probe_inverse(const double *s1, const double *s2, const double *values, const char *grid,
                  int n, double *coords, double *heights, void *a, void *b, void *c) {
    return probe(s1, s2, values, grid, n, coords, heights, a, b, c) + 1;
}

TEST(Driver, HandsTheRoutineRadiansAndConvertedValuesBothWays) {
    ka_parameter *slots[KA_PARAMETER_SLOTS] = {};
    const std::pair<int, double> values[] = {{kDx, 1.5}, {kDy, -2.0}, {kDz, 3.0}, {kRx, 1.0},
                                             {kRy, -2.0}, {kRz, 0.5}, {kScale, 5.0}};
    for (auto [code, value] : values) {
        ka_parameter *p = ka_factory_parameter(code);
        ka_parameter_value_set(p, value);
        slots[ka_parameter_index(p)] = p;
    }
    ka_geogtran *gt = ka_geogtran_new("Probe", geogcs("D_One", kInternational1924, kParis, kGrad),
                                      geogcs("D_Two", kWgs84, kMadrid, kDegree),
                                      ka_method_new("Probe", probe, probe_inverse), slots);
    ASSERT_NE(gt, nullptr);
    const double arc_second = 4.84813681109536e-06;  // radians
    const double expected_values[KA_PARAMETER_SLOTS] = {
        1.5, -2.0, 3.0, arc_second, -2 * arc_second, 0.5 * arc_second, 5e-6};
    const double expected_spheroids[4] = {kInternational1924.axis, kInternational1924.e2(),
                                          kWgs84.axis, kWgs84.e2()};
    // 10 grads east of Paris is 9 + 2.33722917 degrees east of Greenwich;
    // the routine leaves the point, so it comes out about Madrid in degrees,
    // and the way back returns it.  Spheroids stay first system first.
    double coords[2] = {10.0, 40.0};
    for (bool forward : {true, false}) {
        SCOPED_TRACE(forward);
        EXPECT_EQ(forward ? ka_geog1_to_geog2(gt, 1, coords, nullptr)
                          : ka_geog2_to_geog1(gt, 1, coords, nullptr),
                  forward ? 42 : 43);
        for (int i = 0; i < 4; ++i) EXPECT_DOUBLE_EQ(received.spheroids[i], expected_spheroids[i]);
        for (int i = 0; i < KA_PARAMETER_SLOTS; ++i)
            EXPECT_DOUBLE_EQ(received.values[i], expected_values[i]) << i;
        EXPECT_EQ(received.grid_name, nullptr);
        EXPECT_EQ(received.n, 1);
        EXPECT_NEAR(received.longitude, (9 + kParis) * kDegree, 1e-15);
        EXPECT_NEAR(received.latitude, 36.0 * kDegree, 1e-15);
        for (void *block : received.constants) EXPECT_EQ(block, nullptr);
        EXPECT_NEAR(coords[0], forward ? 9 + kParis - kMadrid : 10.0, 1e-12);
        EXPECT_NEAR(coords[1], forward ? 36.0 : 40.0, 1e-12);
    }
    ka_geogtran_del(gt);
}

// A transformation whose method handle is not a method still converts units
// and meridians and counts every point; one whose handle is not a
// transformation, or an empty call, converts nothing.
TEST(Driver, InvalidMethodAndBadInput) {
    ka_unit *not_a_method = ka_unit_new("Degree", kDegree);
    ka_parameter *slots[KA_PARAMETER_SLOTS] = {};
    ka_geogtran *gt = ka_geogtran_new(
        "Broken", geogcs("D_One", kClarke1880Ign, kParis, kGrad), geogcs("D_Two", kWgs84),
        reinterpret_cast<ka_method *>(not_a_method), slots);
    ASSERT_NE(gt, nullptr);
    double coords[4] = {10.0, 40.0, -5.0, 0.0}, height = 5.0;
    EXPECT_EQ(ka_geog1_to_geog2(gt, 2, coords, nullptr), 2);
    EXPECT_NEAR(coords[0], 9 + kParis, 1e-12);
    EXPECT_NEAR(coords[1], 36.0, 1e-12);
    EXPECT_NEAR(coords[2], -4.5 + kParis, 1e-12);
    coords[0] = 10.0;
    EXPECT_EQ(ka_geog1_to_geog2(gt, 0, coords, &height), 0);
    EXPECT_EQ(ka_geog2_to_geog1(gt, -3, coords, &height), 0);
    EXPECT_EQ(ka_geog1_to_geog2(gt, 1, nullptr, &height), 0);
    EXPECT_EQ(ka_geog1_to_geog2(reinterpret_cast<ka_geogtran *>(not_a_method), 1, coords, &height), 0);
    EXPECT_EQ(ka_geog2_to_geog1(nullptr, 1, coords, &height), 0);
    EXPECT_EQ(coords[0], 10.0);
    EXPECT_EQ(height, 5.0);
    ka_geogtran_del(gt);
    ka_unit_del(not_a_method);
}

// Longitude rotation between one datum on two meridians, in grads: the
// second system's meridian lies 2.5969213 grads (Paris) east of the first's,
// heights and latitudes stay; onto a meridian 10 degrees west 199 grads
// (179.1 degrees) becomes 189.1, folded to -170.9.
TEST(Driver, LongitudeRotation) {
    const double paris = kParis / 0.9;  // grads
    ka_geogtran *gt = geogtran(geogcs("D_NTF", kClarke1880Ign, 0, kGrad),
                               geogcs("D_NTF", kClarke1880Ign, kParis, kGrad), kLongitudeRotation);
    double coords[4] = {0.0, 50.0, 199.0, -30.0}, heights[2] = {12.0, -4.0};
    EXPECT_EQ(ka_geog1_to_geog2(gt, 2, coords, heights), 2);
    const double expected[4] = {-paris, 50.0, 199.0 - paris, -30.0};
    for (int i = 0; i < 4; ++i) EXPECT_NEAR(coords[i], expected[i], 1e-12) << i;
    EXPECT_TRUE(heights[0] == 12.0 && heights[1] == -4.0);
    EXPECT_EQ(ka_geog2_to_geog1(gt, 2, coords, heights), 2);
    EXPECT_NEAR(coords[0], 0.0, 1e-12);
    EXPECT_NEAR(coords[2], 199.0, 1e-12);
    ka_geogtran_del(gt);

    gt = geogtran(geogcs("D_NTF", kClarke1880Ign, 0, kGrad),
                  geogcs("D_NTF", kClarke1880Ign, -10.0, kDegree), kLongitudeRotation);
    EXPECT_EQ(ka_geog1_to_geog2(gt, 1, coords + 2, nullptr), 1);
    EXPECT_NEAR(coords[2], -170.9, 1e-12);
    ka_geogtran_del(gt);
}

// A Z_Axis_Rotation carried by a longitude rotation is ignored forwards and
// added backwards; between unequal datums nothing is converted, not even
// the units, and the count is 0.
TEST(Driver, LongitudeRotationQuirks) {
    ka_geogtran *gt = geogtran(geogcs("D_NTF", kClarke1880Ign, kParis),
                               geogcs("D_NTF", kClarke1880Ign), kLongitudeRotation, {{kRz, 3600.0}});
    double coords[2] = {1.0, 45.0}, height = 7.0;
    EXPECT_EQ(ka_geog1_to_geog2(gt, 1, coords, nullptr), 1);
    EXPECT_NEAR(coords[0], 1.0 + kParis, 1e-12);
    EXPECT_EQ(ka_geog2_to_geog1(gt, 1, coords, nullptr), 1);
    EXPECT_NEAR(coords[0], 2.0, 1e-12);  // 1 degree + the 3600" rotation
    EXPECT_NEAR(coords[1], 45.0, 1e-12);
    ka_geogtran_del(gt);

    gt = geogtran(geogcs("D_NTF", kClarke1880Ign, kParis, kGrad), geogcs("D_WGS_1984", kWgs84),
                  kLongitudeRotation);
    double point[2] = {3.0, 50.0};
    EXPECT_EQ(ka_geog1_to_geog2(gt, 1, point, &height), 0);
    EXPECT_EQ(ka_geog2_to_geog1(gt, 1, point, &height), 0);
    EXPECT_TRUE(point[0] == 3.0 && point[1] == 50.0 && height == 7.0);
    ka_geogtran_del(gt);
}

}  // namespace
