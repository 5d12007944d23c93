// Projected coordinate systems: a geographic system, a projection, 16
// parameter slots and a linear unit, with the projection's constants loaded
// on request.
#include "core/projcs.h"

#include "core/projection.h"
#include "core/tolerance.h"
#include "projections/pcsconstants.h"

#include <initializer_list>

using namespace veltra;

namespace {

enum Slot {
    kFalseEasting = 0,
    kFalseNorthing = 1,
    kParallel1 = 3,
    kParallel2 = 4,
    kScaleFactor = 5,
    kXScale = 12,
    kYScale = 13,
    kHeight = 15,
};

// Slots holding angles, in the order the parameters are converted.
constexpr int kAngularSlots[] = {2, 6, 8, 3, 9, 4, 10, 11, 7, 14};
constexpr int kPlaneRotation = 14;

ka_projcs *valid(const ka_projcs *projcs) {
    return is_kind(projcs, KA_KIND_PROJCS) ? const_cast<ka_projcs *>(projcs)
                                           : nullptr;
}

double spheroid_e2(const ka_spheroid *spheroid) {
    double f = ka_spheroid_flattening(spheroid);
    return (2 - f) * f;
}

}  // namespace

namespace veltra {

void projcs_inputs(const ka_projcs *projcs, SlotUse use, ProjcsInputs &out) {
    const ka_geogcs *geogcs = ka_projcs_geogcs(projcs);
    const ka_spheroid *spheroid = ka_datum_spheroid(ka_geogcs_datum(geogcs));
    const double angular = ka_unit_factor(ka_geogcs_unit(geogcs));
    const double linear = ka_unit_factor(ka_projcs_unit(projcs));
    out.system[0] = ka_spheroid_axis(spheroid);
    out.system[1] = spheroid_e2(spheroid);
    out.system[2] = angular;
    out.system[3] = linear;

    ka_parameter *slots[KA_PARAMETER_SLOTS];
    ka_projcs_parameters(projcs, slots);
    parameter_values(slots, out.values);

    for (int slot : kAngularSlots)
        if (slot != kPlaneRotation || use != SlotUse::kHorizon)
            out.values[slot] *= angular;
    out.values[kFalseEasting] *= linear;
    out.values[kFalseNorthing] *= linear;
    if (use != SlotUse::kConstants) out.values[kHeight] *= linear;

    if (slots[kScaleFactor] == nullptr) out.values[kScaleFactor] = 1.0;
    if (slots[kParallel2] == nullptr)
        out.values[kParallel2] = out.values[kParallel1];
    if (use != SlotUse::kHorizon) {
        if (slots[kXScale] == nullptr) out.values[kXScale] = 1.0;
        if (slots[kYScale] == nullptr) out.values[kYScale] = 1.0;
    }
}

void conversion_inputs(const ka_projcs *projcs, Conversion &out) {
    projcs_inputs(projcs, SlotUse::kConversion, out.inputs);
    const PcsConstants *record = valid(projcs) ? projcs->constants : nullptr;
    out.header = pcsconstants_header(record);
    out.constants = pcsconstants_values(record);
}

}  // namespace veltra

extern "C" {

KA_API ka_projcs *ka_projcs_new(const char *name, ka_geogcs *geogcs,
                                ka_projection *projection,
                                ka_parameter **parameters, ka_unit *unit) {
    if (name == nullptr || geogcs == nullptr || projection == nullptr ||
        parameters == nullptr || unit == nullptr)
        return nullptr;
    auto *projcs = new_record<ka_projcs>(KA_KIND_PROJCS, name);
    if (projcs == nullptr) return nullptr;
    projcs->geogcs = geogcs;
    projcs->projection = projection;
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i)
        projcs->parameters[i] = parameters[i];
    projcs->unit = unit;
    return projcs;
}

KA_API void ka_projcs_del(ka_projcs *projcs) {
    if (!valid(projcs)) return;
    ka_geogcs_del(projcs->geogcs);
    ka_projection_del(projcs->projection);
    delete_parameters(projcs->parameters);
    ka_unit_del(projcs->unit);
    pcsconstants_del(projcs->constants);
    ka_mem_free(projcs);
}

KA_API void ka_projcs_name(const ka_projcs *projcs, char *name) {
    copy_name(projcs, KA_KIND_PROJCS, name);
}

KA_API ka_geogcs *ka_projcs_geogcs(const ka_projcs *projcs) {
    return valid(projcs) ? projcs->geogcs : nullptr;
}

KA_API ka_projection *ka_projcs_projection(const ka_projcs *projcs) {
    return valid(projcs) ? projcs->projection : nullptr;
}

KA_API ka_unit *ka_projcs_unit(const ka_projcs *projcs) {
    return valid(projcs) ? projcs->unit : nullptr;
}

