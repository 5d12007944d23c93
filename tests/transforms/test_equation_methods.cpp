// The equation methods through the drivers: the worked examples of the EPSG
// guidance note 7-2, PROJ as an oracle (+proj=cart, +proj=helmert,
// +proj=molodensky) forward and back, and the properties that hold whatever
// the parameters: identity, exact and approximate inverses, poles, the
// latitude clamp and longitude folding.
#include "transforms/fixtures.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#if VELTRA_HAVE_PROJ
#include <proj.h>
#endif

namespace {

using namespace fixtures;
using Parameters = std::initializer_list<std::pair<int, double>>;

constexpr double kPi = std::numbers::pi;
const Parameters kNorthSea = {{kDx, 84.87}, {kDy, 96.49}, {kDz, 116.95}};  // WGS 84 to ED50

// Points as (longitude, latitude) pairs and heights.
struct Sample {
    std::vector<double> coords, heights;
    int size() const { return static_cast<int>(heights.size()); }
};

// Points from 84 S to 84 N all round the globe, from below the ellipsoid to
// mountain heights, in radians and metres.
Sample sample() {
    Sample s;
    for (int i = 0; i < 15; ++i)
        for (int j = 0; j < 13; ++j) {
            s.coords.push_back((-179.5 + 27.5 * j + 0.71 * i) * kDegree);
            s.coords.push_back((-84.0 + 12.0 * i + 0.37 * j) * kDegree);
            s.heights.push_back(-120.0 + 331.0 * ((i * 13 + j) % 17));
        }
    return s;
}

// The points taken through `gt` forward or back; every point is counted.
Sample run(ka_geogtran *gt, bool forward, Sample s) {
    const int n = forward ? ka_geog1_to_geog2(gt, s.size(), s.coords.data(), s.heights.data())
                          : ka_geog2_to_geog1(gt, s.size(), s.coords.data(), s.heights.data());
    EXPECT_EQ(n, s.size());
    return s;
}

void expect_same(const Sample &actual, const Sample &expected, double angle, double height) {
    for (int i = 0; i < expected.size(); ++i) {
        EXPECT_NEAR(actual.coords[2 * i], expected.coords[2 * i], angle) << i;
        EXPECT_NEAR(actual.coords[2 * i + 1], expected.coords[2 * i + 1], angle) << i;
        EXPECT_NEAR(actual.heights[i], expected.heights[i], height) << i;
    }
}

// A transformation between two systems in radians about Greenwich.
ka_geogtran *radians(const Ellipsoid &from, const Ellipsoid &to, int method, Parameters values) {
    return geogtran(geogcs("D_From", from, 0, 1.0), geogcs("D_To", to, 0, 1.0), method, values);
}

// In degrees.  WGS 84 to ED50 at a North Sea point; WGS 72 to WGS 84 with
// tZ +4.5 m, rZ +0.554" as a position vector (the other sign as a coordinate
// frame) and dS +0.219 ppm.  The results are rounded to 0.001" and the
// centimetre (the millimetre for the abridged height), so each is compared
// within half a unit of its last digit plus a margin; read backwards, the
// inverse drivers bring them back to the inputs within the rounding they
// start from.  (Bursa_Wolf runs the very routines of Coordinate_Frame.)
TEST(WorkedExample, EpsgGuidanceNote) {
    const Sample north_sea{{dms(2, 7, 46.380), dms(53, 48, 33.820)}, {73.0}},
        ed50{{dms(2, 7, 51.477), dms(53, 48, 36.565)}, {28.02}},
        ed50_abridged{{dms(2, 7, 51.477), dms(53, 48, 36.563)}, {28.091}},
        wgs72{{4.0, 55.0}, {0.0}}, wgs84{{dms(4, 0, 0.554), dms(55, 0, 0.090)}, {3.22}};
    const Parameters position_vector = {{kDz, 4.5}, {kRz, 0.554}, {kScale, 0.219}},
                     coordinate_frame = {{kDz, 4.5}, {kRz, -0.554}, {kScale, 0.219}};
    const struct {
        int method; Ellipsoid from, to; Parameters parameters; const Sample &in, &out; double dh;
    } examples[] = {
        {kGeocentricTranslation, kWgs84, kInternational1924, kNorthSea, north_sea, ed50, 0.006},
        {kMolodensky, kWgs84, kInternational1924, kNorthSea, north_sea, ed50, 0.006},
        {kMolodenskyAbridged, kWgs84, kInternational1924, kNorthSea, north_sea, ed50_abridged, 0.0006},
        {kPositionVector, kWgs72, kWgs84, position_vector, wgs72, wgs84, 0.006},
        {kCoordinateFrame, kWgs72, kWgs84, coordinate_frame, wgs72, wgs84, 0.006},
    };
    for (const auto &e : examples) {
        SCOPED_TRACE(e.method);
        ka_geogtran *gt = geogtran(geogcs("D_A", e.from), geogcs("D_B", e.to), e.method, e.parameters);
        expect_same(run(gt, true, e.in), e.out, 0.0006 / 3600, e.dh);
        expect_same(run(gt, false, e.out), e.in, 0.0011 / 3600, 0.012);
        ka_geogtran_del(gt);
    }
}

#if VELTRA_HAVE_PROJ
// The points through a PROJ operation.
Sample run_proj(const std::string &definition, PJ_DIRECTION direction, Sample s) {
    PJ *pj = proj_create(PJ_DEFAULT_CTX, definition.c_str());
    EXPECT_NE(pj, nullptr) << definition;
    const std::size_t n = s.heights.size(), pair = 2 * sizeof(double);
    if (pj != nullptr)
        proj_trans_generic(pj, direction, s.coords.data(), pair, n, s.coords.data() + 1, pair, n,
                           s.heights.data(), sizeof(double), n, nullptr, 0, 0);
    proj_destroy(pj);
    return s;
}

std::string ellipsoid(const Ellipsoid &e) {
    char text[80];
    std::snprintf(text, sizeof text, " +a=%.17g +rf=%.17g", e.axis, e.inverse_flattening);
    return text;
}

// Agreement to a tenth of a millimetre (1.6e-11 rad in angle), which leaves
// room for our Cartesian-to-geodetic step (Bowring's method carried through
// two evaluations) beside PROJ's own.  Rotations of a few arc-seconds, as
// catalogue transformations have, and of several arc-minutes, where only the
// exact matrix agrees.  Position_Vector is the coordinate-frame matrix of the
// reversed rotations, R3(-rz) R2(-ry) R1(-rx), so it is compared with PROJ's
// coordinate frame of those (PROJ's exact position-vector matrix is the
// transpose, which differs in the second order).  The geocentric inverses
// undo the forward to rounding: the matrix is inverted exactly.  Molodensky
// is compared forward at zero height, where the height-free denominators
// used here and the (M + h), (N + h) of other formulations coincide.
TEST(EquationMethods, AgreeWithProj) {
    // International 1924 less WGS 84: da = 251 m, df = 1/297 - 1/298.257223563.
    const std::string molodensky = "+proj=molodensky +a=6378137 +rf=298.257223563 +da=251 "
                                   "+df=1.4192702255886284e-05 +dx=84.87 +dy=96.49 +dz=116.95";
    // The Helmert step between two +proj=cart, or the whole operation.
    const struct {
        int method; Ellipsoid from, to; Parameters parameters; std::string proj;
    } cases[] = {
        {kGeocentricTranslation, kInternational1924, kWgs84, {{kDx, -87}, {kDy, -98}, {kDz, -121}},
         "+proj=helmert +x=-87 +y=-98 +z=-121"},
        {kCoordinateFrame, kClarke1880Ign, kWgs84,
         {{kDx, 582}, {kDy, 105}, {kDz, 414}, {kRx, 1.04}, {kRy, 0.35}, {kRz, -3.08}, {kScale, 8.3}},
         "+proj=helmert +exact +x=582 +y=105 +z=414 +rx=1.04 +ry=0.35 +rz=-3.08 +s=8.3 "
         "+convention=coordinate_frame"},
        {kPositionVector, kWgs72, kWgs84,
         {{kDx, 10}, {kDy, -20}, {kDz, 30}, {kRx, 300}, {kRy, -200}, {kRz, 450}, {kScale, -15}},
         "+proj=helmert +exact +x=10 +y=-20 +z=30 +rx=-300 +ry=200 +rz=-450 +s=-15 "
         "+convention=coordinate_frame"},
        {kMolodensky, kWgs84, kInternational1924, kNorthSea, molodensky},
        {kMolodenskyAbridged, kWgs84, kInternational1924, kNorthSea, molodensky + " +abridged"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.proj);
        const bool geocentric = c.method != kMolodensky && c.method != kMolodenskyAbridged;
        const std::string definition = !geocentric ? c.proj
            : "+proj=pipeline +step +proj=cart" + ellipsoid(c.from) + " +step " + c.proj +
                  " +step +inv +proj=cart" + ellipsoid(c.to);
        Sample points = sample();
        for (double &h : points.heights) h = geocentric ? h : 0.0;
        ka_geogtran *gt = radians(c.from, c.to, c.method, c.parameters);
        const Sample forward = run(gt, true, points);
        expect_same(forward, run_proj(definition, PJ_FWD, points), 1.6e-11, 1e-4);
        if (geocentric) {
            expect_same(run(gt, false, points), run_proj(definition, PJ_INV, points), 1.6e-11, 1e-4);
            expect_same(run(gt, false, forward), points, 1e-13, 1e-6);
        }
        ka_geogtran_del(gt);
    }
}
#endif

// Zero parameters on one spheroid change nothing, both ways, except that a
// longitude past -180 degrees comes back folded into [-pi, pi] (and without
// a height array nothing is written there).  Molodensky's
// inverse is the forward formula run back with opposite translations: it
// returns the input only to the formula's truncation (centimetres for shifts
// of some hundred metres), never exactly.  At a pole it leaves the longitude
// alone instead of dividing by cos(latitude) = 0; a 2 km shift across the
// pole pushes the latitude past 90 degrees, which comes out as exactly pi/2
// (or -pi/2).
TEST(EquationMethods, IdentityFoldingPolesAndApproximateInverses) {
    const Sample points = sample();
    for (int method : {kGeocentricTranslation, kMolodensky, kMolodenskyAbridged, kPositionVector,
                       kCoordinateFrame, kBursaWolf}) {
        SCOPED_TRACE(method);
        ka_geogtran *gt = radians(kWgs84, kWgs84, method, {});
        expect_same(run(gt, true, points), points, 1e-15, 1e-8);
        expect_same(run(gt, false, points), points, 1e-15, 1e-8);
        double c[2] = {-kPi - 1e-7, 0.2};
        EXPECT_EQ(ka_geog1_to_geog2(gt, 1, c, nullptr), 1);
        EXPECT_NEAR(c[0], kPi - 1e-7, 1e-12);
        ka_geogtran_del(gt);
        if (method != kMolodensky && method != kMolodenskyAbridged) continue;

        gt = radians(kWgs84, kInternational1924, method, kNorthSea);
        const Sample back = run(gt, false, run(gt, true, points));
        double largest = 0;
        for (int i = 0; i < points.size(); ++i)
            largest = std::fmax(largest, std::fabs(back.coords[2 * i + 1] - points.coords[2 * i + 1]));
        EXPECT_TRUE(largest > 1e-13 && largest < 2e-8) << largest;  // 2e-8 rad: 13 cm
        ka_geogtran_del(gt);
        gt = radians(kWgs84, kWgs84, method, {{kDx, 2000.0}});
        double p[6] = {0.7, kPi / 2, kPi, 89.99 * kDegree, kPi, -89.99 * kDegree};
        EXPECT_EQ(ka_geog1_to_geog2(gt, 3, p, nullptr), 3);
        EXPECT_TRUE(p[0] == 0.7 && std::isfinite(p[1]) && p[1] <= kPi / 2) << p[0] << " " << p[1];
        EXPECT_TRUE(p[3] == kPi / 2 && p[5] == -kPi / 2) << p[3] << " " << p[5];
        ka_geogtran_del(gt);
    }
}

}  // namespace
