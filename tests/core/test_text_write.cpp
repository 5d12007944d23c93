// Writers of the text form: the exact layout of every kind, written out by
// hand from the templates, invalid objects, and the bound on the length.
#include "core/text_fixtures.h"
#include "veltra.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

using namespace text_fixtures;

namespace {

template <class T>
std::string text_of(int (*writer)(const T *, char *), const T *object,
                    int *count = nullptr) {
    char text[KA_TEXT_MAX];
    std::memset(text, 'x', sizeof text);
    int n = writer(object, text);
    if (count != nullptr) *count = n;
    return text;
}

TEST(TextWrite, DatumLevelKinds) {
    ka_unit *unit = ka_unit_new("Degree", 0.0174532925199433);
    int count = 0;
    EXPECT_EQ(text_of(ka_unit_to_string, unit, &count),
              "UNIT[\"Degree\",0.0174532925199433]");
    EXPECT_EQ(count, 33);
    ka_unit_del(unit);

    ka_primem *primem = ka_primem_new("Paris", 2.33722917);
    EXPECT_EQ(text_of(ka_primem_to_string, primem),
              "PRIMEM[\"Paris\",2.33722917]");
    ka_primem_del(primem);

    ka_datum *datum = ka_datum_new(
        "D_North_American_1927",
        ka_spheroid_new("Clarke_1866", 6378206.4, 1 / 294.9786982));
    EXPECT_EQ(text_of(ka_datum_to_string, datum),
              "DATUM[\"D_North_American_1927\",SPHEROID[\"Clarke_1866\","
              "6378206.4,294.9786982]]");
    ka_datum_del(datum);

    ka_geogcs *geogcs = wgs84();
    EXPECT_EQ(text_of(ka_geogcs_to_string, geogcs, &count), kWgs84Text);
    EXPECT_EQ(count, static_cast<int>(kWgs84Text.size()));
    ka_geogcs_del(geogcs);
}

TEST(TextWrite, SphereWritesLiteralZeroInverseFlattening) {
    ka_spheroid *sphere = ka_spheroid_new("Sphere", 6371000.0, 0.0);
    EXPECT_EQ(text_of(ka_spheroid_to_string, sphere),
              "SPHEROID[\"Sphere\",6371000.0,0.0]");
    ka_spheroid_del(sphere);
    // Below the tolerance 2^-48 a flattening counts as a sphere too.
    ka_spheroid *almost = ka_spheroid_new("Almost", 6371000.0, 1e-15);
    EXPECT_EQ(text_of(ka_spheroid_to_string, almost),
              "SPHEROID[\"Almost\",6371000.0,0.0]");
    ka_spheroid_del(almost);
}

TEST(TextWrite, NamesOnlyKinds) {
    ka_projection *projection =
        ka_projection_new("Mercator", no_projection, no_projection, nullptr);
    EXPECT_EQ(text_of(ka_projection_to_string, projection),
              "PROJECTION[\"Mercator\"]");
    ka_projection_del(projection);

    ka_method *method = ka_method_new("NTv2", no_method, no_method);
    EXPECT_EQ(text_of(ka_method_to_string, method), "METHOD[\"NTv2\"]");
    ka_method_del(method);

    ka_parameter *parameter = ka_parameter_new("Scale_Factor", 0.9996);
    EXPECT_EQ(text_of(ka_parameter_to_string, parameter),
              "PARAMETER[\"Scale_Factor\",0.9996]");
    ka_parameter_del(parameter);
}

TEST(TextWrite, ProjectedSystemUtm33n) {
    ka_projcs *utm = utm33n(ka_projection_new(
        "Transverse_Mercator", no_projection, no_projection, nullptr));
    ASSERT_NE(utm, nullptr);
    char text[KA_TEXT_MAX];
    EXPECT_EQ(ka_projcs_to_string(utm, text), text);
    EXPECT_EQ(std::string(text), kUtm33nText);
    ka_projcs_del(utm);
}

TEST(TextWrite, ParametersComeOutInSlotOrder) {
    ka_parameter *slots[KA_PARAMETER_SLOTS] = {};
    slots[15] = ka_parameter_new("Height", 35786000.0);
    slots[10] = ka_parameter_new("Longitude_Of_Center", -75.0);
    slots[0] = ka_parameter_new("False_Easting", 0.0);
    ka_projcs *pcs = ka_projcs_new(
        "Geo", wgs84(),
        ka_projection_new("Vertical_Near_Side_Perspective", no_projection,
                          no_projection, nullptr),
        slots, ka_unit_new("Foot_US", 0.3048006096012192));
    char text[KA_TEXT_MAX];
    EXPECT_EQ(std::string(ka_projcs_to_string(pcs, text)),
              "PROJCS[\"Geo\"," + kWgs84Text +
                  ",PROJECTION[\"Vertical_Near_Side_Perspective\"],"
                  "PARAMETER[\"False_Easting\",0.0],"
                  "PARAMETER[\"Longitude_Of_Center\",-75.0],"
                  "PARAMETER[\"Height\",35786000.0],"
                  "UNIT[\"Foot_US\",0.3048006096012192]]");
    ka_projcs_del(pcs);
}

TEST(TextWrite, GeographicTransformation) {
    ka_parameter *slots[KA_PARAMETER_SLOTS] = {};
    slots[2] = ka_parameter_new("Z_Axis_Translation", 4.5);
    slots[5] = ka_parameter_new("Z_Axis_Rotation", 0.554);
    slots[6] = ka_parameter_new("Scale_Difference", 0.219);
    ka_geogcs *wgs72 = ka_geogcs_new(
        "GCS_WGS_1972",
        ka_datum_new("D_WGS_1972",
                     ka_spheroid_new("WGS_1972", 6378135.0, 1 / 298.26)),
        ka_primem_new("Greenwich", 0.0),
        ka_unit_new("Degree", 0.0174532925199433));
    ka_geogtran *gt = ka_geogtran_new(
        "WGS_1972_To_WGS_1984", wgs72, wgs84(),
        ka_method_new("Position_Vector", no_method, no_method), slots);
    char text[KA_TEXT_MAX];
    EXPECT_EQ(ka_geogtran_to_string(gt, text), text);
    EXPECT_EQ(std::string(text),
              "GEOGTRAN[\"WGS_1972_To_WGS_1984\",GEOGCS[\"GCS_WGS_1972\","
              "DATUM[\"D_WGS_1972\",SPHEROID[\"WGS_1972\",6378135.0,298.26]],"
              "PRIMEM[\"Greenwich\",0.0],UNIT[\"Degree\",0.0174532925199433]]," +
                  kWgs84Text +
                  ",METHOD[\"Position_Vector\"],"
                  "PARAMETER[\"Z_Axis_Translation\",4.5],"
                  "PARAMETER[\"Z_Axis_Rotation\",0.554],"
                  "PARAMETER[\"Scale_Difference\",0.219]]");
    ka_geogtran_del(gt);
}

TEST(TextWrite, InvalidObjectsPrintTheTemplateWithDefaults) {
    int count = -1;
    EXPECT_EQ(text_of<ka_unit>(ka_unit_to_string, nullptr, &count),
              "UNIT[\"\",1.0]");
    EXPECT_EQ(count, 12);
    EXPECT_EQ(text_of<ka_spheroid>(ka_spheroid_to_string, nullptr),
              "SPHEROID[\"\",1.0,0.0]");
    EXPECT_EQ(text_of<ka_primem>(ka_primem_to_string, nullptr),
              "PRIMEM[\"\",0.0]");
    EXPECT_EQ(text_of<ka_datum>(ka_datum_to_string, nullptr),
              "DATUM[\"\",SPHEROID[\"\",1.0,0.0]]");
    EXPECT_EQ(text_of<ka_parameter>(ka_parameter_to_string, nullptr),
              "PARAMETER[\"\",0.0]");
    EXPECT_EQ(text_of<ka_method>(ka_method_to_string, nullptr), "METHOD[\"\"]");

    const std::string empty_geogcs =
        "GEOGCS[\"\",DATUM[\"\",SPHEROID[\"\",1.0,0.0]],PRIMEM[\"\",0.0],"
        "UNIT[\"\",1.0]]";
    char text[KA_TEXT_MAX];
    EXPECT_EQ(std::string(ka_projcs_to_string(nullptr, text)),
              "PROJCS[\"\"," + empty_geogcs + ",PROJECTION[\"\"],UNIT[\"\",1.0]]");
    EXPECT_EQ(std::string(ka_geogtran_to_string(nullptr, text)),
              "GEOGTRAN[\"\"," + empty_geogcs + "," + empty_geogcs +
                  ",METHOD[\"\"]]");

    // A unit handed to the geogcs writer is not a geogcs.
    ka_unit *unit = ka_unit_new("Meter", 1.0);
    EXPECT_EQ(text_of(ka_geogcs_to_string,
                      reinterpret_cast<const ka_geogcs *>(unit)),
              empty_geogcs);
    ka_unit_del(unit);
}

TEST(TextWrite, NullBufferIsIgnored) {
    ka_unit *unit = ka_unit_new("Meter", 1.0);
    EXPECT_EQ(ka_unit_to_string(unit, nullptr), 0);
    EXPECT_EQ(ka_projcs_to_string(nullptr, nullptr), nullptr);
    ka_unit_del(unit);
}

// Every name at its 63-character maximum and every number at its longest
// written form (24 characters for -0.000001234567890123456, the fixed form
// taking up to 24 before the general form takes over): the texts must still
// fit KA_TEXT_MAX, whole.
std::string long_name(char fill) { return std::string(63, fill); }
constexpr double kLongest = -0.000001234567890123456;

ka_geogcs *long_geogcs(char fill) {
    const std::string name = long_name(fill);
    return ka_geogcs_new(
        name.c_str(),
        ka_datum_new(name.c_str(), ka_spheroid_new(name.c_str(), -kLongest,
                                                   1 / 123456789012345.67)),
        ka_primem_new(name.c_str(), kLongest),
        ka_unit_new(name.c_str(), -kLongest));
}

void fill_long_parameters(ka_parameter **slots) {
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i)
        slots[i] = ka_parameter_new(long_name(static_cast<char>('a' + i)).c_str(),
                                    kLongest);
}

