// The projection registry: names, shared routines, default parameter lists.
#include "projections/registry.h"
#include "veltra.h"

#include <gtest/gtest.h>

#include <string>

namespace {

struct Expected {
    int code;
    const char *name;
    int count;  // as ka_parameter_projection_defaults reports it
};

// The catalogue's projection codes and names, with the default-list counts.
constexpr Expected kTable[] = {
    {43001, "Plate_Carree", 3},
    {43002, "Equidistant_Cylindrical", 4},
    {43003, "Miller_Cylindrical", 3},
    {43004, "Mercator", 4},
    {43005, "Gauss_Kruger", 5},
    {43006, "Transverse_Mercator", 5},
    {43007, "Albers", 6},
    {43008, "Sinusoidal", 3},
    {43009, "Mollweide", 3},
    {43010, "Eckert_VI", 3},
    {43011, "Eckert_V", 3},
    {43012, "Eckert_IV", 3},
    {43013, "Eckert_III", 3},
    {43014, "Eckert_II", 3},
    {43015, "Eckert_I", 3},
    {43016, "Gall_Stereographic", 3},
    {43017, "Behrmann", 3},
    {43018, "Winkel_I", 4},
    {43019, "Winkel_II", 4},
    {43020, "Lambert_Conformal_Conic", 7},
    {43021, "Polyconic", 4},
    {43022, "Quartic_Authalic", 3},
    {43023, "Loximuthal", 4},
    {43024, "Bonne", 4},
    {43025, "Hotine_Oblique_Mercator_Two_Point_Natural_Origin", 8},
    {43026, "Stereographic", 5},
    {43027, "Equidistant_Conic", 6},
    {43028, "Cassini", 5},
    {43029, "Van_der_Grinten_I", 3},
    {43030, "Robinson", 0},
    {43031, "Two_Point_Equidistant", 6},
    {43032, "Azimuthal_Equidistant", 4},
    {43033, "Lambert_Azimuthal_Equal_Area", 4},
    {43034, "Cylindrical_Equal_Area", 4},
    {43035, "Hotine_Oblique_Mercator_Two_Point_Center", 8},
    {43036, "Hotine_Oblique_Mercator_Azimuth_Natural_Origin", 6},
    {43037, "Hotine_Oblique_Mercator_Azimuth_Center", 6},
    {43038, "Double_Stereographic", 5},
    {43039, "Krovak", 10},
    {43040, "New_Zealand_Map_Grid", 4},
    {43041, "Orthographic", 4},
    {43042, "Winkel_Tripel", 4},
    {43043, "Aitoff", 3},
    {43044, "Hammer_Aitoff", 3},
    {43045, "Flat_Polar_Quartic", 3},
    {43046, "Craster_Parabolic", 3},
    {43047, "Gnomonic", 4},
    {43048, "Times", 3},
    {43049, "Vertical_Near_Side_Perspective", 5},
    {43050, "Stereographic_North_Pole", 4},
    {43051, "Stereographic_South_Pole", 4},
};

// The projections whose routines this build has.
bool written(int code) {
    return (code >= 43001 && code <= 43006) || code == 43016 ||
           code == 43017 || code == 43034;
}

// A projection object of any registry name, with a stand-in routine for
// names whose routines are not written, so their lists can be asked for.
ka_projection *named(const char *name) {
    return ka_projection_new(name, ka_projection_forward(nullptr),
                             ka_projection_inverse(nullptr), nullptr);
}

std::string name_of(const ka_parameter *p) {
    char name[KA_NAME_MAX];
    ka_parameter_name(p, name);
    return name;
}

void release(ka_parameter **slots) {
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i) ka_parameter_del(slots[i]);
}

TEST(Registry, CodesNameEveryProjection) {
    for (const Expected &row : kTable) {
        EXPECT_STREQ(veltra::projection_code_name(row.code), row.name);
        ka_projection *p = ka_factory_projection(row.code);
        EXPECT_EQ(p != nullptr, written(row.code)) << row.name;
        if (p != nullptr) {
            char name[KA_NAME_MAX];
            ka_projection_name(p, name);
            EXPECT_STREQ(name, row.name);
        }
        ka_projection_del(p);
    }
    for (int code : {0, -1, 43000, 43052, 52999, 100001})
        EXPECT_STREQ(veltra::projection_code_name(code), "") << code;
}

TEST(Registry, LookupIgnoresCaseAndKeepsTheGivenSpelling) {
    ka_projection *p = veltra::registry_projection("transverse_MERCATOR");
    ASSERT_NE(p, nullptr);
    char name[KA_NAME_MAX];
    ka_projection_name(p, name);
    EXPECT_STREQ(name, "transverse_MERCATOR");
    ka_projection *q = ka_factory_projection(43006);
    EXPECT_TRUE(ka_projection_eq(p, q));
    ka_projection_del(p);
    ka_projection_del(q);
    EXPECT_EQ(veltra::registry_projection("Transverse"), nullptr);
    EXPECT_EQ(veltra::registry_projection(""), nullptr);
    EXPECT_EQ(veltra::registry_projection(nullptr), nullptr);
    EXPECT_EQ(veltra::registry_projection("Albers"), nullptr);  // not written
}

