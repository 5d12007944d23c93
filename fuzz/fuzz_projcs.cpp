// Fuzz target: the projcs reader, with a write/read round trip.
#include "roundtrip.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data,
                                      std::size_t size) {
    static const veltra_fuzz::TextKind<ka_projcs> kind = {
        ka_projcs_from_string,
        [](const ka_projcs *object, char *text) { ka_projcs_to_string(object, text); },
        ka_projcs_eq, ka_projcs_del};
    return veltra_fuzz::round_trip(data, size, kind);
}
