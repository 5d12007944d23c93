// The library frame: string helpers, tokenizer, failed-point marker, byte
// order, vector, allocation wrappers and version.
#include "core/tokenizer.h"
#include "core/vector.h"
#include "veltra.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace {

TEST(Strings, CompareIgnoringCase) {
    EXPECT_EQ(ka_strcasecmp("Degree", "DEGREE"), 0);
    EXPECT_EQ(ka_strcasecmp("", ""), 0);
    EXPECT_EQ(ka_strcasecmp("abc", "abd"), -1);
    EXPECT_EQ(ka_strcasecmp("abd", "ABC"), 1);
    EXPECT_EQ(ka_strcasecmp("ab", "abc"), -1);   // NUL is smaller
    EXPECT_EQ(ka_strcasecmp("abc", "ab"), 1);
    // Bytes compare unsigned: 0xE9 sorts after 'Z'.
    EXPECT_EQ(ka_strcasecmp("\xE9", "Z"), 1);
    // '_' (0x5F) lies between upper and lower case letters: folding to
    // upper case puts it after every letter.
    EXPECT_EQ(ka_strcasecmp("a_", "aB"), 1);
}

TEST(Strings, FindCharacterAndSubstring) {
    const char *s = "Transverse_Mercator";
    EXPECT_EQ(ka_strcasechr(s, 'm'), s + 11);
    EXPECT_EQ(ka_strcasechr(s, '\0'), s + std::strlen(s));
    EXPECT_EQ(ka_strcasechr(s, 'z'), nullptr);
    EXPECT_EQ(ka_strcasestr(s, "MERC"), s + 11);
    EXPECT_EQ(ka_strcasestr(s, ""), s);
    EXPECT_EQ(ka_strcasestr(s, "mercatorx"), nullptr);
    EXPECT_EQ(ka_strcasestr("aaab", "AAB"), static_cast<const char *>("aaab") + 1)
        << "a partial match must not hide a later one";
}

TEST(Strings, TrimBlanks) {
    auto trim = [](std::string s) {
        std::vector<char> buf(s.begin(), s.end());
        buf.push_back('\0');
        ka_str_trim(buf.data());
        return std::string(buf.data());
    };
    EXPECT_EQ(trim("  \t name \r\n"), "name");
    EXPECT_EQ(trim("\b \t\r\n"), "");
    EXPECT_EQ(trim(""), "");
    EXPECT_EQ(trim("a b"), "a b");
    EXPECT_EQ(trim("\vx\v"), "\vx\v");  // vertical tab is not in the set
}

TEST(Tokenizer, SplitsAtDelimitersAndTrims) {
    veltra::Tokens tokens;
    ASSERT_TRUE(veltra::tokenize(" unit [ \" Meter \" , 1.0 ]] ,, ", tokens));
    ASSERT_EQ(tokens.count, 3);
    EXPECT_STREQ(tokens.token[0], "unit");
    EXPECT_STREQ(tokens.token[1], "Meter");
    EXPECT_STREQ(tokens.token[2], "1.0");
    EXPECT_FALSE(veltra::tokenize(nullptr, tokens));
    EXPECT_EQ(tokens.count, 0);
}

TEST(Tokenizer, ReadsOnlyTheFirst1023CharactersAnd200Tokens) {
    std::string text(2000, 'x');
    text[1022] = '1';
    text[1023] = '2';
    veltra::Tokens tokens;
    veltra::tokenize(text.c_str(), tokens);
    ASSERT_EQ(tokens.count, 1);
    EXPECT_EQ(std::strlen(tokens.token[0]), 1023u);
    EXPECT_EQ(tokens.token[0][1022], '1');

    std::string many;
    for (int i = 0; i < 300; ++i) many += "a,";
    veltra::tokenize(many.c_str(), tokens);
    EXPECT_EQ(tokens.count, 200);
}

