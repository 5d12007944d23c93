// Fuzz target: the parameter reader, with a write/read round trip.
#include "roundtrip.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data,
                                      std::size_t size) {
    static const veltra_fuzz::TextKind<ka_parameter> kind = {
        ka_parameter_from_string,
        [](const ka_parameter *object, char *text) { ka_parameter_to_string(object, text); },
        ka_parameter_eq, ka_parameter_del};
    return veltra_fuzz::round_trip(data, size, kind);
}
