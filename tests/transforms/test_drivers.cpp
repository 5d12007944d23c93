// The method table (methods by catalogue code, the routines the conventions
// share, the default parameter lists) and the transformation drivers: what
// a method routine receives, units and prime meridians both ways, the
// longitude-rotation rules, and bad input.
#include "transforms/fixtures.h"
#include "transforms/method_table.h"

#include <gtest/gtest.h>

namespace {

using namespace fixtures;

// The transformation parameters by slot; a method's defaults are the first
// `count` of them, with value 0.
constexpr const char *kParameters[] = {"X_Axis_Translation", "Y_Axis_Translation",
    "Z_Axis_Translation", "X_Axis_Rotation", "Y_Axis_Rotation", "Z_Axis_Rotation", "Scale_Difference"};

TEST(MethodTable, EquationMethodsByCodeWithTheirDefaults) {
    const struct { int code; const char *name; int defaults; } rows[] = {
        {9601, "Longitude_Rotation", 0}, {9603, "Geocentric_Translation", 3}, {9604, "Molodensky", 3},
        {9605, "Molodensky_Abridged", 3}, {9606, "Position_Vector", 7}, {9607, "Coordinate_Frame", 7},
        {109607, "Bursa_Wolf", 7}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        ka_method *method = ka_factory_method(row.code);
        char method_name[KA_NAME_MAX] = "";
        ka_method_name(method, method_name);
        EXPECT_STREQ(method_name, row.name);
        ka_parameter *slots[KA_PARAMETER_SLOTS];
        for (auto &slot : slots) slot = reinterpret_cast<ka_parameter *>(1);
        EXPECT_EQ(ka_parameter_method_defaults(method, slots), row.defaults);
        for (int i = 0; i < KA_PARAMETER_SLOTS; ++i) {
            ASSERT_EQ(slots[i] == nullptr, i >= row.defaults) << i;  // the rest cleared
            char name[KA_NAME_MAX] = "";
            ka_parameter_name(slots[i], name);
            EXPECT_STREQ(name, i < row.defaults ? kParameters[i] : "") << i;
            EXPECT_EQ(ka_parameter_value(slots[i]), 0.0);
            ka_parameter_del(slots[i]);
        }
        ka_method_del(method);
    }
    // The grid methods have no routines in this build; codes without a
    // method (the macro table's 42607 for Bursa_Wolf among them) give none.
    for (int code : {9613, 9615, 109613, 42607, 9600, 9602, 0, -9601})
        EXPECT_EQ(ka_factory_method(code), nullptr) << code;
}

// The grid methods have no routines in this build, so the table does not
// know them.  Bursa_Wolf and Coordinate_Frame share their routines,
// Position_Vector has its own, a longitude rotation is its own inverse.
// Only catalogue methods have a code, hence defaults: a method of the same
// name with routines of its own has none, and the slots are still cleared.
TEST(MethodTable, SharedRoutinesAndForeignMethods) {
    EXPECT_EQ(veltra::table_method("NTv2"), nullptr);
    ka_method *bursa_wolf = ka_factory_method(109607), *coordinate_frame = ka_factory_method(9607),
              *position_vector = ka_factory_method(9606), *rotation = ka_factory_method(9601),
              *foreign = ka_method_new("Position_Vector", ka_method_forward(nullptr),
                                       ka_method_inverse(nullptr));
    EXPECT_EQ(ka_method_forward(bursa_wolf), ka_method_forward(coordinate_frame));
    EXPECT_EQ(ka_method_inverse(bursa_wolf), ka_method_inverse(coordinate_frame));
    EXPECT_NE(ka_method_forward(position_vector), ka_method_forward(coordinate_frame));
    EXPECT_EQ(ka_method_forward(rotation), ka_method_inverse(rotation));
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    for (auto &slot : slots) slot = reinterpret_cast<ka_parameter *>(1);
    EXPECT_EQ(ka_parameter_method_defaults(foreign, slots), 0);
    for (ka_parameter *slot : slots) EXPECT_EQ(slot, nullptr);
    EXPECT_EQ(ka_parameter_method_defaults(nullptr, slots), 0);
    EXPECT_EQ(ka_parameter_method_defaults(position_vector, nullptr), 0);
    for (ka_method *m : {bursa_wolf, coordinate_frame, position_vector, rotation, foreign})
        ka_method_del(m);
}

constexpr double kParis = 2.33722917;     // degrees east of Greenwich
constexpr double kMadrid = -3.687938889;  // degrees east of Greenwich

// A routine of our own checks what the driver hands it, in either
// direction: the spheroids first system first, the parameter values in
// metres, radians and a pure scale, no grid name or constants, and the point
// in radians about Greenwich (10 grads east of Paris is 9 + 2.33722917
// degrees east of Greenwich).  It leaves the point as it is.
int probe(const double *spheroid1, const double *spheroid2, const double *values,
          const char *grid_name, int n, double *coords, double *, void *a, void *b, void *c) {
    const double arc_second = 4.84813681109536e-06;  // radians
    const double expected[KA_PARAMETER_SLOTS] = {1.5, -2.0, 3.0, arc_second, -2 * arc_second,
                                                 0.5 * arc_second, 5e-6};
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i) EXPECT_DOUBLE_EQ(values[i], expected[i]) << i;
    EXPECT_TRUE(spheroid1[0] == kInternational1924.axis && spheroid2[0] == kWgs84.axis);
    EXPECT_DOUBLE_EQ(spheroid1[1], kInternational1924.e2());
    EXPECT_DOUBLE_EQ(spheroid2[1], kWgs84.e2());
    EXPECT_TRUE(grid_name == nullptr && a == nullptr && b == nullptr && c == nullptr && n == 1);
    EXPECT_NEAR(coords[0], (9 + kParis) * kDegree, 1e-15);
    EXPECT_NEAR(coords[1], 36.0 * kDegree, 1e-15);
    return 42;
}

