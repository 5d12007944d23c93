// The generated catalogue tables against the EPSG records they were made
// from: names by the catalogue's naming rules, values to 1e-12 relative,
// and the rows the catalogue decides itself.
#include "catalogue_test.h"

namespace {

using namespace veltra::catalogue;
using catalogue_test::epsg;
using catalogue_test::Record;

#define REQUIRE_EPSG() \
    if (epsg("units.csv").by_code.empty()) GTEST_SKIP() << "no EPSG records in " VELTRA_SHARED_DIR

double number(const Record &r, const char *key) { return std::stod(r.at(key)); }
int integer(const Record &r, const char *key) { return std::stoi(r.at(key)); }
double epsg_factor(int uom) { return number(*epsg("units.csv").find(uom), "conv_factor"); }
bool close(double a, double b) { return std::fabs(a - b) <= 1e-12 * std::max(std::fabs(a), std::fabs(b)); }

// A catalogue name agrees with EPSG text when each of its words is found in
// the text, both taken as lower-case letters and digits.
bool names_agree(const std::string &name, const std::string &epsg_text) {
    std::string text, word;
    for (unsigned char c : epsg_text)
        if (std::isalnum(c)) text += static_cast<char>(std::tolower(c));
    for (unsigned char c : name + "_") {
        if (std::isalnum(c)) {
            word += static_cast<char>(std::tolower(c));
        } else if (c != '+' && !word.empty()) {
            if (text.find(word) == std::string::npos) return false;
            word.clear();
        }
    }
    return true;
}

TEST(CatalogueData, UnitsSpheroidsAndMeridians) {
    REQUIRE_EPSG();
    // Unit factors are EPSG's, but for five the catalogue keeps.
    const std::map<int, double> own_units = {
        {9005, 0.304797265}, {9031, 1.00000135965}, {9037, 0.914391795}, {9038, 20.11661949}, {9039, 0.2011661949}};
    for (const UnitRow &u : unit_rows()) {
        ASSERT_NE(epsg("units.csv").find(u.code), nullptr) << u.name;
        EXPECT_EQ(close(u.factor, epsg_factor(u.code)), !own_units.count(u.code)) << u.name;
        if (own_units.count(u.code)) { EXPECT_EQ(u.factor, own_units.at(u.code)) << u.name; }
    }
    EXPECT_EQ(find_row(unit_rows(), 9102)->factor, std::numbers::pi / 180);
    EXPECT_EQ(find_row(unit_rows(), 9106)->factor, std::numbers::pi / 200);  // Gon, as Grad (EPSG's)

    // Spheroids are EPSG's (library spheroids under EPSG's codes for them),
    // but for the axis and inverse flattening the catalogue keeps (the last
    // six: where EPSG has no record).
    const std::map<int, int> epsg_code = {
        {107001, 7025}, {107005, 7053}, {107006, 7056}, {107008, 7052}, {107036, 7050}};
    const std::map<int, std::pair<double, double>> own = {
        {7007, {6378293.639, 294.260676369}}, {7008, {6378206.4, 294.9786982}}, {7011, {6378249.2, 293.46602}},
        {7009, {6378450.047, 294.978684677}}, {7010, {6378300.79, 293.466234571}}, {7032, {6378136.2, 298.25722}},
        {7013, {6378249.145, 293.466307656}}, {7031, {6378137, 298.257222101}}, {7033, {6378136.3, 298.25722}},
        {7034, {6378249.138, 293.466307656}}, {7042, {6377299.36, 300.8017}}, {7023, {6378160, 298.25}},
        {7026, {6378135, 298.26}}, {107002, {6378166, 298.3}}, {107003, {6378150, 298.3}},
        {107004, {6378155, 298.3}}, {107007, {6376896, 302.78}}};
    for (const SpheroidRow &s : spheroid_rows()) {
        const bool kept = own.count(s.code) != 0;
        if (kept) { EXPECT_EQ(std::pair(s.axis, s.inverse_flattening), own.at(s.code)) << s.name; }
        const Record *r = epsg("ellipsoids.csv").find(epsg_code.count(s.code) ? epsg_code.at(s.code) : s.code);
        if (r == nullptr) { EXPECT_TRUE(kept) << s.name; continue; }
        const double a = number(*r, "semi_major_axis");
        const double b = r->at("semi_minor_axis").empty() ? a : number(*r, "semi_minor_axis");
        const double invf = r->at("inv_flattening").empty() ? (b == a ? 0 : a / (a - b)) : number(*r, "inv_flattening");
        const double axis = a * epsg_factor(integer(*r, "axis_uom_code"));
        EXPECT_EQ(close(s.axis, axis) && close(s.inverse_flattening, invf), !kept) << s.name;
    }

    // Meridians carry EPSG's names and the catalogue's longitudes to the last bit.
    const std::map<int, double> longitude = {
        {8901, 0.0}, {8902, -9.131906111111112}, {8903, 2.337229166666667}, {8904, -74.08091666666667},
        {8905, -3.687938888888889}, {8906, 12.452333333333332}, {8907, 7.439583333333333},
        {8908, 106.80771944444444}, {8909, -17.666666666666668}, {8910, 4.3679749999999995},
        {8911, 18.05827777777778}, {8912, 23.716337499999998}, {8913, 10.722916666666666}};
    for (const PrimemRow &p : primem_rows()) {
        EXPECT_EQ(p.longitude, longitude.at(p.code)) << p.name;
        EXPECT_TRUE(names_agree(p.name, epsg("prime_meridians.csv").find(p.code)->at("name"))) << p.name;
    }
}

std::string without(const char *prefix, const char *name) {
    return std::strncmp(name, prefix, std::strlen(prefix)) == 0 ? name + std::strlen(prefix) : name;
}

const GeogcsRow *geogcs_named(const std::string &name) {
    for (const GeogcsRow &g : geogcs_rows())
        if (name == g.name) return &g;
    return nullptr;
}

// The rows EPSG has no counterpart for: datums of a spheroid alone, the
// library's own codes, the grad systems and their degree twins.
TEST(CatalogueData, DatumsAndSystemsFollowTheCataloguesRules) {
    // Every catalogue name has a row (the generator keeps them sorted by
    // code), less the names without values: three datums, their systems and
    // fifteen transformations (docs/catalogue.md).
    EXPECT_EQ(std::tuple(datum_rows().size(), geogcs_rows().size(), geogtran_rows().size()),
              std::tuple(296u - 3, 318u - 3, 445u - 15));
    for (const DatumRow &d : datum_rows()) {
        if (d.code > 6045 && (d.code < 106001 || d.code > 106008)) continue;
        ASSERT_EQ(d.spheroid, d.code + 1000) << d.name;
        std::string name = std::string("D_") + find_row(spheroid_rows(), d.spheroid)->name;
        for (auto [from, to] : {std::pair{"Adjustment", "Adj"}, std::pair{"Definition", "Def"},
                                std::pair{"Everest_1830_Modified", "Everest_Modified"}})
            if (const std::size_t at = name.find(from); at != std::string::npos)
                name.replace(at, std::strlen(from), to);
        EXPECT_EQ(d.name, name);
    }

    int grads = 0;
    for (const GeogcsRow &g : geogcs_rows()) {
        const std::string name = g.name;
        const DatumRow *datum = find_row(datum_rows(), g.datum);
        const PrimemRow *primem = find_row(primem_rows(), g.primem);
        ASSERT_TRUE(datum && primem) << name;
        grads += g.unit == 9105;
        EXPECT_TRUE(g.unit == 9102 || g.unit == 9105) << name;
        // Off Greenwich, the meridian's name stands behind the datum's.
        EXPECT_EQ(name.ends_with(std::string("_") + primem->name), g.primem != 8901) << name;
        if (name.ends_with("_Degree")) {  // the degree twin of a grad system
            const GeogcsRow *grad = geogcs_named(name.substr(0, name.size() - 7));
            ASSERT_NE(grad, nullptr) << name;
            EXPECT_EQ(std::tuple(grad->unit, grad->datum, g.unit), std::tuple(9105, g.datum, 9102)) << name;
            EXPECT_EQ(g.code, g.code == 37223 ? 37223 : 104000 + g.datum - 6000) << name;
        } else if (g.code >= 37000 && g.code < 38000) {
            EXPECT_EQ(std::tuple(g.datum, g.primem, g.unit), std::tuple(g.code + 69000, 8901, 9102)) << name;
        }
        std::string expected = "GCS_" + without("D_", datum->name);  // of a spheroid alone
        if (const std::size_t def = expected.find("_Def_"); def != std::string::npos) expected.replace(def, 5, "_def_");
        if (g.code <= 4045) { EXPECT_EQ(std::pair(name, g.unit), std::pair(expected, 9102)); }
    }
    EXPECT_EQ(grads, 11);
    for (const char *name : {"GCS_Carthage", "GCS_Merchich", "GCS_Voirol_1875", "GCS_Voirol_Unifie_1960"})
        EXPECT_NE(geogcs_named(std::string(name) + "_Degree"), nullptr) << name;
    const GeogcsRow *assumed = find_row(geogcs_rows(), 104000);
    ASSERT_NE(assumed, nullptr);
    EXPECT_EQ(std::tuple(std::string(assumed->name), assumed->datum, assumed->primem, assumed->unit),
              std::tuple("GCS_Assumed_Geographic_1", 6267, 8901, 9102));
}

// EPSG ellipsoids the catalogue holds under codes of its own.
int catalogue_spheroid(int epsg_ellipsoid) {
    static const std::map<int, int> own = {
        {7046, 7006}, {7050, 107036}, {7052, 107008}, {7053, 107005}, {7056, 107006}};
    return own.count(epsg_ellipsoid) ? own.at(epsg_ellipsoid) : epsg_ellipsoid;
}

// The EPSG text of a datum: its name, the names and areas of its systems.
std::string datum_text(int datum_code) {
    std::string text = epsg("datums.csv").find(datum_code)->at("name");
    for (const auto &[code, r] : epsg("geographic_crs.csv").by_code)
        if (integer(r, "datum_code") == datum_code) text += " " + r.at("name") + " " + r.at("area");
    return text;
}

// Every system with an EPSG code, and its datum, against EPSG's records.
TEST(CatalogueData, DatumsAndSystemsAreEpsgs) {
    REQUIRE_EPSG();
    const std::set<std::string> own_grads = {"Carthage", "Merchich", "Voirol_1875"};  // on Greenwich
    std::set<std::string> disagreeing;
    for (const GeogcsRow &g : geogcs_rows()) {
        if (g.code >= 37000 || g.code <= 4045) continue;
        const std::string name = without("GCS_", g.name);
        const Record *r = epsg("geographic_crs.csv").find(g.code);
        // Withdrawn: Bern 1898, Voirol Unifie 1960 and its Paris variant.
        if (r == nullptr) { EXPECT_TRUE(g.code == 4217 || g.code == 4305 || g.code == 4812) << name; continue; }
        const int datum = integer(*r, "datum_code");
        const Record &d = *epsg("datums.csv").find(datum);
        if (!names_agree(name, r->at("name") + " " + r->at("area") + " " + datum_text(datum))) disagreeing.insert(name);
        const std::string datum_name = without("D_", find_row(datum_rows(), g.datum)->name);
        if (epsg("datums.csv").find(g.datum) && !names_agree(datum_name, datum_text(g.datum)))
            disagreeing.insert(datum_name);
        // SAD 1969 on the truncated GRS 1967 of EPSG's corrected datum 6618.
        EXPECT_EQ(find_row(datum_rows(), g.datum)->spheroid,
                  g.code == 4291 ? 107036 : catalogue_spheroid(integer(d, "ellipsoid_code"))) << name;
        // EPSG's meridian (Paris where EPSG now puts ATF on Paris RGS, 8914);
        // systems off Greenwich rest on the datum of Greenwich.
        const int primem = integer(d, "prime_meridian_code");
        EXPECT_EQ(g.primem, primem == 8914 ? 8903 : primem) << name;
        if (primem == 8901) { EXPECT_EQ(g.datum, datum) << name; }
        EXPECT_EQ(g.unit, own_grads.count(name) || integer(*r, "angular_uom_code") == 9105 ? 9105 : 9102) << name;
    }
    // Names the catalogue spells its own way: EPSG corrected the year, names
    // the island group rather than the station, spells the network out, or
    // abbreviates ("NAD83(HARN)", "Hartebeesthoek94", "WGS 72BE").
    const std::set<std::string> own_names = {
        "Dealul_Piscului_1933", "Graciosa_Base_SW_1948", "Sao_Braz", "Observ_Meteorologico_1939",
        "NAD_1927_Definition_1976", "Swiss_TRF_1995", "Hartebeesthoek_1994", "North_American_1983_CSRS98",
        "North_American_1983_HARN", "North_American_Michigan", "WGS_1972_BE"};
    EXPECT_EQ(disagreeing, own_names);
}

constexpr int kGeocentricTranslation = 9603, kPositionVector = 9606, kCoordinateFrame = 9607,
              kLongitudeRotation = 9601, kNadcon = 9613, kNtv2 = 9615, kHarn = 109613;

// The variant number of a name: "_<n>" in the catalogue, "(n)" in EPSG.
std::string catalogue_variant(const std::string &name) {
    const std::string tail = name.substr(name.find_last_of('_') + 1);
    return tail.size() < 4 && std::all_of(tail.begin(), tail.end(), ::isdigit) ? tail : "1";
}

std::string epsg_variant(const std::string &name) {
    const std::size_t open = name.find_last_of('(');
    return name.ends_with(')') ? name.substr(open + 1, name.size() - open - 2) : "1";
}

// Rows named by purpose or numbered by their publisher rather than by EPSG.
const std::set<std::string> kOwnNumbers = {
    "Datum_Lisboa_Hayford_To_WGS_1984_1", "Datum_Lisboa_Hayford_To_WGS_1984_2", "Datum_73_To_WGS_1984_1",
    "Datum_73_To_WGS_1984_2", "Porto_Santo_1936_To_WGS_1984_1", "Porto_Santo_1936_To_WGS_1984_2",
    "Sao_Braz_To_WGS_1984_1", "Sao_Braz_To_WGS_1984_2", "Graciosa_Base_SW_1948_To_WGS_1984_1",
    "Graciosa_Base_SW_1948_To_WGS_1984_2", "Observ_Meteorologico_1939_To_WGS_1984_1",
    "OSGB_1936_To_WGS_1984_Petroleum", "ED_1950_To_WGS_1984_PT3", "ED_1950_To_WGS_1984_PT7",
    "New_Zealand_1949_To_NZGD_2000_1_3PAR", "New_Zealand_1949_To_NZGD_2000_2_7PAR"};

// Rows by the catalogue's rules; those with an EPSG code carry EPSG's variant
// number, method and grid.
TEST(CatalogueData, TransformationRows) {
    REQUIRE_EPSG();
    std::map<int, int> by_method;
    std::map<std::string, std::tuple<int, int, int>> rows;
    for (const GeogtranRow &t : geogtran_rows()) {
        const GeogcsRow *source = find_row(geogcs_rows(), t.source), *target = find_row(geogcs_rows(), t.target);
        ASSERT_TRUE(source && target) << t.name;
        ++by_method[t.method];
        rows[t.name] = {t.source, t.target, t.method};
        const bool seven = t.method == kPositionVector || t.method == kCoordinateFrame;
        EXPECT_EQ(t.count, t.method == kGeocentricTranslation ? 3 : seven ? 7 : 0) << t.name;
        for (int i = 0; i < t.count; ++i) EXPECT_EQ(t.parameters[i].code, 100040 + i) << t.name;
        EXPECT_EQ(t.dataset != nullptr, t.method == kNadcon || t.method == kNtv2 || t.method == kHarn) << t.name;
        if (t.method == kLongitudeRotation) {  // to the same figure on Greenwich
            EXPECT_EQ(find_row(datum_rows(), source->datum)->spheroid, find_row(datum_rows(), target->datum)->spheroid)
                << t.name;
            EXPECT_EQ(std::pair(source->primem != 8901, target->primem), std::pair(true, 8901)) << t.name;
        }
        const Record *r = nullptr;
        for (const char *kind : {"helmert", "other", "grid"})
            if (r == nullptr && t.code <= 1999) r = epsg(std::string(kind) + "_transformations.csv").find(t.code);
        if (r == nullptr) continue;
        if (t.count > 0 && !kOwnNumbers.count(t.name)) {
            EXPECT_EQ(catalogue_variant(t.name), epsg_variant(r->at("name"))) << t.name << " / " << r->at("name");
        }
        const int method = t.method == kNtv2 ? kNtv2 : t.method == kHarn ? kNadcon : t.method;  // EPSG's
        if (t.count == 0) { EXPECT_EQ(integer(*r, "method_code"), method) << t.name; }
        if (t.dataset != nullptr) {
            const std::string grid = r->at("grid_name");
            EXPECT_EQ(grid.substr(0, grid.find('.')), t.dataset) << t.name;
            EXPECT_EQ(t.method == kHarn, grid.find("hpgn") != std::string::npos) << t.name;
        }
    }
    // The catalogue's counts, less the rows without values: twelve geocentric
    // translations, two position-vector rows and one NTv2 grid.
    const std::map<int, int> expected = {{kGeocentricTranslation, 288 - 12}, {kPositionVector, 28 - 2},
                                         {kCoordinateFrame, 37}, {kLongitudeRotation, 17}, {kHarn, 46},
                                         {kNadcon, 7}, {kNtv2, 22 - 1}};
    EXPECT_EQ(by_method, expected);
    EXPECT_EQ(rows["Belge_1950_Brussels_To_Belge_1950"], std::tuple(4809, 4215, kLongitudeRotation));
    EXPECT_EQ(rows["Tananarive_1925_Paris_To_Tananarive_1925"], std::tuple(4810, 4297, kLongitudeRotation));
    EXPECT_EQ(rows["Hjorsey_1955_To_WGS_1984"], std::tuple(37204, 4326, kGeocentricTranslation));
}

int epsg_system_spheroid(int crs) {
    const Record *r = epsg("geographic_crs.csv").find(crs);
    return r ? catalogue_spheroid(integer(*epsg("datums.csv").find(integer(*r, "datum_code")), "ellipsoid_code")) : 0;
}

// The values of an EPSG equation record in the catalogue's units: metres,
// arc-seconds (exact factors for EPSG's rounded arc-second, milli-arc-second
// and centesimal-second units) and ppm.
std::vector<double> epsg_values(const Record &r) {
    std::vector<double> values;
    for (const char *t : {"tx", "ty", "tz"})
        values.push_back(number(r, t) * epsg_factor(integer(r, "translation_uom_code")));
    if (r.at("rx").empty()) return values;
    const int uom = integer(r, "rotation_uom_code");
    const double to_arcsec = uom == 9104 ? 1.0 : uom == 1031 ? 1e-3 : uom == 9113 ? 0.324
                                                                  : epsg_factor(uom) * 648000 / std::numbers::pi;
    for (const char *k : {"rx", "ry", "rz"}) values.push_back(number(r, k) * to_arcsec);
    values.push_back(number(r, "scale_difference") * epsg_factor(integer(r, "scale_difference_uom_code")) * 1e6);
    return values;
}

// A translation-only record may stand as a seven-parameter row with zero
// rotations and scale; coordinate-frame rotations are position-vector
// rotations of the opposite sign.
bool same_values(const GeogtranRow &t, std::vector<double> p, int method) {
    if (p.size() == 3 && t.count == 7) p.insert(p.end(), {0.0, 0.0, 0.0, 0.0});
    if (p.size() == 7 && method != t.method)
        for (int i = 3; i < 6; ++i) p[i] = -p[i];
    auto same = [](double v, const TransformParameter &q) { return close(q.value, v); };
    return static_cast<int>(p.size()) == t.count && std::equal(p.begin(), p.end(), t.parameters, same);
}

int system_spheroid(int gcs) { return find_row(datum_rows(), find_row(geogcs_rows(), gcs)->datum)->spheroid; }

// Each equation row is an EPSG record of the same values between systems on
// the same figures: the record of the row's own code, or, when that one is
// deprecated, its renewal under the same name.
TEST(CatalogueData, EquationRowsAreEpsgRecords) {
    REQUIRE_EPSG();
    std::map<int, std::tuple<int, int, int, std::vector<double>>> equations;  // method, figures, values
    for (const auto &[code, r] : epsg("helmert_transformations.csv").by_code) {
        const int method = integer(r, "method_code");
        if (method != kGeocentricTranslation && method != kPositionVector && method != kCoordinateFrame) continue;
        equations[code] = {method, epsg_system_spheroid(integer(r, "source_crs_code")),
                           epsg_system_spheroid(integer(r, "target_crs_code")), epsg_values(r)};
    }
    for (const GeogtranRow &t : geogtran_rows()) {
        if (t.count == 0) continue;
        std::vector<int> found;
        for (const auto &[code, e] : equations)
            if (same_values(t, std::get<3>(e), std::get<0>(e)) && std::get<1>(e) == system_spheroid(t.source) &&
                std::get<2>(e) == system_spheroid(t.target))
                found.push_back(code);
        EXPECT_FALSE(found.empty()) << t.name;
        const Record *own = epsg("helmert_transformations.csv").find(t.code);
        if (own == nullptr || std::count(found.begin(), found.end(), t.code)) continue;
        EXPECT_EQ(own->at("deprecated"), "1") << t.name;
        EXPECT_TRUE(std::any_of(found.begin(), found.end(), [&](int c) {
            return epsg("helmert_transformations.csv").find(c)->at("name") == own->at("name");
        })) << t.name;
    }
}

}  // namespace
