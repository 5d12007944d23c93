// Readers of the bracketed text form for the datum-level kinds, parameters,
// projections and methods.  Readers work on the flat token list: each finds
// its keyword anywhere in the text and reads the name and values after it;
// nested objects are found by their own keyword, not by bracket structure.
#include "core/object.h"
#include "core/text_scan.h"
#include "projections/registry.h"
#include "transforms/method_table.h"

using namespace veltra;

extern "C" {

KA_API ka_unit *ka_unit_from_string(const char *text) {
    Keyword k;
    if (!find_keyword(text, "UNIT", 2, k)) return nullptr;
    return ka_unit_new(k.name, ka_parse_number(k.value(1)));
}

// The third value is the inverse flattening; 0 stands for a sphere.
KA_API ka_spheroid *ka_spheroid_from_string(const char *text) {
    Keyword k;
    if (!find_keyword(text, "SPHEROID", 3, k)) return nullptr;
    const double inverse_flattening = ka_parse_number(k.value(2));
    const double flattening =
        inverse_flattening != 0 ? 1.0 / inverse_flattening : 0.0;
    return ka_spheroid_new(k.name, ka_parse_number(k.value(1)), flattening);
}

KA_API ka_primem *ka_primem_from_string(const char *text) {
    Keyword k;
    if (!find_keyword(text, "PRIMEM", 2, k)) return nullptr;
    return ka_primem_new(k.name, ka_parse_number(k.value(1)));
}

KA_API ka_parameter *ka_parameter_from_string(const char *text) {
    Keyword k;
    if (!find_keyword(text, "PARAMETER", 2, k)) return nullptr;
    return ka_parameter_new(k.name, ka_parse_number(k.value(1)));
}

// The spheroid is the first SPHEROID anywhere in the text.
KA_API ka_datum *ka_datum_from_string(const char *text) {
    Keyword k;
    if (!find_keyword(text, "DATUM", 1, k)) return nullptr;
    ka_spheroid *spheroid = ka_spheroid_from_string(text);
    if (spheroid == nullptr) return nullptr;
    ka_datum *datum = ka_datum_new(k.name, spheroid);
    if (datum == nullptr) ka_spheroid_del(spheroid);
    return datum;
}

// The datum, prime meridian and unit are the first of their keywords
// anywhere in the text; all three are needed.
KA_API ka_geogcs *ka_geogcs_from_string(const char *text) {
    Keyword k;
    if (!find_keyword(text, "GEOGCS", 1, k)) return nullptr;
    ka_datum *datum = ka_datum_from_string(text);
    ka_primem *primem = ka_primem_from_string(text);
    ka_unit *unit = ka_unit_from_string(text);
    ka_geogcs *geogcs = nullptr;
    if (datum != nullptr && primem != nullptr && unit != nullptr)
        geogcs = ka_geogcs_new(k.name, datum, primem, unit);
    if (geogcs == nullptr) {
        ka_datum_del(datum);
        ka_primem_del(primem);
        ka_unit_del(unit);
    }
    return geogcs;
}

// Known projection names only; the object keeps the text's spelling.
KA_API ka_projection *ka_projection_from_string(const char *text) {
    Keyword k;
    if (!find_keyword(text, "PROJECTION", 1, k)) return nullptr;
    return registry_projection(k.name);
}

// Known method names only; the object keeps the text's spelling.
KA_API ka_method *ka_method_from_string(const char *text) {
    Keyword k;
    if (!find_keyword(text, "METHOD", 1, k)) return nullptr;
    return table_method(k.name);
}

}  // extern "C"
