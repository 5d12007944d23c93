// Loaded constants never change a result; routines handle n = 0, NaN input
// and foreign constants.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <vector>

#include "support/projcs_builder.h"

namespace {

using namespace veltra::test;

constexpr int kCodes[] = {43001, 43002, 43003, 43004, 43005,
                          43006, 43016, 43017, 43034};

std::string name_of(int code) {
    ka_projection *p = ka_factory_projection(code);
    char name[KA_NAME_MAX];
    ka_projection_name(p, name);
    ka_projection_del(p);
    return name;
}

bool same_bits(const std::vector<double> &a, const std::vector<double> &b) {
    return std::memcmp(a.data(), b.data(), a.size() * sizeof(double)) == 0;
}

// Calculator counts: Mercator 2, Gall 2, equal-area 8 (ellipsoid) or 2,
// transverse Mercator 3 (ellipsoid) or 2; none for the others.
TEST(Constants, LoadingNeverChangesAResult) {
    const int counts[][2] = {{0, 0}, {0, 0}, {0, 0}, {2, 2}, {2, 3},
                             {2, 3}, {2, 2}, {2, 8}, {2, 8}};
    std::vector<double> grid;
    for (double lat = -90; lat <= 90; lat += 7.5)
        for (double lon = -200; lon <= 200; lon += 23) {
            grid.push_back(lon);
            grid.push_back(lat);
        }
    const int n = static_cast<int>(grid.size() / 2);
    for (int k = 0; k < 9; ++k) {
        for (int e = 0; e < 2; ++e) {
            const std::string name = name_of(kCodes[k]);
            ProjcsPtr pcs =
                make_projcs(name.c_str(), kWgs84Axis, e ? kWgs84Flattening : 0,
                            {{"False_Easting", 1000},
                             {"Central_Meridian", 12.5},
                             {"Standard_Parallel_1", 33},
                             {"Scale_Factor", 0.9996},
                             {"Latitude_Of_Origin", -20}});
            std::vector<double> plain = grid, loaded = grid;
            EXPECT_EQ(ka_geog_to_proj(pcs.get(), n, plain.data()), n);
            EXPECT_EQ(ka_projcs_load_constants(pcs.get()), counts[k][e])
                << name;
            EXPECT_EQ(ka_geog_to_proj(pcs.get(), n, loaded.data()), n);
            EXPECT_TRUE(same_bits(plain, loaded)) << name << " " << e;
            ka_proj_to_geog(pcs.get(), n, loaded.data());
            ka_projcs_unload_constants(pcs.get());
            ka_proj_to_geog(pcs.get(), n, plain.data());
            EXPECT_TRUE(same_bits(plain, loaded)) << name << " " << e;
        }
    }
}

// A block of another layout (the sphere's count on an ellipsoid) is not
// trusted: the routine computes its own values.
TEST(Constants, ForeignLayoutIsIgnored) {
    ka_projection *tm = ka_factory_projection(43006);
    const double ellipsoid[2] = {kWgs84Axis, kWgs84E2};
    double params[16] = {};
    params[5] = 0.9996;
    const int header[2] = {2, 2};
    const double junk[2] = {1e9, -1e9};
    double with_junk[2] = {0.05, 0.7}, without[2] = {0.05, 0.7};
    ka_projection_forward(tm)(ellipsoid, params, 1, with_junk, header, junk);
    ka_projection_forward(tm)(ellipsoid, params, 1, without, nullptr, nullptr);
    EXPECT_EQ(with_junk[0], without[0]);
    EXPECT_EQ(with_junk[1], without[1]);
    ka_projection_del(tm);
}

TEST(Routines, ZeroPointsAndNaNInput) {
    const double ellipsoid[2] = {kWgs84Axis, kWgs84E2};
    double params[16] = {};
    params[5] = 1;
    for (int code : kCodes) {
        ka_projection *p = ka_factory_projection(code);
        double c[6] = {0.5, 0.5, NAN, NAN, 0.1, 0.2};
        EXPECT_EQ(
            ka_projection_forward(p)(ellipsoid, params, 0, c, nullptr, nullptr),
            0);
        EXPECT_EQ(
            ka_projection_inverse(p)(ellipsoid, params, 0, c, nullptr, nullptr),
            0);
        EXPECT_EQ(c[0], 0.5);
        // NaN stays NaN and leaves its neighbours alone.
        ka_projection_forward(p)(ellipsoid, params, 3, c, nullptr, nullptr);
        EXPECT_TRUE(std::isnan(c[2]) && std::isnan(c[3])) << code;
        EXPECT_TRUE(std::isfinite(c[0]) && std::isfinite(c[5])) << code;
        ka_projection_del(p);
    }
}

}  // namespace
