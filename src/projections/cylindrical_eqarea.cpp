// Cylindrical equal-area (Lambert's, normal aspect) with true scale on the
// standard parallel phi1, and the equal-area cylinder it shares with
// Behrmann.  The inverse on the ellipsoid solves q(phi) = 2 k0 y / a by
// Snyder's fixed-point correction (Map Projections: A Working Manual, eq.
// 3-16), at most 10 corrections.
#include "projections/cylindrical_eqarea.h"

#include "projections/pcsconstants.h"
#include "projections/projection_support.h"
#include "projections/routines.h"

namespace veltra {

namespace {

constexpr int kEllipsoidCount = 8;
constexpr int kSphereCount = 2;
constexpr int kMaxCorrections = 10;
constexpr double kStartChange = 10000.0;
constexpr double kConverged = 1e-16;

// The authalic function q(phi) from sin(phi).
double authalic_q(const EqualAreaCylinder &c, double e2, double s) {
    return c.one_minus_e2 *
           (s / (1 - e2 * s * s) -
            std::log((1 - c.e * s) / (1 + c.e * s)) / c.two_e);
}

// Latitude whose q is the target q, from phi = asin(q / 2) on.  The last
// iterate is returned even when 10 corrections did not reach 1e-16.
double authalic_latitude(const EqualAreaCylinder &c, double e2, double q) {
    double phi = std::asin(q / 2);
    double change = kStartChange;
    for (int i = 0; i < kMaxCorrections && std::fabs(change) > kConverged;
         ++i) {
        const double s = std::sin(phi);
        const double w = 1 - e2 * s * s;
        change = w * w / (2 * std::cos(phi)) *
                 (q / c.one_minus_e2 - s / w +
                  std::log((1 - c.e * s) / (1 + c.e * s)) / c.two_e);
        phi += change;
    }
    return phi;
}

bool polar_parallel(const double *params) {
    return tol_eq(std::fabs(params[kStandardParallel1Slot]), kHalfPi);
}

}  // namespace

EqualAreaCylinder equal_area_cylinder(const double *ellipsoid, double phi1,
                                      double cos_phi1) {
    const double a = ellipsoid[0], e2 = ellipsoid[1];
    EqualAreaCylinder c{};
    c.ellipsoidal = is_ellipsoid(ellipsoid);
    if (!c.ellipsoidal) {
        c.a_k0 = a * cos_phi1;
        c.a_over_k0 = a / cos_phi1;
        return c;
    }
    const double k0 = cos_phi1 / ka_w(e2, phi1);
    c.e = std::sqrt(e2);
    c.two_e = 2 * c.e;
    c.a_k0 = a * k0;
    c.a_over_2k0 = a / (2 * k0);
    c.one_minus_e2 = 1 - e2;
    c.two_k0 = 2 * k0;
    c.qp = 1 - c.one_minus_e2 / c.two_e * std::log((1 - c.e) / (1 + c.e));
    c.a_qp = a * c.qp;
    return c;
}

bool equal_area_from_constants(const double *ellipsoid, const int *header,
                               const double *constants,
                               EqualAreaCylinder &out) {
    out = EqualAreaCylinder{};
    out.ellipsoidal = is_ellipsoid(ellipsoid);
    const double *k = usable_constants(
        header, constants, out.ellipsoidal ? kEllipsoidCount : kSphereCount);
    if (k == nullptr) return false;
    if (!out.ellipsoidal) {
        out.a_k0 = k[0];
        out.a_over_k0 = k[1];
        return true;
    }
    out.e = k[0];
    out.two_e = k[1];
    out.a_k0 = k[2];
    out.a_over_2k0 = k[3];
    out.one_minus_e2 = k[4];
    out.two_k0 = k[5];
    out.qp = k[6];
    out.a_qp = k[7];
    return true;
}

int equal_area_store(PcsConstants *record, const EqualAreaCylinder &c) {
    if (!c.ellipsoidal) {
        double *k = pcsconstants_fill(record, kSphereCount);
        if (k == nullptr) return 0;
        k[0] = c.a_k0;
        k[1] = c.a_over_k0;
        return kSphereCount;
    }
    double *k = pcsconstants_fill(record, kEllipsoidCount);
    if (k == nullptr) return 0;
    const double values[kEllipsoidCount] = {c.e,            c.two_e,
                                            c.a_k0,         c.a_over_2k0,
                                            c.one_minus_e2, c.two_k0,
                                            c.qp,           c.a_qp};
    for (int i = 0; i < kEllipsoidCount; ++i) k[i] = values[i];
    return kEllipsoidCount;
}

int equal_area_forward(const EqualAreaCylinder &c, const double *ellipsoid,
                       double lambda0, int n, double *points) {
    const double e2 = ellipsoid[1];
    for (int i = 0; i < n; ++i) {
        double *p = points + 2 * i;
        const double s = std::sin(p[1]);
        p[0] = c.a_k0 * fold_longitude(p[0] - lambda0);
        p[1] = c.ellipsoidal ? c.a_over_2k0 * authalic_q(c, e2, s)
                             : c.a_over_k0 * s;
    }
    return all_points(n);
}

// The pole (|q| = qp) is returned without iterating; on a sphere sin(phi)
// is clamped to [-1, 1].
int equal_area_inverse(const EqualAreaCylinder &c, const double *ellipsoid,
                       double lambda0, int n, double *points) {
    const double a = ellipsoid[0], e2 = ellipsoid[1];
    for (int i = 0; i < n; ++i) {
        double *p = points + 2 * i;
        const double y = p[1];
        p[0] = fold_longitude(p[0] / c.a_k0 + lambda0);
        if (!c.ellipsoidal) {
            const double r = y / c.a_over_k0;
            p[1] = std::asin(std::fabs(r) > 1 ? std::copysign(1.0, r) : r);
            continue;
        }
        const double q = c.two_k0 * y / a;
        if (tol_eq(std::fabs(q), c.qp))
            p[1] = y < 0 ? -kHalfPi : kHalfPi;
        else
            p[1] = authalic_latitude(c, e2, q);
    }
    return all_points(n);
}

// A polar standard parallel has no cylinder: the calculator stores nothing
// and the forward routine fails every point.
int cylindrical_eqarea_constants(PcsConstants *record,
                                 const double *ellipsoid,
                                 const double *params) {
    if (polar_parallel(params)) return 0;
    const double phi1 = params[kStandardParallel1Slot];
    return equal_area_store(
        record, equal_area_cylinder(ellipsoid, phi1, std::cos(phi1)));
}

int cylindrical_eqarea_forward(const double *ellipsoid, const double *params,
                               int n, double *points, const int *header,
                               const double *constants) {
    if (polar_parallel(params)) {
        for (int i = 0; i < n; ++i) mark_failed(points + 2 * i);
        return 0;
    }
    EqualAreaCylinder c;
    if (!equal_area_from_constants(ellipsoid, header, constants, c)) {
        const double phi1 = params[kStandardParallel1Slot];
        c = equal_area_cylinder(ellipsoid, phi1, std::cos(phi1));
    }
    return equal_area_forward(c, ellipsoid, params[kCentralMeridianSlot],
                              n, points);
}

int cylindrical_eqarea_inverse(const double *ellipsoid, const double *params,
                               int n, double *points, const int *header,
                               const double *constants) {
    EqualAreaCylinder c;
    if (!equal_area_from_constants(ellipsoid, header, constants, c)) {
        const double phi1 = params[kStandardParallel1Slot];
        c = equal_area_cylinder(ellipsoid, phi1, std::cos(phi1));
    }
    return equal_area_inverse(c, ellipsoid, params[kCentralMeridianSlot],
                              n, points);
}

}  // namespace veltra
