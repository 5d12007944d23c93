// The library frame: number text, string helpers, tokenizer, failed-point
// marker, byte order, allocation wrappers and version.
#include "core/fixtures.h"
#include "core/tokenizer.h"
#include "core/vector.h"

#include <bit>
#include <cfloat>
#include <clocale>
#include <cstdint>
#include <tuple>

namespace {

std::string format(double value) {
    char text[KA_NUMBER_MAX];
    ka_format_number(value, text, 16);
    return text;
}

TEST(NumberText, WrittenAndReadForms) {
    const std::pair<double, const char *> rows[] = {
        {6378137.0, "6378137.0"}, {298.257223563, "298.257223563"}, {0.0, "0.0"}, {-0.5, "-0.5"},
        {0.0174532925199433, "0.0174532925199433"}, {500000.0, "500000.0"},
        {2.5e-8, "0.000000025"}, {123456789.5, "123456789.5"},
        {0.1 + 0.2, "0.3"},  // binary noise in digits 14 and 15 is dropped
        // Scientific forms with six decimals from 1e16 on (kept lossy) and
        // general forms below 1e-9, all with three-digit exponents.
        {1e16, "1.000000e+016"}, {-2.5e20, "-2.500000e+020"}, {-DBL_MAX, "-1.797693e+308"},
        {1e-10, "1e-010"}, {1e-300, "1e-300"}, {4.9406564584124654e-324, "4.94065645841247e-324"},
        {-1.2345678901234567e-300, "-1.23456789012346e-300"},
        // A fixed form longer than 24 characters gives way to 15 digits.
        {1.2345678901234567e-9, "1.23456789012346e-009"},
        // Sixteen integer digits leave no decimals: nothing to trim.
        {1e15, "1000000000000000"}, {1234567890123456.0, "1234567890123456"},
        // Fuzzer finds: a last digit whose loss would move the value by more
        // than the tolerance 2^-48 is not noise.
        {100.0000000000005, "100.0000000000005"}, {12903.00000000005, "12903.00000000005"}};
    for (auto [value, text] : rows) EXPECT_EQ(format(value), text) << value;
    const std::pair<const char *, double> texts[] = {
        {"  3.5xyz", 3.5}, {"-1.25e2", -125.0}, {"+.5", 0.5}, {"1e", 1.0}, {"abc", 0.0},
        {"", 0.0}, {"0x10", 16.0}, {"-1e-400", 0.0}, {"1,5", 1.0},  // a comma ends it
        {"1e-99999999999999999999999", 0.0}, {nullptr, 0.0}};
    for (auto [text, value] : texts) EXPECT_EQ(ka_parse_number(text), value) << text;
    // Exponents of any length overflow to infinity (fuzzer finds).
    for (const char *huge : {"1e400", "1e99999999999999999999999",
                             "3000.e10614444444444444444444444441"})
        EXPECT_TRUE(std::isinf(ka_parse_number(huge))) << huge;
}

// Under a decimal-comma locale the library still writes and reads ".".
TEST(NumberText, IgnoresTheHostNumericLocale) {
    const std::string saved = std::setlocale(LC_NUMERIC, nullptr);
    const char *found = nullptr;
    for (const char *name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "de_DE"})
        if (found == nullptr && std::setlocale(LC_NUMERIC, name) != nullptr) found = name;
    if (found == nullptr)
        GTEST_SKIP() << "no decimal-comma locale (localedef -i de_DE -f UTF-8 de_DE.UTF-8)";
    ASSERT_EQ(std::string(std::localeconv()->decimal_point), ",");
    EXPECT_EQ(format(298.257223563), "298.257223563");
    EXPECT_EQ(ka_parse_number("3.5"), 3.5);
    EXPECT_EQ(std::string(std::setlocale(LC_NUMERIC, nullptr)), found);
    std::setlocale(LC_NUMERIC, saved.c_str());
}

