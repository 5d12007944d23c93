// The projection registry (names by code, lookup, default parameter lists)
// and the routine contract: loaded constants never change a result, n = 0
// touches nothing, NaN input and foreign constants are harmless.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <string>
#include <vector>

#include "support/projcs_builder.h"

namespace {

using namespace veltra::test;

// Names by code from 43001, and the counts their default lists report
// (Robinson's is 0 although it makes three parameters).
constexpr const char *kNames[] = {
    "Plate_Carree", "Equidistant_Cylindrical", "Miller_Cylindrical", "Mercator", "Gauss_Kruger",
    "Transverse_Mercator", "Albers", "Sinusoidal", "Mollweide", "Eckert_VI", "Eckert_V",
    "Eckert_IV", "Eckert_III", "Eckert_II", "Eckert_I", "Gall_Stereographic", "Behrmann",
    "Winkel_I", "Winkel_II", "Lambert_Conformal_Conic", "Polyconic", "Quartic_Authalic",
    "Loximuthal", "Bonne", "Hotine_Oblique_Mercator_Two_Point_Natural_Origin", "Stereographic",
    "Equidistant_Conic", "Cassini", "Van_der_Grinten_I", "Robinson", "Two_Point_Equidistant",
    "Azimuthal_Equidistant", "Lambert_Azimuthal_Equal_Area", "Cylindrical_Equal_Area",
    "Hotine_Oblique_Mercator_Two_Point_Center", "Hotine_Oblique_Mercator_Azimuth_Natural_Origin",
    "Hotine_Oblique_Mercator_Azimuth_Center", "Double_Stereographic", "Krovak",
    "New_Zealand_Map_Grid", "Orthographic", "Winkel_Tripel", "Aitoff", "Hammer_Aitoff",
    "Flat_Polar_Quartic", "Craster_Parabolic", "Gnomonic", "Times",
    "Vertical_Near_Side_Perspective", "Stereographic_North_Pole", "Stereographic_South_Pole"};
constexpr int kCounts[] = {
    3, 4, 3, 4, 5, 5, 6, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 4, 4, 7, 4, 3, 4, 4, 8, 5, 6, 5, 3, 0, 6, 4,
    4, 4, 8, 6, 6, 5, 10, 4, 4, 4, 3, 3, 3, 3, 4, 3, 5, 4, 4};
static_assert(std::size(kNames) == 51 && std::size(kCounts) == 51);

// The default list of a projection of that name (without routines, so the
// unwritten rows can be asked too) as names by slot; returns its count.
int defaults(const char *projection, std::string (&names)[KA_PARAMETER_SLOTS]) {
    ka_projection *p = ka_projection_new(projection, ka_projection_forward(nullptr),
                                         ka_projection_inverse(nullptr), nullptr);
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    const int count = ka_parameter_projection_defaults(p, slots);
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i) {
        char name[KA_NAME_MAX] = "";
        ka_parameter_name(slots[i], name);
        names[i] = name;
        ka_parameter_del(slots[i]);
    }
    ka_projection_del(p);
    return count;
}

// Every row by code: its name, its default list (count reported, parameters
// made, the false origin first), and whether this build has its routines.
TEST(Registry, EveryRowByCode) {
    int built = 0;
    std::string n[KA_PARAMETER_SLOTS];
    for (int i = 0; i < 51; ++i) {
        SCOPED_TRACE(kNames[i]);
        EXPECT_STREQ(veltra::projection_code_name(43001 + i), kNames[i]);
        ka_projection *p = ka_factory_projection(43001 + i);
        built += p != nullptr;
        ka_projection_del(p);
        EXPECT_EQ(defaults(kNames[i], n), kCounts[i]);
        const auto made = std::ranges::count_if(n, [](const std::string &s) { return !s.empty(); });
        EXPECT_EQ(made, kCounts[i] == 0 ? 3 : kCounts[i]);
        EXPECT_EQ(n[0] + n[1], "False_EastingFalse_Northing");
    }
    EXPECT_EQ(built, 9);
    for (int code : {0, -43004, 43000, 43052, 52999, 100001})
        EXPECT_EQ(ka_factory_projection(code), nullptr) << code;
}

TEST(Registry, LookupIgnoresCaseAndKeepsTheGivenSpelling) {
    ka_projection *p = veltra::registry_projection("transverse_MERCATOR"),
                  *gk = ka_factory_projection(43005);
    char name[KA_NAME_MAX];
    ka_projection_name(p, name);
    EXPECT_STREQ(name, "transverse_MERCATOR");
    // Gauss_Kruger is the same projection under another name.
    EXPECT_EQ(ka_projection_forward(p), ka_projection_forward(gk));
    EXPECT_EQ(ka_projection_inverse(p), ka_projection_inverse(gk));
    EXPECT_EQ(ka_projection_horizon(p), ka_projection_horizon(gk));
    for (ka_projection *q : {p, gk}) ka_projection_del(q);
    EXPECT_EQ(veltra::registry_projection("Transverse"), nullptr);
    EXPECT_EQ(veltra::registry_projection(nullptr), nullptr);
}

