// The horizon of a projected system in its geographic unit.
#include "core/projcs.h"
#include "projections/horizon.h"

using namespace veltra;

extern "C" {

KA_API ka_horizon *ka_generate_horizon(const ka_projcs *projcs) {
    ProjcsInputs inputs;
    projcs_inputs(projcs, SlotUse::kHorizon, inputs);
    ka_horizon_fn routine = ka_projection_horizon(ka_projcs_projection(projcs));
    ka_horizon *horizon = routine(inputs.system, inputs.values);
    if (horizon == nullptr) return nullptr;
    const double angular = inputs.system[2];
    for (int i = 0; i < horizon[0].count; ++i)
        for (int j = 0; j < 2 * horizon[i].npoints; ++j)
            horizon[i].points[j] /= angular;
    return horizon;
}

KA_API void ka_horizon_del(ka_horizon *horizon) {
    if (horizon == nullptr) return;
    for (int i = 0; i < horizon[0].count; ++i) ka_mem_free(horizon[i].points);
    ka_mem_free(horizon);
}

}  // extern "C"
