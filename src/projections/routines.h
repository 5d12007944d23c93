// The forward, inverse and constants routines of the projections, as the
// registry binds them to projection names.  Forward and inverse routines
// have the ka_projection_fn shape, calculators the PcsConstantsFn shape.
#pragma once

#include "core/object.h"

namespace veltra {

int plate_carree_forward(const double *ellipsoid, const double *params, int n,
                         double *points, const int *constants_header,
                         const double *constants);
int plate_carree_inverse(const double *ellipsoid, const double *params, int n,
                         double *points, const int *constants_header,
                         const double *constants);

int equidistant_cylindrical_forward(const double *ellipsoid, const double *params, int n,
                                    double *points, const int *constants_header,
                                    const double *constants);
int equidistant_cylindrical_inverse(const double *ellipsoid, const double *params, int n,
                                    double *points, const int *constants_header,
                                    const double *constants);

int miller_cylindrical_forward(const double *ellipsoid, const double *params, int n,
                               double *points, const int *constants_header,
                               const double *constants);
int miller_cylindrical_inverse(const double *ellipsoid, const double *params, int n,
                               double *points, const int *constants_header,
                               const double *constants);

int mercator_forward(const double *ellipsoid, const double *params, int n,
                     double *points, const int *constants_header,
                     const double *constants);
int mercator_inverse(const double *ellipsoid, const double *params, int n,
                     double *points, const int *constants_header,
                     const double *constants);
int mercator_constants(PcsConstants *record, const double *ellipsoid,
                        const double *params);

int gall_stereographic_forward(const double *ellipsoid, const double *params, int n,
                               double *points, const int *constants_header,
                               const double *constants);
int gall_stereographic_inverse(const double *ellipsoid, const double *params, int n,
                               double *points, const int *constants_header,
                               const double *constants);
int gall_stereographic_constants(PcsConstants *record, const double *ellipsoid,
                                  const double *params);

int cylindrical_eqarea_forward(const double *ellipsoid, const double *params, int n,
                               double *points, const int *constants_header,
                               const double *constants);
int cylindrical_eqarea_inverse(const double *ellipsoid, const double *params, int n,
                               double *points, const int *constants_header,
                               const double *constants);
int cylindrical_eqarea_constants(PcsConstants *record, const double *ellipsoid,
                                  const double *params);

int behrmann_forward(const double *ellipsoid, const double *params, int n,
                     double *points, const int *constants_header,
                     const double *constants);
int behrmann_inverse(const double *ellipsoid, const double *params, int n,
                     double *points, const int *constants_header,
                     const double *constants);
int behrmann_constants(PcsConstants *record, const double *ellipsoid,
                        const double *params);

// Transverse_Mercator and Gauss_Kruger.
int gauss_kruger_forward(const double *ellipsoid, const double *params, int n,
                         double *points, const int *constants_header,
                         const double *constants);
int gauss_kruger_inverse(const double *ellipsoid, const double *params, int n,
                         double *points, const int *constants_header,
                         const double *constants);
int gauss_kruger_constants(PcsConstants *record, const double *ellipsoid,
                            const double *params);

}  // namespace veltra
