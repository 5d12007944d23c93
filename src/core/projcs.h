// What a projected system hands its projection's routines: the system
// description and the 16 parameter values in radians and metres.
#pragma once

#include "core/object.h"

namespace veltra {

struct ProjcsInputs {
    double system[4];  // semi-major axis, e2, angular factor, linear factor
    double values[KA_PARAMETER_SLOTS];
};

// The three users convert slightly different slot sets, and each keeps its
// own: the constants loader leaves slot 15 alone, the conversion drivers
// convert it, and the horizon converts slot 15 but not slot 14 and fills
// only slots 5 and 4 when absent.
enum class SlotUse { kConstants, kConversion, kHorizon };

// Gathers the inputs of a projected system (the accessors' defaults for an
// invalid one): values by slot (0.0 when empty), converted to radians and
// metres, then the absent scale factor (1.0), second standard parallel (the
// first) and axis scales (1.0) filled in.
void projcs_inputs(const ka_projcs *projcs, SlotUse use, ProjcsInputs &out);

}  // namespace veltra
