// End-to-end tests of `veltra geod` and `veltra transform` against
// published worked examples.
#include "tools/cli_run.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace {

constexpr double kArcSecond = 1.0 / 3600.0;

double dms(double d, double m, double s) {
    const double sign = d < 0 ? -1 : 1;
    return sign * (std::fabs(d) + m / 60 + s / 3600);
}

const std::string kGrs80 = "SPHEROID[\"GRS_1980\",6378137.0,298.257222101]";

// Vincenty's example as published by Geoscience Australia: Flinders Peak
// (144 25 29.52440 E, 37 57 03.72030 S) to Buninyong (143 55 35.38390 E,
// 37 39 10.15610 S) on GRS 80: 54 972.271 m, azimuth 306 52 05.37, reverse
// azimuth 127 10 25.07.
const double kFlindersLon = dms(144, 25, 29.52440);
const double kFlindersLat = dms(-37, 57, 3.72030);
const double kBuninyongLon = dms(143, 55, 35.38390);
const double kBuninyongLat = dms(-37, 39, 10.15610);

TEST(CliGeod, DirectReachesBuninyong) {
    const std::string line = std::to_string(kFlindersLon) + " " +
                             std::to_string(kFlindersLat) + " " +
                             std::to_string(dms(306, 52, 5.37)) +
                             " 54972.271 Buninyong\n";
    cli::Result r = cli::run({"geod", "direct", "--spheroid", kGrs80}, line);
    EXPECT_EQ(r.status, 0) << r.err;
    auto v = cli::numbers(r.out);
    ASSERT_EQ(v.size(), 2u) << r.out;
    // std::to_string keeps six decimals of the start point (0.04 m).
    EXPECT_NEAR(v[0], kBuninyongLon, 1e-6);
    EXPECT_NEAR(v[1], kBuninyongLat, 1e-6);
    EXPECT_NE(r.out.find(" Buninyong\n"), std::string::npos);
}

TEST(CliGeod, InverseGivesDistanceAndBothAzimuths) {
    char line[256];
    std::snprintf(line, sizeof line, "%.10f,%.10f,%.10f,%.10f\n", kFlindersLon,
                  kFlindersLat, kBuninyongLon, kBuninyongLat);
    cli::Result r = cli::run({"geod", "inverse", "--spheroid", kGrs80}, line);
    EXPECT_EQ(r.status, 0) << r.err;
    std::string out = r.out;
    for (char &c : out)
        if (c == ',') c = ' ';
    auto v = cli::numbers(out);
    ASSERT_EQ(v.size(), 3u) << r.out;
    EXPECT_NEAR(v[0], 54972.271, 0.001);
    EXPECT_NEAR(std::fmod(v[1] + 360, 360), dms(306, 52, 5.37), 0.01 * kArcSecond);
    EXPECT_NEAR(std::fmod(v[2] + 360, 360), dms(127, 10, 25.07), 0.01 * kArcSecond);
}

// Without --spheroid the WGS 84 ellipsoid: one degree of the equator is
// a pi / 180 = 111 319.490793 m.
TEST(CliGeod, DefaultSpheroidIsWgs84) {
    cli::Result r = cli::run({"geod", "inverse", "--decimals", "6"}, "0 0 1 0\n");
    EXPECT_EQ(r.status, 0) << r.err;
    auto v = cli::numbers(r.out);
    ASSERT_EQ(v.size(), 3u);
    EXPECT_NEAR(v[0], 6378137.0 * M_PI / 180, 1e-6);
    EXPECT_NEAR(v[1], 90.0, 1e-9);
}

TEST(CliGeod, BadInput) {
    cli::Result r = cli::run({"geod", "direct"}, "1 2 3\n0 0 90 1000\n");
    EXPECT_EQ(r.status, 1);
    EXPECT_NE(r.err.find("veltra: line 1: expected four numbers"),
              std::string::npos) << r.err;
    auto lines = r.out_lines();
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0], "nan nan");
    EXPECT_EQ(cli::numbers(lines[1]).size(), 2u);

    r = cli::run({"geod"}, "");
    EXPECT_EQ(r.status, 2);
    EXPECT_NE(r.err.find("expected 'direct' or 'inverse'"), std::string::npos);
    r = cli::run({"geod", "inverse", "--spheroid", "SPHEROID[\"flat\",0,0]"}, "");
    EXPECT_EQ(r.status, 2);
    EXPECT_NE(r.err.find("veltra: --spheroid: "), std::string::npos);
}

