// The generic coordinate-system handle: a geographic or a projected system,
// told apart by its kind code.  The geographic test always comes first.
#include "core/object.h"

#include <cstring>

using namespace veltra;

namespace {

const ka_geogcs *as_geogcs(const void *cs) {
    return is_kind(cs, KA_KIND_GEOGCS) ? static_cast<const ka_geogcs *>(cs)
                                       : nullptr;
}

const ka_projcs *as_projcs(const void *cs) {
    return is_kind(cs, KA_KIND_PROJCS) ? static_cast<const ka_projcs *>(cs)
                                       : nullptr;
}

}  // namespace

extern "C" {

KA_API int ka_coordsys_p(const void *cs) {
    return as_geogcs(cs) != nullptr || as_projcs(cs) != nullptr;
}

KA_API void ka_coordsys_del(void *cs) {
    if (as_geogcs(cs) != nullptr)
        ka_geogcs_del(static_cast<ka_geogcs *>(cs));
    else if (as_projcs(cs) != nullptr)
        ka_projcs_del(static_cast<ka_projcs *>(cs));
}

KA_API int ka_coordsys_eq(const void *a, const void *b) {
    if (as_geogcs(a) != nullptr && as_geogcs(b) != nullptr)
        return ka_geogcs_eq(as_geogcs(a), as_geogcs(b));
    if (as_projcs(a) != nullptr && as_projcs(b) != nullptr)
        return ka_projcs_eq(as_projcs(a), as_projcs(b));
    return 0;
}

KA_API void *ka_coordsys_clone(const void *cs) {
    if (const ka_geogcs *geogcs = as_geogcs(cs)) return ka_geogcs_clone(geogcs);
    if (const ka_projcs *projcs = as_projcs(cs)) return ka_projcs_clone(projcs);
    return nullptr;
}

// The writer's count: the length written for a geographic or projected
// system, 0 and an empty text for anything else.
KA_API int ka_coordsys_to_string(const void *cs, char *text) {
    if (text == nullptr) return 0;
    text[0] = '\0';
    if (const ka_geogcs *geogcs = as_geogcs(cs))
        return ka_geogcs_to_string(geogcs, text);
    if (const ka_projcs *projcs = as_projcs(cs))
        return static_cast<int>(std::strlen(ka_projcs_to_string(projcs, text)));
    return 0;
}

// "PROJCS[" anywhere, with the bracket right behind the keyword, selects
// the projected reader; any other text is read as a geographic system.
KA_API void *ka_coordsys_from_string(const char *text) {
    if (text == nullptr) return nullptr;
    if (ka_strcasestr(text, "PROJCS[") != nullptr)
        return ka_projcs_from_string(text);
    return ka_geogcs_from_string(text);
}

}  // extern "C"