TEST(TextWrite, LongestTextsStayWithinTheBufferSize) {
    std::vector<char> buffer(KA_TEXT_MAX + 64, '#');
    char *text = buffer.data();

    ka_parameter *slots[KA_PARAMETER_SLOTS];
    fill_long_parameters(slots);
    ka_projcs *pcs = ka_projcs_new(
        long_name('p').c_str(), long_geogcs('g'),
        ka_projection_new(long_name('r').c_str(), no_projection, no_projection,
                          nullptr),
        slots, ka_unit_new(long_name('u').c_str(), -kLongest));
    ASSERT_NE(pcs, nullptr);
    std::string written = ka_projcs_to_string(pcs, text);
    // UNIT 6+63+2+23+1 = 95, SPHEROID 10+63+2+23+1+17+1 = 117, DATUM
    // 7+63+2+117+1 = 190, PRIMEM 8+63+2+24+1 = 98, GEOGCS
    // 8+63+2+190+1+98+1+95+1 = 459, PROJECTION 12+63+2 = 77, PARAMETER
    // 11+63+2+24+1 = 101; PROJCS 8+63+2+459+1+77+16*(1+101)+1+95+1.
    EXPECT_EQ(written.size(), 2339u);
    EXPECT_LT(written.size(), static_cast<std::size_t>(KA_TEXT_MAX));
    EXPECT_EQ(written.substr(written.size() - 2), "]]");
    EXPECT_NE(written.find("PARAMETER[\"" + long_name('a' + 15) +
                           "\",-0.000001234567890123456]"),
              std::string::npos);
    ka_projcs_del(pcs);

    fill_long_parameters(slots);
    ka_geogtran *gt = ka_geogtran_new(
        long_name('t').c_str(), long_geogcs('g'), long_geogcs('h'),
        ka_method_new(long_name('m').c_str(), no_method, no_method), slots);
    ASSERT_NE(gt, nullptr);
    written = ka_geogtran_to_string(gt, text);
    // METHOD 8+63+2 = 73; GEOGTRAN 10+63+2+459+1+459+1+73+16*(1+101)+1.
    EXPECT_EQ(written.size(), 2701u);
    EXPECT_LT(written.size(), static_cast<std::size_t>(KA_TEXT_MAX));
    EXPECT_EQ(written.substr(written.size() - 2), "]]");
    ka_geogtran_del(gt);

    for (std::size_t i = KA_TEXT_MAX; i < buffer.size(); ++i)
        ASSERT_EQ(buffer[i], '#') << "written past KA_TEXT_MAX at " << i;
}

}  // namespace
