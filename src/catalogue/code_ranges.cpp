// The code-range table.  The ranges of different kinds do not overlap; a
// range bounds its kind, it does not promise that every code is assigned.
#include "catalogue/code_ranges.h"

#include "veltra.h"

#include <iterator>

namespace veltra::catalogue {

namespace {

constexpr CodeRange kLinearUnit[] = {{9000, 9099}, {209000, 209099}};
constexpr CodeRange kAngularUnit[] = {{9100, 9199}, {209100, 209199}};
constexpr CodeRange kSpheroid[] = {
    {7000, 7999}, {107000, 107999}, {207000, 207999}};
constexpr CodeRange kPrimem[] = {{8900, 8999}, {208900, 208999}};
constexpr CodeRange kDatum[] = {
    {6000, 6999}, {106000, 106999}, {206000, 206999}};
constexpr CodeRange kProjection[] = {{43000, 52999}};
constexpr CodeRange kMethod[] = {{9600, 9699}, {109600, 109699}};
constexpr CodeRange kParameter[] = {{100000, 100099}};
constexpr CodeRange kGeogcs[] = {
    {4000, 4999}, {37000, 37999}, {104000, 104999}, {204000, 204999}};
constexpr CodeRange kProjcs[] = {{2000, 3999},
                                 {20000, 32799},
                                 {53000, 65799},
                                 {102000, 103999},
                                 {202000, 203999}};
constexpr CodeRange kGeogtran[] = {
    {1000, 1999}, {8000, 8899}, {108000, 108899}, {208000, 208899}};

// Adapters from the typed C entry points to the table's untyped columns.
template <class T, T *(*Factory)(int)>
void *make(int code) {
    return Factory(code);
}

template <class T, int (*Equal)(const T *, const T *)>
int equal(const void *a, const void *b) {
    return Equal(static_cast<const T *>(a), static_cast<const T *>(b));
}

template <class T, void (*Destroy)(T *)>
void destroy(void *object) {
    Destroy(static_cast<T *>(object));
}

template <class T, void (*Name)(const T *, char *)>
void name(const void *object, char *out) {
    Name(static_cast<const T *>(object), out);
}

#define VELTRA_KIND_ENTRY(kind, word, ranges, type, prefix)                   \
    KindEntry {                                                               \
        CodeKind::kind, word, ranges, make<type, ka_factory_##prefix>,        \
            equal<type, ka_##prefix##_eq>, destroy<type, ka_##prefix##_del>,  \
            name<type, ka_##prefix##_name>                                    \
    }

constexpr KindEntry kEntries[] = {
    VELTRA_KIND_ENTRY(kLinearUnit, KA_KIND_UNIT, kLinearUnit, ka_unit, unit),
    VELTRA_KIND_ENTRY(kAngularUnit, KA_KIND_UNIT, kAngularUnit, ka_unit, unit),
    VELTRA_KIND_ENTRY(kSpheroid, KA_KIND_SPHEROID, kSpheroid, ka_spheroid,
                      spheroid),
    VELTRA_KIND_ENTRY(kPrimem, KA_KIND_PRIMEM, kPrimem, ka_primem, primem),
    VELTRA_KIND_ENTRY(kDatum, KA_KIND_DATUM, kDatum, ka_datum, datum),
    VELTRA_KIND_ENTRY(kProjection, KA_KIND_PROJECTION, kProjection,
                      ka_projection, projection),
    VELTRA_KIND_ENTRY(kMethod, KA_KIND_METHOD, kMethod, ka_method, method),
    VELTRA_KIND_ENTRY(kParameter, KA_KIND_PARAMETER, kParameter,
                      ka_parameter, parameter),
    VELTRA_KIND_ENTRY(kGeogcs, KA_KIND_GEOGCS, kGeogcs, ka_geogcs, geogcs),
    VELTRA_KIND_ENTRY(kProjcs, KA_KIND_PROJCS, kProjcs, ka_projcs, projcs),
    VELTRA_KIND_ENTRY(kGeogtran, KA_KIND_GEOGTRAN, kGeogtran, ka_geogtran,
                      geogtran),
};

#undef VELTRA_KIND_ENTRY

// kind_entry() indexes the table by the enumerator.
constexpr bool entries_in_enum_order() {
    for (int i = 0; i < static_cast<int>(std::size(kEntries)); ++i)
        if (static_cast<int>(kEntries[i].kind) != i) return false;
    return true;
}
static_assert(entries_in_enum_order());

}  // namespace

std::span<const KindEntry> kind_entries() { return kEntries; }

const KindEntry &kind_entry(CodeKind kind) {
    return kEntries[static_cast<int>(kind)];
}

bool in_ranges(const KindEntry &entry, int code) {
    for (const CodeRange &range : entry.ranges)
        if (code >= range.low && code <= range.high) return true;
    return false;
}

const KindEntry *kind_of_code(int code) {
    for (const KindEntry &entry : kEntries)
        if (in_ranges(entry, code)) return &entry;
    return nullptr;
}

}  // namespace veltra::catalogue
