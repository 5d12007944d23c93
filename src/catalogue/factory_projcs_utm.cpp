// Zone families of projected systems: every Transverse Mercator UTM family
// (and its national variants), the Gauss-Kruger families and the BLM zones.
// Each family is one row: the zone is code - base, and the name, false
// easting and central meridian follow from the zone by the row's rules.
#include "catalogue/assemble.h"
#include "catalogue/projcs_families.h"
#include "core/object.h"

#include <cstdio>

namespace veltra::catalogue {

namespace {

constexpr int kTransverseMercator = 43006;
constexpr int kGaussKruger = 43005;
constexpr int kMeter = 9001;
constexpr int kFootUS = 9003;

constexpr int kFalseEasting = 100001;
constexpr int kFalseNorthing = 100002;
constexpr int kScaleFactor = 100003;
constexpr int kCentralMeridian = 100010;
constexpr int kLatitudeOfOrigin = 100021;

// value = per_zone * zone + offset
struct ZoneRule {
    double per_zone;
    double offset;
    double at(int zone) const { return per_zone * zone + offset; }
};

// 6-degree zones: UTM zone 1 is centred on 177 W, Gauss-Kruger zone 1 on
// 3 E; the Finnish zones are 3 degrees wide, zone 1 on 21 E.
constexpr ZoneRule kUtmMeridian{6, -183};
constexpr ZoneRule kGkMeridian{6, -3};
constexpr ZoneRule kFinlandMeridian{3, 18};

constexpr ZoneRule kUtmEasting{0, 500000};
// The zone number in front of the easting: zone 4 has 4500000.
constexpr ZoneRule kZoneEasting{1000000, 500000};
// 500000 m in US survey feet.
constexpr ZoneRule kBlmEasting{0, 1640416.6666666667};

constexpr double kSouth = 10000000;  // false northing of southern zones
constexpr double kUtmScale = 0.9996;

struct ZoneFamily {
    int first;  // code range, inclusive
    int last;
    int base;  // zone = code - base
    const char *prefix;  // name = prefix + zone + suffix
    const char *suffix;
    int geogcs;
    int projection;
    int unit;
    ZoneRule false_easting;
    double false_northing;
    double scale_factor;
    ZoneRule central_meridian;
};

#define UTM(first, last, base, prefix, suffix, geogcs, northing)             \
    {first, last, base, prefix, suffix, geogcs, kTransverseMercator, kMeter, \
     kUtmEasting, northing, kUtmScale, kUtmMeridian}
#define GK(first, last, base, prefix, suffix, geogcs, easting, meridian) \
    {first, last, base, prefix, suffix, geogcs, kGaussKruger, kMeter,    \
     easting, 0, 1, meridian}

constexpr ZoneFamily kFamilies[] = {
    UTM(32601, 32660, 32600, "WGS_1984_UTM_Zone_", "N", 4326, 0),
    UTM(32701, 32760, 32700, "WGS_1984_UTM_Zone_", "S", 4326, kSouth),
    UTM(32201, 32260, 32200, "WGS_1972_UTM_Zone_", "N", 4322, 0),
    UTM(32301, 32360, 32300, "WGS_1972_UTM_Zone_", "S", 4322, kSouth),
    UTM(26903, 26923, 26900, "NAD_1983_UTM_Zone_", "N", 4269, 0),
    UTM(26703, 26722, 26700, "NAD_1927_UTM_Zone_", "N", 4267, 0),
    UTM(25828, 25838, 25800, "ETRF_1989_UTM_Zone_", "N", 4258, 0),
    UTM(23028, 23038, 23000, "ED_1950_UTM_Zone_", "N", 4230, 0),
    UTM(2058, 2061, 2020, "ED_1950_ED77_UTM_Zone_", "N", 4154, 0),
    UTM(2219, 2220, 2200, "ATS_1977_UTM_Zone_", "N", 4122, 0),
    UTM(29118, 29122, 29100, "SAD_1969_UTM_Zone_", "N", 4291, 0),
    UTM(29177, 29185, 29160, "SAD_1969_UTM_Zone_", "S", 4291, kSouth),
    UTM(20248, 20258, 20200, "AGD_1966_AMG_Zone_", "", 4202, kSouth),
    UTM(20348, 20358, 20300, "AGD_1984_AMG_Zone_", "", 4203, kSouth),
    UTM(28348, 28358, 28300, "GDA_1994_MGA_Zone_", "", 4283, kSouth),
    UTM(20137, 20138, 20100, "Adindan_UTM_Zone_", "N", 4201, 0),
    UTM(20538, 20539, 20500, "Afgooye_UTM_Zone_", "N", 4205, 0),
    UTM(20437, 20439, 20400, "Ain_el_Abd_UTM_Zone_", "N", 4204, 0),
    UTM(20822, 20824, 20800, "Aratu_UTM_Zone_", "S", 4208, kSouth),
    UTM(21148, 21150, 21100, "Batavia_UTM_Zone_", "S", 4211, kSouth),
    UTM(21817, 21818, 21800, "Bogota_UTM_Zone_", "N", 4218, 0),
    UTM(22032, 22033, 22000, "Camacupa_UTM_Zone_", "S", 4220, kSouth),
    UTM(22523, 22524, 22500, "Corrego_Alegre_UTM_Zone_", "S", 4225, kSouth),
    UTM(23239, 23240, 23200, "Fahud_UTM_Zone_", "N", 4232, 0),
    UTM(23846, 23853, 23800, "Indonesian_1974_UTM_Zone_", "N", 4238, 0),
    UTM(23886, 23894, 23840, "Indonesian_1974_UTM_Zone_", "S", 4238, kSouth),
    UTM(23946, 23948, 23900, "Indian_1954_UTM_Zone_", "N", 4239, 0),
    UTM(24047, 24048, 24000, "Indian_1975_UTM_Zone_", "N", 4240, 0),
    UTM(24547, 24548, 24500, "Kertau_UTM_Zone_", "N", 4245, 0),
    UTM(24718, 24721, 24700, "La_Canoa_UTM_Zone_", "N", 4247, 0),
    UTM(26331, 26332, 26300, "Minna_UTM_Zone_", "N", 4263, 0),
    UTM(27038, 27040, 27000, "Nahrwan_1967_UTM_Zone_", "N", 4270, 0),
    UTM(30729, 30732, 30700, "Nord_Sahara_1959_UTM_Zone_", "N", 4307, 0),
    UTM(24818, 24821, 24800, "PSAD_1956_UTM_Zone_", "N", 4248, 0),
    UTM(24877, 24880, 24860, "PSAD_1956_UTM_Zone_", "S", 4248, kSouth),

    // Gauss-Kruger: the variant named "N" has a plain false easting, the
    // other carries the zone in it.
    GK(28462, 28492, 28460, "Pulkovo_1942_GK_Zone_", "N", 4284, kUtmEasting,
       kGkMeridian),
    GK(28402, 28432, 28400, "Pulkovo_1942_GK_Zone_", "", 4284, kZoneEasting,
       kGkMeridian),
    GK(20062, 20092, 20060, "Pulkovo_1995_GK_Zone_", "N", 4200, kUtmEasting,
       kGkMeridian),
    GK(20002, 20032, 20000, "Pulkovo_1995_GK_Zone_", "", 4200, kZoneEasting,
       kGkMeridian),
    GK(21473, 21483, 21460, "Beijing_1954_GK_Zone_", "N", 4214, kUtmEasting,
       kGkMeridian),
    GK(21413, 21423, 21400, "Beijing_1954_GK_Zone_", "", 4214, kZoneEasting,
       kGkMeridian),
    GK(2391, 2394, 2390, "Finland_Zone_", "", 4123, kZoneEasting,
       kFinlandMeridian),

    {32074, 32077, 32060, "NAD_1927_BLM_Zone_", "N", 4267,
     kTransverseMercator, kFootUS, kBlmEasting, 0, kUtmScale, kUtmMeridian},
};

#undef UTM
#undef GK

// Central meridians east of 180 degrees (Gauss-Kruger zones 31 and 32) are
// given as the same meridian west of Greenwich.
double fold_longitude(double degrees) {
    return degrees > 180 ? degrees - 360 : degrees;
}

const ZoneFamily *family_of(int code) {
    for (const ZoneFamily &family : kFamilies)
        if (code >= family.first && code <= family.last) return &family;
    return nullptr;
}

}  // namespace

ka_projcs *zone_projcs(int code) {
    const ZoneFamily *family = family_of(code);
    if (family == nullptr) return nullptr;
    const int zone = code - family->base;

    char name[KA_NAME_MAX];
    std::snprintf(name, sizeof name, "%s%d%s", family->prefix, zone,
                  family->suffix);

    const struct {
        int code;
        double value;
    } values[] = {
        {kFalseEasting, family->false_easting.at(zone)},
        {kFalseNorthing, family->false_northing},
        {kScaleFactor, family->scale_factor},
        {kCentralMeridian, fold_longitude(family->central_meridian.at(zone))},
        {kLatitudeOfOrigin, 0},
    };
    ka_parameter *slots[KA_PARAMETER_SLOTS] = {};
    for (const auto &value : values) {
        if (!set_parameter(slots, value.code, value.value)) {
            delete_parameters(slots);
            return nullptr;
        }
    }
    return make_projcs(name, family->geogcs, family->projection, family->unit,
                       slots);
}

}  // namespace veltra::catalogue
