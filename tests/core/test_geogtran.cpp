// Method and geographic-transformation objects: construction, equality,
// copies, accessors and the constants record of grid methods.
#include "core/fixtures.h"
#include "core/method.h"

using namespace fixtures;

namespace {

TEST(Method, ConstructionEqualityAndClones) {
    // The routines of an invalid method change nothing and return the count.
    ka_unit *unit = ka_unit_new("Degree", kDegree);
    auto *not_a_method = reinterpret_cast<const ka_method *>(unit);
    for (ka_method_fn routine : {ka_method_forward(nullptr), ka_method_inverse(not_a_method)}) {
        double coords[4] = {1, 2, 3, 4}, heights[2] = {5, 6}, values[16] = {};
        EXPECT_EQ(routine(values, values, values, nullptr, 2, coords, heights, 0, 0, 0), 2);
        EXPECT_TRUE(coords[0] == 1 && coords[3] == 4 && heights[1] == 6);
    }
    EXPECT_EQ(veltra::method_loader(not_a_method), nullptr);

    ka_method *table = ka_method_from_string("METHOD[\"Geocentric_Translation\"]");
    const ka_method_fn forward = ka_method_forward(table), inverse = ka_method_inverse(table);
    EXPECT_FALSE(ka_method_new(nullptr, forward, inverse) || ka_method_new("M", nullptr, inverse) ||
                 ka_method_new("M", forward, nullptr) || ka_method_clone(nullptr));
    ka_method *same = ka_method_new("GEOCENTRIC_TRANSLATION", forward, inverse);
    ka_method *swapped = ka_method_new("Geocentric_Translation", inverse, forward);
    ka_method *renamed = ka_method_new("Geocentric_Translation_2", forward, inverse);
    EXPECT_TRUE(ka_method_eq(table, same) && ka_method_forward(same) == forward);
    EXPECT_FALSE(ka_method_eq(table, swapped) || ka_method_eq(table, renamed) ||
                 ka_method_eq(table, nullptr));
    // A clone keeps the constants loader, which equality does not look at.
    auto loader = [](veltra::GtConstants *, const char *) { return 1; };
    ka_method *grid = veltra::new_method("Geocentric_Translation", forward, inverse, loader);
    ka_method *grid_copy = ka_method_clone(grid);
    EXPECT_TRUE(ka_method_eq(grid, grid_copy) && ka_method_eq(grid, same));
    EXPECT_TRUE(veltra::method_loader(grid_copy) == veltra::method_loader(grid) &&
                veltra::method_loader(same) == nullptr);
    del(unit, table, same, swapped, renamed, grid, grid_copy);
}

ka_geogtran *transformation(ka_geogcs *from, ka_geogcs *to, std::initializer_list<Param> values,
                            const char *method = "METHOD[\"Geocentric_Translation\"]") {
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    return ka_geogtran_new("Transformation", from, to, ka_method_from_string(method),
                           fill_slots(slots, values));
}

TEST(Geogtran, ConstructionAccessorsAndEquality) {
    ka_parameter *slots[KA_PARAMETER_SLOTS] = {}, *out[KA_PARAMETER_SLOTS];
    ka_geogcs *one = wgs72(), *two = wgs84();
    ka_method *method = ka_method_from_string("METHOD[\"Geocentric_Translation\"]");
    EXPECT_FALSE(ka_geogtran_new("T", one, two, method, nullptr) ||
                 ka_geogtran_new("T", one, nullptr, method, slots));
    slots[2] = ka_parameter_new("Z_Axis_Translation", 4.5);
    ka_geogtran *a = ka_geogtran_new("Transformation", one, two, method, slots);
    EXPECT_TRUE(ka_geogtran_geogcs1(a) == one && ka_geogtran_geogcs2(a) == two &&
                ka_geogtran_method(a) == method && !ka_geogtran_isconstloaded(a));
    // The caller's array receives the slot pointers themselves; for an
    // invalid handle it is cleared.
    ka_geogtran_parameters(a, out);
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i) EXPECT_EQ(out[i], i == 2 ? slots[2] : nullptr);
    ka_geogtran_parameters(reinterpret_cast<ka_geogtran *>(method), out);
    EXPECT_FALSE(out[2] || ka_geogtran_method(reinterpret_cast<ka_geogtran *>(one)) ||
                 ka_geogtran_geogcs1(nullptr) || ka_geogtran_clone(nullptr));

    ka_geogtran *copy = ka_geogtran_clone(a);
    EXPECT_TRUE(ka_geogtran_eq(a, copy) && ka_geogtran_geogcs1(copy) != one);
    ka_geogtran *differ[] = {transformation(wgs84(), wgs72(), {{"Z_Axis_Translation", 4.5}}),
                             transformation(wgs72(), wgs84(), {{"Z_Axis_Translation", 4.6}}),
                             transformation(wgs72(), wgs84(), {}),
                             transformation(wgs72(), wgs84(), {{"Z_Axis_Translation", 4.5}},
                                            "METHOD[\"Molodensky\"]")};
    for (ka_geogtran *d : differ) {
        EXPECT_FALSE(ka_geogtran_eq(a, d) || ka_geogtran_eq(d, a));
        del(d);
    }
    del(a, copy);
}

// A loader that fills the three blocks and remembers the grid name it was
// given, and one that fails.
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

ka_geogtran *grid(veltra::GtLoaderFn loader, std::initializer_list<Param> dataset) {
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    ka_method *method = veltra::new_method("Grid", ka_method_forward(nullptr),
                                           ka_method_inverse(nullptr), loader);
    return ka_geogtran_new("Grid", wgs72(), wgs84(), method, fill_slots(slots, dataset));
}

TEST(Geogtran, ConstantsLoadOnlyForGridMethods) {
    ka_geogtran *equation = transformation(wgs72(), wgs84(), {{"X_Axis_Translation", -87}});
    EXPECT_FALSE(ka_geogtran_load_constants(equation) || ka_geogtran_isconstloaded(equation) ||
                 ka_geogtran_load_constants(nullptr));
    ka_geogtran_unload_constants(nullptr);
    ka_geogtran *gt = grid(filling_loader, {{"DATASET_conus", 0}});
    EXPECT_TRUE(ka_geogtran_load_constants(gt) == 1 && ka_geogtran_isconstloaded(gt));
    EXPECT_EQ(loaded_name, "DATASET_conus");
    EXPECT_EQ(ka_geogtran_load_constants(gt), 1);  // the first record is freed
    ka_geogtran *copy = ka_geogtran_clone(gt);
    ka_geogtran_unload_constants(gt);
    EXPECT_FALSE(ka_geogtran_isconstloaded(copy) || ka_geogtran_isconstloaded(gt));
    EXPECT_EQ(ka_geogtran_load_constants(copy), 1);  // deleted with the copy
    ka_geogtran *unnamed = grid(filling_loader, {}), *failing = grid(failing_loader, {});
    EXPECT_EQ(ka_geogtran_load_constants(unnamed), 1);
    EXPECT_EQ(loaded_name, "");
    EXPECT_FALSE(ka_geogtran_load_constants(failing) || ka_geogtran_isconstloaded(failing));
    del(equation, gt, copy, unnamed, failing);
}

}  // namespace