KA_API void ka_projcs_parameters(const ka_projcs *projcs,
                                 ka_parameter **parameters) {
    if (parameters == nullptr) return;
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i)
        parameters[i] = valid(projcs) ? projcs->parameters[i] : nullptr;
}

KA_API int ka_projcs_p(const void *obj) { return is_kind(obj, KA_KIND_PROJCS); }

KA_API int ka_projcs_eqnn(const ka_projcs *a, const ka_projcs *b) {
    return valid(a) && valid(b) && ka_geogcs_eq(a->geogcs, b->geogcs) &&
           ka_projection_eq(a->projection, b->projection) &&
           parameters_equal(a->parameters, b->parameters) &&
           ka_unit_eq(a->unit, b->unit);
}

KA_API int ka_projcs_eq(const ka_projcs *a, const ka_projcs *b) {
    return valid(a) && valid(b) && ka_strcasecmp(a->name, b->name) == 0 &&
           ka_projcs_eqnn(a, b);
}

KA_API ka_projcs *ka_projcs_clone(const ka_projcs *projcs) {
    return ka_projcs_clone_alterunits(projcs, nullptr, nullptr);
}

// The clone's parts are made first; when any part or the system itself
// cannot be made, every part made is freed.
KA_API ka_projcs *ka_projcs_clone_alterunits(const ka_projcs *projcs,
                                             const ka_unit *linear,
                                             const ka_unit *angular) {
    if (!valid(projcs)) return nullptr;
    const ka_geogcs *geogcs = projcs->geogcs;

    // A change is noted only when the factor differs; the ratio turns a
    // value in the old unit into the new one.
    double linear_ratio = 0.0, angular_ratio = 0.0;
    const bool linear_change =
        ka_unit_p(linear) &&
        !tol_eq(linear->factor, ka_unit_factor(projcs->unit));
    if (linear_change) linear_ratio = ka_unit_factor(projcs->unit) / linear->factor;
    const bool angular_change =
        ka_unit_p(angular) &&
        !tol_eq(angular->factor, ka_unit_factor(ka_geogcs_unit(geogcs)));
    if (angular_change)
        angular_ratio = ka_unit_factor(ka_geogcs_unit(geogcs)) / angular->factor;

    ka_parameter *parameters[KA_PARAMETER_SLOTS];
    if (!clone_parameters(projcs->parameters, parameters)) return nullptr;
    ka_projection *projection = ka_projection_clone(projcs->projection);

    ka_geogcs *new_geogcs = nullptr;
    if (angular_change) {
        for (int slot : kAngularSlots)
            ka_parameter_value_set(
                parameters[slot],
                ka_parameter_value(parameters[slot]) * angular_ratio);
        ka_datum *datum = ka_datum_clone(ka_geogcs_datum(geogcs));
        ka_primem *primem = ka_primem_clone(ka_geogcs_primem(geogcs));
        ka_unit *unit = ka_unit_clone(angular);
        new_geogcs = ka_geogcs_new(geogcs->name, datum, primem, unit);
        if (new_geogcs == nullptr) {
            ka_datum_del(datum);
            ka_primem_del(primem);
            ka_unit_del(unit);
        }
    } else {
        new_geogcs = ka_geogcs_clone(geogcs);
    }

    ka_unit *unit = nullptr;
    if (linear_change) {
        for (int slot : {kFalseEasting, kFalseNorthing})
            ka_parameter_value_set(
                parameters[slot],
                ka_parameter_value(parameters[slot]) * linear_ratio);
        unit = ka_unit_clone(linear);
    } else {
        unit = ka_unit_clone(projcs->unit);
    }

    ka_projcs *copy =
        ka_projcs_new(projcs->name, new_geogcs, projection, parameters, unit);
    if (copy == nullptr) {
        if (new_geogcs != nullptr) ka_geogcs_del(new_geogcs);
        ka_projection_del(projection);
        delete_parameters(parameters);
        ka_unit_del(unit);
    }
    return copy;
}

KA_API int ka_projcs_isconstloaded(const ka_projcs *projcs) {
    return valid(projcs) && projcs->constants != nullptr;
}

KA_API int ka_projcs_load_constants(ka_projcs *projcs) {
    if (!valid(projcs)) return 0;
    ka_projcs_unload_constants(projcs);
    PcsConstantsFn calculator = projection_constants(projcs->projection);
    if (calculator == nullptr) return 0;
    PcsConstants *record = pcsconstants_new();
    if (record == nullptr) return 0;
    ProjcsInputs inputs;
    projcs_inputs(projcs, SlotUse::kConstants, inputs);
    int result = calculator(record, inputs.system, inputs.values);
    if (result != 0)
        projcs->constants = record;
    else
        pcsconstants_del(record);
    return result;
}

KA_API void ka_projcs_unload_constants(ka_projcs *projcs) {
    if (!valid(projcs)) return;
    pcsconstants_del(projcs->constants);
    projcs->constants = nullptr;
}

}  // extern "C"
