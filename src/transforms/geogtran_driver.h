// What the two transformation drivers (geog1_to_geog2, geog2_to_geog1)
// share: unpacking a geographic transformation, preparing the values a
// method routine receives, and running the routine between the two
// systems' units and prime meridians.
#pragma once

#include "core/object.h"

namespace veltra {

// The parts of a geographic transformation both directions read.
struct TransformFrame {
    double spheroid1[2];  // {a, e2} of the first system
    double spheroid2[2];
    double meridian1;     // prime meridians, radians east of Greenwich
    double meridian2;
    double unit1;         // angular units, radians per unit
    double unit2;
    const ka_datum *datum1;
    const ka_datum *datum2;
    ka_parameter *parameters[KA_PARAMETER_SLOTS];
    const GtConstants *constants;  // loaded grid constants, or nullptr
};

// Everything a routine call takes besides the points.
struct RoutineCall {
    double values[KA_PARAMETER_SLOTS] = {};
    char grid_buffer[KA_NAME_MAX] = {};
    const char *grid_name = nullptr;     // grid methods only
    void *constants[3] = {};             // grid methods with loaded constants
    bool shift1 = false;                 // apply the first prime meridian
    bool shift2 = false;                 // apply the second prime meridian
};

// Fills frame from a valid transformation; false for an invalid handle.
bool unpack(const ka_geogtran *geogtran, TransformFrame &frame);

// Equation methods: the 16 parameter values converted to metres, radians
// and a pure scale; prime meridians applied where they are not Greenwich.
void prepare_equation(const TransformFrame &frame, RoutineCall &call);

// Grid methods: the data-set name of slot 15 and the loaded constants; the
// longitudes stay about the systems' own meridians.
void prepare_grid(const TransformFrame &frame, RoutineCall &call);

enum class Direction { first_to_second, second_to_first };

// Converts the points to radians about Greenwich in the source system, runs
// routine once over them, converts them to the target system's unit and
// meridian; returns the routine's count.
int run_routine(ka_method_fn routine, const TransformFrame &frame,
                const RoutineCall &call, Direction direction, int n,
                double *coords, double *heights);

}  // namespace veltra