TEST(Driver, HandsTheRoutineRadiansAndConvertedValuesBothWays) {
    // The inverse routine tells itself apart by its count.
    const ka_method_fn probe_back = [](auto... arguments) { return probe(arguments...) + 1; };
    ka_geogtran *gt = geogtran(
        geogcs("D_One", kInternational1924, kParis, kGrad), geogcs("D_Two", kWgs84, kMadrid),
        ka_method_new("Probe", probe, probe_back),
        {{kDx, 1.5}, {kDy, -2.0}, {kDz, 3.0}, {kRx, 1.0}, {kRy, -2.0}, {kRz, 0.5}, {kScale, 5.0}});
    ASSERT_NE(gt, nullptr);
    // The point comes out about Madrid in degrees, and goes back.
    double coords[2] = {10.0, 40.0};
    EXPECT_EQ(ka_geog1_to_geog2(gt, 1, coords, nullptr), 42);
    EXPECT_NEAR(coords[0], 9 + kParis - kMadrid, 1e-12);
    EXPECT_NEAR(coords[1], 36.0, 1e-12);
    EXPECT_EQ(ka_geog2_to_geog1(gt, 1, coords, nullptr), 43);
    EXPECT_NEAR(coords[0], 10.0, 1e-12);
    EXPECT_NEAR(coords[1], 40.0, 1e-12);
    ka_geogtran_del(gt);
}

