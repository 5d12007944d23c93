// The parameter-name table: the slot of each known name and the default
// value a parameter of that name is created with.
#pragma once

namespace veltra {

struct ParameterName {
    const char *name;
    int slot;
    double default_value;
};

// Row of a name (ignoring case), or nullptr.
const ParameterName *find_parameter_name(const char *name);

// Slot of a name: the table's, 15 for names beginning "DATASET_" (any
// case), else -1.
int parameter_slot(const char *name);

}  // namespace veltra
