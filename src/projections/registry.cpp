// The projection registry: one row per projection with its catalogue code,
// name, routines, horizon, constants calculator and default parameter list.
// Rows whose routines are not part of this build keep their name and
// default list with null routines, so they are known but cannot be built.
#include "projections/registry.h"

#include "core/projection.h"
#include "projections/horizon.h"
#include "projections/routines.h"

#include <array>
#include <iterator>

namespace veltra {

namespace {

// Parameter catalogue codes of the default lists.
enum ParameterCode : int {
    kNone = 0,
    kFalseEasting = 100001,
    kFalseNorthing = 100002,
    kScaleFactor = 100003,
    kAzimuth = 100004,
    kHeight = 100005,
    kCentralMeridian = 100010,
    kLongitudeOfOrigin = 100011,
    kLongitudeOfCenter = 100012,
    kLongitudeOf1stPoint = 100013,
    kLongitudeOf2ndPoint = 100014,
    kCentralParallel = 100020,
    kLatitudeOfOrigin = 100021,
    kLatitudeOfCenter = 100022,
    kLatitudeOf1stPoint = 100023,
    kLatitudeOf2ndPoint = 100024,
    kStandardParallel1 = 100025,
    kStandardParallel2 = 100026,
    kPseudoStandardParallel1 = 100027,
    kXScale = 100037,
    kYScale = 100038,
    kXYPlaneRotation = 100039,
};

// Every default list begins with the false easting and northing.
constexpr int kFalseOrigin[] = {kFalseEasting, kFalseNorthing};
constexpr int kMaxListed = 8;

struct ProjectionRow {
    int code;
    const char *name;
    ka_projection_fn forward;
    ka_projection_fn inverse;
    ka_horizon_fn horizon;
    PcsConstantsFn constants;
    // The parameters besides the false origin (kNone-terminated).
    std::array<int, kMaxListed> defaults;
    // Robinson's list reports a count of 0 although it makes its parameters.
    bool count_reported = true;
};

constexpr ka_horizon_fn kWorld = default_horizon;
constexpr ka_horizon_fn kTransverse = transverse_mercator_horizon;

constexpr std::array<int, kMaxListed> kCM = {kCentralMeridian};
constexpr std::array<int, kMaxListed> kCMParallel = {kCentralMeridian,
                                                     kStandardParallel1};
constexpr std::array<int, kMaxListed> kCMScaleOrigin = {
    kCentralMeridian, kScaleFactor, kLatitudeOfOrigin};
constexpr std::array<int, kMaxListed> kCMOrigin = {kCentralMeridian,
                                                   kLatitudeOfOrigin};
constexpr std::array<int, kMaxListed> kConic = {
    kCentralMeridian, kStandardParallel1, kStandardParallel2,
    kLatitudeOfOrigin};
constexpr std::array<int, kMaxListed> kTwoPoint = {
    kLongitudeOf1stPoint, kLatitudeOf1stPoint, kLongitudeOf2ndPoint,
    kLatitudeOf2ndPoint,  kLatitudeOfCenter,   kScaleFactor};
constexpr std::array<int, kMaxListed> kAzimuthCenter = {
    kLongitudeOfCenter, kLatitudeOfCenter, kAzimuth, kScaleFactor};
constexpr std::array<int, kMaxListed> kCenter = {kLongitudeOfCenter,
                                                 kLatitudeOfCenter};

// By code.  Routines still to be written are null.
constexpr ProjectionRow kRows[] = {
    {43001, "Plate_Carree", plate_carree_forward, plate_carree_inverse,
     kWorld, nullptr, kCM},
    {43002, "Equidistant_Cylindrical", equidistant_cylindrical_forward,
     equidistant_cylindrical_inverse, kWorld, nullptr, kCMParallel},
    {43003, "Miller_Cylindrical", miller_cylindrical_forward,
     miller_cylindrical_inverse, kWorld, nullptr, kCM},
    {43004, "Mercator", mercator_forward, mercator_inverse, mercator_horizon,
     mercator_constants, kCMParallel},
    {43005, "Gauss_Kruger", gauss_kruger_forward, gauss_kruger_inverse,
     kTransverse, gauss_kruger_constants, kCMScaleOrigin},
    {43006, "Transverse_Mercator", gauss_kruger_forward, gauss_kruger_inverse,
     kTransverse, gauss_kruger_constants, kCMScaleOrigin},
    {43007, "Albers", nullptr, nullptr, nullptr, nullptr, kConic},
    {43008, "Sinusoidal", nullptr, nullptr, kWorld, nullptr, kCM},
    {43009, "Mollweide", nullptr, nullptr, kWorld, nullptr, kCM},
    {43010, "Eckert_VI", nullptr, nullptr, kWorld, nullptr, kCM},
    {43011, "Eckert_V", nullptr, nullptr, kWorld, nullptr, kCM},
    {43012, "Eckert_IV", nullptr, nullptr, kWorld, nullptr, kCM},
    {43013, "Eckert_III", nullptr, nullptr, kWorld, nullptr, kCM},
    {43014, "Eckert_II", nullptr, nullptr, kWorld, nullptr, kCM},
    {43015, "Eckert_I", nullptr, nullptr, kWorld, nullptr, kCM},
    {43016, "Gall_Stereographic", gall_stereographic_forward,
     gall_stereographic_inverse, kWorld, gall_stereographic_constants, kCM},
    {43017, "Behrmann", behrmann_forward, behrmann_inverse, kWorld,
     behrmann_constants, kCM},
    {43018, "Winkel_I", nullptr, nullptr, kWorld, nullptr, kCMParallel},
    {43019, "Winkel_II", nullptr, nullptr, kWorld, nullptr, kCMParallel},
    {43020, "Lambert_Conformal_Conic", nullptr, nullptr, nullptr, nullptr,
     {kCentralMeridian, kStandardParallel1, kStandardParallel2, kScaleFactor,
      kLatitudeOfOrigin}},
    {43021, "Polyconic", nullptr, nullptr, kWorld, nullptr, kCMOrigin},
    {43022, "Quartic_Authalic", nullptr, nullptr, kWorld, nullptr, kCM},
    {43023, "Loximuthal", nullptr, nullptr, kWorld, nullptr,
     {kCentralMeridian, kCentralParallel}},
    {43024, "Bonne", nullptr, nullptr, kWorld, nullptr, kCMParallel},
    {43025, "Hotine_Oblique_Mercator_Two_Point_Natural_Origin", nullptr,
     nullptr, nullptr, nullptr, kTwoPoint},
    {43026, "Stereographic", nullptr, nullptr, nullptr, nullptr,
     kCMScaleOrigin},
    {43027, "Equidistant_Conic", nullptr, nullptr, nullptr, nullptr, kConic},
    {43028, "Cassini", nullptr, nullptr, kTransverse, nullptr, kCMScaleOrigin},
    {43029, "Van_der_Grinten_I", nullptr, nullptr, kWorld, nullptr, kCM},
    {43030, "Robinson", nullptr, nullptr, kWorld, nullptr, kCM, false},
    {43031, "Two_Point_Equidistant", nullptr, nullptr, nullptr, nullptr,
     {kLongitudeOf1stPoint, kLongitudeOf2ndPoint, kLatitudeOf1stPoint,
      kLatitudeOf2ndPoint}},
    {43032, "Azimuthal_Equidistant", nullptr, nullptr, nullptr, nullptr,
     kCMOrigin},
    {43033, "Lambert_Azimuthal_Equal_Area", nullptr, nullptr, nullptr,
     nullptr, kCMOrigin},
    {43034, "Cylindrical_Equal_Area", cylindrical_eqarea_forward,
     cylindrical_eqarea_inverse, kWorld, cylindrical_eqarea_constants,
     kCMParallel},
    {43035, "Hotine_Oblique_Mercator_Two_Point_Center", nullptr, nullptr,
     nullptr, nullptr, kTwoPoint},
    {43036, "Hotine_Oblique_Mercator_Azimuth_Natural_Origin", nullptr, nullptr,
     nullptr, nullptr, kAzimuthCenter},
    {43037, "Hotine_Oblique_Mercator_Azimuth_Center", nullptr, nullptr,
     nullptr, nullptr, kAzimuthCenter},
    {43038, "Double_Stereographic", nullptr, nullptr, nullptr, nullptr,
     kCMScaleOrigin},
    {43039, "Krovak", nullptr, nullptr, nullptr, nullptr,
     {kLongitudeOfCenter, kLatitudeOfCenter, kPseudoStandardParallel1,
      kAzimuth, kScaleFactor, kXScale, kYScale, kXYPlaneRotation}},
    {43040, "New_Zealand_Map_Grid", nullptr, nullptr, nullptr, nullptr,
     {kLongitudeOfOrigin, kLatitudeOfOrigin}},
    {43041, "Orthographic", nullptr, nullptr, nullptr, nullptr, kCenter},
    {43042, "Winkel_Tripel", nullptr, nullptr, kWorld, nullptr, kCMParallel},
    {43043, "Aitoff", nullptr, nullptr, kWorld, nullptr, kCM},
    {43044, "Hammer_Aitoff", nullptr, nullptr, kWorld, nullptr, kCM},
    {43045, "Flat_Polar_Quartic", nullptr, nullptr, kWorld, nullptr, kCM},
    {43046, "Craster_Parabolic", nullptr, nullptr, kWorld, nullptr, kCM},
    {43047, "Gnomonic", nullptr, nullptr, nullptr, nullptr, kCenter},
    {43048, "Times", nullptr, nullptr, kWorld, nullptr, kCM},
    {43049, "Vertical_Near_Side_Perspective", nullptr, nullptr, nullptr,
     nullptr, {kLongitudeOfCenter, kLatitudeOfCenter, kHeight}},
    {43050, "Stereographic_North_Pole", nullptr, nullptr, nullptr, nullptr,
     kCMParallel},
    {43051, "Stereographic_South_Pole", nullptr, nullptr, nullptr, nullptr,
     kCMParallel},
};

static_assert(std::size(kRows) == 51);

const ProjectionRow *find_row(const char *name) {
    if (name == nullptr) return nullptr;
    for (const ProjectionRow &row : kRows)
        if (ka_strcasecmp(row.name, name) == 0) return &row;
    return nullptr;
}

// Makes the parameter of `code` and puts it in its slot; 1 when made.
int place_default(int code, ka_parameter **parameters) {
    ka_parameter *parameter = ka_factory_parameter(code);
    const int slot = ka_parameter_index(parameter);
    if (slot < 0) {
        ka_parameter_del(parameter);
        return 0;
    }
    parameters[slot] = parameter;
    return 1;
}

}  // namespace

ka_projection *registry_projection(const char *name) {
    const ProjectionRow *row = find_row(name);
    if (row == nullptr || row->forward == nullptr || row->inverse == nullptr)
        return nullptr;
    return new_projection(name, row->forward, row->inverse, row->horizon,
                          row->constants);
}

const char *projection_code_name(int code) {
    for (const ProjectionRow &row : kRows)
        if (row.code == code) return row.name;
    return "";
}

}  // namespace veltra

using namespace veltra;

extern "C" KA_API int ka_parameter_projection_defaults(
    const ka_projection *projection, ka_parameter **parameters) {
    if (parameters == nullptr) return 0;
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i) parameters[i] = nullptr;
    if (!ka_projection_p(projection)) return 0;
    char name[KA_NAME_MAX];
    ka_projection_name(projection, name);
    const ProjectionRow *row = find_row(name);
    if (row == nullptr) return 0;
    int made = 0;
    for (int code : kFalseOrigin) made += place_default(code, parameters);
    for (int code : row->defaults) {
        if (code == kNone) break;
        made += place_default(code, parameters);
    }
    return row->count_reported ? made : 0;
}
