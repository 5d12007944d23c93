// Horizons of the cylindrical and transverse Mercator projections.
#include "support/projcs_builder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

namespace {

using namespace veltra::test;

struct HorizonDeleter {
    void operator()(ka_horizon *h) const { ka_horizon_del(h); }
};
using HorizonPtr = std::unique_ptr<ka_horizon, HorizonDeleter>;

TEST(Horizon, WorldRectangleAboutGreenwichInDegrees) {
    ProjcsPtr pcs = make_projcs("Miller_Cylindrical", kWgs84Axis, 0, {});
    HorizonPtr h(ka_generate_horizon(pcs.get()));
    ASSERT_NE(h, nullptr);
    EXPECT_EQ(h->count, 1);
    EXPECT_EQ(h->kind, 1);
    EXPECT_EQ(h->wrap, 3);
    ASSERT_EQ(h->npoints, 2);
    EXPECT_NEAR(h->points[0], -180 + 2e-7 / kDegree, 1e-9);
    EXPECT_DOUBLE_EQ(h->points[1], -90);
    EXPECT_NEAR(h->points[2], 180 - 2e-7 / kDegree, 1e-9);
    EXPECT_DOUBLE_EQ(h->points[3], 90);
}

TEST(Horizon, MercatorStopsOneDegreeShortOfThePoles) {
    ProjcsPtr pcs = make_projcs("Mercator", kWgs84Axis, kWgs84Flattening,
                                {{"Central_Meridian", 180}});
    HorizonPtr h(ka_generate_horizon(pcs.get()));
    ASSERT_NE(h, nullptr);
    EXPECT_EQ(h->wrap, 1);  // antimeridian at 0
    EXPECT_NEAR(h->points[0], 2e-7 / kDegree, 1e-9);
    EXPECT_NEAR(h->points[2], 360 - 2e-7 / kDegree, 1e-9);
    EXPECT_NEAR(h->points[1], -89, 1e-12);
    EXPECT_NEAR(h->points[3], 89, 1e-12);
}

TEST(Horizon, TransverseMercatorIsABandAboutTheCentralMeridian) {
    for (const char *name : {"Transverse_Mercator", "Gauss_Kruger"}) {
        ProjcsPtr pcs = make_projcs(name, kWgs84Axis, kWgs84Flattening,
                                    {{"Central_Meridian", -75}});
        HorizonPtr h(ka_generate_horizon(pcs.get()));
        ASSERT_NE(h, nullptr);
        EXPECT_EQ(h->count, 1);
        EXPECT_EQ(h->kind, 1);
        EXPECT_EQ(h->wrap, 3);
        EXPECT_NEAR(h->points[0], -75 - KA_TM_HORIZON_HALF_WIDTH_DEG, 1e-12);
        EXPECT_NEAR(h->points[1], -90, 1e-12);
        EXPECT_NEAR(h->points[2], -75 + KA_TM_HORIZON_HALF_WIDTH_DEG, 1e-12);
        EXPECT_NEAR(h->points[3], 90, 1e-12);
    }
    ProjcsPtr grads = make_projcs("Transverse_Mercator", kWgs84Axis,
                                  kWgs84Flattening, {{"Central_Meridian", 100}},
                                  {.angular = kGrad});
    HorizonPtr h(ka_generate_horizon(grads.get()));
    EXPECT_NEAR(h->points[2], 100 + KA_TM_HORIZON_HALF_WIDTH_DEG / 0.9, 1e-9);
    EXPECT_NEAR(h->points[3], 100, 1e-9);  // the pole in grads
}

TEST(Horizon, NaNCentralMeridianGivesWrapZero) {
    ProjcsPtr pcs = make_projcs("Transverse_Mercator", kWgs84Axis,
                                kWgs84Flattening, {{"Central_Meridian", NAN}});
    HorizonPtr h(ka_generate_horizon(pcs.get()));
    ASSERT_NE(h, nullptr);
    EXPECT_EQ(h->wrap, 0);
}

// Within the horizon the series round trip stays within a millimetre on
// WGS 84 with k0 = 0.9996, at every latitude.
TEST(Horizon, TransverseMercatorRoundTripWithinTheBandIsUnderAMillimetre) {
    ProjcsPtr pcs = make_projcs("Transverse_Mercator", kWgs84Axis,
                                kWgs84Flattening, {{"Scale_Factor", 0.9996}});
    const double e2 = (2 - kWgs84Flattening) * kWgs84Flattening;
    const double w = KA_TM_HORIZON_HALF_WIDTH_DEG;
    double worst = 0;
    for (double lat = -90; lat <= 90; lat += 0.25) {
        for (double lon : {-w, -w / 2, w / 3, w}) {
            const Point p = to_proj(pcs.get(), lon, lat);
            const Point g = to_geog(pcs.get(), p.x, p.y);
            const double phi = lat * kDegree;
            const double north = ka_m(kWgs84Axis, e2, phi) * (g.y - lat) * kDegree;
            const double east = ka_n(kWgs84Axis, e2, phi) * std::cos(phi) *
                                (g.x - lon) * kDegree;
            worst = std::fmax(worst, std::hypot(north, east));
        }
    }
    EXPECT_LT(worst, 1e-3);
    EXPECT_GT(worst, 1e-4);  // the band is not needlessly narrow
}

TEST(Horizon, DeleteIgnoresNull) { ka_horizon_del(nullptr); }

}  // namespace
