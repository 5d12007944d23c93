// End-to-end tests of `veltra show`, `veltra project` and `veltra list`:
// the built binary on the shipped sample data and on bad input, arguments
// and catalogue codes.
#include "core/fixtures.h"
#include "tools/cli_run.h"

#if VELTRA_HAVE_PROJ
#include <proj.h>
#endif

namespace {

const std::string kUtmFile = "@" + cli::source_path("data/utm33n.txt");
const std::string kCities = cli::source_path("data/cities.txt");

// The shown text is the library's one-line form of data/utm33n.txt; the
// catalogue's 4326 is written out from the EPSG record.
TEST(CliShow, PrintsTheLibrarysTextForm) {
    cli::Result r = cli::run({"show", kUtmFile});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, fixtures::kUtm33nText + "\n");
    EXPECT_EQ(r.err, "");
    r = cli::run({"show", "--kind", "-"}, "  unit [\"Foot_US\", 0.3048006096012192]\n");
    EXPECT_EQ(r.out, "unit\nUNIT[\"Foot_US\",0.3048006096012192]\n");
    r = cli::run({"show", "--kind", " 4326 "});
    EXPECT_EQ(r.out, "geogcs\n" + fixtures::kWgs84Text + "\n");
}

// Published UTM values: on the central meridian x is the false easting and
// y is 0.9996 times the meridian arc, 4 984 944.378 m from the equator to
// 45 degrees on WGS 84.
TEST(CliProject, CentralMeridianPointsMatchTheMeridianArc) {
    cli::Result r = cli::run({"project", "--pcs", kUtmFile, "--decimals", "4"}, "15 0\n15 45\n");
    EXPECT_EQ(r.status, 0) << r.err;
    ASSERT_EQ(r.lines().size(), 2u);
    EXPECT_EQ(r.lines()[0], "500000.0000 0.0000");
    const auto v = cli::numbers(r.lines()[1]);
    ASSERT_EQ(v.size(), 2u);
    EXPECT_NEAR(v[0], 500000.0, 1e-4);
    EXPECT_NEAR(v[1], 0.9996 * 4984944.378, 1e-3);
}

// The sample cities against PROJ's UTM zone 33N (EPSG:32633), by text and
// by code; comment lines and names pass through, and --inverse goes back.
TEST(CliProject, SampleCitiesMatchPROJAndGoBack) {
    const auto input = cli::lines_of(cli::slurp(kCities));
    for (const char *pcs : {kUtmFile.c_str(), "32633"}) {
        cli::Result r = cli::run({"project", "--pcs", pcs, kCities});
        EXPECT_EQ(r.status, 0) << r.err;
        EXPECT_EQ(r.err, "");
        const auto lines = r.lines();
        ASSERT_EQ(lines.size(), input.size());
        EXPECT_EQ(lines[0], input[0]);
        EXPECT_TRUE(lines[2].ends_with(" Berlin") && lines[13].ends_with(" Krakow"));
#if VELTRA_HAVE_PROJ
        PJ_CONTEXT *ctx = proj_context_create();
        PJ *crs = proj_create_crs_to_crs(ctx, "EPSG:4326", "EPSG:32633", nullptr);
        PJ *pj = proj_normalize_for_visualization(ctx, crs);
        ASSERT_NE(pj, nullptr);
        for (std::size_t i = 2; i < lines.size(); ++i) {
            const auto lonlat = cli::numbers(input[i]), ours = cli::numbers(lines[i]);
            const PJ_COORD xy = proj_trans(pj, PJ_FWD, proj_coord(lonlat[0], lonlat[1], 0, 0));
            ASSERT_EQ(ours.size(), 2u);
            EXPECT_NEAR(ours[0], xy.xy.x, 1e-3) << input[i];
            EXPECT_NEAR(ours[1], xy.xy.y, 1e-3) << input[i];
        }
        proj_destroy(pj);
        proj_destroy(crs);
        proj_context_destroy(ctx);
#endif
        const auto back = cli::run({"project", "--pcs", pcs, "--inverse"}, r.out).lines();
        ASSERT_EQ(back.size(), input.size());
        for (std::size_t i = 2; i < input.size(); ++i) {
            const auto want = cli::numbers(input[i]), got = cli::numbers(back[i]);
            ASSERT_EQ(got.size(), 2u) << back[i];
            EXPECT_NEAR(got[0], want[0], 1e-8);
            EXPECT_NEAR(got[1], want[1], 1e-8);
        }
    }
}

TEST(CliProject, BadLinesAreReportedWithTheirNumbersAndTheOthersConverted) {
    cli::Result r = cli::run({"project", "--pcs", kUtmFile},
                             "15 0\n\n15 zero\n15,45\n15\n# a comment\n15 0 trailing text\n");
    EXPECT_EQ(r.status, 1);
    auto lines = r.lines();
    ASSERT_EQ(lines.size(), 7u);
    EXPECT_TRUE(lines[3].starts_with("500000,")) << lines[3];  // the separator is kept
    EXPECT_NEAR(std::stod(lines[3].substr(7)), 0.9996 * 4984944.378, 1e-3);
    lines[3] = "";
    EXPECT_EQ(lines, (std::vector<std::string>{"500000 0", "", "nan nan", "", "nan nan",
                                               "# a comment", "500000 0 trailing text"}));
    const auto errors = cli::lines_of(r.err);
    ASSERT_GE(errors.size(), 2u);
    EXPECT_TRUE(errors[0].starts_with("veltra: line 3: expected two numbers")) << r.err;
    EXPECT_TRUE(errors[1].starts_with("veltra: line 5: expected two numbers")) << r.err;
    EXPECT_EQ(r.err.find("line 7"), std::string::npos);

    // A line too long to hold is skipped, not buffered, and its neighbours
    // still converted, the last one without a line break.
    r = cli::run({"project", "--pcs", kUtmFile}, "15 0\n" + std::string(70000, '7') + "\n15 0");
    EXPECT_EQ(r.out, "500000 0\nnan nan\n500000 0\n");
    EXPECT_TRUE(r.err.starts_with("veltra: line 2: longer than 65536 characters")) << r.err;

    // A cylindrical equal-area system on a polar standard parallel has no
    // cylinder: every point fails and is marked.
    std::string polar = fixtures::kUtm33nText;
    polar.replace(polar.find("Transverse_Mercator"), 19, "Cylindrical_Equal_Area");
    polar.replace(polar.find("Scale_Factor\",0.9996"), 20, "Standard_Parallel_1\",90");
    r = cli::run({"project", "--pcs", polar}, "10 10\n20 20\n");
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.out, "nan nan\nnan nan\n");
    EXPECT_NE(r.err.find("2 of 2 points could not be converted"), std::string::npos) << r.err;
}

