// Parameters, projections and projected systems: slots by name, equality,
// cloning into other units, constants loading, and the geographic-projected
// drivers.
#include "core/fixtures.h"

#if VELTRA_HAVE_PROJ
#include <proj.h>
#endif

using namespace fixtures;

namespace {

TEST(Parameter, SlotsByNameEqualityAndSetters) {
    const std::pair<const char *, int> rows[] = {
        {"false_northing", 1}, {"Longitude_Of_Origin", 2}, {"CENTRAL_MERIDIAN", 2},
        {"Pseudo_Standard_Parallel_1", 3}, {"Latitude_Of_2nd_Point", 4}, {"Central_Parallel", 6},
        {"Longitude_Of_Center", 10}, {"XY_Plane_Rotation", 14}, {"Height", 15},
        {"Z_Axis_Translation", 2}, {"Scale_Difference", 6}, {"Dataset_", 15},
        {"dataset_conus", 15}, {"DaTaSeT_ntv2_0.gsb", 15}, {"Dataset", -1}, {"Datasets_x", -1},
        {"Standard_Parallel_3", -1}, {"", -1}};
    for (auto [name, slot] : rows) {
        ka_parameter *p = ka_parameter_new(name, 0);
        EXPECT_EQ(ka_parameter_index(p), slot) << name;
        del(p);
    }
    ka_unit *unit = ka_unit_new("Height", 1);
    EXPECT_TRUE(ka_parameter_index(reinterpret_cast<ka_parameter *>(unit)) == -2 &&
                ka_parameter_index(nullptr) == -2);

    ka_parameter *a = ka_parameter_new("Scale_Factor", 0.9996);
    ka_parameter *b = ka_parameter_new("SCALE_FACTOR", 0.9996 + 1e-16);
    ka_parameter *c = ka_parameter_new("Scale_Factor", 0.9997), *d = ka_parameter_new("Azimuth", 1);
    EXPECT_TRUE(ka_parameter_eq(a, b));
    EXPECT_FALSE(ka_parameter_eq(a, c) || ka_parameter_eq(a, d) || ka_parameter_eq(a, nullptr));
    // Any value is accepted; a name longer than the field is cut, not overrun.
    EXPECT_TRUE(ka_parameter_value_set(d, NAN) && ka_parameter_value_set(d, 12.5) &&
                ka_parameter_value(d) == 12.5);
    EXPECT_EQ(ka_parameter_name_set(d, std::string(100, 'x').c_str()), 1);
    EXPECT_EQ(NAME_OF(parameter, d), std::string(63, 'x'));
    EXPECT_FALSE(ka_parameter_new(nullptr, 1) || ka_parameter_value_set(nullptr, 1) ||
                 ka_parameter_name_set(nullptr, "x") || ka_parameter_name_set(d, nullptr) ||
                 ka_parameter_value(nullptr) || ka_factory_parameter(100000));
    // The parameter catalogue: code 100025 is Standard_Parallel_1, default 60.
    ka_parameter *sp1 = ka_factory_parameter(100025);
    EXPECT_TRUE(NAME_OF(parameter, sp1) == "Standard_Parallel_1" && ka_parameter_value(sp1) == 60);
    del(unit, a, b, c, d, sp1);
}

// Projections are equal by names and routines (the constants routine is
// not compared); a missing horizon becomes the default one.
TEST(Projcs, EqualityOfProjectionsAndSystems) {
    ka_projection *table = ka_projection_from_string("PROJECTION[\"Mercator\"]");
    const auto forward = ka_projection_forward(table), inverse = ka_projection_inverse(table);
    const auto horizon = ka_projection_horizon(table);
    ka_projection *same = ka_projection_new("MERCATOR", forward, inverse, horizon);
    ka_projection *default_horizon = ka_projection_new("Mercator", forward, inverse, nullptr);
    EXPECT_TRUE(ka_projection_eq(table, same) && !ka_projection_eq(table, default_horizon));
    EXPECT_EQ(ka_projection_horizon(default_horizon), ka_projection_horizon(nullptr));
    EXPECT_FALSE(ka_projection_new(nullptr, forward, inverse, nullptr) ||
                 ka_projection_new("x", forward, nullptr, nullptr) ||
                 ka_projection_new("x", nullptr, inverse, nullptr));
    del(table, same, default_horizon);
    ka_projcs *a = utm33n(), *b = utm33n(), *renamed = utm33n("Other");
    EXPECT_TRUE(ka_projcs_eq(a, b) && ka_projcs_eqnn(a, renamed));
    EXPECT_FALSE(ka_projcs_eq(a, renamed) || ka_projcs_eq(nullptr, a) ||
                 ka_projcs_eqnn(a, nullptr));
    // A slot filled in one system only, even with 0, makes them unequal; so
    // does an alias of another name in the same slot.
    ka_projcs *one = projcs("Mercator", {{"Central_Meridian", 0}});
    ka_projcs *two = projcs("Mercator", {{"Central_Meridian", 0}, {"False_Easting", 0}});
    ka_projcs *alias = projcs("Mercator", {{"Longitude_Of_Origin", 0}});
    EXPECT_FALSE(ka_projcs_eqnn(one, two) || ka_projcs_eqnn(two, one) ||
                 ka_projcs_eqnn(one, alias));
    del(a, b, renamed, one, two, alias);
}

double slot_value(const ka_projcs *pcs, int slot) {
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    ka_projcs_parameters(pcs, slots);
    return ka_parameter_value(slots[slot]);
}

// Metres to feet: the false easting of 500000 m is 500000 / 0.3048 ft.
// Degrees to grads: 15 degrees are 15 / 0.9 grads.  The caller keeps its units.
TEST(Projcs, ClonesAreUnloadedAndTakeOtherUnits) {
    ka_projcs *pcs = utm33n();
    ASSERT_EQ(ka_projcs_load_constants(pcs), 3);
    ka_unit *foot = ka_unit_new("Foot", 0.3048), *grad = ka_unit_new("Grad", kGrad);
    ka_unit *metre = ka_unit_new("Metre", 1.0), *degree = ka_unit_new("Deg", kDegree);
    ka_projcs *copy = ka_projcs_clone(pcs), *feet = ka_projcs_clone_alterunits(pcs, foot, nullptr);
    ka_projcs *grads = ka_projcs_clone_alterunits(pcs, nullptr, grad);
    ka_projcs *same_factors = ka_projcs_clone_alterunits(pcs, metre, degree);
    del(foot, grad, metre, degree);
    EXPECT_TRUE(ka_projcs_eq(pcs, copy) && ka_projcs_eq(pcs, same_factors));
    EXPECT_FALSE(ka_projcs_isconstloaded(copy) || ka_projcs_isconstloaded(feet));
    EXPECT_NEAR(slot_value(feet, 0), 1640419.9475065616, 1e-8);
    EXPECT_EQ(TEXT_OF(unit, ka_projcs_unit(feet)), "UNIT[\"Foot\",0.3048]");
    EXPECT_NEAR(slot_value(grads, 2), 15.0 / 0.9, 1e-13);
    EXPECT_TRUE(slot_value(grads, 0) == 500000.0 && slot_value(feet, 2) == 15.0);
    EXPECT_EQ(ka_unit_factor(ka_geogcs_unit(ka_projcs_geogcs(grads))), kGrad);
    EXPECT_EQ(NAME_OF(geogcs, ka_projcs_geogcs(grads)), "GCS_WGS_1984");
    EXPECT_EQ(NAME_OF(projcs, grads), "WGS_1984_UTM_Zone_33N");
    EXPECT_FALSE(ka_projcs_clone(nullptr) || ka_projcs_clone_alterunits(nullptr, nullptr, nullptr));
    del(pcs, copy, feet, grads, same_factors);
}

using Driver = int (*)(const ka_projcs *, int, double *);
std::pair<double, double> convert(Driver driver, const ka_projcs *pcs, double a, double b) {
    double c[2] = {a, b};
    driver(pcs, 1, c);
    return {c[0], c[1]};
}

// Loaded constants stay in force until reloaded, even when a parameter they
// came from changes.  Mercator x = a k0 (lon - lon0), with k0 = 1 on the
// equator as standard parallel and cos 60 (ellipsoidal: about 0.5) at 60.
TEST(Projcs, ConstantsStayUntilReloaded) {
    ka_projcs *pcs = projcs("Mercator", {{"Standard_Parallel_1", 0}});
    ka_projcs *plate = projcs("Plate_Carree", {});
    ASSERT_EQ(ka_projcs_load_constants(pcs), 2);
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    ka_projcs_parameters(pcs, slots);
    ka_parameter_value_set(slots[3], 60);
    EXPECT_NEAR(convert(ka_geog_to_proj, pcs, 1, 0).first, 6378137.0 * kDegree, 1e-6);
    EXPECT_EQ(ka_projcs_load_constants(pcs), 2);  // reload: the first record goes
    EXPECT_LT(convert(ka_geog_to_proj, pcs, 1, 0).first, 0.6 * 6378137.0 * kDegree);
    ka_projcs_unload_constants(pcs);
    EXPECT_FALSE(ka_projcs_isconstloaded(pcs));
    // Without a constants routine, or a system, nothing loads.
    EXPECT_FALSE(ka_projcs_load_constants(plate) || ka_projcs_isconstloaded(plate) ||
                 ka_projcs_load_constants(nullptr));
    ka_projcs_unload_constants(nullptr);
    del(pcs, plate);
}

TEST(GeogToProj, CountsAndFailedPoints) {
    ka_projcs *pcs = projcs("Mercator", {{"False_Easting", 1000}});
    double c[4] = {12.0, 34.0, 0, 0};
    EXPECT_EQ(ka_geog_to_proj(pcs, 0, c) + ka_proj_to_geog(pcs, 0, c) +
                  ka_geog_to_proj(pcs, -3, c) + ka_geog_to_proj(pcs, 5, nullptr),
              0);
    // An invalid system: factors 1, no false origin, the routine that
    // changes nothing and returns n.
    EXPECT_EQ(ka_geog_to_proj(nullptr, 1, c) + ka_proj_to_geog(nullptr, 1, c), 2);
    EXPECT_TRUE(c[0] == 12.0 && c[1] == 34.0);
    // A cylindrical equal-area system on a polar standard parallel has no
    // cylinder: every point fails, and its marks survive units and origin.
    ka_projcs *polar = projcs("Cylindrical_Equal_Area",
                              {{"Standard_Parallel_1", 90}, {"False_Easting", 1000},
                               {"False_Northing", 1000}},
                              wgs84(), 0.3048);
    EXPECT_EQ(ka_geog_to_proj(polar, 2, c), 0);
    EXPECT_TRUE(std::all_of(c, c + 4, [](double v) { return std::isnan(v); }));
    del(pcs, polar);
}

// Plate Carree on the unit sphere shows what the routine receives: x = lon
// and y = lat in radians (here from grads), the prime meridian not applied.
// In US survey feet the false origin is given in feet, added in metres and
// the sum written in feet; PROJ takes the false origin in metres.
TEST(GeogToProj, UnitsOfPointsAndParameters) {
    ka_projcs *grads = projcs("Plate_Carree", {{"Central_Meridian", 100}},
                              geogcs("G", "D", "S", 1.0, 0, kGrad, 2.3));
    const auto [gx, gy] = convert(ka_geog_to_proj, grads, 150, -50);
    EXPECT_DOUBLE_EQ(gx, 50 * kGrad);
    EXPECT_DOUBLE_EQ(gy, -50 * kGrad);
    ka_projcs *feet = projcs("Transverse_Mercator",
                             {{"False_Easting", 2000000}, {"False_Northing", 500000},
                              {"Central_Meridian", -120.5}, {"Scale_Factor", 0.9999},
                              {"Latitude_Of_Origin", 35.0}},
                             geogcs("G", "D", "GRS_1980", 6378137.0, 1 / 298.257222101),
                             1200.0 / 3937);  // the US survey foot
    const auto [x, y] = convert(ka_geog_to_proj, feet, -121.25, 36.5);
    const auto [lon, lat] = convert(ka_proj_to_geog, feet, x, y);
    EXPECT_NEAR(lon, -121.25, 1e-10);
    EXPECT_NEAR(lat, 36.5, 1e-10);
#if VELTRA_HAVE_PROJ
    PJ_CONTEXT *context = proj_context_create();
    PJ *tmerc = proj_create(context, "+proj=tmerc +ellps=GRS80 +lat_0=35 +lon_0=-120.5 +k=0.9999 "
                                     "+x_0=609601.2192024384 +y_0=152400.3048006096 +units=us-ft");
    ASSERT_NE(tmerc, nullptr);
    const PJ_COORD lonlat = proj_coord(proj_torad(-121.25), proj_torad(36.5), 0, 0);
    const PJ_COORD xy = proj_trans(tmerc, PJ_FWD, lonlat);
    EXPECT_NEAR(x, xy.xy.x, 1e-3);
    EXPECT_NEAR(y, xy.xy.y, 1e-3);
    proj_destroy(tmerc);
    proj_context_destroy(context);
#endif
    del(grads, feet);
}

}  // namespace
