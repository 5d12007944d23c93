// Every projection with a calculator gives bit-identical results with and
// without its constants; routines called with n = 0 touch nothing.
#include "support/projcs_builder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <vector>

namespace {

using namespace veltra::test;

constexpr const char *kProjections[] = {
    "Plate_Carree",       "Equidistant_Cylindrical", "Miller_Cylindrical",
    "Mercator",           "Gauss_Kruger",            "Transverse_Mercator",
    "Gall_Stereographic", "Behrmann",                "Cylindrical_Equal_Area",
};

std::vector<double> grid() {
    std::vector<double> points;
    for (double lat = -90; lat <= 90; lat += 7.5)
        for (double lon = -200; lon <= 200; lon += 23) {
            points.push_back(lon);
            points.push_back(lat);
        }
    return points;
}

bool same_bits(const std::vector<double> &a, const std::vector<double> &b) {
    return a.size() == b.size() &&
           std::memcmp(a.data(), b.data(), a.size() * sizeof(double)) == 0;
}

TEST(Constants, LoadingNeverChangesAResult) {
    for (const char *name : kProjections) {
        for (double flattening : {0.0, kWgs84Flattening}) {
            ProjcsPtr pcs = make_projcs(name, kWgs84Axis, flattening,
                                        {{"False_Easting", 1000},
                                         {"Central_Meridian", 12.5},
                                         {"Standard_Parallel_1", 33},
                                         {"Scale_Factor", 0.9996},
                                         {"Latitude_Of_Origin", -20}});
            const int n = static_cast<int>(grid().size() / 2);
            std::vector<double> plain = grid(), loaded = grid();
            const int plain_count = ka_geog_to_proj(pcs.get(), n, plain.data());
            const bool has_calculator = ka_projcs_load_constants(pcs.get()) > 0;
            EXPECT_EQ(has_calculator, ka_projcs_isconstloaded(pcs.get()) == 1);
            EXPECT_EQ(ka_geog_to_proj(pcs.get(), n, loaded.data()), plain_count);
            EXPECT_TRUE(same_bits(plain, loaded)) << name << " " << flattening;

            ka_projcs_unload_constants(pcs.get());
            std::vector<double> back_plain = plain;
            ka_proj_to_geog(pcs.get(), n, back_plain.data());
            ka_projcs_load_constants(pcs.get());
            ka_proj_to_geog(pcs.get(), n, loaded.data());
            EXPECT_TRUE(same_bits(back_plain, loaded)) << name << " " << flattening;
        }
    }
}

TEST(Constants, CalculatorsStoreTheDocumentedCounts) {
    struct Case {
        const char *name;
        double flattening;
        int count;
    };
    const Case cases[] = {
        {"Mercator", kWgs84Flattening, 2},
        {"Mercator", 0, 2},
        {"Gall_Stereographic", 0, 2},
        {"Cylindrical_Equal_Area", kWgs84Flattening, 8},
        {"Cylindrical_Equal_Area", 0, 2},
        {"Behrmann", kWgs84Flattening, 8},
        {"Behrmann", 0, 2},
        {"Transverse_Mercator", kWgs84Flattening, 3},
        {"Gauss_Kruger", 0, 2},
        {"Plate_Carree", 0, 0},
        {"Equidistant_Cylindrical", 0, 0},
        {"Miller_Cylindrical", 0, 0},
    };
    for (const Case &c : cases) {
        ProjcsPtr pcs = make_projcs(c.name, kWgs84Axis, c.flattening,
                                    {{"Standard_Parallel_1", 10}});
        EXPECT_EQ(ka_projcs_load_constants(pcs.get()), c.count) << c.name;
    }
}

// A constants block of another layout is not trusted: the routine computes
// its own values.
TEST(Constants, ForeignLayoutIsIgnored) {
    ka_projection *tm = ka_factory_projection(43006);
    const double ellipsoid[2] = {kWgs84Axis,
                                 (2 - kWgs84Flattening) * kWgs84Flattening};
    double params[16] = {};
    params[5] = 0.9996;
    const int header[2] = {2, 2};  // the sphere's count on an ellipsoid
    const double junk[2] = {1e9, -1e9};
    double with_junk[2] = {0.05, 0.7}, without[2] = {0.05, 0.7};
    ka_projection_forward(tm)(ellipsoid, params, 1, with_junk, header, junk);
    ka_projection_forward(tm)(ellipsoid, params, 1, without, nullptr, nullptr);
    EXPECT_EQ(with_junk[0], without[0]);
    EXPECT_EQ(with_junk[1], without[1]);
    ka_projection_del(tm);
}

TEST(Routines, ZeroPointsReturnZeroAndTouchNothing) {
    const double ellipsoid[2] = {kWgs84Axis, 0.00669437999014};
    double params[16] = {};
    params[5] = 1;
    for (int code : {43001, 43002, 43003, 43004, 43005, 43006, 43016, 43017,
                     43034}) {
        ka_projection *p = ka_factory_projection(code);
        double point[2] = {0.5, 0.5};
        EXPECT_EQ(ka_projection_forward(p)(ellipsoid, params, 0, point,
                                           nullptr, nullptr),
                  0);
        EXPECT_EQ(ka_projection_inverse(p)(ellipsoid, params, 0, point,
                                           nullptr, nullptr),
                  0);
        EXPECT_EQ(point[0], 0.5);
        EXPECT_EQ(point[1], 0.5);
        ka_projection_del(p);
    }
}

// NaN coordinates stay NaN and do not disturb their neighbours.
TEST(Routines, NaNInputStaysLocal) {
    for (const char *name : kProjections) {
        ProjcsPtr pcs = make_projcs(name, kWgs84Axis, kWgs84Flattening,
                                    {{"Scale_Factor", 1}});
        double c[6] = {1, 2, NAN, NAN, 3, 4};
        ka_geog_to_proj(pcs.get(), 3, c);
        EXPECT_TRUE(std::isnan(c[2]) && std::isnan(c[3])) << name;
        EXPECT_TRUE(std::isfinite(c[0]) && std::isfinite(c[5])) << name;
        const Point alone = to_proj(pcs.get(), 3, 4);
        EXPECT_EQ(c[4], alone.x) << name;
    }
}

}  // namespace
