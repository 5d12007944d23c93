// The method table: methods by name and by catalogue code, and the default
// parameter lists.
#include "core/method.h"
#include "transforms/method_table.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace {

std::string name_of(const ka_method *method) {
    char name[KA_NAME_MAX];
    ka_method_name(method, name);
    return name;
}

std::string name_of_parameter(const ka_parameter *parameter) {
    char name[KA_NAME_MAX];
    ka_parameter_name(parameter, name);
    return name;
}

struct CodeName {
    int code;
    const char *name;
};

constexpr CodeName kEquationMethods[] = {
    {9601, "Longitude_Rotation"}, {9603, "Geocentric_Translation"},
    {9604, "Molodensky"},         {9605, "Molodensky_Abridged"},
    {9606, "Position_Vector"},    {9607, "Coordinate_Frame"},
    {109607, "Bursa_Wolf"},
};

TEST(MethodTable, FactoryBuildsEveryEquationMethodByCode) {
    for (const CodeName &row : kEquationMethods) {
        SCOPED_TRACE(row.name);
        ka_method *method = ka_factory_method(row.code);
        ASSERT_NE(method, nullptr);
        EXPECT_EQ(name_of(method), row.name);
        EXPECT_EQ(veltra::method_code(method), row.code);
        EXPECT_EQ(veltra::method_loader(method), nullptr);
        ka_method_del(method);
    }
}

// The grid methods have no routines in this build; codes without a method
// (including the macro table's 42607 for Bursa_Wolf) give nothing.
TEST(MethodTable, FactoryGivesNothingForGridAndUnknownCodes) {
    for (int code : {9613, 9615, 109613, 42607, 9600, 9602, 0, -9601})
        EXPECT_EQ(ka_factory_method(code), nullptr) << code;
}

TEST(MethodTable, NamesAreFoundIgnoringCaseAndKeptAsGiven) {
    ka_method *method = veltra::table_method("coordinate_FRAME");
    ASSERT_NE(method, nullptr);
    EXPECT_EQ(name_of(method), "coordinate_FRAME");
    ka_method *catalogue = ka_factory_method(9607);
    EXPECT_TRUE(ka_method_eq(method, catalogue));
    ka_method_del(method);
    ka_method_del(catalogue);

    for (const char *name : {"NADCON", "HARN", "ntv2", "Molodensky_Standard",
                             "", "Bursa"})
        EXPECT_EQ(veltra::table_method(name), nullptr) << name;
    EXPECT_EQ(veltra::table_method(nullptr), nullptr);
}

// Bursa_Wolf and Coordinate_Frame share their routines; Position_Vector
// has its own; a longitude rotation is its own inverse.
TEST(MethodTable, RoutinesSharedBetweenConventions) {
    ka_method *bursa_wolf = ka_factory_method(109607);
    ka_method *coordinate_frame = ka_factory_method(9607);
    ka_method *position_vector = ka_factory_method(9606);
    ka_method *rotation = ka_factory_method(9601);
    EXPECT_EQ(ka_method_forward(bursa_wolf), ka_method_forward(coordinate_frame));
    EXPECT_EQ(ka_method_inverse(bursa_wolf), ka_method_inverse(coordinate_frame));
    EXPECT_NE(ka_method_forward(position_vector),
              ka_method_forward(coordinate_frame));
    EXPECT_EQ(ka_method_forward(rotation), ka_method_inverse(rotation));
    EXPECT_FALSE(ka_method_eq(bursa_wolf, coordinate_frame));  // names differ
    for (ka_method *m : {bursa_wolf, coordinate_frame, position_vector, rotation})
        ka_method_del(m);
}

// The transformation parameters by slot; a method's defaults are the first
// `count` of them, with value 0.
constexpr const char *kTransformationParameters[] = {
    "X_Axis_Translation", "Y_Axis_Translation", "Z_Axis_Translation",
    "X_Axis_Rotation",    "Y_Axis_Rotation",    "Z_Axis_Rotation",
    "Scale_Difference"};

TEST(MethodDefaults, ListsByMethod) {
    const std::pair<int, int> counts[] = {{9601, 0}, {9603, 3}, {9604, 3},
                                          {9605, 3}, {9606, 7}, {9607, 7},
                                          {109607, 7}};
    for (auto [code, count] : counts) {
        SCOPED_TRACE(code);
        ka_method *method = ka_factory_method(code);
        ka_parameter *slots[KA_PARAMETER_SLOTS];
        for (auto &slot : slots) slot = reinterpret_cast<ka_parameter *>(1);
        EXPECT_EQ(ka_parameter_method_defaults(method, slots), count);
        for (int i = 0; i < KA_PARAMETER_SLOTS; ++i) {
            if (i >= count) {
                EXPECT_EQ(slots[i], nullptr) << i;
                continue;
            }
            EXPECT_EQ(name_of_parameter(slots[i]), kTransformationParameters[i]);
            EXPECT_EQ(ka_parameter_value(slots[i]), 0.0);
            ka_parameter_del(slots[i]);
        }
        ka_method_del(method);
    }
}

// Only catalogue methods have a code, hence defaults: a method of the same
// name with routines of its own has none, and the slots are still cleared.
TEST(MethodDefaults, NoneForForeignOrMissingMethods) {
    ka_method *catalogue = ka_factory_method(9606);
    ka_method *foreign = ka_method_new("Position_Vector",
                                       ka_method_forward(nullptr),
                                       ka_method_inverse(nullptr));
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    for (auto &slot : slots) slot = reinterpret_cast<ka_parameter *>(1);
    EXPECT_EQ(ka_parameter_method_defaults(foreign, slots), 0);
    for (ka_parameter *slot : slots) EXPECT_EQ(slot, nullptr);
    EXPECT_EQ(veltra::method_code(foreign), 0);
    EXPECT_EQ(ka_parameter_method_defaults(nullptr, slots), 0);
    EXPECT_EQ(ka_parameter_method_defaults(catalogue, nullptr), 0);
    ka_method_del(catalogue);
    ka_method_del(foreign);
}

}  // namespace
