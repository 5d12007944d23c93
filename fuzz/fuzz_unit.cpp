// Fuzz target: the unit reader, with a write/read round trip.
#include "roundtrip.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data,
                                      std::size_t size) {
    static const veltra_fuzz::TextKind<ka_unit> kind = {
        ka_unit_from_string,
        [](const ka_unit *object, char *text) { ka_unit_to_string(object, text); },
        ka_unit_eq, ka_unit_del};
    return veltra_fuzz::round_trip(data, size, kind);
}
