// ka_factory_code: the code of the first catalogue entry equal to an
// object, found by building every entry of the object's kind and comparing.
// Deliberately exhaustive: override definitions count as entries too.
#include "catalogue/code_ranges.h"
#include "core/object.h"

using namespace veltra::catalogue;

namespace {

// The kinds in the order the object is tested against them; a unit is
// searched in the angular ranges first.
constexpr CodeKind kSearchOrder[] = {
    CodeKind::kProjcs,     CodeKind::kGeogcs,     CodeKind::kAngularUnit,
    CodeKind::kLinearUnit, CodeKind::kSpheroid,   CodeKind::kDatum,
    CodeKind::kPrimem,     CodeKind::kProjection, CodeKind::kParameter,
    CodeKind::kMethod,     CodeKind::kGeogtran,
};

int search(const KindEntry &entry, const void *object) {
    for (const CodeRange &range : entry.ranges) {
        for (int code = range.low; code <= range.high; ++code) {
            void *candidate = entry.make(code);
            if (candidate == nullptr) continue;
            const bool equal = entry.equal(object, candidate) != 0;
            entry.destroy(candidate);
            if (equal) return code;
        }
    }
    return 0;
}

}  // namespace

extern "C" KA_API int ka_factory_code(const void *obj) {
    for (CodeKind kind : kSearchOrder) {
        const KindEntry &entry = kind_entry(kind);
        if (!veltra::is_kind(obj, entry.object_kind)) continue;
        if (const int code = search(entry, obj)) return code;
    }
    return 0;
}
