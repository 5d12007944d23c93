// Properties of the equation methods that hold whatever the parameters:
// identity, exact and approximate inverses, poles, the latitude clamp and
// longitude folding.  All systems here are in radians about Greenwich.
#include "transforms/fixtures.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

using namespace fixtures;

constexpr double kPi = std::numbers::pi;
constexpr double kHalfPi = kPi / 2;

constexpr int kEquationMethods[] = {
    kGeocentricTranslation, kMolodensky,      kMolodenskyAbridged,
    kPositionVector,        kCoordinateFrame, kBursaWolf};

struct Sample {
    std::vector<double> coords;   // longitude, latitude pairs in radians
    std::vector<double> heights;  // metres
    int size() const { return static_cast<int>(heights.size()); }
};

// Points from 80 S to 80 N all round the globe, heights -500 m to 8 km.
Sample sample() {
    Sample s;
    for (int i = 0; i <= 16; ++i)
        for (int j = 0; j < 12; ++j) {
            s.coords.push_back((-177.0 + 30.0 * j + 0.5 * i) * kDegree);
            s.coords.push_back((-80.0 + 10.0 * i) * kDegree);
            s.heights.push_back(-500.0 + 500.0 * ((i + j) % 17));
        }
    return s;
}

ka_geogtran *radians_transformation(
    const Ellipsoid &from, const Ellipsoid &to, int method,
    std::initializer_list<std::pair<int, double>> values = {}) {
    return geogtran(geogcs("D_From", from, 0, 1.0), geogcs("D_To", to, 0, 1.0),
                    method, values);
}

void expect_same_points(const Sample &actual, const Sample &expected,
                        double angle_tolerance, double height_tolerance) {
    for (int i = 0; i < expected.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_NEAR(actual.coords[2 * i], expected.coords[2 * i],
                    angle_tolerance);
        EXPECT_NEAR(actual.coords[2 * i + 1], expected.coords[2 * i + 1],
                    angle_tolerance);
        EXPECT_NEAR(actual.heights[i], expected.heights[i], height_tolerance);
    }
}

TEST(EquationMethods, ZeroParametersOnOneSpheroidChangeNothing) {
    for (int method : kEquationMethods) {
        SCOPED_TRACE(method);
        ka_geogtran *gt = radians_transformation(kWgs84, kWgs84, method);
        const Sample original = sample();
        Sample s = original;
        EXPECT_EQ(ka_geog1_to_geog2(gt, s.size(), s.coords.data(),
                                    s.heights.data()),
                  s.size());
        expect_same_points(s, original, 1e-15, 1e-8);
        EXPECT_EQ(ka_geog2_to_geog1(gt, s.size(), s.coords.data(),
                                    s.heights.data()),
                  s.size());
        expect_same_points(s, original, 1e-15, 1e-8);
        ka_geogtran_del(gt);
    }
}

// The seven-parameter inverse undoes the forward to rounding, however large
// the rotations (the matrix is inverted exactly, not transposed).
TEST(EquationMethods, GeocentricInversesAreExact) {
    const std::initializer_list<std::pair<int, double>> parameter_sets[] = {
        {{kDx, -168.0}, {kDy, -60.0}, {kDz, 320.0}},
        {{kDx, 582.0}, {kDy, 105.0}, {kDz, 414.0}, {kRx, 1.04}, {kRy, 0.35},
         {kRz, -3.08}, {kScale, 8.3}},
        {{kDx, 10.0}, {kDy, -20.0}, {kDz, 30.0}, {kRx, 3000.0},
         {kRy, -2000.0}, {kRz, 4500.0}, {kScale, -150.0}},
    };
    for (int method : {kGeocentricTranslation, kPositionVector,
                       kCoordinateFrame}) {
        for (const auto &parameters : parameter_sets) {
            SCOPED_TRACE(method);
            ka_geogtran *gt = radians_transformation(
                kClarke1880Ign, kWgs84, method, parameters);
            const Sample original = sample();
            Sample s = original;
            ka_geog1_to_geog2(gt, s.size(), s.coords.data(), s.heights.data());
            ka_geog2_to_geog1(gt, s.size(), s.coords.data(), s.heights.data());
            expect_same_points(s, original, 1e-13, 1e-6);
            ka_geogtran_del(gt);
        }
    }
}

