// Parameters: a name and a value, kept by projected systems and geographic
// transformations in 16 slots fixed by the name.
#include "core/parameter.h"

#include "core/object.h"
#include "core/strutil.h"
#include "core/tolerance.h"

#include <cstring>

namespace veltra {

namespace {

constexpr int kDatasetSlot = 15;
constexpr char kDatasetPrefix[] = "DATASET_";

// Several names share a slot on purpose: aliases, the transformation
// parameters reusing slots 0 to 6, and the grid name in slot 15.
constexpr ParameterName kNames[] = {
    {"False_Easting", 0, 0},
    {"False_Northing", 1, 0},
    {"Central_Meridian", 2, 0},
    {"Longitude_Of_Origin", 2, 0},
    {"Standard_Parallel_1", 3, 60},
    {"Standard_Parallel_2", 4, 60},
    {"Scale_Factor", 5, 1},
    {"Central_Parallel", 6, 0},
    {"Latitude_Of_Origin", 6, 0},
    {"Azimuth", 7, 45},
    {"Height", 15, 0},
    {"Latitude_Of_1st_Point", 3, 0},
    {"Latitude_Of_2nd_Point", 4, 60},
    {"Longitude_Of_1st_Point", 8, 0},
    {"Longitude_Of_2nd_Point", 9, 60},
    {"Longitude_Of_Center", 10, -75},
    {"Latitude_Of_Center", 11, 40},
    {"Pseudo_Standard_Parallel_1", 3, 60},
    {"XY_Plane_Rotation", 14, 0},
    {"X_Scale", 12, 1},
    {"Y_Scale", 13, 1},
    {"X_Axis_Translation", 0, 0},
    {"Y_Axis_Translation", 1, 0},
    {"Z_Axis_Translation", 2, 0},
    {"X_Axis_Rotation", 3, 0},
    {"Y_Axis_Rotation", 4, 0},
    {"Z_Axis_Rotation", 5, 0},
    {"Scale_Difference", 6, 0},
    {"Dataset_", 15, 0},
};

}  // namespace

const ParameterName *find_parameter_name(const char *name) {
    if (name == nullptr) return nullptr;
    for (const ParameterName &row : kNames)
        if (ka_strcasecmp(row.name, name) == 0) return &row;
    return nullptr;
}

int parameter_slot(const char *name) {
    if (const ParameterName *row = find_parameter_name(name)) return row->slot;
    const std::size_t prefix = sizeof kDatasetPrefix - 1;
    if (name == nullptr || std::strlen(name) < prefix) return -1;
    for (std::size_t i = 0; i < prefix; ++i)
        if (ascii_upper(static_cast<unsigned char>(name[i])) != kDatasetPrefix[i])
            return -1;
    return kDatasetSlot;
}

void parameter_values(ka_parameter *const *slots, double *values) {
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i)
        values[i] = ka_parameter_value(slots[i]);
}

void delete_parameters(ka_parameter **slots) {
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i) {
        ka_parameter_del(slots[i]);
        slots[i] = nullptr;
    }
}

bool clone_parameters(ka_parameter *const *slots, ka_parameter **out) {
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i) {
        out[i] = nullptr;
        if (slots[i] == nullptr) continue;
        out[i] = ka_parameter_clone(slots[i]);
        if (out[i] == nullptr) {
            delete_parameters(out);
            return false;
        }
    }
    return true;
}

bool parameters_equal(ka_parameter *const *a, ka_parameter *const *b) {
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i) {
        if (a[i] == nullptr && b[i] == nullptr) continue;
        if (a[i] == nullptr || b[i] == nullptr) return false;
        if (!ka_parameter_eq(a[i], b[i])) return false;
    }
    return true;
}

}  // namespace veltra

using namespace veltra;

extern "C" {

KA_API ka_parameter *ka_parameter_new(const char *name, double value) {
    if (name == nullptr) return nullptr;
    auto *parameter = new_record<ka_parameter>(KA_KIND_PARAMETER, name);
    if (parameter != nullptr) parameter->value = value;
    return parameter;
}

KA_API void ka_parameter_del(ka_parameter *parameter) {
    if (is_kind(parameter, KA_KIND_PARAMETER)) ka_mem_free(parameter);
}

KA_API void ka_parameter_name(const ka_parameter *parameter, char *name) {
    copy_name(parameter, KA_KIND_PARAMETER, name);
}

KA_API double ka_parameter_value(const ka_parameter *parameter) {
    return is_kind(parameter, KA_KIND_PARAMETER) ? parameter->value : 0.0;
}

// The name field holds 64 bytes; a longer name is cut there rather than
// written past the record.
KA_API int ka_parameter_name_set(ka_parameter *parameter, const char *name) {
    if (name == nullptr || !is_kind(parameter, KA_KIND_PARAMETER)) return 0;
    set_name(parameter->name, name);
    return 1;
}

KA_API int ka_parameter_value_set(ka_parameter *parameter, double value) {
    if (!is_kind(parameter, KA_KIND_PARAMETER)) return 0;
    parameter->value = value;
    return 1;
}

KA_API int ka_parameter_index(const ka_parameter *parameter) {
    if (!is_kind(parameter, KA_KIND_PARAMETER)) return -2;
    return parameter_slot(parameter->name);
}

KA_API int ka_parameter_p(const void *obj) {
    return is_kind(obj, KA_KIND_PARAMETER);
}

KA_API int ka_parameter_eq(const ka_parameter *a, const ka_parameter *b) {
    return is_kind(a, KA_KIND_PARAMETER) && is_kind(b, KA_KIND_PARAMETER) &&
           ka_strcasecmp(a->name, b->name) == 0 && tol_eq(a->value, b->value);
}

KA_API ka_parameter *ka_parameter_clone(const ka_parameter *parameter) {
    if (!is_kind(parameter, KA_KIND_PARAMETER)) return nullptr;
    return ka_parameter_new(parameter->name, parameter->value);
}

}  // extern "C"