// Inputs repeat every 80 lines: the same input gives the same answer on
// either side of the 4096-point batches, and each line keeps its tag.
TEST(CliProject, StreamsInputsLargerThanABatch) {
    std::string input;
    const int count = 10000;
    for (int i = 0; i < count; ++i)
        input += std::to_string(10 + i % 10) + " " + std::to_string(i % 80) + " p" +
                 std::to_string(i) + "\n";
    cli::Result r = cli::run({"project", "--pcs", kUtmFile}, input);
    EXPECT_EQ(r.status, 0) << r.err;
    const auto lines = r.lines();
    ASSERT_EQ(lines.size(), static_cast<std::size_t>(count));
    auto numbers_of = [&](int i) { return lines[i].substr(0, lines[i].find(" p")); };
    for (int i : {4095, 4096, 8191, 8192, count - 1}) {
        EXPECT_EQ(numbers_of(i), numbers_of(i % 80)) << i;
        EXPECT_TRUE(lines[i].ends_with(" p" + std::to_string(i))) << lines[i];
    }
}

TEST(CliList, ListsCodesAndNamesSortedAndFiltered) {
    const auto primem = cli::run({"list", "primem"}).lines();
    ASSERT_EQ(primem.size(), 13u);
    EXPECT_EQ(primem.front(), "8912 Athens");
    EXPECT_EQ(primem.back(), "8911 Stockholm");
    const auto units = cli::run({"list", "--by-code", "unit"}).lines();
    ASSERT_EQ(units.size(), 47u);
    EXPECT_EQ(units.front(), "9001 Meter");
    EXPECT_EQ(units.back(), "9114 Mil_6400");
    EXPECT_EQ(cli::run({"list", "projcs", "wgs_1984_utm_zone_33"}).out,
              "32633 WGS_1984_UTM_Zone_33N\n32733 WGS_1984_UTM_Zone_33S\n");
}

// Nothing done: status 2, no output, and one line that says why.
TEST(Cli, BadArgumentsExitWithStatusTwoAndOneLine) {
    std::string flat = fixtures::kUtm33nText;
    flat.replace(flat.find("Transverse_Mercator"), 19, "Flat_Earth");
    const std::pair<std::vector<std::string>, const char *> cases[] = {
        {{"frobnicate"}, "veltra: unknown command 'frobnicate'"},
        {{"show", "hello"}, "veltra: not a coordinate-system text"},
        {{"show", "GEOGCS[\"g\",DATUM[\"d\",SPHEROID[\"s\",6378137,298.257]],UNIT[\"D\",1]]"},
         "veltra: no readable PRIMEM"},
        {{"show", "@/no/such/file.prj"}, "veltra: /no/such/file.prj: "},
        {{"show", "99999"}, "veltra: no catalogue object has the code 99999"},
        {{"project"}, "veltra: project: --pcs TEXT is required"},
        {{"project", "--pcs"}, "veltra: option --pcs needs a value"},
        {{"project", "--pcs", kUtmFile, "--frobnicate"}, "veltra: unknown option '--frobnicate'"},
        {{"project", "--pcs", kUtmFile, "/no/such/points.txt"}, "veltra: /no/such/points.txt: "},
        {{"project", "--pcs", "GEOGCS[\"g\"]"},
         "veltra: --pcs: expected a PROJCS text, got GEOGCS"},
        {{"project", "--pcs", "4326"}, "veltra: --pcs: expected a PROJCS, got a GEOGCS"},
        {{"project", "--pcs", flat}, "veltra: --pcs: unknown projection \"Flat_Earth\""},
        {{"project", "--pcs", kUtmFile, "--decimals", "x"},
         "veltra: --decimals: expected a whole number from 0 to 17"},
        {{"list", "planets"}, "veltra: list: unknown kind 'planets'"},
        {{"geod"}, "veltra: geod: expected 'direct' or 'inverse'"},
        {{"geod", "inverse", "--spheroid", "SPHEROID[\"flat\",0,0]"}, "veltra: --spheroid: "},
        {{"transform"}, "veltra: transform: --gt TEXT is required"},
    };
    for (const auto &[args, message] : cases) {
        cli::Result r = cli::run(args, "15 0\n");
        EXPECT_EQ(r.status, 2) << message;
        EXPECT_EQ(r.out, "") << message;
        EXPECT_TRUE(r.err.starts_with(message)) << r.err;
        EXPECT_EQ(std::count(r.err.begin(), r.err.end(), '\n'), 1) << r.err;
    }
}

}  // namespace
