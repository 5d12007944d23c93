// End-to-end tests of catalogue codes in the veltra tool: codes wherever a
// text is accepted, and `veltra list`.
#include "tools/cli_run.h"

#include <gtest/gtest.h>

#include <string>

namespace {

const std::string kCities = cli::source_path("data/cities.txt");

// data/utm33n.txt is written by hand from the published zone definition;
// its degree factor has 16 digits, so the two agree to rounding only.
TEST(CliCodes, CodeBuildsTheSameSystemAsItsPublishedDefinition) {
    const std::string utm_file =
        std::string("@").append(cli::source_path("data/utm33n.txt"));
    auto by_text = cli::run({"project", "--pcs", utm_file, kCities}).out_lines();
    cli::Result by_code = cli::run({"project", "--pcs", "32633", kCities});
    EXPECT_EQ(by_code.status, 0) << by_code.err;
    auto lines = by_code.out_lines();
    ASSERT_EQ(lines.size(), by_text.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        auto a = cli::numbers(lines[i]), b = cli::numbers(by_text[i]);
        ASSERT_EQ(a.size(), b.size()) << lines[i];
        for (std::size_t j = 0; j < a.size(); ++j) EXPECT_NEAR(a[j], b[j], 1e-6);
    }
}

TEST(CliCodes, ShowWritesTheCatalogueObject) {
    cli::Result r = cli::run({"show", "--kind", " 4326 "});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out,
              "geogcs\nGEOGCS[\"GCS_WGS_1984\",DATUM[\"D_WGS_1984\",SPHEROID["
              "\"WGS_1984\",6378137.0,298.257223563]],PRIMEM[\"Greenwich\",0.0],"
              "UNIT[\"Degree\",0.0174532925199433]]\n");
}

// EPSG 1238 is the transformation of the EPSG guidance note's Position
// Vector example: 55N 4E on WGS 72 becomes 55 0 0.090 N, 4 0 0.554 E, 3.22 m.
TEST(CliCodes, TransformByCodeGivesThePublishedExample) {
    cli::Result r = cli::run({"transform", "--gt", "1238"}, "4 55 0\n");
    EXPECT_EQ(r.status, 0) << r.err;
    auto v = cli::numbers(r.out);
    ASSERT_EQ(v.size(), 3u) << r.out;
    EXPECT_NEAR(v[0], 4 + 0.554 / 3600, 0.001 / 3600);
    EXPECT_NEAR(v[1], 55 + 0.090 / 3600, 0.001 / 3600);
    EXPECT_NEAR(v[2], 3.22, 0.005);
}

TEST(CliCodes, WrongKindAndUnknownCodesAreRefused) {
    cli::Result wrong = cli::run({"project", "--pcs", "4326", kCities});
    EXPECT_EQ(wrong.status, 2);
    EXPECT_NE(wrong.err.find("--pcs: expected a PROJCS, got a GEOGCS"),
              std::string::npos)
        << wrong.err;
    EXPECT_TRUE(wrong.out.empty());
    cli::Result unknown = cli::run({"show", "99999"});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_NE(unknown.err.find("code 99999"), std::string::npos) << unknown.err;
}

TEST(CliList, ListsCodesAndNamesSortedAndFiltered) {
    cli::Result primem = cli::run({"list", "primem"});
    EXPECT_EQ(primem.status, 0) << primem.err;
    auto lines = primem.out_lines();
    ASSERT_EQ(lines.size(), 13u);
    EXPECT_EQ(lines.front(), "8912 Athens");
    EXPECT_EQ(lines.back(), "8911 Stockholm");

    cli::Result units = cli::run({"list", "--by-code", "unit"});
    auto unit_lines = units.out_lines();
    ASSERT_EQ(unit_lines.size(), 47u);
    EXPECT_EQ(unit_lines.front(), "9001 Meter");
    EXPECT_EQ(unit_lines.back(), "9114 Mil_6400");

    cli::Result utm = cli::run({"list", "projcs", "wgs_1984_utm_zone_33"});
    EXPECT_EQ(utm.out, "32633 WGS_1984_UTM_Zone_33N\n32733 WGS_1984_UTM_Zone_33S\n");

    cli::Result bad = cli::run({"list", "planets"});
    EXPECT_EQ(bad.status, 2);
    EXPECT_NE(bad.err.find("unknown kind 'planets'"), std::string::npos);
}

}  // namespace
