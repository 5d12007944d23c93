// Readers of the text form on lenient and hostile texts.  Partial objects
// left behind by a failing reader show up as leaks under the sanitizer
// build.
#include "core/text_fixtures.h"
#include "veltra.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

using namespace text_fixtures;

namespace {

std::string name_of(const ka_unit *unit) {
    char name[KA_NAME_MAX];
    ka_unit_name(unit, name);
    return name;
}

double slot_value(const ka_projcs *pcs, int slot) {
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    ka_projcs_parameters(pcs, slots);
    return slots[slot] ? ka_parameter_value(slots[slot]) : NAN;
}

TEST(TextRead, LowerCaseKeywordsAndBlanksAroundTokens) {
    ka_unit *unit = ka_unit_from_string("  unit [ \" Meter \" ,\t1.0 ]\n");
    ASSERT_NE(unit, nullptr);
    EXPECT_EQ(name_of(unit), "Meter");
    EXPECT_EQ(ka_unit_factor(unit), 1.0);
    ka_unit_del(unit);

    ka_geogcs *geogcs = ka_geogcs_from_string(
        "geogcs[ \"GCS_WGS_1984\" , datum [\"D_WGS_1984\", Spheroid[\"WGS_1984\""
        ", 6378137.0 , 298.257223563 ] ] , primem[\"Greenwich\",0.0],\n"
        "  Unit[\"Degree\", 0.0174532925199433]]");
    ka_geogcs *expected = wgs84();
    EXPECT_TRUE(ka_geogcs_eq(geogcs, expected));
    ka_geogcs_del(geogcs);
    ka_geogcs_del(expected);
}

TEST(TextRead, ValuesOfEachKind) {
    ka_spheroid *spheroid =
        ka_spheroid_from_string("SPHEROID[\"Clarke_1866\",6378206.4,294.9786982]");
    ASSERT_NE(spheroid, nullptr);
    EXPECT_EQ(ka_spheroid_axis(spheroid), 6378206.4);
    EXPECT_DOUBLE_EQ(ka_spheroid_flattening(spheroid), 1 / 294.9786982);
    ka_spheroid_del(spheroid);

    ka_primem *primem = ka_primem_from_string("PRIMEM[\"Paris\",2.33722917]");
    EXPECT_EQ(ka_primem_longitude(primem), 2.33722917);
    ka_primem_del(primem);

    ka_parameter *parameter =
        ka_parameter_from_string("PARAMETER[\"Scale_Factor\",0.9996]");
    EXPECT_EQ(ka_parameter_value(parameter), 0.9996);
    EXPECT_EQ(ka_parameter_index(parameter), 5);
    ka_parameter_del(parameter);

    // The first SPHEROID anywhere in the text, not the one inside DATUM.
    ka_datum *datum = ka_datum_from_string(
        "SPHEROID[\"First\",1.0,0.0],DATUM[\"D\",SPHEROID[\"Second\",2.0,0.0]]");
    ASSERT_NE(datum, nullptr);
    EXPECT_EQ(ka_spheroid_axis(ka_datum_spheroid(datum)), 1.0);
    ka_datum_del(datum);
}

TEST(TextRead, SphereReadsAsZeroFlattening) {
    ka_spheroid *sphere = ka_spheroid_from_string("SPHEROID[\"S\",6371000,0]");
    ASSERT_NE(sphere, nullptr);
    EXPECT_EQ(ka_spheroid_flattening(sphere), 0.0);
    char text[KA_TEXT_MAX];
    ka_spheroid_to_string(sphere, text);
    EXPECT_STREQ(text, "SPHEROID[\"S\",6371000.0,0.0]");
    ka_spheroid_del(sphere);
}

TEST(TextRead, ConstructorChecksStillApply) {
    // A factor that is not a number reads as 0, which a unit rejects.
    EXPECT_EQ(ka_unit_from_string("UNIT[\"Meter\",one]"), nullptr);
    EXPECT_EQ(ka_spheroid_from_string("SPHEROID[\"S\",0,298]"), nullptr);
    EXPECT_EQ(ka_spheroid_from_string("SPHEROID[\"S\",6378137,0.5]"), nullptr);
    EXPECT_EQ(ka_primem_from_string("PRIMEM[\"P\",180.5]"), nullptr);
    // ... while a parameter with a bad value reads as 0.0.
    ka_parameter *p = ka_parameter_from_string("PARAMETER[\"Azimuth\",north]");
    ASSERT_NE(p, nullptr);
    EXPECT_EQ(ka_parameter_value(p), 0.0);
    ka_parameter_del(p);
}

TEST(TextRead, HostileTextsGiveNull) {
    const std::string long_junk(5000, 'A');
    const char *texts[] = {
        nullptr,
        "",
        "[[[,,,\"\"\"]]]",
        "UNIT",
        "UNIT[\"Meter\"",           // value missing
        "UNIT Meter 1.0",           // one token without delimiters
        "GEOGCS[\"g\",DATUM[\"d\",SPHEROID[\"s\",6378137.0",  // truncated
        long_junk.c_str(),
    };
    for (const char *text : texts) {
        SCOPED_TRACE(text ? std::string(text).substr(0, 40) : "(null)");
        EXPECT_EQ(ka_unit_from_string(text), nullptr);
        EXPECT_EQ(ka_spheroid_from_string(text), nullptr);
        EXPECT_EQ(ka_primem_from_string(text), nullptr);
        EXPECT_EQ(ka_datum_from_string(text), nullptr);
        EXPECT_EQ(ka_geogcs_from_string(text), nullptr);
        EXPECT_EQ(ka_projection_from_string(text), nullptr);
        EXPECT_EQ(ka_parameter_from_string(text), nullptr);
        EXPECT_EQ(ka_method_from_string(text), nullptr);
        EXPECT_EQ(ka_projcs_from_string(text), nullptr);
        EXPECT_EQ(ka_geogtran_from_string(text), nullptr);
        EXPECT_EQ(ka_coordsys_from_string(text), nullptr);
    }
}

TEST(TextRead, BracketsAreNotChecked) {
    // Quotes and brackets are only delimiters: the flat token sequence is
    // what counts.
    ka_unit *unit = ka_unit_from_string("UNIT \"Meter\" 1.0");
    ASSERT_NE(unit, nullptr);
    EXPECT_EQ(ka_unit_factor(unit), 1.0);
    ka_unit_del(unit);
}

TEST(TextRead, GeogcsWithoutAPartGivesNull) {
    const std::string no_primem =
        "GEOGCS[\"g\",DATUM[\"d\",SPHEROID[\"s\",6378137.0,298.257223563]],"
        "UNIT[\"Degree\",0.0174532925199433]]";
    EXPECT_EQ(ka_geogcs_from_string(no_primem.c_str()), nullptr);
    EXPECT_EQ(ka_geogcs_from_string(
                  "GEOGCS[\"g\",PRIMEM[\"p\",0],UNIT[\"Degree\",1]]"),
              nullptr);
    EXPECT_EQ(ka_geogcs_from_string(
                  "GEOGCS[\"g\",DATUM[\"d\",SPHEROID[\"s\",1,0]],PRIMEM[\"p\",0]]"),
              nullptr);
}

TEST(TextRead, NamesAreCutTo63AndTrimmed) {
    const std::string name62(62, 'n');
    // Characters 63 to 70 are a blank and more letters: the 63 kept end in
    // the blank, which is trimmed.
    const std::string text = "UNIT[\"" + name62 + " tail_cut\",1.0]";
    ka_unit *unit = ka_unit_from_string(text.c_str());
    ASSERT_NE(unit, nullptr);
    EXPECT_EQ(name_of(unit), name62);
    ka_unit_del(unit);
}

TEST(TextRead, NameEqualToAKeywordIsTakenForIt) {
    // A unit named "Unit": the scan finds the keyword first, as it should.
    ka_unit *unit = ka_unit_from_string("UNIT[\"Unit\",2.0]");
    ASSERT_NE(unit, nullptr);
    EXPECT_EQ(name_of(unit), "Unit");
    ka_unit_del(unit);
    // A prime meridian named "UNIT": the unit reader takes the name for its
    // keyword and reads "0.0" as the unit's name and "UNIT" as its factor.
    EXPECT_EQ(ka_geogcs_from_string(
                  "GEOGCS[\"g\",DATUM[\"d\",SPHEROID[\"s\",1,0]],"
                  "PRIMEM[\"UNIT\",0.0],UNIT[\"Degree\",0.0174532925199433]]"),
              nullptr);
}

TEST(TextRead, ProjcsLastParameterWinsAndUnknownNamesAreDropped) {
    std::string text = kUtm33nText;
    const std::string tail = "UNIT[\"Meter\",1.0]]";
    text.replace(text.size() - tail.size(), tail.size(),
                 "PARAMETER[\"Central_Meridian\",9.0],"
                 "PARAMETER[\"No_Such_Parameter\",1.0],"
                 "PARAMETER[\"Longitude_Of_Origin\",21.0]," + tail);
    ka_projcs *pcs = ka_projcs_from_string(text.c_str());
    ASSERT_NE(pcs, nullptr);
    // Longitude_Of_Origin shares slot 2 with Central_Meridian and came last.
    EXPECT_EQ(slot_value(pcs, 2), 21.0);
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    ka_projcs_parameters(pcs, slots);
    int filled = 0;
    for (ka_parameter *p : slots) filled += p != nullptr;
    EXPECT_EQ(filled, 5);
    ka_projcs_del(pcs);
}

TEST(TextRead, ProjcsLinearUnitIsTheSecondCountedUnit) {
    // A parameter whose name starts with the letters of UNIT is not a unit.
    std::string text =
        "PROJCS[\"p\"," + kWgs84Text +
        ",PROJECTION[\"Mercator\"],PARAMETER[\"UNIT_Shift\",1.0],"
        "unit  [\"Foot_US\",0.3048006096012192]]";
    ka_projcs *pcs = ka_projcs_from_string(text.c_str());
    ASSERT_NE(pcs, nullptr);
    EXPECT_EQ(name_of(ka_projcs_unit(pcs)), "Foot_US");
    ka_projcs_del(pcs);

    // Without a second unit there is no projected system.
    text = "PROJCS[\"p\"," + kWgs84Text + ",PROJECTION[\"Mercator\"]]";
    EXPECT_EQ(ka_projcs_from_string(text.c_str()), nullptr);
}

TEST(TextRead, ProjcsFailuresDeleteWhatWasRead) {
    std::string unknown = kUtm33nText;
    unknown.replace(unknown.find("Transverse_Mercator"), 19, "Flat_Earth");
    EXPECT_EQ(ka_projcs_from_string(unknown.c_str()), nullptr);

    // A PARAMETER occurrence that cannot be read fails the whole system,
    // after the geogcs, the projection and earlier parameters were read.
    std::string broken = kUtm33nText + ",PARAMETER[";
    EXPECT_EQ(ka_projcs_from_string(broken.c_str()), nullptr);

    std::string no_geogcs = kUtm33nText;
    no_geogcs.replace(0, no_geogcs.find("PROJECTION"),
                      "PROJCS[\"p\",DATUM[\"d\",SPHEROID[\"s\",1,0]],");
    EXPECT_EQ(ka_projcs_from_string(no_geogcs.c_str()), nullptr);
}

TEST(TextRead, LongTextsParametersAreReadFromTheirOwnPosition) {
    // The name, GEOGCS and PROJECTION lie in the first 1023 characters; the
    // parameters and the linear unit only after 2000 blanks.
    std::string text = "PROJCS[\"p\"," + kWgs84Text +
                       ",PROJECTION[\"Transverse_Mercator\"]," +
                       std::string(2000, ' ') +
                       "PARAMETER[\"Scale_Factor\",0.9996],UNIT[\"Meter\",1.0]]";
    ka_projcs *pcs = ka_projcs_from_string(text.c_str());
    ASSERT_NE(pcs, nullptr);
    EXPECT_EQ(slot_value(pcs, 5), 0.9996);
    EXPECT_EQ(name_of(ka_projcs_unit(pcs)), "Meter");
    ka_projcs_del(pcs);

    // A GEOGCS beyond the first 1023 characters is not seen.
    text = "PROJCS[\"p\"," + std::string(1100, ' ') + kWgs84Text +
           ",PROJECTION[\"Transverse_Mercator\"],UNIT[\"Meter\",1.0]]";
    EXPECT_EQ(ka_projcs_from_string(text.c_str()), nullptr);
}

const std::string kWgs72Text =
    "GEOGCS[\"GCS_WGS_1972\",DATUM[\"D_WGS_1972\",SPHEROID[\"WGS_1972\","
    "6378135.0,298.26]],PRIMEM[\"Greenwich\",0.0],"
    "UNIT[\"Degree\",0.0174532925199433]]";

TEST(TextRead, GeogtranSystemsMethodAndParameters) {
    const std::string text =
        "GEOGTRAN[\"WGS_1972_To_WGS_1984\"," + kWgs72Text + "," + kWgs84Text +
        ",METHOD[\"Geocentric_Translation\"],PARAMETER[\"Dataset_any\",0.0],"
        "PARAMETER[\"Z_Axis_Translation\",4.5]]";
    ka_geogtran *gt = ka_geogtran_from_string(text.c_str());
    ASSERT_NE(gt, nullptr);
    char name[KA_NAME_MAX];
    ka_geogcs_name(ka_geogtran_geogcs1(gt), name);
    EXPECT_STREQ(name, "GCS_WGS_1972");
    ka_geogcs_name(ka_geogtran_geogcs2(gt), name);
    EXPECT_STREQ(name, "GCS_WGS_1984");
    ka_method_name(ka_geogtran_method(gt), name);
    EXPECT_STREQ(name, "Geocentric_Translation");
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    ka_geogtran_parameters(gt, slots);
    ASSERT_NE(slots[15], nullptr);
    ka_parameter_name(slots[15], name);
    EXPECT_STREQ(name, "Dataset_any");
    EXPECT_EQ(ka_parameter_value(slots[2]), 4.5);
    ka_geogtran_del(gt);
}

TEST(TextRead, GeogtranFailuresDeleteWhatWasRead) {
    const std::string two = kWgs72Text + "," + kWgs84Text;
    EXPECT_EQ(ka_geogtran_from_string(
                  ("GEOGTRAN[\"t\"," + kWgs84Text + ",METHOD[\"Molodensky\"]]").c_str()),
              nullptr);
    EXPECT_EQ(ka_geogtran_from_string(
                  ("GEOGTRAN[\"t\"," + two + ",METHOD[\"Teleport\"]]").c_str()),
              nullptr);
    EXPECT_EQ(ka_geogtran_from_string(("GEOGTRAN[\"t\"," + two + "]").c_str()),
              nullptr);
    EXPECT_EQ(ka_geogtran_from_string(
                  ("GEOGTRAN[\"t\"," + two + ",METHOD[\"Molodensky\"],PARAMETER[\"x\"]")
                      .c_str()),
              nullptr);
}

TEST(TextRead, KnownNamesKeepTheTextsSpelling) {
    ka_projection *projection =
        ka_projection_from_string("PROJECTION[\"transverse_MERCATOR\"]");
    ASSERT_NE(projection, nullptr);
    char name[KA_NAME_MAX];
    ka_projection_name(projection, name);
    EXPECT_STREQ(name, "transverse_MERCATOR");
    ka_projection_del(projection);
    EXPECT_EQ(ka_projection_from_string("PROJECTION[\"Flat_Earth\"]"), nullptr);

    ka_method *method = ka_method_from_string("METHOD[\"position_VECTOR\"]");
    ASSERT_NE(method, nullptr);
    ka_method_name(method, name);
    EXPECT_STREQ(name, "position_VECTOR");
    ka_method_del(method);
    EXPECT_EQ(ka_method_from_string("METHOD[\"Teleport\"]"), nullptr);
}

}  // namespace