TEST(Strings, CompareFindAndTrim) {
    // Upper-cased bytes compare unsigned; the NUL is smallest; 0xE9 sorts
    // after 'Z'; '_' lies between the cases, so after every folded letter.
    const std::tuple<const char *, const char *, int> rows[] = {
        {"Degree", "DEGREE", 0}, {"", "", 0}, {"abc", "abd", -1}, {"abd", "ABC", 1},
        {"ab", "abc", -1}, {"abc", "ab", 1}, {"\xE9", "Z", 1}, {"a_", "aB", 1}};
    for (auto [a, b, result] : rows) EXPECT_EQ(ka_strcasecmp(a, b), result) << a << " " << b;
    const char *s = "Transverse_Mercator", *aaab = "aaab";
    EXPECT_TRUE(ka_strcasechr(s, 'm') == s + 11 && ka_strcasechr(s, '\0') == s + 19);
    EXPECT_TRUE(ka_strcasestr(s, "") == s && ka_strcasestr(aaab, "AAB") == aaab + 1);
    char blanks[] = "\t\r\n\b ", padded[] = " \b\vx y\v\t ";  // \v is not a blank
    ka_str_trim(blanks);
    ka_str_trim(padded);
    EXPECT_TRUE(std::strcmp(blanks, "") == 0 && std::strcmp(padded, "\vx y\v") == 0);
}

TEST(Tokenizer, ReadsOnlyTheFirst1023CharactersAnd200Tokens) {
    std::string text(2000, 'x');
    text[1022] = '1';
    text[1023] = '2';
    veltra::Tokens tokens;
    veltra::tokenize(text.c_str(), tokens);
    ASSERT_EQ(tokens.count, 1);
    EXPECT_EQ(std::string(tokens.token[0]), std::string(1022, 'x') + "1");
    std::string many;
    for (int i = 0; i < 300; ++i) many += " a ,";
    veltra::tokenize(many.c_str(), tokens);
    EXPECT_EQ(tokens.count, 200);
}

TEST(Frame, MarkByteOrderMemoryAndVersion) {
    double value = 0;
    ka_set_nan(&value);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(value), 0x7FF8000000000001ULL);  // quiet NaN, payload 1
    ka_set_nan(nullptr);
    std::uint32_t words[2] = {0x01020304u, 0xA0B0C0D0u};
    ka_swap4(words, 2);
    EXPECT_TRUE(words[0] == 0x04030201u && words[1] == 0xD0C0B0A0u);
    double values[2] = {1.0, 2.0};  // 0x3FF0000000000000, 0x4000000000000000
    ka_swap8(values, 2);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(values[0]), 0xF03FULL);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(values[1]), 0x40ULL);
    auto *block = static_cast<unsigned char *>(ka_mem_alloc(64));
    EXPECT_TRUE(block && std::all_of(block, block + 64, [](unsigned char c) { return c == 0; }));
    EXPECT_FALSE(ka_mem_alloc(0) || ka_mem_alloc(-5) || ka_mem_realloc(block, -1));  // block kept
    ka_mem_free(block);
    ka_mem_free(nullptr);
    ka_table_del(nullptr);
    EXPECT_STREQ(ka_version(), "Veltra Version 8.2 (Nov 19 2002)");
}

}  // namespace

namespace {

// The small vector refuses bad sizes and indexes and copies nothing then.
TEST(Frame, VectorChecksBoundsAndArguments) {
    using namespace veltra;
    EXPECT_EQ(vector_new(0, 8), nullptr);
    EXPECT_EQ(vector_new(3, 0), nullptr);
    Vector *v = vector_new(3, sizeof(double));
    ASSERT_NE(v, nullptr);
    double in = 2.5, out = -1;
    EXPECT_TRUE(vector_get(v, 2, &out) == 1 && out == 0.0);  // zero-filled
    EXPECT_TRUE(vector_set(v, 1, &in) == 1 && vector_get(v, 1, &out) == 1 && out == 2.5);
    out = 7;
    EXPECT_FALSE(vector_set(v, 3, &in) || vector_set(v, -1, &in) || vector_get(v, 3, &out) ||
                 vector_set(v, 0, nullptr) || vector_count(nullptr));
    EXPECT_EQ(out, 7);
    EXPECT_EQ(vector_count(v) * vector_size(v), 24);
    vector_del(v);
}

}  // namespace
