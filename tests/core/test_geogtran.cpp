// Method and geographic-transformation objects: construction, equality,
// copies, accessors and the constants record of grid methods.
#include "core/method.h"
#include "transforms/fixtures.h"
#include "transforms/gtconstants.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

using namespace fixtures;

int identity(const double *, const double *, const double *, const char *,
             int n, double *, double *, void *, void *, void *) {
    return n;
}

int other(const double *, const double *, const double *, const char *,
          int n, double *, double *, void *, void *, void *) {
    return n + 1;
}

TEST(Method, InvalidMethodRoutinesChangeNothing) {
    ka_unit *unit = ka_unit_new("Degree", kDegree);
    auto *not_a_method = reinterpret_cast<const ka_method *>(unit);
    for (ka_method_fn routine :
         {ka_method_forward(nullptr), ka_method_inverse(nullptr),
          ka_method_forward(not_a_method)}) {
        double coords[4] = {1, 2, 3, 4};
        double heights[2] = {5, 6};
        const double spheroid[2] = {6378137, 0.0066943799901413165};
        const double values[KA_PARAMETER_SLOTS] = {};
        EXPECT_EQ(routine(spheroid, spheroid, values, nullptr, 2, coords,
                          heights, nullptr, nullptr, nullptr),
                  2);
        EXPECT_EQ(coords[0], 1);
        EXPECT_EQ(coords[3], 4);
        EXPECT_EQ(heights[1], 6);
    }
    EXPECT_EQ(veltra::method_loader(not_a_method), nullptr);
    ka_unit_del(unit);
}

TEST(Method, ConstructionEqualityAndClones) {
    EXPECT_EQ(ka_method_new(nullptr, identity, identity), nullptr);
    EXPECT_EQ(ka_method_new("M", nullptr, identity), nullptr);
    EXPECT_EQ(ka_method_new("M", identity, nullptr), nullptr);

    ka_method *a = ka_method_new("My_Method", identity, other);
    ka_method *same = ka_method_new("MY_METHOD", identity, other);
    ka_method *swapped = ka_method_new("My_Method", other, identity);
    ka_method *renamed = ka_method_new("My_Method_2", identity, other);
    EXPECT_TRUE(ka_method_p(a));
    EXPECT_TRUE(ka_method_eq(a, same));
    EXPECT_FALSE(ka_method_eq(a, swapped));
    EXPECT_FALSE(ka_method_eq(a, renamed));
    EXPECT_FALSE(ka_method_eq(a, nullptr));
    EXPECT_EQ(ka_method_forward(a), identity);
    EXPECT_EQ(ka_method_inverse(a), other);

    // A clone keeps the loader too, though equality does not look at it.
    auto loader = [](veltra::GtConstants *, const char *) { return 1; };
    ka_method *grid = veltra::new_method("Grid", identity, other, loader);
    ka_method *grid_copy = ka_method_clone(grid);
    EXPECT_TRUE(ka_method_eq(grid, grid_copy));
    EXPECT_EQ(veltra::method_loader(grid_copy), veltra::method_loader(grid));
    ka_method *plain = ka_method_new("Grid", identity, other);
    EXPECT_TRUE(ka_method_eq(grid, plain));
    EXPECT_EQ(veltra::method_loader(plain), nullptr);
    EXPECT_EQ(ka_method_clone(nullptr), nullptr);

    for (ka_method *m : {a, same, swapped, renamed, grid, grid_copy, plain})
        ka_method_del(m);
}

ka_geogtran *translation(double dx, ka_geogcs *from, ka_geogcs *to) {
    return geogtran(from, to, kGeocentricTranslation, {{kDx, dx}, {kDz, 4.0}});
}

TEST(Geogtran, ConstructionAndAccessors) {
    ka_parameter *slots[KA_PARAMETER_SLOTS] = {};
    ka_geogcs *one = geogcs("D_One", kWgs84);
    ka_geogcs *two = geogcs("D_Two", kWgs72);
    ka_method *method = ka_factory_method(kGeocentricTranslation);
    EXPECT_EQ(ka_geogtran_new("T", one, two, method, nullptr), nullptr);
    EXPECT_EQ(ka_geogtran_new("T", one, nullptr, method, slots), nullptr);

    slots[2] = ka_parameter_new("Z_Axis_Translation", 4.0);
    ka_geogtran *gt = ka_geogtran_new("T", one, two, method, slots);
    ASSERT_NE(gt, nullptr);
    EXPECT_EQ(ka_geogtran_geogcs1(gt), one);
    EXPECT_EQ(ka_geogtran_geogcs2(gt), two);
    EXPECT_EQ(ka_geogtran_method(gt), method);
    EXPECT_FALSE(ka_geogtran_isconstloaded(gt));

    // The caller's array receives the slot pointers themselves; for an
    // invalid handle it is cleared.
    ka_parameter *out[KA_PARAMETER_SLOTS];
    std::memset(out, 0xff, sizeof out);
    ka_geogtran_parameters(gt, out);
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i)
        EXPECT_EQ(out[i], i == 2 ? slots[2] : nullptr);
    ka_geogtran_parameters(reinterpret_cast<ka_geogtran *>(method), out);
    for (ka_parameter *p : out) EXPECT_EQ(p, nullptr);
    EXPECT_EQ(ka_geogtran_method(reinterpret_cast<ka_geogtran *>(one)), nullptr);
    ka_geogtran_del(gt);
}

