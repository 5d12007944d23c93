// The built-in catalogue tables, generated from the EPSG records by
// scripts/gen_catalogue.py into src/catalogue/generated/.  Row tables are
// sorted by code; macro-name tables keep their stored order.
#pragma once

#include <algorithm>
#include <span>

namespace veltra::catalogue {

struct UnitRow {
    int code;
    const char *name;
    double factor;  // metres or radians per unit
};

struct SpheroidRow {
    int code;
    const char *name;
    double axis;                // metres
    double inverse_flattening;  // 0 for a sphere
};

struct PrimemRow {
    int code;
    const char *name;
    double longitude;  // degrees east of Greenwich
};

struct DatumRow {
    int code;
    const char *name;
    int spheroid;
};

struct GeogcsRow {
    int code;
    const char *name;
    int datum;
    int primem;
    int unit;
};

struct TransformParameter {
    int code;  // parameter code, 100040..100046
    double value;
};

struct GeogtranRow {
    int code;
    const char *name;
    int source;   // geographic CS codes
    int target;
    int method;   // method code
    int count;    // parameters used
    TransformParameter parameters[7];
    const char *dataset;  // grid data-set name of grid methods, else nullptr
};

struct MacroRow {
    const char *name;
    int code;
};

std::span<const UnitRow> unit_rows();
std::span<const SpheroidRow> spheroid_rows();
std::span<const PrimemRow> primem_rows();
std::span<const DatumRow> datum_rows();
std::span<const GeogcsRow> geogcs_rows();
std::span<const GeogtranRow> geogtran_rows();

// Macro-name tables (one per kind).
std::span<const MacroRow> unit_macros();
std::span<const MacroRow> spheroid_macros();
std::span<const MacroRow> primem_macros();
std::span<const MacroRow> datum_macros();
std::span<const MacroRow> geogcs_macros();
std::span<const MacroRow> geogtran_macros();
std::span<const MacroRow> projection_macros();
std::span<const MacroRow> method_macros();
std::span<const MacroRow> parameter_macros();

// The row of `code` in a table sorted by code, or nullptr.
template <class Row>
const Row *find_row(std::span<const Row> rows, int code) {
    auto it = std::lower_bound(
        rows.begin(), rows.end(), code,
        [](const Row &row, int value) { return row.code < value; });
    return it != rows.end() && it->code == code ? &*it : nullptr;
}

}  // namespace veltra::catalogue
