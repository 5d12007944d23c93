// Number text: the written forms the text readers and writers rely on, and
// their independence from the host's numeric locale.
#include "veltra.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <string>

namespace {

std::string format(double value) {
    char text[KA_NUMBER_MAX];
    ka_format_number(value, text, 16);
    return text;
}

TEST(FormatNumber, WritesShortestFaithfulForms) {
    EXPECT_EQ(format(6378137.0), "6378137.0");
    EXPECT_EQ(format(298.257223563), "298.257223563");
    EXPECT_EQ(format(0.0174532925199433), "0.0174532925199433");
    EXPECT_EQ(format(0.0), "0.0");
    EXPECT_EQ(format(-0.5), "-0.5");
    EXPECT_EQ(format(500000.0), "500000.0");
    EXPECT_EQ(format(2.5e-8), "0.000000025");
    EXPECT_EQ(format(123456789.5), "123456789.5");
    EXPECT_EQ(format(0.1 + 0.2), "0.3");  // binary noise in digits 14-15
}

TEST(FormatNumber, ScientificFormsUseThreeDigitExponents) {
    EXPECT_EQ(format(1e16), "1.000000e+016");   // six decimals, kept lossy
    EXPECT_EQ(format(-2.5e20), "-2.500000e+020");
    EXPECT_EQ(format(1e-10), "1e-010");         // general form below 1e-9
    // A fixed form longer than 24 characters falls back to 15 digits.
    EXPECT_EQ(format(1.2345678901234567e-9), "1.23456789012346e-009");
}

TEST(FormatNumber, KeepsIntegerDigitsWithoutDecimalPoint) {
    // 16 integer digits leave no decimals: nothing to trim.
    EXPECT_EQ(format(1e15), "1000000000000000");
    EXPECT_EQ(format(1234567890123456.0), "1234567890123456");
}

TEST(FormatNumber, RoundTripsWithinTolerance) {
    const double values[] = {6378137.0, 0.0033528106647474805, 1.0 / 3.0,
                             -74.08091666666667, 1e-7, 12345.678901234567,
                             4.84813681109536e-06, 0.30480060960121924};
    for (double v : values) {
        double back = ka_parse_number(format(v).c_str());
        EXPECT_TRUE(ka_eq(v, back)) << v << " -> " << format(v);
    }
}

TEST(ParseNumber, ReadsLikeStrtodInTheCLocale) {
    EXPECT_EQ(ka_parse_number("  3.5xyz"), 3.5);
    EXPECT_EQ(ka_parse_number("-1.25e2"), -125.0);
    EXPECT_EQ(ka_parse_number("+.5"), 0.5);
    EXPECT_EQ(ka_parse_number("1e"), 1.0);
    EXPECT_EQ(ka_parse_number("abc"), 0.0);
    EXPECT_EQ(ka_parse_number(""), 0.0);
    EXPECT_EQ(ka_parse_number(nullptr), 0.0);
    EXPECT_EQ(ka_parse_number("0x10"), 16.0);
    EXPECT_TRUE(std::isinf(ka_parse_number("1e400")));
    EXPECT_EQ(ka_parse_number("-1e-400"), 0.0);
    EXPECT_EQ(ka_parse_number("1,5"), 1.0);  // a comma ends the number
}

// Under a decimal-comma locale the library still writes and reads ".".
TEST(NumberText, IgnoresTheHostNumericLocale) {
    const char *names[] = {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8",
                           "de_DE", "fr_FR"};
    std::string saved = std::setlocale(LC_NUMERIC, nullptr);
    const char *found = nullptr;
    for (const char *name : names)
        if (std::setlocale(LC_NUMERIC, name) != nullptr) {
            found = name;
            break;
        }
    if (found == nullptr)
        GTEST_SKIP() << "no decimal-comma locale installed (try: localedef -i "
                        "de_DE -f UTF-8 de_DE.UTF-8)";
    ASSERT_EQ(std::string(std::localeconv()->decimal_point), ",");
    EXPECT_EQ(format(3.5), "3.5");
    EXPECT_EQ(format(298.257223563), "298.257223563");
    EXPECT_EQ(ka_parse_number("3.5"), 3.5);
    EXPECT_EQ(ka_parse_number("6378137.0"), 6378137.0);
    EXPECT_EQ(std::string(std::setlocale(LC_NUMERIC, nullptr)), found);
    std::setlocale(LC_NUMERIC, saved.c_str());
}

}  // namespace
