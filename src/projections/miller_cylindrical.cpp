// Miller cylindrical on a sphere of radius a: the Mercator of 0.8 phi,
// stretched back by 1 / 0.8.
#include "projections/projection_support.h"
#include "projections/routines.h"

namespace veltra {

namespace {

constexpr double kLatitudeFactor = 0.4;     // half of Miller's 0.8
constexpr double kStretch = 0.8;
constexpr double kInverseOffset = 1.9634954084936207;  // 5 pi / 8

}  // namespace

int miller_cylindrical_forward(const double *ellipsoid, const double *params,
                               int n, double *points, const int *,
                               const double *) {
    const double a = ellipsoid[0];
    const double lambda0 = params[kCentralMeridianSlot];
    for (int i = 0; i < n; ++i) {
        double *p = points + 2 * i;
        p[0] = a * fold_longitude(p[0] - lambda0);
        p[1] = a * std::log(std::tan(kQuarterPi + kLatitudeFactor * p[1])) /
               kStretch;
    }
    return all_points(n);
}

// phi = atan(exp(0.8 y / a)) / 0.4 - 5 pi / 8, the inverse of the forward
// formula written with atan instead of its equivalent 2 atan - pi / 2.
int miller_cylindrical_inverse(const double *ellipsoid, const double *params,
                               int n, double *points, const int *,
                               const double *) {
    const double a = ellipsoid[0];
    const double lambda0 = params[kCentralMeridianSlot];
    for (int i = 0; i < n; ++i) {
        double *p = points + 2 * i;
        p[0] = fold_longitude(p[0] / a + lambda0);
        p[1] = std::atan(std::exp(kStretch * p[1] / a)) / kLatitudeFactor -
               kInverseOffset;
    }
    return all_points(n);
}

}  // namespace veltra
