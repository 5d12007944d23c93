// Projections: a name bound to forward, inverse, horizon and (for registry
// projections) constants routines.
#include "core/projection.h"

#include "projections/horizon.h"

using namespace veltra;

namespace {

// Routine of an invalid projection: leaves the points as they are.
int unchanged(const double *, const double *, int n, double *points,
              const int *, const double *) {
    for (int i = 0; i < 2 * n; ++i) points[i] *= 1.0;
    return n;
}

}  // namespace

namespace veltra {

ka_projection *new_projection(const char *name, ka_projection_fn forward,
                              ka_projection_fn inverse, ka_horizon_fn horizon,
                              PcsConstantsFn constants) {
    if (name == nullptr || forward == nullptr || inverse == nullptr)
        return nullptr;
    auto *projection = new_record<ka_projection>(KA_KIND_PROJECTION, name);
    if (projection == nullptr) return nullptr;
    projection->forward = forward;
    projection->inverse = inverse;
    projection->horizon = horizon != nullptr ? horizon : default_horizon;
    projection->constants = constants;
    return projection;
}

PcsConstantsFn projection_constants(const ka_projection *projection) {
    return is_kind(projection, KA_KIND_PROJECTION) ? projection->constants
                                                   : nullptr;
}

}  // namespace veltra

extern "C" {

KA_API ka_projection *ka_projection_new(const char *name,
                                        ka_projection_fn forward,
                                        ka_projection_fn inverse,
                                        ka_horizon_fn horizon) {
    return new_projection(name, forward, inverse, horizon, nullptr);
}

KA_API void ka_projection_del(ka_projection *projection) {
    if (is_kind(projection, KA_KIND_PROJECTION)) ka_mem_free(projection);
}

KA_API void ka_projection_name(const ka_projection *projection, char *name) {
    copy_name(projection, KA_KIND_PROJECTION, name);
}

KA_API ka_projection_fn ka_projection_forward(const ka_projection *projection) {
    return is_kind(projection, KA_KIND_PROJECTION) ? projection->forward
                                                   : unchanged;
}

KA_API ka_projection_fn ka_projection_inverse(const ka_projection *projection) {
    return is_kind(projection, KA_KIND_PROJECTION) ? projection->inverse
                                                   : unchanged;
}

KA_API ka_horizon_fn ka_projection_horizon(const ka_projection *projection) {
    return is_kind(projection, KA_KIND_PROJECTION) ? projection->horizon
                                                   : default_horizon;
}

KA_API int ka_projection_p(const void *obj) {
    return is_kind(obj, KA_KIND_PROJECTION);
}

KA_API int ka_projection_eq(const ka_projection *a, const ka_projection *b) {
    return is_kind(a, KA_KIND_PROJECTION) && is_kind(b, KA_KIND_PROJECTION) &&
           ka_strcasecmp(a->name, b->name) == 0 && a->forward == b->forward &&
           a->inverse == b->inverse && a->horizon == b->horizon;
}

KA_API ka_projection *ka_projection_clone(const ka_projection *projection) {
    if (!is_kind(projection, KA_KIND_PROJECTION)) return nullptr;
    return new_projection(projection->name, projection->forward,
                          projection->inverse, projection->horizon,
                          projection->constants);
}

}  // extern "C"
