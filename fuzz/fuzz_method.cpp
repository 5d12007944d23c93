// Fuzz target: the method reader, with a write/read round trip.
#include "roundtrip.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data,
                                      std::size_t size) {
    static const veltra_fuzz::TextKind<ka_method> kind = {
        ka_method_from_string,
        [](const ka_method *object, char *text) { ka_method_to_string(object, text); },
        ka_method_eq, ka_method_del};
    return veltra_fuzz::round_trip(data, size, kind);
}
