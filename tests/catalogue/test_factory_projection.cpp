// Projections from catalogue codes.
#include "veltra.h"

#include <gtest/gtest.h>

namespace {

TEST(FactoryProjection, BuildsRegistryProjectionsByCode) {
    ka_projection *mercator = ka_factory_projection(43004);
    ASSERT_NE(mercator, nullptr);
    EXPECT_TRUE(ka_projection_p(mercator));
    char name[KA_NAME_MAX];
    ka_projection_name(mercator, name);
    EXPECT_STREQ(name, "Mercator");
    // Each call makes a new object.
    ka_projection *again = ka_factory_projection(43004);
    EXPECT_NE(again, mercator);
    EXPECT_TRUE(ka_projection_eq(again, mercator));
    ka_projection_del(mercator);
    ka_projection_del(again);
}

TEST(FactoryProjection, UnassignedAndUnwrittenCodesGiveNull) {
    for (int code : {0, -43004, 42999, 43000, 43052, 52999, 9001})
        EXPECT_EQ(ka_factory_projection(code), nullptr) << code;
    // Albers and Lambert are in the catalogue; their routines are not yet.
    EXPECT_EQ(ka_factory_projection(43007), nullptr);
    EXPECT_EQ(ka_factory_projection(43020), nullptr);
}

}  // namespace