// EPSG Guidance Note 7-2, Position Vector transformation (EPSG method
// 9606): WGS 72 to WGS 84 with tZ = +4.5 m, rZ = +0.554", dS = +0.219 ppm.
// 55 00 00 N, 4 00 00 E, h 0 on WGS 72 gives 55 00 00.090 N,
// 4 00 00.554 E, h 3.22 m on WGS 84.
const std::string kWgs72ToWgs84 =
    "GEOGTRAN[\"WGS_1972_To_WGS_1984\","
    "GEOGCS[\"GCS_WGS_1972\",DATUM[\"D_WGS_1972\",SPHEROID[\"WGS_1972\","
    "6378135.0,298.26]],PRIMEM[\"Greenwich\",0.0],"
    "UNIT[\"Degree\",0.0174532925199433]],"
    "GEOGCS[\"GCS_WGS_1984\",DATUM[\"D_WGS_1984\",SPHEROID[\"WGS_1984\","
    "6378137.0,298.257223563]],PRIMEM[\"Greenwich\",0.0],"
    "UNIT[\"Degree\",0.0174532925199433]],"
    "METHOD[\"Position_Vector\"],PARAMETER[\"Z_Axis_Translation\",4.5],"
    "PARAMETER[\"Z_Axis_Rotation\",0.554],PARAMETER[\"Scale_Difference\",0.219]]";

TEST(CliTransform, PositionVectorWorkedExample) {
    cli::Result r =
        cli::run({"transform", "--gt", kWgs72ToWgs84}, "4 55 0 site\n4 55\n");
    EXPECT_EQ(r.status, 0) << r.err;
    auto lines = r.out_lines();
    ASSERT_EQ(lines.size(), 2u);
    auto v = cli::numbers(lines[0]);
    ASSERT_EQ(v.size(), 3u) << lines[0];
    EXPECT_NEAR(v[0], dms(4, 0, 0.554), 0.001 * kArcSecond);
    EXPECT_NEAR(v[1], dms(55, 0, 0.090), 0.001 * kArcSecond);
    EXPECT_NEAR(v[2], 3.22, 0.005);
    EXPECT_NE(lines[0].find(" site"), std::string::npos);
    // Without a height column: the same position, no height written.
    auto w = cli::numbers(lines[1]);
    ASSERT_EQ(w.size(), 2u) << lines[1];
    EXPECT_DOUBLE_EQ(w[0], v[0]);
    EXPECT_DOUBLE_EQ(w[1], v[1]);
}

TEST(CliTransform, ReverseGoesBack) {
    cli::Result forward =
        cli::run({"transform", "--gt", kWgs72ToWgs84}, "4 55 0\n-70.5 -33.25 100\n");
    cli::Result back =
        cli::run({"transform", "--gt", kWgs72ToWgs84, "--reverse"}, forward.out);
    EXPECT_EQ(back.status, 0) << back.err;
    auto lines = back.out_lines();
    ASSERT_EQ(lines.size(), 2u);
    auto a = cli::numbers(lines[0]), b = cli::numbers(lines[1]);
    ASSERT_EQ(a.size(), 3u);
    ASSERT_EQ(b.size(), 3u);
    EXPECT_NEAR(a[0], 4, 1e-9);
    EXPECT_NEAR(a[1], 55, 1e-9);
    EXPECT_NEAR(a[2], 0, 1e-4);
    EXPECT_NEAR(b[0], -70.5, 1e-9);
    EXPECT_NEAR(b[1], -33.25, 1e-9);
    EXPECT_NEAR(b[2], 100, 1e-4);
}

TEST(CliTransform, BadTransformationText) {
    std::string unknown = kWgs72ToWgs84;
    unknown.replace(unknown.find("Position_Vector"), 15, "Teleport");
    cli::Result r = cli::run({"transform", "--gt", unknown}, "4 55\n");
    EXPECT_EQ(r.status, 2);
    EXPECT_EQ(r.err, "veltra: --gt: unknown method \"Teleport\"\n");

    r = cli::run({"transform"}, "");
    EXPECT_EQ(r.status, 2);
    EXPECT_NE(r.err.find("--gt TEXT is required"), std::string::npos);
}

}  // namespace
