// Longitude rotation: a change of prime meridian on the same datum.  The
// offset (radians) is added to every longitude; latitudes and heights stay.
#include "transforms/methods.h"

namespace veltra {

int longitude_rotation(const double *, const double *, const double *values,
                       const char *, int n, double *coords, double *, void *,
                       void *, void *) {
    const double offset = values[kSlotLongitudeOffset];
    for (int i = 0; i < n; ++i)
        coords[2 * i] = ka_delta(coords[2 * i] + offset);
    return n;
}

}  // namespace veltra
