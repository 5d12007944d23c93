// Internal helpers of the ellipsoid mathematics.
#pragma once

namespace veltra {

using BrentFn = double (*)(double x, const double *params);

// Root of f on [0, pi/2] by Brent's method (f called as f(x, params)).
double brent_root(const double *params, BrentFn f);

}  // namespace veltra
