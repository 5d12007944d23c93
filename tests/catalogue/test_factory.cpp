// The factory: dispatch of codes by range, the values of built objects,
// code lists, predefined lists and the search of an object's code.
#include "catalogue_test.h"

namespace {

using namespace veltra::catalogue;
using catalogue_test::entry_of;
using catalogue_test::name_of;

// The name of what ka_factory builds for a code, "(null)" for nothing.
std::string factory_name(int code) {
    void *object = ka_factory(code);
    const std::string name = name_of(object);
    if (object != nullptr) entry_of(object)->destroy(object);
    return name;
}

// Each kind's code ranges, in the order ka_factory tests the kinds.
const std::vector<CodeRange> kRanges[] = {
    {{9000, 9099}, {209000, 209099}},                                    // linear unit
    {{9100, 9199}, {209100, 209199}},                                    // angular unit
    {{7000, 7999}, {107000, 107999}, {207000, 207999}},                  // spheroid
    {{8900, 8999}, {208900, 208999}},                                    // prime meridian
    {{6000, 6999}, {106000, 106999}, {206000, 206999}},                  // datum
    {{43000, 52999}},                                                    // projection
    {{9600, 9699}, {109600, 109699}},                                    // method
    {{100000, 100099}},                                                  // parameter
    {{4000, 4999}, {37000, 37999}, {104000, 104999}, {204000, 204999}},  // geographic CS
    {{2000, 3999}, {20000, 32799}, {53000, 65799}, {102000, 103999}, {202000, 203999}},
    {{1000, 1999}, {8000, 8899}, {108000, 108899}, {208000, 208899}}};   // transformation

TEST(FactoryDispatch, EachRangeBelongsToItsKindAlone) {
    const auto entries = kind_entries();
    ASSERT_EQ(entries.size(), std::size(kRanges));
    for (std::size_t k = 0; k < entries.size(); ++k) {
        ASSERT_EQ(entries[k].ranges.size(), kRanges[k].size()) << k;
        for (const CodeRange &range : kRanges[k]) {
            for (int code : {range.low, range.high})
                for (const KindEntry &other : entries) EXPECT_EQ(in_ranges(other, code), &other == &entries[k]) << code;
            EXPECT_FALSE(in_ranges(entries[k], range.low - 1) || in_ranges(entries[k], range.high + 1)) << range.low;
        }
    }
}

TEST(FactoryDispatch, CodesGoToTheFactoryOfTheirRange) {
    const std::pair<int, const char *> cases[] = {
        {9001, "Meter"}, {9101, "Radian"}, {7030, "WGS_1984"}, {8903, "Paris"}, {6326, "D_WGS_1984"},
        {43006, "Transverse_Mercator"}, {9603, "Geocentric_Translation"}, {109607, "Bursa_Wolf"},
        {100001, "False_Easting"}, {4326, "GCS_WGS_1984"}, {32631, "WGS_1984_UTM_Zone_31N"},
        {1951, "Hjorsey_1955_To_WGS_1984"},
        // In no range; a parameter code without a name; unassigned codes;
        // the Bursa-Wolf code of the macro table, which is in no range.
        {0, "(null)"}, {-9001, "(null)"}, {99999, "(null)"}, {100000, "(null)"}, {9004, "(null)"},
        {32761, "(null)"}, {42607, "(null)"}};
    for (const auto &[code, name] : cases) EXPECT_EQ(factory_name(code), name) << code;
}

// Values that go through the factory's own conversions and assembly.
TEST(FactoryObjects, CarryTheCatalogueValues) {
    ka_spheroid *wgs84 = ka_factory_spheroid(7030), *sphere = ka_factory_spheroid(7035);
    ka_geogtran *hjorsey = ka_factory_geogtran(1951);
    EXPECT_EQ(ka_spheroid_flattening(wgs84), 1 / 298.257223563);  // 1 / the inverse flattening
    EXPECT_EQ(std::pair(ka_spheroid_axis(sphere), ka_spheroid_flattening(sphere)), std::pair(6371000.0, 0.0));
    const std::vector<double> values = catalogue_test::slot_values(hjorsey, ka_geogtran_parameters);
    EXPECT_EQ(std::tuple(values[0], values[1], values[2]), std::tuple(-73.0, 46.0, -86.0));
    ka_spheroid_del(wgs84);
    ka_spheroid_del(sphere);
    ka_geogtran_del(hjorsey);
}

struct KindLists {
    int *(*codes)(int *);
    ka_predefined *(*predefined)(int *);
    CodeKind kind;
    std::size_t size;  // catalogue size
    int first;         // the code of the first macro name
    // Built codes in no code list: Bursa-Wolf, whose macro code is 42607, and
    // NTF_To_RGF_1993_1, whose macro name has the West Virginia HARN code.
    std::set<int> extra = {};

