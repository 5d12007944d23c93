// The generated catalogue tables against the EPSG records they were made
// from: names by the catalogue's naming rules (re-derived here), values to
// 1e-12 relative, table sizes, order and the rows the catalogue fixes.
#include "catalogue/tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstring>
#include <fstream>
#include <map>
#include <numbers>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

using namespace veltra::catalogue;

// ---------------------------------------------------------------------------
// EPSG records

using Record = std::map<std::string, std::string>;

std::vector<std::string> split_csv_line(const std::string &line) {
    std::vector<std::string> fields(1);
    bool quoted = false;
    for (size_t i = 0; i < line.size(); ++i) {
        char c = line[i];
        if (quoted && c == '"' && i + 1 < line.size() && line[i + 1] == '"') {
            fields.back() += '"';
            ++i;
        } else if (c == '"') {
            quoted = !quoted;
        } else if (c == ',' && !quoted) {
            fields.emplace_back();
        } else if (c != '\r') {
            fields.back() += c;
        }
    }
    return fields;
}

struct Table {
    std::map<int, Record> by_code;
    bool loaded = false;

    const Record *find(int code) const {
        auto it = by_code.find(code);
        return it == by_code.end() ? nullptr : &it->second;
    }
};

Table read_table(const std::string &name) {
    Table table;
    std::ifstream in(std::string(VELTRA_SHARED_DIR) + "/epsg/" + name);
    std::string line;
    if (!std::getline(in, line)) return table;
    std::vector<std::string> header = split_csv_line(line);
    while (std::getline(in, line)) {
        std::vector<std::string> fields = split_csv_line(line);
        Record record;
        for (size_t i = 0; i < header.size() && i < fields.size(); ++i)
            record[header[i]] = fields[i];
        table.by_code[std::stoi(record["code"])] = record;
    }
    table.loaded = true;
    return table;
}

struct Epsg {
    Table units = read_table("units.csv");
    Table ellipsoids = read_table("ellipsoids.csv");
    Table primems = read_table("prime_meridians.csv");
    Table datums = read_table("datums.csv");
    Table geogcs = read_table("geographic_crs.csv");
    Table helmert = read_table("helmert_transformations.csv");
    Table other = read_table("other_transformations.csv");
    Table grids = read_table("grid_transformations.csv");

    bool loaded() const {
        return units.loaded && ellipsoids.loaded && primems.loaded && datums.loaded &&
               geogcs.loaded && helmert.loaded && other.loaded && grids.loaded;
    }
};

const Epsg &epsg() {
    static const Epsg records;
    return records;
}

#define REQUIRE_EPSG()                                                          \
    if (!epsg().loaded())                                                       \
    GTEST_SKIP() << "EPSG records not found in " VELTRA_SHARED_DIR "/epsg; "    \
                    "the catalogue is not checked against them"

int field_int(const Record &r, const char *key) { return std::stoi(r.at(key)); }
double field(const Record &r, const char *key) { return std::stod(r.at(key)); }
bool deprecated(const Record &r) { return r.at("deprecated") == "1"; }

bool close(double a, double b, double relative = 1e-12) {
    if (a == b) return true;
    return std::fabs(a - b) <= relative * std::max(std::fabs(a), std::fabs(b));
}

// ---------------------------------------------------------------------------
// Names.  A catalogue name agrees with an EPSG object when every word of it
// is found in the EPSG names of the object (and of its area of use): a word
// as it stands, a year also by its last two digits ("RT_1990" - "RT90"), and
// a run of words also by its initials ("North_American" - "NAD27").

std::string squash(const std::string &text) {
    std::string out;
    for (unsigned char c : text)
        if (std::isalnum(c)) out += static_cast<char>(std::tolower(c));
    return out;
}

std::vector<std::string> words(const std::string &name) {
    std::vector<std::string> out;
    std::string word;
    for (unsigned char c : name) {
        if (std::isalnum(c) || c == '+') {
            word += static_cast<char>(std::tolower(c));
        } else if (!word.empty()) {
            out.push_back(word);
            word.clear();
        }
    }
    if (!word.empty()) out.push_back(word);
    return out;
}

bool is_year(const std::string &w) {
    return w.size() == 4 && std::all_of(w.begin(), w.end(), ::isdigit) && w[0] == '1';
}

bool names_agree(const std::string &catalogue_name, const std::string &epsg_text) {
    std::string blob = squash(epsg_text);
    std::vector<std::string> ws = words(catalogue_name);
    size_t i = 0;
    while (i < ws.size()) {
        const std::string &w = ws[i];
        std::string bare = w;
        bare.erase(std::remove(bare.begin(), bare.end(), '+'), bare.end());
        if (blob.find(bare) != std::string::npos ||
            (is_year(w) && blob.find(w.substr(2)) != std::string::npos)) {
            ++i;
            continue;
        }
        // A run of two or more alphabetic words by its initials.
        bool found = false;
        for (size_t end = ws.size(); end >= i + 2 && !found; --end) {
            std::string initials;
            bool alphabetic = true;
            for (size_t k = i; k < end; ++k) {
                alphabetic = alphabetic && std::isalpha(static_cast<unsigned char>(ws[k][0]));
                initials += ws[k][0];
            }
            if (alphabetic && blob.find(initials) != std::string::npos) {
                i = end;
                found = true;
            }
        }
        if (!found) return false;
    }
    return true;
}

// The EPSG text of a datum: its name, the names and areas of the geographic
// CRSs on it.
std::string datum_text(int datum_code) {
    std::string text;
    if (const Record *d = epsg().datums.find(datum_code)) text = d->at("name");
    for (const auto &[code, r] : epsg().geogcs.by_code)
        if (field_int(r, "datum_code") == datum_code)
            text += " " + r.at("name") + " " + r.at("area");
    return text;
}

std::string without_prefix(const char *name, const char *prefix) {
    std::string s(name);
    return s.rfind(prefix, 0) == 0 ? s.substr(std::strlen(prefix)) : s;
}

// ---------------------------------------------------------------------------
// Sizes and order