TEST(Tokenizer, FindsKeywordsLeavingRoomForValues) {
    veltra::Tokens tokens;
    veltra::tokenize("UNIT[\"Unit\",1.0]", tokens);
    EXPECT_EQ(veltra::find_keyword(tokens, "unit", 2), 0);
    EXPECT_EQ(veltra::find_keyword(tokens, "unit", 2, 1), -1);  // no room
    EXPECT_EQ(veltra::find_keyword(tokens, "unit", 1, 1), 1);   // the name
}

TEST(FailedPoint, IsTheQuietNaNWithPayloadOne) {
    double value = 0;
    ka_set_nan(&value);
    EXPECT_TRUE(std::isnan(value));
    std::uint64_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    EXPECT_EQ(bits, 0x7FF8000000000001ULL);
    ka_set_nan(nullptr);  // ignored
}

TEST(ByteOrder, ReversesWordsAndDoubles) {
    std::uint32_t words[2] = {0x01020304u, 0xA0B0C0D0u};
    ka_swap4(words, 2);
    EXPECT_EQ(words[0], 0x04030201u);
    EXPECT_EQ(words[1], 0xD0C0B0A0u);

    unsigned char bytes[16];
    for (int i = 0; i < 16; ++i) bytes[i] = static_cast<unsigned char>(i);
    ka_swap8(bytes, 2);
    const unsigned char expected[16] = {7, 6, 5, 4, 3, 2, 1, 0,
                                        15, 14, 13, 12, 11, 10, 9, 8};
    EXPECT_EQ(std::memcmp(bytes, expected, 16), 0);

    double value = 1.0;  // 0x3FF0000000000000
    ka_swap8(&value, 1);
    std::uint64_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    EXPECT_EQ(bits, 0x000000000000F03FULL);
}

TEST(Vector, ChecksBoundsAndArguments) {
    EXPECT_EQ(veltra::vector_new(0, 4), nullptr);
    EXPECT_EQ(veltra::vector_new(4, 0), nullptr);
    veltra::Vector *v = veltra::vector_new(3, sizeof(double));
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(veltra::vector_count(v), 3);
    EXPECT_EQ(veltra::vector_size(v), 8);
    double zero = -1, in = 2.5, out = 0;
    EXPECT_EQ(veltra::vector_get(v, 2, &zero), 1);
    EXPECT_EQ(zero, 0.0);  // zero-filled at creation
    EXPECT_EQ(veltra::vector_set(v, 1, &in), 1);
    EXPECT_EQ(veltra::vector_get(v, 1, &out), 1);
    EXPECT_EQ(out, 2.5);
    out = 7;
    EXPECT_EQ(veltra::vector_set(v, 3, &in), 0);
    EXPECT_EQ(veltra::vector_set(v, -1, &in), 0);
    EXPECT_EQ(veltra::vector_get(v, 3, &out), 0);
    EXPECT_EQ(out, 7);
    EXPECT_EQ(veltra::vector_set(v, 0, nullptr), 0);
    EXPECT_EQ(veltra::vector_count(nullptr), 0);
    veltra::vector_del(v);
    veltra::vector_del(nullptr);
}

TEST(Memory, AllocatesZeroFilledBlocks) {
    EXPECT_EQ(ka_mem_alloc(0), nullptr);
    EXPECT_EQ(ka_mem_alloc(-5), nullptr);
    auto *block = static_cast<unsigned char *>(ka_mem_alloc(64));
    ASSERT_NE(block, nullptr);
    for (int i = 0; i < 64; ++i) EXPECT_EQ(block[i], 0);
    block = static_cast<unsigned char *>(ka_mem_realloc(block, 128));
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(ka_mem_realloc(block, -1), nullptr);  // block untouched
    ka_mem_free(block);
    ka_mem_free(nullptr);
    ka_table_del(nullptr);
}

TEST(Version, IsTheLibraryString) {
    EXPECT_STREQ(ka_version(), "Veltra Version 8.2 (Nov 19 2002)");
    EXPECT_EQ(ka_version(), ka_version());
}

}  // namespace
