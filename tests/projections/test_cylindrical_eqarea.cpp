// Cylindrical equal-area and Behrmann: defining properties, the polar
// parallel failure and the inverse's pole rule (PROJ: test_cylindrical).
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

// The whole map has the ellipsoid's area 4 pi R^2 (R the authalic radius);
// on the sphere y = a sin(phi) / cos(phi1), clamped beyond the pole.
TEST(CylindricalEqualArea, PreservesAreaAndRoundTrips) {
    ProjcsPtr pcs = cea(45);
    const double r = ka_auth_r(kWgs84Axis, kWgs84E2);
    const double width = 2 * std::fabs(to_proj(pcs.get(), 200, 0).x);
    const double height = 2 * to_proj(pcs.get(), 20, 90).y;
    EXPECT_NEAR(width * height / (4 * M_PI * r * r), 1, 1e-12);
    for (double lat = -89; lat <= 89; lat += 2) {
        const Point p = to_proj(pcs.get(), 170, lat);
        const Point g = to_geog(pcs.get(), p.x, p.y);
        EXPECT_NEAR(g.y, lat, 1e-10) << lat;
        EXPECT_NEAR(g.x, 170, 1e-10);
    }
    ProjcsPtr sphere = cea(60, 0);
    EXPECT_NEAR(to_proj(sphere.get(), 50, 30).y, kWgs84Axis, 1e-7);
    EXPECT_EQ(to_geog(sphere.get(), 0, 3 * kWgs84Axis).y, 90.0);
    EXPECT_EQ(to_geog(sphere.get(), 0, -3 * kWgs84Axis).y, -90.0);
}

// The y of the pole inverts to the pole exactly, without iterating; a
// target beyond it still returns the last iterate, counted.
TEST(CylindricalEqualArea, InverseAtAndBeyondThePole) {
    ProjcsPtr pcs = cea(30);
    const double pole = to_proj(pcs.get(), 20, 90).y;
    EXPECT_EQ(to_geog(pcs.get(), 0, pole).y, 90.0);
    EXPECT_EQ(to_geog(pcs.get(), 0, -pole).y, -90.0);
    double c[2] = {0, 1.01 * pole};
    EXPECT_EQ(ka_proj_to_geog(pcs.get(), 1, c), 1);
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
    // The marker is the library's NaN with payload 1.
    ka_projection *projection = ka_factory_projection(43034);
    const double ellipsoid[2] = {kWgs84Axis, kWgs84E2};
    double params[16] = {}, point[2] = {0.1, 0.2}, marker;
    params[3] = M_PI / 2;
    ka_set_nan(&marker);
    ka_projection_forward(projection)(ellipsoid, params, 1, point, nullptr,
                                      nullptr);
    EXPECT_EQ(std::memcmp(&point[1], &marker, sizeof marker), 0);
    ka_projection_del(projection);
}

TEST(Behrmann, IsTheCylinderAt30DegreesWhateverTheParameters) {
    for (double flattening : {0.0, kWgs84Flattening}) {
        ProjcsPtr behrmann = make_projcs(
            "Behrmann", kWgs84Axis, flattening,
            {{"Central_Meridian", 20}, {"Standard_Parallel_1", 50}});
        ProjcsPtr thirty = cea(30, flattening);
        for (double lat : {-75.0, 0.0, 33.0, 90.0}) {
            const Point b = to_proj(behrmann.get(), -100, lat);
            const Point c = to_proj(thirty.get(), -100, lat);
            EXPECT_NEAR(b.x, c.x, 1e-6);
            EXPECT_NEAR(b.y, c.y, 1e-6);
            EXPECT_NEAR(to_geog(behrmann.get(), b.x, b.y).y, lat, 1e-10);
        }
    }
}

}  // namespace
