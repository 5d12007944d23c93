// Building blocks of the transformation tests: geographic systems and
// transformations made with the constructors, and angle helpers.
#pragma once

#include "veltra.h"

#include <initializer_list>
#include <numbers>
#include <utility>

namespace fixtures {

inline constexpr double kDegree = std::numbers::pi / 180, kGrad = std::numbers::pi / 200;  // radians

// Degrees of d degrees, m minutes, s seconds.
inline constexpr double dms(double d, double m, double s) { return d + m / 60 + s / 3600; }

struct Ellipsoid {
    const char *name; double axis, inverse_flattening;
    double e2() const { return (2 - 1 / inverse_flattening) / inverse_flattening; }
};

inline constexpr Ellipsoid kWgs84{"WGS_1984", 6378137.0, 298.257223563};
inline constexpr Ellipsoid kWgs72{"WGS_1972", 6378135.0, 298.26};
inline constexpr Ellipsoid kInternational1924{"International_1924", 6378388.0, 297.0};
inline constexpr Ellipsoid kClarke1880Ign{"Clarke_1880_IGN", 6378249.2, 293.4660212936269};

// Geographic system on a datum of that ellipsoid, with a prime meridian
// (degrees east of Greenwich) and an angular unit (radians per unit).
inline ka_geogcs *geogcs(const char *datum, const Ellipsoid &e, double meridian = 0,
                         double unit = kDegree) {
    ka_spheroid *spheroid = ka_spheroid_new(e.name, e.axis, 1 / e.inverse_flattening);
    return ka_geogcs_new("GCS_test", ka_datum_new(datum, spheroid),
                         ka_primem_new("Meridian", meridian), ka_unit_new("Unit", unit));
}

// Transformation with that method and the given (parameter code, value)
// pairs; the method may be given by its catalogue code.
inline ka_geogtran *geogtran(ka_geogcs *from, ka_geogcs *to, ka_method *method,
                             std::initializer_list<std::pair<int, double>> values = {}) {
    ka_parameter *slots[KA_PARAMETER_SLOTS] = {};
    for (auto [code, value] : values) {
        ka_parameter *p = ka_factory_parameter(code);
        ka_parameter_value_set(p, value);
        slots[ka_parameter_index(p)] = p;
    }
    return ka_geogtran_new("Transformation", from, to, method, slots);
}

inline ka_geogtran *geogtran(ka_geogcs *from, ka_geogcs *to, int method,
                             std::initializer_list<std::pair<int, double>> values = {}) {
    return geogtran(from, to, ka_factory_method(method), values);
}

// Catalogue codes of the methods and of their parameters.
inline constexpr int kLongitudeRotation = 9601, kGeocentricTranslation = 9603,
                     kMolodensky = 9604, kMolodenskyAbridged = 9605, kPositionVector = 9606,
                     kCoordinateFrame = 9607, kBursaWolf = 109607;
inline constexpr int kDx = 100040, kDy = 100041, kDz = 100042;
inline constexpr int kRx = 100043, kRy = 100044, kRz = 100045, kScale = 100046;

}  // namespace fixtures
