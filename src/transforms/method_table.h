// The method table: each datum transformation method name bound to its
// forward and inverse routines and, for grid methods, its constants loader.
#pragma once

#include "core/object.h"

namespace veltra {

// New method from the table row whose name equals `name` ignoring case,
// stored under the given spelling and carrying the row's loader; nullptr
// for an unknown name, or for a row whose routines this build does not have.
ka_method *table_method(const char *name);

}  // namespace veltra
