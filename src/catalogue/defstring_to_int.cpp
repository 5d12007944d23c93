// Macro-name lookup: the kind prefix picks the table, then the C library's
// bsearch halves it with strcmp.  The tables are searched in their stored
// order, which is byte order except for two rows placed out of order in the
// data; bsearch then misses the names its halving steers away from.
#include "catalogue/defstring_to_int.h"

#include "catalogue/tables.h"

#include <cstdlib>
#include <cstring>
#include <span>

namespace veltra::catalogue {

namespace {

struct MacroTable {
    const char *prefix;
    std::span<const MacroRow> (*rows)();
};

// The projected-CS names have no table yet: they come with the projected
// catalogue's generated data.
std::span<const MacroRow> no_rows() { return {}; }

// Prefixes in the order they are tried.
constexpr MacroTable kTables[] = {
    {"KA_PCS_", no_rows},         {"KA_S_", spheroid_macros},
    {"KA_PAR_", parameter_macros}, {"KA_GCS_", geogcs_macros},
    {"KA_GT_", geogtran_macros},   {"KA_D_", datum_macros},
    {"KA_PM_", primem_macros},     {"KA_U_", unit_macros},
    {"KA_MTH_", method_macros},    {"KA_PRJ_", projection_macros},
};

int compare_name(const void *key, const void *row) {
    return std::strcmp(static_cast<const char *>(key),
                       static_cast<const MacroRow *>(row)->name);
}

}  // namespace

int macro_code(const char *name) {
    if (name == nullptr) return 0;
    for (const MacroTable &table : kTables) {
        if (std::strncmp(name, table.prefix, std::strlen(table.prefix)) != 0)
            continue;
        const std::span<const MacroRow> rows = table.rows();
        if (rows.empty()) return 0;
        const void *found = std::bsearch(name, rows.data(), rows.size(),
                                         sizeof(MacroRow), compare_name);
        return found != nullptr ? static_cast<const MacroRow *>(found)->code
                                : 0;
    }
    return 0;
}

}  // namespace veltra::catalogue
