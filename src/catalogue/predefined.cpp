// Predefined lists: (code, name) of every object the factory builds in a
// kind's ranges, override definitions included, sorted by name ignoring
// case.
#include "catalogue/code_ranges.h"
#include "veltra.h"

#include <algorithm>

using namespace veltra::catalogue;

namespace {

constexpr int kGrowth = 256;  // records added at each growth of the array

// The growing array of records; frees itself unless released.
struct Records {
    ka_predefined *data = nullptr;
    int count = 0;
    int capacity = 0;

    ~Records() { ka_mem_free(data); }

    bool append(int code, const char *name) {
        if (count == capacity) {
            const int grown = capacity + kGrowth;
            void *block = ka_mem_realloc(
                data, grown * static_cast<int>(sizeof(ka_predefined)));
            if (block == nullptr) return false;
            data = static_cast<ka_predefined *>(block);
            capacity = grown;
        }
        ka_predefined &record = data[count++];
        record.code = code;
        std::copy(name, name + KA_NAME_MAX, record.name);
        return true;
    }

    // Hands the array over, cut to its length.
    ka_predefined *release() {
        auto *block = static_cast<ka_predefined *>(ka_mem_realloc(
            data, count * static_cast<int>(sizeof(ka_predefined))));
        if (block == nullptr) return nullptr;
        data = nullptr;
        return block;
    }
};

bool by_name(const ka_predefined &a, const ka_predefined &b) {
    return ka_strcasecmp(a.name, b.name) < 0;
}

ka_predefined *predefined(CodeKind kind, int *count) {
    if (count == nullptr) return nullptr;
    *count = 0;
    const KindEntry &entry = kind_entry(kind);
    Records records;
    char name[KA_NAME_MAX];
    for (const CodeRange &range : entry.ranges) {
        for (int code = range.low; code <= range.high; ++code) {
            void *object = entry.make(code);
            if (object == nullptr) continue;
            entry.name(object, name);
            entry.destroy(object);
            if (!records.append(code, name)) return nullptr;
        }
    }
    if (records.count < 1) return nullptr;
    const int length = records.count;
    ka_predefined *list = records.release();
    if (list == nullptr) return nullptr;
    std::sort(list, list + length, by_name);
    *count = length;
    return list;
}

}  // namespace

extern "C" {

KA_API ka_predefined *ka_predefined_angular_unit(int *count) {
    return predefined(CodeKind::kAngularUnit, count);
}

KA_API ka_predefined *ka_predefined_linear_unit(int *count) {
    return predefined(CodeKind::kLinearUnit, count);
}

KA_API ka_predefined *ka_predefined_spheroid(int *count) {
    return predefined(CodeKind::kSpheroid, count);
}

KA_API ka_predefined *ka_predefined_primem(int *count) {
    return predefined(CodeKind::kPrimem, count);
}

KA_API ka_predefined *ka_predefined_datum(int *count) {
    return predefined(CodeKind::kDatum, count);
}

KA_API ka_predefined *ka_predefined_geogcs(int *count) {
    return predefined(CodeKind::kGeogcs, count);
}

KA_API ka_predefined *ka_predefined_projection(int *count) {
    return predefined(CodeKind::kProjection, count);
}

KA_API ka_predefined *ka_predefined_method(int *count) {
    return predefined(CodeKind::kMethod, count);
}

KA_API ka_predefined *ka_predefined_parameter(int *count) {
    return predefined(CodeKind::kParameter, count);
}

KA_API ka_predefined *ka_predefined_projcs(int *count) {
    return predefined(CodeKind::kProjcs, count);
}

KA_API ka_predefined *ka_predefined_geogtran(int *count) {
    return predefined(CodeKind::kGeogtran, count);
}

}  // extern "C"