TEST(CatalogueTables, SizesOfTheMacroTablesAreTheCatalogues) {
    EXPECT_EQ(unit_macros().size(), 47u);
    EXPECT_EQ(spheroid_macros().size(), 49u);
    EXPECT_EQ(primem_macros().size(), 13u);
    EXPECT_EQ(datum_macros().size(), 297u);
    EXPECT_EQ(geogcs_macros().size(), 320u);
    EXPECT_EQ(geogtran_macros().size(), 452u);
    EXPECT_EQ(method_macros().size(), 10u);
    EXPECT_EQ(parameter_macros().size(), 29u);
    EXPECT_EQ(projection_macros().size(), 51u);
    // Rows: every name, less those without values (three datums, their
    // systems, fifteen transformations; see docs/catalogue.md).
    EXPECT_EQ(unit_rows().size(), 47u);
    EXPECT_EQ(spheroid_rows().size(), 49u);
    EXPECT_EQ(primem_rows().size(), 13u);
    EXPECT_EQ(datum_rows().size(), 296u - 3u);
    EXPECT_EQ(geogcs_rows().size(), 318u - 3u);
    EXPECT_EQ(geogtran_rows().size(), 445u - 15u);
}

template <class Row>
void expect_sorted_by_code(std::span<const Row> rows, const char *kind) {
    for (size_t i = 1; i < rows.size(); ++i)
        EXPECT_LT(rows[i - 1].code, rows[i].code) << kind << " row " << i;
    for (const Row &row : rows) {
        EXPECT_EQ(find_row(rows, row.code), &row) << kind << " " << row.code;
        EXPECT_LT(std::strlen(row.name), 64u) << row.name;
    }
}

TEST(CatalogueTables, RowsAreSortedByUniqueCode) {
    expect_sorted_by_code(unit_rows(), "unit");
    expect_sorted_by_code(spheroid_rows(), "spheroid");
    expect_sorted_by_code(primem_rows(), "primem");
    expect_sorted_by_code(datum_rows(), "datum");
    expect_sorted_by_code(geogcs_rows(), "geogcs");
    expect_sorted_by_code(geogtran_rows(), "geogtran");
    EXPECT_EQ(find_row(unit_rows(), 9004), nullptr);
    EXPECT_EQ(find_row(datum_rows(), 6030), nullptr);
}

struct MacroTable {
    const char *prefix;
    std::span<const MacroRow> rows;
    const char *first;
    int first_code;
};

TEST(CatalogueTables, MacroTablesAreInByteOrderWithTheirFirstRows) {
    const MacroTable tables[] = {
        {"KA_S_", spheroid_macros(), "KA_S_AIRY_1830", 7001},
        {"KA_PAR_", parameter_macros(), "KA_PAR_AZIMUTH", 100004},
        {"KA_GCS_", geogcs_macros(), "KA_GCS_ABIDJAN_1987", 4143},
        {"KA_GT_", geogtran_macros(), "KA_GT_ABIDJAN_1987_TO_WGS_1984", 8414},
        {"KA_D_", datum_macros(), "KA_D_ABIDJAN_1987", 6143},
        {"KA_PM_", primem_macros(), "KA_PM_ATHENS", 8912},
        {"KA_U_", unit_macros(), "KA_U_CHAIN_BENOIT_A", 9052},
        {"KA_MTH_", method_macros(), "KA_MTH_BURSA_WOLF", 42607},
        {"KA_PRJ_", projection_macros(), "KA_PRJ_AITOFF", 43043},
    };
    for (const MacroTable &t : tables) {
        ASSERT_FALSE(t.rows.empty()) << t.prefix;
        EXPECT_STREQ(t.rows[0].name, t.first);
        EXPECT_EQ(t.rows[0].code, t.first_code) << t.first;
        std::set<std::string> seen;
        for (size_t i = 0; i < t.rows.size(); ++i) {
            const char *name = t.rows[i].name;
            EXPECT_EQ(std::strncmp(name, t.prefix, std::strlen(t.prefix)), 0) << name;
            EXPECT_TRUE(seen.insert(name).second) << "twice: " << name;
            for (const char *c = name; *c; ++c)
                EXPECT_TRUE(std::isupper(static_cast<unsigned char>(*c)) ||
                            std::isdigit(static_cast<unsigned char>(*c)) || *c == '_')
                    << name;
            if (i == 0) continue;
            const char *previous = t.rows[i - 1].name;
            // The one row the catalogue keeps out of place.
            bool misplaced = !std::strcmp(previous, "KA_GT_ED_1987_TO_WGS_1984_1") ||
                             !std::strcmp(name, "KA_GT_ED_1987_TO_WGS_1984_1");
            if (!misplaced) {
                EXPECT_LT(std::strcmp(previous, name), 0) << previous << " " << name;
            }
        }
    }
    // The misplaced row stands right before KA_GT_ED_1950_TO_WGS_1984_PT3.
    auto gt = geogtran_macros();
    auto it = std::find_if(gt.begin(), gt.end(), [](const MacroRow &r) {
        return !std::strcmp(r.name, "KA_GT_ED_1987_TO_WGS_1984_1");
    });
    ASSERT_NE(it, gt.end());
    ASSERT_NE(it + 1, gt.end());
    EXPECT_STREQ((it + 1)->name, "KA_GT_ED_1950_TO_WGS_1984_PT3");
}

int macro_code(std::span<const MacroRow> table, const char *name) {
    for (const MacroRow &row : table)
        if (!std::strcmp(row.name, name)) return row.code;
    return 0;
}

