// Writing an object and reading its text back gives an equal object, for
// every kind, including names at their 63-character limit and texts longer
// than the readers' 1023-character view.
#include "core/text_fixtures.h"
#include "veltra.h"

#include <gtest/gtest.h>

#include <string>

using namespace text_fixtures;

namespace {

template <class T>
void expect_round_trip(T *object, int (*write)(const T *, char *),
                       T *(*read)(const char *), int (*eq)(const T *, const T *),
                       void (*del)(T *)) {
    ASSERT_NE(object, nullptr);
    char text[KA_TEXT_MAX];
    write(object, text);
    SCOPED_TRACE(text);
    T *back = read(text);
    ASSERT_NE(back, nullptr);
    EXPECT_TRUE(eq(object, back));
    del(back);
    del(object);
}

int write_projcs(const ka_projcs *pcs, char *text) {
    ka_projcs_to_string(pcs, text);
    return 0;
}
int write_geogtran(const ka_geogtran *gt, char *text) {
    ka_geogtran_to_string(gt, text);
    return 0;
}

TEST(TextRoundTrip, DatumLevelKinds) {
    expect_round_trip(ka_unit_new("Foot_US", 1200.0 / 3937.0), ka_unit_to_string,
                      ka_unit_from_string, ka_unit_eq, ka_unit_del);
    expect_round_trip(ka_spheroid_new("Airy_1830", 6377563.396, 1 / 299.3249646),
                      ka_spheroid_to_string, ka_spheroid_from_string,
                      ka_spheroid_eq, ka_spheroid_del);
    expect_round_trip(ka_spheroid_new("Sphere", 6371000.0, 0.0),
                      ka_spheroid_to_string, ka_spheroid_from_string,
                      ka_spheroid_eq, ka_spheroid_del);
    expect_round_trip(ka_primem_new("Ferro", -17.66666666666667),
                      ka_primem_to_string, ka_primem_from_string, ka_primem_eq,
                      ka_primem_del);
    expect_round_trip(
        ka_datum_new("D_OSGB_1936",
                     ka_spheroid_new("Airy_1830", 6377563.396, 1 / 299.3249646)),
        ka_datum_to_string, ka_datum_from_string, ka_datum_eq, ka_datum_del);
    expect_round_trip(wgs84(), ka_geogcs_to_string, ka_geogcs_from_string,
                      ka_geogcs_eq, ka_geogcs_del);
    expect_round_trip(ka_parameter_new("Standard_Parallel_1", 1.0 / 3.0),
                      ka_parameter_to_string, ka_parameter_from_string,
                      ka_parameter_eq, ka_parameter_del);
}

TEST(TextRoundTrip, RegistryKinds) {
    expect_round_trip(ka_projection_from_string("PROJECTION[\"Mercator\"]"),
                      ka_projection_to_string, ka_projection_from_string,
                      ka_projection_eq, ka_projection_del);
    expect_round_trip(ka_method_from_string("METHOD[\"Position_Vector\"]"),
                      ka_method_to_string, ka_method_from_string, ka_method_eq,
                      ka_method_del);
}

TEST(TextRoundTrip, ProjectedSystem) {
    expect_round_trip(
        utm33n(ka_projection_from_string("PROJECTION[\"Transverse_Mercator\"]")),
        write_projcs, ka_projcs_from_string, ka_projcs_eq, ka_projcs_del);
}

const std::string kLong63 = std::string(60, 'L') + "_63";

// Names and numbers at their longest written forms.
ka_geogcs *long_geogcs(const char *name) {
    const double longest = 0.000001234567890123456;
    return ka_geogcs_new(
        name,
        ka_datum_new(name,
                     ka_spheroid_new(name, longest, 1 / 123456789012345.7)),
        ka_primem_new(name, -longest), ka_unit_new(name, longest));
}

// 16 parameters named after real slots, with the longest name each slot
// knows.  The text is well over 1023 characters.
TEST(TextRoundTrip, ProjectedSystemWithAllSlotsAndLongNames) {
    const char *names[KA_PARAMETER_SLOTS] = {
        "False_Easting",         "False_Northing",
        "Longitude_Of_Origin",   "Pseudo_Standard_Parallel_1",
        "Latitude_Of_2nd_Point", "Scale_Factor",
        "Latitude_Of_Origin",    "Azimuth",
        "Longitude_Of_1st_Point", "Longitude_Of_2nd_Point",
        "Longitude_Of_Center",   "Latitude_Of_Center",
        "X_Scale",               "Y_Scale",
        "XY_Plane_Rotation",     "DATASET_with_a_name_as_long_as_a_name_field_allows_it_to_be"};
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i)
        slots[i] = ka_parameter_new(names[i], -1234567.123456789 / (i + 1));
    ka_projcs *pcs = ka_projcs_new(
        kLong63.c_str(), long_geogcs(kLong63.c_str()),
        ka_projection_from_string("PROJECTION[\"Mercator\"]"),
        slots, ka_unit_new(kLong63.c_str(), 0.3048));
    char text[KA_TEXT_MAX];
    ka_projcs_to_string(pcs, text);
    EXPECT_GT(std::string(text).size(), 1023u);
    expect_round_trip(pcs, write_projcs, ka_projcs_from_string, ka_projcs_eq,
                      ka_projcs_del);
}

// Two systems with the longest names and numbers, and the longest method
// name: the method's name still ends inside the readers' 1023-character
// view, so the transformation reads back.
TEST(TextRoundTrip, GeographicTransformationWithLongNames) {
    ka_parameter *slots[KA_PARAMETER_SLOTS] = {};
    slots[0] = ka_parameter_new("X_Axis_Translation", -87.0);
    slots[1] = ka_parameter_new("Y_Axis_Translation", -98.0);
    slots[2] = ka_parameter_new("Z_Axis_Translation", -121.0);
    ka_geogtran *gt = ka_geogtran_new(
        kLong63.c_str(), long_geogcs((std::string(60, 'M') + "_63").c_str()),
        long_geogcs(kLong63.c_str()),
        ka_method_from_string("METHOD[\"Molodensky_Abridged\"]"), slots);
    char text[KA_TEXT_MAX];
    ka_geogtran_to_string(gt, text);
    EXPECT_EQ(std::string(text).find("_Abridged\"]"), 1023u - 10);
    expect_round_trip(gt, write_geogtran, ka_geogtran_from_string,
                      ka_geogtran_eq, ka_geogtran_del);

    ka_parameter *none[KA_PARAMETER_SLOTS] = {};
    expect_round_trip(ka_geogtran_new("Rotation", wgs84(), wgs84(),
                                      ka_method_from_string(
                                          "METHOD[\"Longitude_Rotation\"]"),
                                      none),
                      write_geogtran, ka_geogtran_from_string, ka_geogtran_eq,
                      ka_geogtran_del);
}

}  // namespace
