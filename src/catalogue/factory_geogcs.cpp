// Geographic systems from catalogue codes: override file "geogcs" (GEOGCS,
// code, name, datum code, prime meridian code, unit code), else the
// built-in table; the parts come from their own factories.
#include "catalogue/assemble.h"
#include "catalogue/override.h"
#include "catalogue/tables.h"
#include "veltra.h"

using namespace veltra::catalogue;

extern "C" KA_API ka_geogcs *ka_factory_geogcs(int code) {
    OverrideDefinition definition;
    if (find_override("geogcs", "GEOGCS", code, definition)) {
        if (definition.field_count() < 4) return nullptr;
        return make_geogcs(definition.field(0),
                           read_code(definition.field(1)),
                           read_code(definition.field(2)),
                           read_code(definition.field(3)));
    }
    const GeogcsRow *row = find_row(geogcs_rows(), code);
    if (row == nullptr) return nullptr;
    return make_geogcs(row->name, row->datum, row->primem, row->unit);
}
