// The factory: dispatch of codes by range, code lists, predefined lists and
// the search of an object's code.
#include "catalogue/code_ranges.h"
#include "catalogue/tables.h"
#include "override_home.h"
#include "veltra.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace {

using veltra::catalogue::CodeKind;
using veltra::catalogue::kind_entries;
using veltra::catalogue::kind_entry;
using veltra::catalogue::KindEntry;

std::string name_of(const void *object, const KindEntry &entry) {
    char name[KA_NAME_MAX];
    entry.name(object, name);
    return name;
}

// The kind entry matching an object's kind word (units: the linear one).
const KindEntry *entry_of(const void *object) {
    for (const KindEntry &entry : kind_entries())
        if (ka_unit_p(object) ? entry.kind == CodeKind::kLinearUnit
                              : (object != nullptr &&
                                 *static_cast<const unsigned *>(object) ==
                                     entry.object_kind))
            return &entry;
    return nullptr;
}

std::string factory_name(int code) {
    void *object = ka_factory(code);
    const KindEntry *entry = entry_of(object);
    std::string name = entry != nullptr ? name_of(object, *entry) : "(null)";
    if (entry != nullptr) entry->destroy(object);
    return name;
}

TEST(FactoryDispatch, CodesGoToTheFactoryOfTheirRange) {
    EXPECT_EQ(factory_name(9001), "Meter");
    EXPECT_EQ(factory_name(9101), "Radian");
    EXPECT_EQ(factory_name(7030), "WGS_1984");
    EXPECT_EQ(factory_name(8903), "Paris");
    EXPECT_EQ(factory_name(6326), "D_WGS_1984");
    EXPECT_EQ(factory_name(43006), "Transverse_Mercator");
    EXPECT_EQ(factory_name(9603), "Geocentric_Translation");
    EXPECT_EQ(factory_name(100001), "False_Easting");
    EXPECT_EQ(factory_name(4326), "GCS_WGS_1984");
    EXPECT_EQ(factory_name(32631), "WGS_1984_UTM_Zone_31N");
    void *unit = ka_factory(9101);
    EXPECT_TRUE(ka_unit_p(unit));
    ka_unit_del(static_cast<ka_unit *>(unit));
}

TEST(FactoryDispatch, CodesWithoutAnObject) {
    EXPECT_EQ(ka_factory(0), nullptr);
    EXPECT_EQ(ka_factory(-9001), nullptr);
    EXPECT_EQ(ka_factory(99999), nullptr);    // in no range
    EXPECT_EQ(ka_factory(100000), nullptr);   // a parameter code, no name
    EXPECT_EQ(ka_factory(9004), nullptr);     // unassigned unit
    EXPECT_EQ(ka_factory(32761), nullptr);    // past the UTM south zones
    // The method macro table gives Bursa-Wolf a code in no range.
    EXPECT_EQ(ka_factory(42607), nullptr);
    EXPECT_EQ(ka_factory_method(42607), nullptr);
}

TEST(FactoryDispatch, RangesOfDifferentKindsDoNotOverlap) {
    for (const KindEntry &a : kind_entries())
        for (const KindEntry &b : kind_entries())
            for (const auto &ra : a.ranges)
                for (const auto &rb : b.ranges) {
                    if (&a == &b) continue;
                    EXPECT_TRUE(ra.high < rb.low || rb.high < ra.low)
                        << ra.low << ".." << ra.high << " and " << rb.low
                        << ".." << rb.high;
                }
}

// A code list as a vector (freed).
std::vector<int> code_list(int *(*list)(int *)) {
    int count = -1;
    int *codes = list(&count);
    std::vector<int> out(codes, codes + std::max(count, 0));
    ka_factory_codelist_del(codes);
    return out;
}

struct KindLists {
    const char *kind;
    int *(*codes)(int *);
    ka_predefined *(*predefined)(int *);
    CodeKind code_kind;
    int size;  // catalogue size
    // Codes the factory builds that no code list holds: Bursa-Wolf, whose
    // macro code is 42607, and "NTF_To_RGF_1993_1", whose macro name shares
    // the code of KA_GT_NAD_1983_TO_HARN_WV.
    std::vector<int> extra = {};
};

