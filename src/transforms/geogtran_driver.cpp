#include "transforms/geogtran_driver.h"

#include "core/angles.h"
#include "transforms/gtconstants.h"

namespace veltra {

namespace {

// Rotations are held in arc-seconds, the scale difference in parts per
// million.
constexpr double kRadiansPerArcSecond = 4.84813681109536e-06;
constexpr double kPerMillion = 1e-06;

constexpr int kRotationSlots[] = {3, 4, 5};
constexpr int kScaleSlot = 6;
constexpr int kDatasetSlot = 15;

void spheroid_pair(const ka_geogcs *geogcs, double *pair) {
    const ka_spheroid *spheroid = ka_datum_spheroid(ka_geogcs_datum(geogcs));
    const double f = ka_spheroid_flattening(spheroid);
    pair[0] = ka_spheroid_axis(spheroid);
    pair[1] = (2 - f) * f;
}

// Source coordinates to radians about Greenwich.
void to_radians(int n, double *coords, double unit, double meridian,
                bool shift) {
    for (int i = 0; i < n; ++i) {
        double &longitude = coords[2 * i];
        double &latitude = coords[2 * i + 1];
        latitude *= unit;
        longitude *= unit;
        if (shift) longitude = ka_delta(meridian + longitude);
    }
}

// Radians about Greenwich to target coordinates.
void from_radians(int n, double *coords, double unit, double meridian,
                  bool shift) {
    for (int i = 0; i < n; ++i) {
        double &longitude = coords[2 * i];
        double &latitude = coords[2 * i + 1];
        if (shift) longitude = ka_delta(longitude - meridian);
        latitude /= unit;
        longitude /= unit;
    }
}

}  // namespace

bool unpack(const ka_geogtran *geogtran, TransformFrame &frame) {
    if (!ka_geogtran_p(geogtran)) return false;
    const ka_geogcs *geogcs1 = ka_geogtran_geogcs1(geogtran);
    const ka_geogcs *geogcs2 = ka_geogtran_geogcs2(geogtran);
    spheroid_pair(geogcs1, frame.spheroid1);
    spheroid_pair(geogcs2, frame.spheroid2);
    frame.meridian1 =
        ka_primem_longitude(ka_geogcs_primem(geogcs1)) * kRadiansPerDegree;
    frame.meridian2 =
        ka_primem_longitude(ka_geogcs_primem(geogcs2)) * kRadiansPerDegree;
    frame.unit1 = ka_unit_factor(ka_geogcs_unit(geogcs1));
    frame.unit2 = ka_unit_factor(ka_geogcs_unit(geogcs2));
    frame.datum1 = ka_geogcs_datum(geogcs1);
    frame.datum2 = ka_geogcs_datum(geogcs2);
    ka_geogtran_parameters(geogtran, frame.parameters);
    frame.constants = geogtran->constants;
    return true;
}

void prepare_equation(const TransformFrame &frame, RoutineCall &call) {
    parameter_values(frame.parameters, call.values);
    for (int slot : kRotationSlots) call.values[slot] *= kRadiansPerArcSecond;
    call.values[kScaleSlot] *= kPerMillion;
    call.shift1 = frame.meridian1 != 0.0;
    call.shift2 = frame.meridian2 != 0.0;
}

void prepare_grid(const TransformFrame &frame, RoutineCall &call) {
    ka_parameter_name(frame.parameters[kDatasetSlot], call.grid_buffer);
    call.grid_name = call.grid_buffer;
    call.constants[0] = gtconstants_header(frame.constants);
    call.constants[1] = gtconstants_shift_a(frame.constants);
    call.constants[2] = gtconstants_shift_b(frame.constants);
}

int run_routine(ka_method_fn routine, const TransformFrame &frame,
                const RoutineCall &call, Direction direction, int n,
                double *coords, double *heights) {
    const bool forward = direction == Direction::first_to_second;
    to_radians(n, coords, forward ? frame.unit1 : frame.unit2,
               forward ? frame.meridian1 : frame.meridian2,
               forward ? call.shift1 : call.shift2);
    const int result =
        routine(frame.spheroid1, frame.spheroid2, call.values, call.grid_name,
                n, coords, heights, call.constants[0], call.constants[1],
                call.constants[2]);
    from_radians(n, coords, forward ? frame.unit2 : frame.unit1,
                 forward ? frame.meridian2 : frame.meridian1,
                 forward ? call.shift2 : call.shift1);
    return result;
}

}  // namespace veltra
