// Internal side of method objects.
#pragma once

#include "core/object.h"

namespace veltra {

// A method carrying a constants loader too (the grid methods of the method
// table).
ka_method *new_method(const char *name, ka_method_fn forward,
                      ka_method_fn inverse, GtLoaderFn loader);

// The constants loader; nullptr for an invalid handle or none.
GtLoaderFn method_loader(const ka_method *method);

}  // namespace veltra
