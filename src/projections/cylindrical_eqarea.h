// The equal-area cylinder shared by Cylindrical_Equal_Area (standard
// parallel from the parameters) and Behrmann (standard parallel fixed at 30
// degrees).  With k0 = cos(phi1) / W(phi1) (cos(phi1) on a sphere):
// x = a k0 dl, y = a q(phi) / (2 k0) on the ellipsoid, a sin(phi) / k0 on a
// sphere, where q is the authalic function
// q(phi) = (1 - e2) [sin phi / (1 - e2 sin^2 phi)
//                    - 1 / (2e) ln((1 - e sin phi) / (1 + e sin phi))].
//
// Constants, ellipsoid (8): 0 e, 1 2e, 2 a k0, 3 a / (2 k0), 4 1 - e2,
// 5 2 k0, 6 qp = q(pi/2), 7 a qp.  Sphere (2): 0 a k0, 1 a / k0.
#pragma once

#include "core/object.h"

namespace veltra {

struct EqualAreaCylinder {
    bool ellipsoidal;
    double e, two_e, a_k0, a_over_2k0, one_minus_e2, two_k0, qp, a_qp;
    double a_over_k0;  // sphere only
};

// The values for a standard parallel phi1 whose cosine is cos_phi1.
EqualAreaCylinder equal_area_cylinder(const double *ellipsoid, double phi1,
                                      double cos_phi1);

// The values read back from a constants record of the expected layout, or
// false when the record does not have it.
bool equal_area_from_constants(const double *ellipsoid, const int *header,
                               const double *constants,
                               EqualAreaCylinder &out);

// Stores the values in a record; the number stored, 0 when memory runs out.
int equal_area_store(PcsConstants *record, const EqualAreaCylinder &cylinder);

// Forward and inverse over n points about the central meridian lambda0;
// both convert every point.
int equal_area_forward(const EqualAreaCylinder &cylinder,
                       const double *ellipsoid, double lambda0, int n,
                       double *points);
int equal_area_inverse(const EqualAreaCylinder &cylinder,
                       const double *ellipsoid, double lambda0, int n,
                       double *points);

}  // namespace veltra
