// Objects the text-form tests build by hand, with the published values of
// the systems they stand for.
#pragma once

#include "veltra.h"

#include <string>

namespace text_fixtures {

// GCS_WGS_1984: WGS 84 ellipsoid (a = 6378137 m, 1/f = 298.257223563),
// Greenwich, degrees.
inline ka_geogcs *wgs84() {
    return ka_geogcs_new(
        "GCS_WGS_1984",
        ka_datum_new("D_WGS_1984",
                     ka_spheroid_new("WGS_1984", 6378137.0, 1 / 298.257223563)),
        ka_primem_new("Greenwich", 0.0),
        ka_unit_new("Degree", 0.0174532925199433));
}

// Routines for projections and methods built by hand: the text form only
// stores and compares them.
inline int no_projection(const double *, const double *, int n, double *,
                         const int *, const double *) {
    return n;
}
inline int no_method(const double *, const double *, const double *,
                     const char *, int n, double *, double *, void *, void *,
                     void *) {
    return n;
}

// WGS 84 / UTM zone 33N: Transverse Mercator, central meridian 15 E, scale
// 0.9996, false easting 500000 m.
inline ka_projcs *utm33n(ka_projection *projection) {
    ka_parameter *slots[KA_PARAMETER_SLOTS] = {};
    slots[0] = ka_parameter_new("False_Easting", 500000.0);
    slots[1] = ka_parameter_new("False_Northing", 0.0);
    slots[2] = ka_parameter_new("Central_Meridian", 15.0);
    slots[5] = ka_parameter_new("Scale_Factor", 0.9996);
    slots[6] = ka_parameter_new("Latitude_Of_Origin", 0.0);
    return ka_projcs_new("WGS_1984_UTM_Zone_33N", wgs84(), projection, slots,
                         ka_unit_new("Meter", 1.0));
}

inline const std::string kWgs84Text =
    "GEOGCS[\"GCS_WGS_1984\",DATUM[\"D_WGS_1984\",SPHEROID[\"WGS_1984\","
    "6378137.0,298.257223563]],PRIMEM[\"Greenwich\",0.0],"
    "UNIT[\"Degree\",0.0174532925199433]]";

inline const std::string kUtm33nText =
    "PROJCS[\"WGS_1984_UTM_Zone_33N\"," + kWgs84Text +
    ",PROJECTION[\"Transverse_Mercator\"],"
    "PARAMETER[\"False_Easting\",500000.0],"
    "PARAMETER[\"False_Northing\",0.0],"
    "PARAMETER[\"Central_Meridian\",15.0],"
    "PARAMETER[\"Scale_Factor\",0.9996],"
    "PARAMETER[\"Latitude_Of_Origin\",0.0],"
    "UNIT[\"Meter\",1.0]]";

}  // namespace text_fixtures