TEST(CatalogueTables, AliasesShareTheirCodes) {
    EXPECT_EQ(macro_code(geogcs_macros(), "KA_GCS_DABOLA"),
              macro_code(geogcs_macros(), "KA_GCS_DABOLA_1981"));
    EXPECT_EQ(macro_code(geogcs_macros(), "KA_GCS_QATAR"),
              macro_code(geogcs_macros(), "KA_GCS_QATAR_1974"));
    EXPECT_EQ(macro_code(datum_macros(), "KA_D_DABOLA"),
              macro_code(datum_macros(), "KA_D_DABOLA_1981"));
    const std::pair<const char *, const char *> gt_aliases[] = {
        {"KA_GT_AGD_1966_TO_GDA_1994_10", "KA_GT_AGD_1966_TO_GDA_1994_NTV2_SOUTHEAST"},
        {"KA_GT_AGD_1984_TO_GDA_1994_4", "KA_GT_AGD_1984_TO_GDA_1994_NTV2_WESTERN"},
        {"KA_GT_ATS_1977_TO_NAD_1983_CSRS98_2", "KA_GT_ATS_1977_TO_NAD_1983_CSRS98_NTV2_PEI"},
        {"KA_GT_NZGD_1949_TO_NZGD_2000_1", "KA_GT_NZGD_1949_TO_NZGD_2000_3PAR"},
        {"KA_GT_NZGD_1949_TO_NZGD_2000_2", "KA_GT_NZGD_1949_TO_NZGD_2000_7PAR"},
        {"KA_GT_NZGD_1949_TO_NZGD_2000_3", "KA_GT_NZGD_1949_TO_NZGD_2000_NTV2"},
        {"KA_GT_QATAR_1974_TO_WGS_1984_1", "KA_GT_QATAR_TO_WGS_1984"},
        {"KA_GT_NAD_1983_TO_HARN_WV", "KA_GT_NTF_TO_RGF_1993_1"},
    };
    for (auto [a, b] : gt_aliases) {
        EXPECT_NE(macro_code(geogtran_macros(), a), 0) << a;
        EXPECT_EQ(macro_code(geogtran_macros(), a), macro_code(geogtran_macros(), b)) << b;
    }
    const GeogtranRow *wv = find_row(geogtran_rows(), macro_code(geogtran_macros(),
                                                                 "KA_GT_NAD_1983_TO_HARN_WV"));
    ASSERT_NE(wv, nullptr);
    EXPECT_STREQ(wv->name, "NAD_1983_To_HARN_West_Virginia");
    EXPECT_EQ(macro_code(method_macros(), "KA_MTH_BURSA_WOLF"), 42607);
    EXPECT_EQ(macro_code(method_macros(), "KA_MTH_HARN"), 109613);
    EXPECT_EQ(macro_code(unit_macros(), "KA_U_MILE_STATUTE"), 9093);
    EXPECT_EQ(macro_code(spheroid_macros(), "KA_S_GRS_1967_TRUNC"), 107036);
    EXPECT_EQ(macro_code(spheroid_macros(), "KA_S_CLARKE_1866_MICH"), 7009);
    EXPECT_EQ(macro_code(spheroid_macros(), "KA_S_EVEREST_ADJ_1937"), 7015);
    EXPECT_EQ(macro_code(geogcs_macros(), "KA_GCS_WGS_1984"), 4326);
    EXPECT_EQ(macro_code(projection_macros(), "KA_PRJ_MERCATOR"), 43004);
    EXPECT_EQ(macro_code(parameter_macros(), "KA_PAR_SCALE_DIFFERENCE"), 100046);
}

// Every code of a kind's macro table has a row, except the codes of the
// names without values; every row has a macro name, except the NTF to
// RGF 1993 transformation whose name carries another code.
template <class Row>
std::set<int> codes_without_rows(std::span<const MacroRow> macros, std::span<const Row> rows) {
    std::set<int> missing;
    for (const MacroRow &m : macros)
        if (!find_row(rows, m.code)) missing.insert(m.code);
    return missing;
}

TEST(CatalogueTables, MacroCodesAndRowsCorrespond) {
    EXPECT_TRUE(codes_without_rows(unit_macros(), unit_rows()).empty());
    EXPECT_TRUE(codes_without_rows(spheroid_macros(), spheroid_rows()).empty());
    EXPECT_TRUE(codes_without_rows(primem_macros(), primem_rows()).empty());
    EXPECT_EQ(codes_without_rows(datum_macros(), datum_rows()).size(), 3u);
    EXPECT_EQ(codes_without_rows(geogcs_macros(), geogcs_rows()).size(), 3u);
    EXPECT_EQ(codes_without_rows(geogtran_macros(), geogtran_rows()).size(), 15u);
    std::set<int> named;
    for (const MacroRow &m : geogtran_macros()) named.insert(m.code);
    int unnamed = 0;
    for (const GeogtranRow &row : geogtran_rows())
        if (!named.count(row.code)) {
            ++unnamed;
            EXPECT_STREQ(row.name, "NTF_To_RGF_1993_1");
        }
    EXPECT_EQ(unnamed, 1);
}

// ---------------------------------------------------------------------------
// Units, spheroids, prime meridians: the catalogue's values, exactly

TEST(CatalogueUnits, FactorsAreTheCataloguesAndEpsgsWhereTheyAgree) {
    REQUIRE_EPSG();
    // The catalogue's factors that differ from EPSG's (documented).
    const std::set<int> kept = {9005, 9031, 9037, 9038, 9039};
    for (const UnitRow &u : unit_rows()) {
        const Record *r = epsg().units.find(u.code);
        ASSERT_NE(r, nullptr) << u.code;
        bool agrees = close(u.factor, field(*r, "conv_factor"));
        EXPECT_EQ(agrees, !kept.count(u.code)) << u.code << " " << u.name;
    }
    const UnitRow *degree = find_row(unit_rows(), 9102);
    ASSERT_NE(degree, nullptr);
    EXPECT_EQ(degree->factor, std::numbers::pi / 180);
    EXPECT_STREQ(degree->name, "Degree");
    const UnitRow *grad = find_row(unit_rows(), 9105);
    const UnitRow *gon = find_row(unit_rows(), 9106);
    ASSERT_TRUE(grad && gon);
    EXPECT_EQ(grad->factor, gon->factor);
    EXPECT_EQ(grad->factor, std::numbers::pi / 200);
    EXPECT_EQ(find_row(unit_rows(), 9001)->factor, 1.0);
    // The US survey foot, 1200/3937 m (the catalogue's double is one unit
    // in the last place above the nearest).
    EXPECT_NEAR(find_row(unit_rows(), 9003)->factor, 1200.0 / 3937.0, 1e-16);
    int linear = 0, angular = 0;
    for (const UnitRow &u : unit_rows()) (u.code < 9100 ? linear : angular)++;
    EXPECT_EQ(linear, 37);
    EXPECT_EQ(angular, 10);
}

// Axis and inverse flattening of an EPSG ellipsoid in metres.
std::pair<double, double> epsg_ellipsoid(int code) {
    const Record &r = *epsg().ellipsoids.find(code);
    double to_metres = field(*epsg().units.find(field_int(r, "axis_uom_code")), "conv_factor");
    double a = field(r, "semi_major_axis");
    double invf = r.at("inv_flattening").empty()
                      ? (a == field(r, "semi_minor_axis") ? 0.0
                                                          : a / (a - field(r, "semi_minor_axis")))
                      : field(r, "inv_flattening");
    return {a * to_metres, invf};
}