    std::vector<int> list() const {
        int count = -1, *codes = this->codes(&count);
        std::vector<int> out(codes, codes + std::max(count, 0));
        ka_factory_codelist_del(codes);
        return out;
    }
    // The listed codes whose factory builds an object, and the extras.
    std::set<int> buildable() const {
        std::set<int> built = extra;
        for (int code : list())
            if (void *object = kind_entry(kind).make(code)) { built.insert(code); kind_entry(kind).destroy(object); }
        return built;
    }
};

const KindLists kKinds[] = {
    {ka_factory_linear_unit_codelist, ka_predefined_linear_unit, CodeKind::kLinearUnit, 37, 9052},
    {ka_factory_angular_unit_codelist, ka_predefined_angular_unit, CodeKind::kAngularUnit, 10, 9102},
    {ka_factory_spheroid_codelist, ka_predefined_spheroid, CodeKind::kSpheroid, 49, 7001},
    {ka_factory_primem_codelist, ka_predefined_primem, CodeKind::kPrimem, 13, 8912},
    {ka_factory_datum_codelist, ka_predefined_datum, CodeKind::kDatum, 297, 6143},
    {ka_factory_geogcs_codelist, ka_predefined_geogcs, CodeKind::kGeogcs, 320, 4143},
    {ka_factory_projection_codelist, ka_predefined_projection, CodeKind::kProjection, 51, 43043},
    {ka_factory_method_codelist, ka_predefined_method, CodeKind::kMethod, 10, 42607, {109607}},
    {ka_factory_parameter_codelist, ka_predefined_parameter, CodeKind::kParameter, 29, 100004},
    {ka_factory_geogtran_codelist, ka_predefined_geogtran, CodeKind::kGeogtran, 452, 8414, {108024}}};

// The codes of a predefined list, checked to be sorted by name ignoring case
// and to carry the factory's names.
std::set<int> predefined_codes(ka_predefined *(*predefined)(int *)) {
    int count = -1;
    ka_predefined *list = predefined(&count);
    std::set<int> codes;
    for (int i = 0; i < count; ++i) {
        codes.insert(list[i].code);
        EXPECT_EQ(list[i].name, factory_name(list[i].code));
        if (i > 0) { EXPECT_LE(ka_strcasecmp(list[i - 1].name, list[i].name), 0) << list[i].name; }
    }
    EXPECT_EQ(codes.size(), static_cast<std::size_t>(count));
    ka_table_del(list);
    return codes;
}

// Code lists hold the catalogue in macro-name order; predefined lists hold
// every code built, sorted by name.
TEST(CodeAndPredefinedLists, HoldTheCatalogue) {
    static_assert(sizeof(ka_predefined) == 68);
    for (const KindLists &kind : kKinds) {
        const std::vector<int> codes = kind.list();
        ASSERT_EQ(codes.size(), kind.size) << kind.first;
        EXPECT_EQ(codes[0], kind.first);
        for (int code : codes) EXPECT_TRUE(in_ranges(kind_entry(kind.kind), code) || code == 42607) << code;
        EXPECT_EQ(predefined_codes(kind.predefined), kind.buildable()) << kind.first;
    }
    EXPECT_EQ(predefined_codes(ka_predefined_projcs).size(), 576u);  // the zones
    EXPECT_EQ(ka_factory_datum_codelist(nullptr), nullptr);
    EXPECT_EQ(ka_predefined_datum(nullptr), nullptr);
}

// Override definitions are entries for the predefined lists and the search
// (the unit's factor read from the file makes it equal; the first of two
// equal entries is found).
TEST(CodeAndPredefinedLists, IncludeOverrideDefinitions) {
    catalogue_test::OverrideHome home;
    home.use_environment();
    home.write("unit", "UNIT,209001,Rod,5.0292\nUNIT,209002,Rod,5.0292\n");
    EXPECT_EQ(predefined_codes(ka_predefined_linear_unit).count(209001), 1u);
    ka_unit *rod = ka_unit_new("ROD", 5.0292);
    EXPECT_EQ(ka_factory_code(rod), 209001);
    ka_unit_del(rod);
}

TEST(FactoryCode, FindsAnEqualEntryForEveryCatalogueObject) {
    for (const KindLists &kind : kKinds) {
        const KindEntry &entry = kind_entry(kind.kind);
        for (int code : kind.buildable()) {
            void *object = entry.make(code);
            const int found = ka_factory_code(object);
            void *again = ka_factory(found);
            EXPECT_TRUE(again != nullptr && entry.equal(object, again)) << code;
            EXPECT_LE(found, code);  // the search walks upwards: an earlier equal entry may win
            if (again != nullptr) entry_of(again)->destroy(again);
            entry.destroy(object);
        }
    }
    for (int code : {32631, 28404}) {
        ka_projcs *projcs = ka_factory_projcs(code);
        EXPECT_EQ(ka_factory_code(projcs), code);
        ka_projcs_del(projcs);
    }
}

TEST(FactoryCode, QuirksAndFailures) {
    ka_method *bursa_wolf = ka_factory_method(109607);
    ka_unit *gon = ka_unit_new("gon", 0.015707963267948967), *cubit = ka_unit_new("Cubit", 0.4572);
    const unsigned not_an_object[32] = {1u << 20};
    // Bursa-Wolf's macro code is 42607, its factory code 109607; names
    // compare ignoring case ("Gon" has Grad's factor).
    const std::pair<const void *, int> cases[] = {
        {bursa_wolf, 109607}, {gon, 9106}, {cubit, 0}, {nullptr, 0}, {not_an_object, 0}};
    for (const auto &[object, code] : cases) EXPECT_EQ(ka_factory_code(object), code) << code;
    ka_method_del(bursa_wolf);
    for (ka_unit *unit : {gon, cubit}) ka_unit_del(unit);
}

}  // namespace