// The lists that use unusual slots or names; a null or unknown projection
// gets none, and the output array is cleared.
TEST(ProjectionDefaults, UnusualSlotsAndRejections) {
    std::string n[KA_PARAMETER_SLOTS];
    const struct { const char *projection; int slot; const char *name; } rows[] = {
        {"ROBINSON", 2, "Central_Meridian"}, {"Krovak", 3, "Pseudo_Standard_Parallel_1"},
        {"Krovak", 14, "XY_Plane_Rotation"}, {"New_Zealand_Map_Grid", 2, "Longitude_Of_Origin"},
        {"Loximuthal", 6, "Central_Parallel"}, {"Vertical_Near_Side_Perspective", 15, "Height"},
        {"Hotine_Oblique_Mercator_Two_Point_Center", 9, "Longitude_Of_2nd_Point"}};
    for (const auto &row : rows) {
        defaults(row.projection, n);
        EXPECT_EQ(n[row.slot], row.name) << row.projection;
    }
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    for (auto &s : slots) s = reinterpret_cast<ka_parameter *>(&slots);
    EXPECT_EQ(ka_parameter_projection_defaults(nullptr, slots), 0);
    for (ka_parameter *s : slots) EXPECT_EQ(s, nullptr);
    EXPECT_EQ(defaults("Not_A_Projection", n), 0);
    EXPECT_EQ(n[0], "");
    ka_projection *mercator = veltra::registry_projection("Mercator");
    EXPECT_EQ(ka_parameter_projection_defaults(mercator, nullptr), 0);
    ka_projection_del(mercator);
}

// Every written projection and how many constants it stores on a sphere
// and on an ellipsoid.
constexpr struct { const char *name; int sphere, ellipsoid; } kProjections[] = {
    {"Plate_Carree", 0, 0}, {"Equidistant_Cylindrical", 0, 0}, {"Miller_Cylindrical", 0, 0},
    {"Mercator", 2, 2}, {"Gauss_Kruger", 2, 3}, {"Transverse_Mercator", 2, 3},
    {"Gall_Stereographic", 2, 2}, {"Behrmann", 2, 8}, {"Cylindrical_Equal_Area", 2, 8}};

// For every written projection: loaded constants (as many as its layout
// asks, on a sphere and on an ellipsoid) never change a result, forward or
// back; called directly, its routines convert nothing when n = 0 and keep a
// NaN point from its neighbours.  A constants block of another layout (the
// sphere's count on an ellipsoid) is not trusted.
TEST(Routines, ConstantsNeverChangeAResult) {
    std::vector<double> grid;
    for (double lat = -90; lat <= 90; lat += 7.5)
        for (double lon = -200; lon <= 200; lon += 23) grid.insert(grid.end(), {lon, lat});
    const int n = static_cast<int>(grid.size() / 2);
    const std::size_t bytes = grid.size() * sizeof(double);
    const double ellipsoid[2] = {kWgs84Axis, kWgs84E2};
    double params[16] = {};
    params[5] = 0.9996;
    for (const auto &row : kProjections) {
        SCOPED_TRACE(row.name);
        ka_projection *p = veltra::registry_projection(row.name);
        double c[6] = {0.5, 0.5, NAN, NAN, 0.1, 0.2};
        EXPECT_EQ(ka_projection_forward(p)(ellipsoid, params, 0, c, nullptr, nullptr), 0);
        EXPECT_EQ(ka_projection_inverse(p)(ellipsoid, params, 0, c, nullptr, nullptr), 0);
        EXPECT_EQ(c[0], 0.5);
        ka_projection_forward(p)(ellipsoid, params, 3, c, nullptr, nullptr);
        EXPECT_TRUE(std::isnan(c[2]) && std::isnan(c[3]));
        EXPECT_TRUE(std::isfinite(c[0]) && std::isfinite(c[5]));
        ka_projection_del(p);
        for (bool oblate : {false, true}) {
            ProjcsPtr pcs = make_projcs(
                row.name, kWgs84Axis, oblate ? kWgs84Flattening : 0,
                {{"False_Easting", 1000}, {"Central_Meridian", 12.5}, {"Standard_Parallel_1", 33},
                 {"Scale_Factor", 0.9996}, {"Latitude_Of_Origin", -20}});
            std::vector<double> plain = grid, loaded = grid;
            EXPECT_EQ(ka_geog_to_proj(pcs.get(), n, plain.data()), n);
            EXPECT_EQ(ka_projcs_load_constants(pcs.get()), oblate ? row.ellipsoid : row.sphere);
            EXPECT_EQ(ka_geog_to_proj(pcs.get(), n, loaded.data()), n);
            EXPECT_EQ(std::memcmp(plain.data(), loaded.data(), bytes), 0) << oblate;
            ka_proj_to_geog(pcs.get(), n, loaded.data());
            ka_projcs_unload_constants(pcs.get());
            ka_proj_to_geog(pcs.get(), n, plain.data());
            EXPECT_EQ(std::memcmp(plain.data(), loaded.data(), bytes), 0) << oblate;
        }
    }
    ka_projection *tm = veltra::registry_projection("Transverse_Mercator");
    const int header[2] = {2, 2};
    const double junk[2] = {1e9, -1e9};
    double with_junk[2] = {0.05, 0.7}, without[2] = {0.05, 0.7};
    ka_projection_forward(tm)(ellipsoid, params, 1, with_junk, header, junk);
    ka_projection_forward(tm)(ellipsoid, params, 1, without, nullptr, nullptr);
    EXPECT_EQ(std::memcmp(with_junk, without, sizeof without), 0);
    ka_projection_del(tm);
}

}  // namespace
