// Position_Vector: the seven-parameter similarity with the rotation signs
// reversed (position-vector convention), run through the coordinate-frame
// routines.
#include "transforms/methods.h"

namespace veltra {

namespace {

void negate_rotations(const double *values, double *negated) {
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i) negated[i] = values[i];
    negated[kSlotRx] = -values[kSlotRx];
    negated[kSlotRy] = -values[kSlotRy];
    negated[kSlotRz] = -values[kSlotRz];
}

}  // namespace

int position_vector_forward(const double *spheroid1, const double *spheroid2,
                            const double *values, const char *grid_name,
                            int n, double *coords, double *heights,
                            void *constants_a, void *constants_b,
                            void *constants_c) {
    double negated[KA_PARAMETER_SLOTS];
    negate_rotations(values, negated);
    return seven_parameter_forward(spheroid1, spheroid2, negated, grid_name,
                                   n, coords, heights, constants_a,
                                   constants_b, constants_c);
}

int position_vector_inverse(const double *spheroid1, const double *spheroid2,
                            const double *values, const char *grid_name,
                            int n, double *coords, double *heights,
                            void *constants_a, void *constants_b,
                            void *constants_c) {
    double negated[KA_PARAMETER_SLOTS];
    negate_rotations(values, negated);
    return seven_parameter_inverse(spheroid1, spheroid2, negated, grid_name,
                                   n, coords, heights, constants_a,
                                   constants_b, constants_c);
}

}  // namespace veltra
