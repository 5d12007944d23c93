// The code ranges of the catalogue: which codes belong to which object kind,
// and the kind's factory, comparison and destructor.  One table serves
// ka_factory's dispatch, ka_factory_code and the predefined lists.
#pragma once

#include <cstdint>
#include <span>

namespace veltra::catalogue {

// In the order ka_factory tests them.
enum class CodeKind {
    kLinearUnit,
    kAngularUnit,
    kSpheroid,
    kPrimem,
    kDatum,
    kProjection,
    kMethod,
    kParameter,
    kGeogcs,
    kProjcs,
    kGeogtran,
};

struct CodeRange {
    int low;   // inclusive
    int high;  // inclusive
};

struct KindEntry {
    CodeKind kind;
    std::uint32_t object_kind;  // KA_KIND_* of the objects built
    std::span<const CodeRange> ranges;
    void *(*make)(int code);  // the kind's factory
    int (*equal)(const void *a, const void *b);
    void (*destroy)(void *object);
    void (*name)(const void *object, char *name);
};

// Every kind, in ka_factory's order.
std::span<const KindEntry> kind_entries();

const KindEntry &kind_entry(CodeKind kind);

// True when code lies in one of the kind's ranges.
bool in_ranges(const KindEntry &entry, int code);

// The first kind (in ka_factory's order) whose ranges hold code, or nullptr.
const KindEntry *kind_of_code(int code);

}  // namespace veltra::catalogue
