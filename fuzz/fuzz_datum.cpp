// Fuzz target: the datum reader, with a write/read round trip.
#include "roundtrip.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data,
                                      std::size_t size) {
    static const veltra_fuzz::TextKind<ka_datum> kind = {
        ka_datum_from_string,
        [](const ka_datum *object, char *text) { ka_datum_to_string(object, text); },
        ka_datum_eq, ka_datum_del};
    return veltra_fuzz::round_trip(data, size, kind);
}
