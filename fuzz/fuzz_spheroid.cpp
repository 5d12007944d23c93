// Fuzz target: the spheroid reader, with a write/read round trip.
#include "roundtrip.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data,
                                      std::size_t size) {
    static const veltra_fuzz::TextKind<ka_spheroid> kind = {
        ka_spheroid_from_string,
        [](const ka_spheroid *object, char *text) { ka_spheroid_to_string(object, text); },
        ka_spheroid_eq, ka_spheroid_del};
    return veltra_fuzz::round_trip(data, size, kind);
}