// Molodensky's inverse is the forward formula run back with opposite
// translations: it returns the input only to the formula's truncation
// (second-order terms of the order of (shift / a)^2 a, a few millimetres
// for shifts of some hundred metres), never exactly.
TEST(EquationMethods, MolodenskyInversesAreApproximate) {
    for (int method : {kMolodensky, kMolodenskyAbridged}) {
        SCOPED_TRACE(method);
        ka_geogtran *gt = radians_transformation(
            kWgs84, kInternational1924, method,
            {{kDx, 84.87}, {kDy, 96.49}, {kDz, 116.95}});
        const Sample original = sample();
        Sample s = original;
        ka_geog1_to_geog2(gt, s.size(), s.coords.data(), s.heights.data());
        ka_geog2_to_geog1(gt, s.size(), s.coords.data(), s.heights.data());
        double largest = 0;
        for (int i = 0; i < s.size(); ++i) {
            largest = std::fmax(largest, std::fabs(s.coords[2 * i + 1] -
                                                   original.coords[2 * i + 1]));
            EXPECT_NEAR(s.heights[i], original.heights[i], 0.05);
        }
        EXPECT_GT(largest, 1e-13);
        EXPECT_LT(largest, 5e-9);  // about 3 cm
        ka_geogtran_del(gt);
    }
}

// At a pole every meridian meets: Molodensky leaves the longitude alone
// instead of dividing by cos(latitude) = 0.
TEST(EquationMethods, MolodenskyKeepsTheLongitudeAtThePoles) {
    for (int method : {kMolodensky, kMolodenskyAbridged}) {
        SCOPED_TRACE(method);
        ka_geogtran *gt = radians_transformation(
            kWgs84, kInternational1924, method,
            {{kDx, 84.87}, {kDy, 96.49}, {kDz, 116.95}});
        double coords[4] = {0.7, kHalfPi, -2.1, -kHalfPi};
        EXPECT_EQ(ka_geog1_to_geog2(gt, 2, coords, nullptr), 2);
        EXPECT_EQ(coords[0], 0.7);
        EXPECT_EQ(coords[2], -2.1);
        EXPECT_TRUE(std::isfinite(coords[1]) && coords[1] <= kHalfPi);
        EXPECT_TRUE(std::isfinite(coords[3]) && coords[3] >= -kHalfPi);
        ka_geogtran_del(gt);
    }
}

// A 2 km shift across the pole pushes the Molodensky latitude past 90
// degrees (dp = dx / M > 0.01 degree at longitude 180): it comes out as
// exactly pi/2, or -pi/2 in the south.
TEST(EquationMethods, MolodenskyClampsTheLatitudeToThePole) {
    for (int method : {kMolodensky, kMolodenskyAbridged}) {
        SCOPED_TRACE(method);
        ka_geogtran *gt = radians_transformation(kWgs84, kWgs84, method,
                                                 {{kDx, 2000.0}});
        double coords[4] = {kPi, 89.99 * kDegree, kPi, -89.99 * kDegree};
        double heights[2] = {0.0, 0.0};
        EXPECT_EQ(ka_geog1_to_geog2(gt, 2, coords, heights), 2);
        EXPECT_EQ(coords[1], kHalfPi);
        EXPECT_EQ(coords[3], -kHalfPi);
        ka_geogtran_del(gt);
    }
}

// A longitude pushed past -180 degrees comes back folded into [-pi, pi]:
// near the antimeridian a +500 m y translation moves a point about 8e-5 rad
// west, so one starting 1e-7 rad east of -180 degrees ends just west of
// +180.
TEST(EquationMethods, LongitudesAreFoldedIntoThePrincipalRange) {
    for (int method : kEquationMethods) {
        SCOPED_TRACE(method);
        ka_geogtran *gt = radians_transformation(kWgs84, kWgs84, method,
                                                 {{kDy, 500.0}});
        double coords[2] = {-kPi + 1e-7, 10.0 * kDegree};
        EXPECT_EQ(ka_geog1_to_geog2(gt, 1, coords, nullptr), 1);
        EXPECT_LE(coords[0], kPi);
        EXPECT_GT(coords[0], kPi - 1e-4);
        ka_geogtran_del(gt);
    }
}

}  // namespace
