#include "projections/horizon.h"

#include "core/angles.h"

#include <cmath>

namespace veltra {

namespace {

constexpr double kSeamGap = 2e-7;  // radians left out on each side of the seam
constexpr int kCentralMeridian = 2;
constexpr int kRectangle = 1;
constexpr int kWrapAtZero = 1;
constexpr int kWrapSpanning = 3;
// Mercator stops one degree short of each pole.
constexpr double kMercatorLimit = kPi / 2 - kPi / 180;
constexpr double kTmHalfWidth = KA_TM_HORIZON_HALF_WIDTH_DEG * kPi / 180;

}  // namespace

ka_horizon *horizon_rectangle(double west, double south, double east,
                              double north, int wrap) {
    auto *horizon = static_cast<ka_horizon *>(ka_mem_alloc(sizeof(ka_horizon)));
    if (horizon == nullptr) return nullptr;
    auto *points =
        static_cast<double *>(ka_mem_alloc(4 * static_cast<int>(sizeof(double))));
    if (points == nullptr) {
        ka_mem_free(horizon);
        return nullptr;
    }
    points[0] = west;
    points[1] = south;
    points[2] = east;
    points[3] = north;
    horizon->count = 1;
    horizon->flags = 0;
    horizon->kind = kRectangle;
    horizon->wrap = wrap;
    horizon->npoints = 2;
    horizon->points = points;
    return horizon;
}

void world_longitudes(double central_meridian, double &west, double &east,
                      int &wrap) {
    const double cm = ka_delta(central_meridian);
    const double am = cm <= 0 ? cm + kPi : cm - kPi;  // the antimeridian
    west = east = 0.0;
    wrap = 0;
    if (std::fabs(am) <= kSeamGap) {
        west = am + kSeamGap;
        east = am + 2 * kPi - kSeamGap;
        wrap = kWrapAtZero;
    } else if (am < 0) {
        west = am + kSeamGap;
        east = am + 2 * kPi - kSeamGap;
        wrap = kWrapSpanning;
    } else if (am > 0) {
        west = am - 2 * kPi + kSeamGap;
        east = am - kSeamGap;
        wrap = kWrapSpanning;
    }
}

ka_horizon *default_horizon(const double *, const double *params) {
    double west, east;
    int wrap;
    world_longitudes(params[kCentralMeridian], west, east, wrap);
    return horizon_rectangle(west, -kPi / 2, east, kPi / 2, wrap);
}

ka_horizon *mercator_horizon(const double *, const double *params) {
    double west, east;
    int wrap;
    world_longitudes(params[kCentralMeridian], west, east, wrap);
    return horizon_rectangle(west, -kMercatorLimit, east, kMercatorLimit, wrap);
}

ka_horizon *transverse_mercator_horizon(const double *,
                                        const double *params) {
    const double cm = ka_delta(params[kCentralMeridian]);
    if (std::isnan(cm)) return horizon_rectangle(0, -kPi / 2, 0, kPi / 2, 0);
    return horizon_rectangle(cm - kTmHalfWidth, -kPi / 2, cm + kTmHalfWidth,
                             kPi / 2, kWrapSpanning);
}

}  // namespace veltra
