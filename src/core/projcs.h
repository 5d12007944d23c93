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

// What both conversion drivers hand the projection's routine: the inputs
// for conversion and the arrays of the loaded constants record (null when
// the system is unloaded).
struct Conversion {
    ProjcsInputs inputs;
    const int *header;
    const double *constants;

    double angular() const { return inputs.system[2]; }
    double linear() const { return inputs.system[3]; }
    double false_easting() const { return inputs.values[0]; }
    double false_northing() const { return inputs.values[1]; }
};

void conversion_inputs(const ka_projcs *projcs, Conversion &out);

}  // namespace veltra