TEST(CatalogueSpheroids, ValuesAgreeWithEpsgExceptTheCataloguesOwn) {
    REQUIRE_EPSG();
    // Library spheroids EPSG holds under its own codes.
    const std::map<int, int> equivalent = {
        {107001, 7025}, {107005, 7053}, {107006, 7056}, {107008, 7052}, {107036, 7050}};
    // Values the catalogue keeps although EPSG's differ (documented), and
    // codes EPSG no longer holds.
    const std::set<int> kept = {7007, 7008, 7009, 7010, 7011, 7013, 7031, 7032, 7033, 7034, 7042};
    const std::set<int> gone = {7023, 7026, 107002, 107003, 107004, 107007};
    for (const SpheroidRow &s : spheroid_rows()) {
        int code = equivalent.count(s.code) ? equivalent.at(s.code) : s.code;
        if (gone.count(s.code)) {
            EXPECT_EQ(epsg().ellipsoids.find(code), nullptr) << s.code;
            continue;
        }
        ASSERT_NE(epsg().ellipsoids.find(code), nullptr) << s.code;
        auto [axis, invf] = epsg_ellipsoid(code);
        bool agrees = close(s.axis, axis) && close(s.inverse_flattening, invf);
        EXPECT_EQ(agrees, !kept.count(s.code)) << s.code << " " << s.name;
    }
    const SpheroidRow *sphere = find_row(spheroid_rows(), 7035);
    const SpheroidRow *tarnel = find_row(spheroid_rows(), 107008);
    ASSERT_TRUE(sphere && tarnel);
    EXPECT_EQ(sphere->axis, 6371000.0);
    EXPECT_EQ(sphere->inverse_flattening, 0.0);
    EXPECT_EQ(tarnel->axis, 6370997.0);
    EXPECT_EQ(tarnel->inverse_flattening, 0.0);
    EXPECT_STREQ(tarnel->name, "Sphere_TARNEL");
    const SpheroidRow *wgs84 = find_row(spheroid_rows(), 7030);
    EXPECT_EQ(wgs84->axis, 6378137.0);
    EXPECT_EQ(wgs84->inverse_flattening, 298.257223563);
    EXPECT_EQ(find_row(spheroid_rows(), 7001)->inverse_flattening,
              find_row(spheroid_rows(), 7002)->inverse_flattening);
    EXPECT_EQ(find_row(spheroid_rows(), 7012)->axis, find_row(spheroid_rows(), 7013)->axis);
}

// Degrees of an EPSG sexagesimal DMS value DDD.MMSSsss, read digit by digit.
double dms_degrees(const std::string &text) {
    bool negative = text[0] == '-';
    std::string s = negative ? text.substr(1) : text;
    size_t dot = s.find('.');
    std::string frac = dot == std::string::npos ? "" : s.substr(dot + 1);
    frac.resize(std::max<size_t>(frac.size(), 4), '0');
    double degrees = std::stod(s.substr(0, dot));
    double minutes = std::stod(frac.substr(0, 2));
    double seconds = std::stod(frac.substr(2, 2) + "." + frac.substr(4) + "0");
    double value = degrees + minutes / 60 + seconds / 3600;
    return negative ? -value : value;
}

TEST(CataloguePrimems, LongitudesAreEpsgsInDegreesAndTheCataloguesExactly) {
    // The catalogue's longitudes, to the last bit.
    const std::map<int, double> catalogue = {
        {8901, 0.0}, {8902, -9.131906111111112}, {8903, 2.337229166666667},
        {8904, -74.08091666666667}, {8905, -3.687938888888889}, {8906, 12.452333333333332},
        {8907, 7.439583333333333}, {8908, 106.80771944444444}, {8909, -17.666666666666668},
        {8910, 4.3679749999999995}, {8911, 18.05827777777778}, {8912, 23.716337499999998},
        {8913, 10.722916666666666}};
    ASSERT_EQ(primem_rows().size(), catalogue.size());
    for (const PrimemRow &p : primem_rows()) EXPECT_EQ(p.longitude, catalogue.at(p.code)) << p.name;
    EXPECT_STREQ(find_row(primem_rows(), 8901)->name, "Greenwich");
    EXPECT_STREQ(find_row(primem_rows(), 8913)->name, "Oslo");

    REQUIRE_EPSG();
    for (const PrimemRow &p : primem_rows()) {
        const Record &r = *epsg().primems.find(p.code);
        EXPECT_TRUE(names_agree(p.name, r.at("name"))) << p.name;
        int uom = field_int(r, "uom_code");
        double epsg_degrees = uom == 9110   ? dms_degrees(r.at("longitude"))
                              : uom == 9105 ? field(r, "longitude") * 0.9
                                            : field(r, "longitude");
        // Paris (exact sexagesimal value, EPSG's grads are rounded) and
        // Madrid (older value) are the catalogue's own.
        bool own = p.code == 8903 || p.code == 8905;
        EXPECT_EQ(close(p.longitude, epsg_degrees), !own) << p.name << " " << epsg_degrees;
    }
    // Paris 2 deg 20' 14.025" is EPSG's 2.5969213 grad to 7e-8 grad.
    EXPECT_NEAR(find_row(primem_rows(), 8903)->longitude / 0.9, 2.5969213, 1e-7);
}

// ---------------------------------------------------------------------------
// Macro names of rows: the prefix and the upper-cased name with the
// catalogue's abbreviations.

std::string macro_of(const char *prefix, const std::string &name) {
    static const std::map<std::string, std::string> shortened = {
        {"MODIFIED", "MOD"}, {"MICHIGAN", "MICH"}, {"ADJUSTMENT", "ADJ"},
        {"DEFINITION", "DEF"}, {"TRUNCATED", "TRUNC"}, {"1895", ""}};
    std::string out = prefix;
    std::string word;
    auto flush = [&] {
        auto it = shortened.find(word);
        std::string w = it == shortened.end() ? word : it->second;
        if (!w.empty()) out += (out.back() == '_' ? "" : "_") + w;
        word.clear();
    };
    for (char c : name) {
        if (c == '_') flush();
        else if (c == '+') { flush(); word = "PLUS"; }
        else word += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    }
    flush();
    return out;
}

template <class Row>
void expect_macro_names(std::span<const Row> rows, std::span<const MacroRow> macros,
                        const char *prefix, const char *name_prefix) {
    for (const Row &row : rows) {
        std::string macro = macro_of(prefix, without_prefix(row.name, name_prefix));
        EXPECT_EQ(macro_code(macros, macro.c_str()), row.code) << row.name << " " << macro;
    }
}

