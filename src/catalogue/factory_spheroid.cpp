// Spheroids from catalogue codes: override file "spheroid" (SPHEROID, code,
// name, semimajor axis, flattening), else the built-in spheroid table, which
// holds the inverse flattening (0 for a sphere).
#include "catalogue/override.h"
#include "catalogue/tables.h"
#include "veltra.h"

using namespace veltra::catalogue;

namespace {

double flattening(double inverse_flattening) {
    return inverse_flattening == 0.0 ? 0.0 : 1.0 / inverse_flattening;
}

}  // namespace

extern "C" KA_API ka_spheroid *ka_factory_spheroid(int code) {
    OverrideDefinition definition;
    if (find_override("spheroid", "SPHEROID", code, definition)) {
        // The file holds the flattening itself, as the constructor takes it.
        const char *axis = definition.field(1);
        const char *flattening = definition.field(2);
        if (flattening == nullptr) return nullptr;
        return ka_spheroid_new(definition.field(0), read_number(axis),
                               read_number(flattening));
    }
    const SpheroidRow *row = find_row(spheroid_rows(), code);
    if (row == nullptr) return nullptr;
    return ka_spheroid_new(row->name, row->axis,
                           flattening(row->inverse_flattening));
}
