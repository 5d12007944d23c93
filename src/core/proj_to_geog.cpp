// Projected to geographic coordinates through a projected system: points to
// metres less the false origin, the projection's inverse routine once for
// the whole array, then the geographic system's angular unit.
#include "core/projcs.h"

using namespace veltra;

extern "C" KA_API int ka_proj_to_geog(const ka_projcs *projcs, int n,
                                      double *coords) {
    if (coords == nullptr) return 0;
    Conversion c;
    conversion_inputs(projcs, c);
    const double angular = c.angular(), linear = c.linear();
    const double false_easting = c.false_easting();
    const double false_northing = c.false_northing();

    // Passes that would change nothing (metres in, radians out, no false
    // origin) are skipped.
    if (linear != 1.0 || false_easting != 0.0 || false_northing != 0.0)
        for (int i = 0; i < n; ++i) {
            coords[2 * i] = coords[2 * i] * linear - false_easting;
            coords[2 * i + 1] = coords[2 * i + 1] * linear - false_northing;
        }
    const int count = ka_projection_inverse(ka_projcs_projection(projcs))(
        c.inputs.system, c.inputs.values, n, coords, c.header, c.constants);
    if (angular != 1.0)
        for (int i = 0; i < 2 * n; ++i) coords[i] /= angular;
    return count;
}
