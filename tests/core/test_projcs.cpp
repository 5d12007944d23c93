// Projections and projected systems: equality, cloning (plain and into
// other units), constants loading.
#include "support/projcs_builder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

namespace {

using namespace veltra::test;

ProjcsPtr utm31() {
    return make_projcs("Transverse_Mercator", kWgs84Axis, kWgs84Flattening,
                       {{"False_Easting", 500000},
                        {"False_Northing", 0},
                        {"Central_Meridian", 3},
                        {"Scale_Factor", 0.9996},
                        {"Latitude_Of_Origin", 0}});
}

std::string name_of(const ka_projcs *projcs) {
    char name[KA_NAME_MAX];
    ka_projcs_name(projcs, name);
    return name;
}

TEST(Projection, InvalidHandlesGiveRoutinesThatChangeNothing) {
    double points[4] = {1.5, -2.5, 3.0, NAN};
    ka_projection_fn forward = ka_projection_forward(nullptr);
    ASSERT_NE(forward, nullptr);
    EXPECT_EQ(forward(nullptr, nullptr, 2, points, nullptr, nullptr), 2);
    EXPECT_EQ(points[0], 1.5);
    EXPECT_EQ(points[1], -2.5);
    EXPECT_TRUE(std::isnan(points[3]));
    EXPECT_EQ(ka_projection_inverse(nullptr)(nullptr, nullptr, 2, points,
                                             nullptr, nullptr),
              2);
    EXPECT_NE(ka_projection_horizon(nullptr), nullptr);
}

TEST(Projection, EqualityIsNameAndRoutinesButNotTheCalculator) {
    ka_projection *registry = ka_factory_projection(43004);  // Mercator
    ASSERT_NE(registry, nullptr);
    // The same routines under ka_projection_new carry no calculator.
    ka_projection *plain = ka_projection_new(
        "MERCATOR", ka_projection_forward(registry),
        ka_projection_inverse(registry), ka_projection_horizon(registry));
    EXPECT_TRUE(ka_projection_eq(registry, plain));
    ka_projection *other_horizon = ka_projection_new(
        "Mercator", ka_projection_forward(registry),
        ka_projection_inverse(registry), nullptr);
    EXPECT_FALSE(ka_projection_eq(registry, other_horizon));
    EXPECT_EQ(ka_projection_horizon(other_horizon),
              ka_projection_horizon(nullptr));
    ka_projection *clone = ka_projection_clone(registry);
    EXPECT_TRUE(ka_projection_eq(clone, registry));
    EXPECT_EQ(ka_projection_new(nullptr, ka_projection_forward(registry),
                                ka_projection_inverse(registry), nullptr),
              nullptr);
    EXPECT_EQ(ka_projection_new("x", nullptr, ka_projection_inverse(registry),
                                nullptr),
              nullptr);
    for (ka_projection *p : {registry, plain, other_horizon, clone})
        ka_projection_del(p);
}

TEST(Projcs, NewRejectsMissingPartsAndHandsBackSlots) {
    ka_parameter *slots[KA_PARAMETER_SLOTS] = {};
    EXPECT_EQ(ka_projcs_new("x", nullptr, nullptr, slots, nullptr), nullptr);
    ProjcsPtr pcs = utm31();
    ASSERT_NE(pcs, nullptr);
    ka_parameter *out[KA_PARAMETER_SLOTS];
    ka_projcs_parameters(pcs.get(), out);
    EXPECT_EQ(ka_parameter_value(out[0]), 500000);
    EXPECT_EQ(ka_parameter_value(out[5]), 0.9996);
    EXPECT_EQ(out[3], nullptr);
    ka_projcs_parameters(nullptr, out);
    for (ka_parameter *p : out) EXPECT_EQ(p, nullptr);
    ka_projcs_parameters(pcs.get(), nullptr);  // ignored
}

TEST(Projcs, EqComparesNamesEqnnDoesNot) {
    ProjcsPtr a = utm31(), b = utm31();
    EXPECT_TRUE(ka_projcs_eq(a.get(), b.get()));
    b.reset(ka_projcs_clone(a.get()));
    EXPECT_TRUE(ka_projcs_eq(a.get(), b.get()));

    // Differ only in the systems' own names.
    auto slots = make_parameters({{"Central_Meridian", 3}});
    ProjcsPtr renamed(ka_projcs_new(
        "Other_Name", make_geogcs(kWgs84Axis, kWgs84Flattening, {}),
        veltra::registry_projection("Transverse_Mercator"), slots.data(),
        ka_unit_new("Test_Length", 1)));
    ProjcsPtr same = make_projcs("Transverse_Mercator", kWgs84Axis,
                                 kWgs84Flattening, {{"Central_Meridian", 3}});
    EXPECT_FALSE(ka_projcs_eq(renamed.get(), same.get()));
    EXPECT_TRUE(ka_projcs_eqnn(renamed.get(), same.get()));
    EXPECT_FALSE(ka_projcs_eq(nullptr, same.get()));
    EXPECT_FALSE(ka_projcs_eqnn(same.get(), nullptr));
}

TEST(Projcs, ASlotFilledInOnlyOneSystemMakesThemUnequal) {
    ProjcsPtr a = make_projcs("Mercator", kWgs84Axis, kWgs84Flattening,
                              {{"Central_Meridian", 0}});
    ProjcsPtr b = make_projcs("Mercator", kWgs84Axis, kWgs84Flattening,
                              {{"Central_Meridian", 0}, {"False_Easting", 0}});
    EXPECT_FALSE(ka_projcs_eq(a.get(), b.get()));
    EXPECT_FALSE(ka_projcs_eqnn(a.get(), b.get()));
    // Same slot, different names (aliases) are different parameters.
    ProjcsPtr c = make_projcs("Mercator", kWgs84Axis, kWgs84Flattening,
                              {{"Longitude_Of_Origin", 0}});
    EXPECT_FALSE(ka_projcs_eq(a.get(), c.get()));
}

TEST(Projcs, CloneIsDeepAndUnloaded) {
    ProjcsPtr pcs = utm31();
    ASSERT_GT(ka_projcs_load_constants(pcs.get()), 0);
    ProjcsPtr copy(ka_projcs_clone(pcs.get()));
    ASSERT_NE(copy, nullptr);
    EXPECT_TRUE(ka_projcs_isconstloaded(pcs.get()));
    EXPECT_FALSE(ka_projcs_isconstloaded(copy.get()));
    EXPECT_TRUE(ka_projcs_eq(pcs.get(), copy.get()));
    EXPECT_NE(ka_projcs_geogcs(copy.get()), ka_projcs_geogcs(pcs.get()));
    EXPECT_NE(ka_projcs_unit(copy.get()), ka_projcs_unit(pcs.get()));
    EXPECT_EQ(ka_projcs_clone(nullptr), nullptr);
}

TEST(Projcs, CloneIntoFeetScalesTheFalseOrigin) {
    ProjcsPtr pcs = utm31();
    ka_unit *foot = ka_unit_new("Foot", 0.3048);
    ProjcsPtr feet(ka_projcs_clone_alterunits(pcs.get(), foot, nullptr));
    ASSERT_NE(feet, nullptr);
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    ka_projcs_parameters(feet.get(), slots);
    EXPECT_NEAR(ka_parameter_value(slots[0]), 1640419.9475065616, 1e-8);
    EXPECT_EQ(ka_parameter_value(slots[2]), 3.0);  // angles untouched
    char name[KA_NAME_MAX];
    ka_unit_name(ka_projcs_unit(feet.get()), name);
    EXPECT_STREQ(name, "Foot");
    EXPECT_EQ(name_of(feet.get()), "PCS_Test");
    // The caller keeps its unit: deleting it leaves the clone intact.
    ka_unit_del(foot);
    EXPECT_EQ(ka_unit_factor(ka_projcs_unit(feet.get())), 0.3048);

    // The same point in either system is the same place.
    const Point m = to_proj(pcs.get(), 4.5, 51.0);
    const Point f = to_proj(feet.get(), 4.5, 51.0);
    EXPECT_NEAR(f.x * 0.3048, m.x, 1e-6);
    EXPECT_NEAR(f.y * 0.3048, m.y, 1e-6);
}

TEST(Projcs, CloneIntoGradsScalesTheAnglesAndRebuildsTheGeogcs) {
    ProjcsPtr pcs = utm31();
    ka_unit *grad = ka_unit_new("Grad", kGrad);
    ProjcsPtr grads(ka_projcs_clone_alterunits(pcs.get(), nullptr, grad));
    ka_unit_del(grad);
    ASSERT_NE(grads, nullptr);
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    ka_projcs_parameters(grads.get(), slots);
    EXPECT_NEAR(ka_parameter_value(slots[2]), 3.0 / 0.9, 1e-13);
    EXPECT_EQ(ka_parameter_value(slots[0]), 500000.0);
    EXPECT_EQ(ka_unit_factor(ka_geogcs_unit(ka_projcs_geogcs(grads.get()))),
              kGrad);
    char name[KA_NAME_MAX];
    ka_geogcs_name(ka_projcs_geogcs(grads.get()), name);
    EXPECT_STREQ(name, "GCS_Test");
    const Point d = to_proj(pcs.get(), 4.5, 51.0);
    const Point g = to_proj(grads.get(), 5.0, 51.0 / 0.9);
    EXPECT_NEAR(g.x, d.x, 1e-6);
    EXPECT_NEAR(g.y, d.y, 1e-6);
}

TEST(Projcs, CloneWithUnchangedFactorsIsAPlainClone) {
    ProjcsPtr pcs = utm31();
    ka_unit *metre = ka_unit_new("Metre_Under_Another_Name", 1.0);
    ka_unit *degree = ka_unit_new("Deg", kDegree);
    ProjcsPtr copy(ka_projcs_clone_alterunits(pcs.get(), metre, degree));
    ASSERT_NE(copy, nullptr);
    EXPECT_TRUE(ka_projcs_eq(copy.get(), pcs.get()));  // unit names kept
    ProjcsPtr none(ka_projcs_clone_alterunits(pcs.get(), nullptr, nullptr));
    EXPECT_TRUE(ka_projcs_eq(none.get(), pcs.get()));
    EXPECT_EQ(ka_projcs_clone_alterunits(nullptr, metre, degree), nullptr);
    ka_unit_del(metre);
    ka_unit_del(degree);
}

TEST(Projcs, LoadingNeedsACalculator) {
    ProjcsPtr tm = utm31();
    EXPECT_EQ(ka_projcs_isconstloaded(tm.get()), 0);
    EXPECT_EQ(ka_projcs_load_constants(tm.get()), 3);  // ellipsoid layout
    EXPECT_EQ(ka_projcs_isconstloaded(tm.get()), 1);
    EXPECT_EQ(ka_projcs_load_constants(tm.get()), 3);  // reload
    ka_projcs_unload_constants(tm.get());
    EXPECT_EQ(ka_projcs_isconstloaded(tm.get()), 0);

    ProjcsPtr sphere = make_projcs("Transverse_Mercator", 6371000, 0,
                                   {{"Scale_Factor", 1}});
    EXPECT_EQ(ka_projcs_load_constants(sphere.get()), 2);

    ProjcsPtr plate = make_projcs("Plate_Carree", 6371000, 0, {});
    EXPECT_EQ(ka_projcs_load_constants(plate.get()), 0);
    EXPECT_EQ(ka_projcs_isconstloaded(plate.get()), 0);

    EXPECT_EQ(ka_projcs_load_constants(nullptr), 0);
    EXPECT_EQ(ka_projcs_isconstloaded(nullptr), 0);
    ka_projcs_unload_constants(nullptr);
}

TEST(Projcs, ProjectionMadeWithoutTheRegistryHasNoCalculator) {
    ka_projection *mercator = ka_factory_projection(43004);
    auto slots = make_parameters({});
    ProjcsPtr pcs(ka_projcs_new(
        "Plain", make_geogcs(kWgs84Axis, kWgs84Flattening, {}),
        ka_projection_new("Mercator", ka_projection_forward(mercator),
                          ka_projection_inverse(mercator), nullptr),
        slots.data(), ka_unit_new("Meter", 1)));
    ka_projection_del(mercator);
    EXPECT_EQ(ka_projcs_load_constants(pcs.get()), 0);
    EXPECT_EQ(ka_projcs_isconstloaded(pcs.get()), 0);
}

// Loaded constants stay in force until reloaded, even when a parameter
// they were computed from changes.
TEST(Projcs, ChangingAParameterKeepsTheLoadedConstants) {
    ProjcsPtr pcs = make_projcs("Mercator", kWgs84Axis, kWgs84Flattening,
                                {{"Standard_Parallel_1", 0}});
    ASSERT_EQ(ka_projcs_load_constants(pcs.get()), 2);
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    ka_projcs_parameters(pcs.get(), slots);
    ka_parameter_value_set(slots[3], 60);
    EXPECT_NEAR(to_proj(pcs.get(), 1, 0).x, kWgs84Axis * kDegree, 1e-6);
    ka_projcs_load_constants(pcs.get());
    EXPECT_LT(to_proj(pcs.get(), 1, 0).x, 0.6 * kWgs84Axis * kDegree);
}

}  // namespace
