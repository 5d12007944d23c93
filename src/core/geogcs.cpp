// Geographic coordinate systems: an owned datum, prime meridian and angular
// unit.
#include "core/object.h"

using namespace veltra;

extern "C" {

KA_API ka_geogcs *ka_geogcs_new(const char *name, ka_datum *datum,
                                ka_primem *primem, ka_unit *unit) {
    if (name == nullptr || datum == nullptr || primem == nullptr ||
        unit == nullptr)
        return nullptr;
    auto *geogcs = new_record<ka_geogcs>(KA_KIND_GEOGCS, name);
    if (geogcs == nullptr) return nullptr;
    geogcs->datum = datum;
    geogcs->primem = primem;
    geogcs->unit = unit;
    return geogcs;
}

// Frees any non-null pointer it is given, valid geographic system or not;
// only the parts are found through the kind-checking accessors.
KA_API void ka_geogcs_del(ka_geogcs *geogcs) {
    if (geogcs == nullptr) return;
    ka_datum_del(ka_geogcs_datum(geogcs));
    ka_primem_del(ka_geogcs_primem(geogcs));
    ka_unit_del(ka_geogcs_unit(geogcs));
    ka_mem_free(geogcs);
}

KA_API void ka_geogcs_name(const ka_geogcs *geogcs, char *name) {
    copy_name(geogcs, KA_KIND_GEOGCS, name);
}

KA_API ka_datum *ka_geogcs_datum(const ka_geogcs *geogcs) {
    return is_kind(geogcs, KA_KIND_GEOGCS) ? geogcs->datum : nullptr;
}

KA_API ka_primem *ka_geogcs_primem(const ka_geogcs *geogcs) {
    return is_kind(geogcs, KA_KIND_GEOGCS) ? geogcs->primem : nullptr;
}

KA_API ka_unit *ka_geogcs_unit(const ka_geogcs *geogcs) {
    return is_kind(geogcs, KA_KIND_GEOGCS) ? geogcs->unit : nullptr;
}

KA_API int ka_geogcs_p(const void *obj) { return is_kind(obj, KA_KIND_GEOGCS); }

KA_API int ka_geogcs_eq(const ka_geogcs *a, const ka_geogcs *b) {
    return is_kind(a, KA_KIND_GEOGCS) && is_kind(b, KA_KIND_GEOGCS) &&
           ka_strcasecmp(a->name, b->name) == 0 &&
           ka_datum_eq(a->datum, b->datum) &&
           ka_primem_eq(a->primem, b->primem) && ka_unit_eq(a->unit, b->unit);
}

// Clones datum, prime meridian and unit in that order; when any clone or
// the new system fails, the clones already made are freed.
KA_API ka_geogcs *ka_geogcs_clone(const ka_geogcs *geogcs) {
    if (!is_kind(geogcs, KA_KIND_GEOGCS)) return nullptr;
    ka_datum *datum = ka_datum_clone(geogcs->datum);
    ka_primem *primem = ka_primem_clone(geogcs->primem);
    ka_unit *unit = ka_unit_clone(geogcs->unit);
    ka_geogcs *copy = ka_geogcs_new(geogcs->name, datum, primem, unit);
    if (copy == nullptr) {
        ka_datum_del(datum);
        ka_primem_del(primem);
        ka_unit_del(unit);
    }
    return copy;
}

}  // extern "C"