TEST(Geogtran, EqualityAndClones) {
    ka_geogtran *a = translation(-87, geogcs("D_One", kWgs84), geogcs("D_Two", kWgs72));
    ka_geogtran *b = translation(-87, geogcs("D_One", kWgs84), geogcs("D_Two", kWgs72));
    ka_geogtran *reversed =
        translation(-87, geogcs("D_Two", kWgs72), geogcs("D_One", kWgs84));
    ka_geogtran *shifted =
        translation(-86, geogcs("D_One", kWgs84), geogcs("D_Two", kWgs72));
    ka_geogtran *fewer = geogtran(geogcs("D_One", kWgs84), geogcs("D_Two", kWgs72),
                                  kGeocentricTranslation, {{kDx, -87}});
    ka_geogtran *other_method =
        geogtran(geogcs("D_One", kWgs84), geogcs("D_Two", kWgs72), kMolodensky,
                 {{kDx, -87}, {kDz, 4.0}});
    EXPECT_TRUE(ka_geogtran_eq(a, b));
    EXPECT_FALSE(ka_geogtran_eq(a, reversed));
    EXPECT_FALSE(ka_geogtran_eq(a, shifted));
    EXPECT_FALSE(ka_geogtran_eq(a, fewer));
    EXPECT_FALSE(ka_geogtran_eq(fewer, a));
    EXPECT_FALSE(ka_geogtran_eq(a, other_method));
    EXPECT_FALSE(ka_geogtran_eq(a, nullptr));

    ka_geogtran *copy = ka_geogtran_clone(a);
    ASSERT_NE(copy, nullptr);
    EXPECT_TRUE(ka_geogtran_eq(a, copy));
    EXPECT_NE(ka_geogtran_geogcs1(copy), ka_geogtran_geogcs1(a));
    char name[KA_NAME_MAX];
    ka_geogtran_name(copy, name);
    EXPECT_STREQ(name, "Transformation");
    EXPECT_EQ(ka_geogtran_clone(nullptr), nullptr);

    for (ka_geogtran *gt : {a, b, reversed, shifted, fewer, other_method, copy})
        ka_geogtran_del(gt);
}

// Loaders for the constants tests: one that fills the three blocks and
// remembers the grid name it was given, one that fails.
std::string loaded_name;

int filling_loader(veltra::GtConstants *record, const char *grid_name) {
    loaded_name = grid_name;
    record->header = ka_mem_alloc(16);
    record->shift_a = ka_mem_alloc(32);
    record->shift_b = ka_mem_alloc(32);
    return 1;
}

int failing_loader(veltra::GtConstants *record, const char *) {
    record->header = ka_mem_alloc(16);  // freed with the record
    return 0;
}

ka_geogtran *grid_transformation(veltra::GtLoaderFn loader, const char *dataset) {
    ka_parameter *slots[KA_PARAMETER_SLOTS] = {};
    if (dataset != nullptr) slots[15] = ka_parameter_new(dataset, 0);
    return ka_geogtran_new("Grid", geogcs("D_One", kWgs84),
                           geogcs("D_Two", kWgs72),
                           veltra::new_method("Grid", identity, identity, loader),
                           slots);
}

TEST(Geogtran, EquationMethodsLoadNoConstants) {
    ka_geogtran *gt = translation(-87, geogcs("D_One", kWgs84), geogcs("D_Two", kWgs72));
    EXPECT_EQ(ka_geogtran_load_constants(gt), 0);
    EXPECT_FALSE(ka_geogtran_isconstloaded(gt));
    EXPECT_EQ(ka_geogtran_load_constants(nullptr), 0);
    ka_geogtran_unload_constants(nullptr);
    ka_geogtran_del(gt);
}

TEST(Geogtran, GridConstantsLoadReloadAndUnload) {
    ka_geogtran *gt = grid_transformation(filling_loader, "DATASET_conus");
    EXPECT_EQ(ka_geogtran_load_constants(gt), 1);
    EXPECT_EQ(loaded_name, "DATASET_conus");
    EXPECT_TRUE(ka_geogtran_isconstloaded(gt));
    EXPECT_EQ(ka_geogtran_load_constants(gt), 1);  // the first record is freed
    ka_geogtran *copy = ka_geogtran_clone(gt);
    EXPECT_FALSE(ka_geogtran_isconstloaded(copy));
    ka_geogtran_unload_constants(gt);
    EXPECT_FALSE(ka_geogtran_isconstloaded(gt));
    EXPECT_EQ(ka_geogtran_load_constants(copy), 1);
    ka_geogtran_del(copy);  // deletes its record too
    ka_geogtran_del(gt);

    ka_geogtran *unnamed = grid_transformation(filling_loader, nullptr);
    EXPECT_EQ(ka_geogtran_load_constants(unnamed), 1);
    EXPECT_EQ(loaded_name, "");
    ka_geogtran_del(unnamed);

    ka_geogtran *failing = grid_transformation(failing_loader, "DATASET_x");
    EXPECT_EQ(ka_geogtran_load_constants(failing), 0);
    EXPECT_FALSE(ka_geogtran_isconstloaded(failing));
    ka_geogtran_del(failing);
}

TEST(GtConstants, RecordsAndWrongKinds) {
    veltra::GtConstants *record = veltra::gtconstants_new();
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(veltra::gtconstants_header(record), nullptr);
    record->shift_a = ka_mem_alloc(8);
    EXPECT_EQ(veltra::gtconstants_shift_a(record), record->shift_a);
    ka_unit *unit = ka_unit_new("Degree", kDegree);
    auto *wrong = reinterpret_cast<veltra::GtConstants *>(unit);
    EXPECT_EQ(veltra::gtconstants_shift_b(wrong), nullptr);
    veltra::gtconstants_del(wrong);  // ignored: the unit is still valid
    EXPECT_TRUE(ka_unit_p(unit));
    veltra::gtconstants_del(nullptr);
    veltra::gtconstants_del(record);
    ka_unit_del(unit);
}

}  // namespace
