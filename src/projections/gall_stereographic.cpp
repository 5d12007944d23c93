// Gall stereographic: a cylinder cutting the sphere of radius a at 45
// degrees, parallels projected stereographically:
// x = (a / sqrt 2) dl, y = (a + a / sqrt 2) tan(phi / 2).
//
// Constants: 0 a / sqrt 2, 1 a + a / sqrt 2.
#include "projections/pcsconstants.h"
#include "projections/projection_support.h"
#include "projections/routines.h"

namespace veltra {

namespace {

constexpr int kConstantsCount = 2;

struct Gall {
    double x_radius;  // a / sqrt 2
    double y_radius;  // a + a / sqrt 2
};

Gall gall_setup(const double *ellipsoid) {
    const double a = ellipsoid[0];
    const double x_radius = a / std::numbers::sqrt2;
    return {x_radius, a + x_radius};
}

Gall gall_values(const double *ellipsoid, const int *header,
                 const double *constants) {
    if (const double *k = usable_constants(header, constants, kConstantsCount))
        return {k[0], k[1]};
    return gall_setup(ellipsoid);
}

}  // namespace

int gall_stereographic_constants(PcsConstants *record,
                                 const double *ellipsoid, const double *) {
    double *k = pcsconstants_fill(record, kConstantsCount);
    if (k == nullptr) return 0;
    const Gall g = gall_setup(ellipsoid);
    k[0] = g.x_radius;
    k[1] = g.y_radius;
    return kConstantsCount;
}

int gall_stereographic_forward(const double *ellipsoid, const double *params,
                               int n, double *points, const int *header,
                               const double *constants) {
    const Gall g = gall_values(ellipsoid, header, constants);
    const double lambda0 = params[kCentralMeridianSlot];
    for (int i = 0; i < n; ++i) {
        double *p = points + 2 * i;
        p[0] = g.x_radius * fold_longitude(p[0] - lambda0);
        p[1] = g.y_radius * std::tan(p[1] / 2);
    }
    return all_points(n);
}

int gall_stereographic_inverse(const double *ellipsoid, const double *params,
                               int n, double *points, const int *header,
                               const double *constants) {
    const Gall g = gall_values(ellipsoid, header, constants);
    const double lambda0 = params[kCentralMeridianSlot];
    for (int i = 0; i < n; ++i) {
        double *p = points + 2 * i;
        p[0] = fold_longitude(p[0] / g.x_radius + lambda0);
        p[1] = 2 * std::atan2(p[1], g.y_radius);
    }
    return all_points(n);
}

}  // namespace veltra
