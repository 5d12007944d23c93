// The projection registry: names by code, default parameter lists.
#include "projections/registry.h"
#include "veltra.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// Code, name and the count ka_parameter_projection_defaults reports.
constexpr struct {
    int code;
    const char *name;
    int count;
} kTable[] = {
    {43001, "Plate_Carree", 3}, {43002, "Equidistant_Cylindrical", 4},
    {43003, "Miller_Cylindrical", 3}, {43004, "Mercator", 4},
    {43005, "Gauss_Kruger", 5}, {43006, "Transverse_Mercator", 5},
    {43007, "Albers", 6}, {43008, "Sinusoidal", 3}, {43009, "Mollweide", 3},
    {43010, "Eckert_VI", 3}, {43011, "Eckert_V", 3}, {43012, "Eckert_IV", 3},
    {43013, "Eckert_III", 3}, {43014, "Eckert_II", 3}, {43015, "Eckert_I", 3},
    {43016, "Gall_Stereographic", 3}, {43017, "Behrmann", 3},
    {43018, "Winkel_I", 4}, {43019, "Winkel_II", 4},
    {43020, "Lambert_Conformal_Conic", 7}, {43021, "Polyconic", 4},
    {43022, "Quartic_Authalic", 3}, {43023, "Loximuthal", 4},
    {43024, "Bonne", 4},
    {43025, "Hotine_Oblique_Mercator_Two_Point_Natural_Origin", 8},
    {43026, "Stereographic", 5}, {43027, "Equidistant_Conic", 6},
    {43028, "Cassini", 5}, {43029, "Van_der_Grinten_I", 3},
    {43030, "Robinson", 0}, {43031, "Two_Point_Equidistant", 6},
    {43032, "Azimuthal_Equidistant", 4},
    {43033, "Lambert_Azimuthal_Equal_Area", 4},
    {43034, "Cylindrical_Equal_Area", 4},
    {43035, "Hotine_Oblique_Mercator_Two_Point_Center", 8},
    {43036, "Hotine_Oblique_Mercator_Azimuth_Natural_Origin", 6},
    {43037, "Hotine_Oblique_Mercator_Azimuth_Center", 6},
    {43038, "Double_Stereographic", 5}, {43039, "Krovak", 10},
    {43040, "New_Zealand_Map_Grid", 4}, {43041, "Orthographic", 4},
    {43042, "Winkel_Tripel", 4}, {43043, "Aitoff", 3},
    {43044, "Hammer_Aitoff", 3}, {43045, "Flat_Polar_Quartic", 3},
    {43046, "Craster_Parabolic", 3}, {43047, "Gnomonic", 4},
    {43048, "Times", 3}, {43049, "Vertical_Near_Side_Perspective", 5},
    {43050, "Stereographic_North_Pole", 4},
    {43051, "Stereographic_South_Pole", 4},
};

// The projections whose routines this build has.
bool written(int code) {
    return (code >= 43001 && code <= 43006) || code == 43016 ||
           code == 43017 || code == 43034;
}

// A projection of any name, so the lists of unwritten rows can be asked for.
ka_projection *named(const char *name) {
    return ka_projection_new(name, ka_projection_forward(nullptr),
                             ka_projection_inverse(nullptr), nullptr);
}

std::string name_of(const ka_parameter *p) {
    char name[KA_NAME_MAX];
    ka_parameter_name(p, name);
    return name;
}

// The list of `projection` (deleted), as names by slot, and its count.
int defaults(const char *projection, std::string (&names)[KA_PARAMETER_SLOTS]) {
    ka_projection *p = named(projection);
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    const int count = ka_parameter_projection_defaults(p, slots);
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i) {
        names[i] = slots[i] ? name_of(slots[i]) : "";
        ka_parameter_del(slots[i]);
    }
    ka_projection_del(p);
    return count;
}

