// Fuzz target: the geogcs reader, with a write/read round trip.
#include "roundtrip.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data,
                                      std::size_t size) {
    static const veltra_fuzz::TextKind<ka_geogcs> kind = {
        ka_geogcs_from_string,
        [](const ka_geogcs *object, char *text) { ka_geogcs_to_string(object, text); },
        ka_geogcs_eq, ka_geogcs_del};
    return veltra_fuzz::round_trip(data, size, kind);
}