const KindLists kKinds[] = {
    {"linear unit", ka_factory_linear_unit_codelist, ka_predefined_linear_unit,
     CodeKind::kLinearUnit, 37},
    {"angular unit", ka_factory_angular_unit_codelist,
     ka_predefined_angular_unit, CodeKind::kAngularUnit, 10},
    {"spheroid", ka_factory_spheroid_codelist, ka_predefined_spheroid,
     CodeKind::kSpheroid, 49},
    {"primem", ka_factory_primem_codelist, ka_predefined_primem,
     CodeKind::kPrimem, 13},
    {"datum", ka_factory_datum_codelist, ka_predefined_datum, CodeKind::kDatum,
     297},
    {"geogcs", ka_factory_geogcs_codelist, ka_predefined_geogcs,
     CodeKind::kGeogcs, 320},
    {"projection", ka_factory_projection_codelist, ka_predefined_projection,
     CodeKind::kProjection, 51},
    {"method", ka_factory_method_codelist, ka_predefined_method,
     CodeKind::kMethod, 10, {109607}},
    {"parameter", ka_factory_parameter_codelist, ka_predefined_parameter,
     CodeKind::kParameter, 29},
    {"geogtran", ka_factory_geogtran_codelist, ka_predefined_geogtran,
     CodeKind::kGeogtran, 452, {108024}},
};

TEST(CodeLists, HoldTheCatalogueSizes) {
    for (const KindLists &kind : kKinds)
        EXPECT_EQ(code_list(kind.codes).size(), static_cast<size_t>(kind.size))
            << kind.kind;
    const std::vector<int> methods = code_list(ka_factory_method_codelist);
    EXPECT_NE(std::find(methods.begin(), methods.end(), 42607), methods.end());
    for (int code : code_list(ka_factory_linear_unit_codelist))
        EXPECT_TRUE(code >= 9000 && code <= 9099) << code;
    for (int code : code_list(ka_factory_angular_unit_codelist))
        EXPECT_TRUE(code >= 9100 && code <= 9199) << code;
    EXPECT_EQ(ka_factory_datum_codelist(nullptr), nullptr);
}

// Codes of a list whose factory builds an object.
std::set<int> buildable(const KindLists &kind) {
    const KindEntry &entry = kind_entry(kind.code_kind);
    std::set<int> codes;
    for (int code : code_list(kind.codes)) {
        void *object = entry.make(code);
        if (object == nullptr) continue;
        entry.destroy(object);
        codes.insert(code);
    }
    return codes;
}

TEST(PredefinedLists, SortedByNameAndHoldEveryBuildableCode) {
    static_assert(sizeof(ka_predefined) == 68);
    for (const KindLists &kind : kKinds) {
        int count = -1;
        ka_predefined *list = kind.predefined(&count);
        ASSERT_NE(list, nullptr) << kind.kind;
        std::set<int> codes;
        for (int i = 0; i < count; ++i) {
            codes.insert(list[i].code);
            EXPECT_EQ(list[i].name, factory_name(list[i].code)) << kind.kind;
            if (i > 0) {
                EXPECT_LE(ka_strcasecmp(list[i - 1].name, list[i].name), 0)
                    << kind.kind << ": " << list[i - 1].name << " before "
                    << list[i].name;
            }
        }
        EXPECT_EQ(codes.size(), static_cast<size_t>(count)) << kind.kind;
        std::set<int> expected = buildable(kind);
        expected.insert(kind.extra.begin(), kind.extra.end());
        EXPECT_EQ(codes, expected) << kind.kind;
        ka_table_del(list);
    }
    EXPECT_EQ(ka_predefined_datum(nullptr), nullptr);
}

TEST(PredefinedLists, IncludeOverrideDefinitions) {
    veltra_test::OverrideHome home;
    home.use_environment();
    home.write("unit", "UNIT,209001,Rod,5.0292\nUNIT,9101,radian_mine,1\n");
    int count = 0;
    ka_predefined *list = ka_predefined_linear_unit(&count);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(count, 38);
    const ka_predefined *rod = std::find_if(
        list, list + count,
        [](const ka_predefined &record) { return record.code == 209001; });
    ASSERT_NE(rod, list + count);
    EXPECT_STREQ(rod->name, "Rod");
    ka_table_del(list);
    // Sorting ignores case: "radian_mine" sorts among the capitalised names.
    list = ka_predefined_angular_unit(&count);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(count, 10);
    for (int i = 1; i < count; ++i)
        EXPECT_LE(ka_strcasecmp(list[i - 1].name, list[i].name), 0);
    ka_table_del(list);
}

