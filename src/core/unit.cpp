// Units: a name and the size of one unit in metres or radians.
#include "core/object.h"
#include "core/tolerance.h"

using namespace veltra;

extern "C" {

KA_API ka_unit *ka_unit_new(const char *name, double factor) {
    if (name == nullptr || !(factor > 0)) return nullptr;  // rejects NaN too
    auto *unit = new_record<ka_unit>(KA_KIND_UNIT, name);
    if (unit != nullptr) unit->factor = factor;
    return unit;
}

KA_API void ka_unit_del(ka_unit *unit) {
    if (is_kind(unit, KA_KIND_UNIT)) ka_mem_free(unit);
}

KA_API void ka_unit_name(const ka_unit *unit, char *name) {
    copy_name(unit, KA_KIND_UNIT, name);
}

KA_API double ka_unit_factor(const ka_unit *unit) {
    return is_kind(unit, KA_KIND_UNIT) ? unit->factor : 1.0;
}

KA_API int ka_unit_p(const void *obj) { return is_kind(obj, KA_KIND_UNIT); }

KA_API int ka_unit_eq(const ka_unit *a, const ka_unit *b) {
    return is_kind(a, KA_KIND_UNIT) && is_kind(b, KA_KIND_UNIT) &&
           ka_strcasecmp(a->name, b->name) == 0 && tol_eq(a->factor, b->factor);
}

KA_API ka_unit *ka_unit_clone(const ka_unit *unit) {
    if (!is_kind(unit, KA_KIND_UNIT)) return nullptr;
    return ka_unit_new(unit->name, unit->factor);
}

}  // extern "C"
