// Units from catalogue codes: override file "unit" (UNIT, code, name,
// factor), else the built-in unit table.
#include "catalogue/override.h"
#include "catalogue/tables.h"
#include "veltra.h"

using namespace veltra::catalogue;

extern "C" KA_API ka_unit *ka_factory_unit(int code) {
    OverrideDefinition definition;
    if (find_override("unit", "UNIT", code, definition)) {
        const char *name = definition.field(0);
        const char *factor = definition.field(1);
        if (factor == nullptr) return nullptr;
        return ka_unit_new(name, read_number(factor));
    }
    const UnitRow *row = find_row(unit_rows(), code);
    return row != nullptr ? ka_unit_new(row->name, row->factor) : nullptr;
}
