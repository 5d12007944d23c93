// Equidistant cylindrical: meridians equally spaced at their true length on
// the standard parallel phi1, parallels at their true distance, on a sphere
// of radius a.  A polar standard parallel gives k = 0 and an inverse
// longitude that is infinite or NaN; nothing guards it.
#include "projections/projection_support.h"
#include "projections/routines.h"

namespace veltra {

int equidistant_cylindrical_forward(const double *ellipsoid,
                                    const double *params, int n,
                                    double *points, const int *,
                                    const double *) {
    const double a = ellipsoid[0];
    const double k = a * std::cos(params[kStandardParallel1Slot]);
    const double lambda0 = params[kCentralMeridianSlot];
    for (int i = 0; i < n; ++i) {
        double *p = points + 2 * i;
        p[0] = k * fold_longitude(p[0] - lambda0);
        p[1] = a * p[1];
    }
    return all_points(n);
}

int equidistant_cylindrical_inverse(const double *ellipsoid,
                                    const double *params, int n,
                                    double *points, const int *,
                                    const double *) {
    const double a = ellipsoid[0];
    const double k = a * std::cos(params[kStandardParallel1Slot]);
    const double lambda0 = params[kCentralMeridianSlot];
    for (int i = 0; i < n; ++i) {
        double *p = points + 2 * i;
        p[0] = fold_longitude(p[0] / k + lambda0);
        p[1] = p[1] / a;
    }
    return all_points(n);
}

}  // namespace veltra
