// Units, spheroids, prime meridians, datums and geographic systems:
// construction limits, kinds, defaults, equality, cloning and ownership.
// Leaks show up under the sanitizer build.
#include "core/fixtures.h"

#include <cstdint>

using namespace fixtures;

namespace {

TEST(Construction, RejectsValuesOutsideTheirDomain) {
    for (double factor : {0.0, -1.0, std::nan("")}) EXPECT_EQ(ka_unit_new("U", factor), nullptr);
    for (auto [axis, f] : {std::pair{0.0, 0.0}, {std::nan(""), 0.0}, {1.0, 1.0}, {1.0, -0.1}})
        EXPECT_EQ(ka_spheroid_new("S", axis, f), nullptr) << axis << " " << f;
    ka_spheroid *spheroid = ka_spheroid_new("S", 1.0, 0.0);
    EXPECT_FALSE(ka_unit_new(nullptr, 1) || ka_primem_new("P", 180.5) ||
                 ka_datum_new("D", nullptr) || ka_datum_new(nullptr, spheroid));
    auto accepted = [](auto *object) { EXPECT_NE(object, nullptr); del(object); };
    accepted(ka_spheroid_new("S", 1.0, std::nan("")));  // a NaN passes both tests
    for (double longitude : {180.0, -180.0, std::nan("")}) accepted(ka_primem_new("P", longitude));
    // A failed composite leaves its parts to the caller.
    ka_datum *datum = ka_datum_new("D", spheroid);
    ka_unit *unit = ka_unit_new("Degree", kDegree);
    EXPECT_EQ(ka_geogcs_new("G", datum, nullptr, unit), nullptr);
    EXPECT_TRUE(ka_datum_p(datum) && ka_unit_p(unit));
    del(datum, unit);
}

TEST(Kinds, NamesBitZeroAndDefaults) {
    std::string long_name(100, 'n');
    long_name[62] = 'x';
    ka_unit *unit = ka_unit_new(long_name.c_str(), 0.3048);
    EXPECT_EQ(NAME_OF(unit, unit), long_name.substr(0, 63));
    // The name of an invalid object is 64 zero bytes.
    char name[KA_NAME_MAX];
    std::memset(name, 'x', sizeof name);
    ka_spheroid_name(reinterpret_cast<ka_spheroid *>(unit), name);
    EXPECT_TRUE(std::all_of(name, name + KA_NAME_MAX, [](char c) { return c == 0; }));
    // Constructors store the bare code; a caller's mark in bit 0 is ignored.
    std::uint32_t word;
    std::memcpy(&word, unit, sizeof word);
    EXPECT_EQ(word, static_cast<std::uint32_t>(KA_KIND_UNIT));
    auto set_kind = [&](std::uint32_t kind) { std::memcpy(unit, &kind, sizeof kind); };
    set_kind(KA_KIND_UNIT + 1);
    EXPECT_TRUE(ka_unit_p(unit) && ka_unit_factor(unit) == 0.3048);
    set_kind(KA_KIND_SPHEROID);  // another kind's code
    EXPECT_TRUE(!ka_unit_p(unit) && ka_spheroid_p(unit) && ka_unit_factor(unit) == 1.0);
    set_kind(KA_KIND_UNIT);
    // Defaults for invalid handles; deleting one of the wrong kind does
    // nothing (deleting NULL is covered by the readers' tests).
    ka_datum_del(reinterpret_cast<ka_datum *>(unit));
    EXPECT_TRUE(ka_unit_p(unit) && !ka_datum_spheroid(reinterpret_cast<ka_datum *>(unit)));
    EXPECT_TRUE(ka_unit_factor(nullptr) == 1.0 && ka_spheroid_axis(nullptr) == 1.0);
    EXPECT_FALSE(ka_spheroid_flattening(nullptr) || ka_primem_longitude(nullptr) ||
                 ka_geogcs_datum(nullptr) || ka_geogcs_primem(nullptr) || ka_geogcs_unit(nullptr));
    del(unit);
    // The geographic destructor alone frees whatever it is given: the leak
    // check would report the unit otherwise.
    ka_geogcs_del(reinterpret_cast<ka_geogcs *>(ka_unit_new("Degree", kDegree)));
}

TEST(Equality, TolerantNumbersAndNamesAtEveryLevel) {
    // abs(x - y) <= ((abs(x) + abs(y)) / 2 + 1) 2^-48: about 2.3e-8 at the
    // size of the Earth, 3.55e-15 near zero.
    ka_spheroid *a = ka_spheroid_new("a", 6378137.0, 0.0);
    ka_spheroid *b = ka_spheroid_new("A", 6378137.0 + 1e-9, 0.0);
    ka_spheroid *c = ka_spheroid_new("A", 6378137.0 + 1e-6, 0.0);
    ka_primem *p0 = ka_primem_new("P", 0.0), *p3 = ka_primem_new("P", 3e-15),
              *p4 = ka_primem_new("P", 4e-15);
    ka_unit *foot = ka_unit_new("Foot", 0.3048), *feet = ka_unit_new("Feet", 0.3048);
    ka_geogcs *g1 = wgs84(), *g2 = wgs84(), *renamed_datum = wgs84("D_WGS_84");
    EXPECT_TRUE(ka_spheroid_eq(a, b) && ka_primem_eq(p0, p3) && ka_geogcs_eq(g1, g2));
    EXPECT_FALSE(ka_spheroid_eq(a, c) || ka_spheroid_eq(a, nullptr) || ka_primem_eq(p0, p4) ||
                 ka_unit_eq(foot, feet) || ka_geogcs_eq(g1, renamed_datum) ||
                 ka_datum_eq(ka_geogcs_datum(g1), ka_geogcs_datum(renamed_datum)));
    del(a, b, c, p0, p3, p4, foot, feet, g1, g2, renamed_datum);
}

TEST(Cloning, CopiesDeeplyAndFailsWithoutLeaks) {
    ka_geogcs *g = wgs84();
    ka_geogcs *copy = ka_geogcs_clone(g);
    EXPECT_TRUE(ka_geogcs_eq(g, copy));
    del(g);  // datum, spheroid, prime meridian and unit go too, not the copy's
    EXPECT_EQ(ka_spheroid_axis(ka_datum_spheroid(ka_geogcs_datum(copy))), 6378137.0);
    del(copy);
    EXPECT_FALSE(ka_unit_clone(nullptr) || ka_spheroid_clone(nullptr) ||
                 ka_primem_clone(nullptr) || ka_datum_clone(nullptr) || ka_geogcs_clone(nullptr));
    // A datum whose spheroid is of the wrong kind cannot be cloned; the
    // clones made before the failure are freed.
    ka_unit *not_a_spheroid = ka_unit_new("U", 1.0);
    ka_datum *datum = ka_datum_new("D", reinterpret_cast<ka_spheroid *>(not_a_spheroid));
    ka_geogcs *bad = ka_geogcs_new("G", datum, ka_primem_new("P", 0.0), ka_unit_new("U", 1.0));
    EXPECT_FALSE(ka_datum_clone(datum) || ka_geogcs_clone(bad));
    del(bad, not_a_spheroid);  // the datum leaves its wrong-kind spheroid alone
}

}  // namespace
