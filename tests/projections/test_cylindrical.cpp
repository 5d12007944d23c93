// The normal cylindrical projections against PROJ; Plate Carree,
// equidistant cylindrical, Miller and Gall against their defining values.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "support/proj_oracle.h"
#include "support/projcs_builder.h"

namespace {

using namespace veltra::test;

constexpr const char *kNames[] = {"Plate_Carree", "Equidistant_Cylindrical",
                                  "Miller_Cylindrical", "Gall_Stereographic"};

ProjcsPtr system(const char *name, double flattening) {
    return make_projcs(
        name, kWgs84Axis, flattening,
        {{"Central_Meridian", -40}, {"Standard_Parallel_1", 35}});
}

// The flattening is ignored: WGS 84 gives the sphere of radius a.
TEST(Cylindrical, FlatteningIsIgnored) {
    for (const char *name : kNames) {
        const Point e = to_proj(system(name, kWgs84Flattening).get(), -30, 61);
        const Point s = to_proj(system(name, 0).get(), -30, 61);
        EXPECT_EQ(e.x, s.x) << name;
        EXPECT_EQ(e.y, s.y) << name;
    }
}

TEST(Cylindrical, DefiningValues) {
    ProjcsPtr gall = make_projcs("Gall_Stereographic", 1.0, 0, {});
    const Point g = to_proj(gall.get(), 90, 90);  // tan 45 = 1
    EXPECT_NEAR(g.x, std::sqrt(0.5) * kDegree * 90, 1e-15);
    EXPECT_NEAR(g.y, 1 + std::sqrt(0.5), 1e-15);
    // Miller: y = 1.25 a ln tan(pi/4 + 0.4 phi); the equator inverts to
    // exactly 0.
    ProjcsPtr miller = make_projcs("Miller_Cylindrical", 1.0, 0, {});
    EXPECT_NEAR(to_proj(miller.get(), 0, 45).y,
                1.25 * std::log(std::tan(63 * kDegree)), 1e-15);
    EXPECT_EQ(to_geog(miller.get(), 0, 0).y, 0.0);
    // A polar standard parallel collapses the longitudes; nothing guards it.
    ProjcsPtr polar = make_projcs("Equidistant_Cylindrical", kWgs84Axis, 0,
                                  {{"Standard_Parallel_1", 90}});
    EXPECT_LT(std::fabs(to_proj(polar.get(), 120, 10).x), 1e-6);
    double c[2] = {1000, 2000};
    EXPECT_EQ(ka_proj_to_geog(polar.get(), 1, c), 1);
}

#if VELTRA_HAVE_PROJ
// Every normal cylindrical projection beside PROJ (the Mercator ellipsoid to
// the 5e-5 m truncation of the conformal series), and its round trip.
TEST(Cylindrical, AgreeWithProjAndRoundTrip) {
    const struct {
        const char *name;
        double flattening;
        const char *proj;
        double tolerance;
    } cases[] = {
        {"Plate_Carree", kWgs84Flattening, "eqc +R=6378137", 1e-6},
        {"Equidistant_Cylindrical", 0, "eqc +R=6378137 +lat_ts=35", 1e-6},
        {"Miller_Cylindrical", 0, "mill +R=6378137", 1e-6},
        {"Gall_Stereographic", 0, "gall +R=6378137", 1e-6},
        {"Mercator", 0, "merc +R=6378137 +lat_ts=35", 1e-6},
        {"Mercator", kWgs84Flattening, "merc +ellps=WGS84 +lat_ts=35", 1e-4},
        {"Cylindrical_Equal_Area", 0, "cea +R=6378137 +lat_ts=35", 1e-6},
        {"Cylindrical_Equal_Area", kWgs84Flattening,
         "cea +ellps=WGS84 +lat_ts=35", 1e-6},
        {"Behrmann", kWgs84Flattening, "cea +ellps=WGS84 +lat_ts=30", 1e-6},
    };
    for (const auto &c : cases) {
        ProjOracle oracle(std::string("+proj=") + c.proj + " +lon_0=-40");
        ASSERT_TRUE(oracle.valid()) << c.proj;
        ProjcsPtr pcs = system(c.name, c.flattening);
        for (double lat = -88; lat <= 88; lat += 8) {
            for (double lon = -215; lon <= 140; lon += 35) {
                double x, y;
                oracle.run(PJ_FWD, lon * kDegree, lat * kDegree, x, y);
                const Point p = to_proj(pcs.get(), lon, lat);
                EXPECT_NEAR(p.x, x, 1e-6) << c.proj << " " << lon << " " << lat;
                EXPECT_NEAR(p.y, y, c.tolerance) << c.proj << " " << lat;
                const Point g = to_geog(pcs.get(), p.x, p.y);
                EXPECT_NEAR(g.x, std::remainder(lon, 360.0), 1e-9) << c.proj;
                EXPECT_NEAR(g.y, lat, 1e-9) << c.proj;
            }
        }
    }
}
#endif

}  // namespace
