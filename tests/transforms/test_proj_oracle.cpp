// The geocentric methods against PROJ run as an independent oracle, with
// explicit parameters (+proj=cart, +proj=helmert, +proj=molodensky), over
// points spread across the globe and over heights, in both directions.
// Agreement is asked to a tenth of a millimetre: 1.6e-11 rad in angle,
// 0.1 mm in height, which leaves room for our Cartesian-to-geodetic step
// (Bowring's method carried through two evaluations) against PROJ's own.
#include "transforms/fixtures.h"

#include <gtest/gtest.h>

#if VELTRA_HAVE_PROJ
#include <proj.h>

#include <cstdio>
#include <string>
#include <vector>

namespace {

using namespace fixtures;

constexpr double kAngleTolerance = 1.6e-11;  // radians, about 0.1 mm
constexpr double kHeightTolerance = 1e-4;    // metres

struct Points {
    std::vector<double> longitude, latitude, height;  // radians, metres
};

// Points from 84 S to 84 N, all round the globe, from below the ellipsoid
// to mountain heights.
Points sample_points() {
    Points p;
    for (int i = 0; i < 15; ++i)
        for (int j = 0; j < 13; ++j) {
            p.latitude.push_back((-84.0 + 12.0 * i + 0.37 * j) * kDegree);
            p.longitude.push_back((-179.5 + 29.9 * j + 0.71 * i) * kDegree);
            p.height.push_back(-120.0 + 331.0 * ((i * 13 + j) % 17));
        }
    return p;
}

// Full-precision decimal text of a value.
std::string text(double value) {
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.17g", value);
    return buffer;
}

std::string ellipsoid_args(const Ellipsoid &e) {
    return " +a=" + text(e.axis) + " +rf=" + text(e.inverse_flattening);
}

// `direction` PJ_FWD or PJ_INV of a PROJ pipeline over the points.
Points run_proj(const std::string &definition, PJ_DIRECTION direction,
                Points p) {
    PJ *pj = proj_create(PJ_DEFAULT_CTX, definition.c_str());
    EXPECT_NE(pj, nullptr) << definition;
    if (pj == nullptr) return p;
    const std::size_t n = p.longitude.size();
    proj_trans_generic(pj, direction, p.longitude.data(), sizeof(double), n,
                       p.latitude.data(), sizeof(double), n, p.height.data(),
                       sizeof(double), n, nullptr, 0, 0);
    proj_destroy(pj);
    return p;
}

// Our driver over the same points, with both systems in radians.
Points run_ours(ka_geogtran *gt, bool forward, const Points &in) {
    const int n = static_cast<int>(in.longitude.size());
    std::vector<double> coords(2 * n);
    Points out = in;
    for (int i = 0; i < n; ++i) {
        coords[2 * i] = in.longitude[i];
        coords[2 * i + 1] = in.latitude[i];
    }
    int count = forward ? ka_geog1_to_geog2(gt, n, coords.data(), out.height.data())
                        : ka_geog2_to_geog1(gt, n, coords.data(), out.height.data());
    EXPECT_EQ(count, n);
    for (int i = 0; i < n; ++i) {
        out.longitude[i] = coords[2 * i];
        out.latitude[i] = coords[2 * i + 1];
    }
    return out;
}

void expect_agree(const Points &ours, const Points &proj) {
    for (std::size_t i = 0; i < ours.longitude.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_NEAR(ours.longitude[i], proj.longitude[i], kAngleTolerance);
        EXPECT_NEAR(ours.latitude[i], proj.latitude[i], kAngleTolerance);
        EXPECT_NEAR(ours.height[i], proj.height[i], kHeightTolerance);
    }
}

struct Case {
    const char *name;
    int method;
    std::initializer_list<std::pair<int, double>> parameters;
    std::string proj_step;  // the middle step of the PROJ pipeline
};

// Forward and inverse of one transformation from `from` to `to`.
void check(const Case &c, const Ellipsoid &from, const Ellipsoid &to) {
    SCOPED_TRACE(c.name);
    const std::string pipeline = "+proj=pipeline +step +proj=cart" +
                                 ellipsoid_args(from) + " +step " +
                                 c.proj_step + " +step +inv +proj=cart" +
                                 ellipsoid_args(to);
    ka_geogtran *gt = geogtran(geogcs("D_From", from, 0, 1.0),
                               geogcs("D_To", to, 0, 1.0), c.method,
                               c.parameters);
    ASSERT_NE(gt, nullptr);
    const Points points = sample_points();
    expect_agree(run_ours(gt, true, points), run_proj(pipeline, PJ_FWD, points));
    expect_agree(run_ours(gt, false, points),
                 run_proj(pipeline, PJ_INV, points));
    ka_geogtran_del(gt);
}

TEST(ProjOracle, GeocentricTranslation) {
    check({"geocentric translation", kGeocentricTranslation,
           {{kDx, -87.0}, {kDy, -98.0}, {kDz, -121.0}},
           "+proj=helmert +x=-87 +y=-98 +z=-121"},
          kInternational1924, kWgs84);
}

// Rotations of a few arc-seconds, as catalogue transformations have.
// Position_Vector is the coordinate-frame matrix of the reversed rotations,
// R3(-rz) R2(-ry) R1(-rx), so it is compared with PROJ's coordinate frame
// of those; PROJ's exact position-vector matrix is the transpose
// R1(-rx) R2(-ry) R3(-rz), which differs in the second order.
TEST(ProjOracle, SevenParameterConventions) {
    const auto parameters = {std::pair{kDx, 582.0}, {kDy, 105.0}, {kDz, 414.0},
                             {kRx, 1.04},  {kRy, 0.35},  {kRz, -3.08},
                             {kScale, 8.3}};
    const std::string helmert =
        "+proj=helmert +exact +x=582 +y=105 +z=414 +rx=1.04 +ry=0.35 "
        "+rz=-3.08 +s=8.3 +convention=";
    const std::string reversed =
        "+proj=helmert +exact +x=582 +y=105 +z=414 +rx=-1.04 +ry=-0.35 "
        "+rz=3.08 +s=8.3 +convention=";
    check({"Coordinate_Frame", kCoordinateFrame, parameters,
           helmert + "coordinate_frame"},
          kClarke1880Ign, kWgs84);
    check({"Bursa_Wolf", kBursaWolf, parameters, helmert + "coordinate_frame"},
          kClarke1880Ign, kWgs84);
    check({"Position_Vector", kPositionVector, parameters,
           reversed + "coordinate_frame"},
          kClarke1880Ign, kWgs84);
}

// Rotations of several arc-minutes: the small-angle matrix would be metres
// off, the exact one agrees with PROJ's exact form.
TEST(ProjOracle, LargeRotationsUseTheExactMatrix) {
    const auto parameters = {std::pair{kDx, 10.0}, {kDy, -20.0}, {kDz, 30.0},
                             {kRx, 300.0}, {kRy, -200.0}, {kRz, 450.0},
                             {kScale, -15.0}};
    const std::string helmert =
        "+proj=helmert +exact +x=10 +y=-20 +z=30 +rx=300 +ry=-200 +rz=450 "
        "+s=-15 +convention=";
    check({"Coordinate_Frame", kCoordinateFrame, parameters,
           helmert + "coordinate_frame"},
          kWgs72, kWgs84);
    check({"Position_Vector", kPositionVector, parameters,
           "+proj=helmert +exact +x=10 +y=-20 +z=30 +rx=-300 +ry=200 "
           "+rz=-450 +s=-15 +convention=coordinate_frame"},
          kWgs72, kWgs84);
}

// Molodensky at zero height, where the height-free denominators used here
// and the (M + h), (N + h) of other formulations coincide.
TEST(ProjOracle, MolodenskyAtZeroHeight) {
    Points points = sample_points();
    for (double &h : points.height) h = 0.0;
    const double da = kInternational1924.axis - kWgs84.axis;
    const double df = 1 / kInternational1924.inverse_flattening -
                      1 / kWgs84.inverse_flattening;
    const std::string molodensky =
        "+proj=molodensky" + ellipsoid_args(kWgs84) +
        " +da=" + text(da) + " +df=" + text(df) +
        " +dx=84.87 +dy=96.49 +dz=116.95";
    for (int method : {kMolodensky, kMolodenskyAbridged}) {
        SCOPED_TRACE(method);
        ka_geogtran *gt = geogtran(geogcs("D_From", kWgs84, 0, 1.0),
                                   geogcs("D_To", kInternational1924, 0, 1.0),
                                   method,
                                   {{kDx, 84.87}, {kDy, 96.49}, {kDz, 116.95}});
        const std::string definition =
            molodensky + (method == kMolodenskyAbridged ? " +abridged" : "");
        expect_agree(run_ours(gt, true, points),
                     run_proj(definition, PJ_FWD, points));
        ka_geogtran_del(gt);
    }
}

}  // namespace

#endif  // VELTRA_HAVE_PROJ