TEST(Registry, CylindricalsShareTheWorldHorizon) {
    ka_projection *plate = ka_factory_projection(43001);
    ka_projection *behrmann = ka_factory_projection(43017);
    ka_projection *mercator = ka_factory_projection(43004);
    EXPECT_EQ(ka_projection_horizon(plate), ka_projection_horizon(nullptr));
    EXPECT_EQ(ka_projection_horizon(behrmann), ka_projection_horizon(nullptr));
    EXPECT_NE(ka_projection_horizon(mercator), ka_projection_horizon(nullptr));
    for (ka_projection *p : {plate, behrmann, mercator}) ka_projection_del(p);
}

TEST(ProjectionDefaults, CountsFollowTheTable) {
    for (const Expected &row : kTable) {
        ka_projection *p = named(row.name);
        ka_parameter *slots[KA_PARAMETER_SLOTS];
        EXPECT_EQ(ka_parameter_projection_defaults(p, slots), row.count)
            << row.name;
        int made = 0;
        for (ka_parameter *s : slots) made += s != nullptr;
        EXPECT_EQ(made, row.count == 0 ? 3 : row.count) << row.name;
        EXPECT_EQ(name_of(slots[0]), "False_Easting");
        EXPECT_EQ(name_of(slots[1]), "False_Northing");
        release(slots);
        ka_projection_del(p);
    }
}

TEST(ProjectionDefaults, RobinsonMakesThreeButReportsNone) {
    ka_projection *p = named("ROBINSON");
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    EXPECT_EQ(ka_parameter_projection_defaults(p, slots), 0);
    EXPECT_EQ(name_of(slots[2]), "Central_Meridian");
    for (int i = 3; i < KA_PARAMETER_SLOTS; ++i) EXPECT_EQ(slots[i], nullptr);
    release(slots);
    ka_projection_del(p);
}

TEST(ProjectionDefaults, ParametersSitInTheirSlotsWithTheirDefaults) {
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    ka_projection *krovak = named("Krovak");
    ASSERT_EQ(ka_parameter_projection_defaults(krovak, slots), 10);
    EXPECT_EQ(name_of(slots[3]), "Pseudo_Standard_Parallel_1");
    EXPECT_EQ(name_of(slots[12]), "X_Scale");
    EXPECT_EQ(name_of(slots[13]), "Y_Scale");
    EXPECT_EQ(name_of(slots[14]), "XY_Plane_Rotation");
    EXPECT_EQ(ka_parameter_value(slots[12]), 1.0);
    EXPECT_EQ(ka_parameter_value(slots[7]), 45.0);  // Azimuth
    release(slots);

    ka_projection *nzmg = named("New_Zealand_Map_Grid");
    ASSERT_EQ(ka_parameter_projection_defaults(nzmg, slots), 4);
    EXPECT_EQ(name_of(slots[2]), "Longitude_Of_Origin");
    EXPECT_EQ(name_of(slots[6]), "Latitude_Of_Origin");
    release(slots);

    ka_projection *perspective = named("Vertical_Near_Side_Perspective");
    ASSERT_EQ(ka_parameter_projection_defaults(perspective, slots), 5);
    EXPECT_EQ(name_of(slots[15]), "Height");
    EXPECT_EQ(name_of(slots[11]), "Latitude_Of_Center");
    release(slots);

    ka_projection *loximuthal = named("Loximuthal");
    ASSERT_EQ(ka_parameter_projection_defaults(loximuthal, slots), 4);
    EXPECT_EQ(name_of(slots[6]), "Central_Parallel");
    release(slots);

    ka_projection *lcc = named("Lambert_Conformal_Conic");
    ASSERT_EQ(ka_parameter_projection_defaults(lcc, slots), 7);
    EXPECT_EQ(ka_parameter_value(slots[3]), 60.0);
    EXPECT_EQ(ka_parameter_value(slots[4]), 60.0);
    EXPECT_EQ(ka_parameter_value(slots[5]), 1.0);
    EXPECT_EQ(ka_parameter_value(slots[6]), 0.0);
    release(slots);

    ka_projection *hotine = named("Hotine_Oblique_Mercator_Two_Point_Center");
    ASSERT_EQ(ka_parameter_projection_defaults(hotine, slots), 8);
    EXPECT_EQ(name_of(slots[3]), "Latitude_Of_1st_Point");
    EXPECT_EQ(name_of(slots[9]), "Longitude_Of_2nd_Point");
    release(slots);
    for (ka_projection *p : {krovak, nzmg, perspective, loximuthal, lcc, hotine})
        ka_projection_del(p);
}

TEST(ProjectionDefaults, RejectsNullAndUnknownProjections) {
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    for (auto &s : slots) s = reinterpret_cast<ka_parameter *>(&slots);
    EXPECT_EQ(ka_parameter_projection_defaults(nullptr, slots), 0);
    for (ka_parameter *s : slots) EXPECT_EQ(s, nullptr);  // cleared
    ka_projection *unknown = named("Not_A_Projection");
    EXPECT_EQ(ka_parameter_projection_defaults(unknown, slots), 0);
    for (ka_parameter *s : slots) EXPECT_EQ(s, nullptr);
    EXPECT_EQ(ka_parameter_projection_defaults(unknown, nullptr), 0);
    ka_projection_del(unknown);
}

}  // namespace
