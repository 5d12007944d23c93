// Units, spheroids, prime meridians, datums and geographic systems:
// construction limits, defaults, equality, cloning and ownership.
#include "veltra.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kDegree = 0.017453292519943295;

ka_geogcs *wgs84() {
    return ka_geogcs_new(
        "GCS_WGS_1984",
        ka_datum_new("D_WGS_1984",
                     ka_spheroid_new("WGS_1984", 6378137.0, 1 / 298.257223563)),
        ka_primem_new("Greenwich", 0.0), ka_unit_new("Degree", kDegree));
}

std::string name_of(const ka_unit *u) {
    char buf[KA_NAME_MAX];
    ka_unit_name(u, buf);
    return buf;
}

TEST(Construction, RejectsValuesOutsideTheirDomain) {
    EXPECT_EQ(ka_unit_new("Meter", 0.0), nullptr);
    EXPECT_EQ(ka_unit_new("Meter", -1.0), nullptr);
    EXPECT_EQ(ka_unit_new("Meter", kNaN), nullptr);
    EXPECT_EQ(ka_unit_new(nullptr, 1.0), nullptr);
    ka_unit *meter = ka_unit_new("Meter", 1.0);
    EXPECT_NE(meter, nullptr);
    ka_unit_del(meter);

    EXPECT_EQ(ka_spheroid_new("S", 0.0, 0.0), nullptr);
    EXPECT_EQ(ka_spheroid_new("S", kNaN, 0.0), nullptr);
    EXPECT_EQ(ka_spheroid_new("S", 1.0, 1.0), nullptr);
    EXPECT_EQ(ka_spheroid_new("S", 1.0, -0.1), nullptr);
    ka_spheroid *sphere = ka_spheroid_new("Sphere", 6371000.0, 0.0);
    EXPECT_NE(sphere, nullptr);
    ka_spheroid *nan_f = ka_spheroid_new("S", 1.0, kNaN);  // passes both tests
    EXPECT_NE(nan_f, nullptr);
    ka_spheroid_del(sphere);
    ka_spheroid_del(nan_f);

    ka_primem *east = ka_primem_new("E", 180.0), *west = ka_primem_new("W", -180.0);
    EXPECT_NE(east, nullptr);
    EXPECT_NE(west, nullptr);
    EXPECT_EQ(ka_primem_new("X", 180.5), nullptr);
    ka_primem *nan_pm = ka_primem_new("N", kNaN);
    EXPECT_NE(nan_pm, nullptr);
    ka_primem_del(east);
    ka_primem_del(west);
    ka_primem_del(nan_pm);

    EXPECT_EQ(ka_datum_new("D", nullptr), nullptr);
    EXPECT_EQ(ka_geogcs_new("G", nullptr, nullptr, nullptr), nullptr);
}

TEST(Construction, FailedCompositeLeavesPartsToTheCaller) {
    ka_spheroid *spheroid = ka_spheroid_new("S", 1.0, 0.0);
    EXPECT_EQ(ka_datum_new(nullptr, spheroid), nullptr);
    ka_datum *datum = ka_datum_new("D", spheroid);  // still usable
    ka_unit *unit = ka_unit_new("Degree", kDegree);
    EXPECT_EQ(ka_geogcs_new("G", datum, nullptr, unit), nullptr);
    EXPECT_TRUE(ka_datum_p(datum));
    EXPECT_TRUE(ka_unit_p(unit));
    ka_datum_del(datum);
    ka_unit_del(unit);
}

TEST(Names, AreCutAt63Characters) {
    std::string long_name(100, 'n');
    long_name[62] = 'x';
    ka_unit *u = ka_unit_new(long_name.c_str(), 1.0);
    EXPECT_EQ(name_of(u), long_name.substr(0, 63));
    ka_unit_del(u);
}

