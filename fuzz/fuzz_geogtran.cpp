// Fuzz target: the geogtran reader, with a write/read round trip.
#include "roundtrip.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data,
                                      std::size_t size) {
    static const veltra_fuzz::TextKind<ka_geogtran> kind = {
        ka_geogtran_from_string,
        [](const ka_geogtran *object, char *text) { ka_geogtran_to_string(object, text); },
        ka_geogtran_eq, ka_geogtran_del};
    return veltra_fuzz::round_trip(data, size, kind);
}
