// The two home directories and path joining.
#include "transforms/datahome.h"
#include "transforms/pathcat.h"
#include "veltra.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace {

using veltra::path_join;

std::string join(const char *dir, const char *name, std::size_t size = 256) {
    char out[256] = "garbage";
    if (!path_join(out, size, dir, name)) return "(failed:" + std::string(out) + ")";
    return out;
}

TEST(PathJoin, AddsOneSeparatorUnlessTheDirectoryEndsWithOne) {
    EXPECT_EQ(join("/data", "ntv2"), "/data/ntv2");
    EXPECT_EQ(join("/data/", "ntv2"), "/data/ntv2");
    EXPECT_EQ(join("/data//", "ntv2"), "/data//ntv2");  // not normalised
    EXPECT_EQ(join("rel", "a/b.gsb"), "rel/a/b.gsb");
    EXPECT_EQ(join("", "unit"), "/unit");
}

TEST(PathJoin, RefusesWhatDoesNotFit) {
    EXPECT_EQ(join("/data", "ntv2", 11), "/data/ntv2");
    EXPECT_EQ(join("/data", "ntv2", 10), "(failed:)");
    EXPECT_EQ(join(nullptr, "ntv2"), "(failed:)");
    EXPECT_EQ(join("/data", nullptr), "(failed:)");
    std::string long_dir(300, 'd');
    EXPECT_EQ(join(long_dir.c_str(), "x"), "(failed:)");
}

const char *home_a() { return "/from/callback"; }
const char *home_none() { return nullptr; }

TEST(Homes, CallbackElseEnvironment) {
    ka_datahome_setfunc(nullptr);
    ka_objedithome_setfunc(nullptr);
    unsetenv("KADATAHOME");
    unsetenv("KAOBJEDITHOME");
    EXPECT_EQ(veltra::data_home(), nullptr);
    setenv("KADATAHOME", "/from/env", 1);
    EXPECT_STREQ(veltra::data_home(), "/from/env");
    EXPECT_EQ(ka_datahome_setfunc(home_a), home_a);
    EXPECT_STREQ(veltra::data_home(), "/from/callback");
    ka_datahome_setfunc(home_none);
    EXPECT_EQ(veltra::data_home(), nullptr);
    ka_datahome_setfunc(nullptr);
    EXPECT_STREQ(veltra::data_home(), "/from/env");
    setenv("KADATAHOME", "", 1);
    EXPECT_EQ(veltra::data_home(), nullptr);
    unsetenv("KADATAHOME");

    // The two homes are independent.
    ka_objedithome_setfunc(home_a);
    EXPECT_EQ(veltra::data_home(), nullptr);
    EXPECT_STREQ(veltra::objedit_home(), "/from/callback");
    ka_objedithome_setfunc(nullptr);
    EXPECT_EQ(veltra::objedit_home(), nullptr);
}

}  // namespace
