// Geographic to projected coordinates through a projected system: points
// and parameters to radians and metres, the projection's forward routine
// once for the whole array, then the false origin and the linear unit.
// The prime meridian is not applied: longitudes and the central meridian
// are both taken relative to the system's own prime meridian.
#include "core/projcs.h"

using namespace veltra;

extern "C" KA_API int ka_geog_to_proj(const ka_projcs *projcs, int n,
                                      double *coords) {
    if (coords == nullptr) return 0;
    Conversion c;
    conversion_inputs(projcs, c);
    const double angular = c.angular(), linear = c.linear();
    const double false_easting = c.false_easting();
    const double false_northing = c.false_northing();

    // Passes that would change nothing (radians in, metres out, no false
    // origin) are skipped.
    if (angular != 1.0)
        for (int i = 0; i < 2 * n; ++i) coords[i] *= angular;
    const int count = ka_projection_forward(ka_projcs_projection(projcs))(
        c.inputs.system, c.inputs.values, n, coords, c.header, c.constants);
    if (linear != 1.0 || false_easting != 0.0 || false_northing != 0.0)
        for (int i = 0; i < n; ++i) {
            coords[2 * i] = (coords[2 * i] + false_easting) / linear;
            coords[2 * i + 1] = (coords[2 * i + 1] + false_northing) / linear;
        }
    return count;
}
