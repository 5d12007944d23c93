// User override files: definitions in the object-edit home replace or add
// catalogue entries, are read afresh on every call, and a broken one hides
// the built-in entry.
#include "catalogue/assemble.h"
#include "override_home.h"
#include "veltra.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>

namespace {

using veltra_test::OverrideHome;

std::string name_of(const ka_datum *datum) {
    char name[KA_NAME_MAX];
    ka_datum_name(datum, name);
    return name;
}

std::string name_of(const ka_spheroid *spheroid) {
    char name[KA_NAME_MAX];
    ka_spheroid_name(spheroid, name);
    return name;
}

std::string name_of(const ka_parameter *parameter) {
    char name[KA_NAME_MAX];
    ka_parameter_name(parameter, name);
    return name;
}

std::string datum_name(int code) {
    ka_datum *datum = ka_factory_datum(code);
    std::string name = datum != nullptr ? name_of(datum) : "(null)";
    ka_datum_del(datum);
    return name;
}

TEST(OverrideFile, DatumLineReplacesTheBuiltInEntry) {
    OverrideHome home;
    home.use_environment();
    ASSERT_EQ(datum_name(6326), "D_WGS_1984");
    home.write("datum", "DATUM,6326,My_Datum,7030\n");
    ka_datum *datum = ka_factory_datum(6326);
    ASSERT_NE(datum, nullptr);
    EXPECT_EQ(name_of(datum), "My_Datum");
    EXPECT_EQ(name_of(ka_datum_spheroid(datum)), "WGS_1984");
    ka_datum_del(datum);
    // Other codes still come from the built-in table.
    EXPECT_EQ(datum_name(6230), "D_European_1950");
}

TEST(OverrideFile, FieldsMayBeMacroNamesAndKeywordsAnyCase) {
    OverrideHome home;
    home.use_environment();
    home.write("datum", "datum , KA_D_WGS_1984 ,\"My Datum\", KA_S_GRS_1980\n");
    ka_datum *datum = ka_factory_datum(6326);
    ASSERT_NE(datum, nullptr);
    EXPECT_EQ(name_of(datum), "My Datum");
    EXPECT_EQ(name_of(ka_datum_spheroid(datum)), "GRS_1980");
    ka_datum_del(datum);
}

TEST(OverrideFile, BrokenDefinitionHidesTheBuiltInEntry) {
    OverrideHome home;
    home.use_environment();
    home.write("datum", "DATUM,6326,Broken,7999\n");  // 7999: no spheroid
    EXPECT_EQ(ka_factory_datum(6326), nullptr);
    // Everything built on the datum goes too.
    EXPECT_EQ(ka_factory_geogcs(4326), nullptr);
    EXPECT_EQ(ka_factory_projcs(32631), nullptr);
    // A macro name that is not in the tables reads as code 0.
    home.write("datum", "DATUM,6326,Broken,KA_S_NO_SUCH_SPHEROID\n");
    EXPECT_EQ(ka_factory_datum(6326), nullptr);
    // So does a definition with fields missing.
    home.write("datum", "DATUM,6326,Broken\n");
    EXPECT_EQ(ka_factory_datum(6326), nullptr);
    home.write("unit", "UNIT,9001\n");
    EXPECT_EQ(ka_factory_unit(9001), nullptr);
}

TEST(OverrideFile, OnlyTheFirstKeywordOfALineCounts) {
    OverrideHome home;
    home.use_environment();
    home.write("datum",
               "comment, DATUM,6230,First,7022, DATUM,6326,Second,7019\n"
               "DATUM,6326,Third,7022\n"
               "DATUM,6326,Fourth,7019\n");
    EXPECT_EQ(datum_name(6230), "First");
    // The second keyword of line 1 is not read; line 2 is the first match.
    EXPECT_EQ(datum_name(6326), "Third");
}

TEST(OverrideFile, EditsTakeEffectAtTheNextCall) {
    OverrideHome home;
    home.use_environment();
    home.write("datum", "DATUM,6326,Before,7030\n");
    EXPECT_EQ(datum_name(6326), "Before");
    home.write("datum", "DATUM,6326,After,7030\n");
    EXPECT_EQ(datum_name(6326), "After");
    home.write("datum", "");
    EXPECT_EQ(datum_name(6326), "D_WGS_1984");
}

TEST(OverrideFile, HomeWithOrWithoutTrailingSlash) {
    OverrideHome home;
    home.write("datum", "DATUM,6326,Found,7030\n");
    home.use_environment(home.dir());
    EXPECT_EQ(datum_name(6326), "Found");
    home.use_environment(home.dir() + "/");
    EXPECT_EQ(datum_name(6326), "Found");
    home.use_environment(home.dir() + "/missing");
    EXPECT_EQ(datum_name(6326), "D_WGS_1984");
    home.use_environment("");
    EXPECT_EQ(datum_name(6326), "D_WGS_1984");
}

std::string callback_dir;
const char *callback_home() { return callback_dir.c_str(); }
const char *null_home() { return nullptr; }

TEST(OverrideFile, CallbackComesBeforeTheEnvironment) {
    OverrideHome env_home;
    OverrideHome callback_home_dir;
    env_home.write("datum", "DATUM,6326,From_Environment,7030\n");
    callback_home_dir.write("datum", "DATUM,6326,From_Callback,7030\n");
    env_home.use_environment();
    EXPECT_EQ(datum_name(6326), "From_Environment");

    callback_dir = callback_home_dir.dir();
    EXPECT_EQ(ka_objedithome_setfunc(callback_home), callback_home);
    EXPECT_EQ(datum_name(6326), "From_Callback");
    // An installed callback decides alone: no directory means no file.
    ka_objedithome_setfunc(null_home);
    EXPECT_EQ(datum_name(6326), "D_WGS_1984");
    ka_objedithome_setfunc(nullptr);
    EXPECT_EQ(datum_name(6326), "From_Environment");
}

TEST(OverrideFile, NumbersOfEachKind) {
    OverrideHome home;
    home.use_environment();
    home.write("unit", "UNIT,209001,Rod,5.0292\n");
    home.write("spheroid",
               "SPHEROID,207001,Flat,6400000,0.0033528106647474805\n");
    home.write("primem", "PRIMEM,208901,Half_East,-7.5e1\n");
    ka_unit *unit = ka_factory_unit(209001);
    ka_spheroid *spheroid = ka_factory_spheroid(207001);
    ka_primem *primem = ka_factory_primem(208901);
    ASSERT_NE(unit, nullptr);
    ASSERT_NE(spheroid, nullptr);
    ASSERT_NE(primem, nullptr);
    EXPECT_EQ(ka_unit_factor(unit), 5.0292);
    EXPECT_EQ(ka_spheroid_axis(spheroid), 6400000.0);
    // The file's second number is the flattening itself.
    EXPECT_EQ(ka_spheroid_flattening(spheroid), 0.0033528106647474805);
    EXPECT_EQ(ka_primem_longitude(primem), -75.0);
    ka_unit_del(unit);
    ka_spheroid_del(spheroid);
    ka_primem_del(primem);
}

TEST(OverrideFile, GeographicSystemFromItsParts) {
    OverrideHome home;
    home.use_environment();
    home.write("geogcs",
               "GEOGCS,204001,GCS_Paris_Grads,KA_D_WGS_1984,8903,9105\n");
    ka_geogcs *geogcs = ka_factory_geogcs(204001);
    ASSERT_NE(geogcs, nullptr);
    EXPECT_EQ(ka_primem_longitude(ka_geogcs_primem(geogcs)),
              2.337229166666667);
    EXPECT_DOUBLE_EQ(ka_unit_factor(ka_geogcs_unit(geogcs)), std::numbers::pi / 200);
    ka_geogcs_del(geogcs);
    // ka_factory dispatches the user range to the same factory.
    void *object = ka_factory(204001);
    ASSERT_TRUE(ka_geogcs_p(object));
    ka_geogcs_del(static_cast<ka_geogcs *>(object));
}

TEST(OverrideFile, HostileLinesDoNotBreakTheReader) {
    OverrideHome home;
    home.use_environment();
    // A line far over the limit whose tail holds a definition: the tail is
    // not a line of its own.
    std::string long_line(1500, 'x');
    long_line += ",DATUM,6326,Tail,7030\n";
    // Hundreds of empty tokens, quotes and binary bytes.
    std::string commas(3000, ',');
    std::string binary("\x01\xff\x80\"\"\"\0DATUM\0", 13);
    home.write("datum", long_line + commas + "\n" + binary + "\n" +
                            "DATUM\nDATUM,\n,,\"\",\n");
    EXPECT_EQ(datum_name(6326), "D_WGS_1984");
    home.write("datum", long_line + "DATUM,6326,After_Long_Line,7030\n");
    EXPECT_EQ(datum_name(6326), "After_Long_Line");
    // A line with a zero byte ends there; the next line is still read.
    home.write("datum", binary + "\nDATUM,6326,After_Binary,7030\n");
    EXPECT_EQ(datum_name(6326), "After_Binary");
    // A name longer than a name field is cut.
    home.write("datum", "DATUM,6326," + std::string(200, 'N') + ",7030\n");
    EXPECT_EQ(datum_name(6326), std::string(KA_NAME_MAX - 1, 'N'));
}

// Parameter slot values of a projected system, NaN for an empty slot.
struct Slots {
    double value[KA_PARAMETER_SLOTS];
    std::string name[KA_PARAMETER_SLOTS];
};

template <class T, void (*Parameters)(const T *, ka_parameter **)>
Slots slots_of(const T *object) {
    ka_parameter *parameters[KA_PARAMETER_SLOTS];
    Parameters(object, parameters);
    Slots slots;
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i) {
        slots.value[i] = parameters[i] != nullptr
                             ? ka_parameter_value(parameters[i])
                             : std::nan("");
        slots.name[i] = parameters[i] != nullptr ? name_of(parameters[i]) : "";
    }
    return slots;
}