// A transformation whose method handle is not a method still converts units
// and meridians and counts every point; one whose handle is not a
// transformation, or an empty call, converts nothing.
TEST(Driver, InvalidMethodAndBadInput) {
    ka_unit *unit = ka_unit_new("Degree", kDegree);
    ka_geogtran *gt = geogtran(geogcs("D_One", kClarke1880Ign, kParis, kGrad), geogcs("D_Two", kWgs84),
                               reinterpret_cast<ka_method *>(unit));
    double coords[4] = {10.0, 40.0, 10.0, 40.0}, height = 5.0;
    EXPECT_EQ(ka_geog1_to_geog2(gt, 1, coords, nullptr), 1);  // the method's count is n
    EXPECT_NEAR(coords[0], 9 + kParis, 1e-12);
    EXPECT_NEAR(coords[1], 36.0, 1e-12);
    EXPECT_EQ(ka_geog1_to_geog2(gt, 0, coords + 2, &height), 0);
    EXPECT_EQ(ka_geog2_to_geog1(gt, -3, coords + 2, &height), 0);
    EXPECT_EQ(ka_geog1_to_geog2(gt, 1, nullptr, &height), 0);
    EXPECT_EQ(ka_geog1_to_geog2(reinterpret_cast<ka_geogtran *>(unit), 1, coords + 2, &height), 0);
    EXPECT_EQ(ka_geog2_to_geog1(nullptr, 1, coords + 2, &height), 0);
    EXPECT_TRUE(coords[2] == 10.0 && height == 5.0);
    ka_geogtran_del(gt);
    ka_unit_del(unit);
}

// Between one datum on two meridians, in grads: the second system's meridian
// lies 2.5969213 grads (Paris) east of the first's, so longitudes move west
// by that much, folded into the principal range (-199 grads becomes
// 198.4030787); heights and latitudes stay.  A Z_Axis_Rotation it carries is
// ignored forwards and added backwards.  Between unequal datums nothing is
// converted, not even the units, and the count is 0.
TEST(Driver, LongitudeRotation) {
    const double paris = kParis / 0.9;  // grads
    ka_geogtran *gt = geogtran(geogcs("D_NTF", kClarke1880Ign, 0, kGrad),
                               geogcs("D_NTF", kClarke1880Ign, kParis, kGrad), kLongitudeRotation);
    double coords[4] = {0.0, 50.0, -199.0, -30.0}, heights[2] = {12.0, -4.0};
    EXPECT_EQ(ka_geog1_to_geog2(gt, 2, coords, heights), 2);
    const double expected[4] = {-paris, 50.0, 400 - 199.0 - paris, -30.0};
    for (int i = 0; i < 4; ++i) EXPECT_NEAR(coords[i], expected[i], 1e-12) << i;
    EXPECT_TRUE(heights[0] == 12.0 && heights[1] == -4.0);
    EXPECT_EQ(ka_geog2_to_geog1(gt, 2, coords, heights), 2);
    EXPECT_NEAR(coords[0], 0.0, 1e-12);
    EXPECT_NEAR(coords[2], -199.0, 1e-12);
    ka_geogtran_del(gt);

    gt = geogtran(geogcs("D_NTF", kClarke1880Ign, kParis), geogcs("D_NTF", kClarke1880Ign),
                  kLongitudeRotation, {{kRz, 3600.0}});
    double point[2] = {1.0, 45.0}, height = 7.0;
    EXPECT_EQ(ka_geog1_to_geog2(gt, 1, point, nullptr), 1);
    EXPECT_NEAR(point[0], 1.0 + kParis, 1e-12);
    EXPECT_EQ(ka_geog2_to_geog1(gt, 1, point, nullptr), 1);
    EXPECT_NEAR(point[0], 2.0, 1e-12);  // 1 degree + the 3600" rotation
    ka_geogtran_del(gt);

    gt = geogtran(geogcs("D_NTF", kClarke1880Ign, kParis, kGrad), geogcs("D_WGS_1984", kWgs84),
                  kLongitudeRotation);
    point[0] = 3.0, point[1] = 50.0;
    EXPECT_EQ(ka_geog1_to_geog2(gt, 1, point, &height), 0);
    EXPECT_EQ(ka_geog2_to_geog1(gt, 1, point, &height), 0);
    EXPECT_TRUE(point[0] == 3.0 && point[1] == 50.0 && height == 7.0);
    ka_geogtran_del(gt);
}

}  // namespace
