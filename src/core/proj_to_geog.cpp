// Projected to geographic coordinates through a projected system: points to
// metres less the false origin, the projection's inverse routine once for
// the whole array, then the geographic system's angular unit.
#include "core/projcs.h"
#include "projections/pcsconstants.h"

using namespace veltra;

extern "C" KA_API int ka_proj_to_geog(const ka_projcs *projcs, int n,
                                      double *coords) {
    if (coords == nullptr) return 0;
    ProjcsInputs inputs;
    projcs_inputs(projcs, SlotUse::kConversion, inputs);
    const PcsConstants *record =
        ka_projcs_p(projcs) ? projcs->constants : nullptr;
    const double angular = inputs.system[2], linear = inputs.system[3];
    const double false_easting = inputs.values[0];
    const double false_northing = inputs.values[1];

    for (int i = 0; i < n; ++i) {
        coords[2 * i] = coords[2 * i] * linear - false_easting;
        coords[2 * i + 1] = coords[2 * i + 1] * linear - false_northing;
    }
    const int count = ka_projection_inverse(ka_projcs_projection(projcs))(
        inputs.system, inputs.values, n, coords, pcsconstants_header(record),
        pcsconstants_values(record));
    for (int i = 0; i < 2 * n; ++i) coords[i] /= angular;
    return count;
}
