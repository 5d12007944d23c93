// Projections and projected systems: equality, cloning (plain and into
// other units), constants loading.
#include <gtest/gtest.h>

#include <cmath>

#include "support/projcs_builder.h"

namespace {

using namespace veltra::test;

ProjcsPtr utm31(const char *name = "PCS_Test") {
    return make_projcs("Transverse_Mercator", kWgs84Axis, kWgs84Flattening,
                       {{"False_Easting", 500000},
                        {"Central_Meridian", 3},
                        {"Scale_Factor", 0.9996}},
                       {}, name);
}

double slot_value(const ka_projcs *pcs, int slot) {
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    ka_projcs_parameters(pcs, slots);
    return ka_parameter_value(slots[slot]);
}

// Equal names and routines; the constants calculator is not compared, and
// a missing horizon becomes the default one.
TEST(Projection, EqualityIsNameAndRoutines) {
    ka_projection *registry = ka_factory_projection(43004);  // Mercator
    const auto forward = ka_projection_forward(registry);
    const auto inverse = ka_projection_inverse(registry);
    ka_projection *plain = ka_projection_new("MERCATOR", forward, inverse,
                                             ka_projection_horizon(registry));
    ka_projection *default_horizon =
        ka_projection_new("Mercator", forward, inverse, nullptr);
    EXPECT_TRUE(ka_projection_eq(registry, plain));
    EXPECT_FALSE(ka_projection_eq(registry, default_horizon));
    EXPECT_EQ(ka_projection_horizon(default_horizon),
              ka_projection_horizon(nullptr));
    EXPECT_EQ(ka_projection_new(nullptr, forward, inverse, nullptr), nullptr);
    EXPECT_EQ(ka_projection_new("x", forward, nullptr, nullptr), nullptr);
    for (ka_projection *p : {registry, plain, default_horizon})
        ka_projection_del(p);
}

TEST(Projcs, EqComparesTheSystemsNamesEqnnDoesNot) {
    ProjcsPtr a = utm31(), b = utm31(), renamed = utm31("Other");
    EXPECT_TRUE(ka_projcs_eq(a.get(), b.get()));
    EXPECT_FALSE(ka_projcs_eq(a.get(), renamed.get()));
    EXPECT_TRUE(ka_projcs_eqnn(a.get(), renamed.get()));
    EXPECT_FALSE(ka_projcs_eq(nullptr, a.get()));
}

TEST(Projcs, ASlotFilledInOnlyOneSystemMakesThemUnequal) {
    ProjcsPtr a =
        make_projcs("Mercator", kWgs84Axis, 0, {{"Central_Meridian", 0}});
    ProjcsPtr b = make_projcs("Mercator", kWgs84Axis, 0,
                              {{"Central_Meridian", 0}, {"False_Easting", 0}});
    ProjcsPtr alias =
        make_projcs("Mercator", kWgs84Axis, 0, {{"Longitude_Of_Origin", 0}});
    EXPECT_FALSE(ka_projcs_eqnn(a.get(), b.get()));
    EXPECT_FALSE(ka_projcs_eqnn(a.get(), alias.get()));
}

TEST(Projcs, CloneIsDeepEqualAndUnloaded) {
    ProjcsPtr pcs = utm31();
    ASSERT_GT(ka_projcs_load_constants(pcs.get()), 0);
    ProjcsPtr copy(ka_projcs_clone(pcs.get()));
    EXPECT_TRUE(ka_projcs_isconstloaded(pcs.get()));
    EXPECT_FALSE(ka_projcs_isconstloaded(copy.get()));
    EXPECT_TRUE(ka_projcs_eq(pcs.get(), copy.get()));
    EXPECT_NE(ka_projcs_geogcs(copy.get()), ka_projcs_geogcs(pcs.get()));
    EXPECT_EQ(ka_projcs_clone(nullptr), nullptr);
}

TEST(Projcs, CloneIntoFeetScalesTheFalseOrigin) {
    ProjcsPtr pcs = utm31();
    ka_unit *foot = ka_unit_new("Foot", 0.3048);
    ProjcsPtr feet(ka_projcs_clone_alterunits(pcs.get(), foot, nullptr));
    ka_unit_del(foot);  // the caller keeps its unit
    ASSERT_NE(feet, nullptr);
    EXPECT_NEAR(slot_value(feet.get(), 0), 1640419.9475065616, 1e-8);
    EXPECT_EQ(slot_value(feet.get(), 2), 3.0);
    EXPECT_EQ(ka_unit_factor(ka_projcs_unit(feet.get())), 0.3048);
    const Point m = to_proj(pcs.get(), 4.5, 51.0);
    const Point f = to_proj(feet.get(), 4.5, 51.0);
    EXPECT_NEAR(f.x * 0.3048, m.x, 1e-6);
    EXPECT_NEAR(f.y * 0.3048, m.y, 1e-6);
}

TEST(Projcs, CloneIntoGradsScalesTheAngles) {
    ProjcsPtr pcs = utm31();
    ka_unit *grad = ka_unit_new("Grad", kGrad);
    ProjcsPtr grads(ka_projcs_clone_alterunits(pcs.get(), nullptr, grad));
    ka_unit_del(grad);
    ASSERT_NE(grads, nullptr);
    EXPECT_NEAR(slot_value(grads.get(), 2), 3.0 / 0.9, 1e-13);
    EXPECT_EQ(slot_value(grads.get(), 0), 500000.0);
    char name[KA_NAME_MAX];
    ka_geogcs_name(ka_projcs_geogcs(grads.get()), name);
    EXPECT_STREQ(name, "GCS_Test");
    const Point d = to_proj(pcs.get(), 4.5, 51.0);
    const Point g = to_proj(grads.get(), 5.0, 51.0 / 0.9);
    EXPECT_NEAR(g.x, d.x, 1e-6);
    EXPECT_NEAR(g.y, d.y, 1e-6);
}

// Units with the current factors (whatever their names) give a plain clone.
TEST(Projcs, CloneWithUnchangedFactorsIsAPlainClone) {
    ProjcsPtr pcs = utm31();
    ka_unit *metre = ka_unit_new("Another_Metre", 1.0);
    ka_unit *degree = ka_unit_new("Deg", kDegree);
    ProjcsPtr copy(ka_projcs_clone_alterunits(pcs.get(), metre, degree));
    EXPECT_TRUE(ka_projcs_eq(copy.get(), pcs.get()));
    EXPECT_EQ(ka_projcs_clone_alterunits(nullptr, metre, degree), nullptr);
    ka_unit_del(metre);
    ka_unit_del(degree);
}

TEST(Projcs, LoadingNeedsACalculator) {
    ProjcsPtr tm = utm31();
    EXPECT_EQ(ka_projcs_load_constants(tm.get()), 3);
    EXPECT_EQ(ka_projcs_load_constants(tm.get()), 3);  // reload
    ka_projcs_unload_constants(tm.get());
    EXPECT_EQ(ka_projcs_isconstloaded(tm.get()), 0);
    ProjcsPtr plate = make_projcs("Plate_Carree", 6371000, 0, {});
    EXPECT_EQ(ka_projcs_load_constants(plate.get()), 0);
    EXPECT_EQ(ka_projcs_isconstloaded(plate.get()), 0);
    EXPECT_EQ(ka_projcs_load_constants(nullptr), 0);
}

// Loaded constants stay in force until reloaded, even when a parameter
// they came from changes.
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
