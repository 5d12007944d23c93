// Datums from catalogue codes: override file "datum" (DATUM, code, name,
// spheroid code), else the built-in table; the spheroid comes from its own
// factory.
#include "catalogue/assemble.h"
#include "catalogue/override.h"
#include "catalogue/tables.h"
#include "veltra.h"

using namespace veltra::catalogue;

extern "C" KA_API ka_datum *ka_factory_datum(int code) {
    OverrideDefinition definition;
    if (find_override("datum", "DATUM", code, definition)) {
        const char *spheroid = definition.field(1);
        if (spheroid == nullptr) return nullptr;
        return make_datum(definition.field(0), read_code(spheroid));
    }
    const DatumRow *row = find_row(datum_rows(), code);
    return row != nullptr ? make_datum(row->name, row->spheroid) : nullptr;
}
