// Prime meridians from catalogue codes: override file "primem" (PRIMEM,
// code, name, longitude in degrees), else the built-in table.
#include "catalogue/override.h"
#include "catalogue/tables.h"
#include "veltra.h"

using namespace veltra::catalogue;

extern "C" KA_API ka_primem *ka_factory_primem(int code) {
    OverrideDefinition definition;
    if (find_override("primem", "PRIMEM", code, definition)) {
        const char *longitude = definition.field(1);
        if (longitude == nullptr) return nullptr;
        return ka_primem_new(definition.field(0), read_number(longitude));
    }
    const PrimemRow *row = find_row(primem_rows(), code);
    return row != nullptr ? ka_primem_new(row->name, row->longitude)
                          : nullptr;
}
