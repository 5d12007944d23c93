// Zone families of projected systems: hand-derived rows, agreement with the
// EPSG records of the same codes, and projection of points against PROJ.
#include "catalogue/projcs_families.h"
#include "veltra.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#if VELTRA_HAVE_PROJ
#include <proj.h>
#endif

namespace {

enum Slot { kFalseEasting = 0, kFalseNorthing = 1, kCentralMeridian = 2,
            kScaleFactor = 5, kLatitudeOfOrigin = 6 };

struct Zone {
    std::string name;
    std::string geogcs;
    std::string projection;
    std::string unit;
    double value[KA_PARAMETER_SLOTS];
    bool present[KA_PARAMETER_SLOTS];
};

bool read_zone(int code, Zone &zone) {
    ka_projcs *projcs = ka_factory_projcs(code);
    if (projcs == nullptr) return false;
    char name[KA_NAME_MAX];
    ka_projcs_name(projcs, name);
    zone.name = name;
    ka_geogcs_name(ka_projcs_geogcs(projcs), name);
    zone.geogcs = name;
    ka_projection_name(ka_projcs_projection(projcs), name);
    zone.projection = name;
    ka_unit_name(ka_projcs_unit(projcs), name);
    zone.unit = name;
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    ka_projcs_parameters(projcs, slots);
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i) {
        zone.present[i] = slots[i] != nullptr;
        zone.value[i] = ka_parameter_value(slots[i]);
    }
    ka_projcs_del(projcs);
    return true;
}

// Rows worked out by hand from the family rules: zone = code - base,
// central meridian 6 zone - 183 (UTM) or 6 zone - 3 (Gauss-Kruger).
TEST(ZoneFamilies, HandDerivedRows) {
    Zone zone;
    ASSERT_TRUE(read_zone(32631, zone));
    EXPECT_EQ(zone.name, "WGS_1984_UTM_Zone_31N");
    EXPECT_EQ(zone.geogcs, "GCS_WGS_1984");
    EXPECT_EQ(zone.projection, "Transverse_Mercator");
    EXPECT_EQ(zone.unit, "Meter");
    EXPECT_EQ(zone.value[kFalseEasting], 500000.0);
    EXPECT_EQ(zone.value[kFalseNorthing], 0.0);
    EXPECT_EQ(zone.value[kCentralMeridian], 3.0);
    EXPECT_EQ(zone.value[kScaleFactor], 0.9996);
    EXPECT_EQ(zone.value[kLatitudeOfOrigin], 0.0);
    int present = 0;
    for (bool p : zone.present) present += p ? 1 : 0;
    EXPECT_EQ(present, 5);

    ASSERT_TRUE(read_zone(32601, zone));
    EXPECT_EQ(zone.value[kCentralMeridian], -177.0);
    ASSERT_TRUE(read_zone(32660, zone));
    EXPECT_EQ(zone.value[kCentralMeridian], 177.0);
    EXPECT_FALSE(read_zone(32761, zone));
    EXPECT_FALSE(read_zone(32600, zone));

    ASSERT_TRUE(read_zone(32748, zone));
    EXPECT_EQ(zone.name, "WGS_1984_UTM_Zone_48S");
    EXPECT_EQ(zone.value[kFalseNorthing], 10000000.0);
    EXPECT_EQ(zone.value[kCentralMeridian], 105.0);

    ASSERT_TRUE(read_zone(28404, zone));
    EXPECT_EQ(zone.name, "Pulkovo_1942_GK_Zone_4");
    EXPECT_EQ(zone.projection, "Gauss_Kruger");
    EXPECT_EQ(zone.value[kFalseEasting], 4500000.0);
    EXPECT_EQ(zone.value[kCentralMeridian], 21.0);
    EXPECT_EQ(zone.value[kScaleFactor], 1.0);

    ASSERT_TRUE(read_zone(28464, zone));
    EXPECT_EQ(zone.name, "Pulkovo_1942_GK_Zone_4N");
    EXPECT_EQ(zone.value[kFalseEasting], 500000.0);

    // Zone 32 lies across the antimeridian: 6 * 32 - 3 = 189 = -171.
    ASSERT_TRUE(read_zone(28432, zone));
    EXPECT_EQ(zone.value[kCentralMeridian], -171.0);
    EXPECT_EQ(zone.value[kFalseEasting], 32500000.0);

    ASSERT_TRUE(read_zone(20004, zone));
    EXPECT_EQ(zone.name, "Pulkovo_1995_GK_Zone_4");
    ASSERT_TRUE(read_zone(21413, zone));
    EXPECT_EQ(zone.name, "Beijing_1954_GK_Zone_13");
    EXPECT_EQ(zone.value[kCentralMeridian], 75.0);
    EXPECT_EQ(zone.value[kFalseEasting], 13500000.0);

    // Finland: 3-degree zones, zone 1 on 21 E.
    ASSERT_TRUE(read_zone(2393, zone));
    EXPECT_EQ(zone.name, "Finland_Zone_3");
    EXPECT_EQ(zone.value[kCentralMeridian], 27.0);
    EXPECT_EQ(zone.value[kFalseEasting], 3500000.0);

    // BLM: UTM in US survey feet, 500000 m = 1640416.666... ft.
    ASSERT_TRUE(read_zone(32074, zone));
    EXPECT_EQ(zone.name, "NAD_1927_BLM_Zone_14N");
    EXPECT_EQ(zone.unit, "Foot_US");
    EXPECT_NEAR(zone.value[kFalseEasting], 500000 / 0.30480060960121924,
                1e-6);
    EXPECT_EQ(zone.value[kCentralMeridian], -99.0);
}