TEST(Names, NameOfAnInvalidObjectIsAllZeros) {
    char buf[KA_NAME_MAX];
    std::memset(buf, 'x', sizeof buf);
    ka_unit_name(nullptr, buf);
    for (char c : buf) EXPECT_EQ(c, '\0');
    ka_spheroid *s = ka_spheroid_new("S", 1.0, 0.0);
    std::memset(buf, 'x', sizeof buf);
    ka_unit_name(reinterpret_cast<ka_unit *>(s), buf);
    EXPECT_EQ(buf[0], '\0');
    ka_spheroid_del(s);
}

TEST(Kinds, BitZeroOfTheKindWordIsIgnored) {
    ka_unit *u = ka_unit_new("Foot", 0.3048);
    std::uint32_t word;
    std::memcpy(&word, u, sizeof word);
    EXPECT_EQ(word, static_cast<std::uint32_t>(KA_KIND_UNIT));
    word += 1;  // a caller's mark in bit 0
    std::memcpy(u, &word, sizeof word);
    EXPECT_TRUE(ka_unit_p(u));
    EXPECT_EQ(ka_unit_factor(u), 0.3048);
    word = KA_KIND_SPHEROID;  // another kind's code
    std::memcpy(u, &word, sizeof word);
    EXPECT_FALSE(ka_unit_p(u));
    EXPECT_EQ(ka_unit_factor(u), 1.0);
    EXPECT_TRUE(ka_spheroid_p(u));
    word = KA_KIND_UNIT;
    std::memcpy(u, &word, sizeof word);
    ka_unit_del(u);
}

TEST(Accessors, DefaultsForInvalidHandles) {
    EXPECT_EQ(ka_unit_factor(nullptr), 1.0);
    EXPECT_EQ(ka_spheroid_axis(nullptr), 1.0);
    EXPECT_EQ(ka_spheroid_flattening(nullptr), 0.0);
    EXPECT_EQ(ka_primem_longitude(nullptr), 0.0);
    EXPECT_EQ(ka_datum_spheroid(nullptr), nullptr);
    EXPECT_EQ(ka_geogcs_datum(nullptr), nullptr);
    EXPECT_EQ(ka_geogcs_primem(nullptr), nullptr);
    EXPECT_EQ(ka_geogcs_unit(nullptr), nullptr);
    ka_unit *u = ka_unit_new("Meter", 1.0);
    auto *as_datum = reinterpret_cast<ka_datum *>(u);
    EXPECT_EQ(ka_datum_spheroid(as_datum), nullptr);
    EXPECT_FALSE(ka_datum_p(u));
    ka_datum_del(as_datum);  // wrong kind: ignored
    EXPECT_TRUE(ka_unit_p(u));
    ka_unit_del(u);
    // Deleting NULL is harmless everywhere.
    ka_unit_del(nullptr);
    ka_spheroid_del(nullptr);
    ka_primem_del(nullptr);
    ka_datum_del(nullptr);
    ka_geogcs_del(nullptr);
}

TEST(Equality, NamesIgnoreCaseAndNumbersUseTheLibraryTolerance) {
    ka_spheroid *a = ka_spheroid_new("a", 6378137.0, 0.0);
    ka_spheroid *b = ka_spheroid_new("A", 6378137.0 + 1e-9, 0.0);
    ka_spheroid *c = ka_spheroid_new("A", 6378137.0 + 1e-6, 0.0);
    EXPECT_TRUE(ka_spheroid_eq(a, b));
    EXPECT_FALSE(ka_spheroid_eq(a, c));
    EXPECT_FALSE(ka_spheroid_eq(a, nullptr));
    ka_spheroid_del(a);
    ka_spheroid_del(b);
    ka_spheroid_del(c);

    // Near zero the test is absolute: about 3.55e-15.
    ka_primem *p0 = ka_primem_new("P", 0.0);
    ka_primem *p1 = ka_primem_new("P", 3e-15);
    ka_primem *p2 = ka_primem_new("P", 4e-15);
    EXPECT_TRUE(ka_primem_eq(p0, p1));
    EXPECT_FALSE(ka_primem_eq(p0, p2));
    ka_primem_del(p0);
    ka_primem_del(p1);
    ka_primem_del(p2);

    ka_unit *u1 = ka_unit_new("Foot", 0.3048);
    ka_unit *u2 = ka_unit_new("Feet", 0.3048);
    EXPECT_FALSE(ka_unit_eq(u1, u2));  // same number, other name
    ka_unit_del(u1);
    ka_unit_del(u2);
}

