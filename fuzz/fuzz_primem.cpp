// Fuzz target: the primem reader, with a write/read round trip.
#include "roundtrip.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data,
                                      std::size_t size) {
    static const veltra_fuzz::TextKind<ka_primem> kind = {
        ka_primem_from_string,
        [](const ka_primem *object, char *text) { ka_primem_to_string(object, text); },
        ka_primem_eq, ka_primem_del};
    return veltra_fuzz::round_trip(data, size, kind);
}