// One projected CRS of the EPSG records.
struct EpsgProjected {
    std::string name;
    int geogcs = 0;
    int unit = 0;
    int method = 0;
    std::map<int, std::pair<double, int>> parameters;  // code -> value, uom
};

// Splits one CSV record (quoted fields may hold commas and doubled quotes).
std::vector<std::string> csv_fields(const std::string &line) {
    std::vector<std::string> fields(1);
    bool quoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        if (quoted) {
            if (c == '"' && i + 1 < line.size() && line[i + 1] == '"')
                fields.back() += line[++i];
            else if (c == '"')
                quoted = false;
            else
                fields.back() += c;
        } else if (c == '"') {
            quoted = true;
        } else if (c == ',') {
            fields.emplace_back();
        } else {
            fields.back() += c;
        }
    }
    return fields;
}

std::map<int, EpsgProjected> read_epsg_projected() {
    std::map<int, EpsgProjected> records;
    std::ifstream in(std::string(VELTRA_SHARED_DIR) +
                     "/epsg/projected_crs.csv");
    std::string line;
    std::getline(in, line);  // header
    constexpr int kFirstParameter = 8, kParameterFields = 4, kParameters = 7;
    while (std::getline(in, line)) {
        const std::vector<std::string> f = csv_fields(line);
        if (f.size() < kFirstParameter + kParameterFields * kParameters)
            continue;
        EpsgProjected record;
        record.name = f[1];
        record.geogcs = std::stoi(f[2]);
        record.unit = std::stoi(f[3]);
        record.method = std::stoi(f[6]);
        for (int p = 0; p < kParameters; ++p) {
            const int at = kFirstParameter + p * kParameterFields;
            if (f[at].empty()) continue;
            record.parameters[std::stoi(f[at])] = {std::stod(f[at + 2]),
                                                   std::stoi(f[at + 3])};
        }
        records[std::stoi(f[0])] = record;
    }
    return records;
}

constexpr int kEpsgTransverseMercator = 9807;
constexpr int kEpsgDegree = 9102;

