// Parameters: slots by name, equality, accessors on bad handles.
#include "veltra.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <string>

namespace {

int index_of(const char *name) {
    ka_parameter *p = ka_parameter_new(name, 0);
    const int slot = ka_parameter_index(p);
    ka_parameter_del(p);
    return slot;
}

TEST(ParameterIndex, FollowsTheNameTableIgnoringCase) {
    EXPECT_EQ(index_of("False_Easting"), 0);
    EXPECT_EQ(index_of("false_northing"), 1);
    EXPECT_EQ(index_of("Longitude_Of_Origin"), 2);
    EXPECT_EQ(index_of("CENTRAL_MERIDIAN"), 2);
    EXPECT_EQ(index_of("Latitude_Of_1st_Point"), 3);
    EXPECT_EQ(index_of("Pseudo_Standard_Parallel_1"), 3);
    EXPECT_EQ(index_of("Latitude_Of_2nd_Point"), 4);
    EXPECT_EQ(index_of("Scale_Factor"), 5);
    EXPECT_EQ(index_of("Central_Parallel"), 6);
    EXPECT_EQ(index_of("Azimuth"), 7);
    EXPECT_EQ(index_of("Longitude_Of_Center"), 10);
    EXPECT_EQ(index_of("Latitude_Of_Center"), 11);
    EXPECT_EQ(index_of("X_Scale"), 12);
    EXPECT_EQ(index_of("Y_Scale"), 13);
    EXPECT_EQ(index_of("XY_Plane_Rotation"), 14);
    EXPECT_EQ(index_of("Height"), 15);
    // Transformation parameters reuse the low slots.
    EXPECT_EQ(index_of("Z_Axis_Translation"), 2);
    EXPECT_EQ(index_of("Scale_Difference"), 6);
}

TEST(ParameterIndex, DatasetPrefixGoesToSlot15AndTheRestIsUnknown) {
    EXPECT_EQ(index_of("Dataset_"), 15);
    EXPECT_EQ(index_of("dataset_conus"), 15);
    EXPECT_EQ(index_of("DaTaSeT_ntv2_0.gsb"), 15);
    EXPECT_EQ(index_of("Dataset"), -1);  // too short for the prefix
    EXPECT_EQ(index_of("Datasets_x"), -1);
    EXPECT_EQ(index_of("Standard_Parallel_3"), -1);
    EXPECT_EQ(index_of(""), -1);
    EXPECT_EQ(ka_parameter_index(nullptr), -2);
    ka_unit *unit = ka_unit_new("Meter", 1);  // wrong kind
    EXPECT_EQ(ka_parameter_index(reinterpret_cast<ka_parameter *>(unit)), -2);
    ka_unit_del(unit);
}

TEST(Parameter, EqualityComparesNamesIgnoringCaseAndValuesWithinTolerance) {
    ka_parameter *a = ka_parameter_new("Scale_Factor", 0.9996);
    ka_parameter *b = ka_parameter_new("SCALE_FACTOR", 0.9996 + 1e-16);
    ka_parameter *c = ka_parameter_new("Scale_Factor", 0.9997);
    ka_parameter *d = ka_parameter_new("Azimuth", 0.9996);
    EXPECT_TRUE(ka_parameter_eq(a, b));
    EXPECT_FALSE(ka_parameter_eq(a, c));
    EXPECT_FALSE(ka_parameter_eq(a, d));
    EXPECT_FALSE(ka_parameter_eq(a, nullptr));
    ka_parameter *copy = ka_parameter_clone(a);
    EXPECT_TRUE(ka_parameter_eq(a, copy));
    EXPECT_NE(copy, a);
    for (ka_parameter *p : {a, b, c, d, copy}) ka_parameter_del(p);
}

TEST(Parameter, AccessorsAndSettersRejectBadHandles) {
    EXPECT_EQ(ka_parameter_new(nullptr, 1), nullptr);
    EXPECT_EQ(ka_parameter_value(nullptr), 0.0);
    EXPECT_EQ(ka_parameter_value_set(nullptr, 1), 0);
    EXPECT_EQ(ka_parameter_name_set(nullptr, "x"), 0);
    ka_parameter *p = ka_parameter_new("Azimuth", NAN);  // any value accepted
    ASSERT_NE(p, nullptr);
    EXPECT_EQ(ka_parameter_name_set(p, nullptr), 0);
    EXPECT_EQ(ka_parameter_value_set(p, 12.5), 1);
    EXPECT_EQ(ka_parameter_value(p), 12.5);
    EXPECT_EQ(ka_parameter_name_set(p, "Height"), 1);
    EXPECT_EQ(ka_parameter_index(p), 15);
    // A name longer than the field is cut at 63 characters.
    const std::string long_name(100, 'x');
    EXPECT_EQ(ka_parameter_name_set(p, long_name.c_str()), 1);
    char name[KA_NAME_MAX];
    ka_parameter_name(p, name);
    EXPECT_EQ(std::strlen(name), 63u);
    ka_parameter_del(p);
    ka_parameter_del(nullptr);
}

TEST(FactoryParameter, BuildsNamedParametersWithTheirDefaults) {
    ka_parameter *p = ka_factory_parameter(100025);
    char name[KA_NAME_MAX];
    ka_parameter_name(p, name);
    EXPECT_STREQ(name, "Standard_Parallel_1");
    EXPECT_EQ(ka_parameter_value(p), 60.0);
    ka_parameter_del(p);
    p = ka_factory_parameter(100003);
    EXPECT_EQ(ka_parameter_value(p), 1.0);
    ka_parameter_del(p);
    p = ka_factory_parameter(100047);
    EXPECT_EQ(ka_parameter_index(p), 15);
    ka_parameter_del(p);
    for (int code : {0, 100000, 100006, 100028, 100048, -1})
        EXPECT_EQ(ka_factory_parameter(code), nullptr) << code;
}

}  // namespace
