// Fuzz target: the generic reader, which picks the projected or the
// geographic reader, with a write/read round trip.
#include "roundtrip.h"

namespace {
void *read(const char *text) { return ka_coordsys_from_string(text); }
void write(const void *cs, char *text) { ka_coordsys_to_string(cs, text); }
int eq(const void *a, const void *b) { return ka_coordsys_eq(a, b); }
void del(void *cs) { ka_coordsys_del(cs); }
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data,
                                      std::size_t size) {
    static const veltra_fuzz::TextKind<void> kind = {read, write, eq, del};
    return veltra_fuzz::round_trip(data, size, kind);
}
