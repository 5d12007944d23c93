#include "projections/pcsconstants.h"

namespace veltra {

namespace {
constexpr int kHeaderTag = 2;  // first word of every constants header
}

PcsConstants *pcsconstants_new() {
    auto *record =
        static_cast<PcsConstants *>(ka_mem_alloc(sizeof(PcsConstants)));
    if (record != nullptr) record->kind = KA_KIND_PCSCONSTANTS;
    return record;
}

void pcsconstants_del(PcsConstants *record) {
    if (!is_kind(record, KA_KIND_PCSCONSTANTS)) return;
    ka_mem_free(record->header);
    ka_mem_free(record->values);
    ka_mem_free(record);
}

const int *pcsconstants_header(const PcsConstants *record) {
    return is_kind(record, KA_KIND_PCSCONSTANTS) ? record->header : nullptr;
}

const double *pcsconstants_values(const PcsConstants *record) {
    return is_kind(record, KA_KIND_PCSCONSTANTS) ? record->values : nullptr;
}

double *pcsconstants_fill(PcsConstants *record, int count) {
    if (!is_kind(record, KA_KIND_PCSCONSTANTS) || count < 1) return nullptr;
    auto *header = static_cast<int *>(ka_mem_alloc(2 * sizeof(int)));
    auto *values =
        static_cast<double *>(ka_mem_alloc(count * static_cast<int>(sizeof(double))));
    if (header == nullptr || values == nullptr) {
        ka_mem_free(header);
        ka_mem_free(values);
        return nullptr;
    }
    header[0] = kHeaderTag;
    header[1] = count;
    record->header = header;
    record->values = values;
    return values;
}

}  // namespace veltra
