// Plate Carree: longitude and latitude scaled by the semi-major axis, on a
// sphere of radius a whatever the ellipsoid.
#include "projections/projection_support.h"
#include "projections/routines.h"

namespace veltra {

int plate_carree_forward(const double *ellipsoid, const double *params, int n,
                         double *points, const int *, const double *) {
    const double a = ellipsoid[0];
    const double lambda0 = params[kCentralMeridianSlot];
    for (int i = 0; i < n; ++i) {
        double *p = points + 2 * i;
        p[0] = a * fold_longitude(p[0] - lambda0);
        p[1] = a * p[1];
    }
    return all_points(n);
}

int plate_carree_inverse(const double *ellipsoid, const double *params, int n,
                         double *points, const int *, const double *) {
    const double a = ellipsoid[0];
    const double lambda0 = params[kCentralMeridianSlot];
    for (int i = 0; i < n; ++i) {
        double *p = points + 2 * i;
        p[0] = fold_longitude(p[0] / a + lambda0);
        p[1] = p[1] / a;
    }
    return all_points(n);
}

}  // namespace veltra
