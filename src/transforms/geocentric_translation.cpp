// Geocentric translation: through geocentric Cartesian coordinates, shifted
// by (dx, dy, dz) between the two spheroids.
#include "transforms/methods.h"

#include "projections/math.h"

namespace veltra {

namespace {

// Converts every point from spheroid `from` to spheroid `to`, adding
// `sign` times the translation in the Cartesian domain.
int translate(const double *from, const double *to, const double *values,
              double sign, int n, double *coords, double *heights) {
    const double dx = sign * values[kSlotDx];
    const double dy = sign * values[kSlotDy];
    const double dz = sign * values[kSlotDz];
    const Geocentric source(from[0], from[1]), target(to[0], to[1]);
    for (int i = 0; i < n; ++i) {
        double x, y, z;
        source.to_cartesian(coords[2 * i + 1], coords[2 * i],
                            input_height(heights, i), x, y, z);
        double latitude, longitude, height;
        target.to_geodetic(x + dx, y + dy, z + dz, latitude, longitude,
                           height);
        store_point(coords, heights, i, latitude, longitude, height);
    }
    return n;
}

}  // namespace

int geocentric_translation_forward(const double *spheroid1,
                                   const double *spheroid2,
                                   const double *values, const char *, int n,
                                   double *coords, double *heights, void *,
                                   void *, void *) {
    return translate(spheroid1, spheroid2, values, +1.0, n, coords, heights);
}

int geocentric_translation_inverse(const double *spheroid1,
                                   const double *spheroid2,
                                   const double *values, const char *, int n,
                                   double *coords, double *heights, void *,
                                   void *, void *) {
    return translate(spheroid2, spheroid1, values, -1.0, n, coords, heights);
}

}  // namespace veltra
