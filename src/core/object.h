// Object records and the helpers every kind shares.
//
// Every object is one zero-filled block from ka_mem_alloc whose first 32-bit
// word is its kind code, followed (for all but the two constants records) by
// a 64-byte name.  The public header only sees the struct tags.
#pragma once

#include "veltra.h"

#include <cstdint>
#include <cstring>

namespace veltra {

// Loader of a grid method's constants record (NULL for equation methods).
struct GtConstants;
using GtLoaderFn = int (*)(GtConstants *record, const char *grid_name);

// Calculator of a projection's constants record.
struct PcsConstants;
using PcsConstantsFn = int (*)(PcsConstants *record, const double *ellipsoid,
                               const double *params);

}  // namespace veltra

struct ka_unit {
    std::uint32_t kind;
    char name[KA_NAME_MAX];
    double factor;
};

struct ka_spheroid {
    std::uint32_t kind;
    char name[KA_NAME_MAX];
    double axis;
    double flattening;
};

struct ka_primem {
    std::uint32_t kind;
    char name[KA_NAME_MAX];
    double longitude;  // degrees east of Greenwich
};

struct ka_datum {
    std::uint32_t kind;
    char name[KA_NAME_MAX];
    ka_spheroid *spheroid;
};

struct ka_geogcs {
    std::uint32_t kind;
    char name[KA_NAME_MAX];
    ka_datum *datum;
    ka_primem *primem;
    ka_unit *unit;
};

struct ka_parameter {
    std::uint32_t kind;
    char name[KA_NAME_MAX];
    double value;
};

struct ka_projection {
    std::uint32_t kind;
    char name[KA_NAME_MAX];
    ka_projection_fn forward;
    ka_projection_fn inverse;
    ka_horizon_fn horizon;
    veltra::PcsConstantsFn constants;
};

struct ka_projcs {
    std::uint32_t kind;
    char name[KA_NAME_MAX];
    ka_geogcs *geogcs;
    ka_projection *projection;
    ka_parameter *parameters[KA_PARAMETER_SLOTS];
    ka_unit *unit;
    veltra::PcsConstants *constants;
};

struct ka_method {
    std::uint32_t kind;
    char name[KA_NAME_MAX];
    ka_method_fn forward;
    ka_method_fn inverse;
    veltra::GtLoaderFn loader;
};

struct ka_geogtran {
    std::uint32_t kind;
    char name[KA_NAME_MAX];
    ka_geogcs *geogcs1;
    ka_geogcs *geogcs2;
    ka_method *method;
    ka_parameter *parameters[KA_PARAMETER_SLOTS];
    veltra::GtConstants *constants;
};

namespace veltra {

// Projection constants record: a two-int header {2, count} and count doubles.
struct PcsConstants {
    std::uint32_t kind;
    int *header;
    double *values;
};

// Geographic-transformation constants record: three blocks owned by the
// record, whose layout is the loading method's business.
struct GtConstants {
    std::uint32_t kind;
    void *header;
    void *shift_a;
    void *shift_b;
};

// Type test: the kind word XOR the code, bit 0 cleared, must be zero, so a
// caller may mark its objects in bit 0.
inline bool is_kind(const void *object, std::uint32_t code) {
    if (object == nullptr) return false;
    std::uint32_t word;
    std::memcpy(&word, object, sizeof word);
    return ((word ^ code) & ~std::uint32_t{1}) == 0;
}

// Typed view of a handle when it is of the kind, else nullptr.
template <class T>
inline T *as_kind(T *object, std::uint32_t code) {
    return is_kind(object, code) ? object : nullptr;
}

// Stores name in a KA_NAME_MAX field: cleared, then at most 63 characters.
inline void set_name(char *field, const char *name) {
    std::memset(field, 0, KA_NAME_MAX);
    std::memcpy(field, name, strnlen(name, KA_NAME_MAX - 1));
}

// New zero-filled record of kind `code`, named `name` (cut to 63 chars).
template <class T>
T *new_record(std::uint32_t code, const char *name) {
    auto *record = static_cast<T *>(ka_mem_alloc(static_cast<int>(sizeof(T))));
    if (record == nullptr) return nullptr;
    record->kind = code;
    set_name(record->name, name);
    return record;
}

// Clears a KA_NAME_MAX buffer and copies the name of a valid record into it.
template <class T>
void copy_name(const T *object, std::uint32_t code, char *out) {
    if (out == nullptr) return;
    std::memset(out, 0, KA_NAME_MAX);
    if (is_kind(object, code)) std::memcpy(out, object->name, KA_NAME_MAX - 1);
}

// Gathers 16 parameter values by slot (0.0 for an empty slot).
void parameter_values(ka_parameter *const *slots, double *values);

// Deletes the parameters of a 16-slot array and clears it.
void delete_parameters(ka_parameter **slots);

// Clones a 16-slot array into out (empty slots stay empty); false, with
// nothing left allocated, when a clone fails.
bool clone_parameters(ka_parameter *const *slots, ka_parameter **out);

// Two 16-slot arrays are equal when each slot is empty in both or filled in
// both with equal parameters.
bool parameters_equal(ka_parameter *const *a, ka_parameter *const *b);

}  // namespace veltra
