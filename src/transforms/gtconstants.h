// Geographic-transformation constants records: the three blocks a grid
// method's loader keeps in memory between calls.
#pragma once

#include "core/object.h"

namespace veltra {

// Zero-filled record; nullptr when memory runs out.
GtConstants *gtconstants_new();
// Frees the three blocks and the record; ignores anything not a record.
void gtconstants_del(GtConstants *record);
void *gtconstants_header(const GtConstants *record);
void *gtconstants_shift_a(const GtConstants *record);
void *gtconstants_shift_b(const GtConstants *record);

}  // namespace veltra
