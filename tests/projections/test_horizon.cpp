// Horizons of the cylindrical and transverse Mercator projections.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "support/projcs_builder.h"

namespace {

using namespace veltra::test;

struct HorizonDeleter {
    void operator()(ka_horizon *h) const { ka_horizon_del(h); }
};
using HorizonPtr = std::unique_ptr<ka_horizon, HorizonDeleter>;

// Corners (west, south, east, north) in the system's angular unit.
void expect_rectangle(const ka_projcs *pcs, int wrap, double w, double s,
                      double e, double n) {
    HorizonPtr h(ka_generate_horizon(pcs));
    ASSERT_NE(h, nullptr);
    EXPECT_EQ(h->count, 1);
    EXPECT_EQ(h->kind, 1);
    EXPECT_EQ(h->wrap, wrap);
    ASSERT_EQ(h->npoints, 2);
    EXPECT_NEAR(h->points[0], w, 1e-9);
    EXPECT_NEAR(h->points[1], s, 1e-9);
    EXPECT_NEAR(h->points[2], e, 1e-9);
    EXPECT_NEAR(h->points[3], n, 1e-9);
}

TEST(Horizon, CylindricalRectangles) {
    const double gap = 2e-7 / kDegree;  // the seam, in degrees
    expect_rectangle(make_projcs("Miller_Cylindrical", kWgs84Axis, 0, {}).get(),
                     3, -180 + gap, -90, 180 - gap, 90);
    expect_rectangle(
        make_projcs("Mercator", kWgs84Axis, 0, {{"Central_Meridian", 180}})
            .get(),
        1, gap, -89, 360 - gap, 89);
}

TEST(Horizon, TransverseMercatorIsABandAboutTheCentralMeridian) {
    const double w = KA_TM_HORIZON_HALF_WIDTH_DEG;
    for (const char *name : {"Transverse_Mercator", "Gauss_Kruger"})
        expect_rectangle(make_projcs(name, kWgs84Axis, kWgs84Flattening,
                                     {{"Central_Meridian", -75}})
                             .get(),
                         3, -75 - w, -90, -75 + w, 90);
    expect_rectangle(
        make_projcs("Transverse_Mercator", kWgs84Axis, 0,
                    {{"Central_Meridian", 100}}, {.angular = kGrad})
            .get(),
        3, 100 - w / 0.9, -100, 100 + w / 0.9, 100);
    HorizonPtr h(
        ka_generate_horizon(make_projcs("Transverse_Mercator", kWgs84Axis, 0,
                                        {{"Central_Meridian", NAN}})
                                .get()));
    EXPECT_EQ(h->wrap, 0);
    ka_horizon_del(nullptr);
}

// Within the horizon the series round trip stays within a millimetre on
// WGS 84 with k0 = 0.9996 at every latitude.
TEST(Horizon, TransverseMercatorRoundTripWithinTheBandIsUnderAMillimetre) {
    ProjcsPtr pcs = make_projcs("Transverse_Mercator", kWgs84Axis,
                                kWgs84Flattening, {{"Scale_Factor", 0.9996}});
    const double w = KA_TM_HORIZON_HALF_WIDTH_DEG;
    double worst = 0;
    for (double lat = -90; lat <= 90; lat += 0.25) {
        for (double lon : {-w, w / 3, w}) {
            const Point p = to_proj(pcs.get(), lon, lat);
            const Point g = to_geog(pcs.get(), p.x, p.y);
            const double phi = lat * kDegree;
            const double north = ka_m(kWgs84Axis, kWgs84E2, phi) * (g.y - lat);
            const double east =
                ka_n(kWgs84Axis, kWgs84E2, phi) * std::cos(phi) * (g.x - lon);
            worst = std::fmax(worst, std::hypot(north, east) * kDegree);
        }
    }
    EXPECT_LT(worst, 1e-3);
}

}  // namespace
