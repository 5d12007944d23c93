// The generic coordinate-system handle: dispatch on the kind code, and the
// "PROJCS[" test of its reader.
#include "core/text_fixtures.h"
#include "veltra.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

using namespace text_fixtures;

namespace {

ka_projcs *utm() {
    return utm33n(
        ka_projection_from_string("PROJECTION[\"Transverse_Mercator\"]"));
}

TEST(Coordsys, PredicateAndEquality) {
    ka_geogcs *geogcs = wgs84();
    ka_projcs *projcs = utm();
    ka_unit *unit = ka_unit_new("Meter", 1.0);
    EXPECT_TRUE(ka_coordsys_p(geogcs));
    EXPECT_TRUE(ka_coordsys_p(projcs));
    EXPECT_FALSE(ka_coordsys_p(unit));
    EXPECT_FALSE(ka_coordsys_p(nullptr));

    // A geographic system never equals a projected one, even its own base.
    EXPECT_FALSE(ka_coordsys_eq(geogcs, projcs));
    EXPECT_FALSE(ka_coordsys_eq(projcs, geogcs));
    EXPECT_TRUE(ka_coordsys_eq(geogcs, ka_projcs_geogcs(projcs)));
    EXPECT_FALSE(ka_coordsys_eq(unit, unit));

    void *copy = ka_coordsys_clone(projcs);
    EXPECT_TRUE(ka_projcs_p(copy));
    EXPECT_TRUE(ka_coordsys_eq(copy, projcs));
    ka_coordsys_del(copy);
    copy = ka_coordsys_clone(geogcs);
    EXPECT_TRUE(ka_geogcs_p(copy));
    EXPECT_TRUE(ka_coordsys_eq(copy, geogcs));
    ka_coordsys_del(copy);
    EXPECT_EQ(ka_coordsys_clone(unit), nullptr);

    // Not a system: ignored, the unit is still ours to delete.
    ka_coordsys_del(unit);
    EXPECT_TRUE(ka_unit_p(unit));
    ka_coordsys_del(nullptr);

    ka_unit_del(unit);
    ka_coordsys_del(geogcs);
    ka_coordsys_del(projcs);
}

TEST(Coordsys, ToStringDispatch) {
    char text[KA_TEXT_MAX];
    ka_geogcs *geogcs = wgs84();
    EXPECT_EQ(ka_coordsys_to_string(geogcs, text),
              static_cast<int>(kWgs84Text.size()));
    EXPECT_EQ(std::string(text), kWgs84Text);

    ka_projcs *projcs = utm();
    EXPECT_NE(ka_coordsys_to_string(projcs, text), 0);
    EXPECT_EQ(std::string(text), kUtm33nText);

    ka_datum *datum = ka_datum_new("D", ka_spheroid_new("S", 1.0, 0.0));
    std::strcpy(text, "left over");
    EXPECT_EQ(ka_coordsys_to_string(datum, text), 0);
    EXPECT_STREQ(text, "");
    EXPECT_EQ(ka_coordsys_to_string(nullptr, text), 0);
    EXPECT_EQ(ka_coordsys_to_string(geogcs, nullptr), 0);

    ka_datum_del(datum);
    ka_geogcs_del(geogcs);
    ka_projcs_del(projcs);
}

TEST(Coordsys, FromStringChoosesTheReaderByPROJCSBracket) {
    void *cs = ka_coordsys_from_string(kUtm33nText.c_str());
    EXPECT_TRUE(ka_projcs_p(cs));
    ka_coordsys_del(cs);

    std::string lower = kUtm33nText;
    lower.replace(0, 6, "projcs");
    cs = ka_coordsys_from_string(lower.c_str());
    EXPECT_TRUE(ka_projcs_p(cs));
    ka_coordsys_del(cs);

    // A blank between keyword and bracket: read as a geographic system,
    // which is the projected system's base.
    std::string spaced = kUtm33nText;
    spaced.replace(0, 7, "PROJCS [");
    cs = ka_coordsys_from_string(spaced.c_str());
    ASSERT_TRUE(ka_geogcs_p(cs));
    ka_geogcs *expected = wgs84();
    EXPECT_TRUE(ka_geogcs_eq(static_cast<ka_geogcs *>(cs), expected));
    ka_geogcs_del(expected);
    ka_coordsys_del(cs);

    cs = ka_coordsys_from_string(kWgs84Text.c_str());
    EXPECT_TRUE(ka_geogcs_p(cs));
    ka_coordsys_del(cs);

    EXPECT_EQ(ka_coordsys_from_string(nullptr), nullptr);
    EXPECT_EQ(ka_coordsys_from_string("UNIT[\"Meter\",1.0]"), nullptr);
    // Once "PROJCS[" appears, only the projected reader runs: a geographic
    // text followed by a bare PROJCS[ reads as nothing.
    EXPECT_EQ(ka_coordsys_from_string((kWgs84Text + ",PROJCS[").c_str()),
              nullptr);
}

}  // namespace