Slots projcs_slots(const ka_projcs *projcs) {
    return slots_of<ka_projcs, ka_projcs_parameters>(projcs);
}

double unit_factor(const ka_projcs *projcs) {
    return ka_unit_factor(ka_projcs_unit(projcs));
}

TEST(OverrideProjcs, PairsAndALoneUnitInAnyOrder) {
    OverrideHome home;
    home.use_environment();
    // The unit standing between the pairs shifts the pairing by one.
    home.write("projcs",
               "PROJCS,202001,My_UTM_31N,KA_GCS_WGS_1984,43006,"
               "100001,500000,100002,0,9001,KA_PAR_SCALE_FACTOR,0.9996,"
               "100010,3,100021,0\n");
    ka_projcs *mine = ka_factory_projcs(202001);
    ka_projcs *builtin = ka_factory_projcs(32631);
    ASSERT_NE(mine, nullptr);
    ASSERT_NE(builtin, nullptr);
    EXPECT_TRUE(ka_projcs_eqnn(mine, builtin));
    EXPECT_FALSE(ka_projcs_eq(mine, builtin));
    ka_projcs_del(mine);
    ka_projcs_del(builtin);
}

TEST(OverrideProjcs, PositionsExaminedFollowTheTokenCount) {
    OverrideHome home;
    home.use_environment();
    // Five tokens after the projection: 5 / 2 + 1 = 3 positions, all taken
    // by lone units, so the false easting pair is never reached.
    home.write("projcs", "PROJCS,202002,Units,4326,43006,9001,9002,9003,"
                         "100001,7\n");
    ka_projcs *projcs = ka_factory_projcs(202002);
    ASSERT_NE(projcs, nullptr);
    EXPECT_EQ(unit_factor(projcs), 0.30480060960121924);  // the last: 9003
    for (double value : projcs_slots(projcs).value)
        EXPECT_TRUE(std::isnan(value));
    ka_projcs_del(projcs);

    // One unit: 3 / 2 + 1 = 2 positions reach the pair after it.
    home.write("projcs", "PROJCS,202002,Units,4326,43006,9002,100001,7\n");
    projcs = ka_factory_projcs(202002);
    ASSERT_NE(projcs, nullptr);
    EXPECT_EQ(unit_factor(projcs), 0.3048);
    EXPECT_EQ(projcs_slots(projcs).value[0], 7.0);
    ka_projcs_del(projcs);
}

