// The text form: writers byte for byte from the templates and the bound on
// their length, readers on lenient and hostile texts, round trips of every
// kind, and the generic coordinate-system handle.  Partial objects left
// behind by a failing reader show up as leaks under the sanitizer build.
#include "core/fixtures.h"

using namespace fixtures;

namespace {

// EPSG's WGS 72 to WGS 84 (Position Vector): tZ 4.5 m, rZ 0.554", dS 0.219 ppm.
ka_geogtran *wgs72_to_wgs84() {
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    return ka_geogtran_new("WGS_1972_To_WGS_1984", wgs72(), wgs84(),
                           ka_method_from_string("METHOD[\"Position_Vector\"]"),
                           fill_slots(slots, {{"Scale_Difference", 0.219},
                                              {"Z_Axis_Rotation", 0.554},
                                              {"Z_Axis_Translation", 4.5}}));
}

// Parameters come out in slot order, whatever order they were made in; a
// sphere, and a flattening within 2^-48 of 0, write "0.0" for 1/f.  Invalid
// objects print the templates with empty names and the accessors' defaults.
TEST(TextWrite, EveryKindByteForByte) {
    ka_geogtran *gt = wgs72_to_wgs84();
    ka_projcs *utm = utm33n();
    ka_spheroid *sphere = ka_spheroid_new("Sphere", 6371000.0, 0.0);
    ka_spheroid *almost = ka_spheroid_new("Almost", 6371000.0, 1e-15);
    EXPECT_EQ(TEXT_OF(geogtran, gt),
              "GEOGTRAN[\"WGS_1972_To_WGS_1984\"," + kWgs72Text + "," + kWgs84Text +
                  ",METHOD[\"Position_Vector\"],PARAMETER[\"Z_Axis_Translation\",4.5],"
                  "PARAMETER[\"Z_Axis_Rotation\",0.554],PARAMETER[\"Scale_Difference\",0.219]]");
    EXPECT_EQ(TEXT_OF(projcs, utm), kUtm33nText);
    EXPECT_EQ(TEXT_OF(spheroid, sphere), "SPHEROID[\"Sphere\",6371000.0,0.0]");
    EXPECT_EQ(TEXT_OF(spheroid, almost), "SPHEROID[\"Almost\",6371000.0,0.0]");

    const std::string empty_geogcs =
        "GEOGCS[\"\",DATUM[\"\",SPHEROID[\"\",1.0,0.0]],PRIMEM[\"\",0.0],UNIT[\"\",1.0]]";
    EXPECT_EQ(TEXT_OF(projcs, nullptr),
              "PROJCS[\"\"," + empty_geogcs + ",PROJECTION[\"\"],UNIT[\"\",1.0]]");
    EXPECT_EQ(TEXT_OF(geogtran, nullptr),
              "GEOGTRAN[\"\"," + empty_geogcs + "," + empty_geogcs + ",METHOD[\"\"]]");
    EXPECT_EQ(TEXT_OF(parameter, nullptr), "PARAMETER[\"\",0.0]");
    EXPECT_EQ(TEXT_OF(geogcs, reinterpret_cast<const ka_geogcs *>(sphere)), empty_geogcs);
    EXPECT_EQ(ka_unit_to_string(ka_projcs_unit(utm), nullptr), 0);
    EXPECT_EQ(ka_projcs_to_string(nullptr, nullptr), nullptr);
    del(gt, utm, sphere, almost);
}

// Every name at its 63 characters and every number at its longest written
// form, 24 characters for -0.000001234567890123456 (the fixed form takes up
// to 24 before the general form takes over).
constexpr double kLongest = -0.000001234567890123456;
std::string long_name(char fill) { return std::string(63, fill); }
ka_geogcs *long_geogcs(char fill) {
    const std::string name = long_name(fill);
    const char *n = name.c_str();
    return ka_geogcs_new(n, ka_datum_new(n, ka_spheroid_new(n, -kLongest, 1 / 123456789012345.67)),
                         ka_primem_new(n, kLongest), ka_unit_new(n, -kLongest));
}

TEST(TextWrite, LongestTextsStayWithinTheBufferSize) {
    ka_parameter *slots[KA_PARAMETER_SLOTS], *more[KA_PARAMETER_SLOTS];
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i) {
        slots[i] = ka_parameter_new(long_name('a').c_str(), kLongest);
        more[i] = ka_parameter_clone(slots[i]);
    }
    ka_projcs *pcs = ka_projcs_new(
        long_name('p').c_str(), long_geogcs('g'),
        ka_projection_new(long_name('r').c_str(), ka_projection_forward(nullptr),
                          ka_projection_inverse(nullptr), nullptr),
        slots, ka_unit_new(long_name('u').c_str(), -kLongest));
    ka_method *method = ka_method_new(long_name('m').c_str(), ka_method_forward(nullptr),
                                      ka_method_inverse(nullptr));
    ka_geogtran *gt =
        ka_geogtran_new(long_name('t').c_str(), long_geogcs('g'), long_geogcs('h'), method, more);
    ASSERT_TRUE(pcs && gt);
    std::string buffer(KA_TEXT_MAX + 64, '#');
    // UNIT 6+63+2+23+1 = 95, SPHEROID 10+63+2+23+1+17+1 = 117, DATUM
    // 7+63+2+117+1 = 190, PRIMEM 8+63+2+24+1 = 98, GEOGCS
    // 8+63+2+190+1+98+1+95+1 = 459, PROJECTION 12+63+2 = 77, PARAMETER
    // 11+63+2+24+1 = 101; PROJCS 8+63+2+459+1+77+16*(1+101)+1+95+1 = 2339.
    EXPECT_EQ(std::string(ka_projcs_to_string(pcs, buffer.data())).size(), 2339u);
    // METHOD 8+63+2 = 73; GEOGTRAN 10+63+2+459+1+459+1+73+16*(1+101)+1 = 2701.
    const std::string text = ka_geogtran_to_string(gt, buffer.data());
    EXPECT_EQ(text.size(), 2701u);
    EXPECT_TRUE(text.ends_with("PARAMETER[\"" + long_name('a') + "\",-0.000001234567890123456]]"));
    for (std::size_t i = KA_TEXT_MAX; i < buffer.size(); ++i)
        ASSERT_EQ(buffer[i], '#') << "written past KA_TEXT_MAX at " << i;
    del(pcs, gt);
}

