// Geographic transformations: two owned geographic systems, a method, 16
// parameter slots and, for grid methods, a loaded constants record.
#include "core/method.h"
#include "core/object.h"
#include "transforms/gtconstants.h"

using namespace veltra;

namespace {

ka_geogtran *valid(const ka_geogtran *geogtran) {
    return is_kind(geogtran, KA_KIND_GEOGTRAN)
               ? const_cast<ka_geogtran *>(geogtran)
               : nullptr;
}

}  // namespace

extern "C" {

KA_API ka_geogtran *ka_geogtran_new(const char *name, ka_geogcs *geogcs1,
                                    ka_geogcs *geogcs2, ka_method *method,
                                    ka_parameter **parameters) {
    if (name == nullptr || geogcs1 == nullptr || geogcs2 == nullptr ||
        method == nullptr || parameters == nullptr)
        return nullptr;
    auto *geogtran = new_record<ka_geogtran>(KA_KIND_GEOGTRAN, name);
    if (geogtran == nullptr) return nullptr;
    geogtran->geogcs1 = geogcs1;
    geogtran->geogcs2 = geogcs2;
    geogtran->method = method;
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i)
        geogtran->parameters[i] = parameters[i];
    return geogtran;
}

KA_API void ka_geogtran_del(ka_geogtran *geogtran) {
    if (!valid(geogtran)) return;
    ka_geogcs_del(geogtran->geogcs1);
    ka_geogcs_del(geogtran->geogcs2);
    ka_method_del(geogtran->method);
    delete_parameters(geogtran->parameters);
    gtconstants_del(geogtran->constants);
    ka_mem_free(geogtran);
}

KA_API void ka_geogtran_name(const ka_geogtran *geogtran, char *name) {
    copy_name(geogtran, KA_KIND_GEOGTRAN, name);
}

KA_API ka_geogcs *ka_geogtran_geogcs1(const ka_geogtran *geogtran) {
    return valid(geogtran) ? geogtran->geogcs1 : nullptr;
}

KA_API ka_geogcs *ka_geogtran_geogcs2(const ka_geogtran *geogtran) {
    return valid(geogtran) ? geogtran->geogcs2 : nullptr;
}

KA_API ka_method *ka_geogtran_method(const ka_geogtran *geogtran) {
    return valid(geogtran) ? geogtran->method : nullptr;
}

KA_API void ka_geogtran_parameters(const ka_geogtran *geogtran,
                                   ka_parameter **parameters) {
    if (parameters == nullptr) return;
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i)
        parameters[i] = valid(geogtran) ? geogtran->parameters[i] : nullptr;
}

KA_API int ka_geogtran_p(const void *obj) {
    return is_kind(obj, KA_KIND_GEOGTRAN);
}

KA_API int ka_geogtran_eq(const ka_geogtran *a, const ka_geogtran *b) {
    return valid(a) && valid(b) && ka_strcasecmp(a->name, b->name) == 0 &&
           ka_geogcs_eq(a->geogcs1, b->geogcs1) &&
           ka_geogcs_eq(a->geogcs2, b->geogcs2) &&
           ka_method_eq(a->method, b->method) &&
           parameters_equal(a->parameters, b->parameters);
}

KA_API ka_geogtran *ka_geogtran_clone(const ka_geogtran *geogtran) {
    if (!valid(geogtran)) return nullptr;
    ka_parameter *parameters[KA_PARAMETER_SLOTS];
    if (!clone_parameters(geogtran->parameters, parameters)) return nullptr;
    ka_geogcs *geogcs1 = ka_geogcs_clone(geogtran->geogcs1);
    ka_geogcs *geogcs2 = ka_geogcs_clone(geogtran->geogcs2);
    ka_method *method = ka_method_clone(geogtran->method);
    ka_geogtran *copy =
        ka_geogtran_new(geogtran->name, geogcs1, geogcs2, method, parameters);
    if (copy == nullptr) {
        if (geogcs1 != nullptr) ka_geogcs_del(geogcs1);
        if (geogcs2 != nullptr) ka_geogcs_del(geogcs2);
        ka_method_del(method);
        delete_parameters(parameters);
    }
    return copy;
}

KA_API int ka_geogtran_isconstloaded(const ka_geogtran *geogtran) {
    return valid(geogtran) && geogtran->constants != nullptr;
}

KA_API int ka_geogtran_load_constants(ka_geogtran *geogtran) {
    if (!valid(geogtran)) return 0;
    ka_geogtran_unload_constants(geogtran);
    GtLoaderFn loader = method_loader(geogtran->method);
    if (loader == nullptr) return 0;
    char grid_name[KA_NAME_MAX];
    ka_parameter_name(geogtran->parameters[KA_PARAMETER_SLOTS - 1], grid_name);
    GtConstants *record = gtconstants_new();
    if (record == nullptr) return 0;
    int result = loader(record, grid_name);
    if (result != 0)
        geogtran->constants = record;
    else
        gtconstants_del(record);
    return result;
}

KA_API void ka_geogtran_unload_constants(ka_geogtran *geogtran) {
    if (!valid(geogtran)) return;
    gtconstants_del(geogtran->constants);
    geogtran->constants = nullptr;
}

}  // extern "C"
