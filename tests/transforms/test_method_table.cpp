// The method table: methods by catalogue code and by name, the routines the
// conventions share, and the default parameter lists.
#include "core/method.h"
#include "transforms/method_table.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string name_of(const ka_method *method) {
    char name[KA_NAME_MAX] = "";
    ka_method_name(method, name);
    return name;
}

// The transformation parameters by slot; a method's defaults are the first
// `count` of them, with value 0.
constexpr const char *kParameters[] = {"X_Axis_Translation", "Y_Axis_Translation",
                                       "Z_Axis_Translation", "X_Axis_Rotation",
                                       "Y_Axis_Rotation",    "Z_Axis_Rotation",
                                       "Scale_Difference"};

TEST(MethodTable, EquationMethodsByCodeWithTheirDefaults) {
    const struct { int code; const char *name; int defaults; } rows[] = {
        {9601, "Longitude_Rotation", 0}, {9603, "Geocentric_Translation", 3},
        {9604, "Molodensky", 3},         {9605, "Molodensky_Abridged", 3},
        {9606, "Position_Vector", 7},    {9607, "Coordinate_Frame", 7},
        {109607, "Bursa_Wolf", 7}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        ka_method *method = ka_factory_method(row.code);
        ASSERT_NE(method, nullptr);
        EXPECT_EQ(name_of(method), row.name);
        EXPECT_EQ(veltra::method_code(method), row.code);
        EXPECT_EQ(veltra::method_loader(method), nullptr);
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

TEST(MethodTable, NamesAreFoundIgnoringCaseAndKeptAsGiven) {
    ka_method *method = veltra::table_method("coordinate_FRAME");
    ka_method *catalogue = ka_factory_method(9607);
    EXPECT_EQ(name_of(method), "coordinate_FRAME");
    EXPECT_TRUE(ka_method_eq(method, catalogue));
    for (ka_method *m : {method, catalogue}) ka_method_del(m);
    for (const char *name : {"NADCON", "HARN", "ntv2", "Molodensky_Standard", "", "Bursa"})
        EXPECT_EQ(veltra::table_method(name), nullptr) << name;
    EXPECT_EQ(veltra::table_method(nullptr), nullptr);
}

// Bursa_Wolf and Coordinate_Frame share their routines; Position_Vector
// has its own; a longitude rotation is its own inverse.
TEST(MethodTable, RoutinesSharedBetweenConventions) {
    ka_method *bursa_wolf = ka_factory_method(109607), *coordinate_frame = ka_factory_method(9607),
              *position_vector = ka_factory_method(9606), *rotation = ka_factory_method(9601);
    EXPECT_EQ(ka_method_forward(bursa_wolf), ka_method_forward(coordinate_frame));
    EXPECT_EQ(ka_method_inverse(bursa_wolf), ka_method_inverse(coordinate_frame));
    EXPECT_NE(ka_method_forward(position_vector), ka_method_forward(coordinate_frame));
    EXPECT_EQ(ka_method_forward(rotation), ka_method_inverse(rotation));
    EXPECT_FALSE(ka_method_eq(bursa_wolf, coordinate_frame));  // names differ
    for (ka_method *m : {bursa_wolf, coordinate_frame, position_vector, rotation})
        ka_method_del(m);
}

// Only catalogue methods have a code, hence defaults: a method of the same
// name with routines of its own has none, and the slots are still cleared.
TEST(MethodTable, NoDefaultsForForeignOrMissingMethods) {
    ka_method *catalogue = ka_factory_method(9606);
    ka_method *foreign = ka_method_new("Position_Vector", ka_method_forward(nullptr),
                                       ka_method_inverse(nullptr));
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    for (auto &slot : slots) slot = reinterpret_cast<ka_parameter *>(1);
    EXPECT_EQ(ka_parameter_method_defaults(foreign, slots), 0);
    for (ka_parameter *slot : slots) EXPECT_EQ(slot, nullptr);
    EXPECT_EQ(veltra::method_code(foreign), 0);
    EXPECT_EQ(ka_parameter_method_defaults(nullptr, slots), 0);
    EXPECT_EQ(ka_parameter_method_defaults(catalogue, nullptr), 0);
    for (ka_method *m : {catalogue, foreign}) ka_method_del(m);
}

}  // namespace
