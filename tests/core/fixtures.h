// Objects the core tests build by hand, with the published values of the
// systems they stand for, and helpers to write, read and delete them.
#pragma once

#include "veltra.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <string>
#include <type_traits>
#include <utility>

namespace fixtures {

inline constexpr double kDegree = 0.0174532925199433;  // as texts write it
inline constexpr double kGrad = 0.015707963267948967;  // pi / 200

inline ka_geogcs *geogcs(const char *name, const char *datum, const char *spheroid, double a,
                         double f, double unit = kDegree, double meridian = 0.0) {
    return ka_geogcs_new(name, ka_datum_new(datum, ka_spheroid_new(spheroid, a, f)),
                         ka_primem_new("Greenwich", meridian), ka_unit_new("Degree", unit));
}
// GCS_WGS_1984: a = 6378137 m, 1/f = 298.257223563; GCS_WGS_1972: a =
// 6378135 m, 1/f = 298.26.  Greenwich, degrees.
inline ka_geogcs *wgs84(const char *datum = "D_WGS_1984") {
    return geogcs("GCS_WGS_1984", datum, "WGS_1984", 6378137.0, 1 / 298.257223563);
}
inline ka_geogcs *wgs72() {
    return geogcs("GCS_WGS_1972", "D_WGS_1972", "WGS_1972", 6378135.0, 1 / 298.26);
}

using Param = std::pair<const char *, double>;  // a parameter's name and value

// Parameters in the slots their names give (a name without one is dropped).
inline ka_parameter **fill_slots(ka_parameter **slots, std::initializer_list<Param> values) {
    std::fill(slots, slots + KA_PARAMETER_SLOTS, nullptr);
    for (auto [name, value] : values) {
        ka_parameter *p = ka_parameter_new(name, value);
        const int slot = ka_parameter_index(p);
        if (slot >= 0) slots[slot] = p; else ka_parameter_del(p);
    }
    return slots;
}

// A projected system on a projection of the library's table.
inline ka_projcs *projcs(const char *projection, std::initializer_list<Param> values,
                         ka_geogcs *base = wgs84(), double linear = 1.0, const char *name = "PCS") {
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    const std::string text = std::string("PROJECTION[\"") + projection + "\"]";
    return ka_projcs_new(name, base, ka_projection_from_string(text.c_str()),
                         fill_slots(slots, values), ka_unit_new("Meter", linear));
}

// WGS 84 / UTM zone 33N: central meridian 15 E, scale 0.9996, false
// easting 500000 m.
inline ka_projcs *utm33n(const char *name = "WGS_1984_UTM_Zone_33N") {
    return projcs("Transverse_Mercator",
                  {{"False_Easting", 500000.0}, {"False_Northing", 0.0}, {"Central_Meridian", 15.0},
                   {"Scale_Factor", 0.9996}, {"Latitude_Of_Origin", 0.0}},
                  wgs84(), 1.0, name);
}

inline const std::string kWgs84Text =
    "GEOGCS[\"GCS_WGS_1984\",DATUM[\"D_WGS_1984\",SPHEROID[\"WGS_1984\",6378137.0,"
    "298.257223563]],PRIMEM[\"Greenwich\",0.0],UNIT[\"Degree\",0.0174532925199433]]";
inline const std::string kWgs72Text =
    "GEOGCS[\"GCS_WGS_1972\",DATUM[\"D_WGS_1972\",SPHEROID[\"WGS_1972\",6378135.0,"
    "298.26]],PRIMEM[\"Greenwich\",0.0],UNIT[\"Degree\",0.0174532925199433]]";
inline const std::string kUtm33nText =
    "PROJCS[\"WGS_1984_UTM_Zone_33N\"," + kWgs84Text +
    ",PROJECTION[\"Transverse_Mercator\"],PARAMETER[\"False_Easting\",500000.0],"
    "PARAMETER[\"False_Northing\",0.0],PARAMETER[\"Central_Meridian\",15.0],"
    "PARAMETER[\"Scale_Factor\",0.9996],PARAMETER[\"Latitude_Of_Origin\",0.0],"
    "UNIT[\"Meter\",1.0]]";

// What a name operation or a writer puts in a buffer.  A writer's result is
// checked too: the character count, or the buffer for PROJCS and GEOGTRAN.
template <class Fill> std::string written(Fill fill) {
    char text[KA_TEXT_MAX];
    std::memset(text, 'x', sizeof text);
    if constexpr (std::is_void_v<std::invoke_result_t<Fill, char *>>) {
        fill(text);
    } else {
        const auto result = fill(text);
        if constexpr (std::is_pointer_v<decltype(result)>) EXPECT_EQ(result, text);
        else EXPECT_EQ(result, static_cast<int>(std::strlen(text)));
    }
    return text;
}
#define NAME_OF(kind, object) fixtures::written([&](char *t) { ka_##kind##_name(object, t); })
#define TEXT_OF(kind, object) \
    fixtures::written([&](char *t) { return ka_##kind##_to_string(object, t); })

#define FIXTURES_DROP(kind) \
    inline void drop(ka_##kind *object) { ka_##kind##_del(object); }
FIXTURES_DROP(unit) FIXTURES_DROP(spheroid) FIXTURES_DROP(primem) FIXTURES_DROP(datum)
FIXTURES_DROP(geogcs) FIXTURES_DROP(parameter) FIXTURES_DROP(projection) FIXTURES_DROP(projcs)
FIXTURES_DROP(method) FIXTURES_DROP(geogtran)
inline void drop(void *coordsys) { ka_coordsys_del(coordsys); }
// Deletes objects of any kinds.
template <class... T> void del(T *...objects) { (drop(objects), ...); }

// What the object a reader makes of a text writes (the object is then
// deleted), or "null" when the reader gives none.
#define REWRITTEN(kind, text) \
    fixtures::rewritten(ka_##kind##_from_string(text), ka_##kind##_to_string)
template <class T, class Writer> std::string rewritten(T *object, Writer write) {
    char text[KA_TEXT_MAX] = "null";
    if (object != nullptr) write(object, text);
    del(object);
    return text;
}

}  // namespace fixtures