TEST(CatalogueTables, EveryRowHasItsMacroName) {
    expect_macro_names(spheroid_rows(), spheroid_macros(), "KA_S_", "");
    expect_macro_names(primem_rows(), primem_macros(), "KA_PM_", "");
    expect_macro_names(datum_rows(), datum_macros(), "KA_D_", "D_");
    expect_macro_names(geogcs_rows(), geogcs_macros(), "KA_GCS_", "GCS_");
    for (const UnitRow &u : unit_rows()) {
        if (u.code != 9093)
            expect_macro_names(std::span<const UnitRow>(&u, 1), unit_macros(), "KA_U_", "");
    }
    EXPECT_EQ(macro_code(unit_macros(), "KA_U_MILE_STATUTE"), 9093);
}

// ---------------------------------------------------------------------------
// Datums

// The datum name of a spheroid alone.
std::string spheroid_datum_name(const SpheroidRow &s) {
    if (s.code == 7018) return "D_Everest_Modified";
    std::string name = std::string("D_") + s.name;
    for (auto [from, to] : {std::pair{"Adjustment", "Adj"}, std::pair{"Definition", "Def"}}) {
        size_t at = name.find(from);
        if (at != std::string::npos) name.replace(at, std::strlen(from), to);
    }
    return name;
}

// EPSG ellipsoids the catalogue holds under its own codes.
int catalogue_spheroid(int epsg_ellipsoid) {
    static const std::map<int, int> own = {
        {7046, 7006}, {7050, 107036}, {7052, 107008}, {7053, 107005}, {7056, 107006}};
    auto it = own.find(epsg_ellipsoid);
    return it == own.end() ? epsg_ellipsoid : it->second;
}

TEST(CatalogueDatums, DatumsOfASpheroidAloneFollowTheirSpheroid) {
    const std::set<int> unassigned = {6017, 6026, 6030, 6037, 6038, 6039, 6040, 6041, 6043};
    for (int code = 6001; code <= 6045; ++code)
        EXPECT_EQ(find_row(datum_rows(), code) == nullptr, unassigned.count(code) == 1) << code;
    for (const DatumRow &d : datum_rows()) {
        bool spheroid_alone = (d.code >= 6001 && d.code <= 6045) ||
                              (d.code >= 106001 && d.code <= 106008);
        if (!spheroid_alone) continue;
        EXPECT_EQ(d.spheroid, d.code + 1000) << d.name;
        const SpheroidRow *s = find_row(spheroid_rows(), d.spheroid);
        ASSERT_NE(s, nullptr) << d.name;
        EXPECT_EQ(d.name, spheroid_datum_name(*s));
    }
    const DatumRow *wgs84 = find_row(datum_rows(), 6326);
    ASSERT_NE(wgs84, nullptr);
    EXPECT_STREQ(wgs84->name, "D_WGS_1984");
    EXPECT_EQ(wgs84->spheroid, 7030);
    EXPECT_STREQ(find_row(datum_rows(), 6015)->name, "D_Everest_Adj_1937");
    EXPECT_STREQ(find_row(datum_rows(), 6035)->name, "D_Sphere");
    EXPECT_STREQ(find_row(datum_rows(), 6045)->name, "D_Everest_Def_1975");
    EXPECT_STREQ(find_row(datum_rows(), 106001)->name, "D_WGS_1966");
    EXPECT_STREQ(find_row(datum_rows(), 106008)->name, "D_Sphere_TARNEL");
    EXPECT_EQ(find_row(datum_rows(), 106008)->spheroid, 107008);
}

// Names the catalogue spells its own way (without "D_" or "GCS_"), so that
// the word rule finds no EPSG counterpart: EPSG corrected the year, names
// the island group instead of the station, or spells the network out.
const std::set<std::string> kOwnNames = {
    "Dealul_Piscului_1933",       // EPSG: Dealul Piscului 1930
    "Graciosa_Base_SW_1948",      // EPSG: Azores Central Islands 1948
    "Observ_Meteorologico_1939",  // EPSG: Azores Occidental Islands 1939
    "Sao_Braz",                   // EPSG: Azores Oriental Islands 1940
    "NAD_1927_Definition_1976",   // EPSG: North American Datum 1927 (1976)
    "Swiss_TRF_1995",             // EPSG: Swiss Terrestrial Reference System 1995
};

TEST(CatalogueDatums, EpsgDatumsHaveTheirNamesAndEllipsoids) {
    REQUIRE_EPSG();
    std::set<std::string> failing;
    for (const DatumRow &d : datum_rows()) {
        ASSERT_NE(find_row(spheroid_rows(), d.spheroid), nullptr) << d.name;
        if (d.code >= 100000 || (d.code >= 6001 && d.code <= 6045)) continue;
        const Record *r = epsg().datums.find(d.code);
        if (r == nullptr) {
            // Withdrawn by EPSG: Bern 1898 and Voirol Unifie 1960.
            EXPECT_TRUE(d.code == 6217 || d.code == 6305) << d.name;
            continue;
        }
        std::string name = without_prefix(d.name, "D_");
        if (!names_agree(name, datum_text(d.code))) failing.insert(name);
        int ellipsoid = catalogue_spheroid(field_int(*r, "ellipsoid_code"));
        // SAD 1969: EPSG deprecated 6291 for 6618 on the truncated GRS 1967.
        if (d.code == 6291)
            ellipsoid = catalogue_spheroid(field_int(*epsg().datums.find(6618), "ellipsoid_code"));
        EXPECT_EQ(d.spheroid, ellipsoid) << d.name;
    }
    EXPECT_EQ(failing, kOwnNames);
}

// ---------------------------------------------------------------------------
// Geographic coordinate systems

const char *const kGradSystems[] = {
    "GCS_Nord_de_Guerre_Paris", "GCS_ATF_Paris", "GCS_NTF_Paris", "GCS_Tananarive_1925_Paris",
    "GCS_Voirol_1875_Paris", "GCS_Voirol_Unifie_1960_Paris", "GCS_Carthage_Paris",
    "GCS_Carthage", "GCS_Merchich", "GCS_Voirol_1875", "GCS_Voirol_Unifie_1960"};

const GeogcsRow *geogcs_named(const std::string &name) {
    for (const GeogcsRow &g : geogcs_rows())
        if (name == g.name) return &g;
    return nullptr;
}

