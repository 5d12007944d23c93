// End-to-end tests of `veltra show` and `veltra project`: the built binary
// on the shipped sample data, bad input lines and bad arguments.
#include "tools/cli_run.h"

#include "veltra.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>
#include <string>
#include <vector>

#if VELTRA_HAVE_PROJ
#include <proj.h>
#endif

namespace {

const std::string kUtmFile =
    std::string("@").append(cli::source_path("data/utm33n.txt"));
const std::string kCities = cli::source_path("data/cities.txt");

// The library's one-line form of data/utm33n.txt, written out by hand.
const std::string kUtmOneLine =
    "PROJCS[\"WGS_1984_UTM_Zone_33N\",GEOGCS[\"GCS_WGS_1984\",DATUM["
    "\"D_WGS_1984\",SPHEROID[\"WGS_1984\",6378137.0,298.257223563]],"
    "PRIMEM[\"Greenwich\",0.0],UNIT[\"Degree\",0.0174532925199433]],"
    "PROJECTION[\"Transverse_Mercator\"],PARAMETER[\"False_Easting\",500000.0],"
    "PARAMETER[\"False_Northing\",0.0],PARAMETER[\"Central_Meridian\",15.0],"
    "PARAMETER[\"Scale_Factor\",0.9996],PARAMETER[\"Latitude_Of_Origin\",0.0],"
    "UNIT[\"Meter\",1.0]]";

TEST(CliShow, PrintsTheLibrarysTextForm) {
    cli::Result r = cli::run({"show", kUtmFile});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, kUtmOneLine + "\n");
    EXPECT_EQ(r.err, "");

    r = cli::run({"show", "--kind", "-"}, "  unit [\"Foot_US\", 0.3048006096012192]\n");
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "unit\nUNIT[\"Foot_US\",0.3048006096012192]\n");
}

TEST(CliShow, SaysWhyATextCannotBeRead) {
    cli::Result r = cli::run({"show", "hello"});
    EXPECT_EQ(r.status, 2);
    EXPECT_EQ(r.out, "");
    EXPECT_NE(r.err.find("veltra: not a coordinate-system text"),
              std::string::npos);

    r = cli::run({"show", "GEOGCS[\"g\",DATUM[\"d\",SPHEROID[\"s\",6378137,"
                          "298.257]],UNIT[\"Degree\",0.0174532925199433]]"});
    EXPECT_EQ(r.status, 2);
    EXPECT_NE(r.err.find("no readable PRIMEM"), std::string::npos) << r.err;

    r = cli::run({"show", "@/no/such/file.prj"});
    EXPECT_EQ(r.status, 2);
    EXPECT_NE(r.err.find("veltra: /no/such/file.prj: "), std::string::npos);
}

// Published UTM values: on the central meridian x is the false easting and
// y is 0.9996 times the meridian arc, 4 984 944.378 m from the equator to
// 45 degrees on WGS 84.
TEST(CliProject, CentralMeridianPointsMatchTheMeridianArc) {
    cli::Result r = cli::run({"project", "--pcs", kUtmFile, "--decimals", "4"},
                             "15 0\n15 45\n");
    EXPECT_EQ(r.status, 0) << r.err;
    auto lines = r.out_lines();
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0], "500000.0000 0.0000");
    auto v = cli::numbers(lines[1]);
    ASSERT_EQ(v.size(), 2u);
    EXPECT_NEAR(v[0], 500000.0, 1e-4);
    EXPECT_NEAR(v[1], 0.9996 * 4984944.378, 1e-3);
}

TEST(CliProject, SampleCitiesKeepTheirLinesAndNames) {
    cli::Result r = cli::run({"project", "--pcs", kUtmFile, kCities});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.err, "");
    auto lines = r.out_lines();
    ASSERT_EQ(lines.size(), 14u);
    EXPECT_EQ(lines[0].rfind("# Twelve cities", 0), 0u);
    EXPECT_NE(lines[2].find(" Berlin"), std::string::npos);
    EXPECT_NE(lines[13].find(" Krakow"), std::string::npos);

#if VELTRA_HAVE_PROJ
    // PROJ's UTM zone 33N (EPSG:32633) as the independent oracle.
    PJ_CONTEXT *ctx = proj_context_create();
    PJ *pj = proj_create_crs_to_crs(ctx, "EPSG:4326", "EPSG:32633", nullptr);
    ASSERT_NE(pj, nullptr);
    PJ *norm = proj_normalize_for_visualization(ctx, pj);
    std::vector<std::string> city_lines;
    {
        std::string text = cli::slurp(kCities);
        std::istringstream s(text);
        for (std::string line; std::getline(s, line);)
            if (!line.empty() && line[0] != '#') city_lines.push_back(line);
    }
    ASSERT_EQ(city_lines.size(), 12u);
    for (std::size_t i = 0; i < city_lines.size(); ++i) {
        auto lonlat = cli::numbers(city_lines[i]);
        PJ_COORD c = proj_coord(lonlat[0], lonlat[1], 0, 0);
        PJ_COORD xy = proj_trans(norm, PJ_FWD, c);
        auto ours = cli::numbers(lines[i + 2]);
        ASSERT_EQ(ours.size(), 2u);
        EXPECT_NEAR(ours[0], xy.xy.x, 1e-3) << city_lines[i];
        EXPECT_NEAR(ours[1], xy.xy.y, 1e-3) << city_lines[i];
    }
    proj_destroy(norm);
    proj_destroy(pj);
    proj_context_destroy(ctx);
#endif
}

