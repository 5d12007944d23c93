// Code lists: the code column of a kind's macro-name table, in the table's
// order (aliases included, so an aliased code appears twice).
#include "catalogue/tables.h"
#include "veltra.h"

#include <span>

using namespace veltra::catalogue;

namespace {

constexpr int kLinearLow = 9000, kLinearHigh = 9099;
constexpr int kAngularLow = 9100, kAngularHigh = 9199;

bool always(int) { return true; }
bool linear(int code) { return code >= kLinearLow && code <= kLinearHigh; }
bool angular(int code) {
    return code >= kAngularLow && code <= kAngularHigh;
}

// A new array of the codes of rows that pass `keep`; NULL with *count 0
// when there are none or memory runs out (or count is NULL).
int *code_list(std::span<const MacroRow> rows, bool (*keep)(int),
               int *count) {
    if (count == nullptr) return nullptr;
    *count = 0;
    int kept = 0;
    for (const MacroRow &row : rows) kept += keep(row.code) ? 1 : 0;
    auto *list = static_cast<int *>(
        ka_mem_alloc(kept * static_cast<int>(sizeof(int))));
    if (list == nullptr) return nullptr;
    int at = 0;
    for (const MacroRow &row : rows)
        if (keep(row.code)) list[at++] = row.code;
    *count = kept;
    return list;
}

}  // namespace

extern "C" {

KA_API int *ka_factory_angular_unit_codelist(int *count) {
    return code_list(unit_macros(), angular, count);
}

KA_API int *ka_factory_linear_unit_codelist(int *count) {
    return code_list(unit_macros(), linear, count);
}

KA_API int *ka_factory_spheroid_codelist(int *count) {
    return code_list(spheroid_macros(), always, count);
}

KA_API int *ka_factory_primem_codelist(int *count) {
    return code_list(primem_macros(), always, count);
}

KA_API int *ka_factory_datum_codelist(int *count) {
    return code_list(datum_macros(), always, count);
}

KA_API int *ka_factory_geogcs_codelist(int *count) {
    return code_list(geogcs_macros(), always, count);
}

KA_API int *ka_factory_projection_codelist(int *count) {
    return code_list(projection_macros(), always, count);
}

KA_API int *ka_factory_method_codelist(int *count) {
    return code_list(method_macros(), always, count);
}

KA_API int *ka_factory_parameter_codelist(int *count) {
    return code_list(parameter_macros(), always, count);
}

KA_API int *ka_factory_geogtran_codelist(int *count) {
    return code_list(geogtran_macros(), always, count);
}

KA_API void ka_factory_codelist_del(int *list) { ka_mem_free(list); }

}  // extern "C"