std::string meridian_of(const GeogcsRow &g) {
    for (const PrimemRow &p : primem_rows()) {
        std::string suffix = std::string("_") + p.name;
        std::string name = g.name;
        if (p.code != 8901 && name.size() > suffix.size() + 4 &&
            name.compare(name.size() - suffix.size(), suffix.size(), suffix) == 0)
            return p.name;
    }
    return "";
}

TEST(CatalogueGeogcs, RowsFollowTheCataloguesRules) {
    std::set<std::string> grads(std::begin(kGradSystems), std::end(kGradSystems));
    int grad_count = 0;
    for (const GeogcsRow &g : geogcs_rows()) {
        const DatumRow *datum = find_row(datum_rows(), g.datum);
        ASSERT_NE(datum, nullptr) << g.name;
        ASSERT_NE(find_row(primem_rows(), g.primem), nullptr) << g.name;
        EXPECT_EQ(g.unit, grads.count(g.name) ? 9105 : 9102) << g.name;
        grad_count += g.unit == 9105;
        std::string meridian = meridian_of(g);
        bool on_greenwich = meridian.empty();
        EXPECT_EQ(g.primem == 8901, on_greenwich) << g.name;
        std::string name = g.name;
        bool twin = name.ends_with("_Degree");
        if (twin) {
            const GeogcsRow *grad = geogcs_named(name.substr(0, name.size() - 7));
            ASSERT_NE(grad, nullptr) << name;
            EXPECT_EQ(grad->unit, 9105);
            EXPECT_EQ(grad->datum, g.datum);
            EXPECT_EQ(g.code, g.code == 37223 ? 37223 : 104000 + g.datum - 6000) << name;
        } else if (g.code < 5000 && on_greenwich && g.code < 4800) {
            EXPECT_EQ(g.datum, g.code + 2000) << name;
        } else if (g.code >= 37000 && g.code < 38000) {
            EXPECT_EQ(g.datum, g.code + 69000) << name;
            EXPECT_TRUE(on_greenwich) << name;
        }
        if (g.code >= 4001 && g.code <= 4045) {
            std::string expected = std::string("GCS_") + without_prefix(datum->name, "D_");
            size_t def = expected.find("_Def_");
            if (def != std::string::npos) expected.replace(def, 5, "_def_");
            EXPECT_EQ(name, expected);
        }
    }
    EXPECT_EQ(grad_count, 11);
    for (const char *name : {"GCS_Carthage", "GCS_Merchich", "GCS_Voirol_1875",
                             "GCS_Voirol_Unifie_1960"})
        EXPECT_NE(geogcs_named(std::string(name) + "_Degree"), nullptr) << name;
}

struct Telling {
    int code;
    const char *name;
    int datum, primem, unit;
};

TEST(CatalogueGeogcs, TellingRows) {
    const Telling rows[] = {
        {4326, "GCS_WGS_1984", 6326, 8901, 9102},
        {37001, "GCS_WGS_1966", 106001, 8901, 9102},
        {37204, "GCS_Hjorsey_1955", 106204, 8901, 9102},
        {37223, "GCS_Carthage_Degree", 6223, 8901, 9102},
        {104305, "GCS_Voirol_Unifie_1960_Degree", 6305, 8901, 9102},
        {104000, "GCS_Assumed_Geographic_1", 6267, 8901, 9102},
        {4807, "GCS_NTF_Paris", 6275, 8903, 9105},
        {4809, "GCS_Belge_1950_Brussels", 6215, 8910, 9102},
        {4810, "GCS_Tananarive_1925_Paris", 6297, 8903, 9105},
        {4903, "GCS_Madrid_1870_Madrid", 6903, 8905, 9102},
    };
    for (const Telling &t : rows) {
        const GeogcsRow *g = find_row(geogcs_rows(), t.code);
        ASSERT_NE(g, nullptr) << t.code;
        EXPECT_STREQ(g->name, t.name);
        EXPECT_EQ(g->datum, t.datum) << t.name;
        EXPECT_EQ(g->primem, t.primem) << t.name;
        EXPECT_EQ(g->unit, t.unit) << t.name;
    }
    const std::pair<const char *, std::pair<int, int>> meridians[] = {
        {"GCS_Bogota_Bogota", {6218, 8904}}, {"GCS_Lisbon_Lisbon", {6207, 8902}},
        {"GCS_Monte_Mario_Rome", {6265, 8906}}, {"GCS_MGI_Ferro", {6312, 8909}},
        {"GCS_S_JTSK_Ferro", {6156, 8909}}, {"GCS_Batavia_Jakarta", {6211, 8908}},
        {"GCS_Makassar_Jakarta", {6257, 8908}}, {"GCS_Padang_1884_Jakarta", {6280, 8908}},
        {"GCS_RT38_Stockholm", {6308, 8911}}, {"GCS_Greek_Athens", {6120, 8912}},
        {"GCS_NGO_1948_Oslo", {6273, 8913}}};
    for (auto [name, expected] : meridians) {
        const GeogcsRow *g = geogcs_named(name);
        ASSERT_NE(g, nullptr) << name;
        EXPECT_EQ(g->datum, expected.first) << name;
        EXPECT_EQ(g->primem, expected.second) << name;
    }
}

