// Projected systems from catalogue codes: override file "projcs" (PROJCS,
// code, name, geographic CS code, projection code, then parameter
// code/value pairs and one unit code in any order), else the family tables.
#include "catalogue/assemble.h"
#include "catalogue/override.h"
#include "catalogue/projcs_families.h"
#include "core/object.h"

using namespace veltra::catalogue;

namespace {

constexpr int kFirstParameter = 100001;  // projection parameters
constexpr int kLastParameter = 100039;

bool takes_parameter(int code, const void *) {
    if (code < kFirstParameter || code > kLastParameter) return false;
    ka_parameter *parameter = ka_factory_parameter(code);
    const bool known = parameter != nullptr;
    ka_parameter_del(parameter);
    return known;
}

ka_projcs *from_override(const OverrideDefinition &definition) {
    constexpr int kFirstPair = 3;  // after name, geographic CS, projection
    if (definition.field_count() < kFirstPair) return nullptr;
    ka_parameter *slots[KA_PARAMETER_SLOTS] = {};
    int unit = 0;
    const PairRules rules{takes_parameter, nullptr, true};
    if (!read_pairs(definition, kFirstPair, rules, slots, &unit)) {
        veltra::delete_parameters(slots);
        return nullptr;
    }
    return make_projcs(definition.field(0), read_code(definition.field(1)),
                       read_code(definition.field(2)), unit, slots);
}

}  // namespace

extern "C" KA_API ka_projcs *ka_factory_projcs(int code) {
    OverrideDefinition definition;
    if (find_override("projcs", "PROJCS", code, definition))
        return from_override(definition);
    for (ProjcsFamily family : projcs_families())
        if (ka_projcs *projcs = family(code)) return projcs;
    return nullptr;
}
