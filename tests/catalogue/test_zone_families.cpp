// Zone families of projected systems: hand-derived rows, agreement with the
// EPSG records of the same codes, and projection of points against PROJ.
#include "catalogue/projcs_families.h"
#include "catalogue_test.h"

#if VELTRA_HAVE_PROJ
#include <proj.h>
#endif

namespace {

using catalogue_test::name_of;
using catalogue_test::slot_values;

enum Slot { kFalseEasting = 0, kFalseNorthing = 1, kCentralMeridian = 2, kScaleFactor = 5, kLatitudeOfOrigin = 6 };

// Rows worked out by hand: zone = code - base, central meridian 6 zone - 183
// (UTM), 6 zone - 3 (Gauss-Kruger), 3 zone + 18 (Finland); the zone stands
// before the false easting in Gauss-Kruger names without "N".
TEST(ZoneFamilies, HandDerivedRows) {
    const struct { int code; const char *name; double easting, meridian; } rows[] = {
        {32631, "WGS_1984_UTM_Zone_31N", 500000, 3}, {32748, "WGS_1984_UTM_Zone_48S", 500000, 105},
        {28404, "Pulkovo_1942_GK_Zone_4", 4500000, 21}, {28464, "Pulkovo_1942_GK_Zone_4N", 500000, 21},
        {21413, "Beijing_1954_GK_Zone_13", 13500000, 75}, {2393, "Finland_Zone_3", 3500000, 27},
        {20063, "Pulkovo_1995_GK_Zone_3N", 500000, 15},  // no EPSG record
        {32074, "NAD_1927_BLM_Zone_14N", 500000 * 3937 / 1200.0, -99}};  // 500000 m in US survey feet
    for (const auto &row : rows) {
        ka_projcs *projcs = ka_factory_projcs(row.code);
        const std::vector<double> v = slot_values(projcs, ka_projcs_parameters);
        EXPECT_EQ(name_of(projcs), row.name);
        EXPECT_NEAR(v[kFalseEasting], row.easting, 1e-6) << row.name;
        EXPECT_EQ(v[kCentralMeridian], row.meridian) << row.name;
        ka_projcs_del(projcs);
    }
}

// A zone against the EPSG projected CRS of its code: zone number,
// geographic system, unit, method and the five parameters.
void expect_epsg_zone(const ka_projcs *projcs, const catalogue_test::Record &r) {
    const std::string name = name_of(projcs);
    // The zone, the name's last word, is a word of EPSG's name (but for the
    // Finnish zone 3, "KKJ / Finland Uniform Coordinate System").
    std::string words = r.at("name") + " ", zone = name.substr(name.find_last_of('_')) + " ";
    std::replace_if(words.begin(), words.end(), [](char c) { return c == '/' || c == '(' || c == ')'; }, ' ');
    zone[0] = ' ';
    EXPECT_TRUE(words.find(zone) != std::string::npos || name == "Finland_Zone_3") << name << " / " << r.at("name");
    ka_geogcs *geogcs = ka_factory_geogcs(std::stoi(r.at("geographic_crs_code")));
    ka_unit *unit = ka_factory_unit(std::stoi(r.at("linear_uom_code")));
    EXPECT_TRUE(ka_geogcs_eq(ka_projcs_geogcs(projcs), geogcs)) << name;
    EXPECT_TRUE(ka_unit_eq(ka_projcs_unit(projcs), unit)) << name;
    ka_geogcs_del(geogcs);
    ka_unit_del(unit);
    // EPSG's Transverse Mercator; Gauss-Kruger for its Gauss-Kruger and Finnish zones.
    EXPECT_EQ(r.at("method_code"), "9807") << name;
    const bool gauss_kruger = r.at("name").find("Gauss-Kruger") != std::string::npos || name.starts_with("Finland");
    EXPECT_EQ(name_of(ka_projcs_projection(projcs)), gauss_kruger ? "Gauss_Kruger" : "Transverse_Mercator") << name;
    // EPSG parameter code -> slot and tolerance; the other slots are empty.
    const std::map<std::string, std::pair<int, double>> slots = {
        {"8801", {kLatitudeOfOrigin, 1e-12}}, {"8802", {kCentralMeridian, 1e-12}}, {"8805", {kScaleFactor, 1e-12}},
        {"8806", {kFalseEasting, 0.005}}, {"8807", {kFalseNorthing, 0.005}}};
    const std::vector<double> values = slot_values(projcs, ka_projcs_parameters);
    EXPECT_EQ(catalogue_test::filled(values), 5) << name;
    int matched = 0;
    for (const std::string p : {"p1", "p2", "p3", "p4", "p5", "p6", "p7"}) {
        const auto slot = slots.find(r.at(p + "_code"));
        if (slot == slots.end()) continue;
        ++matched;
        EXPECT_NEAR(values[slot->second.first], std::stod(r.at(p + "_value")), slot->second.second) << name << " " << p;
    }
    EXPECT_EQ(matched, 5) << name;
}

TEST(ZoneFamilies, AgreeWithTheEpsgRecords) {
    const catalogue_test::EpsgTable epsg = catalogue_test::read_epsg("projected_crs.csv");
    int zones = 0, compared = 0;
    for (int code = 2000; code <= 32799; ++code) {
        ka_projcs *projcs = veltra::catalogue::zone_projcs(code);
        if (projcs == nullptr) continue;
        ++zones;
        // EPSG has since given 20002 to an unrelated local grid.
        if (const catalogue_test::Record *r = epsg.find(code); r != nullptr && code != 20002) {
            expect_epsg_zone(projcs, *r);
            ++compared;
        }
        ka_projcs_del(projcs);
    }
    EXPECT_EQ(zones, 576);
    EXPECT_EQ(compared, 571);  // all but 24721, 20002, 20003, 20062 and 20063
}

#if VELTRA_HAVE_PROJ

// PROJ projects the points from the base geographic CRS to the projected CRS
// of the same EPSG codes (no datum change).
TEST(ZoneFamilies, ProjectLikeThePeerLibrary) {
    const struct { int code, geographic; double lon, lat; } cases[] = {
        {32631, 4326, 4.9, 52.37}, {32748, 4326, 106.8, -6.2}, {32601, 4326, -178.5, 51.8},
        {28404, 4284, 22.3, 55.1}, {2393, 4123, 26.0, 62.0}};
    PJ_CONTEXT *context = proj_context_create();
    for (const auto &c : cases) {
        ka_projcs *projcs = ka_factory_projcs(c.code);
        double point[2] = {c.lon, c.lat};
        EXPECT_EQ(ka_geog_to_proj(projcs, 1, point), 1) << c.code;
        ka_projcs_del(projcs);
        PJ *raw = proj_create_crs_to_crs(context, ("EPSG:" + std::to_string(c.geographic)).c_str(),
                                         ("EPSG:" + std::to_string(c.code)).c_str(), nullptr);
        PJ *pj = proj_normalize_for_visualization(context, raw);
        ASSERT_NE(pj, nullptr) << c.code;
        const PJ_COORD expected = proj_trans(pj, PJ_FWD, proj_coord(c.lon, c.lat, 0, 0));
        EXPECT_NEAR(point[0], expected.xy.x, 1e-3) << c.code;
        EXPECT_NEAR(point[1], expected.xy.y, 1e-3) << c.code;
        proj_destroy(pj);
        proj_destroy(raw);
    }
    proj_context_destroy(context);
}

#endif

}  // namespace
