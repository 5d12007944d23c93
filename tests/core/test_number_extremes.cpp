// Number text at the ends of the double range, where the fixed form would
// need hundreds of digits: the general and scientific forms take over.
#include "veltra.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
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

// The last digit is dropped as binary noise only when the shorter text
// still reads back within the tolerance 2^-48 (relative, absolute below 1).
TEST(FormatNumberExtremes, NoiseTrimmingKeepsTheRoundTrip) {
    EXPECT_EQ(format(0.1 + 0.2), "0.3");
    EXPECT_EQ(format(100.0000000000005), "100.0000000000005");
    EXPECT_EQ(format(12903.00000000005), "12903.00000000005");
}

TEST(FormatNumberExtremes, ExponentsOfAnyLength) {
    EXPECT_TRUE(std::isinf(ka_parse_number("1e99999999999999999999999")));
    EXPECT_EQ(ka_parse_number("1e-99999999999999999999999"), 0.0);
    EXPECT_TRUE(std::isinf(ka_parse_number(
        "3000.e10614444444444444444444444441")));
}

}  // namespace
