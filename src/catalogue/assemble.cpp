// Assembly of composite catalogue objects from the codes of their parts.
#include "catalogue/assemble.h"

#include "core/object.h"
#include "core/strutil.h"

#include <cstring>

namespace veltra::catalogue {

namespace {

constexpr int kDatasetCode = 100047;
constexpr char kDatasetPrefix[] = "Dataset_";

// Puts parameter in the slot of its name; false (parameter freed) when the
// name has no slot.
bool place(ka_parameter **slots, ka_parameter *parameter) {
    const int slot = ka_parameter_index(parameter);
    if (slot < 0 || slot >= KA_PARAMETER_SLOTS) {
        ka_parameter_del(parameter);
        return false;
    }
    ka_parameter_del(slots[slot]);
    slots[slot] = parameter;
    return true;
}

bool has_dataset_prefix(const char *text) {
    for (std::size_t i = 0; i + 1 < sizeof kDatasetPrefix; ++i)
        if (ascii_upper(static_cast<unsigned char>(text[i])) !=
            ascii_upper(static_cast<unsigned char>(kDatasetPrefix[i])))
            return false;
    return true;
}

// ka_geogcs_del frees whatever it is given, so NULL is filtered here.
void delete_geogcs(ka_geogcs *geogcs) {
    if (geogcs != nullptr) ka_geogcs_del(geogcs);
}

}  // namespace

ka_datum *make_datum(const char *name, int spheroid_code) {
    ka_spheroid *spheroid = ka_factory_spheroid(spheroid_code);
    if (spheroid == nullptr) return nullptr;
    ka_datum *datum = ka_datum_new(name, spheroid);
    if (datum == nullptr) ka_spheroid_del(spheroid);
    return datum;
}

ka_geogcs *make_geogcs(const char *name, int datum_code, int primem_code,
                       int unit_code) {
    ka_datum *datum = ka_factory_datum(datum_code);
    ka_primem *primem = datum != nullptr ? ka_factory_primem(primem_code)
                                         : nullptr;
    ka_unit *unit = primem != nullptr ? ka_factory_unit(unit_code) : nullptr;
    ka_geogcs *geogcs = unit != nullptr
                            ? ka_geogcs_new(name, datum, primem, unit)
                            : nullptr;
    if (geogcs == nullptr) {
        ka_datum_del(datum);
        ka_primem_del(primem);
        ka_unit_del(unit);
    }
    return geogcs;
}

ka_projcs *make_projcs(const char *name, int geogcs_code,
                       int projection_code, int unit_code,
                       ka_parameter **slots) {
    ka_geogcs *geogcs = ka_factory_geogcs(geogcs_code);
    ka_projection *projection =
        geogcs != nullptr ? ka_factory_projection(projection_code) : nullptr;
    ka_unit *unit =
        projection != nullptr ? ka_factory_unit(unit_code) : nullptr;
    ka_projcs *projcs =
        unit != nullptr ? ka_projcs_new(name, geogcs, projection, slots, unit)
                        : nullptr;
    if (projcs == nullptr) {
        delete_geogcs(geogcs);
        ka_projection_del(projection);
        ka_unit_del(unit);
        delete_parameters(slots);
    }
    return projcs;
}

ka_geogtran *make_geogtran(const char *name, int source, int target,
                           int method_code, ka_parameter **slots) {
    ka_geogcs *geogcs1 = ka_factory_geogcs(source);
    ka_geogcs *geogcs2 =
        geogcs1 != nullptr ? ka_factory_geogcs(target) : nullptr;
    ka_method *method =
        geogcs2 != nullptr ? ka_factory_method(method_code) : nullptr;
    ka_geogtran *geogtran =
        method != nullptr
            ? ka_geogtran_new(name, geogcs1, geogcs2, method, slots)
            : nullptr;
    if (geogtran == nullptr) {
        delete_geogcs(geogcs1);
        delete_geogcs(geogcs2);
        ka_method_del(method);
        delete_parameters(slots);
    }
    return geogtran;
}

bool set_parameter(ka_parameter **slots, int code, double value) {
    ka_parameter *parameter = ka_factory_parameter(code);
    if (parameter == nullptr) return false;
    ka_parameter_value_set(parameter, value);
    return place(slots, parameter);
}

bool set_dataset(ka_parameter **slots, const char *dataset) {
    if (dataset == nullptr) return false;
    char name[KA_NAME_MAX] = {};
    if (!has_dataset_prefix(dataset))
        std::memcpy(name, kDatasetPrefix, sizeof kDatasetPrefix - 1);
    const std::size_t at = std::strlen(name);
    std::memcpy(name + at, dataset,
                strnlen(dataset, KA_NAME_MAX - 1 - at));
    ka_parameter *parameter = ka_factory_parameter(kDatasetCode);
    if (parameter == nullptr) return false;
    ka_parameter_name_set(parameter, name);
    return place(slots, parameter);
}

}  // namespace veltra::catalogue
