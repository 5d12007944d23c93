// The method table, with the default parameter list of each method.
#include "transforms/method_table.h"

#include "core/method.h"
#include "transforms/methods.h"

#include <iterator>

namespace veltra {

namespace {

// Catalogue codes of the parameters that default lists are made of.
constexpr int kXAxisTranslation = 100040;
constexpr int kDataset = 100047;

struct MethodRow {
    const char *name;
    int code;
    RoutineKind kind;
    ka_method_fn forward;  // nullptr: not in this build
    ka_method_fn inverse;
    GtLoaderFn loader;  // grid methods only
    // Defaults: `default_count` parameters of consecutive codes from
    // `first_default`, each placed in its name's slot.
    int first_default;
    int default_count;
};

// The grid rows (NADCON, HARN, NTv2) are known by name and code; their
// routines and loaders are not part of this build, so no method object can
// be made from them.
constexpr MethodRow kRows[] = {
    {"Longitude_Rotation", 9601, RoutineKind::longitude_rotation,
     longitude_rotation, longitude_rotation, nullptr, 0, 0},
    {"Bursa_Wolf", 109607, RoutineKind::equation, seven_parameter_forward,
     seven_parameter_inverse, nullptr, kXAxisTranslation, 7},
    {"Position_Vector", 9606, RoutineKind::equation, position_vector_forward,
     position_vector_inverse, nullptr, kXAxisTranslation, 7},
    {"Coordinate_Frame", 9607, RoutineKind::equation, seven_parameter_forward,
     seven_parameter_inverse, nullptr, kXAxisTranslation, 7},
    {"Geocentric_Translation", 9603, RoutineKind::equation,
     geocentric_translation_forward, geocentric_translation_inverse, nullptr,
     kXAxisTranslation, 3},
    {"Molodensky", 9604, RoutineKind::equation, molodensky_forward,
     molodensky_inverse, nullptr, kXAxisTranslation, 3},
    {"Molodensky_Abridged", 9605, RoutineKind::equation,
     molodensky_abridged_forward, molodensky_abridged_inverse, nullptr,
     kXAxisTranslation, 3},
    {"NADCON", 9613, RoutineKind::grid, nullptr, nullptr, nullptr, kDataset, 1},
    {"HARN", 109613, RoutineKind::grid, nullptr, nullptr, nullptr, kDataset, 1},
    {"NTv2", 9615, RoutineKind::grid, nullptr, nullptr, nullptr, kDataset, 1},
};

const MethodRow *row_by_name(const char *name) {
    if (name == nullptr) return nullptr;
    for (const MethodRow &row : kRows)
        if (ka_strcasecmp(row.name, name) == 0) return &row;
    return nullptr;
}

const MethodRow *row_by_code(int code) {
    for (const MethodRow &row : kRows)
        if (row.code == code) return &row;
    return nullptr;
}

// The row a method equals: same name and the same two routines.
const MethodRow *row_of(const ka_method *method) {
    if (!ka_method_p(method)) return nullptr;
    const MethodRow *row = row_by_name(method->name);
    if (row == nullptr || row->forward == nullptr) return nullptr;
    if (method->forward != row->forward || method->inverse != row->inverse)
        return nullptr;
    return row;
}

RoutineKind kind_in_column(ka_method_fn routine,
                           ka_method_fn MethodRow::*column) {
    if (routine != nullptr)
        for (const MethodRow &row : kRows)
            if (row.*column == routine) return row.kind;
    return RoutineKind::equation;
}

}  // namespace

RoutineKind forward_kind(ka_method_fn routine) {
    return kind_in_column(routine, &MethodRow::forward);
}

RoutineKind inverse_kind(ka_method_fn routine) {
    return kind_in_column(routine, &MethodRow::inverse);
}

ka_method *table_method(const char *name) {
    const MethodRow *row = row_by_name(name);
    if (row == nullptr) return nullptr;
    return new_method(name, row->forward, row->inverse, row->loader);
}

const char *method_code_name(int code) {
    const MethodRow *row = row_by_code(code);
    return row != nullptr ? row->name : "";
}

}  // namespace veltra

using namespace veltra;

// The method's default parameters, made by the parameter factory with their
// catalogue default values and placed in their names' slots.
extern "C" KA_API int ka_parameter_method_defaults(const ka_method *method,
                                                   ka_parameter **parameters) {
    if (method == nullptr || parameters == nullptr) return 0;
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i) parameters[i] = nullptr;
    const MethodRow *row = row_of(method);
    if (row == nullptr) return 0;
    for (int k = 0; k < row->default_count; ++k) {
        ka_parameter *parameter = ka_factory_parameter(row->first_default + k);
        int slot = ka_parameter_index(parameter);
        if (slot < 0 || parameters[slot] != nullptr) {
            ka_parameter_del(parameter);
            delete_parameters(parameters);
            return 0;
        }
        parameters[slot] = parameter;
    }
    return row->default_count;
}
