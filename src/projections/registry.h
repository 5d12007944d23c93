// The projection registry: each projection name bound to its routines and
// its default parameter list.
#pragma once

#include "core/object.h"

namespace veltra {

// New projection from the registry row whose name equals `name` ignoring
// case, stored under the given spelling; nullptr for an unknown name, or
// for a row whose routines this build does not have.
ka_projection *registry_projection(const char *name);

// Name of the projection with catalogue code `code` (43001..43051), or ""
// for a code that names none.
const char *projection_code_name(int code);

}  // namespace veltra
