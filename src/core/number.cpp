// Number text: the shortest faithful decimal form of a double for the text
// forms, and the reader of such texts.  Both are locale-independent and
// reentrant: std::to_chars / std::from_chars never consult the C locale, so
// "." is the decimal separator whatever the host application has set.
#include "veltra.h"

#include "core/tolerance.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <system_error>

namespace {

constexpr int kDigits = 16;        // what every caller of the library passes
constexpr int kMaxDigits = 17;     // keeps every form inside KA_NUMBER_MAX
constexpr int kNoiseExponent = 12; // noise trimming only below 1e12
constexpr int kFixedLimit = 24;    // longer fixed texts go to the general form
constexpr int kSmallExponent = -9; // below 1e-9 always the general form
constexpr int kDefaultPrecision = 6;  // printf's default for %e

struct Text {
    char buf[KA_NUMBER_MAX + 16];
    int length = 0;
};

// Widens the exponent of a scientific text to at least three digits
// ("e+16" -> "e+016"), the layout the library writes on every platform.
void widen_exponent(Text &t) {
    char *e = static_cast<char *>(std::memchr(t.buf, 'e', t.length));
    if (e == nullptr) return;
    char *digits = e + 2;  // after 'e' and the sign
    int count = static_cast<int>(t.buf + t.length - digits);
    if (count >= 3) return;
    int pad = 3 - count;
    std::memmove(digits + pad, digits, count + 1);
    std::memset(digits, '0', pad);
    t.length += pad;
}

// Formats value like printf("%*.*<fmt>", width, precision, value).
Text print(double value, std::chars_format format, int precision, int width) {
    Text t;
    char raw[KA_NUMBER_MAX + 16];
    auto [end, ec] = std::to_chars(raw, raw + sizeof raw, value, format,
                                   precision);
    int length = ec == std::errc{} ? static_cast<int>(end - raw) : 0;
    raw[length] = '\0';
    if (format != std::chars_format::fixed) {
        Text wide;
        std::memcpy(wide.buf, raw, length + 1);
        wide.length = length;
        widen_exponent(wide);
        std::memcpy(raw, wide.buf, wide.length + 1);
        length = wide.length;
    }
    int pad = std::clamp(width - length, 0,
                         static_cast<int>(sizeof t.buf) - 1 - length);
    std::memset(t.buf, ' ', pad);
    std::memcpy(t.buf + pad, raw, length + 1);
    t.length = pad + length;
    return t;
}

// Removes trailing zeros after a decimal point; a text left ending in "."
// gets one "0" back.  A text without a decimal point is left alone, so
// 1e15 printed as "1000000000000000" keeps its zeros.
void trim_zeros(Text &t) {
    if (std::memchr(t.buf, '.', t.length) == nullptr) return;
    while (t.length > 0 && t.buf[t.length - 1] == '0') t.buf[--t.length] = '\0';
    if (t.length > 0 && t.buf[t.length - 1] == '.') {
        t.buf[t.length++] = '0';
        t.buf[t.length] = '\0';
    }
}

// Decimal exponent of a scientific text ("d.ddde+XXX").
int exponent_of(const Text &t) {
    const char *e = static_cast<const char *>(std::memchr(t.buf, 'e', t.length));
    return e == nullptr ? 0 : std::atoi(e + 1);
}

// The n-th significant digit (1-based) of a scientific text.
char significant_digit(const Text &t, int n) {
    int seen = 0;
    for (int i = 0; i < t.length; ++i) {
        char c = t.buf[i];
        if (c == 'e') break;
        if (c >= '0' && c <= '9' && ++seen == n) return c;
    }
    return '\0';
}

}  // namespace

namespace {

// The fixed, general or scientific text of a finite value with the given
// number of significant digits; exponent is its decimal exponent.
Text format_finite(double value, int significant, int exponent) {
    Text out;
    if (exponent < 0) {
        // Below 1e-9 the general form is taken whatever the fixed text
        // would be, so that text (hundreds of digits for 1e-300) is never
        // printed.
        bool general = exponent < kSmallExponent;
        if (!general) {
            int decimals = significant - exponent - 1;
            out = print(value, std::chars_format::fixed, decimals,
                        decimals + 3);
            trim_zeros(out);
            general = out.length > kFixedLimit;
        }
        if (general)
            out = print(value, std::chars_format::general, significant - 1,
                        significant + 7);
    } else {
        int decimals = significant - 1 - exponent;
        if (decimals < 0) {
            // More integer digits than significant ones: printf's default
            // scientific form, six decimals (1e16 -> "1.000000e+016").
            out = print(value, std::chars_format::scientific,
                        kDefaultPrecision, significant + 7);
        } else {
            out = print(value, std::chars_format::fixed, decimals,
                        significant + 2);
            trim_zeros(out);
        }
    }
    return out;
}

// Whether a written text reads back within the library tolerance.
bool reads_back(const Text &t, double value) {
    const char *p = t.buf;
    while (*p == ' ') ++p;
    double back = 0;
    std::from_chars(p, t.buf + t.length, back);
    return veltra::tol_eq(back, value);
}

}  // namespace

