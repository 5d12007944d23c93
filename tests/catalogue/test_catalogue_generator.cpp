// The committed catalogue tables are what scripts/gen_catalogue.py makes of
// the EPSG records: re-running it into a temporary directory gives the same
// bytes, for the C++ files and for the generated section of the document.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

namespace fs = std::filesystem;

std::string contents(const fs::path &path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::string quoted(const fs::path &path) {
    std::string text(1, '\'');
    text += path.string();
    text += '\'';
    return text;
}

TEST(CatalogueGenerator, ReproducesCommittedFiles) {
    const fs::path source = VELTRA_SOURCE_DIR;
    const fs::path epsg = fs::path(VELTRA_SHARED_DIR) / "epsg";
    if (!fs::exists(epsg / "datums.csv"))
        GTEST_SKIP() << "EPSG records not found in " << epsg << "; generator not re-run";
    if (std::system("python3 -c 'import sys; sys.exit(sys.version_info < (3, 8))' "
                    ">/dev/null 2>&1") != 0)
        GTEST_SKIP() << "python3 not available; generator not re-run";

    fs::path work = fs::temp_directory_path() /
                    ("veltra_catalogue_" + std::to_string(::testing::UnitTest::GetInstance()
                                                              ->random_seed()) +
                     "_" + std::to_string(reinterpret_cast<std::uintptr_t>(&work)));
    fs::remove_all(work);
    ASSERT_TRUE(fs::create_directories(work / "generated"));
    fs::copy_file(source / "docs" / "catalogue.md", work / "catalogue.md");

    std::string command = "python3 " + quoted(source / "scripts" / "gen_catalogue.py") +
                          " --epsg " + quoted(epsg) + " --out " + quoted(work / "generated") +
                          " --docs " + quoted(work / "catalogue.md") + " >/dev/null";
    ASSERT_EQ(std::system(command.c_str()), 0) << command;

    const fs::path committed = source / "src" / "catalogue" / "generated";
    int files = 0;
    for (const auto &entry : fs::directory_iterator(committed)) {
        fs::path made = work / "generated" / entry.path().filename();
        ASSERT_TRUE(fs::exists(made)) << made;
        EXPECT_TRUE(contents(entry.path()) == contents(made))
            << entry.path().filename() << " differs from the generator's output";
        ++files;
    }
    EXPECT_EQ(files, 7);
    int made_files = static_cast<int>(std::distance(fs::directory_iterator(work / "generated"),
                                                    fs::directory_iterator()));
    EXPECT_EQ(made_files, files);
    EXPECT_TRUE(contents(source / "docs" / "catalogue.md") == contents(work / "catalogue.md"))
        << "docs/catalogue.md: generated section out of date";
    fs::remove_all(work);
}

}  // namespace
