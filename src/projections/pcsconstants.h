// Projection constants records: the per-system values a projection's
// calculator precomputes once so its routines need not recompute them for
// every call.
#pragma once

#include "core/object.h"

namespace veltra {

// Empty record (both pointers null); nullptr when memory runs out.
PcsConstants *pcsconstants_new();
// Frees the record and both arrays; ignores anything that is not a record.
void pcsconstants_del(PcsConstants *record);
// The {2, count} header and the doubles; nullptr for a foreign pointer.
const int *pcsconstants_header(const PcsConstants *record);
const double *pcsconstants_values(const PcsConstants *record);

// Allocates the header and `count` zeroed doubles into an empty record and
// returns the doubles, or nullptr (record left empty) when memory runs out.
double *pcsconstants_fill(PcsConstants *record, int count);

// Number of doubles a routine was handed with its constants, 0 without.
inline int constants_count(const int *header) {
    return header == nullptr ? 0 : header[1];
}

}  // namespace veltra
