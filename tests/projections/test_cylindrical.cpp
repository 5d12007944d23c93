// Plate Carree, equidistant cylindrical, Miller and Gall stereographic on
// the sphere of radius a, against PROJ and their defining values.
#include "support/proj_oracle.h"
#include "support/projcs_builder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace {

using namespace veltra::test;

constexpr double kA = kWgs84Axis;

// Every one of them ignores the flattening: WGS 84 gives the sphere of
// radius a.
TEST(Cylindrical, FlatteningIsIgnored) {
    for (const char *name : {"Plate_Carree", "Equidistant_Cylindrical",
                             "Miller_Cylindrical", "Gall_Stereographic"}) {
        ProjcsPtr ellipsoid = make_projcs(name, kA, kWgs84Flattening,
                                          {{"Central_Meridian", 5},
                                           {"Standard_Parallel_1", 40}});
        ProjcsPtr sphere = make_projcs(name, kA, 0,
                                       {{"Central_Meridian", 5},
                                        {"Standard_Parallel_1", 40}});
        const Point e = to_proj(ellipsoid.get(), -30, 61);
        const Point s = to_proj(sphere.get(), -30, 61);
        EXPECT_EQ(e.x, s.x) << name;
        EXPECT_EQ(e.y, s.y) << name;
    }
}

TEST(PlateCarree, IsTheAxisTimesTheAngles) {
    ProjcsPtr pcs = make_projcs("Plate_Carree", kA, kWgs84Flattening,
                                {{"Central_Meridian", -90}});
    const Point p = to_proj(pcs.get(), 0, 45);
    EXPECT_DOUBLE_EQ(p.x, kA * kDegree * 90);
    EXPECT_DOUBLE_EQ(p.y, kA * kDegree * 45);
    const Point far = to_proj(pcs.get(), 100, -10);  // 190 east -> 170 west
    EXPECT_NEAR(far.x, -kA * kDegree * 170, 1e-6);
    const Point g = to_geog(pcs.get(), kA * kDegree * 200, kA * kDegree * -45);
    EXPECT_NEAR(g.x, 110, 1e-12);
    EXPECT_NEAR(g.y, -45, 1e-12);
}

// cos(phi1) is (nearly) zero: every longitude collapses onto x = 0 and the
// inverse longitude is meaningless, yet nothing is marked.
TEST(EquidistantCylindrical, PolarStandardParallelIsNotGuarded) {
    ProjcsPtr pcs = make_projcs("Equidistant_Cylindrical", kA, 0,
                                {{"Standard_Parallel_1", 90}});
    EXPECT_LT(std::fabs(to_proj(pcs.get(), 120, 10).x), 1e-6);
    double c[2] = {1000, 2000};
    EXPECT_EQ(ka_proj_to_geog(pcs.get(), 1, c), 1);
    EXPECT_NEAR(c[1], 2000 / kA / kDegree, 1e-12);
}

TEST(Miller, InverseOfTheEquatorIsExactlyZero) {
    ProjcsPtr pcs = make_projcs("Miller_Cylindrical", kA, 0, {});
    const Point g = to_geog(pcs.get(), 0, 0);
    EXPECT_EQ(g.y, 0.0);
    EXPECT_EQ(g.x, 0.0);
    // y = 1.25 a ln tan(pi/4 + 0.4 phi): 45 degrees by hand.
    EXPECT_NEAR(to_proj(pcs.get(), 0, 45).y,
                1.25 * kA * std::log(std::tan(kDegree * (45 + 18))), 1e-7);
}

TEST(Gall, IsTheStereographicCylinderCuttingAt45Degrees) {
    ProjcsPtr pcs = make_projcs("Gall_Stereographic", 1.0, 0, {});
    const Point p = to_proj(pcs.get(), 90, 90);
    EXPECT_NEAR(p.x, std::sqrt(0.5) * kDegree * 90, 1e-15);
    EXPECT_NEAR(p.y, 1 + std::sqrt(0.5), 1e-15);  // tan 45 = 1
    const Point g = to_geog(pcs.get(), p.x, p.y);
    EXPECT_NEAR(g.x, 90, 1e-12);
    EXPECT_NEAR(g.y, 90, 1e-12);
}

#if VELTRA_HAVE_PROJ
struct OracleCase {
    const char *name;
    std::string proj;
};

TEST(Cylindrical, AgreesWithProjAndRoundTrips) {
    const std::string sphere = " +R=" + std::to_string(kA) + " +lon_0=-40";
    const OracleCase cases[] = {
        {"Plate_Carree", "+proj=eqc" + sphere},
        {"Equidistant_Cylindrical", "+proj=eqc +lat_ts=35" + sphere},
        {"Miller_Cylindrical", "+proj=mill" + sphere},
        {"Gall_Stereographic", "+proj=gall" + sphere},
    };
    for (const OracleCase &c : cases) {
        ProjOracle oracle(c.proj);
        ASSERT_TRUE(oracle.valid()) << c.proj;
        ProjcsPtr pcs = make_projcs(c.name, kA, kWgs84Flattening,
                                    {{"Central_Meridian", -40},
                                     {"Standard_Parallel_1", 35}});
        for (double lat = -90; lat <= 90; lat += 7.5) {
            for (double lon = -215; lon <= 140; lon += 35) {
                double x, y;
                oracle.forward(lon * kDegree, lat * kDegree, x, y);
                const Point p = to_proj(pcs.get(), lon, lat);
                EXPECT_NEAR(p.x, x, 1e-6) << c.name << " " << lon << " " << lat;
                EXPECT_NEAR(p.y, y, 1e-6) << c.name << " " << lon << " " << lat;
                const Point g = to_geog(pcs.get(), p.x, p.y);
                EXPECT_NEAR(g.x, std::remainder(lon, 360.0), 1e-10) << c.name;
                EXPECT_NEAR(g.y, lat, 1e-10) << c.name;
            }
        }
    }
}
#endif

}  // namespace
