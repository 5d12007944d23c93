#include "transforms/gtconstants.h"

namespace veltra {

GtConstants *gtconstants_new() {
    auto *record = static_cast<GtConstants *>(ka_mem_alloc(sizeof(GtConstants)));
    if (record != nullptr) record->kind = KA_KIND_GTCONSTANTS;
    return record;
}

void gtconstants_del(GtConstants *record) {
    if (!is_kind(record, KA_KIND_GTCONSTANTS)) return;
    ka_mem_free(record->header);
    ka_mem_free(record->shift_a);
    ka_mem_free(record->shift_b);
    ka_mem_free(record);
}

void *gtconstants_header(const GtConstants *record) {
    return is_kind(record, KA_KIND_GTCONSTANTS) ? record->header : nullptr;
}

void *gtconstants_shift_a(const GtConstants *record) {
    return is_kind(record, KA_KIND_GTCONSTANTS) ? record->shift_a : nullptr;
}

void *gtconstants_shift_b(const GtConstants *record) {
    return is_kind(record, KA_KIND_GTCONSTANTS) ? record->shift_b : nullptr;
}

}  // namespace veltra
