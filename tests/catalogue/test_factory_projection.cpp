// Projections from catalogue codes (the names by code are checked with the
// registry).
#include "veltra.h"

#include <gtest/gtest.h>

namespace {

TEST(FactoryProjection, EachCallBuildsANewRegistryProjection) {
    ka_projection *a = ka_factory_projection(43004);
    ka_projection *b = ka_factory_projection(43004);
    ASSERT_NE(a, nullptr);
    EXPECT_NE(a, b);
    EXPECT_TRUE(ka_projection_eq(a, b));
    ka_projection_del(a);
    ka_projection_del(b);
    // Albers and Lambert are catalogued; their routines are not written yet.
    EXPECT_EQ(ka_factory_projection(43007), nullptr);
    EXPECT_EQ(ka_factory_projection(43020), nullptr);
}

}  // namespace
