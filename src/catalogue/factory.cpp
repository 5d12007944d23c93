// ka_factory: a code of any kind, dispatched by its range.
#include "catalogue/code_ranges.h"
#include "veltra.h"

extern "C" KA_API void *ka_factory(int code) {
    const veltra::catalogue::KindEntry *entry =
        veltra::catalogue::kind_of_code(code);
    return entry != nullptr ? entry->make(code) : nullptr;
}