TEST(OverrideProjcs, SharedSlotsUnknownCodesAndMissingParts) {
    OverrideHome home;
    home.use_environment();
    // 100023 and 100025 share slot 3: the later one stays.  100006 names no
    // parameter and is skipped with its value.
    home.write("projcs",
               "PROJCS,202003,Shared,4326,43006,100023,10,100025,20,"
               "100006,5,100001,7,KA_U_METER\n"
               "PROJCS,202004,No_Unit,4326,43006,100001,7\n"
               "PROJCS,202005,No_Projection,4326,49999,9001\n"
               "PROJCS,202006,No_Fields,4326\n");
    ka_projcs *projcs = ka_factory_projcs(202003);
    ASSERT_NE(projcs, nullptr);
    const Slots slots = projcs_slots(projcs);
    EXPECT_EQ(slots.name[3], "Standard_Parallel_1");
    EXPECT_EQ(slots.value[3], 20.0);
    EXPECT_EQ(slots.value[0], 7.0);
    int filled = 0;
    for (double value : slots.value) filled += std::isnan(value) ? 0 : 1;
    EXPECT_EQ(filled, 2);
    ka_projcs_del(projcs);

    EXPECT_EQ(ka_factory_projcs(202004), nullptr);
    EXPECT_EQ(ka_factory_projcs(202005), nullptr);
    EXPECT_EQ(ka_factory_projcs(202006), nullptr);
}

