// Projections from catalogue codes: the code names a projection, the name
// selects its registry row.
#include "projections/registry.h"
#include "veltra.h"

extern "C" KA_API ka_projection *ka_factory_projection(int code) {
    return veltra::registry_projection(veltra::projection_code_name(code));
}
