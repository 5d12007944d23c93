// Abridged Molodensky formulas: the standard formulas without the terms of
// higher order in the flattening, k = a1 df + f1 da standing for the
// spheroid change.
#include "transforms/methods.h"

#include "core/tolerance.h"
#include "projections/math.h"

#include <cmath>

namespace veltra {

int molodensky_abridged_forward(const double *spheroid1,
                                const double *spheroid2, const double *values,
                                const char *, int n, double *coords,
                                double *heights, void *, void *, void *) {
    const double a1 = spheroid1[0], e2 = spheroid1[1];
    const double da = spheroid2[0] - a1;
    const double f1 = 1 - std::sqrt(1 - e2);
    const double f2 = 1 - std::sqrt(1 - spheroid2[1]);
    const double df = f2 - f1;
    const double k = a1 * df + f1 * da;
    const double dx = values[kSlotDx], dy = values[kSlotDy],
                 dz = values[kSlotDz];

    for (int i = 0; i < n; ++i) {
        const double l = coords[2 * i], p = coords[2 * i + 1];
        const double h = input_height(heights, i);
        const double sin_p = std::sin(p), cos_p = std::cos(p);
        const double sin_l = std::sin(l), cos_l = std::cos(l);
        const Radii r = radii(a1, e2, sin_p);
        const double m = r.m, nu = r.n;

        const double dp = (-sin_p * cos_l * dx - sin_p * sin_l * dy +
                           cos_p * dz + 2 * k * sin_p * cos_p) /
                          m;
        // At a pole every meridian meets: no longitude change.
        const double dl =
            tol_eq(cos_p, 0) ? 0.0 : (-sin_l * dx + cos_l * dy) / (cos_p * nu);
        const double dh = cos_p * cos_l * dx + cos_p * sin_l * dy + sin_p * dz +
                          k * sin_p * sin_p - da;
        store_point(coords, heights, i, p + dp, l + dl, h + dh);
    }
    return n;
}

int molodensky_abridged_inverse(const double *spheroid1,
                                const double *spheroid2, const double *values,
                                const char *grid_name, int n, double *coords,
                                double *heights, void *constants_a,
                                void *constants_b, void *constants_c) {
    double reversed[KA_PARAMETER_SLOTS];
    reversed_translations(values, reversed);
    return molodensky_abridged_forward(spheroid2, spheroid1, reversed,
                                       grid_name, n, coords, heights,
                                       constants_a, constants_b, constants_c);
}

}  // namespace veltra
