// Direct geodesic problem: the point reached from a start point after a
// distance along an azimuth.  On a spheroid, Vincenty's iteration on the
// auxiliary sphere with his A and B series; on a sphere, the closed
// great-circle formulas.
#include "core/angles.h"
#include "core/tolerance.h"
#include "transforms/geodesic_trig.h"
#include "veltra.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using veltra::exact_cos;
using veltra::exact_sin;
using veltra::tol_eq;

using veltra::kHalfPi;
using veltra::kPi;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// Below this eccentricity squared the spheroid is treated as a sphere.
constexpr double kSphereE2 = 0x1p-48;

// The sigma iteration contracts by a factor of about e2/4 a round, so a
// true spheroid needs a handful of rounds.  This cap is only reached by a
// flattening so extreme that the series no longer converge.
constexpr int kMaxRounds = 200;

bool at_pole(double lat) { return tol_eq(std::fabs(lat), kHalfPi); }

struct Heading {
    double sin;
    double cos;
};

// Great-circle destination on a sphere of radius a.
void sphere_destination(double a, double lon1, double lat1, double distance,
                        double azimuth, Heading az, double *lon2,
                        double *lat2) {
    double cos_lat1 = exact_cos(lat1);
    double sin_lat1 = std::sin(lat1);
    double sigma = distance / a;
    double cos_sigma = exact_cos(sigma);
    double sin_sigma = exact_sin(sigma);

    if (lon2 != nullptr) {
        if (at_pole(lat1) && tol_eq(sigma, kPi)) {
            // Pole to pole: the meridian of arrival is set by the azimuth.
            *lon2 = lat1 < 0 ? azimuth : ka_delta(kPi - azimuth);
        } else {
            *lon2 = ka_delta(lon1 + std::atan2(sin_sigma * az.sin,
                                               cos_lat1 * cos_sigma -
                                                   sin_lat1 * sin_sigma * az.cos));
        }
    }
    if (lat2 != nullptr)
        *lat2 = std::asin(cos_lat1 * sin_sigma * az.cos + sin_lat1 * cos_sigma);
}

// Vincenty's A and B series in u2 = ep2 cos^2 alpha.
double vincenty_a(double u2) {
    return 1 + u2 * (4096 + u2 * (-768 + u2 * (320 - 175 * u2))) / 16384;
}
double vincenty_b(double u2) {
    return u2 * (256 + u2 * (-128 + u2 * (74 - 47 * u2))) / 1024;
}

// Arc sigma on the auxiliary sphere for the distance, by fixed-point
// iteration; sigma1 is the arc from the equator crossing to the start.
// NaN when the iteration meets a non-finite value or does not settle.
double auxiliary_arc(double sigma0, double sigma1, double b) {
    double sigma = sigma0;
    for (int round = 0; round < kMaxRounds; ++round) {
        double sigma_prev = sigma;
        double cos_sigma = exact_cos(sigma);
        double sin_sigma = exact_sin(sigma);
        double c2m = std::cos(2 * sigma1 + sigma);
        sigma = (((2 * c2m * c2m - 1) * cos_sigma -
                  (4 * c2m * c2m - 3) * (4 * sin_sigma * sin_sigma - 3) *
                      (b * c2m / 6)) *
                     b / 4 +
                 c2m) *
                    b * sin_sigma +
                sigma0;
        if (!std::isfinite(sigma)) return kNaN;
        if (tol_eq(sigma_prev, sigma)) return sigma;
    }
    return kNaN;
}

void spheroid_destination(double a, double e2, double lon1, double lat1,
                          double distance, Heading az, double *lon2,
                          double *lat2) {
    double f = 1 - std::sqrt(1 - e2);
    double u1 = ka_phi_to_eta(e2, lat1);
    double cos_u1 = exact_cos(u1);
    double sin_u1 = std::sin(u1);
    double sin_alpha = cos_u1 * az.sin;  // azimuth at the equator crossing
    double cos2_alpha = 1 - sin_alpha * sin_alpha;
    double cos_alpha = std::sqrt(cos2_alpha);

    // Arc from the equator crossing to the start.  The arcsine keeps it in
    // [-pi/2, pi/2] whatever the heading; results depend on this form.
    double sigma1 = 0;
    if (cos_alpha != 0)
        sigma1 = std::asin(std::clamp(sin_u1 / cos_alpha, -1.0, 1.0));

    double u2 = e2 / (1 - e2) * cos2_alpha;
    double b = vincenty_b(u2);
    double sigma0 = distance / ((1 - f) * a * vincenty_a(u2));
    double sigma = auxiliary_arc(sigma0, sigma1, b);
    double cos_sigma = exact_cos(sigma);
    double sin_sigma = exact_sin(sigma);

    if (lon2 != nullptr) {
        double lambda = std::atan2(sin_sigma * az.sin,
                                   cos_u1 * cos_sigma - sin_u1 * sin_sigma * az.cos);
        double c = f / 16 * cos2_alpha * (4 + f * (4 - 3 * cos2_alpha));
        double c2m = std::cos(2 * sigma1 + sigma);
        double l = lambda - (1 - c) * f * sin_alpha *
                                (sigma + c * sin_sigma *
                                             (c2m + c * cos_sigma * (2 * c2m * c2m - 1)));
        *lon2 = ka_delta(lon1 + l);
    }
    if (lat2 != nullptr) {
        double w = sin_u1 * sin_sigma - cos_u1 * cos_sigma * az.cos;
        *lat2 = std::atan2(sin_u1 * cos_sigma + cos_u1 * sin_sigma * az.cos,
                           (1 - f) * std::sqrt(sin_alpha * sin_alpha + w * w));
    }
}

}  // namespace

extern "C" {

KA_API void ka_geodesic_coordinate(double a, double e2, double lon1,
                                   double lat1, double distance,
                                   double azimuth, double *lon2,
                                   double *lat2) {
    azimuth = ka_delta(azimuth);
    Heading az{exact_sin(azimuth), exact_cos(azimuth)};
    if (at_pole(lat1)) lon1 = 0;  // every meridian meets there
    if (e2 >= kSphereE2)
        spheroid_destination(a, e2, lon1, lat1, distance, az, lon2, lat2);
    else
        sphere_destination(a, lon1, lat1, distance, azimuth, az, lon2, lat2);
}

}  // extern "C"
