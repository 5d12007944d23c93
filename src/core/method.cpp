// Methods: a name bound to the forward and inverse routines of a datum
// transformation and, for grid methods, a constants loader.
#include "core/method.h"

using namespace veltra;

namespace {

// Routine of an invalid method: changes nothing.
int unchanged(const double *, const double *, const double *, const char *,
              int n, double *, double *, void *, void *, void *) {
    return n;
}

}  // namespace

namespace veltra {

ka_method *new_method(const char *name, ka_method_fn forward,
                      ka_method_fn inverse, GtLoaderFn loader) {
    if (name == nullptr || forward == nullptr || inverse == nullptr)
        return nullptr;
    auto *method = new_record<ka_method>(KA_KIND_METHOD, name);
    if (method == nullptr) return nullptr;
    method->forward = forward;
    method->inverse = inverse;
    method->loader = loader;
    return method;
}

GtLoaderFn method_loader(const ka_method *method) {
    return is_kind(method, KA_KIND_METHOD) ? method->loader : nullptr;
}

}  // namespace veltra

extern "C" {

KA_API ka_method *ka_method_new(const char *name, ka_method_fn forward,
                                ka_method_fn inverse) {
    return new_method(name, forward, inverse, nullptr);
}

KA_API void ka_method_del(ka_method *method) {
    if (is_kind(method, KA_KIND_METHOD)) ka_mem_free(method);
}

KA_API void ka_method_name(const ka_method *method, char *name) {
    copy_name(method, KA_KIND_METHOD, name);
}

KA_API ka_method_fn ka_method_forward(const ka_method *method) {
    return is_kind(method, KA_KIND_METHOD) ? method->forward : unchanged;
}

KA_API ka_method_fn ka_method_inverse(const ka_method *method) {
    return is_kind(method, KA_KIND_METHOD) ? method->inverse : unchanged;
}

KA_API int ka_method_p(const void *obj) { return is_kind(obj, KA_KIND_METHOD); }

KA_API int ka_method_eq(const ka_method *a, const ka_method *b) {
    return is_kind(a, KA_KIND_METHOD) && is_kind(b, KA_KIND_METHOD) &&
           ka_strcasecmp(a->name, b->name) == 0 && a->forward == b->forward &&
           a->inverse == b->inverse;
}

KA_API ka_method *ka_method_clone(const ka_method *method) {
    if (!is_kind(method, KA_KIND_METHOD)) return nullptr;
    return new_method(method->name, method->forward, method->inverse,
                      method->loader);
}

}  // extern "C"
