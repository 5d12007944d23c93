// Datums: a name and an owned spheroid.
#include "core/object.h"

using namespace veltra;

extern "C" {

KA_API ka_datum *ka_datum_new(const char *name, ka_spheroid *spheroid) {
    if (name == nullptr || spheroid == nullptr) return nullptr;
    auto *datum = new_record<ka_datum>(KA_KIND_DATUM, name);
    if (datum != nullptr) datum->spheroid = spheroid;
    return datum;
}

KA_API void ka_datum_del(ka_datum *datum) {
    if (!is_kind(datum, KA_KIND_DATUM)) return;
    ka_spheroid_del(datum->spheroid);
    ka_mem_free(datum);
}

KA_API void ka_datum_name(const ka_datum *datum, char *name) {
    copy_name(datum, KA_KIND_DATUM, name);
}

KA_API ka_spheroid *ka_datum_spheroid(const ka_datum *datum) {
    return is_kind(datum, KA_KIND_DATUM) ? datum->spheroid : nullptr;
}

KA_API int ka_datum_p(const void *obj) { return is_kind(obj, KA_KIND_DATUM); }

KA_API int ka_datum_eq(const ka_datum *a, const ka_datum *b) {
    return is_kind(a, KA_KIND_DATUM) && is_kind(b, KA_KIND_DATUM) &&
           ka_strcasecmp(a->name, b->name) == 0 &&
           ka_spheroid_eq(a->spheroid, b->spheroid);
}

KA_API ka_datum *ka_datum_clone(const ka_datum *datum) {
    if (!is_kind(datum, KA_KIND_DATUM)) return nullptr;
    ka_spheroid *spheroid = ka_spheroid_clone(datum->spheroid);
    ka_datum *copy = ka_datum_new(datum->name, spheroid);
    if (copy == nullptr) ka_spheroid_del(spheroid);
    return copy;
}

}  // extern "C"
