// The order in which ka_factory_projcs asks the family tables: the
// miscellaneous national and world systems, the zone families, State Plane
// 1927, State Plane 1983 in metres and in feet, State Plane 1983 HARN.  Only
// the zone families are built so far.
#include "catalogue/projcs_families.h"

namespace veltra::catalogue {

namespace {

constexpr ProjcsFamily kFamilies[] = {
    zone_projcs,
};

}  // namespace

std::span<const ProjcsFamily> projcs_families() { return kFamilies; }

}  // namespace veltra::catalogue