extern "C" KA_API void ka_format_number(double value, char *text, int digits) {
    if (text == nullptr) return;
    const int d = std::clamp(digits, 1, kMaxDigits);

    Text out;
    if (!std::isfinite(value)) {
        out = print(value, std::chars_format::fixed, 0, 0);
    } else {
        // Scientific form: d - 1 decimals when d is 16, d otherwise.
        Text sci = d == kDigits
                       ? print(value, std::chars_format::scientific, d - 1, d + 7)
                       : print(value, std::chars_format::scientific, d, d + 8);
        const int exponent = exponent_of(sci);

        // Drop the last digit when the 14th and 15th digits show binary noise
        // (0.1 + 0.2 = 0.30000000000000004 prints as 0.3)...
        bool noise = false;
        if (d == kDigits && exponent < kNoiseExponent) {
            char d14 = significant_digit(sci, 14);
            char d15 = significant_digit(sci, 15);
            noise = (d14 == '0' && d15 == '0') || (d14 == '9' && d15 == '9');
        }
        out = format_finite(value, noise ? d - 1 : d, exponent);
        // ... unless the dropped digit was real: 100.0000000000005 must
        // not become 100.0, which is further away than the tolerance with
        // which every written value has to read back.
        if (noise && !reads_back(out, value))
            out = format_finite(value, d, exponent);
    }

    const char *start = out.buf;
    while (*start == ' ') ++start;
    std::memmove(text, start, std::strlen(start) + 1);
}

namespace {

bool is_space(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' ||
           c == '\r';
}

bool is_hex_digit(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') ||
           (c >= 'A' && c <= 'F');
}

// Value of an out-of-range decimal text as strtod gives it: infinity when
// the number is large, zero when it is tiny.
double out_of_range(const char *p, const char *end) {
    long long position = 0;     // decimal exponent of the first nonzero digit
    bool seen_point = false, seen_digit = false;
    long long leading = 0;
    for (; p < end && *p != 'e' && *p != 'E'; ++p) {
        if (*p == '.') {
            seen_point = true;
        } else if (!seen_digit && *p == '0') {
            if (seen_point) --leading;
        } else if (*p >= '0' && *p <= '9') {
            if (!seen_digit) {
                seen_digit = true;
                position = seen_point ? leading - 1 : 0;
            } else if (!seen_point) {
                ++position;
            }
        }
    }
    // The exponent text may hold any number of digits; strtoll saturates,
    // and clamping far beyond any double's range keeps the sum exact.
    constexpr long long kExponentLimit = 1LL << 40;
    long long exponent = 0;
    if (p < end)
        exponent = std::clamp(std::strtoll(p + 1, nullptr, 10), -kExponentLimit,
                              kExponentLimit);
    return position + exponent > 0 ? HUGE_VAL : 0.0;
}

}  // namespace

extern "C" KA_API double ka_parse_number(const char *text) {
    if (text == nullptr) return 0.0;
    const char *p = text;
    while (is_space(*p)) ++p;
    bool negative = false;
    if (*p == '+' || *p == '-') {
        negative = *p == '-';
        ++p;
    }
    const char *end = p + std::strlen(p);
    double value = 0.0;
    std::from_chars_result result{};
    if (p[0] == '0' && (p[1] == 'x' || p[1] == 'X') &&
        (is_hex_digit(p[2]) || (p[2] == '.' && is_hex_digit(p[3])))) {
        result = std::from_chars(p + 2, end, value, std::chars_format::hex);
    } else {
        result = std::from_chars(p, end, value, std::chars_format::general);
        if (result.ec == std::errc::result_out_of_range)
            value = out_of_range(p, result.ptr);
    }
    if (result.ec == std::errc::invalid_argument) return 0.0;
    return negative ? -value : value;
}
