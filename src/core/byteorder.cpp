// The failed-point marker and byte-order helpers.
#include "veltra.h"

#include <cstdint>
#include <cstring>

namespace {

// The quiet NaN with payload 1 that marks a point that could not be
// converted: sign 0, all exponent bits, mantissa high bit and lowest bit.
constexpr std::uint64_t kFailedPoint = 0x7FF8000000000001ULL;

std::uint32_t reverse4(std::uint32_t w) {
    return (w >> 24) | ((w >> 8) & 0xFF00u) | ((w << 8) & 0xFF0000u) |
           (w << 24);
}

}  // namespace

extern "C" {

KA_API void ka_set_nan(double *value) {
    if (value == nullptr) return;
    std::memcpy(value, &kFailedPoint, sizeof *value);
}

KA_API void ka_swap4(void *words, int n) {
    if (words == nullptr) return;
    auto *bytes = static_cast<unsigned char *>(words);
    for (int i = 0; i < n; ++i) {
        std::uint32_t w;
        std::memcpy(&w, bytes + 4 * i, 4);
        w = reverse4(w);
        std::memcpy(bytes + 4 * i, &w, 4);
    }
}

KA_API void ka_swap8(void *values, int n) {
    if (values == nullptr) return;
    auto *bytes = static_cast<unsigned char *>(values);
    for (int i = 0; i < n; ++i) {
        std::uint32_t lo, hi;
        std::memcpy(&lo, bytes + 8 * i, 4);
        std::memcpy(&hi, bytes + 8 * i + 4, 4);
        lo = reverse4(lo);
        hi = reverse4(hi);
        std::memcpy(bytes + 8 * i, &hi, 4);
        std::memcpy(bytes + 8 * i + 4, &lo, 4);
    }
}

}  // extern "C"
