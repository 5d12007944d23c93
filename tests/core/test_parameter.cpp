// Parameters: slots by name, equality, bad handles.
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
    const struct {
        const char *name;
        int slot;
    } cases[] = {
        {"false_northing", 1},       {"Longitude_Of_Origin", 2},
        {"CENTRAL_MERIDIAN", 2},     {"Pseudo_Standard_Parallel_1", 3},
        {"Latitude_Of_2nd_Point", 4}, {"Central_Parallel", 6},
        {"Longitude_Of_Center", 10}, {"XY_Plane_Rotation", 14},
        {"Height", 15},              {"Z_Axis_Translation", 2},
        {"Scale_Difference", 6},     {"Dataset_", 15},
        {"dataset_conus", 15},       {"DaTaSeT_ntv2_0.gsb", 15},
        {"Dataset", -1},             {"Datasets_x", -1},
        {"Standard_Parallel_3", -1}, {"", -1},
    };
    for (const auto &c : cases) EXPECT_EQ(index_of(c.name), c.slot) << c.name;
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
    ka_parameter *copy = ka_parameter_clone(a);
    EXPECT_TRUE(ka_parameter_eq(a, b));
    EXPECT_FALSE(ka_parameter_eq(a, c));
    EXPECT_FALSE(ka_parameter_eq(a, d));
    EXPECT_FALSE(ka_parameter_eq(a, nullptr));
    EXPECT_TRUE(ka_parameter_eq(a, copy));
    for (ka_parameter *p : {a, b, c, d, copy}) ka_parameter_del(p);
}

TEST(Parameter, SettersAndAccessorsRejectBadHandles) {
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
    // A name longer than the field is cut at 63 characters, not overrun.
    EXPECT_EQ(ka_parameter_name_set(p, std::string(100, 'x').c_str()), 1);
    char name[KA_NAME_MAX];
    ka_parameter_name(p, name);
    EXPECT_EQ(std::strlen(name), 63u);
    ka_parameter_del(p);
}

TEST(FactoryParameter, BuildsNamedParametersWithTheirDefaults) {
    ka_parameter *p = ka_factory_parameter(100025);
    char name[KA_NAME_MAX];
    ka_parameter_name(p, name);
    EXPECT_STREQ(name, "Standard_Parallel_1");
    EXPECT_EQ(ka_parameter_value(p), 60.0);
    ka_parameter_del(p);
    for (int code : {0, 100000, 100006, 100028, 100048, -1})
        EXPECT_EQ(ka_factory_parameter(code), nullptr) << code;
}

}  // namespace
