// The edge rules each projection keeps: Mercator's clamped poles, the
// unguarded spherical corners, the equal-area inverse at the pole and its
// polar-parallel failure, the transverse Mercator series' limits, origin,
// pole and spherical clamp, and the horizons.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <tuple>

#include "support/projcs_builder.h"

namespace {

using namespace veltra::test;

constexpr double kBand = KA_TM_HORIZON_HALF_WIDTH_DEG;  // transverse Mercator horizon

TEST(Cylindrical, ClampedPolesAndUnguardedCorners) {
    // Mercator's poles become pi/2 less 25 ulps: finite, symmetric, counted.
    for (double flattening : {0.0, kWgs84Flattening}) {
        ProjcsPtr pcs = make_projcs("Mercator", kWgs84Axis, flattening, {});
        double c[4] = {0, 90, 0, -90};
        EXPECT_EQ(ka_geog_to_proj(pcs.get(), 2, c), 2);
        EXPECT_NEAR(c[1], 33.53602631873441 * kWgs84Axis, 1e-9 * kWgs84Axis);
        EXPECT_EQ(c[3], -c[1]);
    }
    // Miller: atan(1) / 0.4 - 5 pi / 8 is exactly 0.
    EXPECT_EQ(to_geog(make_projcs("Miller_Cylindrical", 1.0, 0, {}).get(), 0, 0).y, 0.0);
    // A polar standard parallel collapses the longitudes; nothing guards it.
    ProjcsPtr polar =
        make_projcs("Equidistant_Cylindrical", kWgs84Axis, 0, {{"Standard_Parallel_1", 90}});
    EXPECT_LT(std::fabs(to_proj(polar.get(), 120, 10).x), 1e-6);
    double c[2] = {1000, 2000};
    EXPECT_EQ(ka_proj_to_geog(polar.get(), 1, c), 1);
}

// The y of the pole inverts to the pole exactly, and a y beyond it still
// gives a counted point; on the sphere the sine is clamped beyond the pole.
// A polar standard parallel leaves nothing to load, and every point gets
// the library's NaN marker (payload 1) and is left out of the count.
TEST(CylindricalEqualArea, Poles) {
    auto system = [](double parallel, double flattening) {
        return make_projcs("Cylindrical_Equal_Area", kWgs84Axis, flattening,
                           {{"Central_Meridian", 20}, {"Standard_Parallel_1", parallel}});
    };
    ProjcsPtr pcs = system(45, kWgs84Flattening), sphere = system(60, 0);
    const double pole = to_proj(pcs.get(), 20, 90).y;
    EXPECT_EQ(to_geog(pcs.get(), 0, pole).y, 90.0);
    EXPECT_EQ(to_geog(pcs.get(), 0, -pole).y, -90.0);
    double c[2] = {0, 1.01 * pole};
    EXPECT_EQ(ka_proj_to_geog(pcs.get(), 1, c), 1);
    EXPECT_EQ(to_geog(sphere.get(), 0, 3 * kWgs84Axis).y, 90.0);
    EXPECT_EQ(to_geog(sphere.get(), 0, -3 * kWgs84Axis).y, -90.0);

    ka_projection *cea = veltra::registry_projection("Cylindrical_Equal_Area");
    const double ellipsoid[2] = {kWgs84Axis, kWgs84E2};
    double marker;
    ka_set_nan(&marker);
    for (double parallel : {90.0, -90.0}) {
        ProjcsPtr polar = system(parallel, kWgs84Flattening);
        EXPECT_EQ(ka_projcs_load_constants(polar.get()), 0);
        EXPECT_EQ(ka_projcs_isconstloaded(polar.get()), 0);
        double params[16] = {}, points[4] = {0.1, 0.2, -3.0, 1.5};
        params[3] = parallel * kDegree;
        EXPECT_EQ(ka_projection_forward(cea)(ellipsoid, params, 2, points, nullptr, nullptr), 0);
        for (double &v : points) EXPECT_EQ(std::memcmp(&v, &marker, sizeof marker), 0);
    }
    ka_projection_del(cea);
}

ProjcsPtr tm(double central_meridian, double origin = 0) {
    return make_projcs("Transverse_Mercator", kWgs84Axis, kWgs84Flattening,
                       {{"Central_Meridian", central_meridian}, {"Scale_Factor", 0.9996},
                        {"Latitude_Of_Origin", origin}});
}

// k0 0.9996 on WGS 84: 3 degrees out the round trip holds to 1e-10
// degrees; within the horizon's band it stays within a millimetre at
// every latitude; 30 degrees out it drifts by about -0.014 and 0.0016
// degrees, silently.
TEST(TransverseMercator, RoundTripsAndTheSeriesLimits) {
    ProjcsPtr pcs = tm(0);
    const Point p = to_proj(pcs.get(), 3, 45);
    const Point g = to_geog(pcs.get(), p.x, p.y);
    EXPECT_NEAR(g.x, 3, 1e-10);
    EXPECT_NEAR(g.y, 45, 1e-10);
    const double metres_per_degree = 111320;
    double worst = 0;
    for (double lat = -90; lat <= 90; lat += 0.25) {
        for (double lon : {-kBand, kBand / 3, kBand}) {
            const Point q = to_proj(pcs.get(), lon, lat);
            const Point b = to_geog(pcs.get(), q.x, q.y);
            const double east = (b.x - lon) * std::cos(lat * kDegree);
            worst = std::fmax(worst, std::hypot(b.y - lat, east) * metres_per_degree);
        }
    }
    EXPECT_LT(worst, 1e-3);
    double c[2] = {30, 45};
    EXPECT_EQ(ka_geog_to_proj(pcs.get(), 1, c), 1);
    EXPECT_EQ(ka_proj_to_geog(pcs.get(), 1, c), 1);
    EXPECT_NEAR(c[0] - 30, -0.014, 0.0005);
    EXPECT_NEAR(c[1] - 45, 0.0016, 0.0001);
}

// The origin maps to exactly (0, 0) and comes back through the footpoint
// series, which invert the meridian arc to their truncation.  Every
// longitude of the pole lands on the central meridian at k0 (Q - M0):
// 0.9996 (10001965.729 - 1105854.833) m for an origin at 10 degrees.
TEST(TransverseMercator, OriginAndPole) {
    ProjcsPtr pcs = tm(15, 10);
    const Point o = to_proj(pcs.get(), 15, 10);
    EXPECT_TRUE(o.x == 0 && o.y == 0) << o.x << " " << o.y;
    const Point g = to_geog(pcs.get(), 0, 0);
    EXPECT_DOUBLE_EQ(g.x, 15);
    EXPECT_NEAR(g.y, 10, 1e-11);
    for (double lon : {-170.0, -45.0, 0.0, 3.0, 90.0, 180.0}) {
        const Point p = to_proj(pcs.get(), lon, 90);
        EXPECT_LT(std::fabs(p.x), 1e-9) << lon;
        EXPECT_NEAR(p.y, 0.9996 * (10001965.729 - 1105854.833), 1e-3) << lon;
        EXPECT_NEAR(to_proj(pcs.get(), lon, -90).y, -0.9996 * (10001965.729 + 1105854.833), 1e-3);
    }
}

// The clamped B = 1 - 3.6e-15 gives a finite x, which comes back to
// dl = 90 degrees less sqrt(7.2e-15) rad.
TEST(TransverseMercator, SphereAtNinetyDegreesFromTheMeridianIsFinite) {
    ProjcsPtr pcs = make_projcs("Transverse_Mercator", 6371000, 0, {{"Scale_Factor", 1}});
    double c[4] = {90, 0, -90, 0};
    EXPECT_EQ(ka_geog_to_proj(pcs.get(), 2, c), 2);
    EXPECT_EQ(c[2], -c[0]);
    EXPECT_EQ(ka_proj_to_geog(pcs.get(), 2, c), 2);
    EXPECT_NEAR(c[0], 90 - std::sqrt(7.2e-15) / kDegree, 1e-7);
}

// One rectangle, corners (west, south, east, north) in the system's
// angular unit, or wrap code 0 and no corners for a central meridian that
// is not a number.
void expect_rectangle(ProjcsPtr pcs, int wrap, double w = 0, double s = 0, double e = 0,
                      double n = 0) {
    ka_horizon *h = ka_generate_horizon(pcs.get());
    ASSERT_NE(h, nullptr);
    EXPECT_EQ(std::tuple(h->count, h->kind, h->wrap, h->npoints), std::tuple(1, 1, wrap, 2));
    const double corners[4] = {w, s, e, n};
    for (int i = 0; i < 4 && wrap != 0; ++i) EXPECT_NEAR(h->points[i], corners[i], 1e-9) << i;
    ka_horizon_del(h);
}

TEST(Horizon, Rectangles) {
    const double gap = 2e-7 / kDegree;  // the seam, in degrees
    expect_rectangle(make_projcs("Miller_Cylindrical", kWgs84Axis, 0, {}), 3, -180 + gap, -90,
                     180 - gap, 90);
    expect_rectangle(make_projcs("Mercator", kWgs84Axis, 0, {{"Central_Meridian", 180}}), 1,
                     gap, -89, 360 - gap, 89);
    // Transverse Mercator: a band about the central meridian.
    expect_rectangle(tm(-75), 3, -75 - kBand, -90, -75 + kBand, 90);
    expect_rectangle(make_projcs("Gauss_Kruger", kWgs84Axis, 0, {{"Central_Meridian", 100}},
                                 {.angular = kGrad}),
                     3, 100 - kBand / 0.9, -100, 100 + kBand / 0.9, 100);
    expect_rectangle(make_projcs("Transverse_Mercator", kWgs84Axis, 0, {{"Central_Meridian", NAN}}),
                     0);
    ka_horizon_del(nullptr);
}

}  // namespace