TEST(Registry, CodesNameEveryProjectionAndBuildTheWrittenOnes) {
    for (const auto &row : kTable) {
        EXPECT_STREQ(veltra::projection_code_name(row.code), row.name);
        ka_projection *p = ka_factory_projection(row.code);
        EXPECT_EQ(p != nullptr, written(row.code)) << row.name;
        char name[KA_NAME_MAX] = "";
        ka_projection_name(p, name);
        if (p) {
            EXPECT_STREQ(name, row.name);
        }
        ka_projection_del(p);
    }
    for (int code : {0, -43004, 43000, 43052, 52999, 100001})
        EXPECT_EQ(ka_factory_projection(code), nullptr) << code;
}

TEST(Registry, LookupIgnoresCaseAndKeepsTheGivenSpelling) {
    ka_projection *p = veltra::registry_projection("transverse_MERCATOR");
    ka_projection *gk = ka_factory_projection(43005);
    char name[KA_NAME_MAX];
    ka_projection_name(p, name);
    EXPECT_STREQ(name, "transverse_MERCATOR");
    // Gauss_Kruger is the same projection under another name.
    EXPECT_EQ(ka_projection_forward(p), ka_projection_forward(gk));
    EXPECT_EQ(ka_projection_inverse(p), ka_projection_inverse(gk));
    EXPECT_EQ(ka_projection_horizon(p), ka_projection_horizon(gk));
    ka_projection_del(p);
    ka_projection_del(gk);
    EXPECT_EQ(veltra::registry_projection("Transverse"), nullptr);
    EXPECT_EQ(veltra::registry_projection(nullptr), nullptr);
}

TEST(ProjectionDefaults, CountsAndFalseOriginFollowTheTable) {
    for (const auto &row : kTable) {
        std::string names[KA_PARAMETER_SLOTS];
        EXPECT_EQ(defaults(row.name, names), row.count) << row.name;
        int made = 0;
        for (const std::string &n : names) made += !n.empty();
        EXPECT_EQ(made, row.count == 0 ? 3 : row.count) << row.name;
        EXPECT_EQ(names[0], "False_Easting");
        EXPECT_EQ(names[1], "False_Northing");
    }
}

TEST(ProjectionDefaults, ParametersSitInTheirSlots) {
    std::string n[KA_PARAMETER_SLOTS];
    defaults("ROBINSON", n);  // count 0, yet three parameters
    EXPECT_EQ(n[2], "Central_Meridian");
    defaults("Krovak", n);
    EXPECT_EQ(n[3], "Pseudo_Standard_Parallel_1");
    EXPECT_EQ(n[12] + n[13] + n[14], "X_ScaleY_ScaleXY_Plane_Rotation");
    defaults("New_Zealand_Map_Grid", n);
    EXPECT_EQ(n[2], "Longitude_Of_Origin");
    defaults("Vertical_Near_Side_Perspective", n);
    EXPECT_EQ(n[15], "Height");
    defaults("Loximuthal", n);
    EXPECT_EQ(n[6], "Central_Parallel");
    defaults("Hotine_Oblique_Mercator_Two_Point_Center", n);
    EXPECT_EQ(n[3] + n[9], "Latitude_Of_1st_PointLongitude_Of_2nd_Point");

    // Values are the parameter table's defaults.
    ka_projection *lcc = named("Lambert_Conformal_Conic");
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    ASSERT_EQ(ka_parameter_projection_defaults(lcc, slots), 7);
    EXPECT_EQ(ka_parameter_value(slots[3]), 60.0);
    EXPECT_EQ(ka_parameter_value(slots[5]), 1.0);
    EXPECT_EQ(ka_parameter_value(slots[6]), 0.0);
    for (ka_parameter *p : slots) ka_parameter_del(p);
    ka_projection_del(lcc);
}

TEST(ProjectionDefaults, RejectsNullAndUnknownProjections) {
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    for (auto &s : slots) s = reinterpret_cast<ka_parameter *>(&slots);
    EXPECT_EQ(ka_parameter_projection_defaults(nullptr, slots), 0);
    for (ka_parameter *s : slots) EXPECT_EQ(s, nullptr);  // cleared
    ka_projection *unknown = named("Not_A_Projection");
    EXPECT_EQ(ka_parameter_projection_defaults(unknown, slots), 0);
    EXPECT_EQ(ka_parameter_projection_defaults(unknown, nullptr), 0);
    ka_projection_del(unknown);
}

}  // namespace
