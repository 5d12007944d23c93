// Horizons: the part of the earth a projection can show, as an array of
// entries (rectangles or polygons) in radians.
#pragma once

#include "veltra.h"

namespace veltra {

// A one-entry horizon holding the rectangle from (west, south) to (east,
// north) with the given wrap code; nullptr when memory runs out.
ka_horizon *horizon_rectangle(double west, double south, double east,
                              double north, int wrap);

// The longitudes of a world rectangle about central_meridian: the whole
// circle but a strip of kSeamGap on each side of the antimeridian.  wrap is
// 1 when the antimeridian is at 0, 3 otherwise, 0 for a NaN meridian (with
// west and east 0).
void world_longitudes(double central_meridian, double &west, double &east,
                      int &wrap);

// Default horizon: the world rectangle about slot 2 (central meridian).
ka_horizon *default_horizon(const double *ellipsoid, const double *params);

// Mercator: the world rectangle from 89 degrees south to 89 degrees north.
ka_horizon *mercator_horizon(const double *ellipsoid, const double *params);

// Transverse Mercator (and Cassini): every latitude, and the longitudes
// within KA_TM_HORIZON_HALF_WIDTH_DEG of the central meridian, where the
// series round trip stays within a millimetre.  Wrap code 3; 0 for a NaN
// central meridian.
ka_horizon *transverse_mercator_horizon(const double *ellipsoid,
                                        const double *params);

}  // namespace veltra