// The zone families by code range, as listed for the projected catalogue.
struct ZoneRange {
    int first;
    int last;
};
constexpr ZoneRange kZoneRanges[] = {
    {32601, 32660}, {32701, 32760}, {32201, 32260}, {32301, 32360},
    {26903, 26923}, {26703, 26722}, {25828, 25838}, {23028, 23038},
    {2058, 2061},   {2219, 2220},   {29118, 29122}, {29177, 29185},
    {20248, 20258}, {20348, 20358}, {28348, 28358}, {20137, 20138},
    {20538, 20539}, {20437, 20439}, {20822, 20824}, {21148, 21150},
    {21817, 21818}, {22032, 22033}, {22523, 22524}, {23239, 23240},
    {23846, 23853}, {23886, 23894}, {23946, 23948}, {24047, 24048},
    {24547, 24548}, {24718, 24721}, {26331, 26332}, {27038, 27040},
    {30729, 30732}, {24818, 24821}, {24877, 24880}, {28462, 28492},
    {28402, 28432}, {20062, 20092}, {20002, 20032}, {21473, 21483},
    {21413, 21423}, {2391, 2394},   {32074, 32077},
};

TEST(PredefinedLists, ProjectedSystemsHoldEveryZone) {
    int count = 0;
    ka_predefined *list = ka_predefined_projcs(&count);
    ASSERT_NE(list, nullptr);
    std::set<int> codes;
    for (int i = 0; i < count; ++i) codes.insert(list[i].code);
    int zones = 0;
    for (const ZoneRange &range : kZoneRanges)
        for (int code = range.first; code <= range.last; ++code, ++zones)
            EXPECT_TRUE(codes.count(code)) << code;
    EXPECT_EQ(zones, 576);
    for (int i = 1; i < count; ++i)
        EXPECT_LE(ka_strcasecmp(list[i - 1].name, list[i].name), 0);
    ka_table_del(list);
}

TEST(FactoryCode, FindsAnEqualEntryForEveryCatalogueObject) {
    for (const KindLists &kind : kKinds) {
        const KindEntry &entry = kind_entry(kind.code_kind);
        for (int code : buildable(kind)) {
            void *object = entry.make(code);
            const int found = ka_factory_code(object);
            void *again = ka_factory(found);
            EXPECT_NE(found, 0) << kind.kind << " " << code;
            EXPECT_TRUE(again != nullptr && entry.equal(object, again))
                << kind.kind << " " << code << " -> " << found;
            // The search walks codes upwards: an earlier equal entry may win
            // (aliases, duplicates), a later one never.
            if (entry.kind != CodeKind::kLinearUnit) {
                EXPECT_LE(found, code) << kind.kind;
            }
            if (again != nullptr) entry.destroy(again);
            entry.destroy(object);
        }
    }
}

TEST(FactoryCode, SpecialCases) {
    // Bursa-Wolf's macro code is 42607, its factory code 109607.
    ka_method *bursa_wolf = ka_factory_method(109607);
    ASSERT_NE(bursa_wolf, nullptr);
    EXPECT_EQ(ka_factory_code(bursa_wolf), 109607);
    ka_method_del(bursa_wolf);
    // Angular ranges are searched first, and "Gon" differs from "Grad" by
    // name only.
    ka_unit *gon = ka_unit_new("gon", 0.015707963267948967);
    EXPECT_EQ(ka_factory_code(gon), 9106);
    ka_unit_del(gon);
    ka_unit *cubit = ka_unit_new("Cubit", 0.4572);
    EXPECT_EQ(ka_factory_code(cubit), 0);
    ka_unit_del(cubit);
    EXPECT_EQ(ka_factory_code(nullptr), 0);
    const unsigned not_an_object[32] = {1u << 20};
    EXPECT_EQ(ka_factory_code(not_an_object), 0);

    for (int code : {32631, 28404, 2393, 32077}) {
        ka_projcs *projcs = ka_factory_projcs(code);
        EXPECT_EQ(ka_factory_code(projcs), code);
        ka_projcs_del(projcs);
    }
}

TEST(FactoryCode, FindsOverrideDefinitions) {
    veltra_test::OverrideHome home;
    home.use_environment();
    home.write("unit", "UNIT,209001,Rod,5.0292\n");
    ka_unit *rod = ka_unit_new("ROD", 5.0292);
    EXPECT_EQ(ka_factory_code(rod), 209001);
    ka_unit_del(rod);
}

}  // namespace
