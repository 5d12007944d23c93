// Builds projected systems for tests: a registry projection on a given
// spheroid with named parameter values, in chosen units.
#pragma once

#include "projections/registry.h"
#include "veltra.h"

#include <array>
#include <cmath>
#include <initializer_list>
#include <memory>

namespace veltra::test {

inline constexpr double kDegree = 0.017453292519943295;  // radians per degree
inline constexpr double kGrad = 0.015707963267948967;    // radians per grad
inline constexpr double kUsFoot = 0.3048006096012192;     // metres per foot
inline constexpr double kWgs84Axis = 6378137.0;
inline constexpr double kWgs84Flattening = 1 / 298.257223563;
inline constexpr double kWgs84E2 = (2 - kWgs84Flattening) * kWgs84Flattening;

struct ParameterValue {
    const char *name;
    double value;
};

struct Units {
    double angular = kDegree;
    double linear = 1.0;
    double prime_meridian = 0.0;  // degrees east of Greenwich
};

struct ProjcsDeleter {
    void operator()(ka_projcs *projcs) const { ka_projcs_del(projcs); }
};
using ProjcsPtr = std::unique_ptr<ka_projcs, ProjcsDeleter>;

inline ka_geogcs *make_geogcs(double axis, double flattening,
                              const Units &units = {}) {
    return ka_geogcs_new(
        "GCS_Test",
        ka_datum_new("D_Test", ka_spheroid_new("Test", axis, flattening)),
        ka_primem_new("Test_Meridian", units.prime_meridian),
        ka_unit_new("Test_Angle", units.angular));
}

// A projected system whose parameters are placed in their slots by name.
inline ProjcsPtr make_projcs(const char *projection, double axis,
                             double flattening,
                             std::initializer_list<ParameterValue> values,
                             const Units &units = {},
                             const char *name = "PCS_Test") {
    std::array<ka_parameter *, KA_PARAMETER_SLOTS> slots{};
    for (const ParameterValue &v : values) {
        ka_parameter *p = ka_parameter_new(v.name, v.value);
        const int slot = ka_parameter_index(p);
        if (slot >= 0)
            slots[static_cast<std::size_t>(slot)] = p;
        else
            ka_parameter_del(p);
    }
    return ProjcsPtr(ka_projcs_new(name, make_geogcs(axis, flattening, units),
                                   registry_projection(projection),
                                   slots.data(),
                                   ka_unit_new("Test_Length", units.linear)));
}

// Flattening of a spheroid given by its eccentricity squared.
inline double flattening_of(double e2) { return 1 - std::sqrt(1 - e2); }

struct Point {
    double x, y;
};

inline Point to_proj(const ka_projcs *projcs, double lon, double lat) {
    double c[2] = {lon, lat};
    ka_geog_to_proj(projcs, 1, c);
    return {c[0], c[1]};
}

inline Point to_geog(const ka_projcs *projcs, double x, double y) {
    double c[2] = {x, y};
    ka_proj_to_geog(projcs, 1, c);
    return {c[0], c[1]};
}

}  // namespace veltra::test
