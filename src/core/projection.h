// Internal side of projection objects.
#pragma once

#include "core/object.h"

namespace veltra {

// A projection carrying a constants calculator too (registry projections);
// a null horizon gets the default world rectangle.
ka_projection *new_projection(const char *name, ka_projection_fn forward,
                              ka_projection_fn inverse, ka_horizon_fn horizon,
                              PcsConstantsFn constants);

// The constants calculator; nullptr for an invalid handle or none.
PcsConstantsFn projection_constants(const ka_projection *projection);

}  // namespace veltra
