// The method table: each datum transformation method name bound to its
// catalogue code, its forward and inverse routines and, for grid methods,
// its constants loader.
#pragma once

#include "core/object.h"

namespace veltra {

// How the drivers prepare a call, told by the routine itself.
enum class RoutineKind {
    equation,            // parameter values converted, prime meridians applied
    longitude_rotation,  // the meridian offset handed over as the value
    grid,                // the data-set name and constants, no meridians
};

// Kind of a forward routine (searched in the forward column) or an inverse
// routine (inverse column); a routine the table does not hold is treated as
// an equation routine.
RoutineKind forward_kind(ka_method_fn routine);
RoutineKind inverse_kind(ka_method_fn routine);

// New method from the table row whose name equals `name` ignoring case,
// stored under the given spelling and carrying the row's loader; nullptr
// for an unknown name, or for a row whose routines this build does not have.
ka_method *table_method(const char *name);

// Name of the method with catalogue code `code`; "" for an unknown code.
const char *method_code_name(int code);

}  // namespace veltra
