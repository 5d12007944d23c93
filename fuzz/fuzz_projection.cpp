// Fuzz target: the projection reader, with a write/read round trip.
#include "roundtrip.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data,
                                      std::size_t size) {
    static const veltra_fuzz::TextKind<ka_projection> kind = {
        ka_projection_from_string,
        [](const ka_projection *object, char *text) { ka_projection_to_string(object, text); },
        ka_projection_eq, ka_projection_del};
    return veltra_fuzz::round_trip(data, size, kind);
}
