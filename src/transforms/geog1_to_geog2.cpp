// Transformation from the first geographic system to the second.
#include "transforms/geogtran_driver.h"
#include "transforms/method_table.h"
#include "transforms/methods.h"

using namespace veltra;

extern "C" KA_API int ka_geog1_to_geog2(const ka_geogtran *geogtran, int n,
                                        double *coords, double *heights) {
    TransformFrame frame;
    if (!unpack(geogtran, frame) || n <= 0 || coords == nullptr) return 0;
    const ka_method_fn routine =
        ka_method_forward(ka_geogtran_method(geogtran));
    RoutineCall call;
    switch (forward_kind(routine)) {
    case RoutineKind::longitude_rotation:
        // Only a change of meridian on one datum; nothing is converted
        // otherwise, not even the units.
        if (!ka_datum_eq(frame.datum1, frame.datum2)) return 0;
        call.values[kSlotLongitudeOffset] = frame.meridian1 - frame.meridian2;
        break;
    case RoutineKind::grid:
        prepare_grid(frame, call);
        break;
    case RoutineKind::equation:
        prepare_equation(frame, call);
        break;
    }
    return run_routine(routine, frame, call, Direction::first_to_second, n,
                       coords, heights);
}
