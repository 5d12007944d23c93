// Prime meridians: longitude in degrees east of Greenwich.
#include "core/object.h"
#include "core/tolerance.h"

#include <cmath>

using namespace veltra;

namespace {
constexpr double kMaxLongitude = 180.0;
}

extern "C" {

KA_API ka_primem *ka_primem_new(const char *name, double longitude) {
    // A NaN longitude passes the range test and is accepted.
    if (name == nullptr || std::fabs(longitude) > kMaxLongitude) return nullptr;
    auto *primem = new_record<ka_primem>(KA_KIND_PRIMEM, name);
    if (primem != nullptr) primem->longitude = longitude;
    return primem;
}

KA_API void ka_primem_del(ka_primem *primem) {
    if (is_kind(primem, KA_KIND_PRIMEM)) ka_mem_free(primem);
}

KA_API void ka_primem_name(const ka_primem *primem, char *name) {
    copy_name(primem, KA_KIND_PRIMEM, name);
}

KA_API double ka_primem_longitude(const ka_primem *primem) {
    return is_kind(primem, KA_KIND_PRIMEM) ? primem->longitude : 0.0;
}

KA_API int ka_primem_p(const void *obj) { return is_kind(obj, KA_KIND_PRIMEM); }

KA_API int ka_primem_eq(const ka_primem *a, const ka_primem *b) {
    return is_kind(a, KA_KIND_PRIMEM) && is_kind(b, KA_KIND_PRIMEM) &&
           ka_strcasecmp(a->name, b->name) == 0 &&
           tol_eq(a->longitude, b->longitude);
}

KA_API ka_primem *ka_primem_clone(const ka_primem *primem) {
    if (!is_kind(primem, KA_KIND_PRIMEM)) return nullptr;
    return ka_primem_new(primem->name, primem->longitude);
}

}  // extern "C"
