#include "core/vector.h"

#include "veltra.h"

#include <cstring>
#include <limits>

namespace veltra {

Vector *vector_new(int count, int size) {
    if (count < 1 || size < 1) return nullptr;
    if (count > std::numeric_limits<int>::max() / size) return nullptr;
    auto *v = static_cast<Vector *>(ka_mem_alloc(sizeof(Vector)));
    if (v == nullptr) return nullptr;
    v->data = ka_mem_alloc(count * size);
    if (v->data == nullptr) {
        ka_mem_free(v);
        return nullptr;
    }
    v->count = count;
    v->size = size;
    return v;
}

void vector_del(Vector *v) {
    if (v == nullptr) return;
    ka_mem_free(v->data);
    ka_mem_free(v);
}

int vector_count(const Vector *v) { return v == nullptr ? 0 : v->count; }

int vector_size(const Vector *v) { return v == nullptr ? 0 : v->size; }

int vector_set(Vector *v, int i, const void *src) {
    if (v == nullptr || src == nullptr || i < 0 || i >= v->count) return 0;
    std::memcpy(static_cast<char *>(v->data) + i * v->size, src, v->size);
    return 1;
}

int vector_get(const Vector *v, int i, void *dst) {
    if (v == nullptr || dst == nullptr || i < 0 || i >= v->count) return 0;
    std::memcpy(dst, static_cast<const char *>(v->data) + i * v->size, v->size);
    return 1;
}

}  // namespace veltra
