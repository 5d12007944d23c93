// End-to-end tests of `veltra geod` and `veltra transform` against
// published worked examples.
#include "core/fixtures.h"
#include "tools/cli_run.h"

namespace {

constexpr double kArcSecond = 1.0 / 3600.0;

double dms(double d, double m, double s) {
    return (d < 0 ? -1 : 1) * (std::fabs(d) + m / 60 + s / 3600);
}

// Vincenty's example as published by Geoscience Australia: Flinders Peak
// (144 25 29.52440 E, 37 57 03.72030 S) to Buninyong (143 55 35.38390 E,
// 37 39 10.15610 S) on GRS 80: 54 972.271 m, azimuth 306 52 05.37, reverse
// azimuth 127 10 25.07.
TEST(CliGeod, VincentysExampleBothWays) {
    const std::string grs80 = "SPHEROID[\"GRS_1980\",6378137.0,298.257222101]";
    const double flinders[2] = {dms(144, 25, 29.52440), dms(-37, 57, 3.72030)};
    const double buninyong[2] = {dms(143, 55, 35.38390), dms(-37, 39, 10.15610)};
    char line[256];
    std::snprintf(line, sizeof line, "%.10f %.10f %.10f 54972.271 Buninyong\n", flinders[0],
                  flinders[1], dms(306, 52, 5.37));
    cli::Result r = cli::run({"geod", "direct", "--spheroid", grs80}, line);
    EXPECT_EQ(r.status, 0) << r.err;
    auto v = cli::numbers(r.out);
    ASSERT_EQ(v.size(), 2u) << r.out;
    EXPECT_NEAR(v[0], buninyong[0], 0.001 * kArcSecond);
    EXPECT_NEAR(v[1], buninyong[1], 0.001 * kArcSecond);
    EXPECT_TRUE(r.out.ends_with(" Buninyong\n"));

    // Commas separate numbers too.
    std::snprintf(line, sizeof line, "%.10f,%.10f,%.10f,%.10f\n", flinders[0], flinders[1],
                  buninyong[0], buninyong[1]);
    r = cli::run({"geod", "inverse", "--spheroid", grs80}, line);
    EXPECT_EQ(r.status, 0) << r.err;
    std::replace(r.out.begin(), r.out.end(), ',', ' ');
    v = cli::numbers(r.out);
    ASSERT_EQ(v.size(), 3u) << r.out;
    EXPECT_NEAR(v[0], 54972.271, 0.001);
    EXPECT_NEAR(std::fmod(v[1] + 360, 360), dms(306, 52, 5.37), 0.01 * kArcSecond);
    EXPECT_NEAR(std::fmod(v[2] + 360, 360), dms(127, 10, 25.07), 0.01 * kArcSecond);
}

// Without --spheroid the WGS 84 ellipsoid: one degree of the equator is
// a pi / 180 = 111 319.490793 m.  A short line is reported by number.
TEST(CliGeod, DefaultSpheroidAndBadLines) {
    cli::Result r = cli::run({"geod", "inverse", "--decimals", "6"}, "0 0 1 0\n");
    EXPECT_EQ(r.status, 0) << r.err;
    const auto v = cli::numbers(r.out);
    ASSERT_EQ(v.size(), 3u);
    EXPECT_NEAR(v[0], 6378137.0 * M_PI / 180, 1e-6);
    EXPECT_NEAR(v[1], 90.0, 1e-9);
    r = cli::run({"geod", "direct"}, "1 2 3\n0 0 90 1000\n");
    EXPECT_EQ(r.status, 1);
    EXPECT_TRUE(r.err.starts_with("veltra: line 1: expected four numbers")) << r.err;
    ASSERT_EQ(r.lines().size(), 2u);
    EXPECT_EQ(r.lines()[0], "nan nan");
    EXPECT_EQ(cli::numbers(r.lines()[1]).size(), 2u);
}

// EPSG Guidance Note 7-2, Position Vector transformation (EPSG method 9606,
// transformation 1238): WGS 72 to WGS 84 with tZ = +4.5 m, rZ = +0.554",
// dS = +0.219 ppm.  55 00 00 N, 4 00 00 E, h 0 on WGS 72 gives
// 55 00 00.090 N, 4 00 00.554 E, h 3.22 m on WGS 84.
TEST(CliTransform, PositionVectorWorkedExampleByTextAndCode) {
    const std::string text = "GEOGTRAN[\"WGS_1972_To_WGS_1984\"," + fixtures::kWgs72Text + "," +
                             fixtures::kWgs84Text +
                             ",METHOD[\"Position_Vector\"],PARAMETER[\"Z_Axis_Translation\",4.5],"
                             "PARAMETER[\"Z_Axis_Rotation\",0.554],"
                             "PARAMETER[\"Scale_Difference\",0.219]]";
    for (const std::string &gt : {text, std::string("1238")}) {
        cli::Result r = cli::run({"transform", "--gt", gt}, "4 55 0 site\n4 55\n");
        EXPECT_EQ(r.status, 0) << r.err;
        const auto lines = r.lines();
        ASSERT_EQ(lines.size(), 2u);
        const auto v = cli::numbers(lines[0]), w = cli::numbers(lines[1]);
        ASSERT_EQ(v.size(), 3u) << lines[0];
        EXPECT_NEAR(v[0], dms(4, 0, 0.554), 0.001 * kArcSecond);
        EXPECT_NEAR(v[1], dms(55, 0, 0.090), 0.001 * kArcSecond);
        EXPECT_NEAR(v[2], 3.22, 0.005);
        EXPECT_TRUE(lines[0].ends_with(" site"));
        // Without a height column: the same position, no height written.
        ASSERT_EQ(w.size(), 2u) << lines[1];
        EXPECT_TRUE(w[0] == v[0] && w[1] == v[1]);
    }
    cli::Result forward = cli::run({"transform", "--gt", text}, "4 55 0\n-70.5 -33.25 100\n");
    const auto back = cli::run({"transform", "--gt", text, "--reverse"}, forward.out).lines();
    ASSERT_EQ(back.size(), 2u);
    const auto a = cli::numbers(back[0]), b = cli::numbers(back[1]);
    ASSERT_TRUE(a.size() == 3u && b.size() == 3u);
    EXPECT_TRUE(std::fabs(a[0] - 4) < 1e-9 && std::fabs(a[1] - 55) < 1e-9 &&
                std::fabs(a[2]) < 1e-4);
    EXPECT_TRUE(std::fabs(b[0] + 70.5) < 1e-9 && std::fabs(b[1] + 33.25) < 1e-9 &&
                std::fabs(b[2] - 100) < 1e-4);

    std::string unknown = text;
    unknown.replace(unknown.find("Position_Vector"), 15, "Teleport");
    const cli::Result bad = cli::run({"transform", "--gt", unknown}, "4 55\n");
    EXPECT_EQ(bad.status, 2);
    EXPECT_EQ(bad.err, "veltra: --gt: unknown method \"Teleport\"\n");
}

}  // namespace
