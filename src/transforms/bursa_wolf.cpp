// Seven-parameter similarity transformation in the coordinate-frame
// convention (Bursa_Wolf, Coordinate_Frame):
//   X' = (1 + ds) R3(rz) R2(ry) R1(rx) X + (dx, dy, dz)
// with the exact rotation matrix, not its small-angle form.  The inverse
// uses the general cofactor inverse of R and the reciprocal scale.
#include "transforms/methods.h"

#include "projections/math.h"

#include <cmath>

namespace veltra {

namespace {

using Matrix = double[3][3];

// R3(rz) R2(ry) R1(rx) of the coordinate-frame elementary rotations.
void rotation_matrix(const double *values, Matrix r) {
    const double sx = std::sin(values[kSlotRx]), cx = std::cos(values[kSlotRx]);
    const double sy = std::sin(values[kSlotRy]), cy = std::cos(values[kSlotRy]);
    const double sz = std::sin(values[kSlotRz]), cz = std::cos(values[kSlotRz]);
    r[0][0] = cy * cz;
    r[0][1] = cx * sz + sx * sy * cz;
    r[0][2] = sx * sz - cx * sy * cz;
    r[1][0] = -cy * sz;
    r[1][1] = cx * cz - sx * sy * sz;
    r[1][2] = sx * cz + cx * sy * sz;
    r[2][0] = sy;
    r[2][1] = -sx * cy;
    r[2][2] = cx * cy;
}

void scale(Matrix r, double factor) {
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j) r[i][j] *= factor;
}

// General 3 by 3 inverse: the adjugate (transposed cofactors) divided by the
// determinant expanded along the first row.
void invert(const Matrix r, Matrix inverse) {
    const double c00 = r[1][1] * r[2][2] - r[1][2] * r[2][1];
    const double c01 = r[1][2] * r[2][0] - r[1][0] * r[2][2];
    const double c02 = r[1][0] * r[2][1] - r[1][1] * r[2][0];
    const double c10 = r[0][2] * r[2][1] - r[0][1] * r[2][2];
    const double c11 = r[0][0] * r[2][2] - r[0][2] * r[2][0];
    const double c12 = r[0][1] * r[2][0] - r[0][0] * r[2][1];
    const double c20 = r[0][1] * r[1][2] - r[0][2] * r[1][1];
    const double c21 = r[0][2] * r[1][0] - r[0][0] * r[1][2];
    const double c22 = r[0][0] * r[1][1] - r[0][1] * r[1][0];
    const double det = r[0][0] * c00 + r[0][1] * c01 + r[0][2] * c02;
    inverse[0][0] = c00 / det;
    inverse[0][1] = c10 / det;
    inverse[0][2] = c20 / det;
    inverse[1][0] = c01 / det;
    inverse[1][1] = c11 / det;
    inverse[1][2] = c21 / det;
    inverse[2][0] = c02 / det;
    inverse[2][1] = c12 / det;
    inverse[2][2] = c22 / det;
}

// Converts every point from spheroid `from` to spheroid `to`: Cartesian
// coordinates, minus `before`, times m, plus `after`.
int similarity(const double *from, const double *to, const Matrix m,
               const double *before, const double *after, int n,
               double *coords, double *heights) {
    const Geocentric source(from[0], from[1]), target(to[0], to[1]);
    for (int i = 0; i < n; ++i) {
        double x, y, z;
        source.to_cartesian(coords[2 * i + 1], coords[2 * i],
                            input_height(heights, i), x, y, z);
        x -= before[0];
        y -= before[1];
        z -= before[2];
        const double tx = m[0][0] * x + m[0][1] * y + m[0][2] * z + after[0];
        const double ty = m[1][0] * x + m[1][1] * y + m[1][2] * z + after[1];
        const double tz = m[2][0] * x + m[2][1] * y + m[2][2] * z + after[2];
        double latitude, longitude, height;
        target.to_geodetic(tx, ty, tz, latitude, longitude, height);
        store_point(coords, heights, i, latitude, longitude, height);
    }
    return n;
}

}  // namespace

int seven_parameter_forward(const double *spheroid1, const double *spheroid2,
                            const double *values, const char *, int n,
                            double *coords, double *heights, void *, void *,
                            void *) {
    Matrix r;
    rotation_matrix(values, r);
    scale(r, 1 + values[kSlotScale]);
    const double none[3] = {0, 0, 0};
    const double translation[3] = {values[kSlotDx], values[kSlotDy],
                                   values[kSlotDz]};
    return similarity(spheroid1, spheroid2, r, none, translation, n, coords,
                      heights);
}

int seven_parameter_inverse(const double *spheroid1, const double *spheroid2,
                            const double *values, const char *, int n,
                            double *coords, double *heights, void *, void *,
                            void *) {
    Matrix r, inverse;
    rotation_matrix(values, r);
    invert(r, inverse);
    scale(inverse, 1 / (1 + values[kSlotScale]));
    const double none[3] = {0, 0, 0};
    const double translation[3] = {values[kSlotDx], values[kSlotDy],
                                   values[kSlotDz]};
    return similarity(spheroid2, spheroid1, inverse, translation, none, n,
                      coords, heights);
}

}  // namespace veltra
