// Behrmann: the cylindrical equal-area projection with its standard
// parallel fixed at 30 degrees, whatever the parameters say.  Constants in
// the Cylindrical_Equal_Area layout.
#include "projections/cylindrical_eqarea.h"
#include "projections/projection_support.h"
#include "projections/routines.h"

namespace veltra {

namespace {

constexpr double kParallel = kPi / 6;
constexpr double kCosParallel = 0.8660254037844386;  // cos 30 degrees

EqualAreaCylinder behrmann_values(const double *ellipsoid, const int *header,
                                  const double *constants) {
    EqualAreaCylinder c;
    if (!equal_area_from_constants(ellipsoid, header, constants, c))
        c = equal_area_cylinder(ellipsoid, kParallel, kCosParallel);
    return c;
}

}  // namespace

int behrmann_constants(PcsConstants *record, const double *ellipsoid,
                       const double *) {
    return equal_area_store(
        record, equal_area_cylinder(ellipsoid, kParallel, kCosParallel));
}

int behrmann_forward(const double *ellipsoid, const double *params, int n,
                     double *points, const int *header,
                     const double *constants) {
    return equal_area_forward(behrmann_values(ellipsoid, header, constants),
                              ellipsoid, params[kCentralMeridianSlot], n,
                              points);
}

int behrmann_inverse(const double *ellipsoid, const double *params, int n,
                     double *points, const int *header,
                     const double *constants) {
    return equal_area_inverse(behrmann_values(ellipsoid, header, constants),
                              ellipsoid, params[kCentralMeridianSlot], n,
                              points);
}

}  // namespace veltra