// Writes an object, reads the text back and checks the copy is equal.
#define EXPECT_ROUND_TRIP(kind, object)                                  \
    do {                                                                 \
        ka_##kind *original = (object);                                  \
        char text[KA_TEXT_MAX];                                          \
        ka_##kind##_to_string(original, text);                           \
        ka_##kind *back = ka_##kind##_from_string(text);                 \
        EXPECT_TRUE(original && ka_##kind##_eq(original, back)) << text; \
        del(original, back);                                             \
    } while (0)

TEST(TextRoundTrip, EveryKind) {
    EXPECT_ROUND_TRIP(unit, ka_unit_new("Foot_US", 1200.0 / 3937));
    EXPECT_ROUND_TRIP(spheroid, ka_spheroid_new("Sphere", 6371000.0, 0.0));
    EXPECT_ROUND_TRIP(primem, ka_primem_new("Ferro", -17.66666666666667));
    EXPECT_ROUND_TRIP(datum, ka_datum_new("D", ka_spheroid_new("A", 6377563.396, 1 / 299.3249646)));
    EXPECT_ROUND_TRIP(geogcs, long_geogcs('g'));
    EXPECT_ROUND_TRIP(parameter, ka_parameter_new("Standard_Parallel_1", 1.0 / 3.0));
    EXPECT_ROUND_TRIP(projection, ka_projection_from_string("PROJECTION[\"Mercator\"]"));
    EXPECT_ROUND_TRIP(method, ka_method_from_string("METHOD[\"Position_Vector\"]"));
    EXPECT_ROUND_TRIP(projcs, utm33n());
    EXPECT_ROUND_TRIP(geogtran, wgs72_to_wgs84());
}

TEST(TextRead, LenientTextsAndValuesTheConstructorsReject) {
    // Keywords in any case, blanks around tokens, brackets only delimiters.
    EXPECT_EQ(REWRITTEN(unit, "\b unit [ \" Meter \" ,\t1.0 ]\r\n"), "UNIT[\"Meter\",1.0]");
    EXPECT_EQ(REWRITTEN(unit, "UNIT \"Meter\" 1"), "UNIT[\"Meter\",1.0]");
    // The datum takes the first SPHEROID anywhere in its text.
    EXPECT_EQ(REWRITTEN(datum, "SPHEROID[\"First\",1,0],DATUM[\"D\",SPHEROID[\"Second\",2,0]]"),
              "DATUM[\"D\",SPHEROID[\"First\",1.0,0.0]]");
    // A name is cut to 63 characters and trimmed (the blank at 63 goes); a
    // name equal to the keyword is found as the keyword.
    EXPECT_EQ(REWRITTEN(unit, ("UNIT[\"" + std::string(62, 'n') + " tail\",1]").c_str()),
              "UNIT[\"" + std::string(62, 'n') + "\",1.0]");
    EXPECT_EQ(REWRITTEN(unit, "UNIT[\"Unit\",2.0]"), "UNIT[\"Unit\",2.0]");
    // Projection and method names are looked up ignoring case, and keep the
    // text's spelling; unknown ones give null.
    EXPECT_EQ(REWRITTEN(projection, "PROJECTION[\"transverse_MERCATOR\"]"),
              "PROJECTION[\"transverse_MERCATOR\"]");
    EXPECT_EQ(REWRITTEN(method, "METHOD[\"position_VECTOR\"]"), "METHOD[\"position_VECTOR\"]");
    // A parameter with a bad value reads as 0.0, while a unit factor that is
    // not a number reads as 0, which the constructor rejects.
    EXPECT_EQ(REWRITTEN(parameter, "PARAMETER[\"Azimuth\",north]"), "PARAMETER[\"Azimuth\",0.0]");
    // Unknown names and rejected values give null, and so does a GEOGCS
    // without DATUM, PRIMEM or UNIT.  A prime meridian named "UNIT" is taken
    // for the unit keyword, whose reader then finds the factor "UNIT".
    for (const std::string &read :
         {REWRITTEN(projection, "PROJECTION[\"Flat_Earth\"]"),
          REWRITTEN(method, "METHOD[\"Teleport\"]"), REWRITTEN(unit, "UNIT[\"Meter\",one]"),
          REWRITTEN(spheroid, "SPHEROID[\"S\",0,298]"),
          REWRITTEN(spheroid, "SPHEROID[\"S\",1,0.5]"), REWRITTEN(primem, "PRIMEM[\"P\",180.5]"),
          REWRITTEN(geogcs, "GEOGCS[\"g\",DATUM[\"d\",SPHEROID[\"s\",1,0]],UNIT[\"Degree\",1]]"),
          REWRITTEN(geogcs, "GEOGCS[\"g\",PRIMEM[\"p\",0],UNIT[\"Degree\",1]]"),
          REWRITTEN(geogcs, "GEOGCS[\"g\",DATUM[\"d\",SPHEROID[\"s\",1,0]],PRIMEM[\"p\",0]]"),
          REWRITTEN(geogcs, "GEOGCS[\"g\",DATUM[\"d\",SPHEROID[\"s\",1,0]],PRIMEM[\"UNIT\",0],"
                            "UNIT[\"D\",1]]")})
        EXPECT_EQ(read, "null");
}

TEST(TextRead, HostileTextsGiveNullFromEveryReader) {
    const std::string long_junk(5000, 'A');
    for (const char *text : {static_cast<const char *>(nullptr), "", "[[[,,,\"\"\"]]]", "UNIT",
                             "UNIT[\"Meter\"", "UNIT Meter 1.0", long_junk.c_str(),
                             "GEOGCS[\"g\",DATUM[\"d\",SPHEROID[\"s\",6378137.0"}) {
        for (const std::string &read :
             {REWRITTEN(unit, text), REWRITTEN(spheroid, text), REWRITTEN(primem, text),
              REWRITTEN(datum, text), REWRITTEN(geogcs, text), REWRITTEN(projection, text),
              REWRITTEN(parameter, text), REWRITTEN(method, text), REWRITTEN(projcs, text),
              REWRITTEN(geogtran, text), REWRITTEN(coordsys, text)})
            EXPECT_EQ(read, "null") << (text ? std::string(text).substr(0, 40) : "(null)");
    }
}

const std::string kUtmHead = kUtm33nText.substr(0, kUtm33nText.find(",PARAMETER"));

TEST(TextRead, SystemsTakeRepeatedItemsByOccurrence) {
    // The last of two parameters in one slot wins; unknown names are dropped.
    // A parameter named UNIT_... is no unit: the second counted UNIT is.
    std::string text = kUtmHead +
                       ",PARAMETER[\"Central_Meridian\",9.0],PARAMETER[\"UNIT_Shift\",1],"
                       "PARAMETER[\"Longitude_Of_Origin\",21.0],unit  [\"Foot\",0.3048]]";
    EXPECT_EQ(REWRITTEN(projcs, text.c_str()),
              kUtmHead + ",PARAMETER[\"Longitude_Of_Origin\",21.0],UNIT[\"Foot\",0.3048]]");
    // Past the readers' first 1023 characters, parameters and the unit are
    // still read from their own positions; a GEOGCS there is not seen.
    const std::string tail = ",PARAMETER[\"Scale_Factor\",0.9996],UNIT[\"Meter\",1.0]]";
    text = kUtmHead + std::string(2000, ' ') + tail;
    EXPECT_EQ(REWRITTEN(projcs, text.c_str()), kUtmHead + tail);
    text = "PROJCS[\"p\"," + std::string(1100, ' ') + kUtm33nText.substr(kUtm33nText.find("GEOG"));
    EXPECT_EQ(REWRITTEN(projcs, text.c_str()), "null");
    // An unknown projection, no GEOGCS, an unreadable PARAMETER after the
    // others were read, or only the angular UNIT: null, and nothing leaks.
    std::string unknown = kUtm33nText, no_geogcs = kUtm33nText;
    unknown.replace(unknown.find("Transverse_Mercator"), 19, "Flat_Earth");
    no_geogcs.replace(no_geogcs.find("GEOGCS"), 6, "GEOGXS");
    for (const std::string &bad : {unknown, no_geogcs, kUtm33nText + ",PARAMETER[", kUtmHead + "]"})
        EXPECT_EQ(REWRITTEN(projcs, bad.c_str()), "null") << bad;
    // A GEOGTRAN needs two systems, a known method and readable parameters.
    const std::string one = "GEOGTRAN[\"T\"," + kWgs84Text, two = one + "," + kWgs72Text;
    for (const std::string &bad : {one + ",METHOD[\"Molodensky\"]]", two + ",METHOD[\"Teleport\"]]",
                                   two + "]", two + ",METHOD[\"Molodensky\"],PARAMETER[\"x\"]"})
        EXPECT_EQ(REWRITTEN(geogtran, bad.c_str()), "null") << bad;
}

// Generic handles: the geographic test comes first; a geographic system
// never equals a projected one, even its own base.
TEST(Coordsys, DispatchesOnTheKind) {
    ka_geogcs *geogcs = wgs84();
    ka_projcs *projcs = utm33n();
    ka_unit *unit = ka_unit_new("Meter", 1.0);
    EXPECT_TRUE(ka_coordsys_p(geogcs) && ka_coordsys_p(projcs) &&
                ka_coordsys_eq(geogcs, ka_projcs_geogcs(projcs)));
    EXPECT_FALSE(ka_coordsys_p(unit) || ka_coordsys_p(nullptr) || ka_coordsys_clone(unit) ||
                 ka_coordsys_eq(geogcs, projcs) || ka_coordsys_eq(projcs, geogcs) ||
                 ka_coordsys_eq(unit, unit));
    for (void *cs : {static_cast<void *>(geogcs), static_cast<void *>(projcs)}) {
        void *copy = ka_coordsys_clone(cs);
        EXPECT_TRUE(ka_coordsys_eq(copy, cs) && ka_geogcs_p(copy) == ka_geogcs_p(cs));
        ka_coordsys_del(copy);
    }
    char text[KA_TEXT_MAX];
    EXPECT_EQ(ka_coordsys_to_string(geogcs, text), static_cast<int>(kWgs84Text.size()));
    EXPECT_NE(ka_coordsys_to_string(projcs, text), 0);
    EXPECT_EQ(ka_coordsys_to_string(unit, text) + ka_coordsys_to_string(nullptr, text), 0);
    EXPECT_STREQ(text, "");
    ka_coordsys_del(unit);  // not a system: ignored, the unit is still ours
    EXPECT_TRUE(ka_unit_p(unit));
    ka_coordsys_del(geogcs);
    ka_coordsys_del(projcs);
    del(unit);
    // The projected reader runs when "PROJCS[" appears anywhere, in any case;
    // with a blank before the bracket the geographic reader gives the base.
    EXPECT_EQ(REWRITTEN(coordsys, ("projcs" + kUtm33nText.substr(6)).c_str()), kUtm33nText);
    EXPECT_EQ(REWRITTEN(coordsys, ("PROJCS [" + kUtm33nText.substr(7)).c_str()), kWgs84Text);
    EXPECT_EQ(REWRITTEN(coordsys, kWgs84Text.c_str()), kWgs84Text);
    EXPECT_EQ(REWRITTEN(coordsys, (kWgs84Text + ",PROJCS[").c_str()), "null");
    EXPECT_EQ(REWRITTEN(coordsys, "UNIT[\"Meter\",1.0]"), "null");
}

}  // namespace
