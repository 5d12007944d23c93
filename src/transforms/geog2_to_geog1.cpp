// Transformation from the second geographic system back to the first.
#include "transforms/geogtran_driver.h"
#include "transforms/method_table.h"
#include "transforms/methods.h"

using namespace veltra;

extern "C" KA_API int ka_geog2_to_geog1(const ka_geogtran *geogtran, int n,
                                        double *coords, double *heights) {
    TransformFrame frame;
    if (!unpack(geogtran, frame) || n <= 0 || coords == nullptr) return 0;
    const ka_method_fn routine =
        ka_method_inverse(ka_geogtran_method(geogtran));
    const RoutineKind kind = inverse_kind(routine);
    RoutineCall call;
    // A longitude rotation is first checked on its own.  It then goes on
    // through the general branch, which reloads every value: the offset set
    // here is replaced by the transformation's own Z_Axis_Rotation (0 when
    // absent) and the prime-meridian shifts do the rotation.  So a
    // Z_Axis_Rotation parameter on a longitude rotation acts in this
    // direction only.
    if (kind == RoutineKind::longitude_rotation) {
        if (!ka_datum_eq(frame.datum1, frame.datum2)) return 0;
        call.values[kSlotLongitudeOffset] = frame.meridian2 - frame.meridian1;
    }
    if (kind == RoutineKind::grid)
        prepare_grid(frame, call);
    else
        prepare_equation(frame, call);
    return run_routine(routine, frame, call, Direction::second_to_first, n,
                       coords, heights);
}