TEST(OverrideGeogtran, ParametersTheMethodReads) {
    OverrideHome home;
    home.use_environment();
    // Geocentric translation reads X, Y and Z only: the rotation is ignored.
    home.write("geogtran",
               "GEOGTRAN,208001,My_Shift,4230,KA_GCS_WGS_1984,"
               "KA_MTH_GEOCENTRIC_TRANSLATION,100040,-87,100043,1.5,"
               "100041,-98,KA_PAR_Z_AXIS_TRANSLATION,-121\n"
               "GEOGTRAN,208002,My_Helmert,4230,4326,9606,100040,-89.5,"
               "100046,1.2,100045,-0.156\n"
               "GEOGTRAN,208003,No_Method,4230,4326,9699\n");
    ka_geogtran *shift = ka_factory_geogtran(208001);
    ASSERT_NE(shift, nullptr);
    Slots slots = slots_of<ka_geogtran, ka_geogtran_parameters>(shift);
    EXPECT_EQ(slots.value[0], -87.0);
    EXPECT_EQ(slots.value[1], -98.0);
    EXPECT_EQ(slots.value[2], -121.0);
    EXPECT_TRUE(std::isnan(slots.value[3]));
    ka_geogtran_del(shift);

    ka_geogtran *helmert = ka_factory_geogtran(208002);
    ASSERT_NE(helmert, nullptr);
    slots = slots_of<ka_geogtran, ka_geogtran_parameters>(helmert);
    EXPECT_EQ(slots.value[0], -89.5);
    EXPECT_EQ(slots.name[5], "Z_Axis_Rotation");
    EXPECT_EQ(slots.value[5], -0.156);
    EXPECT_EQ(slots.value[6], 1.2);
    EXPECT_TRUE(std::isnan(slots.value[1]));
    ka_geogtran_del(helmert);

    EXPECT_EQ(ka_factory_geogtran(208003), nullptr);
}

TEST(DatasetParameter, NamedSoItsNameFindsSlot15) {
    ka_parameter *slots[KA_PARAMETER_SLOTS] = {};
    ASSERT_TRUE(veltra::catalogue::set_dataset(slots, "conus"));
    EXPECT_EQ(name_of(slots[15]), "Dataset_conus");
    EXPECT_EQ(ka_parameter_index(slots[15]), 15);
    ASSERT_TRUE(veltra::catalogue::set_dataset(slots, "DATASET_alaska"));
    EXPECT_EQ(name_of(slots[15]), "DATASET_alaska");
    for (int i = 0; i < 15; ++i) EXPECT_EQ(slots[i], nullptr);
    ka_parameter_del(slots[15]);
}

}  // namespace
