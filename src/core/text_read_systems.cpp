// Readers of projected systems and geographic transformations.  Their
// repeated items are found by counted keyword occurrences in the raw text
// and read from their own position, so they are found even beyond the
// 1023 characters the top-level reader looks at.
#include "core/object.h"
#include "core/text_scan.h"

using namespace veltra;

namespace {

// The parts read so far; whatever is still held when the reader gives up
// is deleted.
struct ProjcsParts {
    ka_geogcs *geogcs = nullptr;
    ka_projection *projection = nullptr;
    ka_parameter *slots[KA_PARAMETER_SLOTS] = {};
    ka_unit *unit = nullptr;

    ProjcsParts() = default;
    ProjcsParts(const ProjcsParts &) = delete;
    ProjcsParts &operator=(const ProjcsParts &) = delete;
    ~ProjcsParts() {
        ka_geogcs_del(geogcs);
        ka_projection_del(projection);
        delete_parameters(slots);
        ka_unit_del(unit);
    }
    // Hands the parts over to the new system: nothing is deleted any more.
    void release() {
        geogcs = nullptr;
        projection = nullptr;
        for (ka_parameter *&slot : slots) slot = nullptr;
        unit = nullptr;
    }
};

struct GeogtranParts {
    ka_geogcs *geogcs1 = nullptr;
    ka_geogcs *geogcs2 = nullptr;
    ka_method *method = nullptr;
    ka_parameter *slots[KA_PARAMETER_SLOTS] = {};

    GeogtranParts() = default;
    GeogtranParts(const GeogtranParts &) = delete;
    GeogtranParts &operator=(const GeogtranParts &) = delete;
    ~GeogtranParts() {
        ka_geogcs_del(geogcs1);
        ka_geogcs_del(geogcs2);
        ka_method_del(method);
        delete_parameters(slots);
    }
    void release() {
        geogcs1 = geogcs2 = nullptr;
        method = nullptr;
        for (ka_parameter *&slot : slots) slot = nullptr;
    }
};

}  // namespace

extern "C" {

// The geographic system and the projection come from the whole text; the
// parameters from every counted PARAMETER; the linear unit is the second
// counted UNIT, since the first belongs to the geographic system.
KA_API ka_projcs *ka_projcs_from_string(const char *text) {
    Keyword k;
    if (!find_keyword(text, "PROJCS", 1, k)) return nullptr;
    ProjcsParts parts;
    parts.geogcs = ka_geogcs_from_string(text);
    if (parts.geogcs == nullptr) return nullptr;
    parts.projection = ka_projection_from_string(text);
    if (parts.projection == nullptr) return nullptr;
    if (!read_parameter_slots(text, parts.slots)) return nullptr;
    const char *linear = nth_occurrence(text, "UNIT", 2);
    if (linear == nullptr) return nullptr;
    parts.unit = ka_unit_from_string(linear);
    if (parts.unit == nullptr) return nullptr;

    ka_projcs *projcs = ka_projcs_new(k.name, parts.geogcs, parts.projection,
                                      parts.slots, parts.unit);
    if (projcs != nullptr) parts.release();
    return projcs;
}

// The two systems are the first and second counted GEOGCS, each read from
// its own position; the method comes from the whole text.  (A written
// GEOGTRAN always has its method inside the first 1023 characters: even
// with every name and number at its longest, the method's name ends at
// character 1022.)
KA_API ka_geogtran *ka_geogtran_from_string(const char *text) {
    Keyword k;
    if (!find_keyword(text, "GEOGTRAN", 1, k)) return nullptr;
    GeogtranParts parts;
    const char *first = nth_occurrence(text, "GEOGCS", 1);
    const char *second = first ? next_occurrence(first + 1, "GEOGCS") : nullptr;
    if (second == nullptr) return nullptr;
    parts.geogcs1 = ka_geogcs_from_string(first);
    if (parts.geogcs1 == nullptr) return nullptr;
    parts.geogcs2 = ka_geogcs_from_string(second);
    if (parts.geogcs2 == nullptr) return nullptr;
    parts.method = ka_method_from_string(text);
    if (parts.method == nullptr) return nullptr;
    if (!read_parameter_slots(text, parts.slots)) return nullptr;

    ka_geogtran *geogtran = ka_geogtran_new(
        k.name, parts.geogcs1, parts.geogcs2, parts.method, parts.slots);
    if (geogtran != nullptr) parts.release();
    return geogtran;
}

}  // extern "C"