TEST(Equality, NamesCountAtEveryLevel) {
    ka_datum *d1 = ka_datum_new("D_One", ka_spheroid_new("S", 1.0, 0.0));
    ka_datum *d2 = ka_datum_new("D_Two", ka_spheroid_new("S", 1.0, 0.0));
    EXPECT_FALSE(ka_datum_eq(d1, d2));
    ka_datum_del(d1);
    ka_datum_del(d2);

    ka_geogcs *g1 = wgs84();
    ka_geogcs *g2 = wgs84();
    EXPECT_TRUE(ka_geogcs_eq(g1, g2));
    ka_geogcs *g3 = ka_geogcs_new(
        "GCS_WGS_1984",
        ka_datum_new("D_WGS_84",
                     ka_spheroid_new("WGS_1984", 6378137.0, 1 / 298.257223563)),
        ka_primem_new("Greenwich", 0.0), ka_unit_new("Degree", kDegree));
    EXPECT_FALSE(ka_geogcs_eq(g1, g3));
    ka_geogcs_del(g1);
    ka_geogcs_del(g2);
    ka_geogcs_del(g3);
}

TEST(Cloning, CopiesDeeplyAndRejectsInvalidObjects) {
    ka_geogcs *g = wgs84();
    ka_geogcs *copy = ka_geogcs_clone(g);
    ASSERT_NE(copy, nullptr);
    EXPECT_TRUE(ka_geogcs_eq(g, copy));
    EXPECT_NE(ka_geogcs_datum(copy), ka_geogcs_datum(g));
    EXPECT_NE(ka_datum_spheroid(ka_geogcs_datum(copy)),
              ka_datum_spheroid(ka_geogcs_datum(g)));
    ka_geogcs_del(g);
    EXPECT_EQ(ka_spheroid_axis(ka_datum_spheroid(ka_geogcs_datum(copy))),
              6378137.0);
    ka_geogcs_del(copy);

    EXPECT_EQ(ka_unit_clone(nullptr), nullptr);
    EXPECT_EQ(ka_spheroid_clone(nullptr), nullptr);
    EXPECT_EQ(ka_primem_clone(nullptr), nullptr);
    EXPECT_EQ(ka_datum_clone(nullptr), nullptr);
    EXPECT_EQ(ka_geogcs_clone(nullptr), nullptr);
}

// The geographic system owns its parts: one delete frees all five blocks
// (AddressSanitizer's leak check guards this test).
TEST(Ownership, DeletingAGeographicSystemDeletesItsParts) {
    ka_geogcs *g = wgs84();
    ka_geogcs_del(g);
}

// A failed geographic clone frees the clones it made: a datum whose
// spheroid is of the wrong kind cannot be cloned.
TEST(Ownership, FailedCloneLeaksNothing) {
    ka_unit *not_a_spheroid = ka_unit_new("U", 1.0);
    ka_datum *datum =
        ka_datum_new("D", reinterpret_cast<ka_spheroid *>(not_a_spheroid));
    ka_geogcs *g = ka_geogcs_new("G", datum, ka_primem_new("Greenwich", 0.0),
                                 ka_unit_new("Degree", kDegree));
    EXPECT_EQ(ka_datum_clone(datum), nullptr);
    EXPECT_EQ(ka_geogcs_clone(g), nullptr);
    ka_geogcs_del(g);  // the datum leaves its wrong-kind spheroid alone
    ka_unit_del(not_a_spheroid);
}

}  // namespace
