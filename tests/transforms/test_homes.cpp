// The data home (callback, else environment) and path joining.
#include "transforms/datahome.h"
#include "transforms/pathcat.h"
#include "veltra.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace {

TEST(PathJoin, OneSeparatorAndNothingThatDoesNotFit) {
    const std::string long_dir(300, 'd');
    const struct { const char *dir, *name; std::size_t size; const char *joined; } cases[] = {
        {"/data", "ntv2", 256, "/data/ntv2"}, {"/data/", "ntv2", 256, "/data/ntv2"},
        {"/data//", "ntv2", 256, "/data//ntv2"},  // not normalised
        {"rel", "a/b.gsb", 256, "rel/a/b.gsb"},  {"", "unit", 256, "/unit"},
        {"/data", "ntv2", 11, "/data/ntv2"},     {"/data", "ntv2", 10, nullptr},
        {nullptr, "ntv2", 256, nullptr},          {"/data", nullptr, 256, nullptr},
        {long_dir.c_str(), "x", 256, nullptr}};
    for (const auto &c : cases) {
        char out[256] = "garbage";
        EXPECT_EQ(veltra::path_join(out, c.size, c.dir, c.name), c.joined != nullptr) << c.size;
        EXPECT_STREQ(out, c.joined ? c.joined : "") << c.size;  // emptied on failure
    }
}

const char *home_callback() { return "/from/callback"; }
const char *home_none() { return nullptr; }

// An installed callback decides alone; without one the environment does,
// and an empty value is no home.  The object-edit home is independent.
TEST(DataHome, CallbackElseEnvironment) {
    ka_datahome_setfunc(nullptr);
    unsetenv("KADATAHOME");
    EXPECT_EQ(veltra::data_home(), nullptr);
    setenv("KADATAHOME", "/from/env", 1);
    EXPECT_STREQ(veltra::data_home(), "/from/env");
    EXPECT_EQ(ka_datahome_setfunc(home_callback), home_callback);
    EXPECT_STREQ(veltra::data_home(), "/from/callback");
    ka_datahome_setfunc(home_none);
    EXPECT_EQ(veltra::data_home(), nullptr);
    ka_datahome_setfunc(nullptr);
    EXPECT_STREQ(veltra::data_home(), "/from/env");
    setenv("KADATAHOME", "", 1);
    EXPECT_EQ(veltra::data_home(), nullptr);
    unsetenv("KADATAHOME");
    ka_objedithome_setfunc(home_callback);
    EXPECT_EQ(veltra::data_home(), nullptr);
    ka_objedithome_setfunc(nullptr);
}

}  // namespace
