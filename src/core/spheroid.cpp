// Spheroids: semi-major axis in metres and flattening (0 for a sphere).
#include "core/object.h"
#include "core/tolerance.h"

using namespace veltra;

extern "C" {

KA_API ka_spheroid *ka_spheroid_new(const char *name, double axis,
                                    double flattening) {
    // A NaN flattening passes both flattening tests and is accepted.
    if (name == nullptr || !(axis > 0) || flattening < 0 || flattening >= 1)
        return nullptr;
    auto *spheroid = new_record<ka_spheroid>(KA_KIND_SPHEROID, name);
    if (spheroid != nullptr) {
        spheroid->axis = axis;
        spheroid->flattening = flattening;
    }
    return spheroid;
}

KA_API void ka_spheroid_del(ka_spheroid *spheroid) {
    if (is_kind(spheroid, KA_KIND_SPHEROID)) ka_mem_free(spheroid);
}

KA_API void ka_spheroid_name(const ka_spheroid *spheroid, char *name) {
    copy_name(spheroid, KA_KIND_SPHEROID, name);
}

KA_API double ka_spheroid_axis(const ka_spheroid *spheroid) {
    return is_kind(spheroid, KA_KIND_SPHEROID) ? spheroid->axis : 1.0;
}

KA_API double ka_spheroid_flattening(const ka_spheroid *spheroid) {
    return is_kind(spheroid, KA_KIND_SPHEROID) ? spheroid->flattening : 0.0;
}

KA_API int ka_spheroid_p(const void *obj) {
    return is_kind(obj, KA_KIND_SPHEROID);
}

KA_API int ka_spheroid_eq(const ka_spheroid *a, const ka_spheroid *b) {
    return is_kind(a, KA_KIND_SPHEROID) && is_kind(b, KA_KIND_SPHEROID) &&
           ka_strcasecmp(a->name, b->name) == 0 && tol_eq(a->axis, b->axis) &&
           tol_eq(a->flattening, b->flattening);
}

KA_API ka_spheroid *ka_spheroid_clone(const ka_spheroid *spheroid) {
    if (!is_kind(spheroid, KA_KIND_SPHEROID)) return nullptr;
    return ka_spheroid_new(spheroid->name, spheroid->axis, spheroid->flattening);
}

}  // extern "C"