// Every zone with an EPSG record of the same code agrees with it: geographic
// system, unit, method and the five parameters.
TEST(ZoneFamilies, AgreeWithTheEpsgRecords) {
    const std::map<int, EpsgProjected> epsg = read_epsg_projected();
    ASSERT_GT(epsg.size(), 1000u);
    // EPSG has since given 20002 to an unrelated local grid.
    const int reassigned = 20002;
    int compared = 0, zones = 0;
    for (int code = 2000; code <= 32799; ++code) {
        ka_projcs *projcs = veltra::catalogue::zone_projcs(code);
        if (projcs == nullptr) continue;
        ++zones;
        const auto found = epsg.find(code);
        if (found == epsg.end() || code == reassigned) {
            ka_projcs_del(projcs);
            continue;
        }
        const EpsgProjected &record = found->second;
        ++compared;
        ka_geogcs *geogcs = ka_factory_geogcs(record.geogcs);
        ka_unit *unit = ka_factory_unit(record.unit);
        EXPECT_TRUE(ka_geogcs_eq(ka_projcs_geogcs(projcs), geogcs)) << code;
        EXPECT_TRUE(ka_unit_eq(ka_projcs_unit(projcs), unit)) << code;
        if (geogcs != nullptr) ka_geogcs_del(geogcs);
        ka_unit_del(unit);
        EXPECT_EQ(record.method, kEpsgTransverseMercator) << code;

        ka_parameter *slots[KA_PARAMETER_SLOTS];
        ka_projcs_parameters(projcs, slots);
        const struct {
            int epsg_code;
            int slot;
            double tolerance;
        } checks[] = {
            {8801, kLatitudeOfOrigin, 1e-12}, {8802, kCentralMeridian, 1e-12},
            {8805, kScaleFactor, 1e-12},     {8806, kFalseEasting, 0.005},
            {8807, kFalseNorthing, 0.005},
        };
        for (const auto &check : checks) {
            const auto parameter = record.parameters.find(check.epsg_code);
            ASSERT_NE(parameter, record.parameters.end()) << code;
            if (check.slot == kLatitudeOfOrigin ||
                check.slot == kCentralMeridian) {
                EXPECT_EQ(parameter->second.second, kEpsgDegree) << code;
            }
            EXPECT_NEAR(ka_parameter_value(slots[check.slot]),
                        parameter->second.first, check.tolerance)
                << code << " " << record.name << " EPSG parameter "
                << check.epsg_code;
        }
        ka_projcs_del(projcs);
    }
    EXPECT_EQ(zones, 576);
    // All but 24721, 20002, 20003, 20062 and 20063 have a record.
    EXPECT_EQ(compared, 571);
}

#if VELTRA_HAVE_PROJ

// Projects (lon, lat) in degrees with PROJ from the base geographic CRS to
// the projected CRS of the same EPSG codes (no datum change).
bool oracle_project(const char *geographic, const char *projected,
                    double lon, double lat, double &x, double &y) {
    PJ_CONTEXT *context = proj_context_create();
    PJ *raw = proj_create_crs_to_crs(context, geographic, projected, nullptr);
    PJ *pj = raw != nullptr ? proj_normalize_for_visualization(context, raw)
                            : nullptr;
    bool ok = false;
    if (pj != nullptr) {
        PJ_COORD c = proj_trans(pj, PJ_FWD, proj_coord(lon, lat, 0, 0));
        x = c.xy.x;
        y = c.xy.y;
        ok = std::isfinite(x) && std::isfinite(y);
    }
    proj_destroy(pj);
    proj_destroy(raw);
    proj_context_destroy(context);
    return ok;
}

TEST(ZoneFamilies, ProjectLikeThePeerLibrary) {
    const struct {
        int code;
        const char *geographic;
        double lon, lat;
    } cases[] = {
        {32631, "EPSG:4326", 4.9, 52.37},     // Amsterdam
        {32748, "EPSG:4326", 106.8, -6.2},    // Jakarta
        {32601, "EPSG:4326", -178.5, 51.8},   // western Aleutians
        {28404, "EPSG:4284", 22.3, 55.1},
        {2393, "EPSG:4123", 26.0, 62.0},
    };
    for (const auto &c : cases) {
        ka_projcs *projcs = ka_factory_projcs(c.code);
        ASSERT_NE(projcs, nullptr) << c.code;
        double point[2] = {c.lon, c.lat};
        EXPECT_EQ(ka_geog_to_proj(projcs, 1, point), 1) << c.code;
        ka_projcs_del(projcs);
        double x = 0, y = 0;
        const std::string projected = "EPSG:" + std::to_string(c.code);
        ASSERT_TRUE(oracle_project(c.geographic, projected.c_str(), c.lon,
                                   c.lat, x, y))
            << c.code;
        EXPECT_NEAR(point[0], x, 1e-3) << c.code;
        EXPECT_NEAR(point[1], y, 1e-3) << c.code;
    }
}

#endif

}  // namespace
