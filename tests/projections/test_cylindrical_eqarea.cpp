// Cylindrical equal-area and Behrmann against PROJ and their defining
// properties; the polar-parallel failure and the inverse's pole rule.
#include "support/proj_oracle.h"
#include "support/projcs_builder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

namespace {

using namespace veltra::test;

ProjcsPtr cea(double parallel, double flattening = kWgs84Flattening) {
    return make_projcs("Cylindrical_Equal_Area", kWgs84Axis, flattening,
                       {{"Central_Meridian", 20},
                        {"Standard_Parallel_1", parallel}});
}

// On the sphere y = a sin(phi) / cos(phi1): the pole is at a / cos(phi1).
TEST(CylindricalEqualArea, SphereFollowsTheDefiningFormulas) {
    ProjcsPtr pcs = cea(60, 0);
    const Point p = to_proj(pcs.get(), 50, 30);
    EXPECT_NEAR(p.x, kWgs84Axis * 0.5 * 30 * kDegree, 1e-7);
    EXPECT_NEAR(p.y, kWgs84Axis * 0.5 / 0.5, 1e-7);
    // Beyond the pole the sine is clamped to 1.
    const Point g = to_geog(pcs.get(), 0, 3 * kWgs84Axis);
    EXPECT_EQ(g.y, 90.0);
    EXPECT_EQ(to_geog(pcs.get(), 0, -3 * kWgs84Axis).y, -90.0);
}

TEST(CylindricalEqualArea, PolarStandardParallelFailsEveryPoint) {
    for (double parallel : {90.0, -90.0}) {
        ProjcsPtr pcs = cea(parallel);
        double c[6] = {0, 0, 10, 10, -20, 80};
        EXPECT_EQ(ka_geog_to_proj(pcs.get(), 3, c), 0);
        for (double v : c) EXPECT_TRUE(std::isnan(v));
        EXPECT_EQ(ka_projcs_load_constants(pcs.get()), 0);
        EXPECT_EQ(ka_projcs_isconstloaded(pcs.get()), 0);
    }
    // The marker is the library's quiet NaN with payload 1.
    ka_projection *projection = ka_factory_projection(43034);
    const double ellipsoid[2] = {kWgs84Axis, 0.0066943799901413165};
    double params[16] = {};
    params[3] = 1.5707963267948966;
    double point[2] = {0.1, 0.2}, marker;
    ka_set_nan(&marker);
    ka_projection_forward(projection)(ellipsoid, params, 1, point, nullptr,
                                      nullptr);
    EXPECT_EQ(std::memcmp(point, &marker, sizeof marker), 0);
    ka_projection_del(projection);
}

TEST(CylindricalEqualArea, InverseOfThePoleNeedsNoIteration) {
    ProjcsPtr pcs = cea(30);
    const Point north = to_proj(pcs.get(), 20, 90);
    const Point south = to_proj(pcs.get(), 20, -90);
    EXPECT_EQ(to_geog(pcs.get(), 0, north.y).y, 90.0);
    EXPECT_EQ(to_geog(pcs.get(), 0, south.y).y, -90.0);
}

// Beyond the pole no latitude fits: the last iterate comes back, counted.
TEST(CylindricalEqualArea, ImpossibleTargetIsStillCounted) {
    ProjcsPtr pcs = cea(30);
    double c[2] = {0, 1.01 * to_proj(pcs.get(), 20, 90).y};
    EXPECT_EQ(ka_proj_to_geog(pcs.get(), 1, c), 1);
}

TEST(CylindricalEqualArea, RoundTripsAndPreservesArea) {
    ProjcsPtr pcs = cea(45);
    for (double lat = -89; lat <= 89; lat += 2) {
        const Point p = to_proj(pcs.get(), 170, lat);
        const Point g = to_geog(pcs.get(), p.x, p.y);
        EXPECT_NEAR(g.y, lat, 1e-10) << lat;
        EXPECT_NEAR(g.x, 170, 1e-10);
    }
    // The map of the whole earth has the ellipsoid's area, 4 pi R^2 with
    // R the authalic radius.
    const double e2 = (2 - kWgs84Flattening) * kWgs84Flattening;
    const Point pole = to_proj(pcs.get(), 20, 90);
    const Point seam = to_proj(pcs.get(), 200, 0);
    const double r = ka_auth_r(kWgs84Axis, e2);
    EXPECT_NEAR(2 * std::fabs(seam.x) * 2 * pole.y / (4 * M_PI * r * r), 1,
                1e-12);
}

TEST(Behrmann, IsTheEqualAreaCylinderAt30DegreesWhateverTheParameters) {
    for (double flattening : {0.0, kWgs84Flattening}) {
        ProjcsPtr behrmann = make_projcs(
            "Behrmann", kWgs84Axis, flattening,
            {{"Central_Meridian", 20}, {"Standard_Parallel_1", 50}});
        ProjcsPtr thirty = cea(30, flattening);
        for (double lat : {-75.0, -10.0, 0.0, 33.0, 90.0}) {
            const Point b = to_proj(behrmann.get(), -100, lat);
            const Point c = to_proj(thirty.get(), -100, lat);
            EXPECT_NEAR(b.x, c.x, 1e-6);
            EXPECT_NEAR(b.y, c.y, 1e-6);
            const Point g = to_geog(behrmann.get(), b.x, b.y);
            EXPECT_NEAR(g.y, lat, 1e-10);
            EXPECT_NEAR(g.x, -100, 1e-10);
        }
    }
}

#if VELTRA_HAVE_PROJ
TEST(CylindricalEqualArea, AgreesWithProj) {
    ProjOracle ellipsoid("+proj=cea +ellps=WGS84 +lon_0=20 +lat_ts=30");
    ProjOracle sphere("+proj=cea +R=6378137 +lon_0=20 +lat_ts=30");
    ASSERT_TRUE(ellipsoid.valid() && sphere.valid());
    ProjcsPtr ours = cea(30), ours_sphere = cea(30, 0);
    ProjcsPtr behrmann = make_projcs("Behrmann", kWgs84Axis, kWgs84Flattening,
                                     {{"Central_Meridian", 20}});
    for (double lat = -88; lat <= 88; lat += 4) {
        for (double lon = -155; lon <= 190; lon += 30) {
            double x, y;
            ellipsoid.forward(lon * kDegree, lat * kDegree, x, y);
            Point p = to_proj(ours.get(), lon, lat);
            EXPECT_NEAR(p.x, x, 1e-6);
            EXPECT_NEAR(p.y, y, 1e-6);
            p = to_proj(behrmann.get(), lon, lat);
            EXPECT_NEAR(p.x, x, 1e-6);
            EXPECT_NEAR(p.y, y, 1e-6);
            const Point g = to_geog(ours.get(), x, y);
            EXPECT_NEAR(g.y, lat, 1e-10);
            sphere.forward(lon * kDegree, lat * kDegree, x, y);
            p = to_proj(ours_sphere.get(), lon, lat);
            EXPECT_NEAR(p.x, x, 1e-6);
            EXPECT_NEAR(p.y, y, 1e-6);
        }
    }
}
#endif

}  // namespace
