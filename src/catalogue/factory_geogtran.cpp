// Geographic transformations from catalogue codes: override file
// "geogtran" (GEOGTRAN, code, name, first and second geographic CS codes,
// method code, then parameter code/value pairs), else the built-in table.
// A grid method's data set is the parameter 100047 (KA_PAR_DATASET_), whose
// value is the data-set name.
#include "catalogue/assemble.h"
#include "catalogue/override.h"
#include "catalogue/tables.h"
#include "core/object.h"

#include <algorithm>
#include <iterator>

using namespace veltra::catalogue;

namespace {

constexpr int kFirstParameter = 100040;  // transformation parameters

// The method's default parameters tell which slots it reads.
struct MethodSlots {
    ka_parameter *defaults[KA_PARAMETER_SLOTS] = {};

    explicit MethodSlots(int method_code) {
        ka_method *method = ka_factory_method(method_code);
        ka_parameter_method_defaults(method, defaults);
        ka_method_del(method);
    }
    ~MethodSlots() { veltra::delete_parameters(defaults); }
    MethodSlots(const MethodSlots &) = delete;
    MethodSlots &operator=(const MethodSlots &) = delete;
};

bool takes_parameter(int code, const void *context) {
    if (code < kFirstParameter) return false;
    const auto *method = static_cast<const MethodSlots *>(context);
    ka_parameter *parameter = ka_factory_parameter(code);
    const int slot = ka_parameter_index(parameter);
    ka_parameter_del(parameter);
    return slot >= 0 && slot < KA_PARAMETER_SLOTS &&
           method->defaults[slot] != nullptr;
}

ka_geogtran *from_override(const OverrideDefinition &definition) {
    constexpr int kFirstPair = 4;  // after name, two systems, method
    if (definition.field_count() < kFirstPair) return nullptr;
    const int method = read_code(definition.field(3));
    const MethodSlots method_slots(method);
    ka_parameter *slots[KA_PARAMETER_SLOTS] = {};
    const PairRules rules{takes_parameter, &method_slots, false};
    if (!read_pairs(definition, kFirstPair, rules, slots, nullptr)) {
        veltra::delete_parameters(slots);
        return nullptr;
    }
    return make_geogtran(definition.field(0), read_code(definition.field(1)),
                         read_code(definition.field(2)), method, slots);
}

ka_geogtran *from_row(const GeogtranRow &row) {
    ka_parameter *slots[KA_PARAMETER_SLOTS] = {};
    const int count = std::clamp(row.count, 0,
                                 static_cast<int>(std::size(row.parameters)));
    bool made = true;
    for (int i = 0; made && i < count; ++i)
        made = set_parameter(slots, row.parameters[i].code,
                             row.parameters[i].value);
    if (made && row.dataset != nullptr) made = set_dataset(slots, row.dataset);
    if (!made) {
        veltra::delete_parameters(slots);
        return nullptr;
    }
    return make_geogtran(row.name, row.source, row.target, row.method, slots);
}

}  // namespace

extern "C" KA_API ka_geogtran *ka_factory_geogtran(int code) {
    OverrideDefinition definition;
    if (find_override("geogtran", "GEOGTRAN", code, definition))
        return from_override(definition);
    const GeogtranRow *row = find_row(geogtran_rows(), code);
    return row != nullptr ? from_row(*row) : nullptr;
}
