// User override files: definitions in the object-edit home replace or add
// catalogue entries, are read afresh on every call, and a broken one hides
// the built-in entry.
#include "catalogue_test.h"

namespace {

using catalogue_test::filled;
using catalogue_test::name_of;
using catalogue_test::OverrideHome;
using catalogue_test::slot_values;

std::string datum_name(int code) {
    ka_datum *datum = ka_factory_datum(code);
    const std::string name = name_of(datum) + (datum ? " on " + name_of(ka_datum_spheroid(datum)) : "");
    ka_datum_del(datum);
    return name;
}

TEST(OverrideFile, ReplacesTheBuiltInEntryFromTheNextCallOn) {
    OverrideHome home;
    home.use_environment();
    EXPECT_EQ(datum_name(6326), "D_WGS_1984 on WGS_1984");
    home.write("datum", "DATUM,6326,My_Datum,7022\n");
    EXPECT_EQ(datum_name(6326), "My_Datum on International_1924");
    EXPECT_EQ(datum_name(6230), "D_European_1950 on International_1924");  // not in the file
    // Codes may be macro names, keywords any case, names quoted.
    home.write("datum", "datum , KA_D_WGS_1984 ,\"My Datum\", KA_S_GRS_1980\n");
    EXPECT_EQ(datum_name(6326), "My Datum on GRS_1980");
    home.write("datum", "");
    EXPECT_EQ(datum_name(6326), "D_WGS_1984 on WGS_1984");
    // Only the first keyword of a line counts; the first matching line wins.
    home.write("datum", "x, DATUM,6230,First,7022, DATUM,6326,Second,7019\nDATUM,6326,Third,7022\n"
                        "DATUM,6326,Fourth,7019\n");
    EXPECT_EQ(datum_name(6230), "First on International_1924");
    EXPECT_EQ(datum_name(6326), "Third on International_1924");
}

TEST(OverrideFile, BrokenDefinitionHidesTheBuiltInEntry) {
    OverrideHome home;
    home.use_environment();
    for (const char *line : {"DATUM,6326,Broken,7999\n",  // no spheroid 7999
                             "DATUM,6326,Broken,KA_S_NO_SUCH_SPHEROID\n", "DATUM,6326,Broken\n"}) {
        home.write("datum", line);
        EXPECT_EQ(ka_factory_datum(6326), nullptr) << line;
    }
    // Everything built on the datum goes too.
    EXPECT_EQ(ka_factory_geogcs(4326), nullptr);
    EXPECT_EQ(ka_factory_projcs(32631), nullptr);
    home.write("unit", "UNIT,9001\n");
    EXPECT_EQ(ka_factory_unit(9001), nullptr);
}

// (The choice between the callback and $KAOBJEDITHOME is tested with the
// data home, in tests/transforms.)
TEST(OverrideFile, HomeWithOrWithoutTrailingSlash) {
    OverrideHome home;
    home.write("datum", "DATUM,6326,Found,7030\n");
    for (const std::string &dir : {home.dir, home.dir + "/", home.dir + "/missing"}) {
        home.use_environment(dir);
        EXPECT_EQ(datum_name(6326), dir.ends_with("/missing") ? "D_WGS_1984 on WGS_1984" : "Found on WGS_1984");
    }
}

TEST(OverrideFile, NumbersAndPartsOfEachKind) {
    OverrideHome home;
    home.use_environment();
    home.write("spheroid", "SPHEROID,207001,Flat,6400000,0.0033528106647474805\n");
    home.write("primem", "PRIMEM,208901,Half_East,-7.5e1\n");
    home.write("geogcs", "GEOGCS,204001,GCS_Paris_Grads,KA_D_WGS_1984,208901,9105\n");
    ka_spheroid *spheroid = ka_factory_spheroid(207001);
    auto *geogcs = static_cast<ka_geogcs *>(ka_factory(204001));
    // The second number is the flattening itself.
    EXPECT_EQ(std::pair(ka_spheroid_axis(spheroid), ka_spheroid_flattening(spheroid)),
              std::pair(6400000.0, 0.0033528106647474805));
    EXPECT_EQ(std::tuple(ka_primem_longitude(ka_geogcs_primem(geogcs)), ka_unit_factor(ka_geogcs_unit(geogcs)),
                         name_of(ka_geogcs_datum(geogcs))),
              std::tuple(-75.0, std::numbers::pi / 200, std::string("D_WGS_1984")));
    ka_spheroid_del(spheroid);
    ka_geogcs_del(geogcs);
}

TEST(OverrideFile, HostileLinesDoNotBreakTheReader) {
    OverrideHome home;
    home.use_environment();
    // The tail of a line over the limit is not a line of its own; a zero
    // byte ends a line, the next line is still read.
    const std::string long_line = std::string(1500, 'x') + ",DATUM,6326,Tail,7030\n";
    const std::string binary("\x01\xff\x80\"\"\"\0DATUM\0", 13);
    home.write("datum", long_line + std::string(3000, ',') + "\nDATUM\nDATUM,\n,,\"\",\n" + binary +
                            "\nDATUM,6326,After,7030\n");
    EXPECT_EQ(datum_name(6326), "After on WGS_1984");
}

TEST(OverrideProjcs, PairsAndLoneUnitsInAnyOrder) {
    OverrideHome home;
    home.use_environment();
    home.write("projcs",
               // The unit between the pairs shifts the pairing by one.
               "PROJCS,202001,My_UTM_31N,KA_GCS_WGS_1984,43006,100001,500000,100002,0,9001,"
               "KA_PAR_SCALE_FACTOR,0.9996,100010,3,100021,0\n"
               // Five tokens after the projection: 5 / 2 + 1 = 3 positions,
               // all lone units (the last stays), so the pair is never read.
               "PROJCS,202002,Units,4326,43006,9001,9002,9003,100001,7\n"
               // One unit: 3 / 2 + 1 = 2 positions reach the pair after it.
               "PROJCS,202003,Unit,4326,43006,9002,100001,7\n"
               // 100023 and 100025 share slot 3, the later stays; 100006
               // names no parameter and is skipped with its value.
               "PROJCS,202004,Shared,4326,43006,100023,10,100025,20,100006,5,100001,7,KA_U_METER\n"
               "PROJCS,202005,No_Unit,4326,43006,100001,7\nPROJCS,202006,No_Projection,4326,49999,9001\n"
               "PROJCS,202007,No_Fields,4326\n");
    ka_projcs *mine = ka_factory_projcs(202001), *builtin = ka_factory_projcs(32631);
    ka_projcs *units = ka_factory_projcs(202002), *unit = ka_factory_projcs(202003);
    ka_projcs *shared = ka_factory_projcs(202004);
    EXPECT_TRUE(ka_projcs_eqnn(mine, builtin) && !ka_projcs_eq(mine, builtin));  // equal but for the name
    EXPECT_EQ(std::pair(name_of(ka_projcs_unit(units)), filled(slot_values(units, ka_projcs_parameters))),
              std::pair(std::string("Foot_US"), 0L));
    EXPECT_EQ(std::pair(name_of(ka_projcs_unit(unit)), slot_values(unit, ka_projcs_parameters)[0]),
              std::pair(std::string("Foot"), 7.0));
    const std::vector<double> values = slot_values(shared, ka_projcs_parameters);
    EXPECT_EQ(std::tuple(filled(values), values[0], values[3]), std::tuple(2L, 7.0, 20.0));
    for (ka_projcs *projcs : {mine, builtin, units, unit, shared}) ka_projcs_del(projcs);
    for (int code : {202005, 202006, 202007}) EXPECT_EQ(ka_factory_projcs(code), nullptr) << code;
}

TEST(OverrideGeogtran, ParametersTheMethodReads) {
    OverrideHome home;
    home.use_environment();
    home.write("geogtran",
               // Geocentric translation reads X, Y and Z only.
               "GEOGTRAN,208001,My_Shift,4230,KA_GCS_WGS_1984,KA_MTH_GEOCENTRIC_TRANSLATION,"
               "100040,-87,100043,1.5,100041,-98,KA_PAR_Z_AXIS_TRANSLATION,-121\n"
               "GEOGTRAN,208002,My_Helmert,4230,4326,9606,100040,-89.5,100046,1.2,100045,-0.156\n"
               "GEOGTRAN,208003,No_Method,4230,4326,9699\n");
    ka_geogtran *shift = ka_factory_geogtran(208001), *helmert = ka_factory_geogtran(208002);
    const std::vector<double> a = slot_values(shift, ka_geogtran_parameters);
    const std::vector<double> b = slot_values(helmert, ka_geogtran_parameters);
    EXPECT_EQ(std::tuple(a[0], a[1], a[2], std::isnan(a[3])), std::tuple(-87.0, -98.0, -121.0, true));
    // X translation, Z rotation and scale difference.
    EXPECT_EQ(std::tuple(b[0], std::isnan(b[1]), b[5], b[6]), std::tuple(-89.5, true, -0.156, 1.2));
    ka_geogtran_del(shift);
    ka_geogtran_del(helmert);
    EXPECT_EQ(ka_factory_geogtran(208003), nullptr);
}

}  // namespace
