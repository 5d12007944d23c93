// Where grid files are looked for: the data home and path joining.
#include "transforms/datahome.h"
#include "transforms/pathcat.h"
#include "veltra.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace {

const char *home_callback() { return "/from/callback"; }

// Paths join with one separator unless the directory ends with one,
// nothing normalised; what does not fit, or a missing part, gives false and
// an empty result.  The data home is an installed callback's alone, else
// $KADATAHOME's, an empty value meaning none (the rule itself is the
// object-edit home's, tested with the override files).
TEST(DataFiles, PathJoinAndHome) {
    const std::string long_dir(300, 'd');
    const struct { const char *dir, *name; std::size_t size; const char *joined; } cases[] = {
        {"/data", "ntv2", 256, "/data/ntv2"}, {"/data/", "ntv2", 256, "/data/ntv2"},
        {"/data//", "ntv2", 256, "/data//ntv2"}, {"", "unit", 256, "/unit"},
        {"/data", "ntv2", 11, "/data/ntv2"}, {"/data", "ntv2", 10, nullptr},
        {nullptr, "ntv2", 256, nullptr}, {"/data", nullptr, 256, nullptr},
        {long_dir.c_str(), "x", 256, nullptr}};
    for (const auto &c : cases) {
        char out[256] = "garbage";
        EXPECT_EQ(veltra::path_join(out, c.size, c.dir, c.name), c.joined != nullptr) << c.size;
        EXPECT_STREQ(out, c.joined ? c.joined : "") << c.size;
    }
    setenv("KADATAHOME", "/from/env", 1);
    EXPECT_STREQ(veltra::data_home(), "/from/env");
    EXPECT_EQ(ka_datahome_setfunc(home_callback), home_callback);
    EXPECT_STREQ(veltra::data_home(), "/from/callback");
    ka_datahome_setfunc(nullptr);
    setenv("KADATAHOME", "", 1);
    EXPECT_EQ(veltra::data_home(), nullptr);
    unsetenv("KADATAHOME");
}

}  // namespace