TEST(CliProject, InverseGivesTheCitiesBack) {
    cli::Result forward = cli::run({"project", "--pcs", kUtmFile, kCities});
    cli::Result back =
        cli::run({"project", "--pcs", kUtmFile, "--inverse"}, forward.out);
    EXPECT_EQ(back.status, 0) << back.err;
    const std::string original = cli::slurp(kCities);
    std::istringstream expected(original);
    auto lines = back.out_lines();
    std::size_t i = 0;
    for (std::string line; std::getline(expected, line); ++i) {
        ASSERT_LT(i, lines.size());
        if (line[0] == '#') {
            EXPECT_EQ(lines[i], line);
            continue;
        }
        auto want = cli::numbers(line), got = cli::numbers(lines[i]);
        ASSERT_EQ(got.size(), 2u) << lines[i];
        EXPECT_NEAR(got[0], want[0], 1e-8);
        EXPECT_NEAR(got[1], want[1], 1e-8);
    }
}

TEST(CliProject, BadLineIsReportedAndTheOthersConverted) {
    const std::string input =
        "15 0\n"
        "\n"
        "15 zero\n"
        "15,45\n"
        "15\n"
        "# a comment\n"
        "15 0 trailing text\n";
    cli::Result r = cli::run({"project", "--pcs", kUtmFile}, input);
    EXPECT_EQ(r.status, 1);
    auto lines = r.out_lines();
    ASSERT_EQ(lines.size(), 7u);
    EXPECT_EQ(lines[0], "500000 0");
    EXPECT_EQ(lines[1], "");
    EXPECT_EQ(lines[2], "nan nan");
    EXPECT_EQ(lines[3].rfind("500000,", 0), 0u) << lines[3];
    EXPECT_EQ(lines[4], "nan nan");
    EXPECT_EQ(lines[5], "# a comment");
    EXPECT_EQ(lines[6], "500000 0 trailing text");
    EXPECT_NE(r.err.find("veltra: line 3: expected two numbers"),
              std::string::npos) << r.err;
    EXPECT_NE(r.err.find("veltra: line 5: expected two numbers"),
              std::string::npos) << r.err;
    EXPECT_EQ(r.err.find("line 7"), std::string::npos);
}

// A cylindrical equal-area system on a polar standard parallel has no
// cylinder: every point fails and is marked.
TEST(CliProject, FailedPointsAreNanAndCounted) {
    const std::string pcs =
        "PROJCS[\"polar\",GEOGCS[\"g\",DATUM[\"d\",SPHEROID[\"s\",6378137,"
        "298.257223563]],PRIMEM[\"Greenwich\",0],UNIT[\"Degree\","
        "0.0174532925199433]],PROJECTION[\"Cylindrical_Equal_Area\"],"
        "PARAMETER[\"Standard_Parallel_1\",90],UNIT[\"Meter\",1]]";
    cli::Result r = cli::run({"project", "--pcs", pcs}, "10 10\n20 20\n");
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.out, "nan nan\nnan nan\n");
    EXPECT_NE(r.err.find("2 of 2 points could not be converted"),
              std::string::npos) << r.err;
}

TEST(CliProject, StreamsInputsLargerThanABatch) {
    std::string input;
    const int count = 10000;
    for (int i = 0; i < count; ++i)
        input += std::to_string(10 + i % 10) + " " + std::to_string(i % 80) +
                 " p" + std::to_string(i) + "\n";
    cli::Result r = cli::run({"project", "--pcs", kUtmFile}, input);
    EXPECT_EQ(r.status, 0) << r.err;
    auto lines = r.out_lines();
    ASSERT_EQ(lines.size(), static_cast<std::size_t>(count));
    // Inputs repeat every 80 lines: the same input gives the same answer
    // on either side of the 4096-point batches, and each line keeps its tag.
    auto numbers_of = [&](int i) { return lines[i].substr(0, lines[i].find(" p")); };
    for (int i : {4095, 4096, 8191, 8192, count - 1}) {
        EXPECT_EQ(numbers_of(i), numbers_of(i % 80)) << i;
        EXPECT_EQ(lines[i].substr(lines[i].find(" p")), " p" + std::to_string(i));
    }
}

TEST(CliProject, BadArgumentsExitWithStatusTwo) {
    struct Case {
        std::vector<std::string> args;
        const char *message;
    };
    const Case cases[] = {
        {{"project"}, "veltra: project: --pcs TEXT is required"},
        {{"project", "--pcs"}, "veltra: option --pcs needs a value"},
        {{"project", "--pcs", kUtmFile, "--frobnicate"},
         "veltra: unknown option '--frobnicate'"},
        {{"project", "--pcs", kUtmFile, "/no/such/points.txt"},
         "veltra: /no/such/points.txt: "},
        {{"project", "--pcs", "GEOGCS[\"g\"]"},
         "veltra: --pcs: expected a PROJCS text, got GEOGCS"},
        {{"project", "--pcs", kUtmOneLine.substr(0, kUtmOneLine.find("PROJECTION")) +
                                  "PROJECTION[\"Flat_Earth\"],UNIT[\"Meter\",1]]"},
         "veltra: --pcs: unknown projection \"Flat_Earth\""},
        {{"project", "--pcs", kUtmFile, "--decimals", "x"},
         "veltra: --decimals: expected a whole number from 0 to 17"},
        {{"frobnicate"}, "veltra: unknown command 'frobnicate'"},
    };
    for (const Case &c : cases) {
        cli::Result r = cli::run(c.args, "15 0\n");
        EXPECT_EQ(r.status, 2) << c.message;
        EXPECT_EQ(r.out, "") << c.message;
        EXPECT_EQ(r.err.rfind(c.message, 0), 0u) << r.err;
        EXPECT_EQ(std::count(r.err.begin(), r.err.end(), '\n'), 1) << r.err;
    }
}

}  // namespace