TEST(CatalogueGeogcs, EpsgSystemsAgreeWithTheirRecords) {
    REQUIRE_EPSG();
    std::set<std::string> failing;
    for (const GeogcsRow &g : geogcs_rows()) {
        if (g.code >= 37000 || (g.code >= 4001 && g.code <= 4045)) continue;
        const Record *r = epsg().geogcs.find(g.code);
        if (r == nullptr) {
            // Withdrawn by EPSG: Bern 1898, Voirol Unifie 1960 and its Paris variant.
            EXPECT_TRUE(g.code == 4217 || g.code == 4305 || g.code == 4812) << g.name;
            continue;
        }
        int epsg_datum = field_int(*r, "datum_code");
        const Record &d = *epsg().datums.find(epsg_datum);
        std::string text = r->at("name") + " " + r->at("area") + " " + datum_text(epsg_datum);
        std::string name = without_prefix(g.name, "GCS_");
        if (!names_agree(name, text)) failing.insert(name);
        const DatumRow *datum = find_row(datum_rows(), g.datum);
        int ellipsoid = catalogue_spheroid(field_int(d, "ellipsoid_code"));
        if (g.code == 4291)  // SAD 1969, EPSG's corrected ellipsoid of 6618
            ellipsoid = 107036;
        EXPECT_EQ(datum->spheroid, ellipsoid) << g.name;
        // EPSG's prime meridian, except ATF: EPSG now puts it on Paris RGS.
        int primem = field_int(d, "prime_meridian_code");
        EXPECT_EQ(g.primem, g.code == 4901 ? 8903 : primem) << g.name;
        if (g.code == 4901) {
            EXPECT_EQ(primem, 8914);
        }
        // Systems on another meridian rest on the datum of Greenwich.
        if (primem == 8901) {
            EXPECT_EQ(g.datum, g.code == 4291 ? 6291 : epsg_datum) << g.name;
        }
        int unit = field_int(*r, "angular_uom_code");
        int expected_unit = unit == 9105 ? 9105 : 9102;
        bool greenwich_grads = !std::strcmp(g.name, "GCS_Carthage") ||
                               !std::strcmp(g.name, "GCS_Merchich") ||
                               !std::strcmp(g.name, "GCS_Voirol_1875");
        EXPECT_EQ(g.unit, greenwich_grads ? 9105 : expected_unit) << g.name;
        if (greenwich_grads) {
            EXPECT_EQ(expected_unit, 9102);
        }
    }
    EXPECT_EQ(failing, kOwnNames);
}

// ---------------------------------------------------------------------------
// Geographic transformations

constexpr int kGeocentricTranslation = 9603, kPositionVector = 9606, kCoordinateFrame = 9607,
              kLongitudeRotation = 9601, kNadcon = 9613, kNtv2 = 9615, kHarn = 109613;

const GeogtranRow *transformation_named(const char *name) {
    for (const GeogtranRow &t : geogtran_rows())
        if (!std::strcmp(t.name, name)) return &t;
    return nullptr;
}

TEST(CatalogueGeogtran, RowsAreWellFormed) {
    std::map<int, int> by_method;
    for (const GeogtranRow &t : geogtran_rows()) {
        const GeogcsRow *source = find_row(geogcs_rows(), t.source);
        const GeogcsRow *target = find_row(geogcs_rows(), t.target);
        ASSERT_TRUE(source && target) << t.name;
        ++by_method[t.method];
        int expected_count = t.method == kGeocentricTranslation                      ? 3
                             : t.method == kPositionVector || t.method == kCoordinateFrame ? 7
                                                                                           : 0;
        EXPECT_EQ(t.count, expected_count) << t.name;
        for (int i = 0; i < t.count; ++i) EXPECT_EQ(t.parameters[i].code, 100040 + i) << t.name;
        bool grid = t.method == kNadcon || t.method == kNtv2 || t.method == kHarn;
        EXPECT_EQ(t.dataset != nullptr, grid) << t.name;
        if (t.method == kLongitudeRotation) {
            // The same datum (Bern 1898 on Greenwich is CH1903).
            EXPECT_EQ(find_row(datum_rows(), source->datum)->spheroid,
                      find_row(datum_rows(), target->datum)->spheroid) << t.name;
            EXPECT_NE(source->primem, 8901) << t.name;
            EXPECT_EQ(target->primem, 8901) << t.name;
        }
    }
    // The catalogue's counts by method, less the rows without values:
    // twelve geocentric translations, two position-vector transformations
    // and one NTv2 grid (docs/catalogue.md).
    EXPECT_EQ(by_method[kGeocentricTranslation], 288 - 12);
    EXPECT_EQ(by_method[kPositionVector], 28 - 2);
    EXPECT_EQ(by_method[kCoordinateFrame], 37);
    EXPECT_EQ(by_method[kLongitudeRotation], 17);
    EXPECT_EQ(by_method[kHarn], 46);
    EXPECT_EQ(by_method[kNadcon], 7);
    EXPECT_EQ(by_method[kNtv2], 22 - 1);
    EXPECT_EQ(by_method.size(), 7u);
}

TEST(CatalogueGeogtran, TellingRows) {
    const GeogtranRow *belge = transformation_named("Belge_1950_Brussels_To_Belge_1950");
    ASSERT_NE(belge, nullptr);
    EXPECT_EQ(belge->source, 4809);
    EXPECT_EQ(belge->target, 4215);
    EXPECT_EQ(belge->method, kLongitudeRotation);
    const GeogtranRow *tananarive =
        transformation_named("Tananarive_1925_Paris_To_Tananarive_1925");
    ASSERT_NE(tananarive, nullptr);
    EXPECT_EQ(tananarive->source, 4810);
    EXPECT_EQ(tananarive->target, 4297);
    EXPECT_EQ(tananarive->method, kLongitudeRotation);
    const GeogtranRow *hjorsey = transformation_named("Hjorsey_1955_To_WGS_1984");
    ASSERT_NE(hjorsey, nullptr);
    EXPECT_EQ(hjorsey->source, 37204);
    EXPECT_EQ(hjorsey->target, 4326);
    EXPECT_EQ(hjorsey->method, kGeocentricTranslation);
    ASSERT_EQ(hjorsey->count, 3);
    EXPECT_EQ(hjorsey->parameters[0].value, -73.0);
    EXPECT_EQ(hjorsey->parameters[1].value, 46.0);
    EXPECT_EQ(hjorsey->parameters[2].value, -86.0);
    const GeogtranRow *conus = transformation_named("NAD_1927_To_NAD_1983_NADCON");
    ASSERT_NE(conus, nullptr);
    EXPECT_STREQ(conus->dataset, "conus");
    EXPECT_EQ(conus->method, kNadcon);
    const GeogtranRow *wv = transformation_named("NAD_1983_To_HARN_West_Virginia");
    ASSERT_NE(wv, nullptr);
    EXPECT_STREQ(wv->dataset, "wvhpgn");
    EXPECT_EQ(wv->method, kHarn);
    EXPECT_EQ(transformation_named("Bab_South_To_NAD_1983"), nullptr);
}

