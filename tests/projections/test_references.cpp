// Every projection against independent references, forward and back:
// published worked examples (Snyder, "Map Projections: A Working Manual",
// to 0.1 m or 1e-7 on the unit sphere; the EPSG guidance note 7-2, to the
// centimetre) and PROJ run as an oracle.
#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <string>

#include "support/proj_oracle.h"
#include "support/projcs_builder.h"

namespace {

using namespace veltra::test;

constexpr double kClarke1866A = 6378206.4;
const double kClarke1866F = flattening_of(0.00676866);

struct Example {
    const char *source, *projection;
    double axis, flattening;
    std::initializer_list<ParameterValue> parameters;
    double lon, lat, x, y, metres, degrees;  // tolerances of the two directions last
};

TEST(ProjectionReferences, WorkedExamples) {
    const Example examples[] = {
        {"Snyder p. 266", "Mercator", kClarke1866A, kClarke1866F, {{"Central_Meridian", -180}},
         -75, 35, 11688673.7, 4139145.6, 0.06, 1e-6},
        {"Snyder p. 266, unit sphere", "Mercator", 1.0, 0, {{"Central_Meridian", -180}},
         -75, 35, 1.8325957, 0.6528366, 5e-8, 5e-6},
        {"EPSG Mercator (variant B)", "Mercator", 6378245.0, 1 / 298.3,
         {{"Central_Meridian", 51}, {"Standard_Parallel_1", 42}},
         53, 53, 165704.29, 5171848.07, 0.005, 1e-7},
        {"EPSG British National Grid", "Transverse_Mercator", 6377563.396, 1 / 299.3249646,
         {{"False_Easting", 400000}, {"False_Northing", -100000}, {"Central_Meridian", -2},
          {"Scale_Factor", 0.9996012717}, {"Latitude_Of_Origin", 49}},
         0.5, 50.5, 577274.98, 69740.49, 0.006, 1e-7},
        {"Snyder p. 269", "Transverse_Mercator", kClarke1866A, kClarke1866F,
         {{"Central_Meridian", -75}, {"Scale_Factor", 0.9996}},
         -73.5, 40.5, 127106.5, 4484124.4, 0.05, 1e-6},
        {"UTM, WGS 84", "Gauss_Kruger", kWgs84Axis, kWgs84Flattening,
         {{"Scale_Factor", 0.9996}}, 3, 45, 236446.026, 4987329.505, 0.0005, 1e-8},
    };
    for (const Example &e : examples) {
        SCOPED_TRACE(e.source);
        ProjcsPtr pcs = make_projcs(e.projection, e.axis, e.flattening, e.parameters);
        const Point p = to_proj(pcs.get(), e.lon, e.lat);
        EXPECT_NEAR(p.x, e.x, e.metres);
        EXPECT_NEAR(p.y, e.y, e.metres);
        const Point g = to_geog(pcs.get(), e.x, e.y);
        EXPECT_NEAR(g.x, e.lon, e.degrees);
        EXPECT_NEAR(g.y, e.lat, e.degrees);
    }
}

#if VELTRA_HAVE_PROJ
// Each system is given every parameter; the projections ignore those they
// do not read (the spherical-only ones the flattening too, Behrmann its
// standard parallel for 30 degrees).  The cylindricals are sampled out to
// 215 degrees from the central meridian, so longitudes fold; transverse
// Mercator within a 3-degree zone on the ellipsoid, where PROJ's exact
// algorithm and our series agree to a millimetre, and 60 degrees on the
// sphere, where PROJ's arccosine northing loses digits at the equator (the
// grid steps over it).  The Mercator ellipsoid agrees to the 5e-5 m
// truncation of the conformal series.
TEST(ProjectionReferences, AgreeWithProjAndRoundTrip) {
    const struct {
        const char *name;
        double flattening;
        const char *proj;
        double metres = 1e-6, span = 215, degrees = 1e-9;
    } cases[] = {
        {"Plate_Carree", kWgs84Flattening, "eqc +R=6378137"},
        {"Equidistant_Cylindrical", kWgs84Flattening, "eqc +R=6378137 +lat_ts=35"},
        {"Miller_Cylindrical", kWgs84Flattening, "mill +R=6378137"},
        {"Gall_Stereographic", kWgs84Flattening, "gall +R=6378137"},
        {"Mercator", 0, "merc +R=6378137 +lat_ts=35"},
        {"Mercator", kWgs84Flattening, "merc +ellps=WGS84 +lat_ts=35", 1e-4},
        {"Cylindrical_Equal_Area", 0, "cea +R=6378137 +lat_ts=35"},
        {"Cylindrical_Equal_Area", kWgs84Flattening, "cea +ellps=WGS84 +lat_ts=35"},
        {"Behrmann", 0, "cea +R=6378137 +lat_ts=30"},
        {"Behrmann", kWgs84Flattening, "cea +ellps=WGS84 +lat_ts=30"},
        {"Transverse_Mercator", kWgs84Flattening, "tmerc +ellps=WGS84 +k=0.9996 +lat_0=20", 1e-3,
         3, 1e-8},
        {"Transverse_Mercator", 0, "tmerc +R=6378137 +k=0.9996 +lat_0=20", 1e-6, 60},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(std::string(c.name) + " / " + c.proj);
        ProjOracle oracle(std::string("+proj=") + c.proj + " +lon_0=-40");
        ASSERT_TRUE(oracle.valid());
        ProjcsPtr pcs = make_projcs(c.name, kWgs84Axis, c.flattening,
                                    {{"Central_Meridian", -40}, {"Standard_Parallel_1", 35},
                                     {"Scale_Factor", 0.9996}, {"Latitude_Of_Origin", 20}});
        for (double lat = -86; lat <= 86; lat += 4) {
            for (double lon = -40 - c.span; lon <= -40 + c.span; lon += c.span / 6) {
                double x, y;
                oracle.run(PJ_FWD, lon * kDegree, lat * kDegree, x, y);
                const Point p = to_proj(pcs.get(), lon, lat);
                EXPECT_NEAR(p.x, x, c.metres) << lon << " " << lat;
                EXPECT_NEAR(p.y, y, c.metres) << lon << " " << lat;
                const Point g = to_geog(pcs.get(), x, y);
                EXPECT_NEAR(g.x, std::remainder(lon, 360.0), c.degrees) << lon << " " << lat;
                EXPECT_NEAR(g.y, lat, c.degrees) << lon << " " << lat;
            }
        }
    }
}
#endif

}  // namespace
