// Number text at the ends of the double range, where the fixed form would
// need hundreds of digits: the general and scientific forms take over.
#include "veltra.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <string>

namespace {

std::string format(double value) {
    char text[KA_NUMBER_MAX];
    ka_format_number(value, text, 16);
    return text;
}

TEST(FormatNumberExtremes, TinyAndHugeValuesFitTheNumberBuffer) {
    EXPECT_EQ(format(1e-300), "1e-300");
    EXPECT_EQ(format(-1.2345678901234567e-300), "-1.23456789012346e-300");
    EXPECT_EQ(format(4.9406564584124654e-324), "4.94065645841247e-324");
    EXPECT_EQ(format(-DBL_MAX), "-1.797693e+308");
    EXPECT_EQ(ka_parse_number(format(1e-300).c_str()), 1e-300);
}

}  // namespace
