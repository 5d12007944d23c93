// The equation-based datum transformation routines, and the per-point steps
// they share.  Every routine has the ka_method_fn shape: spheroid pairs
// {a, e2} of the first and second system (in that order in both
// directions), the 16 parameter values (metres, radians, pure scale), then
// n (longitude, latitude) pairs in radians about Greenwich converted in
// place, and the optional heights.  The grid name and the three constants
// blocks are ignored.  Each returns n.
#pragma once

#include "core/angles.h"
#include "veltra.h"


namespace veltra {

// Value slots read by the equation methods.
inline constexpr int kSlotDx = 0;
inline constexpr int kSlotDy = 1;
inline constexpr int kSlotDz = 2;
inline constexpr int kSlotRx = 3;
inline constexpr int kSlotRy = 4;
inline constexpr int kSlotRz = 5;
inline constexpr int kSlotScale = 6;

// Longitude offset of Longitude_Rotation (radians, slot 5).
inline constexpr int kSlotLongitudeOffset = kSlotRz;

int longitude_rotation(const double *spheroid1, const double *spheroid2,
                       const double *values, const char *grid_name, int n,
                       double *coords, double *heights, void *constants_a,
                       void *constants_b, void *constants_c);

int geocentric_translation_forward(const double *spheroid1,
                                   const double *spheroid2,
                                   const double *values, const char *grid_name,
                                   int n, double *coords, double *heights,
                                   void *constants_a, void *constants_b,
                                   void *constants_c);
int geocentric_translation_inverse(const double *spheroid1,
                                   const double *spheroid2,
                                   const double *values, const char *grid_name,
                                   int n, double *coords, double *heights,
                                   void *constants_a, void *constants_b,
                                   void *constants_c);

// Seven-parameter similarity in the coordinate-frame rotation convention
// (Bursa_Wolf and Coordinate_Frame).
int seven_parameter_forward(const double *spheroid1, const double *spheroid2,
                            const double *values, const char *grid_name,
                            int n, double *coords, double *heights,
                            void *constants_a, void *constants_b,
                            void *constants_c);
int seven_parameter_inverse(const double *spheroid1, const double *spheroid2,
                            const double *values, const char *grid_name,
                            int n, double *coords, double *heights,
                            void *constants_a, void *constants_b,
                            void *constants_c);

// The same with the rotation signs reversed (Position_Vector).
int position_vector_forward(const double *spheroid1, const double *spheroid2,
                            const double *values, const char *grid_name,
                            int n, double *coords, double *heights,
                            void *constants_a, void *constants_b,
                            void *constants_c);
int position_vector_inverse(const double *spheroid1, const double *spheroid2,
                            const double *values, const char *grid_name,
                            int n, double *coords, double *heights,
                            void *constants_a, void *constants_b,
                            void *constants_c);

// Standard Molodensky; the inverse runs the forward formula from the second
// spheroid back to the first with opposite translations (approximate).
int molodensky_forward(const double *spheroid1, const double *spheroid2,
                       const double *values, const char *grid_name, int n,
                       double *coords, double *heights, void *constants_a,
                       void *constants_b, void *constants_c);
int molodensky_inverse(const double *spheroid1, const double *spheroid2,
                       const double *values, const char *grid_name, int n,
                       double *coords, double *heights, void *constants_a,
                       void *constants_b, void *constants_c);

// Abridged Molodensky, with the same construction of its inverse.
int molodensky_abridged_forward(const double *spheroid1,
                                const double *spheroid2, const double *values,
                                const char *grid_name, int n, double *coords,
                                double *heights, void *constants_a,
                                void *constants_b, void *constants_c);
int molodensky_abridged_inverse(const double *spheroid1,
                                const double *spheroid2, const double *values,
                                const char *grid_name, int n, double *coords,
                                double *heights, void *constants_a,
                                void *constants_b, void *constants_c);

// ---------------------------------------------------------------------------
// Per-point steps shared by the routines.

// Input height of point i: 0 when no height array is given.
inline double input_height(const double *heights, int i) {
    return heights != nullptr ? heights[i] : 0.0;
}

// ka_delta(longitude), which leaves a longitude within [-pi, pi] as it is:
// only one outside is handed to it.
inline double fold_longitude(double longitude) {
    return longitude >= -kPi && longitude <= kPi ? longitude
                                                 : ka_delta(longitude);
}

// Common output step: the latitude clamped into [-pi/2, pi/2], the
// longitude folded into [-pi, pi], the height written when heights are kept.
inline void store_point(double *coords, double *heights, int i,
                        double latitude, double longitude, double height) {
    if (latitude > kHalfPi) latitude = kHalfPi;
    if (latitude < -kHalfPi) latitude = -kHalfPi;
    coords[2 * i] = fold_longitude(longitude);
    coords[2 * i + 1] = latitude;
    if (heights != nullptr) heights[i] = height;
}

// The inverse of the Molodensky methods: all 16 values zero except the
// translations, negated.
inline void reversed_translations(const double *values, double *reversed) {
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i) reversed[i] = 0.0;
    reversed[kSlotDx] = -values[kSlotDx];
    reversed[kSlotDy] = -values[kSlotDy];
    reversed[kSlotDz] = -values[kSlotDz];
}

}  // namespace veltra
