// Geographic to projected coordinates through a projected system: points
// and parameters to radians and metres, the projection's forward routine
// once for the whole array, then the false origin and the linear unit.
// The prime meridian is not applied: longitudes and the central meridian
// are both taken relative to the system's own prime meridian.
#include "core/projcs.h"
#include "projections/pcsconstants.h"

using namespace veltra;

extern "C" KA_API int ka_geog_to_proj(const ka_projcs *projcs, int n,
                                      double *coords) {
    if (coords == nullptr) return 0;
    ProjcsInputs inputs;
    projcs_inputs(projcs, SlotUse::kConversion, inputs);
    const PcsConstants *record =
        ka_projcs_p(projcs) ? projcs->constants : nullptr;
    const double angular = inputs.system[2], linear = inputs.system[3];
    const double false_easting = inputs.values[0];
    const double false_northing = inputs.values[1];

    for (int i = 0; i < 2 * n; ++i) coords[i] *= angular;
    const int count = ka_projection_forward(ka_projcs_projection(projcs))(
        inputs.system, inputs.values, n, coords, pcsconstants_header(record),
        pcsconstants_values(record));
    for (int i = 0; i < n; ++i) {
        coords[2 * i] = (coords[2 * i] + false_easting) / linear;
        coords[2 * i + 1] = (coords[2 * i + 1] + false_northing) / linear;
    }
    return count;
}
