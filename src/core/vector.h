// A small fixed-size array of equal-sized elements (used by horizons).
#pragma once

namespace veltra {

struct Vector {
    int count;  // number of elements, at least 1
    int size;   // bytes per element, at least 1
    void *data; // count * size bytes, zero-filled, owned
};

// NULL when count or size is below 1 or memory runs out.
Vector *vector_new(int count, int size);
void vector_del(Vector *v);
int vector_count(const Vector *v);
int vector_size(const Vector *v);
// Copy size bytes into / out of element i; 1, or 0 (nothing copied) for a
// NULL vector or buffer or an index outside 0..count-1.
int vector_set(Vector *v, int i, const void *src);
int vector_get(const Vector *v, int i, void *dst);

}  // namespace veltra
