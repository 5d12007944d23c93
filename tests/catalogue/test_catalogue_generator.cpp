// The committed catalogue tables are what scripts/gen_catalogue.py makes of
// the EPSG records: re-running it into a temporary directory gives the same
// bytes, for the C++ files and for the generated section of the document.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace {

TEST(CatalogueGenerator, ReproducesCommittedFiles) {
    const std::string source = VELTRA_SOURCE_DIR, epsg = VELTRA_SHARED_DIR "/epsg";
    if (std::system("python3 -c 'import sys; sys.exit(sys.version_info < (3, 8))' 2>/dev/null") != 0)
        GTEST_SKIP() << "python3 not available; generator not re-run";
    std::string work = (std::filesystem::temp_directory_path() / "veltra-catalogue-XXXXXX").string();
    ASSERT_NE(mkdtemp(work.data()), nullptr);
    // diff lists what differs; it exits with 0 only when nothing does.
    const std::string command = "cp '" + source + "/docs/catalogue.md' '" + work + "' && python3 '" + source +
                                "/scripts/gen_catalogue.py' --epsg '" + epsg + "' --out '" + work +
                                "/generated' --docs '" + work + "/catalogue.md' >/dev/null && diff -r '" + source +
                                "/src/catalogue/generated' '" + work + "/generated' && diff '" + source +
                                "/docs/catalogue.md' '" + work + "/catalogue.md'";
    EXPECT_EQ(std::system(command.c_str()), 0) << command;
    std::filesystem::remove_all(work);
}

}  // namespace