// The parameters of an EPSG Helmert record in metres, arc-seconds and ppm.
std::vector<double> epsg_parameters(const Record &r) {
    auto unit = [&](const char *key) {
        return field(*epsg().units.find(field_int(r, key)), "conv_factor");
    };
    std::vector<double> p;
    for (const char *t : {"tx", "ty", "tz"}) p.push_back(field(r, t) * unit("translation_uom_code"));
    if (r.at("rx").empty()) return p;
    // Rotations through radians to arc-seconds (pi/648000 rad each); EPSG's
    // factors are rounded, so exact factors stand in for its arc-second and
    // milli-arc-second units.
    int rotation = field_int(r, "rotation_uom_code");
    double to_arcsec = rotation == 9104   ? 1.0
                       : rotation == 1031 ? 1e-3
                       : rotation == 9113 ? 0.324
                                          : unit("rotation_uom_code") * 648000 / std::numbers::pi;
    for (const char *k : {"rx", "ry", "rz"}) p.push_back(field(r, k) * to_arcsec);
    p.push_back(field(r, "scale_difference") * unit("scale_difference_uom_code") * 1e6);
    return p;
}

bool same_values(const GeogtranRow &t, std::vector<double> p, int epsg_method) {
    // A translation-only record written as a seven-parameter one with zero
    // rotations and scale; coordinate-frame rotations are position-vector
    // rotations of the opposite sign.
    if (p.size() == 3 && t.count == 7) p.insert(p.end(), {0.0, 0.0, 0.0, 0.0});
    if (p.size() == 7 && epsg_method != t.method)
        for (int i = 3; i < 6; ++i) p[i] = -p[i];
    if (static_cast<int>(p.size()) != t.count) return false;
    for (int i = 0; i < t.count; ++i)
        if (!close(t.parameters[i].value, p[i])) return false;
    return true;
}

// The catalogue spheroid of a system's datum, and of an EPSG CRS's datum.
int system_spheroid(int gcs) {
    return find_row(datum_rows(), find_row(geogcs_rows(), gcs)->datum)->spheroid;
}
int epsg_spheroid(int crs) {
    const Record *r = epsg().geogcs.find(crs);
    if (r == nullptr) return 0;
    return catalogue_spheroid(
        field_int(*epsg().datums.find(field_int(*r, "datum_code")), "ellipsoid_code"));
}

TEST(CatalogueGeogtran, EquationRowsAreEpsgRecords) {
    REQUIRE_EPSG();
    for (const GeogtranRow &t : geogtran_rows()) {
        if (t.count == 0) continue;
        // A record with these values between systems on the same figures.
        std::vector<int> found;
        for (const auto &[code, r] : epsg().helmert.by_code) {
            int method = field_int(r, "method_code");
            if (method != kGeocentricTranslation && method != kPositionVector &&
                method != kCoordinateFrame)
                continue;
            if (!same_values(t, epsg_parameters(r), method)) continue;
            if (epsg_spheroid(field_int(r, "source_crs_code")) != system_spheroid(t.source) ||
                epsg_spheroid(field_int(r, "target_crs_code")) != system_spheroid(t.target))
                continue;
            found.push_back(code);
        }
        EXPECT_FALSE(found.empty()) << t.name;
        // An EPSG code names that record, or a deprecated one replaced by
        // it under the same name.
        const Record *own = epsg().helmert.find(t.code);
        if (own && std::find(found.begin(), found.end(), t.code) == found.end()) {
            EXPECT_TRUE(deprecated(*own)) << t.name;
            bool renewed = std::any_of(found.begin(), found.end(), [&](int c) {
                return epsg().helmert.find(c)->at("name") == own->at("name");
            });
            EXPECT_TRUE(renewed) << t.name;
        }
    }
}

// The variant number of a name: "_<n>" in the catalogue, "(n)" in EPSG.
std::string catalogue_variant(const std::string &name) {
    size_t at = name.find_last_of('_');
    std::string tail = name.substr(at + 1);
    bool digits = !tail.empty() && std::all_of(tail.begin(), tail.end(), ::isdigit);
    return digits && tail.size() < 4 ? tail : "1";
}

std::string epsg_variant(const std::string &name) {
    if (name.empty() || name.back() != ')') return "1";
    return name.substr(name.find_last_of('(') + 1, name.size() - name.find_last_of('(') - 2);
}

TEST(CatalogueGeogtran, EpsgCodedRowsCarryEpsgsNamesAndGrids) {
    REQUIRE_EPSG();
    // Rows named by purpose or by their publisher's numbering rather than by
    // EPSG's variant number.
    const std::set<std::string> own_numbers = {
        "Datum_Lisboa_Hayford_To_WGS_1984_1", "Datum_Lisboa_Hayford_To_WGS_1984_2",
        "Datum_73_To_WGS_1984_1", "Datum_73_To_WGS_1984_2", "Porto_Santo_1936_To_WGS_1984_1",
        "Porto_Santo_1936_To_WGS_1984_2", "Sao_Braz_To_WGS_1984_1", "Sao_Braz_To_WGS_1984_2",
        "Graciosa_Base_SW_1948_To_WGS_1984_1", "Graciosa_Base_SW_1948_To_WGS_1984_2",
        "Observ_Meteorologico_1939_To_WGS_1984_1", "OSGB_1936_To_WGS_1984_Petroleum",
        "ED_1950_To_WGS_1984_PT3", "ED_1950_To_WGS_1984_PT7",
        "New_Zealand_1949_To_NZGD_2000_1_3PAR", "New_Zealand_1949_To_NZGD_2000_2_7PAR"};
    for (const GeogtranRow &t : geogtran_rows()) {
        const Record *r = epsg().helmert.find(t.code);
        if (!r) r = epsg().other.find(t.code);
        if (!r) r = epsg().grids.find(t.code);
        if (t.code < 1000 || t.code > 1999 || r == nullptr) continue;
        std::string name = t.name;
        bool harn_or_named = t.method == kHarn || t.method == kNtv2 || t.method == kNadcon ||
                             t.method == kLongitudeRotation;
        if (!harn_or_named && !own_numbers.count(name)) {
            EXPECT_EQ(catalogue_variant(name), epsg_variant(r->at("name")))
                << name << " / " << r->at("name");
        }
        if (t.dataset != nullptr) {
            std::string grid = r->at("grid_name");
            EXPECT_EQ(grid.substr(0, grid.find('.')), t.dataset) << name;
            EXPECT_EQ(field_int(*r, "method_code"), t.method == kNtv2 ? kNtv2 : kNadcon) << name;
            EXPECT_EQ(t.method == kHarn, grid.find("hpgn") != std::string::npos) << name;
        }
        if (t.method == kLongitudeRotation) {
            EXPECT_EQ(field_int(*r, "method_code"), kLongitudeRotation) << name;
        }
    }
}

}  // namespace
