// Parameters from catalogue codes: the code names a parameter, the name's
// row of the parameter-name table gives its default value.
#include "core/parameter.h"
#include "veltra.h"

#include <algorithm>
#include <iterator>

namespace {

struct ParameterCode {
    int code;
    const char *name;
};

// Sorted by code; codes in the range but not listed have no parameter.
constexpr ParameterCode kCodes[] = {
    {100001, "False_Easting"},
    {100002, "False_Northing"},
    {100003, "Scale_Factor"},
    {100004, "Azimuth"},
    {100005, "Height"},
    {100010, "Central_Meridian"},
    {100011, "Longitude_Of_Origin"},
    {100012, "Longitude_Of_Center"},
    {100013, "Longitude_Of_1st_Point"},
    {100014, "Longitude_Of_2nd_Point"},
    {100020, "Central_Parallel"},
    {100021, "Latitude_Of_Origin"},
    {100022, "Latitude_Of_Center"},
    {100023, "Latitude_Of_1st_Point"},
    {100024, "Latitude_Of_2nd_Point"},
    {100025, "Standard_Parallel_1"},
    {100026, "Standard_Parallel_2"},
    {100027, "Pseudo_Standard_Parallel_1"},
    {100037, "X_Scale"},
    {100038, "Y_Scale"},
    {100039, "XY_Plane_Rotation"},
    {100040, "X_Axis_Translation"},
    {100041, "Y_Axis_Translation"},
    {100042, "Z_Axis_Translation"},
    {100043, "X_Axis_Rotation"},
    {100044, "Y_Axis_Rotation"},
    {100045, "Z_Axis_Rotation"},
    {100046, "Scale_Difference"},
    {100047, "Dataset_"},
};

const char *parameter_code_name(int code) {
    auto it = std::lower_bound(
        std::begin(kCodes), std::end(kCodes), code,
        [](const ParameterCode &row, int value) { return row.code < value; });
    return it != std::end(kCodes) && it->code == code ? it->name : "";
}

}  // namespace

extern "C" KA_API ka_parameter *ka_factory_parameter(int code) {
    const veltra::ParameterName *row =
        veltra::find_parameter_name(parameter_code_name(code));
    if (row == nullptr) return nullptr;
    return ka_parameter_new(row->name, row->default_value);
}
